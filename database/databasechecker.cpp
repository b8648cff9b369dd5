#include "database/databasechecker.h"

#include "database/catalogue.h"
#include "database/devicecheck.h"
#include "database/devicereader.h"
#include "database/paths.h"
#include "database/peripheralreader.h"
#include "database/safexml.h"
#include "database/xmlsection.h"

#include <QDir>
#include <QFileInfo>
#include <QRegExp>
#include <algorithm>

namespace {

const QString kIpInstance = QStringLiteral("$IpInstance");

// Interrupt priorities take four bits.
constexpr int kMaxIrqPriority = 15;

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

// The names that a mode-level expression reads (the semaphore evaluator's words).
QStringList semaphoreWords(const QString &text)
{
    QStringList names;
    for (const QString &term : text.split(QLatin1Char('&'))) {
        for (const QString &word : term.split(QLatin1Char('|'))) {
            QString name = word;
            name.remove(QLatin1Char('!'));
            names << name.trimmed();
        }
    }
    return names;
}

// The names that a parameter expression or a value condition reads (the value evaluator's).
QStringList valueWords(const QString &text)
{
    QStringList names;
    for (const QString &term : text.split(QLatin1Char('&'))) {
        for (const QString &alternative : term.split(QLatin1Char('|'))) {
            const QString alt = alternative.trimmed();
            QString name;
            if (alt.contains(QLatin1String("!=")))
                name = alt.section(QStringLiteral("!="), 0, 0);
            else if (alt.contains(QLatin1Char('=')))
                name = alt.section(QLatin1Char('='), 0, 0);
            else if (alt.contains(QLatin1Char('>')))
                name = alt.section(QLatin1Char('>'), 0, 0);
            else
                name = QString(alt).remove(QLatin1Char('!'));
            names << name.trimmed();
        }
    }
    return names;
}

// A number of a parameter: hexadecimal types always read base 16, others by their prefix.
bool readNumber(const QString &type, const QString &text, double *value)
{
    QString t = text.trimmed();
    const bool hexPrefix = t.startsWith(QLatin1String("0x"), Qt::CaseInsensitive);
    if (hexPrefix)
        t = t.mid(2);
    bool ok = false;
    if (type == QLatin1String("hexadecimal") || hexPrefix)
        *value = static_cast<double>(t.toULongLong(&ok, 16));
    else if (type == QLatin1String("integer"))
        *value = static_cast<double>(t.toLongLong(&ok, 10));
    else
        *value = t.toDouble(&ok);
    return ok;
}

bool removedOn(const QString &condition, const QStringList &words)
{
    if (condition.isEmpty())
        return false;
    for (const QString &word : words) {
        if (!word.isEmpty() && condition.contains(word))
            return true;
    }
    return false;
}

// Signals whose presence the mode panel decides by package rather than by pins.
bool packageDependentSignal(const QString &name)
{
    static const QStringList names{
        QStringLiteral("SCFG_VS_PA11PA12_REMAP"), QStringLiteral("SCFG_VS_I2S23"),
        QStringLiteral("SCFG_VS_I2S12"), QStringLiteral("SCFG_VS_I2S13")};
    return names.contains(name);
}

QString elementName(const IPNode &node)
{
    return node.tagName + QLatin1Char(' ') + quoted(node.attribute(QStringLiteral("Name")));
}

} // namespace

QString DatabaseDefect::text() const
{
    if (element.isEmpty())
        return file + QStringLiteral(": ") + message;
    return file + QStringLiteral(": ") + element + QStringLiteral(": ") + message;
}

