#include "peripherals/modelogic.h"

#include "peripherals/expressionevaluator.h"

#include <QSet>

namespace {

const QString kSubordinate = QStringLiteral("Subordinate mode");
const QString kSubInput = QStringLiteral("Sub-mode input selection");

bool containsSignal(const QList<ModeSignal> &list, const QString &name)
{
    for (const ModeSignal &s : list) {
        if (s.signalName == name)
            return true;
    }
    return false;
}

void appendUnique(QList<ModeSignal> *list, const ModeSignal &s)
{
    if (!containsSignal(*list, s.signalName))
        list->append(s);
}

QList<ModeSignal> realOnly(const QList<ModeSignal> &list)
{
    QList<ModeSignal> out;
    for (const ModeSignal &s : list) {
        if (!s.Virtual)
            appendUnique(&out, s);
    }
    return out;
}

QStringList minus(const QStringList &a, const QStringList &b)
{
    QStringList out;
    for (const QString &s : a) {
        if (!b.contains(s) && !out.contains(s))
            out << s;
    }
    return out;
}

// Ethernet names that differ only between the first and the last "_" may share a pin.
QString emacCut(const QString &name)
{
    const int first = name.indexOf(QLatin1Char('_'));
    const int last = name.lastIndexOf(QLatin1Char('_'));
    if (first < 0)
        return name;
    return name.left(first) + QLatin1Char('_') + name.mid(last + 1);
}

// The pin acceptance test of the engine, with the signals of `released` counting as free.
bool pinAcceptsReleased(const MCUPinsBaseInfo *pin, const QString &name,
                        const QList<ModeSignal> &released)
{
    const MCUPinSignal *wanted = nullptr;
    for (const MCUPinSignal *s : pin->signalList) {
        if (s->Func == name) {
            wanted = s;
            break;
        }
    }
    if (!wanted)
        return false;
    for (const MCUPinSignal *s : pin->signalList) {
        if (s->status <= SIGNAL_FREE || s->Func == name)
            continue;
        if (containsSignal(released, s->Func))
            continue;
        if (s->Func.contains(QLatin1String("EMAC")) && emacCut(s->Func) == emacCut(name))
            continue;
        if (s->Multi && wanted->Multi)
            continue;
        return false;
    }
    return true;
}

bool namesRemoval(const QString &condition, const QStringList &words)
{
    if (condition.isEmpty())
        return false;
    for (const QString &w : words) {
        if (!w.isEmpty() && condition.contains(w))
            return true;
    }
    return false;
}

} // namespace

// ---------------------------------------------------------------------------- ModeControl --

const ModeItem *ModeControl::itemAt(int index) const
{
    if (kind == CheckBox)
        return index > 0 && !items.isEmpty() ? &items.first() : nullptr;
    if (index < 1 || index > items.size())
        return nullptr;
    return &items.at(index - 1);
}

QString ModeControl::textAt(int index) const
{
    const ModeItem *item = itemAt(index);
    return item ? item->text : QStringLiteral("Disable");
}

bool ModeControl::semaphoresAllow(int index) const
{
    const ModeItem *item =
        kind == CheckBox ? (items.isEmpty() ? nullptr : &items.first()) : itemAt(index);
    if (!item)
        return true;
    if (kind == ComboBox &&
        !ExpressionEvaluator::semaphoreHolds(option.Expression, blocked, option.AndFlag))
        return false;
    return ExpressionEvaluator::semaphoreHolds(item->expression, blocked, item->andFlag);
}

bool ModeControl::itemEnabled(int index) const
{
    if (kind == ComboBox && (index < 1 || index > items.size()))
        return true;
    const ModeItem *item =
        kind == CheckBox ? (items.isEmpty() ? nullptr : &items.first()) : itemAt(index);
    if (!item)
        return true;
    return item->pinEnabled && semaphoresAllow(index);
}

QList<ModeSignal> ModeControl::realSignalsAt(int index) const
{
    const ModeItem *item = itemAt(index);
    return item ? realOnly(item->signalList) : QList<ModeSignal>();
}

QList<ModeSignal> ModeControl::allRealSignals() const
{
    QList<ModeSignal> out;
    for (const ModeItem &item : items) {
        for (const ModeSignal &s : item.signalList) {
            if (!s.Virtual)
                appendUnique(&out, s);
        }
    }
    return out;
}

QStringList ModeControl::semaphoresAt(int index) const
{
    const ModeItem *item = itemAt(index);
    return item ? item->semaphores : QStringList();
}

void ModeControl::raise(const QStringList &names)
{
    for (const QString &n : names) {
        if (!blocked.contains(n))
            blocked << n;
    }
}

