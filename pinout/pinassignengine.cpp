#include "pinout/pinassignengine.h"

#include <QSet>

#include <algorithm>

namespace {

const char *const kGpioWords[] = {"GPIO_Input", "GPIO_Output", "GPIO_Analog", "EVENTOUT"};

const char *const kEventoutSingleModels[] = {"MQ48T250", "MQ48T260", "MQ48V250",
                                             "MQ48T310", "MQ48T320", "MQ48W320"};

// The part before the first "_" and the part behind the last one, joined by "_": the MII
// and RMII forms of one Ethernet signal have the same cut.
QString ethernetCut(const QString &name)
{
    return name.section(QLatin1Char('_'), 0, 0) + QLatin1Char('_') +
           name.section(QLatin1Char('_'), -1);
}

bool isLit(const MCUPinSignal *sig)
{
    return sig->status > SIGNAL_FREE;
}

bool isTmrOutput(const MCUPinSignal *sig)
{
    return isLit(sig) && sig->Func.startsWith(QLatin1String("TMR")) &&
           PinAssignEngine::isMuxOutput(sig->IOMode);
}

// Copies what the user may change on a pin record into the design's own record; the signal
// objects are shared in normal use, so their values are copied only when they are not.
void syncRecord(MCUPinsBaseInfo *target, const MCUPinsBaseInfo &record)
{
    const QList<MCUPinSignal *> own = target->signalList;
    *target = record;
    target->signalList = own;
    if (record.signalList == own || record.signalList.size() != own.size())
        return;
    for (int i = 0; i < own.size(); ++i) {
        if (record.signalList.at(i) && own.at(i))
            *own.at(i) = *record.signalList.at(i);
    }
}

} // namespace

PinAssignEngine::PinAssignEngine(DevicePinInfo *info) : m_info(info)
{
}

// --- Pins ---------------------------------------------------------------------------------

MCUPinsBaseInfo *PinAssignEngine::activePin(int pinNum) const
{
    if (!m_info)
        return nullptr;
    for (MCUPinsBaseInfo *pin : qAsConst(m_info->pins)) {
        if (pin->PinNum == pinNum && pin->remapOff)
            return pin;
    }
    return nullptr;
}

QList<MCUPinsBaseInfo *> PinAssignEngine::activePins() const
{
    QList<MCUPinsBaseInfo *> result;
    if (!m_info)
        return result;
    for (MCUPinsBaseInfo *pin : qAsConst(m_info->pins)) {
        if (pin->remapOff)
            result.append(pin);
    }
    std::stable_sort(
        result.begin(), result.end(),
        [](const MCUPinsBaseInfo *a, const MCUPinsBaseInfo *b) { return a->PinNum < b->PinNum; });
    return result;
}

MCUPinSignal *PinAssignEngine::findSignal(const MCUPinsBaseInfo *pin, const QString &func)
{
    if (!pin)
        return nullptr;
    for (MCUPinSignal *sig : pin->signalList) {
        if (sig->Func == func)
            return sig;
    }
    return nullptr;
}

int PinAssignEngine::pinState(const MCUPinsBaseInfo &pin)
{
    int state = SIGNAL_FREE;
    for (const MCUPinSignal *sig : pin.signalList)
        state = std::max(state, sig->status);
    return state;
}

bool PinAssignEngine::isGpioWord(const QString &func)
{
    for (const char *word : kGpioWords) {
        if (func.contains(QLatin1String(word)))
            return true;
    }
    return false;
}

bool PinAssignEngine::isMuxOutput(const QString &ioMode)
{
    return ioMode.contains(QLatin1String("MuxOutputPushPull")) ||
           ioMode.contains(QLatin1String("MuxOutputOpenDrain"));
}

bool PinAssignEngine::isEventoutSingleFamily(const QString &model)
{
    for (const char *family : kEventoutSingleModels) {
        if (model.contains(QLatin1String(family)))
            return true;
    }
    return false;
}

// --- Building blocks ----------------------------------------------------------------------

bool PinAssignEngine::pinAccepts(const MCUPinsBaseInfo *pin, const QString &name) const
{
    const MCUPinSignal *wanted = findSignal(pin, name);
    if (!wanted)
        return false;
    for (const MCUPinSignal *other : pin->signalList) {
        if (!isLit(other) || other->Func == name)
            continue;
        if (other->Func.contains(QLatin1String("EMAC")) &&
            ethernetCut(other->Func) == ethernetCut(name))
            continue;
        if (!(other->Multi && wanted->Multi))
            return false;
    }
    return true;
}

