// The checks of the kinds of data that the larger families bring: remap groups and Multi
// functions of the device files, and, over the files of a series, the interrupt table, DMA
// and EDMA requests, ADC channels, CAN bit timing, semaphore routes, macro prefixes and the
// pins of virtual signals.

#include "database/databasechecker.h"

#include "database/devicereader.h"
#include "database/familyfacts.h"
#include "database/peripheralreader.h"

#include <QFile>
#include <QRegularExpression>

namespace {

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString parameterElement(const QString &name)
{
    return QStringLiteral("RefParameter ") + quoted(name);
}

// The names that a condition reads, as the evaluators split it.
QStringList conditionWords(const QString &text)
{
    QStringList names;
    for (const QString &term : text.split(QLatin1Char('&'))) {
        for (const QString &alternative : term.split(QLatin1Char('|'))) {
            QString name = alternative.trimmed();
            for (const QString &op :
                 {QStringLiteral("!="), QStringLiteral("="), QStringLiteral(">")}) {
                if (name.contains(op)) {
                    name = name.section(op, 0, 0);
                    break;
                }
            }
            name.remove(QLatin1Char('!'));
            if (!name.trimmed().isEmpty())
                names << name.trimmed();
        }
    }
    return names;
}

bool isNumber(const QString &text)
{
    bool ok = false;
    text.toLongLong(&ok);
    return ok;
}

// The module prefixes of firmware macro values, by kind of peripheral file.
const QMap<QString, QStringList> &macroPrefixes()
{
    static const QMap<QString, QStringList> prefixes = {
        {"USART", {"USART_", "MODE_", "VM_"}},
        {"UART", {"USART_", "MODE_", "VM_"}},
        {"SPI", {"SPI_"}},
        {"I2S", {"I2S_"}},
        {"I2SF", {"I2S_", "I2SF_"}},
        {"I2C", {"I2C_"}},
        {"CAN", {"CAN_"}},
        {"ADC", {"ADC_", "ADC12_", "ADC3_"}},
        {"ADC-Common", {"ADC_"}},
        {"DAC", {"DAC_"}},
        {"CMP", {"CMP_"}},
        {"TMR", {"TMR"}},
        {"ERTC", {"ERTC_"}},
        {"RTC", {"RTC_"}},
        {"CRC", {"CRC_"}},
        {"WDT", {"WDT_"}},
        {"WWDT", {"WWDT_"}},
        {"PWC", {"PWC_"}},
        {"EXINT", {"EXINT_"}},
        {"GPIO", {"GPIO_"}},
        {"NVIC", {"NVIC_"}},
        {"DMA", {"DMA_", "DMAMUX_"}},
        {"EDMA", {"EDMA_", "EDMAMUX_"}},
        {"SDIO", {"SDIO_"}},
        {"QSPI", {"QSPI_"}},
        {"SPIM", {"FLASH_SPIM_"}},
        {"XMC", {"XMC_"}},
        {"EMAC", {"EMAC_"}},
        {"DVP", {"DVP_"}},
        {"ACC", {"ACC_"}},
    };
    return prefixes;
}

// The kind of a peripheral file by its stem: "TMR10_11_13" is a TMR file, "ADC2" an ADC one.
QString fileKind(const QString &stem)
{
    if (stem.startsWith(QLatin1String("XMC")))
        return QStringLiteral("XMC");
    if (stem.startsWith(QLatin1String("TMR")))
        return QStringLiteral("TMR");
    if (stem.startsWith(QLatin1String("ADC")) && stem != QLatin1String("ADC-Common"))
        return QStringLiteral("ADC");
    return QString(stem).remove(QRegularExpression(QStringLiteral("\\d+$")));
}

// A DMA channel as a request names it: the controller and the channel number.
struct DmaChannel
{
    QString controller; // "DMA1", "DMA2" or "EDMA"
    int number = 0;
};

bool parseChannel(const QString &text, DmaChannel *channel)
{
    static const QRegularExpression rx(
        QStringLiteral("^(?:(DMA\\d+)_Channel|(EDMA)_Stream)(\\d+)$"));
    const QRegularExpressionMatch m = rx.match(text);
    if (!m.hasMatch())
        return false;
    channel->controller = m.captured(1).isEmpty() ? m.captured(2) : m.captured(1);
    channel->number = m.captured(3).toInt();
    return true;
}

// Every value a request parameter may take: its default and its possible values.
QStringList requestValues(const DMARequestInfo &request, const QString &name)
{
    QStringList out;
    for (const DMARequestParameter &p : request.Parameters) {
        if (p.Name != name)
            continue;
        if (!p.DefaultValue.isEmpty())
            out << p.DefaultValue;
        for (const QString &v : p.PossibleValues) {
            if (!v.isEmpty() && !out.contains(v))
                out << v;
        }
    }
    return out;
}

} // namespace