void ModeControl::withdraw(const QStringList &names)
{
    for (const QString &n : names) {
        if (kind == CheckBox && (option.Expression.isEmpty() || option.semaphores.contains(n)))
            continue;
        blocked.removeAll(n);
    }
}

// ------------------------------------------------------------------------------ ModeLogic --

ModeLogic::ModeLogic(const QString &instanceName, const QString &ipName, const QString &mcuModel,
                     const QString &packageWord)
    : instanceName(instanceName), ipName(ipName), mcuModel(mcuModel), packageWord(packageWord)
{
}

QStringList ModeLogic::missingSignals(const QList<ModeSignal> &signalList,
                                      const DevicePinInfo *info, const QString &mcuModel)
{
    QStringList missing;
    for (const ModeSignal &s : signalList) {
        QString n = s.signalName;
        if (s.Virtual) {
            QString pinName;
            if (!ModeFamilyTables::virtualNameCounts(mcuModel, n, &pinName))
                continue;
            n = pinName;
        }
        if (n == QLatin1String("SCFG_VS_PA11PA12_REMAP")) {
            const bool tssop20 =
                info && info->Package == QLatin1String("TSSOP") && info->PinNums == 20;
            if (!tssop20)
                missing << n;
            continue;
        }
        if (n == QLatin1String("SCFG_VS_I2S23") || n == QLatin1String("SCFG_VS_I2S12") ||
            n == QLatin1String("SCFG_VS_I2S13")) {
            bool present = false;
            if (mcuModel == QLatin1String("MQ48T220") || mcuModel == QLatin1String("MQ48T210")) {
                if (n == QLatin1String("SCFG_VS_I2S13"))
                    present = true;
                else
                    present =
                        !(info && (info->Package == QLatin1String("QFN") || info->PinNums == 32));
            } else if (mcuModel == QLatin1String("MQ48T120")) {
                if (n == QLatin1String("SCFG_VS_I2S12"))
                    present = true;
                else
                    present = !(info &&
                                (info->Package == QLatin1String("TSSOP") || info->PinNums == 20));
            }
            if (!present)
                missing << n;
            continue;
        }
        bool present = false;
        if (info) {
            for (const MCUPinsBaseInfo *pin : info->pins) {
                if (pin->PinName.trimmed() == n) {
                    present = true;
                    break;
                }
                for (const MCUPinSignal *sig : pin->signalList) {
                    if (sig->Func == n) {
                        present = true;
                        break;
                    }
                }
                if (present)
                    break;
            }
        }
        if (!present)
            missing << n;
    }
    return missing;
}

bool ModeLogic::modeAvailable(const QList<ModeSignal> &signalList, const DevicePinInfo *info,
                              const QString &mcuModel)
{
    return missingSignals(signalList, info, mcuModel).isEmpty();
}

void ModeLogic::build(const QList<ModeOption> &modes, const QList<ModeSignal> &refSignals,
                      const DevicePinInfo *info)
{
    controls.clear();
    allSignals.clear();
    currentSignals.clear();
    if (info)
        pinNums = info->PinNums;
    QSet<QString> virtualNames;
    for (const ModeSignal &s : refSignals) {
        if (s.Virtual)
            virtualNames.insert(s.signalName);
    }
    auto flatten = [&](const ModeSignalGroup &group) {
        QList<ModeSignal> out;
        for (const QList<ModeSignal> &inner : group.signalList) {
            for (ModeSignal s : inner) {
                s.Virtual = s.Virtual || virtualNames.contains(s.signalName);
                s.enabled = false;
                out << s;
            }
        }
        return out;
    };
    auto available = [&](const QList<ModeSignal> &list) {
        return !info || modeAvailable(list, info, mcuModel);
    };

    modesFound = !modes.isEmpty();
    for (const ModeOption &mode : modes) {
        for (const ModeSignalGroup &g : mode.signalGroups) {
            for (const ModeSignal &s : flatten(g))
                appendUnique(&allSignals, s);
        }
        if (namesRemoval(mode.RemoveCondition, {mcuModel, packageWord}))
            continue;
        ModeControl control;
        control.option = mode;
        control.label = mode.displayName.isEmpty() ? mode.Name : mode.displayName;
        const bool single = mode.signalGroups.isEmpty() ||
                            (mode.signalGroups.size() == 1 &&
                             mode.signalGroups.first().Name.trimmed() == mode.Name.trimmed());
        if (single) {
            ModeItem item;
            item.text = control.label;
            item.semaphores = mode.semaphores;
            if (!mode.signalGroups.isEmpty()) {
                const ModeSignalGroup &g = mode.signalGroups.first();
                item.groupIndex = 0;
                item.signalList = flatten(g);
                for (const QString &sem : g.semaphores) {
                    if (!item.semaphores.contains(sem))
                        item.semaphores << sem;
                }
            }
            item.expression = mode.Expression;
            item.andFlag = mode.AndFlag;
            if (!available(item.signalList))
                continue;
            control.kind = ModeControl::CheckBox;
            control.items << item;
        } else {
            control.kind = ModeControl::ComboBox;
            for (int i = 0; i < mode.signalGroups.size(); ++i) {
                const ModeSignalGroup &g = mode.signalGroups.at(i);
                if (namesRemoval(g.RemoveCondition, {mcuModel, packageWord, instanceName}))
                    continue;
                ModeItem item;
                item.text = g.displayName.isEmpty() ? g.Name : g.displayName;
                item.groupIndex = i;
                item.signalList = flatten(g);
                item.semaphores = mode.semaphores;
                for (const QString &sem : g.semaphores) {
                    if (!item.semaphores.contains(sem))
                        item.semaphores << sem;
                }
                item.expression = g.Expression;
                item.andFlag = g.AndFlag;
                if (!available(item.signalList))
                    continue;
                control.items << item;
            }
            if (control.items.isEmpty())
                continue;
        }
        controls << control;
    }
}

