#pragma once

#include "codegen/generatorinputs.h"

#include <QList>
#include <QString>

// The parts of GeneratorInputs that come straight from the device database: pin macros,
// the interrupt table with its start states, the GPIO defaults of an I/O mode, and a
// design in which nothing is configured yet.
namespace DatabaseInputs {

// One record per GPIO_Pin row of the GPIO file.
QList<PinMacroRecord> pinMacroTable(const QList<GPIOPinRecord> &gpioPins);

// The interrupts of the NVIC table as they start: enabled when the table says so, default
// priorities; the rows the user can switch are the listed ones.
QList<GeneratorInterrupt> interruptTable(const QList<NVICInterrupt> &interrupts);

// The GPIO settings an I/O mode starts with: the first allowed value of each parameter of
// the GPIO file's RefMode of that name.
QList<GpioSetting> defaultGpioSettings(const IPNode &gpioTree, const QString &ioMode);

// The priority group the NVIC file starts with ("NVIC_PRIORITY_GROUP_4" when it has none).
QString defaultPriorityGroup(const IPNode &nvicTree);

// A design of a device with no peripheral configured and no pin used: every peripheral of
// the device file with the parameters of its file at their defaults, the pin macros, the
// interrupt table and a clock state reset to the family's defaults. An unknown device gives
// inputs with the series and family code only.
GeneratorInputs readDesign(const QString &series, const QString &device);

} // namespace DatabaseInputs
