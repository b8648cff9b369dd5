#pragma once

#include "database/records.h"
#include "peripherals/paramvalue.h"

#include <QStringList>
#include <QWidget>

class CustomComboBox;
class CustomLineEdit;
class QLabel;

// One row of the parameter panel: a label with the comment and range, and an input chosen by
// the parameter's Type.
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
    QLabel *label() const { return m_label; }
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
    void setValid(bool valid);

    RefParameter param;
    QStringList semaphores;
    QLabel *m_label = nullptr;
    CustomLineEdit *m_lineEdit = nullptr;
    CustomComboBox *m_comboBox = nullptr;
    QList<int> m_valueIndexes;
    RefParamValue currentItem;
    RefParamValue previousItem;
    bool m_valid = true;
};
