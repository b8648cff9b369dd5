#include "database/records.h"

#include <algorithm>

#include <QMetaType>

QString IPNode::attribute(const QString &name) const
{
    QString value;
    for (const auto &attr : attributes) {
        if (attr.first == name)
            value = attr.second;
    }
    return value;
}

bool IPNode::hasAttribute(const QString &name) const
{
    for (const auto &attr : attributes) {
        if (attr.first == name)
            return true;
    }
    return false;
}

DevicePinInfo::~DevicePinInfo()
{
    clearPins();
}

void DevicePinInfo::clearPins()
{
    for (MCUPinsBaseInfo *pin : qAsConst(pins)) {
        qDeleteAll(pin->signalList);
        delete pin;
    }
    pins.clear();
}

QList<const MCUPinsBaseInfo *> DevicePinInfo::activePinsByNumber() const
{
    QList<const MCUPinsBaseInfo *> out;
    for (const MCUPinsBaseInfo *pin : pins) {
        if (pin->remapOff)
            out << pin;
    }
    std::stable_sort(
        out.begin(), out.end(),
        [](const MCUPinsBaseInfo *a, const MCUPinsBaseInfo *b) { return a->PinNum < b->PinNum; });
    return out;
}

const RefParameter *FindParameter(const QList<RefParameter> &list, const QString &name)
{
    for (const RefParameter &p : list) {
        if (p.Name == name)
            return &p;
    }
    return nullptr;
}

void registerRecordMetaTypes()
{
    qRegisterMetaType<MCUPinsBaseInfo>("MCUPinsBaseInfo");
    qRegisterMetaType<ModeSignal>("ModeSignal");
    qRegisterMetaType<QList<ModeSignal>>("QList<ModeSignal>");
    qRegisterMetaType<RefParameter>("RefParameter");
    qRegisterMetaType<QList<RefParameter>>("QList<RefParameter>");
    qRegisterMetaType<DevicePinInfo *>("DevicePinInfo*");
    qRegisterMetaType<int>("IPSTATUS");
    qRegisterMetaType<int>("IPPARAMSTATUS");
}
