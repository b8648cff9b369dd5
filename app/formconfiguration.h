#pragma once

#include "app/designdocument.h"
#include "app/designloader.h"
#include "database/records.h"

#include <QList>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QWidget>

class ChipView;
class DMA_Configuration;
class DmaRequestModel;
class FormCodeView;
class GenerateCodeAction;
class GPIO_Configuration;
class GpioSettingsModel;
class IP_ModeAndConfiguration;
class NVIC_Configuration;
class NvicModel;
class MQ48PLLConfig;
class PeripheralsConfig;
class ProjectSetting;
class QAction;
class QCloseEvent;
class QHBoxLayout;
class QLayout;
class QLabel;
class QMenu;
class QMenuBar;
class QPushButton;
class QSplitter;
class QToolBar;
class QTimer;
class QTranslator;
class QVBoxLayout;

// The window of an open design: owns every panel of the design and relays their signals.
class FormConfiguration : public QWidget
{
    Q_OBJECT
public:
    explicit FormConfiguration(QWidget *parent = nullptr);
    ~FormConfiguration() override;

    // The process's translator, kept for language changes made inside the form.
    void setTranslator(QTranslator *translator);
    // Builds the design of a device from the database, replacing any open design. Missing
    // database files give an empty package. False, with nothing changed, when no device is
    // named or a build is already under way.
    bool buildDesign(const QString &series, const QString &device, const QString &package);
    // Re-labels the menus and actions after a language change.
    void retranslateMenu();

    // What the database gave for the open design.
    const DesignData &design() const { return m_design; }
    bool isDesignOpen() const { return designOpen; }
    QString currentDesignPath() const { return designPath; }
    ChipView *chipDrawing() const { return chipView; }
    MQ48PLLConfig *clockPage() const { return pllPage; }
    PeripheralsConfig *peripheralsTree() const { return peripheralsConfig; }
    // The mode panels of the design, in peripheral list order.
    const QList<IP_ModeAndConfiguration *> &modePanels() const { return ipPanels; }
    // The mode panel of an instance, or nullptr.
    IP_ModeAndConfiguration *modePanel(const QString &instanceName) const;
    // The chip-wide panels and the models behind them; the peripherals' own GPIO, NVIC and
    // DMA tabs show the same models. Null (empty) while no design is open or when the device
    // lists no such block. The design file and the code generator read and set the state of
    // the design through the models.
    GPIO_Configuration *gpioPanel() const { return m_gpioPanel; }
    NVIC_Configuration *nvicPanel() const { return m_nvicPanel; }
    const QList<DMA_Configuration *> &dmaPanels() const { return m_dmaPanels; }
    GpioSettingsModel *gpioModel() const { return m_gpioModel; }
    NvicModel *nvicModel() const { return m_nvicModel; }
    const QList<DmaRequestModel *> &dmaModels() const { return m_dmaModels; }
    // The instances whose mode is on now.
    QSet<QString> configuredInstances() const;
    // Brings the DMA requests and the interrupts' availability in step with the modes of the
    // peripherals: requests of peripherals switched off are released. The work form runs it
    // after every mode change; a design reader runs it after replaying the modes.
    void refreshSystemModels();

    // The panel the tree has put on show, or nullptr.
    QWidget *shownPanel() const;
    bool pinPageWarning() const;

    // Saving and opening designs. saveDesign() writes to the design's file, asking for one
    // when the design has none yet; false when nothing was saved.
    bool saveDesign();
    bool saveDesignAs();
    // Writes the design to a file without asking anything; false with `error` set.
    bool writeDesign(const QString &path, QString *error);
    // Lets the panels' queued refreshes run now, so that their values are current.
    void flushPanelUpdates();
    // Opens a design file in this form with its messages; false when nothing was opened.
    bool openDesign(const QString &path);
    // Has anything changed since the design was built, opened or saved?
    bool isDesignModified() const;
    // The project manager's answers, as the design file holds them; the defaults while no
    // design is open.
    ProjectInfo projectInfo() const;
    void setProjectInfo(const ProjectInfo &info);
    // The last status reported by each mode panel, by instance name.
    QMap<QString, IPSTATUS> panelStatus() const { return m_modePanelStatus; }
    // The project manager of the open design (its answers are the design's project settings);
    // nullptr while no design is open.
    ProjectSetting *projectSetting() const { return m_projectSetting; }
    // The "Code View" page.
    FormCodeView *codeViewPage() const { return codeView; }

signals:
    // Emitted when the form closes and the start page should come back.
    void formClosed();

