#include "peripherals/gpiosettingsmodel.h"

#include "database/peripheralreader.h"
#include "pinout/pinassignengine.h"
#include "pinout/pinqgraphicsrectitem.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

bool pinNamesMatch(const QString &wanted, const GpioSettingRow &row)
{
    if (wanted.trimmed().isEmpty())
        return true;
    return wanted.trimmed() == row.pinName ||
           PinQGraphicsRectItem::inPinMatches(wanted, row.pinName) ||
           PinQGraphicsRectItem::inPinMatches(wanted, row.inPin);
}

bool hasSignal(const GpioSettingRow &row, const QString &signal)
{
    return row.signal == signal || row.signalNames.contains(signal);
}

} // namespace

QString GpioSettingRow::value(const QString &settingName) const
{
    const RefParameter *p = parameter(settingName);
    return p ? p->Value : QString();
}

const RefParameter *GpioSettingRow::parameter(const QString &settingName) const
{
    return FindParameter(parameters, settingName);
}

// One active pin with lit signals as update() reads it.
struct GpioSettingsModel::PinEntry
{
    int pinNum = 0;
    QString pinName;
    QStringList names;
    QString inPin;
    QString ioMode;
    QString label;
    int status = SIGNAL_FREE;
};

GpioSettingsModel::GpioSettingsModel(const IPNode &gpioTree, QObject *parent)
    : QObject(parent), m_tree(gpioTree)
{
}

QStringList GpioSettingsModel::settingNames()
{
    return {QStringLiteral("Output level"), QStringLiteral("GPIO type"),
            QStringLiteral("GPIO mode"), QStringLiteral("Pull type"),
            QStringLiteral("Driver capability")};
}

QString GpioSettingsModel::acceptLabel(const QString &text, bool *cut)
{
    static const QRegularExpression valid(QStringLiteral("^[a-zA-Z_][a-zA-Z0-9_]*$"));
    QString out = text;
    bool wasCut = false;
    while (!out.isEmpty() && !valid.match(out).hasMatch()) {
        out.chop(1);
        wasCut = true;
    }
    if (cut)
        *cut = wasCut;
    return out;
}

void GpioSettingsModel::setSignalOwners(const QHash<QString, QString> &owners)
{
    m_owners = owners;
}

QList<RefParameter> GpioSettingsModel::parametersFor(const QString &modeWord) const
{
    const auto cached = m_parameterCache.constFind(modeWord);
    if (cached != m_parameterCache.constEnd())
        return cached.value();
    QList<RefParameter> list;
    const RefMode mode = modeWord.isEmpty() ? RefMode() : GetRefMode(modeWord, m_tree);
    for (const RefModeParameter &allowed : mode.Parameters) {
        RefParameter p = GetRefParameter(QStringLiteral("GPIO"), allowed.Name, m_tree);
        if (p.Name.isEmpty()) {
            p.Name = allowed.Name;
            p.Comment = p.CommentEN = allowed.Name;
            p.Type = QStringLiteral("list");
        }
        // The mode's own list decides the values and their order; its first value is the
        // default of the mode.
        QList<RefParamValue> values;
        for (const QString &v : allowed.PossibleValues) {
            auto it = std::find_if(p.PossibleValues.cbegin(), p.PossibleValues.cend(),
                                   [&v](const RefParamValue &pv) { return pv.Value == v; });
            if (it != p.PossibleValues.cend()) {
                values << *it;
            } else {
                RefParamValue pv;
                pv.Value = pv.Comment = pv.CommentEN = v;
                values << pv;
            }
        }
        p.PossibleValues = values;
        p.DefaultValue = values.isEmpty() ? QString() : values.first().Value;
        p.Value = p.DefaultValue;
        list << p;
    }
    m_parameterCache.insert(modeWord, list);
    return list;
}

QList<GpioSettingsModel::PinEntry> GpioSettingsModel::litEntries(const DevicePinInfo *info) const
{
    QList<PinEntry> out;
    if (!info)
        return out;
    const QList<const MCUPinsBaseInfo *> pins = info->activePinsByNumber();
    for (const MCUPinsBaseInfo *pin : pins) {
        PinEntry entry;
        for (const MCUPinSignal *s : pin->signalList) {
            if (s->status <= SIGNAL_FREE)
                continue;
            if (entry.names.isEmpty()) {
                entry.inPin = s->InPin;
                entry.label = s->userLabel;
                entry.status = s->status;
                // A GPIO word is set up by its own name, any other signal by its IOMode.
                entry.ioMode = PinAssignEngine::isGpioWord(s->Func) ? s->Func : s->IOMode;
            }
            entry.names << s->Func;
        }
        if (entry.names.isEmpty())
            continue;
        entry.pinNum = pin->PinNum;
        entry.pinName = pin->PinName.trimmed();
        out << entry;
    }
    return out;
}

GpioSettingRow GpioSettingsModel::makeRow(const PinEntry &entry) const
{
    GpioSettingRow row;
    row.pinNum = entry.pinNum;
    row.pinName = entry.pinName;
    row.signal = entry.names.first();
    row.signalNames = entry.names;
    row.inPin = entry.inPin;
    row.ioMode = entry.ioMode;
    row.userLabel = entry.label;
    row.status = entry.status;
    if (entry.status >= SIGNAL_MODE_ONLY)
        row.instanceName = m_owners.value(row.signal);
    row.parameters = parametersFor(entry.ioMode);
    return row;
}

