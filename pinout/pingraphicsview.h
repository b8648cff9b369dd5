#pragma once

#include <QGraphicsView>
#include <QPoint>

// Graphics view with stepped zoom, keyboard moves and drag panning, used for the chip drawing
// and the other pictures of the program.
class PinGraphicsView : public QGraphicsView
{
    Q_OBJECT
public:
    explicit PinGraphicsView(QWidget *parent = nullptr);

    double factor = 1.0;
    double step = 0.2;
    Qt::MouseButton pressButton = Qt::LeftButton;
    bool panEnabled = true;

    // The item the picture views keep in sight; it doesn't change the zoom rules.
    void setFitItem(QGraphicsItem *item) { m_fitItem = item; }
    QGraphicsItem *fitItem() const { return m_fitItem; }
    // The scale now in force (1 at start and after a reset).
    double currentScale() const;

public slots:
    void zoomIn();
    void zoomOut();
    void zoomReset();
    void zoom(float scaleFactor);
    void translate(QPointF delta);

protected:
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    bool pressTargetsItem(const QPoint &pos, Qt::MouseButton button) const;

    QGraphicsItem *m_fitItem = nullptr;
    bool m_panning = false;
    QPoint m_lastPanPos;
};
