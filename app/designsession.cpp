#include "app/designsession.h"

#include "app/designheader.h"
#include "app/formconfiguration.h"
#include "clock/mq48clocktree.h"
#include "clock/mq48pllconfig.h"
#include "peripherals/dmarequestmodel.h"
#include "peripherals/gpiosettingsmodel.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/nvicmodel.h"
#include "peripherals/paramsettingwidget.h"
#include "peripherals/paramvalue.h"
#include "pinout/chipview.h"
#include "pinout/pinassignengine.h"

#include <QCoreApplication>
#include <QDomDocument>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

namespace {

const QString kMemToMem = QStringLiteral("MEMTOMEM");

// The DEBUG row is always written: the check box "SWD" on some families, the combo
// "Debug interface" on the others.
bool isDebugRow(const QString &instance, const ModeControl &control)
{
    return instance == QLatin1String("DEBUG") &&
           (control.option.Name == QLatin1String("SWD") ||
            control.option.Name == QLatin1String("Debug interface"));
}

// --- Collecting -------------------------------------------------------------------------

void collectPeripherals(const FormConfiguration &form, DesignDocument *doc)
{
    for (IP_ModeAndConfiguration *panel : form.modePanels()) {
        DesignPeripheralBlock block;
        block.instance = panel->instanceName();
        bool anySet = false;
        for (const ModeControl &control : panel->logic().controls) {
            const bool debugRow = isDebugRow(block.instance, control);
            if (control.isCombo()) {
                const ModeItem *item = control.currentItem();
                if (item) {
                    block.modes.append({control.option.Name,
                                        control.option.signalGroups.value(item->groupIndex).Name});
                    anySet = true;
                } else if (debugRow) {
                    block.modes.append({control.option.Name, control.textAt(0)});
                    anySet = true;
                }
            } else if (control.current > 0) {
                block.modes.append({control.option.Name, QStringLiteral("TRUE")});
                anySet = true;
            } else if (debugRow) {
                block.modes.append({control.option.Name, QStringLiteral("FALSE")});
                anySet = true;
            }
        }
        if (!anySet)
            continue;
        if (const ParamSettingWidget *params = panel->paramSettingWidget()) {
            const bool can = block.instance.contains(QLatin1String("CAN"));
            for (const RefParameter &p : params->parameters) {
                const bool always = can && (p.Name == QLatin1String("BaudRate") ||
                                            p.Name == QLatin1String("Sample_Point"));
                if (always || p.Value != p.DefaultValue)
                    block.parameters.append({p.Name, p.Value});
            }
        }
        doc->peripherals.append(block);
    }
}

// The trailing number of a channel name ("DMA1_Channel12" gives 12), for ordering.
int channelNumber(const QString &channel)
{
    static const QRegularExpression digits(QStringLiteral("(\\d+)$"));
    return digits.match(channel).captured(1).toInt();
}

void collectDma(const FormConfiguration &form, DesignDocument *doc)
{
    // Requests are written by controller and channel, so that the file does not depend on
    // the order in which they were added.
    QList<const DMARequest *> requests;
    for (const DmaRequestModel *model : form.dmaModels()) {
        for (const DMARequest &request : model->requests()) {
            if (request.state == 2 && !request.controller.isEmpty())
                requests << &request;
        }
    }
    std::stable_sort(requests.begin(), requests.end(),
                     [](const DMARequest *a, const DMARequest *b) {
                         if (a->controller != b->controller)
                             return a->controller < b->controller;
                         return channelNumber(a->channel) < channelNumber(b->channel);
                     });
    int memToMem = 0;
    for (const DMARequest *request : requests) {
        DesignDmaBlock *block = nullptr;
        for (DesignDmaBlock &b : doc->dmaBlocks) {
            if (b.controller == request->controller)
                block = &b;
        }
        if (!block) {
            doc->dmaBlocks.append({request->controller, {}});
            block = &doc->dmaBlocks.last();
        }
        DesignDmaRequest out;
        out.element =
            request->isMemToMem() ? kMemToMem + QString::number(++memToMem) : request->name;
        out.parameters.append({QStringLiteral("Instance"), request->channel});
        for (const RefParameter &p : request->parameters) {
            if (p.Name != QLatin1String("Instance") && p.Value != p.DefaultValue)
                out.parameters.append({p.Name, p.Value});
        }
        block->requests.append(out);
    }
}

void collectNvic(const FormConfiguration &form, DesignDocument *doc)
{
    const NvicModel *nvic = form.nvicModel();
    if (!nvic)
        return;
    DesignNvicBlock &block = doc->nvic;
    if (nvic->priorityGroup() != nvic->defaultPriorityGroup())
        block.priorityGroup = nvic->priorityGroup();
    block.showType = nvic->showType();
    for (const NvicRow &row : nvic->rows()) {
        const NVICInterrupt &irq = row.irq;
        const bool priorities =
            irq.preemption != irq.defaultPreemption || irq.sub != irq.defaultSub;
        const QString pair =
            QString::number(irq.preemption) + QLatin1Char(';') + QString::number(irq.sub);
        if (row.hasEnableBox()) {
            if (priorities || row.enabled() != row.defaultEnabled)
                block.interrupts.append(
                    {irq.Handler,
                     (row.enabled() ? QStringLiteral("1;") : QStringLiteral("0;")) + pair});
        } else if (priorities) {
            block.interrupts.append({irq.Handler, pair});
        }
    }
    block.present =
        !block.priorityGroup.isEmpty() || block.showType != 2 || !block.interrupts.isEmpty();
}

void collectGpio(const FormConfiguration &form, DesignDocument *doc)
{
    const GpioSettingsModel *gpio = form.gpioModel();
    if (!gpio)
        return;
    DesignGpioBlock &block = doc->gpio;
    block.present = true;
    block.showType = gpio->showType();
    for (const GpioSettingRow &row : gpio->rows()) {
        if (!row.modified && row.userLabel.isEmpty())
            continue;
        DesignGpioSignal signal;
        signal.signalName = row.signal;
        signal.pinName = row.pinName;
        for (const RefParameter &p : row.parameters) {
            if (p.Value != p.DefaultValue)
                signal.parameters.append({p.Name, p.Value});
        }
        if (!row.userLabel.isEmpty())
            signal.parameters.append({QStringLiteral("Label"), row.userLabel});
        block.signalList.append(signal);
    }
}

void collectClock(const FormConfiguration &form, DesignDocument *doc)
{
    const MQ48PLLConfig *clock = form.clockPage();
    if (!clock)
        return;
    QByteArray xml;
    QXmlStreamWriter writer(&xml);
    if (!clock->saveClockConfig(writer))
        return;
    // The clock page writes its controls as attributes; the file holds them as children, in
    // the same order.
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        for (const QXmlStreamAttribute &a : reader.attributes())
            doc->clock.append({a.name().toString(), a.value().toString()});
        break;
    }
    doc->hasClock = true;
}