QString defectKindName(DefectKind kind)
{
    switch (kind) {
    case DefectKind::Parse:
        return QStringLiteral("file");
    case DefectKind::MissingFile:
        return QStringLiteral("missing-peripheral-file");
    case DefectKind::SignalNotOnPin:
        return QStringLiteral("signal-not-on-pin");
    case DefectKind::GroupPinUnknown:
        return QStringLiteral("group-pin-unknown");
    case DefectKind::IRQnPattern:
        return QStringLiteral("irqn-pattern");
    case DefectKind::UnknownType:
        return QStringLiteral("unknown-type");
    case DefectKind::MissingTranslation:
        return QStringLiteral("missing-translation");
    case DefectKind::UndefinedName:
        return QStringLiteral("undefined-name");
    case DefectKind::BadDefault:
        return QStringLiteral("bad-default");
    case DefectKind::DeviceFile:
        return QStringLiteral("device-file");
    case DefectKind::Duplicate:
        return QStringLiteral("duplicate");
    case DefectKind::BadNumber:
        return QStringLiteral("bad-number");
    case DefectKind::UnsafeName:
        return QStringLiteral("unsafe-name");
    case DefectKind::DmaRequest:
        return QStringLiteral("dma-request");
    case DefectKind::CanTiming:
        return QStringLiteral("can-timing");
    case DefectKind::Unrouted:
        return QStringLiteral("unrouted-semaphore");
    case DefectKind::MacroPrefix:
        return QStringLiteral("macro-prefix");
    case DefectKind::RemapGroup:
        return QStringLiteral("remap-group");
    case DefectKind::MultiFunction:
        return QStringLiteral("multi-function");
    }
    return QString();
}

DatabaseChecker::DatabaseChecker(const QString &databaseFolder)
    : m_folder(QDir::cleanPath(databaseFolder)), m_knownNames{
                                                     QStringLiteral("CRM_USB_CLOCK_SOURCE_HICK"),
                                                     QStringLiteral("ADC1_DMA_ENABLE"),
                                                     QStringLiteral("ADC1_ADC2_DMA_ENABLE")}
{
}

void DatabaseChecker::addKnownNames(const QStringList &names)
{
    m_knownNames << names;
}

const QStringList &DatabaseChecker::knownTypes()
{
    static const QStringList types{QStringLiteral("integer"),    QStringLiteral("hexadecimal"),
                                   QStringLiteral("string"),     QStringLiteral("double"),
                                   QStringLiteral("list"),       QStringLiteral("string edit"),
                                   QStringLiteral("mac address")};
    return types;
}

QList<DatabaseDefect> DatabaseChecker::run()
{
    m_devices.clear();
    m_defects.clear();
    m_reported.clear();
    checkCatalogue();
    return m_defects;
}

void DatabaseChecker::report(DefectKind kind, const QString &path, const QString &element,
                             const QString &message)
{
    DatabaseDefect defect;
    defect.kind = kind;
    defect.file = relative(path);
    defect.element = element;
    defect.message = message;
    if (m_reported.contains(defect.text()))
        return;
    m_reported.insert(defect.text());
    m_defects.append(defect);
}

QString DatabaseChecker::relative(const QString &path) const
{
    return QDir(m_folder).relativeFilePath(path);
}

void DatabaseChecker::checkCatalogue()
{
    const QString path = m_folder + QStringLiteral("/MCUList.xml");
    if (!QFileInfo(path).isFile()) {
        report(DefectKind::Parse, path, QString(), QStringLiteral("file is missing"));
        return;
    }
    QByteArray data;
    QString problem;
    if (!readSafeXmlFile(path, &data, &problem)) {
        report(DefectKind::Parse, path, QString(), QStringLiteral("does not parse: ") + problem);
        return;
    }
    const LoadedXml file = loadXmlFile(path);
    for (const char *term : {"MCUSerialsList", "MCUPackageList"}) {
        if (findTermSection(file.root, QString::fromLatin1(term)).isNull())
            report(DefectKind::Parse, path, QString(),
                   QStringLiteral("has no section ") + quoted(QString::fromLatin1(term)));
    }
    const QList<MCUSerialInfo> series = GetMCUSerialList(path);
    QSet<QString> seen;
    for (const MCUSerialInfo &info : series) {
        const QString element = QStringLiteral("MCUSerialsList ") + quoted(info.Serial);
        if (!IsPlainFileStem(info.Serial)) {
            report(DefectKind::UnsafeName, path, element,
                   QStringLiteral("the series name is no plain folder name; it is not read"));
            continue;
        }
        if (seen.contains(info.Serial)) {
            report(DefectKind::Duplicate, path, element,
                   QStringLiteral("the series is listed more than once"));
            continue;
        }
        seen.insert(info.Serial);
        checkPair(path, element, QStringLiteral("InfoEN"), info.InfoEN, QStringLiteral("InfoCH"),
                  info.InfoCH);
        if (findTermSection(file.root, info.Serial).isNull()) {
            report(DefectKind::Parse, path, QString(),
                   QStringLiteral("has no section ") + quoted(info.Serial));
            continue;
        }
        checkSeries(info.Serial, GetMCUList(path, info.Serial));
    }
}

