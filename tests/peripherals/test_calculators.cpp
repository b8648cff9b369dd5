#include "peripherals/calculators/busclockcalculators.h"
#include "peripherals/calculators/cancalculator.h"
#include "peripherals/calculators/i2ccalculator.h"
#include "peripherals/calculators/paramcalculators.h"
#include "peripherals/calculators/paramlist.h"
#include "peripherals/calculators/tmrcalculator.h"

#include <gtest/gtest.h>

#include <cmath>

// Each calculator is checked against a search of its own written here from the rules, over
// many clocks and targets.

namespace {

RefParameter param(const QString &name, const QString &type, const QString &value)
{
    RefParameter p;
    p.Name = name;
    p.Comment = name;
    p.Type = type;
    p.Value = value;
    p.DefaultValue = value;
    return p;
}

RefParamValue item(const QString &value, const QString &comment = QString())
{
    RefParamValue v;
    v.Value = value;
    v.Comment = comment.isEmpty() ? value : comment;
    v.CommentEN = v.Comment;
    return v;
}

const QList<double> kClocksMHz = {8,  12, 16, 24, 36, 42,  45,  48,  50,  60,
                                  64, 72, 80, 90, 96, 100, 108, 120, 144, 150};

// ------------------------------------------------------------------------------- CAN --

// The sample point offsets as the search must try them.
const double kCanOffsets[22] = {0, 0.5, -0.5, 1,    -1, 1.5, -1.5, 2,    -2, 2.5, -2.5,
                                3, -3,  3.5,  -3.5, 4,  -4,  4.5,  -4.5, 5,  0,   -5};

// Every (offset, BS1, BS2, prescaler) tried one by one: BS1 must stand to BS2 as the sample
// point to the rest, the prescaler is the one nearest to the exact quotient (halves upwards),
// the real rate must meet the deviation rule.
QList<CANBaudResult> bruteCan(const CanSearchInput &in)
{
    QList<CANBaudResult> found;
    const double clockKHz = in.clockMHz * 1000.0;
    for (double offset : kCanOffsets) {
        const double sp = in.samplePoint + offset;
        bool gate = false;
        for (int b2 = 1; b2 <= 4; ++b2) {
            const double ratio = b2 * sp / (100.0 - sp);
            gate = gate || std::fabs(ratio - std::round(ratio)) <= 1e-6;
        }
        if (!gate)
            continue;
        for (int b2 = 1; b2 <= 8; ++b2) {
            for (int b1 = 1; b1 <= 16; ++b1) {
                if (b1 + b2 < 7 || b1 + b2 > 24)
                    continue;
                if (std::fabs(b2 * sp / (100.0 - sp) - b1) > 1e-6)
                    continue;
                const int q = b1 + b2 + 1;
                const double exact = clockKHz / (q * in.baudRate);
                int best = 0;
                for (int p = 1; p <= int(exact) + 2; ++p) {
                    if (best == 0 || std::fabs(p - exact) <= std::fabs(best - exact))
                        best = p;
                }
                if (exact < 0.5 || best == 0)
                    continue;
                const double real = clockKHz / (q * double(best));
                const bool ok = in.tolerance ? std::fabs(real - in.baudRate) <=
                                                   in.baudRate * in.deviation / 100.0 + 1e-9
                                             : std::fabs(real - in.baudRate) <= 1e-6 * in.baudRate;
                if (!ok)
                    continue;
                CANBaudResult r;
                r.division = best;
                r.bts1 = b1;
                r.bts2 = b2;
                r.quanta = q;
                r.samplePoint = sp;
                r.realBaud = real;
                found << r;
            }
        }
        if (!found.isEmpty())
            break;
    }
    return found;
}

QList<RefParameter> canParameters(const QString &baud, const QString &samplePoint)
{
    RefParameter select = param("BaudRate_Result_Select", "list", "0");
    RefParameter rsaw = param("RSAW", "list", "CAN_RSAW_1TQ");
    for (int i = 1; i <= 4; ++i)
        rsaw.PossibleValues << item(QStringLiteral("CAN_RSAW_%1TQ").arg(i));
    return {param("BaudRate", "double", baud),
            param("Sample_Point", "double", samplePoint),
            param("BaudRate_Deviation_Tolerance", "list", "FALSE"),
            param("BaudRate_Deviation", "double", "1"),
            select,
            param("BaudRate_Division", "integer", "1"),
            param("BTS1", "integer", "1"),
            param("BTS2", "integer", "1"),
            rsaw};
}

} // namespace

