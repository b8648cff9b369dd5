#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;

// Small frameless editor of a pin's user label; the label follows the text as it is typed.
class Enter_UserLabel_Dialog : public QDialog
{
    Q_OBJECT
public:
    explicit Enter_UserLabel_Dialog(QWidget *parent = nullptr);

    // True when the text is empty or a valid C identifier.
    static bool isValidLabel(const QString &text);

    void setSignalText(const QString &text);
    void setLabelText(const QString &text);
    QString labelText() const;
    QLineEdit *lineEdit() const { return m_edit; }
    void retranslateUi();

    bool isEditing = false;

signals:
    void UserLabelEditFinished(QString userLabel);

public slots:
    void Value_LineEdit_editingFinished();
    void UserLabel_LineEdit_textEdit(QString editText);

private:
    QLabel *m_signalLabel;
    QLineEdit *m_edit;
    bool m_cutting = false;
    // True while the message about a bad label is up: the focus it takes must not end the
    // edit.
    bool m_warning = false;
};
