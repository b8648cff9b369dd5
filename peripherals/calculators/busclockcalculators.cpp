#include "peripherals/calculators/busclockcalculators.h"

#include "peripherals/calculators/calculatorfamilies.h"
#include "peripherals/calculators/paramlist.h"

#include <cmath>

namespace {

const QString kMarked = QStringLiteral("Disable");

// A number rounded to six significant digits, as text.
QString sixDigits(double v)
{
    if (v == 0.0 || !std::isfinite(v))
        return QStringLiteral("0");
    const int magnitude = int(std::floor(std::log10(std::fabs(v)))) + 1;
    const int decimals = qMax(0, 6 - magnitude);
    const double scale = std::pow(10.0, 6 - magnitude);
    return ParamList::formatNumber(std::round(v * scale) / scale, decimals);
}

// The bound of a "/n" range form for a clock; the form itself without a clock.
QString slashBound(const QString &form, double clockHz)
{
    if (!form.startsWith(QLatin1Char('/')) || clockHz <= 0.0)
        return form;
    bool ok = false;
    const double divisor = form.mid(1).toDouble(&ok);
    if (!ok || divisor <= 0.0)
        return form;
    return QString::number(qint64(clockHz / divisor));
}

// The possible values of a list back as the database gives them.
void restoreValues(RefParameter *p, const QList<RefParameter> &original)
{
    if (const RefParameter *o = ParamList::find(original, p->Name))
        p->PossibleValues = o->PossibleValues;
}

// The comment that names a possible value in messages (the database's own text).
QString valueText(const RefParamValue &v)
{
    return v.Comment.isEmpty() ? v.Value : v.Comment;
}

} // namespace

UsartBaud BusClockCalculators::usartBaud(double clockHz, double wished)
{
    UsartBaud b;
    if (clockHz <= 0.0 || wished <= 0.0)
        return b;
    b.divider = int(clockHz / wished + 0.5);
    if (b.divider < 1) {
        b.divider = 0;
        return b;
    }
    b.real = clockHz / b.divider;
    b.error = (b.real - wished) / wished * 100.0;
    return b;
}

void BusClockCalculators::applyUsart(QList<RefParameter> &params,
                                     const QList<RefParameter> &original, double clockMHz,
                                     QString *note)
{
    RefParameter *baud = ParamList::find(params, QStringLiteral("BaudRate"));
    if (!baud)
        return;
    const RefParameter *orig = ParamList::find(original, QStringLiteral("BaudRate"));
    const double clockHz = clockMHz * 1e6;
    baud->Min = slashBound(orig ? orig->Min : baud->Min, clockHz);
    baud->Max = slashBound(orig ? orig->Max : baud->Max, clockHz);
    if (!note)
        return;
    note->clear();
    bool ok = false;
    const double wished = ParamList::number(params, QStringLiteral("BaudRate"), &ok);
    bool minOk = false;
    bool maxOk = false;
    const double low = baud->Min.toDouble(&minOk);
    const double high = baud->Max.toDouble(&maxOk);
    if (!ok || !minOk || !maxOk || wished < low || wished > high)
        return;
    const UsartBaud b = usartBaud(clockHz, wished);
    if (b.divider == 0)
        return;
    *note =
        tr("Real baud rate %1 %2, error %3 %")
            .arg(ParamList::formatNumber(b.real, 1), baud->Unit, QString::number(b.error, 'f', 2));
}

void BusClockCalculators::applyUsartVirtualMode(QList<RefParameter> &params)
{
    const QString mode = ParamList::value(params, QStringLiteral("VirtualMode"));
    if (mode != QLatin1String("VM_RECEIVERMUTE") && mode != QLatin1String("VM_MODBUS"))
        return;
    ParamList::setValue(params, QStringLiteral("Databitnum"), QStringLiteral("USART_DATA_8BITS"));
    ParamList::setValue(params, QStringLiteral("Parityselection"),
                        QStringLiteral("USART_PARITY_NONE"));
    ParamList::setValue(params, QStringLiteral("USARTIDBit"),
                        QStringLiteral("USART_ID_FIXED_4_BIT"));
    bool ok = false;
    const double id = ParamList::number(params, QStringLiteral("USARTID"), &ok);
    if (ok && id > 15.0)
        ParamList::setValue(params, QStringLiteral("USARTID"), QStringLiteral("15"));
}

