#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// Chip model ordinals (`mcuModel`) as they select the clock tree and its picture.
namespace ClockModel {
enum : int {
    T230 = 2,
    T310 = 4,
    T320 = 5,
    T250 = 7,
    T260 = 8,
    T110 = 9,
    T510 = 13,
    T520 = 14,
    T120 = 15,
    T050 = 16,
    W320 = 17,
    T130 = 18,
    T220 = 19,
    T210 = 20,
    V250 = 24,
    V130 = 29,
};
} // namespace ClockModel

// How a family's PLL is set.
enum class PllForm {
    Multiplier,   // pll_mult only, `pllmode` fixed 0
    Selectable,   // "pll_mode" combo box: normal multiplier or flexible ms, ns, fr
    FlexibleFr,   // ms, ns, fr
    FlexibleFpFu, // ms, ns, fp (main output) and fu (USB output)
};

// The divider of HEXT in front of the PLL (`hextdiv` with the `pllhextdiv` switch).
enum class HextPllDivider {
    None,       // HEXT reaches the PLL directly
    Selectable, // "hextdiv" combo box, /2 to /5
    Fixed2,     // always /2
};

// The clock output block of a family.
enum class ClockOutputKind {
    None,
    Dual,              // clkout1 and clkout2, each with two dividers
    SingleOneDivider,  // clkout with clkoutdiv
    SingleTwoDividers, // clkout with clkoutdiv1 and clkoutdiv2
};

// Thresholds of the LDO voltage accessor.
enum class LdoScheme { Standard, T130, T210 };

// Values a family's Reset applies on top of the common defaults.
struct ClockDefaults
{
    double hext;
    int pllmode;
    int pllmult;
    int hextdiv;
    int pllms;
    int pllns;
    int pllfr;
    int pllfp;
    int pllfu;
    double usbdiv;
    int hicktousb;
    int adcdiv;
    int clkout;
    double expectedSclk; // the system clock the defaults give, MHz
};

// One row of the per-family table: constants, groups, limits, features and Reset values.
struct ClockFamily
{
    int model;              // `mcuModel` ordinal
    const char *name;       // "T510"
    const char *series;     // "MQ48T510"
    const char *saveSeries; // series written by the design save ("MQ48T320" for W320)
    const char *treeClass;  // "MQ48T510PLL", empty when the family has no tree
    const char *background; // resource path of the drawing

    double sclkMax; // highest system clock; also the sclk field's upper bound
    bool halfBus;   // each APB limited to half of sclkMax (automatic /2 step)
    bool msnsOnly;  // HICK reaches the PLL undivided by 2, HEXT never passes hextdiv
    double vcoMax;  // upper VCO limit, MHz

    double apb1Max; // limits for red marks and checkClockConfig; 0 means none
    double apb2Max;
    double pllMax;
    double pllMin;
    double adcMax;

    bool hasUsb;
    bool hasHickToUsb; // "hick to usb" radio pair (else USB from the PLL only)
    int usbMax;        // largest automatic USB divider (or fu)

    PllForm pllForm;
    HextPllDivider hextPllDivider;
    ClockOutputKind clockOutput;
    int clkoutMax; // largest single clock output index offered

    bool hasRtcDivider;             // "ertcdiv" combo box, `rtcdiv` 2 to 31
    bool rtcMacroIsRtc;             // CRM_RTC_CLOCK_* instead of CRM_ERTC_CLOCK_*
    bool hasSclkDividers;           // sclkhextdiv and sclkhickdiv in front of the system clock
    bool hasPeripheralClockSelects; // usart1..3, i2c1 and adc clock selects
    bool hasI2sf5;                  // i2sf5 clock select and external field
    bool hasUsbHsPhy;               // USB high speed PHY output
    bool savesBypass;               // hextbypass and lextbypass in the design file
    bool hasAdcDivider;             // "adcdiv" combo box behind APB2
    const char *adcDivAttribute;    // design attribute name of the ADC divider
    bool adcWarningComma;           // ADC warning sentence with a comma
    bool msSentenceBlankLine;       // pll_ms question with a blank line
    LdoScheme ldo;

    ClockDefaults defaults;

    bool hasTree() const { return treeClass[0] != '\0'; }
    bool isFlexibleCapable() const { return pllForm != PllForm::Multiplier; }
    bool hasSingleClockOutput() const
    {
        return clockOutput == ClockOutputKind::SingleOneDivider ||
               clockOutput == ClockOutputKind::SingleTwoDividers;
    }
};

// The row of a model ordinal, or nullptr for an unknown ordinal.
const ClockFamily *clockFamily(int model);

// The row of a family with a tree, found by the series name ("MQ48T510"); nullptr otherwise.
const ClockFamily *clockFamilyForSeries(const QString &series);

// Every row of the table, models without a tree (T230, T050) included.
const QList<const ClockFamily *> &allClockFamilies();

// Every family with a clock tree, in the order of the loading list.
QList<const ClockFamily *> treeClockFamilies();

// Family constants by ordinal; unknown ordinals give the values of the "others" rows.
double familySclkMax(int model);
bool familyHalfBus(int model);
bool familyMsnsOnly(int model);
double familyVcoMax(int model);

// A per-peripheral clock gate, as fed by the work form's IP status flag.
enum class ClockGate {
    None,
    Adc1,
    Adc2,
    Adc3,
    Usb1, // USB_OTGFS1 or USBFS
    Usb2, // USB_OTGFS2 (T510, T520) or USB_OTGHS1 (T210, T220)
    Usart1,
    Usart2,
    Usart3,
    I2c1,
    I2sf5,
};

// The gate an instance name drives on a model, or None.
ClockGate clockGateOf(int model, const QString &instance);

// The bus a peripheral instance sits on, for clockOfPeripheral.
enum class PeripheralClockBus {
    None,
    Apb1,
    Apb2,
    Ahb,
    Sclk,
    Apb1Tmr,
    Apb2Tmr,
    Selectable, // follows a clock select field (T130 USART1..3, I2C1, ADC1; T210 I2SF5)
};

// The bus of an instance on a model (None for a name that is not listed).
PeripheralClockBus peripheralClockBus(int model, const QString &instance);

// The instances listed on a bus of a model, for the tree's peripheral lists.
QStringList peripheralsOnBus(int model, PeripheralClockBus bus);
