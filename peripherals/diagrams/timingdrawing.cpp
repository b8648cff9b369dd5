#include "peripherals/diagrams/timingdrawing.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>

namespace {

constexpr qreal kGap = 3.0;     // free space kept around every placed text
constexpr qreal kMargin = 10.0; // around the whole picture

QRectF besideAnchor(const QPointF &a, TimingDrawing::Side side, const QSizeF &s)
{
    switch (side) {
    case TimingDrawing::Side::Above:
        return QRectF(a.x() - s.width() / 2, a.y() - s.height(), s.width(), s.height());
    case TimingDrawing::Side::Below:
        return QRectF(a.x() - s.width() / 2, a.y(), s.width(), s.height());
    case TimingDrawing::Side::Left:
        return QRectF(a.x() - s.width(), a.y() - s.height() / 2, s.width(), s.height());
    case TimingDrawing::Side::Right:
        return QRectF(a.x(), a.y() - s.height() / 2, s.width(), s.height());
    case TimingDrawing::Side::Center:
        break;
    }
    return QRectF(a.x() - s.width() / 2, a.y() - s.height() / 2, s.width(), s.height());
}

// Moves `r` away from its anchor until it keeps the gap to every rectangle of `taken`.
QRectF clear(QRectF r, TimingDrawing::Side side, const QList<QRectF> &taken)
{
    for (int round = 0; round < 64; ++round) {
        bool moved = false;
        for (const QRectF &t : taken) {
            const QRectF grown = t.adjusted(-kGap, -kGap, kGap, kGap);
            if (!grown.intersects(r))
                continue;
            switch (side) {
            case TimingDrawing::Side::Above:
                r.moveBottom(grown.top());
                break;
            case TimingDrawing::Side::Left:
                r.moveRight(grown.left());
                break;
            case TimingDrawing::Side::Right:
                r.moveLeft(grown.right());
                break;
            case TimingDrawing::Side::Below:
            case TimingDrawing::Side::Center:
                r.moveTop(grown.bottom());
                break;
            }
            moved = true;
        }
        if (!moved)
            break;
    }
    return r;
}

void drawArrowHead(QPainter *p, const QPointF &from, const QPointF &to, const QColor &color)
{
    const QLineF line(to, from);
    QLineF a = line;
    a.setLength(7);
    a.setAngle(line.angle() + 25);
    QLineF b = line;
    b.setLength(7);
    b.setAngle(line.angle() - 25);
    p->setBrush(color);
    p->setPen(Qt::NoPen);
    p->drawPolygon(QPolygonF(QVector<QPointF>{to, a.p2(), b.p2()}));
}

} // namespace

void TimingDrawing::shape(const QRectF &r, const QColor &fill, const QColor &border)
{
    shapes.append({r, fill, border});
}

void TimingDrawing::line(std::initializer_list<QPointF> points, const QColor &color, qreal width,
                         bool dashed, bool arrow)
{
    Line l;
    l.points = QPolygonF(QVector<QPointF>(points));
    l.color = color;
    l.width = width;
    l.dashed = dashed;
    l.arrow = arrow;
    lines.append(l);
}

void TimingDrawing::measure(qreal x1, qreal x2, qreal y, const QColor &color)
{
    measures.append({x1, x2, y, color});
}

void TimingDrawing::text(const QPointF &anchor, Side side, const QString &source,
                         const QColor &color, bool bold, bool literal)
{
    Text t;
    t.anchor = anchor;
    t.side = side;
    t.source = source;
    t.color = color;
    t.bold = bold;
    t.literal = literal;
    texts.append(t);
}

void TimingDrawing::place(const QString &key, const QPointF &anchor, Side side)
{
    places.append({key, anchor, side});
}

QString TimingDrawing::shown(const Text &t)
{
    return t.literal ? t.source
                     : QCoreApplication::translate("TimingDiagram", t.source.toUtf8().constData());
}

QFont TimingDrawing::textFont(bool bold)
{
    QFont font(QStringLiteral("Arial"));
    font.setPointSize(9);
    font.setBold(bold);
    return font;
}