QSet<QString> DatabaseChecker::signalsOfInstance(const QMap<QString, QList<int>> &instanceDevices,
                                                 const QString &instance,
                                                 QStringList *deviceNames) const
{
    QSet<QString> available;
    for (int index : instanceDevices.value(instance)) {
        const Device &device = m_devices.at(index);
        available.unite(device.signalNames);
        if (deviceNames && !deviceNames->contains(device.name))
            *deviceNames << device.name;
    }
    return available;
}

// ---------------------------------------------------------------------------- device files --

void DatabaseChecker::checkDeviceRows(const Device &device)
{
    bool common = false;
    bool adc1 = false;
    for (const PeripheralListItem &row : device.rows) {
        common = common || row.InstanceName == QLatin1String("ADC-Common");
        adc1 = adc1 || row.InstanceName == QLatin1String("ADC1");
    }
    if (common && !adc1)
        report(DefectKind::DeviceFile, device.path,
               QStringLiteral("PeripheralsList \"ADC-Common\""),
               QStringLiteral("ADC-Common is listed without ADC1, whose settings it shares"));
}

void DatabaseChecker::checkRemapGroups(const Device &device, const QList<PinsSignalsGroup> &groups)
{
    QMap<QString, QMap<QString, int>> gmuxByIp; // IP -> GMUX -> the group that has it
    for (const PinsSignalsGroup &group : groups) {
        const QString element = QStringLiteral("PinsSignalsGroup ") + quoted(group.IPName) +
                                QLatin1Char(' ') + QString::number(group.GroupNum);
        const QString gmux = group.GMUX.trimmed();
        if (gmux.isEmpty()) {
            if (group.GroupNum != 0)
                report(DefectKind::RemapGroup, device.path, element,
                       QStringLiteral("the group has no GMUX; only group 0, the default "
                                      "placing, goes without a remap"));
            continue;
        }
        QMap<QString, int> &seen = gmuxByIp[group.IPName];
        if (seen.contains(gmux))
            report(DefectKind::RemapGroup, device.path, element,
                   QStringLiteral("GMUX ") + quoted(gmux) +
                       QStringLiteral(" is also the one of group %1").arg(seen.value(gmux)));
        else
            seen.insert(gmux, group.GroupNum);
    }
}

void DatabaseChecker::checkMultiFunctions(const Device &device, const DevicePinInfo &info)
{
    for (const MCUPinsBaseInfo *pin : info.pins) {
        QStringList multi;
        for (const MCUPinSignal *signal : pin->signalList) {
            if (signal->Multi)
                multi << signal->Func;
        }
        if (multi.size() == 1)
            report(DefectKind::MultiFunction, device.path,
                   QStringLiteral("Pin ") + quoted(pin->PinName.trimmed()),
                   quoted(multi.first()) +
                       QStringLiteral(" is Multi, but no other function of the pin is: it "
                                      "shares the pin with nothing"));
    }
}

// ----------------------------------------------------------------------------- series files --