bool GpioSettingsModel::sameRow(const GpioSettingRow &a, const GpioSettingRow &b)
{
    if (a.pinNum != b.pinNum || a.signalNames != b.signalNames || a.inPin != b.inPin ||
        a.ioMode != b.ioMode || a.userLabel != b.userLabel || a.instanceName != b.instanceName ||
        a.status != b.status || a.modified != b.modified ||
        a.parameters.size() != b.parameters.size())
        return false;
    for (int i = 0; i < a.parameters.size(); ++i) {
        if (a.parameters.at(i).Name != b.parameters.at(i).Name ||
            a.parameters.at(i).Value != b.parameters.at(i).Value)
            return false;
    }
    return true;
}

void GpioSettingsModel::update(const DevicePinInfo *info)
{
    const QList<PinEntry> entries = litEntries(info);
    QList<GpioSettingRow> next;
    next.reserve(entries.size());
    QVector<bool> taken(m_rows.size(), false);
    QVector<int> matchOf(entries.size(), -1);

    // First the rows that stay on their pin, then the signals that moved to another pin.
    for (int e = 0; e < entries.size(); ++e) {
        const PinEntry &entry = entries.at(e);
        for (int r = 0; r < m_rows.size(); ++r) {
            const GpioSettingRow &old = m_rows.at(r);
            if (!taken.at(r) && old.pinNum == entry.pinNum && old.signal == entry.names.first()) {
                taken[r] = true;
                matchOf[e] = r;
                break;
            }
        }
    }
    for (int e = 0; e < entries.size(); ++e) {
        const QString &signal = entries.at(e).names.first();
        if (matchOf.at(e) >= 0 || PinAssignEngine::isGpioWord(signal))
            continue;
        for (int r = 0; r < m_rows.size(); ++r) {
            if (!taken.at(r) && m_rows.at(r).signal == signal) {
                taken[r] = true;
                matchOf[e] = r;
                break;
            }
        }
    }

    for (int e = 0; e < entries.size(); ++e) {
        GpioSettingRow row = makeRow(entries.at(e));
        if (matchOf.at(e) >= 0) {
            const GpioSettingRow &old = m_rows.at(matchOf.at(e));
            if (old.ioMode == row.ioMode) {
                row.parameters = old.parameters;
                row.modified = old.modified;
            }
        }
        next << row;
    }

    bool same = next.size() == m_rows.size();
    for (int i = 0; same && i < next.size(); ++i)
        same = sameRow(next.at(i), m_rows.at(i));
    m_rows = next;
    if (!same)
        emit changed();
}

void GpioSettingsModel::clear()
{
    if (m_rows.isEmpty())
        return;
    m_rows.clear();
    emit changed();
}

QList<GpioSettingRow> GpioSettingsModel::rowsOfInstance(const QString &instanceName) const
{
    QList<GpioSettingRow> out;
    for (const GpioSettingRow &row : m_rows) {
        if (!instanceName.isEmpty() && row.instanceName == instanceName)
            out << row;
    }
    return out;
}

QList<GpioSettingRow> GpioSettingsModel::rowsWithoutInstance() const
{
    QList<GpioSettingRow> out;
    for (const GpioSettingRow &row : m_rows) {
        if (row.instanceName.isEmpty() || row.signal.startsWith(QLatin1String("GPIO_")))
            out << row;
    }
    return out;
}

QStringList GpioSettingsModel::instancesWithRows() const
{
    QStringList out;
    for (const GpioSettingRow &row : m_rows) {
        if (!row.instanceName.isEmpty() && !out.contains(row.instanceName))
            out << row.instanceName;
    }
    return out;
}

int GpioSettingsModel::findRow(const QString &signal, const QString &pinName) const
{
    for (int i = 0; i < m_rows.size(); ++i) {
        if (hasSignal(m_rows.at(i), signal) && pinNamesMatch(pinName, m_rows.at(i)))
            return i;
    }
    return -1;
}

const GpioSettingRow *GpioSettingsModel::row(const QString &signal, const QString &pinName) const
{
    const int i = findRow(signal, pinName);
    return i < 0 ? nullptr : &m_rows.at(i);
}

bool GpioSettingsModel::setParameter(const QString &signal, const QString &pinName,
                                     const QString &settingName, const QString &value)
{
    const int i = findRow(signal, pinName);
    if (i < 0)
        return false;
    GpioSettingRow &row = m_rows[i];
    for (RefParameter &p : row.parameters) {
        if (p.Name != settingName)
            continue;
        const bool allowed =
            std::any_of(p.PossibleValues.cbegin(), p.PossibleValues.cend(),
                        [&value](const RefParamValue &pv) { return pv.Value == value; });
        if (!allowed)
            return false;
        if (p.Value == value && row.modified)
            return true;
        p.Value = value;
        row.modified = true;
        emit changed();
        return true;
    }
    return false;
}

bool GpioSettingsModel::setLabel(const QString &signal, const QString &pinName,
                                 const QString &label)
{
    const int i = findRow(signal, pinName);
    if (i < 0 || acceptLabel(label) != label)
        return false;
    GpioSettingRow &row = m_rows[i];
    if (row.userLabel == label)
        return true;
    row.userLabel = label;
    emit labelChanged(row.pinNum, row.signal, label);
    emit changed();
    return true;
}

void GpioSettingsModel::resetParameters(const QString &instanceName)
{
    bool any = false;
    for (GpioSettingRow &row : m_rows) {
        if (!instanceName.isEmpty() && row.instanceName != instanceName)
            continue;
        for (RefParameter &p : row.parameters) {
            any = any || p.Value != p.DefaultValue;
            p.Value = p.DefaultValue;
        }
        any = any || row.modified;
        row.modified = false;
    }
    if (any)
        emit changed();
}

void GpioSettingsModel::setShowType(int type)
{
    type = qBound(0, type, 1);
    if (type == m_showType)
        return;
    m_showType = type;
    emit showTypeChanged(type);
}
