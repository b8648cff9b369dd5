#pragma once

#include "database/records.h"
#include "pinout/chiplayout.h"
#include "pinout/pinassignengine.h"

#include <QList>
#include <QWidget>

class PinGraphicsView;
class PinQGraphicsRectItem;
class PinQGraphicsTextItem;
class QAction;
class QComboBox;
class QGraphicsItem;
class QGraphicsScene;
class QLabel;
class QToolBar;
class QGraphicsRectItemEXT;

// The pin-out tab: draws the chip of the design and passes every pin request to the engine.
class ChipView : public QWidget
{
    Q_OBJECT
public:
    explicit ChipView(DevicePinInfo *devicePinInfo, QWidget *parent = nullptr);
    ~ChipView() override;

    PinAssignEngine *engine() { return &m_engine; }
    DevicePinInfo *devicePinInfo() const { return m_engine.devicePinInfo(); }
    PinGraphicsView *graphicsView() const { return m_view; }
    QGraphicsScene *scene() const { return m_scene; }
    QComboBox *searchBox() const { return m_searchBox; }
    const QList<PinQGraphicsRectItem *> &pinItems() const { return m_pinItems; }
    const QList<PinQGraphicsTextItem *> &pinNameItems() const { return m_nameItems; }
    const QList<PinQGraphicsTextItem *> &pinLabelItems() const { return m_labelItems; }
    // The pin item of a package pin number, or nullptr.
    PinQGraphicsRectItem *pinItem(int pinNum) const;
    QList<QAction *> toolActions() const;

    // Re-labels the drawing after a change of language.
    void retranslateUi();

    // Drawing constants of the package now shown.
    int cornerGap = 0;
    int pinPitch = 0;
    int pinLength = 0;
    int xPinNum = 0;
    int yPinNum = 0;
    int PinNums = 0;
    int bodyWidth = 0;
    int bodyHeight = 0;
    QString packageName;
    QString mcuModel;
    bool pinRemap = false;

signals:
    void SendAllConfigedSignals(DevicePinInfo *devicePinInfo, bool updateControlFlag,
                                QString sendIPName);

public slots:
    void ZoomIn();
    void ZoomOut();
    void ZoomReset();
    void Rotated_Clockwise();
    void Rotated_AnitClockwise();
    void RedrawScene();
    void UpdatePinConfigInfoSlot(MCUPinsBaseInfo pinBaseInfo);
    void UpdatePinConfigInfoUserLabel(MCUPinsBaseInfo pinBaseInfo);
    void AllConfigReset();
    void ReciveIPPinSignals(QList<ModeSignal> ipAllPinSignals, QList<ModeSignal> ipValidPinSignals,
                            bool updateControlFlag, QString sendIPName);
    void ReciveClearIPPinSignals(QList<ModeSignal> ipAllPinSignals, bool updateControlFlag,
                                 QString sendIPName);
    void ReceiveGPIOQuerySignals(QString pinName, QString pinSignal);
    void QueryActived(int n);
    void QueryEditingFinished();
    void ReceivePinRemapFlag(bool flag);
    void ReceiveGPIOSignalsUserLabelChange(int pinNum, QString pinSignal, QString userLabel);

private:
    void buildScene();
    void addBodyTexts(QGraphicsRectItemEXT *body, const ChipLayout &layout);
    void refreshPinVisuals();
    void rebuildSearchList();
    void updatePinTexts(int index);
    // Turns a text half a turn where the rotation of the view would show it upside down.
    void orientText(QGraphicsItem *text) const;
    // orientText() for every text of the drawing.
    void orientAllTexts();
    // The turn of the view in degrees, 0, 90, 180 or 270.
    int viewRotation() const;
    // The scene's fixed extent: the chip with room for the widest label on every side, so
    // that a label that appears never shifts the drawing.
    QRectF sceneExtent() const;
    void stopBlinkAndEdits();
    void search(const QString &text);

    PinAssignEngine m_engine;
    ChipLayout m_layout;
    QLabel *m_title;
    PinGraphicsView *m_view;
    QGraphicsScene *m_scene = nullptr;
    QToolBar *m_toolBar;
    QAction *m_zoomInAction;
    QAction *m_zoomOutAction;
    QAction *m_zoomResetAction;
    QAction *m_searchAction;
    QAction *m_clockwiseAction;
    QAction *m_antiClockwiseAction;
    QComboBox *m_searchBox;
    QList<PinQGraphicsRectItem *> m_pinItems;
    QList<PinQGraphicsTextItem *> m_nameItems;
    QList<PinQGraphicsTextItem *> m_labelItems;
    // The model, package and logo texts on the body.
    QList<QGraphicsItem *> m_bodyTexts;
};
