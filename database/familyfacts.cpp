#include "database/familyfacts.h"

#include <QMap>
#include <QVector>

namespace {

using VirtualName = FamilyFacts::VirtualName;

struct VirtualRow
{
    QStringList families;
    QList<VirtualName> names;
};

const QVector<VirtualRow> &virtualRows()
{
    static const QVector<VirtualRow> rows = {
        {{"MQ48T110"}, {{"EXINT11", ""}, {"EXINT15", ""}, {"SCFG_VS_PA11PA12_REMAP", ""}}},
        {{"MQ48T130", "MQ48V130"},
         {{"SCFG_VS_PD13Ultra", "PD13"},
          {"SCFG_VS_PD12Ultra", "PD12"},
          {"SCFG_VS_PB8Ultra", "PB8"},
          {"SCFG_VS_PB9Ultra", "PB9"},
          {"EXINT11", ""},
          {"EXINT15", ""}}},
        {{"MQ48T120"},
         {{"SCFG_VS_PB13Ultra", "PB13"},
          {"SCFG_VS_PB14Ultra", "PB14"},
          {"SCFG_VS_PB8Ultra", "PB8"},
          {"SCFG_VS_PB9Ultra", "PB9"},
          {"EXINT11", ""},
          {"EXINT15", ""},
          {"SCFG_VS_PA11PA12_REMAP", ""},
          {"SCFG_VS_I2S23", ""},
          {"SCFG_VS_I2S12", ""},
          {"SCFG_VS_I2S13", ""}}},
        {{"MQ48T250", "MQ48T260", "MQ48V250", "MQ48T310", "MQ48T320", "MQ48W320"},
         {{"EXINT11", ""}, {"EXINT15", ""}}},
        {{"MQ48T220", "MQ48T210"},
         {{"SCFG_VS_PB3Ultra", "PB3"},
          {"SCFG_VS_PB10Ultra", "PB10"},
          {"SCFG_VS_PB9Ultra", "PB9"},
          {"EXINT11", ""},
          {"EXINT15", ""},
          {"SCFG_VS_I2S23", ""},
          {"SCFG_VS_I2S12", ""},
          {"SCFG_VS_I2S13", ""}}},
        {{"MQ48T510", "MQ48T520"},
         {{"SCFG_VS_PF15Ultra", "PF15"},
          {"SCFG_VS_PF14Ultra", "PF14"},
          {"SCFG_VS_PD15Ultra", "PD15"},
          {"SCFG_VS_PD14Ultra", "PD14"},
          {"SCFG_VS_PD13Ultra", "PD13"},
          {"SCFG_VS_PD12Ultra", "PD12"},
          {"SCFG_VS_PB10Ultra", "PB10"},
          {"SCFG_VS_PB9Ultra", "PB9"},
          {"SCFG_VS_PB3Ultra", "PB3"},
          {"EXINT11", ""},
          {"EXINT15", ""}}},
    };
    return rows;
}

using Routes = QMap<QString, QStringList>;

// The I2S/SPI pairs 1..count, each way.
void addI2SPairs(Routes *routes, int count)
{
    for (int i = 1; i <= count; ++i) {
        const QString i2s = QStringLiteral("I2S%1").arg(i);
        const QString spi = QStringLiteral("SPI%1").arg(i);
        (*routes)[i2s] << spi;
        (*routes)[spi] << i2s;
    }
}

Routes familyRoutes(const QString &family)
{
    Routes r;
    const auto is = [&family](std::initializer_list<const char *> names) {
        for (const char *name : names) {
            if (family == QLatin1String(name))
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

QList<FamilyFacts::VirtualName> FamilyFacts::virtualNames(const QString &family)
{
    for (const VirtualRow &row : virtualRows()) {
        if (row.families.contains(family))
            return row.names;
    }
    return {};
}

QStringList FamilyFacts::semaphoreTargets(const QString &family, const QString &sender)
{
    return familyRoutes(family).value(sender);
}

int FamilyFacts::canPrescalerMax(const QString &family)
{
    static const QStringList wide = {"MQ48T130", "MQ48V130", "MQ48T210",
                                     "MQ48T220", "MQ48T510", "MQ48T520"};
    return wide.contains(family) ? 4096 : 1024;
}
