#pragma once

#include "database/records.h"
#include "peripherals/lazyrebuild.h"

#include <QList>
#include <QStringList>
#include <QTimer>
#include <QWidget>

class DmaRequestModel;
class OneParamWidget;
class QComboBox;
class QGroupBox;
class QPushButton;
class QTableWidget;
class QVBoxLayout;

// A table of DMA requests with Add and Delete and the parameters of the chosen request, over
// the shared DmaRequestModel. Its scope is one tab of the chip-wide panel (a controller or
// "MemToMem") or the requests of one peripheral instance.
class DMASettingWidget : public QWidget
{
    Q_OBJECT
public:
    enum class Scope { Tab, Instance };

    DMASettingWidget(DmaRequestModel *model, Scope scope, const QString &key,
                     QWidget *parent = nullptr);

    DmaRequestModel *model() const { return m_model; }
    Scope scope() const { return m_scope; }
    // The tab name or the instance name.
    QString key() const { return m_key; }
    QTableWidget *table() const { return m_table; }
    QPushButton *addButton() const { return m_add; }
    QPushButton *deleteButton() const { return m_delete; }
    // Model indexes of the requests shown, in table order.
    const QList<int> &shownRequests() const { return m_rows; }
    // The request under edit (model index), or -1.
    int selectedRequest() const;
    void selectRequest(int modelIndex);
    // The request combo box of a row being added, or nullptr.
    QComboBox *pendingRequestBox() const;
    // The channel combo box of a table row, or nullptr.
    QComboBox *channelBox(int tableRow) const;
    // The parameter rows of the request under edit.
    QList<OneParamWidget *> parameterRows() const { return m_paramRows; }
    // The request names the Add button would offer now.
    QStringList freeRequests() const;
    void ensureCurrent();
    void retranslateUi();

signals:
    void SendDMARequestChangeSignals();
    void SendIPStatusFlag(QString ipName, IPSTATUS statusFlag);
    void SendDMACondition(QString condition);

public slots:
    void TableLineClickedSlot(int nRow, int nCol);
    void TableCellChangedSlot(int nRow, int nCol);
    void TableRequestNameComboBoxChanged(QString text);
    void AddButtonClickedSlot();
    void DelButtonClickedSlot();
    void refreshDAMSettingWidgetTable();
    void ParamModefySlot(QString paramName, QString paramValue, bool updateFlag);
    void ParamModefySlot(QString paramName, QString paramValue);
    void EnableSemaphore(QStringList SemaphoreList);
    void CancelSemaphore(QStringList SemaphoreList);
    void HandleTimeout();
    void ScrollTimeout();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void modelChanged();
    void rebuild();
    void rebuildParameters();
    void channelChosen(int index);
    void reportStatus();
    int indexOfKey() const;

    DmaRequestModel *m_model;
    Scope m_scope;
    QString m_key;
    QTableWidget *m_table = nullptr;
    QPushButton *m_add = nullptr;
    QPushButton *m_delete = nullptr;
    QGroupBox *m_paramBox = nullptr;
    QGroupBox *m_settingBox = nullptr;
    QVBoxLayout *m_paramLayout = nullptr;
    QVBoxLayout *m_settingLayout = nullptr;
    QList<OneParamWidget *> m_paramRows;
    QList<int> m_rows;
    QStringList m_semaphores;
    // The request under edit by name and channel, which stay stable while indexes move.
    QString m_selectedName;
    QString m_selectedChannel;
    bool m_pending = false; // a row waits for its request to be chosen
    LazyRebuild m_lazy{this, [this] { rebuild(); }};
    bool m_changePending = false;
    int m_scroll = 0;
    QTimer m_timer;
    QTimer m_scrollTimer;
};