int ModeLogic::controlByName(const QString &name) const
{
    for (int i = 0; i < controls.size(); ++i) {
        if (controls.at(i).option.Name.trimmed() == name)
            return i;
    }
    return -1;
}

QList<ModeSignal> ModeLogic::signalsOfOtherSelections(int except) const
{
    QList<ModeSignal> out;
    for (int i = 0; i < controls.size(); ++i) {
        if (i == except)
            continue;
        for (const ModeSignal &s : controls.at(i).realSignalsAt(controls.at(i).current))
            appendUnique(&out, s);
    }
    return out;
}

QList<ModeSignal> ModeLogic::freeForm(const QList<ModeSignal> &list, int control) const
{
    const QList<ModeSignal> used = signalsOfOtherSelections(control);
    QList<ModeSignal> out;
    for (const ModeSignal &s : list) {
        if (!containsSignal(used, s.signalName))
            out << s;
    }
    return out;
}

void ModeLogic::raiseSemaphores(const QStringList &names)
{
    if (names.isEmpty())
        return;
    for (ModeControl &c : controls) {
        if (c.kind == ModeControl::CheckBox)
            c.raise(names);
    }
    for (ModeControl &c : controls) {
        if (c.kind == ModeControl::ComboBox)
            c.raise(names);
    }
}

void ModeLogic::withdrawSemaphores(const QStringList &names)
{
    if (names.isEmpty())
        return;
    for (ModeControl &c : controls) {
        if (c.kind == ModeControl::CheckBox)
            c.withdraw(names);
    }
    for (ModeControl &c : controls) {
        if (c.kind == ModeControl::ComboBox)
            c.withdraw(names);
    }
}

ModeChange ModeLogic::selectCombo(int control, int index)
{
    ModeChange change;
    if (control < 0 || control >= controls.size())
        return change;
    ModeControl &c = controls[control];
    const int old = c.current;
    change.oldText = c.textAt(old);
    if (!c.itemEnabled(index))
        return change;
    change.accepted = true;
    change.newText = c.textAt(index);
    const QStringList oldSem = c.semaphoresAt(old);
    const QStringList newSem = c.semaphoresAt(index);
    change.withdrawn = minus(oldSem, newSem);
    change.raised = minus(newSem, oldSem);
    const QList<ModeSignal> all = c.allRealSignals();
    const QList<ModeSignal> oldList = c.realSignalsAt(old);
    const QList<ModeSignal> newList = c.realSignalsAt(index);
    c.current = index;
    withdrawSemaphores(change.withdrawn);
    raiseSemaphores(change.raised);

    if (newList.isEmpty() && !oldList.isEmpty()) {
        const QList<ModeSignal> free = freeForm(oldList, control);
        if (!free.isEmpty()) {
            change.clear = true;
            change.clearList = free;
        }
    }
    if (!newList.isEmpty()) {
        currentSignals = newList;
        change.send = true;
        change.sendAll = freeForm(all, control);
        change.sendValid = newList;
    }
    return change;
}

