#pragma once

#include <QComboBox>

// The program's combo box: reports a mouse press, draws its arrow in the house style and
// ignores the wheel unless it has the focus; its list is a CustomListView.
class CustomComboBox : public QComboBox
{
    Q_OBJECT
public:
    explicit CustomComboBox(QWidget *parent = nullptr);

signals:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};
