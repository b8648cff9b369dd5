#include "database/peripheralreader.h"

#include "database/language.h"
#include "database/paths.h"
#include "database/safexml.h"

#include <QMutex>
#include <QMutexLocker>
#include <QRegExp>
#include <QXmlStreamReader>

const char *const kIRQnPattern = "(\\w+),(.+),(.+):(.+),(.+):(.+),(.+):(.+),(\\w+)";

namespace {

const QString kIpInstance = QStringLiteral("$IpInstance");
const QString kIndex = QStringLiteral("$Index");

bool isTrue(const QString &text)
{
    return text.toLower() == QLatin1String("true");
}

// A boolean attribute compared lower-cased with "true", `fallback` when absent.
bool boolAttribute(const IPNode &node, const QString &name, bool fallback)
{
    return node.hasAttribute(name) ? isTrue(node.attribute(name)) : fallback;
}

QString substituteInstance(QString text, const QString &instanceName)
{
    return text.replace(kIpInstance, instanceName, Qt::CaseSensitive);
}

QString substituteIndex(QString text, const QString &instanceName, const QString &pattern)
{
    QRegExp rx(pattern);
    if (rx.indexIn(instanceName) >= 0)
        text.replace(kIndex, rx.cap(0));
    return text;
}

// Builds the node of the element whose StartElement the reader has just read.
IPNode readElement(QXmlStreamReader &reader)
{
    IPNode node;
    node.tagName = reader.name().toString();
    for (const QXmlStreamAttribute &attr : reader.attributes())
        node.attributes.append({attr.qualifiedName().toString(), attr.value().toString()});

    // Text children as the DOM would hold them: adjacent runs merged, whitespace-only runs
    // dropped, CDATA kept as its own node.
    QList<IPNode> children;
    QStringList childTexts; // text of each non-element child, for the single-child rule
    QString pending;
    bool hasPending = false;
    auto flush = [&]() {
        if (hasPending && !pending.trimmed().isEmpty()) {
            children.append(IPNode());
            childTexts.append(pending);
        }
        pending.clear();
        hasPending = false;
    };
    int elementChildren = 0;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::EndElement || token == QXmlStreamReader::Invalid)
            break;
        if (token == QXmlStreamReader::Characters) {
            if (reader.isCDATA()) {
                flush();
                children.append(IPNode());
                childTexts.append(reader.text().toString());
            } else {
                pending += reader.text();
                hasPending = true;
            }
            continue;
        }
        flush();
        if (token == QXmlStreamReader::StartElement) {
            children.append(readElement(reader));
            childTexts.append(QString());
            ++elementChildren;
        } else if (token == QXmlStreamReader::Comment ||
                   token == QXmlStreamReader::ProcessingInstruction) {
            children.append(IPNode());
            childTexts.append(QString());
        }
    }
    flush();

    if (children.size() == 1 && elementChildren == 0 && node.attributes.isEmpty()) {
        node.text = childTexts.first();
        return node;
    }
    node.children = children;
    return node;
}

QList<ModeSignal> readSignalElement(const IPNode &node, const QString &instanceName)
{
    QList<ModeSignal> list;
    for (const QString &shortName : ExpandSignalRange(node.attribute(QStringLiteral("Name")))) {
        ModeSignal signal;
        signal.signalName = FullSignalName(instanceName, shortName);
        list.append(signal);
    }
    const QString ioMode = node.attribute(QStringLiteral("IOMode"));
    for (ModeSignal &signal : list)
        signal.IOMode = ioMode;
    return list;
}