TEST(CanBitTiming, SearchFindsExactlyTheBruteForceSolutionsInOrder)
{
    const QList<double> bauds = {10, 20, 33.333, 50, 62.5, 83.333, 100, 125, 250, 500, 800, 1000};
    const QList<double> samplePoints = {75, 80, 87.5, 70, 66};
    int withResults = 0;
    int cases = 0;
    for (double clock : kClocksMHz) {
        for (double baud : bauds) {
            for (double sp : samplePoints) {
                for (double deviation : {-1.0, 0.5, 2.0}) {
                    CanSearchInput in;
                    in.clockMHz = clock;
                    in.baudRate = baud;
                    in.samplePoint = sp;
                    in.tolerance = deviation >= 0.0;
                    in.deviation = qMax(0.0, deviation);
                    const QList<CANBaudResult> got = CanBitTiming::search(in);
                    const QList<CANBaudResult> want = bruteCan(in);
                    const QString what = QStringLiteral("%1 MHz %2 kbit/s %3 % dev %4")
                                             .arg(clock)
                                             .arg(baud)
                                             .arg(sp)
                                             .arg(deviation);
                    ++cases;
                    ASSERT_EQ(got.size(), want.size()) << qPrintable(what);
                    withResults += got.isEmpty() ? 0 : 1;
                    for (int i = 0; i < got.size(); ++i) {
                        const CANBaudResult &g = got.at(i);
                        EXPECT_EQ(g.division, want.at(i).division) << qPrintable(what);
                        EXPECT_EQ(g.bts1, want.at(i).bts1) << qPrintable(what);
                        EXPECT_EQ(g.bts2, want.at(i).bts2) << qPrintable(what);
                        EXPECT_DOUBLE_EQ(g.samplePoint, want.at(i).samplePoint);
                        EXPECT_NEAR(g.realBaud, want.at(i).realBaud, 1e-9);
                        // The bounds every solution keeps.
                        EXPECT_GE(g.bts1, 1);
                        EXPECT_LE(g.bts1, 16);
                        EXPECT_GE(g.bts2, 1);
                        EXPECT_LE(g.bts2, 8);
                        EXPECT_GE(g.bts1 + g.bts2, 7);
                        EXPECT_LE(g.bts1 + g.bts2, 24);
                        EXPECT_EQ(g.quanta, g.bts1 + g.bts2 + 1);
                        EXPECT_LE(std::fabs(g.samplePoint - sp), 5.0);
                        EXPECT_NEAR(100.0 * g.bts1 / (g.bts1 + g.bts2), g.samplePoint, 1e-4);
                        EXPECT_NEAR(g.realBaud, clock * 1000.0 / (g.quanta * g.division), 1e-9);
                        EXPECT_EQ(g.rsawMin, 1);
                        EXPECT_EQ(g.rsawMax, qMin(g.bts2, 4));
                        // One offset for the whole list, and BS2 rising within it.
                        EXPECT_DOUBLE_EQ(g.samplePoint, got.first().samplePoint);
                        if (i > 0) {
                            EXPECT_GT(g.bts2, got.at(i - 1).bts2);
                        }
                    }
                }
            }
        }
    }
    // The grid is not all empty: most rates are reachable from most clocks.
    EXPECT_GT(withResults, cases / 3);
}

TEST(CanBitTiming, UnreachableRatesGiveNoSolutionAndTheSelectHoldsZero)
{
    CanSearchInput in;
    in.clockMHz = 8.0;
    in.baudRate = 1000.0;
    in.samplePoint = 75.0;
    EXPECT_TRUE(CanBitTiming::search(in).isEmpty());

    QList<RefParameter> params = canParameters("1000", "75");
    const QList<RefParameter> original = params;
    const CanDiagramValues d = CanBitTiming::apply(params, original, {}, 8.0, "MQ48T250");
    const RefParameter select = ParamList::get(params, "BaudRate_Result_Select");
    ASSERT_EQ(select.PossibleValues.size(), 1);
    EXPECT_EQ(select.Value, "0");
    EXPECT_FALSE(select.PossibleValues.first().Action.isEmpty());
    EXPECT_TRUE(select.PossibleValues.first().Diagnostic.contains("1000"));
    EXPECT_EQ(ParamList::value(params, "BTS1"), "1"); // left as they were
    EXPECT_EQ(d.bs1, 1u);
    EXPECT_EQ(d.bs2, 1u);
    EXPECT_EQ(d.sync, 1u);
    EXPECT_DOUBLE_EQ(d.sample, 75.0);
    // With a tolerance the same rate is reached at a moved sample point.
    in.tolerance = true;
    in.deviation = 12.0;
    EXPECT_FALSE(CanBitTiming::search(in).isEmpty());
}