void collectPins(const FormConfiguration &form, DesignDocument *doc)
{
    const ChipView *chip = form.chipDrawing();
    if (!chip)
        return;
    for (const MCUPinsBaseInfo *pin : const_cast<ChipView *>(chip)->engine()->activePins()) {
        if (pin->PinFixed || !pin->remapOff)
            continue;
        for (const MCUPinSignal *signal : pin->signalList) {
            if (signal->status > SIGNAL_FREE) {
                doc->pins.append({pin->PinName.trimmed(), signal->Func, signal->status});
                break;
            }
        }
    }
}

// --- Applying ---------------------------------------------------------------------------

void applyPins(FormConfiguration &form, const DesignDocument &doc, QStringList *problems)
{
    ChipView *chip = form.chipDrawing();
    if (!chip)
        return;
    PinAssignEngine *engine = chip->engine();
    for (const DesignPinSub &sub : doc.pins) {
        MCUPinsBaseInfo *pin = nullptr;
        for (MCUPinsBaseInfo *candidate : engine->activePins()) {
            if (candidate->PinName.trimmed() == sub.pinName)
                pin = candidate;
        }
        if (!pin) {
            problems->append(QCoreApplication::translate("DesignSession",
                                                         "pin %1 does not exist on this package")
                                 .arg(sub.pinName));
            continue;
        }
        MCUPinSignal *signal = PinAssignEngine::findSignal(pin, sub.signalName);
        if (!signal) {
            problems->append(QCoreApplication::translate("DesignSession", "pin %1 cannot carry %2")
                                 .arg(sub.pinName, sub.signalName));
            continue;
        }
        if (PinAssignEngine::isGpioWord(sub.signalName)) {
            // A GPIO function is set as the user would tick it, so that its row comes.
            MCUPinsBaseInfo record = *pin;
            signal->status = SIGNAL_FREE;
            for (MCUPinSignal *other : pin->signalList) {
                if (other != signal && PinAssignEngine::isGpioWord(other->Func))
                    other->status = SIGNAL_FREE;
            }
            signal->status = sub.signalType;
            chip->UpdatePinConfigInfoSlot(record);
        } else {
            // The peripheral's block completes the assignment when its signals come.
            signal->status = sub.signalType;
        }
    }
    chip->RedrawScene();
}