ModeSignalGroup readModeGroup(const IPNode &node, const QString &instanceName)
{
    ModeSignalGroup group;
    group.Name = node.attribute(QStringLiteral("Name"));
    group.UserName = node.attribute(QStringLiteral("UserName"));
    group.UserNameCH = node.attribute(QStringLiteral("UserNameCH"));
    group.RemoveCondition =
        substituteInstance(node.attribute(QStringLiteral("RemoveCondition")), instanceName);
    for (const IPNode &child : node.children) {
        if (child.tagName == QLatin1String("SignalLogicalOp")) {
            group.LogicOp = child.attribute(QStringLiteral("Name"));
            for (const IPNode &signalNode : child.children) {
                if (!signalNode.isEmpty())
                    group.signalList.append(readSignalElement(signalNode, instanceName));
            }
        } else if (child.tagName == QLatin1String("Condition")) {
            const QString expression =
                substituteInstance(child.attribute(QStringLiteral("Expression")), instanceName);
            group.Expression = substituteIndex(expression, instanceName, QStringLiteral("d+"));
            group.Diagnostic = child.attribute(QStringLiteral("Diagnostic"));
            group.DiagnosticCH = child.attribute(QStringLiteral("DiagnosticCH"));
            group.AndFlag = boolAttribute(child, QStringLiteral("AndFlag"), true);
        } else if (child.tagName == QLatin1String("Semaphore")) {
            group.semaphores.append(substituteInstance(child.text, instanceName));
        }
    }
    group.displayName = ResolveRuleA(group.UserName, group.UserNameCH);
    group.diagnosticText = ResolveRuleA(group.Diagnostic, group.DiagnosticCH);
    return group;
}

ModeOption readMode(const IPNode &node, const QString &instanceName)
{
    ModeOption mode;
    mode.Name = node.attribute(QStringLiteral("Name"));
    mode.UserName = node.attribute(QStringLiteral("UserName"));
    mode.UserNameCH = node.attribute(QStringLiteral("UserNameCH"));
    mode.RemoveCondition =
        substituteInstance(node.attribute(QStringLiteral("RemoveCondition")), instanceName);
    for (const IPNode &child : node.children) {
        if (child.tagName == QLatin1String("ModeLogicOperator")) {
            mode.LogicOperator = child.attribute(QStringLiteral("Name"));
            for (const IPNode &groupNode : child.children) {
                if (!groupNode.isEmpty())
                    mode.signalGroups.append(readModeGroup(groupNode, instanceName));
            }
        } else if (child.tagName == QLatin1String("Condition")) {
            mode.Diagnostic = child.attribute(QStringLiteral("Diagnostic"));
            mode.DiagnosticCH = child.attribute(QStringLiteral("DiagnosticCH"));
            mode.AndFlag = boolAttribute(child, QStringLiteral("AndFlag"), true);
            const QString expression =
                substituteInstance(child.attribute(QStringLiteral("Expression")), instanceName);
            mode.Expression = substituteIndex(expression, instanceName, QStringLiteral("[0-9]+$"));
        } else if (child.tagName == QLatin1String("Annotation")) {
            mode.Note = child.attribute(QStringLiteral("Note"));
            mode.NoteCH = child.attribute(QStringLiteral("NoteCH"));
        } else if (child.tagName == QLatin1String("Semaphore")) {
            mode.semaphores.append(substituteInstance(child.text, instanceName));
        }
    }
    mode.displayName = ResolveRuleA(mode.UserName, mode.UserNameCH);
    mode.diagnosticText = ResolveRuleA(mode.Diagnostic, mode.DiagnosticCH);
    mode.annotationText = ResolveRuleA(mode.Note, mode.NoteCH);
    return mode;
}

RefMode readRefMode(const IPNode &node)
{
    RefMode mode;
    mode.Name = node.attribute(QStringLiteral("Name"));
    mode.Comment = node.attribute(QStringLiteral("Comment"));
    mode.GroupEN = node.attribute(QStringLiteral("Group"));
    mode.GroupCH = node.attribute(QStringLiteral("GroupCH"));
    mode.BaseMode = node.attribute(QStringLiteral("BaseMode"));
    mode.HalMode = node.attribute(QStringLiteral("HalMode"));
    mode.Abstract = isTrue(node.attribute(QStringLiteral("Abstract")));
    for (const IPNode &child : node.children) {
        if (child.tagName == QLatin1String("ConfigForMode")) {
            mode.ConfigForMode.append(child.text);
        } else if (child.tagName == QLatin1String("Parameter")) {
            RefModeParameter parameter;
            parameter.Name = child.attribute(QStringLiteral("Name"));
            for (const IPNode &value : child.children) {
                if (value.tagName == QLatin1String("PossibleValue"))
                    parameter.PossibleValues.append(value.text);
            }
            mode.Parameters.append(parameter);
        }
    }
    mode.Group = ResolveRuleA(mode.GroupEN, mode.GroupCH);
    return mode;
}

