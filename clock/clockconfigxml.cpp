#include "clock/clockconfigxml.h"

#include "clock/clockmacros.h"

#include <QDomElement>
#include <QVector>
#include <QXmlStreamWriter>

#include <functional>

namespace {

// One attribute of the clock block: how it is written and how it is read back.
struct ClockAttribute
{
    QString name;
    std::function<QString(const ClockTreeState &)> write;
    std::function<void(ClockTreeState &, const QString &, ClockConfigTexts &)> read;
};

// An integer field whose legal values are listed; anything else becomes `fallback`.
ClockAttribute listed(const char *name, int ClockTreeState::*field, QVector<int> legal,
                      int fallback)
{
    return {QLatin1String(name),
            [field](const ClockTreeState &s) { return QString::number(s.*field); },
            [field, legal, fallback](ClockTreeState &s, const QString &text, ClockConfigTexts &) {
                bool ok = false;
                const int value = text.trimmed().toInt(&ok);
                s.*field = ok && legal.contains(value) ? value : fallback;
            }};
}

// An integer field legal from `min` to `max`; anything else becomes `min`.
ClockAttribute ranged(const char *name, int ClockTreeState::*field, int min, int max)
{
    QVector<int> legal;
    for (int v = min; v <= max; ++v)
        legal << v;
    return listed(name, field, legal, min);
}

template <std::size_t N> QVector<int> values(const int (&list)[N])
{
    return QVector<int>(std::begin(list), std::end(list));
}

// A flag stored as 0 or 1; anything else reads as 0.
ClockAttribute flag(const char *name, bool ClockTreeState::*field)
{
    return {QLatin1String(name),
            [field](const ClockTreeState &s) { return QString::number(s.*field ? 1 : 0); },
            [field](ClockTreeState &s, const QString &text, ClockConfigTexts &) {
                s.*field = text.trimmed() == QLatin1String("1");
            }};
}

QList<ClockAttribute> attributesOf(const ClockFamily &f)
{
    QList<ClockAttribute> list;
    using S = ClockTreeState;

    list << ranged("rtcsel", &S::rtcsel, 0, 2);
    if (f.hasRtcDivider)
        list << listed("rtcdiv", &S::rtcdiv,
                       values({2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15, 16,
                               17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31}),
                       2);
    list << ClockAttribute{QStringLiteral("hext"),
                           [](const S &s) { return QString::number(s.hext, 'f', 6); },
                           [](S &s, const QString &text, ClockConfigTexts &texts) {
                               // The text goes into the field as it stands; the tree validates it
                               // later.
                               texts.hext = text;
                               bool ok = false;
                               const double value = text.trimmed().toDouble(&ok);
                               if (ok)
                                   s.hext = value;
                           }};
    list << ClockAttribute{QStringLiteral("pllrcs"),
                           [](const S &s) { return QString::number(s.pllrcs == 0 ? 0 : 1); },
                           [](S &s, const QString &text, ClockConfigTexts &) {
                               s.pllrcs = text.trimmed() == QLatin1String("0") ? 0 : 1;
                           }};
    if (f.hextPllDivider != HextPllDivider::None)
        list << ranged("pllhextdiv", &S::pllhextdiv, 0, 1);
    if (f.hextPllDivider == HextPllDivider::Selectable)
        list << ranged("hextdiv", &S::hextdiv, 2, 5);
    if (f.pllForm == PllForm::Selectable)
        list << ranged("pllmode", &S::pllmode, 0, 1);
    if (f.pllForm == PllForm::Multiplier || f.pllForm == PllForm::Selectable)
        list << ranged("pllmult", &S::pllmult, 2, 64);
    if (f.pllForm != PllForm::Multiplier) {
        list << ranged("pllms", &S::pllms, 1, 15);
        list << ranged("pllns", &S::pllns, 31, 500);
    }
    if (f.pllForm == PllForm::Selectable || f.pllForm == PllForm::FlexibleFr)
        list << listed("pllfr", &S::pllfr, values(ClockDividers::PllFr), 1);
    if (f.pllForm == PllForm::FlexibleFpFu) {
        list << listed("pllfp", &S::pllfp, values(ClockDividers::PllFp), 1);
        list << listed("pllfu", &S::pllfu, values(ClockDividers::PllFu), 11);
    }
    list << ranged("sclkselect", &S::sclkselect, 0, 2);
    if (f.hasSclkDividers) {
        const bool shortNames = f.pllForm == PllForm::FlexibleFpFu;
        list << listed(shortNames ? "hextdiv" : "sclkhextdiv", &S::sclkhextdiv,
                       values(ClockDividers::HextSclk), 1);
        list << listed(shortNames ? "hickdiv" : "sclkhickdiv", &S::sclkhickdiv,
                       values(ClockDividers::HickSclk), 1);
    }
    list << listed("ahbdiv", &S::ahbdiv, values(ClockDividers::Ahb), 1);
    list << listed("apb1div", &S::apb1div, values(ClockDividers::Apb), 1);
    list << listed("apb2div", &S::apb2div, values(ClockDividers::Apb), 1);
    list << listed("systicdiv", &S::systicdiv, {1, 8}, 1);
    if (f.hasUsb && f.pllForm != PllForm::FlexibleFpFu) {
        list << ClockAttribute{QStringLiteral("usbdiv"),
                               [](const S &s) { return QString::number(s.usbdiv, 'f', 1); },
                               [](S &s, const QString &text, ClockConfigTexts &) {
                                   bool ok = false;
                                   const double value = text.trimmed().toDouble(&ok);
                                   const double steps = (value - 1.0) / 0.5;
                                   const bool legal = ok && steps >= 0.0 && steps <= 12.0 &&
                                                      steps == static_cast<int>(steps);
                                   s.usbdiv = legal ? value : 1.0;
                               }};
    }
    if (f.hasHickToUsb)
        list << ranged("hicktousb", &S::hicktousb, 0, 1);
    list << ranged("hicktosclk", &S::hicktosclk, 0, 1);
    if (f.hasAdcDivider)
        list << listed(f.adcDivAttribute, &S::adcdiv, values(ClockDividers::Adc), 2);

    switch (f.clockOutput) {
    case ClockOutputKind::Dual:
        list << ranged("clkout1", &S::clkout1, 0, 3);
        list << ranged("clkout2", &S::clkout2, 0, 7);
        list << listed("clkout1div1", &S::clkout1div1, values(ClockDividers::ClkoutDiv1), 1);
        list << listed("clkout1div2", &S::clkout1div2, values(ClockDividers::ClkoutDiv2), 1);
        list << listed("clkout2div1", &S::clkout2div1, values(ClockDividers::ClkoutDiv1), 1);
        list << listed("clkout2div2", &S::clkout2div2, values(ClockDividers::ClkoutDiv2), 1);
        break;
    case ClockOutputKind::SingleOneDivider:
    case ClockOutputKind::SingleTwoDividers: {
        QVector<int> sources;
        for (int v = 0; v <= f.clkoutMax; ++v) {
            if (v != 6 || f.hasUsb)
                sources << v;
        }
        list << listed("clkout", &S::clkout, sources, 0);
        if (f.clockOutput == ClockOutputKind::SingleOneDivider) {
            list << listed("clkoutdiv", &S::clkoutdiv, values(ClockDividers::ClkoutDiv2), 1);
        } else {
            list << listed("clkoutdiv1", &S::clkoutdiv1, values(ClockDividers::ClkoutDiv1), 1);
            list << listed("clkoutdiv2", &S::clkoutdiv2, values(ClockDividers::ClkoutDiv2), 1);
        }
        break;
    }
    case ClockOutputKind::None:
        break;
    }

    if (f.hasPeripheralClockSelects) {
        list << ranged("usart1clocksel", &S::usart1clocksel, 0, 3);
        list << ranged("usart2clocksel", &S::usart2clocksel, 0, 3);
        list << ranged("usart3clocksel", &S::usart3clocksel, 0, 3);
        list << ranged("i2c1clocksel", &S::i2c1clocksel, 0, 2);
        list << ranged("adcclocksel", &S::adcclocksel, 0, 1);
    }
    if (f.hasI2sf5) {
        list << ranged("i2sf5clocksel", &S::i2sf5clocksel, 0, 3);
        list << ClockAttribute{QStringLiteral("i2sf5ext"),
                               [](const S &s) { return QString::number(s.i2sf5ext, 'f', 6); },
                               [](S &s, const QString &text, ClockConfigTexts &texts) {
                                   texts.i2sf5ext = text;
                                   bool ok = false;
                                   const double value = text.trimmed().toDouble(&ok);
                                   if (ok)
                                       s.i2sf5ext = value;
                               }};
    }
    if (f.savesBypass) {
        list << flag("hextbypass", &S::hextBypass);
        list << flag("lextbypass", &S::lextBypass);
    }
    return list;
}

// The value stored under `name`: an attribute, or else a text child of that name.
// A null text when neither exists.
QString storedValue(const QDomElement &element, const QString &name)
{
    if (element.hasAttribute(name))
        return element.attribute(name);
    const QDomElement child = element.firstChildElement(name);
    return child.isNull() ? QString() : child.text();
}

} // namespace

