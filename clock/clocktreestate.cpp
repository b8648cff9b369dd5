#include "clock/clocktreestate.h"

#include "clock/clockmacros.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace {

bool isModel(int model, std::initializer_list<int> models)
{
    for (int m : models) {
        if (m == model)
            return true;
    }
    return false;
}

// T130 and V130: the PLL runs at twice the system clock.
bool pllAtDoubleSclk(int model)
{
    return isModel(model, {ClockModel::T130, ClockModel::V130});
}

// T210 and T220: fp divides the main output, fu the USB output.
bool hasFpFu(int model)
{
    return isModel(model, {ClockModel::T210, ClockModel::T220});
}

// T130, V130, T210, T220: dividers of HEXT and HICK in front of the system clock.
bool hasSclkDividers(int model)
{
    return pllAtDoubleSclk(model) || hasFpFu(model);
}

// T110 and T050 have no USB at all.
bool hasNoUsb(int model)
{
    return isModel(model, {ClockModel::T110, ClockModel::T050});
}

// PLL output dividers in search order.
constexpr int kFrDividers[] = {1, 2, 4, 8, 16, 32};
constexpr int kFpDividers[] = {1, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30};
// The USB dividers of T210 and T220 that the firmware names (CRM_PLL_FU_...).
constexpr int kNamedFu[] = {11, 13, 12, 14, 16, 18, 20};

// A frequency typed by the user or computed from one, as an integer: values far beyond any
// clock count as 0 rather than overflowing the conversion.
int wholeMHz(double value)
{
    return value > 0.0 && value < 1.0e6 ? static_cast<int>(value) : 0;
}

} // namespace

ClockTreeState::ClockTreeState(int model) : mcuModel(model)
{
    hick = model == ClockModel::T230 ? 8.0 : 48.0;
    if (family())
        resetToDefaults();
}

void ClockTreeState::resetToDefaults()
{
    const ClockFamily *f = family();
    if (!f) {
        recalculate();
        return;
    }
    const ClockDefaults &d = f->defaults;

    lextEnabled = lextBypass = hextEnabled = hextBypass = false;
    usbGate1 = usbGate2 = adcGate1 = adcGate2 = adcGate3 = false;
    usbEnabled = adcEnabled = false;
    usart1Enabled = usart2Enabled = usart3Enabled = i2c1Enabled = i2sf5Enabled = false;
    clkoutpin = clkout1pin = clkout2pin = 0;

    rtcsel = 0;
    rtcdiv = 2;
    pllmode = d.pllmode;
    hext = d.hext;
    pllrcs = 1;
    pllhextdiv = 0;
    hextdiv = d.hextdiv;
    pllmult = d.pllmult;
    pllms = d.pllms;
    pllns = d.pllns;
    pllfr = d.pllfr;
    pllfp = d.pllfp;
    pllfu = d.pllfu;
    sclkselect = 1;
    sclkhextdiv = sclkhickdiv = 1;
    ahbdiv = apb1div = apb2div = 1;
    systicdiv = 8;
    usbdiv = d.usbdiv;
    hicktousb = d.hicktousb;
    hicktosclk = 0;
    adcdiv = d.adcdiv;
    clkout1 = clkout2 = 0;
    clkout = d.clkout;
    clkout1div1 = clkout1div2 = clkout2div1 = clkout2div2 = 1;
    clkoutdiv = clkoutdiv1 = clkoutdiv2 = 1;
    usart1clocksel = usart2clocksel = usart3clocksel = 0;
    i2c1clocksel = adcclocksel = i2sf5clocksel = 0;
    usbclk = f->hasUsb && hicktousb == 1 ? 48.0 : 0.0;
    recalculate();
}

double ClockTreeState::pllInput() const
{
    const bool msns = familyMsnsOnly(mcuModel);
    if (pllrcs != 0) {
        if (mcuModel == ClockModel::T230)
            return hick * 0.5;
        if (msns)
            return hick / 6.0;
        return hick / 6.0 * 0.5;
    }
    if (!msns && pllhextdiv != 0 && hextdiv != 0)
        return hext / hextdiv;
    return hext;
}

void ClockTreeState::computePll()
{
    const double input = pllInput();
    if (pllmode == 0) {
        pllclk = pllmult * input;
        return;
    }
    const int divider = hasFpFu(mcuModel) ? pllfp : pllfr;
    // A failed search leaves zeros behind; that PLL gives no clock rather than a NaN.
    pllclk = divider * pllms != 0 ? pllns * input / (divider * pllms) : 0.0;
}

