#include "pinout/chipview.h"

#include "pinout/pingraphicsview.h"
#include "pinout/pinqgraphicsrectitem.h"
#include "pinout/pinqgraphicstextitem.h"
#include "pinout/qgraphicsrectitemext.h"

#include <QAction>
#include <QComboBox>
#include <QCompleter>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGraphicsScene>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLinearGradient>
#include <QPen>
#include <QTextDocument>
#include <QToolBar>
#include <QVBoxLayout>
#include <QtMath>

#include <cmath>

namespace {

QFont pixelFont(const QString &family, int pixelHeight)
{
    QFont font(family);
    font.setPixelSize(std::max(1, pixelHeight));
    return font;
}

// The family of the logo font from the resources, or Arial when it isn't there.
QString logoFamily()
{
    static QString family;
    static bool loaded = false;
    if (!loaded) {
        loaded = true;
        const int id = QFontDatabase::addApplicationFont(QStringLiteral(":/image/MQ48 Logo.ttf"));
        const QStringList families =
            id >= 0 ? QFontDatabase::applicationFontFamilies(id) : QStringList();
        family = families.isEmpty() ? QStringLiteral("Arial") : families.first();
    }
    return family;
}

QGraphicsSimpleTextItem *whiteText(const QString &text, const QFont &font, QGraphicsItem *parent)
{
    auto *item = new QGraphicsSimpleTextItem(text, parent);
    item->setFont(font);
    item->setBrush(Qt::white);
    return item;
}

} // namespace

ChipView::ChipView(DevicePinInfo *devicePinInfo, QWidget *parent)
    : QWidget(parent), m_engine(devicePinInfo)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);

    m_title = new QLabel(this);
    QFont titleFont(QStringLiteral("Arial"), 11);
    titleFont.setWeight(60);
    m_title->setFont(titleFont);
    m_title->setFixedHeight(25);
    m_title->setStyleSheet(QStringLiteral(
        "background-color: rgb(35, 184, 198); color: white; border-top-left-radius: 5px; "
        "border-top-right-radius: 5px; padding-left: 5px;"));
    column->addWidget(m_title);

    m_view = new PinGraphicsView(this);
    column->addWidget(m_view, 1);

    auto *row = new QHBoxLayout;
    m_toolBar = new QToolBar(this);
    m_zoomInAction = m_toolBar->addAction(QIcon(QStringLiteral(":/image/icon_zoomin.png")), "");
    m_zoomOutAction = m_toolBar->addAction(QIcon(QStringLiteral(":/image/icon_zoomout.png")), "");
    m_zoomResetAction =
        m_toolBar->addAction(QIcon(QStringLiteral(":/image/icon_zoomreset.png")), "");
    m_searchAction = m_toolBar->addAction(QIcon(QStringLiteral(":/image/icon-search.png")), "");
    m_clockwiseAction = m_toolBar->addAction(QIcon(QStringLiteral(":/image/rotate1.png")), "");
    m_antiClockwiseAction = m_toolBar->addAction(QIcon(QStringLiteral(":/image/rotate2.png")), "");
    m_searchBox = new QComboBox(this);
    m_searchBox->setEditable(true);
    m_searchBox->setInsertPolicy(QComboBox::NoInsert);
    m_searchBox->setMinimumWidth(160);
    auto *completer = new QCompleter(m_searchBox->model(), m_searchBox);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    completer->setCompletionMode(QCompleter::PopupCompletion);
    m_searchBox->setCompleter(completer);
    row->addStretch(1);
    row->addWidget(m_toolBar);
    row->addStretch(1);
    row->addWidget(m_searchBox);
    row->addStretch(1);
    column->addLayout(row);

    connect(m_zoomInAction, &QAction::triggered, this, &ChipView::ZoomIn);
    connect(m_zoomOutAction, &QAction::triggered, this, &ChipView::ZoomOut);
    connect(m_zoomResetAction, &QAction::triggered, this, &ChipView::ZoomReset);
    connect(m_searchAction, &QAction::triggered, this, &ChipView::QueryEditingFinished);
    connect(m_clockwiseAction, &QAction::triggered, this, &ChipView::Rotated_Clockwise);
    connect(m_antiClockwiseAction, &QAction::triggered, this, &ChipView::Rotated_AnitClockwise);
    connect(m_searchBox, QOverload<int>::of(&QComboBox::activated), this, &ChipView::QueryActived);
    connect(m_searchBox->lineEdit(), &QLineEdit::returnPressed, this,
            &ChipView::QueryEditingFinished);

    retranslateUi();
    RedrawScene();
    rebuildSearchList();
}

