#include "project/projectformats.h"

#include "project/devicefacts.h"
#include "project/stagedfiles.h"
#include "project/xmltree.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

const QString kStdDriverDefine = QStringLiteral("USE_STDPERIPH_DRIVER");

QString hex(quint32 value)
{
    return QString::number(value, 16).toUpper();
}

// Replaces capture `group` of every match of `pattern` in `text` by `value`; false when the
// pattern does not match.
bool replaceGroup(QString &text, const QString &pattern, int group, const QString &value)
{
    const QRegularExpression re(pattern);
    QRegularExpressionMatchIterator it = re.globalMatch(text);
    if (!it.hasNext())
        return false;
    QString out;
    int at = 0;
    while (it.hasNext()) {
        const QRegularExpressionMatch m = it.next();
        out += text.mid(at, m.capturedStart(group) - at) + value;
        at = m.capturedEnd(group);
    }
    text = out + text.mid(at);
    return true;
}

// "$$Device:-MQ48T110C8T$..." (or without the dash) names the device of a device pack.
bool rewritePackDevice(QString &text, const ProjectContext &c)
{
    const QString device = (c.dashedDeviceForm() ? QStringLiteral("-") : QString()) + c.job.device;
    return replaceGroup(text, QStringLiteral("Device:(-?[^$]*)\\$"), 1, device);
}

// A debugger or flash driver command line: the flash algorithm, the flash size in bytes
// ("-FL" and eight hex digits) and, where present, the pack device.
bool rewriteDriverLine(QString &text, const ProjectContext &c)
{
    if (!replaceGroup(text, QStringLiteral("(MQ48[A-Z0-9]+_\\d{1,4})\\b"), 1, c.flashAlgorithm()))
        return false;
    if (!replaceGroup(text, QStringLiteral("-FL([0-9A-Fa-f]{6,8})"), 1,
                      hex(c.flashBytes()).rightJustified(8, QLatin1Char('0'))))
        return false;
    if (text.contains(QLatin1String("Device:")))
        rewritePackDevice(text, c);
    return true;
}

// --- shared edits -----------------------------------------------------------------------

bool setDevice(XmlNode &e, const ProjectContext &c)
{
    e.setOwnText(c.job.device);
    return true;
}

bool editOwnText(XmlNode &e, const ProjectContext &c,
                 bool (*edit)(QString &, const ProjectContext &))
{
    QString text = e.ownText();
    if (!edit(text, c))
        return false;
    e.setOwnText(text);
    return true;
}

// --- Keil µVision -----------------------------------------------------------------------

bool keilCpu(XmlNode &e, const ProjectContext &c)
{
    QString text = e.ownText();
    if (!replaceGroup(text, QStringLiteral("IRAM\\(0x[0-9A-Fa-f]{8},0x([0-9A-Fa-f]*)"), 1,
                      hex(c.ramBytes())) ||
        !replaceGroup(text, QStringLiteral("IROM\\(0x[0-9A-Fa-f]{8},0x([0-9A-Fa-f]*)"), 1,
                      hex(c.flashBytes())))
        return false;
    e.setOwnText(text);
    return true;
}

bool keilDriver(XmlNode &e, const ProjectContext &c)
{
    return editOwnText(e, c, rewriteDriverLine);
}

bool keilPackPath(XmlNode &e, const ProjectContext &c)
{
    QString text = e.ownText();
    if (text.contains(QLatin1String("Device:")) && rewritePackDevice(text, c))
        e.setOwnText(text);
    return true;
}

bool keilDefines(XmlNode &e, const ProjectContext &c)
{
    QStringList defines = e.ownText().split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (QString &define : defines)
        define = define.trimmed();
    if (!replaceDeviceDefine(defines, c.job.device))
        return false;
    e.setOwnText(defines.join(QLatin1Char(',')));
    return true;
}

bool keilRamSize(XmlNode &e, const ProjectContext &c)
{
    e.setOwnText(QStringLiteral("0x") + hex(c.ramBytes()));
    return true;
}

bool keilFlashSize(XmlNode &e, const ProjectContext &c)
{
    e.setOwnText(QStringLiteral("0x") + hex(c.flashBytes()));
    return true;
}

// A driver registry row of the options file: only the drivers of the IDE type are edited.
bool keilRegistryEntry(XmlNode &e, const ProjectContext &c)
{
    if (!c.ide.debugDrivers.contains(e.childText(QStringLiteral("Key"))))
        return true;
    XmlNode *line = e.firstChild(QStringLiteral("Name"));
    return line && editOwnText(*line, c, rewriteDriverLine);
}