ModeChange ModeLogic::setChecked(int control, bool checked)
{
    ModeChange change;
    if (control < 0 || control >= controls.size())
        return change;
    ModeControl &c = controls[control];
    if (c.kind != ModeControl::CheckBox || c.items.isEmpty())
        return change;
    change.accepted = true;
    change.oldText = c.current ? c.items.first().text : QString();
    change.newText = checked ? c.option.Name : QString();
    c.current = checked ? 1 : 0;
    const ModeItem &item = c.items.first();
    if (checked) {
        change.raised = item.semaphores;
        raiseSemaphores(change.raised);
        change.send = true;
        change.sendAll = item.signalList;
        change.sendValid = realOnly(item.signalList);
        currentSignals = change.sendValid;
    } else {
        change.withdrawn = item.semaphores;
        withdrawSemaphores(change.withdrawn);
        const QList<ModeSignal> free = freeForm(realOnly(item.signalList), control);
        if (!free.isEmpty()) {
            change.clear = true;
            change.clearList = free;
        }
    }
    return change;
}

bool ModeLogic::findsPinReleased(const QString &name, const QList<ModeSignal> &released,
                                 const DevicePinInfo *info) const
{
    if (!info)
        return true;
    for (const MCUPinsBaseInfo *pin : info->pins) {
        if (pin->remapOff && pinAcceptsReleased(pin, name, released))
            return true;
    }
    return false;
}

void ModeLogic::updateSignalStates(const DevicePinInfo *info)
{
    for (ModeSignal &s : allSignals) {
        if (s.Virtual) {
            s.enabled = true;
            continue;
        }
        s.enabled = findsPinReleased(s.signalName, {}, info);
    }
    runEnableTests(info);
}

bool ModeLogic::itemPinTest(const ModeControl &control, const ModeItem &item,
                            const DevicePinInfo *info, QString *failing) const
{
    const QList<ModeSignal> held = control.realSignalsAt(control.current);
    for (const ModeSignal &s : item.signalList) {
        if (s.Virtual)
            continue;
        const ModeSignal *known = nullptr;
        for (const ModeSignal &a : allSignals) {
            if (a.signalName == s.signalName) {
                known = &a;
                break;
            }
        }
        if (!known || known->Virtual || known->enabled)
            continue;
        if (containsSignal(held, s.signalName))
            continue;
        if (!held.isEmpty() && findsPinReleased(s.signalName, held, info))
            continue;
        if (failing)
            *failing = s.signalName;
        return false;
    }
    return true;
}

namespace {

// The pins that could carry a signal, each with the signals that hold it now.
QStringList pinsHolding(const QString &signalName, const DevicePinInfo *info)
{
    QStringList pins;
    if (!info)
        return pins;
    for (const MCUPinsBaseInfo *pin : info->pins) {
        if (!pin->remapOff)
            continue;
        QStringList holders;
        bool carries = false;
        for (const MCUPinSignal *sig : pin->signalList) {
            carries = carries || sig->Func == signalName;
            if (sig->status > SIGNAL_FREE && sig->Func != signalName)
                holders << sig->Func;
        }
        if (carries && !holders.isEmpty())
            pins << pin->PinName.trimmed() + QStringLiteral(": ") +
                        holders.join(QStringLiteral(", "));
    }
    return pins;
}

} // namespace

void ModeLogic::runEnableTests(const DevicePinInfo *info)
{
    for (ModeControl &c : controls) {
        if (c.kind == ModeControl::CheckBox && c.current > 0)
            continue;
        for (ModeItem &item : c.items) {
            item.blockedSignal.clear();
            item.pinEnabled = itemPinTest(c, item, info, &item.blockedSignal);
            item.blockingPins =
                item.pinEnabled ? QStringList() : pinsHolding(item.blockedSignal, info);
        }
    }
}

int ModeLogic::firstOfKind(ModeControl::Kind kind) const
{
    for (int i = 0; i < controls.size(); ++i) {
        if (controls.at(i).kind == kind)
            return i;
    }
    return -1;
}

bool ModeLogic::xmcChainComplete(int *unfinished) const
{
    *unfinished = -1;
    const int box = firstOfKind(ModeControl::CheckBox);
    if (box < 0 || !controls.at(box).isSelected())
        return false;
    for (int i = 0; i < controls.size(); ++i) {
        if (controls.at(i).kind == ModeControl::ComboBox && !controls.at(i).isSelected()) {
            *unfinished = i;
            return false;
        }
    }
    return true;
}

