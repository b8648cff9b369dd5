#include "app/formconfiguration.h"

#include "app/designsession.h"
#include "app/generatecodeaction.h"
#include "app/generatereportaction.h"
#include "app/languagesetting.h"
#include "app/modaldialogs.h"
#include "app/new_design_select.h"
#include "app/recentdesigns.h"
#include "app/version.h"
#include "app/versionabout.h"
#include "app/workformrules.h"
#include "clock/mq48pllconfig.h"
#include "codeview/findtext.h"
#include "codeview/formcodeview.h"
#include "database/devicecheck.h"
#include "database/language.h"
#include "database/paths.h"
#include "packages/packagemanager.h"
#include "packages/versioncheck.h"
#include "peripherals/dma_configuration.h"
#include "peripherals/dmarequestmodel.h"
#include "peripherals/dmasettingwidget.h"
#include "peripherals/gpio_configuration.h"
#include "peripherals/gpiosettingsmodel.h"
#include "peripherals/gpiosettingwidget.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/modefamilytables.h"
#include "peripherals/nvic_configuration.h"
#include "peripherals/nvicmodel.h"
#include "peripherals/paramsettingwidget.h"
#include "peripherals/peripheralsconfig.h"
#include "peripherals/procheckbox.h"
#include "pinout/chipview.h"
#include "project/projectsetting.h"
#include "widgets/messagebox.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTimer>
#include <QToolBar>
#include <QTranslator>
#include <QUrl>
#include <QVBoxLayout>

namespace {

const char *const kArial = "Arial";

// Shows a modal message with the given buttons and returns the index of the one pressed, or
// -1 when the box was closed otherwise.
int askUser(QWidget *parent, UserMessage::Kind kind, const QString &title, const QString &text,
            const QStringList &buttons)
{
    return showUserMessage(parent, {kind, title, text, buttons});
}

void tell(QWidget *parent, UserMessage::Kind kind, const QString &title, const QString &text)
{
    askUser(parent, kind, title, text, {FormConfiguration::tr("Ok")});
}

QAction *makeAction(QObject *parent, const QString &iconPath = QString())
{
    auto *action = new QAction(parent);
    action->setFont(QFont(QString::fromLatin1(kArial)));
    if (!iconPath.isEmpty())
        action->setIcon(QIcon(iconPath));
    return action;
}

} // namespace

FormConfiguration::FormConfiguration(QWidget *parent) : QWidget(parent)
{
    setWindowIcon(QIcon(QStringLiteral(":/image/VelmoraIcon.png")));
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, Qt::white);
    setPalette(pal);
    setWindowTitle(QString::fromLatin1(MQ48_VERSION_TITLE));

    createActions();
    createMenus();
    refreshRecentMenu();
    createToolBar();
    createPages();
    retranslateForm();
    updateLanguageActions();

    setWindowState(windowState() | Qt::WindowMaximized);

    // The title tells whether the design has unsaved changes; a panel change can come from
    // anywhere, so the title looks now and then rather than at every signal.
    m_titleTimer = new QTimer(this);
    m_titleTimer->setInterval(1000);
    connect(m_titleTimer, &QTimer::timeout, this, &FormConfiguration::updateTitle);

    connect(m_pinButton, &QPushButton::clicked, this,
            &FormConfiguration::PINConfig_PushButton_Clicked);
    connect(m_clockButton, &QPushButton::clicked, this,
            &FormConfiguration::ClockConfig_PushButton_Clicked);
    connect(m_codeButton, &QPushButton::clicked, this,
            &FormConfiguration::CodeView_PushButton_Clicked);
    connect(pllPage, &MQ48PLLConfig::SendClockHaveErrorSignal, this,
            &FormConfiguration::ReciveClockHaveErrorSignal);
    // Owns the generator thread, which reports to CodeView_Generate_Finished.
    m_codeGeneration = new GenerateCodeAction(this);
}

FormConfiguration::~FormConfiguration()
{
    tearDownDesign();
}

void FormConfiguration::setTranslator(QTranslator *translator)
{
    m_translator = translator;
}

// ----------------------------------------------------------------------------------------
// Construction

void FormConfiguration::createActions()
{
    m_newAction = makeAction(this);
    m_newAction->setShortcut(QKeySequence::New);
    m_openAction = makeAction(this);
    m_openAction->setShortcut(QKeySequence::Open);
    m_saveAction = makeAction(this);
    m_saveAction->setShortcut(QKeySequence::Save);
    m_saveAsAction = makeAction(this);
    m_saveAsAction->setShortcut(QKeySequence(QStringLiteral("Ctrl+Alt+A")));
    m_packageAction = makeAction(this);
    m_packageAction->setShortcut(QKeySequence(QStringLiteral("Ctrl+P")));
    m_reportAction = makeAction(this);
    m_reportAction->setShortcut(QKeySequence(QStringLiteral("Ctrl+R")));

    m_englishAction = makeAction(this);
    m_englishToolAction = makeAction(this, QStringLiteral(":/image/icon_EN01.png"));
    m_chineseAction = makeAction(this);
    m_chineseToolAction = makeAction(this, QStringLiteral(":/image/icon_ZH01.png"));
    for (QAction *a : {m_englishAction, m_englishToolAction, m_chineseAction, m_chineseToolAction})
        a->setCheckable(true);

    m_generateAction = makeAction(this);
    m_generateAction->setShortcut(QKeySequence(QStringLiteral("Ctrl+G")));
    m_generateToolAction = makeAction(this, QStringLiteral(":/image/generate_code.png"));
    m_manualAction = makeAction(this);
    m_manualAction->setShortcut(QKeySequence(Qt::Key_F1));
    m_versionAction = makeAction(this);
    m_downloadAction = makeAction(this, QStringLiteral(":/image/download.png"));
    m_homeAction = makeAction(this);
    m_homeAction->setShortcut(QKeySequence(QStringLiteral("Alt+H")));
    m_homeToolAction = makeAction(this, QStringLiteral(":/image/icon_home.png"));

    m_zoomInAction = makeAction(this, QStringLiteral(":/image/icon_zoomin.png"));
    m_zoomOutAction = makeAction(this, QStringLiteral(":/image/icon_zoomout.png"));
    m_zoomResetAction = makeAction(this, QStringLiteral(":/image/icon_zoomreset.png"));
    m_resetAllAction = makeAction(this, QStringLiteral(":/image/icon_return.png"));
    m_rotateAction = makeAction(this, QStringLiteral(":/image/rotate1.png"));
    m_rotateBackAction = makeAction(this, QStringLiteral(":/image/rotate2.png"));

    connect(m_newAction, &QAction::triggered, this,
            &FormConfiguration::NewProject_Action_Triggered);
    connect(m_openAction, &QAction::triggered, this,
            &FormConfiguration::OpenProject_Action_Triggered);
    connect(m_saveAction, &QAction::triggered, this,
            &FormConfiguration::SaveProject_Action_Triggered);
    connect(m_saveAsAction, &QAction::triggered, this,
            &FormConfiguration::SaveAsProject_Action_Triggered);
    connect(m_packageAction, &QAction::triggered, this,
            &FormConfiguration::PackageManager_Action_Triggered);
    connect(m_reportAction, &QAction::triggered, this,
            &FormConfiguration::GenerateReport_Action_Triggered);
    for (QAction *a : {m_englishAction, m_englishToolAction})
        connect(a, &QAction::triggered, this, &FormConfiguration::English_Action_Triggered);
    for (QAction *a : {m_chineseAction, m_chineseToolAction})
        connect(a, &QAction::triggered, this, &FormConfiguration::Chinese_Action_Triggered);
    for (QAction *a : {m_generateAction, m_generateToolAction})
        connect(a, &QAction::triggered, this, &FormConfiguration::GeneralCode_Action_Triggered);
    connect(m_manualAction, &QAction::triggered, this,
            &FormConfiguration::OpenManual_Action_Triggered);
    connect(m_versionAction, &QAction::triggered, this,
            &FormConfiguration::Version_Action_Triggered);
    connect(m_downloadAction, &QAction::triggered, this,
            &FormConfiguration::NewVersionDownload_Triggered);
    for (QAction *a : {m_homeAction, m_homeToolAction})
        connect(a, &QAction::triggered, this, &FormConfiguration::GoToHomePage_Triggered);

    // The drawing's actions work once a design exists.
    for (QAction *a : {m_zoomInAction, m_zoomOutAction, m_zoomResetAction, m_resetAllAction,
                       m_rotateAction, m_rotateBackAction})
        a->setEnabled(false);
}

