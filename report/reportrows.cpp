#include "report/reportrows.h"

#include "peripherals/dmarequestmodel.h"
#include "peripherals/gpiosettingsmodel.h"
#include "peripherals/nvicmodel.h"
#include "peripherals/paramvalue.h"
#include "peripherals/systempanelsupport.h"

#include <QCoreApplication>

#include <algorithm>

namespace ReportRows {

namespace {

QString trText(const char *text)
{
    return QCoreApplication::translate("GenerateReport", text);
}

// The value a parameter's row shows: a list shows the entry it has chosen (the first allowed
// one when the stored value is no longer allowed).
QString shownValue(const RefParameter &p, const QStringList &enabled)
{
    if (p.Type == QLatin1String("list") && !p.PossibleValues.isEmpty()) {
        const ParamListChoice choice = ParamValue::listChoice(p, enabled);
        return choice.current >= 0 ? choice.value : p.Value;
    }
    return p.Value;
}

QString shownText(const RefParameter &p, const QString &value)
{
    if (!p.PossibleValues.isEmpty())
        return SystemPanelSupport::valueText(p, value);
    if (ParamValue::isNumeric(p) && value.trimmed().isEmpty())
        return QString();
    return ParamValue::displayText(p, value);
}

void addSetting(const DMARequest &request, const QString &name, ReportDmaRequest *out)
{
    const RefParameter *p = request.parameter(name);
    if (!p)
        return;
    out->settings << ReportNameValue{SystemPanelSupport::parameterText(*p),
                                     SystemPanelSupport::valueText(*p, p->Value)};
}

bool isOn(const QString &value)
{
    return value == QLatin1String("ENABLE") || value == QLatin1String("TRUE");
}

// The notes below the pin table; a family prints the first ones, as many as its count says.
const char *const kNotes[] = {
    QT_TRANSLATE_NOOP("GenerateReport",
                      "(1) Pin Type: I/O = input and output, Power = supply or ground, Boot = "
                      "boot selection, Reset = reset input, Clock = oscillator pin."),
    QT_TRANSLATE_NOOP("GenerateReport",
                      "(2) GPIO Structure: FT = 5 V tolerant input, TC = 3.3 V input, TCa = "
                      "3.3 V input with an analog function; empty for pins without GPIO."),
    QT_TRANSLATE_NOOP("GenerateReport",
                      "(3) Signal Name: the functions the design assigns to the pin; an empty "
                      "cell means the pin is unused and keeps its state after reset."),
    QT_TRANSLATE_NOOP("GenerateReport",
                      "(4) Label: the name the user gave the signal; the generated code uses it "
                      "for the pin's macros."),
    QT_TRANSLATE_NOOP("GenerateReport",
                      "(5) Supply, reset and boot pins have a fixed function and carry no other "
                      "signal."),
    QT_TRANSLATE_NOOP("GenerateReport",
                      "(6) An analog input must stay within the analog supply, also on a 5 V "
                      "tolerant pin."),
    QT_TRANSLATE_NOOP("GenerateReport",
                      "(7) The oscillator pins serve as GPIOs only while their crystal is not "
                      "used."),
    QT_TRANSLATE_NOOP("GenerateReport",
                      "(8) The debug pins keep their debug function after reset until the "
                      "design gives them another one."),
    QT_TRANSLATE_NOOP("GenerateReport",
                      "(9) The pins of the battery powered domain drive small currents only and "
                      "switch slowly."),
    QT_TRANSLATE_NOOP("GenerateReport",
                      "(10) The signals of a remap group move together: placing one of them "
                      "on another pin moves the whole group."),
};

struct FamilyNotes
{
    const char *family;
    int count;
};

const FamilyNotes kFamilyNotes[] = {
    {"MQ48T110", 5}, {"MQ48T130", 6}, {"MQ48V130", 6},  {"MQ48T260", 10}, {"MQ48T250", 9},
    {"MQ48V250", 9}, {"MQ48T310", 9}, {"MQ48T320", 9},  {"MQ48T230", 9},  {"MQ48W320", 8},
    {"MQ48T120", 7}, {"MQ48T050", 4}, {"MQ48T510", 10}, {"MQ48T520", 10}, {"MQ48T210_220", 8},
};

} // namespace

QList<ReportPinRow> pinRows(const DevicePinInfo *info)
{
    QList<ReportPinRow> rows;
    if (!info)
        return rows;
    const QList<const MCUPinsBaseInfo *> pins = info->activePinsByNumber();
    for (const MCUPinsBaseInfo *pin : pins) {
        ReportPinRow row;
        row.number = pin->PinNum;
        row.name = pin->PinName.trimmed();
        row.type = pin->PinType;
        row.structure = pin->GPIOStructure;
        QStringList names;
        QStringList labels;
        for (const MCUPinSignal *s : pin->signalList) {
            if (s->status <= SIGNAL_FREE)
                continue;
            names << s->Func;
            if (!s->userLabel.isEmpty() && !labels.contains(s->userLabel))
                labels << s->userLabel;
        }
        row.signal = names.join(QLatin1Char('/'));
        row.label = labels.join(QLatin1Char('/'));
        rows << row;
    }
    return rows;
}

ReportParameterRow parameterRow(const RefParameter &parameter, const RefParameter *original,
                                const QStringList &enabled)
{
    ReportParameterRow row;
    row.group = SystemPanelSupport::databaseText(
        parameter.GroupEN.isEmpty() ? parameter.Group : parameter.GroupEN, parameter.GroupCH);
    row.name = SystemPanelSupport::parameterText(parameter);
    row.value = shownText(parameter, shownValue(parameter, enabled));
    if (!original) {
        row.changed = true;
        return row;
    }
    RefParameter start = *original;
    start.Value = original->DefaultValue;
    const QString now = shownValue(parameter, enabled);
    const QString before = shownValue(start, enabled);
    double a = 0, b = 0;
    quint64 ia = 0, ib = 0;
    // Numbers are compared as numbers: "0x0a" and "0x000A" are the same setting.
    if (ParamValue::isNumeric(parameter) && ParamValue::readNumber(parameter, now, &a, &ia) &&
        ParamValue::readNumber(parameter, before, &b, &ib))
        row.changed = ParamValue::isDouble(parameter) ? a != b : ia != ib;
    else
        row.changed = shownText(start, before) != row.value;
    return row;
}

ReportDmaRequest dmaRequest(const DMARequest &request, bool edma)
{
    ReportDmaRequest out;
    out.request = request.name;
    out.channel = request.channel;
    const RefParameter *direction = request.parameter(QStringLiteral("Direction"));
    const RefParameter *priority = request.parameter(QStringLiteral("Priority"));
    out.direction =
        direction ? SystemPanelSupport::valueText(*direction, direction->Value) : QString();
    out.priority =
        priority ? SystemPanelSupport::valueText(*priority, priority->Value) : QString();

    for (const char *name :
         {"Mode", "PeriphInc", "MemInc", "PeriphDataAlignment", "MemDataAlignment"})
        addSetting(request, QLatin1String(name), &out);
    if (isOn(request.value(QStringLiteral("SyncEnable")))) {
        for (const char *name :
             {"SyncSignalID", "SyncPolarity", "EventEnable", "SyncRequestCount"})
            addSetting(request, QLatin1String(name), &out);
    }
    for (const char *name : {"RequestSignalID", "GeneratorPolarity", "RequestCount"})
        addSetting(request, QLatin1String(name), &out);
    if (!edma)
        return out;

    const QString fifo = request.value(QStringLiteral("FIFOMode"));
    addSetting(request, QStringLiteral("FIFOMode"), &out);
    if (fifo != QLatin1String("EDMA_FIFOMODE_DISABLE"))
        addSetting(request, QStringLiteral("FIFOThreshold"), &out);
    addSetting(request, QStringLiteral("PeriphBurst"), &out);
    addSetting(request, QStringLiteral("MemBurst"), &out);
    addSetting(request, QStringLiteral("2DMode"), &out);
    if (isOn(request.value(QStringLiteral("2DMode")))) {
        for (const char *name : {"SourceStride", "DestinationStride", "XAxisCount", "YAxisCount"})
            addSetting(request, QLatin1String(name), &out);
    }
    addSetting(request, QStringLiteral("DoubleMemoryMode"), &out);
    if (isOn(request.value(QStringLiteral("DoubleMemoryMode"))))
        addSetting(request, QStringLiteral("CurrentMemory"), &out);
    addSetting(request, QStringLiteral("LinkedTableTransferMode"), &out);
    return out;
}

QList<ReportGpioRow> gpioRows(const QList<GpioSettingRow> &rows)
{
    QList<ReportGpioRow> peripheralPins;
    QList<ReportGpioRow> plainPins;
    for (const GpioSettingRow &r : rows) {
        const auto text = [&r](const char *setting) {
            const QString name = QLatin1String(setting);
            const RefParameter *p = r.parameter(name);
            return p ? SystemPanelSupport::valueText(*p, p->Value) : QString();
        };
        ReportGpioRow row;
        row.pinName = r.pinName;
        row.signal = r.displaySignal();
        row.mode = text("GPIO mode");
        row.type = text("GPIO type");
        row.pull = text("Pull type");
        row.drive = text("Driver capability");
        row.outputLevel = text("Output level");
        row.label = r.userLabel;
        row.owner = r.instanceName.isEmpty() ? QStringLiteral("GPIO") : r.instanceName;
        (r.instanceName.isEmpty() ? plainPins : peripheralPins) << row;
    }
    return peripheralPins + plainPins;
}

QList<ReportNvicRow> nvicRows(const QList<NvicRow> &rows)
{
    QList<ReportNvicRow> out;
    for (const NvicRow &r : rows) {
        ReportNvicRow row;
        row.interrupt = SystemPanelSupport::databaseText(
            r.irq.CommentEN.isEmpty() ? r.irq.Comment : r.irq.CommentEN, r.irq.CommentCH);
        if (row.interrupt.isEmpty())
            row.interrupt = r.irq.IRQName;
        if (!r.available)
            row.enabled = trText(QT_TRANSLATE_NOOP("GenerateReport", "Unused"));
        else
            row.enabled = r.enabled() ? QStringLiteral("true") : QStringLiteral("false");
        row.preemption = QString::number(r.irq.preemption);
        row.sub = QString::number(r.irq.sub);
        out << row;
    }
    return out;
}

QString noteFamily(const QString &series)
{
    if (series == QLatin1String("MQ48T210") || series == QLatin1String("MQ48T220"))
        return QStringLiteral("MQ48T210_220");
    return series;
}

int noteCount(const QString &series)
{
    const QString family = noteFamily(series);
    for (const FamilyNotes &f : kFamilyNotes) {
        if (family == QLatin1String(f.family))
            return qMin(f.count, static_cast<int>(sizeof(kNotes) / sizeof(kNotes[0])));
    }
    return 0;
}

QStringList pinNotes(const QString &series)
{
    QStringList notes;
    const int count = noteCount(series);
    for (int i = 0; i < count; ++i)
        notes << trText(kNotes[i]);
    return notes;
}

} // namespace ReportRows
