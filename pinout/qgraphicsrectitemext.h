#pragma once

#include <QGraphicsRectItem>
#include <QList>

class PinQGraphicsRectItem;

// The chip body: a press on it ends blinking and label edits on every pin.
class QGraphicsRectItemEXT : public QGraphicsRectItem
{
public:
    explicit QGraphicsRectItemEXT(const QRectF &rect, QGraphicsItem *parent = nullptr);

    QList<PinQGraphicsRectItem *> pinItems;
    Qt::MouseButton pressButton = Qt::LeftButton;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
};