    // Relay of the mode panels' requests to the pin engine.
    void SendIPPinSignals_ToChipView(QList<ModeSignal> ipAllPinSignals,
                                     QList<ModeSignal> ipValidPinSignals, bool updateControlFlag,
                                     QString sendIPName);
    void ClearIPPinSignals_ToChipView(QList<ModeSignal> ipAllPinSignals, bool updateControlFlag,
                                      QString sendIPName);

public slots:
    // Pages.
    void PINConfig_PushButton_Clicked();
    void ClockConfig_PushButton_Clicked();
    void CodeView_PushButton_Clicked();

    // Actions.
    void NewProject_Action_Triggered();
    void OpenProject_Action_Triggered();
    void SaveProject_Action_Triggered();
    void SaveAsProject_Action_Triggered();
    void PackageManager_Action_Triggered();
    void GenerateReport_Action_Triggered();
    void English_Action_Triggered();
    void Chinese_Action_Triggered();
    void GeneralCode_Action_Triggered();
    void OpenManual_Action_Triggered();
    void Version_Action_Triggered();
    void NewVersionDownload_Triggered();
    void GoToHomePage_Triggered();
    void AllConfigReset();
    void OpenDesign_List_Clicked();

    // Relay table of the peripheral panels.
    void ReciveIPPinSignals_FormIP(QList<ModeSignal> ipAllPinSignals,
                                   QList<ModeSignal> ipValidPinSignals, bool updateControlFlag,
                                   QString sendIPName);
    void ReciveClearIPPinSignals_FormIP(QList<ModeSignal> ipAllPinSignals, bool updateControlFlag,
                                        QString sendIPName);
    void ReceiveIPStatusFlag(QString ipName, IPSTATUS statusFlag,
                             bool UpdateClockConfigFlag = false);
    void ReceivePerpheralsGPIOSettingChangeSignals(QString instanceName, QString signalName);
    void ReceivePerpheralsDMARequestChangeSignals();
    void ReceiveSemaphore_From_OtherIP(QString ipInstanceName, QStringList SemaphoreName,
                                       bool validFlag);
    void ReceiveParamList_From_OtherIP(QList<RefParameter> RefParameterList, QString IPName);
    void ReceiveRefreshNVIC(QString sendIpInstanceName);
    void ReceiveLextFlag(bool EnableFlag, bool bypassFlag);
    void ReceiveHextFlag(bool EnableFlag, bool bypassFlag);
    void ReceiveClockOutPin(int pinNum);
    void ReceiveClockOut1Pin(int pinNum);
    void ReceiveClockOut2Pin(int pinNum);
    void ReceiveSingleGPIOSettingChangeSignals(QString instanceName);
    void ReceiveSingleDMARequestInfoChangeSignals();
    void ReciveAllConfigedSignals(DevicePinInfo *devicePinInfo, bool updateControlFlag,
                                  QString sendIPName);
    void GetSelectIPName(QString ipName);
    void ReciveClockHaveErrorSignal(bool errorFlag);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void createActions();
    void createMenus();
    void createToolBar();
    void createPages();
    void retranslateForm();
    void refreshRecentMenu();
    void updateLanguageActions();
    void switchLanguage(int language);
    void styleButtons(QPushButton *active);
    void setButtonWarning(QPushButton *button, bool warn);
    void tearDownDesign();
    void buildPanels();
    IP_ModeAndConfiguration *createModePanel(const PeripheralListItem &row);
    void createSystemModels();
    void createSystemPanels(QLayout *panelLayout);
    void refreshNvicAvailability();
    QSet<int> exintInterruptLines() const;
    void showPinPage();
    // Asks whether to save before the design goes; false when the user cancels or saving
    // didn't happen.
    bool askSaveBeforeLeaving(const QString &question);
    // The design file's text of the design as it stands.
    QByteArray currentDesignXml() const;
    // Takes the design as it stands as the saved state, and shows it in the title.
    void markDesignSaved();
    void updateTitle();
    // Runs the package manager over `parent`; the project manager follows its repository.
    void openPackageManager(QWidget *parent);