TEST(CanBitTiming, ApplyingShowsTheMovedSamplePointAndKeepsTheChoice)
{
    // 87.5 % is not reachable with integer segments: the search moves it.
    CanSearchInput in;
    in.clockMHz = 36.0;
    in.baudRate = 500.0;
    in.samplePoint = 86.5;
    const QList<CANBaudResult> results = CanBitTiming::search(in);
    ASSERT_FALSE(results.isEmpty());
    EXPECT_NE(results.first().samplePoint, 86.5);

    QList<RefParameter> params = canParameters("500", "86.5");
    const QList<RefParameter> original = params;
    ParamList::find(params, "BaudRate_Result_Select")->Value =
        CanBitTiming::resultValue(results.last());
    const CanDiagramValues d = CanBitTiming::apply(params, original, results, 36.0, "MQ48T250");
    const CANBaudResult &chosen = results.last();
    EXPECT_EQ(ParamList::value(params, "BaudRate_Result_Select"),
              CanBitTiming::resultValue(chosen));
    EXPECT_EQ(ParamList::get(params, "BaudRate_Result_Select").PossibleValues.size(),
              results.size());
    EXPECT_EQ(ParamList::value(params, "BTS1"), QString::number(chosen.bts1));
    EXPECT_EQ(ParamList::value(params, "BTS2"), QString::number(chosen.bts2));
    EXPECT_EQ(ParamList::value(params, "BaudRate_Division"), QString::number(chosen.division));
    EXPECT_DOUBLE_EQ(ParamList::number(params, "Sample_Point"), chosen.samplePoint);
    EXPECT_EQ(d.bs1, uint(chosen.bts1));
    EXPECT_DOUBLE_EQ(d.sample, chosen.samplePoint);

    // On a family bounded from below the jumps under the solution's BS2 go; elsewhere those
    // above it.
    const auto kept = [](const QList<RefParameter> &list) {
        QList<int> out;
        for (const RefParamValue &v : ParamList::get(list, "RSAW").PossibleValues) {
            if (!v.Action.contains("Remove"))
                out << ParamList::trailingNumber(v.Value);
        }
        return out;
    };
    CANBaudResult small = chosen;
    small.bts2 = 2;
    small.rsawMin = 2;
    small.rsawMax = 4;
    QList<RefParameter> below = canParameters("500", "87.5");
    CanBitTiming::apply(below, original, {small}, 36.0, "MQ48T250");
    EXPECT_EQ(kept(below), (QList<int>{2, 3, 4}));
    EXPECT_EQ(ParamList::value(below, "RSAW"), "CAN_RSAW_2TQ"); // clipped up
    small.rsawMin = 1;
    small.rsawMax = 2;
    QList<RefParameter> above = canParameters("500", "87.5");
    ParamList::find(above, "RSAW")->Value = "CAN_RSAW_4TQ";
    CanBitTiming::apply(above, original, {small}, 36.0, "MQ48T510");
    EXPECT_EQ(kept(above), (QList<int>{1, 2}));
    EXPECT_EQ(ParamList::value(above, "RSAW"), "CAN_RSAW_2TQ"); // clipped down

    // The sample point follows the rate.
    EXPECT_EQ(CanBitTiming::samplePointForBaud(1000), "75");
    EXPECT_EQ(CanBitTiming::samplePointForBaud(800), "80");
    EXPECT_EQ(CanBitTiming::samplePointForBaud(500), "87.5");
}

TEST(CanBitTiming, FamiliesBoundedFromBelowReportTheirJumpRange)
{
    CanSearchInput in;
    in.clockMHz = 72.0;
    in.baudRate = 500.0;
    in.samplePoint = 80.0;
    in.jumpFromBelow = true;
    const QList<CANBaudResult> results = CanBitTiming::search(in);
    ASSERT_FALSE(results.isEmpty());
    for (const CANBaudResult &r : results) {
        EXPECT_EQ(r.rsawMin, qMin(r.bts2, 4));
        EXPECT_EQ(r.rsawMax, 4);
    }
}

// ------------------------------------------------------------------------------- I2C --

