#include "clock/clockmessage.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace {
ClockMessageHandler &installedHandler()
{
    static ClockMessageHandler handler;
    return handler;
}
} // namespace

void setClockMessageHandler(ClockMessageHandler handler)
{
    installedHandler() = std::move(handler);
}

bool showClockMessage(QWidget *parent, const ClockMessage &message)
{
    if (installedHandler())
        return installedHandler()(parent, message);
    QMessageBox box(parent);
    box.setWindowTitle(message.title);
    box.setText(message.text);
    box.setIcon(message.kind == ClockMessage::Error ? QMessageBox::Critical
                                                    : QMessageBox::Warning);
    if (message.yesCancel) {
        QPushButton *yes = box.addButton(QCoreApplication::translate("ClockMessage", "Yes"),
                                         QMessageBox::YesRole);
        box.addButton(QCoreApplication::translate("ClockMessage", "Cancel"),
                      QMessageBox::RejectRole);
        box.exec();
        return box.clickedButton() == yes;
    }
    box.addButton(QCoreApplication::translate("ClockMessage", "Ok"), QMessageBox::AcceptRole);
    box.exec();
    return true;
}
