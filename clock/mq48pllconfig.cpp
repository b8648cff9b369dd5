#include "clock/mq48pllconfig.h"

#include "clock/clockfamilies.h"
#include "widgets/messagebox.h"
#include "clock/mq48familytrees.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpacerItem>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

MQ48PLLConfig::MQ48PLLConfig(QWidget *parent) : QWidget(parent)
{
    m_layout = new QVBoxLayout(this);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);

    m_toolBar = new QToolBar(this);
    m_toolBar->setStyleSheet(QStringLiteral(
        "QToolBar { background: transparent; border: none; spacing: 10px; }"
        "QToolButton { min-width: 50px; min-height: 50px; border: 1px solid transparent;"
        " border-radius: 4px; }"
        "QToolButton:hover { border: 1px solid rgb(0, 176, 240); }"));
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_toolBar->setFont(QFont(QStringLiteral("Arial"), 11));
    m_zoomInAction = m_toolBar->addAction(QIcon(QStringLiteral(":/image/icon_zoomin.png")),
                                          QString(), this, &MQ48PLLConfig::ZoomIn);
    m_zoomResetAction = m_toolBar->addAction(QIcon(QStringLiteral(":/image/icon_zoomreset.png")),
                                             QString(), this, &MQ48PLLConfig::ZoomReset);
    m_zoomOutAction = m_toolBar->addAction(QIcon(QStringLiteral(":/image/icon_zoomout.png")),
                                           QString(), this, &MQ48PLLConfig::ZoomOut);
    auto *stretch = new QLabel(m_toolBar);
    stretch->setFixedWidth(40);
    m_toolBar->addWidget(stretch);
    m_resetAction = m_toolBar->addAction(QIcon(QStringLiteral(":/image/icon_return.png")),
                                         QString(), this, &MQ48PLLConfig::ConfigReset);
    labelActions(false);

    auto *bar = new QHBoxLayout;
    bar->setContentsMargins(0, 0, 0, 0);
    bar->addItem(new QSpacerItem(50, 40, QSizePolicy::Expanding, QSizePolicy::Minimum));
    bar->addWidget(m_toolBar);
    bar->addItem(new QSpacerItem(50, 40, QSizePolicy::Expanding, QSizePolicy::Minimum));
    m_layout->addLayout(bar);
    m_layout->addStretch(1);
}

MQ48PLLConfig::~MQ48PLLConfig() = default;

void MQ48PLLConfig::destroyTree()
{
    if (m_note) {
        m_layout->removeWidget(m_note);
        delete m_note;
        m_note = nullptr;
        m_layout->addStretch(1);
    }
    if (!m_tree)
        return;
    disconnect(m_tree, nullptr, this, nullptr);
    m_layout->removeWidget(m_tree);
    delete m_tree;
    m_tree = nullptr;
}

void MQ48PLLConfig::createTree(int model)
{
    destroyTree();
    m_mcuModel = model;
    m_tree = createClockTree(model, this);
    // The stretch below the tool bar keeps an empty page tidy; a tree takes its place.
    if (QLayoutItem *last = m_layout->itemAt(m_layout->count() - 1); last && last->spacerItem())
        delete m_layout->takeAt(m_layout->count() - 1);
    if (!m_tree) {
        // A model without a tree says so instead of leaving the page blank.
        const ClockFamily *f = clockFamily(model);
        if (!f) {
            m_layout->addStretch(1);
            return;
        }
        m_note = new QLabel(this);
        m_note->setObjectName(QStringLiteral("clockNote"));
        m_note->setWordWrap(true);
        m_note->setAlignment(Qt::AlignCenter);
        m_note->setStyleSheet(QStringLiteral("color: rgb(47, 74, 109); padding: 40px;"));
        m_note->setFont(QFont(QStringLiteral("Arial"), 12));
        m_note->setProperty("series", QString::fromLatin1(f->series));
        m_note->setText(tr("The clock tree of the %1 series can not be configured in this "
                           "version of MQ48 Pin Forge.")
                            .arg(m_note->property("series").toString()));
        m_layout->addWidget(m_note, 1);
        m_note->show();
        return;
    }
    m_layout->addWidget(m_tree, 1);
    connect(m_tree, &MQ48ClockTree::SendClockChangedSignal, this,
            &MQ48PLLConfig::ReciveClockChangedSignal);
    connect(m_tree, &MQ48ClockTree::SendClockHaveErrorSignal, this,
            &MQ48PLLConfig::ReciveClockHaveErrorSignal);
    if (m_tree->family().hasUsb) {
        connect(m_tree, &MQ48ClockTree::SendUSBClockSourceChangeSignal, this,
                &MQ48PLLConfig::ReciveUSBClockSourceChangeSignal);
    }
    if (m_tree->family().hasI2sf5) {
        connect(m_tree, &MQ48ClockTree::SendI2SF5ClockSourceChangeSignal, this,
                &MQ48PLLConfig::ReciveI2SF5ClockSourceChangeSignal);
    }
    m_tree->show();
}

void MQ48PLLConfig::setMcuModel(int model)
{
    // A new design speaks the language installed now, whatever it was when the page was made.
    labelActions(false);
    createTree(model);
    if (const ClockFamily *f = clockFamily(model))
        m_series = QString::fromLatin1(f->series);
    ZoomReset();
    if (m_tree)
        m_tree->resetConfig();
}

bool MQ48PLLConfig::checkClockConfig()
{
    return m_tree ? m_tree->checkClockConfig() : false;
}

const ClockTreeState *MQ48PLLConfig::clockState() const
{
    return m_tree ? &m_tree->clockState() : nullptr;
}

