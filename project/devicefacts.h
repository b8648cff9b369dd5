#pragma once

#include <QChar>
#include <QString>
#include <QStringList>

// What the project writer and the project manager derive from a device series and part
// number: file stems, the firmware package's name and folder, memory sizes.
namespace devicefacts {

// Stem of the firmware package's folder and file names: "t110", "t210_220"; "" when the
// series has none.
QString deviceStem(const QString &series);

// Stem of the per-chip board folder "mq_board_<stem>": "t110", "t210"; "" when none.
QString boardStem(const QString &series);

// Family of the firmware package: pairs fold to one name ("MQ48T210_220"), others stay.
QString packageFamily(const QString &series);

// Prefix of the generated and driver file names: "mq48t110", "mq48t210_220".
QString codeStem(const QString &series);

// Part-number character of a flash size in KiB ('8' for 64, 'B' for 128); '\0' if unknown.
QChar flashCodeChar(int flashKiB);

// Stem of the package's linker files: series + "x" + flash character ("MQ48T110x8").
QString linkerStem(const QString &series, int flashKiB);

// A catalogue size text ("64 KB", "1 MB", "512") in KiB; 0 when it can't be read.
int sizeKiB(const QString &text);

// The generated sources that an IDE project lists, in order: "main.c",
// "<stem>_pf_config.c", "<stem>_int.c", and "rtc.c" when asked.
QStringList generatedSources(const QString &series, bool withRtc = false);

// The folder of an installed package: repo + "/PF_" + family + "/" + packageName().
QString packageFolder(const QString &repository, const QString &series, const QString &version);

// The name of a package folder: family + "_Firmware_Library_" + version.
QString packageName(const QString &series, const QString &version);

// The versions ("V2.0.0") of the packages of the series installed in a repository, sorted
// with the newest first.
QStringList installedPackageVersions(const QString &repository, const QString &series);

// Whether `folder` is a usable firmware package of the series: its name holds "MQ48" and
// "Firmware_Library", and it has "libraries", "middlewares" and
// "project/mq_board_<stem>/templates".
bool isFirmwarePackage(const QString &folder, const QString &series);

} // namespace devicefacts
