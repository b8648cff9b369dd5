#pragma once

#include "database/records.h"
#include "peripherals/paramvalue.h"

#include <QStringList>
#include <QWidget>

class CustomComboBox;
class CustomLineEdit;
class QLabel;

// One row of the parameter panel: a label with the comment and range, an input chosen by the
// parameter's Type, and under them the reason when the value is not valid, or a note.
class OneParamWidget : public QWidget
{
    Q_OBJECT
public:
    // `semaphores` is the panel's list for the conditions of possible values: raised names
    // and "name=value" entries.
    OneParamWidget(const RefParameter &parameter, const QStringList &semaphores,
                   QWidget *parent = nullptr);

    const RefParameter &parameter() const { return param; }
    // The value the row shows now (a list falls back to its first item).
    QString currentValue() const;
    // Does the row hold a valid value?
    bool isValueValid() const { return m_valid; }
    // Why the value is not valid, in the user's words; empty when it is.
    QString problemText() const { return m_problem; }
    // A line shown under a valid row (a rate the value leads to); empty for none.
    void setNote(const QString &note);
    QString noteText() const { return m_note; }
    QLabel *label() const { return m_label; }
    QLabel *messageLabel() const { return m_messageLabel; }
    CustomLineEdit *lineEdit() const { return m_lineEdit; }
    CustomComboBox *comboBox() const { return m_comboBox; }
    // The PossibleValues index of each combo box entry.
    QList<int> comboValueIndexes() const { return m_valueIndexes; }

signals:
    void SendParamModefySignal(QString paramName, QString paramValue, bool updateFlag);
    void SendParamModefySignal(QString paramName, QString paramValue);
    void SendCancelSemaphoreSignal(QString Semaphore);
    void SendEnableSemaphoreSignal(QString Semaphore);
    // The row is under edit; the panel shows its description.
    void SendParamClicked(QString paramName);

public slots:
    void Param_ComboBox_Clicked();
    void Param_ComboBox_IndexChanged(int index);
    void Value_LineEdit_editingFinished();
    void Value_LineEdit_Clicked();

private:
    void buildList();
    void setValid(bool valid, const QString &problem = QString());
    void showMessage();
    QString numberProblem() const;
    void comboActivated(int index);

    RefParameter param;
    QStringList semaphores;
    QLabel *m_label = nullptr;
    QLabel *m_messageLabel = nullptr;
    CustomLineEdit *m_lineEdit = nullptr;
    CustomComboBox *m_comboBox = nullptr;
    QList<int> m_valueIndexes;
    RefParamValue currentItem;  // the possible value of the stored Value
    RefParamValue previousItem; // the one before the last change
    bool m_valid = true;
    bool m_fellBack = false; // the list shows its first entry in place of a value it lost
    QString m_problem;
    QString m_note;
};
