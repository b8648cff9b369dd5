#pragma once

#include "database/records.h"

#include <QList>
#include <QWidget>

class GPIOSettingWidget;
class GpioSettingsModel;
class QComboBox;
class QLabel;
class QPushButton;
class QTabWidget;

// The panel of the tree's entry "GPIO": the settings of every lit signal of the chip, in one
// table or one table per peripheral, over the shared GpioSettingsModel.
class GPIO_Configuration : public QWidget
{
    Q_OBJECT
public:
    explicit GPIO_Configuration(GpioSettingsModel *model, QWidget *parent = nullptr);

    GpioSettingsModel *model() const { return m_model; }
    QComboBox *showTypeBox() const { return m_showType; }
    QTabWidget *tabWidget() const { return m_tabs; }
    // The table of the tab "GPIO" (all rows, or the rows of no peripheral when grouped).
    GPIOSettingWidget *mainTable() const { return m_all; }
    // The tables of the tabs in order, the tab "GPIO" first.
    QList<GPIOSettingWidget *> tables() const;
    // Tab titles as shown, untranslated ("GPIO", then instance names).
    QStringList tabNames() const;
    // The last pin state received.
    DevicePinInfo *devicePinInfo() const { return m_devicePinInfo; }
    void retranslateUi();

signals:
    void SendGPIOSettingChangeSignals1(QString instanceName);
    void SendGPIOQuerySignals(QString pinName, QString pinSignal);
    void SendGPIOSignalsUserLabelChange(int pinNum, QString pinSignal, QString userLabel);
    void SendIPStatusFlag(QString ipName, IPSTATUS statusFlag, bool updateCloackFlag);

public slots:
    void ReciveAllConfigedSignals(DevicePinInfo *m_devicePinInfo, bool updateControlFlag,
                                  QString sendIPName);
    void ReciveGPIOSettingChangeSignals(QString instanceName, QString signalName);
    void ReceiveGPIOQuerySignals(QString pinName, QString pinSignal);
    void ReceiveGPIOSignalsUserLabelChange(int pinNum, QString pinSignal, QString userLabel);
    void GPIOShowType_ComboBox_IndexChanged(int k);
    void ResetConfigurationClickedSlot();
    void TabWidgetTabBarClicked(int k);

private:
    void rebuildTabs();
    void connectTable(GPIOSettingWidget *table);

    GpioSettingsModel *m_model;
    DevicePinInfo *m_devicePinInfo = nullptr;
    QPushButton *m_header = nullptr;
    QLabel *m_section = nullptr;
    QLabel *m_showLabel = nullptr;
    QComboBox *m_showType = nullptr;
    QPushButton *m_resetButton = nullptr;
    QTabWidget *m_tabs = nullptr;
    GPIOSettingWidget *m_all = nullptr;
    GPIOSettingWidget *m_rest = nullptr;
    QList<GPIOSettingWidget *> m_peripheralTables;
    int m_currentTab = 0;
    IPSTATUS m_status = IPSTATUS_INACTIVE;
};