void FormConfiguration::createMenus()
{
    m_menuBar = new QMenuBar(this);
    m_menuBar->setFont(QFont(QString::fromLatin1(kArial)));

    m_fileMenu = m_menuBar->addMenu(QString());
    m_fileMenu->addAction(m_newAction);
    m_fileMenu->addAction(m_openAction);
    m_fileMenu->addAction(m_saveAction);
    m_fileMenu->addAction(m_saveAsAction);
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(m_packageAction);
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(m_reportAction);
    m_fileMenu->addSeparator();
    m_recentMenu = m_fileMenu->addMenu(QString());

    m_languageMenu = m_menuBar->addMenu(QString());
    m_languageMenu->addAction(m_englishAction);
    m_languageMenu->addAction(m_chineseAction);

    m_generateMenu = m_menuBar->addMenu(QString());
    m_generateMenu->addAction(m_generateAction);

    m_helpMenu = m_menuBar->addMenu(QString());
    m_helpMenu->addAction(m_versionAction);
    m_helpMenu->addAction(m_downloadAction);
    m_helpMenu->addAction(m_homeAction);
    m_helpMenu->addAction(m_manualAction);
}

void FormConfiguration::refreshRecentMenu()
{
    m_recentMenu->clear();
    for (const QString &path : GetRecentDesigns()) {
        QAction *entry = m_recentMenu->addAction(path);
        entry->setFont(QFont(QString::fromLatin1(kArial)));
        entry->setData(path);
        connect(entry, &QAction::triggered, this, &FormConfiguration::OpenDesign_List_Clicked);
        // Opening a design file comes with the design file support.
        entry->setEnabled(false);
    }
    m_recentMenu->setEnabled(!m_recentMenu->isEmpty());
}

void FormConfiguration::createToolBar()
{
    m_toolBar = new QToolBar(this);
    m_toolBar->setIconSize(QSize(32, 32));
    m_toolBar->setToolButtonStyle(Qt::ToolButtonIconOnly);
    m_toolBar->addAction(m_generateToolAction);
    m_toolBar->addSeparator();
    m_toolBar->addAction(m_zoomInAction);
    m_toolBar->addAction(m_zoomOutAction);
    m_toolBar->addAction(m_zoomResetAction);
    m_toolBar->addAction(m_rotateAction);
    m_toolBar->addAction(m_rotateBackAction);
    m_toolBar->addAction(m_resetAllAction);
    m_toolBar->addSeparator();
    m_toolBar->addAction(m_englishToolAction);
    m_toolBar->addAction(m_chineseToolAction);
    m_toolBar->addSeparator();
    m_toolBar->addAction(m_homeToolAction);
    m_toolBar->addAction(m_downloadAction);

    m_deviceLabel = new QLabel(this);
    m_deviceLabel->setFont(QFont(QString::fromLatin1(kArial), 14, QFont::Bold));
    m_deviceLabel->setStyleSheet(QStringLiteral("color: rgb(35, 184, 198);"));
}

void FormConfiguration::createPages()
{
    m_splitter = new QSplitter(Qt::Horizontal, this);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setHandleWidth(4);

    m_pinButton = new QPushButton(this);
    m_clockButton = new QPushButton(this);
    m_codeButton = new QPushButton(this);
    for (QPushButton *b : {m_pinButton, m_clockButton, m_codeButton}) {
        b->setFont(QFont(QString::fromLatin1(kArial), 11, QFont::Bold));
        b->setMinimumHeight(32);
        b->setCursor(Qt::PointingHandCursor);
    }
    pllPage = new MQ48PLLConfig(this);
    pllPage->hide();
    codeView = new FormCodeView(this);
    codeView->hide();

    auto *topRow = new QHBoxLayout;
    topRow->setContentsMargins(0, 0, 0, 0);
    topRow->addWidget(m_toolBar);
    topRow->addStretch(1);
    topRow->addWidget(m_deviceLabel);

    auto *buttonRow = new QHBoxLayout;
    buttonRow->setContentsMargins(0, 0, 0, 0);
    buttonRow->setSpacing(4);
    buttonRow->addWidget(m_pinButton);
    buttonRow->addWidget(m_clockButton);
    buttonRow->addWidget(m_codeButton);
    buttonRow->addStretch(1);

    m_mainLayout = new QVBoxLayout(this);
    m_mainLayout->setContentsMargins(4, 0, 4, 4);
    m_mainLayout->setSpacing(2);
    m_mainLayout->setMenuBar(m_menuBar);
    m_mainLayout->addLayout(topRow);
    m_mainLayout->addLayout(buttonRow);
    m_mainLayout->addWidget(m_splitter, 1);
    m_mainLayout->addWidget(pllPage, 1);
    m_mainLayout->addWidget(codeView, 1);

    styleButtons(m_pinButton);
}

// ----------------------------------------------------------------------------------------
// Texts

