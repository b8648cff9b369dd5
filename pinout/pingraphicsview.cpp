#include "pinout/pingraphicsview.h"

#include "pinout/qgraphicsrectitemext.h"

#include <QGraphicsItem>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>

PinGraphicsView::PinGraphicsView(QWidget *parent) : QGraphicsView(parent)
{
    setRenderHint(QPainter::Antialiasing);
    setRenderHint(QPainter::TextAntialiasing);
    setTransformationAnchor(QGraphicsView::AnchorViewCenter);
    centerOn(0, 0);
}

double PinGraphicsView::currentScale() const
{
    return transform().mapRect(QRectF(0, 0, 1, 1)).width();
}

void PinGraphicsView::zoomIn()
{
    zoom(float(1 + step));
}

void PinGraphicsView::zoomOut()
{
    zoom(float(1 - step));
}

void PinGraphicsView::zoom(float scaleFactor)
{
    const double width =
        transform().scale(scaleFactor, scaleFactor).mapRect(QRectF(0, 0, 1, 1)).width();
    if (width < 0.2 || width > 5.0)
        return;
    scale(scaleFactor, scaleFactor);
    factor *= scaleFactor;
}

void PinGraphicsView::zoomReset()
{
    // Back to scale 1; a turn of the drawing and the offset stay.
    const QTransform t = transform();
    const double angle = std::atan2(t.m12(), t.m11());
    QTransform reset;
    reset.rotateRadians(angle);
    setTransform(QTransform(reset.m11(), reset.m12(), t.m13(), reset.m21(), reset.m22(), t.m23(),
                            t.m31(), t.m32(), t.m33()));
    factor = 1.0;
}

void PinGraphicsView::translate(QPointF delta)
{
    delta *= factor;
    delta *= currentScale();
    const ViewportAnchor anchor = transformationAnchor();
    setTransformationAnchor(QGraphicsView::NoAnchor);
    const QPoint centre(viewport()->rect().width() / 2 - int(delta.x()),
                        viewport()->rect().height() / 2 - int(delta.y()));
    centerOn(mapToScene(centre));
    setTransformationAnchor(anchor);
}

void PinGraphicsView::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() & Qt::ControlModifier) {
        if (event->angleDelta().y() > 0)
            zoomIn();
        else if (event->angleDelta().y() < 0)
            zoomOut();
        event->accept();
        return;
    }
    QGraphicsView::wheelEvent(event);
}

void PinGraphicsView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
        zoomIn();
        break;
    case Qt::Key_Minus:
        zoomOut();
        break;
    case Qt::Key_Left:
        translate(QPointF(-2, 0));
        break;
    case Qt::Key_Up:
        translate(QPointF(0, -2));
        break;
    case Qt::Key_Right:
        translate(QPointF(2, 0));
        break;
    case Qt::Key_Down:
        translate(QPointF(0, 2));
        break;
    default:
        QGraphicsView::keyPressEvent(event);
        return;
    }
    event->accept();
}

bool PinGraphicsView::pressTargetsItem(const QPoint &pos, Qt::MouseButton button) const
{
    for (QGraphicsItem *item : items(pos)) {
        if (!(item->acceptedMouseButtons() & button))
            continue;
        // The body, and what lies on it, belong to the background for panning.
        QGraphicsItem *top = item->topLevelItem();
        return !dynamic_cast<QGraphicsRectItemEXT *>(top);
    }
    return false;
}

void PinGraphicsView::mousePressEvent(QMouseEvent *event)
{
    const bool onItem = pressTargetsItem(event->pos(), event->button());
    QGraphicsView::mousePressEvent(event);
    if (panEnabled && event->button() == pressButton && !onItem) {
        m_panning = true;
        m_lastPanPos = event->pos();
        viewport()->setCursor(Qt::ClosedHandCursor);
        event->accept();
    }
}

void PinGraphicsView::mouseMoveEvent(QMouseEvent *event)
{
    if (m_panning) {
        const QPoint delta = event->pos() - m_lastPanPos;
        m_lastPanPos = event->pos();
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - delta.x());
        verticalScrollBar()->setValue(verticalScrollBar()->value() - delta.y());
        event->accept();
        return;
    }
    QGraphicsView::mouseMoveEvent(event);
}

void PinGraphicsView::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_panning && event->button() == pressButton) {
        m_panning = false;
        viewport()->setCursor(Qt::ArrowCursor);
    }
    QGraphicsView::mouseReleaseEvent(event);
}
