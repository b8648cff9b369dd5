#include "clock/clocktreestate.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <tuple>
#include <vector>

namespace {

// A record on the PLL in flexible mode with the given PLL source (1 HICK, 0 HEXT).
ClockTreeState flexibleOnPll(int model, int pllrcs, double hext = 8.0)
{
    ClockTreeState s(model);
    s.pllmode = 1;
    s.pllrcs = pllrcs;
    s.hext = hext;
    s.sclkselect = 1;
    return s;
}

struct PllChoice
{
    int div = 0;
    int ms = 0;
    int ns = 0;
    double value = 0.0;
};

// Brute force over every legal setting; a result up to `limit` beats any above it, and ties
// go to the largest divider, then the smallest ms, then the smallest ns.
PllChoice bruteForce(const std::vector<int> &dividers, double input, double target, double vcoMax,
                     double limit = std::numeric_limits<double>::infinity())
{
    PllChoice best;
    double bestDiff = 0.0;
    bool found = false;
    for (int div : dividers) {
        for (int ms = 1; ms <= 15; ++ms) {
            if (input / ms < 2.0 || input / ms > 16.0)
                continue;
            for (int ns = 31; ns <= 500; ++ns) {
                const double vco = ns * input / ms;
                if (vco < 500.0 || vco > vcoMax)
                    continue;
                const double value = ns * input / (div * ms);
                const double diff = std::fabs(value - target);
                const auto key = std::make_tuple(value > limit + 1e-9, diff, -div, ms, ns);
                if (!found || key < std::make_tuple(best.value > limit + 1e-9, bestDiff, -best.div,
                                                    best.ms, best.ns)) {
                    found = true;
                    bestDiff = diff;
                    best = {div, ms, ns, value};
                }
            }
        }
    }
    return best;
}

const std::vector<int> kFr = {1, 2, 4, 8, 16, 32};
const std::vector<int> kFp = {1, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30};

} // namespace

TEST(ClockCalculator, PllInputFollowsFamilyGroups)
{
    ClockTreeState t320 = flexibleOnPll(ClockModel::T320, 1);
    EXPECT_DOUBLE_EQ(t320.pllInput(), 4.0);
    ClockTreeState t510 = flexibleOnPll(ClockModel::T510, 1);
    EXPECT_DOUBLE_EQ(t510.pllInput(), 8.0);

    // HEXT through hextdiv only outside the ms/ns group.
    t320.pllrcs = 0;
    t320.hext = 12.0;
    t320.pllhextdiv = 1;
    EXPECT_DOUBLE_EQ(t320.pllInput(), 6.0);
    t510.pllrcs = 0;
    t510.hext = 12.0;
    t510.pllhextdiv = 1;
    EXPECT_DOUBLE_EQ(t510.pllInput(), 12.0);

    ClockTreeState t230(ClockModel::T230);
    t230.pllrcs = 1;
    EXPECT_DOUBLE_EQ(t230.pllInput(), 4.0); // its HICK is 8 MHz, halved
}

TEST(ClockCalculator, SolveForSclkOnT510TakesLargestExactDivider)
{
    ClockTreeState s = flexibleOnPll(ClockModel::T510, 1);
    EXPECT_EQ(s.apb1div, 2); // Reset's 288 MHz stepped it up
    s.apb1div = 1;
    s.apb2div = 1;
    s.sclk = 144.0;
    s.solveForSclk();
    // /32 and /16 cannot reach 144 within the VCO range; /8 hits it exactly.
    EXPECT_EQ(s.pllfr, 8);
    EXPECT_EQ(s.pllms, 1);
    EXPECT_EQ(s.pllns, 144);
    EXPECT_EQ(s.pllfp, 0);
    EXPECT_DOUBLE_EQ(s.pllclk, 144.0);
    EXPECT_DOUBLE_EQ(s.sclk, 144.0);
    EXPECT_DOUBLE_EQ(s.ahbclk, 144.0);
    EXPECT_EQ(s.apb1div, 1); // 144 is not above half of 288
    EXPECT_DOUBLE_EQ(s.apb2tmrclk, 144.0);
}

TEST(ClockCalculator, UnreachableTargetTakesNearestRealValue)
{
    ClockTreeState s = flexibleOnPll(ClockModel::T320, 1); // 4 MHz input
    s.sclk = 100.3;
    s.solveForSclk();
    EXPECT_NE(s.sclk, 100.3);
    const PllChoice expect = bruteForce(kFr, 4.0, 100.3, 1000.0);
    EXPECT_DOUBLE_EQ(s.sclk, expect.value);
    EXPECT_DOUBLE_EQ(s.sclk, s.pllns * 4.0 / (s.pllfr * s.pllms));
    EXPECT_DOUBLE_EQ(s.pllclk, s.sclk);
    EXPECT_LT(std::fabs(s.sclk - 100.3), 0.2);

    // The same on the multiplier: rounded to the nearest step of the input.
    ClockTreeState m(ClockModel::T250);
    m.sclk = 101.9; // 4 MHz steps: 25.475 rounds to 25
    m.solveForSclk();
    EXPECT_EQ(m.pllmult, 25);
    EXPECT_DOUBLE_EQ(m.sclk, 100.0);
    m.sclk = 1000.0; // clamped to the largest multiplier
    m.solveForSclk();
    EXPECT_EQ(m.pllmult, 64);
    EXPECT_DOUBLE_EQ(m.pllclk, 256.0);
}

