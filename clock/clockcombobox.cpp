#include "clock/clockcombobox.h"

#include <QWheelEvent>

ClockComboBox::ClockComboBox(QWidget *parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

void ClockComboBox::focusInEvent(QFocusEvent *event)
{
    QComboBox::focusInEvent(event);
    emit focusInThis(true);
}

void ClockComboBox::focusOutEvent(QFocusEvent *event)
{
    QComboBox::focusOutEvent(event);
    emit focusInThis(false);
}

void ClockComboBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