bool ModeLogic::statusRule() const
{
    using Rule = ModeFamilyTables::StatusRule;
    const int combo = firstOfKind(ModeControl::ComboBox);
    const int box = firstOfKind(ModeControl::CheckBox);
    const bool boxTicked = box >= 0 && controls.at(box).isSelected();
    auto anySelected = [&](bool boxesOnly) {
        for (const ModeControl &c : controls) {
            if ((!boxesOnly || c.kind == ModeControl::CheckBox) && c.isSelected())
                return true;
        }
        return false;
    };
    switch (ModeFamilyTables::statusRule(mcuModel, instanceName)) {
    case Rule::FirstCombo:
        if (combo >= 0)
            return controls.at(combo).isSelected();
        return boxTicked;
    case Rule::AnySelection:
        return anySelected(false);
    case Rule::FirstBoxWithSubordinate: {
        if (!boxTicked)
            return false;
        const int sub = controlByName(kSubordinate);
        if (sub >= 0 && controls.at(sub).isSelected()) {
            const int input = controlByName(kSubInput);
            return input < 0 || controls.at(input).isSelected();
        }
        return true;
    }
    case Rule::XmcNor: {
        int unfinished = -1;
        return xmcChainComplete(&unfinished);
    }
    case Rule::XmcNand:
        return boxTicked && combo >= 0 && controls.at(combo).isSelected();
    case Rule::FirstBox:
        return boxTicked;
    case Rule::AnyBox:
        return anySelected(true);
    }
    return false;
}

ModeHint ModeLogic::hintRule() const
{
    using Rule = ModeFamilyTables::StatusRule;
    ModeHint hint;
    const Rule rule = ModeFamilyTables::statusRule(mcuModel, instanceName);
    if (rule == Rule::FirstBoxWithSubordinate) {
        const int sub = controlByName(kSubordinate);
        const int input = controlByName(kSubInput);
        if (sub >= 0 && input >= 0 && controls.at(sub).isSelected() &&
            !controls.at(input).isSelected()) {
            hint.kind = ModeHint::SelectControl;
            hint.controlLabel = controls.at(input).label;
            hint.unfinished = true;
            return hint;
        }
    }
    if (rule == Rule::XmcNor || rule == Rule::XmcNand) {
        int unfinished = -1;
        if (!xmcChainComplete(&unfinished) && unfinished >= 0) {
            if (rule == Rule::XmcNor || unfinished == firstOfKind(ModeControl::ComboBox)) {
                hint.kind = ModeHint::SelectControl;
                hint.controlLabel = controls.at(unfinished).label;
                hint.unfinished = true;
                return hint;
            }
        }
    }
    const bool active = statusRule();
    if (active &&
        ModeFamilyTables::tabRow(mcuModel, instanceName) == ModeFamilyTables::TabRow::None) {
        hint.kind = ModeHint::NoParameters;
        return hint;
    }
    if ((instanceName == QLatin1String("I2S2") || instanceName == QLatin1String("I2S3")) &&
        ModeFamilyTables::hasI2SFullDuplexHint(mcuModel)) {
        for (const ModeControl &c : controls) {
            const QString text = c.textAt(c.current);
            if (c.isSelected() && text.contains(QLatin1String("Full"), Qt::CaseInsensitive) &&
                text.contains(QLatin1String("Duplex"), Qt::CaseInsensitive)) {
                hint.kind = ModeHint::FullDuplex;
                return hint;
            }
        }
    }
    if ((instanceName == QLatin1String("ADC1") || instanceName == QLatin1String("ADC2") ||
         instanceName == QLatin1String("ADC3")) &&
        ModeFamilyTables::hasAdcCommonHint(mcuModel)) {
        hint.kind = ModeHint::AdcCommon;
    }
    return hint;
}

IPSTATUS ModeLogic::status() const
{
    IPSTATUS s = statusRule() ? IPSTATUS_ACTIVE : IPSTATUS_INACTIVE;
    if (hintRule().unfinished)
        s |= IPSTATUS_UNFINISHED;
    return s;
}

QStringList ModeLogic::tabTitles(const QStringList &dmaTables) const
{
    if (!statusRule() || instanceName == QLatin1String("SCFG") ||
        instanceName == QLatin1String("DEBUG"))
        return {};
    return ModeFamilyTables::tabTitles(ModeFamilyTables::tabRow(mcuModel, instanceName),
                                       dmaTables);
}

int ModeLogic::pinRemapState() const
{
    if (instanceName != QLatin1String("SCFG") || !ModeFamilyTables::hasPinRemapRule(mcuModel))
        return -1;
    for (const ModeControl &c : controls) {
        if (c.kind == ModeControl::CheckBox &&
            (c.option.Name == QLatin1String("PA11 PA12 remap") ||
             c.label == QLatin1String("PA11 PA12 remap")))
            return c.current > 0 ? 1 : 0;
    }
    return -1;
}
