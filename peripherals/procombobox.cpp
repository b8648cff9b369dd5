#include "peripherals/procombobox.h"

#include "peripherals/modelogic.h"

#include <QStandardItemModel>

ProComboBox::ProComboBox(ModeControl *control, QWidget *parent)
    : CustomComboBox(parent), m_control(control)
{
    const QSignalBlocker blocker(this);
    addItem(tr("Disable"));
    for (const ModeItem &item : m_control->items)
        addItem(item.text);
    setCurrentIndex(0);
    setToolTip(m_control->option.diagnosticText);
    judge();
}

QStringList ProComboBox::blocked() const
{
    return m_control->blocked;
}

bool ProComboBox::itemEnabled(int index) const
{
    return m_control->itemEnabled(index);
}

void ProComboBox::judge()
{
    auto *itemModel = qobject_cast<QStandardItemModel *>(model());
    if (!itemModel)
        return;
    for (int i = 1; i < count(); ++i) {
        QStandardItem *item = itemModel->item(i);
        if (!item)
            continue;
        const bool enabled = m_control->itemEnabled(i);
        Qt::ItemFlags flags = item->flags();
        flags.setFlag(Qt::ItemIsEnabled, enabled);
        flags.setFlag(Qt::ItemIsSelectable, enabled);
        if (item->flags() != flags)
            item->setFlags(flags);
        const ModeItem *modeItem = m_control->itemAt(i);
        const QString tip =
            modeItem ? m_control->option.signalGroups.value(modeItem->groupIndex).diagnosticText
                     : QString();
        if (item->toolTip() != tip)
            item->setToolTip(tip);
    }
    update();
}

void ProComboBox::retranslate()
{
    setItemText(0, tr("Disable"));
}
