#include "peripherals/procombobox.h"

#include "peripherals/modelogic.h"

#include <QStandardItemModel>

ProComboBox::ProComboBox(const ModeLogic *logic, int controlIndex, QWidget *parent)
    : CustomComboBox(parent), m_logic(logic), m_index(controlIndex)
{
    const QSignalBlocker blocker(this);
    addItem(tr("Disable"));
    for (const ModeItem &item : control()->items)
        addItem(item.text);
    setCurrentIndex(0);
    setToolTip(control()->option.diagnosticText);
    judge();
}

const ModeControl *ProComboBox::control() const
{
    return &m_logic->controls.at(m_index);
}

QStringList ProComboBox::blocked() const
{
    return control()->blocked;
}

bool ProComboBox::itemEnabled(int index) const
{
    return control()->itemEnabled(index);
}

void ProComboBox::judge()
{
    auto *itemModel = qobject_cast<QStandardItemModel *>(model());
    if (!itemModel)
        return;
    const ModeControl *c = control();
    for (int i = 1; i < count(); ++i) {
        QStandardItem *item = itemModel->item(i);
        if (!item)
            continue;
        const bool enabled = c->itemEnabled(i);
        Qt::ItemFlags flags = item->flags();
        flags.setFlag(Qt::ItemIsEnabled, enabled);
        flags.setFlag(Qt::ItemIsSelectable, enabled);
        if (item->flags() != flags)
            item->setFlags(flags);
        const ModeItem *modeItem = c->itemAt(i);
        QString tip = modeItem ? c->option.signalGroups.value(modeItem->groupIndex).diagnosticText
                               : QString();
        // A greyed item says which pin is taken, and by what.
        if (!enabled && modeItem && !modeItem->blockedSignal.isEmpty()) {
            const QString why = modeItem->blockingPins.isEmpty()
                                    ? tr("%1 finds no free pin.").arg(modeItem->blockedSignal)
                                    : tr("%1 needs a pin that is in use: %2")
                                          .arg(modeItem->blockedSignal,
                                               modeItem->blockingPins.join(QStringLiteral("; ")));
            tip = tip.isEmpty() ? why : why + QLatin1Char('\n') + tip;
        }
        if (item->toolTip() != tip)
            item->setToolTip(tip);
    }
    update();
}

void ProComboBox::retranslate()
{
    setItemText(0, tr("Disable"));
}