RefParamValue readParamValue(const IPNode &node, const QString &instanceName)
{
    RefParamValue value;
    value.CommentEN = node.attribute(QStringLiteral("Comment"));
    value.CommentCH = node.attribute(QStringLiteral("CommentCH"));
    value.Value = node.attribute(QStringLiteral("Value"));
    value.Action = node.attribute(QStringLiteral("Action"));
    value.Semaphore =
        substituteInstance(node.attribute(QStringLiteral("Semaphore")), instanceName);
    value.Condition =
        substituteInstance(node.attribute(QStringLiteral("Condition")), instanceName);
    value.AndFlag = boolAttribute(node, QStringLiteral("AndFlag"), true);
    value.DiagnosticEN = node.attribute(QStringLiteral("Diagnostic"));
    value.DiagnosticCH = node.attribute(QStringLiteral("DiagnosticCH"));
    return value;
}

RefParameter readRefParameter(const IPNode &node, const QString &instanceName)
{
    RefParameter p;
    p.Name = node.attribute(QStringLiteral("Name"));
    p.CommentEN = node.attribute(QStringLiteral("Comment"));
    p.CommentCH = node.attribute(QStringLiteral("CommentCH"));
    p.GroupEN = node.attribute(QStringLiteral("Group"));
    p.GroupCH = node.attribute(QStringLiteral("GroupCH"));
    p.Type = node.attribute(QStringLiteral("Type"));
    p.DefaultValue = node.attribute(QStringLiteral("DefaultValue"));
    p.Value = p.DefaultValue;
    p.Unit = node.attribute(QStringLiteral("Unit"));
    p.Max = node.attribute(QStringLiteral("Max"));
    p.Min = node.attribute(QStringLiteral("Min"));
    p.Visible = boolAttribute(node, QStringLiteral("Visible"), true);
    p.Enable = boolAttribute(node, QStringLiteral("Enable"), true);
    p.Reload = boolAttribute(node, QStringLiteral("Reload"), true);
    p.Relevant = boolAttribute(node, QStringLiteral("Relevant"), false);
    for (const IPNode &child : node.children) {
        if (child.tagName == QLatin1String("Description")) {
            p.Description = child.text;
        } else if (child.tagName == QLatin1String("Condition")) {
            p.DiagnosticEN = child.attribute(QStringLiteral("Diagnostic"));
            p.Expression =
                substituteInstance(child.attribute(QStringLiteral("Expression")), instanceName);
            p.AndFlag = boolAttribute(child, QStringLiteral("AndFlag"), true);
        } else if (child.tagName == QLatin1String("Annotation")) {
            p.Note = child.attribute(QStringLiteral("Note"));
            p.NoteCH = child.attribute(QStringLiteral("NoteCH"));
        } else if (child.tagName == QLatin1String("PossibleValue")) {
            p.PossibleValues.append(readParamValue(child, instanceName));
        }
    }
    p.Comment = ResolveRuleB(p.CommentEN, &p.CommentCH);
    p.Group = ResolveRuleB(p.GroupEN, &p.GroupCH);
    p.Diagnostic = ResolveRuleB(p.DiagnosticEN, &p.DiagnosticCH);
    p.Annotation = ResolveRuleB(p.Note, &p.NoteCH);
    for (RefParamValue &value : p.PossibleValues) {
        value.Comment = ResolveRuleB(value.CommentEN, &value.CommentCH);
        value.Diagnostic = ResolveRuleB(value.DiagnosticEN, &value.DiagnosticCH);
    }
    return p;
}

