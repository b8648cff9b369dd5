#include "peripherals/ip_modeandconfiguration.h"

#include "clock/mq48pllconfig.h"
#include "database/devicereader.h"
#include "database/paths.h"
#include "database/peripheralreader.h"
#include "peripherals/couplingrules.h"
#include "peripherals/diagrams/timingdiagrams.h"
#include "peripherals/dmarequestmodel.h"
#include "peripherals/dmasettingwidget.h"
#include "peripherals/gpiosettingsmodel.h"
#include "peripherals/gpiosettingwidget.h"
#include "peripherals/nvic_settings.h"
#include "peripherals/nvicmodel.h"
#include "peripherals/paramsettingwidget.h"
#include "peripherals/procheckbox.h"
#include "peripherals/procombobox.h"
#include "peripherals/prolabel.h"
#include "widgets/messagebox.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSpacerItem>
#include <QTabWidget>
#include <QVBoxLayout>

#include <memory>

namespace {

const QString kParamTab = QStringLiteral("Parameters Settings");
const QString kGpioTab = QStringLiteral("GPIO Settings");
const QString kNvicTab = QStringLiteral("NVIC Settings");

QString headerStyle()
{
    return QStringLiteral("QPushButton{background-color:rgb(35, 184, 198);color:white;"
                          "border:none;border-top-left-radius:6px;border-top-right-radius:6px;"
                          "text-align:left;padding-left:10px;}");
}

} // namespace

IP_ModeAndConfiguration::IP_ModeAndConfiguration(const PeripheralListItem &row,
                                                 const IPNode &gpioTree, const QString &deviceName,
                                                 const QString &series,
                                                 const DevicePinInfo *pinInfo, QWidget *parent)
    : QWidget(parent), m_instanceName(row.InstanceName), m_ipName(row.Name), m_mcuModel(series),
      m_deviceName(deviceName), m_logic(row.InstanceName, row.Name, series, QString())
{
    Q_UNUSED(gpioTree)
    registerRecordMetaTypes();
    std::unique_ptr<DevicePinInfo> ownInfo;
    if (!pinInfo && !deviceName.isEmpty()) {
        ownInfo.reset(NewDevicePinInfo(deviceFilePath(series, deviceName)));
        pinInfo = ownInfo.get();
    }
    if (pinInfo)
        m_logic.packageWord = pinInfo->Package;

    IPNode root;
    const QString path = PeripheralFilePath(series, row);
    if (!path.isEmpty())
        root = ReadIPFile(path);
    m_logic.build(GetIPModes(m_instanceName, root), GetIPRefSignals(m_instanceName, root),
                  pinInfo);
    const QList<RefParameter> parameters = GetAllRefParameters(m_instanceName, root);

    connect(&m_worker, &UpdateIPModeParamThread::UpdateIPModeParam, this,
            &IP_ModeAndConfiguration::UpdateAllConfigedSignals, Qt::QueuedConnection);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    buildModeArea();
    buildConfigurationArea(parameters);
    // A file without modes is an error; modes that this package can't place only mean that
    // the work form leaves the peripheral out.
    if (!m_logic.modesFound)
        tellUser(this, UserMessage::Error, tr("Error"), tr("No Mode Settings!"));
    runStatusRule();
    runHintRule();
    rebuildTabs();
}

IP_ModeAndConfiguration::~IP_ModeAndConfiguration()
{
    m_worker.wait();
    if (m_paramWidget)
        disconnect(m_paramWidget, nullptr, this, nullptr);
}

