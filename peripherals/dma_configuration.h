#pragma once

#include "database/records.h"

#include <QList>
#include <QWidget>

class DMASettingWidget;
class DmaRequestModel;
class QLabel;
class QPushButton;
class QTabWidget;

// The panel of the tree's entry "DMA" or "EDMA": one request table per controller and one for
// memory-to-memory transfers, over the shared DmaRequestModel.
class DMA_Configuration : public QWidget
{
    Q_OBJECT
public:
    explicit DMA_Configuration(DmaRequestModel *model, QWidget *parent = nullptr);

    DmaRequestModel *model() const { return m_model; }
    QTabWidget *tabWidget() const { return m_tabs; }
    const QList<DMASettingWidget *> &settingWidgets() const { return m_widgets; }
    // The table of a tab ("DMA1", "MemToMem"), or nullptr.
    DMASettingWidget *settingWidget(const QString &tabName) const;
    void retranslateUi();

signals:
    void SendDMARequestChangeSignals();
    void SendIPStatusFlag(QString ipName, IPSTATUS statusFlag, bool updateClockFlag);
    void SendIPStatusFlag(QString ipName, IPSTATUS statusFlag);
    void SendDMACondition(QString condition);

public slots:
    void ReciveDMASettingChangeSignals();
    void ReceiveIPStatusFlag(QString ipName, IPSTATUS statusFlag);
    void TabWidgetTabBarClicked(int index);
    void EnableSemaphore(QString SemaphoreName, bool validFlag);

private:
    DmaRequestModel *m_model;
    QPushButton *m_header = nullptr;
    QLabel *m_section = nullptr;
    QTabWidget *m_tabs = nullptr;
    QList<DMASettingWidget *> m_widgets;
    int m_currentTab = 0;
};