void DatabaseChecker::checkSeriesFiles(const QString &series,
                                       const QMap<QString, PeripheralFile> &files)
{
    for (const PeripheralFile &file : files) {
        if (!file.readable)
            continue;
        if (file.stem == QLatin1String("NVIC"))
            checkInterruptTable(file);
        checkAdcChannels(file);
        checkCanTiming(series, file);
        checkMacroPrefixes(file);
    }
    checkVirtualPins(series, files);
    checkDmaRequests(series, files);
    checkSemaphoreRoutes(series, files);
}

void DatabaseChecker::checkVirtualPins(const QString &series,
                                       const QMap<QString, PeripheralFile> &files)
{
    // A virtual name that the mode logic replaces by a pin needs that pin on some package.
    QMap<QString, QString> pinOf;
    for (const FamilyFacts::VirtualName &entry : FamilyFacts::virtualNames(series)) {
        if (!entry.pinName.isEmpty())
            pinOf.insert(entry.name, entry.pinName);
    }
    if (pinOf.isEmpty())
        return;
    const PinNameIndex pins(m_seriesPinNames);
    for (const PeripheralFile &file : files) {
        if (!file.readable)
            continue;
        for (auto it = file.instanceDevices.constBegin(); it != file.instanceDevices.constEnd();
             ++it) {
            for (const ModeOption &mode : GetIPModes(it.key(), file.root)) {
                for (const ModeSignalGroup &group : mode.signalGroups) {
                    for (const QList<ModeSignal> &list : group.signalList) {
                        for (const ModeSignal &s : list) {
                            const QString pin = pinOf.value(s.signalName);
                            if (pin.isEmpty() || pins.find(pin) >= 0)
                                continue;
                            report(DefectKind::SignalNotOnPin, file.path,
                                   QStringLiteral("Mode ") + quoted(mode.Name),
                                   QStringLiteral("virtual signal ") + quoted(s.signalName) +
                                       QStringLiteral(" stands for pin ") + quoted(pin) +
                                       QStringLiteral(", which no package of ") + series +
                                       QStringLiteral(" has"));
                        }
                    }
                }
            }
        }
    }
}

void DatabaseChecker::checkInterruptTable(const PeripheralFile &file)
{
    static const QRegularExpression instanceWord(QStringLiteral("^[A-Za-z][A-Za-z0-9_-]*$"));
    QSet<QString> known = m_instances;
    if (m_instances.contains(QStringLiteral("DMA")))
        known << QStringLiteral("DMA1") << QStringLiteral("DMA2");
    if (m_instances.contains(QStringLiteral("EDMA")))
        known << QStringLiteral("EDMA");
    const QString element = parameterElement(QStringLiteral("IRQn"));
    QSet<QString> names;
    QSet<QString> handlers;
    for (const NVICInterrupt &irq : GetNVICInterrupts(file.root)) {
        const QString vector = QStringLiteral("vector ") + quoted(irq.IRQName);
        if (names.contains(irq.IRQName))
            report(DefectKind::Duplicate, file.path, element,
                   vector + QStringLiteral(" stands more than once"));
        if (handlers.contains(irq.Handler))
            report(DefectKind::Duplicate, file.path, element,
                   vector + QStringLiteral(": the handler ") + quoted(irq.Handler) +
                       QStringLiteral(" serves another vector as well"));
        names.insert(irq.IRQName);
        handlers.insert(irq.Handler);
        for (const QString &condition : irq.conditions) {
            const QString word = condition.trimmed();
            if (word.isEmpty())
                continue;
            if (!instanceWord.match(word).hasMatch()) {
                report(DefectKind::UndefinedName, file.path, element,
                       vector + QStringLiteral(": Condition ") + quoted(word) +
                           QStringLiteral(" is not an instance name"));
                continue;
            }
            // The NVIC panel takes "I2SF" for every instance that begins with it.
            const bool prefix =
                word == QLatin1String("I2SF") &&
                std::any_of(m_instances.cbegin(), m_instances.cend(),
                            [&word](const QString &i) { return i.startsWith(word); });
            if (!known.contains(word) && !prefix)
                report(DefectKind::UndefinedName, file.path, element,
                       vector + QStringLiteral(": Condition names ") + quoted(word) +
                           QStringLiteral(", which no device of the series lists"));
        }
    }
}

