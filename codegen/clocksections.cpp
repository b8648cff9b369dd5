#include "codegen/clocksections.h"

#include "codegen/templateengine.h"

#include <QStringList>

using namespace TemplateEngine;

namespace {

// The clock tags stand in the templates with nothing behind the bracket.
constexpr Tail kClockTail = Tail::Strict;

const QString kIndent = QStringLiteral("  *         ");

QString listLine(const QString &label, const QString &value)
{
    return kIndent + QLatin1String("- ") + label.leftJustified(20, QLatin1Char(' ')) +
           QLatin1String("= ") + value + QLatin1Char('\n');
}

QString onOff(bool on)
{
    return on ? QStringLiteral("on") : QStringLiteral("off");
}

} // namespace

ClockSectionWriter::ClockSectionWriter(const ClockTreeState &state, int familyCode)
    : m_state(state), m_code(familyCode)
{
}

bool ClockSectionWriter::isFamily(std::initializer_list<int> codes) const
{
    for (int c : codes) {
        if (c == m_code)
            return true;
    }
    return false;
}

QList<ClockSectionWriter::Step> ClockSectionWriter::stepsOf(int familyCode)
{
    using S = Step;
    const QList<S> tail = {S::Pll,       S::AutoStep,   S::PllSysclk, S::HextSysclk,
                           S::HickSysclk, S::Ahb,       S::Apb1,      S::Apb2,
                           S::Comment};
    switch (familyCode) {
    case 13:
    case 14:
        return QList<S>{S::Ldo, S::Lext, S::Lick, S::Hext, S::HextBypass, S::Hick} +
               QList<S>{S::Pll,        S::AutoStep, S::PllSysclk, S::HextSysclk, S::HickSysclk,
                        S::Ahb,        S::Apb1,     S::Apb2,      S::FlashDivider,
                        S::Comment};
    case 7:
    case 8:
    case 24:
        return QList<S>{S::Lext, S::Lick, S::Hext, S::HextBypass, S::Hick, S::HextDiv} + tail;
    case 4:
        return QList<S>{S::Lext, S::Lick, S::Hext, S::HextBypass, S::Hick} + tail;
    case 9:
    case 15:
        return QList<S>{S::FlashPsr, S::Lext, S::HextBypass, S::Hext, S::Hick, S::Lick} + tail;
    case 5:
    case 17:
        return QList<S>{S::FlashPsr, S::Lext, S::Lick, S::HextBypass, S::Hext, S::Hick} + tail;
    case 18:
    case 29:
    case 19:
    case 20:
        return QList<S>{S::FlashPsr, S::Ldo,  S::Lext, S::HextBypass,
                        S::Hext,     S::Hick, S::Lick} +
               tail;
    default:
        return {};
    }
}

bool ClockSectionWriter::clockConfigToCode(QString &text) const
{
    const QList<Step> steps = stepsOf(m_code);
    if (steps.isEmpty())
        return false;
    return editBlock(
        text, QStringLiteral("clock_config"), true,
        [&](QString &body) {
            for (Step step : steps) {
                if (!runStep(step, body))
                    return false;
            }
            return true;
        },
        kClockTail);
}

