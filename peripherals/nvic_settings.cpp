#include "peripherals/nvic_settings.h"

#include "peripherals/comboboxdelegate.h"
#include "peripherals/nvicmodel.h"
#include "peripherals/systempanelsupport.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTimer>

namespace {

enum Column { ColName, ColEnabled, ColPreemption, ColSub, ColumnCount };

const int kIrqRole = Qt::UserRole + 1;

} // namespace

NVIC_Settings::NVIC_Settings(NvicModel *model, const QString &instanceName, QWidget *parent)
    : QTableWidget(0, ColumnCount, parent), m_model(model), m_instance(instanceName)
{
    SystemPanelSupport::styleTable(this);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::AllEditTriggers);
    setStyleSheet(styleSheet() +
                  QStringLiteral("QTableView::indicator{width:14px;height:14px;}"
                                 "QTableView::indicator:checked{image:url(:/image/checked.png);}"
                                 "QTableView::indicator:unchecked{border:1px solid "
                                 "rgb(139, 207, 215);background:white;}"));
    auto *delegate = new ComboBoxDelegate({}, this);
    setItemDelegateForColumn(ColPreemption, delegate);
    setItemDelegateForColumn(ColSub, delegate);
    horizontalHeader()->setSectionResizeMode(ColName, QHeaderView::Stretch);
    for (int c = ColEnabled; c < ColumnCount; ++c)
        horizontalHeader()->setSectionResizeMode(c, QHeaderView::ResizeToContents);
    connect(this, &QTableWidget::itemChanged, this, &NVIC_Settings::cellEdited);
    connect(m_model, &NvicModel::changed, this, &NVIC_Settings::modelChanged);
    connect(m_model, &NvicModel::showTypeChanged, this, &NVIC_Settings::modelChanged);
    retranslateUi();
}

void NVIC_Settings::retranslateUi()
{
    setHorizontalHeaderLabels({tr("NVIC Interrupt Table"), tr("Enabled"),
                               tr("Preemption Priority"), tr("Sub Priority")});
    m_lazy.changedNow();
}

QList<int> NVIC_Settings::shownRows() const
{
    return m_instance.isEmpty() ? m_model->shownRows() : m_model->rowsOfInstance(m_instance);
}

void NVIC_Settings::modelChanged()
{
    m_lazy.changed();
}

void NVIC_Settings::ensureCurrent()
{
    m_lazy.ensureCurrent();
}

void NVIC_Settings::showEvent(QShowEvent *event)
{
    QTableWidget::showEvent(event);
    ensureCurrent();
}

void NVIC_Settings::rebuild()
{
    m_lazy.rebuilt();
    const QSignalBlocker blocker(this);
    const int scroll = verticalScrollBar()->value();
    m_rows = shownRows();
    clearContents();
    setRowCount(m_rows.size());
    const QIcon tick(QStringLiteral(":/image/checked.png"));
    const QColor grey(150, 150, 150);
    const auto range = [](int low, int high) {
        QStringList out;
        for (int v = low; v <= high; ++v)
            out << QString::number(v);
        return out;
    };
    const QStringList preemptions = range(m_model->preemptionLow(), m_model->preemptionHigh());
    const QStringList subs = range(m_model->subLow(), m_model->subHigh());
    for (int r = 0; r < m_rows.size(); ++r) {
        const NvicRow &row = m_model->rows().at(m_rows.at(r));
        const QString irq = row.irq.IRQName;
        auto *name = new QTableWidgetItem(
            SystemPanelSupport::databaseText(row.irq.CommentEN, row.irq.CommentCH));
        name->setToolTip(irq);
        name->setFlags(Qt::ItemIsEnabled);
        if (!row.available)
            name->setForeground(grey);
        setItem(r, ColName, name);

        auto *enabled = new QTableWidgetItem;
        enabled->setData(kIrqRole, irq);
        if (row.hasEnableBox()) {
            enabled->setFlags(row.available ? Qt::ItemIsEnabled | Qt::ItemIsUserCheckable
                                            : Qt::ItemIsUserCheckable);
            enabled->setCheckState(row.enabled() ? Qt::Checked : Qt::Unchecked);
        } else {
            // Fixed: the state is shown and can't be changed.
            enabled->setFlags(Qt::ItemIsEnabled);
            if (row.enabled())
                enabled->setIcon(tick);
        }
        setItem(r, ColEnabled, enabled);

        const auto priorityCell = [&](int column, bool editable, int value,
                                      const QStringList &values) {
            auto *item = new QTableWidgetItem(QString::number(value));
            item->setTextAlignment(Qt::AlignCenter);
            item->setData(kIrqRole, irq);
            if (editable && row.enabled() && row.available) {
                item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsEditable);
                item->setData(Qt::UserRole, values);
            } else {
                item->setFlags(Qt::ItemIsEnabled);
                item->setForeground(grey);
            }
            setItem(r, column, item);
        };
        priorityCell(ColPreemption, row.preemptionEditable(), row.irq.preemption, preemptions);
        priorityCell(ColSub, row.subEditable(), row.irq.sub, subs);
    }
    verticalScrollBar()->setValue(scroll);
}

QTableWidgetItem *NVIC_Settings::enableItem(int tableRow) const
{
    return item(tableRow, ColEnabled);
}

QTableWidgetItem *NVIC_Settings::preemptionItem(int tableRow) const
{
    return item(tableRow, ColPreemption);
}

QTableWidgetItem *NVIC_Settings::subItem(int tableRow) const
{
    return item(tableRow, ColSub);
}

QStringList NVIC_Settings::choices(const QTableWidgetItem *priorityItem)
{
    if (!priorityItem || !(priorityItem->flags() & Qt::ItemIsEditable))
        return {};
    return priorityItem->data(Qt::UserRole).toStringList();
}

void NVIC_Settings::cellEdited(QTableWidgetItem *cell)
{
    m_editedIrq = cell->data(kIrqRole).toString();
    if (m_editedIrq.isEmpty())
        return;
    if (cell->column() == ColEnabled)
        NVICEnable_CheckBox_Changed(cell->checkState());
    else if (cell->column() == ColPreemption)
        PreemptionPriority_ComboBox_activated(choices(cell).indexOf(cell->text()));
    else if (cell->column() == ColSub)
        SubPriority_ComboBox_activated(choices(cell).indexOf(cell->text()));
    m_editedIrq.clear();
}

void NVIC_Settings::NVICEnable_CheckBox_Changed(int state)
{
    if (!m_editedIrq.isEmpty())
        m_model->setEnabled(m_editedIrq, state == Qt::Checked);
}

void NVIC_Settings::PreemptionPriority_ComboBox_activated(int index)
{
    bool ok = false;
    const QStringList values =
        choices(item(m_rows.indexOf(m_model->indexOf(m_editedIrq)), ColPreemption));
    const int value = values.value(index).toInt(&ok);
    if (ok && !m_editedIrq.isEmpty() && !m_model->setPreemption(m_editedIrq, value))
        modelChanged(); // refused: the cell shows the model's value again
}

void NVIC_Settings::SubPriority_ComboBox_activated(int index)
{
    bool ok = false;
    const QStringList values =
        choices(item(m_rows.indexOf(m_model->indexOf(m_editedIrq)), ColSub));
    const int value = values.value(index).toInt(&ok);
    if (ok && !m_editedIrq.isEmpty() && !m_model->setSub(m_editedIrq, value))
        modelChanged();
}
