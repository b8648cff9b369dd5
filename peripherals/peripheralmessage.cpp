#include "peripherals/peripheralmessage.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace {

std::function<void(const QString &, const QString &)> &messageSink()
{
    static std::function<void(const QString &, const QString &)> sink;
    return sink;
}

std::function<bool(const QString &, const QString &)> &questionSink()
{
    static std::function<bool(const QString &, const QString &)> sink;
    return sink;
}

QString trText(const char *text)
{
    return QCoreApplication::translate("PeripheralMessage", text);
}

} // namespace

void setPeripheralMessageSink(std::function<void(const QString &, const QString &)> sink)
{
    messageSink() = std::move(sink);
}

void setPeripheralQuestionSink(std::function<bool(const QString &, const QString &)> sink)
{
    questionSink() = std::move(sink);
}

void showPeripheralMessage(QWidget *parent, const QString &title, const QString &text)
{
    if (messageSink()) {
        messageSink()(title, text);
        return;
    }
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::NoButton, parent);
    box.addButton(trText(QT_TRANSLATE_NOOP("PeripheralMessage", "Ok")), QMessageBox::AcceptRole);
    box.exec();
}

bool askPeripheralQuestion(QWidget *parent, const QString &title, const QString &text)
{
    if (questionSink())
        return questionSink()(title, text);
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::NoButton, parent);
    QPushButton *ok = box.addButton(trText(QT_TRANSLATE_NOOP("PeripheralMessage", "Ok")),
                                    QMessageBox::AcceptRole);
    box.addButton(trText(QT_TRANSLATE_NOOP("PeripheralMessage", "Cancel")),
                  QMessageBox::RejectRole);
    box.exec();
    return box.clickedButton() == ok;
}