double MQ48PLLConfig::clockOfPeripheral(const QString &name) const
{
    return m_tree ? m_tree->clockState().clockOfPeripheral(name) : 0.0;
}

double MQ48PLLConfig::hextValue() const
{
    return m_tree ? m_tree->clockState().hext : 0.0;
}

double MQ48PLLConfig::apb2Value() const
{
    return m_tree ? m_tree->clockState().apb2clk : 0.0;
}

int MQ48PLLConfig::systickDivider() const
{
    return m_tree ? m_tree->clockState().systicdiv : 0;
}

QString MQ48PLLConfig::adcDivMacro() const
{
    return m_tree && m_tree->family().hasAdcDivider ? m_tree->clockState().adcDivMacro()
                                                    : QString();
}

QString MQ48PLLConfig::adcClockSourceMacro() const
{
    return m_tree && m_tree->family().hasPeripheralClockSelects
               ? m_tree->clockState().adcClockSourceMacro()
               : QString();
}

QString MQ48PLLConfig::rtcClockMacro() const
{
    return m_tree ? m_tree->clockState().rtcClockMacro() : QString();
}

QString MQ48PLLConfig::ertcHextDivMacro() const
{
    return m_tree && m_tree->family().hasRtcDivider ? m_tree->clockState().ertcHextDivMacro()
                                                    : QString();
}

QString MQ48PLLConfig::i2sf5ClockSourceMacro() const
{
    return m_tree && m_tree->family().hasI2sf5 ? m_tree->clockState().i2sf5ClockSourceMacro()
                                               : QString();
}

QString MQ48PLLConfig::usbClockSourceMacro() const
{
    return m_tree && m_tree->family().hasUsb ? m_tree->clockState().usbClockSourceMacro()
                                             : QString();
}

QString MQ48PLLConfig::usbDivMacro() const
{
    return m_tree && m_tree->family().hasUsb ? m_tree->clockState().usbDivMacro() : QString();
}

void MQ48PLLConfig::loadClockConfig(const QDomElement &element, const QString &series)
{
    m_series = series;
    const ClockFamily *f = clockFamilyForSeries(series);
    if (!f) {
        tellUser(this, UserMessage::Warning, tr("Warning"), tr("MCU in file not supported."));
        return;
    }
    createTree(f->model);
    if (m_tree)
        m_tree->loadConfig(element);
    ZoomReset();
}

bool MQ48PLLConfig::saveClockConfig(QXmlStreamWriter &writer) const
{
    return m_tree ? m_tree->saveConfig(writer) : false;
}

void MQ48PLLConfig::setHext(bool enable, bool bypass)
{
    if (!m_tree)
        return;
    m_tree->setHextBypass(bypass);
    m_tree->setHextEnable(enable);
}

void MQ48PLLConfig::setLext(bool enable, bool bypass)
{
    if (!m_tree)
        return;
    m_tree->setLextBypass(bypass);
    m_tree->setLextEnable(enable);
}

void MQ48PLLConfig::setClockOutPin(int pin)
{
    if (m_tree && m_tree->family().hasSingleClockOutput())
        m_tree->setClockOutPin(pin);
}

void MQ48PLLConfig::setClockOut1Pin(int pin)
{
    if (m_tree && m_tree->family().clockOutput == ClockOutputKind::Dual)
        m_tree->setClockOut1Pin(pin);
}

void MQ48PLLConfig::setClockOut2Pin(int pin)
{
    if (m_tree && m_tree->family().clockOutput == ClockOutputKind::Dual)
        m_tree->setClockOut2Pin(pin);
}

void MQ48PLLConfig::setPeripheralClockGate(const QString &ipName, bool enabled)
{
    if (m_tree)
        m_tree->setPeripheralClockGate(ipName, enabled);
}

void MQ48PLLConfig::labelActions(bool changed)
{
    m_zoomInAction->setText(tr("Zoom in"));
    m_zoomResetAction->setText(tr("Zoom Reset"));
    m_zoomOutAction->setText(tr("Zoom out"));
    m_resetAction->setText(changed ? tr("Reset Configuration") : tr("Config Reset"));
}

void MQ48PLLConfig::retranslate()
{
    labelActions(true);
    if (m_note)
        m_note->setText(tr("The clock tree of the %1 series can not be configured in this "
                           "version of MQ48 Pin Forge.")
                            .arg(m_note->property("series").toString()));
    if (m_tree)
        m_tree->retranslate();
}

QWidget *MQ48PLLConfig::treeWidget() const
{
    return m_tree;
}

void MQ48PLLConfig::ZoomIn()
{
    if (m_tree)
        m_tree->zoomIn();
}

void MQ48PLLConfig::ZoomOut()
{
    if (m_tree)
        m_tree->zoomOut();
}

void MQ48PLLConfig::ZoomReset()
{
    if (m_tree)
        m_tree->zoomReset();
}

void MQ48PLLConfig::ConfigReset()
{
    if (!confirmUser(this, UserMessage::Warning, tr("Warning"),
                     tr("The current configuration will be reset. Please confirm whether to "
                        "continue?"),
                     yesButtonText()))
        return;
    if (m_tree)
        m_tree->resetConfig();
}

void MQ48PLLConfig::ReciveClockChangedSignal()
{
    emit SendClockChangedSignal();
}

void MQ48PLLConfig::ReciveClockHaveErrorSignal(bool Flag)
{
    emit SendClockHaveErrorSignal(Flag);
}

void MQ48PLLConfig::ReciveUSBClockSourceChangeSignal()
{
    emit SendUSBClockSourceChangeSignal();
}

void MQ48PLLConfig::ReciveI2SF5ClockSourceChangeSignal()
{
    emit SendI2SF5ClockSourceChangeSignal();
}
