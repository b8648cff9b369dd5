#include "clock/clockdrawing.h"

#include <QCoreApplication>
#include <QPainter>
#include <QtMath>

void ClockDrawing::block(const QRectF &r, BlockKind kind, const QString &title)
{
    blocks.append({r, kind, title});
}

void ClockDrawing::wire(std::initializer_list<QPointF> points, WireKind kind, bool arrow)
{
    Wire w;
    for (const QPointF &p : points)
        w.points.append(p);
    w.kind = kind;
    w.arrow = arrow;
    wires.append(w);
}

void ClockDrawing::mux(const QRectF &r, const QString &title)
{
    muxes.append({r, title});
}

void ClockDrawing::text(const QPointF &pos, const QString &t, int pointSize, bool bold,
                        const QColor &color)
{
    texts.append({pos, t, pointSize, bold, color});
}

namespace {

QString translated(const QString &source)
{
    return QCoreApplication::translate("ClockDiagram", source.toUtf8().constData());
}

struct BlockStyle
{
    QColor fill;
    QColor border;
    QColor title;
};

BlockStyle styleOf(ClockDrawing::BlockKind kind)
{
    switch (kind) {
    case ClockDrawing::BlockKind::Source:
        return {QColor(226, 240, 251), QColor(74, 128, 176), QColor(30, 78, 122)};
    case ClockDrawing::BlockKind::Pll:
        return {QColor(255, 246, 228), QColor(208, 146, 52), QColor(150, 90, 10)};
    case ClockDrawing::BlockKind::Divider:
        return {QColor(255, 255, 255), QColor(96, 112, 128), QColor(50, 60, 70)};
    case ClockDrawing::BlockKind::Output:
        return {QColor(235, 248, 238), QColor(88, 160, 104), QColor(32, 100, 52)};
    case ClockDrawing::BlockKind::Note:
        return {QColor(255, 250, 235), QColor(220, 170, 80), QColor(150, 90, 10)};
    case ClockDrawing::BlockKind::Group:
        break;
    }
    return {QColor(248, 251, 253), QColor(150, 172, 190), QColor(60, 84, 108)};
}

void drawArrowHead(QPainter *p, const QPointF &from, const QPointF &to, double size)
{
    const QLineF line(from, to);
    if (line.length() < 0.1)
        return;
    const double angle = qDegreesToRadians(line.angle());
    const QPointF back1 =
        to + QPointF(-qCos(angle - M_PI / 7) * size, qSin(angle - M_PI / 7) * size);
    const QPointF back2 =
        to + QPointF(-qCos(angle + M_PI / 7) * size, qSin(angle + M_PI / 7) * size);
    p->drawPolygon(QPolygonF({to, back1, back2}));
}

} // namespace

ClockDiagramItem::ClockDiagramItem(const ClockDrawing &drawing, QGraphicsItem *parent)
    : QGraphicsItem(parent), m_drawing(drawing)
{
    setZValue(-10);
}

QRectF ClockDiagramItem::boundingRect() const
{
    return QRectF(QPointF(0, 0), m_drawing.size);
}

void ClockDiagramItem::paint(QPainter *p, const QStyleOptionGraphicsItem *, QWidget *)
{
    p->setRenderHint(QPainter::Antialiasing);
    p->setRenderHint(QPainter::TextAntialiasing);

    // Sheet with a soft frame.
    p->setPen(QPen(QColor(200, 214, 226), 1));
    p->setBrush(Qt::white);
    p->drawRoundedRect(boundingRect().adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);

    QFont titleFont(QStringLiteral("Arial"));
    titleFont.setPointSize(9);
    titleFont.setBold(true);

    // Group frames first, so that wires and blocks sit on top of them.
    for (int pass = 0; pass < 2; ++pass) {
        for (const ClockDrawing::Block &b : m_drawing.blocks) {
            const bool group = b.kind == ClockDrawing::BlockKind::Group;
            if ((pass == 0) != group)
                continue;
            const BlockStyle s = styleOf(b.kind);
            QPen pen(s.border, group ? 1.0 : 1.4);
            if (group)
                pen.setStyle(Qt::DashLine);
            p->setPen(pen);
            p->setBrush(s.fill);
            p->drawRoundedRect(b.rect, 5, 5);
            if (!b.title.isEmpty()) {
                p->setFont(titleFont);
                p->setPen(s.title);
                if (b.kind == ClockDrawing::BlockKind::Divider) {
                    p->drawText(b.rect, Qt::AlignCenter, translated(b.title));
                } else {
                    p->drawText(b.rect.adjusted(8, 4, -8, -4), Qt::AlignLeft | Qt::AlignTop,
                                translated(b.title));
                }
            }
        }
        if (pass == 0) {
            for (const ClockDrawing::Wire &w : m_drawing.wires) {
                QColor c(72, 92, 112);
                double width = 1.4;
                if (w.kind == ClockDrawing::WireKind::Bus) {
                    c = QColor(40, 96, 150);
                    width = 3.0;
                } else if (w.kind == ClockDrawing::WireKind::Thin) {
                    c = QColor(140, 156, 170);
                    width = 1.0;
                }
                p->setPen(QPen(c, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
                p->setBrush(Qt::NoBrush);
                p->drawPolyline(w.points);
                if (w.arrow && w.points.size() >= 2) {
                    p->setPen(QPen(c, 1));
                    p->setBrush(c);
                    drawArrowHead(p, w.points.at(w.points.size() - 2), w.points.last(),
                                  w.kind == ClockDrawing::WireKind::Bus ? 10 : 8);
                }
            }
            p->setPen(Qt::NoPen);
            p->setBrush(QColor(72, 92, 112));
            for (const QPointF &d : m_drawing.dots)
                p->drawEllipse(d, 3, 3);
        }
    }

    for (const ClockDrawing::Mux &m : m_drawing.muxes) {
        const QRectF r = m.rect;
        const double inset = r.height() * 0.12;
        QPolygonF shape({r.topLeft(), QPointF(r.right(), r.top() + inset),
                         QPointF(r.right(), r.bottom() - inset), r.bottomLeft()});
        p->setPen(QPen(QColor(74, 128, 176), 1.4));
        p->setBrush(QColor(214, 232, 248));
        p->drawPolygon(shape);
        if (!m.title.isEmpty()) {
            p->save();
            p->translate(r.center());
            p->rotate(-90);
            p->setFont(titleFont);
            p->setPen(QColor(30, 78, 122));
            p->drawText(QRectF(-r.height() / 2, -r.width() / 2, r.height(), r.width()),
                        Qt::AlignCenter, translated(m.title));
            p->restore();
        }
    }

    for (const ClockDrawing::Text &t : m_drawing.texts) {
        QFont f(QStringLiteral("Arial"));
        f.setPointSize(t.pointSize);
        f.setBold(t.bold);
        p->setFont(f);
        p->setPen(t.color);
        p->drawText(t.pos, translated(t.text));
    }
}