void keilFillGroup(XmlNode &group, const QList<QPair<QString, QString>> &files)
{
    // A group without files has no Files element.
    group.children.erase(std::remove_if(group.children.begin(), group.children.end(),
                                        [](const XmlNode &n) {
                                            return n.isElement() &&
                                                   n.name == QLatin1String("Files");
                                        }),
                         group.children.end());
    if (files.isEmpty())
        return;
    XmlNode &list = group.appendElement(QStringLiteral("Files"));
    for (const auto &file : files) {
        XmlNode &entry = list.appendElement(QStringLiteral("File"));
        entry.appendElement(QStringLiteral("FileName"), file.first);
        const bool assembler = file.first.endsWith(QLatin1String(".s"), Qt::CaseInsensitive);
        entry.appendElement(QStringLiteral("FileType"),
                            assembler ? QStringLiteral("2") : QStringLiteral("1"));
        entry.appendElement(QStringLiteral("FilePath"), file.second);
    }
}

// (file name, path from the IDE folder with "\\") of the firmware group.
QList<QPair<QString, QString>> firmwareFiles(const ProjectContext &c, const QString &projDir)
{
    QList<QPair<QString, QString>> files;
    for (const QString &stem : c.drivers)
        files.append({stem + QStringLiteral(".c"), projDir +
                                                       QStringLiteral("..\\..\\libraries\\"
                                                                      "drivers\\src\\") +
                                                       stem + QStringLiteral(".c")});
    if (!c.systemFile.isEmpty())
        files.append({c.systemFile,
                      projDir + QStringLiteral("..\\..\\libraries\\cmsis\\cm4\\device_support\\") +
                          c.systemFile});
    if (!c.startupFile.isEmpty())
        files.append({c.startupFile,
                      (projDir.isEmpty() ? QStringLiteral(".\\") : projDir) + c.startupFile});
    return files;
}

QList<QPair<QString, QString>> userFiles(const ProjectContext &c, const QString &projDir)
{
    QList<QPair<QString, QString>> files;
    for (const QString &file : c.userFiles)
        files.append({file, projDir + QStringLiteral("..\\src\\") + file});
    return files;
}

bool keilFirmwareGroup(XmlNode &e, const ProjectContext &c)
{
    keilFillGroup(e, firmwareFiles(c, QString()));
    return true;
}

bool keilUserGroup(XmlNode &e, const ProjectContext &c)
{
    keilFillGroup(e, userFiles(c, QString()));
    return true;
}

// --- IAR workspace and project ----------------------------------------------------------

bool iarChip(XmlNode &e, const ProjectContext &c)
{
    // "<device>_v2\tVelmorix <device>", the device behind a dash on some series.
    const QRegularExpression re(QStringLiteral("^(.*)(_v2\\tVelmorix )(-?)(.*)$"));
    const QRegularExpressionMatch m = re.match(e.ownText());
    if (!m.hasMatch())
        return false;
    e.setOwnText(c.job.device + m.captured(2) +
                 (c.dashedDeviceForm() ? QStringLiteral("-") : QString()) + c.job.device);
    return true;
}

bool iarDefines(XmlNode &e, const ProjectContext &c)
{
    QStringList defines;
    for (XmlNode *state : e.childElements(QStringLiteral("state")))
        defines << state->ownText().trimmed();
    if (!replaceDeviceDefine(defines, c.job.device))
        return false;
    e.children.erase(std::remove_if(e.children.begin(), e.children.end(),
                                    [](const XmlNode &n) {
                                        return n.isElement() && n.name == QLatin1String("state");
                                    }),
                     e.children.end());
    for (const QString &define : defines)
        e.appendElement(QStringLiteral("state"), define);
    return true;
}

bool iarIcf(XmlNode &e, const ProjectContext &c)
{
    e.setOwnText(QStringLiteral("$PROJ_DIR$\\") + c.linkerStem + QStringLiteral(".icf"));
    return true;
}

bool iarDdf(XmlNode &e, const ProjectContext &c)
{
    QString text = e.ownText();
    if (!replaceGroup(text, QStringLiteral("\\\\Velmorix\\\\(\\w+)\\.ddf"), 1, c.job.device))
        return false;
    e.setOwnText(text);
    return true;
}

bool iarBoard(XmlNode &e, const ProjectContext &c)
{
    QString text = e.ownText();
    const QString pattern =
        QStringLiteral("\\\\Velmorix\\\\\\w+\\\\(\\w+)\\\\Flash([^\\\\]*)\\.board");
    if (!replaceGroup(text, pattern, 2, c.flashAlgorithm()) ||
        !replaceGroup(text, pattern, 1, c.job.series))
        return false;
    e.setOwnText(text);
    return true;
}