bool DatabaseChecker::readDevice(const QString &series, const MCUListItem &item, Device *device)
{
    device->series = series;
    device->name = item.Name;
    device->package = item.Package;
    const QString catalogue = m_folder + QStringLiteral("/MCUList.xml");
    const QString rowElement = series + QStringLiteral(" / Device ") + quoted(item.Name);
    if (item.Name.trimmed().isEmpty()) {
        report(DefectKind::DeviceFile, catalogue, series,
               QStringLiteral("a device row has no Name"));
        return false;
    }
    if (!IsPlainFileStem(item.Name)) {
        report(DefectKind::UnsafeName, catalogue, rowElement,
               QStringLiteral("the device name is no plain file name; it is not read"));
        return false;
    }
    device->path = m_folder + QStringLiteral("/device/") + series + QLatin1Char('/') + item.Name +
                   QStringLiteral(".xml");
    if (!QFileInfo(device->path).isFile()) {
        report(DefectKind::Parse, device->path, QString(), QStringLiteral("file is missing"));
        return false;
    }
    QByteArray data;
    QString problem;
    if (!readSafeXmlFile(device->path, &data, &problem)) {
        report(DefectKind::Parse, device->path, QString(),
               QStringLiteral("does not parse: ") + problem);
        return false;
    }
    for (const DeviceFileIssue &issue : DeviceFileIssues(device->path)) {
        const QString where =
            issue.line > 0 ? QStringLiteral("line %1: ").arg(issue.line) : QString();
        report(issue.element.isEmpty() ? DefectKind::Parse : DefectKind::DeviceFile, device->path,
               issue.element, where + issue.message);
    }
    DevicePinInfo info;
    ReadDevicePinInfo(device->path, &info);
    for (const MCUPinsBaseInfo *pin : qAsConst(info.pins)) {
        device->pinNames.append(pin->PinName);
        device->signalNames.insert(pin->PinName.trimmed());
        for (const MCUPinSignal *signal : pin->signalList)
            device->signalNames.insert(signal->Func);
        checkPair(device->path, QStringLiteral("Pin ") + quoted(pin->PinName.trimmed()),
                  QStringLiteral("Remarks_EN"), pin->Remarks_EN, QStringLiteral("Remarks_CH"),
                  pin->Remarks_CH);
    }
    checkMultiFunctions(*device, info);
    device->rows = GetPeripheralsList(device->path);
    for (const PeripheralListItem &row : qAsConst(device->rows)) {
        checkPair(device->path, QStringLiteral("PeripheralsList ") + quoted(row.InstanceName),
                  QStringLiteral("About"), row.About, QStringLiteral("AboutCH"), row.AboutCH);
    }
    checkDeviceRows(*device);
    return true;
}

