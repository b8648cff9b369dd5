#pragma once

#include "database/records.h"

#include <QList>
#include <QString>

// Readers of the MCU catalogue MCUList.xml. Each call opens, parses and closes the file and
// keeps nothing; a missing or malformed file or a missing section gives an empty list.

// The device series in file order, Info resolved by g_language.
QList<MCUSerialInfo> GetMCUSerialList();
QList<MCUSerialInfo> GetMCUSerialList(const QString &cataloguePath);

// The package names in file order.
QList<MCUPackageInfo> GetMCUPackageList();
QList<MCUPackageInfo> GetMCUPackageList(const QString &cataloguePath);

// The devices of a series in file order.
QList<MCUListItem> GetMCUList(const QString &series);
QList<MCUListItem> GetMCUList(const QString &cataloguePath, const QString &series);
