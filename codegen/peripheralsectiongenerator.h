#pragma once

#include "codegen/generatorinputs.h"
#include "codegen/templateengine.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

struct GeneratorFamily;

// Fills the "<instance> function" block of one peripheral instance in the config file: its
// pins, then the rewrites and gates of its type. Made for one instance and one file, asked
// for one section and then deleted; one subclass per peripheral type, shared by all families.
class PeripheralSectionGenerator
{
public:
    // The lines of a pin block, in the order of the pin set-up.
    enum PinStep {
        Drive = 1,    // gpio_drive_strength from "Driver capability"
        OutType = 2,  // gpio_out_type from "GPIO type"
        Mode = 4,     // gpio_mode from "GPIO mode"
        Pins = 8,     // gpio_pins
        Pull = 16,    // gpio_pull from "Pull type"
        Init = 32,    // gpio_init with the port (required)
        Mux = 64,     // gpio_pin_mux_config in the multiplexer mode (required then)
        AllSteps = 127
    };

    PeripheralSectionGenerator() = default;
    virtual ~PeripheralSectionGenerator() = default;
    PeripheralSectionGenerator(const PeripheralSectionGenerator &) = delete;
    PeripheralSectionGenerator &operator=(const PeripheralSectionGenerator &) = delete;

    // Fills the fields for an instance of the design.
    void setup(const GeneratorFamily &family, const GeneratorInputs &inputs,
               const GeneratorPeripheral &peripheral);

    // The config file section: the block is dropped when the instance is not configured,
    // else filled. False when the block or a required line is missing.
    bool generateSection(QString &text);
    // The main file and header: the block is only kept or dropped.
    bool gateSection(QString &text) const;

    QString blockTag() const { return blockStem + QLatin1String(" function"); }

    int familyCode = 0;
    QString instanceName;
    QString blockStem; // "usart1", "cmp"
    bool keep = false;
    QList<RefParameter> parameters;
    QStringList semaphores;
    QList<QPair<QString, QString>> modeSelections;
    const GeneratorInputs *inputs = nullptr;
    const GeneratorFamily *family = nullptr;

protected:
    // The short signal names of the type, in the order their pin blocks are filled.
    virtual QStringList signalTails() const { return {}; }
    // The tag stem of a signal's pin block ("tx" for "TX").
    virtual QString pinTag(const QString &tail) const { return tail.toLower(); }
    // The type's own rewrites and gates on the section's body.
    virtual bool fillBody(QString &body) = 0;
    // The declaration blocks at the head of the function and whether each stays; the base
    // gives the pin structure, kept when a signal of the instance is assigned.
    virtual QList<QPair<QString, bool>> declarations() const;
    // The interrupts whose handlers the section's remarks name.
    virtual QList<const GeneratorInterrupt *> ownInterrupts() const;

    // --- lookups ---------------------------------------------------------------------
    bool hasParam(const QString &name) const;
    // The value by name; "0x" in front of hexadecimal values; empty when absent.
    QString param(const QString &name) const;
    bool paramIs(const QString &name, const QString &value) const;
    bool paramTrue(const QString &name) const; // "TRUE"
    bool paramEnabled(const QString &name) const; // "ENABLE"
    bool hasSemaphore(const QString &shortName) const; // "<instance>_<shortName>" raised
    QString modeSelection(const QString &modeName) const;
    bool signalAssigned(const QString &signal) const;
    bool anySignalAssigned() const;
    // DMA requests of this instance (by the request's peripheral).
    QList<const GeneratorDmaRequest *> dmaRequests() const;
    bool hasDmaRequest(const QString &requestName) const;

    // --- text operations on a body -----------------------------------------------------
    // Keeps or drops a block the template must have.
    static bool gate(QString &body, const QString &tag, bool on);
    // Keeps a block the template must have, or drops it when present.
    static bool gateIfWanted(QString &body, const QString &tag, bool on);
    // Pin set-up of one signal: the "<tag> pin" block is dropped when the signal is not
    // assigned, else filled from the pin's macros and GPIO settings.
    bool configureSignalPin(QString &body, const QString &signal, const QString &tag) const;
    // The pin lines of a signal on an already cut out text (used by sections that build
    // their own pin blocks); `steps` selects the lines (PinStep bits).
    bool fillPinLines(QString &text, const GeneratorPin &pin, int steps) const;
    // "fn(FIRST, value);" for every call with two words; false when the call is missing.
    static bool setCall(QString &body, const QString &fn, const QString &value);
    // The interrupt remarks block rebuilt with the handlers of the enabled interrupts.
    bool interruptRemarks(QString &body) const;

private:
    bool declarationGates(QString &body) const;
};

// The section generator of a peripheral type name ("USART", "TMR6_7"); nullptr for a type
// without a section.
std::unique_ptr<PeripheralSectionGenerator> createSectionGenerator(const QString &typeName);

// Rebuilds an "interrupt remarks" block in `text` with the given handler names; drops it
// when `handlers` is empty. False when the block is missing.
bool rebuildInterruptRemarks(QString &text, const QStringList &handlers);

// The pin lines of one signal on a text outside any peripheral section (the GPIO function).
bool writePinLines(const GeneratorFamily &family, const GeneratorInputs &inputs, QString &text,
                   const GeneratorPin &pin, int steps);

// The port and pins macros a pin's code uses: the label defines when the pin has a label.
QString portOf(const GeneratorPin &pin, const PinMacroRecord &macro);
QString pinsOf(const GeneratorPin &pin, const PinMacroRecord &macro);
