#pragma once

#include "database/records.h"

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

// The per-family facts of the couplings between peripherals, as plain tables: oscillator
// modes, clock output pins, the ADC pair's DMA semaphores, the USB and I2SF5 clock sources,
// DMA requests that share a channel, and the DMA conditions of single instances.
namespace CouplingRules {

// What a change of a CRM mode tells the clock page.
struct OscillatorFlag
{
    enum Oscillator { None, Hext, Lext };
    Oscillator oscillator = None;
    bool enable = false;
    bool bypass = false;
};
// The flag of the CRM control named `controlName` ("HEXT", "LEXT") at combo index `index`:
// 0 off, 1 bypass, 2 crystal. Other controls give None.
OscillatorFlag oscillatorFlag(const QString &controlName, int index);

// One clock output of a family: the signal whose pin counts and the pin words with their
// values. `output` is 0 for the single output, 1 and 2 for the two outputs of the families
// that have two.
struct ClockOutput
{
    int output = 0;
    QString signalName;
    QList<QPair<QString, int>> pins;
};
QList<ClockOutput> clockOutputs(const QString &family);
// The value of a pin text for one output: 0 for an empty text; `known` false for a word the
// table doesn't have (then nothing is to be sent). A word matches with or without one
// trailing blank.
int clockOutputValue(const ClockOutput &output, const QString &inPin, bool *known);

// The DMA enable rule of the ADC pair on a parameter list handed to `instance`: which
// semaphores are withdrawn and then raised, in that order. `applies` is false where the
// family or instance has no such rule.
struct SemaphoreChange
{
    bool applies = false;
    QStringList withdrawn;
    QStringList raised;
};
SemaphoreChange adcDmaRule(const QString &family, const QString &instance,
                           const QList<RefParameter> &parameters);

// The USB clock source text that raises its semaphore on the check boxes.
bool usbSourceRaisesSemaphore(const QString &sourceText);
// Families whose I2SF5 follows the clock page's I2SF5 source, and the source that ticks its
// "External_Clock_Input" box.
bool hasI2SF5ClockSource(const QString &family);
bool i2sf5ExternalClock(const QString &sourceText);

// The request that shares a DMA channel with `request` on a family, or "" for none.
QString dmaPartner(const QString &family, const QString &request);

// The special DMA condition of an instance on a family: the DMA table and the request whose
// state decides what the instance shows for DMA. Empty names where there is none.
struct DmaCondition
{
    QString table;
    QString request;
};
DmaCondition dmaCondition(const QString &family, const QString &instance);

} // namespace CouplingRules
