#include "pinout/qgraphicsrectitemext.h"

#include "pinout/pinqgraphicsrectitem.h"

#include <QCursor>
#include <QGraphicsSceneMouseEvent>

QGraphicsRectItemEXT::QGraphicsRectItemEXT(const QRectF &rect, QGraphicsItem *parent)
    : QGraphicsRectItem(rect, parent)
{
}

void QGraphicsRectItemEXT::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    for (PinQGraphicsRectItem *pin : qAsConst(pinItems)) {
        pin->stopBlink();
        pin->endLabelEdit();
    }
    if (event->button() == pressButton)
        setCursor(Qt::ClosedHandCursor);
    event->accept();
}

void QGraphicsRectItemEXT::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    // The view pans the drawing; the body itself stays with its pins.
    event->accept();
}

void QGraphicsRectItemEXT::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    setCursor(Qt::ArrowCursor);
    event->accept();
}
