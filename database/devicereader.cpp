#include "database/devicereader.h"

#include "database/devicecheck.h"
#include "database/language.h"
#include "database/xmlsection.h"

namespace {

int decimal(const QString &text)
{
    bool ok = false;
    const int value = text.trimmed().toInt(&ok, 10);
    return ok ? value : 0;
}

// A pin count of the base section; 0 when it is not a number or beyond `max`.
int count(const QString &text, int max)
{
    const int value = decimal(text);
    return value >= 0 && value <= max ? value : 0;
}

QDomElement deviceSection(const QDomElement &root, const char *term)
{
    if (root.isNull())
        return QDomElement();
    return findTermSection(root, QString::fromLatin1(term));
}

QString firstAttribute(const QDomElement &section, const QString &name)
{
    for (QDomElement e = section.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        if (e.hasAttribute(name))
            return e.attribute(name);
    }
    return QString();
}

MCUPinSignal *readPinSignal(const QDomElement &e, const QString &pinName)
{
    auto *signal = new MCUPinSignal;
    signal->InPin = pinName;
    signal->Func = e.attribute(QStringLiteral("Func"));
    signal->IOMode = e.attribute(QStringLiteral("IOMode"));
    signal->Multi = e.attribute(QStringLiteral("Multi")) == QLatin1String("true");
    if (e.hasAttribute(QStringLiteral("InPin")))
        signal->InPin = e.attribute(QStringLiteral("InPin"));
    for (QDomElement r = e.firstChildElement(); !r.isNull(); r = r.nextSiblingElement()) {
        MultiPinRef ref;
        ref.Func = r.attribute(QStringLiteral("Func"));
        ref.PinNum = decimal(r.attribute(QStringLiteral("PinNum")));
        signal->multiPins.append(ref);
    }
    return signal;
}

MCUPinsBaseInfo *readPin(const QDomElement &e)
{
    auto *pin = new MCUPinsBaseInfo;
    pin->PinNum = decimal(e.attribute(QStringLiteral("PinNum")));
    pin->PinName = e.attribute(QStringLiteral("PinName"));
    pin->PinFixed = e.attribute(QStringLiteral("PinFixed")) == QLatin1String("true");
    pin->Remarks_EN = e.attribute(QStringLiteral("Remarks_EN"));
    pin->Remarks_CH = e.attribute(QStringLiteral("Remarks_CH"));
    pin->Variant = e.attribute(QStringLiteral("Variant"));
    pin->remapOff = pin->Variant != QLatin1String("PINREMAP");
    pin->PinType = e.attribute(QStringLiteral("PinType"));
    pin->GPIOStructure = e.attribute(QStringLiteral("GPIOStructure"));
    pin->Remarks = ResolveRuleA(pin->Remarks_EN, pin->Remarks_CH);
    for (QDomElement s = e.firstChildElement(); !s.isNull(); s = s.nextSiblingElement())
        pin->signalList.append(readPinSignal(s, pin->PinName));
    return pin;
}

QList<PinsSignalsGroup> readGroups(const QDomElement &section)
{
    QList<PinsSignalsGroup> groups;
    for (QDomElement g = section.firstChildElement(); !g.isNull(); g = g.nextSiblingElement()) {
        PinsSignalsGroup group;
        group.IPName = g.attribute(QStringLiteral("IPName"));
        group.GroupNum = decimal(g.attribute(QStringLiteral("GroupNum")));
        group.GMUX = g.attribute(QStringLiteral("GMUX"));
        for (QDomElement s = g.firstChildElement(); !s.isNull(); s = s.nextSiblingElement()) {
            GroupSignal signal;
            signal.SignalName = s.attribute(QStringLiteral("SignalName"));
            signal.PinName = s.attribute(QStringLiteral("PinName"));
            signal.TMRIPCanUse = s.attribute(QStringLiteral("TMRIPCanUse")) != QLatin1String("NO");
            group.signalList.append(signal);
        }
        groups.append(group);
    }
    return groups;
}

// The first words of a pin name split at "/", trimmed.
QStringList pinNameParts(const QString &name)
{
    const QString firstWord = name.trimmed().section(QLatin1Char(' '), 0, 0).trimmed();
    QStringList parts = firstWord.split(QLatin1Char('/'));
    for (QString &part : parts)
        part = part.trimmed();
    return parts;
}

} // namespace

QString GetSectionAttribute(const QString &filePath, const QString &term,
                            const QString &attributeName)
{
    const LoadedXml file = loadXmlFile(filePath);
    if (file.root.isNull())
        return QString();
    return firstAttribute(findTermSection(file.root, term), attributeName);
}

bool PinNamesMatch(const QString &first, const QString &second)
{
    if (first.trimmed() == second.trimmed())
        return true;
    const QStringList a = pinNameParts(first);
    const QStringList b = pinNameParts(second);
    for (const QString &part : a) {
        if (!part.isEmpty() && b.contains(part))
            return true;
    }
    return false;
}