void BusClockCalculators::applySpi(QList<RefParameter> &params,
                                   const QList<RefParameter> &original, double clockMHz,
                                   const QString &instance)
{
    RefParameter *division = ParamList::find(params, QStringLiteral("ClkDivision"));
    if (!division)
        return;
    restoreValues(division, original);
    bool ok = false;
    const double limit = ParamList::number(params, QStringLiteral("ClockFrequency"), &ok);
    const double clockHz = clockMHz * 1e6;
    if (clockHz <= 0.0)
        return;
    for (RefParamValue &v : division->PossibleValues) {
        const int divider = ParamList::trailingNumber(v.Value);
        if (divider <= 0)
            continue;
        const double rate = clockHz / divider;
        const QString shown = valueText(v);
        v.Comment =
            shown + QStringLiteral(" (") + ParamList::formatFrequency(rate) + QLatin1Char(')');
        if (ok && limit > 0.0 && rate > limit) {
            v.Action = kMarked;
            v.Diagnostic =
                tr("\"%1\" \"%2\" parameter setting is incorrect.  Clock Frequency is "
                   "%3 MHz, above the limit of %4 MHz. Please set %2 more than %5")
                    .arg(instance, division->Comment, QString::number(rate / 1e6, 'f', 3),
                         QString::number(limit / 1e6, 'f', 3), shown);
        }
    }
}

void BusClockCalculators::applyAdcLimit(QList<RefParameter> &params,
                                        const QList<RefParameter> &original, double ahbMHz,
                                        double apb2MHz, const QString &instance)
{
    RefParameter *prescaler = ParamList::find(params, QStringLiteral("ClockPrescaler"));
    if (!prescaler)
        return;
    restoreValues(prescaler, original);
    const double ahbHz = ahbMHz * 1e6;
    if (ahbHz <= 0.0)
        return;
    const double limit = qMin(apb2MHz * 1e6, CalculatorFamilies::adcClockLimitHz());
    for (RefParamValue &v : prescaler->PossibleValues) {
        const int divider = ParamList::trailingNumber(v.Value);
        if (divider <= 0)
            continue;
        const QString shown = valueText(v);
        v.Comment = shown + QStringLiteral(" (") + ParamList::formatFrequency(ahbHz / divider) +
                    QLatin1Char(')');
        if (ahbHz / divider > limit) {
            v.Action = kMarked;
            v.Diagnostic =
                tr("\"%1\" \"%2\" parameter setting is incorrect.  Clock Frequency must be less "
                   "than 80MHz and less than APB2 clock %3 MHz. Please set %2 more than %4")
                    .arg(instance, prescaler->Comment, QString::number(apb2MHz, 'f', 3), shown);
        }
    }
    const int chosen = ParamList::trailingNumber(prescaler->Value);
    if (chosen > 0)
        ParamList::setValue(params, QStringLiteral("Clock"),
                            ParamList::formatNumber(ahbHz / chosen));
}

double BusClockCalculators::i2sBase(const QList<RefParameter> &params, double clockMHz)
{
    const QString standard = ParamList::value(params, QStringLiteral("Standard"));
    const bool pcm = standard == QLatin1String("I2S_AUDIO_PROTOCOL_PCM_SHORT") ||
                     standard == QLatin1String("I2S_AUDIO_PROTOCOL_PCM_LONG");
    const bool mclk =
        ParamList::value(params, QStringLiteral("MCLKOutput")) == QLatin1String("TRUE");
    const bool sixteen = ParamList::value(params, QStringLiteral("DataFormat")) ==
                         QLatin1String("I2S_DATA_16BIT_CHANNEL_16BIT");
    double divisor = 0.0;
    if (mclk)
        divisor = pcm ? 128.0 : 256.0;
    else if (sixteen)
        divisor = pcm ? 16.0 : 32.0;
    else
        divisor = pcm ? 32.0 : 64.0;
    return clockMHz * 1000.0 * 1000.0 / divisor;
}

