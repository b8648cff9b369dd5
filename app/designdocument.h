#pragma once

#include "project/projectinfo.h"

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

// The content of a design file (.MQPF) as plain data: what the user changed from the
// database's defaults, block by block. Reading and writing the XML lives here and nowhere
// else; the panels fill and apply these blocks.

using DesignValues = QList<QPair<QString, QString>>;

// A peripheral's block: the mode rows that are set and the parameters that differ.
struct DesignPeripheralBlock
{
    QString instance;
    DesignValues modes;      // ModeSub name/value
    DesignValues parameters; // ParametersSub name/value
};

// One configured request of a DMA controller.
struct DesignDmaRequest
{
    QString element; // the request's name; MEMTOMEM carries its row number as a suffix
    DesignValues parameters;
};

// A DMA controller's block.
struct DesignDmaBlock
{
    QString controller; // "DMA1", "DMA2", "EDMA"
    QList<DesignDmaRequest> requests;
};

// The interrupt controller's block.
struct DesignNvicBlock
{
    bool present = false;
    QString priorityGroup; // empty when the default group is kept
    int showType = 2;
    DesignValues interrupts; // handler name, "enable;preemption;sub" or "preemption;sub"
};

// One changed row of the GPIO table.
struct DesignGpioSignal
{
    QString signalName;
    QString pinName;
    DesignValues parameters; // "Label" carries the user label
};

// The GPIO panel's block.
struct DesignGpioBlock
{
    bool present = false;
    int showType = 0;
    QList<DesignGpioSignal> signalList;
};

// One pin with a function set, as the pin engine stores it.
struct DesignPinSub
{
    QString pinName;
    QString signalName;
    int signalType = 0;
};

// A whole design.
struct DesignDocument
{
    QString series;
    QString device;
    QString package;
    QList<DesignPeripheralBlock> peripherals;
    QList<DesignDmaBlock> dmaBlocks;
    DesignNvicBlock nvic;
    DesignGpioBlock gpio;
    bool hasClock = false;
    DesignValues clock; // one (control name, text) per control of the clock page
    QList<DesignPinSub> pins;
    bool hasProject = false;
    ProjectInfo project; // the project manager's answers

    // The block of an instance, or nullptr.
    const DesignPeripheralBlock *peripheral(const QString &instance) const;
};

// The format this program writes; a file may say so in the root's "FormatVersion".
constexpr int kDesignFormatVersion = 1;

// How reading a design file ended.
enum class DesignReadStatus {
    Ok,           // everything readable was read; `problems` may still list skipped parts
    NotFound,     // no such file
    Unreadable,   // empty, truncated, not XML, or beyond the parser's limits
    NotADesign,   // XML, but its root is not a design's
    NoDeviceInfo, // the MCUInfo block lacks series, device or package
};

struct DesignReadResult
{
    DesignReadStatus status = DesignReadStatus::Unreadable;
    int formatVersion = 0; // 0 when the file does not say
    QStringList problems;  // parts of the file that were skipped, one line each
    bool newerFormat() const { return formatVersion > kDesignFormatVersion; }
};

// Reads a design file. Blocks are found by name among the root's children, the first match
// counting; later duplicates and parts that make no sense are skipped and listed.
DesignReadResult readDesignDocument(const QString &path, DesignDocument *doc);
DesignReadResult parseDesignDocument(const QByteArray &data, DesignDocument *doc);

// The XML text of a design, blocks in their fixed order.
QByteArray designDocumentToXml(const DesignDocument &doc);

// Writes the design atomically: the previous file stays intact unless the whole new one was
// written. False with `error` set on any failure.
bool writeDesignDocument(const QString &path, const DesignDocument &doc, QString *error);
