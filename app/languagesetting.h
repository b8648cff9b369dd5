#pragma once

#include <QLocale>
#include <QString>

// The language of the user interface as kept in config.xml, and its translation catalogue.

// The language chosen at start: the value of g_language and the catalogue to load.
struct StartLanguage
{
    int language = 0;
    QString catalogue;
};

// app folder + "/config.xml".
QString ConfigFilePath();

// ":/image/tr_zh.qm" for 1, ":/image/tr_en.qm" for anything else.
QString LanguageCatalogue(int language);

// "UI_CH" for 1, "UI_EN" for anything else.
QString LanguageSettingValue(int language);

// Decides the language at start: the Language key of the config file when it says "UI_CH" or
// "UI_EN", otherwise Chinese if the locale's language is Chinese, else English. A missing or
// broken file counts as no setting. Never writes the file.
StartLanguage ChooseStartLanguage(const QString &configPath, const QLocale &locale);

// Writes the Language key for `language` through StoreConfigValue(): the file is created when
// it doesn't exist, and set aside and started anew when it is broken.
bool StoreLanguageSetting(const QString &configPath, int language);
