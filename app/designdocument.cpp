#include "app/designdocument.h"

#include "database/safexml.h"

#include <QCoreApplication>
#include <QDomDocument>
#include <QFile>
#include <QMutex>
#include <QMutexLocker>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSet>
#include <QXmlStreamWriter>

namespace {

const QString kRoot = QStringLiteral("Root");
const QString kMcuInfo = QStringLiteral("MCUInfo");
const QString kNvic = QStringLiteral("NVIC");
const QString kGpio = QStringLiteral("GPIO");
const QString kClock = QStringLiteral("ClockConfiguration");
const QString kPinInfo = QStringLiteral("PINInfo");
const QString kProject = QStringLiteral("ProjectInfomation");

// The process-wide lock held over every save.
QMutex &saveMutex()
{
    static QMutex mutex;
    return mutex;
}

bool isDmaController(const QString &name)
{
    static const QRegularExpression pattern(QStringLiteral("^E?DMA\\d*$"));
    return pattern.match(name).hasMatch();
}

void writeValues(QXmlStreamWriter &xml, const QString &element, const DesignValues &values)
{
    for (const auto &pair : values) {
        xml.writeStartElement(element);
        xml.writeAttribute(QStringLiteral("name"), pair.first);
        xml.writeAttribute(QStringLiteral("value"), pair.second);
        xml.writeEndElement();
    }
}

// name/value attributes of the children called `element`; a child without a name is listed.
DesignValues readValues(const QDomElement &parent, const QString &element, const QString &where,
                        QStringList *problems)
{
    DesignValues values;
    for (QDomElement e = parent.firstChildElement(element); !e.isNull();
         e = e.nextSiblingElement(element)) {
        const QString name = e.attribute(QStringLiteral("name"));
        if (name.isEmpty()) {
            problems->append(
                QCoreApplication::translate("DesignDocument", "%1: an entry without a name")
                    .arg(where));
            continue;
        }
        values.append({name, e.attribute(QStringLiteral("value"))});
    }
    return values;
}

// A decimal text in [low, high]; `fallback` and a problem line otherwise.
int readIndex(const QString &text, int low, int high, int fallback, const QString &where,
              QStringList *problems)
{
    bool ok = false;
    const int value = text.trimmed().toInt(&ok);
    if (ok && value >= low && value <= high)
        return value;
    problems->append(
        QCoreApplication::translate("DesignDocument", "%1: \"%2\" is not a valid value")
            .arg(where, text));
    return fallback;
}

void readPeripheral(const QDomElement &e, DesignDocument *doc, QStringList *problems)
{
    DesignPeripheralBlock block;
    block.instance = e.tagName();
    const QDomElement mode = e.firstChildElement(QStringLiteral("Mode"));
    block.modes = readValues(mode, QStringLiteral("ModeSub"), block.instance, problems);
    const QDomElement params = e.firstChildElement(QStringLiteral("Parameters"));
    block.parameters =
        readValues(params, QStringLiteral("ParametersSub"), block.instance, problems);
    doc->peripherals.append(block);
}

void readDma(const QDomElement &e, DesignDocument *doc, QStringList *problems)
{
    DesignDmaBlock block;
    block.controller = e.tagName();
    for (QDomElement r = e.firstChildElement(); !r.isNull(); r = r.nextSiblingElement()) {
        DesignDmaRequest request;
        request.element = r.tagName();
        request.parameters =
            readValues(r, QStringLiteral("ParametersSub"),
                       block.controller + QLatin1Char('/') + r.tagName(), problems);
        block.requests.append(request);
    }
    doc->dmaBlocks.append(block);
}

void readNvic(const QDomElement &e, DesignDocument *doc, QStringList *problems)
{
    DesignNvicBlock &nvic = doc->nvic;
    nvic.present = true;
    for (QDomElement c = e.firstChildElement(); !c.isNull(); c = c.nextSiblingElement()) {
        const QString name = c.tagName();
        if (name == QLatin1String("PriorityGroup"))
            nvic.priorityGroup = c.text().trimmed();
        else if (name == QLatin1String("ShowType"))
            nvic.showType =
                readIndex(c.text(), 0, 2, 2, kNvic + QStringLiteral("/ShowType"), problems);
        else
            nvic.interrupts.append({name, c.text().trimmed()});
    }
}

void readGpio(const QDomElement &e, DesignDocument *doc, QStringList *problems)
{
    DesignGpioBlock &gpio = doc->gpio;
    gpio.present = true;
    const QDomElement show = e.firstChildElement(QStringLiteral("ShowType"));
    if (!show.isNull())
        gpio.showType =
            readIndex(show.text(), 0, 1, 0, kGpio + QStringLiteral("/ShowType"), problems);
    for (QDomElement s = e.firstChildElement(QStringLiteral("Signal")); !s.isNull();
         s = s.nextSiblingElement(QStringLiteral("Signal"))) {
        DesignGpioSignal signal;
        signal.signalName = s.attribute(QStringLiteral("SignalName"));
        signal.pinName = s.attribute(QStringLiteral("PinName"));
        if (signal.signalName.isEmpty() || signal.pinName.isEmpty()) {
            problems->append(QCoreApplication::translate("DesignDocument",
                                                         "GPIO: a signal without a name or pin"));
            continue;
        }
        signal.parameters = readValues(s, QStringLiteral("Parameters"),
                                       kGpio + QLatin1Char('/') + signal.signalName, problems);
        gpio.signalList.append(signal);
    }
}

void readPins(const QDomElement &e, DesignDocument *doc, QStringList *problems)
{
    for (QDomElement p = e.firstChildElement(QStringLiteral("PinSub")); !p.isNull();
         p = p.nextSiblingElement(QStringLiteral("PinSub"))) {
        DesignPinSub pin;
        pin.pinName = p.attribute(QStringLiteral("pinname"));
        pin.signalName = p.attribute(QStringLiteral("signalname"));
        const QString where = kPinInfo + QLatin1Char('/') + pin.pinName;
        pin.signalType =
            readIndex(p.attribute(QStringLiteral("signaltype")), 1, 3, -1, where, problems);
        if (pin.pinName.isEmpty() || pin.signalName.isEmpty()) {
            problems->append(QCoreApplication::translate(
                "DesignDocument", "PINInfo: a pin without a name or signal"));
            continue;
        }
        if (pin.signalType > 0)
            doc->pins.append(pin);
    }
}

void readProject(const QDomElement &e, DesignDocument *doc)
{
    doc->hasProject = true;
    for (QDomElement c = e.firstChildElement(); !c.isNull(); c = c.nextSiblingElement())
        doc->project.setDesignValue(c.tagName(), c.text().trimmed());
}

} // namespace

