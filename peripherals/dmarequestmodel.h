#pragma once

#include "database/records.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>

// One configured DMA request: which peripheral asks, on which channel, with its parameters.
struct DMARequest
{
    QString name;       // the request, as "USART1_TX"; "MEMTOMEM" may stand several times
    QString ipInstance; // the peripheral of the request; "MEMTOMEM" for memory to memory
    QString channel;    // as "DMA1_Channel2", also the value of the parameter "Instance"
    QString controller; // "EDMA", "DMA2" or "DMA1", from the channel
    int state = 0;      // 2 once the request has a channel
    QList<RefParameter> parameters;

    bool isMemToMem() const { return name == QLatin1String("MEMTOMEM"); }
    // The value of a parameter ("Direction", "Priority", ...); empty when there is none.
    QString value(const QString &parameterName) const;
    const RefParameter *parameter(const QString &parameterName) const;
};
Q_DECLARE_METATYPE(DMARequest *)

// The requests of one DMA or EDMA file and the channels they hold. One model exists per
// controller file of a design; its chip-wide panel and the DMA tabs of the peripherals show
// it. Widget-free; the design file and the code generator use it directly.
class DmaRequestModel : public QObject
{
    Q_OBJECT
public:
    enum class AddError {
        None,
        UnknownRequest, // the file has no such request
        NotConfigured,  // its peripheral's mode is off
        NoFreeRequest,  // already configured
        NoFreeChannel,  // every channel of the request is held by another request
        PartnerUsed,    // the request that shares its channel is configured
    };
    struct AddResult
    {
        AddError error = AddError::None;
        int index = -1;  // of the new request
        QString partner; // with PartnerUsed
        bool ok() const { return error == AddError::None; }
    };

    // `name` is the file's block name, "DMA" or "EDMA"; `family` the series.
    DmaRequestModel(const QString &name, const IPNode &tree, const QString &family,
                    QObject *parent = nullptr);

    QString name() const { return m_name; }
    bool isEdma() const { return m_name == QLatin1String("EDMA"); }
    const QList<DMARequestInfo> &definitions() const { return m_definitions; }
    // Controllers named by the channels of the file, in order of appearance.
    QStringList controllers() const { return m_controllers; }
    // Tab names of the chip-wide panel: one per controller, and "MemToMem" when the file has
    // memory-to-memory transfers.
    QStringList tabNames() const;
    // Names of the requests of a peripheral in file order.
    QStringList requestNamesOf(const QString &instance) const;
    // The channels a request may use, its default first.
    QStringList channelsOf(const QString &requestName) const;

    // The peripherals whose mode is on; requests of others can't be added.
    void setConfigured(const QSet<QString> &instances);
    const QSet<QString> &configured() const { return m_configured; }
    // Removes the requests whose peripheral is no longer configured, freeing their
    // channels; returns their names.
    QStringList releaseUnconfigured();

    // Request names that could be added now, of one peripheral (`instance`), of one tab of
    // the chip-wide panel (`tab`), or all when both are empty.
    QStringList freeRequests(const QString &instance = QString(),
                             const QString &tab = QString()) const;
    // Is any request of this scope in the file at all?
    bool hasRequests(const QString &instance = QString(), const QString &tab = QString()) const;
    // Configures a request on `channel`, or on the first free channel of its list when the
    // channel is empty. A channel held by another request is refused.
    AddResult addRequest(const QString &requestName, const QString &channel = QString());
    bool removeRequest(int index);
    // Removes every request of a peripheral; returns how many went.
    int removeRequestsOf(const QString &instance);
    // Channels a configured request may move to: its own and the free ones of its list.
    QStringList freeChannels(int index) const;
    bool setChannel(int index, const QString &channel);
    // Sets a parameter to a value of its list (any text for a parameter without a list).
    bool setParameter(int index, const QString &parameterName, const QString &value);

    const QList<DMARequest> &requests() const { return m_requests; }
    QList<int> requestsOfInstance(const QString &instance) const;
    QList<int> requestsOfTab(const QString &tab) const;
    // The channels held, by the request's peripheral.
    QMap<QString, QStringList> channelsByInstance() const;
    // Which request holds a channel, or -1.
    int holderOf(const QString &channel) const;

    // Every request removed.
    void reset();

signals:
    void changed();

private:
    const DMARequestInfo *definition(const QString &requestName) const;
    bool instanceConfigured(const DMARequestInfo &def) const;
    bool inScope(const DMARequestInfo &def, const QString &instance, const QString &tab) const;
    bool isTaken(const QString &requestName) const;
    QString firstFreeChannel(const DMARequestInfo &def) const;
    QList<RefParameter> parametersOf(const DMARequestInfo &def) const;
    static QString controllerOf(const QString &channel);

    QString m_name;
    QString m_family;
    IPNode m_tree;
    QList<DMARequestInfo> m_definitions;
    QStringList m_controllers;
    QSet<QString> m_configured;
    QList<DMARequest> m_requests;
};
