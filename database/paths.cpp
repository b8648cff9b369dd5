#include "database/paths.h"

#include <QCoreApplication>

namespace {
QString &overrideFolder()
{
    static QString folder;
    return folder;
}
} // namespace

QString appFolder()
{
    if (!overrideFolder().isEmpty())
        return overrideFolder();
    return QCoreApplication::applicationDirPath();
}

void setAppFolderOverride(const QString &folder)
{
    overrideFolder() = folder;
}

QString databaseFolder()
{
    return appFolder() + QStringLiteral("/MQ48DB");
}

QString cataloguePath()
{
    return databaseFolder() + QStringLiteral("/MCUList.xml");
}

QString seriesFolder(const QString &series)
{
    return databaseFolder() + QStringLiteral("/device/") + series;
}

bool IsPlainFileStem(const QString &name)
{
    return !name.isEmpty() && !name.contains(QLatin1Char('/')) &&
           !name.contains(QLatin1Char('\\')) && !name.contains(QLatin1String(".."));
}

namespace {
bool plainParts(const QString &series, const QString &name, const QString &version)
{
    return IsPlainFileStem(series) && IsPlainFileStem(name) &&
           (version.isEmpty() || IsPlainFileStem(version));
}
} // namespace

QString deviceFilePath(const QString &series, const QString &device)
{
    if (!IsPlainFileStem(series) || !IsPlainFileStem(device))
        return QString();
    return seriesFolder(series) + QLatin1Char('/') + device + QStringLiteral(".xml");
}

QString peripheralFilePath(const QString &series, const QString &name, const QString &version)
{
    if (!plainParts(series, name, version))
        return QString();
    return seriesFolder(series) + QStringLiteral("/Peripherals/") + name + QLatin1Char('-') +
           version + QStringLiteral(".xml");
}

QString secondaryPeripheralFilePath(const QString &series, const QString &name,
                                    const QString &version)
{
    if (!plainParts(series, name, version))
        return QString();
    return seriesFolder(series) + QStringLiteral("/device/Peripherals/") + name +
           QLatin1Char('-') + version + QStringLiteral(".xml");
}
