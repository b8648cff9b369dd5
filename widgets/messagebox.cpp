#include "widgets/messagebox.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace {

UserMessageHandler &installedHandler()
{
    static UserMessageHandler handler;
    return handler;
}

QMessageBox::Icon iconOf(UserMessage::Kind kind)
{
    switch (kind) {
    case UserMessage::Information:
        return QMessageBox::Information;
    case UserMessage::Question:
        return QMessageBox::Question;
    case UserMessage::Warning:
        return QMessageBox::Warning;
    case UserMessage::Error:
        break;
    }
    return QMessageBox::Critical;
}

} // namespace

QString okButtonText()
{
    return QCoreApplication::translate("UserMessage", "Ok");
}

QString cancelButtonText()
{
    return QCoreApplication::translate("UserMessage", "Cancel");
}

QString yesButtonText()
{
    return QCoreApplication::translate("UserMessage", "Yes");
}

void setUserMessageHandler(UserMessageHandler handler)
{
    installedHandler() = std::move(handler);
}

UserMessageHandler userMessageHandler()
{
    return installedHandler();
}

int showUserMessage(QWidget *parent, const UserMessage &message)
{
    UserMessage shown = message;
    if (shown.buttons.isEmpty())
        shown.buttons << okButtonText();
    if (installedHandler())
        return installedHandler()(parent, shown);

    QMessageBox box(iconOf(shown.kind), shown.title, shown.text, QMessageBox::NoButton, parent);
    QList<QPushButton *> pushButtons;
    for (int i = 0; i < shown.buttons.size(); ++i) {
        const bool last = i == shown.buttons.size() - 1 && shown.buttons.size() > 1;
        const auto role = i == 0 ? QMessageBox::AcceptRole
                          : last ? QMessageBox::RejectRole
                                 : QMessageBox::DestructiveRole;
        pushButtons << box.addButton(shown.buttons.at(i), role);
    }
    box.setDefaultButton(pushButtons.first());
    box.exec();
    return pushButtons.indexOf(qobject_cast<QPushButton *>(box.clickedButton()));
}

void tellUser(QWidget *parent, UserMessage::Kind kind, const QString &title, const QString &text)
{
    showUserMessage(parent, {kind, title, text, {okButtonText()}});
}

bool confirmUser(QWidget *parent, UserMessage::Kind kind, const QString &title,
                 const QString &text, const QString &first)
{
    return showUserMessage(parent, {kind, title, text, {first, cancelButtonText()}}) == 0;
}