ChipView::~ChipView()
{
    delete m_scene;
}

void ChipView::retranslateUi()
{
    m_title->setText(tr("Pin layout"));
    m_zoomInAction->setText(tr("Zoom in"));
    m_zoomOutAction->setText(tr("Zoom out"));
    m_zoomResetAction->setText(tr("Zoom Reset"));
    m_searchAction->setText(tr("Search"));
    m_clockwiseAction->setText(tr("Clockwise rotate"));
    m_antiClockwiseAction->setText(tr("Anti-clockwise rotate"));
    for (PinQGraphicsRectItem *item : qAsConst(m_pinItems))
        item->retranslateUi();
}

QList<QAction *> ChipView::toolActions() const
{
    return {m_zoomInAction, m_zoomOutAction,   m_zoomResetAction,
            m_searchAction, m_clockwiseAction, m_antiClockwiseAction};
}

PinQGraphicsRectItem *ChipView::pinItem(int pinNum) const
{
    for (PinQGraphicsRectItem *item : m_pinItems) {
        if (item->pinInfo().PinNum == pinNum)
            return item;
    }
    return nullptr;
}

// --- Drawing ------------------------------------------------------------------------------

void ChipView::ZoomIn()
{
    m_view->zoomIn();
    for (PinQGraphicsRectItem *item : qAsConst(m_pinItems))
        item->endLabelEdit();
}

void ChipView::ZoomOut()
{
    m_view->zoomOut();
    for (PinQGraphicsRectItem *item : qAsConst(m_pinItems))
        item->endLabelEdit();
}

void ChipView::ZoomReset()
{
    m_view->zoomReset();
    for (PinQGraphicsRectItem *item : qAsConst(m_pinItems))
        item->endLabelEdit();
    RedrawScene();
}

void ChipView::Rotated_Clockwise()
{
    m_view->rotate(90);
    if (DevicePinInfo *info = devicePinInfo())
        info->rotation = (info->rotation + 90) % 360;
    orientAllTexts();
}

void ChipView::Rotated_AnitClockwise()
{
    m_view->rotate(-90);
    if (DevicePinInfo *info = devicePinInfo())
        info->rotation = (info->rotation + 270) % 360;
    orientAllTexts();
}

void ChipView::orientAllTexts()
{
    for (auto *list : {&m_nameItems, &m_labelItems}) {
        for (PinQGraphicsTextItem *text : qAsConst(*list))
            orientText(text);
    }
    for (QGraphicsItem *text : qAsConst(m_bodyTexts))
        orientText(text);
}

int ChipView::viewRotation() const
{
    const QTransform t = m_view->transform();
    const int degrees = qRound(qRadiansToDegrees(std::atan2(t.m12(), t.m11())));
    return ((degrees % 360) + 360) % 360;
}

void ChipView::orientText(QGraphicsItem *text) const
{
    // Side texts turn by a quarter; with the view's turn, a half turn reads upside down.
    const int turn = ((int(text->rotation()) + viewRotation()) % 360 + 360) % 360;
    if (turn != 180) {
        text->setTransform(QTransform());
        return;
    }
    // The item's own transform applies after its rotation: the half turn is about the
    // centre of the already turned text, so that the text keeps its place.
    const QPointF c = QTransform().rotate(text->rotation()).map(text->boundingRect().center());
    text->setTransform(
        QTransform::fromTranslate(c.x(), c.y()).rotate(180).translate(-c.x(), -c.y()));
}

QRectF ChipView::sceneExtent() const
{
    const QFont font = pixelFont(QStringLiteral("Arial"), m_layout.pinTextHeight);
    const QFontMetricsF metrics(font);
    // A user label has at most 16 characters; a label without one lists the lit functions.
    double widest = metrics.horizontalAdvance(QString(16, QLatin1Char('W')));
    if (const DevicePinInfo *info = devicePinInfo()) {
        for (const MCUPinsBaseInfo *pin : info->pins) {
            QStringList multi;
            for (const MCUPinSignal *sig : pin->signalList) {
                widest = std::max(widest, metrics.horizontalAdvance(sig->Func));
                if (sig->Multi)
                    multi << sig->Func;
            }
            widest = std::max(widest, metrics.horizontalAdvance(multi.join(QStringLiteral("  "))));
        }
    }
    const double margin = pinLength + 2 + widest + 2 * 4 + 20;
    return QRectF(0, 0, bodyWidth, bodyHeight).adjusted(-margin, -margin, margin, margin);
}