QStringList clockConfigAttributes(int model)
{
    QStringList names;
    const ClockFamily *f = clockFamily(model);
    if (!f || !f->hasTree())
        return names;
    for (const ClockAttribute &a : attributesOf(*f))
        names << a.name;
    return names;
}

bool saveClockConfig(const ClockTreeState &state, QXmlStreamWriter &writer)
{
    const ClockFamily *f = state.family();
    if (!f || !f->hasTree())
        return false;
    writer.writeStartElement(kClockConfigurationElement);
    writer.writeAttribute(QStringLiteral("series"), QLatin1String(f->saveSeries));
    for (const ClockAttribute &a : attributesOf(*f))
        writer.writeAttribute(a.name, a.write(state));
    writer.writeEndElement();
    return !writer.hasError();
}

bool loadClockConfig(ClockTreeState &state, const QDomElement &element, ClockConfigTexts *texts)
{
    const ClockFamily *f = state.family();
    if (!f || !f->hasTree())
        return false;
    ClockConfigTexts scratch;
    ClockConfigTexts &out = texts ? *texts : scratch;
    for (const ClockAttribute &a : attributesOf(*f)) {
        QString text = storedValue(element, a.name);
        // The ADC divider goes by two names; either is accepted.
        if (text.isNull() && f->hasAdcDivider && a.name == QLatin1String(f->adcDivAttribute)) {
            const bool isShort = a.name == QLatin1String("adcdiv");
            text = storedValue(element, QLatin1String(isShort ? "toadcdiv" : "adcdiv"));
        }
        // A value that is missing altogether keeps what the record holds.
        if (!text.isNull())
            a.read(state, text, out);
    }
    state.recalculate();
    return true;
}