bool ClockTreeState::clockOutputNeedsPll() const
{
    const ClockFamily *f = family();
    if (f && f->clockOutput == ClockOutputKind::Dual)
        return (clkout1pin != 0 && clkout1 == 3) || (clkout2pin != 0 && clkout2 == 2);
    if (clkoutpin == 0)
        return false;
    if (isModel(mcuModel,
                {ClockModel::T130, ClockModel::V130, ClockModel::T210, ClockModel::T220}))
        return clkout == 10;
    return clkout == 8 || clkout == 9;
}

bool ClockTreeState::usbOnPll() const
{
    if (hasNoUsb(mcuModel))
        return false;
    if (mcuModel == ClockModel::T230)
        return usbEnabled;
    return usbEnabled && hicktousb == 0;
}

bool ClockTreeState::pllInUse() const
{
    if (sclkselect == 1)
        return true;
    switch (mcuModel) {
    case ClockModel::T230:
        return usbEnabled || clockOutputNeedsPll();
    case ClockModel::T110:
    case ClockModel::T050:
        return clockOutputNeedsPll();
    case ClockModel::T130:
    case ClockModel::V130:
        return clockOutputNeedsPll() || (usbEnabled && hicktousb == 0) ||
               (adcEnabled && adcclocksel == 1);
    case ClockModel::T210:
    case ClockModel::T220:
        return clockOutputNeedsPll() || (usbEnabled && hicktousb == 0) ||
               (i2sf5Enabled && i2sf5clocksel == 0);
    default:
        return (usbEnabled && hicktousb == 0) || clockOutputNeedsPll();
    }
}

void ClockTreeState::recalculate()
{
    switch (sclkselect) {
    case 0:
        sclk = hasSclkDividers(mcuModel) && sclkhextdiv != 0 ? hext / sclkhextdiv : hext;
        if (pllInUse())
            computePll();
        break;
    case 2:
        sclk = hick;
        if (mcuModel != ClockModel::T230) {
            if (hicktosclk == 0)
                sclk /= 6.0;
            if (hasSclkDividers(mcuModel) && sclkhickdiv != 0)
                sclk /= sclkhickdiv;
        }
        if (pllInUse())
            computePll();
        break;
    case 1:
        computePll();
        sclk = pllAtDoubleSclk(mcuModel) ? pllclk * 0.5 : pllclk;
        break;
    default:
        break;
    }
    busesFromSclk();

    if (hasNoUsb(mcuModel) || !usbOnPll())
        return;
    usbclk = hasFpFu(mcuModel) ? (pllfu != 0 ? pllfp * pllclk / pllfu : 0.0)
                               : (usbdiv != 0.0 ? pllclk / usbdiv : 0.0);
}

void ClockTreeState::busesFromSclk()
{
    ahbclk = ahbdiv != 0 ? sclk / ahbdiv : 0.0;
    apb1clk = apb1div != 0 ? ahbclk / apb1div : 0.0;
    apb2clk = apb2div != 0 ? ahbclk / apb2div : 0.0;

    if (familyHalfBus(mcuModel)) {
        const int half = static_cast<int>(familySclkMax(mcuModel)) / 2;
        // Only the single step from 1 to 2 is automatic.
        if (apb1clk > half && apb1div == 1) {
            apb1div = 2;
            apb1clk = ahbclk / apb1div;
        }
        if (apb2clk > half && apb2div == 1) {
            apb2div = 2;
            apb2clk = ahbclk / apb2div;
        }
    } else if (hasSclkDividers(mcuModel)) {
        if (ahbclk > 120.0 && apb1div == 1) {
            apb1div = 2;
            apb1clk = ahbclk / apb1div;
        }
    }

    apb1tmrmult = apb1div == 1 ? 1 : 2;
    apb2tmrmult = apb2div == 1 ? 1 : 2;
    apb1tmrclk = apb1tmrmult * apb1clk;
    apb2tmrclk = apb2tmrmult * apb2clk;
    adcclk = adcEnabled && adcdiv != 0 ? apb2clk / adcdiv : 0.0;
}

void ClockTreeState::solveForSclk()
{
    if (sclkselect == 1) {
        const double input = pllInput();
        if (pllmode == 1) {
            searchPllFlexible(input, false);
        } else {
            searchPllMult(input, false);
        }
    }
    busesFromSclk();
    usbDividerFromSclk();
}