void IP_ModeAndConfiguration::buildModeArea()
{
    auto *layout = static_cast<QVBoxLayout *>(this->layout());
    m_modeButton = new QPushButton(tr("Mode"), this);
    m_modeButton->setFixedHeight(25);
    m_modeButton->setFont(QFont(QStringLiteral("Arial"), 11, 60));
    m_modeButton->setStyleSheet(headerStyle());
    connect(m_modeButton, &QPushButton::clicked, this,
            &IP_ModeAndConfiguration::Mode_PushButton_Clicked);
    layout->addWidget(m_modeButton);

    m_modeArea = new QScrollArea(this);
    m_modeArea->setWidgetResizable(true);
    m_modeArea->setStyleSheet(QStringLiteral("QScrollArea{border:none;background:white;}"));
    auto *gridHost = new QWidget(m_modeArea);
    m_grid = new QGridLayout(gridHost);
    m_grid->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    for (int i = 0; i < m_logic.controls.size(); ++i) {
        const ModeControl *control = &m_logic.controls.at(i);
        const QString tip = control->option.diagnosticText;
        if (control->kind == ModeControl::CheckBox) {
            auto *box = new ProCheckBox(&m_logic, i, gridHost);
            box->setFont(QFont(QStringLiteral("Arial"), 9));
            m_grid->addItem(new QSpacerItem(20, 20), i, 0);
            m_grid->addWidget(box, i, 1, 1, 3);
            m_grid->addItem(new QSpacerItem(200, 20, QSizePolicy::Expanding), i, 4);
            connect(box, &QCheckBox::toggled, this,
                    &IP_ModeAndConfiguration::Mode_CheckBox_Changed);
            m_checkList << box;
            m_controlWidgets << box;
            m_controlLabels << nullptr;
        } else {
            auto *label = new ProLabel(control->label, gridHost);
            label->setName(control->option.Name);
            label->setFont(QFont(QStringLiteral("Arial"), 9));
            label->setToolTip(tip);
            auto *box = new ProComboBox(&m_logic, i, gridHost);
            box->setMinimumWidth(180);
            m_grid->addItem(new QSpacerItem(20, 20), i, 0);
            m_grid->addWidget(label, i, 1);
            m_grid->addItem(new QSpacerItem(20, 20), i, 2);
            m_grid->addWidget(box, i, 3);
            m_grid->addItem(new QSpacerItem(200, 20, QSizePolicy::Expanding), i, 4);
            connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                    &IP_ModeAndConfiguration::Mode_ComboBox_IndexChanged);
            m_comboList << box;
            m_controlWidgets << box;
            m_controlLabels << label;
        }
    }
    m_hintLabel = new QLabel(gridHost);
    m_hintLabel->setStyleSheet(QStringLiteral("color:rgb(220, 90, 30);"));
    m_hintLabel->setWordWrap(true);
    m_hintLabel->hide();
    m_grid->addWidget(m_hintLabel, m_logic.controls.size(), 1, 1, 4);
    m_modeArea->setWidget(gridHost);
    layout->addWidget(m_modeArea, 2);
}

void IP_ModeAndConfiguration::buildConfigurationArea(const QList<RefParameter> &parameters)
{
    auto *layout = static_cast<QVBoxLayout *>(this->layout());
    m_configArea = new QWidget(this);
    auto *configLayout = new QVBoxLayout(m_configArea);
    configLayout->setContentsMargins(0, 6, 0, 0);
    configLayout->setSpacing(0);
    m_configButton = new QPushButton(tr("Configuration"), m_configArea);
    m_configButton->setFixedHeight(25);
    m_configButton->setFont(QFont(QStringLiteral("Arial"), 11, 60));
    m_configButton->setStyleSheet(headerStyle());
    connect(m_configButton, &QPushButton::clicked, this,
            &IP_ModeAndConfiguration::Configiguration_PushButton_Clicked);
    configLayout->addWidget(m_configButton);
    m_tabWidget = new QTabWidget(m_configArea);
    connect(m_tabWidget, &QTabWidget::tabBarClicked, this,
            &IP_ModeAndConfiguration::TabWidgetTabBarClicked);
    configLayout->addWidget(m_tabWidget, 1);
    m_descriptionLabel = new QLabel(m_configArea);
    m_descriptionLabel->setWordWrap(true);
    m_descriptionLabel->setMinimumHeight(40);
    m_descriptionLabel->setStyleSheet(
        QStringLiteral("background:rgb(238, 245, 247);padding:4px;"));
    configLayout->addWidget(m_descriptionLabel);
    layout->addWidget(m_configArea, 3);

    if (!parameters.isEmpty()) {
        m_paramWidget = new ParamSettingWidget(m_mcuModel, m_instanceName, parameters, this);
        m_paramWidget->hide();
        connect(m_paramWidget, &ParamSettingWidget::SendIPParamStatus, this,
                &IP_ModeAndConfiguration::ReciveIPParamStatus);
        connect(m_paramWidget, &ParamSettingWidget::SendIPParamList, this,
                &IP_ModeAndConfiguration::ReciveIPParamList);
        connect(m_paramWidget, &ParamSettingWidget::SendEXINTRefreshNVICList, this,
                &IP_ModeAndConfiguration::ReciveEXINTRefreshNVICList);
        connect(
            m_paramWidget, &ParamSettingWidget::SendParamDescription, this,
            [this](const QString &, const QString &text) { m_descriptionLabel->setText(text); });
        // The timing diagram stands between the tabs and the description.
        m_diagram = createTimingDiagram(m_ipName, m_paramWidget, m_configArea);
        if (m_diagram)
            configLayout->insertWidget(configLayout->indexOf(m_descriptionLabel), m_diagram);
    }
}