TEST(ClockCalculator, ApbStepsFromOneToTwoOnlyOnce)
{
    ClockTreeState s = flexibleOnPll(ClockModel::T510, 1);
    s.pllms = 1;
    s.pllns = 150;
    s.pllfr = 4; // 300 MHz
    s.recalculate();
    EXPECT_DOUBLE_EQ(s.sclk, 300.0);
    EXPECT_EQ(s.apb1div, 2);
    EXPECT_EQ(s.apb2div, 2);
    EXPECT_DOUBLE_EQ(s.apb1clk, 150.0); // still above 144: left red, not divided further
    EXPECT_EQ(s.apb1tmrmult, 2);
    EXPECT_DOUBLE_EQ(s.apb1tmrclk, 300.0);
    s.recalculate();
    EXPECT_EQ(s.apb1div, 2);

    QList<ClockLimitFault::Kind> kinds;
    for (const ClockLimitFault &f : s.limitFaults())
        kinds << f.kind;
    EXPECT_EQ(kinds, (QList<ClockLimitFault::Kind>{
                         ClockLimitFault::SclkTooHigh, ClockLimitFault::Apb1TooHigh,
                         ClockLimitFault::Apb2TooHigh, ClockLimitFault::PllTooHigh}));

    // A divider other than 1 is never touched, however fast the bus.
    s.apb2div = 4;
    s.ahbdiv = 1;
    s.apb1div = 1;
    s.recalculate();
    EXPECT_EQ(s.apb2div, 4);
    EXPECT_DOUBLE_EQ(s.apb2clk, 75.0);

    // Families outside the half-bus group keep /1.
    ClockTreeState t110(ClockModel::T110);
    EXPECT_EQ(t110.apb1div, 1);
    EXPECT_DOUBLE_EQ(t110.apb1clk, 120.0);

    // T130 halves APB1 above 120 MHz of AHB and leaves APB2 alone.
    ClockTreeState t130(ClockModel::T130);
    EXPECT_DOUBLE_EQ(t130.ahbclk, 150.0);
    EXPECT_EQ(t130.apb1div, 2);
    EXPECT_EQ(t130.apb2div, 1);
    EXPECT_DOUBLE_EQ(t130.apb2clk, 150.0);
}

TEST(ClockCalculator, T130PllRunsAtTwiceTheSystemClock)
{
    ClockTreeState s(ClockModel::T130);
    EXPECT_DOUBLE_EQ(s.pllclk, 300.0);
    EXPECT_DOUBLE_EQ(s.sclk, 150.0);

    s.sclk = 120.0;
    s.solveForSclk();
    EXPECT_DOUBLE_EQ(s.pllclk, 240.0);
    EXPECT_DOUBLE_EQ(s.sclk, 120.0);
    EXPECT_DOUBLE_EQ(s.pllns * s.pllInput() / (s.pllfr * s.pllms), 240.0);
}

TEST(ClockCalculator, SystemClockFromHextAndHick)
{
    ClockTreeState t510(ClockModel::T510);
    t510.sclkselect = 0;
    t510.hext = 12.0;
    t510.recalculate();
    EXPECT_DOUBLE_EQ(t510.sclk, 12.0);
    t510.sclkselect = 2;
    t510.hicktosclk = 0;
    t510.recalculate();
    EXPECT_DOUBLE_EQ(t510.sclk, 8.0);
    t510.hicktosclk = 1;
    t510.recalculate();
    EXPECT_DOUBLE_EQ(t510.sclk, 48.0);

    ClockTreeState t220(ClockModel::T220);
    t220.sclkselect = 0;
    t220.sclkhextdiv = 4;
    t220.recalculate();
    EXPECT_DOUBLE_EQ(t220.sclk, 3.0); // 12 MHz crystal / 4
    t220.sclkselect = 2;
    t220.hicktosclk = 1;
    t220.sclkhickdiv = 2;
    t220.recalculate();
    EXPECT_DOUBLE_EQ(t220.sclk, 24.0);
}