void FormConfiguration::retranslateForm()
{
    setWindowTitle(QString::fromLatin1(MQ48_VERSION_TITLE));

    m_newAction->setText(tr("New Design"));
    m_openAction->setText(tr("Open Design"));
    m_saveAction->setText(tr("Save Design"));
    m_saveAsAction->setText(tr("Design Save As"));
    m_packageAction->setText(tr("Package Manager"));
    m_reportAction->setText(tr("Generate Report"));
    m_englishAction->setText(tr("English"));
    m_englishToolAction->setText(tr("English"));
    m_chineseAction->setText(tr("Chinese"));
    m_chineseToolAction->setText(tr("Chinese"));
    m_generateAction->setText(tr("Generate code"));
    m_generateToolAction->setText(tr("Generate code"));
    m_manualAction->setText(tr("Open Manual"));
    m_versionAction->setText(tr("Version"));
    m_downloadAction->setText(tr("New version download"));
    m_homeAction->setText(tr("Go to Velmora home page"));
    m_homeToolAction->setText(tr("Go to Velmora home page"));
    m_zoomInAction->setText(tr("Zoom in"));
    m_zoomOutAction->setText(tr("Zoom out"));
    m_zoomResetAction->setText(tr("Zoom Reset"));
    m_resetAllAction->setText(tr("Reset All Configurations"));
    m_rotateAction->setText(tr("Clockwise rotate"));
    m_rotateBackAction->setText(tr("Anti-clockwise rotate"));

    m_fileMenu->setTitle(tr("File"));
    m_recentMenu->setTitle(tr("Resent Design"));
    m_languageMenu->setTitle(tr("Language"));
    m_generateMenu->setTitle(tr("Generate code"));
    m_helpMenu->setTitle(tr("Help"));

    // A single '&' would make a mnemonic of the next letter; doubling it shows it as text.
    m_pinButton->setText(
        tr("Pin out & Configuration").replace(QLatin1Char('&'), QStringLiteral("&&")));
    m_clockButton->setText(tr("Clock Configuration"));
    m_codeButton->setText(tr("Code View"));
}

void FormConfiguration::retranslateMenu()
{
    retranslateForm();
    refreshRecentMenu();
    updateLanguageActions();
}

void FormConfiguration::updateLanguageActions()
{
    const bool chinese = g_language == 1;
    m_chineseAction->setChecked(chinese);
    m_chineseToolAction->setChecked(chinese);
    m_englishAction->setChecked(!chinese);
    m_englishToolAction->setChecked(!chinese);
    m_chineseToolAction->setIcon(QIcon(chinese ? QStringLiteral(":/image/icon_ZH02.png")
                                               : QStringLiteral(":/image/icon_ZH01.png")));
    m_englishToolAction->setIcon(QIcon(chinese ? QStringLiteral(":/image/icon_EN01.png")
                                               : QStringLiteral(":/image/icon_EN02.png")));
}

// ----------------------------------------------------------------------------------------
// Building and tearing down a design

bool FormConfiguration::buildDesign(const QString &series, const QString &device,
                                    const QString &package)
{
    // An empty selection (an empty catalogue) still opens, as an empty package.
    if (m_building)
        return false;
    // A device file that can't carry a design is named once, and the open design stays.
    if (!device.isEmpty()) {
        const QString path = deviceFilePath(series, device);
        const QString problem = DeviceFileProblem(path);
        if (!problem.isEmpty()) {
            tell(this, UserMessage::Error, tr("Error"),
                 tr("The device file %1 can not be opened.\n%2")
                     .arg(QDir::toNativeSeparators(
                              path.isEmpty() ? series + QLatin1Char('/') + device : path),
                          problem));
            return false;
        }
    }
    m_building = true;
    tearDownDesign();

    DesignLoader loader;
    loader.load(series, device, package, &m_design);

    m_deviceLabel->setText(QStringLiteral("  ") + m_design.mcuName + QStringLiteral("  "));
    pllPage->setMcuModel(m_design.clockModel);

    buildPanels();

    // One project manager per design; it starts from the settings and the device.
    m_projectSetting = new ProjectSetting(this);
    ProjectTarget target;
    target.series = m_design.series;
    target.device = m_design.mcuName;
    m_projectSetting->setTarget(target);
    connect(m_projectSetting, &ProjectSetting::SendOpenPackageManager, this,
            [this] { openPackageManager(m_projectSetting); });

    setButtonWarning(m_pinButton, false);
    setButtonWarning(m_clockButton, false);
    setButtonWarning(m_codeButton, false);
    designOpen = true;
    showPinPage();
    m_building = false;
    markDesignSaved();
    m_titleTimer->start();
    return true;
}

void FormConfiguration::buildPanels()
{
    QRect screen(0, 0, 1920, 1080);
    if (QScreen *primary = QGuiApplication::primaryScreen())
        screen = primary->availableGeometry();

    chipView = new ChipView(m_design.devicePinInfo);

    QProgressDialog progress(tr("Loading......"), QString(), 0, m_design.peripheralList.size(),
                             this);
    progress.setWindowTitle(tr("MQ48 Pin Forge"));
    progress.setFont(QFont(QString::fromLatin1(kArial)));
    progress.setStyleSheet(QStringLiteral("QProgressDialog {border-image: url(:/image/PPT "
                                          "cover.png);}"));
    // Room for the text beside the picture of the cover, in the font the machine has.
    progress.setMinimumSize(
        qMax(420, progress.fontMetrics().horizontalAdvance(tr("Loading......")) + 300),
        progress.sizeHint().height() + 40);
    progress.setWindowModality(Qt::ApplicationModal);
    progress.setMinimumDuration(0);
    progress.setValue(0);
    QCoreApplication::processEvents();

    m_panelArea = new QWidget;
    auto *panelLayout = new QVBoxLayout(m_panelArea);
    panelLayout->setContentsMargins(0, 0, 0, 0);

    createSystemModels();
    // A peripheral whose modes all need pins this package lacks has nothing to offer here:
    // it gets neither a panel nor a row in the tree.
    QList<PeripheralListItem> listed;
    int done = 0;
    for (const PeripheralListItem &row : m_design.peripheralList) {
        if (!DesignLoader::isSystemBlock(row.InstanceName)) {
            IP_ModeAndConfiguration *panel = createModePanel(row);
            if (panel->hasModes() && !panel->hasUsableMode()) {
                ipPanels.removeAll(panel);
                m_panelsByName.remove(row.InstanceName);
                panel->disconnect();
                delete panel;
            } else {
                panelLayout->addWidget(panel);
                listed << row;
            }
        } else {
            listed << row;
        }
        progress.setValue(++done);
        QCoreApplication::processEvents();
    }
    createSystemPanels(panelLayout);

    peripheralsConfig = new PeripheralsConfig(listed);
    peripheralsConfig->hide();
    m_splitter->addWidget(peripheralsConfig);
    connect(peripheralsConfig, &PeripheralsConfig::SendIPName, this,
            &FormConfiguration::GetSelectIPName);

    connect(chipView, &ChipView::SendAllConfigedSignals, this,
            &FormConfiguration::ReciveAllConfigedSignals);
    connect(this, &FormConfiguration::SendIPPinSignals_ToChipView, chipView,
            &ChipView::ReciveIPPinSignals);
    connect(this, &FormConfiguration::ClearIPPinSignals_ToChipView, chipView,
            &ChipView::ReciveClearIPPinSignals);

    m_splitter->addWidget(chipView);
    m_splitter->addWidget(m_panelArea);
    m_splitter->setSizes(WorkFormRules::splitterSizes(screen.width()));
    peripheralsConfig->show();
    for (IP_ModeAndConfiguration *panel : qAsConst(ipPanels))
        panel->UpdateAllConfigedSignals(m_design.devicePinInfo, false, panel->instanceName());
    if (m_gpioPanel)
        m_gpioPanel->ReciveAllConfigedSignals(m_design.devicePinInfo, false, QString());
    refreshSystemModels();

    connect(m_zoomInAction, &QAction::triggered, chipView, &ChipView::ZoomIn);
    connect(m_zoomOutAction, &QAction::triggered, chipView, &ChipView::ZoomOut);
    connect(m_zoomResetAction, &QAction::triggered, chipView, &ChipView::ZoomReset);
    connect(m_rotateAction, &QAction::triggered, chipView, &ChipView::Rotated_Clockwise);
    connect(m_rotateBackAction, &QAction::triggered, chipView, &ChipView::Rotated_AnitClockwise);
    connect(m_resetAllAction, &QAction::triggered, this, &FormConfiguration::AllConfigReset);
    for (QAction *a : {m_zoomInAction, m_zoomOutAction, m_zoomResetAction, m_resetAllAction,
                       m_rotateAction, m_rotateBackAction})
        a->setEnabled(true);
}

