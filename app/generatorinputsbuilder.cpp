#include "app/generatorinputsbuilder.h"

#include "app/formconfiguration.h"
#include "clock/mq48pllconfig.h"
#include "codegen/databaseinputs.h"
#include "codegen/familytable.h"
#include "peripherals/dmarequestmodel.h"
#include "peripherals/gpiosettingsmodel.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/nvicmodel.h"
#include "peripherals/paramsettingwidget.h"
#include "peripherals/paramvalue.h"

#include <algorithm>

GeneratorPeripheral GeneratorInputsBuilder::peripheralOf(const IP_ModeAndConfiguration &panel,
                                                         const QString &typeName,
                                                         IPSTATUS status)
{
    GeneratorPeripheral p;
    p.instanceName = panel.instanceName();
    p.typeName = typeName;
    p.status = status;
    p.configured = (status & IPSTATUS_ACTIVE) != 0;
    p.modeSelections = panel.modeSelections();
    if (const ParamSettingWidget *params = panel.paramSettingWidget()) {
        p.semaphores = params->enabledSemaphores;
        const QStringList enabled = params->evaluationList();
        for (RefParameter r : params->parameters) {
            if (r.Type == QLatin1String("list") && !r.PossibleValues.isEmpty()) {
                const ParamListChoice choice = ParamValue::listChoice(r, enabled);
                if (choice.current >= 0)
                    r.Value = choice.value;
            }
            p.parameters << r;
        }
    }
    return p;
}

QList<GeneratorPin> GeneratorInputsBuilder::litPins(const DevicePinInfo *info,
                                                    const IPNode &gpioTree,
                                                    const GpioSettingsModel *gpio)
{
    QList<GeneratorPin> pins;
    if (!info)
        return pins;
    QList<const MCUPinsBaseInfo *> active;
    for (const MCUPinsBaseInfo *pin : info->pins) {
        if (pin->remapOff)
            active << pin;
    }
    std::stable_sort(active.begin(), active.end(),
                     [](const MCUPinsBaseInfo *a, const MCUPinsBaseInfo *b) {
                         return a->PinNum < b->PinNum;
                     });
    for (const MCUPinsBaseInfo *pin : active) {
        for (const MCUPinSignal *s : pin->signalList) {
            if (s->status <= SIGNAL_FREE)
                continue;
            GeneratorPin g;
            g.pinName = pin->PinName.trimmed();
            g.signal = s->Func;
            g.userLabel = s->userLabel;
            const GpioSettingRow *row = gpio ? gpio->row(s->Func, g.pinName) : nullptr;
            if (row) {
                // The table is where the user edits labels and settings; the pin follows it.
                g.userLabel = row->userLabel;
                for (const RefParameter &p : row->parameters)
                    g.gpioSettings << GpioSetting(p.Name, p.Value);
            } else {
                g.gpioSettings = DatabaseInputs::defaultGpioSettings(gpioTree, s->IOMode);
            }
            pins << g;
        }
    }
    return pins;
}

QList<GeneratorInterrupt> GeneratorInputsBuilder::interruptsOf(const NvicModel &nvic)
{
    QList<NVICInterrupt> irqs;
    irqs.reserve(nvic.rows().size());
    for (const NvicRow &row : nvic.rows())
        irqs << row.irq;
    return DatabaseInputs::interruptTable(irqs);
}

QList<GeneratorDmaRequest> GeneratorInputsBuilder::dmaRequestsOf(
    const QList<DmaRequestModel *> &models)
{
    QList<GeneratorDmaRequest> out;
    for (const DmaRequestModel *model : models) {
        if (!model)
            continue;
        for (const DMARequest &r : model->requests()) {
            if (r.channel.isEmpty())
                continue;
            GeneratorDmaRequest g;
            g.name = r.name;
            g.ipInstance = r.ipInstance;
            g.handle = r.value(QStringLiteral("DMA_Handle"));
            g.channel = r.channel;
            g.parameters = r.parameters;
            out << g;
        }
    }
    return out;
}

GeneratorInputs GeneratorInputsBuilder::fromForm(const FormConfiguration &form)
{
    const DesignData &design = form.design();
    GeneratorInputs in;
    in.series = design.series;
    in.deviceName = design.mcuName;
    in.familyCode = familyCodeOfSeries(design.series);
    const QMap<QString, IPSTATUS> status = form.panelStatus();
    for (const IP_ModeAndConfiguration *panel : form.modePanels()) {
        QString type;
        for (const PeripheralListItem &row : design.peripheralList) {
            if (row.InstanceName == panel->instanceName())
                type = row.Name;
        }
        in.peripherals << peripheralOf(*panel, type,
                                       status.value(panel->instanceName(), panel->status()));
    }
    in.pins = litPins(design.devicePinInfo, design.gpioTree, form.gpioModel());
    QList<GPIOPinRecord> gpioRows;
    for (const GPIOPinRecord *row : design.gpioPins)
        gpioRows << *row;
    in.pinMacros = DatabaseInputs::pinMacroTable(gpioRows);
    if (const NvicModel *nvic = form.nvicModel()) {
        in.interrupts = interruptsOf(*nvic);
        in.nvic.priorityGroup = nvic->priorityGroup();
    } else {
        QList<NVICInterrupt> irqs;
        for (const NVICInterrupt *irq : design.nvicInterrupts)
            irqs << *irq;
        in.interrupts = DatabaseInputs::interruptTable(irqs);
    }
    if (in.nvic.priorityGroup.isEmpty() || !form.nvicModel())
        in.nvic.priorityGroup = DatabaseInputs::defaultPriorityGroup(design.nvicTree);
    in.dmaRequests = dmaRequestsOf(form.dmaModels());
    const ClockTreeState *clock = form.clockPage() ? form.clockPage()->clockState() : nullptr;
    in.clock = clock ? *clock : ClockTreeState(in.familyCode);
    in.keepUserCode = true;
    return in;
}