ProComboBox *IP_ModeAndConfiguration::comboBox(const QString &modeName) const
{
    for (ProComboBox *box : m_comboList) {
        if (box->control()->option.Name == modeName)
            return box;
    }
    return nullptr;
}

ProCheckBox *IP_ModeAndConfiguration::checkBox(const QString &modeName) const
{
    for (ProCheckBox *box : m_checkList) {
        if (box->control()->option.Name == modeName)
            return box;
    }
    return nullptr;
}

int IP_ModeAndConfiguration::controlIndexOf(QObject *widget) const
{
    for (int i = 0; i < m_controlWidgets.size(); ++i) {
        if (m_controlWidgets.at(i) == widget)
            return i;
    }
    return -1;
}

QStringList IP_ModeAndConfiguration::tabTitles() const
{
    return m_logic.tabTitles(dmaTableNames());
}

void IP_ModeAndConfiguration::setSystemModels(GpioSettingsModel *gpio, NvicModel *nvic,
                                              const QList<DmaRequestModel *> &dma)
{
    m_gpioModel = gpio;
    m_nvicModel = nvic;
    m_dmaModels = dma;
    rebuildTabs();
}

QStringList IP_ModeAndConfiguration::signalNames() const
{
    QStringList names;
    for (const ModeSignal &s : m_logic.allSignals) {
        if (!names.contains(s.signalName))
            names << s.signalName;
    }
    return names;
}

QList<DmaRequestModel *> IP_ModeAndConfiguration::dmaModels() const
{
    QList<DmaRequestModel *> out;
    for (DmaRequestModel *model : m_dmaModels) {
        if (!model->requestNamesOf(m_instanceName).isEmpty())
            out << model;
    }
    return out;
}

QStringList IP_ModeAndConfiguration::dmaTableNames() const
{
    QStringList names;
    for (DmaRequestModel *model : dmaModels())
        names << model->name();
    return names;
}

// ------------------------------------------------------------------------------- changes --

void IP_ModeAndConfiguration::Mode_ComboBox_IndexChanged(int index)
{
    auto *box = qobject_cast<ProComboBox *>(sender());
    const int control = controlIndexOf(box);
    if (!box || control < 0)
        return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const int old = m_logic.controls.at(control).current;
    const ModeChange change = m_logic.selectCombo(control, index);
    if (!change.accepted) {
        const QSignalBlocker blocker(box);
        box->setCurrentIndex(old);
        QApplication::restoreOverrideCursor();
        return;
    }
    applyChange(change, true, control);
    QApplication::restoreOverrideCursor();
    cascadeBlockedSelections();
}