bool ClockSectionWriter::runStep(Step step, QString &body) const
{
    const ClockTreeState &s = m_state;
    switch (step) {
    case Step::Ldo:
        return replacePattern(body, QStringLiteral("pwc_ldo_output_voltage_set\\((\\s*\\w+)\\);?"),
                              QStringLiteral("pwc_ldo_output_voltage_set(") + s.ldoMacro() +
                                  QStringLiteral(");"));
    case Step::FlashPsr:
        return keepBlock(body, QStringLiteral("flash psr"), kClockTail) &&
               replacePattern(body, QStringLiteral("flash_psr_set\\((\\s*\\w+)\\);?"),
                              QStringLiteral("flash_psr_set(") + s.flashWaitCycleMacro() +
                                  QStringLiteral(");"));
    case Step::FlashDivider:
        return replacePattern(body, QStringLiteral("flash_clock_divider_set\\((\\s*\\w+)\\);?"),
                              QStringLiteral("flash_clock_divider_set(") +
                                  s.flashClockDivMacro() + QStringLiteral(");"));
    case Step::Lext:
        return editBlock(
            body, QStringLiteral("enable lext"), s.lextEnabled,
            [&](QString &inner) {
                return gateBlock(inner, QStringLiteral("lext bypass"), s.lextBypass, kClockTail);
            },
            kClockTail);
    case Step::Lick:
        return keepBlock(body, QStringLiteral("enable lick"), kClockTail);
    case Step::Hext:
        return gateBlock(body, QStringLiteral("enable hext"), s.hextEnabled, kClockTail);
    case Step::HextBypass:
        return gateBlock(body, QStringLiteral("hext bypass"), s.hextEnabled && s.hextBypass,
                         kClockTail);
    case Step::Hick:
        return keepBlock(body, QStringLiteral("enable hick"), kClockTail);
    case Step::HextDiv: {
        const bool on = s.pllInUse() && s.pllrcs == 0 && s.pllhextdiv != 0;
        if (!gateBlock(body, QStringLiteral("enable hextdiv"), on, kClockTail))
            return false;
        if (on)
            replacePattern(body, QStringLiteral("crm_hext_clock_div_set\\((\\w+)\\);?"),
                           QStringLiteral("crm_hext_clock_div_set(") + s.hextDivMacro() +
                               QStringLiteral(");"));
        return true;
    }
    case Step::Pll:
        return pllStep(body);
    case Step::AutoStep: {
        const bool on = s.sclk > 108.0;
        return gateBlock(body, QStringLiteral("enable auto step mode"), on, kClockTail) &&
               gateBlock(body, QStringLiteral("disable auto step mode"), on, kClockTail);
    }
    case Step::PllSysclk:
        return gateBlock(body, QStringLiteral("pll sysclock"), s.sclkselect == 1, kClockTail);
    case Step::HextSysclk:
        if (!gateBlock(body, QStringLiteral("hext sysclock"), s.sclkselect == 0, kClockTail))
            return false;
        if (s.sclkselect == 0 && isFamily({18, 29, 19, 20}))
            replacePattern(body, QStringLiteral("crm_hext_sclk_div_set\\((\\w+)\\);?"),
                           QStringLiteral("crm_hext_sclk_div_set(") + s.hextSclkDivMacro() +
                               QStringLiteral(");"));
        return true;
    case Step::HickSysclk:
        if (!editBlock(
                body, QStringLiteral("hick sysclock"), s.sclkselect == 2,
                [&](QString &inner) {
                    return gateBlock(inner, QStringLiteral("hick48"), s.hickAs48(), kClockTail);
                },
                kClockTail))
            return false;
        if (s.sclkselect == 2 && isFamily({18, 29, 19, 20}))
            replacePattern(body, QStringLiteral("crm_hick_sclk_div_set\\((\\w+)\\);?"),
                           QStringLiteral("crm_hick_sclk_div_set(") + s.hickSclkDivMacro() +
                               QStringLiteral(");"));
        return true;
    case Step::Ahb:
        return replaceLastMatch(body, QStringLiteral("crm_ahb_div_set\\((\\s*\\w+)\\);?"),
                                QStringLiteral("crm_ahb_div_set(") + s.ahbDivMacro() +
                                    QStringLiteral(");"));
    case Step::Apb1:
        return replacePattern(body, QStringLiteral("crm_apb1_div_set\\((\\s*\\w+)\\);?"),
                              QStringLiteral("crm_apb1_div_set(") + s.apb1DivMacro() +
                                  QStringLiteral(");"));
    case Step::Apb2:
        return replacePattern(body, QStringLiteral("crm_apb2_div_set\\((\\s*\\w+)\\);?"),
                              QStringLiteral("crm_apb2_div_set(") + s.apb2DivMacro() +
                                  QStringLiteral(");"));
    case Step::Comment:
        return replacePattern(
            body, QStringLiteral("\\* @brief  system clock config program(.+)\\* @retval none"),
            clockComment());
    }
    return false;
}