void DatabaseChecker::checkSeries(const QString &series, const QList<MCUListItem> &items)
{
    QList<int> indexes;
    QSet<QString> names;
    for (const MCUListItem &item : items) {
        if (!item.Name.isEmpty() && names.contains(item.Name)) {
            report(DefectKind::Duplicate, m_folder + QStringLiteral("/MCUList.xml"),
                   series + QStringLiteral(" / Device ") + quoted(item.Name),
                   QStringLiteral("the device is listed more than once"));
            continue;
        }
        names.insert(item.Name);
        Device device;
        if (readDevice(series, item, &device)) {
            indexes.append(m_devices.size());
            m_devices.append(device);
        }
    }
    m_seriesDevices = indexes;
    m_seriesPinNames.clear();
    for (int index : qAsConst(indexes))
        m_seriesPinNames << m_devices[index].pinNames;
    checkGroups(series, indexes);

    const QString seriesFolder = m_folder + QStringLiteral("/device/") + series;
    const QString peripheralFolder = seriesFolder + QStringLiteral("/Peripherals/");
    checkPeripheralFolder(peripheralFolder);
    checkPeripheralFolder(seriesFolder + QStringLiteral("/device/Peripherals/"));

    // The files in use, with the instances and devices that use each.
    QMap<QString, PeripheralFile> files;
    QSet<QString> instances;
    for (int index : qAsConst(indexes)) {
        const Device &device = m_devices[index];
        for (const PeripheralListItem &row : device.rows) {
            instances.insert(row.InstanceName);
            if (row.Version.isEmpty())
                continue;
            QStringList stems{row.Name};
            static const QStringList blocks{QStringLiteral("GPIO"), QStringLiteral("NVIC"),
                                            QStringLiteral("DMA"), QStringLiteral("EDMA")};
            if (blocks.contains(row.InstanceName) && row.InstanceName != row.Name)
                stems << row.InstanceName;
            for (const QString &stem : stems) {
                if (stem.isEmpty())
                    continue; // a row without a name is a fault of the device file
                if (!IsPlainFileStem(stem) || !IsPlainFileStem(row.Version)) {
                    report(DefectKind::UnsafeName, device.path,
                           QStringLiteral("PeripheralsList ") + quoted(row.InstanceName),
                           QStringLiteral("the file name ") +
                               quoted(stem + QLatin1Char('-') + row.Version +
                                      QStringLiteral(".xml")) +
                               QStringLiteral(" would leave the Peripherals folder; it is not "
                                              "read"));
                    continue;
                }
                const QString path = peripheralFolder + stem + QLatin1Char('-') + row.Version +
                                     QStringLiteral(".xml");
                if (!QFileInfo(path).isFile()) {
                    report(DefectKind::MissingFile, device.path,
                           QStringLiteral("PeripheralsList ") + quoted(row.InstanceName),
                           QStringLiteral("no file ") + quoted(QStringLiteral("Peripherals/") +
                                                               QFileInfo(path).fileName()));
                    continue;
                }
                PeripheralFile &file = files[path];
                file.path = path;
                file.stem = stem;
                file.version = row.Version;
                file.instanceDevices[row.InstanceName].append(index);
            }
        }
    }

    m_instances = instances;
    QSet<QString> defined = QSet<QString>(m_knownNames.begin(), m_knownNames.end());
    defined.unite(instances);
    // Interrupt conditions may name the DMA controllers that requests are configured on.
    if (instances.contains(QStringLiteral("DMA")))
        defined << QStringLiteral("DMA1") << QStringLiteral("DMA2");
    if (instances.contains(QStringLiteral("EDMA")))
        defined << QStringLiteral("EDMA");
    for (PeripheralFile &file : files) {
        file.root = ReadIPFile(file.path);
        file.readable = !file.root.isEmpty();
        if (file.readable)
            collectDefinedNames(file, &defined);
    }
    for (const PeripheralFile &file : qAsConst(files)) {
        if (file.readable)
            checkPeripheralFile(file, defined);
    }
    checkSeriesFiles(series, files);
}