bool PinAssignEngine::pinAcceptsWithMode(const MCUPinsBaseInfo *pin, const QString &name,
                                         const QString &ioMode) const
{
    if (!pinAccepts(pin, name))
        return false;
    const MCUPinSignal *wanted = findSignal(pin, name);
    return !(wanted->flag != 0 && isMuxOutput(ioMode));
}

bool PinAssignEngine::isGroupedSignal(const QString &name) const
{
    if (!m_info)
        return false;
    for (const PinsSignalsGroup &group : qAsConst(m_info->signalGroups)) {
        for (const GroupSignal &member : group.signalList) {
            if (member.SignalName == name)
                return true;
        }
    }
    return false;
}

QList<const PinsSignalsGroup *> PinAssignEngine::groupsOfInstance(const QString &instance) const
{
    QList<const PinsSignalsGroup *> result;
    if (!m_info)
        return result;
    const QString name =
        instance.contains(QLatin1String("XMC")) ? QStringLiteral("XMC") : instance;
    const QList<PinsSignalsGroup> &groups = m_info->signalGroups;
    for (const PinsSignalsGroup &group : groups) {
        if (group.IPName == name)
            result.append(&group);
    }
    return result;
}

QList<const PinsSignalsGroup *> PinAssignEngine::groupsOfSignal(const QString &name) const
{
    QList<const PinsSignalsGroup *> result;
    if (!m_info)
        return result;
    const QList<PinsSignalsGroup> &groups = m_info->signalGroups;
    for (const PinsSignalsGroup &group : groups) {
        for (const GroupSignal &member : group.signalList) {
            if (member.SignalName == name) {
                result.append(&group);
                break;
            }
        }
    }
    return result;
}

QList<ActiveSignal> PinAssignEngine::activeRecordsOf(const PinsSignalsGroup *group) const
{
    QList<ActiveSignal> records;
    if (!group || !m_info)
        return records;
    for (const GroupSignal &member : group->signalList) {
        for (const MCUPinsBaseInfo *pin : qAsConst(m_info->pins)) {
            if (pin->PinNum != member.pinIndex || !pin->remapOff)
                continue;
            for (const MCUPinSignal *sig : pin->signalList) {
                if (sig->Func == member.SignalName && isLit(sig))
                    records.append({member.SignalName, pin->PinNum, sig->IOMode, sig->status});
            }
        }
    }
    return records;
}

const PinsSignalsGroup *
PinAssignEngine::longestGroup(const QList<const PinsSignalsGroup *> &groups) const
{
    const PinsSignalsGroup *best = nullptr;
    int bestCount = -1;
    for (const PinsSignalsGroup *group : groups) {
        const int count = activeRecordsOf(group).size();
        if (count > bestCount) {
            best = group;
            bestCount = count;
        }
    }
    return best;
}

int PinAssignEngine::groupPinOf(const PinsSignalsGroup *group, const QString &name) const
{
    for (const GroupSignal &member : group->signalList) {
        if (member.SignalName == name)
            return member.pinIndex;
    }
    return -1;
}

bool PinAssignEngine::groupCovers(const PinsSignalsGroup *candidate, const QString &name) const
{
    const PinsSignalsGroup *reference = longestGroup(groupsOfSignal(name));
    if (!reference)
        return true;
    for (const ActiveSignal &record : activeRecordsOf(reference)) {
        bool listed = false;
        for (const GroupSignal &member : candidate->signalList)
            listed = listed || member.SignalName == record.name;
        if (!listed)
            return false;
    }
    return true;
}

bool PinAssignEngine::groupIsLit(const PinsSignalsGroup *group) const
{
    for (const GroupSignal &member : group->signalList) {
        const MCUPinsBaseInfo *pin = activePin(member.pinIndex);
        for (const MCUPinSignal *sig : pin ? pin->signalList : QList<MCUPinSignal *>()) {
            if (sig->Func == member.SignalName && isLit(sig))
                return true;
        }
    }
    return false;
}