// After the peripherals have placed their signals, the pins are made to stand as the file
// says: where the order of placing differs from the user's, a signal can land on a pin that
// held another one, or none, when the design was saved.
void reconcilePins(FormConfiguration &form, const DesignDocument &doc)
{
    ChipView *chip = form.chipDrawing();
    if (!chip)
        return;
    QHash<QString, const DesignPinSub *> subs;
    for (const DesignPinSub &sub : doc.pins)
        subs.insert(sub.pinName, &sub);
    bool changed = false;
    for (MCUPinsBaseInfo *pin : chip->engine()->activePins()) {
        if (pin->PinFixed || !pin->remapOff)
            continue;
        const DesignPinSub *sub = subs.value(pin->PinName.trimmed());
        MCUPinSignal *wanted = sub ? PinAssignEngine::findSignal(pin, sub->signalName) : nullptr;
        for (MCUPinSignal *signal : pin->signalList) {
            if (signal == wanted) {
                changed = changed || signal->status != sub->signalType;
                signal->status = sub->signalType;
                break;
            }
            if (signal->status > SIGNAL_FREE) {
                signal->status = SIGNAL_FREE;
                changed = true;
            }
        }
    }
    if (!changed)
        return;
    chip->RedrawScene();
    form.ReciveAllConfigedSignals(form.design().devicePinInfo, true, QString());
}

void applyClock(FormConfiguration &form, const DesignDocument &doc)
{
    MQ48PLLConfig *clock = form.clockPage();
    if (!clock || !doc.hasClock)
        return;
    QDomDocument dom;
    QDomElement element = dom.createElement(QStringLiteral("ClockConfiguration"));
    for (const auto &pair : doc.clock) {
        QDomElement child = dom.createElement(pair.first);
        child.appendChild(dom.createTextNode(pair.second));
        element.appendChild(child);
    }
    dom.appendChild(element);
    // The tree of the device is there already; loading into it keeps what the peripherals
    // have set on it (the oscillators of CRM).
    if (MQ48ClockTree *tree = clock->tree())
        tree->loadConfig(element);
    else
        clock->loadClockConfig(element, doc.series);
}

// The order of the peripheral blocks: the family's first ones, the others, the last ones.
QList<const DesignPeripheralBlock *> replayOrder(const DesignDocument &doc,
                                                 const FormConfiguration &form)
{
    QStringList first;
    QStringList last;
    const QString s = doc.series;
    if (s == QLatin1String("MQ48T110")) {
        first = QStringList{"EXINT"};
        last = QStringList{"IRTMR"};
    } else if (QStringList{"MQ48T130", "MQ48V130", "MQ48T120", "MQ48T210", "MQ48T220"}.contains(
                   s)) {
        first = QStringList{"EXINT"};
        last = QStringList{"I2S3", "I2S2", "I2S1", "IRTMR"};
    } else if (QStringList{"MQ48T250", "MQ48T260", "MQ48V250", "MQ48T310", "MQ48T320", "MQ48W320"}
                   .contains(s)) {
        first = QStringList{"EXINT"};
    } else if (s == QLatin1String("MQ48T510") || s == QLatin1String("MQ48T520")) {
        first = QStringList{"EXINT"};
        last = QStringList{"I2S4", "I2S3", "I2S2", "I2S1", "IRTMR"};
    }
    QList<const DesignPeripheralBlock *> ordered;
    auto take = [&](const QString &instance) {
        if (const DesignPeripheralBlock *block = doc.peripheral(instance))
            ordered << block;
    };
    for (const QString &name : first)
        take(name);
    // The middle group follows the peripheral list of the device.
    for (IP_ModeAndConfiguration *panel : form.modePanels()) {
        if (!first.contains(panel->instanceName()) && !last.contains(panel->instanceName()))
            take(panel->instanceName());
    }
    for (const QString &name : last)
        take(name);
    return ordered;
}