void ClockTreeState::usbDividerFromSclk()
{
    if (hasNoUsb(mcuModel) || !usbEnabled || hicktousb != 0)
        return;
    const ClockFamily *f = family();
    const int usbMax = f ? f->usbMax : 4;
    if (pllAtDoubleSclk(mcuModel)) {
        const int p = wholeMHz(sclk) * 2;
        if (p % 48 == 0)
            usbdiv = p / 48.0;
        usbdiv = qBound(1.0, usbdiv, double(usbMax));
        usbclk = sclk * 2.0 / usbdiv;
    } else if (hasFpFu(mcuModel)) {
        // Only a divider that the firmware names can be written into the code.
        const auto named = [usbMax](int fu) {
            return fu <= usbMax &&
                   std::find(std::begin(kNamedFu), std::end(kNamedFu), fu) != std::end(kNamedFu);
        };
        const int p = wholeMHz(sclk) * pllfp;
        if (p % 48 == 0 && named(p / 48)) {
            pllfu = p / 48;
        } else if (!named(pllfu)) {
            // The named divider nearest to 48 MHz at the USB output.
            int best = 0;
            for (int fu : kNamedFu) {
                if (named(fu) && (best == 0 || std::fabs(double(p) / fu - 48.0) <
                                                   std::fabs(double(p) / best - 48.0)))
                    best = fu;
            }
            pllfu = best;
        }
        usbclk = pllfu != 0 ? pllfp * sclk / pllfu : 0.0;
    } else {
        const int p = wholeMHz(sclk);
        // A multiple of 24 goes with the half steps of usbdiv: 72 MHz gives 1.5.
        if (p % 24 == 0)
            usbdiv = p / 48.0;
        usbdiv = qBound(1.0, usbdiv, double(usbMax));
        usbclk = sclk / usbdiv;
    }
}

void ClockTreeState::solveForUsb()
{
    if (hasNoUsb(mcuModel) || !usbOnPll())
        return;
    const double input = pllInput();
    if (pllmode == 1)
        searchPllFlexible(input, true);
    else
        searchPllMult(input, true);
    if (hasFpFu(mcuModel))
        usbclk = pllfu != 0 ? pllfp * pllclk / pllfu : 0.0;
    else
        usbclk = usbdiv != 0.0 ? pllclk / usbdiv : 0.0;
}

void ClockTreeState::solveForSource()
{
    if (sclkselect == 1)
        solveForSclk();
    else
        solveForUsb();
}

double ClockTreeState::pllLimit(bool forUsb) const
{
    const ClockFamily *f = family();
    // The USB search aims at 48 MHz behind its own divider: no system clock limit applies.
    if (!f || forUsb)
        return std::numeric_limits<double>::infinity();
    double limit = pllAtDoubleSclk(mcuModel) ? 2.0 * f->sclkMax : f->sclkMax;
    if (f->pllMax > 0.0)
        limit = std::min(limit, f->pllMax);
    return limit + 1e-9;
}

bool ClockTreeState::pllWithinLimits(double pll, bool forUsb) const
{
    return pll <= pllLimit(forUsb);
}

void ClockTreeState::searchPllMult(double input, bool forUsb)
{
    double target = sclk;
    if (forUsb)
        target = 48.0 * (hasFpFu(mcuModel) ? pllfu : usbdiv);
    if (!(input > 0.0) || input > 1.0e6 || !(target >= 0.0) || target > 1.0e6)
        return;
    const int scaled = static_cast<int>(input * 1000.0);
    if (scaled <= 0)
        return;
    const double m = double(static_cast<int>(target * 1000.0)) / scaled;
    pllmult = qBound(2, static_cast<int>(m + 0.5), 64);
    // Rounding up must not carry the clock past a limit that a smaller step keeps.
    while (pllmult > 2 && !pllWithinLimits(pllmult * scaled / 1000.0, forUsb) &&
           pllWithinLimits((pllmult - 1) * scaled / 1000.0, forUsb))
        --pllmult;
    pllclk = pllmult * scaled / 1000.0;
    if (!forUsb)
        sclk = pllclk;
}

