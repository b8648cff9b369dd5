#pragma once

#include <QString>

// The settings of firmware packages and downloads, kept in config.xml beside the program.

// appFolder() + "/config.xml".
QString packageConfigPath();

// The package repository of the settings ("PackagePath"); empty when none is set.
QString configuredRepositoryPath();
// Stores the package repository in the settings, creating config.xml when needed.
bool storeRepositoryPath(const QString &path);
// The folder proposed when no repository is set: home + "/PinForge/Repository/Package".
QString defaultRepositoryPath();
// The repository the commands use: the settings' one, else the default folder.
QString repositoryPathOrDefault();

// The config.xml key of the download site's base address, for mirrors and tests.
inline const char *downloadSiteKey()
{
    return "DownloadSite";
}
// The maker's download site for a language (1 Chinese, 0 English), ending in "/".
QString defaultDownloadSite(int language);
// The download site: the setting when present, else the maker's site for g_language;
// always ending in "/".
QString downloadSite();
// The published version list: downloadSite() + "VelmoraDownloadResource.xml".
QString versionListUrl();
// The package index: downloadSite() + "download/BSP/bsp_index.json".
QString packageIndexUrl();