bool ClockSectionWriter::pllStep(QString &body) const
{
    const ClockTreeState &s = m_state;
    return editBlock(
        body, QStringLiteral("enable pll"), s.pllInUse(),
        [&](QString &pll) {
            if (isFamily({9, 16, 5, 17, 15, 18, 29})) {
                const bool normal = s.pllmode == 0;
                if (!gateBlock(pll, QStringLiteral("pll normal"), normal, kClockTail) ||
                    !gateBlock(pll, QStringLiteral("pll flexible"), !normal, kClockTail))
                    return false;
                if (normal)
                    return replacePattern(
                        pll, QStringLiteral("crm_pll_config\\((\\w+, \\s*\\w+)\\);?"),
                        QStringLiteral("crm_pll_config(") + s.pllSourceMacro() +
                            QStringLiteral(", ") + s.pllMultMacro() + QStringLiteral(");"));
                return replacePattern(
                    pll,
                    QStringLiteral("crm_pll_config2\\((\\w+, \\s*\\d+, \\s*\\d+,\\s*\\w+)\\);?"),
                    QStringLiteral("crm_pll_config2(") + s.pllSourceMacro() +
                        QStringLiteral(", ") + s.pllNsText() + QStringLiteral(", ") +
                        s.pllMsText() + QStringLiteral(", ") + s.pllFrMacro() +
                        QStringLiteral(");"));
            }
            if (isFamily({7, 8, 24, 4}))
                return replacePattern(
                    pll, QStringLiteral("crm_pll_config\\((\\w+, \\s*\\w+, \\s*\\w+)\\);?"),
                    QStringLiteral("crm_pll_config(") + s.pllSourceMacro() +
                        QStringLiteral(", ") + s.pllMultMacro() + QStringLiteral(", ") +
                        s.pllOutputRangeMacro() + QStringLiteral(");"));
            const bool fp = isFamily({19, 20});
            if (!replacePattern(
                    pll,
                    QStringLiteral("crm_pll_config\\((\\w+, \\s*\\d+, \\s*\\d+,\\s*\\w+)\\);?"),
                    QStringLiteral("crm_pll_config(") + s.pllSourceMacro() + QStringLiteral(", ") +
                        s.pllNsText() + QStringLiteral(", ") + s.pllMsText() +
                        QStringLiteral(", ") + (fp ? s.pllFpMacro() : s.pllFrMacro()) +
                        QStringLiteral(");")))
                return false;
            if (fp)
                replacePattern(pll, QStringLiteral("crm_pllu_div_set\\((\\w+)\\);?"),
                               QStringLiteral("crm_pllu_div_set(") + s.pllFuMacro() +
                                   QStringLiteral(");"));
            return true;
        },
        kClockTail);
}

QString ClockSectionWriter::integerHz(double mhz)
{
    const double readBack = QString::number(mhz, 'f', 3).toDouble();
    const qint64 khz = static_cast<qint64>(readBack * 1000.0);
    return QString::number(khz * 1000);
}

QString ClockSectionWriter::crystalHz(double mhz)
{
    const double readBack = QString::number(mhz, 'f', 3).toDouble();
    return QString::number(static_cast<qint64>(readBack * 1000000.0));
}

QString ClockSectionWriter::sourceFormula() const
{
    const ClockTreeState &s = m_state;
    const QString head = kIndent + QLatin1String("system clock (sclk)   = ");
    const bool hickDividerFamily = isFamily({18, 29, 20, 19});
    if (s.sclkselect == 0) {
        if (hickDividerFamily && s.sclkhextdiv > 1)
            return head + QLatin1String("(hext / ") + QString::number(s.sclkhextdiv) +
                   QLatin1String(")\n");
        return head + QLatin1String("(hext)\n");
    }
    if (s.sclkselect == 2) {
        const QString hick = s.hickAs48() ? QStringLiteral("hick 48") : QStringLiteral("hick 8");
        if (hickDividerFamily)
            return head + QLatin1Char('(') + hick + QLatin1String(" / ") +
                   QString::number(s.sclkhickdiv) + QLatin1String(")\n");
        return head + QLatin1Char('(') + hick + QLatin1String(")\n");
    }
    const bool hickSource = s.pllrcs != 0;
    const bool hextDivided = !hickSource && !familyMsnsOnly(s.mcuModel) && s.pllhextdiv != 0;
    const QString hickDivider = QString::number(m_code == 2 ? 2 : (isFamily({13, 14}) ? 6 : 12));
    QString input;
    if (hickSource)
        input = QLatin1String("hick / ") + hickDivider;
    else if (hextDivided)
        input = QLatin1String("hext / ") + QString::number(s.hextdiv);
    else
        input = QStringLiteral("hext");
    QString line;
    if (s.pllmode == 0) {
        line = head + input + QLatin1String(" * pll_mult\n");
    } else {
        const QString post = isFamily({19, 20}) ? QStringLiteral("pll_fp")
                                                 : QStringLiteral("pll_fr");
        line = head + QLatin1Char('(') + input + QLatin1String(" * pll_ns)/(pll_ms * ") + post +
               QLatin1Char(')') + (isFamily({18, 29}) ? QStringLiteral(" / 2") : QString()) +
               QLatin1Char('\n');
    }
    return line + kIndent + QLatin1String("system clock source   = ") +
           (hickSource ? QLatin1String("HICK_VALUE") : QLatin1String("HEXT_VALUE")) +
           QLatin1Char('\n');
}