void iarFillGroup(XmlNode &group, const QList<QPair<QString, QString>> &files)
{
    group.children.erase(std::remove_if(group.children.begin(), group.children.end(),
                                        [](const XmlNode &n) {
                                            return n.isElement() &&
                                                   n.name == QLatin1String("file");
                                        }),
                         group.children.end());
    for (const auto &file : files)
        group.appendElement(QStringLiteral("file"))
            .appendElement(QStringLiteral("name"), file.second);
}

bool iarFirmwareGroup(XmlNode &e, const ProjectContext &c)
{
    iarFillGroup(e, firmwareFiles(c, QStringLiteral("$PROJ_DIR$\\")));
    return true;
}

bool iarUserGroup(XmlNode &e, const ProjectContext &c)
{
    iarFillGroup(e, userFiles(c, QStringLiteral("$PROJ_DIR$\\")));
    return true;
}

// --- Eclipse CDT ------------------------------------------------------------------------

XmlNode makeLink(const QString &name, const QString &type, const QString &location)
{
    XmlNode link;
    link.name = QStringLiteral("link");
    link.appendElement(QStringLiteral("name"), name);
    link.appendElement(QStringLiteral("type"), type);
    link.appendElement(QStringLiteral("locationURI"), location);
    return link;
}

bool eclipseLinks(XmlNode &e, const ProjectContext &c)
{
    e.children.clear();
    // Linked files live in two virtual folders of the project.
    e.children << makeLink(QStringLiteral("firmware"), QStringLiteral("2"),
                           QStringLiteral("virtual:/virtual"))
               << makeLink(QStringLiteral("user"), QStringLiteral("2"),
                           QStringLiteral("virtual:/virtual"));
    for (const QString &stem : c.drivers)
        e.children << makeLink(QStringLiteral("firmware/") + stem + QStringLiteral(".c"),
                               QStringLiteral("1"),
                               QStringLiteral("PARENT-2-PROJECT_LOC/libraries/drivers/src/") +
                                   stem + QStringLiteral(".c"));
    if (!c.systemFile.isEmpty())
        e.children << makeLink(
            QStringLiteral("firmware/") + c.systemFile, QStringLiteral("1"),
            QStringLiteral("PARENT-2-PROJECT_LOC/libraries/cmsis/cm4/device_support/") +
                c.systemFile);
    for (const QString &file : c.userFiles)
        e.children << makeLink(QStringLiteral("user/") + file, QStringLiteral("1"),
                               QStringLiteral("PARENT-1-PROJECT_LOC/src/") + file);
    return true;
}

bool eclipseDefines(XmlNode &e, const ProjectContext &c)
{
    QList<XmlNode *> values = e.childElements(QStringLiteral("listOptionValue"));
    QStringList defines;
    for (XmlNode *value : values)
        defines << value->attribute(QStringLiteral("value"));
    if (!replaceDeviceDefine(defines, c.job.device))
        return false;
    e.children.erase(std::remove_if(e.children.begin(), e.children.end(),
                                    [](const XmlNode &n) {
                                        return n.isElement() &&
                                               n.name == QLatin1String("listOptionValue");
                                    }),
                     e.children.end());
    for (const QString &define : defines) {
        XmlNode &value = e.appendElement(QStringLiteral("listOptionValue"));
        value.setAttribute(QStringLiteral("builtIn"), QStringLiteral("false"));
        value.setAttribute(QStringLiteral("value"), define);
    }
    return true;
}

bool eclipseScript(XmlNode &e, const ProjectContext &c)
{
    const QString folder =
        c.ide.linkerFolder.isEmpty() ? QString() : c.ide.linkerFolder + QLatin1Char('/');
    const QString script = QStringLiteral("\"${ProjDirPath}/") + folder + c.linkerStem +
                           QStringLiteral("_FLASH.ld\"");
    QList<XmlNode *> values = e.childElements(QStringLiteral("listOptionValue"));
    if (values.isEmpty()) {
        e.setAttribute(QStringLiteral("value"), script);
        return true;
    }
    for (int i = 1; i < values.size(); ++i)
        values.at(i)->name.clear(); // marked for removal below
    values.first()->setAttribute(QStringLiteral("value"), script);
    e.children.erase(
        std::remove_if(e.children.begin(), e.children.end(),
                       [](const XmlNode &n) { return n.isElement() && n.name.isEmpty(); }),
        e.children.end());
    return true;
}

} // namespace

