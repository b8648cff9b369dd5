#pragma once

#include "clock/clockfamilies.h"

#include <QList>
#include <QString>

// The GPIO pin a clock output leaves the chip on, as macro names.
struct ClockOutGpio
{
    QString clock;  // CRM_GPIOA_PERIPH_CLOCK
    QString port;   // GPIOA
    QString pin;    // GPIO_PINS_8
    QString source; // GPIO_PINS_SOURCE8
    QString mux;    // GPIO_MUX_0
};

// What a peripheral gate change did to the record.
struct ClockGateChange
{
    bool changed = false;           // some flag of the record changed
    bool usbEnabledChanged = false; // `usbEnabled` flipped
    bool adcEnabledChanged = false; // `adcEnabled` flipped
};

// A clock limit that a configuration breaks, for the tree's red marks and checkClockConfig.
struct ClockLimitFault
{
    enum Kind {
        SclkTooHigh,  // "Can not support sclk greater than"
        Apb1TooHigh,  // "Can not support apb1clk greater than"
        Apb2TooHigh,  // "Can not support apb2clk greater than"
        PllTooHigh,   // "Can not support pll clock greater than"
        PllTooLow,    // "Can not support pll clock less than"
        I2sf5TooHigh, // "Can not support I2SF5 clock greater than"
        AdcTooHigh,   // a warning the user may accept
        UsbWrong,     // a warning the user may accept: not exactly 48 MHz
    };
    Kind kind;
    double limit;
};

// Plain record of one clock configuration with the calculator that keeps it consistent.
class ClockTreeState
{
public:
    // Start-up values of the record (initial column), then the family's Reset defaults.
    explicit ClockTreeState(int model = 0);

    int mcuModel = 0;
    double lick = 40.0;   // kHz
    double lext = 32.768; // kHz
    bool lextEnabled = false;
    bool lextBypass = false;
    double hext = 8.0;
    double hick = 48.0;
    bool hextEnabled = false;
    bool hextBypass = false;
    int rtcsel = 0; // 0 LICK, 1 LEXT, 2 HEXT divided
    int rtcdiv = 2;
    int hextdiv = 2;
    int sclkhextdiv = 1;
    int sclkhickdiv = 1;
    int pllhextdiv = 0;
    int pllrcs = 0; // 0 HEXT, 1 HICK
    int pllms = 2;
    int pllns = 192;
    int pllfr = 8;
    int pllfp = 2;
    int pllfu = 18;
    int sclkselect = 2; // 0 HEXT, 1 PLL, 2 HICK
    int ahbdiv = 1;
    int apb1div = 1;
    int apb2div = 1;
    int systicdiv = 8;
    double pllclk = 0.0;
    double sclk = 0.0;
    double ahbclk = 0.0;
    double apb1clk = 0.0;
    int apb1tmrmult = 1;
    double apb1tmrclk = 0.0;
    double apb2clk = 0.0;
    int apb2tmrmult = 1;
    double apb2tmrclk = 0.0;
    bool adcEnabled = false;
    int adcdiv = 2;
    double adcclk = 0.0;
    double usbdiv = 1.0;
    bool usbEnabled = false;
    double usbclk = 0.0;
    int hicktousb = 0;  // 0 PLL, 1 HICK
    int hicktosclk = 1; // 0 HICK / 6, 1 HICK undivided
    int clkout1div1 = 1;
    int clkout1div2 = 1;
    int clkout1pin = 0;
    int clkout2div1 = 1;
    int clkout2div2 = 1;
    int clkout2pin = 0;
    int clkout1 = 0;
    int clkout2 = 0;
    int clkoutdiv = 1;
    int clkoutpin = 0;
    int clkout = 0;
    int clkoutdiv1 = 1;
    int clkoutdiv2 = 1;
    bool usart1Enabled = false;
    bool usart2Enabled = false;
    bool usart3Enabled = false;
    bool i2c1Enabled = false;
    bool i2sf5Enabled = false;
    int pllmode = 1; // 1 flexible, 0 normal
    int pllmult = 0;
    int usart1clocksel = 0;
    int usart2clocksel = 0;
    int usart3clocksel = 0;
    int i2c1clocksel = 0;
    int adcclocksel = 0;
    int i2sf5clocksel = 0;

    // Gate flags behind `usbEnabled` and `adcEnabled` (their OR), and the I2SF5 input.
    bool usbGate1 = false;
    bool usbGate2 = false;
    bool adcGate1 = false;
    bool adcGate2 = false;
    bool adcGate3 = false;
    double i2sf5ext = 12.288; // external I2SF5 clock, MHz