QString ClockSectionWriter::clockComment() const
{
    const ClockTreeState &s = m_state;
    QString c = QStringLiteral("* @brief  system clock config program\n");
    c += QLatin1String("  * @note   the system clock is configured as follow:\n");
    c += sourceFormula();
    if (s.sclkselect == 0)
        c += kIndent + QLatin1String("system clock source   = hext\n");
    else if (s.sclkselect == 2)
        c += kIndent + QLatin1String("system clock source   = hick\n");
    c += listLine(QStringLiteral("lick"), onOff(true));
    c += listLine(QStringLiteral("lext"), onOff(s.lextEnabled));
    c += listLine(QStringLiteral("hick"), onOff(true));
    c += listLine(QStringLiteral("hext"), onOff(s.hextEnabled));
    if (s.hextEnabled)
        c += listLine(QStringLiteral("hext"), QStringLiteral("HEXT_VALUE"));
    c += listLine(QStringLiteral("sclk"), integerHz(s.sclk));
    c += listLine(QStringLiteral("ahbdiv"), QString::number(s.ahbdiv));
    c += listLine(QStringLiteral("ahbclk"), integerHz(s.ahbclk));
    c += listLine(QStringLiteral("apb1div"), QString::number(s.apb1div));
    c += listLine(QStringLiteral("apb1clk"), integerHz(s.apb1clk));
    c += listLine(QStringLiteral("apb2div"), QString::number(s.apb2div));
    c += listLine(QStringLiteral("apb2clk"), integerHz(s.apb2clk));
    if (s.pllInUse()) {
        if (s.pllmode == 0) {
            c += listLine(QStringLiteral("pll_mult"), QString::number(s.pllmult));
            if (isFamily({7, 8, 24, 4}))
                c += listLine(QStringLiteral("pll_range"),
                              s.pllclk > 72.0
                                  ? QStringLiteral("GT72MHZ (greater than 72 mhz)")
                                  : QStringLiteral(
                                        "LE72MHZ (less than 72 mhz or equal to 72 mhz)"));
        } else {
            c += listLine(QStringLiteral("pll_ns"), QString::number(s.pllns));
            c += listLine(QStringLiteral("pll_ms"), QString::number(s.pllms));
            if (isFamily({19, 20}))
                c += listLine(QStringLiteral("pll_fp"), QString::number(s.pllfp));
            else
                c += listLine(QStringLiteral("pll_fr"), QString::number(s.pllfr));
        }
    }
    if (isFamily({9, 16, 5, 17, 15})) {
        int cycles = 4;
        const double bounds[] = {32.0, 64.0, 96.0, 128.0};
        for (int i = 0; i < 4; ++i) {
            if (s.sclk <= bounds[i]) {
                cycles = i;
                break;
            }
        }
        c += listLine(QStringLiteral("flash_wtcyc"), QString::number(cycles) +
                                                          QStringLiteral(" cycle"));
    }
    c += QLatin1String("  * @param  none\n");
    c += QLatin1String("  * @retval none");
    return c;
}

