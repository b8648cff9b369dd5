#pragma once

#include <QComboBox>

// The clock tree's combo box: tells when it gains or loses the focus, ignores the wheel.
class CustomComboBox1 : public QComboBox
{
    Q_OBJECT
public:
    explicit CustomComboBox1(QWidget *parent = nullptr);

signals:
    void focusInThis(bool focused);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};
