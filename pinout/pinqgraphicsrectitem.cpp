#include "pinout/pinqgraphicsrectitem.h"

#include "database/devicereader.h"
#include "database/language.h"
#include "pinout/chipview.h"
#include "pinout/custompinaction.h"
#include "pinout/enter_userlabel_dialog.h"
#include "pinout/pinassignengine.h"
#include "widgets/messagebox.h"

#include <QBrush>
#include <QGraphicsSceneMouseEvent>
#include <QIcon>
#include <QLineEdit>
#include <QMenu>
#include <QPen>
#include <QTimer>

namespace {

const QColor kFreeColour(190, 190, 190);
const QColor kFixedColour(220, 230, 241);
const QColor kPinOnlyColour(243, 233, 110);
const QColor kInUseColour(0, 200, 0);
const QColor kBlinkColour(57, 169, 220);

QString multiIconPath()
{
    return QStringLiteral(":/image/add_P.png");
}

} // namespace

PinQGraphicsRectItem::PinQGraphicsRectItem(ChipView *chipView, const MCUPinsBaseInfo &pinInfo,
                                           int side, const QRectF &rect, QGraphicsItem *parent)
    : QObject(nullptr), QGraphicsRectItem(rect, parent), m_pinInfo(pinInfo), m_side(side),
      m_timer(new QTimer(this)), m_chipView(chipView)
{
    connect(m_timer, &QTimer::timeout, this, &PinQGraphicsRectItem::HandleTimeout);
    buildMenus();
}

PinQGraphicsRectItem::~PinQGraphicsRectItem()
{
    delete m_signalMenu;
    delete m_labelMenu;
    delete m_labelDialog;
}

bool PinQGraphicsRectItem::inPinMatches(const QString &first, const QString &second)
{
    return PinNamesMatch(first, second);
}

void PinQGraphicsRectItem::setPinInfo(const MCUPinsBaseInfo &pinInfo)
{
    m_pinInfo = pinInfo;
    delete m_signalMenu;
    delete m_labelMenu;
    m_signalMenu = nullptr;
    m_labelMenu = nullptr;
    m_resetAction = nullptr;
    m_enterLabelAction = nullptr;
    m_actions.clear();
    buildMenus();
}

void PinQGraphicsRectItem::buildMenus()
{
    m_signals = m_pinInfo.signalList;
    if (!m_signals.isEmpty()) {
        setPen(QPen(Qt::black, 1));
        m_signalMenu = new QMenu;
        m_resetAction = m_signalMenu->addAction(QStringLiteral("Reset_State"));
        QFont resetFont(QStringLiteral("Arial"), 10);
        resetFont.setWeight(70);
        m_resetAction->setFont(resetFont);
        m_resetAction->setCheckable(false);

        bool oneInPin = true;
        for (const MCUPinSignal *sig : qAsConst(m_signals))
            oneInPin = oneInPin && sig->InPin == m_signals.first()->InPin;
        for (const MCUPinSignal *sig : qAsConst(m_signals)) {
            const QString text =
                oneInPin ? sig->Func
                         : sig->Func + QLatin1Char('(') + sig->InPin + QLatin1Char(')');
            auto *action = new CustomPinAction(text, m_signalMenu);
            action->signalName = sig->Func;
            action->inPin = sig->InPin;
            action->setFont(QFont(QStringLiteral("Arial"), 10));
            action->setCheckable(true);
            m_signalMenu->addAction(action);
            m_actions.append(action);
        }
        connect(m_signalMenu, &QMenu::triggered, this, &PinQGraphicsRectItem::checkedLibAction);
    }
    if (!m_pinInfo.PinFixed) {
        m_labelMenu = new QMenu;
        m_enterLabelAction = m_labelMenu->addAction(tr("Enter Label"));
        connect(m_labelMenu, &QMenu::triggered, this, &PinQGraphicsRectItem::EnterLabelAction);
    }
    m_pinState = PinAssignEngine::pinState(m_pinInfo);
    for (CustomPinAction *action : qAsConst(m_actions)) {
        const MCUPinSignal *sig = signalOf(action);
        action->setChecked(sig && sig->status > 0);
    }
    updateToolTip();
    drawFill(m_pinState);
}

MCUPinSignal *PinQGraphicsRectItem::signalOf(const CustomPinAction *action) const
{
    for (MCUPinSignal *sig : m_signals) {
        if (sig->Func == action->signalName && inPinMatches(sig->InPin, action->inPin))
            return sig;
    }
    return nullptr;
}

QColor PinQGraphicsRectItem::fillColor() const
{
    return brush().color();
}