QString ProjectContext::flashAlgorithm() const
{
    return job.series + QLatin1Char('_') +
           QString::number(job.flashKiB).rightJustified(3, QLatin1Char('0'));
}

bool ProjectContext::dashedDeviceForm() const
{
    static const QStringList dashed{
        QStringLiteral("MQ48T230"), QStringLiteral("MQ48T250"), QStringLiteral("MQ48T260"),
        QStringLiteral("MQ48T310"), QStringLiteral("MQ48T320"), QStringLiteral("MQ48T110"),
        QStringLiteral("MQ48T130"), QStringLiteral("MQ48T120"), QStringLiteral("MQ48T510"),
        QStringLiteral("MQ48T520"), QStringLiteral("MQ48W320"), QStringLiteral("MQ48V250"),
    };
    return dashed.contains(job.series);
}

bool replaceDeviceDefine(QStringList &defines, const QString &device)
{
    const int at = defines.indexOf(kStdDriverDefine);
    if (at < 0)
        return false;
    if (at == 0)
        defines.insert(0, device);
    else
        defines[at - 1] = device;
    return true;
}

const ProjectFormat &ProjectFormat::of(ProjectFormatKind kind)
{
    static const KeilProjectFormat keil;
    static const IarProjectFormat iar;
    static const EclipseProjectFormat eclipse;
    switch (kind) {
    case ProjectFormatKind::Keil:
        return keil;
    case ProjectFormatKind::Iar:
        return iar;
    case ProjectFormatKind::Eclipse:
        break;
    }
    return eclipse;
}

bool ProjectFormat::editText(QString &, const ProjectContext &) const
{
    return true;
}

bool ProjectFormat::write(const ProjectContext &context, QStringList *written,
                          QString *error) const
{
    const QString name = context.job.projectName;
    auto rename = [&name](const QString &text) {
        QString out = text;
        out.replace(QLatin1String("template"), name);
        out.replace(QLatin1String("Template"), name);
        return out;
    };
    for (const TemplateFile &file : files(context.ide)) {
        const QString source = context.templateFolder + QLatin1Char('/') + file.templateName;
        const QString writtenName = file.writtenFor(name);
        QByteArray data;
        if (!checkedio::readFile(source, &data, error))
            return false;
        QByteArray output;
        if (file.xml) {
            XmlTree tree;
            if (!tree.parse(data)) {
                if (error)
                    *error = tr("The template \"%1\" is not well-formed XML.").arg(source);
                return false;
            }
            tree.editAllText(rename);
            for (const ElementRule &rule : file.rules) {
                const QList<XmlNode *> found = tree.select(QString::fromLatin1(rule.path));
                if (found.isEmpty() && rule.required) {
                    if (error)
                        *error = tr("The template \"%1\" lacks the element %2.")
                                     .arg(source, QString::fromLatin1(rule.path));
                    return false;
                }
                for (XmlNode *element : found) {
                    if (!rule.edit(*element, context)) {
                        if (error)
                            *error = tr("The element %2 of the template \"%1\" can't be "
                                        "rewritten.")
                                         .arg(source, QString::fromLatin1(rule.path));
                        return false;
                    }
                }
            }
            output = tree.serialize();
        } else {
            QString text = rename(QString::fromUtf8(data));
            if (!editText(text, context)) {
                if (error)
                    *error = tr("The template \"%1\" can't be rewritten.").arg(source);
                return false;
            }
            output = text.toUtf8();
        }
        if (!checkedio::writeFile(context.outputFolder + QLatin1Char('/') + writtenName, output,
                                  error))
            return false;
        if (written)
            *written << writtenName;
    }
    return true;
}