bool PinAssignEngine::groupIsOccupied(const PinsSignalsGroup *group) const
{
    for (const GroupSignal &member : group->signalList) {
        const MCUPinsBaseInfo *pin = activePin(member.pinIndex);
        if (!pin)
            continue;
        for (const MCUPinSignal *sig : pin->signalList) {
            if (sig->Func != member.SignalName && isLit(sig))
                return true;
        }
        const MCUPinSignal *own = findSignal(pin, member.SignalName);
        if (own && own->flag != 0)
            return true;
    }
    return false;
}

const PinsSignalsGroup *PinAssignEngine::bestGroupFor(const QString &name, int pinNum) const
{
    QList<const PinsSignalsGroup *> candidates;
    for (const PinsSignalsGroup *group : groupsOfSignal(name)) {
        for (const GroupSignal &member : group->signalList) {
            if (member.SignalName == name && member.pinIndex == pinNum) {
                candidates.append(group);
                break;
            }
        }
    }
    QList<const PinsSignalsGroup *> covering;
    for (const PinsSignalsGroup *group : qAsConst(candidates)) {
        if (!groupCovers(group, name))
            continue;
        if (groupIsLit(group))
            return group;
        covering.append(group);
    }
    for (const PinsSignalsGroup *group : qAsConst(covering)) {
        if (!groupIsOccupied(group))
            return group;
    }
    return covering.isEmpty() ? nullptr : covering.first();
}

const PinsSignalsGroup *PinAssignEngine::litGroupFor(const QString &name, int pinNum) const
{
    QList<const PinsSignalsGroup *> candidates;
    for (const PinsSignalsGroup *group : groupsOfSignal(name)) {
        for (const GroupSignal &member : group->signalList) {
            if (member.SignalName == name && member.pinIndex == pinNum) {
                candidates.append(group);
                break;
            }
        }
    }
    return longestGroup(candidates);
}

bool PinAssignEngine::isOscillatorPin(const MCUPinsBaseInfo *pin)
{
    if (!pin)
        return false;
    for (const MCUPinSignal *sig : pin->signalList) {
        if (sig->IOMode == QLatin1String("Oscillator") ||
            sig->Func.startsWith(QLatin1String("CRM_HEXT")) ||
            sig->Func.startsWith(QLatin1String("CRM_LEXT")))
            return true;
    }
    return false;
}

bool PinAssignEngine::groupOnOscillatorPins(const PinsSignalsGroup *group) const
{
    for (const GroupSignal &member : group->signalList) {
        if (isOscillatorPin(activePin(member.pinIndex)))
            return true;
    }
    return false;
}

bool PinAssignEngine::groupAllPlaceable(const PinsSignalsGroup *group) const
{
    for (const GroupSignal &member : group->signalList) {
        if (member.pinIndex == -1)
            return false;
        const MCUPinsBaseInfo *pin = activePin(member.pinIndex);
        if (pin && !pinAccepts(pin, member.SignalName))
            return false;
    }
    return true;
}

bool PinAssignEngine::groupFits(const PinsSignalsGroup *group,
                                const QList<ModeSignal> &wanted) const
{
    QSet<QString> asked;
    for (const ModeSignal &want : wanted) {
        const GroupSignal *member = nullptr;
        for (const GroupSignal &candidate : group->signalList) {
            if (candidate.SignalName == want.signalName) {
                member = &candidate;
                break;
            }
        }
        if (!member || member->pinIndex == -1)
            return false;
        const MCUPinsBaseInfo *pin = activePin(member->pinIndex);
        if (pin && !pinAcceptsWithMode(pin, want.signalName, want.IOMode))
            return false;
        asked.insert(want.signalName);
    }
    for (const GroupSignal &member : group->signalList) {
        if (member.TMRIPCanUse)
            continue;
        if (asked.contains(member.SignalName) && member.pinIndex != -1)
            continue;
        const MCUPinsBaseInfo *pin = activePin(member.pinIndex);
        for (const MCUPinSignal *sig : pin ? pin->signalList : QList<MCUPinSignal *>()) {
            if (isTmrOutput(sig))
                return false;
        }
    }
    return true;
}

void PinAssignEngine::dropTmrClaim(const PinsSignalsGroup *group)
{
    for (const GroupSignal &member : group->signalList) {
        if (member.TMRIPCanUse)
            continue;
        const MCUPinsBaseInfo *pin = activePin(member.pinIndex);
        for (MCUPinSignal *sig : pin ? pin->signalList : QList<MCUPinSignal *>()) {
            if (!sig->Func.startsWith(QLatin1String("TMR")))
                continue;
            sig->extra.removeAll(group->IPName);
            sig->flag = sig->extra.isEmpty() ? 0 : 1;
        }
    }
}