void FormConfiguration::createSystemModels()
{
    m_gpioModel = new GpioSettingsModel(m_design.gpioTree, this);
    m_nvicModel = new NvicModel(m_design.nvicTree, this);
    for (const DMATree &tree : qAsConst(m_design.dmaTrees)) {
        auto *model = new DmaRequestModel(tree.name, tree.tree, m_design.series, this);
        connect(model, &DmaRequestModel::changed, this, [this, model] {
            // The tree shows whether the controller has requests, whichever table changed.
            if (peripheralsConfig)
                peripheralsConfig->ReceiveIPStatusFlag(
                    model->name(),
                    model->requests().isEmpty() ? IPSTATUS_INACTIVE : IPSTATUS_ACTIVE, false);
            refreshNvicAvailability();
        });
        m_dmaModels << model;
    }
    // Labels given in any GPIO table reach the drawing.
    connect(m_gpioModel, &GpioSettingsModel::labelChanged, chipView,
            &ChipView::ReceiveGPIOSignalsUserLabelChange);
}

void FormConfiguration::createSystemPanels(QLayout *panelLayout)
{
    QHash<QString, QString> owners;
    for (IP_ModeAndConfiguration *panel : qAsConst(ipPanels)) {
        panel->setSystemModels(m_gpioModel, m_nvicModel, m_dmaModels);
        panel->setClockPage(pllPage);
        for (const QString &name : panel->signalNames()) {
            if (!owners.contains(name))
                owners.insert(name, panel->instanceName());
        }
    }
    m_gpioModel->setSignalOwners(owners);

    const QList<PeripheralListItem> &rows = m_design.peripheralList;
    if (DesignLoader::listsBlock(rows, QStringLiteral("GPIO"))) {
        m_gpioPanel = new GPIO_Configuration(m_gpioModel);
        m_gpioPanel->hide();
        connect(m_gpioPanel, &GPIO_Configuration::SendIPStatusFlag, this,
                &FormConfiguration::ReceiveIPStatusFlag);
        connect(m_gpioPanel, &GPIO_Configuration::SendGPIOQuerySignals, chipView,
                &ChipView::ReceiveGPIOQuerySignals);
        connect(m_gpioPanel, &GPIO_Configuration::SendGPIOSettingChangeSignals1, this,
                &FormConfiguration::ReceiveSingleGPIOSettingChangeSignals);
        m_panelsByName.insert(QStringLiteral("GPIO"), m_gpioPanel);
        panelLayout->addWidget(m_gpioPanel);
    }
    for (DmaRequestModel *model : qAsConst(m_dmaModels)) {
        auto *panel = new DMA_Configuration(model);
        panel->hide();
        using StatusFlag = void (DMA_Configuration::*)(QString, IPSTATUS, bool);
        connect(panel, static_cast<StatusFlag>(&DMA_Configuration::SendIPStatusFlag), this,
                &FormConfiguration::ReceiveIPStatusFlag);
        connect(panel, &DMA_Configuration::SendDMARequestChangeSignals, this,
                &FormConfiguration::ReceiveSingleDMARequestInfoChangeSignals);
        m_dmaPanels << panel;
        m_panelsByName.insert(model->name(), panel);
        panelLayout->addWidget(panel);
    }
    if (DesignLoader::listsBlock(rows, QStringLiteral("NVIC"))) {
        m_nvicPanel = new NVIC_Configuration(m_nvicModel);
        m_nvicPanel->hide();
        m_panelsByName.insert(QStringLiteral("NVIC"), m_nvicPanel);
        panelLayout->addWidget(m_nvicPanel);
    }
}

QSet<QString> FormConfiguration::configuredInstances() const
{
    QSet<QString> configured;
    for (IP_ModeAndConfiguration *panel : ipPanels) {
        if (panel->modeActive())
            configured.insert(panel->instanceName());
    }
    return configured;
}

QSet<int> FormConfiguration::exintInterruptLines() const
{
    // The lines whose event setting is the interrupt, among the rows the EXINT panel shows.
    QSet<int> lines;
    IP_ModeAndConfiguration *exint = modePanel(QStringLiteral("EXINT"));
    if (!exint || !exint->modeActive() || !exint->paramSettingWidget())
        return lines;
    const ParamSettingWidget *params = exint->paramSettingWidget();
    const QString prefix = QStringLiteral("InterruptEvent_EXINT");
    for (const RefParameter &p : params->parameters) {
        if (!p.Name.startsWith(prefix) || p.Value != QLatin1String("EXINT_LINE_INTERRUPUT") ||
            !params->isParameterVisible(p))
            continue;
        bool ok = false;
        const int line = p.Name.mid(prefix.size()).toInt(&ok);
        if (ok)
            lines.insert(line);
    }
    return lines;
}

void FormConfiguration::refreshSystemModels()
{
    const QSet<QString> configured = configuredInstances();
    for (DmaRequestModel *model : qAsConst(m_dmaModels)) {
        model->setConfigured(configured);
        model->releaseUnconfigured();
    }
    refreshNvicAvailability();
}