void DatabaseChecker::checkGroups(const QString &series, const QList<int> &deviceIndexes)
{
    QStringList pinNames;
    for (int index : deviceIndexes)
        pinNames << m_devices[index].pinNames;
    const PinNameIndex pins(pinNames);
    for (int index : deviceIndexes) {
        const Device &device = m_devices[index];
        const QList<PinsSignalsGroup> groups = GetPinsSignalsGroups(device.path);
        checkRemapGroups(device, groups);
        for (const PinsSignalsGroup &group : groups) {
            const QString element = QStringLiteral("PinsSignalsGroup ") + quoted(group.IPName) +
                                    QLatin1Char(' ') + QString::number(group.GroupNum);
            for (const GroupSignal &signal : group.signalList) {
                if (pins.find(signal.PinName) < 0)
                    report(DefectKind::GroupPinUnknown, device.path, element,
                           QStringLiteral("pin ") + quoted(signal.PinName) +
                               QStringLiteral(" of signal ") + quoted(signal.SignalName) +
                               QStringLiteral(" is on no package of ") + series);
            }
        }
    }
}

void DatabaseChecker::checkPeripheralFolder(const QString &folder)
{
    const QDir dir(folder);
    if (!dir.exists())
        return;
    for (const QString &name : dir.entryList({QStringLiteral("*.xml")}, QDir::Files, QDir::Name)) {
        const QString path = dir.filePath(name);
        QByteArray data;
        QString problem;
        if (!readSafeXmlFile(path, &data, &problem)) {
            report(DefectKind::Parse, path, QString(),
                   QStringLiteral("does not parse: ") + problem);
            continue;
        }
        if (ReadIPFile(path).isEmpty()) {
            QDomDocument doc;
            parseXmlDocument(data, &doc);
            report(DefectKind::Parse, path, QString(),
                   QStringLiteral("root element is ") + quoted(doc.documentElement().tagName()) +
                       QStringLiteral(", not \"IP\""));
        }
    }
}

void DatabaseChecker::collectDefinedNames(const PeripheralFile &file, QSet<QString> *names) const
{
    const auto add = [names](const QString &name) {
        if (name.trimmed().isEmpty())
            return;
        names->insert(name.trimmed());
        if (name.contains(QLatin1Char('=')))
            names->insert(name.section(QLatin1Char('='), 0, 0).trimmed());
    };
    for (auto it = file.instanceDevices.constBegin(); it != file.instanceDevices.constEnd();
         ++it) {
        const QString &instance = it.key();
        for (const ModeOption &mode : GetIPModes(instance, file.root)) {
            for (const QString &s : mode.semaphores)
                add(s);
            for (const ModeSignalGroup &group : mode.signalGroups) {
                for (const QString &s : group.semaphores)
                    add(s);
            }
        }
        for (const RefParameter &p : GetAllRefParameters(instance, file.root)) {
            add(p.Name);
            for (const RefParamValue &v : p.PossibleValues)
                add(v.Semaphore);
        }
    }
}

void DatabaseChecker::checkPeripheralFile(const PeripheralFile &file, const QSet<QString> &defined)
{
    checkModes(file, defined);
    checkParameters(file, defined);
    for (const IPNode &node : file.root.children) {
        if (node.tagName == QLatin1String("RefMode"))
            checkPair(file.path, elementName(node), node, QStringLiteral("Group"),
                      QStringLiteral("GroupCH"));
    }
}