void PinQGraphicsRectItem::drawFill(int state)
{
    QColor colour;
    if (state < 1)
        colour = m_pinInfo.PinFixed ? kFixedColour : kFreeColour;
    else if (state == 1)
        colour = kPinOnlyColour;
    else
        colour = kInUseColour;
    setBrush(colour);
}

void PinQGraphicsRectItem::updateToolTip()
{
    QString remarks = g_language == 1 ? m_pinInfo.Remarks_CH : m_pinInfo.Remarks_EN;
    if (m_pinInfo.Remarks_CH.isEmpty() && m_pinInfo.Remarks_EN.isEmpty())
        remarks = m_pinInfo.Remarks;
    QString tip = QStringLiteral("Pin ") + QString::number(m_pinInfo.PinNum) +
                  QStringLiteral("-----") + m_pinInfo.PinName + QLatin1Char('\n') + remarks +
                  QLatin1Char('\n');
    for (const CustomPinAction *action : qAsConst(m_actions)) {
        if (action->isChecked())
            tip += QStringLiteral("+ ") + action->text() + QLatin1Char('\n');
    }
    setToolTip(tip);
}

void PinQGraphicsRectItem::setShortToolTip()
{
    setToolTip(QStringLiteral("Pin ") + QString::number(m_pinInfo.PinNum) +
               QStringLiteral("----") + m_pinInfo.PinName + QLatin1Char('\n'));
}

void PinQGraphicsRectItem::refreshFromEngine()
{
    const MCUPinsBaseInfo *record = m_chipView->engine()->activePin(m_pinInfo.PinNum);
    if (record) {
        if (record->signalList != m_signals)
            setPinInfo(*record);
        else
            m_pinInfo = *record;
    }
    bool litMulti = false;
    int state = SIGNAL_FREE;
    for (const MCUPinSignal *sig : qAsConst(m_signals)) {
        litMulti = litMulti || (sig->status > 0 && sig->Multi);
        state = std::max(state, sig->status);
    }
    for (CustomPinAction *action : qAsConst(m_actions)) {
        const MCUPinSignal *sig = signalOf(action);
        action->setChecked(sig && sig->status > 0);
        action->setIcon(litMulti && sig && sig->Multi ? QIcon(multiIconPath()) : QIcon());
    }
    updateToolTip();
    m_pinState = state;
    if (!m_blinking || !m_blinkOn)
        drawFill(m_pinState);
}

void PinQGraphicsRectItem::checkedLibAction(QAction *tmp1Action)
{
    if (!tmp1Action)
        return;
    if (tmp1Action == m_resetAction) {
        bool changed = false;
        for (CustomPinAction *action : qAsConst(m_actions)) {
            if (!action->isChecked())
                continue;
            action->setChecked(false);
            if (MCUPinSignal *sig = signalOf(action)) {
                sig->status = SIGNAL_FREE;
                if (!PinAssignEngine::isGpioWord(sig->Func))
                    sig->IOMode.clear();
            }
            changed = true;
        }
        if (changed) {
            m_chipView->UpdatePinConfigInfoSlot(m_pinInfo);
            setShortToolTip();
            m_pinState = SIGNAL_FREE;
            drawFill(m_pinState);
        }
        return;
    }
    auto *picked = qobject_cast<CustomPinAction *>(tmp1Action);
    if (!picked)
        return;
    const QString name = picked->text().split(QLatin1Char('(')).first().trimmed();
    MCUPinSignal *pickedSig = signalOf(picked);

    if (picked->isChecked()) {
        if (!m_chipView->engine()->groupPreCheck(name, m_pinInfo.PinNum)) {
            tellUser(nullptr, UserMessage::Error, tr("Error"),
                     tr("Unable to find signal group, switching failed!"));
            picked->setChecked(false);
            return;
        }
        if (!pickedSig)
            return;
        pickedSig->status |= PinAssignEngine::isGpioWord(pickedSig->Func) ? 3 : 1;
        for (CustomPinAction *other : qAsConst(m_actions)) {
            MCUPinSignal *sig = signalOf(other);
            if (other == picked || !sig || sig == pickedSig)
                continue;
            if (sig->Multi && pickedSig->Multi)
                continue;
            sig->status = SIGNAL_FREE;
            if (!PinAssignEngine::isGpioWord(sig->Func))
                sig->IOMode.clear();
            other->setChecked(false);
        }
    } else if (pickedSig) {
        pickedSig->status = SIGNAL_FREE;
        if (!PinAssignEngine::isGpioWord(pickedSig->Func))
            pickedSig->IOMode.clear();
    }
    updateToolTip();
    m_pinState = PinAssignEngine::pinState(m_pinInfo);
    drawFill(m_pinState);
    m_chipView->UpdatePinConfigInfoSlot(m_pinInfo);
}

