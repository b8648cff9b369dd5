#include "peripherals/modefamilytables.h"

#include "database/familyfacts.h"

#include <QMap>
#include <QVector>

namespace {

using StatusRule = ModeFamilyTables::StatusRule;
using TabRow = ModeFamilyTables::TabRow;

// A row of a status or tab table: the families it holds for (empty: all) and the instance
// names, matched whole or by their name without trailing digits.
template <typename Kind> struct NamedRow
{
    QStringList families;
    Kind kind;
    QStringList names;
};

bool nameMatches(const QStringList &names, const QString &instance)
{
    const QString base = ModeFamilyTables::baseName(instance);
    for (const QString &n : names) {
        if (n == instance || n == base)
            return true;
    }
    return false;
}

const QVector<NamedRow<StatusRule>> &statusRows()
{
    const QStringList t5 = {"MQ48T510", "MQ48T520"};
    const QStringList t1 = {"MQ48T110"};
    static const QVector<NamedRow<StatusRule>> rows = {
        // Rows that only the largest and the smallest families have.
        {t5, StatusRule::FirstCombo, {"I2SF", "QSPI"}},
        {t5, StatusRule::FirstBox, {"USB_OTGFS"}},
        {t5, StatusRule::AnySelection, {"ADC-Common", "SCFG"}},
        {t5,
         StatusRule::XmcNor,
         {"XMC_NORFlash-PSRAM-SRAM-ROM-LCD_1", "XMC_NORFlash-PSRAM-SRAM-ROM-LCD_2",
          "XMC_NORFlash-PSRAM-SRAM-ROM-LCD_3", "XMC_NORFlash-PSRAM-SRAM-ROM-LCD_4"}},
        {t5,
         StatusRule::XmcNand,
         {"XMC_NANDFlash_1", "XMC_NANDFlash_2", "XMC_PCCard", "XMC_SDRAM_1", "XMC_SDRAM_2"}},
        {t5, StatusRule::FirstBoxWithSubordinate, {"TMR20"}},
        {t1, StatusRule::FirstBoxWithSubordinate, {"TMR1", "TMR3", "TMR15"}},
        {t1, StatusRule::FirstBox, {"TMR16", "TMR17", "ERTC"}},
        {t1, StatusRule::AnySelection, {"IRTMR"}},
        // The rows common to all families.
        {{}, StatusRule::FirstCombo, {"USART", "UART", "SPI", "I2S", "I2C", "EMAC", "SDIO"}},
        {{}, StatusRule::AnySelection, {"CRM", "DEBUG", "SCFG", "IRTMR"}},
        {{},
         StatusRule::FirstBoxWithSubordinate,
         {"TMR1", "TMR8", "TMR2", "TMR3", "TMR4", "TMR5", "TMR9", "TMR12", "TMR15"}},
        {{}, StatusRule::XmcNor, {"XMC_NORFlash-PSRAM-LCD_1", "XMC_NORFlash-PSRAM-LCD_4"}},
        {{}, StatusRule::XmcNand, {"XMC_NANDFlash"}},
        {{},
         StatusRule::FirstBox,
         {"CRC", "WDT", "WWDT", "TMR6", "TMR7", "TMR10", "TMR11", "TMR13", "TMR14", "TMR16",
          "TMR17", "RTC", "ERTC", "ACC", "USBFS", "CAN", "SPIM", "USB_OTGFS", "USB_OTGHS"}},
        {{}, StatusRule::AnyBox, {"ADC1", "ADC2", "ADC3", "PWC", "EXINT", "DAC"}},
    };
    return rows;
}

const QVector<NamedRow<TabRow>> &tabRows()
{
    const QStringList t310 = {"MQ48T310"};
    static const QVector<NamedRow<TabRow>> rows = {
        {t310, TabRow::ParamGpioNvic, {"TMR9", "TMR10", "TMR11", "ADC2"}},
        {{}, TabRow::GpioNvic, {"CRM", "USBFS", "USB_OTGFS1", "USB_OTGHS1", "USB_OTGFS2"}},
        {{}, TabRow::None, {"DEBUG", "SCFG", "IRTMR"}},
        {{}, TabRow::ParamGpio, {"SPIM", "ADC-Common"}},
        {{}, TabRow::Param, {"CRC", "WDT"}},
        {{}, TabRow::ParamNvic, {"WWDT", "ACC"}},
        {{},
         TabRow::ParamGpioNvic,
         {"RTC", "ERTC", "PWC", "EXINT", "CAN1", "CAN2", "TMR6", "TMR7", "TMR13", "TMR14", "CMP1",
          "CMP2"}},
    };
    return rows;
}

const QStringList kI2SHintFamilies = {"MQ48T510", "MQ48T520", "MQ48T220", "MQ48T210",
                                      "MQ48T120", "MQ48T130", "MQ48V130"};
const QStringList kUsbFamilies = {"MQ48T130", "MQ48V130", "MQ48T120", "MQ48T250",
                                  "MQ48T260", "MQ48V250", "MQ48T310", "MQ48T220",
                                  "MQ48T210", "MQ48T510", "MQ48T520"};

} // namespace