void ClockTreeState::searchPllFlexible(double input, bool forUsb)
{
    const bool fpfu = hasFpFu(mcuModel);
    double target;
    if (!forUsb)
        target = pllAtDoubleSclk(mcuModel) ? sclk * 2.0 : sclk;
    else if (fpfu)
        target = static_cast<int>(48.0 * pllfu);
    else
        target = static_cast<int>(48.0 * usbdiv);

    const int *dividers = fpfu ? kFpDividers : kFrDividers;
    const int count = fpfu ? int(std::size(kFpDividers)) : int(std::size(kFrDividers));
    const double limit = pllLimit(forUsb);

    int msMax = 15;
    int msMin = 1;
    pllMsRange(input, msMax, msMin);
    // The ns range depends on ms only: found once per ms, not again for every divider.
    int nsMin[16] = {};
    int nsMax[16] = {};
    for (int ms = msMin; ms <= msMax; ++ms) {
        nsMax[ms] = 500;
        nsMin[ms] = 31;
        pllNsRange(input, ms, nsMax[ms], nsMin[ms]);
    }

    // The best setting within the limits wins over any beyond them; among equals the first
    // in the order of a full walk stays: largest divider first, then the smallest ms and ns
    // (strict comparison). For one divider and ms the output grows with ns, so the distance
    // to the target falls, then rises: only the ns next to the target, on each side of the
    // limit, can be best, and those are the only ones tried.
    struct Best
    {
        double d = 10000.0;
        int ms = 0;
        int ns = 0;
        int div = 0;
    } within, beyond;
    for (int i = count - 1; i >= 0; --i) {
        const int div = dividers[i];
        for (int ms = msMin; ms <= msMax; ++ms) {
            const auto output = [&](int ns) { return ns * input / (div * ms); };
            const auto tryRange = [&](Best &b, int lo, int hi) {
                if (lo > hi)
                    return;
                const double t = target * div * ms / input;
                const int c = t <= lo ? lo : t >= hi ? hi : int(std::floor(t));
                for (int ns = std::max(lo, c - 1); ns <= std::min(hi, c + 2); ++ns) {
                    const double d = std::fabs(output(ns) - target);
                    if (d < b.d)
                        b = {d, ms, ns, div};
                }
            };
            // The last ns whose output keeps within the limit.
            int k = nsMax[ms];
            if (output(k) > limit) {
                k = std::max(nsMin[ms] - 1, int(std::floor(limit * div * ms / input)));
                while (k >= nsMin[ms] && output(k) > limit)
                    --k;
                while (k + 1 <= nsMax[ms] && output(k + 1) <= limit)
                    ++k;
            }
            tryRange(within, nsMin[ms], k);
            tryRange(beyond, k + 1, nsMax[ms]);
        }
    }
    const Best &best = within.div != 0 ? within : beyond;

    pllms = best.ms;
    pllns = best.ns;
    if (fpfu) {
        pllfp = best.div;
        pllfr = 0;
    } else {
        pllfr = best.div;
        pllfp = 0;
    }
    const double value = best.div != 0 ? best.ns * input / (best.div * best.ms) : 0.0;
    pllclk = value;
    if (!forUsb)
        sclk = pllAtDoubleSclk(mcuModel) ? value * 0.5 : value;
}

void ClockTreeState::pllMsRange(double input, int &max, int &min) const
{
    min = 1;
    max = 15;
    int lo = 0;
    int hi = 0;
    for (int ms = 1; ms <= 15; ++ms) {
        const double v = input / ms;
        if (v >= 2.0 && v <= 16.0) {
            if (lo == 0)
                lo = ms;
            hi = ms;
        }
    }
    if (lo != 0) {
        min = lo;
        max = hi;
    }
}

void ClockTreeState::pllNsRange(double input, int ms, int &max, int &min) const
{
    min = 31;
    max = 500;
    if (ms == 0)
        return;
    const double vcoMax = familyVcoMax(mcuModel);
    int lo = 0;
    int hi = 0;
    for (int ns = 31; ns <= 500; ++ns) {
        const double v = ns * input / ms;
        if (v >= 500.0 && v <= vcoMax) {
            if (lo == 0)
                lo = ns;
            hi = ns;
        }
    }
    if (lo != 0) {
        min = lo;
        max = hi;
    }
}

bool ClockTreeState::checkPllMs(int ms, int &adjusted) const
{
    const double input = pllInput();
    auto legal = [input](int m) {
        if (m == 0)
            return false;
        const double v = input / m;
        return v >= 2.0 && v <= 16.0;
    };
    if (legal(ms))
        return true;
    adjusted = 1;
    if (ms == 0 || input / ms > 16.0) {
        for (int m = ms; m <= 15; ++m) {
            if (legal(m)) {
                adjusted = m;
                break;
            }
        }
    } else {
        for (int m = ms; m >= 1; --m) {
            if (legal(m)) {
                adjusted = m;
                break;
            }
        }
    }
    return false;
}

