#include "peripherals/calculators/i2ccalculator.h"

#include "peripherals/calculators/calculatorfamilies.h"
#include "peripherals/calculators/paramlist.h"
#include "peripherals/paramvalue.h"

namespace {

// "Round" of the timing rules: add one half and truncate.
int roundUp(double v)
{
    return int(v + 0.5);
}

// A timeout value copied into its register as hexadecimal text.
void copyTimeout(QList<RefParameter> &params, const QString &enable, const QString &source,
                 const QString &target)
{
    if (ParamList::value(params, enable) != QLatin1String("TRUE"))
        return;
    RefParameter *reg = ParamList::find(params, target);
    bool ok = false;
    const double v = ParamList::number(params, source, &ok);
    if (!reg || !ok || v < 0.0)
        return;
    reg->Value = ParamValue::hexValue(QString::number(qulonglong(v), 16), reg->Max);
}

} // namespace

I2cTimingResult I2cTiming::compute(const I2cTimingInput &in)
{
    I2cTimingResult result;
    const int clockKHz = int(in.clockMHz * 1000.0);
    if (clockKHz <= 0 || in.speedKHz <= 0.0)
        return result;
    const double tI2C = 1000.0 / clockKHz; // microseconds
    const double tSCL = 1000.0 / in.speedKHz;
    const double tr = in.riseNs / 1000.0;
    const double tf = in.fallNs / 1000.0;
    const double tAF = in.analogFilter ? 0.15 : 0.0;
    const double tSu = CalculatorFamilies::i2cSetupTimeNs(in.mode);
    const double rest = tSCL - tr - tf - tAF - (in.digitalFilter + 2.5) * 2.0 * tI2C;
    if (rest < 0.0)
        return result;
    const double sum = rest / tI2C;
    const bool standard = in.mode == QLatin1String("I2C_Standard");
    for (int p = 1; p <= 256; ++p) {
        const double s = sum / p;
        int scll = 0;
        int sclh = 0;
        if (standard) {
            if (s > 510.0)
                continue;
            scll = sclh = roundUp(s * 0.5);
        } else {
            if (s > 398.4375)
                continue;
            scll = roundUp(s / 25.0 * 16.0);
            sclh = roundUp(s / 25.0 * 9.0);
        }
        const int scldel = roundUp((tSu / 1000.0 + tr) / (p * tI2C) + 1.0);
        if (scldel < 0 || scldel > 15)
            continue;
        const quint32 pi = quint32(p - 1);
        result.found = true;
        result.prescaler = p;
        result.scldel = scldel;
        result.sclh = sclh;
        result.scll = scll;
        result.value = (pi & 15u) << 28 | ((pi >> 4) & 15u) << 24 | quint32(scldel) << 20 |
                       quint32(sclh) << 8 | quint32(scll);
        result.text = QStringLiteral("0x") +
                      QStringLiteral("%1").arg(result.value, 8, 16, QLatin1Char('0')).toUpper();
        return result;
    }
    return result;
}

I2cTimingInput I2cTiming::inputFrom(const QList<RefParameter> &params, double clockMHz,
                                    const QString &family)
{
    I2cTimingInput in;
    in.clockMHz = clockMHz;
    in.mode = ParamList::value(params, QStringLiteral("I2C_Mode"));
    const QString speedName = CalculatorFamilies::i2cSpeedParameter(family, in.mode);
    const RefParameter speed = ParamList::get(params, speedName);
    in.speedKHz = ParamList::number(params, speedName);
    if (speed.Unit.compare(QLatin1String("Hz"), Qt::CaseInsensitive) == 0)
        in.speedKHz /= 1000.0;
    bool ok = false;
    in.riseNs = ParamList::number(params, QStringLiteral("Rise_Time"), &ok);
    if (!ok)
        in.riseNs = CalculatorFamilies::i2cBusRiseTimeNs(in.mode);
    in.fallNs = ParamList::number(params, QStringLiteral("Fall_Time"), &ok);
    if (!ok)
        in.fallNs = CalculatorFamilies::i2cBusFallTimeNs(in.mode);
    in.analogFilter =
        ParamList::value(params, QStringLiteral("Analog_Filter")) == QLatin1String("TRUE");
    in.digitalFilter = int(ParamList::number(params, QStringLiteral("Digital_Filter")));
    return in;
}

I2cDiagramValues I2cTiming::apply(QList<RefParameter> &params, double clockMHz,
                                  const QString &family)
{
    const I2cTimingInput in = inputFrom(params, clockMHz, family);
    I2cDiagramValues diagram;
    diagram.tr = uint(qMax(0.0, in.riseNs));
    diagram.tf = uint(qMax(0.0, in.fallNs));
    diagram.tSu = uint(CalculatorFamilies::i2cSetupTimeNs(in.mode));
    diagram.fScl = uint(qMax(0.0, in.speedKHz) + 0.5);
    if (ParamList::find(params, QStringLiteral("Timing_Configuration_Value")) && clockMHz > 0.0) {
        const I2cTimingResult r = compute(in);
        ParamList::setValue(params, QStringLiteral("Timing_Configuration_Value"), r.text);
    }
    copyTimeout(params, QStringLiteral("CCLE_timeout_enable"),
                QStringLiteral("CCLE_timeout_value"),
                QStringLiteral("CCLE_timeout_value_register"));
    copyTimeout(params, QStringLiteral("DCLH_timeout_enable"),
                QStringLiteral("DCLH_timeout_value"),
                QStringLiteral("DCLH_timeout_value_register"));
    return diagram;
}