void BusClockCalculators::applyI2s(QList<RefParameter> &params,
                                   const QList<RefParameter> &original, double clockMHz,
                                   const QString &instance)
{
    RefParameter *freq = ParamList::find(params, QStringLiteral("AudioFreq"));
    const RefParameter div = ParamList::get(params, QStringLiteral("I2S_DIV"));
    const RefParameter odd = ParamList::get(params, QStringLiteral("I2S_ODD"));
    if (!freq || div.Name.isEmpty() || odd.Name.isEmpty() || clockMHz <= 0.0)
        return;
    restoreValues(freq, original);
    const double base = i2sBase(params, clockMHz);
    const double divMin = div.Min.toDouble();
    const double divMax = div.Max.toDouble();
    const double oddMin = odd.Min.toDouble();
    const double oddMax = odd.Max.toDouble();
    const double highest = base / (2.0 * divMin + oddMin);
    freq->Max = sixDigits(highest);
    freq->Min = sixDigits(base / (2.0 * divMax + oddMax));

    double target = 0.0;
    for (RefParamValue &v : freq->PossibleValues) {
        const QString text = v.CommentEN.isEmpty() ? v.Comment : v.CommentEN;
        bool ok = false;
        const double hz =
            ParamList::leadingNumber(text.section(QStringLiteral("KHz"), 0, 0), &ok) * 1000.0;
        if (!ok)
            continue;
        if (v.Value == freq->Value)
            target = hz;
        if (hz > highest) {
            v.Action = kMarked;
            v.Diagnostic =
                tr("\"%1\" \"%2\" parameter setting is incorrect. Due to the low I2S "
                   "clock, the maximum value that can be set is %3KHz")
                    .arg(instance, freq->Comment, QString::number(highest / 1000.0, 'f', 3));
        }
    }
    if (target <= 0.0)
        return;
    const qint64 n = qint64(base / target + 0.5);
    const qint64 oddValue = n & 1;
    const qint64 divValue = (n - oddValue) / 2;
    ParamList::setValue(params, QStringLiteral("I2S_ODD"), QString::number(oddValue));
    ParamList::setValue(params, QStringLiteral("I2S_DIV"), QString::number(divValue));
    if (divValue >= divMin && divValue <= divMax) {
        const double real = base / double(oddValue + 2 * divValue);
        ParamList::setValue(params, QStringLiteral("RealAudioFreq"),
                            QString::number(qint64(real)));
        ParamList::setValue(params, QStringLiteral("ErrorAudioFreq"),
                            QString::number((real - target) / target * 100.0, 'f', 2));
    } else {
        ParamList::setValue(params, QStringLiteral("RealAudioFreq"), QStringLiteral("-"));
        ParamList::setValue(params, QStringLiteral("ErrorAudioFreq"), QStringLiteral("-"));
    }
}

void BusClockCalculators::applySdio(QList<RefParameter> &params, double clockMHz)
{
    if (!ParamList::find(params, QStringLiteral("ClockFrequency")) || clockMHz <= 0.0)
        return;
    const double clockHz = clockMHz * 1e6;
    double out = clockHz;
    if (ParamList::value(params, QStringLiteral("Clock_divider_bypass")) != QLatin1String("TRUE"))
        out = clockHz / (ParamList::number(params, QStringLiteral("Clock_division")) + 2.0);
    ParamList::setValue(params, QStringLiteral("ClockFrequency"), ParamList::formatNumber(out));
}

void BusClockCalculators::applySpim(QList<RefParameter> &params, double clockMHz)
{
    if (clockMHz <= 0.0)
        return;
    ParamList::setValue(params, QStringLiteral("ClockSpeed"),
                        QString::number(qint64(clockMHz * 1000.0 * 1000.0)));
}