void DatabaseChecker::checkDmaRequests(const QString &series,
                                       const QMap<QString, PeripheralFile> &files)
{
    // The channels that have interrupt vectors, by controller.
    QMap<QString, QSet<int>> vectored;
    bool haveTable = false;
    static const QRegularExpression vectorRx(
        QStringLiteral("^(?:(DMA\\d+)_Channel|(EDMA)_Stream)([0-9_]+)_IRQn$"));
    for (const PeripheralFile &file : files) {
        if (file.stem != QLatin1String("NVIC") || !file.readable)
            continue;
        haveTable = true;
        for (const NVICInterrupt &irq : GetNVICInterrupts(file.root)) {
            const QRegularExpressionMatch m = vectorRx.match(irq.IRQName);
            if (!m.hasMatch())
                continue;
            const QString controller = m.captured(1).isEmpty() ? m.captured(2) : m.captured(1);
            for (const QString &n : m.captured(3).split(QLatin1Char('_'), Qt::SkipEmptyParts))
                vectored[controller].insert(n.toInt());
        }
    }

    const PeripheralFile *edma = nullptr;
    for (const PeripheralFile &file : files) {
        if (file.stem != QLatin1String("DMA") && file.stem != QLatin1String("EDMA"))
            continue;
        if (file.stem == QLatin1String("EDMA"))
            edma = &file;
        if (!file.readable)
            continue;
        // Request line -> the requests that select it, with the controllers they run on:
        // each controller has its own multiplexer, so a line may repeat on another one.
        QMap<QString, QList<QPair<QString, QSet<QString>>>> selects;
        for (const DMARequestInfo &request : GetDMARequests(file.root)) {
            const QString element = QStringLiteral("RefMode ") + quoted(request.Name);
            QSet<QString> controllers;
            for (const QString &value : requestValues(request, QStringLiteral("Instance"))) {
                DmaChannel channel;
                if (!parseChannel(value, &channel)) {
                    report(DefectKind::DmaRequest, file.path, element,
                           QStringLiteral("channel ") + quoted(value) +
                               QStringLiteral(" is neither DMA<n>_Channel<m> nor "
                                              "EDMA_Stream<k>"));
                    continue;
                }
                controllers.insert(channel.controller);
                if (!haveTable)
                    continue;
                const QSet<int> numbers = vectored.value(channel.controller);
                if (numbers.isEmpty()) {
                    report(DefectKind::DmaRequest, file.path, element,
                           QStringLiteral("channel ") + quoted(value) +
                               QStringLiteral(": the interrupt table has no vector of ") +
                               channel.controller);
                    continue;
                }
                const int highest = *std::max_element(numbers.cbegin(), numbers.cend());
                if (channel.number < 1 || channel.number > highest)
                    report(DefectKind::DmaRequest, file.path, element,
                           QStringLiteral("channel ") + quoted(value) +
                               QStringLiteral(" lies beyond the channels of %1 (1 to %2)")
                                   .arg(channel.controller)
                                   .arg(highest));
                else if (!numbers.contains(channel.number))
                    report(DefectKind::DmaRequest, file.path, element,
                           QStringLiteral("channel ") + quoted(value) +
                               QStringLiteral(" has no interrupt vector"));
            }
            static const QStringList pseudo = {QStringLiteral("MEMTOMEM"),
                                               QStringLiteral("GENERATOR"), QStringLiteral("DAC")};
            for (const QString &value : requestValues(request, QStringLiteral("IpInstance"))) {
                if (!m_instances.contains(value) && !pseudo.contains(value))
                    report(DefectKind::DmaRequest, file.path, element,
                           QStringLiteral("IpInstance ") + quoted(value) +
                               QStringLiteral(" is no instance that a device of ") + series +
                               QStringLiteral(" lists"));
            }
            for (const QString &value : requestValues(request, QStringLiteral("RequestSelect"))) {
                for (const auto &other : selects.value(value)) {
                    if (other.second.intersects(controllers) || controllers.isEmpty() ||
                        other.second.isEmpty())
                        report(DefectKind::DmaRequest, file.path, element,
                               QStringLiteral("RequestSelect ") + quoted(value) +
                                   QStringLiteral(" is the request line of ") +
                                   quoted(other.first) +
                                   QStringLiteral(" on the same controller as well"));
                }
                selects[value].append(qMakePair(request.Name, controllers));
            }
        }
    }

    // The DMA panel reads the EDMA controller a second time from the secondary folder.
    if (!edma || !m_instances.contains(QStringLiteral("DMA")))
        return;
    const QString name = QStringLiteral("EDMA-") + edma->version + QStringLiteral(".xml");
    const QString secondary = m_folder + QStringLiteral("/device/") + series +
                              QStringLiteral("/device/Peripherals/") + name;
    QFile copy(secondary);
    if (!copy.open(QIODevice::ReadOnly)) {
        report(DefectKind::MissingFile, edma->path, QString(),
               QStringLiteral("the series has DMA and EDMA, but no ") +
                   quoted(QStringLiteral("device/Peripherals/") + name));
        return;
    }
    QFile primary(edma->path);
    if (!primary.open(QIODevice::ReadOnly) || primary.readAll() != copy.readAll())
        report(DefectKind::DmaRequest, secondary, QString(),
               QStringLiteral("differs from ") + quoted(QStringLiteral("Peripherals/") + name));
}