QStringList ModeFamilyTables::families()
{
    return {"MQ48T110", "MQ48T130", "MQ48V130", "MQ48T120", "MQ48T250", "MQ48T260", "MQ48V250",
            "MQ48T310", "MQ48T320", "MQ48W320", "MQ48T220", "MQ48T210", "MQ48T510", "MQ48T520"};
}

QString ModeFamilyTables::baseName(const QString &instance)
{
    int end = instance.size();
    while (end > 0 && instance.at(end - 1).isDigit())
        --end;
    return instance.left(end);
}

bool ModeFamilyTables::virtualNameCounts(const QString &family, const QString &name,
                                         QString *pinName)
{
    for (const FamilyFacts::VirtualName &entry : FamilyFacts::virtualNames(family)) {
        if (entry.name == name) {
            if (pinName)
                *pinName = entry.pinName.isEmpty() ? name : entry.pinName;
            return true;
        }
    }
    return false;
}

ModeFamilyTables::StatusRule ModeFamilyTables::statusRule(const QString &family,
                                                          const QString &instance)
{
    for (const auto &row : statusRows()) {
        if (!row.families.isEmpty() && !row.families.contains(family))
            continue;
        if (nameMatches(row.names, instance))
            return row.kind;
    }
    return StatusRule::AnySelection;
}

ModeFamilyTables::TabRow ModeFamilyTables::tabRow(const QString &family, const QString &instance)
{
    for (const auto &row : tabRows()) {
        if (!row.families.isEmpty() && !row.families.contains(family))
            continue;
        if (row.names.contains(instance))
            return row.kind;
    }
    if (instance.contains(QLatin1String("XMC")))
        return TabRow::ParamGpioNvic;
    return TabRow::Full;
}

QStringList ModeFamilyTables::tabTitles(TabRow row, const QStringList &dmaTables)
{
    const QString param = QStringLiteral("Parameters Settings");
    const QString gpio = QStringLiteral("GPIO Settings");
    const QString nvic = QStringLiteral("NVIC Settings");
    switch (row) {
    case TabRow::GpioNvic:
        return {gpio, nvic};
    case TabRow::None:
        return {};
    case TabRow::ParamGpio:
        return {param, gpio};
    case TabRow::Param:
        return {param};
    case TabRow::ParamNvic:
        return {param, nvic};
    case TabRow::ParamGpioNvic:
        return {param, gpio, nvic};
    case TabRow::Full:
        break;
    }
    QStringList titles = {param, gpio, nvic};
    for (const QString &table : dmaTables)
        titles << table + QStringLiteral(" Settings");
    return titles;
}

bool ModeFamilyTables::hasI2SFullDuplexHint(const QString &family)
{
    return kI2SHintFamilies.contains(family);
}

bool ModeFamilyTables::hasAdcCommonHint(const QString &family)
{
    return family == QLatin1String("MQ48T510") || family == QLatin1String("MQ48T520");
}

bool ModeFamilyTables::hasPinRemapRule(const QString &family)
{
    return family == QLatin1String("MQ48T110") || family == QLatin1String("MQ48T120");
}

bool ModeFamilyTables::isUsbClockFamily(const QString &family)
{
    return kUsbFamilies.contains(family);
}