void ChipView::RedrawScene()
{
    m_pinItems.clear();
    m_nameItems.clear();
    m_labelItems.clear();
    m_bodyTexts.clear();
    QGraphicsScene *old = m_scene;
    m_scene = new QGraphicsScene(this);
    m_scene->setBackgroundBrush(Qt::white);
    buildScene();
    m_view->setScene(m_scene);
    delete old;
}

void ChipView::buildScene()
{
    const DevicePinInfo *info = devicePinInfo();
    if (!info)
        return;
    xPinNum = info->xPinNum;
    yPinNum = info->yPinNum;
    PinNums = info->PinNums;
    packageName = info->Package;
    mcuModel = info->MCUName;
    m_layout = ChipLayout::forPackage(packageName, xPinNum, yPinNum, PinNums);
    cornerGap = m_layout.cornerGap;
    pinPitch = m_layout.pinPitch;
    pinLength = m_layout.pinLength;
    bodyWidth = m_layout.bodyWidth;
    bodyHeight = m_layout.bodyHeight;

    QLinearGradient gradient(0, 0, bodyWidth, bodyHeight);
    gradient.setColorAt(0, QColor(130, 130, 130));
    gradient.setColorAt(1, QColor(30, 30, 30));
    auto *body = new QGraphicsRectItemEXT(QRectF(0, 0, bodyWidth, bodyHeight));
    body->setPen(QPen(Qt::black, 1, Qt::SolidLine));
    body->setBrush(gradient);
    body->setFlag(QGraphicsItem::ItemIsMovable);
    m_scene->addItem(body);
    auto *inner = new QGraphicsRectItem(QRectF(5, 5, bodyWidth - 10, bodyHeight - 10), body);
    inner->setPen(QPen(Qt::white, 1));
    inner->setBrush(gradient);
    inner->setAcceptedMouseButtons(Qt::NoButton);
    auto *mark = new QGraphicsEllipseItem(QRectF(20, 20, 15, 15), body);
    mark->setPen(QPen(Qt::black, 1));
    mark->setBrush(QColor(220, 230, 241));
    mark->setAcceptedMouseButtons(Qt::NoButton);
    addBodyTexts(body, m_layout);

    for (const ChipLayout::Pin &place : qAsConst(m_layout.pins)) {
        MCUPinsBaseInfo record;
        if (const MCUPinsBaseInfo *active = m_engine.activePin(place.pinNum))
            record = *active;
        else
            record.PinNum = place.pinNum;
        auto *item = new PinQGraphicsRectItem(this, record, place.side, place.rect);
        m_scene->addItem(item);
        m_pinItems.append(item);
        body->pinItems.append(item);
    }
    const QFont pinFont = pixelFont(QStringLiteral("Arial"), m_layout.pinTextHeight);
    for (int i = 0; i < m_pinItems.size(); ++i) {
        const int side = m_pinItems.at(i)->side();
        for (auto *list : {&m_nameItems, &m_labelItems}) {
            auto *text = new PinQGraphicsTextItem(m_pinItems.at(i)->pinInfo(), side);
            text->setFont(pinFont);
            if (side == 1)
                text->setRotation(90);
            else if (side == 3)
                text->setRotation(-90);
            m_scene->addItem(text);
            list->append(text);
        }
    }
    refreshPinVisuals();
    orientAllTexts();
    m_scene->setSceneRect(sceneExtent());
}

