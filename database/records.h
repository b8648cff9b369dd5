#pragma once

// Plain records into which the catalogue, the device files and the peripheral files are read,
// and which the panels, the pin engine and the generators pass around by value.
//
// Note on naming: `signals` is a Qt keyword, so the signal lists of a pin, a pin group and a
// mode group are called `signalList`.

#include <QList>
#include <QMetaType>
#include <QPair>
#include <QString>
#include <QStringList>

// State word of a peripheral's configuration, carried by SendIPStatusFlag: 1 inactive (a new
// panel), 2 active, with IPSTATUS_UNFINISHED added while a selection is unfinished.
using IPSTATUS = int;
constexpr IPSTATUS IPSTATUS_INACTIVE = 1;
constexpr IPSTATUS IPSTATUS_ACTIVE = 2;
constexpr IPSTATUS IPSTATUS_UNFINISHED = 4;

// State of a peripheral's parameters as the parameter panel reports it: 1 when every visible
// row holds a valid value, 2 when at least one does not.
using IPPARAMSTATUS = int;
constexpr IPPARAMSTATUS IPPARAMSTATUS_VALID = 1;
constexpr IPPARAMSTATUS IPPARAMSTATUS_INVALID = 2;

// Assignment states of MCUPinSignal::status; a signal above SIGNAL_FREE is lit.
enum PinSignalStatus : int {
    SIGNAL_FREE = 0,
    SIGNAL_PIN_ONLY = 1,
    SIGNAL_MODE_ONLY = 2,
    SIGNAL_PIN_AND_MODE = 3,
};

// One node of a peripheral XML file as read into memory; non-element nodes are empty nodes.
struct IPNode
{
    QString tagName;
    QString text;
    QList<QPair<QString, QString>> attributes;
    QList<IPNode> children;

    // Value of the attribute `name`; where it stands twice the last one wins, "" when absent.
    QString attribute(const QString &name) const;
    bool hasAttribute(const QString &name) const;
    bool isEmpty() const { return tagName.isEmpty(); }
};

// A row of the MCU catalogue.
struct MCUListItem
{
    QString Name;
    QString Package;
    QString Flash;
    QString SRAM;
    QString MaxSRAM;
};

// One device series of the catalogue.
struct MCUSerialInfo
{
    QString Serial;
    QString Info;
    QString InfoEN;
    QString InfoCH;
};

// A package name of the catalogue.
using MCUPackageInfo = QString;

// One (PinNum, Func) sub-element of a Multi function.
struct MultiPinRef
{
    int PinNum = 0;
    QString Func;
};

// One function that one pin can carry.
struct MCUPinSignal
{
    int status = SIGNAL_FREE;
    QString Func;
    QString IOMode;
    QString userLabel;
    QString InPin;
    QList<MultiPinRef> multiPins;
    bool Multi = false;
    QStringList extra;
    int flag = 0;
};

// One pin of the package. Copying gives a non-owning view: the copy shares the MCUPinSignal
// objects of `signalList` with the original, which the owning DevicePinInfo deletes.
struct MCUPinsBaseInfo
{
    int PinNum = 0;
    QString PinName;
    bool PinFixed = false;
    QString Remarks;
    QString Remarks_EN;
    QString Remarks_CH;
    QString Variant;
    bool remapOff = true;
    QString PinType;
    QString GPIOStructure;
    QList<MCUPinSignal *> signalList;
};

// One signal of a pin group.
struct GroupSignal
{
    QString SignalName;
    QString PinName;
    int pinIndex = -1;
    bool TMRIPCanUse = true;
};

// A group of signals that moves together when a peripheral is remapped.
struct PinsSignalsGroup
{
    QString IPName;
    int GroupNum = 0;
    QString GMUX;
    QList<GroupSignal> signalList;
};

// The whole pin state of an open design; owns its pins and, through them, their signals.
class DevicePinInfo
{
public:
    DevicePinInfo() = default;
    ~DevicePinInfo();
    DevicePinInfo(const DevicePinInfo &) = delete;
    DevicePinInfo &operator=(const DevicePinInfo &) = delete;

    // Deletes every pin and its signals and empties `pins`.
    void clearPins();
    // The pins of the package in use (remapOff), by pin number.
    QList<const MCUPinsBaseInfo *> activePinsByNumber() const;

    QString MCUName;
    int xPinNum = 0;
    int yPinNum = 0;
    int PinNums = 0;
    QString Package;
    int rotation = 0;
    QList<MCUPinsBaseInfo *> pins;
    QList<PinsSignalsGroup> signalGroups;
    QString devicePath;
};

// A row of the device's PeripheralsList.
struct PeripheralListItem
{
    QString InstanceName;
    QString Name;
    QString GroupName;
    QString Version;
    QString Config;
    QString AboutText;
    QString About;
    QString AboutCH;
};

// A peripheral's signal as the mode panels hand it to the pin engine.
struct ModeSignal
{
    bool enabled = false;
    QString signalName;
    QString IOMode;
    bool Virtual = false;
};

