#pragma once

#include "database/records.h"

#include <QString>
#include <QThread>

// Re-emits the pin refresh of a mode panel from a worker, so that the refresh runs queued on
// the GUI thread after the emitter has returned.
class UpdateIPModeParamThread : public QThread
{
    Q_OBJECT
public:
    explicit UpdateIPModeParamThread(QObject *parent = nullptr) : QThread(parent) {}

    DevicePinInfo *pinInfo = nullptr;
    bool updateControlFlag = false;
    QString sendIPName;

signals:
    void UpdateIPModeParam(DevicePinInfo *pinInfo, bool updateControlFlag, QString sendIPName);

protected:
    void run() override { emit UpdateIPModeParam(pinInfo, updateControlFlag, sendIPName); }
};
