// Median timings of solveForSclk and solveForUsb for every clock family.

#include "clock/clocktreestate.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

constexpr int kRuns = 101;
constexpr double kBudgetUs = 10000.0; // 10 ms

// Median wall time of `run` in microseconds; `prepare` resets the record before each run.
double medianUs(const std::function<void()> &prepare, const std::function<void()> &run)
{
    std::vector<double> times;
    times.reserve(kRuns);
    for (int i = 0; i < kRuns; ++i) {
        prepare();
        const auto start = std::chrono::steady_clock::now();
        run();
        const auto end = std::chrono::steady_clock::now();
        times.push_back(std::chrono::duration<double, std::micro>(end - start).count());
    }
    std::nth_element(times.begin(), times.begin() + kRuns / 2, times.end());
    return times[kRuns / 2];
}

} // namespace

int main()
{
    std::printf("%-6s %-11s %14s %14s\n", "family", "pll form", "solveForSclk", "solveForUsb");
    double worst = 0.0;
    double sink = 0.0;
    for (const ClockFamily *f : allClockFamilies()) {
        ClockTreeState s(f->model);
        // A target no setting hits exactly, so that the search cannot stop early.
        const auto prepareSclk = [&] {
            s.resetToDefaults();
            s.pllrcs = 0;
            s.hext = 12.0;
            s.sclkselect = 1;
            s.sclk = f->sclkMax * 0.73 + 0.123;
        };
        const double sclkUs = medianUs(prepareSclk, [&] {
            s.solveForSclk();
            sink += s.sclk;
        });

        double usbUs = 0.0;
        if (f->hasUsb) {
            const auto prepareUsb = [&] {
                s.resetToDefaults();
                s.pllrcs = 0;
                s.hext = 12.0;
                s.setPeripheralGate(ClockGate::Usb1, true);
                s.hicktousb = 0;
                s.sclkselect = 0;
                s.usbdiv = 3.5;
            };
            usbUs = medianUs(prepareUsb, [&] {
                s.solveForUsb();
                sink += s.usbclk;
            });
        }
        worst = std::max({worst, sclkUs, usbUs});
        const char *form = f->pllForm == PllForm::Multiplier     ? "multiplier"
                           : f->pllForm == PllForm::Selectable   ? "normal"
                           : f->pllForm == PllForm::FlexibleFpFu ? "ms/ns/fp"
                                                                 : "ms/ns/fr";
        if (f->hasUsb)
            std::printf("%-6s %-11s %11.2f us %11.2f us\n", f->name, form, sclkUs, usbUs);
        else
            std::printf("%-6s %-11s %11.2f us %14s\n", f->name, form, sclkUs, "no USB");

        // The families with a mode switch also search exhaustively in flexible mode.
        if (f->pllForm == PllForm::Selectable) {
            const double flexUs = medianUs(
                [&] {
                    prepareSclk();
                    s.pllmode = 1;
                },
                [&] {
                    s.solveForSclk();
                    sink += s.sclk;
                });
            worst = std::max(worst, flexUs);
            std::printf("%-6s %-11s %11.2f us\n", f->name, "flexible", flexUs);
        }

        // A fast crystal gives the widest ms range: the search's costliest input.
        if (f->pllForm == PllForm::FlexibleFpFu) {
            const double fastUs = medianUs(
                [&] {
                    prepareSclk();
                    s.hext = 24.0;
                },
                [&] {
                    s.solveForSclk();
                    sink += s.sclk;
                });
            worst = std::max(worst, fastUs);
            std::printf("%-6s %-11s %11.2f us\n", f->name, "HEXT 24 MHz", fastUs);
        }
    }
    std::printf("slowest median %.2f us (budget %.0f us) %s\n", worst, kBudgetUs,
                worst < kBudgetUs ? "ok" : "TOO SLOW");
    return sink > 0.0 && worst < kBudgetUs ? 0 : 1;
}
