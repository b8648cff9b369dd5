#include "peripherals/customcombobox.h"

#include "peripherals/customlistview.h"

#include <QWheelEvent>

CustomComboBox::CustomComboBox(QWidget *parent) : QComboBox(parent)
{
    setView(new CustomListView(this));
    setFocusPolicy(Qt::StrongFocus);
    setStyleSheet(QStringLiteral(
        "QComboBox{border:1px solid rgb(85, 126, 191);border-radius:2px;padding:1px 4px;}"
        "QComboBox::drop-down{border:none;width:18px;}"
        "QComboBox::down-arrow{image:url(:/image/down-arrow.png);width:10px;height:10px;}"));
}

void CustomComboBox::mousePressEvent(QMouseEvent *event)
{
    emit clicked();
    QComboBox::mousePressEvent(event);
}

void CustomComboBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