bool parameterValueFits(const RefParameter &p, const QString &value)
{
    if (p.Type == QLatin1String("list")) {
        for (const RefParamValue &v : p.PossibleValues) {
            if (v.Value == value)
                return true;
        }
        return p.PossibleValues.isEmpty();
    }
    if (!ParamValue::isNumeric(p))
        return true;
    RefParameter probe = p;
    probe.Value = value;
    return ParamValue::isValid(probe);
}

void applyPeripheral(IP_ModeAndConfiguration *panel, const DesignPeripheralBlock &block,
                     const QString &series, QStringList *problems)
{
    DesignValues modes = block.modes;
    // Older designs kept these timers on without saying so.
    static const QStringList keptOn = {"TMR1", "TMR3", "TMR15"};
    if (series == QLatin1String("MQ48T110") && keptOn.contains(block.instance)) {
        bool named = false;
        for (const auto &pair : modes)
            named = named || pair.first == QLatin1String("Activated");
        if (!named)
            modes.append({QStringLiteral("Activated"), QStringLiteral("TRUE")});
    }
    for (const auto &pair : modes) {
        const ModeControl *control = nullptr;
        for (const ModeControl &c : panel->logic().controls) {
            if (c.option.Name == pair.first)
                control = &c;
        }
        if (!control) {
            problems->append(QCoreApplication::translate("DesignSession", "%1: no mode \"%2\"")
                                 .arg(block.instance, pair.first));
            continue;
        }
        // A row at its start state (the DEBUG rows are written so) needs nothing.
        const bool startState = control->isCombo() ? pair.second == control->textAt(0)
                                                   : pair.second.compare(QLatin1String("FALSE"),
                                                                         Qt::CaseInsensitive) == 0;
        if (startState && control->current == 0)
            continue;
        if (!panel->setModeSelection(pair.first, pair.second))
            problems->append(QCoreApplication::translate("DesignSession",
                                                         "%1: mode \"%2\" cannot be set to \"%3\"")
                                 .arg(block.instance, pair.first, pair.second));
        panel->settle();
    }
    ParamSettingWidget *params = panel->paramSettingWidget();
    if (!params) {
        if (!block.parameters.isEmpty())
            problems->append(QCoreApplication::translate("DesignSession", "%1: has no parameters")
                                 .arg(block.instance));
        return;
    }
    for (const auto &pair : block.parameters) {
        const RefParameter *known = nullptr;
        for (const RefParameter &p : params->parameters) {
            if (p.Name == pair.first)
                known = &p;
        }
        if (!known) {
            problems->append(
                QCoreApplication::translate("DesignSession", "%1: no parameter \"%2\"")
                    .arg(block.instance, pair.first));
            continue;
        }
        if (!parameterValueFits(*known, pair.second)) {
            problems->append(QCoreApplication::translate("DesignSession",
                                                         "%1: parameter \"%2\" cannot be \"%3\"")
                                 .arg(block.instance, pair.first, pair.second));
            continue;
        }
        if (known->Value != pair.second)
            params->setParameterValue(pair.first, pair.second);
    }
    params->refreshNow();
    panel->settle();
}