    // State of the open design.
    DesignData m_design;
    QString designPath;
    // The design file's text when the design was last built, opened or saved.
    QByteArray m_savedXml;
    QTimer *m_titleTimer = nullptr;
    bool designOpen = false;
    // True while a design is being built, so that a second build can't start meanwhile.
    bool m_building = false;

    // Widgets of the design, rebuilt for each design.
    ChipView *chipView = nullptr;
    PeripheralsConfig *peripheralsConfig = nullptr;
    QList<IP_ModeAndConfiguration *> ipPanels;
    GPIO_Configuration *m_gpioPanel = nullptr;
    NVIC_Configuration *m_nvicPanel = nullptr;
    QList<DMA_Configuration *> m_dmaPanels;
    GpioSettingsModel *m_gpioModel = nullptr;
    NvicModel *m_nvicModel = nullptr;
    QList<DmaRequestModel *> m_dmaModels;
    QWidget *m_panelArea = nullptr;
    // Every panel of the design by the name the tree selects it with.
    QMap<QString, QWidget *> m_panelsByName;
    QMap<QString, IPSTATUS> m_modePanelStatus;

    // Widgets that live as long as the form.
    MQ48PLLConfig *pllPage = nullptr;
    FormCodeView *codeView = nullptr;
    GenerateCodeAction *m_codeGeneration = nullptr;
    ProjectSetting *m_projectSetting = nullptr;
    QSplitter *m_splitter = nullptr;
    QVBoxLayout *m_mainLayout = nullptr;
    QMenuBar *m_menuBar = nullptr;
    QToolBar *m_toolBar = nullptr;
    QLabel *m_deviceLabel = nullptr;
    QPushButton *m_pinButton = nullptr;
    QPushButton *m_clockButton = nullptr;
    QPushButton *m_codeButton = nullptr;

    QMenu *m_fileMenu = nullptr;
    QMenu *m_recentMenu = nullptr;
    QMenu *m_languageMenu = nullptr;
    QMenu *m_generateMenu = nullptr;
    QMenu *m_helpMenu = nullptr;

    QAction *m_newAction = nullptr;
    QAction *m_openAction = nullptr;
    QAction *m_saveAction = nullptr;
    QAction *m_saveAsAction = nullptr;
    QAction *m_packageAction = nullptr;
    QAction *m_reportAction = nullptr;
    QAction *m_englishAction = nullptr;
    QAction *m_englishToolAction = nullptr;
    QAction *m_chineseAction = nullptr;
    QAction *m_chineseToolAction = nullptr;
    QAction *m_generateAction = nullptr;
    QAction *m_generateToolAction = nullptr;
    QAction *m_manualAction = nullptr;
    QAction *m_versionAction = nullptr;
    QAction *m_downloadAction = nullptr;
    QAction *m_homeAction = nullptr;
    QAction *m_homeToolAction = nullptr;
    QAction *m_zoomInAction = nullptr;
    QAction *m_zoomOutAction = nullptr;
    QAction *m_zoomResetAction = nullptr;
    QAction *m_resetAllAction = nullptr;
    QAction *m_rotateAction = nullptr;
    QAction *m_rotateBackAction = nullptr;

    QTranslator *m_translator = nullptr;
    QTranslator *m_ownTranslator = nullptr;
};
