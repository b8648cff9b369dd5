#pragma once

#include <QString>
#include <QStringList>

// Per-family data of the mode logic: virtual signal names, status rule rows, tab sets and the
// families that carry the special hints and couplings.
class ModeFamilyTables
{
public:
    // How a peripheral decides that its mode is active.
    enum class StatusRule {
        FirstCombo,              // the first combo box is not at index 0
        AnySelection,            // any combo not at 0 or any check box ticked
        FirstBoxWithSubordinate, // the first box ticked; a subordinate mode needs its input
        XmcNor,                  // first box, its combo and the bus width rows
        XmcNand,                 // first box and its sub-combo
        FirstBox,                // the first check box is ticked
        AnyBox,                  // any check box is ticked
    };

    // Which tabs a peripheral shows in its configuration area.
    enum class TabRow {
        GpioNvic,      // "GPIO Settings", "NVIC Settings"
        None,          // no tabs; the no-parameter hint
        ParamGpio,     // "Parameters Settings", "GPIO Settings"
        Param,         // "Parameters Settings"
        ParamNvic,     // "Parameters Settings", "NVIC Settings"
        ParamGpioNvic, // "Parameters Settings", "GPIO Settings", "NVIC Settings"
        Full,          // as ParamGpioNvic plus one tab per DMA table
    };

    // The fourteen model words the tables know.
    static QStringList families();

    // True when the family's row lists the virtual name; `pinName` receives the pin it stands
    // for, or the name itself when it stands as it is.
    static bool virtualNameCounts(const QString &family, const QString &name, QString *pinName);

    static StatusRule statusRule(const QString &family, const QString &instance);
    static TabRow tabRow(const QString &family, const QString &instance);
    // The tab titles of a row, untranslated; `dmaTables` are the names of the DMA tables.
    static QStringList tabTitles(TabRow row, const QStringList &dmaTables);

    // Families whose SCFG decides the I2S2/I2S3 full duplex pairing.
    static bool hasI2SFullDuplexHint(const QString &family);
    // Families whose ADC instances need the ADC-Common peripheral.
    static bool hasAdcCommonHint(const QString &family);
    // Families whose SCFG check box "PA11 PA12 remap" switches the pin variants.
    static bool hasPinRemapRule(const QString &family);
    // Families whose clock page chooses the USB clock source.
    static bool isUsbClockFamily(const QString &family);

    // The instance name without its trailing digits ("USART1" gives "USART").
    static QString baseName(const QString &instance);
};
