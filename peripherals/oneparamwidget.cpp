#include "peripherals/oneparamwidget.h"

#include "peripherals/customcombobox.h"
#include "peripherals/customlineedit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRegularExpressionValidator>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace {

const QColor kGreyedText(150, 150, 150);

QString boundText(const RefParameter &p, const QString &bound)
{
    QString b = bound.trimmed();
    if (ParamValue::isHex(p) && !b.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
        b.prepend(QStringLiteral("0x"));
    return b;
}

// The text a possible value is known by.
QString itemText(const RefParameter &p, const QString &value)
{
    for (const RefParamValue &v : p.PossibleValues) {
        if (v.Value == value)
            return v.Comment.isEmpty() ? v.Value : v.Comment;
    }
    return value;
}

} // namespace

OneParamWidget::OneParamWidget(const RefParameter &parameter, const QStringList &semaphores,
                               QWidget *parent)
    : QWidget(parent), param(parameter), semaphores(semaphores)
{
    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(6, 2, 6, 2);
    outer->setSpacing(1);
    auto *layout = new QHBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    outer->addLayout(layout);
    m_messageLabel = new QLabel(this);
    m_messageLabel->setFont(QFont(QStringLiteral("Arial"), 8));
    m_messageLabel->setWordWrap(true);
    m_messageLabel->hide();
    outer->addWidget(m_messageLabel);

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
        connect(m_comboBox, QOverload<int>::of(&QComboBox::activated), this,
                &OneParamWidget::comboActivated);
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
        const bool valid = ParamValue::isValid(param);
        setValid(valid, valid ? QString() : numberProblem());
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
        const int row = m_comboBox->count() - 1;
        // A value the calculators marked stays selectable, in grey: choosing it explains why
        // it can't be used.
        if (entry.greyed && itemModel)
            itemModel->item(row)->setForeground(kGreyedText);
        const QString diag = param.PossibleValues.at(entry.valueIndex).Diagnostic;
        if (!diag.isEmpty())
            m_comboBox->setItemData(row, diag, Qt::ToolTipRole);
    }
    m_comboBox->setCurrentIndex(choice.current);
    currentItem = RefParamValue();
    for (const RefParamValue &v : param.PossibleValues) {
        if (v.Value == param.Value) {
            currentItem = v;
            break;
        }
    }
    if (currentItem.Value.isEmpty() && choice.current >= 0)
        currentItem = param.PossibleValues.at(m_valueIndexes.at(choice.current));
    previousItem = currentItem;

    m_fellBack = false;
    QString problem;
    if (choice.current >= 0 && choice.entries.at(choice.current).greyed) {
        const RefParamValue &shown =
            param.PossibleValues.at(choice.entries.at(choice.current).valueIndex);
        problem = shown.Diagnostic.isEmpty()
                      ? tr("\"%1\" can't be used with the current settings.")
                            .arg(choice.entries.at(choice.current).text)
                      : shown.Diagnostic;
    } else if (!choice.valid && choice.current >= 0) {
        m_fellBack = true;
        problem = tr("\"%1\" is not available with the current settings. Choose a value.")
                      .arg(itemText(param, param.Value));
    } else if (!choice.valid) {
        problem = tr("No value is available with the current settings.");
    }
    setValid(choice.valid, problem);
}

QString OneParamWidget::currentValue() const
{
    if (m_comboBox) {
        const int i = m_comboBox->currentIndex();
        return i >= 0 ? param.PossibleValues.at(m_valueIndexes.at(i)).Value : QString();
    }
    return param.Value;
}

QString OneParamWidget::numberProblem() const
{
    double number = 0;
    quint64 integer = 0;
    if (!ParamValue::readNumber(param, param.Value, &number, &integer))
        return tr("\"%1\" is not a number.").arg(param.Value);
    const bool low = !param.Min.trimmed().isEmpty();
    const bool high = !param.Max.trimmed().isEmpty();
    if (low && high)
        return tr("The value must lie between %1 and %2.")
            .arg(boundText(param, param.Min), boundText(param, param.Max));
    if (low)
        return tr("The value must be at least %1.").arg(boundText(param, param.Min));
    return tr("The value must be at most %1.").arg(boundText(param, param.Max));
}

void OneParamWidget::setValid(bool valid, const QString &problem)
{
    m_valid = valid;
    m_problem = valid ? QString() : problem;
    if (m_lineEdit && param.Type != QLatin1String("string"))
        m_lineEdit->setValid(valid);
    if (m_comboBox) {
        m_comboBox->setProperty("invalid", !valid);
        m_comboBox->setStyleSheet(
            valid ? QString() : QStringLiteral("QComboBox{border:1px solid rgb(230, 40, 40);}"));
    }
    showMessage();
}

void OneParamWidget::setNote(const QString &note)
{
    m_note = note;
    showMessage();
}

void OneParamWidget::showMessage()
{
    const QString text = m_valid ? m_note : m_problem;
    m_messageLabel->setText(text);
    m_messageLabel->setStyleSheet(m_valid ? QStringLiteral("color:rgb(50, 100, 160);")
                                          : QStringLiteral("color:rgb(210, 40, 40);"));
    m_messageLabel->setVisible(!text.isEmpty());
    QWidget *input =
        m_comboBox ? static_cast<QWidget *>(m_comboBox) : static_cast<QWidget *>(m_lineEdit);
    if (input)
        input->setToolTip(m_valid ? QString() : m_problem);
}

void OneParamWidget::Param_ComboBox_Clicked()
{
    emit SendParamClicked(param.Name);
}

void OneParamWidget::Value_LineEdit_Clicked()
{
    emit SendParamClicked(param.Name);
}

void OneParamWidget::comboActivated(int index)
{
    // Choosing the entry shown in place of a lost value confirms it.
    if (m_fellBack && index == m_comboBox->currentIndex())
        Param_ComboBox_IndexChanged(index);
}

void OneParamWidget::Param_ComboBox_IndexChanged(int index)
{
    if (index < 0 || index >= m_valueIndexes.size())
        return;
    m_fellBack = false;
    previousItem = currentItem;
    if (!previousItem.Semaphore.isEmpty())
        emit SendCancelSemaphoreSignal(previousItem.Semaphore);
    currentItem = param.PossibleValues.at(m_valueIndexes.at(index));
    if (!currentItem.Semaphore.isEmpty())
        emit SendEnableSemaphoreSignal(currentItem.Semaphore);
    param.Value = currentItem.Value;
    emit SendParamModefySignal(param.Name, param.Value);
    // An item that stays only greyed is not a valid choice.
    const bool usable = currentItem.Action.isEmpty();
    setValid(usable, usable ? QString()
                            : (currentItem.Diagnostic.isEmpty()
                                   ? tr("\"%1\" can't be used with the current settings.")
                                         .arg(m_comboBox->itemText(index))
                                   : currentItem.Diagnostic));
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
    const bool valid = ParamValue::isValid(param);
    setValid(valid, valid ? QString() : numberProblem());
    emit SendParamModefySignal(param.Name, param.Value, true);
}
