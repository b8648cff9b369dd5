#include "pinout/enter_userlabel_dialog.h"

#include "widgets/messagebox.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

Enter_UserLabel_Dialog::Enter_UserLabel_Dialog(QWidget *parent) : QDialog(parent)
{
    setWindowIcon(QIcon(QStringLiteral(":/image/VelmoraIcon.ico")));
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    setContentsMargins(0, 0, 0, 0);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(3, 3, 3, 3);
    m_signalLabel = new QLabel(this);
    m_signalLabel->setFont(QFont(QStringLiteral("Arial"), 9));
    m_edit = new QLineEdit(this);
    m_edit->setFont(QFont(QStringLiteral("Arial"), 10));
    m_edit->setMaximumWidth(100);
    m_edit->setMaxLength(16);
    m_edit->setStyleSheet(QStringLiteral("background-color: white;"));
    row->addWidget(m_signalLabel);
    row->addWidget(m_edit);

    connect(m_edit, &QLineEdit::textEdited, this,
            &Enter_UserLabel_Dialog::UserLabel_LineEdit_textEdit);
    connect(m_edit, &QLineEdit::editingFinished, this,
            &Enter_UserLabel_Dialog::Value_LineEdit_editingFinished);
    retranslateUi();
}

void Enter_UserLabel_Dialog::retranslateUi()
{
    setWindowTitle(tr("Enter Label"));
}

bool Enter_UserLabel_Dialog::isValidLabel(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("^[a-zA-Z_][a-zA-Z0-9_]*$"));
    return text.isEmpty() || pattern.match(text).hasMatch();
}

void Enter_UserLabel_Dialog::setSignalText(const QString &text)
{
    m_signalLabel->setText(text);
}

void Enter_UserLabel_Dialog::setLabelText(const QString &text)
{
    m_edit->setText(text);
}

QString Enter_UserLabel_Dialog::labelText() const
{
    return m_edit->text();
}

void Enter_UserLabel_Dialog::UserLabel_LineEdit_textEdit(QString editText)
{
    if (m_cutting)
        return;
    bool warned = false;
    while (!isValidLabel(editText)) {
        editText.chop(1);
        m_cutting = true;
        m_edit->setText(editText);
        m_cutting = false;
        if (!warned) {
            warned = true;
            m_warning = true;
            tellUser(this, UserMessage::Error, tr("Error"),
                     tr("Label must be letters/numbers/underscores, and start with a letter "
                        "or an underscore."));
            m_warning = false;
        }
    }
    emit UserLabelEditFinished(editText);
    if (warned && isVisible()) {
        // The editor stays open on what is left, ready to be typed over.
        activateWindow();
        m_edit->setFocus();
        m_edit->selectAll();
    }
}

void Enter_UserLabel_Dialog::Value_LineEdit_editingFinished()
{
    if (m_warning || !isValidLabel(m_edit->text()))
        return;
    isEditing = false;
    close();
}
