#include "peripherals/couplingrules.h"

namespace CouplingRules {

namespace {

bool oneOf(const QString &family, std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        if (family == QLatin1String(name))
            return true;
    }
    return false;
}

} // namespace

OscillatorFlag oscillatorFlag(const QString &controlName, int index)
{
    OscillatorFlag flag;
    if (controlName == QLatin1String("HEXT"))
        flag.oscillator = OscillatorFlag::Hext;
    else if (controlName == QLatin1String("LEXT"))
        flag.oscillator = OscillatorFlag::Lext;
    else
        return flag;
    flag.enable = index == 1 || index == 2;
    flag.bypass = index == 1;
    return flag;
}

QList<ClockOutput> clockOutputs(const QString &family)
{
    if (oneOf(family, {"MQ48T510", "MQ48T520"}))
        return {{1, QStringLiteral("CRM_CLKOUT1"), {{"PA8", 1}, {"PE4", 2}}},
                {2, QStringLiteral("CRM_CLKOUT2"), {{"PC9", 1}}}};
    return {{0, QStringLiteral("CRM_CLKOUT"), {{"PA8", 1}, {"PA9", 2}, {"PB13", 3}, {"PC9", 4}}}};
}

int clockOutputValue(const ClockOutput &output, const QString &inPin, bool *known)
{
    *known = true;
    if (inPin.isEmpty())
        return 0;
    for (const auto &entry : output.pins) {
        if (inPin == entry.first || inPin == entry.first + QLatin1Char(' '))
            return entry.second;
    }
    *known = false;
    return 0;
}

SemaphoreChange adcDmaRule(const QString &family, const QString &instance,
                           const QList<RefParameter> &parameters)
{
    SemaphoreChange change;
    if (!oneOf(family, {"MQ48T250", "MQ48T260", "MQ48V250", "MQ48T310"}) ||
        !oneOf(instance, {"ADC1", "ADC2", "ADC3", "ADC-Common"}))
        return change;
    change.applies = true;
    const QString pair = QStringLiteral("ADC1_ADC2_DMA_ENABLE");
    if (parameters.isEmpty()) {
        change.withdrawn << pair;
        change.raised << pair;
        return change;
    }
    QString mode;
    for (const RefParameter &p : parameters) {
        if (p.Name == QLatin1String("Mode")) {
            mode = p.Value;
            break;
        }
    }
    change.withdrawn << pair;
    if (oneOf(mode, {"ADC_INDEPENDENT_MODE", "ADC_PREEMPT_SMLT_ONLY_MODE",
                     "ADC_PREEMPT_INTERLTRIG_ONLY_MODE"}))
        change.raised << QStringLiteral("ADC1_DMA_ENABLE");
    else
        change.raised << pair;
    return change;
}

bool usbSourceRaisesSemaphore(const QString &sourceText)
{
    return sourceText == QLatin1String("CRM_USB_CLOCK_SOURCE_HICK");
}

bool hasI2SF5ClockSource(const QString &family)
{
    return oneOf(family, {"MQ48T220", "MQ48T210"});
}

bool i2sf5ExternalClock(const QString &sourceText)
{
    return sourceText == QLatin1String("CRM_I2SF5_CLOCK_SOURCE_EXTERNAL");
}

QString dmaPartner(const QString &family, const QString &request)
{
    if (family != QLatin1String("MQ48T110"))
        return QString();
    static const QList<QPair<QString, QString>> pairs = {
        {QStringLiteral("TMR16_CH1"), QStringLiteral("TMR16_OVERFLOW")},
        {QStringLiteral("TMR17_CH1"), QStringLiteral("TMR17_OVERFLOW")},
    };
    for (const auto &pair : pairs) {
        if (request == pair.first)
            return pair.second;
        if (request == pair.second)
            return pair.first;
    }
    return QString();
}

DmaCondition dmaCondition(const QString &family, const QString &instance)
{
    if (oneOf(family, {"MQ48T130", "MQ48V130", "MQ48T220", "MQ48T210"}) &&
        instance == QLatin1String("ADC1"))
        return {QStringLiteral("DMA"), QStringLiteral("DMARequest_ADC1")};
    if (oneOf(family, {"MQ48T510", "MQ48T520"}) && instance == QLatin1String("DVP"))
        return {QStringLiteral("EDMA"), QStringLiteral("EDMARequest_DVP")};
    return {};
}

} // namespace CouplingRules
