#include "peripherals/prolabel.h"

#include <QMouseEvent>

ProLabel::ProLabel(const QString &text, QWidget *parent) : QLabel(text, parent)
{
}

void ProLabel::mousePressEvent(QMouseEvent *event)
{
    emit clicked(m_name, m_status);
    QLabel::mousePressEvent(event);
}
