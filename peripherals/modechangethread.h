#pragma once

#include <QThread>

// Re-emits one signal from a worker so that the parameter rebuild runs queued on the GUI
// thread after the current event.
class ModeChangeThread : public QThread
{
    Q_OBJECT
public:
    explicit ModeChangeThread(QObject *parent = nullptr) : QThread(parent) {}

signals:
    void UpdateModeParam();

protected:
    void run() override { emit UpdateModeParam(); }
};