QString versionOf(const QList<PeripheralListItem> &rows, const QString &instanceName)
{
    for (const PeripheralListItem &row : rows) {
        if (row.InstanceName == instanceName)
            return row.Version;
    }
    return QString();
}

// The first element child of a node, or null.
const IPNode *firstElementChild(const IPNode &node)
{
    for (const IPNode &child : node.children) {
        if (!child.isEmpty())
            return &child;
    }
    return nullptr;
}

QString firstAttributeValue(const IPNode *node)
{
    if (!node || node->attributes.isEmpty())
        return QString();
    return node->attributes.first().second;
}

} // namespace

IPNode ReadIPFile(const QString &path)
{
    QByteArray data;
    if (!readSafeXmlFile(path, &data))
        return IPNode();
    QXmlStreamReader reader(data);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement) {
            if (reader.name() != QLatin1String("IP"))
                return IPNode();
            IPNode root = readElement(reader);
            return reader.hasError() ? IPNode() : root;
        }
    }
    return IPNode();
}

QString PeripheralFilePath(const QString &series, const PeripheralListItem &row)
{
    if (row.Version.isEmpty())
        return QString();
    return peripheralFilePath(series, row.Name, row.Version);
}

QString BlockPeripheralFilePath(const QString &series, const QList<PeripheralListItem> &rows,
                                const QString &instanceName)
{
    return peripheralFilePath(series, instanceName, versionOf(rows, instanceName));
}

QString DMASecondaryFilePath(const QString &series, const QList<PeripheralListItem> &rows,
                             const QString &instanceName)
{
    return secondaryPeripheralFilePath(series, instanceName, versionOf(rows, instanceName));
}

QStringList ExpandSignalRange(const QString &nameAttribute)
{
    if (nameAttribute.contains(QLatin1String("--"))) {
        const QStringList parts = nameAttribute.split(QStringLiteral("--"));
        QRegExp first(QStringLiteral("([A-Z]+)([0-9]+)"));
        QRegExp second(QStringLiteral("([A-Z]+)([0-9]+)"));
        if (parts.size() == 2 && first.indexIn(parts[0]) >= 0 && second.indexIn(parts[1]) >= 0) {
            bool fromOk = false;
            bool toOk = false;
            const qint64 from = first.cap(2).toLongLong(&fromOk);
            const qint64 to = second.cap(2).toLongLong(&toOk);
            // A bound that is no usable number, or a range beyond any peripheral, is no range.
            if (fromOk && toOk && to - from < kMaxSignalRange) {
                const QString letters = first.cap(1);
                QStringList names;
                for (qint64 k = 0; k <= to - from; ++k)
                    names.append(letters + QString::number(from + k));
                return names;
            }
        }
    }
    return QStringList{nameAttribute};
}

QString FullSignalName(const QString &instanceName, const QString &shortName)
{
    if (shortName.contains(QLatin1String("EXINT")) || shortName.contains(QLatin1String("WKUP")) ||
        shortName.contains(QLatin1String("IR_OUT")))
        return shortName;
    if (instanceName.contains(QLatin1String("XMC")))
        return QStringLiteral("XMC_") + shortName;
    return instanceName + QLatin1Char('_') + shortName;
}

QList<ModeOption> GetIPModes(const QString &instanceName, const IPNode &root)
{
    QList<ModeOption> modes;
    for (const IPNode &top : root.children) {
        if (top.tagName != QLatin1String("ModeLogicOperator"))
            continue;
        for (const IPNode &modeNode : top.children) {
            if (modeNode.tagName == QLatin1String("Mode"))
                modes.append(readMode(modeNode, instanceName));
        }
    }
    return modes;
}

QList<ModeSignal> GetIPRefSignals(const QString &instanceName, const IPNode &root)
{
    QList<ModeSignal> list;
    for (const IPNode &node : root.children) {
        if (node.tagName != QLatin1String("RefSignal"))
            continue;
        ModeSignal signal;
        signal.enabled = true;
        signal.signalName = FullSignalName(instanceName, node.attribute(QStringLiteral("Name")));
        signal.IOMode = node.attribute(QStringLiteral("IOMode"));
        signal.Virtual = node.attribute(QStringLiteral("Virtual")) == QLatin1String("true");
        list.append(signal);
    }
    return list;
}