QList<TemplateFile> KeilProjectFormat::files(const IdeType &ide) const
{
    const QList<ElementRule> project{
        {"Targets/Target/TargetOption/TargetCommonOption/Device", setDevice, true},
        {"Targets/Target/TargetOption/TargetCommonOption/Cpu", keilCpu, true},
        {"Targets/Target/TargetOption/TargetCommonOption/FlashDriverDll", keilDriver, true},
        {"Targets/Target/TargetOption/TargetCommonOption/RegisterFile", keilPackPath, false},
        {"Targets/Target/TargetOption/TargetCommonOption/SFDFile", keilPackPath, false},
        {"Targets/Target/TargetOption/TargetCommonOption/RegisterFilePath", keilPackPath, false},
        {"Targets/Target/TargetOption/TargetCommonOption/DBRegisterFilePath", keilPackPath, false},
        {"Targets/Target/TargetOption/TargetArmAds/Cads/VariousControls/Define", keilDefines,
         true},
        {"Targets/Target/TargetOption/TargetArmAds/ArmAdsMisc/OnChipMemories/IRAM/Size",
         keilRamSize, true},
        {"Targets/Target/TargetOption/TargetArmAds/ArmAdsMisc/OnChipMemories/IROM/Size",
         keilFlashSize, true},
        {"Targets/Target/TargetOption/TargetArmAds/ArmAdsMisc/OnChipMemories/OCR_RVCT4/Size",
         keilFlashSize, true},
        {"Targets/Target/TargetOption/TargetArmAds/ArmAdsMisc/OnChipMemories/OCR_RVCT9/Size",
         keilRamSize, true},
        {"Targets/Target/Groups/Group[GroupName=firmware]", keilFirmwareGroup, true},
        {"Targets/Target/Groups/Group[GroupName=user]", keilUserGroup, true},
    };
    const QList<ElementRule> options{
        {"Target/TargetOption/TargetDriverDllRegistry/SetRegEntry", keilRegistryEntry, true},
    };
    return {
        {QStringLiteral("template.") + ide.projectSuffix,
         QStringLiteral("%1.") + ide.projectSuffix, project, true},
        {QStringLiteral("template.") + ide.optionsSuffix,
         QStringLiteral("%1.") + ide.optionsSuffix, options, true},
    };
}

QList<TemplateFile> IarProjectFormat::files(const IdeType &) const
{
    const QList<ElementRule> project{
        {"configuration/settings[name=General]/data/option[name=OGChipSelectEditMenu]/state",
         iarChip, true},
        {"configuration/settings[name=General]/data/option[name=GFPUDeviceSlave]/state", iarChip,
         true},
        {"configuration/settings[name=ICCARM]/data/option[name=CCDefines]", iarDefines, true},
        {"configuration/settings[name=ILINK]/data/option[name=IlinkIcfFile]/state", iarIcf, true},
        {"group[name=firmware]", iarFirmwareGroup, true},
        {"group[name=user]", iarUserGroup, true},
    };
    const QList<ElementRule> debugger{
        {"configuration/settings[name=C-SPY]/data/option[name=MemFile]/state", iarDdf, true},
        {"configuration/settings[name=C-SPY]/data/option[name=FlashLoadersV3]/state", iarBoard,
         true},
    };
    return {
        {QStringLiteral("template.eww"), QStringLiteral("%1.eww"), {}, true},
        {QStringLiteral("template.ewp"), QStringLiteral("%1.ewp"), project, true},
        {QStringLiteral("template.ewd"), QStringLiteral("%1.ewd"), debugger, true},
        {QStringLiteral("template.ewt"), QStringLiteral("%1.ewt"), {}, true},
    };
}

QList<TemplateFile> EclipseProjectFormat::files(const IdeType &ide) const
{
    const QList<ElementRule> project{
        {"linkedResources", eclipseLinks, true},
    };
    const QList<ElementRule> cproject{
        {"**/option[@superClass=ilg.gnuarmeclipse.managedbuild.cross.option.c.compiler.defs]",
         eclipseDefines, true},
        {"**/option[@superClass=ilg.gnuarmeclipse.managedbuild.cross.option.cpp.compiler.defs]",
         eclipseDefines, false},
        {"**/option[@superClass=ilg.gnuarmeclipse.managedbuild.cross.option.c.linker."
         "scriptfile]",
         eclipseScript, true},
        {"**/option[@superClass=ilg.gnuarmeclipse.managedbuild.cross.option.cpp.linker."
         "scriptfile]",
         eclipseScript, false},
    };
    QList<TemplateFile> list{
        {QStringLiteral(".project"), QStringLiteral(".project"), project, true},
        {QStringLiteral(".cproject"), QStringLiteral(".cproject"), cproject, true},
    };
    if (ide.hasPreferences)
        list.append(
            {QStringLiteral("preferences.ini"), QStringLiteral("preferences.ini"), {}, false});
    return list;
}

bool EclipseProjectFormat::editText(QString &text, const ProjectContext &c) const
{
    // The maker's IDE reads its chip from three keys of preferences.ini.
    const QList<QPair<QString, QString>> keys{
        {QStringLiteral("chipSeries"), c.job.series},
        {QStringLiteral("chipTarget"), c.job.device},
        {QStringLiteral("chipSizeType"), QString(devicefacts::flashCodeChar(c.job.flashKiB))},
    };
    for (const auto &key : keys) {
        const QString pattern =
            QStringLiteral("(?m)^") + key.first + QStringLiteral("=([^\r\n]*)");
        if (!replaceGroup(text, pattern, 1, key.second))
            return false;
    }
    return true;
}
