#pragma once

#include "clock/clocktreestate.h"
#include "database/records.h"

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

// One peripheral instance of the device as the generator sees it.
struct GeneratorPeripheral
{
    QString instanceName; // "USART1"
    QString typeName;     // the peripheral file stem, "USART", "TMR6_7"
    bool configured = false;
    IPSTATUS status = IPSTATUS_INACTIVE;
    QList<RefParameter> parameters;
    QStringList semaphores; // raised by the instance's modes, "USART1_ASYNC"
    QList<QPair<QString, QString>> modeSelections; // (mode, chosen item or "TRUE")
};

// A GPIO setting of a signal ("GPIO mode", "GPIO_MODE_MUX").
using GpioSetting = QPair<QString, QString>;

// One lit signal on a pin.
struct GeneratorPin
{
    QString pinName;     // "PA9"
    QString signal;      // "USART1_TX", "GPIO_Output", "EXINT0"
    QString userLabel;   // as the user typed it
    QString labelDefine; // the stem of the _PIN and _GPIO_PORT defines (unique)
    QList<GpioSetting> gpioSettings;

    // The value of a GPIO setting by name; empty when the signal has none.
    QString setting(const QString &name) const;
};

// One row of the interrupt table.
struct GeneratorInterrupt
{
    QString irqName; // "USART1_IRQn"
    QString handler; // "USART1_IRQHandler"
    QStringList instances; // the instances that can use it, from the NVIC table
    bool listed = false;  // the user can switch it on and off (a row of the NVIC panel)
    bool enabled = false;
    int preemption = 0;
    int sub = 0;
    int defaultPreemption = 0;
    int defaultSub = 0;

    // The interrupt's section name: the IRQ name without its final "n" ("USART1_IRQ").
    QString sectionName() const;
    bool atDefaultPriority() const
    {
        return preemption == defaultPreemption && sub == defaultSub;
    }
};

// The firmware macros of one pin.
struct PinMacroRecord
{
    QString pinKey;                        // "PA9"
    QList<QPair<QString, QString>> muxes;  // (signal, "GPIO_MUX_n")
    QString pinsMacro;                     // "GPIO_PINS_9"
    QString pinsSourceMacro;               // "GPIO_PINS_SOURCE9"
    QString portMacro;                     // "GPIOA"
    QString scfgPortSourceMacro;           // "SCFG_PORT_SOURCE_GPIOA"
    QString scfgPinsSourceMacro;           // "SCFG_PINS_SOURCE9"
    QString exintLineMacro;                // "EXINT_LINE_9"

    // The mux macro of a signal on this pin; empty when the pin has no mux for it.
    QString muxOf(const QString &signal) const;
};

// A DMA request placed on a channel.
struct GeneratorDmaRequest
{
    QString name;       // "USART1_TX", "MEMTOMEM"
    QString ipInstance; // "USART1"
    QString handle;     // the register block the address names, "USART1"
    QString channel;    // "DMA1_Channel4"
    QList<RefParameter> parameters;

    QString parameter(const QString &name) const;
};

// The priority grouping of the interrupt controller.
struct NvicPriorityData
{
    QString priorityGroup = QStringLiteral("NVIC_PRIORITY_GROUP_4");
};

// Everything a family generator reads: copies of the design's lists, taken before the run.
struct GeneratorInputs
{
    int familyCode = 0;
    QString series;     // "MQ48T110"
    QString deviceName; // "MQ48T110C8T"
    QList<GeneratorPeripheral> peripherals;
    QList<GeneratorPin> pins;
    QList<GeneratorInterrupt> interrupts;
    QList<PinMacroRecord> pinMacros;
    QList<GeneratorDmaRequest> dmaRequests;
    NvicPriorityData nvic;
    ClockTreeState clock;
    bool keepUserCode = true;

    const GeneratorPeripheral *peripheral(const QString &instance) const;
    bool isConfigured(const QString &instance) const;
    // The macros of a pin by the key rule (the name up to the first blank or "/").
    const PinMacroRecord *pinMacro(const QString &pinName) const;
    const GeneratorInterrupt *interrupt(const QString &sectionName) const;
    // The pin records whose signal belongs to an instance, in list order.
    QList<const GeneratorPin *> signalsOf(const QString &instance) const;
    // The pin record carrying a signal, or nullptr.
    const GeneratorPin *pinOfSignal(const QString &signal) const;
    // The request placed on a channel ("DMA1_Channel2"), or nullptr.
    const GeneratorDmaRequest *dmaRequestOn(const QString &channel) const;

    // Gives every labelled pin its define stem; labels used twice get "_<port><pin>".
    void deduplicateLabels();
};

// The key of a pin name: the text up to the first blank or "/", trimmed.
QString pinKey(const QString &pinName);
// Whether a signal belongs to an instance ("USART1_TX" to "USART1", "EXINT3" to "EXINT").
bool signalBelongsTo(const QString &signal, const QString &instance);