void DatabaseChecker::checkAdcChannels(const PeripheralFile &file)
{
    static const QRegularExpression adcRx(QStringLiteral("^ADC\\d+$"));
    static const QRegularExpression channelRx(QStringLiteral("^ADC_CHANNEL_(\\d+)$"));
    for (auto it = file.instanceDevices.constBegin(); it != file.instanceDevices.constEnd();
         ++it) {
        const QString &instance = it.key();
        if (!adcRx.match(instance).hasMatch())
            continue;
        QStringList deviceNames;
        const QSet<QString> available =
            signalsOfInstance(file.instanceDevices, instance, &deviceNames);
        QSet<int> seen;
        for (const RefParameter &p : GetAllRefParameters(instance, file.root)) {
            for (const RefParamValue &v : p.PossibleValues) {
                const QRegularExpressionMatch m = channelRx.match(v.Value);
                if (!m.hasMatch())
                    continue;
                const int k = m.captured(1).toInt();
                if (seen.contains(k))
                    continue;
                seen.insert(k);
                // Channels 16 and 17 are ADC1's inner sensor and reference: they need no pin.
                if (k == 16 || k == 17) {
                    if (instance != QLatin1String("ADC1"))
                        report(DefectKind::SignalNotOnPin, file.path, parameterElement(p.Name),
                               quoted(v.Value) + QStringLiteral(" of ") + instance +
                                   QStringLiteral(": channels 16 and 17 are ADC1's inner "
                                                  "channels only"));
                    continue;
                }
                const QString signal = instance + QStringLiteral("_IN") + QString::number(k);
                if (!available.contains(signal))
                    report(DefectKind::SignalNotOnPin, file.path, parameterElement(p.Name),
                           quoted(v.Value) + QStringLiteral(" of ") + instance +
                               QStringLiteral(" needs ") + quoted(signal) +
                               QStringLiteral(", which is on no pin of ") +
                               deviceNames.join(QStringLiteral(", ")));
            }
        }
    }
}