void FormConfiguration::refreshNvicAvailability()
{
    if (!m_nvicModel)
        return;
    NvicAvailability availability;
    availability.configured = configuredInstances();
    availability.exintLines = exintInterruptLines();
    for (DmaRequestModel *model : qAsConst(m_dmaModels)) {
        const QMap<QString, QStringList> channels = model->channelsByInstance();
        for (auto it = channels.cbegin(); it != channels.cend(); ++it)
            availability.dmaChannelsByInstance[it.key()] << it.value();
    }
    m_nvicModel->updateAvailability(availability);
}

IP_ModeAndConfiguration *FormConfiguration::createModePanel(const PeripheralListItem &row)
{
    auto *panel = new IP_ModeAndConfiguration(row, m_design.gpioTree, m_design.mcuName,
                                              m_design.series, m_design.devicePinInfo);
    panel->hide();
    using P = IP_ModeAndConfiguration;
    connect(panel, &P::SendIPPinSignals, this, &FormConfiguration::ReciveIPPinSignals_FormIP);
    connect(panel, &P::ClearIPPinSignals, this,
            &FormConfiguration::ReciveClearIPPinSignals_FormIP);
    connect(panel, &P::SendPinRemapFlag, chipView, &ChipView::ReceivePinRemapFlag);
    connect(panel, &P::SendGPIOQuerySignals, chipView, &ChipView::ReceiveGPIOQuerySignals);
    connect(panel, &P::SendGPIOSignalsUserLabelChange, chipView,
            &ChipView::ReceiveGPIOSignalsUserLabelChange);
    connect(panel, &P::SendIPStatusFlag, this, &FormConfiguration::ReceiveIPStatusFlag);
    connect(panel, &P::SendGPIOSettingChangeSignals1, this,
            &FormConfiguration::ReceivePerpheralsGPIOSettingChangeSignals);
    connect(panel, &P::SendDMARequestChangeSignals, this,
            &FormConfiguration::ReceivePerpheralsDMARequestChangeSignals);
    connect(panel, &P::EnableSemaphore_To_OtherIP, this,
            &FormConfiguration::ReceiveSemaphore_From_OtherIP);
    connect(panel, &P::SendParamList_To_OtherIP, this,
            &FormConfiguration::ReceiveParamList_From_OtherIP);
    connect(panel, &P::SendRefreshNVIC, this, &FormConfiguration::ReceiveRefreshNVIC);
    if (row.InstanceName == QLatin1String("CRM")) {
        connect(panel, &P::SendLextFlag, this, &FormConfiguration::ReceiveLextFlag);
        connect(panel, &P::SendHextFlag, this, &FormConfiguration::ReceiveHextFlag);
        connect(panel, &P::SendClockOutPin, this, &FormConfiguration::ReceiveClockOutPin);
        connect(panel, &P::SendClockOut1Pin, this, &FormConfiguration::ReceiveClockOut1Pin);
        connect(panel, &P::SendClockOut2Pin, this, &FormConfiguration::ReceiveClockOut2Pin);
    }
    if (ModeFamilyTables::isUsbClockFamily(m_design.series))
        connect(pllPage, &MQ48PLLConfig::SendUSBClockSourceChangeSignal, panel,
                &P::ReciveUSBClockSourceChangeSignal);
    if (row.InstanceName == QLatin1String("I2SF5") &&
        (m_design.series == QLatin1String("MQ48T220") ||
         m_design.series == QLatin1String("MQ48T210")))
        connect(pllPage, &MQ48PLLConfig::SendI2SF5ClockSourceChangeSignal, panel,
                &P::ReciveI2SF5ClockSourceChangeSignal);
    // Every parameter panel, shown or not, follows the clock tree.
    if (ParamSettingWidget *params = panel->paramSettingWidget()) {
        connect(pllPage, &MQ48PLLConfig::SendClockChangedSignal, params,
                &ParamSettingWidget::ReciveClockChangedSignal);
        params->setClockPage(pllPage);
    }

    ipPanels << panel;
    m_panelsByName.insert(row.InstanceName, panel);
    return panel;
}

IP_ModeAndConfiguration *FormConfiguration::modePanel(const QString &instanceName) const
{
    for (IP_ModeAndConfiguration *panel : ipPanels) {
        if (panel->instanceName() == instanceName)
            return panel;
    }
    return nullptr;
}

QWidget *FormConfiguration::shownPanel() const
{
    for (QWidget *panel : m_panelsByName) {
        if (!panel->isHidden())
            return panel;
    }
    return nullptr;
}

bool FormConfiguration::pinPageWarning() const
{
    return m_pinButton->property("warning").toBool();
}

void FormConfiguration::tearDownDesign()
{
    for (QAction *a : {m_zoomInAction, m_zoomOutAction, m_zoomResetAction, m_resetAllAction,
                       m_rotateAction, m_rotateBackAction}) {
        if (!a)
            continue;
        a->disconnect(chipView);
        a->disconnect(this);
        a->setEnabled(false);
    }
    if (chipView) {
        chipView->disconnect(this);
        disconnect(this, nullptr, chipView, nullptr);
    }
    if (pllPage) {
        for (IP_ModeAndConfiguration *panel : qAsConst(ipPanels))
            pllPage->disconnect(panel);
    }
    // Every panel goes quiet before any is deleted, so a dying panel reaches no other.
    for (QWidget *panel : qAsConst(m_panelsByName))
        panel->disconnect();
    for (QWidget *panel : qAsConst(m_panelsByName))
        delete panel;
    m_panelsByName.clear();
    ipPanels.clear();
    m_gpioPanel = nullptr;
    m_nvicPanel = nullptr;
    m_dmaPanels.clear();
    delete m_gpioModel;
    m_gpioModel = nullptr;
    delete m_nvicModel;
    m_nvicModel = nullptr;
    qDeleteAll(m_dmaModels);
    m_dmaModels.clear();
    m_modePanelStatus.clear();
    delete m_panelArea;
    m_panelArea = nullptr;
    delete chipView;
    chipView = nullptr;
    delete peripheralsConfig;
    peripheralsConfig = nullptr;

    delete m_projectSetting;
    m_projectSetting = nullptr;

    m_design.clear();
    designPath.clear();
    designOpen = false;
}

// ----------------------------------------------------------------------------------------
// Pages

void FormConfiguration::styleButtons(QPushButton *active)
{
    for (QPushButton *b : {m_pinButton, m_clockButton, m_codeButton})
        b->setStyleSheet(WorkFormRules::pageButtonStyle(b == active));
}

void FormConfiguration::setButtonWarning(QPushButton *button, bool warn)
{
    button->setIcon(warn ? QIcon(QStringLiteral(":/image/danger32.png")) : QIcon());
    button->setProperty("warning", warn);
}

void FormConfiguration::showPinPage()
{
    m_splitter->show();
    pllPage->hide();
    codeView->hide();
    styleButtons(m_pinButton);
}

void FormConfiguration::PINConfig_PushButton_Clicked()
{
    showPinPage();
}

