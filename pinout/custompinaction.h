#pragma once

#include <QAction>
#include <QString>

// A checkable entry of a pin's signal menu, naming the signal and the pin it stands for.
class CustomPinAction : public QAction
{
    Q_OBJECT
public:
    CustomPinAction(const QString &text, QObject *parent = nullptr) : QAction(text, parent) {}

    QString signalName;
    QString inPin;
};
