#pragma once

#include "database/records.h"
#include "peripherals/calculators/cancalculator.h"
#include "peripherals/modechangethread.h"

#include <QListWidget>
#include <QMap>
#include <QSet>
#include <QStringList>
#include <QTimer>

class MQ48PLLConfig;
class OneParamWidget;
class QAction;
class QMenu;

// The "Parameters Settings" tab of a peripheral: group headers that fold and one row per
// visible parameter, with the semaphores that show and hide rows and the calculators that
// keep the clock-dependent parameters up to date. The parameters, semaphores and status are
// kept from the start; the row widgets are made when the tab is first shown or a row is
// asked for.
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
    // The row of a parameter, or nullptr when it has none; makes the rows if need be.
    OneParamWidget *rowOf(const QString &paramName);
    // Makes the row widgets now if they are not there yet.
    void ensureRows();
    // Are the row widgets there?
    bool rowsBuilt() const { return m_rowsBuilt; }
    // The value of a parameter; empty when unknown.
    QString parameterValue(const QString &paramName) const;
    // Sets a value from a design file; an unknown name is kept as a new record.
    void setParameterValue(const QString &paramName, const QString &value);
    // Every Value back to DefaultValue, added records dropped.
    void Reset();
    // The mode panel tells of a change of mode (old text, new text).
    void ModeChanged(const QString &oldText, const QString &newText);
    // Settles the lists that follow the modes, works out the status and rebuilds the rows
    // (once they exist) now.
    void Rebuild();
    // Brings the values up to date with the modes and the clocks (calculators, lists that
    // follow them) without rebuilding the rows.
    void refreshValues();
    // Runs at once the refresh that values set from outside (a design file) have marked:
    // rows, calculators, status and the EXINT lines, without the error box of an edit.
    void refreshNow();
    // Is a group header folded?
    bool isGroupFolded(const QString &group) const { return groupFolded.value(group); }
    // The header item of a group, or nullptr; makes the rows if need be.
    QListWidgetItem *groupItem(const QString &group);
    // Re-labels the menu after a change of language.
    void retranslateUi();
    // The clock page the calculators read; the calculators run at once.
    void setClockPage(MQ48PLLConfig *page);
    // The clock of this instance in MHz; 0.0 without a clock page or a clock for it.
    double instanceClock() const;
    // The parameters as the database gives them.
    const QList<RefParameter> &originalParameters() const { return m_original; }
    // The note under a parameter's row (a real rate), empty for none.
    QString noteOf(const QString &paramName) const { return m_notes.value(paramName); }

    QString mcuName;
    QString instanceName;
    MQ48PLLConfig *clockPage = nullptr;
    QList<RefParameter> parameters;
    QStringList enabledSemaphores;
    QStringList validSemaphores;
    QStringList activeConditions;
    QList<OneParamWidget *> rows; // empty until the rows are made
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
    QList<CANBaudResult> canResults;
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
    void showEvent(QShowEvent *event) override;

private:
    void groupClicked(QListWidgetItem *item);
    void rowClicked(const QString &paramName);
    void startModeThread();
    void updateParamStatus(bool emitAlways);
    // 2 when a visible parameter holds a value its row would show as not valid, else 1.
    IPPARAMSTATUS statusOfValues() const;
    void buildRows();
    QStringList exintInterruptLines() const;
    // Runs the calculators of the instance and feeds the diagrams; true when a parameter or a
    // note changed.
    bool runCalculators(const QString &lastEdit, bool canSearch);
    void fullRefresh(const QString &lastEdit);
    void markChosen(const QString &paramName);

    QList<RefParameter> m_original;
    QStringList m_addedNames;
    QStringList m_exintLines;
    QSet<QString> m_userChosen;     // parameters whose value the user (or a design) set
    QMap<QString, QString> m_notes; // notes of the calculators under their rows
    bool m_canSearched = false;     // the CAN search ran at least once
    bool m_editPending = false;     // modifiedName is an edit the refresh hasn't checked yet
    bool m_inTimeout = false;
    bool m_rowsBuilt = false;
};