TEST(I2cTiming, TheFirstPrescalerThatFitsFillsTheBudgetOfTheSclPeriod)
{
    int found = 0;
    for (double clock : kClocksMHz) {
        for (const char *mode : {"I2C_Standard", "I2C_Fast", "I2C_Fast_Plus"}) {
            for (double speed : {10.0, 50.0, 100.0, 400.0, 1000.0}) {
                for (bool analog : {false, true}) {
                    I2cTimingInput in;
                    in.clockMHz = clock;
                    in.mode = QLatin1String(mode);
                    in.speedKHz = speed;
                    in.riseNs = 100;
                    in.fallNs = 50;
                    in.analogFilter = analog;
                    in.digitalFilter = 2;
                    const I2cTimingResult r = I2cTiming::compute(in);
                    // The budget of the low and high counts, in clock periods.
                    const double tI2C = 1000.0 / int(clock * 1000.0);
                    const double budget =
                        (1000.0 / speed - 0.1 - 0.05 - (analog ? 0.15 : 0.0) - 4.5 * 2.0 * tI2C) /
                        tI2C;
                    const double limit = in.mode == "I2C_Standard" ? 510.0 : 398.4375;
                    const double tSu =
                        in.mode == "I2C_Standard" ? 250 : (in.mode == "I2C_Fast" ? 100 : 50);
                    // The smallest prescaler whose counts and data delay fit, tried one by one.
                    int first = 0;
                    for (int p = 1; p <= 256 && budget >= 0 && first == 0; ++p) {
                        const int del = int((tSu / 1000.0 + 0.1) / (p * tI2C) + 1.0 + 0.5);
                        if (budget / p <= limit && del <= 15)
                            first = p;
                    }
                    if (first == 0) {
                        EXPECT_FALSE(r.found);
                        EXPECT_TRUE(r.text.isEmpty());
                        continue;
                    }
                    ++found;
                    ASSERT_TRUE(r.found) << clock << mode << speed;
                    EXPECT_EQ(r.prescaler, first);
                    // The register holds its fields where they belong.
                    const quint32 v = r.value;
                    EXPECT_EQ(int(((v >> 28) & 15) | (((v >> 24) & 15) << 4)) + 1, first);
                    EXPECT_EQ(int((v >> 20) & 15), r.scldel);
                    EXPECT_EQ(int((v >> 8) & 255), r.sclh);
                    EXPECT_EQ(int(v & 255), r.scll);
                    EXPECT_EQ(r.text,
                              "0x" + QStringLiteral("%1").arg(v, 8, 16, QChar('0')).toUpper());
                    // Low and high counts spend the budget, to half a count each.
                    const double spent = (r.scll + r.sclh) * double(first);
                    EXPECT_NEAR(spent, budget, first + 1e-9) << clock << mode << speed;
                    if (in.mode == "I2C_Standard") {
                        EXPECT_EQ(r.scll, r.sclh);
                    } else {
                        EXPECT_GE(r.scll, r.sclh);
                    }
                }
            }
        }
    }
    EXPECT_GT(found, 100);
}

TEST(I2cTiming, SlowEdgesLongerThanThePeriodLeaveTheRegisterEmpty)
{
    QList<RefParameter> params = {param("I2C_Mode", "list", "I2C_Fast"),
                                  param("ClockSpeed", "integer", "400"),
                                  param("Rise_Time", "integer", "2000"),
                                  param("Fall_Time", "integer", "1000"),
                                  param("Analog_Filter", "list", "TRUE"),
                                  param("Digital_Filter", "integer", "0"),
                                  param("Timing_Configuration_Value", "string", "0x10805E89")};
    const I2cDiagramValues d = I2cTiming::apply(params, 48.0, "MQ48T510");
    EXPECT_EQ(ParamList::value(params, "Timing_Configuration_Value"), "");
    EXPECT_EQ(d.tr, 2000u);
    EXPECT_EQ(d.tf, 1000u);
    EXPECT_EQ(d.tSu, 100u);
    EXPECT_EQ(d.fScl, 400u);
    // Fast edges fit again.
    ParamList::setValue(params, "Rise_Time", "100");
    ParamList::setValue(params, "Fall_Time", "10");
    I2cTiming::apply(params, 48.0, "MQ48T510");
    EXPECT_TRUE(ParamList::value(params, "Timing_Configuration_Value").startsWith("0x"));
}

TEST(I2cTiming, AnI2cWithoutTimingRegisterShowsItsModeOnTheDiagram)
{
    RefParameter speed = param("ClockSpeed", "integer", "100000");
    speed.Unit = "Hz";
    RefParameter fast = param("ClockSpeed1", "integer", "400000");
    fast.Unit = "Hz";
    QList<RefParameter> params = {param("I2C_Mode", "list", "I2C_Standard"), speed, fast};
    I2cDiagramValues d = I2cTiming::apply(params, 0.0, "MQ48T110");
    EXPECT_EQ(d.fScl, 100u);
    EXPECT_EQ(d.tSu, 250u);
    EXPECT_EQ(d.tr, 1000u);
    ParamList::setValue(params, "I2C_Mode", "I2C_Fast");
    d = I2cTiming::apply(params, 0.0, "MQ48T110");
    EXPECT_EQ(d.fScl, 400u); // the fast mode's own speed parameter
    EXPECT_EQ(d.tSu, 100u);
    EXPECT_EQ(d.tr, 300u);
}

// ------------------------------------------------------------------------------- I2S --

namespace {

QList<RefParameter> i2sParameters(const QString &standard, const QString &format,
                                  const QString &mclk, const QString &freq)
{
    RefParameter audio = param("AudioFreq", "list", freq);
    for (int k : {8, 11, 16, 22, 32, 44, 48, 96, 192})
        audio.PossibleValues << item(QStringLiteral("I2S_AUDIO_FREQUENCY_%1K").arg(k),
                                     QStringLiteral("%1 KHz").arg(k));
    RefParameter div = param("I2S_DIV", "integer", "2");
    div.Min = "2";
    div.Max = "255";
    RefParameter odd = param("I2S_ODD", "integer", "0");
    odd.Min = "0";
    odd.Max = "1";
    return {param("Standard", "list", standard),
            param("DataFormat", "list", format),
            param("MCLKOutput", "list", mclk),
            audio,
            param("RealAudioFreq", "string", ""),
            param("ErrorAudioFreq", "string", ""),
            div,
            odd};
}

} // namespace

