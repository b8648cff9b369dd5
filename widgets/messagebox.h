#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

// One modal message of the program: its kind decides the icon, the buttons are given in order
// (the first is the default one).
struct UserMessage
{
    enum Kind { Information, Question, Warning, Error };
    Kind kind = Error;
    QString title; // "Error", "Warning", "Question", "Information", translated by the caller
    QString text;
    QStringList buttons; // translated texts; empty means a single "Ok"
};

// Shows the message modally, or hands it to the installed handler, and returns the index of
// the button pressed (-1 when the box was closed without one).
int showUserMessage(QWidget *parent, const UserMessage &message);

// One "Ok" button.
void tellUser(QWidget *parent, UserMessage::Kind kind, const QString &title, const QString &text);
// The buttons `first` and "Cancel"; true when `first` was pressed.
bool confirmUser(QWidget *parent, UserMessage::Kind kind, const QString &title,
                 const QString &text, const QString &first);

// Receives every message instead of a box (headless runs and tests answer here); it returns
// the index of the button it chooses. An empty handler restores the boxes.
using UserMessageHandler = std::function<int(QWidget *parent, const UserMessage &message)>;
void setUserMessageHandler(UserMessageHandler handler);
// The handler installed now (empty when boxes are shown).
UserMessageHandler userMessageHandler();

// Translated texts of the common buttons.
QString okButtonText();
QString cancelButtonText();
QString yesButtonText();
