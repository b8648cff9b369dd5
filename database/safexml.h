#pragma once

#include <QByteArray>
#include <QString>

class QDomDocument;

// Guarded XML parsing: every DOM parse of a file goes through these functions. A stream
// pre-scan refuses documents that are malformed, nested deeper than kMaxXmlDepth, larger than
// kMaxXmlBytes, or that declare DTD entities, before the DOM parser ever sees them.

constexpr int kMaxXmlDepth = 256;
constexpr qint64 kMaxXmlBytes = 64 * 1024 * 1024;

// True when `data` is well-formed and within the limits above.
bool isSafeXml(const QByteArray &data);

// Why `data` is refused, with the line where the reader stopped, as "line 12: unexpected end
// of document"; empty when isSafeXml() accepts it. The texts are English, for the database
// checker and the messages that quote them; translated where a catalogue is installed.
QString xmlProblem(const QByteArray &data);

// Reads the file at `path` into `data` and checks it with isSafeXml(); false on any failure.
bool readSafeXmlFile(const QString &path, QByteArray *data);
// The same, and on failure `problem` tells why: missing, unreadable, too large or the reason
// of xmlProblem().
bool readSafeXmlFile(const QString &path, QByteArray *data, QString *problem);

// Parses `data` into `doc`; false (and `doc` untouched) when the guard or the parser refuses.
bool parseXmlDocument(const QByteArray &data, QDomDocument *doc);

// Reads and parses the file at `path`; false when it can't be read or parse fails.
bool loadXmlDocument(const QString &path, QDomDocument *doc);

// Moves an unreadable settings or list file out of the way so that a fresh one can start:
// renames `path` to `path` + ".bad" (or ".bad2", ".bad3" ... when that name is taken) and
// tells the set-aside handler. Returns the new name, empty when nothing could be renamed.
QString setAsideUnreadableFile(const QString &path);

// Receives each file that setAsideUnreadableFile() moved, so that the user can be told once.
using SetAsideHandler = void (*)(const QString &path, const QString &asidePath);
void setSetAsideHandler(SetAsideHandler handler);