void IP_ModeAndConfiguration::Mode_CheckBox_Changed(bool checked)
{
    auto *box = qobject_cast<ProCheckBox *>(sender());
    const int control = controlIndexOf(box);
    if (!box || control < 0)
        return;
    box->setEnabled(false);
    const ModeChange change = m_logic.setChecked(control, checked);
    if (change.accepted)
        applyChange(change, false, control);
    box->judge();
    cascadeBlockedSelections();
}

void IP_ModeAndConfiguration::applyChange(const ModeChange &change, bool fromCombo, int control)
{
    applySemaphores(change.withdrawn, change.raised, true);
    runStatusRule();
    if (m_paramWidget)
        m_paramWidget->ModeChanged(change.oldText, change.newText);
    if (change.clear)
        emit ClearIPPinSignals(change.clearList, false, m_instanceName);
    if (change.send)
        emit SendIPPinSignals(change.sendAll, change.sendValid, false, m_instanceName);
    if (m_devicePinInfo)
        m_logic.updateSignalStates(m_devicePinInfo);
    judgeControls();
    if (!fromCombo)
        rebuildTabs();
    runHintRule();
    if (fromCombo && m_ipName == QLatin1String("CRM"))
        runOscillatorRule(control);
    if (fromCombo)
        rebuildTabs();
    emit SendRefreshNVIC(m_instanceName);
    emit SendIPStatusFlag(m_instanceName, m_status, true);
}

void IP_ModeAndConfiguration::applySemaphores(const QStringList &withdrawn,
                                              const QStringList &raised, bool emitOut)
{
    for (const QString &name : withdrawn)
        m_raisedSemaphores.removeAll(name);
    for (const QString &name : raised) {
        if (!m_raisedSemaphores.contains(name))
            m_raisedSemaphores << name;
    }
    if (!withdrawn.isEmpty()) {
        m_logic.withdrawSemaphores(withdrawn);
        judgeControls();
        if (m_paramWidget)
            m_paramWidget->CancelSemaphore(withdrawn);
        if (emitOut)
            emit EnableSemaphore_To_OtherIP(m_instanceName, withdrawn, false);
    }
    if (!raised.isEmpty()) {
        m_logic.raiseSemaphores(raised);
        judgeControls();
        if (m_paramWidget)
            m_paramWidget->EnableSemaphore(raised);
        if (emitOut)
            emit EnableSemaphore_To_OtherIP(m_instanceName, raised, true);
    }
}

void IP_ModeAndConfiguration::judgeControls()
{
    for (ProCheckBox *box : m_checkList)
        box->judge();
    for (ProComboBox *box : m_comboList)
        box->judge();
}

void IP_ModeAndConfiguration::cascadeBlockedSelections()
{
    // A selection whose condition no longer holds is let go, as the user would.
    for (ProCheckBox *box : m_checkList) {
        if (box->isChecked() && !box->control()->semaphoresAllow(1))
            box->setChecked(false);
    }
    for (ProComboBox *box : m_comboList) {
        const ModeControl *c = box->control();
        if (c->current > 0 && !c->semaphoresAllow(c->current))
            box->setCurrentIndex(0);
    }
}

void IP_ModeAndConfiguration::ReceiveSemaphoreFromOtherIP(const QStringList &semaphores,
                                                          bool validFlag)
{
    if (validFlag)
        applySemaphores({}, semaphores, false);
    else
        applySemaphores(semaphores, {}, false);
    cascadeBlockedSelections();
}

// ----------------------------------------------------------------------- status and tabs --

void IP_ModeAndConfiguration::runStatusRule()
{
    m_modeActive = m_logic.statusRule();
    m_status = m_modeActive ? IPSTATUS_ACTIVE : IPSTATUS_INACTIVE;
    const bool tabs =
        m_modeActive && m_ipName != QLatin1String("SCFG") && m_ipName != QLatin1String("DEBUG") &&
        m_instanceName != QLatin1String("SCFG") && m_instanceName != QLatin1String("DEBUG");
    m_configArea->setVisible(tabs);
}