// One way of setting up a mode, with the signals that it needs.
struct ModeSignalGroup
{
    QString Name;
    QString displayName;
    QString UserName;
    QString UserNameCH;
    QString RemoveCondition;
    QString LogicOp;
    QList<QList<ModeSignal>> signalList;
    QString diagnosticText;
    QString Diagnostic;
    QString DiagnosticCH;
    QString Expression;
    bool AndFlag = true;
    QStringList semaphores;
};

// One row of a peripheral's mode control.
struct ModeOption
{
    QString Name;
    QString displayName;
    QString UserName;
    QString UserNameCH;
    QString RemoveCondition;
    QString LogicOperator;
    QString diagnosticText;
    QString Diagnostic;
    QString DiagnosticCH;
    QString Expression;
    bool AndFlag = true;
    QString annotationText;
    QString Note;
    QString NoteCH;
    QStringList semaphores;
    QList<ModeSignalGroup> signalGroups;
};

// A parameter named by a RefMode with the values it allows.
struct RefModeParameter
{
    QString Name;
    QStringList PossibleValues;
};

// A named set of default parameter values for a mode.
struct RefMode
{
    QString Name;
    QString Comment;
    QString Group;
    QString GroupEN;
    QString GroupCH;
    QString BaseMode;
    QString HalMode;
    bool Abstract = false;
    QStringList ConfigForMode;
    QList<RefModeParameter> Parameters;
};

// One possible value of a parameter.
struct RefParamValue
{
    QString Comment;
    QString CommentEN;
    QString CommentCH;
    QString Value;
    QString Semaphore;
    QString Action;
    QString Diagnostic;
    QString DiagnosticEN;
    QString DiagnosticCH;
    QString Condition;
    bool AndFlag = true;
    int available = 0;
};

// One peripheral parameter with its current value.
struct RefParameter
{
    QString InstanceName;
    QString Name;
    QString Comment;
    QString CommentEN;
    QString CommentCH;
    QString Group;
    QString GroupEN;
    QString GroupCH;
    QString Type;
    QString DefaultValue;
    QString Value;
    QString Unit;
    QString Max;
    QString Min;
    bool Visible = true;
    bool Enable = true;
    bool Reload = true;
    bool Relevant = false;
    QString Diagnostic;
    QString DiagnosticEN;
    QString DiagnosticCH;
    QString Expression;
    bool AndFlag = true;
    QString Annotation;
    QString Note;
    QString NoteCH;
    QList<RefParamValue> PossibleValues;
    QString Description;
};

// One row of the GPIO peripheral's GPIO_Pin list.
struct GPIOPinRecord
{
    QString Name;
    QString PortName;
    QString GPIO_x;
    QString GPIO_Pin;
    QString GPIO_PinSource;
    QString EXINT_LINE_x;
    QString SCFG_GPIO_x;
    QString SCFG_PINS_SOURCE_x;
    QList<QPair<QString, QString>> pinSignals;
};

// One interrupt of the device's NVIC table.
struct NVICInterrupt
{
    QString Comment;
    QString CommentEN;
    QString CommentCH;
    QString Diagnostic;
    QString DiagnosticEN;
    QString DiagnosticCH;
    QString IRQName;
    QString Handler;
    QStringList conditions;
    bool flag2 = false;
    bool flag3 = false;
    bool flag4 = false;
    bool flag5 = false;
    int preemptionLow = 0;
    int preemptionHigh = 0;
    int defaultPreemption = 0;
    int preemption = 0;
    bool flag7 = false;
    int subLow = 0;
    int subHigh = 0;
    int defaultSub = 0;
    int sub = 0;
};

// One Parameter of a DMA request as the DMA and EDMA files give it.
struct DMARequestParameter
{
    QString Name;
    QString Comment;
    QString DefaultValue;
    QStringList PossibleValues;
};

// Kinds of DMA request.
enum class DMARequestKind { Peripheral, MemToMem, Generator };

// A DMA request of a DMA or EDMA file (a RefMode whose BaseMode is "DMA_Request").
struct DMARequestInfo
{
    QString Name;
    DMARequestKind kind = DMARequestKind::Peripheral;
    QString controller; // "EDMA", "DMA2" or "DMA1" for a generator request, else empty
    QString IpInstance; // DefaultValue of the parameter "IpInstance"
    QList<DMARequestParameter> Parameters;
};

// Registers the records that travel through queued signal connections, and the names
// "IPSTATUS" and "IPPARAMSTATUS" as aliases of int.
// The parameter of `list` named `name`, or null.
const RefParameter *FindParameter(const QList<RefParameter> &list, const QString &name);

void registerRecordMetaTypes();

Q_DECLARE_METATYPE(MCUPinsBaseInfo)
Q_DECLARE_METATYPE(ModeSignal)
Q_DECLARE_METATYPE(RefParameter)
Q_DECLARE_METATYPE(DevicePinInfo *)
