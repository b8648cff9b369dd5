#pragma once

#include <QString>

#include <functional>

class QWidget;

// Shows a message box of the peripheral panels ("Error", "Warning", ...) with one button
// "Ok", or hands title and text to the sink installed for headless runs.
void showPeripheralMessage(QWidget *parent, const QString &title, const QString &text);

// Asks a question with "Ok" and "Cancel"; true on "Ok". A sink, when installed, answers.
bool askPeripheralQuestion(QWidget *parent, const QString &title, const QString &text);

// Replaces the boxes; an empty function restores them. The question sink returns the answer.
void setPeripheralMessageSink(std::function<void(const QString &, const QString &)> sink);
void setPeripheralQuestionSink(std::function<bool(const QString &, const QString &)> sink);
