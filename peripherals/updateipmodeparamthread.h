#pragma once

#include "database/records.h"

#include <QMutex>
#include <QString>
#include <QThread>

// Re-emits the pin refresh of a mode panel from a worker, so that the refresh runs queued on
// the GUI thread after the emitter has returned. Requests made while the worker runs are not
// lost: the worker keeps going until it has passed on the last one.
class UpdateIPModeParamThread : public QThread
{
    Q_OBJECT
public:
    explicit UpdateIPModeParamThread(QObject *parent = nullptr) : QThread(parent) {}
    ~UpdateIPModeParamThread() override { wait(); }

    // Hands over one refresh. Called on the GUI thread; starts the worker when it is idle.
    void request(DevicePinInfo *pinInfo, bool updateControlFlag, const QString &sendIPName);

    // The values of the last request, as the worker passes them on.
    DevicePinInfo *pinInfo = nullptr;
    bool updateControlFlag = false;
    QString sendIPName;

signals:
    void UpdateIPModeParam(DevicePinInfo *pinInfo, bool updateControlFlag, QString sendIPName);

protected:
    void run() override;

private:
    QMutex m_mutex;
    bool m_pending = false; // a request waits to be passed on
    bool m_busy = false;    // the worker has been started and has not given up yet
};
