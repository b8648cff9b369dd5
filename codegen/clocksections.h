#pragma once

#include "clock/clocktreestate.h"

#include <QList>
#include <QString>

struct GeneratorInputs;

// Writes the clock state of a design into the templates: pf_system_clock_config with its
// comment, the clock output function, the SysTick lines and the crystal value of _conf.h.
class ClockSectionWriter
{
public:
    ClockSectionWriter(const ClockTreeState &state, int familyCode);

    // The steps of the family on the [#clock_config] block (clock tags take no blanks).
    bool clockConfigToCode(QString &text) const;
    // The clock output blocks of the config file: gated and, when kept, filled.
    bool clockOutToCode(QString &text) const;
    // The same blocks in main.c and the header, only kept or dropped.
    bool gateClockOut(QString &text) const;
    bool clockOutputEnabled() const;
    // The two SysTick lines of a kept [#SysTick]/[#config systick] for the divider.
    void applySystickDivider(QString &text) const;
    // The HEXT value of _conf.h ("((uint32_t)8000000)" becomes the design's crystal).
    void writeCrystalValue(QString &text) const;

    // The comment block of pf_system_clock_config for the state.
    QString clockComment() const;
    // A frequency in MHz as integer Hz: three decimals, kilohertz and up.
    static QString integerHz(double mhz);
    // The crystal as integer Hz, multiplied by one million in one step.
    static QString crystalHz(double mhz);

    // The steps of a family code, in order.
    enum class Step {
        Ldo,
        FlashPsr,
        FlashDivider,
        Lext,
        Lick,
        Hext,
        HextBypass,
        Hick,
        HextDiv,
        Pll,
        AutoStep,
        PllSysclk,
        HextSysclk,
        HickSysclk,
        Ahb,
        Apb1,
        Apb2,
        Comment
    };
    static QList<Step> stepsOf(int familyCode);

private:
    bool runStep(Step step, QString &body) const;
    bool pllStep(QString &body) const;
    bool isFamily(std::initializer_list<int> codes) const;
    QString sourceFormula() const;

    const ClockTreeState &m_state;
    int m_code;
};
