#pragma once

#include <QDate>
#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

// Everything the configuration report prints, as plain values: the report never looks at a
// panel or a model itself. The work form's side fills it (see the application's report
// builder); tests fill it by hand.

// A "Name" / "Value" line of the overview and settings tables.
struct ReportNameValue
{
    QString name;
    QString value;
};

// The project manager's answers and when the report was made.
struct ReportProjectFacts
{
    QString projectName;
    QString projectFolder;
    QString toolchain;
    QString firmwarePackage; // package name and version
    QString minHeapSize;
    QString minStackSize;
    QDate date = QDate::currentDate();
    QString version; // of the program, as "V1.0.08"
};

// The device of the design as the catalogue gives it.
struct ReportMcuFacts
{
    QString series;
    QString name;
    QString package;
    int pinCount = 0;
    QString flash;
    QString sram;
    QString maxSram; // empty when the device has no larger SRAM setting
    QString cores = QStringLiteral("ARM Cortex-M4");
};

// One package pin.
struct ReportPinRow
{
    int number = 0;
    QString name;
    QString type;
    QString structure;
    QString signal; // the lit signals of the pin joined by "/", empty when unused
    QString label;
};

// One parameter of a peripheral as its panel shows it.
struct ReportParameterRow
{
    QString group; // the group the panel shows the parameter under
    QString name;
    QString value;
    bool changed = false; // differs from the database's default
};

// A peripheral with a mode switched on or parameters set.
struct ReportPeripheral
{
    QString instance;
    bool enabled = false;
    QList<ReportNameValue> modes; // each mode control away from its start state
    QList<ReportParameterRow> parameters;
};

// One configured DMA request with the settings the report lists for it.
struct ReportDmaRequest
{
    QString request;
    QString channel;
    QString direction;
    QString priority;
    QList<ReportNameValue> settings;
};

// The requests of one DMA or EDMA controller file.
struct ReportDmaController
{
    bool edma = false;
    QList<ReportDmaRequest> requests;
};

// One row of the GPIO table.
struct ReportGpioRow
{
    QString pinName;
    QString signal;
    QString mode;
    QString type;
    QString pull;
    QString drive;
    QString outputLevel;
    QString label;
    QString owner; // the peripheral whose mode lit the signal, or "GPIO"
};

// One interrupt of the NVIC table.
struct ReportNvicRow
{
    QString interrupt;
    QString enabled; // "true", "false" or "Unused"
    QString preemption;
    QString sub;
};

// The whole report.
struct ReportInputs
{
    ReportProjectFacts project;
    ReportMcuFacts mcu;
    QList<ReportPinRow> pins;
    QStringList pinNotes; // the family's notes below the pin table, numbered
    QImage chipPicture;
    QImage clockPicture;
    QString clockNote; // shown instead of the clock picture when there is none
    QList<ReportPeripheral> peripherals;
    QList<ReportDmaController> dma; // a device without DMA has none
    QList<ReportGpioRow> gpio;
    QString priorityGroup;
    QList<ReportNvicRow> nvic;
};