bool ClockTreeState::checkPllNs(int ns, int ms, int &adjusted) const
{
    const double input = pllInput();
    const double vcoMax = familyVcoMax(mcuModel);
    auto vco = [input, ms](int n) { return ms != 0 ? n * input / ms : 0.0; };
    auto legal = [&](int n) { return vco(n) >= 500.0 && vco(n) <= vcoMax; };
    if (legal(ns))
        return true;
    adjusted = 31;
    if (vco(ns) > vcoMax) {
        for (int n = ns; n >= 31; --n) {
            if (legal(n)) {
                adjusted = n;
                break;
            }
        }
    } else {
        for (int n = ns; n <= 500; ++n) {
            if (legal(n)) {
                adjusted = n;
                break;
            }
        }
    }
    return false;
}

bool ClockTreeState::pllNeedsHext() const
{
    return pllrcs == 0 && pllInUse();
}

bool ClockTreeState::hextNeeded() const
{
    if (sclkselect == 0 || pllNeedsHext())
        return true;
    const ClockFamily *f = family();
    if (f && f->clockOutput == ClockOutputKind::Dual)
        return (clkout1pin != 0 && clkout1 == 2) || (clkout2pin != 0 && clkout2 == 1);
    return clkoutpin != 0 && clkout == 4;
}

double ClockTreeState::clockOfPeripheral(const QString &instance) const
{
    switch (peripheralClockBus(mcuModel, instance)) {
    case PeripheralClockBus::Apb1:
        return apb1clk;
    case PeripheralClockBus::Apb2:
        return apb2clk;
    case PeripheralClockBus::Ahb:
        return ahbclk;
    case PeripheralClockBus::Sclk:
        return sclk;
    case PeripheralClockBus::Apb1Tmr:
        return apb1tmrclk;
    case PeripheralClockBus::Apb2Tmr:
        return apb2tmrclk;
    case PeripheralClockBus::Selectable:
        break;
    case PeripheralClockBus::None:
        return 0.0;
    }

    if (instance == QLatin1String("I2SF5")) {
        switch (i2sf5clocksel) {
        case 0:
            return pllclk;
        case 1:
            return sclk;
        case 2:
            return hick;
        case 3:
            return i2sf5ext;
        default:
            return 0.0;
        }
    }
    if (instance == QLatin1String("ADC1"))
        return adcclocksel == 1 ? pllclk : ahbclk;

    int select = i2c1clocksel;
    double bus = apb1clk;
    if (instance == QLatin1String("USART1")) {
        select = usart1clocksel;
        bus = apb2clk;
    } else if (instance == QLatin1String("USART2")) {
        select = usart2clocksel;
    } else if (instance == QLatin1String("USART3")) {
        select = usart3clocksel;
    }
    switch (select) {
    case 0:
        return bus;
    case 1:
        return sclk;
    case 2:
        return hick;
    case 3:
        return instance == QLatin1String("I2C1") ? 0.0 : lext / 1000.0;
    default:
        return 0.0;
    }
}

unsigned int ClockTreeState::pllcfgRegister() const
{
    const int frIndex = qMax(0, ClockDividers::indexOf(ClockDividers::PllFr, pllfr));
    const unsigned int hextSource = pllrcs == 0 ? 1u : 0u;
    return unsigned(pllms) | unsigned(pllns) << 6 | unsigned(frIndex) << 16 | hextSource << 22;
}

QList<ClockLimitFault> ClockTreeState::limitFaults() const
{
    QList<ClockLimitFault> faults;
    const ClockFamily *f = family();
    if (!f)
        return faults;
    if (sclk > f->sclkMax)
        faults.append({ClockLimitFault::SclkTooHigh, f->sclkMax});
    if (f->apb1Max > 0.0 && apb1clk > f->apb1Max)
        faults.append({ClockLimitFault::Apb1TooHigh, f->apb1Max});
    if (f->apb2Max > 0.0 && apb2clk > f->apb2Max)
        faults.append({ClockLimitFault::Apb2TooHigh, f->apb2Max});
    if (pllInUse()) {
        if (f->pllMax > 0.0 && pllclk > f->pllMax)
            faults.append({ClockLimitFault::PllTooHigh, f->pllMax});
        if (f->pllMin > 0.0 && pllclk < f->pllMin)
            faults.append({ClockLimitFault::PllTooLow, f->pllMin});
    }
    if (f->hasI2sf5 && i2sf5Enabled && clockOfPeripheral(QStringLiteral("I2SF5")) > f->sclkMax)
        faults.append({ClockLimitFault::I2sf5TooHigh, f->sclkMax});
    if (f->adcMax > 0.0 && adcEnabled && adcclk > f->adcMax)
        faults.append({ClockLimitFault::AdcTooHigh, f->adcMax});
    if (f->hasUsb && usbEnabled && usbclk != 48.0)
        faults.append({ClockLimitFault::UsbWrong, 48.0});
    return faults;
}