void IP_ModeAndConfiguration::runHintRule()
{
    const ModeHint hint = m_logic.hintRule();
    QString text;
    switch (hint.kind) {
    case ModeHint::None:
        break;
    case ModeHint::SelectControl:
        text = tr("Please select a ") + hint.controlLabel;
        break;
    case ModeHint::NoParameters:
        text = tr("This peripheral has no parameters to be configured.");
        break;
    case ModeHint::FullDuplex:
        text = tr("Please note: Full duplex affiliated parameters must be same as the leader");
        break;
    case ModeHint::AdcCommon:
        text = tr("Please note: When configuring ADC, it is also necessary to configure "
                  "ADC-Common");
        break;
    }
    m_hintLabel->setText(text);
    m_hintLabel->setVisible(!text.isEmpty());
    m_status = m_modeActive ? IPSTATUS_ACTIVE : IPSTATUS_INACTIVE;
    if (hint.unfinished)
        m_status |= IPSTATUS_UNFINISHED;
    const int remap = m_logic.pinRemapState();
    if (remap >= 0)
        emit SendPinRemapFlag(remap == 1);
}

void IP_ModeAndConfiguration::rebuildTabs()
{
    const QSignalBlocker blocker(m_tabWidget);
    m_tabWidget->clear();
    const QStringList titles = m_logic.tabTitles(dmaTableNames());
    const QList<DmaRequestModel *> dma = dmaModels();
    for (const QString &title : titles) {
        if (title == kParamTab) {
            if (m_paramWidget)
                m_tabWidget->addTab(m_paramWidget, tr("Parameters Settings"));
        } else if (title == kGpioTab) {
            if (!m_gpioModel)
                continue;
            if (!m_gpioWidget) {
                m_gpioWidget = new GPIOSettingWidget(
                    m_gpioModel, GPIOSettingWidget::Scope::Instance, m_instanceName, this);
                connect(m_gpioWidget, &GPIOSettingWidget::SendGPIOSettingChangeSignals, this,
                        &IP_ModeAndConfiguration::ReciveGPIOSettingChangeSignals);
                connect(m_gpioWidget, &GPIOSettingWidget::SendGPIOQuerySignals, this,
                        &IP_ModeAndConfiguration::ReceiveGPIOQuerySignals);
                connect(m_gpioWidget, &GPIOSettingWidget::SendGPIOSignalsUserLabelChange, this,
                        &IP_ModeAndConfiguration::ReceiveGPIOSignalsUserLabelChange);
            }
            m_tabWidget->addTab(m_gpioWidget, tr("GPIO Settings"));
        } else if (title == kNvicTab) {
            if (!m_nvicModel)
                continue;
            if (!m_nvicWidget)
                m_nvicWidget = new NVIC_Settings(m_nvicModel, m_instanceName, this);
            m_tabWidget->addTab(m_nvicWidget, tr("NVIC Settings"));
        } else {
            for (DmaRequestModel *model : dma) {
                if (title != model->name() + QStringLiteral(" Settings"))
                    continue;
                DMASettingWidget *table = nullptr;
                for (DMASettingWidget *w : qAsConst(m_dmaWidgets)) {
                    if (w->model() == model)
                        table = w;
                }
                if (!table) {
                    table = new DMASettingWidget(model, DMASettingWidget::Scope::Instance,
                                                 m_instanceName, this);
                    connect(table, &DMASettingWidget::SendDMARequestChangeSignals, this,
                            &IP_ModeAndConfiguration::ReciveDMARequestChangeSignals);
                    connect(table, &DMASettingWidget::SendIPStatusFlag, this,
                            &IP_ModeAndConfiguration::ReceiveDMAIPStatusFlag);
                    m_dmaWidgets << table;
                }
                m_tabWidget->addTab(table, tr("%1 Settings").arg(model->name()));
            }
        }
    }
    if (m_tabWidget->count() > 0 && m_paramWidget && m_tabWidget->widget(0) == m_paramWidget)
        m_tabWidget->setTabIcon(0, m_paramWidget->paramStatus == IPPARAMSTATUS_INVALID
                                       ? QIcon(QStringLiteral(":/image/danger32.png"))
                                       : QIcon());
    if (m_currentTab >= 0 && m_currentTab < m_tabWidget->count())
        m_tabWidget->setCurrentIndex(m_currentTab);
    m_currentTab = m_tabWidget->currentIndex();
}