void DatabaseChecker::checkCanTiming(const QString &series, const PeripheralFile &file)
{
    QString instance;
    for (auto it = file.instanceDevices.constBegin(); it != file.instanceDevices.constEnd();
         ++it) {
        if (it.key().startsWith(QLatin1String("CAN")))
            instance = it.key();
    }
    if (instance.isEmpty())
        return;
    struct Range
    {
        const char *name;
        int min;
        int max;
    };
    const Range ranges[] = {{"BTS1", 1, 16},
                            {"BTS2", 1, 8},
                            {"BaudRate_Division", 1, FamilyFacts::canPrescalerMax(series)},
                            {"Sample_Point", 50, 90}};
    for (const Range &range : ranges) {
        const QString name = QString::fromLatin1(range.name);
        const RefParameter p = GetRefParameter(instance, name, file.root);
        if (p.Name.isEmpty()) {
            report(DefectKind::CanTiming, file.path, QString(),
                   QStringLiteral("the bit timing parameter ") + quoted(name) +
                       QStringLiteral(" is missing"));
            continue;
        }
        bool minOk = false;
        bool maxOk = false;
        const double min = p.Min.toDouble(&minOk);
        const double max = p.Max.toDouble(&maxOk);
        if (!minOk || !maxOk || min != range.min || max != range.max)
            report(DefectKind::CanTiming, file.path, parameterElement(name),
                   QStringLiteral("ranges ") + quoted(p.Min) + QStringLiteral(" to ") +
                       quoted(p.Max) + QStringLiteral("; the controller of ") + series +
                       QStringLiteral(" takes %1 to %2").arg(range.min).arg(range.max));
        if (name == QLatin1String("Sample_Point") && p.Type != QLatin1String("double"))
            report(DefectKind::CanTiming, file.path, parameterElement(name),
                   QStringLiteral("the sample point is a percentage with a fraction: its Type "
                                  "must be \"double\", not ") +
                       quoted(p.Type));
    }
    const RefParameter rsaw = GetRefParameter(instance, QStringLiteral("RSAW"), file.root);
    if (rsaw.Name.isEmpty()) {
        report(DefectKind::CanTiming, file.path, QString(),
               QStringLiteral("the bit timing parameter \"RSAW\" is missing"));
        return;
    }
    for (const RefParamValue &v : rsaw.PossibleValues) {
        bool ok = false;
        const int width = v.Value.toInt(&ok);
        if (!ok || width < 1 || width > 4)
            report(DefectKind::CanTiming, file.path, parameterElement(rsaw.Name),
                   QStringLiteral("value ") + quoted(v.Value) +
                       QStringLiteral(" is no jump width of 1 to 4 quanta"));
    }
}

