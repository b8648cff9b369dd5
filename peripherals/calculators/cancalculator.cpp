#include "peripherals/calculators/cancalculator.h"

#include "peripherals/calculators/calculatorfamilies.h"
#include "peripherals/calculators/paramlist.h"

#include <cmath>

namespace {

const QString kSelect = QStringLiteral("BaudRate_Result_Select");

bool nearInteger(double f)
{
    return std::fabs(f - std::round(f)) <= 1e-6;
}

// The legal jump values of a solution written into the RSAW parameter.
void applyJump(QList<RefParameter> &params, const QList<RefParameter> &original,
               const CANBaudResult &r, bool fromBelow)
{
    RefParameter *rsaw = ParamList::find(params, QStringLiteral("RSAW"));
    if (!rsaw)
        return;
    if (rsaw->Type == QLatin1String("list")) {
        if (const RefParameter *o = ParamList::find(original, QStringLiteral("RSAW")))
            rsaw->PossibleValues = o->PossibleValues;
        for (RefParamValue &v : rsaw->PossibleValues) {
            const int n = ParamList::trailingNumber(v.Value);
            if (n >= 0 && (fromBelow ? n < r.rsawMin : n > r.rsawMax))
                v.Action = QStringLiteral("Remove");
        }
    }
    const int current = ParamList::trailingNumber(rsaw->Value);
    if (current < r.rsawMin)
        ParamList::setCount(params, QStringLiteral("RSAW"), r.rsawMin);
    else if (current > r.rsawMax)
        ParamList::setCount(params, QStringLiteral("RSAW"), r.rsawMax);
}

} // namespace

const QList<double> &CanBitTiming::offsets()
{
    static const QList<double> list = {0.0,  0.5, -0.5, 1.0, -1.0, 1.5, -1.5, 2.0,
                                       -2.0, 2.5, -2.5, 3.0, -3.0, 3.5, -3.5, 4.0,
                                       -4.0, 4.5, -4.5, 5.0, 0.0,  -5.0};
    return list;
}

QString CanBitTiming::samplePointForBaud(double baudRate)
{
    if (baudRate > 800.0)
        return QStringLiteral("75");
    if (baudRate > 500.0)
        return QStringLiteral("80");
    return QStringLiteral("87.5");
}

CanSearchInput CanBitTiming::inputFrom(const QList<RefParameter> &params, double clockMHz,
                                       const QString &family)
{
    CanSearchInput in;
    in.clockMHz = clockMHz;
    in.baudRate = ParamList::number(params, QStringLiteral("BaudRate"));
    in.samplePoint = ParamList::number(params, QStringLiteral("Sample_Point"));
    in.tolerance = ParamList::value(params, QStringLiteral("BaudRate_Deviation_Tolerance")) ==
                   QLatin1String("TRUE");
    in.deviation = ParamList::number(params, QStringLiteral("BaudRate_Deviation"));
    in.jumpFromBelow = CalculatorFamilies::canJumpFromBelow(family);
    return in;
}

QList<CANBaudResult> CanBitTiming::search(const CanSearchInput &in)
{
    QList<CANBaudResult> results;
    if (in.clockMHz <= 0.0 || in.baudRate <= 0.0)
        return results;
    const double clockKHz = in.clockMHz * 1000.0;
    for (double offset : offsets()) {
        const double percent = in.samplePoint + offset;
        const double sp = percent / 100.0;
        if (sp <= 0.0 || sp >= 1.0)
            continue;
        bool reachable = false;
        for (int bts2 = 1; bts2 <= 4 && !reachable; ++bts2)
            reachable = nearInteger(bts2 * sp / (1.0 - sp));
        if (!reachable)
            continue;
        for (int bts2 = 1; bts2 <= 8; ++bts2) {
            const double f = bts2 * sp / (1.0 - sp);
            if (!nearInteger(f))
                continue;
            const int bts1 = int(std::lround(f));
            if (bts1 < 1 || bts1 > 16 || bts1 + bts2 < 7 || bts1 + bts2 > 24)
                continue;
            const int quanta = bts1 + bts2 + 1;
            const int division = int(clockKHz / (quanta * in.baudRate) + 0.5);
            if (division == 0)
                continue;
            const double real = clockKHz / (double(quanta) * division);
            if (in.tolerance) {
                const double low = in.baudRate * (1.0 - in.deviation / 100.0);
                const double high = in.baudRate * (1.0 + in.deviation / 100.0);
                const double slack = 1e-9 * in.baudRate;
                if (real < low - slack || real > high + slack)
                    continue;
            } else if (std::fabs(in.baudRate / real - 1.0) > 1e-6) {
                // Without a tolerance only the exact rate will do: a rate that divides the
                // wished one (half of it, at a prescaler rounded up from 0.5) is no solution.
                continue;
            }
            CANBaudResult r;
            r.division = division;
            r.bts1 = bts1;
            r.bts2 = bts2;
            r.quanta = quanta;
            r.samplePoint = percent;
            r.realBaud = real;
            if (in.jumpFromBelow) {
                r.rsawMin = qMin(bts2, 4);
                r.rsawMax = 4;
            } else {
                r.rsawMin = 1;
                r.rsawMax = qMin(bts2, 4);
            }
            results << r;
        }
        if (!results.isEmpty())
            break;
    }
    return results;
}

