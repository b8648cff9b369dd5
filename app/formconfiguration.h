#pragma once

#include "app/designloader.h"
#include "database/records.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QWidget>

class ChipView;
class IP_ModeAndConfiguration;
class MQ48PLLConfig;
class PeripheralsConfig;
class QAction;
class QCloseEvent;
class QHBoxLayout;
class QLabel;
class QMenu;
class QMenuBar;
class QPushButton;
class QSplitter;
class QToolBar;
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
    // The panel the tree has put on show, or nullptr.
    QWidget *shownPanel() const;
    bool pinPageWarning() const;
    // The last status reported by each mode panel, by instance name.
    QMap<QString, IPSTATUS> panelStatus() const { return m_modePanelStatus; }

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
    void showPinPage();
    // Asks whether to save before the design goes; false when the user cancels or saving
    // didn't happen.
    bool askSaveBeforeLeaving(const QString &question);
    bool saveDesign();

    // State of the open design.
    DesignData m_design;
    QString designPath;
    bool designOpen = false;
    // True while a design is being built, so that a second build can't start meanwhile.
    bool m_building = false;

    // Widgets of the design, rebuilt for each design.
    ChipView *chipView = nullptr;
    PeripheralsConfig *peripheralsConfig = nullptr;
    QList<IP_ModeAndConfiguration *> ipPanels;
    QWidget *m_panelArea = nullptr;
    // Every panel of the design by the name the tree selects it with.
    QMap<QString, QWidget *> m_panelsByName;
    QMap<QString, IPSTATUS> m_modePanelStatus;

    // Widgets that live as long as the form.
    MQ48PLLConfig *pllPage = nullptr;
    QWidget *m_codeViewPage = nullptr;
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
