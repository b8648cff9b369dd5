#pragma once

#include <QString>
#include <QStringList>

// The calculators that can run for a peripheral instance.
enum class ParamCalculator {
    UsartBaud,
    SpiDivider,
    I2sDivider,
    I2cTiming,
    CanBitTiming,
    Timer,
    Spim,
    Sdio,
    AdcClockLimit,
    XmcScaling,
};

// Per-family facts of the parameter calculators. A family whose database gains a peripheral
// adds rows to the tables behind these questions; the calculators themselves stay as they are.
namespace CalculatorFamilies {

// The calculators of an instance, in the order they run ("USART2" on "MQ48T110").
QList<ParamCalculator> calculatorsFor(const QString &family, const QString &instance);

// CAN: the families whose resynchronisation jump is bounded from below by the solution.
bool canJumpFromBelow(const QString &family);

// Timers whose two input filters are kept equal in PWM input mode.
bool hasPwmInput(const QString &family, const QString &instance);

// ADC: the families that limit the ADC clock by a prescaler check, and the limit in Hz.
bool hasAdcClockLimit(const QString &family, const QString &instance);
double adcClockLimitHz();

// I2C: the parameter that holds the SCL frequency in a speed mode ("ClockSpeed" unless a
// family keeps one per mode).
QString i2cSpeedParameter(const QString &family, const QString &mode);
// I2C without rise and fall time parameters: the bus's largest rise and fall times, in ns,
// of a speed mode, which the diagram then shows.
int i2cBusRiseTimeNs(const QString &mode);
int i2cBusFallTimeNs(const QString &mode);
// The data setup time of a speed mode, in ns.
int i2cSetupTimeNs(const QString &mode);

} // namespace CalculatorFamilies