TEST(ClockCalculator, UsbFollowsThePll)
{
    // Exactly 48 MHz passes, anything else is wrong.
    ClockTreeState s(ClockModel::T510);
    s.setPeripheralGate(QStringLiteral("USB_OTGFS1"), true);
    s.hicktousb = 0;
    s.usbclk = 48.000001;
    bool usbWrong = false;
    for (const ClockLimitFault &f : s.limitFaults())
        usbWrong = usbWrong || f.kind == ClockLimitFault::UsbWrong;
    EXPECT_TRUE(usbWrong);
    s.usbclk = 48.0;
    EXPECT_TRUE(s.limitFaults().isEmpty());

    // 72 MHz gives the half step 1.5.
    s.sclk = 72.0;
    s.solveForSclk();
    EXPECT_DOUBLE_EQ(s.usbdiv, 1.5);
    EXPECT_DOUBLE_EQ(s.usbclk, 48.0);
    s.sclk = 288.0;
    s.solveForSclk();
    EXPECT_DOUBLE_EQ(s.usbdiv, 6.0);
    // 100 MHz is no multiple of 24: the divider stays and USB is off 48.
    s.sclk = 100.0;
    s.solveForSclk();
    EXPECT_DOUBLE_EQ(s.usbdiv, 6.0);
    EXPECT_NE(s.usbclk, 48.0);

    // T220 solves the USB divider fu from fp.
    ClockTreeState t220(ClockModel::T220);
    t220.setPeripheralGate(QStringLiteral("USB_OTGFS1"), true);
    t220.hicktousb = 0;
    t220.pllfu = 11;
    t220.solveForSclk();
    EXPECT_EQ(t220.pllfu, 18);
    EXPECT_DOUBLE_EQ(t220.usbclk, 48.0);

    // With the system clock on HEXT the PLL is solved for USB alone.
    ClockTreeState h(ClockModel::T510);
    h.setPeripheralGate(QStringLiteral("USB_OTGFS2"), true);
    h.hicktousb = 0;
    h.sclkselect = 0;
    h.usbdiv = 2.0;
    h.recalculate();
    EXPECT_TRUE(h.pllInUse());
    h.solveForSource();
    EXPECT_DOUBLE_EQ(h.pllclk, 96.0);
    EXPECT_DOUBLE_EQ(h.usbclk, 48.0);
    EXPECT_DOUBLE_EQ(h.sclk, 8.0);

    ClockTreeState m(ClockModel::T250); // multiplier form: 4 MHz * 48 = 192 = 48 * 4
    m.setPeripheralGate(QStringLiteral("USBFS"), true);
    m.hicktousb = 0;
    m.sclkselect = 2;
    m.solveForUsb();
    EXPECT_EQ(m.pllmult, 48);
    EXPECT_DOUBLE_EQ(m.usbclk, 48.0);
}

TEST(ClockCalculator, PllMsAndNsChecksOfferTheNearestLegalValue)
{
    ClockTreeState s = flexibleOnPll(ClockModel::T510, 1); // 8 MHz input
    int adjusted = 0;
    EXPECT_FALSE(s.checkPllMs(15, adjusted));
    EXPECT_EQ(adjusted, 4);
    EXPECT_TRUE(s.checkPllMs(2, adjusted));

    s.pllrcs = 0;
    s.hext = 25.0; // 25 / 1 is too fast
    EXPECT_FALSE(s.checkPllMs(1, adjusted));
    EXPECT_EQ(adjusted, 2);

    s.pllrcs = 1;
    EXPECT_FALSE(s.checkPllNs(200, 1, adjusted)); // 1600 MHz VCO
    EXPECT_EQ(adjusted, 150);
    EXPECT_FALSE(s.checkPllNs(31, 1, adjusted)); // 248 MHz VCO
    EXPECT_EQ(adjusted, 63);
    EXPECT_TRUE(s.checkPllNs(150, 1, adjusted));

    ClockTreeState t320 = flexibleOnPll(ClockModel::T320, 1); // 4 MHz, VCO up to 1000
    EXPECT_FALSE(t320.checkPllNs(300, 1, adjusted));
    EXPECT_EQ(adjusted, 250);

    int max = 0;
    int min = 0;
    s.pllMsRange(8.0, max, min);
    EXPECT_EQ(min, 1);
    EXPECT_EQ(max, 4);
    s.pllMsRange(0.5, max, min); // nothing legal: the whole range
    EXPECT_EQ(min, 1);
    EXPECT_EQ(max, 15);
    s.pllNsRange(8.0, 1, max, min);
    EXPECT_EQ(min, 63);
    EXPECT_EQ(max, 150);
}

