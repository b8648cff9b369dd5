#include "peripherals/dmarequestmodel.h"

#include "database/peripheralreader.h"
#include "peripherals/couplingrules.h"

#include <algorithm>

namespace {

const QString kMemToMem = QStringLiteral("MEMTOMEM");
const QString kMemToMemTab = QStringLiteral("MemToMem");
const QString kInstance = QStringLiteral("Instance");

// Requests that stand without a peripheral of their own in the device's list.
bool withoutInstance(const DMARequestInfo &def)
{
    static const QStringList names = {QStringLiteral("DAC1"), QStringLiteral("DAC2"),
                                      QStringLiteral("DAC1_DAC2")};
    return def.kind != DMARequestKind::Peripheral || names.contains(def.Name) ||
           def.IpInstance.isEmpty();
}

QStringList channelsOfDefinition(const DMARequestInfo &def)
{
    for (const DMARequestParameter &p : def.Parameters) {
        if (p.Name == QLatin1String("Instance")) {
            QStringList out = p.PossibleValues;
            if (out.isEmpty() && !p.DefaultValue.isEmpty())
                out << p.DefaultValue;
            // The default channel comes first.
            if (out.removeAll(p.DefaultValue) > 0)
                out.prepend(p.DefaultValue);
            return out;
        }
    }
    return {};
}

} // namespace

QString DMARequest::value(const QString &parameterName) const
{
    const RefParameter *p = parameter(parameterName);
    return p ? p->Value : QString();
}

const RefParameter *DMARequest::parameter(const QString &parameterName) const
{
    return FindParameter(parameters, parameterName);
}

DmaRequestModel::DmaRequestModel(const QString &name, const IPNode &tree, const QString &family,
                                 QObject *parent)
    : QObject(parent), m_name(name), m_family(family), m_tree(tree),
      m_definitions(GetDMARequests(tree))
{
    for (const DMARequestInfo &def : m_definitions) {
        for (const QString &channel : channelsOfDefinition(def)) {
            const QString controller = controllerOf(channel);
            if (!controller.isEmpty() && !m_controllers.contains(controller))
                m_controllers << controller;
        }
    }
}

QString DmaRequestModel::controllerOf(const QString &channel)
{
    if (channel.contains(QLatin1String("EDMA")))
        return QStringLiteral("EDMA");
    if (channel.contains(QLatin1String("DMA2")))
        return QStringLiteral("DMA2");
    if (channel.contains(QLatin1String("DMA")))
        return QStringLiteral("DMA1");
    return QString();
}

QStringList DmaRequestModel::tabNames() const
{
    QStringList tabs = m_controllers;
    if (definition(kMemToMem))
        tabs << kMemToMemTab;
    return tabs;
}

const DMARequestInfo *DmaRequestModel::definition(const QString &requestName) const
{
    for (const DMARequestInfo &def : m_definitions) {
        if (def.Name == requestName)
            return &def;
    }
    return nullptr;
}

QStringList DmaRequestModel::requestNamesOf(const QString &instance) const
{
    QStringList out;
    for (const DMARequestInfo &def : m_definitions) {
        if (def.IpInstance == instance && def.Name != kMemToMem)
            out << def.Name;
    }
    return out;
}

QStringList DmaRequestModel::channelsOf(const QString &requestName) const
{
    const DMARequestInfo *def = definition(requestName);
    return def ? channelsOfDefinition(*def) : QStringList();
}

void DmaRequestModel::setConfigured(const QSet<QString> &instances)
{
    m_configured = instances;
}

bool DmaRequestModel::instanceConfigured(const DMARequestInfo &def) const
{
    if (withoutInstance(def))
        return true;
    if (m_configured.contains(def.IpInstance))
        return true;
    // "I2SF" and "EDMA" requests name a family of instances.
    if (def.IpInstance.contains(QLatin1String("I2SF")) ||
        def.IpInstance.contains(QLatin1String("EDMA"))) {
        for (const QString &instance : m_configured) {
            if (instance.contains(def.IpInstance))
                return true;
        }
    }
    return false;
}

