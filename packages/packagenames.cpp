#include "packages/packagenames.h"

#include "database/catalogue.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

// Series that share one firmware library, and the name of their row and folder.
struct MergedFamily
{
    const char *row;
    const char *series[3];
};

const MergedFamily kMergedFamilies[] = {
    {"MQ48T210_220", {"MQ48T210", "MQ48T220", nullptr}},
    {"MQ48T250_260", {"MQ48T250", "MQ48T260", nullptr}},
    {"MQ48T510_520", {"MQ48T510", "MQ48T520", nullptr}},
    {"MQ48T610_620_630", {"MQ48T610", "MQ48T620", "MQ48T630"}},
};

const QLatin1String kLibraryMark("_Firmware_Library_");

QDateTime creationDate(const QFileInfo &info)
{
    QDateTime when = info.birthTime();
    if (!when.isValid())
        when = info.metadataChangeTime();
    if (!when.isValid())
        when = info.lastModified();
    return when;
}

} // namespace

QString PackageFamilyName(const QString &series)
{
    for (const MergedFamily &family : kMergedFamilies) {
        for (const char *member : family.series) {
            if (member && series == QLatin1String(member))
                return QString::fromLatin1(family.row);
        }
    }
    return series;
}

QStringList PackageFamilyRows(const QList<MCUSerialInfo> &series)
{
    QStringList rows;
    for (const MCUSerialInfo &info : series) {
        const QString row = PackageFamilyName(info.Serial);
        if (!row.isEmpty() && !rows.contains(row))
            rows.append(row);
    }
    return rows;
}

QStringList PackageFamilyRows()
{
    return PackageFamilyRows(GetMCUSerialList());
}

QString PackageFamilyOf(const QString &packageName)
{
    const int at = packageName.lastIndexOf(kLibraryMark);
    return at < 0 ? QString() : packageName.left(at);
}

QString PackageVersionOf(const QString &folderName)
{
    const QString version = folderName.mid(folderName.lastIndexOf(QLatin1Char('_')) + 1);
    if (!folderName.contains(QLatin1Char('_')) || !version.startsWith(QLatin1Char('V')))
        return QCoreApplication::translate("PackageManager", "Unknown version");
    return version;
}

bool IsValidPackageName(const QString &path, const QStringList &familyRows)
{
    const QFileInfo info(path);
    const QString name = info.fileName();
    if (!name.contains(QLatin1String("MQ48")) ||
        !name.contains(QLatin1String("Firmware_Library_V")))
        return false;
    if (info.suffix() != QLatin1String("zip"))
        return false;
    const QString family = PackageFamilyOf(info.completeBaseName());
    return !family.isEmpty() && familyRows.contains(family);
}

bool IsValidPackageName(const QString &path)
{
    return IsValidPackageName(path, PackageFamilyRows());
}

QString PackageFamilyFolderName(const QString &family)
{
    return QStringLiteral("PF_") + family;
}

QList<InstalledPackage> ListInstalledPackages(const QString &repoPath,
                                              const QStringList &familyRows)
{
    QList<InstalledPackage> found;
    const QDir repo(repoPath);
    if (repoPath.isEmpty() || !repo.exists())
        return found;
    const QFileInfoList families =
        repo.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo &familyInfo : families) {
        const QString entry = familyInfo.fileName();
        if (!entry.startsWith(QLatin1String("PF_")))
            continue;
        const QString row = entry.mid(3);
        if (!familyRows.contains(row))
            continue;
        const QDir familyDir(familyInfo.absoluteFilePath());
        const QFileInfoList folders =
            familyDir.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        for (const QFileInfo &folder : folders) {
            const QString name = folder.fileName();
            if (!name.startsWith(row + QLatin1String("_Firmware_Library")))
                continue;
            InstalledPackage package;
            package.family = row;
            package.folderName = name;
            package.version = PackageVersionOf(name);
            package.path = folder.absoluteFilePath();
            package.created = creationDate(folder);
            found.append(package);
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [&familyRows](const InstalledPackage &a, const InstalledPackage &b) {
                         return familyRows.indexOf(a.family) < familyRows.indexOf(b.family);
                     });
    return found;
}