PinNameIndex::PinNameIndex(const QStringList &pinNames)
{
    for (int i = 0; i < pinNames.size(); ++i) {
        const QString whole = pinNames.at(i).trimmed();
        if (!m_whole.contains(whole))
            m_whole.insert(whole, i);
        for (const QString &part : pinNameParts(pinNames.at(i))) {
            if (!part.isEmpty() && !m_parts.contains(part))
                m_parts.insert(part, i);
        }
    }
}

int PinNameIndex::find(const QString &name) const
{
    int best = m_whole.value(name.trimmed(), -1);
    for (const QString &part : pinNameParts(name)) {
        if (part.isEmpty())
            continue;
        const int at = m_parts.value(part, -1);
        if (at >= 0 && (best < 0 || at < best))
            best = at;
    }
    return best;
}

bool ReadDevicePinInfo(const QString &devicePath, DevicePinInfo *info)
{
    if (!info)
        return false;
    info->clearPins();
    info->signalGroups.clear();
    info->devicePath = devicePath;
    info->rotation = 0;
    info->MCUName.clear();
    info->Package.clear();
    info->xPinNum = info->yPinNum = info->PinNums = 0;

    const LoadedXml file = loadXmlFile(devicePath);
    const QDomElement &root = file.root;
    if (root.isNull())
        return false;

    const QDomElement base = deviceSection(root, "MCUBaseInfo");
    info->xPinNum = count(firstAttribute(base, QStringLiteral("xPinNum")), kMaxSidePins);
    info->MCUName = firstAttribute(base, QStringLiteral("MCUName"));
    info->yPinNum = count(firstAttribute(base, QStringLiteral("yPinNum")), kMaxSidePins);
    info->PinNums = count(firstAttribute(base, QStringLiteral("PinNums")), kMaxDevicePins);
    info->Package = firstAttribute(base, QStringLiteral("Package"));

    const QDomElement pins = deviceSection(root, "PinsList");
    for (QDomElement e = pins.firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
        info->pins.append(readPin(e));

    QList<PinsSignalsGroup> groups = readGroups(deviceSection(root, "PinsSignalsGroup"));
    QStringList pinNames;
    pinNames.reserve(info->pins.size());
    for (const MCUPinsBaseInfo *pin : qAsConst(info->pins))
        pinNames.append(pin->PinName);
    const PinNameIndex index(pinNames);
    for (PinsSignalsGroup &group : groups) {
        for (GroupSignal &signal : group.signalList) {
            const int at = index.find(signal.PinName);
            if (at >= 0)
                signal.pinIndex = info->pins.at(at)->PinNum;
        }
    }
    for (PinsSignalsGroup &group : groups) {
        QList<GroupSignal> kept;
        for (const GroupSignal &signal : qAsConst(group.signalList)) {
            if (signal.pinIndex >= 0)
                kept.append(signal);
        }
        group.signalList = kept;
        if (!group.signalList.isEmpty())
            info->signalGroups.append(group);
    }
    return true;
}

DevicePinInfo *NewDevicePinInfo(const QString &devicePath)
{
    auto *info = new DevicePinInfo;
    ReadDevicePinInfo(devicePath, info);
    return info;
}

quint32 GetDevicePID(const QString &devicePath)
{
    QString text =
        GetSectionAttribute(devicePath, QStringLiteral("MCUBaseInfo"), QStringLiteral("PID"))
            .trimmed();
    if (text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
        text = text.mid(2);
    bool ok = false;
    const quint32 value = text.toUInt(&ok, 16);
    return ok ? value : 0;
}

QList<PeripheralListItem> GetPeripheralsList(const QString &devicePath)
{
    QList<PeripheralListItem> list;
    const LoadedXml file = loadXmlFile(devicePath);
    const QDomElement section = deviceSection(file.root, "PeripheralsList");
    for (QDomElement e = section.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        PeripheralListItem item;
        item.InstanceName = e.attribute(QStringLiteral("InstanceName"));
        item.Name = e.attribute(QStringLiteral("Name"));
        item.GroupName = e.attribute(QStringLiteral("GroupName"));
        item.Version = e.attribute(QStringLiteral("Version"));
        item.Config = e.attribute(QStringLiteral("Config"));
        item.About = e.attribute(QStringLiteral("About"));
        item.AboutCH = e.attribute(QStringLiteral("AboutCH"));
        item.AboutText = ResolveRuleA(item.About, item.AboutCH);
        list.append(item);
    }
    return list;
}

QList<PinsSignalsGroup> GetPinsSignalsGroups(const QString &devicePath)
{
    const LoadedXml file = loadXmlFile(devicePath);
    return readGroups(deviceSection(file.root, "PinsSignalsGroup"));
}
