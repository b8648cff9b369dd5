#include "app/languagesetting.h"

#include "database/configstore.h"
#include "database/paths.h"

#include <QFileInfo>

namespace {
const QString kLanguageKey = QStringLiteral("Language");
const QString kChinese = QStringLiteral("UI_CH");
const QString kEnglish = QStringLiteral("UI_EN");
} // namespace

QString ConfigFilePath()
{
    return appFolder() + QStringLiteral("/") + QStringLiteral("config.xml");
}

QString LanguageCatalogue(int language)
{
    return language == 1 ? QStringLiteral(":/image/tr_zh.qm") : QStringLiteral(":/image/tr_en.qm");
}

QString LanguageSettingValue(int language)
{
    return language == 1 ? kChinese : kEnglish;
}

StartLanguage ChooseStartLanguage(const QString &configPath, const QLocale &locale)
{
    QString setting;
    if (QFileInfo::exists(configPath) && !GetConfigValue(configPath, kLanguageKey, setting))
        setting.clear();

    int language = 0;
    if (setting == kChinese)
        language = 1;
    else if (setting == kEnglish)
        language = 0;
    else
        language = locale.language() == QLocale::Chinese ? 1 : 0;
    return {language, LanguageCatalogue(language)};
}

bool StoreLanguageSetting(const QString &configPath, int language)
{
    return StoreConfigValue(configPath, kLanguageKey, LanguageSettingValue(language));
}