void ChipView::addBodyTexts(QGraphicsRectItemEXT *body, const ChipLayout &layout)
{
    const QFont modelFont = pixelFont(QStringLiteral("Arial"), layout.bodyTextHeight);
    auto *model = whiteText(mcuModel, modelFont, body);
    const QRectF modelBox = model->boundingRect();
    model->setPos(bodyWidth / 2.0 - modelBox.width() / 2, bodyHeight / 2.0 + modelBox.height());
    model->setAcceptedMouseButtons(Qt::NoButton);

    QFont packageFont = modelFont;
    packageFont.setItalic(true);
    auto *package = whiteText(packageName + QString::number(PinNums), packageFont, body);
    const QRectF packageBox = package->boundingRect();
    package->setPos(bodyWidth / 2.0 - packageBox.width() / 2,
                    model->pos().y() + modelBox.height());
    package->setAcceptedMouseButtons(Qt::NoButton);

    // The logo keeps to the box of its table entry, however wide the font draws it.
    QFont logoFont = pixelFont(logoFamily(), layout.logoHeight);
    const QString logoText = QStringLiteral("MQ48");
    const double boxWidth = -2.0 * layout.logoDx;
    const double drawnWidth = QFontMetricsF(logoFont).horizontalAdvance(logoText);
    if (drawnWidth > boxWidth)
        logoFont.setPixelSize(std::max(1, int(layout.logoHeight * boxWidth / drawnWidth)));
    auto *logo = whiteText(logoText, logoFont, body);
    const QRectF logoBox = logo->boundingRect();
    logo->setPos(bodyWidth / 2.0 + layout.logoDx + (boxWidth - logoBox.width()) / 2,
                 bodyHeight / 2.0 + layout.logoDy + (layout.logoHeight - logoBox.height()));
    logo->setAcceptedMouseButtons(Qt::NoButton);
    m_bodyTexts = {model, package, logo};
}

void ChipView::updatePinTexts(int index)
{
    PinQGraphicsRectItem *item = m_pinItems.at(index);
    PinQGraphicsTextItem *name = m_nameItems.at(index);
    PinQGraphicsTextItem *label = m_labelItems.at(index);
    const MCUPinsBaseInfo &record = item->pinInfo();
    name->setPinInfo(record);
    label->setPinInfo(record);
    name->setPlainText(PinAssignEngine::pinNameText(record));
    name->setDefaultTextColor(PinAssignEngine::pinState(record) > 1 ? Qt::white : Qt::black);
    // The name stays on its pin: a font that draws it longer than the pin is made smaller.
    QFont nameFont = pixelFont(QStringLiteral("Arial"), m_layout.pinTextHeight);
    const double room = m_layout.pinLength - 4;
    while (nameFont.pixelSize() > 5 &&
           QFontMetricsF(nameFont).horizontalAdvance(name->toPlainText()) > room)
        nameFont.setPixelSize(nameFont.pixelSize() - 1);
    if (name->font() != nameFont)
        name->setFont(nameFont);
    label->setPlainText(PinAssignEngine::pinLabelText(record));
    label->setDefaultTextColor(Qt::black);

    // Names lie on the pin against its outer end; labels lie beyond the end.
    const QRectF pin = item->rect();
    const int offset = m_layout.sideOffsets[item->side()];
    const double nameLength = name->boundingRect().width();
    const double labelLength = label->boundingRect().width();
    switch (item->side()) {
    case 0:
        name->setPos(pin.left() - 2, pin.top() + offset);
        label->setPos(name->pos().x() - labelLength, pin.top() + offset);
        break;
    case 1:
        name->setPos(pin.right() - offset, pin.bottom() + 2 - nameLength);
        label->setPos(pin.right() - offset, pin.bottom() - 2);
        break;
    case 2:
        name->setPos(pin.right() + 2 - nameLength, pin.top() + offset);
        label->setPos(pin.right() - 2, pin.top() + offset);
        break;
    default:
        name->setPos(pin.left() + offset, pin.top() - 2 + nameLength);
        label->setPos(pin.left() + offset, pin.top() + 2);
        break;
    }
    orientText(name);
    orientText(label);
}

void ChipView::refreshPinVisuals()
{
    m_engine.clearIdleLabels();
    for (PinQGraphicsRectItem *item : qAsConst(m_pinItems))
        item->refreshFromEngine();
    for (int i = 0; i < m_pinItems.size(); ++i)
        updatePinTexts(i);
}

void ChipView::rebuildSearchList()
{
    const QStringList words = m_engine.searchList();
    const QString text = m_searchBox->currentText();
    m_searchBox->clear();
    m_searchBox->addItems(words);
    m_searchBox->setMaxCount(std::max(1, int(words.size())));
    m_searchBox->setEditText(text);
}

void ChipView::stopBlinkAndEdits()
{
    for (PinQGraphicsRectItem *item : qAsConst(m_pinItems)) {
        item->stopBlink();
        item->endLabelEdit();
    }
}

// --- Requests -----------------------------------------------------------------------------

