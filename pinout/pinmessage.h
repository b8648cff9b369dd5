#pragma once

#include <QString>

#include <functional>

class QWidget;

// Shows an error box titled "Error" with one button "Ok", or hands the text to the sink
// installed for headless runs.
void showPinError(QWidget *parent, const QString &text);

// Replaces the message box by a function; an empty function restores the box.
void setPinMessageSink(std::function<void(const QString &)> sink);
