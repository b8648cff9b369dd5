#include "peripherals/oneparamwidget.h"

#include "peripherals/customcombobox.h"
#include "peripherals/customlineedit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRegularExpressionValidator>
#include <QStandardItemModel>

OneParamWidget::OneParamWidget(const RefParameter &parameter, const QStringList &semaphores,
                               QWidget *parent)
    : QWidget(parent), param(parameter), semaphores(semaphores)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 2, 6, 2);
    m_label = new QLabel(ParamValue::labelText(param), this);
    m_label->setFont(QFont(QStringLiteral("Arial"), 9));
    m_label->setStyleSheet(QStringLiteral("background:transparent;"));
    const QString tip = param.Description.isEmpty() ? param.Diagnostic : param.Description;
    if (!tip.isEmpty())
        m_label->setToolTip(tip);
    m_label->setWordWrap(true);
    layout->addWidget(m_label, 1);

    const QString &type = param.Type;
    if (type == QLatin1String("list")) {
        m_comboBox = new CustomComboBox(this);
        buildList();
        connect(m_comboBox, &CustomComboBox::clicked, this,
                &OneParamWidget::Param_ComboBox_Clicked);
        connect(m_comboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &OneParamWidget::Param_ComboBox_IndexChanged);
        m_comboBox->setEnabled(param.Enable);
        layout->addWidget(m_comboBox, 1);
        return;
    }
    m_lineEdit = new CustomLineEdit(this);
    layout->addWidget(m_lineEdit, 1);
    connect(m_lineEdit, &CustomLineEdit::clicked, this, &OneParamWidget::Value_LineEdit_Clicked);
    if (type == QLatin1String("string")) {
        m_lineEdit->setText(param.Value);
        m_lineEdit->setReadOnly(true);
        m_lineEdit->setStyleSheet(QStringLiteral("QLineEdit{border:none;background:"
                                                 "transparent;}"));
        return;
    }
    if (type == QLatin1String("mac address")) {
        m_lineEdit->setValidator(new QRegularExpressionValidator(
            QRegularExpression(QStringLiteral("([A-Fa-f0-9]{2}:){5}[A-Fa-f0-9]{2}")), m_lineEdit));
        m_lineEdit->setInputMask(QStringLiteral("HH:HH:HH:HH:HH:HH; "));
        m_lineEdit->setText(param.Value);
    } else if (ParamValue::isNumeric(param)) {
        if (ParamValue::isHex(param) && !param.Value.isEmpty() &&
            !param.Value.contains(QLatin1Char('*')))
            param.Value = ParamValue::hexValue(param.Value, param.Max);
        m_lineEdit->setText(ParamValue::displayText(param, param.Value));
        setValid(ParamValue::isValid(param));
    } else {
        m_lineEdit->setText(param.Value);
    }
    m_lineEdit->setEnabled(param.Enable);
    connect(m_lineEdit, &QLineEdit::editingFinished, this,
            &OneParamWidget::Value_LineEdit_editingFinished);
}

void OneParamWidget::buildList()
{
    const ParamListChoice choice = ParamValue::listChoice(param, semaphores);
    const QSignalBlocker blocker(m_comboBox);
    m_comboBox->clear();
    m_valueIndexes.clear();
    auto *itemModel = qobject_cast<QStandardItemModel *>(m_comboBox->model());
    for (const ParamListEntry &entry : choice.entries) {
        m_comboBox->addItem(entry.text);
        m_valueIndexes << entry.valueIndex;
        if (entry.greyed && itemModel) {
            QStandardItem *item = itemModel->item(m_comboBox->count() - 1);
            item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
        }
        const QString diag = param.PossibleValues.at(entry.valueIndex).Diagnostic;
        if (!diag.isEmpty())
            m_comboBox->setItemData(m_comboBox->count() - 1, diag, Qt::ToolTipRole);
    }
    m_comboBox->setCurrentIndex(choice.current);
    if (choice.current >= 0)
        currentItem = param.PossibleValues.at(m_valueIndexes.at(choice.current));
    previousItem = currentItem;
    setValid(choice.valid);
}

QString OneParamWidget::currentValue() const
{
    if (m_comboBox) {
        const int i = m_comboBox->currentIndex();
        return i >= 0 ? param.PossibleValues.at(m_valueIndexes.at(i)).Value : QString();
    }
    return param.Value;
}

void OneParamWidget::setValid(bool valid)
{
    m_valid = valid;
    if (m_lineEdit && param.Type != QLatin1String("string"))
        m_lineEdit->setValid(valid);
    if (m_comboBox)
        m_comboBox->setProperty("invalid", !valid);
    if (m_comboBox)
        m_comboBox->setStyleSheet(
            valid ? QString() : QStringLiteral("QComboBox{border:1px solid rgb(230, 40, 40);}"));
}

void OneParamWidget::Param_ComboBox_Clicked()
{
    emit SendParamClicked(param.Name);
}

void OneParamWidget::Value_LineEdit_Clicked()
{
    emit SendParamClicked(param.Name);
}

void OneParamWidget::Param_ComboBox_IndexChanged(int index)
{
    if (index < 0 || index >= m_valueIndexes.size())
        return;
    previousItem = currentItem;
    if (!previousItem.Semaphore.isEmpty())
        emit SendCancelSemaphoreSignal(previousItem.Semaphore);
    currentItem = param.PossibleValues.at(m_valueIndexes.at(index));
    if (!currentItem.Semaphore.isEmpty())
        emit SendEnableSemaphoreSignal(currentItem.Semaphore);
    param.Value = currentItem.Value;
    emit SendParamModefySignal(param.Name, param.Value);
    // An item that stays only greyed is not a valid choice.
    setValid(currentItem.Action.isEmpty());
}

void OneParamWidget::Value_LineEdit_editingFinished()
{
    if (!m_lineEdit || m_lineEdit->isReadOnly())
        return;
    if (param.Type == QLatin1String("mac address")) {
        const QString text = m_lineEdit->text();
        if (text == param.Value)
            return;
        param.Value = text;
        emit SendParamModefySignal(param.Name, param.Value, true);
        return;
    }
    const ParamEdit result = ParamValue::edit(param, m_lineEdit->text());
    if (m_lineEdit->text() != result.display)
        m_lineEdit->setText(result.display);
    if (!result.readable || !result.changed)
        return;
    param.Value = result.value;
    setValid(ParamValue::isValid(param));
    emit SendParamModefySignal(param.Name, param.Value, true);
}