void PinAssignEngine::takeTmrClaim(const PinsSignalsGroup *group)
{
    for (const GroupSignal &member : group->signalList) {
        if (member.TMRIPCanUse)
            continue;
        const MCUPinsBaseInfo *pin = activePin(member.pinIndex);
        for (MCUPinSignal *sig : pin ? pin->signalList : QList<MCUPinSignal *>()) {
            if (!sig->Func.startsWith(QLatin1String("TMR")))
                continue;
            if (!sig->extra.contains(group->IPName))
                sig->extra.append(group->IPName);
            sig->flag = sig->extra.isEmpty() ? 0 : 1;
        }
    }
}

void PinAssignEngine::applyGroup(const QList<ActiveSignal> &lit, const PinsSignalsGroup *group,
                                 const QList<ModeSignal> &wanted)
{
    for (const ActiveSignal &record : lit) {
        if (MCUPinSignal *sig = findSignal(activePin(record.pinNum), record.name)) {
            sig->status = SIGNAL_FREE;
            sig->IOMode.clear();
        }
    }
    for (const ActiveSignal &record : lit) {
        const int pinNum = groupPinOf(group, record.name);
        if (pinNum == -1)
            continue;
        if (MCUPinSignal *sig = findSignal(activePin(pinNum), record.name)) {
            sig->status = record.status;
            sig->IOMode = record.IOMode;
        }
    }
    for (const ModeSignal &want : wanted) {
        const int pinNum = groupPinOf(group, want.signalName);
        if (pinNum == -1)
            continue;
        if (MCUPinSignal *sig = findSignal(activePin(pinNum), want.signalName)) {
            if (sig->status == SIGNAL_FREE)
                sig->status = SIGNAL_MODE_ONLY;
            else if (sig->status == SIGNAL_PIN_ONLY)
                sig->status = SIGNAL_PIN_AND_MODE;
            sig->IOMode = want.IOMode;
        }
    }
}

void PinAssignEngine::placeOnPin(MCUPinsBaseInfo *pin, const QString &name, int state,
                                 const QString &ioMode)
{
    MCUPinSignal *placed = findSignal(pin, name);
    if (!placed)
        return;
    placed->status = state;
    placed->IOMode = ioMode;
    if (state == SIGNAL_FREE)
        return;
    for (MCUPinSignal *other : pin->signalList) {
        if (other == placed || (other->Multi && placed->Multi))
            continue;
        other->status = SIGNAL_FREE;
        other->IOMode.clear();
    }
}

void PinAssignEngine::moveGroupSignals(const PinsSignalsGroup *newGroup,
                                       const PinsSignalsGroup *oldGroup)
{
    const QList<ActiveSignal> newRecords = activeRecordsOf(newGroup);
    const QList<ActiveSignal> oldRecords = activeRecordsOf(oldGroup);
    if (newRecords.isEmpty() || oldRecords.isEmpty())
        return;
    for (const ActiveSignal &record : oldRecords) {
        const MCUPinsBaseInfo *pin = activePin(record.pinNum);
        bool remembered = false;
        int state = SIGNAL_FREE;
        QString ioMode;
        for (MCUPinSignal *sig : pin ? pin->signalList : QList<MCUPinSignal *>()) {
            if (sig->Func != record.name || !isLit(sig))
                continue;
            remembered = true;
            state = sig->status;
            ioMode = sig->IOMode;
            sig->status = SIGNAL_FREE;
            sig->IOMode.clear();
        }
        if (!remembered)
            continue;
        const int target = groupPinOf(newGroup, record.name);
        if (MCUPinsBaseInfo *targetPin = target == -1 ? nullptr : activePin(target))
            placeOnPin(targetPin, record.name, state, ioMode);
    }
    for (const GroupSignal &member : newGroup->signalList) {
        if (member.TMRIPCanUse)
            continue;
        const MCUPinsBaseInfo *pin = activePin(member.pinIndex);
        for (MCUPinSignal *sig : pin ? pin->signalList : QList<MCUPinSignal *>()) {
            if (isTmrOutput(sig)) {
                sig->status = SIGNAL_FREE;
                sig->IOMode.clear();
            }
        }
    }
}

// --- Requests -----------------------------------------------------------------------------

