#pragma once

#include "clock/clockdrawing.h"
#include "clock/clocktreestate.h"

#include <QWidget>

class ClockComboBox;
class ClockGraphicsView;
class ClockDiagramItem;
class QGraphicsProxyWidget;
class QGraphicsScene;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

// Base of every clock tree: the scene, its view, the drawing and the clock record.
class MQ48MCUPLL : public QWidget
{
    Q_OBJECT
public:
    explicit MQ48MCUPLL(int mcuModel, QWidget *parent = nullptr);
    ~MQ48MCUPLL() override;

    ClockTreeState &clockState() { return m_state; }
    const ClockTreeState &clockState() const { return m_state; }
    QString mcuName() const { return m_mcuName; }
    ClockGraphicsView *view() const { return m_view; }
    QGraphicsScene *scene() const { return m_scene; }
    ClockDiagramItem *diagram() const { return m_diagram; }

    void zoomIn();
    void zoomOut();
    void zoomReset();

protected:
    void setMcuName(const QString &name) { m_mcuName = name; }
    // Replaces the background drawing; it becomes the fit item of the view.
    void setDrawing(const ClockDrawing &drawing);

    ClockComboBox *addComboBox(int x, int y, int width, double z = 1.0,
                               QGraphicsProxyWidget **proxy = nullptr);
    QLineEdit *addLineEdit(int x, int y, int maxWidth, QGraphicsProxyWidget **proxy = nullptr);
    QLabel *addLabel(const QString &text, int x, int y, int pointSize = 9, int weight = 50,
                     QGraphicsProxyWidget **proxy = nullptr);
    QRadioButton *addRadioButton(const QString &text, int x, int y,
                                 QGraphicsProxyWidget **proxy = nullptr);
    QLineEdit *addValueField(int x, int y, int width = 80);
    QPushButton *addListButton(int x, int y, QGraphicsProxyWidget **proxy = nullptr);
    QGroupBox *addPeripheralList(const QString &title, const QStringList &names, int x, int y,
                                 QGraphicsProxyWidget **proxy = nullptr);

    // Fits the holder of a control to the control's size after a text or width change; a
    // control given a room first takes the largest font size (down to 6 points) whose text
    // fits into it, and a label whose text still does not fit is elided with a tool tip.
    static void refit(QWidget *control);
    // Limits the width of a text control to `room` pixels from now on (0: no limit).
    static void setTextRoom(QWidget *control, int room);
    static void setLabelColor(QWidget *label, const QColor &color);
    static void setEditColor(QWidget *edit, const QColor &color);

private:
    QGraphicsProxyWidget *embed(QWidget *widget, int x, int y);

    ClockTreeState m_state;
    QGraphicsScene *m_scene = nullptr;
    ClockGraphicsView *m_view = nullptr;
    ClockDiagramItem *m_diagram = nullptr;
    QString m_mcuName;
};
