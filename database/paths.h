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

// A device file: seriesFolder(series) + "/" + device + ".xml".
QString deviceFilePath(const QString &series, const QString &device);

// A peripheral file: seriesFolder(series) + "/Peripherals/" + name + "-" + version + ".xml".
QString peripheralFilePath(const QString &series, const QString &name, const QString &version);

// The DMA panel's secondary file, from seriesFolder(series) + "/device/Peripherals/".
QString secondaryPeripheralFilePath(const QString &series, const QString &name,
                                    const QString &version);