void ChipView::UpdatePinConfigInfoSlot(MCUPinsBaseInfo pinBaseInfo)
{
    m_engine.updatePinConfig(pinBaseInfo);
    refreshPinVisuals();
    rebuildSearchList();
    emit SendAllConfigedSignals(devicePinInfo(), true, QString());
}

void ChipView::UpdatePinConfigInfoUserLabel(MCUPinsBaseInfo pinBaseInfo)
{
    m_engine.updateUserLabel(pinBaseInfo);
    refreshPinVisuals();
    rebuildSearchList();
    emit SendAllConfigedSignals(devicePinInfo(), true, QStringLiteral("UserLabel"));
}

void ChipView::AllConfigReset()
{
    const QList<int> remapPins = m_engine.setPinRemap(false);
    pinRemap = false;
    for (int pinNum : remapPins) {
        PinQGraphicsRectItem *item = pinItem(pinNum);
        if (const MCUPinsBaseInfo *record = m_engine.activePin(pinNum); item && record)
            item->setPinInfo(*record);
    }
    rebuildSearchList();
    m_engine.reset();
    refreshPinVisuals();
    emit SendAllConfigedSignals(devicePinInfo(), false, QString());
}

void ChipView::ReciveIPPinSignals(QList<ModeSignal> ipAllPinSignals,
                                  QList<ModeSignal> ipValidPinSignals, bool updateControlFlag,
                                  QString sendIPName)
{
    stopBlinkAndEdits();
    if (ipValidPinSignals.isEmpty()) {
        ReciveClearIPPinSignals(ipAllPinSignals, updateControlFlag, sendIPName);
        return;
    }
    m_engine.receiveIPPinSignals(ipAllPinSignals, ipValidPinSignals, sendIPName);
    refreshPinVisuals();
    emit SendAllConfigedSignals(devicePinInfo(), updateControlFlag, sendIPName);
}

void ChipView::ReciveClearIPPinSignals(QList<ModeSignal> ipAllPinSignals, bool updateControlFlag,
                                       QString sendIPName)
{
    stopBlinkAndEdits();
    m_engine.receiveClearIPPinSignals(ipAllPinSignals);
    refreshPinVisuals();
    emit SendAllConfigedSignals(devicePinInfo(), updateControlFlag, sendIPName);
}

void ChipView::ReceivePinRemapFlag(bool flag)
{
    pinRemap = flag;
    const QList<int> remapPins = m_engine.setPinRemap(flag);
    for (int pinNum : remapPins) {
        PinQGraphicsRectItem *item = pinItem(pinNum);
        if (const MCUPinsBaseInfo *record = m_engine.activePin(pinNum); item && record)
            item->setPinInfo(*record);
    }
    rebuildSearchList();
    refreshPinVisuals();
    emit SendAllConfigedSignals(devicePinInfo(), true, QString());
}

void ChipView::ReceiveGPIOSignalsUserLabelChange(int pinNum, QString pinSignal, QString userLabel)
{
    // The label goes to the pin's first lit signal, whichever signal the panel names.
    Q_UNUSED(pinSignal)
    for (PinQGraphicsRectItem *item : qAsConst(m_pinItems))
        item->stopBlink();
    m_engine.setFirstLitUserLabel(pinNum, userLabel);
    refreshPinVisuals();
    rebuildSearchList();
}

// --- Search -------------------------------------------------------------------------------

void ChipView::search(const QString &text)
{
    bool hit = false;
    for (PinQGraphicsRectItem *item : qAsConst(m_pinItems))
        hit = item->blinkIfExact(text) || hit;
    if (hit)
        return;
    for (PinQGraphicsRectItem *item : qAsConst(m_pinItems))
        item->blinkIfContains(text);
}

void ChipView::QueryActived(int n)
{
    Q_UNUSED(n)
    search(m_searchBox->currentText());
}

void ChipView::QueryEditingFinished()
{
    search(m_searchBox->currentText().toUpper());
}

void ChipView::ReceiveGPIOQuerySignals(QString pinName, QString pinSignal)
{
    if (pinName.isEmpty() && pinSignal.isEmpty()) {
        for (PinQGraphicsRectItem *item : qAsConst(m_pinItems))
            item->stopBlink();
        return;
    }
    if (pinName.isEmpty()) {
        search(pinSignal);
        return;
    }
    for (PinQGraphicsRectItem *item : qAsConst(m_pinItems))
        item->blinkIfPinAndSignal(pinName, pinSignal);
}
