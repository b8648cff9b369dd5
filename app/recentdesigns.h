#pragma once

#include <QString>
#include <QStringList>

// The list of recently used design files, resentlyProject.xml beside the program: a root
// "Root" holding one "ResentlyProject" with one "FilePath" text child per design, newest first.

// Keeps at most this many designs.
constexpr int kMaxRecentDesigns = 5;

// app folder + "/resentlyProject.xml".
QString RecentDesignsPath();

// The FilePath entries of the first ResentlyProject of the root, in order, at most
// kMaxRecentDesigns of them: the rest of the file is not read. A file in which a fault is met
// before that is set aside (setAsideUnreadableFile()) and gives an empty list.
QStringList GetRecentDesigns();
QStringList GetRecentDesigns(const QString &listFile);

// Moves `designPath` to the front of the list, drops its other occurrences and keeps at most
// kMaxRecentDesigns entries, then rewrites the file. An empty path changes nothing.
bool AddRecentDesign(const QString &designPath);
bool AddRecentDesign(const QString &listFile, const QString &designPath);

// Removes every occurrence of `designPath` and rewrites the file.
bool DeleteRecentDesign(const QString &designPath);
bool DeleteRecentDesign(const QString &listFile, const QString &designPath);

// Rewrites the list file from scratch with `designs` in order.
bool WriteRecentDesigns(const QString &listFile, const QStringList &designs);
