#include "codegen/databaseinputs.h"

#include "codegen/familytable.h"
#include "database/devicereader.h"
#include "database/paths.h"
#include "database/peripheralreader.h"

namespace DatabaseInputs {

QList<PinMacroRecord> pinMacroTable(const QList<GPIOPinRecord> &gpioPins)
{
    QList<PinMacroRecord> table;
    for (const GPIOPinRecord &row : gpioPins) {
        PinMacroRecord r;
        r.pinKey = row.Name;
        r.muxes = row.pinSignals;
        r.pinsMacro = row.GPIO_Pin;
        r.pinsSourceMacro = row.GPIO_PinSource;
        r.portMacro = row.GPIO_x;
        r.scfgPortSourceMacro = row.SCFG_GPIO_x;
        r.scfgPinsSourceMacro = row.SCFG_PINS_SOURCE_x;
        r.exintLineMacro = row.EXINT_LINE_x;
        table << r;
    }
    return table;
}

QList<GeneratorInterrupt> interruptTable(const QList<NVICInterrupt> &interrupts)
{
    QList<GeneratorInterrupt> table;
    for (const NVICInterrupt &irq : interrupts) {
        GeneratorInterrupt g;
        g.irqName = irq.IRQName;
        g.handler = irq.Handler;
        g.instances = irq.conditions;
        g.instances.removeAll(QString());
        g.listed = irq.flag2;
        g.enabled = irq.flag4;
        g.preemption = irq.preemption;
        g.sub = irq.sub;
        g.defaultPreemption = irq.defaultPreemption;
        g.defaultSub = irq.defaultSub;
        table << g;
    }
    return table;
}

QList<GpioSetting> defaultGpioSettings(const IPNode &gpioTree, const QString &ioMode)
{
    QList<GpioSetting> settings;
    if (ioMode.isEmpty())
        return settings;
    const RefMode mode = GetRefMode(ioMode, gpioTree);
    for (const RefModeParameter &p : mode.Parameters) {
        if (!p.PossibleValues.isEmpty())
            settings << GpioSetting(p.Name, p.PossibleValues.first());
    }
    return settings;
}

QString defaultPriorityGroup(const IPNode &nvicTree)
{
    const RefParameter group =
        GetRefParameter(QStringLiteral("NVIC"), QStringLiteral("PriorityGroup"), nvicTree);
    return group.Value.isEmpty() ? QStringLiteral("NVIC_PRIORITY_GROUP_4") : group.Value;
}

GeneratorInputs readDesign(const QString &series, const QString &device)
{
    GeneratorInputs in;
    in.series = series;
    in.deviceName = device;
    in.familyCode = familyCodeOfSeries(series);
    in.clock = ClockTreeState(in.familyCode);
    const QString devicePath = deviceFilePath(series, device);
    const QList<PeripheralListItem> rows = GetPeripheralsList(devicePath);
    const IPNode gpioTree =
        ReadIPFile(BlockPeripheralFilePath(series, rows, QStringLiteral("GPIO")));
    const IPNode nvicTree =
        ReadIPFile(BlockPeripheralFilePath(series, rows, QStringLiteral("NVIC")));
    in.pinMacros = pinMacroTable(GetGPIOPinRecords(gpioTree));
    in.interrupts = interruptTable(GetNVICInterrupts(nvicTree));
    in.nvic.priorityGroup = defaultPriorityGroup(nvicTree);
    for (const PeripheralListItem &row : rows) {
        const QString instance = row.InstanceName;
        if (instance == QLatin1String("GPIO") || instance == QLatin1String("NVIC") ||
            instance == QLatin1String("DMA") || instance == QLatin1String("EDMA"))
            continue;
        GeneratorPeripheral p;
        p.instanceName = instance;
        p.typeName = row.Name;
        const QString file = PeripheralFilePath(series, row);
        if (!file.isEmpty())
            p.parameters = GetAllRefParameters(instance, ReadIPFile(file));
        in.peripherals << p;
    }
    return in;
}

} // namespace DatabaseInputs