void PinAssignEngine::receiveIPPinSignals(const QList<ModeSignal> &all,
                                          const QList<ModeSignal> &valid,
                                          const QString &sendIPName)
{
    if (valid.isEmpty()) {
        receiveClearIPPinSignals(all);
        return;
    }
    QSet<QString> validNames;
    for (const ModeSignal &sig : valid)
        validNames.insert(sig.signalName);
    QList<ModeSignal> release;
    for (const ModeSignal &sig : all) {
        if (!validNames.contains(sig.signalName))
            release.append(sig);
    }
    releaseSignals(release);
    placeSignals(valid, sendIPName);
}

void PinAssignEngine::receiveClearIPPinSignals(const QList<ModeSignal> &all)
{
    const PinsSignalsGroup *litGroup = nullptr;
    for (const ModeSignal &sig : all) {
        const QList<const PinsSignalsGroup *> groups = groupsOfSignal(sig.signalName);
        if (!groups.isEmpty()) {
            litGroup = longestGroup(groups);
            break;
        }
    }
    releaseSignals(all);
    if (litGroup && activeRecordsOf(litGroup).isEmpty())
        dropTmrClaim(litGroup);
}

void PinAssignEngine::releaseSignals(const QList<ModeSignal> &signalsToRelease)
{
    if (signalsToRelease.isEmpty())
        return;
    QSet<QString> names;
    for (const ModeSignal &sig : signalsToRelease)
        names.insert(sig.signalName);
    for (MCUPinsBaseInfo *pin : activePins()) {
        for (MCUPinSignal *sig : pin->signalList) {
            if (!names.contains(sig->Func))
                continue;
            sig->status = (sig->status == SIGNAL_PIN_AND_MODE || sig->status == SIGNAL_PIN_ONLY)
                              ? SIGNAL_PIN_ONLY
                              : SIGNAL_FREE;
            if (!isGpioWord(sig->Func))
                sig->IOMode.clear();
        }
    }
}