QStringList DmaRequestModel::releaseUnconfigured()
{
    QStringList removed;
    for (int i = m_requests.size() - 1; i >= 0; --i) {
        const DMARequestInfo *def = definition(m_requests.at(i).name);
        if (def && instanceConfigured(*def))
            continue;
        removed.prepend(m_requests.at(i).name);
        m_requests.removeAt(i);
    }
    if (!removed.isEmpty())
        emit changed();
    return removed;
}

bool DmaRequestModel::inScope(const DMARequestInfo &def, const QString &instance,
                              const QString &tab) const
{
    if (!instance.isEmpty() && def.IpInstance != instance)
        return false;
    if (tab.isEmpty())
        return true;
    if (tab == kMemToMemTab)
        return def.Name == kMemToMem;
    if (def.Name == kMemToMem)
        return false;
    const QStringList channels = channelsOfDefinition(def);
    return std::any_of(channels.cbegin(), channels.cend(),
                       [&tab](const QString &c) { return controllerOf(c) == tab; });
}

bool DmaRequestModel::isTaken(const QString &requestName) const
{
    if (requestName == kMemToMem)
        return false;
    return std::any_of(m_requests.cbegin(), m_requests.cend(),
                       [&requestName](const DMARequest &r) { return r.name == requestName; });
}

int DmaRequestModel::holderOf(const QString &channel) const
{
    for (int i = 0; i < m_requests.size(); ++i) {
        if (m_requests.at(i).channel == channel)
            return i;
    }
    return -1;
}

QString DmaRequestModel::firstFreeChannel(const DMARequestInfo &def) const
{
    for (const QString &channel : channelsOfDefinition(def)) {
        if (holderOf(channel) < 0)
            return channel;
    }
    return QString();
}

QStringList DmaRequestModel::freeRequests(const QString &instance, const QString &tab) const
{
    QStringList out;
    for (const DMARequestInfo &def : m_definitions) {
        if (!inScope(def, instance, tab) || !instanceConfigured(def) || isTaken(def.Name) ||
            firstFreeChannel(def).isEmpty())
            continue;
        const QString partner = CouplingRules::dmaPartner(m_family, def.Name);
        if (!partner.isEmpty() && isTaken(partner))
            continue;
        if (!out.contains(def.Name))
            out << def.Name;
    }
    return out;
}

bool DmaRequestModel::hasRequests(const QString &instance, const QString &tab) const
{
    return std::any_of(m_definitions.cbegin(), m_definitions.cend(),
                       [&](const DMARequestInfo &def) {
                           return inScope(def, instance, tab) && instanceConfigured(def);
                       });
}

