#include "peripherals/customlineedit.h"

CustomLineEdit::CustomLineEdit(QWidget *parent) : QLineEdit(parent)
{
    setValid(true);
}

void CustomLineEdit::setValid(bool valid)
{
    m_valid = valid;
    setStyleSheet(valid ? QStringLiteral("QLineEdit{border:1px solid rgb(85, 126, 191);"
                                         "border-radius:2px;}")
                        : QStringLiteral("QLineEdit{border:1px solid rgb(230, 40, 40);"
                                         "border-radius:2px;}"));
}

void CustomLineEdit::mousePressEvent(QMouseEvent *event)
{
    emit clicked();
    QLineEdit::mousePressEvent(event);
}
