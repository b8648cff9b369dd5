#pragma once

#include "database/records.h"

#include <QList>
#include <QString>
#include <QStringList>

// Readers of a peripheral file: the file is read once into an IPNode tree, and the records
// are taken from that tree. Bad input gives empty results, never a message.

// Reads the peripheral file at `path`. A file that can't be read, doesn't parse or whose
// root isn't `IP` gives an empty IPNode.
IPNode ReadIPFile(const QString &path);

// The file of a PeripheralsList row; empty when the row has no Version (no file).
QString PeripheralFilePath(const QString &series, const PeripheralListItem &row);

// The file of the GPIO, NVIC, DMA or EDMA block, looked up by InstanceName in `rows`, the
// instance name standing for the file stem; a block not in the list gets an empty version.
QString BlockPeripheralFilePath(const QString &series, const QList<PeripheralListItem> &rows,
                                const QString &instanceName);

// The DMA panel's secondary file, by the same rule from the series' "device/Peripherals".
QString DMASecondaryFilePath(const QString &series, const QList<PeripheralListItem> &rows,
                             const QString &instanceName);

// The modes of ModeLogicOperator, with $IpInstance and $Index substituted for `instanceName`.
QList<ModeOption> GetIPModes(const QString &instanceName, const IPNode &root);

// The RefSignal list, in file order, enabled.
QList<ModeSignal> GetIPRefSignals(const QString &instanceName, const IPNode &root);

// The first RefMode named `name`; guarded by a process-wide mutex. All empty when none.
RefMode GetRefMode(const QString &name, const IPNode &root);

// The first RefMode with both Name and BaseMode equal to the arguments.
RefMode GetRefModeByBase(const QString &name, const QString &baseMode, const IPNode &root);

// The first RefMode with Abstract true.
RefMode GetAbstractRefMode(const IPNode &root);

// Every RefMode of the file in order.
QList<RefMode> GetAllRefModes(const IPNode &root);

// The first RefParameter named `paramName`; a record with an empty Name when none.
RefParameter GetRefParameter(const QString &instanceName, const QString &paramName,
                             const IPNode &root);

// Every RefParameter named `paramName`, in order; "Instance" takes the instance name as its
// DefaultValue and Value.
QList<RefParameter> GetRefParameters(const QString &instanceName, const QString &paramName,
                                     const IPNode &root);

// Every RefParameter of the file in order, with the same "Instance" rule.
QList<RefParameter> GetAllRefParameters(const QString &instanceName, const IPNode &root);

// The GPIO_Pin rows of the GPIO file.
QList<GPIOPinRecord> GetGPIOPinRecords(const IPNode &root);

// The pattern that an IRQn value must match to give an interrupt.
extern const char *const kIRQnPattern;

// The interrupts of the NVIC file's IRQn table; values that don't match are skipped.
QList<NVICInterrupt> GetNVICInterrupts(const IPNode &root);

// The DMA requests of a DMA or EDMA file.
QList<DMARequestInfo> GetDMARequests(const IPNode &root);

// The most names that one signal range may stand for.
constexpr int kMaxSignalRange = 256;

// The short names that a level-4 signal attribute stands for: a "--" range as CH1--CH4, or
// the text itself. A range of more than kMaxSignalRange names, or with a bound too large for
// a number, stands for the text itself.
QStringList ExpandSignalRange(const QString &nameAttribute);

// The full signal name of a short name for an instance ("TX" of "USART1" is "USART1_TX").
QString FullSignalName(const QString &instanceName, const QString &shortName);
