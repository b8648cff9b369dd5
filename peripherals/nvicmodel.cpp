#include "peripherals/nvicmodel.h"

#include "database/peripheralreader.h"
#include "peripherals/expressionevaluator.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

// An instance named by a condition: exactly, or by prefix for the "I2SF" family.
bool conditionNames(const QString &condition, const QString &instance)
{
    if (condition == instance)
        return true;
    return condition == QLatin1String("I2SF") && instance.startsWith(condition);
}

// The numeric range of a priority parameter over the raised group semaphore.
bool valueRange(const RefParameter &p, const QStringList &semaphores, int *low, int *high)
{
    bool any = false;
    for (const RefParamValue &v : p.PossibleValues) {
        bool ok = false;
        const int n = v.Value.toInt(&ok);
        if (!ok || !ExpressionEvaluator::valueHolds(v.Condition, semaphores))
            continue;
        if (!any || n < *low)
            *low = n;
        if (!any || n > *high)
            *high = n;
        any = true;
    }
    return any;
}

} // namespace

QStringList NvicRow::conditionInstances() const
{
    QStringList out;
    for (const QString &c : irq.conditions) {
        if (!c.trimmed().isEmpty())
            out << c.trimmed();
    }
    return out;
}

QStringList NvicRow::dmaChannels() const
{
    static const QRegularExpression rx(
        QStringLiteral("^(E?DMA\\d*)_(Channel|Stream)([0-9_]+)_IRQn$"));
    const QRegularExpressionMatch m = rx.match(irq.IRQName);
    QStringList out;
    if (!m.hasMatch())
        return out;
    for (const QString &n : m.captured(3).split(QLatin1Char('_'), Qt::SkipEmptyParts))
        out << m.captured(1) + QLatin1Char('_') + m.captured(2) + n;
    return out;
}

QList<int> NvicRow::exintLines() const
{
    static const QRegularExpression rx(QStringLiteral("^EXINT(\\d+)(?:_(\\d+))?_IRQn$"));
    const QRegularExpressionMatch m = rx.match(irq.IRQName);
    QList<int> out;
    if (!m.hasMatch())
        return out;
    const int a = m.captured(1).toInt();
    const int b = m.captured(2).isEmpty() ? a : m.captured(2).toInt();
    for (int line = qMin(a, b); line <= qMax(a, b); ++line)
        out << line;
    return out;
}

NvicModel::NvicModel(const IPNode &nvicTree, QObject *parent) : QObject(parent)
{
    const QString nvic = QStringLiteral("NVIC");
    m_group = GetRefParameter(nvic, QStringLiteral("PriorityGroup"), nvicTree);
    m_preemption = GetRefParameter(nvic, QStringLiteral("PreemptionPriority"), nvicTree);
    m_sub = GetRefParameter(nvic, QStringLiteral("SubPriority"), nvicTree);
    for (const NVICInterrupt &irq : GetNVICInterrupts(nvicTree)) {
        NvicRow row;
        row.irq = irq;
        row.defaultEnabled = irq.flag4;
        m_rows << row;
    }
    m_group.Value = m_group.DefaultValue;
    for (const RefParamValue &v : m_group.PossibleValues) {
        if (v.Value == m_group.Value && !v.Semaphore.isEmpty())
            m_semaphores << v.Semaphore;
    }
    computeBounds();
    clipPriorities();
    for (NvicRow &row : m_rows)
        row.available = rowAvailable(row);
}

int NvicModel::indexOf(const QString &name) const
{
    for (int i = 0; i < m_rows.size(); ++i) {
        if (m_rows.at(i).irq.IRQName == name || m_rows.at(i).irq.Handler == name)
            return i;
    }
    return -1;
}

const NvicRow *NvicModel::row(const QString &name) const
{
    const int i = indexOf(name);
    return i < 0 ? nullptr : &m_rows.at(i);
}

