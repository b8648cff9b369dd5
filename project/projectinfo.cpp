#include "project/projectinfo.h"

#include <QDomElement>
#include <QXmlStreamWriter>

namespace {

QString boolText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

QString ProjectInfo::projectFolder() const
{
    const QString location = projectLocation.trimmed();
    const QString name = projectName.trimmed();
    if (location.isEmpty() || name.isEmpty())
        return QString();
    if (location.endsWith(QLatin1Char('/')) || location.endsWith(QLatin1Char('\\')))
        return location + name;
    return location + QLatin1Char('/') + name;
}

QList<QPair<QString, QString>> ProjectInfo::designValues() const
{
    return {
        {QStringLiteral("ProjectName"), projectName},
        {QStringLiteral("ProjectLocation"), projectLocation},
        {QStringLiteral("ToolchainIDE"), toolchainIDE},
        {QStringLiteral("KeepUserCode"), boolText(keepUserCode)},
        {QStringLiteral("MinHeapSize"), minHeapSize},
        {QStringLiteral("MinStackSize"), minStackSize},
        {QStringLiteral("UseFirmware"), boolText(useFirmware)},
        {QStringLiteral("PackageVersion"), packageVersion},
    };
}

void ProjectInfo::setDesignValue(const QString &key, const QString &value)
{
    if (key == QLatin1String("ProjectName"))
        projectName = value;
    else if (key == QLatin1String("ProjectLocation"))
        projectLocation = value;
    else if (key == QLatin1String("ToolchainIDE"))
        toolchainIDE = value;
    else if (key == QLatin1String("KeepUserCode"))
        keepUserCode = value.trimmed().compare(QLatin1String("false"), Qt::CaseInsensitive) != 0;
    else if (key == QLatin1String("MinHeapSize"))
        minHeapSize = value;
    else if (key == QLatin1String("MinStackSize"))
        minStackSize = value;
    else if (key == QLatin1String("UseFirmware"))
        useFirmware = value.trimmed().compare(QLatin1String("false"), Qt::CaseInsensitive) != 0;
    else if (key == QLatin1String("FirmwarePath"))
        firmwarePath = value;
    else if (key == QLatin1String("PackageVersion"))
        packageVersion = value;
}

bool ProjectInfo::operator==(const ProjectInfo &other) const
{
    return designValues() == other.designValues() && firmwarePath == other.firmwarePath;
}

QString projectInfoSectionName()
{
    return QStringLiteral("ProjectInfomation");
}

void writeProjectInfomation(QXmlStreamWriter &writer, const ProjectInfo &info)
{
    writer.writeStartElement(projectInfoSectionName());
    for (const auto &entry : info.designValues())
        writer.writeTextElement(entry.first, entry.second);
    writer.writeEndElement();
}

ProjectInfo readProjectInfomation(const QDomElement &designRoot)
{
    ProjectInfo info;
    const QDomElement block = designRoot.firstChildElement(projectInfoSectionName());
    for (QDomElement e = block.firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
        info.setDesignValue(e.tagName(), e.text());
    return info;
}