void DatabaseChecker::checkModes(const PeripheralFile &file, const QSet<QString> &defined)
{
    for (const IPNode &top : file.root.children) {
        if (top.tagName != QLatin1String("ModeLogicOperator"))
            continue;
        for (const IPNode &mode : top.children) {
            if (mode.tagName != QLatin1String("Mode"))
                continue;
            const QString modeElement =
                QStringLiteral("Mode ") + quoted(mode.attribute(QStringLiteral("Name")));
            checkPair(file.path, modeElement, mode, QStringLiteral("UserName"),
                      QStringLiteral("UserNameCH"));
            for (const IPNode &child : mode.children) {
                if (child.tagName == QLatin1String("Annotation"))
                    checkPair(file.path, modeElement, child, QStringLiteral("Note"),
                              QStringLiteral("NoteCH"));
                if (child.tagName == QLatin1String("Condition"))
                    checkPair(file.path, modeElement, child, QStringLiteral("Diagnostic"),
                              QStringLiteral("DiagnosticCH"));
                if (child.tagName != QLatin1String("ModeLogicOperator"))
                    continue;
                for (const IPNode &group : child.children) {
                    if (group.isEmpty())
                        continue;
                    const QString groupElement = modeElement + QStringLiteral(" / ") +
                                                 quoted(group.attribute(QStringLiteral("Name")));
                    checkPair(file.path, groupElement, group, QStringLiteral("UserName"),
                              QStringLiteral("UserNameCH"));
                    for (const IPNode &c : group.children) {
                        if (c.tagName == QLatin1String("Condition"))
                            checkPair(file.path, groupElement, c, QStringLiteral("Diagnostic"),
                                      QStringLiteral("DiagnosticCH"));
                    }
                    checkModeSignals(file, mode, group, groupElement);
                }
            }
        }
    }

    // Expressions through the reader, so that the substitutions are the program's own.
    for (auto it = file.instanceDevices.constBegin(); it != file.instanceDevices.constEnd();
         ++it) {
        for (const ModeOption &mode : GetIPModes(it.key(), file.root)) {
            const QString modeElement = QStringLiteral("Mode ") + quoted(mode.Name);
            checkNames(file, modeElement, QStringLiteral("Expression"), mode.Expression, false,
                       defined);
            for (const ModeSignalGroup &group : mode.signalGroups) {
                checkNames(file, modeElement + QStringLiteral(" / ") + quoted(group.Name),
                           QStringLiteral("Expression"), group.Expression, false, defined);
            }
        }
    }
}

void DatabaseChecker::checkModeSignals(const PeripheralFile &file, const IPNode &mode,
                                       const IPNode &group, const QString &element)
{
    for (auto it = file.instanceDevices.constBegin(); it != file.instanceDevices.constEnd();
         ++it) {
        const QString &instance = it.key();
        // A RefSignal of the same file may declare a mode signal virtual.
        QSet<QString> declaredVirtual;
        for (const ModeSignal &s : GetIPRefSignals(instance, file.root)) {
            if (s.Virtual)
                declaredVirtual.insert(s.signalName);
        }
        QSet<QString> available;
        QStringList deviceNames;
        for (int index : it.value()) {
            const Device &device = m_devices[index];
            const QStringList words{device.series, device.name, device.package};
            const QString modeRemove = QString(mode.attribute(QStringLiteral("RemoveCondition")))
                                           .replace(kIpInstance, instance);
            const QString groupRemove = QString(group.attribute(QStringLiteral("RemoveCondition")))
                                            .replace(kIpInstance, instance);
            if (removedOn(modeRemove, words) ||
                removedOn(groupRemove, words + QStringList{instance}))
                continue;
            available.unite(device.signalNames);
            if (!deviceNames.contains(device.name))
                deviceNames << device.name;
        }
        if (deviceNames.isEmpty())
            continue;
        for (const IPNode &op : group.children) {
            if (op.tagName != QLatin1String("SignalLogicalOp"))
                continue;
            for (const IPNode &signal : op.children) {
                if (signal.isEmpty() ||
                    signal.attribute(QStringLiteral("Virtual")) == QLatin1String("true"))
                    continue;
                const QStringList shortNames =
                    ExpandSignalRange(signal.attribute(QStringLiteral("Name")));
                for (const QString &shortName : shortNames) {
                    const QString full = FullSignalName(instance, shortName);
                    if (declaredVirtual.contains(full))
                        continue;
                    if (!available.contains(full) && !packageDependentSignal(full))
                        report(DefectKind::SignalNotOnPin, file.path, element,
                               QStringLiteral("signal ") + quoted(full) + QStringLiteral(" of ") +
                                   instance + QStringLiteral(" is on no pin of ") +
                                   deviceNames.join(QStringLiteral(", ")));
                }
            }
        }
    }
}

