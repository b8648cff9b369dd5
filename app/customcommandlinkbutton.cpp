#include "app/customcommandlinkbutton.h"

#include <QMouseEvent>

CustomCommandLinkButton::CustomCommandLinkButton(const QString &text, QWidget *parent)
    : QCommandLinkButton(text, parent)
{
}

void CustomCommandLinkButton::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        event->accept();
        emit leftButtonClicked();
    } else if (event->button() == Qt::RightButton) {
        event->accept();
        emit rightButtonClicked();
    } else {
        QCommandLinkButton::mousePressEvent(event);
    }
}
