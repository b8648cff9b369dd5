#include "peripherals/calculators/calculatorfamilies.h"

#include <QList>

namespace {

// Instance name part -> calculators, tested as a substring of the instance name.
struct DispatchRow
{
    const char *part;
    QList<ParamCalculator> calculators;
};

const QList<DispatchRow> &dispatchRows()
{
    static const QList<DispatchRow> rows = {
        {"USART", {ParamCalculator::UsartBaud}},  {"UART", {ParamCalculator::UsartBaud}},
        {"SPIM", {ParamCalculator::Spim}},        {"SPI", {ParamCalculator::SpiDivider}},
        {"I2S", {ParamCalculator::I2sDivider}},   {"I2C", {ParamCalculator::I2cTiming}},
        {"CAN", {ParamCalculator::CanBitTiming}}, {"TMR", {ParamCalculator::Timer}},
        {"SDIO", {ParamCalculator::Sdio}},        {"XMC", {ParamCalculator::XmcScaling}},
    };
    return rows;
}

// Timers with the PWM input pair, by family.
struct PwmInputRow
{
    QStringList families;
    QStringList timers;
};

const QList<PwmInputRow> &pwmInputRows()
{
    static const QList<PwmInputRow> rows = {
        {{"MQ48T250", "MQ48T260", "MQ48V250", "MQ48T310", "MQ48T320", "MQ48W320"},
         {"TMR1", "TMR2", "TMR3", "TMR4", "TMR5", "TMR8", "TMR9", "TMR12"}},
        {{"MQ48T110"}, {"TMR1", "TMR3", "TMR15"}},
        {{"MQ48T120"}, {"TMR1", "TMR2", "TMR3", "TMR15"}},
        {{"MQ48T130", "MQ48V130"}, {"TMR1", "TMR2", "TMR3", "TMR4", "TMR9", "TMR12"}},
        {{"MQ48T210", "MQ48T220"}, {"TMR1", "TMR2", "TMR3", "TMR4", "TMR9"}},
        {{"MQ48T510", "MQ48T520"},
         {"TMR1", "TMR2", "TMR3", "TMR4", "TMR5", "TMR8", "TMR9", "TMR12", "TMR20"}},
    };
    return rows;
}

const QStringList kCanJumpFromBelow = {"MQ48T250", "MQ48T260", "MQ48V250", "MQ48T310",
                                       "MQ48T320", "MQ48W320", "MQ48T120"};
const QStringList kAdcLimitFamilies = {"MQ48T510", "MQ48T520"};

// Families whose I2C keeps a second speed parameter for the fast mode.
struct I2cSpeedRow
{
    QStringList families;
    const char *mode;
    const char *parameter;
};

const QList<I2cSpeedRow> &i2cSpeedRows()
{
    static const QList<I2cSpeedRow> rows = {
        {{"MQ48T110"}, "I2C_Fast", "ClockSpeed1"},
    };
    return rows;
}

} // namespace

namespace CalculatorFamilies {

QList<ParamCalculator> calculatorsFor(const QString &family, const QString &instance)
{
    QList<ParamCalculator> out;
    for (const DispatchRow &row : dispatchRows()) {
        if (!instance.contains(QLatin1String(row.part)))
            continue;
        for (ParamCalculator c : row.calculators) {
            if (!out.contains(c))
                out << c;
        }
    }
    if (hasAdcClockLimit(family, instance))
        out << ParamCalculator::AdcClockLimit;
    return out;
}

bool canJumpFromBelow(const QString &family)
{
    return kCanJumpFromBelow.contains(family);
}

bool hasPwmInput(const QString &family, const QString &instance)
{
    for (const PwmInputRow &row : pwmInputRows()) {
        if (row.families.contains(family))
            return row.timers.contains(instance);
    }
    return false;
}

bool hasAdcClockLimit(const QString &family, const QString &instance)
{
    return instance == QLatin1String("ADC1") && kAdcLimitFamilies.contains(family);
}

double adcClockLimitHz()
{
    return 80000000.0;
}

QString i2cSpeedParameter(const QString &family, const QString &mode)
{
    for (const I2cSpeedRow &row : i2cSpeedRows()) {
        if (row.families.contains(family) && mode == QLatin1String(row.mode))
            return QLatin1String(row.parameter);
    }
    return QStringLiteral("ClockSpeed");
}

int i2cBusRiseTimeNs(const QString &mode)
{
    if (mode == QLatin1String("I2C_Standard"))
        return 1000;
    if (mode == QLatin1String("I2C_Fast_Plus"))
        return 120;
    return 300;
}

int i2cBusFallTimeNs(const QString &mode)
{
    if (mode == QLatin1String("I2C_Fast_Plus"))
        return 120;
    return 300;
}

int i2cSetupTimeNs(const QString &mode)
{
    if (mode == QLatin1String("I2C_Standard"))
        return 250;
    if (mode == QLatin1String("I2C_Fast_Plus"))
        return 50;
    return 100;
}

} // namespace CalculatorFamilies
