#pragma once

#include <QString>

#include <functional>

class QWidget;

// Asks for a folder; an empty answer means the user declined.
using DirectoryChooser = std::function<QString(QWidget *parent)>;

// "New version download": fetches the published version list, compares the version of
// "MQ48 Pin Forge" there with `currentVersion` (e.g. "V1.0.08"), and when it is newer asks,
// lets the user choose a folder and downloads the new version into it, with the program's
// messages all along. `chooseDirectory` defaults to the folder dialog "Select directory".
void runNewVersionDownload(QWidget *parent, const QString &currentVersion,
                           const DirectoryChooser &chooseDirectory = DirectoryChooser());
