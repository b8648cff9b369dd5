#include "peripherals/calculators/tmrcalculator.h"

#include "peripherals/calculators/paramlist.h"

namespace {

// Sample clock source and event count of each filter code.
struct FilterRow
{
    int source; // 0 none, 1 the timer clock, else the dead time clock divided by this
    int events;
};

const FilterRow kFilterRows[16] = {
    {0, 1}, {1, 2}, {1, 4},  {1, 8},  {2, 6},  {2, 8},  {4, 6},  {4, 8},
    {8, 6}, {8, 8}, {16, 5}, {16, 6}, {16, 8}, {32, 5}, {32, 6}, {32, 8},
};

// Filter inputs whose frequency stands in another parameter, and where.
struct FilterOutput
{
    QString input;
    QStringList outputs; // the first that exists is written
};

QList<FilterOutput> filterOutputs(const QList<RefParameter> &params)
{
    QList<FilterOutput> out = {
        {QStringLiteral("ExternalClockFilter"),
         {QStringLiteral("ExternalClockFilterFrequency"),
          QStringLiteral("ExternalClockFilter_Frequency")}},
    };
    for (const char *name : {"SubModeInput_EXT_filter", "SubModeInput_C1INC_filter",
                             "SubModeInput_C1DF1_filter", "SubModeInput_C2DF2_filter"})
        out << FilterOutput{QLatin1String(name),
                            {QLatin1String(name) + QStringLiteral("_Frequency")}};
    for (const RefParameter &p : params) {
        if (p.Name.startsWith(QLatin1String("InputFilter_CH")) &&
            !p.Name.endsWith(QLatin1String("_Frequency")))
            out << FilterOutput{p.Name, {p.Name + QStringLiteral("_Frequency")}};
    }
    return out;
}

} // namespace

quint32 TimerCalculator::filterFrequency(int code, quint32 clockHz, int clockDivision)
{
    if (code < 0 || code > 15 || clockDivision <= 0)
        return 0;
    const FilterRow row = kFilterRows[code];
    double sample = 0.0;
    if (row.source == 1)
        sample = clockHz;
    else if (row.source > 1)
        sample = double(clockHz / quint32(clockDivision)) / row.source;
    return quint32(sample / row.events / 2.0);
}

qint64 TimerCalculator::deadTimeNs(int d, double c, int k)
{
    if (c <= 0.0 || d < 0 || d > 255)
        return 0;
    double t = 0.0;
    switch (d >> 5) {
    case 0:
    case 1:
    case 2:
    case 3:
        t = d / c * k;
        break;
    case 4:
    case 5:
        t = (64 + (d & 63)) / c * k * 2.0;
        break;
    case 6:
        t = (32 + (d & 31)) / c * k * 8.0;
        break;
    default:
        t = (32 + (d & 31)) / c * k * 16.0;
        break;
    }
    return qint64(t * 1000.0);
}

double TimerCalculator::outputFrequency(double clockMHz, uint divider, uint period)
{
    return clockMHz * 1000.0 * 1000.0 / (double(divider) + 1.0) / (double(period) + 1.0);
}

int TimerCalculator::clockDivision(const QList<RefParameter> &params)
{
    const QString v = ParamList::value(params, QStringLiteral("ClockDivision"));
    if (v == QLatin1String("TMR_CLOCK_DIV2"))
        return 2;
    if (v == QLatin1String("TMR_CLOCK_DIV4"))
        return 4;
    return 1;
}

void TimerCalculator::apply(QList<RefParameter> &params, double clockMHz)
{
    if (clockMHz <= 0.0)
        return;
    const quint32 clk = quint32(clockMHz * 1000.0 * 1000.0);
    const int k = clockDivision(params);
    for (const FilterOutput &f : filterOutputs(params)) {
        bool ok = false;
        const double code = ParamList::number(params, f.input, &ok);
        if (!ok)
            continue;
        for (const QString &target : f.outputs) {
            if (!ParamList::find(params, target))
                continue;
            ParamList::setValue(params, target,
                                QString::number(filterFrequency(int(code), clk, k)));
            break;
        }
    }
    bool ok = false;
    const double dead = ParamList::number(params, QStringLiteral("DeadTime"), &ok);
    if (ok && ParamList::find(params, QStringLiteral("DeadTimeValue")))
        ParamList::setValue(params, QStringLiteral("DeadTimeValue"),
                            QString::number(deadTimeNs(int(dead), clockMHz, k)));
}

void TimerCalculator::applyPwmInput(QList<RefParameter> &params, const QString &lastEdit)
{
    const QString mode = ParamList::value(params, QStringLiteral("Multi_Channels"));
    const QString one = QStringLiteral("IC1Filter");
    const QString two = QStringLiteral("IC2Filter");
    if (!ParamList::find(params, one) || !ParamList::find(params, two))
        return;
    QString from;
    if (lastEdit == one || lastEdit == two)
        from = lastEdit;
    else if (mode == QLatin1String("PWM_Input_1"))
        from = one;
    else if (mode == QLatin1String("PWM_Input_2"))
        from = two;
    if (from.isEmpty() ||
        (mode != QLatin1String("PWM_Input_1") && mode != QLatin1String("PWM_Input_2")))
        return;
    ParamList::setValue(params, from == one ? two : one, ParamList::value(params, from));
}

TmrDiagramValues TimerCalculator::diagramValues(const QList<RefParameter> &params, double clockMHz)
{
    TmrDiagramValues v;
    const bool external = ParamList::value(params, QStringLiteral("TMR_SubMode_Control")) ==
                              QLatin1String("TMR_SUB_EXTERNAL_CLOCK_MODE_A") ||
                          ParamList::value(params, QStringLiteral("ClockSource")) ==
                              QLatin1String("TMR_CLOCKSOURCE_EXTMODEB");
    v.clockMHz = external ? 0.0 : clockMHz;
    v.divider = uint(ParamList::number(params, QStringLiteral("DividerValue")));
    v.period = uint(ParamList::number(params, QStringLiteral("Period")));
    const QString direction = ParamList::value(params, QStringLiteral("CounterDirection"));
    if (direction == QLatin1String("TMR_COUNT_UP"))
        v.direction = 1;
    else if (direction == QLatin1String("TMR_COUNT_DOWN"))
        v.direction = 2;
    else
        v.direction = 3;
    return v;
}