void PinAssignEngine::placeSignals(const QList<ModeSignal> &valid, const QString &sendIPName)
{
    struct Single
    {
        bool placed = false;
        ModeSignal sig;
    };
    QList<ModeSignal> grouped;
    QList<Single> singles;
    for (const ModeSignal &sig : valid) {
        if (isGroupedSignal(sig.signalName))
            grouped.append(sig);
        else
            singles.append({false, sig});
    }

    const QList<MCUPinsBaseInfo *> pins = activePins();
    // Signals already lit stay where they are, on every pin that has them.
    for (Single &single : singles) {
        for (MCUPinsBaseInfo *pin : pins) {
            for (MCUPinSignal *sig : pin->signalList) {
                if (sig->Func != single.sig.signalName || !isLit(sig))
                    continue;
                if (sig->status == SIGNAL_PIN_ONLY)
                    sig->status = SIGNAL_PIN_AND_MODE;
                sig->IOMode = single.sig.IOMode;
                single.placed = true;
            }
        }
    }

    // The others take the first free pin, leaving a pin to a later signal that has no other;
    // crystal pins come last, so that an oscillator can still be switched on.
    QList<MCUPinsBaseInfo *> order;
    for (MCUPinsBaseInfo *pin : pins) {
        if (!isOscillatorPin(pin))
            order.append(pin);
    }
    for (MCUPinsBaseInfo *pin : pins) {
        if (isOscillatorPin(pin))
            order.append(pin);
    }
    QList<ModeSignal> open;
    for (const Single &single : qAsConst(singles)) {
        if (!single.placed)
            open.append(single.sig);
    }
    for (int i = 0; i < open.size(); ++i) {
        const QString &name = open.at(i).signalName;
        QSet<QString> rest;
        for (int j = i + 1; j < open.size(); ++j)
            rest.insert(open.at(j).signalName);
        for (int p = 0; p < order.size(); ++p) {
            MCUPinsBaseInfo *pin = order.at(p);
            MCUPinSignal *sig = findSignal(pin, name);
            if (!sig || !pinAccepts(pin, name))
                continue;
            bool bearsRest = false;
            for (const MCUPinSignal *other : pin->signalList)
                bearsRest = bearsRest || rest.contains(other->Func);
            if (bearsRest) {
                bool laterPin = false;
                for (int q = p + 1; q < order.size() && !laterPin; ++q)
                    laterPin = findSignal(order.at(q), name) && pinAccepts(order.at(q), name);
                if (laterPin)
                    continue;
            }
            if (sig->status == SIGNAL_FREE)
                sig->status = SIGNAL_MODE_ONLY;
            else if (sig->status == SIGNAL_PIN_ONLY)
                sig->status = SIGNAL_PIN_AND_MODE;
            sig->IOMode = open.at(i).IOMode;
            break;
        }
    }

    if (grouped.isEmpty())
        return;
    const QList<const PinsSignalsGroup *> groups = groupsOfInstance(sendIPName);
    for (const PinsSignalsGroup *group : groups)
        dropTmrClaim(group);

    const PinsSignalsGroup *best = nullptr;
    int bestCount = -1;
    QList<ActiveSignal> lit;
    QSet<QString> litNames;
    for (const PinsSignalsGroup *group : groups) {
        const QList<ActiveSignal> records = activeRecordsOf(group);
        if (records.size() > bestCount) {
            best = group;
            bestCount = records.size();
        }
        for (const ActiveSignal &record : records) {
            if (litNames.contains(record.name))
                continue;
            litNames.insert(record.name);
            lit.append(record);
        }
    }
    QList<ModeSignal> wanted = grouped;
    for (const ActiveSignal &record : qAsConst(lit)) {
        ModeSignal sig;
        sig.enabled = false;
        sig.signalName = record.name;
        sig.IOMode = record.IOMode;
        wanted.append(sig);
    }

    // A lit group stays; otherwise a group that keeps the crystal pins free comes before an
    // equivalent one that would take them.
    const PinsSignalsGroup *chosen = nullptr;
    if (best && bestCount > 0 && groupFits(best, wanted))
        chosen = best;
    for (bool spareOscillator : {true, false}) {
        for (int i = 0; !chosen && i < groups.size(); ++i) {
            if ((!spareOscillator || !groupOnOscillatorPins(groups.at(i))) &&
                groupAllPlaceable(groups.at(i)) && groupFits(groups.at(i), wanted))
                chosen = groups.at(i);
        }
    }
    for (bool spareOscillator : {true, false}) {
        for (int i = 0; !chosen && i < groups.size(); ++i) {
            if ((!spareOscillator || !groupOnOscillatorPins(groups.at(i))) &&
                groupFits(groups.at(i), wanted))
                chosen = groups.at(i);
        }
    }
    if (!chosen)
        return;
    applyGroup(lit, chosen, wanted);
    takeTmrClaim(chosen);
}

void PinAssignEngine::updatePinConfig(const MCUPinsBaseInfo &record)
{
    MCUPinsBaseInfo *target = activePin(record.PinNum);
    if (!target)
        return;
    syncRecord(target, record);

    const bool eventoutSingle = isEventoutSingleFamily(m_info->MCUName);
    const QList<MCUPinsBaseInfo *> pins = activePins();
    for (MCUPinSignal *sig : target->signalList) {
        if (!isLit(sig))
            continue;
        if (isGpioWord(sig->Func)) {
            if (!eventoutSingle || !sig->Func.contains(QLatin1String("EVENTOUT")))
                continue;
            for (MCUPinsBaseInfo *other : pins) {
                if (other == target)
                    continue;
                for (MCUPinSignal *otherSig : other->signalList) {
                    if (otherSig->Func == QLatin1String("EVENTOUT"))
                        otherSig->status = SIGNAL_FREE;
                }
            }
            continue;
        }
        // A peripheral signal stands on one pin only: it moves here with its state, and with
        // it the rest of its group when there is one.
        for (MCUPinsBaseInfo *other : pins) {
            if (other == target)
                continue;
            for (MCUPinSignal *otherSig : other->signalList) {
                if (otherSig->Func != sig->Func || !isLit(otherSig))
                    continue;
                sig->status = otherSig->status;
                sig->IOMode = otherSig->IOMode;
                const PinsSignalsGroup *newGroup = bestGroupFor(sig->Func, target->PinNum);
                const PinsSignalsGroup *oldGroup = litGroupFor(sig->Func, other->PinNum);
                if (newGroup && oldGroup) {
                    moveGroupSignals(newGroup, oldGroup);
                    dropTmrClaim(oldGroup);
                    takeTmrClaim(newGroup);
                } else {
                    otherSig->status = SIGNAL_FREE;
                    otherSig->IOMode.clear();
                }
            }
        }
    }
}

