#pragma once

#include "peripherals/diagrams/timingdrawing.h"

#include <QMap>
#include <QString>
#include <QWidget>

class ParamSettingWidget;
class PinGraphicsView;
class QGraphicsProxyWidget;
class QGraphicsScene;
class QLabel;

// Base of the timing diagrams: a scene with the picture and blue value labels above it. The
// picture is laid out again whenever a label's text changes.
class TimingDiagram : public QWidget
{
    Q_OBJECT
public:
    explicit TimingDiagram(QWidget *parent = nullptr);

    // The text of a value label; empty for an unknown key.
    QString labelText(const QString &key) const;
    QLabel *valueLabel(const QString &key) const { return m_labels.value(key); }
    QStringList labelKeys() const { return m_labels.keys(); }
    QGraphicsScene *scene() const { return m_scene; }
    PinGraphicsView *view() const { return m_view; }
    TimingDiagramItem *pictureItem() const { return m_item; }
    // Lays the picture out again (after a change of language, for instance).
    void relayout();
    QSize sizeHint() const override;

protected:
    // Makes a value label with its first text.
    QLabel *addValueLabel(const QString &key, const QString &text);
    void setLabelText(const QString &key, const QString &text);
    // The picture for the label sizes now in force.
    virtual TimingDrawing picture(const QMap<QString, QSizeF> &labelSizes) const = 0;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitView();

    QGraphicsScene *m_scene = nullptr;
    PinGraphicsView *m_view = nullptr;
    TimingDiagramItem *m_item = nullptr;
    QMap<QString, QLabel *> m_labels;
    QMap<QString, QGraphicsProxyWidget *> m_proxies;
};

// One CAN bit with its segments and the sample point.
class CAN_Configuration_Diagram : public TimingDiagram
{
    Q_OBJECT
public:
    explicit CAN_Configuration_Diagram(QWidget *parent = nullptr);

public slots:
    void ReciveCanParamValue(uint BS1, uint BS2, uint Sync, double Sample);

protected:
    TimingDrawing picture(const QMap<QString, QSizeF> &labelSizes) const override;

private:
    uint m_bs1 = 13;
    uint m_bs2 = 2;
    uint m_sync = 1;
};

// SCL and SDA with the edge, setup and hold times and the SCL period.
class I2C_Configuration_Diagram : public TimingDiagram
{
    Q_OBJECT
public:
    explicit I2C_Configuration_Diagram(QWidget *parent = nullptr);

public slots:
    void ReciveI2CParamValue(uint tr, uint tf, uint tSu, uint fSCL);

protected:
    TimingDrawing picture(const QMap<QString, QSizeF> &labelSizes) const override;
};

// The timer's clock, prescaler, period and output above the course of its counter.
class TMR_Configuration_Diagram : public TimingDiagram
{
    Q_OBJECT
public:
    explicit TMR_Configuration_Diagram(QWidget *parent = nullptr);

    // 1 counting up, 2 down, 3 up and down.
    uint direction() const { return m_direction; }

public slots:
    void ReciveTMRParamValue(double tmr_clk, uint tmr_div, uint tmr_pr, uint tmr_direction);

protected:
    TimingDrawing picture(const QMap<QString, QSizeF> &labelSizes) const override;
    void changeEvent(QEvent *event) override;

private:
    uint m_direction = 3;
    bool m_external = false;
};

// The diagram of a peripheral, fed by its parameter panel: CAN, I2C and timers have one;
// nullptr for the others.
TimingDiagram *createTimingDiagram(const QString &ipName, ParamSettingWidget *params,
                                   QWidget *parent);