void ClockTreeState::setHextEnabled(bool on)
{
    hextEnabled = on;
    if (on)
        return;
    const ClockFamily *f = family();
    // A clock output on HEXT falls back to the first source of its group.
    if (f && f->clockOutput == ClockOutputKind::Dual) {
        if (clkout1 == 2)
            clkout1 = 0;
        if (clkout2 == 1)
            clkout2 = 0;
    } else if (f && clkout == 4) {
        clkout = f->defaults.clkout;
    }
    if (pllrcs == 0)
        pllrcs = 1;
    if (sclkselect == 0)
        sclkselect = clockOutputNeedsPll() ? 1 : 2;
}

void ClockTreeState::setLextEnabled(bool on)
{
    lextEnabled = on;
    if (on)
        return;
    if (rtcsel == 1)
        rtcsel = 0;
    const ClockFamily *f = family();
    if (f && f->clockOutput == ClockOutputKind::Dual) {
        if (clkout1 == 1)
            clkout1 = 0;
        if (clkout2 == 7)
            clkout2 = 0;
    } else if (f && clkout == 2) {
        clkout = f->defaults.clkout;
    }
}

ClockGateChange ClockTreeState::setPeripheralGate(ClockGate gate, bool on)
{
    ClockGateChange change;
    auto store = [&change, on](bool &flag) {
        change.changed = flag != on;
        flag = on;
    };
    switch (gate) {
    case ClockGate::None:
        return change;
    case ClockGate::Adc1:
        store(adcGate1);
        break;
    case ClockGate::Adc2:
        store(adcGate2);
        break;
    case ClockGate::Adc3:
        store(adcGate3);
        break;
    case ClockGate::Usb1:
        store(usbGate1);
        break;
    case ClockGate::Usb2:
        store(usbGate2);
        break;
    case ClockGate::Usart1:
        store(usart1Enabled);
        break;
    case ClockGate::Usart2:
        store(usart2Enabled);
        break;
    case ClockGate::Usart3:
        store(usart3Enabled);
        break;
    case ClockGate::I2c1:
        store(i2c1Enabled);
        break;
    case ClockGate::I2sf5:
        store(i2sf5Enabled);
        break;
    }
    const bool usb = usbGate1 || usbGate2;
    const bool adc = adcGate1 || adcGate2 || adcGate3;
    change.usbEnabledChanged = usb != usbEnabled;
    change.adcEnabledChanged = adc != adcEnabled;
    usbEnabled = usb;
    adcEnabled = adc;
    return change;
}

ClockGateChange ClockTreeState::setPeripheralGate(const QString &instance, bool on)
{
    return setPeripheralGate(clockGateOf(mcuModel, instance), on);
}

// ---------------------------------------------------------------------------------------
// Firmware macro accessors

QString ClockTreeState::pllSourceMacro() const
{
    using namespace ClockMacros;
    if (!pllInUse())
        return PllSource[0];
    if (pllrcs != 0)
        return PllSource[2];
    if (pllhextdiv != 0 && !familyMsnsOnly(mcuModel))
        return PllSource[1];
    return PllSource[0];
}

QString ClockTreeState::pllMultMacro() const
{
    if (!pllInUse() || pllmode != 0)
        return QString();
    return ClockMacros::PllMultPrefix + QString::number(pllmult);
}

QString ClockTreeState::hextDivMacro() const
{
    if (!pllInUse() || pllrcs != 0 || pllhextdiv == 0 || familyMsnsOnly(mcuModel))
        return QString();
    return ClockMacros::HextDivPrefix + QString::number(hextdiv);
}

QString ClockTreeState::pllOutputRangeMacro() const
{
    if (!pllInUse())
        return QString();
    return ClockMacros::PllOutputRange[pllclk > 72.0 ? 1 : 0];
}

QString ClockTreeState::pllFrMacro() const
{
    return ClockMacros::byNumber(ClockMacros::PllFr, pllfr);
}

QString ClockTreeState::pllFpMacro() const
{
    return ClockMacros::byNumber(ClockMacros::PllFp, pllfp);
}

QString ClockTreeState::pllFuMacro() const
{
    return ClockMacros::byNumber(ClockMacros::PllFu, pllfu);
}