TEST(I2sDivider, DividersRealRateAndErrorMatchTheNearestDivision)
{
    int inRange = 0;
    for (double clock : kClocksMHz) {
        for (const char *standard :
             {"I2S_AUDIO_PROTOCOL_PHILLIPS", "I2S_AUDIO_PROTOCOL_PCM_SHORT"}) {
            for (const char *format :
                 {"I2S_DATA_16BIT_CHANNEL_16BIT", "I2S_DATA_24BIT_CHANNEL_32BIT"}) {
                for (const char *mclk : {"FALSE", "TRUE"}) {
                    for (int k : {8, 16, 44, 48, 96}) {
                        const QString value = QStringLiteral("I2S_AUDIO_FREQUENCY_%1K").arg(k);
                        QList<RefParameter> params = i2sParameters(standard, format, mclk, value);
                        const QList<RefParameter> original = params;
                        BusClockCalculators::applyI2s(params, original, clock, "I2S1");
                        const bool pcm = QString::fromLatin1(standard).contains("PCM");
                        const double scale =
                            QString::fromLatin1(mclk) == "TRUE"
                                ? (pcm ? 128 : 256)
                                : (QString::fromLatin1(format).contains("16BIT_CHANNEL_16")
                                       ? (pcm ? 16 : 32)
                                       : (pcm ? 32 : 64));
                        const double base = clock * 1e6 / scale;
                        const double target = k * 1000.0;
                        // The divisor 2 * DIV + ODD nearest to the exact one, tried one by one.
                        long best = 0;
                        for (long n = 0; n <= long(base / target) + 2; ++n) {
                            if (std::fabs(n - base / target) <= std::fabs(best - base / target))
                                best = n;
                        }
                        EXPECT_EQ(ParamList::value(params, "I2S_ODD").toLong(), best & 1);
                        EXPECT_EQ(ParamList::value(params, "I2S_DIV").toLong(), best / 2);
                        const long div = best / 2;
                        if (div >= 2 && div <= 255) {
                            ++inRange;
                            const double real = base / best;
                            EXPECT_EQ(ParamList::value(params, "RealAudioFreq").toLong(),
                                      long(real));
                            EXPECT_NEAR(ParamList::value(params, "ErrorAudioFreq").toDouble(),
                                        (real - target) / target * 100.0, 0.005 + 1e-9);
                        } else {
                            EXPECT_EQ(ParamList::value(params, "RealAudioFreq"), "-");
                            EXPECT_EQ(ParamList::value(params, "ErrorAudioFreq"), "-");
                        }
                        // Greyed exactly the rates above the fastest division.
                        for (const RefParamValue &v :
                             ParamList::get(params, "AudioFreq").PossibleValues) {
                            const double hz = ParamList::leadingNumber(v.Comment) * 1000.0;
                            EXPECT_EQ(!v.Action.isEmpty(), hz > base / 4.0) << qPrintable(v.Value);
                            if (!v.Action.isEmpty()) {
                                EXPECT_TRUE(v.Diagnostic.contains(
                                    QString::number(base / 4.0 / 1000.0, 'f', 3)));
                            }
                        }
                    }
                }
            }
        }
    }
    EXPECT_GT(inRange, 200);
}

// ------------------------------------------------------------------------ USART, SPI, ADC --

TEST(UsartBaud, RangeFollowsTheClockAndTheErrorIsThatOfTheNearestDivider)
{
    RefParameter baud = param("BaudRate", "integer", "115200");
    baud.Min = "/65535";
    baud.Max = "/16";
    baud.Unit = "Bits/s";
    const QList<RefParameter> original = {baud};
    for (double clock : kClocksMHz) {
        for (double wished : {1200.0, 9600.0, 57600.0, 115200.0, 230400.0, 921600.0, 3e6}) {
            QList<RefParameter> params = original;
            ParamList::setValue(params, "BaudRate", QString::number(qint64(wished)));
            QString note;
            BusClockCalculators::applyUsart(params, original, clock, &note);
            const double hz = clock * 1e6;
            EXPECT_EQ(ParamList::get(params, "BaudRate").Min, QString::number(qint64(hz / 65535)));
            EXPECT_EQ(ParamList::get(params, "BaudRate").Max, QString::number(qint64(hz / 16)));
            // The divider nearest to the exact quotient, tried one by one.
            const double exact = hz / wished;
            int best = 16;
            for (int d = 16; d <= 65535; ++d) {
                if (std::fabs(d - exact) <= std::fabs(best - exact))
                    best = d;
                else if (d > exact)
                    break;
            }
            if (wished < hz / 65535 || wished > hz / 16) {
                EXPECT_TRUE(note.isEmpty());
                continue;
            }
            const UsartBaud b = BusClockCalculators::usartBaud(hz, wished);
            EXPECT_EQ(b.divider, best);
            const double real = hz / best;
            EXPECT_DOUBLE_EQ(b.real, real);
            EXPECT_NEAR(b.error, (real - wished) / wished * 100.0, 1e-12);
            EXPECT_TRUE(note.contains(QString::number((real - wished) / wished * 100.0, 'f', 2)))
                << qPrintable(note);
        }
    }
    // Without a clock the range stays a formula.
    QList<RefParameter> params = original;
    BusClockCalculators::applyUsart(params, original, 0.0, nullptr);
    EXPECT_EQ(ParamList::get(params, "BaudRate").Max, "/16");
}

