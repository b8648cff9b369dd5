#pragma once

#include "database/records.h"
#include "peripherals/modelogic.h"
#include "peripherals/updateipmodeparamthread.h"

#include <QList>
#include <QPair>
#include <QString>
#include <QWidget>

class DMASettingWidget;
class DmaRequestModel;
class GPIOSettingWidget;
class GpioSettingsModel;
class MQ48PLLConfig;
class NVIC_Settings;
class NvicModel;
class ParamSettingWidget;
class ProCheckBox;
class ProComboBox;
class ProLabel;
class TimingDiagram;
class QGridLayout;
class QLabel;
class QPushButton;
class QScrollArea;
class QTabWidget;

// The panel of one peripheral instance: the mode controls built from its peripheral file,
// the signals they need, its status, and the tabs of its settings.
class IP_ModeAndConfiguration : public QWidget
{
    Q_OBJECT
public:
    // `pinInfo` decides which modes the package allows; without it the device file of
    // `deviceName` is read for that.
    IP_ModeAndConfiguration(const PeripheralListItem &row, const IPNode &gpioTree,
                            const QString &deviceName, const QString &series,
                            const DevicePinInfo *pinInfo = nullptr, QWidget *parent = nullptr);
    ~IP_ModeAndConfiguration() override;

    // The chip-wide GPIO, NVIC and DMA models whose rows of this instance the tabs "GPIO
    // Settings", "NVIC Settings" and "<DMA> Settings" show. Given once, before the panel is
    // first used.
    void setSystemModels(GpioSettingsModel *gpio, NvicModel *nvic,
                         const QList<DmaRequestModel *> &dma);
    // The clock page whose USB and I2SF5 sources the panel follows.
    void setClockPage(MQ48PLLConfig *page) { m_clockPage = page; }

    QString instanceName() const { return m_instanceName; }
    QString ipName() const { return m_ipName; }
    QString mcuModel() const { return m_mcuModel; }
    IPSTATUS status() const { return m_status; }
    bool modeActive() const { return m_modeActive; }
    bool isStale() const { return m_stale; }
    const ModeLogic &logic() const { return m_logic; }
    // Does the peripheral file have any mode, and can one be used on this package?
    bool hasModes() const { return m_logic.modesFound; }
    bool hasUsableMode() const { return !m_logic.controls.isEmpty(); }
    // The semaphores in force on this panel, raised by its own modes, by other panels and by
    // the coupling rules.
    const QStringList &raisedSemaphores() const { return m_raisedSemaphores; }
    // Every signal name the instance's modes can ask for.
    QStringList signalNames() const;
    // The tables of the tabs; nullptr (empty) until the tab has been needed once.
    GPIOSettingWidget *gpioSettingWidget() const { return m_gpioWidget; }
    NVIC_Settings *nvicSettings() const { return m_nvicWidget; }
    QList<DMASettingWidget *> dmaSettingWidgets() const { return m_dmaWidgets; }
    // The DMA models that have requests of this instance.
    QList<DmaRequestModel *> dmaModels() const;
    ParamSettingWidget *paramSettingWidget() const { return m_paramWidget; }
    // Lets the panel's queued work (the mode thread's hand-back, the rows' refresh) run now.
    void settle();
    // The timing diagram under the tabs (CAN, I2C, timers), or nullptr.
    TimingDiagram *timingDiagram() const { return m_diagram; }
    QTabWidget *tabWidget() const { return m_tabWidget; }
    QLabel *hintLabel() const { return m_hintLabel; }
    QLabel *descriptionLabel() const { return m_descriptionLabel; }
    const QList<ProComboBox *> &comboBoxes() const { return m_comboList; }
    const QList<ProCheckBox *> &checkBoxes() const { return m_checkList; }
    // The combo box or check box of the mode named `modeName`, or nullptr.
    ProComboBox *comboBox(const QString &modeName) const;
    ProCheckBox *checkBox(const QString &modeName) const;
    // The signals of the last change.
    QList<ModeSignal> currentSignals() const { return m_logic.currentSignals; }
    // Tab titles in the current state, untranslated.
    QStringList tabTitles() const;

    // The mode selections for the design file: (mode name, item name or "TRUE"/"FALSE") for
    // each control that is not at its start state.
    QList<QPair<QString, QString>> modeSelections() const;
    // Sets one selection back as the user would; false when there is no such mode or item.
    // A check box takes "TRUE" or "FALSE" in any case; a combo box an item's key (its group
    // Name) or its English or Chinese text.
    bool setModeSelection(const QString &modeName, const QString &value);