void NvicModel::computeBounds()
{
    int pLow = 0, pHigh = 0, sLow = 0, sHigh = 0;
    if (valueRange(m_preemption, m_semaphores, &pLow, &pHigh) &&
        valueRange(m_sub, m_semaphores, &sLow, &sHigh)) {
        m_preemptionLow = pLow;
        m_preemptionHigh = pHigh;
        m_subLow = sLow;
        m_subHigh = sHigh;
    }
    for (NvicRow &row : m_rows) {
        row.irq.preemptionLow = m_preemptionLow;
        row.irq.preemptionHigh = m_preemptionHigh;
        row.irq.subLow = m_subLow;
        row.irq.subHigh = m_subHigh;
    }
}

void NvicModel::clipPriorities()
{
    for (NvicRow &row : m_rows) {
        row.irq.preemption = qBound(m_preemptionLow, row.irq.preemption, m_preemptionHigh);
        row.irq.sub = qBound(m_subLow, row.irq.sub, m_subHigh);
    }
}

bool NvicModel::setPriorityGroup(const QString &value)
{
    const auto it = std::find_if(m_group.PossibleValues.cbegin(), m_group.PossibleValues.cend(),
                                 [&value](const RefParamValue &v) { return v.Value == value; });
    if (it == m_group.PossibleValues.cend())
        return false;
    if (value == m_group.Value)
        return true;
    // The old value's semaphores fall, the new one's rise, and the bounds follow them.
    for (const RefParamValue &v : m_group.PossibleValues) {
        if (v.Value == m_group.Value)
            m_semaphores.removeAll(v.Semaphore);
    }
    m_group.Value = value;
    if (!it->Semaphore.isEmpty() && !m_semaphores.contains(it->Semaphore))
        m_semaphores << it->Semaphore;
    computeBounds();
    clipPriorities();
    emit changed();
    return true;
}

void NvicModel::setShowType(int type)
{
    type = qBound(0, type, 2);
    if (type == m_showType)
        return;
    m_showType = type;
    emit showTypeChanged(type);
}

QList<int> NvicModel::shownRows() const
{
    QList<int> out;
    for (int i = 0; i < m_rows.size(); ++i) {
        const NvicRow &row = m_rows.at(i);
        if ((m_showType == AvailableInterrupts && !row.available) ||
            (m_showType == EnabledInterrupts && !row.enabled()))
            continue;
        out << i;
    }
    return out;
}

bool NvicModel::belongsTo(const NvicRow &row, const QString &instanceName) const
{
    for (const QString &c : row.conditionInstances()) {
        if (conditionNames(c, instanceName))
            return true;
    }
    const QStringList own = m_availability.dmaChannelsByInstance.value(instanceName);
    for (const QString &channel : row.dmaChannels()) {
        if (own.contains(channel))
            return true;
    }
    return false;
}

QList<int> NvicModel::rowsOfInstance(const QString &instanceName) const
{
    QList<int> out;
    for (int i = 0; i < m_rows.size(); ++i) {
        const NvicRow &row = m_rows.at(i);
        if (row.available && belongsTo(row, instanceName))
            out << i;
    }
    return out;
}

bool NvicModel::setEnabled(const QString &name, bool enabled)
{
    const int i = indexOf(name);
    if (i < 0)
        return false;
    NvicRow &row = m_rows[i];
    if (row.enabled() == enabled)
        return true;
    if (!row.hasEnableBox() || (enabled && !row.available))
        return false;
    row.irq.flag4 = enabled;
    emit changed();
    return true;
}

bool NvicModel::setPreemption(const QString &name, int value)
{
    const int i = indexOf(name);
    if (i < 0)
        return false;
    NvicRow &row = m_rows[i];
    if (row.irq.preemption == value)
        return true;
    if (!row.preemptionEditable() || value < m_preemptionLow || value > m_preemptionHigh)
        return false;
    row.irq.preemption = value;
    emit changed();
    return true;
}