TEST(SpiDivider, DividersAboveTheScklimitAreGreyedWithTheirRates)
{
    RefParameter division = param("ClkDivision", "list", "SPI_MCLK_DIV_2");
    division.Comment = "Clock Division";
    for (int d : {2, 3, 4, 8, 16, 32, 64, 128, 256, 512, 1024})
        division.PossibleValues << item(QStringLiteral("SPI_MCLK_DIV_%1").arg(d),
                                        QString::number(d));
    const QList<RefParameter> original = {division, param("ClockFrequency", "string", "36000000")};
    for (double clock : kClocksMHz) {
        QList<RefParameter> params = original;
        BusClockCalculators::applySpi(params, original, clock, "SPI1");
        for (const RefParamValue &v : ParamList::get(params, "ClkDivision").PossibleValues) {
            const int d = ParamList::trailingNumber(v.Value);
            const double rate = clock * 1e6 / d;
            EXPECT_EQ(!v.Action.isEmpty(), rate > 36e6) << clock << " /" << d;
            EXPECT_TRUE(v.Comment.startsWith(QString::number(d) + " ("));
            EXPECT_TRUE(v.Comment.contains(ParamList::formatFrequency(rate)));
            if (!v.Action.isEmpty()) {
                EXPECT_TRUE(v.Diagnostic.startsWith("\"SPI1\" \"Clock Division\""));
                EXPECT_TRUE(v.Diagnostic.contains(QString::number(rate / 1e6, 'f', 3)));
            }
        }
    }
    // The message of the error box for a pick of a greyed divider.
    QList<RefParameter> params = original;
    BusClockCalculators::applySpi(params, original, 120.0, "SPI1");
    CalculatorInput in;
    in.family = "MQ48T110";
    in.instance = "SPI1";
    in.lastEdit = "ClkDivision";
    EXPECT_TRUE(
        ParamCalculators::editError(params, in).contains("parameter setting is incorrect"));
    ParamList::setValue(params, "ClkDivision", "SPI_MCLK_DIV_4");
    EXPECT_TRUE(ParamCalculators::editError(params, in).isEmpty());
}

TEST(AdcClockLimit, PrescalersAboveTheLimitAreMarkedOnTheFamiliesThatHaveIt)
{
    RefParameter prescaler = param("ClockPrescaler", "list", "ADC_HCLK_DIV_2");
    prescaler.Comment = "Clock Prescaler";
    for (int d : {2, 3, 4, 6, 8, 16})
        prescaler.PossibleValues << item(QStringLiteral("ADC_HCLK_DIV_%1").arg(d),
                                         QStringLiteral("/%1").arg(d));
    const QList<RefParameter> original = {prescaler, param("Clock", "string", "")};
    for (double ahb : {96.0, 144.0, 200.0, 288.0}) {
        for (double apb2 : {36.0, 72.0, 144.0}) {
            QList<RefParameter> params = original;
            CalculatorInput in;
            in.family = "MQ48T510";
            in.instance = "ADC1";
            in.clockMHz = ahb;
            in.apb2MHz = apb2;
            ParamCalculators::run(params, original, in, nullptr);
            const double limit = qMin(apb2 * 1e6, 80e6);
            for (const RefParamValue &v : ParamList::get(params, "ClockPrescaler").PossibleValues)
                EXPECT_EQ(!v.Action.isEmpty(),
                          ahb * 1e6 / ParamList::trailingNumber(v.Value) > limit);
            EXPECT_DOUBLE_EQ(ParamList::number(params, "Clock"), ahb * 1e6 / 2);
        }
    }
    // Other families leave the list alone.
    QList<RefParameter> params = original;
    CalculatorInput in;
    in.family = "MQ48T110";
    in.instance = "ADC1";
    in.clockMHz = 288.0;
    in.apb2MHz = 36.0;
    ParamCalculators::run(params, original, in, nullptr);
    for (const RefParamValue &v : ParamList::get(params, "ClockPrescaler").PossibleValues)
        EXPECT_TRUE(v.Action.isEmpty());
}

