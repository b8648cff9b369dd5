// Times the CAN bit timing search with the application of its results, as a panel runs it
// after an edit: on the slowest CAN clock (8 MHz, a bus fed by the internal oscillator), for
// the rate of every prescaler from 1 to 1024 with every bit length of 9 to 25 time quanta,
// and for rates that no timing reaches, which try all sample point offsets.

#include "peripherals/calculators/cancalculator.h"
#include "peripherals/calculators/paramlist.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

RefParameter param(const char *name, const char *type, const QString &value)
{
    RefParameter p;
    p.Name = QLatin1String(name);
    p.Type = QLatin1String(type);
    p.Value = value;
    return p;
}

struct Timing
{
    double median = 0.0;
    double p99 = 0.0;
    double max = 0.0;
    double total = 0.0;
    int solved = 0;
};

Timing run(const std::vector<double> &rates, double clockMHz)
{
    RefParameter rsaw = param("RSAW", "list", "CAN_RSAW_1TQ");
    for (int i = 1; i <= 4; ++i) {
        RefParamValue v;
        v.Value = QStringLiteral("CAN_RSAW_%1TQ").arg(i);
        rsaw.PossibleValues << v;
    }
    const QList<RefParameter> original = {param("BaudRate", "double", "500"),
                                          param("Sample_Point", "double", "87.5"),
                                          param("BaudRate_Deviation_Tolerance", "list", "FALSE"),
                                          param("BaudRate_Deviation", "double", "1"),
                                          param("BaudRate_Result_Select", "list", "0"),
                                          param("BaudRate_Division", "string", ""),
                                          param("BTS1", "string", ""),
                                          param("BTS2", "string", ""),
                                          rsaw};
    std::vector<double> times;
    Timing t;
    for (double rate : rates) {
        QList<RefParameter> params = original;
        ParamList::setValue(params, QStringLiteral("BaudRate"), QString::number(rate, 'f', 6));
        QElapsedTimer timer;
        timer.start();
        const QList<CANBaudResult> results = CanBitTiming::search(
            CanBitTiming::inputFrom(params, clockMHz, QStringLiteral("MQ48T250")));
        CanBitTiming::apply(params, original, results, clockMHz, QStringLiteral("MQ48T250"));
        times.push_back(timer.nsecsElapsed() / 1e6);
        t.solved += results.isEmpty() ? 0 : 1;
    }
    std::sort(times.begin(), times.end());
    for (double v : times)
        t.total += v;
    t.median = times[times.size() / 2];
    t.p99 = times[times.size() * 99 / 100];
    t.max = times.back();
    return t;
}

} // namespace

int main()
{
    const double clockMHz = 8.0;
    std::vector<double> reachable;
    for (int prescaler = 1; prescaler <= 1024; ++prescaler) {
        for (int quanta = 9; quanta <= 25; ++quanta)
            reachable.push_back(clockMHz * 1000.0 / (quanta * prescaler));
    }
    std::vector<double> unreachable;
    for (int i = 0; i < 2000; ++i)
        unreachable.push_back(997.0 + i * 0.013);
    const Timing a = run(reachable, clockMHz);
    const Timing b = run(unreachable, clockMHz);
    std::printf("CAN search + apply on %.0f MHz, every prescaler 1..1024 x 9..25 quanta "
                "(%zu rates, %d solved): median %.4f ms, p99 %.4f ms, max %.4f ms, "
                "all %.1f ms (target per search < 20 ms)\n",
                clockMHz, reachable.size(), a.solved, a.median, a.p99, a.max, a.total);
    std::printf("CAN search + apply, unreachable rates (%zu, all offsets tried, %d solved): "
                "median %.4f ms, p99 %.4f ms, max %.4f ms\n",
                unreachable.size(), b.solved, b.median, b.p99, b.max);
    return a.max < 20.0 && b.max < 20.0 ? 0 : 1;
}