RefMode GetRefMode(const QString &name, const IPNode &root)
{
    static QMutex mutex;
    QMutexLocker locker(&mutex);
    for (const IPNode &node : root.children) {
        if (node.tagName == QLatin1String("RefMode") &&
            node.attribute(QStringLiteral("Name")) == name)
            return readRefMode(node);
    }
    return RefMode();
}

RefMode GetRefModeByBase(const QString &name, const QString &baseMode, const IPNode &root)
{
    for (const IPNode &node : root.children) {
        if (node.tagName == QLatin1String("RefMode") &&
            node.attribute(QStringLiteral("Name")) == name &&
            node.attribute(QStringLiteral("BaseMode")) == baseMode)
            return readRefMode(node);
    }
    return RefMode();
}

RefMode GetAbstractRefMode(const IPNode &root)
{
    for (const IPNode &node : root.children) {
        if (node.tagName == QLatin1String("RefMode") &&
            isTrue(node.attribute(QStringLiteral("Abstract"))))
            return readRefMode(node);
    }
    return RefMode();
}

QList<RefMode> GetAllRefModes(const IPNode &root)
{
    QList<RefMode> modes;
    for (const IPNode &node : root.children) {
        if (node.tagName == QLatin1String("RefMode"))
            modes.append(readRefMode(node));
    }
    return modes;
}

RefParameter GetRefParameter(const QString &instanceName, const QString &paramName,
                             const IPNode &root)
{
    for (const IPNode &node : root.children) {
        if (node.tagName == QLatin1String("RefParameter") &&
            node.attribute(QStringLiteral("Name")) == paramName)
            return readRefParameter(node, instanceName);
    }
    return RefParameter();
}

namespace {
QList<RefParameter> refParameters(const QString &instanceName, const QString *paramName,
                                  const IPNode &root)
{
    QList<RefParameter> list;
    for (const IPNode &node : root.children) {
        if (node.tagName != QLatin1String("RefParameter"))
            continue;
        if (paramName && node.attribute(QStringLiteral("Name")) != *paramName)
            continue;
        RefParameter p = readRefParameter(node, instanceName);
        if (p.Name == QLatin1String("Instance")) {
            p.DefaultValue = instanceName;
            p.Value = instanceName;
        }
        list.append(p);
    }
    return list;
}
} // namespace

QList<RefParameter> GetRefParameters(const QString &instanceName, const QString &paramName,
                                     const IPNode &root)
{
    return refParameters(instanceName, &paramName, root);
}

QList<RefParameter> GetAllRefParameters(const QString &instanceName, const IPNode &root)
{
    return refParameters(instanceName, nullptr, root);
}

QList<GPIOPinRecord> GetGPIOPinRecords(const IPNode &root)
{
    QList<GPIOPinRecord> list;
    for (const IPNode &node : root.children) {
        if (node.tagName != QLatin1String("GPIO_Pin"))
            continue;
        GPIOPinRecord record;
        record.Name = node.attribute(QStringLiteral("Name"));
        record.PortName = node.attribute(QStringLiteral("PortName"));
        for (const IPNode &child : node.children) {
            if (child.tagName == QLatin1String("SpecificParameter")) {
                const QString field = firstAttributeValue(&child);
                const QString value = firstAttributeValue(firstElementChild(child));
                if (field == QLatin1String("GPIO_x"))
                    record.GPIO_x = value;
                else if (field == QLatin1String("GPIO_Pin"))
                    record.GPIO_Pin = value;
                else if (field == QLatin1String("GPIO_PinSource"))
                    record.GPIO_PinSource = value;
                else if (field == QLatin1String("EXINT_LINE_x"))
                    record.EXINT_LINE_x = value;
                else if (field == QLatin1String("SCFG_GPIO_x"))
                    record.SCFG_GPIO_x = value;
                else if (field == QLatin1String("SCFG_PINS_SOURCE_x"))
                    record.SCFG_PINS_SOURCE_x = value;
            } else if (child.tagName == QLatin1String("PinSignal")) {
                QString name;
                if (!child.attributes.isEmpty() &&
                    child.attributes.first().first == QLatin1String("Name"))
                    name = child.attributes.first().second;
                QString value;
                const IPNode *specific = firstElementChild(child);
                if (specific && specific->tagName == QLatin1String("SpecificParameter")) {
                    const IPNode *possible = firstElementChild(*specific);
                    if (possible && possible->tagName == QLatin1String("PossibleValue"))
                        value = firstAttributeValue(possible);
                }
                record.pinSignals.append({name, value});
            }
        }
        list.append(record);
    }
    return list;
}

