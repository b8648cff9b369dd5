#include "t110design.h"

#include "codegen/databaseinputs.h"
#include "common/testsupport.h"
#include "database/devicereader.h"
#include "database/paths.h"
#include "database/peripheralreader.h"

#include <QFileInfo>

namespace {

struct DeviceSignals
{
    QList<QPair<QString, QString>> pinAndMode; // per signal, in pin order
    QStringList names;
};

QString dbFolder()
{
    return QFileInfo(testsupport::sourceDatabase()).path();
}

} // namespace

SourceDatabase::SourceDatabase()
{
    setAppFolderOverride(dbFolder());
}

SourceDatabase::~SourceDatabase()
{
    setAppFolderOverride(QString());
}

T110Design::T110Design(const QString &device) : m_device(device)
{
    SourceDatabase db;
    inputs = DatabaseInputs::readDesign(QStringLiteral("MQ48T110"), device);
}

T110Design &T110Design::configure(const QString &instance, const QStringList &semaphores)
{
    for (GeneratorPeripheral &p : inputs.peripherals) {
        if (p.instanceName == instance) {
            p.configured = true;
            p.status = IPSTATUS_ACTIVE;
            for (const QString &s : semaphores)
                p.semaphores << instance + QLatin1Char('_') + s;
        }
    }
    return *this;
}

T110Design &T110Design::set(const QString &instance, const QString &parameter,
                            const QString &value)
{
    for (GeneratorPeripheral &p : inputs.peripherals) {
        if (p.instanceName != instance)
            continue;
        for (RefParameter &r : p.parameters) {
            if (r.Name == parameter) {
                r.Value = value;
                return *this;
            }
        }
        RefParameter added;
        added.Name = parameter;
        added.Value = value;
        p.parameters << added;
    }
    return *this;
}

QString T110Design::pinOf(const QString &signal) const
{
    SourceDatabase db;
    DevicePinInfo info;
    ReadDevicePinInfo(deviceFilePath(QStringLiteral("MQ48T110"), m_device), &info);
    for (const MCUPinsBaseInfo *pin : info.pins) {
        if (!pin->remapOff)
            continue;
        for (const MCUPinSignal *s : pin->signalList) {
            if (s->Func == signal)
                return pin->PinName.trimmed();
        }
    }
    return QString();
}

QString T110Design::ioModeOf(const QString &signal) const
{
    SourceDatabase db;
    DevicePinInfo info;
    ReadDevicePinInfo(deviceFilePath(QStringLiteral("MQ48T110"), m_device), &info);
    for (const MCUPinsBaseInfo *pin : info.pins) {
        for (const MCUPinSignal *s : pin->signalList) {
            if (s->Func == signal)
                return s->IOMode;
        }
    }
    return QString();
}

QStringList T110Design::deviceSignals() const
{
    SourceDatabase db;
    DevicePinInfo info;
    ReadDevicePinInfo(deviceFilePath(QStringLiteral("MQ48T110"), m_device), &info);
    QStringList names;
    for (const MCUPinsBaseInfo *pin : info.pins) {
        if (!pin->remapOff)
            continue;
        for (const MCUPinSignal *s : pin->signalList) {
            if (!names.contains(s->Func))
                names << s->Func;
        }
    }
    return names;
}

T110Design &T110Design::place(const QString &signal, const QString &pin, const QString &label)
{
    SourceDatabase db;
    GeneratorPin p;
    p.pinName = pin.isEmpty() ? pinOf(signal) : pin;
    p.signal = signal;
    p.userLabel = label;
    const QList<PeripheralListItem> rows =
        GetPeripheralsList(deviceFilePath(QStringLiteral("MQ48T110"), m_device));
    const IPNode gpioTree = ReadIPFile(
        BlockPeripheralFilePath(QStringLiteral("MQ48T110"), rows, QStringLiteral("GPIO")));
    p.gpioSettings = DatabaseInputs::defaultGpioSettings(gpioTree, ioModeOf(signal));
    inputs.pins << p;
    return *this;
}

T110Design &T110Design::dma(const QString &request, const QString &channel)
{
    SourceDatabase db;
    const QList<PeripheralListItem> rows =
        GetPeripheralsList(deviceFilePath(QStringLiteral("MQ48T110"), m_device));
    const IPNode dmaTree = ReadIPFile(
        BlockPeripheralFilePath(QStringLiteral("MQ48T110"), rows, QStringLiteral("DMA")));
    for (const DMARequestInfo &info : GetDMARequests(dmaTree)) {
        if (info.Name != request)
            continue;
        GeneratorDmaRequest r;
        r.name = request;
        r.ipInstance = info.IpInstance;
        r.channel = channel;
        for (const DMARequestParameter &dp : info.Parameters) {
            if (dp.Name == QLatin1String("DMA_Handle"))
                r.handle = dp.DefaultValue;
            RefParameter p;
            p.Name = dp.Name;
            p.Value = dp.DefaultValue;
            r.parameters << p;
        }
        inputs.dmaRequests << r;
    }
    return *this;
}

T110Design &T110Design::irq(const QString &sectionName, int preemption, int sub)
{
    for (GeneratorInterrupt &i : inputs.interrupts) {
        if (i.sectionName() == sectionName) {
            i.enabled = true;
            i.preemption = preemption;
            i.sub = sub;
        }
    }
    return *this;
}