// ----------------------------------------------------------------------------- timers --

TEST(TimerCalculator, DeadTimeGrowsWithTheRegisterAndMeetsItsBorders)
{
    for (double clock : {8.0, 48.0, 72.0, 120.0}) {
        for (int k : {1, 2, 4}) {
            qint64 last = -1;
            for (int d = 0; d <= 255; ++d) {
                const qint64 t = TimerCalculator::deadTimeNs(d, clock, k);
                EXPECT_GT(t, last) << clock << " " << k << " " << d;
                last = t;
            }
            // 127 is the last step of one clock, 128 the first of two clocks.
            EXPECT_EQ(TimerCalculator::deadTimeNs(127, clock, k),
                      qint64(127 / clock * k * 1000.0));
            EXPECT_EQ(TimerCalculator::deadTimeNs(128, clock, k),
                      qint64(64 / clock * k * 2.0 * 1000.0));
        }
    }
}

TEST(TimerCalculator, FilterFrequenciesFallWithTheCodeAndFillTheirOutputs)
{
    for (quint32 clk : {8000000u, 48000000u, 120000000u}) {
        EXPECT_EQ(TimerCalculator::filterFrequency(0, clk, 1), 0u);
        // Code 1 samples at the timer clock, two events, and passes half of that.
        EXPECT_EQ(TimerCalculator::filterFrequency(1, clk, 1), clk / 4);
        quint32 last = TimerCalculator::filterFrequency(1, clk, 1) + 1;
        for (int code = 1; code <= 15; ++code) {
            const quint32 f = TimerCalculator::filterFrequency(code, clk, 1);
            EXPECT_LT(f, last) << code;
            last = f;
        }
        // The clock division slows the filters that sample the divided clock, not the others.
        EXPECT_EQ(TimerCalculator::filterFrequency(3, clk, 4),
                  TimerCalculator::filterFrequency(3, clk, 1));
        EXPECT_EQ(TimerCalculator::filterFrequency(15, clk, 4),
                  quint32(double(clk / 4) / 32 / 8 / 2));
    }
    QList<RefParameter> params = {param("ClockDivision", "list", "TMR_CLOCK_DIV2"),
                                  param("ExternalClockFilter", "integer", "4"),
                                  param("ExternalClockFilter_Frequency", "string", "0"),
                                  param("InputFilter_CH3", "integer", "15"),
                                  param("InputFilter_CH3_Frequency", "string", "0"),
                                  param("DeadTime", "integer", "200"),
                                  param("DeadTimeValue", "string", "0")};
    TimerCalculator::apply(params, 72.0);
    EXPECT_EQ(ParamList::value(params, "ExternalClockFilter_Frequency"),
              QString::number(TimerCalculator::filterFrequency(4, 72000000u, 2)));
    EXPECT_EQ(ParamList::value(params, "InputFilter_CH3_Frequency"),
              QString::number(TimerCalculator::filterFrequency(15, 72000000u, 2)));
    EXPECT_EQ(ParamList::value(params, "DeadTimeValue"),
              QString::number(TimerCalculator::deadTimeNs(200, 72.0, 2)));
}

TEST(TimerCalculator, PrescalerAndPeriodReproduceAWishedFrequency)
{
    // For wished frequencies that a prescaler and a period reach exactly, the first pair found
    // by trying every prescaler gives back the wished value to the diagram's three decimals.
    int checked = 0;
    for (double clock : kClocksMHz) {
        for (double wished : {1.0, 50.0, 1000.0, 20000.0, 100000.0, 1e6}) {
            const double hz = clock * 1e6;
            for (quint32 div = 0; div <= 65535; ++div) {
                const double periods = hz / (div + 1.0) / wished;
                if (periods > 65536.0 || std::fabs(periods - std::round(periods)) > 1e-9)
                    continue;
                if (periods < 1.0)
                    break;
                const uint period = uint(std::round(periods)) - 1;
                const double f = TimerCalculator::outputFrequency(clock, div, period);
                EXPECT_EQ(QString::number(f, 'f', 3), QString::number(wished, 'f', 3))
                    << clock << " " << div << " " << period;
                ++checked;
                break;
            }
        }
    }
    EXPECT_GT(checked, 80);
    // The diagram's numbers come from the parameters.
    QList<RefParameter> params = {param("DividerValue", "integer", "71"),
                                  param("Period", "integer", "999"),
                                  param("CounterDirection", "list", "TMR_COUNT_DOWN"),
                                  param("ClockSource", "list", "TMR_CLOCKSOURCE_INTERNAL")};
    TmrDiagramValues v = TimerCalculator::diagramValues(params, 72.0);
    EXPECT_EQ(v.divider, 71u);
    EXPECT_EQ(v.period, 999u);
    EXPECT_EQ(v.direction, 2u);
    EXPECT_DOUBLE_EQ(v.clockMHz, 72.0);
    ParamList::setValue(params, "ClockSource", "TMR_CLOCKSOURCE_EXTMODEB");
    ParamList::setValue(params, "CounterDirection", "TMR_COUNT_TWO_WAY_1");
    v = TimerCalculator::diagramValues(params, 72.0);
    EXPECT_EQ(v.clockMHz, 0.0);
    EXPECT_EQ(v.direction, 3u);
}