bool NvicModel::setSub(const QString &name, int value)
{
    const int i = indexOf(name);
    if (i < 0)
        return false;
    NvicRow &row = m_rows[i];
    if (row.irq.sub == value)
        return true;
    if (!row.subEditable() || value < m_subLow || value > m_subHigh)
        return false;
    row.irq.sub = value;
    emit changed();
    return true;
}

bool NvicModel::setInterrupt(const QString &name, bool enabled, int preemption, int sub)
{
    if (indexOf(name) < 0)
        return false;
    const bool a = setEnabled(name, enabled);
    const bool b = setPreemption(name, preemption);
    const bool c = setSub(name, sub);
    return a && b && c;
}

bool NvicModel::rowAvailable(const NvicRow &row) const
{
    const QStringList channels = row.dmaChannels();
    if (!channels.isEmpty()) {
        for (const QStringList &used : m_availability.dmaChannelsByInstance) {
            for (const QString &channel : channels) {
                if (used.contains(channel))
                    return true;
            }
        }
        return false;
    }
    const QStringList conditions = row.conditionInstances();
    if (conditions.isEmpty())
        return true;
    bool configured = false;
    for (const QString &c : conditions) {
        for (const QString &instance : m_availability.configured) {
            if (conditionNames(c, instance))
                configured = true;
        }
    }
    if (!configured)
        return false;
    const QList<int> lines = row.exintLines();
    if (lines.isEmpty())
        return true;
    return std::any_of(lines.cbegin(), lines.cend(),
                       [this](int line) { return m_availability.exintLines.contains(line); });
}

void NvicModel::updateAvailability(const NvicAvailability &availability)
{
    const bool sameInput = m_availability.configured == availability.configured &&
                           m_availability.exintLines == availability.exintLines &&
                           m_availability.dmaChannelsByInstance ==
                               availability.dmaChannelsByInstance;
    m_availability = availability;
    bool any = false;
    for (NvicRow &row : m_rows) {
        const bool available = rowAvailable(row);
        if (available == row.available)
            continue;
        any = true;
        row.available = available;
        // Nothing stale stays behind: an interrupt whose peripheral went is switched off.
        if (!available && row.hasEnableBox())
            row.irq.flag4 = false;
    }
    // The per-peripheral tables also depend on the DMA channels of each instance.
    if (any || !sameInput)
        emit changed();
}

void NvicModel::reset()
{
    m_semaphores.clear();
    m_group.Value = m_group.DefaultValue;
    for (const RefParamValue &v : m_group.PossibleValues) {
        if (v.Value == m_group.Value && !v.Semaphore.isEmpty())
            m_semaphores << v.Semaphore;
    }
    computeBounds();
    for (NvicRow &row : m_rows) {
        row.irq.preemption = row.irq.defaultPreemption;
        row.irq.sub = row.irq.defaultSub;
        row.irq.flag4 = row.defaultEnabled;
    }
    clipPriorities();
    for (NvicRow &row : m_rows) {
        row.available = rowAvailable(row);
        if (!row.available && row.hasEnableBox())
            row.irq.flag4 = false;
    }
    const bool showChanged = m_showType != AllInterrupts;
    m_showType = AllInterrupts;
    if (showChanged)
        emit showTypeChanged(m_showType);
    emit changed();
}

void NvicModel::resetRows(const QList<int> &indexes)
{
    bool any = false;
    for (int i : indexes) {
        if (i < 0 || i >= m_rows.size())
            continue;
        NvicRow &row = m_rows[i];
        const bool enabled = row.defaultEnabled && (row.available || !row.hasEnableBox());
        any = any || row.irq.preemption != row.irq.defaultPreemption ||
              row.irq.sub != row.irq.defaultSub || row.irq.flag4 != enabled;
        row.irq.preemption = qBound(m_preemptionLow, row.irq.defaultPreemption, m_preemptionHigh);
        row.irq.sub = qBound(m_subLow, row.irq.defaultSub, m_subHigh);
        row.irq.flag4 = enabled;
    }
    if (any)
        emit changed();
}