QString ClockTreeState::pllMsText() const
{
    return pllInUse() && pllmode == 1 ? QString::number(pllms) : QStringLiteral("1");
}

QString ClockTreeState::pllNsText() const
{
    return pllInUse() && pllmode == 1 ? QString::number(pllns) : QStringLiteral("31");
}

QString ClockTreeState::sclkMacro() const
{
    return ClockMacros::at(ClockMacros::Sclk, sclkselect);
}

QString ClockTreeState::ahbDivMacro() const
{
    return ClockMacros::byNumber(ClockMacros::AhbDiv, ahbdiv);
}

QString ClockTreeState::apb1DivMacro() const
{
    return ClockMacros::byNumber(ClockMacros::Apb1Div, apb1div);
}

QString ClockTreeState::apb2DivMacro() const
{
    return ClockMacros::byNumber(ClockMacros::Apb2Div, apb2div);
}

QString ClockTreeState::flashClockDivMacro() const
{
    return ClockMacros::FlashClockDiv[sclk > 208.0 ? 1 : 0];
}

QString ClockTreeState::flashWaitCycleMacro() const
{
    static const double bounds[] = {32.0, 64.0, 96.0, 128.0, 160.0, 192.0, 216.0};
    int cycles = 7;
    for (int i = 0; i < 7; ++i) {
        if (sclk <= bounds[i]) {
            cycles = i;
            break;
        }
    }
    return ClockMacros::FlashWaitCycle[cycles];
}

QString ClockTreeState::usbDivMacro() const
{
    const ClockFamily *f = family();
    if (!f || !f->hasUsb || !usbEnabled || hicktousb != 0)
        return ClockMacros::UsbDiv[0];
    return ClockMacros::at(ClockMacros::UsbDiv, qRound((usbdiv - 1.0) / 0.5));
}

QString ClockTreeState::usbClockSourceMacro() const
{
    const ClockFamily *f = family();
    if (!f || !f->hasUsb)
        return QString();
    const int source = hicktousb != 0 ? 1 : 0;
    return hasFpFu(mcuModel) ? ClockMacros::UsbClockSourcePllu[source]
                             : ClockMacros::UsbClockSource[source];
}

QString ClockTreeState::clkout1Macro() const
{
    return ClockMacros::at(ClockMacros::Clkout1, clkout1);
}

QString ClockTreeState::clkout2Macro() const
{
    return ClockMacros::at(ClockMacros::Clkout2, clkout2);
}

QString ClockTreeState::clkoutMacro() const
{
    // T210 and T220 name their USB source after the full speed controller.
    if (hasFpFu(mcuModel) && clkout == 6)
        return ClockMacros::Clkout[11];
    return ClockMacros::at(ClockMacros::Clkout, clkout);
}

QString ClockTreeState::clkout1Div1Macro() const
{
    return ClockMacros::byNumber(ClockMacros::ClkoutDiv1, clkout1div1);
}

QString ClockTreeState::clkout1Div2Macro() const
{
    return ClockMacros::byNumber(ClockMacros::ClkoutDiv2, clkout1div2);
}

QString ClockTreeState::clkout2Div1Macro() const
{
    return ClockMacros::byNumber(ClockMacros::ClkoutDiv1, clkout2div1);
}

QString ClockTreeState::clkout2Div2Macro() const
{
    return ClockMacros::byNumber(ClockMacros::ClkoutDiv2, clkout2div2);
}

QString ClockTreeState::clkoutDivMacro() const
{
    return ClockMacros::byNumber(ClockMacros::ClkoutDiv, clkoutdiv);
}

QString ClockTreeState::clkoutDiv1Macro() const
{
    return ClockMacros::byNumber(ClockMacros::ClkoutDiv1, clkoutdiv1);
}

QString ClockTreeState::clkoutDiv2Macro() const
{
    return ClockMacros::byNumber(ClockMacros::ClkoutDiv2, clkoutdiv2);
}

namespace {

ClockOutGpio gpioFor(int port, int pin, int mux)
{
    using namespace ClockMacros;
    return {GpioClock[port], GpioPort[port], GpioPin[pin], GpioPinSource[pin], GpioMux[mux]};
}

constexpr int kPortA = 0;
constexpr int kPortB = 1;
constexpr int kPortC = 2;
constexpr int kPortE = 4;

} // namespace

ClockOutGpio ClockTreeState::clkout1Gpio() const
{
    switch (clkout1pin) {
    case 1:
        return gpioFor(kPortA, 8, 0);
    case 2:
        return gpioFor(kPortE, 4, 0);
    default:
        return gpioFor(kPortA, 0, 0);
    }
}

