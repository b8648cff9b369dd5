#pragma once

#include "database/records.h"

#include <QString>
#include <QStringList>

#include <memory>

// Small hand-made pin tables for the engine and widget tests.
class PinFixture
{
public:
    PinFixture(const QString &model = QStringLiteral("MQ48T110C8T"),
               const QString &package = QStringLiteral("LQFP"), int pinNums = 48)
        : info(new DevicePinInfo)
    {
        info->MCUName = model;
        info->Package = package;
        info->PinNums = pinNums;
        info->xPinNum = pinNums / 4;
        info->yPinNum = pinNums / 4;
    }

    // Adds a pin; a function ending in "*" is a Multi function.
    MCUPinsBaseInfo *pin(int num, const QString &name, const QStringList &funcs,
                         const QString &variant = QString(), bool fixed = false)
    {
        auto *record = new MCUPinsBaseInfo;
        record->PinNum = num;
        record->PinName = name;
        record->Variant = variant;
        record->remapOff = variant != QLatin1String("PINREMAP");
        record->PinFixed = fixed;
        record->Remarks_EN = QStringLiteral("remark ") + name;
        for (QString func : funcs) {
            auto *sig = new MCUPinSignal;
            if (func.endsWith(QLatin1Char('*'))) {
                func.chop(1);
                sig->Multi = true;
            }
            sig->Func = func;
            sig->InPin = name;
            record->signalList.append(sig);
        }
        info->pins.append(record);
        return record;
    }

    // Removes the record at `index` of the pin list and frees it with its signals.
    void dropPin(int index)
    {
        MCUPinsBaseInfo *record = info->pins.takeAt(index);
        qDeleteAll(record->signalList);
        delete record;
    }

    // Adds a group of (signal, pin number) members; a signal ending in "!" has TMRIPCanUse off.
    void group(const QString &ip, const QList<QPair<QString, int>> &members)
    {
        PinsSignalsGroup g;
        g.IPName = ip;
        for (auto member : members) {
            GroupSignal gs;
            gs.SignalName = member.first;
            if (gs.SignalName.endsWith(QLatin1Char('!'))) {
                gs.SignalName.chop(1);
                gs.TMRIPCanUse = false;
            }
            gs.pinIndex = member.second;
            g.signalList.append(gs);
        }
        info->signalGroups.append(g);
    }

    // The signal `func` on the active (or, failing that, any) record of pin `num`.
    MCUPinSignal *sig(int num, const QString &func) const
    {
        MCUPinSignal *fallback = nullptr;
        for (MCUPinsBaseInfo *p : info->pins) {
            if (p->PinNum != num)
                continue;
            for (MCUPinSignal *s : p->signalList) {
                if (s->Func == func) {
                    if (p->remapOff)
                        return s;
                    fallback = s;
                }
            }
        }
        return fallback;
    }

    int status(int num, const QString &func) const
    {
        MCUPinSignal *s = sig(num, func);
        return s ? s->status : -1;
    }

    std::unique_ptr<DevicePinInfo> info;
};

inline ModeSignal modeSignal(const QString &name, const QString &ioMode = QString())
{
    ModeSignal s;
    s.enabled = true;
    s.signalName = name;
    s.IOMode = ioMode;
    return s;
}

inline QList<ModeSignal> modeSignals(const QStringList &names)
{
    QList<ModeSignal> list;
    for (const QString &name : names)
        list.append(modeSignal(name, QStringLiteral("GPIO_MuxOutputPushPull")));
    return list;
}
