#pragma once

#include <QColor>
#include <QFont>
#include <QGraphicsItem>
#include <QList>
#include <QMap>
#include <QPolygonF>
#include <QRectF>
#include <QSizeF>
#include <QString>

// Vector description of a timing picture: shapes, lines, measures and texts, and the places
// where the value labels stand. Texts and labels are placed by their measured size around an
// anchor (see layoutTiming), never at fixed pixels.
struct TimingDrawing
{
    // Where a text or label stands relative to its anchor; it moves further that way when it
    // would cover something placed before it.
    enum class Side { Above, Below, Left, Right, Center };

    struct Shape
    {
        QRectF rect;
        QColor fill;
        QColor border;
    };
    struct Line
    {
        QPolygonF points;
        QColor color;
        qreal width = 2.0;
        bool dashed = false;
        bool arrow = false; // an arrow head at the last point
    };
    struct Measure // a horizontal dimension line with a head at both ends
    {
        qreal x1 = 0.0;
        qreal x2 = 0.0;
        qreal y = 0.0;
        QColor color;
    };
    struct Text
    {
        QPointF anchor;
        Side side = Side::Center;
        QString source; // untranslated, context "TimingDiagram", unless `literal`
        bool literal = false;
        bool bold = false;
        QColor color;
        QRectF rect; // set by the layout
    };
    struct Place // where a value label goes
    {
        QString key;
        QPointF anchor;
        Side side = Side::Below;
    };

    QList<Shape> shapes;
    QList<Line> lines;
    QList<Measure> measures;
    QList<Text> texts;
    QList<Place> places;

    void shape(const QRectF &r, const QColor &fill, const QColor &border);
    void line(std::initializer_list<QPointF> points, const QColor &color, qreal width = 2.0,
              bool dashed = false, bool arrow = false);
    void measure(qreal x1, qreal x2, qreal y, const QColor &color);
    void text(const QPointF &anchor, Side side, const QString &source, const QColor &color,
              bool bold = false, bool literal = false);
    void place(const QString &key, const QPointF &anchor, Side side);

    // The text as shown: translated unless literal.
    static QString shown(const Text &t);
    // The font of the picture's texts.
    static QFont textFont(bool bold = false);
    // The size a text takes in the picture.
    static QSizeF textSize(const Text &t);
};

// A drawing with every text and label placed.
struct TimingLayout
{
    TimingDrawing drawing;
    QMap<QString, QRectF> labels; // place key -> rectangle of its label
    QRectF bounds;                // the picture and everything placed on it, with a margin
};

// Places the texts of a drawing and the labels of its places, labels first: each goes beside
// its anchor as its side says and moves away from the anchor until it covers nothing placed
// before it. `labelSizes` gives the measured size of each label.
TimingLayout layoutTiming(const TimingDrawing &drawing, const QMap<QString, QSizeF> &labelSizes);

// Graphics item that paints a laid out timing picture; the value labels are widgets above it.
class TimingDiagramItem : public QGraphicsItem
{
public:
    TimingDiagramItem() = default;

    void setLayout(const TimingLayout &layout);
    const TimingLayout &timingLayout() const { return m_layout; }

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget) override;

private:
    TimingLayout m_layout;
};
