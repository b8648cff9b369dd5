#pragma once

#include "database/records.h"
#include "report/reportinputs.h"

#include <QList>
#include <QString>
#include <QStringList>

struct DMARequest;
struct GpioSettingRow;
struct NvicRow;

// Turns the design's records into the report's rows: pins, parameters, DMA requests, GPIO
// settings and interrupts, with their values in the words the panels show.
namespace ReportRows {

// One row per package pin in pin order (the pins a package variant leaves out are skipped).
QList<ReportPinRow> pinRows(const DevicePinInfo *info);

// A parameter as its row shows it: its name, its value (a list's entry text, "0x" and the
// unit of numbers) and whether it differs from `original`, the database's record of it
// (nullptr for a parameter the database lacks). `enabled` are the semaphores and values a
// list's entries are checked against.
ReportParameterRow parameterRow(const RefParameter &parameter, const RefParameter *original,
                                const QStringList &enabled);

// The settings listed for a configured request: its modes, increments and widths, the
// synchronisation and generator settings when synchronisation is on, and on EDMA the FIFO,
// burst, 2D, double memory and linked table settings.
ReportDmaRequest dmaRequest(const DMARequest &request, bool edma);

// The GPIO rows: the peripherals' pins first, then the plain GPIOs, each in pin order.
QList<ReportGpioRow> gpioRows(const QList<GpioSettingRow> &rows);

// Every interrupt of the table: enabled as "true" or "false", "Unused" when no configured
// peripheral can use it.
QList<ReportNvicRow> nvicRows(const QList<NvicRow> &rows);

// The family whose notes explain the pin table; a pair of series shares one family
// ("MQ48T210_220").
QString noteFamily(const QString &series);
// How many notes a family has; 0 for a series without notes.
int noteCount(const QString &series);
// The notes under the pin table of a series, translated.
QStringList pinNotes(const QString &series);

} // namespace ReportRows
