#include "peripherals/diagrams/timingpictures.h"

#include <QtGlobal>

namespace TimingPictures {

const char *const kCanSync = "sync";
const char *const kCanBs1 = "bs1";
const char *const kCanBs2 = "bs2";
const char *const kCanSample = "sample";
const char *const kI2cRise = "tr";
const char *const kI2cFall = "tf";
const char *const kI2cSetup = "tsu";
const char *const kI2cHold = "thd";
const char *const kI2cPeriod = "period";
const char *const kTmrClock = "clock";
const char *const kTmrDivider = "divider";
const char *const kTmrPeriod = "period";
const char *const kTmrOutput = "output";

namespace {

using Side = TimingDrawing::Side;

const QColor kTeal(35, 184, 198);
const QColor kBlue(85, 126, 191);
const QColor kPale(143, 217, 224);
const QColor kDark(47, 74, 109);
const QColor kGrey(154, 167, 180);
const QColor kRed(217, 83, 79);
const QColor kWhite(255, 255, 255);

QSizeF labelSize(const QMap<QString, QSizeF> &sizes, const char *key)
{
    return sizes.value(QLatin1String(key), QSizeF(40, 18));
}

// Width and height of a text of the picture as it will be shown.
QSizeF measured(const QString &source, bool bold = false, bool literal = false)
{
    TimingDrawing::Text t;
    t.source = source;
    t.bold = bold;
    t.literal = literal;
    return TimingDrawing::textSize(t);
}

qreal labelHeight(const QMap<QString, QSizeF> &sizes)
{
    qreal h = measured(QStringLiteral("0")).height();
    for (const QSizeF &s : sizes)
        h = qMax(h, s.height());
    return h;
}

} // namespace

TimingDrawing can(uint bs1, uint bs2, uint sync, const QMap<QString, QSizeF> &sizes)
{
    TimingDrawing d;
    const qreal x0 = 30;
    const qreal y0 = 40;
    const qreal h = 40;
    const qreal lh = labelHeight(sizes);
    const uint counts[3] = {qMax(1u, sync), qMax(1u, bs1), qMax(1u, bs2)};
    const char *const keys[3] = {kCanSync, kCanBs1, kCanBs2};
    const char *const names[3] = {"SYNC", "BS1", "BS2"};
    const QColor fills[3] = {kBlue, kTeal, kPale};
    const QColor inks[3] = {kWhite, kWhite, kDark};
    const qreal total = counts[0] + counts[1] + counts[2];
    qreal x = x0;
    qreal samplePointX = x0;
    for (int i = 0; i < 3; ++i) {
        const qreal least = qMax(measured(QLatin1String(names[i]), true, true).width(),
                                 labelSize(sizes, keys[i]).width()) +
                            12.0;
        const qreal w = qMax(least, 480.0 * counts[i] / total);
        d.shape(QRectF(x, y0, w, h), fills[i], kDark);
        d.text(QPointF(x + w / 2, y0 + h / 2), Side::Center, QLatin1String(names[i]), inks[i],
               true, true);
        d.place(QLatin1String(keys[i]), QPointF(x + w / 2, y0 + h + 6), Side::Below);
        x += w;
        if (i == 1)
            samplePointX = x;
    }
    const qreal end = x;
    d.text(QPointF((x0 + end) / 2, 16), Side::Center,
           QT_TRANSLATE_NOOP("TimingDiagram", "CAN bit time"), kDark, true);
    // The sample point between BS1 and BS2, its value and name under the segment values.
    const qreal lineEnd = y0 + h + 6 + lh + 6;
    d.line({QPointF(samplePointX, y0 - 8), QPointF(samplePointX, lineEnd)}, kRed, 2.0);
    d.line({QPointF(samplePointX, y0 - 10), QPointF(samplePointX, y0 - 1)}, kRed, 2.0, false,
           true);
    d.place(QLatin1String(kCanSample), QPointF(samplePointX + 4, lineEnd), Side::Right);
    d.text(QPointF(samplePointX - 4, lineEnd), Side::Left,
           QT_TRANSLATE_NOOP("TimingDiagram", "Sample point (%)"), kRed);
    const qreal measureY = lineEnd + lh / 2 + 14;
    d.measure(x0, end, measureY, kBlue);
    d.text(QPointF((x0 + end) / 2, measureY + 6), Side::Below,
           QT_TRANSLATE_NOOP("TimingDiagram", "1 bit = SYNC + BS1 + BS2 time quanta"), kBlue);
    return d;
}

TimingDrawing i2c(const QMap<QString, QSizeF> &sizes)
{
    TimingDrawing d;
    const qreal lh = labelHeight(sizes);
    const qreal title = 16;
    // Rise and fall measures with their values above SCL.
    const qreal edgeY = title + 18 + lh + 6;
    const qreal sclHigh = edgeY + 10;
    const qreal sclLow = sclHigh + 34;
    const qreal sdaHigh = sclLow + 22;
    const qreal sdaLow = sdaHigh + 34;
    const qreal holdY = sdaLow + 12;
    const qreal periodY = holdY + 6 + lh + 14;
    d.text(QPointF(330, title), Side::Center, QT_TRANSLATE_NOOP("TimingDiagram", "I2C bus timing"),
           kDark, true);
    d.text(QPointF(52, (sclHigh + sclLow) / 2), Side::Left, QStringLiteral("SCL"), kDark, true,
           true);
    d.text(QPointF(52, (sdaHigh + sdaLow) / 2), Side::Left, QStringLiteral("SDA"), kDark, true,
           true);
    // SCL: low, rise, high, fall, low, rise, high.
    d.line({QPointF(60, sclLow), QPointF(150, sclLow), QPointF(180, sclHigh),
            QPointF(300, sclHigh), QPointF(320, sclLow), QPointF(420, sclLow),
            QPointF(450, sclHigh), QPointF(570, sclHigh), QPointF(590, sclLow),
            QPointF(610, sclLow)},
           kBlue, 2.5);
    // SDA changes while SCL is low, held after the fall and set up before the rise.
    d.line({QPointF(60, sdaHigh), QPointF(90, sdaHigh), QPointF(100, sdaLow), QPointF(340, sdaLow),
            QPointF(350, sdaHigh), QPointF(610, sdaHigh)},
           kTeal, 2.5);
    d.line({QPointF(60, sdaLow), QPointF(90, sdaLow), QPointF(100, sdaHigh), QPointF(340, sdaHigh),
            QPointF(350, sdaLow), QPointF(610, sdaLow)},
           kTeal, 2.5);
    for (qreal x : {150.0, 180.0, 300.0, 320.0, 345.0})
        d.line({QPointF(x, edgeY - 6), QPointF(x, holdY + 6)}, kGrey, 1.0, true);
    d.line({QPointF(420, edgeY - 6), QPointF(420, periodY + 6)}, kGrey, 1.0, true);
    d.line({QPointF(150, sclLow), QPointF(150, periodY + 6)}, kGrey, 1.0, true);
    d.measure(150, 180, edgeY, kRed);
    d.text(QPointF(146, edgeY), Side::Left, QStringLiteral("tr"), kRed, false, true);
    d.place(QLatin1String(kI2cRise), QPointF(165, edgeY - 6), Side::Above);
    d.measure(300, 320, edgeY, kRed);
    d.text(QPointF(324, edgeY), Side::Right, QStringLiteral("tf"), kRed, false, true);
    d.place(QLatin1String(kI2cFall), QPointF(310, edgeY - 6), Side::Above);
    d.measure(320, 345, holdY, kRed);
    d.text(QPointF(316, holdY), Side::Left, QStringLiteral("tHD;DAT"), kRed, false, true);
    d.place(QLatin1String(kI2cHold), QPointF(332, holdY + 6), Side::Below);
    d.measure(345, 420, holdY, kRed);
    d.text(QPointF(424, holdY), Side::Right, QStringLiteral("tSU;DAT"), kRed, false, true);
    d.place(QLatin1String(kI2cSetup), QPointF(383, holdY + 6), Side::Below);
    d.measure(150, 420, periodY, kBlue);
    d.text(QPointF(146, periodY), Side::Left, QT_TRANSLATE_NOOP("TimingDiagram", "SCL period"),
           kBlue);
    d.place(QLatin1String(kI2cPeriod), QPointF(285, periodY + 6), Side::Below);
    return d;
}

TimingDrawing tmr(uint direction, const QMap<QString, QSizeF> &sizes)
{
    TimingDrawing d;
    const char *clockText = QT_TRANSLATE_NOOP("TimingDiagram", "Timer clock");
    const char *prescalerText = QT_TRANSLATE_NOOP("TimingDiagram", "Prescaler");
    const char *periodText = QT_TRANSLATE_NOOP("TimingDiagram", "Period");
    const char *outputText = QT_TRANSLATE_NOOP("TimingDiagram", "Output");
    const qreal th = measured(QLatin1String(clockText)).height();
    const qreal lh = labelHeight(sizes);
    const qreal bh = th + 12;
    const qreal yMid = 12 + bh / 2;
    const qreal arrow = 36;

    // The chain from the clock to the output, each element as wide as its texts.
    struct Element
    {
        const char *caption;
        const char *key;
        bool box;
    };
    const Element chain[4] = {{clockText, kTmrClock, false},
                              {prescalerText, kTmrDivider, true},
                              {periodText, kTmrPeriod, true},
                              {outputText, kTmrOutput, false}};
    qreal x = 20;
    for (int i = 0; i < 4; ++i) {
        const Element &e = chain[i];
        const qreal w = qMax(measured(QLatin1String(e.caption), e.box).width() + (e.box ? 20 : 8),
                             labelSize(sizes, e.key).width() + 8);
        if (e.box)
            d.shape(QRectF(x, yMid - bh / 2, w, bh), QColor(238, 245, 247), kTeal);
        d.text(QPointF(x + w / 2, yMid), Side::Center, QLatin1String(e.caption), kDark, e.box);
        d.place(QLatin1String(e.key), QPointF(x + w / 2, yMid + bh / 2 + 4), Side::Below);
        x += w;
        if (i < 3) {
            d.line({QPointF(x + 4, yMid), QPointF(x + arrow - 4, yMid)}, kGrey, 1.5, false, true);
            x += arrow;
        }
    }
    const qreal rowEnd = x;

    // The counter's course under the chain.
    const qreal left = 50;
    const qreal right = qMax(600.0, rowEnd);
    const qreal titleY = yMid + bh / 2 + 4 + lh + 8 + th / 2;
    const qreal top = titleY + th / 2 + 8;
    const qreal base = top + 70;
    const char *titles[3] = {QT_TRANSLATE_NOOP("TimingDiagram", "Counting up"),
                             QT_TRANSLATE_NOOP("TimingDiagram", "Counting down"),
                             QT_TRANSLATE_NOOP("TimingDiagram", "Counting up and down")};
    const uint kind = direction >= 1 && direction <= 3 ? direction : 3;
    d.text(QPointF((left + right) / 2, titleY), Side::Center, QLatin1String(titles[kind - 1]),
           kDark, true);
    d.line({QPointF(left, top - 6), QPointF(left, base), QPointF(right, base)}, kDark, 1.5);
    d.line({QPointF(left, top), QPointF(right - 10, top)}, kGrey, 1.0, true);
    d.text(QPointF(left - 4, top), Side::Left, QStringLiteral("PR"), kBlue, true, true);
    d.text(QPointF(left - 4, base), Side::Left, QStringLiteral("0"), kBlue, true, true);
    const qreal period = (right - left - 20) / 3.0;
    QPolygonF course;
    for (int i = 0; i < 3; ++i) {
        const qreal x0 = left + i * period;
        if (kind == 1)
            course << QPointF(x0, base) << QPointF(x0 + period, top);
        else if (kind == 2)
            course << QPointF(x0, top) << QPointF(x0 + period, base);
        else
            course << QPointF(x0, base) << QPointF(x0 + period / 2, top)
                   << QPointF(x0 + period, base);
    }
    TimingDrawing::Line l;
    l.points = course;
    l.color = kTeal;
    l.width = 2.5;
    d.lines << l;
    d.measure(left, left + period, base + 12, kBlue);
    d.text(QPointF(left + period + 6, base + 12), Side::Right,
           QT_TRANSLATE_NOOP("TimingDiagram", "1 / output frequency"), kBlue);
    return d;
}

} // namespace TimingPictures