const DesignPeripheralBlock *DesignDocument::peripheral(const QString &instance) const
{
    for (const DesignPeripheralBlock &block : peripherals) {
        if (block.instance == instance)
            return &block;
    }
    return nullptr;
}

DesignReadResult parseDesignDocument(const QByteArray &data, DesignDocument *doc)
{
    DesignReadResult result;
    *doc = DesignDocument();
    QDomDocument dom;
    if (data.trimmed().isEmpty() || !parseXmlDocument(data, &dom)) {
        result.status = DesignReadStatus::Unreadable;
        return result;
    }
    const QDomElement root = dom.documentElement();
    if (root.tagName() != kRoot) {
        result.status = DesignReadStatus::NotADesign;
        return result;
    }
    if (root.hasAttribute(QStringLiteral("FormatVersion"))) {
        bool ok = false;
        result.formatVersion = root.attribute(QStringLiteral("FormatVersion")).toInt(&ok);
        if (!ok || result.formatVersion < 1)
            result.formatVersion = kDesignFormatVersion + 1; // unknown: treat as newer
    }

    const QDomElement info = root.firstChildElement(kMcuInfo);
    doc->series = info.firstChildElement(QStringLiteral("MCUSerials")).text().trimmed();
    doc->device = info.firstChildElement(QStringLiteral("MCUName")).text().trimmed();
    doc->package = info.firstChildElement(QStringLiteral("MCUPackage")).text().trimmed();
    if (doc->series.isEmpty() || doc->device.isEmpty() || doc->package.isEmpty()) {
        result.status = DesignReadStatus::NoDeviceInfo;
        return result;
    }

    QSet<QString> seen;
    QStringList &problems = result.problems;
    for (QDomElement e = root.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        const QString name = e.tagName();
        if (seen.contains(name)) {
            problems.append(
                QCoreApplication::translate("DesignDocument",
                                            "%1: the block stands twice, the second was skipped")
                    .arg(name));
            continue;
        }
        seen.insert(name);
        if (name == kMcuInfo) {
            continue;
        } else if (name == kNvic) {
            readNvic(e, doc, &problems);
        } else if (name == kGpio) {
            readGpio(e, doc, &problems);
        } else if (name == kClock) {
            doc->hasClock = true;
            for (QDomElement c = e.firstChildElement(); !c.isNull(); c = c.nextSiblingElement())
                doc->clock.append({c.tagName(), c.text()});
        } else if (name == kPinInfo) {
            readPins(e, doc, &problems);
        } else if (name == kProject) {
            readProject(e, doc);
        } else if (isDmaController(name)) {
            readDma(e, doc, &problems);
        } else {
            readPeripheral(e, doc, &problems);
        }
    }
    result.status = DesignReadStatus::Ok;
    return result;
}