QSizeF TimingDrawing::textSize(const Text &t)
{
    const QFontMetricsF fm(textFont(t.bold));
    return QSizeF(fm.horizontalAdvance(shown(t)) + 4.0, fm.height() + 2.0);
}

TimingLayout layoutTiming(const TimingDrawing &drawing, const QMap<QString, QSizeF> &labelSizes)
{
    TimingLayout out;
    out.drawing = drawing;
    QList<QRectF> taken;
    QRectF bounds;
    for (const TimingDrawing::Shape &s : drawing.shapes)
        bounds |= s.rect;
    for (const TimingDrawing::Line &l : drawing.lines)
        bounds |= l.points.boundingRect();
    for (const TimingDrawing::Measure &m : drawing.measures) {
        // A measure keeps the labels off its line and heads.
        const QRectF r(QPointF(m.x1, m.y - 5), QPointF(m.x2, m.y + 5));
        bounds |= r;
        taken << r;
    }
    // Texts centred in a shape stay where they are; they go first.
    for (TimingDrawing::Text &t : out.drawing.texts) {
        if (t.side != TimingDrawing::Side::Center)
            continue;
        t.rect = clear(besideAnchor(t.anchor, t.side, TimingDrawing::textSize(t)), t.side, taken);
        taken << t.rect;
    }
    for (const TimingDrawing::Place &p : drawing.places) {
        const QRectF r =
            clear(besideAnchor(p.anchor, p.side, labelSizes.value(p.key)), p.side, taken);
        out.labels.insert(p.key, r);
        taken << r;
    }
    for (TimingDrawing::Text &t : out.drawing.texts) {
        if (t.side == TimingDrawing::Side::Center)
            continue;
        t.rect = clear(besideAnchor(t.anchor, t.side, TimingDrawing::textSize(t)), t.side, taken);
        taken << t.rect;
    }
    for (const QRectF &r : taken)
        bounds |= r;
    out.bounds = bounds.adjusted(-kMargin, -kMargin, kMargin, kMargin);
    return out;
}

void TimingDiagramItem::setLayout(const TimingLayout &layout)
{
    prepareGeometryChange();
    m_layout = layout;
    update();
}

QRectF TimingDiagramItem::boundingRect() const
{
    return m_layout.bounds;
}

void TimingDiagramItem::paint(QPainter *p, const QStyleOptionGraphicsItem *, QWidget *)
{
    const TimingDrawing &d = m_layout.drawing;
    p->setRenderHint(QPainter::Antialiasing);
    p->setRenderHint(QPainter::TextAntialiasing);
    p->fillRect(m_layout.bounds, Qt::white);
    for (const TimingDrawing::Shape &s : d.shapes) {
        p->setPen(QPen(s.border, 1.2));
        p->setBrush(s.fill);
        p->drawRoundedRect(s.rect, 3, 3);
    }
    for (const TimingDrawing::Line &l : d.lines) {
        QPen pen(l.color, l.width, l.dashed ? Qt::DashLine : Qt::SolidLine, Qt::RoundCap,
                 Qt::RoundJoin);
        p->setPen(pen);
        p->setBrush(Qt::NoBrush);
        p->drawPolyline(l.points);
        if (l.arrow && l.points.size() >= 2)
            drawArrowHead(p, l.points.at(l.points.size() - 2), l.points.last(), l.color);
    }
    for (const TimingDrawing::Measure &m : d.measures) {
        p->setPen(QPen(m.color, 1.2));
        p->drawLine(QPointF(m.x1, m.y), QPointF(m.x2, m.y));
        p->drawLine(QPointF(m.x1, m.y - 5), QPointF(m.x1, m.y + 5));
        p->drawLine(QPointF(m.x2, m.y - 5), QPointF(m.x2, m.y + 5));
        drawArrowHead(p, QPointF(m.x2, m.y), QPointF(m.x1, m.y), m.color);
        drawArrowHead(p, QPointF(m.x1, m.y), QPointF(m.x2, m.y), m.color);
    }
    for (const TimingDrawing::Text &t : d.texts) {
        p->setFont(TimingDrawing::textFont(t.bold));
        p->setPen(t.color);
        p->drawText(t.rect, Qt::AlignCenter, TimingDrawing::shown(t));
    }
}
