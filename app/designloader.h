#pragma once

#include "database/records.h"

#include <QList>
#include <QString>
#include <QStringList>

// The tree of one DMA controller's file, kept under the controller's name.
struct DMATree
{
    QString name;          // "DMA" or "EDMA"
    QString path;          // the controller's file
    QString secondaryPath; // the file of the same name below device/Peripherals
    IPNode tree;
};

// Everything the database gives for one open design; owns the pin state and the GPIO and
// NVIC records, and frees them on clear() or destruction.
class DesignData
{
public:
    DesignData() = default;
    ~DesignData();
    DesignData(const DesignData &) = delete;
    DesignData &operator=(const DesignData &) = delete;

    // Frees every record and empties every field.
    void clear();
    // Lists again the pins that can carry a signal, in pin order.
    void rebuildGpioRows();

    QString series;
    QString mcuName;
    QString package;
    // The catalogue's row of the device; `inCatalogue` false when the catalogue lacks it.
    MCUListItem catalogueRow;
    bool inCatalogue = false;
    QString devicePath;
    bool deviceFileFound = false;
    DevicePinInfo *devicePinInfo = nullptr;
    quint32 pid = 0;
    QList<PeripheralListItem> peripheralList;
    IPNode gpioTree;
    IPNode nvicTree;
    QList<DMATree> dmaTrees;
    QList<GPIOPinRecord *> gpioPins;
    // Pins of devicePinInfo with at least one signal; not owned.
    QList<MCUPinsBaseInfo *> gpioRows;
    QList<NVICInterrupt *> nvicInterrupts;
    // Ordinal of the clock page's chip model, 0 when the series has none.
    int clockModel = 0;
    // The reads in the order they were made, one word each.
    QStringList loadSteps;
};

// Reads a design's device and peripheral files in the fixed order of building a design.
class DesignLoader
{
public:
    // Fills `out` (cleared first) for a device. Missing files leave their parts empty, so an
    // unknown device gives an empty package. Returns whether the device file was read.
    bool load(const QString &series, const QString &device, const QString &package,
              DesignData *out) const;

    // True for the blocks that have their own panel instead of a mode panel: "GPIO", "NVIC",
    // "DMA" and "EDMA".
    static bool isSystemBlock(const QString &instanceName);

    // Whether the peripheral list names the block.
    static bool listsBlock(const QList<PeripheralListItem> &list, const QString &instanceName);
};
