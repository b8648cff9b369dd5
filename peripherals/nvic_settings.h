#pragma once

#include "peripherals/lazyrebuild.h"
#include <QList>
#include <QTableWidget>

class NvicModel;

// The table of interrupts over the shared NvicModel: enable boxes and the two priorities,
// bounded by the priority group, edited in place through a combo box delegate. Without an
// instance it shows what the model's show filter lets through; with one, the available
// interrupts of that peripheral.
class NVIC_Settings : public QTableWidget
{
    Q_OBJECT
public:
    explicit NVIC_Settings(NvicModel *model, const QString &instanceName = QString(),
                           QWidget *parent = nullptr);

    NvicModel *model() const { return m_model; }
    QString instanceName() const { return m_instance; }
    // Model indexes of the rows shown, in table order.
    QList<int> shownRows() const;
    // The cells of a table row. The enable cell is checkable where the user may switch the
    // interrupt; a priority cell is editable (a combo box opens on it) where the priority may
    // be changed, and then offers the numbers of the group's bounds.
    QTableWidgetItem *enableItem(int tableRow) const;
    QTableWidgetItem *preemptionItem(int tableRow) const;
    QTableWidgetItem *subItem(int tableRow) const;
    static QStringList choices(const QTableWidgetItem *priorityItem);
    // Rebuilds the table now if the model changed since it was last built.
    void ensureCurrent();
    void retranslateUi();

public slots:
    void NVICEnable_CheckBox_Changed(int state);
    void PreemptionPriority_ComboBox_activated(int index);
    void SubPriority_ComboBox_activated(int index);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void modelChanged();
    void rebuild();
    void cellEdited(QTableWidgetItem *item);

    NvicModel *m_model;
    QString m_instance;
    QList<int> m_rows;
    QString m_editedIrq; // the interrupt of the cell being edited
    LazyRebuild m_lazy{this, [this] { rebuild(); }};
};