// Replays the DMA blocks; requests of peripherals whose mode is still off are kept for the
// second pass (`final` false) and only then reported.
void applyDma(FormConfiguration &form, const DesignDocument &doc, bool final,
              QSet<QString> *applied, QStringList *problems)
{
    static const QRegularExpression memToMem(QStringLiteral("^MEMTOMEM\\d*$"));
    for (const DesignDmaBlock &block : doc.dmaBlocks) {
        for (const DesignDmaRequest &request : block.requests) {
            const QString key = block.controller + QLatin1Char('/') + request.element;
            if (applied->contains(key))
                continue;
            const QString name =
                memToMem.match(request.element).hasMatch() ? kMemToMem : request.element;
            QString channel;
            for (const auto &pair : request.parameters) {
                if (pair.first == QLatin1String("Instance"))
                    channel = pair.second;
            }
            DmaRequestModel *model = nullptr;
            for (DmaRequestModel *m : form.dmaModels()) {
                if (!m->channelsOf(name).isEmpty() && m->controllers().contains(block.controller))
                    model = m;
            }
            if (!model) {
                problems->append(
                    QCoreApplication::translate("DesignSession", "%1: no DMA request \"%2\"")
                        .arg(block.controller, name));
                applied->insert(key);
                continue;
            }
            const DmaRequestModel::AddResult added = model->addRequest(name, channel);
            if (!added.ok()) {
                if (added.error == DmaRequestModel::AddError::NotConfigured && !final)
                    continue;
                problems->append(
                    QCoreApplication::translate(
                        "DesignSession", "%1: DMA request \"%2\" on %3 cannot be configured")
                        .arg(block.controller, name, channel));
                applied->insert(key);
                continue;
            }
            applied->insert(key);
            for (const auto &pair : request.parameters) {
                if (pair.first == QLatin1String("Instance"))
                    continue;
                if (!model->setParameter(added.index, pair.first, pair.second))
                    problems->append(
                        QCoreApplication::translate(
                            "DesignSession", "%1: DMA request \"%2\" has no setting %3 = \"%4\"")
                            .arg(block.controller, name, pair.first, pair.second));
            }
        }
    }
}

void applyNvic(FormConfiguration &form, const DesignDocument &doc, QStringList *problems)
{
    NvicModel *nvic = form.nvicModel();
    if (!nvic || !doc.nvic.present)
        return;
    if (!doc.nvic.priorityGroup.isEmpty() && !nvic->setPriorityGroup(doc.nvic.priorityGroup))
        problems->append(
            QCoreApplication::translate("DesignSession", "NVIC: no priority group \"%1\"")
                .arg(doc.nvic.priorityGroup));
    nvic->setShowType(doc.nvic.showType);
    for (const auto &pair : doc.nvic.interrupts) {
        const NvicRow *row = nvic->row(pair.first);
        const QStringList parts = pair.second.split(QLatin1Char(';'));
        QList<int> numbers;
        for (const QString &part : parts) {
            bool ok = false;
            numbers << part.trimmed().toInt(&ok);
            if (!ok)
                numbers.clear();
            if (!ok)
                break;
        }
        if (!row) {
            problems->append(
                QCoreApplication::translate("DesignSession", "NVIC: no interrupt \"%1\"")
                    .arg(pair.first));
            continue;
        }
        if (numbers.size() != 2 && numbers.size() != 3) {
            problems->append(
                QCoreApplication::translate("DesignSession", "NVIC: \"%1\" is not valid for %2")
                    .arg(pair.second, pair.first));
            continue;
        }
        const bool enabled = numbers.size() == 3 ? numbers.first() != 0 : row->enabled();
        const int preemption = numbers.at(numbers.size() - 2);
        const int sub = numbers.last();
        if (!nvic->setInterrupt(pair.first, enabled, preemption, sub))
            problems->append(
                QCoreApplication::translate("DesignSession", "NVIC: %1 cannot take \"%2\"")
                    .arg(pair.first, pair.second));
    }
}

void applyGpio(FormConfiguration &form, const DesignDocument &doc, QStringList *problems)
{
    GpioSettingsModel *gpio = form.gpioModel();
    if (!gpio || !doc.gpio.present)
        return;
    gpio->setShowType(doc.gpio.showType);
    for (const DesignGpioSignal &signal : doc.gpio.signalList) {
        if (!gpio->row(signal.signalName, signal.pinName)) {
            problems->append(
                QCoreApplication::translate("DesignSession", "GPIO: %1 is not on pin %2")
                    .arg(signal.signalName, signal.pinName));
            continue;
        }
        for (const auto &pair : signal.parameters) {
            const bool ok = pair.first == QLatin1String("Label")
                                ? gpio->setLabel(signal.signalName, signal.pinName, pair.second)
                                : gpio->setParameter(signal.signalName, signal.pinName, pair.first,
                                                     pair.second);
            if (!ok)
                problems->append(
                    QCoreApplication::translate("DesignSession",
                                                "GPIO: %1 on %2 cannot take %3 = \"%4\"")
                        .arg(signal.signalName, signal.pinName, pair.first, pair.second));
        }
    }
}

} // namespace