void IP_ModeAndConfiguration::runOscillatorRule(int control)
{
    const ModeControl &c = m_logic.controls.at(control);
    const CouplingRules::OscillatorFlag flag =
        CouplingRules::oscillatorFlag(c.option.Name, c.current);
    if (flag.oscillator == CouplingRules::OscillatorFlag::Hext)
        emit SendHextFlag(flag.enable, flag.bypass);
    else if (flag.oscillator == CouplingRules::OscillatorFlag::Lext)
        emit SendLextFlag(flag.enable, flag.bypass);
}

void IP_ModeAndConfiguration::runClockOutputRule()
{
    if (!m_devicePinInfo)
        return;
    for (const CouplingRules::ClockOutput &output : CouplingRules::clockOutputs(m_mcuModel)) {
        QString inPin;
        for (const MCUPinsBaseInfo *pin : m_devicePinInfo->pins) {
            if (!pin->remapOff || !inPin.isEmpty())
                continue;
            for (const MCUPinSignal *s : pin->signalList) {
                if (s->status > SIGNAL_FREE && s->Func == output.signalName) {
                    inPin = s->InPin;
                    break;
                }
            }
        }
        bool known = false;
        const int value = CouplingRules::clockOutputValue(output, inPin, &known);
        if (!known)
            continue;
        if (output.output == 0)
            emit SendClockOutPin(value);
        else if (output.output == 1)
            emit SendClockOut1Pin(value);
        else
            emit SendClockOut2Pin(value);
    }
}

// ---------------------------------------------------------------------------- pin refresh --

void IP_ModeAndConfiguration::ReciveAllConfigedSignals(DevicePinInfo *info, bool updateControlFlag,
                                                       QString sendIPName)
{
    m_devicePinInfo = info;
    if (sendIPName.trimmed().isEmpty()) {
        m_worker.request(info, updateControlFlag, sendIPName);
    } else if (sendIPName == m_instanceName) {
        UpdateAllConfigedSignals(info, updateControlFlag, sendIPName);
    } else {
        m_stale = true;
    }
}

void IP_ModeAndConfiguration::UpdateAllConfigedSignals(DevicePinInfo *info, bool,
                                                       QString sendIPName)
{
    m_devicePinInfo = info;
    if (sendIPName != QLatin1String("UserLabel")) {
        m_logic.updateSignalStates(info);
        judgeControls();
    }
    if (m_ipName == QLatin1String("CRM"))
        runClockOutputRule();
}

void IP_ModeAndConfiguration::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_stale) {
        m_stale = false;
        UpdateAllConfigedSignals(m_devicePinInfo, false, QString());
    }
    runHintRule();
}

// ------------------------------------------------------------------------ simple slots --

void IP_ModeAndConfiguration::Mode_PushButton_Clicked()
{
    m_modeArea->setVisible(!m_modeArea->isVisible());
}

void IP_ModeAndConfiguration::Configiguration_PushButton_Clicked()
{
    m_tabWidget->setVisible(!m_tabWidget->isVisible());
}

void IP_ModeAndConfiguration::ResetConfigurationClickedSlot()
{
    if (!confirmUser(this, UserMessage::Warning, tr("Warning"),
                     tr("The current configuration will be reset. Please confirm whether to "
                        "continue?"),
                     okButtonText()))
        return;
    if (m_gpioModel)
        m_gpioModel->resetParameters(m_instanceName);
    if (m_paramWidget)
        m_paramWidget->Reset();
    for (DmaRequestModel *model : dmaModels())
        model->removeRequestsOf(m_instanceName);
    if (m_nvicModel)
        m_nvicModel->resetRows(m_nvicModel->rowsOfInstance(m_instanceName));
    emit SendDMARequestChangeSignals();
    emit SendRefreshNVIC(m_instanceName);
}

