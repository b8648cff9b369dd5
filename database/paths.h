#pragma once

#include <QString>

// Installation paths, all derived from the folder of the program.

// The folder of the program, or the override when one is set.
QString appFolder();

// Replaces the program folder for tests; an empty text clears the override.
void setAppFolderOverride(const QString &folder);

// appFolder() + "/MQ48DB".
QString databaseFolder();

// The catalogue: databaseFolder() + "/MCUList.xml".
QString cataloguePath();

// The folder of a series: databaseFolder() + "/device/" + series.
QString seriesFolder(const QString &series);

// True when a name taken from a file can stand in a file name without leaving its folder:
// not empty, no "/" or "\\", and no "..".
bool IsPlainFileStem(const QString &name);

// A device file: seriesFolder(series) + "/" + device + ".xml". Empty when the series or the
// device is no plain file stem, so that nothing outside the database is read.
QString deviceFilePath(const QString &series, const QString &device);

// A peripheral file: seriesFolder(series) + "/Peripherals/" + name + "-" + version + ".xml".
// Empty when the series, the name or a non-empty version is no plain file stem.
QString peripheralFilePath(const QString &series, const QString &name, const QString &version);

// The DMA panel's secondary file, from seriesFolder(series) + "/device/Peripherals/", with
// the same rule.
QString secondaryPeripheralFilePath(const QString &series, const QString &name,
                                    const QString &version);
