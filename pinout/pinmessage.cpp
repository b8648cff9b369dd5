#include "pinout/pinmessage.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace {
std::function<void(const QString &)> &sink()
{
    static std::function<void(const QString &)> instance;
    return instance;
}
} // namespace

void setPinMessageSink(std::function<void(const QString &)> newSink)
{
    sink() = std::move(newSink);
}

void showPinError(QWidget *parent, const QString &text)
{
    if (sink()) {
        sink()(text);
        return;
    }
    QMessageBox box(QMessageBox::Critical, QCoreApplication::translate("ChipView", "Error"), text,
                    QMessageBox::NoButton, parent);
    box.addButton(QCoreApplication::translate("ChipView", "Ok"), QMessageBox::AcceptRole);
    box.exec();
}