void DatabaseChecker::checkSemaphoreRoutes(const QString &series,
                                           const QMap<QString, PeripheralFile> &files)
{
    // What each instance raises, over every file of the series.
    QMap<QString, QSet<QString>> raisedBy;
    for (const PeripheralFile &file : files) {
        if (!file.readable)
            continue;
        for (auto it = file.instanceDevices.constBegin(); it != file.instanceDevices.constEnd();
             ++it) {
            QSet<QString> &raised = raisedBy[it.key()];
            for (const ModeOption &mode : GetIPModes(it.key(), file.root)) {
                raised.unite(QSet<QString>(mode.semaphores.begin(), mode.semaphores.end()));
                for (const ModeSignalGroup &group : mode.signalGroups)
                    raised.unite(QSet<QString>(group.semaphores.begin(), group.semaphores.end()));
            }
            for (const RefParameter &p : GetAllRefParameters(it.key(), file.root)) {
                for (const RefParamValue &v : p.PossibleValues) {
                    if (!v.Semaphore.isEmpty())
                        raised.insert(v.Semaphore.section(QLatin1Char('='), 0, 0).trimmed());
                }
            }
        }
    }

    for (const PeripheralFile &file : files) {
        if (!file.readable)
            continue;
        for (auto it = file.instanceDevices.constBegin(); it != file.instanceDevices.constEnd();
             ++it) {
            const QString &instance = it.key();
            QSet<QString> own;
            // (element, condition) pairs, as the reader substitutes them for the instance.
            QList<QPair<QString, QString>> reads;
            for (const ModeOption &mode : GetIPModes(instance, file.root)) {
                const QString element = QStringLiteral("Mode ") + quoted(mode.Name);
                reads << qMakePair(element, mode.Expression);
                for (const ModeSignalGroup &group : mode.signalGroups) {
                    if (group.RemoveCondition.split(QLatin1Char(' ')).contains(instance))
                        continue;
                    reads << qMakePair(element, group.Expression);
                }
            }
            for (const RefParameter &p : GetAllRefParameters(instance, file.root)) {
                own.insert(p.Name);
                if (p.Name == QLatin1String("IRQn"))
                    continue;
                reads << qMakePair(parameterElement(p.Name), p.Expression);
                for (const RefParamValue &v : p.PossibleValues)
                    reads << qMakePair(parameterElement(p.Name), v.Condition);
            }
            for (const auto &read : qAsConst(reads)) {
                for (const QString &name : conditionWords(read.second)) {
                    if (isNumber(name) || own.contains(name) || m_knownNames.contains(name) ||
                        raisedBy.value(instance).contains(name))
                        continue;
                    QStringList owners;
                    bool routed = false;
                    for (auto o = raisedBy.constBegin(); o != raisedBy.constEnd(); ++o) {
                        if (!o.value().contains(name))
                            continue;
                        owners << o.key();
                        routed = routed ||
                                 FamilyFacts::semaphoreTargets(series, o.key()).contains(instance);
                    }
                    if (owners.isEmpty() || routed)
                        continue;
                    report(DefectKind::Unrouted, file.path, read.first,
                           instance + QStringLiteral(" reads ") + quoted(name) +
                               QStringLiteral(" of ") + owners.join(QStringLiteral(", ")) +
                               QStringLiteral(", but on ") + series +
                               QStringLiteral(" no semaphore of theirs reaches ") + instance);
                }
            }
        }
    }
}

void DatabaseChecker::checkMacroPrefixes(const PeripheralFile &file)
{
    const QStringList prefixes = macroPrefixes().value(fileKind(file.stem));
    if (prefixes.isEmpty())
        return;
    // Words that the generated code tests as they stand, and parameters whose values are
    // channels, request lines, the interrupt table or address lines rather than macros.
    static const QStringList words = {"TRUE", "FALSE", "ENABLE", "DISABLE",
                                      "NONE", "INPUT", "OUTPUT", "ENCODER"};
    static const QStringList notMacros = {"Instance", "RequestSelect", "IRQn", "LCD_RS_line"};
    static const QRegularExpression macroRx(QStringLiteral("^[A-Z][A-Z0-9_]*$"));
    for (const IPNode &node : file.root.children) {
        if (node.tagName != QLatin1String("RefParameter"))
            continue;
        const QString name = node.attribute(QStringLiteral("Name"));
        if (notMacros.contains(name))
            continue;
        for (const IPNode &child : node.children) {
            if (child.tagName != QLatin1String("PossibleValue"))
                continue;
            const QString value = child.attribute(QStringLiteral("Value"));
            // Mixed case is a setting of the panel that the generated code only tests.
            if (value.isEmpty() || value != value.toUpper() || words.contains(value) ||
                isNumber(value))
                continue;
            if (!macroRx.match(value).hasMatch())
                report(DefectKind::MacroPrefix, file.path, parameterElement(name),
                       QStringLiteral("value ") + quoted(value) +
                           QStringLiteral(" is no macro name"));
            else if (!std::any_of(prefixes.cbegin(), prefixes.cend(),
                                  [&value](const QString &p) { return value.startsWith(p); }))
                report(DefectKind::MacroPrefix, file.path, parameterElement(name),
                       QStringLiteral("macro ") + quoted(value) +
                           QStringLiteral(" is not of the module ") +
                           prefixes.join(QLatin1Char('/')));
        }
    }
}