void PinQGraphicsRectItem::EnterLabelAction(QAction *tmpAction)
{
    Q_UNUSED(tmpAction)
    if (!m_labelDialog) {
        m_labelDialog = new Enter_UserLabel_Dialog(m_chipView);
        connect(m_labelDialog, &Enter_UserLabel_Dialog::UserLabelEditFinished, this,
                &PinQGraphicsRectItem::UserLabelEditFinished_Slot);
    }
    QString signalText;
    QString label;
    for (const MCUPinSignal *sig : qAsConst(m_signals)) {
        if (sig->status <= 0)
            continue;
        signalText = sig->Func;
        if (sig->InPin.trimmed() != m_pinInfo.PinName.trimmed())
            signalText += QStringLiteral("  (") + sig->InPin + QLatin1Char(')');
        label = sig->userLabel;
        break;
    }
    m_labelDialog->setSignalText(signalText);
    m_labelDialog->setLabelText(label);
    m_labelDialog->move(m_lastPressPos + QPoint(-100, 15));
    m_labelDialog->showNormal();
    m_labelDialog->activateWindow();
    m_labelDialog->lineEdit()->setFocus();
    m_labelDialog->isEditing = true;
}

void PinQGraphicsRectItem::UserLabelEditFinished_Slot(QString userLabel)
{
    for (MCUPinSignal *sig : qAsConst(m_signals)) {
        if (sig->status > 0)
            sig->userLabel = userLabel;
    }
    m_chipView->UpdatePinConfigInfoUserLabel(m_pinInfo);
}

void PinQGraphicsRectItem::endLabelEdit()
{
    if (m_labelDialog && m_labelDialog->isEditing)
        m_labelDialog->Value_LineEdit_editingFinished();
}

void PinQGraphicsRectItem::startBlink()
{
    m_blinking = true;
    m_blinkOn = false;
    m_timer->start(400);
}

void PinQGraphicsRectItem::stopBlink()
{
    m_blinking = false;
    m_blinkOn = false;
    m_timer->stop();
    drawFill(m_pinState);
}

void PinQGraphicsRectItem::HandleTimeout()
{
    if (!m_blinking)
        return;
    m_blinkOn = !m_blinkOn;
    if (m_blinkOn)
        setBrush(kBlinkColour);
    else
        drawFill(m_pinState);
}

bool PinQGraphicsRectItem::blinkIfPinAndSignal(const QString &pinName, const QString &signalName)
{
    stopBlink();
    if (m_pinInfo.PinName != pinName)
        return false;
    for (const MCUPinSignal *sig : qAsConst(m_signals)) {
        if (sig->Func == signalName) {
            startBlink();
            return true;
        }
    }
    return false;
}

bool PinQGraphicsRectItem::blinkIfExact(const QString &text)
{
    stopBlink();
    if (text.size() < 2)
        return false;
    bool hit = m_pinInfo.PinName.toUpper() == text;
    for (const MCUPinSignal *sig : qAsConst(m_signals)) {
        hit = hit || sig->Func.toUpper() == text ||
              (sig->status > 0 && sig->userLabel.toUpper() == text);
    }
    if (hit)
        startBlink();
    return hit;
}

bool PinQGraphicsRectItem::blinkIfContains(const QString &text)
{
    stopBlink();
    if (text.size() < 2)
        return false;
    bool hit = m_pinInfo.PinName.toUpper().contains(text);
    for (const MCUPinSignal *sig : qAsConst(m_signals)) {
        hit = hit || sig->Func.toUpper().contains(text) ||
              (sig->status > 0 && sig->userLabel.toUpper().contains(text));
    }
    if (hit)
        startBlink();
    return hit;
}

void PinQGraphicsRectItem::retranslateUi()
{
    if (m_enterLabelAction)
        m_enterLabelAction->setText(tr("Enter Label"));
    m_pinInfo.Remarks = g_language == 1 ? m_pinInfo.Remarks_CH : m_pinInfo.Remarks_EN;
    updateToolTip();
    if (m_labelDialog)
        m_labelDialog->retranslateUi();
}

void PinQGraphicsRectItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    stopBlink();
    endLabelEdit();
    const bool inside = rect().contains(event->pos());
    if (event->button() == Qt::LeftButton && inside && m_signalMenu) {
        event->accept();
        m_signalMenu->exec(event->screenPos());
        return;
    }
    if (event->button() == Qt::RightButton && inside && m_labelMenu &&
        PinAssignEngine::pinState(m_pinInfo) > 0) {
        event->accept();
        m_lastPressPos = event->screenPos();
        m_labelMenu->exec(event->screenPos());
        return;
    }
    event->ignore();
}
