#include "clock/clocktreelayout.h"

#include <QCoreApplication>

using Kind = ClockControlKind;
using BK = ClockDrawing::BlockKind;
using WK = ClockDrawing::WireKind;

const ClockControlSpec *ClockTreeLayout::find(const QString &name) const
{
    for (const ClockControlSpec &c : controls) {
        if (c.name == name)
            return &c;
    }
    return nullptr;
}

namespace ClockItems {

QStringList dividers(std::initializer_list<int> values)
{
    QStringList out;
    for (int v : values)
        out << QStringLiteral("  /%1").arg(v);
    return out;
}

QStringList ahb()
{
    return dividers({1, 2, 4, 8, 16, 64, 128, 256, 512});
}

QStringList apb()
{
    return dividers({1, 2, 4, 8, 16});
}

QStringList usb(int n)
{
    QStringList out;
    for (int i = 0; i < n; ++i)
        out << QStringLiteral("  /") + QString::number(1.0 + i * 0.5);
    return out;
}

QStringList rtcdiv()
{
    QStringList out;
    for (int i = 2; i <= 31; ++i)
        out << QStringLiteral("  /%1").arg(i);
    return out;
}

QStringList pllfp()
{
    QStringList out;
    for (int i = 0; i < 16; ++i)
        out << QStringLiteral("  /%1").arg(fpValue(i));
    return out;
}

QStringList pllfu()
{
    return dividers({11, 13, 12, 14, 16, 18, 20});
}

QStringList pllmult()
{
    QStringList out;
    for (int i = 2; i <= 64; ++i)
        out << QStringLiteral("  * %1").arg(i);
    return out;
}

QStringList adcdiv()
{
    QStringList out;
    for (int v : {2, 3, 4, 5, 6, 8, 12, 16})
        out << QStringLiteral(" /%1").arg(v);
    return out;
}

namespace {
int pick(std::initializer_list<int> values, int index)
{
    if (index < 0 || index >= int(values.size()))
        return *values.begin();
    return *(values.begin() + index);
}
} // namespace

int ahbValue(int index)
{
    return pick({1, 2, 4, 8, 16, 64, 128, 256, 512}, index);
}
int apbValue(int index)
{
    return pick({1, 2, 4, 8, 16}, index);
}
int fpValue(int index)
{
    return index <= 0 ? 1 : 2 * index;
}
int fuValue(int index)
{
    return pick({11, 13, 12, 14, 16, 18, 20}, index);
}
int adcValue(int index)
{
    return pick({2, 3, 4, 5, 6, 8, 12, 16}, index);
}
int frValue(int index)
{
    return pick({1, 2, 4, 8, 16, 32}, index);
}
int hextSclkValue(int index)
{
    return pick({1, 2, 4, 8, 16, 32}, index);
}
int hickSclkValue(int index)
{
    return pick({1, 2, 4, 8, 16}, index);
}

} // namespace ClockItems

namespace {

// Collects the controls and the drawing of one tree, from the same coordinates.
struct Builder
{
    ClockTreeLayout out;
    ClockDrawing &d = out.drawing;