QList<NVICInterrupt> GetNVICInterrupts(const IPNode &root)
{
    QList<NVICInterrupt> list;
    const QList<RefParameter> tables =
        GetRefParameters(QStringLiteral("NVIC"), QStringLiteral("IRQn"), root);
    if (tables.isEmpty())
        return list;
    QRegExp rx(QString::fromLatin1(kIRQnPattern));
    const auto yes = [](const QString &text) { return text.toUpper() == QLatin1String("Y"); };
    for (const RefParamValue &value : tables.first().PossibleValues) {
        if (rx.indexIn(value.Value) < 0)
            continue;
        NVICInterrupt irq;
        irq.Comment = value.Comment;
        irq.CommentEN = value.CommentEN;
        irq.CommentCH = value.CommentCH;
        irq.Diagnostic = value.Diagnostic;
        irq.DiagnosticEN = value.DiagnosticEN;
        irq.DiagnosticCH = value.DiagnosticCH;
        irq.IRQName = rx.cap(1).trimmed();
        irq.flag2 = yes(rx.cap(2));
        irq.flag3 = yes(rx.cap(3));
        irq.flag4 = yes(rx.cap(4));
        irq.flag5 = yes(rx.cap(5));
        irq.defaultPreemption = irq.preemption = rx.cap(6).toInt();
        irq.flag7 = yes(rx.cap(7));
        irq.defaultSub = irq.sub = rx.cap(8).toInt();
        irq.Handler = rx.cap(9).trimmed();
        irq.conditions = value.Condition.split(QLatin1Char(';'));
        list.append(irq);
    }
    return list;
}

QList<DMARequestInfo> GetDMARequests(const IPNode &root)
{
    QList<DMARequestInfo> list;
    for (const IPNode &node : root.children) {
        if (node.tagName != QLatin1String("RefMode") ||
            node.attribute(QStringLiteral("BaseMode")) != QLatin1String("DMA_Request"))
            continue;
        DMARequestInfo request;
        request.Name = node.attribute(QStringLiteral("Name"));
        if (request.Name == QLatin1String("MEMTOMEM")) {
            request.kind = DMARequestKind::MemToMem;
        } else if (request.Name.contains(QLatin1String("GENERATOR"))) {
            request.kind = DMARequestKind::Generator;
            if (request.Name.contains(QLatin1String("EDMA")))
                request.controller = QStringLiteral("EDMA");
            else if (request.Name.contains(QLatin1String("DMA2")))
                request.controller = QStringLiteral("DMA2");
            else
                request.controller = QStringLiteral("DMA1");
        }
        for (const IPNode &child : node.children) {
            if (child.tagName != QLatin1String("Parameter"))
                continue;
            DMARequestParameter parameter;
            parameter.Name = child.attribute(QStringLiteral("Name"));
            parameter.Comment = child.attribute(QStringLiteral("Comment"));
            parameter.DefaultValue = child.attribute(QStringLiteral("DefaultValue"));
            for (const IPNode &value : child.children) {
                if (value.tagName == QLatin1String("PossibleValue"))
                    parameter.PossibleValues.append(value.text);
            }
            if (parameter.Name == QLatin1String("IpInstance"))
                request.IpInstance = parameter.DefaultValue;
            request.Parameters.append(parameter);
        }
        list.append(request);
    }
    return list;
}
