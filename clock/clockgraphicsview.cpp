#include "clock/clockgraphicsview.h"

#include <QGraphicsItem>
#include <QScrollBar>
#include <QWheelEvent>
#include <QtMath>

namespace {
constexpr double kZoomStep = 1.15;
constexpr double kZoomMin = 0.3;
constexpr double kZoomMax = 4.0;
} // namespace

ClockGraphicsView::ClockGraphicsView(QWidget *parent) : QGraphicsView(parent)
{
    setRenderHint(QPainter::Antialiasing);
    setRenderHint(QPainter::TextAntialiasing);
    setRenderHint(QPainter::SmoothPixmapTransform);
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    setTransformationAnchor(QGraphicsView::AnchorUnderMouse);
    setStyleSheet(
        QStringLiteral("QGraphicsView { background-color: rgb(255, 255, 255); border: none; }"
                       "QScrollBar:vertical { width: 12px; background: rgb(217, 233, 246); }"
                       "QScrollBar:horizontal { height: 12px; background: rgb(217, 233, 246); }"
                       "QScrollBar::handle { background: rgb(139, 207, 215); border-radius: 4px; }"
                       "QScrollBar::add-line, QScrollBar::sub-line { width: 0px; height: 0px; }"));
}

void ClockGraphicsView::applyZoom(double zoom)
{
    m_zoom = qBound(kZoomMin, zoom, kZoomMax);
    QTransform t;
    t.scale(m_zoom, m_zoom);
    setTransform(t);
}

void ClockGraphicsView::zoomIn()
{
    applyZoom(m_zoom * kZoomStep);
}

void ClockGraphicsView::zoomOut()
{
    applyZoom(m_zoom / kZoomStep);
}

void ClockGraphicsView::zoomReset()
{
    applyZoom(1.0);
    if (m_fitItem) {
        const QRectF bounds = m_fitItem->sceneBoundingRect();
        setSceneRect(bounds.adjusted(-10, -10, 10, 10));
        ensureVisible(bounds.left(), bounds.top(), 1, 1, 0, 0);
    }
}

void ClockGraphicsView::Focus_InControl_Slot(bool focused)
{
    m_controlFocused = focused;
}

void ClockGraphicsView::wheelEvent(QWheelEvent *event)
{
    if (m_controlFocused) {
        QGraphicsView::wheelEvent(event);
        return;
    }
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