    ClockControlSpec &add(const QString &name, Kind kind, int x, int y, int w = 0)
    {
        ClockControlSpec c;
        c.name = name;
        c.kind = kind;
        c.pos = QPoint(x, y);
        c.width = w;
        out.controls.append(c);
        return out.controls.last();
    }
    ClockControlSpec &caption(const QString &name, int x, int y, const char *text,
                              int size = 9, bool bold = false, const QString &suffix = QString())
    {
        ClockControlSpec &c = add(QStringLiteral("cap_") + name, Kind::Caption, x, y);
        c.text = text;
        c.pointSize = size;
        c.bold = bold;
        c.suffix = suffix;
        return c;
    }
    void edit(const QString &name, int x, int y, int w, const char *tip = nullptr)
    {
        add(name, Kind::Edit, x, y, w).tip = tip;
    }
    void value(const QString &name, int x, int y, int w = 80, const char *tip = nullptr)
    {
        add(name, Kind::ReadOnly, x, y, w).tip = tip;
    }
    void combo(const QString &name, int x, int y, int w, const QStringList &items,
               bool translate = false)
    {
        ClockControlSpec &c = add(name, Kind::Combo, x, y, w);
        c.items = items;
        c.translateItems = translate;
    }
    void radio(const QString &group, int v, int x, int y, const char *text,
               const char *tip = nullptr, int w = 0)
    {
        ClockControlSpec &c =
            add(group + QLatin1Char('_') + QString::number(v), Kind::Radio, x, y, w);
        c.group = group;
        c.value = v;
        c.text = text;
        c.tip = tip;
    }
    void label(const QString &name, int x, int y, int w = 0, bool bold = false,
               const char *text = nullptr)
    {
        ClockControlSpec &c = add(name, Kind::Label, x, y, w);
        c.bold = bold;
        c.text = text;
    }
    void listButton(const QString &name, int x, int y) { add(name, Kind::ListButton, x, y); }
};

// Geometry shared by the blocks.
constexpr int kSrcX = 15, kSrcW = 190, kFieldX = 115;
constexpr int kLickY = 20, kLextY = 98, kHextY = 232, kHickY = 392;
constexpr int kHextLine = 272, kHickLine = 432, kLickLine = 60, kLextLine = 138;
constexpr int kHextRoute = 215, kHickRoute = 490;
constexpr int kPllX = 405, kPllY = 232, kPllW = 300, kPllH = 236, kPllLine = 308;
constexpr int kSelX = 735, kMuxX = 800;
constexpr int kSclkLine = 351;
constexpr int kBusX = 1075;
constexpr int kRowCaptionX = 1152, kRowValueX = 1280;
constexpr int kBottomY = 652;

// The IN and OUT pins of a crystal oscillator block whose top edge is at y.
void crystalPins(Builder &b, const QString &name, int y)
{
    ClockDrawing &d = b.d;
    b.label(name + QStringLiteral("_in"), kSrcX + 10, y + 24, 0, true,
            QT_TRANSLATE_NOOP("ClockTree", "IN"));
    b.label(name + QStringLiteral("_out"), kSrcX + 10, y + 52, 0, true,
            QT_TRANSLATE_NOOP("ClockTree", "OUT"));
    d.block(QRectF(kSrcX + 52, y + 30, 24, 36), BK::Divider);
    d.wire({QPointF(kSrcX + 40, y + 34), QPointF(kSrcX + 52, y + 34)}, WK::Thin, false);
    d.wire({QPointF(kSrcX + 40, y + 62), QPointF(kSrcX + 52, y + 62)}, WK::Thin, false);
}

void sources(Builder &b, const ClockFamily &f)
{
    ClockDrawing &d = b.d;
    // LICK
    d.block(QRectF(kSrcX, kLickY, kSrcW, 70), BK::Source, QT_TRANSLATE_NOOP("ClockTree", "LICK"));
    b.caption(QStringLiteral("lick"), kFieldX, kLickY + 8,
              QT_TRANSLATE_NOOP("ClockTree", "lick(kHz)"));
    b.value(QStringLiteral("lick"), kFieldX, kLickY + 28, 80,
            QT_TRANSLATE_NOOP("ClockTree", "Low speed internal clock"));
    // LEXT with its crystal pins
    d.block(QRectF(kSrcX, kLextY, kSrcW, 80), BK::Source, QT_TRANSLATE_NOOP("ClockTree", "LEXT"));
    b.caption(QStringLiteral("lext"), kFieldX, kLextY + 8,
              QT_TRANSLATE_NOOP("ClockTree", "lext(kHz)"));
    b.value(QStringLiteral("lext"), kFieldX, kLextY + 28, 80,
            QT_TRANSLATE_NOOP("ClockTree", "Low speed external crystal"));
    crystalPins(b, QStringLiteral("lext"), kLextY);
    // HEXT
    d.block(QRectF(kSrcX, kHextY, kSrcW, 80), BK::Source, QT_TRANSLATE_NOOP("ClockTree", "HEXT"));
    b.caption(QStringLiteral("hext"), kFieldX, kHextY + 8,
              QT_TRANSLATE_NOOP("ClockTree", "hext(4-25MHz)"));
    b.edit(QStringLiteral("hext"), kFieldX, kHextY + 28, 80,
           QT_TRANSLATE_NOOP("ClockTree", "High speed external crystal"));
    crystalPins(b, QStringLiteral("hext"), kHextY);
    // HICK
    d.block(QRectF(kSrcX, kHickY, kSrcW, 70), BK::Source, QT_TRANSLATE_NOOP("ClockTree", "HICK"));
    b.caption(QStringLiteral("hick"), kFieldX, kHickY + 8,
              QT_TRANSLATE_NOOP("ClockTree", "hick(MHz)"));
    b.value(QStringLiteral("hick"), kFieldX, kHickY + 28, 80,
            QT_TRANSLATE_NOOP("ClockTree", "High speed internal clock"));

    // Watchdog and RTC.
    b.caption(QStringLiteral("towdt"), 600, 28, QT_TRANSLATE_NOOP("ClockTree", "to wdt(kHz)"));
    b.value(QStringLiteral("towdt"), 600, 48);
    d.wire({QPointF(kSrcX + kSrcW, kLickLine), QPointF(598, kLickLine)});
    d.dot(QPointF(225, kLickLine));

    const bool ertc = !f.rtcMacroIsRtc;
    d.block(QRectF(235, 76, 330, 122), BK::Group,
            ertc ? QT_TRANSLATE_NOOP("ClockTree", "ERTC") : QT_TRANSLATE_NOOP("ClockTree", "RTC"));
    b.caption(QStringLiteral("rtcsel"), 345, 80,
              ertc ? QT_TRANSLATE_NOOP("ClockTree", "ertcsel")
                   : QT_TRANSLATE_NOOP("ClockTree", "rtcsel"));
    b.radio(QStringLiteral("rtcsel"), 0, 345, 100, QT_TRANSLATE_NOOP("ClockTree", "lick"), nullptr,
            72);
    b.radio(QStringLiteral("rtcsel"), 1, 345, 130, QT_TRANSLATE_NOOP("ClockTree", "lext"), nullptr,
            72);
    b.radio(QStringLiteral("rtcsel"), 2, 345, 165, QT_TRANSLATE_NOOP("ClockTree", "hext"), nullptr,
            72);
    d.wire({QPointF(225, kLickLine), QPointF(225, 111), QPointF(343, 111)});
    d.wire({QPointF(kSrcX + kSrcW, kLextLine), QPointF(290, kLextLine), QPointF(290, 141),
            QPointF(343, 141)});
    d.wire({QPointF(215, kHextLine), QPointF(215, 177), QPointF(248, 177)});
    if (f.hasRtcDivider) {
        b.caption(QStringLiteral("rtcdiv"), 250, 148,
                  ertc ? QT_TRANSLATE_NOOP("ClockTree", "ertcdiv")
                       : QT_TRANSLATE_NOOP("ClockTree", "rtcdiv"));
        b.combo(QStringLiteral("rtcdiv"), 250, 165, 80, ClockItems::rtcdiv());
        d.wire({QPointF(330, 177), QPointF(343, 177)});
    } else {
        d.block(QRectF(250, 165, 40, 24), BK::Divider, "/2");
        d.wire({QPointF(290, 177), QPointF(343, 177)});
    }
    d.mux(QRectF(455, 90, 22, 104));
    d.wire({QPointF(417, 111), QPointF(455, 111)}, WK::Signal, false);
    d.wire({QPointF(417, 141), QPointF(455, 141)}, WK::Signal, false);
    d.wire({QPointF(417, 177), QPointF(455, 177)}, WK::Signal, false);
    b.caption(QStringLiteral("tortc"), 600, 104,
              ertc ? QT_TRANSLATE_NOOP("ClockTree", "to ertc(kHz)")
                   : QT_TRANSLATE_NOOP("ClockTree", "to rtc(kHz)"));
    b.value(QStringLiteral("tortc"), 600, 124);
    d.wire({QPointF(477, 142), QPointF(598, 136)});
}

void pll(Builder &b, const ClockFamily &f)
{
    ClockDrawing &d = b.d;
    // PLL source selection.
    d.dot(QPointF(215, kHextLine));
    d.wire({QPointF(kSrcX + kSrcW, kHextLine), QPointF(230, kHextLine)}, WK::Signal, false);
    b.caption(QStringLiteral("pllrcs"), 232, 240, QT_TRANSLATE_NOOP("ClockTree", "pllrcs"));
    b.radio(QStringLiteral("pllrcs"), 0, 232, 261, QT_TRANSLATE_NOOP("ClockTree", "HEXT"), nullptr,
            66);
    b.radio(QStringLiteral("pllrcs"), 1, 232, 421, QT_TRANSLATE_NOOP("ClockTree", "HICK"), nullptr,
            66);
    d.dot(QPointF(222, kHickLine));
    d.wire({QPointF(kSrcX + kSrcW, kHickLine), QPointF(230, kHickLine)}, WK::Signal, false);

    const int muxX = 372;
    if (f.hextPllDivider == HextPllDivider::None) {
        d.wire({QPointF(298, kHextLine), QPointF(muxX, kHextLine)});
    } else {
        b.radio(QStringLiteral("pllhextdiv"), 1, 300, 232,
                QT_TRANSLATE_NOOP("ClockTree", "pllhextdiv"));
        if (f.hextPllDivider == HextPllDivider::Selectable) {
            b.combo(QStringLiteral("hextdiv"), 302, 260, 64, ClockItems::dividers({2, 3, 4, 5}));
            d.wire({QPointF(298, kHextLine), QPointF(302, kHextLine)}, WK::Signal, false);
        } else {
            d.block(QRectF(312, 260, 40, 24), BK::Divider, "/2");
            d.wire({QPointF(298, kHextLine), QPointF(312, kHextLine)}, WK::Signal, false);
            d.wire({QPointF(352, kHextLine), QPointF(muxX, kHextLine)});
        }
    }
    if (f.msnsOnly) {
        d.block(QRectF(306, 420, 50, 24), BK::Divider, "/6");
        d.wire({QPointF(298, kHickLine), QPointF(306, kHickLine)}, WK::Signal, false);
    } else {
        d.block(QRectF(304, 420, 28, 24), BK::Divider, "/6");
        d.block(QRectF(338, 420, 28, 24), BK::Divider, "/2");
        d.wire({QPointF(298, kHickLine), QPointF(304, kHickLine)}, WK::Signal, false);
        d.wire({QPointF(332, kHickLine), QPointF(338, kHickLine)}, WK::Signal, false);
    }
    d.wire({QPointF(356, kHickLine), QPointF(muxX, kHickLine)});
    d.mux(QRectF(muxX, 252, 20, 200));
    d.wire({QPointF(muxX + 20, 352), QPointF(kPllX - 6, 352), QPointF(kPllX - 6, kPllLine),
            QPointF(kPllX + 8, kPllLine)});

    // The PLL itself.
    d.block(QRectF(kPllX, kPllY, kPllW, kPllH), BK::Pll, QT_TRANSLATE_NOOP("ClockTree", "PLL"));
    const int x1 = kPllX + 12, x2 = kPllX + 104, x3 = kPllX + 206;
    const int capY = kPllY + 44, rowY = kPllY + 64;
    const bool flexible = f.pllForm != PllForm::Multiplier;
    if (f.pllForm == PllForm::Selectable) {
        b.caption(QStringLiteral("pllmode"), x2 + 8, kPllY + 8,
                  QT_TRANSLATE_NOOP("ClockTree", "pll_mode"));
        b.combo(QStringLiteral("pllmode"), x3, kPllY + 4, 84,
                {QStringLiteral(QT_TRANSLATE_NOOP("ClockTree", "flexible")),
                 QStringLiteral(QT_TRANSLATE_NOOP("ClockTree", "normal"))},
                true);
    }
    if (f.pllForm == PllForm::Multiplier || f.pllForm == PllForm::Selectable) {
        b.caption(QStringLiteral("pllmult"), x2, capY, QT_TRANSLATE_NOOP("ClockTree", "pll_mult"));
        b.combo(QStringLiteral("pllmult"), x2, rowY, 84, ClockItems::pllmult());
    }
    if (flexible) {
        b.caption(QStringLiteral("pllms"), x1, capY, QT_TRANSLATE_NOOP("ClockTree", "pll_ms"), 9,
                  false, QStringLiteral(" (1-15)"));
        b.edit(QStringLiteral("pllms"), x1, rowY, 70);
        b.caption(QStringLiteral("pllns"), x2, capY, QT_TRANSLATE_NOOP("ClockTree", "pll_ns"), 9,
                  false, QStringLiteral(" (31-500)"));
        b.edit(QStringLiteral("pllns"), x2, rowY, 84);
        d.wire({QPointF(x1 + 70, kPllLine), QPointF(x2, kPllLine)});
        d.wire({QPointF(x2 + 84, kPllLine), QPointF(x3, kPllLine)});
        if (f.pllForm == PllForm::FlexibleFpFu) {
            b.caption(QStringLiteral("pllfp"), x3, capY, QT_TRANSLATE_NOOP("ClockTree", "pll_fp"));
            b.combo(QStringLiteral("pllfp"), x3, rowY, 84, ClockItems::pllfp());
            b.caption(QStringLiteral("pllfu"), x3, kPllY + 146,
                      QT_TRANSLATE_NOOP("ClockTree", "pll_fu"));
            b.combo(QStringLiteral("pllfu"), x3, kPllY + 166, 84, ClockItems::pllfu());
            d.wire({QPointF(x2 + 42, kPllLine + 12), QPointF(x2 + 42, kPllY + 178),
                    QPointF(x3, kPllY + 178)});
        } else {
            b.caption(QStringLiteral("pllfr"), x3, capY, QT_TRANSLATE_NOOP("ClockTree", "pll_fr"));
            b.combo(QStringLiteral("pllfr"), x3, rowY, 84,
                    ClockItems::dividers({1, 2, 4, 8, 16, 32}));
        }
        b.label(QStringLiteral("pllreg_caption"), x1, kPllY + 112, 0, false,
                QT_TRANSLATE_NOOP("ClockTree", "CRM_PLLCFG : "));
        b.label(QStringLiteral("pllreg"), x1 + 100, kPllY + 112, 110);
    }
    b.label(QStringLiteral("pllout"), kPllX + 176, kPllY + 206, 118, true);
    b.caption(QStringLiteral("pllout"), kPllX + 12, kPllY + 208,
              QT_TRANSLATE_NOOP("ClockTree", "PLL clock"));
    d.wire({QPointF(x3 + 84, kPllLine), QPointF(kSelX - 2, kPllLine)});
}

void systemClock(Builder &b, const ClockFamily &f)
{
    ClockDrawing &d = b.d;
    // HEXT above the PLL, HICK below it, both to the system clock selector.
    d.dot(QPointF(215, kHextRoute));
    if (f.hasSclkDividers) {
        b.caption(QStringLiteral("sclkhextdiv"), 632, kHextRoute - 32,
                  QT_TRANSLATE_NOOP("ClockTree", "hextdiv"));
        b.combo(QStringLiteral("sclkhextdiv"), 630, kHextRoute - 12, 70,
                ClockItems::dividers({1, 2, 4, 8, 16, 32}));
        d.wire({QPointF(215, kHextRoute), QPointF(628, kHextRoute)}, WK::Signal, false);
        d.wire({QPointF(700, kHextRoute), QPointF(kSelX - 2, kHextRoute)});
    } else {
        d.wire({QPointF(215, kHextRoute), QPointF(kSelX - 2, kHextRoute)});
    }
    d.wire({QPointF(222, kHickLine), QPointF(222, kHickRoute), QPointF(298, kHickRoute)},
           WK::Signal, false);
    b.caption(QStringLiteral("hicktosclk"), 300, 459,
              QT_TRANSLATE_NOOP("ClockTree", "hick to sclk"));
    b.radio(QStringLiteral("hicktosclk"), 0, 300, 479, QT_TRANSLATE_NOOP("ClockTree", "/6"),
            nullptr, 50);
    b.radio(QStringLiteral("hicktosclk"), 1, 354, 479, QT_TRANSLATE_NOOP("ClockTree", "48MHz"),
            nullptr, 70);
    if (f.hasSclkDividers) {
        b.caption(QStringLiteral("sclkhickdiv"), 632, kHickRoute + 22,
                  QT_TRANSLATE_NOOP("ClockTree", "hickdiv"));
        b.combo(QStringLiteral("sclkhickdiv"), 630, kHickRoute - 12, 70,
                ClockItems::dividers({1, 2, 4, 8, 16}));
        d.wire({QPointF(426, kHickRoute), QPointF(628, kHickRoute)}, WK::Signal, false);
        d.wire({QPointF(700, kHickRoute), QPointF(kSelX - 2, kHickRoute)});
    } else {
        d.wire({QPointF(426, kHickRoute), QPointF(kSelX - 2, kHickRoute)});
    }
    b.caption(QStringLiteral("sclkselect"), kSelX, kHextRoute - 36,
              QT_TRANSLATE_NOOP("ClockTree", "sclk select"));
    b.radio(QStringLiteral("sclkselect"), 0, kSelX, kHextRoute - 11,
            QT_TRANSLATE_NOOP("ClockTree", "HEXT"), nullptr, 62);
    b.radio(QStringLiteral("sclkselect"), 1, kSelX, kPllLine - 11,
            QT_TRANSLATE_NOOP("ClockTree", "PLL"), nullptr, 62);
    b.radio(QStringLiteral("sclkselect"), 2, kSelX, kHickRoute - 11,
            QT_TRANSLATE_NOOP("ClockTree", "HICK"), nullptr, 62);
    d.mux(QRectF(kMuxX, 196, 34, 310), QT_TRANSLATE_NOOP("ClockTree", "SCLK"));

    d.wire({QPointF(kMuxX + 34, kSclkLine), QPointF(848, kSclkLine)});
    b.caption(QStringLiteral("sclk"), 850, kSclkLine - 34,
              QT_TRANSLATE_NOOP("ClockTree", "sclk(4 - "), 9, false,
              QString::number(int(f.sclkMax)) + QStringLiteral(" MHz)"));
    b.edit(QStringLiteral("sclk"), 850, kSclkLine - 12, 90,
           QT_TRANSLATE_NOOP("ClockTree", "System clock"));
    if (f.model == ClockModel::T510 || f.model == ClockModel::T520) {
        d.block(QRectF(846, 392, 222, 74), BK::Note);
        b.label(QStringLiteral("usage1"), 854, 398, 0, true,
                QT_TRANSLATE_NOOP("ClockTree", "Useage limited:"));
        b.label(QStringLiteral("usage2"), 854, 419, 0, false,
                QT_TRANSLATE_NOOP("ClockTree", "Temperature range - 40~85 degree. "));
        b.label(QStringLiteral("usage3"), 854, 440, 0, false,
                QT_TRANSLATE_NOOP("ClockTree", "VDD must over 3.0V. "));
    }
    d.wire({QPointF(940, kSclkLine), QPointF(964, kSclkLine)});
    d.block(QRectF(958, kSclkLine - 40, 88, 70), BK::Divider);
    b.caption(QStringLiteral("ahbdiv"), 966, kSclkLine - 36,
              QT_TRANSLATE_NOOP("ClockTree", "ahbdiv"), 9, true);
    b.combo(QStringLiteral("ahbdiv"), 966, kSclkLine - 14, 72, ClockItems::ahb());
    d.wire({QPointF(1046, kSclkLine), QPointF(kBusX, kSclkLine)}, WK::Bus, false);
}

struct Row
{
    QString name;
    const char *caption;
};

QList<Row> outputRows(const ClockFamily &f)
{
    const int m = f.model;
    const bool t5 = m == ClockModel::T510 || m == ClockModel::T520;
    const bool t25 = m == ClockModel::T250 || m == ClockModel::T260 || m == ClockModel::V250;
    const bool t2x = m == ClockModel::T220 || m == ClockModel::T210;
    const bool t13 = m == ClockModel::T130 || m == ClockModel::V130;
    QList<Row> rows;
    if (m != ClockModel::W320)
        rows.append({QStringLiteral("out_i2s"), QT_TRANSLATE_NOOP("ClockTree", "i2s (MHz)")});
    rows.append({QStringLiteral("out_systick"), QT_TRANSLATE_NOOP("ClockTree", "systick(MHz)")});
    if (t5 || t25 || m == ClockModel::T310 || m == ClockModel::T320)
        rows.append({QStringLiteral("out_sdio"), QT_TRANSLATE_NOOP("ClockTree", "sdio (MHz)")});
    rows.append({QStringLiteral("out_dma"), QT_TRANSLATE_NOOP("ClockTree", "dma (MHz)")});
    if (t5 || t25 || m == ClockModel::T310)
        rows.append({QStringLiteral("out_xmc"), QT_TRANSLATE_NOOP("ClockTree", "xmc (MHz)")});
    rows.append({QStringLiteral("out_gpio"), QT_TRANSLATE_NOOP("ClockTree", "gpio (MHz)")});
    if (m == ClockModel::T260 || m == ClockModel::V250 || m == ClockModel::T520)
        rows.append({QStringLiteral("out_emac"), QT_TRANSLATE_NOOP("ClockTree", "emac (MHz)")});
    if (t5)
        rows.append({QStringLiteral("out_dvp"), QT_TRANSLATE_NOOP("ClockTree", "dvp (MHz)")});
    if (t5 || t2x)
        rows.append({QStringLiteral("out_qspi"), QT_TRANSLATE_NOOP("ClockTree", "qspi (MHz)")});
    if (t5 || t13)
        rows.append({QStringLiteral("out_adc"), QT_TRANSLATE_NOOP("ClockTree", "adc (MHz)")});
    return rows;
}

void buses(Builder &b, const ClockFamily &f)
{
    ClockDrawing &d = b.d;
    const QList<Row> rows = outputRows(f);
    int y = 28;
    d.block(QRectF(1082, 8, 290, rows.size() * 32 + 14), BK::Output, nullptr);
    for (const Row &r : rows) {
        const int yc = y + 12;
        if (r.name == QLatin1String("out_systick")) {
            b.combo(QStringLiteral("systicdiv"), 1086, y, 60, ClockItems::dividers({1, 8}));
            d.wire({QPointF(kBusX, yc), QPointF(1084, yc)}, WK::Signal, false);
            d.wire({QPointF(1146, yc), QPointF(kRowCaptionX - 2, yc)}, WK::Thin, false);
        } else {
            d.wire({QPointF(kBusX, yc), QPointF(kRowCaptionX - 4, yc)});
        }
        b.caption(r.name, kRowCaptionX, y + 4, r.caption);
        b.value(r.name, kRowValueX, y, 80);
        y += 32;
    }
    const int busTop = 40;
    const int yA = qMax(y + 46, 392);
    auto apb = [&](const QString &n, const char *cap, double max, int yRow) {
        const int yc = yRow + 12;
        d.block(QRectF(1082, yRow - 28, 440, 100), BK::Group);
        b.caption(n + QStringLiteral("div"), 1088, yRow - 24,
                  n == QLatin1String("apb1") ? QT_TRANSLATE_NOOP("ClockTree", "apb1div")
                                             : QT_TRANSLATE_NOOP("ClockTree", "apb2div"),
                  9, true);
        // Below the divider box, clear of the wire that leaves it at x 1172.
        b.caption(n + QStringLiteral("max"), 1088, yRow + 33, cap, 9, false).width = 80;
        Q_UNUSED(max)
        b.combo(n + QStringLiteral("div"), 1088, yRow + 4, 70, ClockItems::apb());
        d.wire({QPointF(kBusX, yc + 4), QPointF(1086, yc + 4)});
        d.wire({QPointF(1158, yc + 4), QPointF(1172, yc + 4), QPointF(1172, yc - 4),
                QPointF(1196, yc - 4)});
        d.wire({QPointF(1172, yc + 4), QPointF(1172, yc + 30), QPointF(1196, yc + 30)});
        b.caption(n + QStringLiteral("p"), 1200, yRow - 8,
                  n == QLatin1String("apb1")
                      ? QT_TRANSLATE_NOOP("ClockTree", "apb1 peripheral (MHz)")
                      : QT_TRANSLATE_NOOP("ClockTree", "apb2 peripheral (MHz)"));
        b.value(n + QStringLiteral("p"), 1356, yRow - 12, 80);
        b.listButton(QStringLiteral("list_") + n, 1440, yRow - 12);
        b.label(n + QStringLiteral("mult"), 1200, yRow + 26, 28, true);
        b.caption(n + QStringLiteral("tmr"), 1232, yRow + 26,
                  n == QLatin1String("apb1") ? QT_TRANSLATE_NOOP("ClockTree", "apb1 tmr (MHz)")
                                             : QT_TRANSLATE_NOOP("ClockTree", "apb2 tmr (MHz)"));
        b.value(n + QStringLiteral("tmr"), 1356, yRow + 22, 80);
        b.listButton(QStringLiteral("list_") + n + QStringLiteral("tmr"), 1440, yRow + 22);
    };
    auto maxCaption = [](double limit) -> const char * {
        switch (int(limit)) {
        case 75:
            return QT_TRANSLATE_NOOP("ClockTree", "75MHz max");
        case 96:
            return QT_TRANSLATE_NOOP("ClockTree", "96MHz max");
        case 100:
            return QT_TRANSLATE_NOOP("ClockTree", "100MHz max");
        case 120:
            return QT_TRANSLATE_NOOP("ClockTree", "120MHz max");
        case 144:
            return QT_TRANSLATE_NOOP("ClockTree", "144MHz max");
        case 150:
            return QT_TRANSLATE_NOOP("ClockTree", "150MHz max");
        case 216:
            return QT_TRANSLATE_NOOP("ClockTree", "216MHz max");
        default:
            return nullptr;
        }
    };
    apb(QStringLiteral("apb1"), maxCaption(f.apb1Max), f.apb1Max, yA);
    const int yB = yA + 112;
    apb(QStringLiteral("apb2"), maxCaption(f.apb2Max), f.apb2Max, yB);
    const int busBottom = yB + 16;
    if (f.hasAdcDivider) {
        const int yAdc = yB + 100;
        d.block(QRectF(1082, yAdc - 24, 440, 58), BK::Group);
        d.wire({QPointF(1172, yB + 42), QPointF(1172, yAdc + 12), QPointF(1196, yAdc + 12)});
        b.caption(QStringLiteral("adcdiv"), 1200, yAdc - 20,
                  QT_TRANSLATE_NOOP("ClockTree", "adcdiv"));
        b.combo(QStringLiteral("adcdiv"), 1200, yAdc, 64, ClockItems::adcdiv());
        b.caption(QStringLiteral("out_adc"), 1280, yAdc + 4,
                  QT_TRANSLATE_NOOP("ClockTree", "adc (MHz)"));
        b.value(QStringLiteral("out_adc"), 1356, yAdc, 80,
                QT_TRANSLATE_NOOP("ClockTree", "ADC clock"));
        d.wire({QPointF(1264, yAdc + 12), QPointF(1278, yAdc + 12)}, WK::Thin, false);
    }
    d.wire({QPointF(kBusX, busTop), QPointF(kBusX, busBottom)}, WK::Bus, false);
}

void usb(Builder &b, const ClockFamily &f)
{
    if (!f.hasUsb)
        return;
    ClockDrawing &d = b.d;
    const int y0 = 522;
    d.block(QRectF(470, y0, 540, 112), BK::Group, QT_TRANSLATE_NOOP("ClockTree", "USB"));
    const int rowPll = y0 + 44, rowHick = y0 + 80;
    const bool fpfu = f.pllForm == PllForm::FlexibleFpFu;
    if (fpfu) {
        d.wire({QPointF(kPllX + 248, kPllY + 190), QPointF(kPllX + 248, rowPll + 12),
                QPointF(663, rowPll + 12)});
    } else {
        d.wire(
            {QPointF(560, kPllY + kPllH), QPointF(560, rowPll + 12), QPointF(573, rowPll + 12)});
        b.caption(QStringLiteral("usbdiv"), 575, y0 + 8, QT_TRANSLATE_NOOP("ClockTree", "usbdiv"));
        b.combo(QStringLiteral("usbdiv"), 575, rowPll, 76, ClockItems::usb(13));
        d.wire({QPointF(651, rowPll + 12), QPointF(663, rowPll + 12)});
    }
    int outX = 700;
    if (f.hasHickToUsb) {
        b.caption(QStringLiteral("hicktousb"), 665, y0 + 8,
                  QT_TRANSLATE_NOOP("ClockTree", "hick to usb"));
        b.radio(QStringLiteral("hicktousb"), 0, 665, rowPll, QT_TRANSLATE_NOOP("ClockTree", "pll"),
                nullptr, 62);
        b.radio(QStringLiteral("hicktousb"), 1, 665, rowHick,
                QT_TRANSLATE_NOOP("ClockTree", "hick"), nullptr, 62);
        d.wire({QPointF(222, kHickRoute), QPointF(222, rowHick + 12), QPointF(663, rowHick + 12)});
        d.dot(QPointF(222, kHickRoute));
        d.mux(QRectF(735, rowPll - 4, 18, rowHick - rowPll + 32));
        d.wire({QPointF(753, (rowPll + rowHick) / 2 + 12),
                QPointF(778, (rowPll + rowHick) / 2 + 12)});
        outX = 780;
    } else {
        d.wire({QPointF(663, rowPll + 12), QPointF(778, rowPll + 12)});
        outX = 780;
    }
    b.label(QStringLiteral("usbout"), outX, (f.hasHickToUsb ? (rowPll + rowHick) / 2 : rowPll) + 2,
            96, true);
    b.caption(QStringLiteral("usbout"), outX, y0 + 8, QT_TRANSLATE_NOOP("ClockTree", "USB clock"));
    if (f.hasUsbHsPhy) {
        b.caption(QStringLiteral("usbhsphy"), 892, y0 + 8,
                  QT_TRANSLATE_NOOP("ClockTree", "usbhs phy\n(must be 12 MHz)"));
        b.value(QStringLiteral("usbhsphy"), 892, rowHick, 80);
    }
}

void clockOutputs(Builder &b, const ClockFamily &f)
{
    ClockDrawing &d = b.d;
    if (f.clockOutput == ClockOutputKind::Dual) {
        struct Src
        {
            const char *text;
            const char *tip;
        };
        const QList<Src> out1 = {
            {QT_TRANSLATE_NOOP("ClockTree", "HICK"),
             QT_TRANSLATE_NOOP("ClockTree", "High speed internal clock")},
            {QT_TRANSLATE_NOOP("ClockTree", "LEXT"),
             QT_TRANSLATE_NOOP("ClockTree", "Low speed external crystal")},
            {QT_TRANSLATE_NOOP("ClockTree", "HEXT"),
             QT_TRANSLATE_NOOP("ClockTree", "High speed external crystal")},
            {QT_TRANSLATE_NOOP("ClockTree", "PLL"), QT_TRANSLATE_NOOP("ClockTree", "PLL clock")}};
        const QList<Src> out2 = {
            {QT_TRANSLATE_NOOP("ClockTree", "SCLK"),
             QT_TRANSLATE_NOOP("ClockTree", "System clock")},
            {QT_TRANSLATE_NOOP("ClockTree", "HEXT"),
             QT_TRANSLATE_NOOP("ClockTree", "High speed external crystal")},
            {QT_TRANSLATE_NOOP("ClockTree", "PLL"), QT_TRANSLATE_NOOP("ClockTree", "PLL clock")},
            {QT_TRANSLATE_NOOP("ClockTree", "USB"), QT_TRANSLATE_NOOP("ClockTree", "USB clock")},
            {QT_TRANSLATE_NOOP("ClockTree", "HICK"),
             QT_TRANSLATE_NOOP("ClockTree", "High speed internal clock")},
            {QT_TRANSLATE_NOOP("ClockTree", "ADC"), QT_TRANSLATE_NOOP("ClockTree", "ADC clock")},
            {QT_TRANSLATE_NOOP("ClockTree", "LICK"),
             QT_TRANSLATE_NOOP("ClockTree", "Low speed internal clock")},
            {QT_TRANSLATE_NOOP("ClockTree", "LEXT"),
             QT_TRANSLATE_NOOP("ClockTree", "Low speed external crystal")}};
        auto block = [&](const QString &n, const QString &divn, const char *title,
                         const QList<Src> &srcs, int x0, int w) {
            d.block(QRectF(x0, kBottomY, w, 232), BK::Group, title);
            const int cols = srcs.size() > 4 ? 2 : 1;
            for (int i = 0; i < srcs.size(); ++i) {
                const int col = i / 4, row = i % 4;
                const int x = x0 + 12 + col * 190, y = kBottomY + 36 + row * 44;
                b.radio(n, i, x, y, srcs[i].text, srcs[i].tip, 72);
                b.label(n + QStringLiteral("_src_") + QString::number(i), x + 76, y + 2, 108);
            }
            const int mx = x0 + 12 + cols * 190;
            d.mux(QRectF(mx, kBottomY + 30, 20, 176));
            const int yc = kBottomY + 118;
            b.caption(divn + QStringLiteral("1"), mx + 34, yc - 40, nullptr);
            b.out.controls.last().text = n == QLatin1String("clkout1")
                                             ? QT_TRANSLATE_NOOP("ClockTree", "clockout1div1")
                                             : QT_TRANSLATE_NOOP("ClockTree", "clockout2div1");
            b.combo(divn + QStringLiteral("1"), mx + 34, yc - 12, 64,
                    ClockItems::dividers({1, 2, 3, 4, 5}));
            b.caption(divn + QStringLiteral("2"), mx + 130, yc - 40, nullptr);
            b.out.controls.last().text = n == QLatin1String("clkout1")
                                             ? QT_TRANSLATE_NOOP("ClockTree", "clockout1div2")
                                             : QT_TRANSLATE_NOOP("ClockTree", "clockout2div2");
            b.combo(divn + QStringLiteral("2"), mx + 130, yc - 12, 76, ClockItems::ahb());
            d.wire({QPointF(mx + 20, yc), QPointF(mx + 32, yc)});
            d.wire({QPointF(mx + 98, yc), QPointF(mx + 128, yc)});
            d.wire({QPointF(mx + 206, yc), QPointF(mx + 216, yc), QPointF(mx + 216, yc + 40),
                    QPointF(mx + 34, yc + 40), QPointF(mx + 34, yc + 54)});
            b.label(n + QStringLiteral("_val"), mx + 44, yc + 52, 140, true);
        };
        block(QStringLiteral("clkout1"), QStringLiteral("clockout1div"),
              QT_TRANSLATE_NOOP("ClockTree", "clkout1"), out1, 15, 450);
        block(QStringLiteral("clkout2"), QStringLiteral("clockout2div"),
              QT_TRANSLATE_NOOP("ClockTree", "clkout2"), out2, 480, 640);
        return;
    }
    if (!f.hasSingleClockOutput())
        return;
    struct Item
    {
        int value;
        const char *text;
    };
    QList<Item> items;
    const bool t13 = f.model == ClockModel::T130 || f.model == ClockModel::V130 ||
                     f.model == ClockModel::T220 || f.model == ClockModel::T210;
    const bool t2x = f.model == ClockModel::T220 || f.model == ClockModel::T210;
    items << Item{0, QT_TRANSLATE_NOOP("ClockTree", "no clk")}
          << Item{1, QT_TRANSLATE_NOOP("ClockTree", "lick")}
          << Item{2, QT_TRANSLATE_NOOP("ClockTree", "lext")}
          << Item{3, QT_TRANSLATE_NOOP("ClockTree", "hick")}
          << Item{4, QT_TRANSLATE_NOOP("ClockTree", "hext")}
          << Item{5, QT_TRANSLATE_NOOP("ClockTree", "sclk")};
    if (f.hasUsb)
        items << Item{6, t2x ? QT_TRANSLATE_NOOP("ClockTree", "usbfs")
                             : QT_TRANSLATE_NOOP("ClockTree", "usb")};
    items << Item{7, QT_TRANSLATE_NOOP("ClockTree", "adcclk")};
    if (t13) {
        items << Item{10, QT_TRANSLATE_NOOP("ClockTree", "pll")};
    } else if (f.model == ClockModel::T110) {
        items << Item{8, QT_TRANSLATE_NOOP("ClockTree", "pll/2")}
              << Item{9, QT_TRANSLATE_NOOP("ClockTree", "pll/4")};
    } else {
        items << Item{8, QT_TRANSLATE_NOOP("ClockTree", "PLL clock / 2")}
              << Item{9, QT_TRANSLATE_NOOP("ClockTree", "PLL clock / 4")};
    }
    const int w = 600;
    d.block(QRectF(15, kBottomY, w, 232), BK::Group, QT_TRANSLATE_NOOP("ClockTree", "clkout"));
    for (int i = 0; i < items.size(); ++i) {
        const int col = i / 5, row = i % 5;
        b.radio(QStringLiteral("clkout"), items[i].value, 27 + col * 170, kBottomY + 30 + row * 38,
                items[i].text,
                items[i].value == 6 && t2x ? QT_TRANSLATE_NOOP("ClockTree", "USBFS clock")
                                           : nullptr,
                150);
    }
    const int mx = 27 + 2 * 170;
    d.mux(QRectF(mx, kBottomY + 28, 20, 186));
    const int yc = kBottomY + 120;
    d.wire({QPointF(mx + 20, yc), QPointF(mx + 30, yc)});
    if (f.clockOutput == ClockOutputKind::SingleOneDivider) {
        b.caption(QStringLiteral("clockoutdiv"), mx + 32, yc - 40,
                  QT_TRANSLATE_NOOP("ClockTree", "clkoutdiv"));
        b.combo(QStringLiteral("clockoutdiv"), mx + 32, yc - 12, 76, ClockItems::ahb());
        d.wire({QPointF(mx + 108, yc), QPointF(mx + 118, yc), QPointF(mx + 118, yc + 40),
                QPointF(mx + 40, yc + 40), QPointF(mx + 40, yc + 54)});
    } else {
        b.caption(QStringLiteral("clockoutdiv1"), mx + 32, yc - 40,
                  QT_TRANSLATE_NOOP("ClockTree", "clockoutdiv1"));
        b.combo(QStringLiteral("clockoutdiv1"), mx + 32, yc - 12, 64,
                ClockItems::dividers({1, 2, 3, 4, 5}));
        b.caption(QStringLiteral("clockoutdiv2"), mx + 110, yc - 40,
                  QT_TRANSLATE_NOOP("ClockTree", "clockoutdiv2"));
        b.combo(QStringLiteral("clockoutdiv2"), mx + 110, yc - 12, 76, ClockItems::ahb());
        d.wire({QPointF(mx + 96, yc), QPointF(mx + 108, yc)});
        d.wire({QPointF(mx + 186, yc), QPointF(mx + 196, yc), QPointF(mx + 196, yc + 40),
                QPointF(mx + 40, yc + 40), QPointF(mx + 40, yc + 54)});
    }
    b.label(QStringLiteral("clkout_val"), mx + 44, yc + 52, 150, true);
}

void peripheralSelects(Builder &b, const ClockFamily &f)
{
    ClockDrawing &d = b.d;
    if (f.hasPeripheralClockSelects) {
        d.block(QRectF(630, kBottomY, 440, 232), BK::Group,
                QT_TRANSLATE_NOOP("ClockTree", "peripheral clock select"));
        struct Sel
        {
            const char *group;
            const char *caption;
            int count;
        };
        const QList<Sel> sels = {
            {"usart1clocksel", QT_TRANSLATE_NOOP("ClockTree", "usart1 clock sel"), 4},
            {"usart2clocksel", QT_TRANSLATE_NOOP("ClockTree", "usart2 clock sel"), 4},
            {"usart3clocksel", QT_TRANSLATE_NOOP("ClockTree", "usart3 clock sel"), 4},
            {"i2c1clocksel", QT_TRANSLATE_NOOP("ClockTree", "i2c1 clock sel"), 3},
            {"adcclocksel", QT_TRANSLATE_NOOP("ClockTree", "pllclk to ADC"), 2}};
        const char *names[] = {
            QT_TRANSLATE_NOOP("ClockTree", "pclk"), QT_TRANSLATE_NOOP("ClockTree", "sclk"),
            QT_TRANSLATE_NOOP("ClockTree", "hick"), QT_TRANSLATE_NOOP("ClockTree", "lext")};
        const char *adcNames[] = {QT_TRANSLATE_NOOP("ClockTree", "hclk"),
                                  QT_TRANSLATE_NOOP("ClockTree", "pllclk")};
        int y = kBottomY + 30;
        for (const Sel &s : sels) {
            const QString group = QString::fromLatin1(s.group);
            b.caption(group, 642, y + 3, s.caption);
            for (int i = 0; i < s.count; ++i) {
                const char *t = group == QLatin1String("adcclocksel") ? adcNames[i] : names[i];
                b.radio(group, i, 760 + i * 74, y, t, nullptr, 70);
            }
            y += 40;
        }
    }
    if (f.hasI2sf5) {
        d.block(QRectF(630, kBottomY, 440, 132), BK::Group,
                QT_TRANSLATE_NOOP("ClockTree", "I2SF5"));
        b.caption(QStringLiteral("i2sf5clocksel"), 642, kBottomY + 33,
                  QT_TRANSLATE_NOOP("ClockTree", "i2sf5 clock sel"));
        const char *names[] = {
            QT_TRANSLATE_NOOP("ClockTree", "pllp"), QT_TRANSLATE_NOOP("ClockTree", "sclk"),
            QT_TRANSLATE_NOOP("ClockTree", "hick"), QT_TRANSLATE_NOOP("ClockTree", "external")};
        for (int i = 0; i < 4; ++i)
            b.radio(QStringLiteral("i2sf5clocksel"), i, 760 + i * 74, kBottomY + 30, names[i],
                    nullptr, 70);
        b.caption(QStringLiteral("i2sf5"), 642, kBottomY + 80,
                  QT_TRANSLATE_NOOP("ClockTree", "(1-72 MHz)"));
        b.edit(QStringLiteral("i2sf5"), 760, kBottomY + 76, 80);
    }
}

} // namespace