bool ClockSectionWriter::clockOutputEnabled() const
{
    if (isFamily({13, 14}))
        return m_state.clkout1pin != 0 || m_state.clkout2pin != 0;
    return m_state.clkoutpin != 0;
}

bool ClockSectionWriter::gateClockOut(QString &text) const
{
    if (isFamily({13, 14})) {
        return gateBlock(text, QStringLiteral("clkout1 function"), m_state.clkout1pin != 0) &&
               gateBlock(text, QStringLiteral("clkout2 function"), m_state.clkout2pin != 0);
    }
    return gateBlock(text, QStringLiteral("clkout function"), clockOutputEnabled());
}

bool ClockSectionWriter::clockOutToCode(QString &text) const
{
    const ClockTreeState &s = m_state;
    if (isFamily({13, 14}))
        return gateClockOut(text);
    return editBlock(text, QStringLiteral("clkout function"), clockOutputEnabled(),
                     [&](QString &body) {
                         const ClockOutGpio gpio = s.clkoutGpio();
                         replacePattern(body,
                                        QStringLiteral("crm_periph_clock_enable\\((\\w+,\\s*\\w+)"
                                                       "\\);?"),
                                        QStringLiteral("crm_periph_clock_enable(") + gpio.clock +
                                            QStringLiteral(", TRUE);"));
                         rewriteAssignment(body, QStringLiteral("gpio_init_struct.gpio_pins"),
                                           gpio.pin);
                         if (!replacePattern(
                                 body, QStringLiteral("gpio_init\\((\\w+,\\s*\\&\\w+)\\);?"),
                                 QStringLiteral("gpio_init(") + gpio.port +
                                     QStringLiteral(", &gpio_init_struct);")))
                             return false;
                         if (isFamily({9, 16, 15, 18, 29, 20, 19}) &&
                             !replacePattern(body,
                                             QStringLiteral("gpio_pin_mux_config\\((\\w+,\\s*\\w+,"
                                                            "\\s*\\w+)\\);?"),
                                             QStringLiteral("gpio_pin_mux_config(") + gpio.port +
                                                 QStringLiteral(", ") + gpio.source +
                                                 QStringLiteral(", ") + gpio.mux +
                                                 QStringLiteral(");")))
                             return false;
                         if (!replacePattern(body, QStringLiteral("crm_clock_out_set\\((\\w+)\\);?"),
                                             QStringLiteral("crm_clock_out_set(") +
                                                 s.clkoutMacro() + QStringLiteral(");")))
                             return false;
                         if (isFamily({18, 29, 20, 19}))
                             return replacePattern(
                                 body, QStringLiteral("crm_clkout_div_set\\((\\w+,\\s*\\w+)\\);?"),
                                 QStringLiteral("crm_clkout_div_set(") + s.clkoutDiv1Macro() +
                                     QStringLiteral(", ") + s.clkoutDiv2Macro() +
                                     QStringLiteral(");"));
                         if (m_code == 2)
                             return true;
                         return replacePattern(body,
                                               QStringLiteral("crm_clkout_div_set\\((\\w+)\\);?"),
                                               QStringLiteral("crm_clkout_div_set(") +
                                                   s.clkoutDivMacro() + QStringLiteral(");"));
                     });
}

void ClockSectionWriter::applySystickDivider(QString &text) const
{
    const int divider = m_state.systicdiv;
    if (divider == 1)
        text.replace(
            QStringLiteral("systick_clock_source_config(SYSTICK_CLOCK_SOURCE_AHBCLK_DIV8);"),
            QStringLiteral("systick_clock_source_config(SYSTICK_CLOCK_SOURCE_AHBCLK_NODIV);"));
    else if (divider == 8)
        text.replace(QStringLiteral("systick_interrupt_config(system_core_clock / 1000);"),
                     QStringLiteral("systick_interrupt_config(system_core_clock / 8 / 1000);"));
}

void ClockSectionWriter::writeCrystalValue(QString &text) const
{
    replacePattern(text,
                   QStringLiteral("(#define\\s*HEXT_VALUE\\s*)(\\(\\(uint32_t\\)8000000\\))"),
                   QStringLiteral("\\1((uint32_t)") + crystalHz(m_state.hext) +
                       QStringLiteral(")"));
}
