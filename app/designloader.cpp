#include "app/designloader.h"

#include "app/workformrules.h"
#include "database/catalogue.h"
#include "database/devicereader.h"
#include "database/paths.h"
#include "database/peripheralreader.h"

#include <QFileInfo>

#include <algorithm>

DesignData::~DesignData()
{
    clear();
}

void DesignData::clear()
{
    qDeleteAll(gpioPins);
    gpioPins.clear();
    qDeleteAll(nvicInterrupts);
    nvicInterrupts.clear();
    gpioRows.clear();
    delete devicePinInfo;
    devicePinInfo = nullptr;

    series.clear();
    mcuName.clear();
    package.clear();
    catalogueRow = MCUListItem();
    inCatalogue = false;
    devicePath.clear();
    deviceFileFound = false;
    pid = 0;
    peripheralList.clear();
    gpioTree = IPNode();
    nvicTree = IPNode();
    dmaTrees.clear();
    clockModel = 0;
    loadSteps.clear();
}

void DesignData::rebuildGpioRows()
{
    gpioRows.clear();
    if (!devicePinInfo)
        return;
    QList<MCUPinsBaseInfo *> pins;
    for (MCUPinsBaseInfo *pin : qAsConst(devicePinInfo->pins)) {
        if (pin->remapOff && !pin->signalList.isEmpty())
            pins.append(pin);
    }
    std::stable_sort(
        pins.begin(), pins.end(),
        [](const MCUPinsBaseInfo *a, const MCUPinsBaseInfo *b) { return a->PinNum < b->PinNum; });
    gpioRows = pins;
}

bool DesignLoader::isSystemBlock(const QString &instanceName)
{
    return instanceName == QLatin1String("GPIO") || instanceName == QLatin1String("NVIC") ||
           instanceName == QLatin1String("DMA") || instanceName == QLatin1String("EDMA");
}

bool DesignLoader::listsBlock(const QList<PeripheralListItem> &list, const QString &instanceName)
{
    for (const PeripheralListItem &row : list) {
        if (row.InstanceName == instanceName)
            return true;
    }
    return false;
}

bool DesignLoader::load(const QString &series, const QString &device, const QString &package,
                        DesignData *out) const
{
    out->clear();
    out->series = series;
    out->mcuName = device;
    out->package = package;

    for (const MCUListItem &row : GetMCUList(series)) {
        if (row.Name == device) {
            out->catalogueRow = row;
            out->inCatalogue = true;
            break;
        }
    }
    out->loadSteps << QStringLiteral("catalogue");

    out->devicePath = deviceFilePath(series, device);
    out->deviceFileFound = QFileInfo(out->devicePath).isFile();
    out->loadSteps << QStringLiteral("devicePath");

    out->devicePinInfo = NewDevicePinInfo(out->devicePath);
    out->loadSteps << QStringLiteral("devicePinInfo");
    out->pid = GetDevicePID(out->devicePath);
    out->loadSteps << QStringLiteral("pid");

    out->peripheralList = GetPeripheralsList(out->devicePath);
    out->loadSteps << QStringLiteral("peripheralList");

    out->gpioTree =
        ReadIPFile(BlockPeripheralFilePath(series, out->peripheralList, QStringLiteral("GPIO")));
    out->loadSteps << QStringLiteral("gpioTree");
    out->nvicTree =
        ReadIPFile(BlockPeripheralFilePath(series, out->peripheralList, QStringLiteral("NVIC")));
    out->loadSteps << QStringLiteral("nvicTree");

    out->dmaTrees.clear();
    for (const QString &name : {QStringLiteral("DMA"), QStringLiteral("EDMA")}) {
        if (!listsBlock(out->peripheralList, name))
            continue;
        DMATree dma;
        dma.name = name;
        dma.path = BlockPeripheralFilePath(series, out->peripheralList, name);
        dma.secondaryPath = DMASecondaryFilePath(series, out->peripheralList, name);
        dma.tree = ReadIPFile(dma.path);
        out->dmaTrees.append(dma);
        out->loadSteps << QStringLiteral("dmaTree:") + name;
    }

    for (const GPIOPinRecord &record : GetGPIOPinRecords(out->gpioTree))
        out->gpioPins.append(new GPIOPinRecord(record));
    out->loadSteps << QStringLiteral("gpioPins");
    out->rebuildGpioRows();
    out->loadSteps << QStringLiteral("gpioRows");
    for (const NVICInterrupt &irq : GetNVICInterrupts(out->nvicTree))
        out->nvicInterrupts.append(new NVICInterrupt(irq));
    out->loadSteps << QStringLiteral("nvicInterrupts");

    out->clockModel = WorkFormRules::clockModelOfSeries(series);
    out->loadSteps << QStringLiteral("clockModel");

    return out->deviceFileFound;
}