void DatabaseChecker::checkParameters(const PeripheralFile &file, const QSet<QString> &defined)
{
    const QRegExp irqPattern(QString::fromLatin1(kIRQnPattern));
    for (const IPNode &node : file.root.children) {
        if (node.tagName != QLatin1String("RefParameter"))
            continue;
        const QString name = node.attribute(QStringLiteral("Name"));
        const QString element = elementName(node);
        const QString type = node.attribute(QStringLiteral("Type"));
        if (node.hasAttribute(QStringLiteral("Type")) && !knownTypes().contains(type))
            report(DefectKind::UnknownType, file.path, element,
                   QStringLiteral("unknown Type ") + quoted(type));
        checkPair(file.path, element, node, QStringLiteral("Comment"),
                  QStringLiteral("CommentCH"));
        checkPair(file.path, element, node, QStringLiteral("Group"), QStringLiteral("GroupCH"));

        QStringList values;
        for (const IPNode &child : node.children) {
            if (child.tagName == QLatin1String("Annotation"))
                checkPair(file.path, element, child, QStringLiteral("Note"),
                          QStringLiteral("NoteCH"));
            if (child.tagName != QLatin1String("PossibleValue"))
                continue;
            const QString value = child.attribute(QStringLiteral("Value"));
            values << value;
            const QString valueElement =
                element + QStringLiteral(" / PossibleValue ") + quoted(value);
            checkPair(file.path, valueElement, child, QStringLiteral("Comment"),
                      QStringLiteral("CommentCH"));
            checkPair(file.path, valueElement, child, QStringLiteral("Diagnostic"),
                      QStringLiteral("DiagnosticCH"));
            if (name == QLatin1String("IRQn")) {
                QRegExp rx = irqPattern;
                if (rx.indexIn(value) < 0) {
                    report(DefectKind::IRQnPattern, file.path, element,
                           QStringLiteral("value ") + quoted(value) +
                               QStringLiteral(" does not match the IRQn pattern"));
                    continue;
                }
                for (int cap : {6, 8}) {
                    bool ok = false;
                    const int priority = rx.cap(cap).trimmed().toInt(&ok, 10);
                    if (!ok || priority < 0 || priority > kMaxIrqPriority)
                        report(
                            DefectKind::BadNumber, file.path, valueElement,
                            QStringLiteral("the ") +
                                (cap == 6 ? QStringLiteral("preemption") : QStringLiteral("sub")) +
                                QStringLiteral(" priority ") + quoted(rx.cap(cap)) +
                                QStringLiteral(" is not a number from 0 to %1")
                                    .arg(kMaxIrqPriority));
                }
            }
        }

        // Conditions and expressions, per instance, as the reader substitutes them.
        for (auto it = file.instanceDevices.constBegin(); it != file.instanceDevices.constEnd();
             ++it) {
            const RefParameter p = GetRefParameter(it.key(), name, file.root);
            checkNames(file, element, QStringLiteral("Expression"), p.Expression, true, defined);
            // The interrupt table's conditions name instances (checkInterruptTable).
            if (name == QLatin1String("IRQn"))
                continue;
            for (const RefParamValue &v : p.PossibleValues) {
                const QString valueElement =
                    element + QStringLiteral(" / PossibleValue ") + quoted(v.Value);
                checkNames(file, valueElement, QStringLiteral("Condition"), v.Condition, true,
                           defined);
            }
        }

        // The bounds of a number must be numbers of its type.
        if (type == QLatin1String("integer") || type == QLatin1String("hexadecimal") ||
            type == QLatin1String("double")) {
            for (const QString &bound : {QStringLiteral("Min"), QStringLiteral("Max")}) {
                // "/16" is a divider of a clock, which a calculator turns into the bound.
                QString text = node.attribute(bound).trimmed();
                if (text.startsWith(QLatin1Char('/')))
                    text = text.mid(1);
                double ignored = 0;
                if (!text.isEmpty() && !readNumber(type, text, &ignored))
                    report(DefectKind::BadNumber, file.path, element,
                           bound + QLatin1Char(' ') + quoted(node.attribute(bound)) +
                               QStringLiteral(" is not a number of the type ") + quoted(type));
            }
        }

        // The default value.
        const QString def = node.attribute(QStringLiteral("DefaultValue"));
        if (def.isEmpty() || def.contains(QLatin1Char('*')) || name == QLatin1String("Instance"))
            continue;
        if (type == QLatin1String("list")) {
            if (!values.isEmpty() && !values.contains(def))
                report(DefectKind::BadDefault, file.path, element,
                       QStringLiteral("default value ") + quoted(def) +
                           QStringLiteral(" is not among its possible values"));
            continue;
        }
        if (type != QLatin1String("integer") && type != QLatin1String("hexadecimal") &&
            type != QLatin1String("double"))
            continue;
        double value = 0;
        if (!readNumber(type, def, &value)) {
            report(DefectKind::BadDefault, file.path, element,
                   QStringLiteral("default value ") + quoted(def) +
                       QStringLiteral(" is not a number"));
            continue;
        }
        const QString minText = node.attribute(QStringLiteral("Min"));
        const QString maxText = node.attribute(QStringLiteral("Max"));
        double min = 0;
        double max = 0;
        const bool hasMin = !minText.isEmpty() && readNumber(type, minText, &min);
        const bool hasMax = !maxText.isEmpty() && readNumber(type, maxText, &max);

        if ((hasMin && value < min) || (hasMax && value > max))
            report(DefectKind::BadDefault, file.path, element,
                   QStringLiteral("default value ") + quoted(def) +
                       QStringLiteral(" is outside ") + (hasMin ? minText : QString()) +
                       QStringLiteral("..") + (hasMax ? maxText : QString()));
    }
}

