#include "app/workformrules.h"

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

namespace {

using Routes = QMap<QString, QStringList>;

// Adds the I2S/SPI pairs 1..count, each way.
void addI2SPairs(Routes *routes, int count)
{
    for (int i = 1; i <= count; ++i) {
        const QString i2s = QStringLiteral("I2S%1").arg(i);
        const QString spi = QStringLiteral("SPI%1").arg(i);
        (*routes)[i2s] << spi;
        (*routes)[spi] << i2s;
    }
}

Routes familyRoutes(const QString &series)
{
    Routes r;
    const auto is = [&series](std::initializer_list<const char *> names) {
        for (const char *name : names) {
            if (series == QLatin1String(name))
                return true;
        }
        return false;
    };
    const QStringList i2s23 = {QStringLiteral("I2S2"), QStringLiteral("I2S3")};
    if (is({"MQ48T510", "MQ48T520"})) {
        r[QStringLiteral("TMR10")] << QStringLiteral("IRTMR");
        r[QStringLiteral("TMR11")] << QStringLiteral("IRTMR");
        addI2SPairs(&r, 4);
        r[QStringLiteral("SCFG")] << i2s23;
        r[QStringLiteral("ADC1")] << QStringLiteral("ADC-Common");
        r[QStringLiteral("ADC-Common")] << QStringLiteral("ADC1") << QStringLiteral("ADC2")
                                        << QStringLiteral("ADC3");
        r[QStringLiteral("EXINT")] << QStringLiteral("ADC1") << QStringLiteral("ADC2")
                                   << QStringLiteral("ADC3") << QStringLiteral("DAC");
        r[QStringLiteral("USB_OTGFS1")] << QStringLiteral("ACC");
        r[QStringLiteral("USB_OTGFS2")] << QStringLiteral("ACC");
    } else if (is({"MQ48T220", "MQ48T210"})) {
        r[QStringLiteral("TMR10")] << QStringLiteral("IRTMR");
        r[QStringLiteral("TMR11")] << QStringLiteral("IRTMR");
        addI2SPairs(&r, 3);
        r[QStringLiteral("SCFG")] << i2s23;
        r[QStringLiteral("EXINT")] << QStringLiteral("ADC1");
        r[QStringLiteral("USB_OTGFS1")] << QStringLiteral("ACC");
    } else if (is({"MQ48T320", "MQ48W320"})) {
        addI2SPairs(&r, 2);
        r[QStringLiteral("EXINT")] << QStringLiteral("ADC1");
        r[QStringLiteral("CMP1")] << QStringLiteral("CMP2");
    } else if (is({"MQ48T310"})) {
        addI2SPairs(&r, 2);
        r[QStringLiteral("EXINT")] << QStringLiteral("ADC1") << QStringLiteral("ADC2");
        r[QStringLiteral("USBFS")] << QStringLiteral("ACC");
    } else if (is({"MQ48T250", "MQ48T260", "MQ48V250"})) {
        addI2SPairs(&r, 4);
        r[QStringLiteral("ADC2")] << QStringLiteral("ADC1");
        r[QStringLiteral("EXINT")] << QStringLiteral("ADC1") << QStringLiteral("ADC2")
                                   << QStringLiteral("DAC");
        r[QStringLiteral("USBFS")] << QStringLiteral("ACC");
    } else if (is({"MQ48T120"})) {
        r[QStringLiteral("TMR16")] << QStringLiteral("TMR17");
        addI2SPairs(&r, 3);
        r[QStringLiteral("SCFG")] << i2s23;
        r[QStringLiteral("EXINT")] << QStringLiteral("ADC1");
        r[QStringLiteral("USB_OTGFS1")] << QStringLiteral("ACC");
    } else if (is({"MQ48T130", "MQ48V130"})) {
        r[QStringLiteral("TMR10")] << QStringLiteral("TMR11");
        addI2SPairs(&r, 3);
        r[QStringLiteral("SCFG")] << i2s23;
        r[QStringLiteral("EXINT")] << QStringLiteral("ADC1") << QStringLiteral("DAC");
        r[QStringLiteral("USB_OTGFS1")] << QStringLiteral("ACC");
    } else if (is({"MQ48T110"})) {
        r[QStringLiteral("TMR16")] << QStringLiteral("TMR17");
        addI2SPairs(&r, 2);
        r[QStringLiteral("EXINT")] << QStringLiteral("ADC1");
    }
    return r;
}

} // namespace

QStringList semaphoreTargets(const QString &series, const QString &sender)
{
    return familyRoutes(series).value(sender);
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