TEST(TimerCalculator, PwmInputKeepsBothFiltersEqualOnTheTimersThatHaveIt)
{
    const QList<RefParameter> base = {param("Multi_Channels", "list", "PWM_Input_2"),
                                      param("IC1Filter", "integer", "3"),
                                      param("IC2Filter", "integer", "9")};
    CalculatorInput in;
    in.family = "MQ48T110";
    in.instance = "TMR1";
    QList<RefParameter> params = base;
    ParamCalculators::run(params, base, in, nullptr);
    EXPECT_EQ(ParamList::value(params, "IC1Filter"), "9"); // the chosen channel's filter
    in.lastEdit = "IC1Filter";
    ParamList::setValue(params, "IC1Filter", "5");
    ParamCalculators::run(params, base, in, nullptr);
    EXPECT_EQ(ParamList::value(params, "IC2Filter"), "5"); // the edited one wins
    // TMR14 of the T110 has no PWM input: its filters stay apart.
    params = base;
    in.instance = "TMR14";
    ParamCalculators::run(params, base, in, nullptr);
    EXPECT_EQ(ParamList::value(params, "IC1Filter"), "3");
}

// ----------------------------------------------------------------------------- others --

TEST(ParamCalculators, SmallerCalculatorsAndTheDispatchByInstance)
{
    QList<RefParameter> sdio = {param("Clock_divider_bypass", "list", "FALSE"),
                                param("Clock_division", "integer", "6"),
                                param("ClockFrequency", "string", "")};
    CalculatorInput in;
    in.family = "MQ48T510";
    in.instance = "SDIO1";
    in.clockMHz = 144.0;
    CalculatorOutput out = ParamCalculators::run(sdio, sdio, in, nullptr);
    EXPECT_EQ(ParamList::value(sdio, "ClockFrequency"), "18000000");
    EXPECT_EQ(out.changed, QStringList{"ClockFrequency"});
    ParamList::setValue(sdio, "Clock_divider_bypass", "TRUE");
    ParamCalculators::run(sdio, sdio, in, nullptr);
    EXPECT_EQ(ParamList::value(sdio, "ClockFrequency"), "144000000");

    QList<RefParameter> spim = {param("ClockSpeed", "string", "")};
    in.instance = "SPIM";
    in.clockMHz = 240.0;
    ParamCalculators::run(spim, spim, in, nullptr);
    EXPECT_EQ(ParamList::value(spim, "ClockSpeed"), "240000000");

    QList<RefParameter> xmc = {param("Frame_Rate_Contorl_Source_Factor", "string", "3"),
                               param("Frame_Rate_Contorl_Target_Factor", "string", "")};
    in.instance = "XMC";
    ParamCalculators::run(xmc, xmc, in, nullptr);
    EXPECT_EQ(ParamList::value(xmc, "Frame_Rate_Contorl_Target_Factor"), "3");

    // A modbus choice brings the word format the ID matching needs.
    QList<RefParameter> usart = {param("VirtualMode", "list", "VM_MODBUS"),
                                 param("Databitnum", "list", "USART_DATA_9BITS"),
                                 param("Parityselection", "list", "USART_PARITY_EVEN"),
                                 param("USARTIDBit", "list", "USART_ID_RELATED_DATA_BIT"),
                                 param("USARTID", "integer", "40")};
    in.instance = "USART2";
    in.lastEdit = "VirtualMode";
    ParamCalculators::run(usart, usart, in, nullptr);
    EXPECT_EQ(ParamList::value(usart, "Parityselection"), "USART_PARITY_NONE");
    EXPECT_EQ(ParamList::value(usart, "USARTIDBit"), "USART_ID_FIXED_4_BIT");
    EXPECT_EQ(ParamList::value(usart, "Databitnum"), "USART_DATA_8BITS");
    EXPECT_EQ(ParamList::value(usart, "USARTID"), "15");

    // Nothing runs for an instance no calculator knows.
    QList<RefParameter> crc = {param("ClockSpeed", "string", "x")};
    in.instance = "CRC";
    out = ParamCalculators::run(crc, crc, in, nullptr);
    EXPECT_TRUE(out.changed.isEmpty());
    EXPECT_FALSE(out.hasCan || out.hasI2c || out.hasTmr);
}
