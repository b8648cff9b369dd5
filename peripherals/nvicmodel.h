#pragma once

#include "database/records.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>

// One interrupt of the NVIC table with its current state. The flags of the record read so:
// flag2 the row has an enable box the user may change (the row is "listed"), flag3 its
// enabled state is fixed, flag4 it is enabled, flag5 its preemption priority may be edited,
// flag7 its sub priority may be edited.
struct NvicRow
{
    NVICInterrupt irq; // preemption, sub and flag4 hold the current values
    bool defaultEnabled = false;
    bool available = true;

    bool enabled() const { return irq.flag4; }
    bool listed() const { return irq.flag2; }
    bool hasEnableBox() const { return irq.flag2 && !irq.flag3; }
    bool enableFixed() const { return irq.flag3; }
    bool preemptionEditable() const { return irq.flag5; }
    bool subEditable() const { return irq.flag7; }
    // The instances named by the row's condition; empty for the system vectors.
    QStringList conditionInstances() const;
    // DMA channel rows: the channels the vector serves ("DMA1_Channel2"); empty otherwise.
    QStringList dmaChannels() const;
    // EXINT rows: the lines the vector serves; empty otherwise.
    QList<int> exintLines() const;
};

// What decides which interrupts are available: the configured peripherals, the EXINT lines
// set to interrupt, and the DMA channels with a request, by the request's peripheral.
struct NvicAvailability
{
    QSet<QString> configured;
    QSet<int> exintLines;
    QMap<QString, QStringList> dmaChannelsByInstance;
};

// The interrupt controller's settings: priority group, show filter and every interrupt with
// enable state and priorities. The chip-wide NVIC panel and each peripheral's own NVIC tab
// show this one model. Widget-free; the design file and the code generator use it directly.
class NvicModel : public QObject
{
    Q_OBJECT
public:
    enum ShowType { AvailableInterrupts = 0, EnabledInterrupts = 1, AllInterrupts = 2 };

    explicit NvicModel(const IPNode &nvicTree, QObject *parent = nullptr);

    const QList<NvicRow> &rows() const { return m_rows; }
    // Index of the row whose IRQName or Handler is `name`, or -1.
    int indexOf(const QString &name) const;
    const NvicRow *row(const QString &name) const;

    // The possible values of the priority group, in file order.
    const QList<RefParamValue> &priorityGroups() const { return m_group.PossibleValues; }
    QString priorityGroup() const { return m_group.Value; }
    QString defaultPriorityGroup() const { return m_group.DefaultValue; }
    // Changes the group: the priority bounds follow, and every priority is clipped to them.
    // False when the value is not one of the group's.
    bool setPriorityGroup(const QString &value);
    int preemptionLow() const { return m_preemptionLow; }
    int preemptionHigh() const { return m_preemptionHigh; }
    int subLow() const { return m_subLow; }
    int subHigh() const { return m_subHigh; }

    int showType() const { return m_showType; }
    void setShowType(int type);
    // Indexes of the rows the show filter lets through.
    QList<int> shownRows() const;
    // Indexes of the available rows that belong to a peripheral: its own vectors and the DMA
    // channel vectors of its requests.
    QList<int> rowsOfInstance(const QString &instanceName) const;

    // The user's edits; each is refused (false) where the row doesn't allow it, or with a
    // priority outside the bounds.
    bool setEnabled(const QString &name, bool enabled);
    bool setPreemption(const QString &name, int value);
    bool setSub(const QString &name, int value);
    // All three at once, for replaying a design: the enable state where the row has a box,
    // and each priority where it is editable and within the bounds.
    bool setInterrupt(const QString &name, bool enabled, int preemption, int sub);

    // Works out which rows are available. A row that stops being available is switched off.
    void updateAvailability(const NvicAvailability &availability);
    const NvicAvailability &availability() const { return m_availability; }

    // Group, filter and every row back to the defaults of the file.
    void reset();
    // The given rows back to their default enable state and priorities.
    void resetRows(const QList<int> &indexes);

signals:
    void changed();
    void showTypeChanged(int type);

private:
    bool rowAvailable(const NvicRow &row) const;
    bool belongsTo(const NvicRow &row, const QString &instanceName) const;
    void computeBounds();
    void clipPriorities();

    QList<NvicRow> m_rows;
    RefParameter m_group;
    RefParameter m_preemption;
    RefParameter m_sub;
    QStringList m_semaphores;
    int m_preemptionLow = 0;
    int m_preemptionHigh = 0;
    int m_subLow = 0;
    int m_subHigh = 0;
    int m_showType = AllInterrupts;
    NvicAvailability m_availability;
};
