#include "app/workformrules.h"

#include "database/familyfacts.h"

#include <QStringList>

namespace WorkFormRules {

int clockModelOfSeries(const QString &series)
{
    static const QMap<QString, int> models = {
        {QStringLiteral("MQ48T510"), 13}, {QStringLiteral("MQ48T520"), 14},
        {QStringLiteral("MQ48T250"), 7},  {QStringLiteral("MQ48V250"), 24},
        {QStringLiteral("MQ48T260"), 8},  {QStringLiteral("MQ48T110"), 9},
        {QStringLiteral("MQ48T120"), 15}, {QStringLiteral("MQ48T320"), 5},
        {QStringLiteral("MQ48W320"), 17}, {QStringLiteral("MQ48T310"), 4},
        {QStringLiteral("MQ48T230"), 2},  {QStringLiteral("MQ48T050"), 16},
        {QStringLiteral("MQ48T130"), 18}, {QStringLiteral("MQ48V130"), 29},
        {QStringLiteral("MQ48T220"), 19}, {QStringLiteral("MQ48T210"), 20},
    };
    return models.value(series, 0);
}

bool changeUpdatesClock(const QString &instanceName)
{
    static const QStringList names = {
        QStringLiteral("USB_OTGFS1"), QStringLiteral("USB_OTGFS2"), QStringLiteral("USB_OTGHS1"),
        QStringLiteral("I2SF5"),      QStringLiteral("USBFS"),      QStringLiteral("ADC1"),
        QStringLiteral("ADC2"),       QStringLiteral("ADC3"),       QStringLiteral("USART1"),
        QStringLiteral("USART2"),     QStringLiteral("USART3"),     QStringLiteral("I2C1"),
    };
    return names.contains(instanceName);
}

bool isUnfinished(IPSTATUS status)
{
    return (status & IPSTATUS_UNFINISHED) != 0;
}

QStringList semaphoreTargets(const QString &series, const QString &sender)
{
    return FamilyFacts::semaphoreTargets(series, sender);
}

bool pinPageWarns(IPSTATUS reported, const QMap<QString, IPSTATUS> &modePanelStatus)
{
    if (isUnfinished(reported))
        return true;
    for (IPSTATUS status : modePanelStatus) {
        if (isUnfinished(status))
            return true;
    }
    return false;
}

QString manualPath(const QString &appFolder, int language)
{
    const QString name = language == 1 ? QStringLiteral("../Documents/UM_MQ48_Pin_Forge.pdf")
                                       : QStringLiteral("../Documents/UM_MQ48_Pin_Forge_EN.pdf");
    return appFolder + QLatin1Char('/') + name;
}

QUrl homePageUrl(int language)
{
    return language == 1 ? QUrl(QStringLiteral("https://www.velmora.com.cn/"))
                         : QUrl(QStringLiteral("https://www.velmora.com/en/"));
}

QString pageButtonStyle(bool active)
{
    const QString colour =
        active ? QStringLiteral("rgb(35, 184, 198)") : QStringLiteral("rgb(85, 126, 191)");
    return QStringLiteral("QPushButton {background-color: %1; color: white; border: none;"
                          " border-top-left-radius: 5px; border-top-right-radius: 5px;"
                          " padding: 4px 16px;}")
        .arg(colour);
}

QList<int> splitterSizes(int screenWidth)
{
    const int unit = screenWidth / 30;
    return {unit * 4, unit * 13, unit * 13};
}

} // namespace WorkFormRules
