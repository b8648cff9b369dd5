#include "peripherals/customcombobox1.h"

#include <QWheelEvent>

CustomComboBox1::CustomComboBox1(QWidget *parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

void CustomComboBox1::focusInEvent(QFocusEvent *event)
{
    emit focusInThis(true);
    QComboBox::focusInEvent(event);
}

void CustomComboBox1::focusOutEvent(QFocusEvent *event)
{
    emit focusInThis(false);
    QComboBox::focusOutEvent(event);
}

void CustomComboBox1::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