ClockOutGpio ClockTreeState::clkoutGpio() const
{
    int mux = 0;
    if (clkoutpin == 2 && isModel(mcuModel, {ClockModel::T110, ClockModel::T120}))
        mux = 5;
    else if (clkoutpin == 3 && isModel(mcuModel, {ClockModel::T120, ClockModel::T050}))
        mux = 3;
    switch (clkoutpin) {
    case 1:
        return gpioFor(kPortA, 8, mux);
    case 2:
        return gpioFor(kPortA, 9, mux);
    case 3:
        return gpioFor(kPortB, 13, mux);
    case 4:
        return gpioFor(kPortC, 9, mux);
    default:
        return gpioFor(kPortA, 0, mux);
    }
}

QString ClockTreeState::adcDivMacro() const
{
    const ClockFamily *f = family();
    if (!f || !f->hasAdcDivider)
        return QString();
    return ClockMacros::byNumber(ClockMacros::AdcDiv, adcdiv);
}

QString ClockTreeState::adcClockSourceMacro() const
{
    if (!pllAtDoubleSclk(mcuModel))
        return QString();
    return ClockMacros::at(ClockMacros::AdcClockSource, adcclocksel);
}

QString ClockTreeState::rtcClockMacro() const
{
    const ClockFamily *f = family();
    if (!f)
        return QString();
    if (f->rtcMacroIsRtc) {
        // The RTC table lists LEXT before LICK; `rtcsel` counts LICK first.
        static const int byRtcsel[] = {1, 0, 2};
        return rtcsel >= 0 && rtcsel <= 2 ? ClockMacros::Rtc[byRtcsel[rtcsel]] : QString();
    }
    return ClockMacros::at(ClockMacros::Ertc, rtcsel);
}

QString ClockTreeState::ertcHextDivMacro() const
{
    const ClockFamily *f = family();
    if (!f || !f->hasRtcDivider)
        return QString();
    return ClockMacros::at(ClockMacros::ErtcHextDiv, rtcdiv - 2);
}

QString ClockTreeState::usartClockSourceMacro(int usart) const
{
    const ClockFamily *f = family();
    if (!f || !f->hasPeripheralClockSelects)
        return QString();
    switch (usart) {
    case 1:
        return ClockMacros::at(ClockMacros::UsartClockSource, usart1clocksel);
    case 2:
        return ClockMacros::at(ClockMacros::UsartClockSource, usart2clocksel);
    case 3:
        return ClockMacros::at(ClockMacros::UsartClockSource, usart3clocksel);
    default:
        return QString();
    }
}

QString ClockTreeState::i2c1ClockSourceMacro() const
{
    const ClockFamily *f = family();
    if (!f || !f->hasPeripheralClockSelects)
        return QString();
    return ClockMacros::at(ClockMacros::I2cClockSource, i2c1clocksel);
}

QString ClockTreeState::i2sf5ClockSourceMacro() const
{
    const ClockFamily *f = family();
    if (!f || !f->hasI2sf5)
        return QString();
    return ClockMacros::at(ClockMacros::I2sf5ClockSource, i2sf5clocksel);
}

QString ClockTreeState::ldoMacro() const
{
    using ClockMacros::Ldo; // 1V3, 1V2, 1V1, 1V0
    const ClockFamily *f = family();
    const LdoScheme scheme = f ? f->ldo : LdoScheme::Standard;
    switch (scheme) {
    case LdoScheme::T130:
        return sclk > 120.0 ? Ldo[0] : sclk > 64.0 ? Ldo[1] : Ldo[3];
    case LdoScheme::T210:
        return sclk > 168.0 ? Ldo[0] : sclk > 108.0 ? Ldo[1] : Ldo[3];
    case LdoScheme::Standard:
        break;
    }
    if (sclk > 240.0)
        return Ldo[0];
    if (sclk > 192.0)
        return Ldo[1];
    return sclk > 144.0 ? Ldo[2] : Ldo[3];
}

QString ClockTreeState::hextSclkDivMacro() const
{
    return ClockMacros::byNumber(ClockMacros::HextSclkDiv, sclkhextdiv);
}

QString ClockTreeState::hickSclkDivMacro() const
{
    return ClockMacros::byNumber(ClockMacros::HickSclkDiv, sclkhickdiv);
}

bool ClockTreeState::hickAs48() const
{
    return hicktosclk == 1;
}