    // Semaphores of another instance, routed by the work form: raised or withdrawn here
    // without a further emission.
    void ReceiveSemaphoreFromOtherIP(const QStringList &semaphores, bool validFlag);
    // The parameter list of another instance, passed on by the work form: the family's rule
    // for it runs here, and nothing is sent on, so that a list never comes back.
    void ReceiveParamListFromOtherIP(const QList<RefParameter> &parameters, const QString &ipName);
    // Every mode back to "Disable" or unticked, as the user would set them, and every
    // parameter to its default.
    void resetToDefaults();
    // Re-labels the panel after a change of language.
    void retranslateUi();

signals:
    void SendIPPinSignals(QList<ModeSignal> IPSignalsList, QList<ModeSignal> validSignalsList,
                          bool updateControlFlag, QString sendIPName);
    void ClearIPPinSignals(QList<ModeSignal> IPSignalsList, bool updateControlFlag,
                           QString sendIPName);
    void SendIPStatusFlag(QString ipName, IPSTATUS statusFlag, bool UpdateClockConfigFlag = false);
    void SendGPIOSettingChangeSignals1(QString instanceName, QString signalName);
    void SendGPIOQuerySignals(QString pinName, QString pinSignal);
    void SendGPIOSignalsUserLabelChange(int pinNum, QString pinSignal, QString userLabel);
    void SendDMARequestChangeSignals();
    void SendLextFlag(bool EnableFlag, bool bypassFlag);
    void SendHextFlag(bool EnableFlag, bool bypassFlag);
    void SendClockOutPin(int pinNum);
    void SendClockOut1Pin(int pinNum);
    void SendClockOut2Pin(int pinNum);
    void EnableSemaphore_To_OtherIP(QString, QStringList, bool);
    void SendPinRemapFlag(bool);
    void SendRefreshNVIC(QString sendIpInstanceName);
    void SendParamList_To_OtherIP(QList<RefParameter> RefParameterList, QString IPName);

public slots:
    void Mode_ComboBox_IndexChanged(int);
    void Mode_CheckBox_Changed(bool);
    void ReciveAllConfigedSignals(DevicePinInfo *, bool updateControlFlag, QString sendIPName);
    void UpdateAllConfigedSignals(DevicePinInfo *, bool updateControlFlag, QString sendIPName);
    void Mode_PushButton_Clicked();
    void Configiguration_PushButton_Clicked();
    void ResetConfigurationClickedSlot();
    void ReciveGPIOSettingChangeSignals(QString instanceName, QString signalName);
    void ReceiveGPIOQuerySignals(QString pinName, QString pinSignal);
    void ReceiveGPIOSignalsUserLabelChange(int pinNum, QString pinSignal, QString userLabel);
    void TabWidgetTabBarClicked(int);
    void UpdateDMACondition();
    void ReciveDMARequestChangeSignals();
    void ReceiveDMAIPStatusFlag(QString ipName, IPSTATUS statusFlag);
    void ReciveIPParamStatus(QString ipName, IPPARAMSTATUS statusFlag);
    void ReciveUSBClockSourceChangeSignal();
    void ReciveI2SF5ClockSourceChangeSignal();
    void ReciveIPParamList(QList<RefParameter> RefParameterList, QString IPName);
    void ReciveEXINTRefreshNVICList();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void buildModeArea();
    void buildConfigurationArea(const QList<RefParameter> &parameters);
    void applyChange(const ModeChange &change, bool fromCombo, int control);
    void applySemaphores(const QStringList &withdrawn, const QStringList &raised, bool emitOut);
    void judgeControls();
    void cascadeBlockedSelections();
    void runStatusRule();
    void runHintRule();
    void rebuildTabs();
    void runOscillatorRule(int control);
    void applyParamListRule(const QList<RefParameter> &parameters, bool emitOut);
    QStringList dmaTableNames() const;
    void runClockOutputRule();
    int controlIndexOf(QObject *widget) const;

    QString m_instanceName;
    QString m_ipName;
    QString m_mcuModel;
    QString m_deviceName;
    DevicePinInfo *m_devicePinInfo = nullptr;
    ModeLogic m_logic;
    QList<ProComboBox *> m_comboList;
    QList<ProCheckBox *> m_checkList;
    QList<QWidget *> m_controlWidgets; // by control index
    QList<QLabel *> m_controlLabels;   // by control index, nullptr for check boxes
    bool m_modeActive = false;
    IPSTATUS m_status = IPSTATUS_INACTIVE;
    bool m_stale = false;
    int m_currentTab = 0;
    QLabel *m_hintLabel = nullptr;
    QLabel *m_descriptionLabel = nullptr;
    ParamSettingWidget *m_paramWidget = nullptr;
    TimingDiagram *m_diagram = nullptr;
    UpdateIPModeParamThread m_worker;
    GpioSettingsModel *m_gpioModel = nullptr;
    NvicModel *m_nvicModel = nullptr;
    QList<DmaRequestModel *> m_dmaModels;
    MQ48PLLConfig *m_clockPage = nullptr;
    QStringList m_raisedSemaphores;
    GPIOSettingWidget *m_gpioWidget = nullptr;
    NVIC_Settings *m_nvicWidget = nullptr;
    QList<DMASettingWidget *> m_dmaWidgets;

    QPushButton *m_modeButton = nullptr;
    QPushButton *m_configButton = nullptr;
    QScrollArea *m_modeArea = nullptr;
    QWidget *m_configArea = nullptr;
    QTabWidget *m_tabWidget = nullptr;
    QGridLayout *m_grid = nullptr;
};