QString CanBitTiming::resultValue(const CANBaudResult &r)
{
    return QStringLiteral("%1,%2,%3").arg(r.division).arg(r.bts1).arg(r.bts2);
}

CanDiagramValues CanBitTiming::apply(QList<RefParameter> &params,
                                     const QList<RefParameter> &original,
                                     const QList<CANBaudResult> &results, double clockMHz,
                                     const QString &family)
{
    CanDiagramValues diagram;
    RefParameter *select = ParamList::find(params, kSelect);
    // Without a known bus clock (a series without a clock tree) nothing can be searched: the
    // parameters stay as the database gives them.
    if (clockMHz <= 0.0) {
        diagram.sample = ParamList::number(params, QStringLiteral("Sample_Point"));
        return diagram;
    }
    if (results.isEmpty()) {
        diagram.sample = ParamList::number(params, QStringLiteral("Sample_Point"));
        if (select) {
            RefParamValue none;
            none.Value = QStringLiteral("0");
            none.Comment = tr("No bit timing");
            none.Action = QStringLiteral("Disable");
            none.Diagnostic =
                tr("No bit timing gives %1 kbit/s from the %2 MHz clock. Change the baud rate, "
                   "the sample point or the allowed deviation.")
                    .arg(ParamList::value(params, QStringLiteral("BaudRate")),
                         ParamList::formatNumber(clockMHz));
            select->PossibleValues = {none};
            select->Value = none.Value;
        }
        return diagram;
    }

    int chosen = 0;
    if (select) {
        select->PossibleValues.clear();
        for (int i = 0; i < results.size(); ++i) {
            const CANBaudResult &r = results.at(i);
            RefParamValue v;
            v.Value = resultValue(r);
            v.Comment = tr("%1 kbit/s: prescaler %2, BS1 %3, BS2 %4, sample point %5 %")
                            .arg(ParamList::formatNumber(r.realBaud))
                            .arg(r.division)
                            .arg(r.bts1)
                            .arg(r.bts2)
                            .arg(ParamList::formatNumber(r.samplePoint, 2));
            select->PossibleValues << v;
            if (v.Value == select->Value)
                chosen = i;
        }
        select->Value = resultValue(results.at(chosen));
    }
    const CANBaudResult &r = results.at(chosen);
    ParamList::setCount(params, QStringLiteral("BaudRate_Division"), r.division);
    ParamList::setCount(params, QStringLiteral("BTS1"), r.bts1);
    ParamList::setCount(params, QStringLiteral("BTS2"), r.bts2);
    ParamList::setValue(params, QStringLiteral("Sample_Point"),
                        ParamList::formatNumber(r.samplePoint, 2));
    applyJump(params, original, r, CalculatorFamilies::canJumpFromBelow(family));
    const RefParameter *baud = ParamList::find(params, QStringLiteral("BaudRate"));
    if (baud) {
        const int decimals = baud->Type == QLatin1String("integer") ? 0 : 3;
        ParamList::setValue(params, QStringLiteral("BaudRate"),
                            ParamList::formatNumber(r.realBaud, decimals));
    }
    diagram.bs1 = uint(r.bts1);
    diagram.bs2 = uint(r.bts2);
    diagram.sync = 1;
    diagram.sample = r.samplePoint;
    return diagram;
}
