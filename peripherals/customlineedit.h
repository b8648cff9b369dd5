#pragma once

#include <QLineEdit>

// A line edit that reports a mouse press and shows by its border whether its value is valid.
class CustomLineEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit CustomLineEdit(QWidget *parent = nullptr);

    bool isValid() const { return m_valid; }
    // Red border for an invalid value, blue for a valid one.
    void setValid(bool valid);

signals:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    bool m_valid = true;
};
