#include "peripherals/updateipmodeparamthread.h"

#include <QMutexLocker>

void UpdateIPModeParamThread::request(DevicePinInfo *info, bool flag, const QString &name)
{
    QMutexLocker lock(&m_mutex);
    pinInfo = info;
    updateControlFlag = flag;
    sendIPName = name;
    m_pending = true;
    if (m_busy)
        return; // the running worker sees the new values before it gives up
    m_busy = true;
    lock.unlock();
    // A worker that has just given up may still be leaving run(); start() would then do
    // nothing, so wait for it first. The wait is at most the few instructions after the
    // worker has cleared m_busy.
    wait();
    start();
}

void UpdateIPModeParamThread::run()
{
    for (;;) {
        QMutexLocker lock(&m_mutex);
        if (!m_pending) {
            m_busy = false;
            return;
        }
        m_pending = false;
        DevicePinInfo *info = pinInfo;
        const bool flag = updateControlFlag;
        const QString name = sendIPName;
        lock.unlock();
        emit UpdateIPModeParam(info, flag, name);
    }
}