void IP_ModeAndConfiguration::resetToDefaults()
{
    // Later controls first, so that a control that another one unlocks goes before it.
    for (int i = m_comboList.size() - 1; i >= 0; --i) {
        if (m_comboList.at(i)->currentIndex() != 0)
            m_comboList.at(i)->setCurrentIndex(0);
    }
    for (int i = m_checkList.size() - 1; i >= 0; --i) {
        if (m_checkList.at(i)->isChecked())
            m_checkList.at(i)->setChecked(false);
    }
    if (m_paramWidget)
        m_paramWidget->Reset();
    m_currentTab = 0;
    rebuildTabs();
}

void IP_ModeAndConfiguration::ReciveGPIOSettingChangeSignals(QString instanceName,
                                                             QString signalName)
{
    emit SendGPIOSettingChangeSignals1(instanceName, signalName);
}

void IP_ModeAndConfiguration::ReceiveGPIOQuerySignals(QString pinName, QString pinSignal)
{
    emit SendGPIOQuerySignals(pinName, pinSignal);
}

void IP_ModeAndConfiguration::ReceiveGPIOSignalsUserLabelChange(int pinNum, QString pinSignal,
                                                                QString userLabel)
{
    emit SendGPIOSignalsUserLabelChange(pinNum, pinSignal, userLabel);
}

void IP_ModeAndConfiguration::TabWidgetTabBarClicked(int index)
{
    if (index >= 0)
        m_currentTab = index;
}

void IP_ModeAndConfiguration::UpdateDMACondition()
{
    // The tables follow the shared models; the one on show catches up at once.
    for (DMASettingWidget *table : qAsConst(m_dmaWidgets)) {
        if (table->isVisible())
            table->ensureCurrent();
    }
    if (m_nvicWidget && m_nvicWidget->isVisible())
        m_nvicWidget->ensureCurrent();
}

void IP_ModeAndConfiguration::ReciveDMARequestChangeSignals()
{
    emit SendDMARequestChangeSignals();
    UpdateDMACondition();
}

void IP_ModeAndConfiguration::ReceiveDMAIPStatusFlag(QString ipName, IPSTATUS statusFlag)
{
    emit SendIPStatusFlag(ipName, statusFlag);
}

void IP_ModeAndConfiguration::ReciveIPParamStatus(QString, IPPARAMSTATUS statusFlag)
{
    if (m_tabWidget->count() > 0 && m_tabWidget->widget(0) == m_paramWidget)
        m_tabWidget->setTabIcon(0, statusFlag == IPPARAMSTATUS_INVALID
                                       ? QIcon(QStringLiteral(":/image/danger32.png"))
                                       : QIcon());
}

void IP_ModeAndConfiguration::ReciveUSBClockSourceChangeSignal()
{
    if (!m_clockPage)
        return;
    const QString source = m_clockPage->usbClockSourceMacro();
    const QStringList names = {source};
    for (ModeControl &c : m_logic.controls) {
        if (c.kind != ModeControl::CheckBox)
            continue;
        if (CouplingRules::usbSourceRaisesSemaphore(source))
            c.raise(names);
        else
            c.withdraw(names);
    }
    judgeControls();
    if (m_instanceName == QLatin1String("ACC") && !m_checkList.isEmpty()) {
        ProCheckBox *first = m_checkList.first();
        first->setChecked(first->isEnabled());
    }
}

void IP_ModeAndConfiguration::ReciveI2SF5ClockSourceChangeSignal()
{
    if (!m_clockPage || m_instanceName != QLatin1String("I2SF5") ||
        !CouplingRules::hasI2SF5ClockSource(m_mcuModel))
        return;
    if (ProCheckBox *box = checkBox(QStringLiteral("External_Clock_Input")))
        box->setChecked(CouplingRules::i2sf5ExternalClock(m_clockPage->i2sf5ClockSourceMacro()));
}