void FormConfiguration::ClockConfig_PushButton_Clicked()
{
    m_splitter->hide();
    codeView->hide();
    pllPage->show();
    styleButtons(m_clockButton);
}

void FormConfiguration::CodeView_PushButton_Clicked()
{
    if (!designOpen)
        return;
    // The checks bring the page forward that holds a problem; only generated files are shown.
    if (m_codeGeneration->generateForCodeView() != GenerateCodeAction::CodeViewOutcome::Generated)
        return;
    codeView->showGeneratedFiles(m_codeGeneration->outputFolder(),
                                 findtext::codeFileStem(m_design.series));
    m_splitter->hide();
    pllPage->hide();
    codeView->show();
    styleButtons(m_codeButton);
}

// ----------------------------------------------------------------------------------------
// File menu

QByteArray FormConfiguration::currentDesignXml() const
{
    return designDocumentToXml(collectDesign(*this));
}

ProjectInfo FormConfiguration::projectInfo() const
{
    return m_projectSetting ? m_projectSetting->toProjectInfo() : ProjectInfo();
}

void FormConfiguration::setProjectInfo(const ProjectInfo &info)
{
    if (m_projectSetting)
        m_projectSetting->setProjectInfo(info);
}

void FormConfiguration::markDesignSaved()
{
    m_savedXml = designOpen ? currentDesignXml() : QByteArray();
    updateTitle();
}

bool FormConfiguration::isDesignModified() const
{
    return designOpen && currentDesignXml() != m_savedXml;
}

void FormConfiguration::updateTitle()
{
    if (!designOpen) {
        setWindowTitle(QString::fromLatin1(MQ48_VERSION_TITLE));
        setWindowModified(false);
        return;
    }
    const QString name = designPath.isEmpty() ? m_design.mcuName + tr(" (not saved)")
                                              : QFileInfo(designPath).fileName();
    setWindowTitle(name + QStringLiteral("[*] - ") + QString::fromLatin1(MQ48_VERSION_TITLE));
    if (isVisible() || !m_savedXml.isEmpty())
        setWindowModified(isDesignModified());
}

void FormConfiguration::flushPanelUpdates()
{
    for (IP_ModeAndConfiguration *panel : qAsConst(ipPanels))
        panel->settle();
}

bool FormConfiguration::writeDesign(const QString &path, QString *error)
{
    flushPanelUpdates();
    return writeDesignDocument(path, collectDesign(*this), error);
}

bool FormConfiguration::saveDesign()
{
    if (!designOpen)
        return false;
    if (designPath.isEmpty())
        return saveDesignAs();
    QString error;
    if (!writeDesign(designPath, &error)) {
        tell(this, UserMessage::Error, tr("Error"), tr("Save file error!"));
        return false;
    }
    AddRecentDesign(designPath);
    refreshRecentMenu();
    markDesignSaved();
    tell(this, UserMessage::Information, tr("Information"), tr("Save file finished!"));
    return true;
}

bool FormConfiguration::saveDesignAs()
{
    if (!designOpen)
        return false;
    const QString proposed =
        designPath.isEmpty() ? m_design.mcuName + QStringLiteral("_PinForge.MQPF") : designPath;
    const QString path = QFileDialog::getSaveFileName(this, tr("Save"), proposed,
                                                      tr("MQ48 Pin Forge Design File (*.MQPF)"));
    if (path.isEmpty())
        return false;
    designPath = path;
    return saveDesign();
}

bool FormConfiguration::openDesign(const QString &path)
{
    QProgressDialog progress(this);
    progress.setWindowTitle(tr("MQ48 Pin Forge"));
    progress.setLabelText(tr("Loading......"));
    progress.setCancelButton(nullptr);
    progress.setRange(0, kDesignReplaySteps);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(300);
    const DesignOpenResult result = openDesignFile(*this, path, [&progress](int step) {
        progress.setValue(step);
        QCoreApplication::processEvents();
    });
    progress.close();
    if (result.status != DesignOpenStatus::Opened) {
        if (result.status != DesignOpenStatus::BuildFailed)
            tell(this, UserMessage::Error, tr("Error"), designOpenMessage(result.status));
        return false;
    }
    designPath = path;
    markDesignSaved();
    AddRecentDesign(path);
    refreshRecentMenu();
    if (result.newerFormat)
        tell(this, UserMessage::Warning, tr("Warning"),
             tr("This design was saved by a newer version of MQ48 Pin Forge. What this version "
                "knows of it has been opened."));
    if (!result.problems.isEmpty()) {
        QStringList shown = result.problems.mid(0, 30);
        if (result.problems.size() > shown.size())
            shown << tr("... and %1 more").arg(result.problems.size() - shown.size());
        tell(this, UserMessage::Warning, tr("Warning"),
             tr("These settings could not be applied:") + QStringLiteral("\n") +
                 shown.join(QLatin1Char('\n')));
    }
    return true;
}

bool FormConfiguration::askSaveBeforeLeaving(const QString &question)
{
    QString yes = tr("Yes1");
    if (yes == QLatin1String("Yes1"))
        yes = tr("Yes");
    const int answer = askUser(this, UserMessage::Question, tr("Question"), question,
                               {yes, tr("No"), tr("Cancel")});
    if (answer == 0)
        return saveDesign();
    return answer == 1;
}

