#pragma once

#include <QGraphicsView>

class QGraphicsItem;

// Graphics view of a clock drawing with wheel and button zoom around one fit item.
class ClockGraphicsView : public QGraphicsView
{
    Q_OBJECT
public:
    explicit ClockGraphicsView(QWidget *parent = nullptr);

    // The item whose bounds define "zoom reset" (the drawing).
    void setFitItem(QGraphicsItem *item) { m_fitItem = item; }
    QGraphicsItem *fitItem() const { return m_fitItem; }

    void zoomIn();
    void zoomOut();
    void zoomReset();
    double zoomFactor() const { return m_zoom; }

public slots:
    // While a control of the drawing has the focus, the wheel scrolls that control.
    void Focus_InControl_Slot(bool focused);

protected:
    void wheelEvent(QWheelEvent *event) override;

private:
    void applyZoom(double zoom);

    QGraphicsItem *m_fitItem = nullptr;
    double m_zoom = 1.0;
    bool m_controlFocused = false;
};
