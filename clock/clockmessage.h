#pragma once

#include <QString>

#include <functional>

class QWidget;

// One message box of the clock pages: an error, a warning or a question.
struct ClockMessage
{
    enum Kind { Error, Warning, Question };
    Kind kind = Error;
    QString title; // "Error", "Warning"
    QString text;
    bool yesCancel = false; // buttons "Yes" and "Cancel" instead of a single "Ok"
};

// Shows a clock message; answers true for "Yes" (or the single "Ok").
using ClockMessageHandler = std::function<bool(QWidget *parent, const ClockMessage &message)>;

// Shows the message through the installed handler, by default a modal QMessageBox.
bool showClockMessage(QWidget *parent, const ClockMessage &message);

// Installs a handler for every clock message (tests answer here); an empty one restores the
// message boxes.
void setClockMessageHandler(ClockMessageHandler handler);