bool PinAssignEngine::groupPreCheck(const QString &name, int pinNum) const
{
    if (!isGroupedSignal(name))
        return true;
    bool litElsewhere = false;
    for (const MCUPinsBaseInfo *pin : activePins()) {
        if (pin->PinNum == pinNum)
            continue;
        for (const MCUPinSignal *sig : pin->signalList)
            litElsewhere = litElsewhere || (sig->Func == name && isLit(sig));
    }
    return !litElsewhere || bestGroupFor(name, pinNum) != nullptr;
}

void PinAssignEngine::updateUserLabel(const MCUPinsBaseInfo &record)
{
    if (MCUPinsBaseInfo *target = activePin(record.PinNum))
        syncRecord(target, record);
}

void PinAssignEngine::setFirstLitUserLabel(int pinNum, const QString &userLabel)
{
    const MCUPinsBaseInfo *pin = activePin(pinNum);
    for (MCUPinSignal *sig : pin ? pin->signalList : QList<MCUPinSignal *>()) {
        if (isLit(sig)) {
            sig->userLabel = userLabel;
            return;
        }
    }
}

QList<int> PinAssignEngine::setPinRemap(bool flag)
{
    m_pinRemap = flag;
    QList<int> remapPins;
    if (!m_info)
        return remapPins;
    for (MCUPinsBaseInfo *pin : qAsConst(m_info->pins)) {
        if (pin->Variant == QLatin1String("PINREMAP")) {
            pin->remapOff = flag;
            remapPins.append(pin->PinNum);
        } else if (pin->Variant == QLatin1String("NOPINREMAP")) {
            pin->remapOff = !flag;
        } else {
            continue;
        }
        if (!pin->remapOff) {
            for (MCUPinSignal *sig : qAsConst(pin->signalList))
                sig->status = SIGNAL_FREE;
        }
    }
    return remapPins;
}

void PinAssignEngine::reset()
{
    setPinRemap(false);
    if (!m_info)
        return;
    for (MCUPinsBaseInfo *pin : qAsConst(m_info->pins)) {
        for (MCUPinSignal *sig : qAsConst(pin->signalList)) {
            sig->status = SIGNAL_FREE;
            sig->flag = 0;
            sig->extra.clear();
            if (!isGpioWord(sig->Func))
                sig->IOMode.clear();
        }
    }
}

void PinAssignEngine::clearIdleLabels()
{
    for (MCUPinsBaseInfo *pin : activePins()) {
        for (MCUPinSignal *sig : qAsConst(pin->signalList)) {
            if (sig->status == SIGNAL_FREE)
                sig->userLabel.clear();
        }
    }
}

QStringList PinAssignEngine::searchList() const
{
    QStringList words;
    QSet<QString> seen;
    auto add = [&](const QString &word) {
        if (!seen.contains(word)) {
            seen.insert(word);
            words.append(word);
        }
    };
    for (const MCUPinsBaseInfo *pin : activePins()) {
        if (pin->PinFixed) {
            add(pin->PinName);
            continue;
        }
        for (const MCUPinSignal *sig : pin->signalList) {
            add(sig->Func);
            if (isLit(sig) && !sig->userLabel.isEmpty())
                add(sig->userLabel);
        }
    }
    if (m_info) {
        for (const MCUPinsBaseInfo *pin : qAsConst(m_info->pins))
            add(pin->PinName);
    }
    std::sort(words.begin(), words.end(), [](const QString &a, const QString &b) {
        return QString::compare(a, b, Qt::CaseInsensitive) < 0;
    });
    return words;
}

// --- Texts of the drawing -----------------------------------------------------------------

QString PinAssignEngine::pinNameText(const MCUPinsBaseInfo &pin)
{
    if (pin.PinName.size() > 5)
        return pin.PinName.left(4) + QStringLiteral("..");
    return pin.PinName;
}

QString PinAssignEngine::pinLabelText(const MCUPinsBaseInfo &pin)
{
    QStringList funcs;
    for (const MCUPinSignal *sig : pin.signalList) {
        if (isLit(sig) && !sig->userLabel.isEmpty())
            return sig->userLabel;
    }
    for (const MCUPinSignal *sig : pin.signalList) {
        if (isLit(sig))
            funcs.append(sig->Func);
    }
    return funcs.join(QStringLiteral("  "));
}