DesignDocument collectDesign(const FormConfiguration &form)
{
    DesignDocument doc;
    const DesignData &design = form.design();
    doc.series = design.series;
    doc.device = design.mcuName;
    doc.package = design.package;
    collectPeripherals(form, &doc);
    collectDma(form, &doc);
    collectNvic(form, &doc);
    collectGpio(form, &doc);
    collectClock(form, &doc);
    collectPins(form, &doc);
    doc.hasProject = form.projectSetting() != nullptr;
    doc.project = form.projectInfo();
    return doc;
}

QStringList applyDesign(FormConfiguration &form, const DesignDocument &doc,
                        const std::function<void(int step)> &step)
{
    QStringList problems;
    auto done = [&step](int n) {
        QCoreApplication::processEvents();
        if (step)
            step(n);
    };
    // Blocks that name nothing of this device.
    for (const DesignPeripheralBlock &block : doc.peripherals) {
        if (!form.modePanel(block.instance))
            problems.append(QCoreApplication::translate("DesignSession",
                                                        "%1: no such peripheral on this device")
                                .arg(block.instance));
    }

    applyPins(form, doc, &problems);
    done(1);
    applyClock(form, doc);
    done(2);
    QSet<QString> dmaApplied;
    applyDma(form, doc, false, &dmaApplied, &problems);
    done(3);
    form.refreshSystemModels();
    done(4);
    for (const DesignPeripheralBlock *block : replayOrder(doc, form)) {
        if (IP_ModeAndConfiguration *panel = form.modePanel(block->instance))
            applyPeripheral(panel, *block, doc.series, &problems);
    }
    reconcilePins(form, doc);
    done(5);
    form.refreshSystemModels();
    applyDma(form, doc, true, &dmaApplied, &problems);
    form.refreshSystemModels();
    done(6);
    applyNvic(form, doc, &problems);
    applyGpio(form, doc, &problems);
    done(7);
    applyClock(form, doc);
    done(8);
    done(9);
    return problems;
}

DesignOpenResult openDesignFile(FormConfiguration &form, const QString &path,
                                const std::function<void(int step)> &step)
{
    DesignOpenResult result;
    const DesignReadResult read = readDesignDocument(path, &result.document);
    result.newerFormat = read.newerFormat();
    switch (read.status) {
    case DesignReadStatus::NotFound:
        result.status = DesignOpenStatus::NotFound;
        return result;
    case DesignReadStatus::Unreadable:
    case DesignReadStatus::NotADesign:
    case DesignReadStatus::NoDeviceInfo:
        result.status = DesignOpenStatus::NoDeviceInfo;
        return result;
    case DesignReadStatus::Ok:
        break;
    }
    const DesignDocument &doc = result.document;
    switch (CheckDesignHeader({doc.series, doc.device, doc.package})) {
    case DesignHeaderCheck::NoDeviceInfo:
        result.status = DesignOpenStatus::NoDeviceInfo;
        return result;
    case DesignHeaderCheck::DeviceNotSupported:
        result.status = DesignOpenStatus::DeviceNotSupported;
        return result;
    case DesignHeaderCheck::PackageNotSupported:
        result.status = DesignOpenStatus::PackageNotSupported;
        return result;
    case DesignHeaderCheck::Ok:
        break;
    }
    if (!form.buildDesign(doc.series, doc.device, doc.package)) {
        result.status = DesignOpenStatus::BuildFailed;
        return result;
    }
    result.problems = read.problems;
    result.problems += applyDesign(form, doc, step);
    if (doc.hasProject)
        form.setProjectInfo(doc.project);
    result.status = DesignOpenStatus::Opened;
    return result;
}

QString designOpenMessage(DesignOpenStatus status)
{
    switch (status) {
    case DesignOpenStatus::Opened:
        return QString();
    case DesignOpenStatus::NotFound:
        return QCoreApplication::translate("DesignSession", "File is not exists!");
    case DesignOpenStatus::NoDeviceInfo:
        return QCoreApplication::translate("DesignSession",
                                           "Open file error, can not get MCU information!");
    case DesignOpenStatus::DeviceNotSupported:
        return QCoreApplication::translate("DesignSession",
                                           "Open file error, MCU in file not supported.");
    case DesignOpenStatus::PackageNotSupported:
        return QCoreApplication::translate("DesignSession",
                                           "Open file error, MCU package in file not supported.");
    case DesignOpenStatus::BuildFailed:
        return QCoreApplication::translate(
            "DesignSession", "Open file error, the device's database files cannot be read.");
    }
    return QString();
}
