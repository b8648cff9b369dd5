#pragma once

#include "database/records.h"

#include <QGraphicsRectItem>
#include <QList>
#include <QObject>
#include <QPoint>

class ChipView;
class CustomPinAction;
class Enter_UserLabel_Dialog;
class QAction;
class QMenu;
class QTimer;

// One pin of the drawing: its fill shows the state, its menu ticks signals, it blinks on a
// search hit and edits the user label.
class PinQGraphicsRectItem : public QObject, public QGraphicsRectItem
{
    Q_OBJECT
public:
    PinQGraphicsRectItem(ChipView *chipView, const MCUPinsBaseInfo &pinInfo, int side,
                         const QRectF &rect, QGraphicsItem *parent = nullptr);
    ~PinQGraphicsRectItem() override;

    // Takes another record (a pin variant switched) and builds the menus again.
    void setPinInfo(const MCUPinsBaseInfo &pinInfo);
    const MCUPinsBaseInfo &pinInfo() const { return m_pinInfo; }
    int side() const { return m_side; }
    int pinState() const { return m_pinState; }
    bool isBlinking() const { return m_blinking; }
    QColor fillColor() const;

    // Takes the pin's record from the engine and shows its states.
    void refreshFromEngine();

    QMenu *signalMenu() const { return m_signalMenu; }
    QMenu *labelMenu() const { return m_labelMenu; }
    QAction *resetAction() const { return m_resetAction; }
    QAction *enterLabelAction() const { return m_enterLabelAction; }
    const QList<CustomPinAction *> &pinActions() const { return m_actions; }
    Enter_UserLabel_Dialog *labelDialog() const { return m_labelDialog; }

    // Search tests; each first stops blinking, a hit starts it.
    bool blinkIfPinAndSignal(const QString &pinName, const QString &signalName);
    bool blinkIfExact(const QString &text);
    bool blinkIfContains(const QString &text);
    void stopBlink();
    // Ends a running label edit as leaving the line edit would.
    void endLabelEdit();
    void retranslateUi();

    // Equality of two InPin texts as the menu uses it.
    static bool inPinMatches(const QString &first, const QString &second);

public slots:
    void checkedLibAction(QAction *tmp1Action);
    void EnterLabelAction(QAction *tmpAction);
    void HandleTimeout();
    void UserLabelEditFinished_Slot(QString userLabel);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;

private:
    void buildMenus();
    void drawFill(int state);
    void updateToolTip();
    void setShortToolTip();
    MCUPinSignal *signalOf(const CustomPinAction *action) const;
    void startBlink();

    MCUPinsBaseInfo m_pinInfo;
    int m_side;
    QList<MCUPinSignal *> m_signals;
    QList<CustomPinAction *> m_actions;
    QMenu *m_signalMenu = nullptr;
    QMenu *m_labelMenu = nullptr;
    QAction *m_resetAction = nullptr;
    QAction *m_enterLabelAction = nullptr;
    QTimer *m_timer;
    bool m_blinking = false;
    int m_pinState = 0;
    bool m_blinkOn = false;
    ChipView *m_chipView;
    Enter_UserLabel_Dialog *m_labelDialog = nullptr;
    QPoint m_lastPressPos;
};
