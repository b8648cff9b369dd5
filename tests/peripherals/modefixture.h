#pragma once

#include "database/records.h"

#include <QString>
#include <QStringList>

#include <memory>

// Hand-made pins and modes for the mode logic tests.
struct ModeFixture
{
    explicit ModeFixture(const QString &package = QStringLiteral("LQFP"), int pinNums = 48)
        : info(new DevicePinInfo)
    {
        info->Package = package;
        info->PinNums = pinNums;
    }

    MCUPinsBaseInfo *pin(int num, const QString &name, const QStringList &funcs)
    {
        auto *p = new MCUPinsBaseInfo;
        p->PinNum = num;
        p->PinName = name;
        for (const QString &f : funcs) {
            auto *s = new MCUPinSignal;
            s->Func = f;
            s->InPin = name;
            p->signalList << s;
        }
        info->pins << p;
        return p;
    }

    MCUPinSignal *sig(int num, const QString &func) const
    {
        for (MCUPinsBaseInfo *p : info->pins) {
            if (p->PinNum != num)
                continue;
            for (MCUPinSignal *s : p->signalList) {
                if (s->Func == func)
                    return s;
            }
        }
        return nullptr;
    }

    std::unique_ptr<DevicePinInfo> info;
};

inline ModeSignal msig(const QString &name, bool isVirtual = false)
{
    ModeSignal s;
    s.signalName = name;
    s.IOMode = QStringLiteral("MuxOutputPushPull");
    s.Virtual = isVirtual;
    return s;
}

inline ModeSignalGroup mgroup(const QString &name, const QStringList &signalNames,
                              const QStringList &semaphores = {},
                              const QString &expression = QString())
{
    ModeSignalGroup g;
    g.Name = name;
    g.displayName = name;
    QList<ModeSignal> inner;
    for (const QString &n : signalNames)
        inner << msig(n);
    if (!inner.isEmpty())
        g.signalList << inner;
    g.semaphores = semaphores;
    g.Expression = expression;
    return g;
}

// A combo box mode: several groups.
inline ModeOption mcombo(const QString &name, const QList<ModeSignalGroup> &groups,
                         const QString &expression = QString())
{
    ModeOption o;
    o.Name = name;
    o.displayName = name;
    o.signalGroups = groups;
    o.Expression = expression;
    return o;
}

// A check box mode: one group of its own name.
inline ModeOption mcheck(const QString &name, const QStringList &signalNames,
                         const QStringList &semaphores = {}, const QString &expression = QString())
{
    ModeOption o;
    o.Name = name;
    o.displayName = name;
    o.signalGroups << mgroup(name, signalNames);
    o.semaphores = semaphores;
    o.Expression = expression;
    return o;
}
