#pragma once

#include <QComboBox>

// Combo box of the clock drawing that reports its focus and ignores the wheel unless focused.
class ClockComboBox : public QComboBox
{
    Q_OBJECT
public:
    explicit ClockComboBox(QWidget *parent = nullptr);

signals:
    void focusInThis(bool focused);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};