void DatabaseChecker::checkNames(const PeripheralFile &file, const QString &element,
                                 const QString &what, const QString &text, bool valueSyntax,
                                 const QSet<QString> &defined)
{
    if (text.trimmed().isEmpty())
        return;
    const QStringList names = valueSyntax ? valueWords(text) : semaphoreWords(text);
    for (const QString &name : names) {
        if (name.isEmpty() || defined.contains(name))
            continue;
        // The NVIC panel matches "I2SF" as a prefix of instance names.
        bool prefix = false;
        for (const QString &known : defined) {
            if (known.startsWith(name) && name == QLatin1String("I2SF")) {
                prefix = true;
                break;
            }
        }
        if (prefix)
            continue;
        report(DefectKind::UndefinedName, file.path, element,
               what + QStringLiteral(" names ") + quoted(name) +
                   QStringLiteral(", which nothing defines"));
    }
}

void DatabaseChecker::checkPair(const QString &file, const QString &element, const IPNode &node,
                                const QString &en, const QString &ch)
{
    checkPair(file, element, en, node.attribute(en), ch, node.attribute(ch));
}

void DatabaseChecker::checkPair(const QString &file, const QString &element, const QString &enName,
                                const QString &enText, const QString &chName,
                                const QString &chText)
{
    const bool enEmpty = enText.trimmed().isEmpty();
    const bool chEmpty = chText.trimmed().isEmpty();
    if (enEmpty == chEmpty)
        return;
    // A text without letters, as a number, reads the same in both languages.
    const QString given = enEmpty ? chText : enText;
    if (!std::any_of(given.begin(), given.end(), [](QChar c) { return c.isLetter(); }))
        return;
    const QString empty = enEmpty ? enName : chName;
    const QString full = enEmpty ? chName : enName;
    report(DefectKind::MissingTranslation, file, element,
           quoted(empty) + QStringLiteral(" is empty but ") + quoted(full) +
               QStringLiteral(" is not"));
}
