#include "packages/packagesettings.h"

#include "database/configstore.h"
#include "database/language.h"
#include "database/paths.h"

#include <QDir>
#include <QFile>

QString packageConfigPath()
{
    return appFolder() + QStringLiteral("/config.xml");
}

QString configuredRepositoryPath()
{
    QString path;
    if (!QFile::exists(packageConfigPath()) ||
        !GetConfigValue(packageConfigPath(), QStringLiteral("PackagePath"), path))
        return QString();
    return path;
}

bool storeRepositoryPath(const QString &path)
{
    const QString config = packageConfigPath();
    if (!QFile::exists(config) && !CreateConfigFile(config))
        return false;
    return SetConfigValue(config, QStringLiteral("PackagePath"), path);
}

QString defaultRepositoryPath()
{
    return QDir::homePath() + QStringLiteral("/PinForge/Repository/Package");
}

QString repositoryPathOrDefault()
{
    const QString configured = configuredRepositoryPath();
    return configured.isEmpty() ? defaultRepositoryPath() : configured;
}

QString defaultDownloadSite(int language)
{
    return language == 1 ? QStringLiteral("https://www.velmora-mcu.com.cn/")
                         : QStringLiteral("https://www.velmora-mcu.com/");
}

QString downloadSite()
{
    QString site;
    if (!QFile::exists(packageConfigPath()) ||
        !GetConfigValue(packageConfigPath(), QString::fromLatin1(downloadSiteKey()), site) ||
        site.trimmed().isEmpty())
        return defaultDownloadSite(g_language);
    site = site.trimmed();
    if (!site.endsWith(QLatin1Char('/')))
        site += QLatin1Char('/');
    return site;
}

QString versionListUrl()
{
    return downloadSite() + QStringLiteral("VelmoraDownloadResource.xml");
}

QString packageIndexUrl()
{
    return downloadSite() + QStringLiteral("download/BSP/bsp_index.json");
}
