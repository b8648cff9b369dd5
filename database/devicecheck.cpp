#include "database/devicecheck.h"

#include "database/safexml.h"
#include "database/xmlsection.h"

#include <QCoreApplication>
#include <QDomDocument>
#include <QHash>

namespace {

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

// Collects the issues of one file in order.
class DeviceScan
{
    Q_DECLARE_TR_FUNCTIONS(DeviceScan)

public:
    QList<DeviceFileIssue> issues;

    void add(const QDomNode &node, const QString &element, const QString &message, bool fatal)
    {
        DeviceFileIssue issue;
        issue.line = node.isNull() ? 0 : node.lineNumber();
        issue.element = element;
        issue.message = message;
        issue.fatal = fatal;
        issues.append(issue);
    }

    // A decimal attribute: false, with an issue, when it is present but not a number.
    bool decimal(const QDomElement &e, const QString &element, const QString &name, int *value,
                 bool fatal)
    {
        bool ok = false;
        const QString text = e.attribute(name);
        *value = text.trimmed().toInt(&ok, 10);
        if (!ok)
            add(e, element, tr("%1 %2 is not a number").arg(name, quoted(text)), fatal);
        return ok;
    }

    void scan(const QString &path);

private:
    void scanBase(const QDomElement &section, int *pinNums);
    void scanPins(const QDomElement &section, int pinNums);
    void scanGroups(const QDomElement &section);
    void scanPeripherals(const QDomElement &section);
};

void DeviceScan::scan(const QString &path)
{
    QByteArray data;
    QString problem;
    if (!readSafeXmlFile(path, &data, &problem)) {
        add(QDomNode(), QString(), tr("the file can not be read: %1").arg(problem), true);
        return;
    }
    QDomDocument doc;
    QString error;
    int line = 0;
    if (!doc.setContent(data, false, &error, &line)) {
        add(QDomNode(), QString(), tr("the file does not parse: line %1: %2").arg(line).arg(error),
            true);
        return;
    }
    const QDomElement root = doc.documentElement();
    QDomElement sections[3];
    const char *const terms[3] = {"MCUBaseInfo", "PinsList", "PeripheralsList"};
    bool complete = true;
    for (int i = 0; i < 3; ++i) {
        sections[i] = findTermSection(root, QString::fromLatin1(terms[i]));
        if (sections[i].isNull()) {
            add(root, QString(),
                tr("the file has no section %1").arg(quoted(QString::fromLatin1(terms[i]))), true);
            complete = false;
        }
    }
    if (!complete)
        return;
    int pinNums = 0;
    scanBase(sections[0], &pinNums);
    scanPins(sections[1], pinNums);
    scanGroups(findTermSection(root, QStringLiteral("PinsSignalsGroup")));
    scanPeripherals(sections[2]);
}

void DeviceScan::scanBase(const QDomElement &section, int *pinNums)
{
    const QString element = QStringLiteral("MCUBaseInfo");
    struct Count
    {
        const char *name;
        int min;
        int max;
    };
    const Count counts[] = {{"PinNums", 1, kMaxDevicePins},
                            {"xPinNum", 0, kMaxSidePins},
                            {"yPinNum", 0, kMaxSidePins}};
    for (const Count &count : counts) {
        const QString name = QString::fromLatin1(count.name);
        QDomElement holder;
        for (QDomElement e = section.firstChildElement(); !e.isNull();
             e = e.nextSiblingElement()) {
            if (e.hasAttribute(name)) {
                holder = e;
                break;
            }
        }
        if (holder.isNull()) {
            add(section, element, tr("the pin count %1 is missing").arg(name), true);
            continue;
        }
        int value = 0;
        if (!decimal(holder, element, name, &value, true))
            continue;
        if (value < count.min || value > count.max) {
            add(holder, element,
                tr("%1 %2 lies outside %3 to %4")
                    .arg(name, quoted(holder.attribute(name)))
                    .arg(count.min)
                    .arg(count.max),
                true);
            continue;
        }
        if (name == QLatin1String("PinNums"))
            *pinNums = value;
    }
    for (QDomElement e = section.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        if (!e.hasAttribute(QStringLiteral("PID")))
            continue;
        QString pid = e.attribute(QStringLiteral("PID")).trimmed();
        if (pid.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
            pid = pid.mid(2);
        bool ok = false;
        pid.toUInt(&ok, 16);
        if (!ok)
            add(e, element,
                tr("PID %1 is not a hexadecimal number")
                    .arg(quoted(e.attribute(QStringLiteral("PID")))),
                false);
        break;
    }
}

void DeviceScan::scanPins(const QDomElement &section, int pinNums)
{
    // Pin numbers in force: a record of the variant "PINREMAP" stands beside the other one.
    QHash<int, int> activeLine;
    for (QDomElement pin = section.firstChildElement(); !pin.isNull();
         pin = pin.nextSiblingElement()) {
        const QString name = pin.attribute(QStringLiteral("PinName"));
        const QString element = QStringLiteral("Pin ") + quoted(name.trimmed());
        if (name.trimmed().isEmpty())
            add(pin, element, tr("the pin has no PinName"), true);
        int number = 0;
        if (!pin.hasAttribute(QStringLiteral("PinNum"))) {
            add(pin, element, tr("the pin has no PinNum"), true);
        } else if (decimal(pin, element, QStringLiteral("PinNum"), &number, true)) {
            if (pinNums > 0 && (number < 1 || number > pinNums)) {
                add(pin, element,
                    tr("PinNum %1 lies outside 1 to %2")
                        .arg(quoted(pin.attribute(QStringLiteral("PinNum"))))
                        .arg(pinNums),
                    true);
            } else if (pin.attribute(QStringLiteral("Variant")) != QLatin1String("PINREMAP")) {
                if (activeLine.contains(number))
                    add(pin, element,
                        tr("PinNum %1 is used by the pin of line %2 as well")
                            .arg(number)
                            .arg(activeLine.value(number)),
                        false);
                else
                    activeLine.insert(number, pin.lineNumber());
            }
        }
        for (QDomElement f = pin.firstChildElement(); !f.isNull(); f = f.nextSiblingElement()) {
            if (f.attribute(QStringLiteral("Func")).trimmed().isEmpty())
                add(f, element, tr("a function of the pin has no Func"), true);
            for (QDomElement r = f.firstChildElement(); !r.isNull(); r = r.nextSiblingElement()) {
                int ref = 0;
                if (r.hasAttribute(QStringLiteral("PinNum")))
                    decimal(r, element, QStringLiteral("PinNum"), &ref, false);
            }
        }
    }
}

void DeviceScan::scanGroups(const QDomElement &section)
{
    for (QDomElement g = section.firstChildElement(); !g.isNull(); g = g.nextSiblingElement()) {
        const QString element =
            QStringLiteral("PinsSignalsGroup ") + quoted(g.attribute(QStringLiteral("IPName")));
        int number = 0;
        if (g.hasAttribute(QStringLiteral("GroupNum")))
            decimal(g, element, QStringLiteral("GroupNum"), &number, false);
        for (QDomElement s = g.firstChildElement(); !s.isNull(); s = s.nextSiblingElement()) {
            if (s.attribute(QStringLiteral("SignalName")).trimmed().isEmpty() ||
                s.attribute(QStringLiteral("PinName")).trimmed().isEmpty())
                add(s, element, tr("a signal of the group lacks SignalName or PinName"), false);
        }
    }
}

void DeviceScan::scanPeripherals(const QDomElement &section)
{
    for (QDomElement e = section.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        const QString instance = e.attribute(QStringLiteral("InstanceName"));
        const QString element = QStringLiteral("PeripheralsList ") + quoted(instance);
        if (instance.trimmed().isEmpty() || e.attribute(QStringLiteral("Name")).isEmpty())
            add(e, element, tr("the row lacks InstanceName or Name"), true);
    }
}

} // namespace

QString DeviceFileIssue::text() const
{
    QString place;
    if (line > 0)
        place = QCoreApplication::translate("DeviceScan", "line %1").arg(line);
    if (!element.isEmpty())
        place += (place.isEmpty() ? QString() : QStringLiteral(", ")) + element;
    return place.isEmpty() ? message : place + QStringLiteral(": ") + message;
}

QList<DeviceFileIssue> DeviceFileIssues(const QString &path)
{
    DeviceScan scan;
    scan.scan(path);
    return scan.issues;
}

QString DeviceFileProblem(const QString &path)
{
    for (const DeviceFileIssue &issue : DeviceFileIssues(path)) {
        if (issue.fatal)
            return issue.text();
    }
    return QString();
}