void IP_ModeAndConfiguration::applyParamListRule(const QList<RefParameter> &parameters,
                                                 bool emitOut)
{
    const CouplingRules::SemaphoreChange change =
        CouplingRules::adcDmaRule(m_mcuModel, m_instanceName, parameters);
    if (!change.applies)
        return;
    applySemaphores(change.withdrawn, {}, emitOut);
    applySemaphores({}, change.raised, emitOut);
    cascadeBlockedSelections();
}

void IP_ModeAndConfiguration::ReciveIPParamList(QList<RefParameter> RefParameterList,
                                                QString IPName)
{
    applyParamListRule(RefParameterList, true);
    emit SendParamList_To_OtherIP(RefParameterList, IPName);
}

void IP_ModeAndConfiguration::ReceiveParamListFromOtherIP(const QList<RefParameter> &parameters,
                                                          const QString &ipName)
{
    Q_UNUSED(ipName)
    applyParamListRule(parameters, false);
}

void IP_ModeAndConfiguration::ReciveEXINTRefreshNVICList()
{
    emit SendRefreshNVIC(m_instanceName);
}

// ------------------------------------------------------------------------- persistence --

QList<QPair<QString, QString>> IP_ModeAndConfiguration::modeSelections() const
{
    QList<QPair<QString, QString>> out;
    for (const ModeControl &c : m_logic.controls) {
        if (c.kind == ModeControl::CheckBox) {
            out << qMakePair(c.option.Name,
                             c.current ? QStringLiteral("TRUE") : QStringLiteral("FALSE"));
        } else if (const ModeItem *item = c.currentItem()) {
            out << qMakePair(c.option.Name, c.option.signalGroups.value(item->groupIndex).Name);
        }
    }
    return out;
}

bool IP_ModeAndConfiguration::setModeSelection(const QString &modeName, const QString &value)
{
    if (ProCheckBox *box = checkBox(modeName)) {
        const bool ticked = value.compare(QLatin1String("TRUE"), Qt::CaseInsensitive) == 0;
        if (!ticked && value.compare(QLatin1String("FALSE"), Qt::CaseInsensitive) != 0)
            return false;
        box->setChecked(ticked);
        return true;
    }
    ProComboBox *box = comboBox(modeName);
    if (!box)
        return false;
    // The item's key first; then its text in either language, as a user reads it.
    int index = -1;
    const ModeControl *c = box->control();
    for (int pass = 0; pass < 2 && index < 0; ++pass) {
        for (int i = 0; i < c->items.size() && index < 0; ++i) {
            const ModeSignalGroup group = c->option.signalGroups.value(c->items.at(i).groupIndex);
            if (pass == 0 ? group.Name == value
                          : (group.UserName == value || group.UserNameCH == value))
                index = i + 1;
        }
    }
    if (index < 0)
        return false;
    box->setCurrentIndex(index);
    return box->currentIndex() == index;
}

void IP_ModeAndConfiguration::retranslateUi()
{
    m_modeButton->setText(tr("Mode"));
    m_configButton->setText(tr("Configuration"));
    for (ProComboBox *box : m_comboList)
        box->retranslate();
    if (m_paramWidget)
        m_paramWidget->retranslateUi();
    if (m_gpioWidget)
        m_gpioWidget->retranslateUi();
    if (m_nvicWidget)
        m_nvicWidget->retranslateUi();
    for (DMASettingWidget *table : qAsConst(m_dmaWidgets))
        table->retranslateUi();
    runHintRule();
    rebuildTabs();
}

void IP_ModeAndConfiguration::settle()
{
    if (m_paramWidget) {
        m_paramWidget->modeThread.wait();
        QCoreApplication::sendPostedEvents(m_paramWidget, QEvent::MetaCall);
    }
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}
