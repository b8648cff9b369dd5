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

QString deviceFilePath(const QString &series, const QString &device)
{
    return seriesFolder(series) + QLatin1Char('/') + device + QStringLiteral(".xml");
}

QString peripheralFilePath(const QString &series, const QString &name, const QString &version)
{
    return seriesFolder(series) + QStringLiteral("/Peripherals/") + name + QLatin1Char('-') +
           version + QStringLiteral(".xml");
}

QString secondaryPeripheralFilePath(const QString &series, const QString &name,
                                    const QString &version)
{
    return seriesFolder(series) + QStringLiteral("/device/Peripherals/") + name +
           QLatin1Char('-') + version + QStringLiteral(".xml");
}
