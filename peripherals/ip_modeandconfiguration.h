#pragma once

#include "database/records.h"
#include "peripherals/modelogic.h"
#include "peripherals/updateipmodeparamthread.h"

#include <QList>
#include <QPair>
#include <QString>
#include <QWidget>

class ParamSettingWidget;
class ProCheckBox;
class ProComboBox;
class ProLabel;
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

    QString instanceName() const { return m_instanceName; }
    QString ipName() const { return m_ipName; }
    QString mcuModel() const { return m_mcuModel; }
    IPSTATUS status() const { return m_status; }
    bool modeActive() const { return m_modeActive; }
    bool isStale() const { return m_stale; }
    const ModeLogic &logic() const { return m_logic; }
    ParamSettingWidget *paramSettingWidget() const { return m_paramWidget; }
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
    bool setModeSelection(const QString &modeName, const QString &value);

    // Semaphores of another instance, routed by the work form: raised or withdrawn here
    // without a further emission.
    void ReceiveSemaphoreFromOtherIP(const QStringList &semaphores, bool validFlag);
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
    UpdateIPModeParamThread m_worker;

    QPushButton *m_modeButton = nullptr;
    QPushButton *m_configButton = nullptr;
    QScrollArea *m_modeArea = nullptr;
    QWidget *m_configArea = nullptr;
    QTabWidget *m_tabWidget = nullptr;
    QGridLayout *m_grid = nullptr;
};