QList<RefParameter> DmaRequestModel::parametersOf(const DMARequestInfo &def) const
{
    QList<RefParameter> list;
    for (const DMARequestParameter &dp : def.Parameters) {
        RefParameter p = GetRefParameter(def.IpInstance, dp.Name, m_tree);
        if (p.Name.isEmpty()) {
            // A fact of the request (its peripheral, its register block), not a setting.
            p.Name = dp.Name;
            p.Comment = p.CommentEN = dp.Comment;
            p.Type = QStringLiteral("string");
            p.Visible = false;
            p.Enable = false;
        }
        if (!dp.PossibleValues.isEmpty()) {
            QList<RefParamValue> values;
            for (const QString &v : dp.PossibleValues) {
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
        }
        p.DefaultValue = dp.DefaultValue;
        p.Value = dp.DefaultValue;
        list << p;
    }
    return list;
}

DmaRequestModel::AddResult DmaRequestModel::addRequest(const QString &requestName,
                                                       const QString &channel)
{
    AddResult result;
    const DMARequestInfo *def = definition(requestName);
    if (!def) {
        result.error = AddError::UnknownRequest;
        return result;
    }
    if (!instanceConfigured(*def)) {
        result.error = AddError::NotConfigured;
        return result;
    }
    if (isTaken(requestName)) {
        result.error = AddError::NoFreeRequest;
        return result;
    }
    const QString partner = CouplingRules::dmaPartner(m_family, requestName);
    if (!partner.isEmpty() && isTaken(partner)) {
        result.error = AddError::PartnerUsed;
        result.partner = partner;
        return result;
    }
    QString chosen = channel;
    if (chosen.isEmpty())
        chosen = firstFreeChannel(*def);
    if (chosen.isEmpty() || !channelsOfDefinition(*def).contains(chosen) ||
        holderOf(chosen) >= 0) {
        result.error = AddError::NoFreeChannel;
        return result;
    }
    DMARequest request;
    request.name = requestName;
    request.ipInstance = def->IpInstance;
    request.parameters = parametersOf(*def);
    request.channel = chosen;
    request.controller = controllerOf(chosen);
    request.state = 2;
    for (RefParameter &p : request.parameters) {
        if (p.Name == kInstance)
            p.Value = chosen;
    }
    m_requests << request;
    result.index = m_requests.size() - 1;
    emit changed();
    return result;
}

bool DmaRequestModel::removeRequest(int index)
{
    if (index < 0 || index >= m_requests.size())
        return false;
    m_requests.removeAt(index);
    emit changed();
    return true;
}

int DmaRequestModel::removeRequestsOf(const QString &instance)
{
    int removed = 0;
    for (int i = m_requests.size() - 1; i >= 0; --i) {
        if (m_requests.at(i).ipInstance == instance) {
            m_requests.removeAt(i);
            ++removed;
        }
    }
    if (removed > 0)
        emit changed();
    return removed;
}

QStringList DmaRequestModel::freeChannels(int index) const
{
    if (index < 0 || index >= m_requests.size())
        return {};
    QStringList out;
    for (const QString &channel : channelsOf(m_requests.at(index).name)) {
        const int holder = holderOf(channel);
        if (holder < 0 || holder == index)
            out << channel;
    }
    return out;
}

bool DmaRequestModel::setChannel(int index, const QString &channel)
{
    if (!freeChannels(index).contains(channel))
        return false;
    DMARequest &request = m_requests[index];
    if (request.channel == channel)
        return true;
    request.channel = channel;
    request.controller = controllerOf(channel);
    for (RefParameter &p : request.parameters) {
        if (p.Name == kInstance)
            p.Value = channel;
    }
    emit changed();
    return true;
}

bool DmaRequestModel::setParameter(int index, const QString &parameterName,
                                   const QString &value)
{
    if (index < 0 || index >= m_requests.size())
        return false;
    if (parameterName == kInstance)
        return setChannel(index, value);
    for (RefParameter &p : m_requests[index].parameters) {
        if (p.Name != parameterName)
            continue;
        const bool allowed =
            p.PossibleValues.isEmpty() ||
            std::any_of(p.PossibleValues.cbegin(), p.PossibleValues.cend(),
                        [&value](const RefParamValue &pv) { return pv.Value == value; });
        if (!allowed)
            return false;
        if (p.Value != value) {
            p.Value = value;
            emit changed();
        }
        return true;
    }
    return false;
}

QList<int> DmaRequestModel::requestsOfInstance(const QString &instance) const
{
    QList<int> out;
    for (int i = 0; i < m_requests.size(); ++i) {
        if (m_requests.at(i).ipInstance == instance)
            out << i;
    }
    return out;
}

QList<int> DmaRequestModel::requestsOfTab(const QString &tab) const
{
    QList<int> out;
    for (int i = 0; i < m_requests.size(); ++i) {
        const DMARequest &r = m_requests.at(i);
        if (tab == kMemToMemTab ? r.isMemToMem() : (!r.isMemToMem() && r.controller == tab))
            out << i;
    }
    return out;
}

QMap<QString, QStringList> DmaRequestModel::channelsByInstance() const
{
    QMap<QString, QStringList> out;
    for (const DMARequest &r : m_requests)
        out[r.ipInstance] << r.channel;
    return out;
}

void DmaRequestModel::reset()
{
    if (m_requests.isEmpty())
        return;
    m_requests.clear();
    emit changed();
}
