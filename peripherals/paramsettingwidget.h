#pragma once

#include "database/records.h"
#include "peripherals/modechangethread.h"

#include <QListWidget>
#include <QMap>
#include <QStringList>
#include <QTimer>

class MQ48PLLConfig;
class OneParamWidget;
class QAction;
class QMenu;

// The "Parameters Settings" tab of a peripheral: group headers that fold and one row per
// visible parameter, with the semaphores that show and hide rows.
class ParamSettingWidget : public QListWidget
{
    Q_OBJECT
public:
    ParamSettingWidget(const QString &mcuName, const QString &instanceName,
                       const QList<RefParameter> &parameterList, QWidget *parent = nullptr);
    ~ParamSettingWidget() override;

    // Is the parameter visible now (Visible and its Expression holds)?
    bool isParameterVisible(const RefParameter &p) const;
    // The list the conditions are evaluated over: raised semaphores and "name=value" entries.
    QStringList evaluationList() const;
    // The row of a parameter, or nullptr when it has none.
    OneParamWidget *rowOf(const QString &paramName) const;
    // The value of a parameter; empty when unknown.
    QString parameterValue(const QString &paramName) const;
    // Sets a value from a design file; an unknown name is kept as a new record.
    void setParameterValue(const QString &paramName, const QString &value);
    // Every Value back to DefaultValue, added records dropped.
    void Reset();
    // The mode panel tells of a change of mode (old text, new text).
    void ModeChanged(const QString &oldText, const QString &newText);
    // Rebuilds the rows now.
    void Rebuild();
    // Is a group header folded?
    bool isGroupFolded(const QString &group) const { return groupFolded.value(group); }
    // The header item of a group, or nullptr.
    QListWidgetItem *groupItem(const QString &group) const;
    // Re-labels the menu after a change of language.
    void retranslateUi();

    QString mcuName;
    QString instanceName;
    MQ48PLLConfig *clockPage = nullptr;
    QList<RefParameter> parameters;
    QStringList enabledSemaphores;
    QStringList validSemaphores;
    QStringList activeConditions;
    QList<OneParamWidget *> rows;
    QList<QListWidgetItem *> groupRows;
    QMap<QString, bool> groupFolded;
    QMenu *contextMenu = nullptr;
    QAction *expandAction = nullptr;
    QAction *foldAction = nullptr;
    QTimer refreshTimer;
    ModeChangeThread modeThread;
    bool refreshPending = false;
    int scrollPosition = 0;
    IPPARAMSTATUS paramStatus = IPPARAMSTATUS_VALID;
    QString modifiedName;
    QString modifiedValue;
    bool canSearchPending = false;
    bool rebuilding = false;
    int rebuildCount = 0; // number of rebuilds so far, for the refresh coalescing

signals:
    void SendIPParamStatus(QString ipName, IPPARAMSTATUS statusFlag);
    void SendIPParamList(QList<RefParameter> RefParameterList, QString IPName);
    void SendI2CParamValue(uint tr, uint tf, uint tSu, uint fSCL);
    void SendCanParamValue(uint BS1, uint BS2, uint Sync, double Sample);
    void SendTMRParamValue(double tmr_clk, uint tmr_div, uint tmr_pr, uint tmr_direction);
    void SendEXINTRefreshNVICList();
    // The description of the row under edit, for the mode panel's description area.
    void SendParamDescription(QString paramName, QString description);

public slots:
    void ExpandAllTreeItem();
    void FoldAllTreeItem();
    void ParamModefySlot(QString paramName, QString paramValue, bool updateFlag);
    void ParamModefySlot(QString paramName, QString paramValue);
    void EnableSemaphore(QStringList SemaphoreList);
    void EnableSemaphore(QString Semaphore);
    void CancelSemaphore(QStringList SemaphoreList);
    void CancelSemaphore(QString Semaphore);
    void HandleTimeout();
    void ReciveClockChangedSignal();
    void UpdateModeChange();

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void groupClicked(QListWidgetItem *item);
    void rowClicked(const QString &paramName);
    void startModeThread();
    void updateParamStatus(bool emitAlways);
    QStringList exintInterruptLines() const;

    QStringList m_addedNames;
    QStringList m_exintLines;
};
