#pragma once

#include "database/records.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

// Naming rules of firmware packages and the listing of a package repository.
//
// A repository holds one folder per family, "PF_" + family row name, and inside it one folder
// per installed package, named like the package's zip without ".zip":
// <family>_Firmware_Library_V<version>.

// The family row a series belongs to: series that share one firmware library are merged
// ("MQ48T210" and "MQ48T220" give "MQ48T210_220"); every other series is its own row.
QString PackageFamilyName(const QString &series);

// The family rows of a series list, in the order of their first series, without duplicates.
QStringList PackageFamilyRows(const QList<MCUSerialInfo> &series);
// The family rows of the catalogue beside the program.
QStringList PackageFamilyRows();

// The family named by a package file or folder name: the text before the last
// "_Firmware_Library_"; empty when the name holds none.
QString PackageFamilyOf(const QString &packageName);

// The version shown for an installed package folder: the text behind the last "_", or
// "Unknown version" (translated) when that text does not start with "V".
QString PackageVersionOf(const QString &folderName);

// True when `path` names a firmware package zip: its file name holds "MQ48" and
// "Firmware_Library_V", its suffix is "zip", and its family is one of `familyRows`.
bool IsValidPackageName(const QString &path, const QStringList &familyRows);
// The same against the family rows of the catalogue beside the program.
bool IsValidPackageName(const QString &path);

// "PF_" + family: the folder of a family inside a repository.
QString PackageFamilyFolderName(const QString &family);

// One package folder found in a repository.
struct InstalledPackage
{
    QString family;     // the family row
    QString folderName; // e.g. "MQ48T110_Firmware_Library_V2.0.0"
    QString version;    // e.g. "V2.0.0", or "Unknown version"
    QString path;       // absolute path of the package folder
    QDateTime created;  // creation date of the folder (or its last change when unknown)
};

// The packages of a repository: folders "PF_<row>" whose row is one of `familyRows`, and in
// each the sub-folders whose name starts with row + "_Firmware_Library". Ordered by family
// row, then by folder name. Empty when the repository does not exist.
QList<InstalledPackage> ListInstalledPackages(const QString &repoPath,
                                              const QStringList &familyRows);