    // The family row of `mcuModel` (nullptr for an unknown ordinal).
    const ClockFamily *family() const { return clockFamily(mcuModel); }

    // Applies the family's Reset values and recalculates; also clears gates and pins.
    void resetToDefaults();

    // --- calculator ---
    double pllInput() const;
    void computePll();
    void recalculate();
    void solveForSclk();
    void solveForUsb();
    // The searches prefer the setting nearest to the target among those that keep the PLL
    // and the system clock within the family's limits; only when none does they take the
    // nearest beyond them.
    void searchPllFlexible(double input, bool forUsb);
    void searchPllMult(double input, bool forUsb);
    // True when a PLL output keeps the PLL and the system clock within the family's limits;
    // always true for the USB search.
    bool pllWithinLimits(double pll, bool forUsb) const;
    // The highest PLL output within the limits (infinite for the USB search).
    double pllLimit(bool forUsb) const;
    void pllMsRange(double input, int &max, int &min) const;
    void pllNsRange(double input, int ms, int &max, int &min) const;
    bool checkPllMs(int ms, int &adjusted) const;
    bool checkPllNs(int ns, int ms, int &adjusted) const;
    bool pllInUse() const;

    // After a source change: solveForSclk() with the system clock on the PLL, else
    // solveForUsb().
    void solveForSource();

    // --- questions the trees and the facade ask ---
    bool pllNeedsHext() const;        // PLL in use and fed by HEXT
    bool hextNeeded() const;          // some consumer needs the HEXT field to be valid
    bool clockOutputNeedsPll() const; // a configured clock output is set to the PLL
    bool usbOnPll() const;            // USB enabled and fed by the PLL
    double clockOfPeripheral(const QString &instance) const;
    unsigned int pllcfgRegister() const; // CRM_PLLCFG value of the flexible PLL
    // Every broken limit of the family, in the order checkClockConfig reports them.
    QList<ClockLimitFault> limitFaults() const;

    // --- hooks of the other panels ---
    // Store the flag; switching HEXT off moves the PLL and system clock off it and resets
    // a clock output using it. The caller then validates and runs solveForSource().
    void setHextEnabled(bool on);
    void setHextBypass(bool on) { hextBypass = on; }
    // Store the flag; switching LEXT off moves the RTC and clock outputs off it.
    void setLextEnabled(bool on);
    void setLextBypass(bool on) { lextBypass = on; }
    ClockGateChange setPeripheralGate(ClockGate gate, bool on);
    ClockGateChange setPeripheralGate(const QString &instance, bool on);

    // --- firmware macro accessors ---
    QString pllSourceMacro() const;
    QString pllMultMacro() const;
    QString hextDivMacro() const;
    QString pllOutputRangeMacro() const;
    QString pllFrMacro() const;
    QString pllFpMacro() const;
    QString pllFuMacro() const;
    QString pllMsText() const;
    QString pllNsText() const;
    QString sclkMacro() const;
    QString ahbDivMacro() const;
    QString apb1DivMacro() const;
    QString apb2DivMacro() const;
    QString flashClockDivMacro() const;
    QString flashWaitCycleMacro() const;
    QString usbDivMacro() const;
    QString usbClockSourceMacro() const;
    QString clkout1Macro() const;
    QString clkout2Macro() const;
    QString clkoutMacro() const;
    QString clkout1Div1Macro() const;
    QString clkout1Div2Macro() const;
    QString clkout2Div1Macro() const;
    QString clkout2Div2Macro() const;
    QString clkoutDivMacro() const;  // the single divider
    QString clkoutDiv1Macro() const; // the two dividers of T130, V130, T210, T220
    QString clkoutDiv2Macro() const;
    ClockOutGpio clkout1Gpio() const;
    ClockOutGpio clkoutGpio() const;
    QString adcDivMacro() const;
    QString adcClockSourceMacro() const;
    QString rtcClockMacro() const;
    QString ertcHextDivMacro() const;
    QString usartClockSourceMacro(int usart) const; // 1 to 3
    QString i2c1ClockSourceMacro() const;
    QString i2sf5ClockSourceMacro() const;
    QString ldoMacro() const;
    QString hextSclkDivMacro() const;
    QString hickSclkDivMacro() const;
    bool hickAs48() const; // HICK runs undivided to the system clock path

private:
    void busesFromSclk();
    void usbDividerFromSclk();
};
