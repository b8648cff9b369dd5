#pragma once

#include <QColor>
#include <QGraphicsItem>
#include <QList>
#include <QPolygonF>
#include <QRectF>
#include <QString>

// Vector description of a clock tree picture: frames, wires, selectors and texts.
struct ClockDrawing
{
    enum class BlockKind { Source, Pll, Divider, Group, Output, Note };
    enum class WireKind { Signal, Bus, Thin };

    struct Block
    {
        QRectF rect;
        BlockKind kind = BlockKind::Group;
        QString title; // untranslated source text, context "ClockDiagram"
    };
    struct Wire
    {
        QPolygonF points;
        WireKind kind = WireKind::Signal;
        bool arrow = true;
    };
    struct Mux
    {
        QRectF rect; // narrow side on the right
        QString title;
    };
    struct Text
    {
        QPointF pos; // left end of the base line
        QString text;
        int pointSize = 9;
        bool bold = false;
        QColor color = QColor(40, 55, 70);
    };

    QSizeF size;
    QList<Block> blocks;
    QList<Wire> wires;
    QList<Mux> muxes;
    QList<Text> texts;
    QList<QPointF> dots;

    void block(const QRectF &r, BlockKind kind, const QString &title = QString());
    void wire(std::initializer_list<QPointF> points, WireKind kind = WireKind::Signal,
              bool arrow = true);
    void mux(const QRectF &r, const QString &title = QString());
    void text(const QPointF &pos, const QString &t, int pointSize = 9, bool bold = false,
              const QColor &color = QColor(40, 55, 70));
    void dot(const QPointF &p) { dots.append(p); }
};

// Graphics item that paints a ClockDrawing; it is the fit item of the clock view.
class ClockDiagramItem : public QGraphicsItem
{
public:
    explicit ClockDiagramItem(const ClockDrawing &drawing, QGraphicsItem *parent = nullptr);

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget) override;
    const ClockDrawing &drawing() const { return m_drawing; }

private:
    ClockDrawing m_drawing;
};