DesignReadResult readDesignDocument(const QString &path, DesignDocument *doc)
{
    *doc = DesignDocument();
    if (!QFile::exists(path)) {
        DesignReadResult result;
        result.status = DesignReadStatus::NotFound;
        return result;
    }
    QByteArray data;
    if (!readSafeXmlFile(path, &data)) {
        DesignReadResult result;
        result.status = DesignReadStatus::Unreadable;
        return result;
    }
    return parseDesignDocument(data, doc);
}

QByteArray designDocumentToXml(const DesignDocument &doc)
{
    QByteArray data;
    QXmlStreamWriter xml(&data);
    xml.setAutoFormatting(true);
    xml.setCodec("UTF-8");
    xml.writeStartDocument();
    xml.writeStartElement(kRoot);
    xml.writeAttribute(QStringLiteral("FormatVersion"), QString::number(kDesignFormatVersion));

    xml.writeStartElement(kMcuInfo);
    xml.writeTextElement(QStringLiteral("MCUSerials"), doc.series);
    xml.writeTextElement(QStringLiteral("MCUName"), doc.device);
    xml.writeTextElement(QStringLiteral("MCUPackage"), doc.package);
    xml.writeEndElement();

    for (const DesignPeripheralBlock &block : doc.peripherals) {
        xml.writeStartElement(block.instance);
        xml.writeStartElement(QStringLiteral("Mode"));
        writeValues(xml, QStringLiteral("ModeSub"), block.modes);
        xml.writeEndElement();
        if (!block.parameters.isEmpty()) {
            xml.writeStartElement(QStringLiteral("Parameters"));
            writeValues(xml, QStringLiteral("ParametersSub"), block.parameters);
            xml.writeEndElement();
        }
        xml.writeEndElement();
    }

    for (const DesignDmaBlock &block : doc.dmaBlocks) {
        xml.writeStartElement(block.controller);
        for (const DesignDmaRequest &request : block.requests) {
            xml.writeStartElement(request.element);
            writeValues(xml, QStringLiteral("ParametersSub"), request.parameters);
            xml.writeEndElement();
        }
        xml.writeEndElement();
    }

    if (doc.nvic.present) {
        xml.writeStartElement(kNvic);
        if (!doc.nvic.priorityGroup.isEmpty())
            xml.writeTextElement(QStringLiteral("PriorityGroup"), doc.nvic.priorityGroup);
        if (doc.nvic.showType != 2)
            xml.writeTextElement(QStringLiteral("ShowType"), QString::number(doc.nvic.showType));
        for (const auto &pair : doc.nvic.interrupts)
            xml.writeTextElement(pair.first, pair.second);
        xml.writeEndElement();
    }

    if (doc.gpio.present) {
        xml.writeStartElement(kGpio);
        if (doc.gpio.showType != 0)
            xml.writeTextElement(QStringLiteral("ShowType"), QString::number(doc.gpio.showType));
        for (const DesignGpioSignal &signal : doc.gpio.signalList) {
            xml.writeStartElement(QStringLiteral("Signal"));
            xml.writeAttribute(QStringLiteral("SignalName"), signal.signalName);
            xml.writeAttribute(QStringLiteral("PinName"), signal.pinName);
            writeValues(xml, QStringLiteral("Parameters"), signal.parameters);
            xml.writeEndElement();
        }
        xml.writeEndElement();
    }

    if (doc.hasClock) {
        xml.writeStartElement(kClock);
        for (const auto &pair : doc.clock)
            xml.writeTextElement(pair.first, pair.second);
        xml.writeEndElement();
    }

    if (!doc.pins.isEmpty()) {
        xml.writeStartElement(kPinInfo);
        for (const DesignPinSub &pin : doc.pins) {
            xml.writeStartElement(QStringLiteral("PinSub"));
            xml.writeAttribute(QStringLiteral("pinname"), pin.pinName);
            xml.writeAttribute(QStringLiteral("signalname"), pin.signalName);
            xml.writeAttribute(QStringLiteral("signaltype"), QString::number(pin.signalType));
            xml.writeEndElement();
        }
        xml.writeEndElement();
    }

    if (doc.hasProject) {
        xml.writeStartElement(kProject);
        for (const auto &pair : doc.project.designValues())
            xml.writeTextElement(pair.first, pair.second);
        xml.writeEndElement();
    }

    xml.writeEndElement();
    xml.writeEndDocument();
    return data;
}

bool writeDesignDocument(const QString &path, const DesignDocument &doc, QString *error)
{
    const QByteArray data = designDocumentToXml(doc);
    QMutexLocker lock(&saveMutex());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        if (error)
            *error = file.errorString();
        return false;
    }
    if (file.write(data) != data.size() || !file.flush() || file.error() != QFileDevice::NoError) {
        if (error)
            *error = file.errorString();
        file.cancelWriting();
        return false;
    }
    if (!file.commit()) {
        if (error)
            *error = file.errorString();
        return false;
    }
    return true;
}