namespace {

// Gives every text that may outgrow its place the width of the smallest frame it starts in
// (or of the sheet), or the width the layout names. The tree narrows it further to the next
// control beside it, measured once the controls exist in the font the machine provides.
void assignTextRoom(ClockTreeLayout &out)
{
    const QRectF sheet(QPointF(0, 0), out.drawing.size);
    for (ClockControlSpec &c : out.controls) {
        const bool text =
            c.kind == Kind::Caption || c.kind == Kind::Radio || (c.kind == Kind::Label && c.text);
        if (!text)
            continue;
        if ((c.kind == Kind::Label || c.kind == Kind::Caption) && c.width > 0) {
            c.room = c.width;
            continue;
        }
        double right = sheet.right();
        double smallest = -1;
        const QPointF origin = QPointF(c.pos) + QPointF(1, 1);
        for (const ClockDrawing::Block &b : out.drawing.blocks) {
            const double area = b.rect.width() * b.rect.height();
            if (b.rect.contains(origin) && (smallest < 0 || area < smallest)) {
                smallest = area;
                right = qMin(sheet.right(), b.rect.right());
            }
        }
        c.room = qMax(0, int(right) - c.pos.x() - 4);
    }
}

} // namespace

ClockTreeLayout clockTreeLayout(const ClockFamily &f)
{
    Builder b;
    if (!f.hasTree())
        return b.out;
    b.d.size = QSizeF(1530, 896);
    sources(b, f);
    pll(b, f);
    systemClock(b, f);
    buses(b, f);
    usb(b, f);
    clockOutputs(b, f);
    peripheralSelects(b, f);
    assignTextRoom(b.out);
    return b.out;
}
