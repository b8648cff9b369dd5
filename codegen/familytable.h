#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// The per-family facts of code generation, kept as data: one row per generator.

// A module switch of <stem>_conf.h and the instances that keep it on.
struct ModuleSwitch
{
    QString name;          // "USART_MODULE_ENABLED"
    QString driverStem;    // "usart": the driver file <stem>_usart.c
    QStringList instances; // configured instances that keep it on
    bool gpioPorts = false; // also on when a pin of the GPIO ports is used
    bool dmaRequests = false; // also on when a DMA request is placed
    bool dmaRemaps = false;   // also on when a DMA request needs a channel remap
};

// A DMA remap block: kept inside a channel's block when that channel's request is this one.
struct DmaRemapBlock
{
    QString tag;     // "usart1_tx_dma_remap"
    int channel = 0; // 4
    QString request; // "USART1_TX"
};

// A child "<name> periph clock" of the periph clock section, with what keeps it.
struct PeriphClockItem
{
    QString name;          // "usart1", "gpioa", "dma1"
    QStringList instances; // configured instances that keep it
    QString port;          // "A": kept when a pin of the port is used
    QString dmaController; // "DMA1": kept when a request uses the controller
    bool dmaRemaps = false; // kept when a request needs a channel remap
};

// One generator class and the families it serves.
struct GeneratorFamily
{
    QString generatorName;   // "GenerateCode_All_T110"
    QList<int> codes;        // family codes served
    QStringList series;      // series of the codes, in the same order
    QStringList folders;     // template folders of the codes, in the same order
    QStringList mainBlocks;  // peripheral blocks behind the system blocks, in main.c order
    QStringList sectionTypes; // peripheral type names that have a section
    QStringList blockNameMap; // "INSTANCE=block stem" for instances named otherwise
    bool hasTemplates = false;
    bool perPinMux = true;    // gpio_pin_mux_config per pin (else gpio_pin_remap_config)
    int dmaControllers = 1;
    int dmaChannels = 5;
    QList<DmaRemapBlock> dmaRemaps;
    QList<PeriphClockItem> periphClocks;
    QList<ModuleSwitch> moduleSwitches;
    QStringList alwaysOnDrivers; // driver stems listed whatever the design ("crm", ...)
};

// The family code of a device series ("MQ48T110" is 9); 0 for an unknown series.
int familyCodeOfSeries(const QString &series);
// The series whose name the device name starts with ("MQ48T110C8T" gives "MQ48T110").
QString seriesOfDevice(const QString &deviceName);
// The template folder of a family code ("MQ48T110"); empty when the code has none.
QString familyFolder(int code);
// The file stem of a family code: the folder in lower case ("mq48t110").
QString familyStem(int code);

// Every generator row, in the order of the thread's pointers.
const QList<GeneratorFamily> &generatorFamilies();
// The row serving a family code, or nullptr when no generator serves it.
const GeneratorFamily *generatorFamilyOf(int code);
// The row of a generator class name, or nullptr.
const GeneratorFamily *generatorFamilyNamed(const QString &generatorName);

// The block stem of an instance on a family: lower-case name, or the mapped one.
QString blockStemOf(const GeneratorFamily &family, const QString &instance);

// The six generated files of a family code, in the order they are written, with their
// folder ("src" or "inc").
struct GeneratedFile
{
    QString name;
    QString folder;
};
QList<GeneratedFile> generatedFiles(int code);