void FormConfiguration::NewProject_Action_Triggered()
{
    if (isDesignModified() &&
        !askSaveBeforeLeaving(tr("The current design will be closed before creating a new "
                                 "design. Would you like to save the design?")))
        return;
    New_Design_Select dialog(this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    buildDesign(dialog.getSerial(), dialog.getDevice(), dialog.getPackage());
}

void FormConfiguration::OpenProject_Action_Triggered()
{
    if (isDesignModified() &&
        !askSaveBeforeLeaving(
            tr("The current design will be closed. Would you like to save the design?")))
        return;
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open"), QString(), tr("Design file (*.MQPF)"));
    if (path.isEmpty())
        return;
    openDesign(path);
}

void FormConfiguration::SaveProject_Action_Triggered()
{
    saveDesign();
}

void FormConfiguration::SaveAsProject_Action_Triggered()
{
    saveDesignAs();
}

void FormConfiguration::PackageManager_Action_Triggered()
{
    openPackageManager(this);
}

void FormConfiguration::openPackageManager(QWidget *parent)
{
    PackageManager manager(parent);
    if (m_projectSetting)
        connect(&manager, &PackageManager::emitRepoPathChanged, m_projectSetting,
                &ProjectSetting::updateRepoPath);
    runModalDialog(&manager);
    // Packages installed or removed in the same folder change the versions on offer too.
    if (m_projectSetting)
        m_projectSetting->updateRepoPath(m_projectSetting->repositoryPath());
}

void FormConfiguration::GenerateReport_Action_Triggered()
{
    runGenerateReportAction(this, projectInfo());
}

void FormConfiguration::GeneralCode_Action_Triggered()
{
    if (!designOpen)
        return;
    // After a generation the design goes into its file without a question: a design that has
    // none yet takes the one beside its project.
    m_codeGeneration->run([this] {
        if (designPath.isEmpty() && m_projectSetting)
            designPath = m_projectSetting->designFilePath();
        if (designPath.isEmpty())
            return false;
        QString error;
        if (!writeDesign(designPath, &error)) {
            tell(this, UserMessage::Error, tr("Error"), tr("Save file error!"));
            return false;
        }
        AddRecentDesign(designPath);
        refreshRecentMenu();
        markDesignSaved();
        return true;
    });
}

void FormConfiguration::NewVersionDownload_Triggered()
{
    runNewVersionDownload(this, QStringLiteral(MQ48_VERSION_SHORT));
}

void FormConfiguration::OpenDesign_List_Clicked()
{
    auto *entry = qobject_cast<QAction *>(sender());
    const QString path = entry ? entry->data().toString() : QString();
    if (path.isEmpty())
        return;
    if (isDesignModified() &&
        !askSaveBeforeLeaving(
            tr("The current design will be closed. Would you like to save the design?")))
        return;
    if (askUser(this, UserMessage::Information, tr("Information"),
                tr("Are you sure to open this design file?"), {tr("Yes"), tr("Cancel")}) != 0)
        return;
    if (!QFile::exists(path)) {
        tell(this, UserMessage::Error, tr("Error"), tr("File is not exists!"));
        return;
    }
    openDesign(path);
}

// ----------------------------------------------------------------------------------------
// Help menu

void FormConfiguration::OpenManual_Action_Triggered()
{
    const QString path = WorkFormRules::manualPath(appFolder(), g_language);
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        tell(this, UserMessage::Error, tr("Error"), tr("Can't open manual!"));
}

void FormConfiguration::Version_Action_Triggered()
{
    VersionAbout about(this);
    about.exec();
}

void FormConfiguration::GoToHomePage_Triggered()
{
    QDesktopServices::openUrl(WorkFormRules::homePageUrl(g_language));
}

// ----------------------------------------------------------------------------------------
// Language

void FormConfiguration::English_Action_Triggered()
{
    if (g_language == 0) {
        updateLanguageActions();
        return;
    }
    if (askUser(this, UserMessage::Question, tr("Question"),
                tr("Are you sure to switch language?"), {tr("Yes"), tr("Cancel")}) != 0) {
        updateLanguageActions();
        return;
    }
    switchLanguage(0);
}

void FormConfiguration::Chinese_Action_Triggered()
{
    if (g_language == 1) {
        updateLanguageActions();
        return;
    }
    if (askUser(this, UserMessage::Question, tr("Question"),
                tr("Are you sure to switch language?"), {tr("Yes"), tr("Cancel")}) != 0) {
        updateLanguageActions();
        return;
    }
    switchLanguage(1);
}

void FormConfiguration::switchLanguage(int language)
{
    QTranslator *translator = m_translator;
    if (!translator) {
        if (!m_ownTranslator)
            m_ownTranslator = new QTranslator(this);
        translator = m_ownTranslator;
    }
    QCoreApplication::removeTranslator(translator);
    if (translator->load(LanguageCatalogue(language)))
        QCoreApplication::installTranslator(translator);
    g_language = language;

    // The form's own texts, the project manager, the tree, the clock page, the drawing, the
    // code view, then the mode panels and the GPIO, NVIC and DMA panels.
    retranslateForm();
    if (m_projectSetting)
        m_projectSetting->retranslateUi();
    if (peripheralsConfig)
        peripheralsConfig->retranslateUi();
    pllPage->retranslate();
    if (chipView) {
        chipView->retranslateUi();
        chipView->searchBox()->setCurrentIndex(-1);
        chipView->searchBox()->clearEditText();
    }
    codeView->retranslateUi();
    refreshRecentMenu();
    for (IP_ModeAndConfiguration *panel : qAsConst(ipPanels))
        panel->retranslateUi();
    if (m_gpioPanel)
        m_gpioPanel->retranslateUi();
    if (m_nvicPanel)
        m_nvicPanel->retranslateUi();
    for (DMA_Configuration *panel : qAsConst(m_dmaPanels))
        panel->retranslateUi();
    updateLanguageActions();

    StoreLanguageSetting(ConfigFilePath(), language);
}

// ----------------------------------------------------------------------------------------
// Reset

void FormConfiguration::AllConfigReset()
{
    if (!designOpen)
        return;
    if (askUser(this, UserMessage::Warning, tr("Warning"),
                tr("The current all configurations will be reset. Please confirm whether to "
                   "continue?"),
                {tr("Yes"), tr("Cancel")}) != 0)
        return;

    QProgressDialog progress(tr("Loading......"), QString(), 0, 3, this);
    progress.setWindowTitle(tr("MQ48 Pin Forge"));
    progress.setFont(QFont(QString::fromLatin1(kArial)));
    progress.setWindowModality(Qt::ApplicationModal);
    progress.setMinimumDuration(0);

    chipView->AllConfigReset();
    progress.setValue(1);
    QCoreApplication::processEvents();
    for (DmaRequestModel *model : qAsConst(m_dmaModels))
        model->reset();
    // Every mode goes back to "Disable" as if the user set it, which also withdraws the
    // semaphores between panels; then each panel runs its first update again.
    for (IP_ModeAndConfiguration *panel : qAsConst(ipPanels))
        panel->resetToDefaults();
    for (IP_ModeAndConfiguration *panel : qAsConst(ipPanels))
        panel->UpdateAllConfigedSignals(m_design.devicePinInfo, false, panel->instanceName());
    m_design.rebuildGpioRows();
    if (m_gpioModel) {
        m_gpioModel->update(m_design.devicePinInfo);
        m_gpioModel->resetParameters();
        m_gpioModel->setShowType(0);
    }
    if (m_gpioPanel)
        m_gpioPanel->ReciveAllConfigedSignals(m_design.devicePinInfo, false, QString());
    if (m_nvicModel)
        m_nvicModel->reset();
    refreshSystemModels();
    progress.setValue(2);
    QCoreApplication::processEvents();
    // Setting the model again gives the clock page a fresh tree at its defaults.
    pllPage->setMcuModel(m_design.clockModel);
    progress.setValue(3);
    showPinPage();
    progress.close();

    tell(this, UserMessage::Information, tr("Information"), tr("Reset succeed!"));
}

// ----------------------------------------------------------------------------------------
// Relay table

void FormConfiguration::ReciveIPPinSignals_FormIP(QList<ModeSignal> ipAllPinSignals,
                                                  QList<ModeSignal> ipValidPinSignals,
                                                  bool updateControlFlag, QString sendIPName)
{
    emit SendIPPinSignals_ToChipView(ipAllPinSignals, ipValidPinSignals, updateControlFlag,
                                     sendIPName);
}

void FormConfiguration::ReciveClearIPPinSignals_FormIP(QList<ModeSignal> ipAllPinSignals,
                                                       bool updateControlFlag, QString sendIPName)
{
    emit ClearIPPinSignals_ToChipView(ipAllPinSignals, updateControlFlag, sendIPName);
}

void FormConfiguration::ReceiveIPStatusFlag(QString ipName, IPSTATUS statusFlag,
                                            bool UpdateClockConfigFlag)
{
    if (!ipName.contains(QLatin1String("DMA"))) {
        if (ipName != QLatin1String("GPIO") && ipName != QLatin1String("NVIC"))
            m_modePanelStatus.insert(ipName, statusFlag);
        setButtonWarning(m_pinButton, WorkFormRules::pinPageWarns(statusFlag, m_modePanelStatus));
    }
    // A mode change releases the DMA requests and interrupts of a peripheral switched off.
    if (modePanel(ipName))
        refreshSystemModels();
    if (UpdateClockConfigFlag && WorkFormRules::changeUpdatesClock(ipName))
        pllPage->setPeripheralClockGate(ipName, (statusFlag & IPSTATUS_ACTIVE) != 0);
    if (peripheralsConfig)
        peripheralsConfig->ReceiveIPStatusFlag(ipName, statusFlag, UpdateClockConfigFlag);
}

void FormConfiguration::ReceivePerpheralsGPIOSettingChangeSignals(QString instanceName,
                                                                  QString signalName)
{
    if (m_gpioPanel)
        m_gpioPanel->ReciveGPIOSettingChangeSignals(instanceName, signalName);
    ReceiveSingleGPIOSettingChangeSignals(instanceName);
}

void FormConfiguration::ReceivePerpheralsDMARequestChangeSignals()
{
    // The mode panels read their conditions directly: their own request slot would send the
    // change back here.
    for (DMA_Configuration *panel : qAsConst(m_dmaPanels)) {
        for (DMASettingWidget *table : panel->settingWidgets())
            table->refreshDAMSettingWidgetTable();
    }
    for (IP_ModeAndConfiguration *panel : qAsConst(ipPanels))
        panel->UpdateDMACondition();
    refreshNvicAvailability();
}

void FormConfiguration::ReceiveSemaphore_From_OtherIP(QString ipInstanceName,
                                                      QStringList SemaphoreName, bool validFlag)
{
    const QStringList targets = WorkFormRules::semaphoreTargets(m_design.series, ipInstanceName);
    const bool usbFamily = ModeFamilyTables::isUsbClockFamily(m_design.series);
    for (IP_ModeAndConfiguration *panel : qAsConst(ipPanels)) {
        const QString name = panel->instanceName();
        if (name == ipInstanceName || !targets.contains(name))
            continue;
        panel->ReceiveSemaphoreFromOtherIP(SemaphoreName, validFlag);
        if (usbFamily && name == QLatin1String("ACC") && !panel->checkBoxes().isEmpty()) {
            ProCheckBox *first = panel->checkBoxes().first();
            first->setChecked(first->isEnabled());
        }
        panel->update();
    }
}

void FormConfiguration::ReceiveParamList_From_OtherIP(QList<RefParameter> RefParameterList,
                                                      QString IPName)
{
    // Each other panel applies its rule to the list without sending anything on, so a list
    // never comes back.
    for (IP_ModeAndConfiguration *panel : qAsConst(ipPanels)) {
        if (panel->instanceName() != IPName)
            panel->ReceiveParamListFromOtherIP(RefParameterList, IPName);
    }
}

void FormConfiguration::ReceiveRefreshNVIC(QString sendIpInstanceName)
{
    Q_UNUSED(sendIpInstanceName)
    refreshSystemModels();
}

void FormConfiguration::ReceiveLextFlag(bool EnableFlag, bool bypassFlag)
{
    pllPage->setLext(EnableFlag, bypassFlag);
}

void FormConfiguration::ReceiveHextFlag(bool EnableFlag, bool bypassFlag)
{
    pllPage->setHext(EnableFlag, bypassFlag);
}

void FormConfiguration::ReceiveClockOutPin(int pinNum)
{
    pllPage->setClockOutPin(pinNum);
}

void FormConfiguration::ReceiveClockOut1Pin(int pinNum)
{
    pllPage->setClockOut1Pin(pinNum);
}

void FormConfiguration::ReceiveClockOut2Pin(int pinNum)
{
    pllPage->setClockOut2Pin(pinNum);
}

void FormConfiguration::ReceiveSingleGPIOSettingChangeSignals(QString instanceName)
{
    // The tables share one model; the instance's own table catches up if it is on show.
    IP_ModeAndConfiguration *panel = modePanel(instanceName);
    if (panel && panel->gpioSettingWidget() && panel->gpioSettingWidget()->isVisible())
        panel->gpioSettingWidget()->ensureCurrent();
}

void FormConfiguration::ReceiveSingleDMARequestInfoChangeSignals()
{
    ReceivePerpheralsDMARequestChangeSignals();
}

void FormConfiguration::ReciveAllConfigedSignals(DevicePinInfo *devicePinInfo,
                                                 bool updateControlFlag, QString sendIPName)
{
    // The sending panel is told too: it refreshes at once and so sees where its signals
    // went (the CRM panel finds its clock output pin this way).
    for (IP_ModeAndConfiguration *panel : qAsConst(ipPanels))
        panel->ReciveAllConfigedSignals(devicePinInfo, updateControlFlag, sendIPName);
    m_design.rebuildGpioRows();
    if (m_gpioPanel)
        m_gpioPanel->ReciveAllConfigedSignals(devicePinInfo, updateControlFlag, sendIPName);
    else if (m_gpioModel)
        m_gpioModel->update(devicePinInfo);
}

void FormConfiguration::GetSelectIPName(QString ipName)
{
    QWidget *chosen = m_panelsByName.value(ipName);
    if (!chosen && ipName == QLatin1String("DMA"))
        chosen = m_panelsByName.value(QStringLiteral("EDMA"));
    for (QWidget *panel : qAsConst(m_panelsByName))
        panel->setVisible(panel == chosen);
}

void FormConfiguration::ReciveClockHaveErrorSignal(bool errorFlag)
{
    setButtonWarning(m_clockButton, errorFlag);
}

// ----------------------------------------------------------------------------------------
// Closing

void FormConfiguration::closeEvent(QCloseEvent *event)
{
    if (isDesignModified() &&
        !askSaveBeforeLeaving(
            tr("The current design will be closed. Would you like to save the design?"))) {
        event->ignore();
        return;
    }
    const QString scratch = databaseFolder() + QStringLiteral("/CodeView");
    if (QFileInfo(scratch).isDir())
        QDir(scratch).removeRecursively();
    event->accept();
    hide();
    emit formClosed();
}