TEST(ClockCalculator, SwitchingHextOffMovesItsConsumers)
{
    ClockTreeState s(ClockModel::T510);
    s.setHextEnabled(true);
    s.sclkselect = 0;
    s.pllrcs = 0;
    s.hext = 12.0;
    s.recalculate();
    EXPECT_DOUBLE_EQ(s.sclk, 12.0);
    s.setHextEnabled(false);
    EXPECT_EQ(s.sclkselect, 2);
    EXPECT_EQ(s.pllrcs, 1);
    s.recalculate();
    EXPECT_DOUBLE_EQ(s.sclk, 8.0); // HICK / 6 after Reset

    // A clock output on the PLL keeps the PLL running: the system clock goes there.
    ClockTreeState c(ClockModel::T510);
    c.setHextEnabled(true);
    c.sclkselect = 0;
    c.clkout1pin = 1;
    c.clkout1 = 3;
    c.clkout2pin = 1;
    c.clkout2 = 1; // HEXT
    c.setHextEnabled(false);
    EXPECT_EQ(c.sclkselect, 1);
    EXPECT_EQ(c.clkout2, 0);

    ClockTreeState l(ClockModel::T120);
    l.setLextEnabled(true);
    l.rtcsel = 1;
    l.clkout = 2;
    l.setLextEnabled(false);
    EXPECT_EQ(l.rtcsel, 0);
    EXPECT_EQ(l.clkout, 0);
}

TEST(ClockCalculator, PllInUseByFamily)
{
    ClockTreeState t510(ClockModel::T510);
    t510.sclkselect = 2;
    EXPECT_FALSE(t510.pllInUse());
    t510.clkout2 = 2;
    EXPECT_FALSE(t510.pllInUse()); // no pin, no use
    t510.clkout2pin = 1;
    EXPECT_TRUE(t510.pllInUse());

    ClockTreeState t130(ClockModel::T130);
    t130.sclkselect = 0;
    t130.setPeripheralGate(QStringLiteral("ADC1"), true);
    EXPECT_FALSE(t130.pllInUse());
    t130.adcclocksel = 1;
    EXPECT_TRUE(t130.pllInUse());

    ClockTreeState t210(ClockModel::T210);
    t210.sclkselect = 0;
    t210.clkoutpin = 2;
    t210.clkout = 8; // PLL / 2 is not offered there
    EXPECT_FALSE(t210.pllInUse());
    t210.clkout = 10;
    EXPECT_TRUE(t210.pllInUse());

    ClockTreeState t110(ClockModel::T110);
    t110.sclkselect = 2;
    t110.usbEnabled = true; // no USB on this family
    EXPECT_FALSE(t110.pllInUse());
}

TEST(ClockCalculator, FlexibleSearchMatchesBruteForce)
{
    std::mt19937 rng(20240611);
    for (const ClockFamily *f : allClockFamilies()) {
        if (f->pllForm == PllForm::Multiplier)
            continue;
        SCOPED_TRACE(f->name);
        const bool fpfu = f->pllForm == PllForm::FlexibleFpFu;
        const bool twice = f->model == ClockModel::T130 || f->model == ClockModel::V130;
        std::uniform_real_distribution<double> sclkDist(4.0, f->sclkMax);
        std::uniform_real_distribution<double> hextDist(4.0, 25.0);
        for (int i = 0; i < 60; ++i) {
            ClockTreeState s = flexibleOnPll(f->model, i % 3 == 0 ? 1 : 0, hextDist(rng));
            const double input = s.pllInput();
            const bool forUsb = i % 4 == 3;
            double target = sclkDist(rng);
            s.sclk = target;
            if (forUsb) {
                s.usbdiv = 1.0 + 0.5 * (i % 13);
                s.pllfu = 11 + i % 10;
                target = fpfu ? int(48.0 * s.pllfu) : int(48.0 * s.usbdiv);
            } else if (twice) {
                target *= 2.0;
            }
            s.searchPllFlexible(input, forUsb);
            // The system clock and the PLL stay within their limits when a setting allows.
            double limit = std::numeric_limits<double>::infinity();
            if (!forUsb) {
                limit = twice ? 2.0 * f->sclkMax : f->sclkMax;
                if (f->pllMax > 0.0)
                    limit = std::min(limit, f->pllMax);
            }
            const PllChoice want = bruteForce(fpfu ? kFp : kFr, input, target, f->vcoMax, limit);
            ASSERT_NE(want.div, 0);
            EXPECT_EQ(s.pllms, want.ms) << "target " << target << " input " << input;
            EXPECT_EQ(s.pllns, want.ns) << "target " << target << " input " << input;
            EXPECT_EQ(fpfu ? s.pllfp : s.pllfr, want.div);
            EXPECT_EQ(fpfu ? s.pllfr : s.pllfp, 0);
            EXPECT_DOUBLE_EQ(s.pllclk, want.value);
            if (!forUsb) {
                EXPECT_DOUBLE_EQ(s.sclk, twice ? want.value * 0.5 : want.value);
            }
        }
    }
}
