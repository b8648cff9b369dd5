#include "peripherals/comboboxdelegate.h"

#include "peripherals/customcombobox2.h"

ComboBoxDelegate::ComboBoxDelegate(const QStringList &items, QObject *parent)
    : QItemDelegate(parent), m_items(items)
{
}

QWidget *ComboBoxDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                        const QModelIndex &index) const
{
    auto *editor = new CustomComboBox2(parent);
    QStringList items = index.data(Qt::UserRole).toStringList();
    if (items.isEmpty())
        items = m_items;
    editor->addItems(items);
    auto *self = const_cast<ComboBoxDelegate *>(this);
    connect(editor, QOverload<int>::of(&QComboBox::currentIndexChanged), self, [self, editor] {
        emit self->commitData(editor);
        emit self->closeEditor(editor);
    });
    return editor;
}

void ComboBoxDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *box = static_cast<QComboBox *>(editor);
    const QSignalBlocker blocker(box);
    const int i = box->findText(index.data(Qt::EditRole).toString());
    if (i >= 0)
        box->setCurrentIndex(i);
}

void ComboBoxDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                    const QModelIndex &index) const
{
    model->setData(index, static_cast<QComboBox *>(editor)->currentText(), Qt::EditRole);
}

void ComboBoxDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                            const QModelIndex &) const
{
    editor->setGeometry(option.rect);
}
