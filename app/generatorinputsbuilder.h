#pragma once

#include "codegen/generatorinputs.h"

class DmaRequestModel;
class FormConfiguration;
class GpioSettingsModel;
class IP_ModeAndConfiguration;
class NvicModel;

// Collects the inputs of the code generator from an open design: the device, the mode panels
// with their parameters and status, the lit pins with the GPIO settings and labels of the
// GPIO tables, the interrupts as the NVIC table has them, the DMA requests placed on their
// channels and the clock page's state.
class GeneratorInputsBuilder
{
public:
    // Everything the generator reads, taken as copies from the form.
    static GeneratorInputs fromForm(const FormConfiguration &form);

    // One peripheral as its mode panel stands; list parameters take the value their row
    // shows (the first allowed one when the stored value is no longer allowed).
    static GeneratorPeripheral peripheralOf(const IP_ModeAndConfiguration &panel,
                                            const QString &typeName, IPSTATUS status);
    // The lit signals of the active pins, in pin order. Each takes the settings and the label
    // of its row in the GPIO tables; without a model (or a row) the GPIO defaults of its I/O
    // mode and the label the pin carries.
    static QList<GeneratorPin> litPins(const DevicePinInfo *info, const IPNode &gpioTree,
                                       const GpioSettingsModel *gpio = nullptr);
    // The interrupt table with the enable states and priorities the user set.
    static QList<GeneratorInterrupt> interruptsOf(const NvicModel &nvic);
    // The requests placed on a channel, of every DMA controller of the design.
    static QList<GeneratorDmaRequest> dmaRequestsOf(const QList<DmaRequestModel *> &models);
};
