#include "database/catalogue.h"

#include "database/language.h"
#include "database/paths.h"
#include "database/xmlsection.h"

namespace {

// The section `term` of the catalogue; `file` keeps the document alive.
QDomElement catalogueSection(LoadedXml *file, const QString &path, const QString &term)
{
    *file = loadXmlFile(path);
    if (file->root.isNull())
        return QDomElement();
    return findTermSection(file->root, term);
}

} // namespace

QList<MCUSerialInfo> GetMCUSerialList()
{
    return GetMCUSerialList(cataloguePath());
}

QList<MCUSerialInfo> GetMCUSerialList(const QString &cataloguePath)
{
    QList<MCUSerialInfo> list;
    LoadedXml file;
    const QDomElement section =
        catalogueSection(&file, cataloguePath, QStringLiteral("MCUSerialsList"));
    for (QDomElement e = section.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        MCUSerialInfo info;
        info.Serial = e.attribute(QStringLiteral("Serial"));
        info.InfoEN = e.attribute(QStringLiteral("InfoEN"));
        info.InfoCH = e.attribute(QStringLiteral("InfoCH"));
        info.Info = ResolveRuleA(info.InfoEN, info.InfoCH);
        list.append(info);
    }
    return list;
}

QList<MCUPackageInfo> GetMCUPackageList()
{
    return GetMCUPackageList(cataloguePath());
}

QList<MCUPackageInfo> GetMCUPackageList(const QString &cataloguePath)
{
    QList<MCUPackageInfo> list;
    LoadedXml file;
    const QDomElement section =
        catalogueSection(&file, cataloguePath, QStringLiteral("MCUPackageList"));
    for (QDomElement e = section.firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
        list.append(e.text());
    return list;
}

QList<MCUListItem> GetMCUList(const QString &series)
{
    return GetMCUList(cataloguePath(), series);
}

QList<MCUListItem> GetMCUList(const QString &cataloguePath, const QString &series)
{
    QList<MCUListItem> list;
    if (series.isEmpty())
        return list;
    LoadedXml file;
    const QDomElement section = catalogueSection(&file, cataloguePath, series);
    for (QDomElement e = section.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        MCUListItem item;
        item.Name = e.attribute(QStringLiteral("Name"));
        item.Package = e.attribute(QStringLiteral("Package"));
        item.Flash = e.attribute(QStringLiteral("Flash"));
        item.SRAM = e.attribute(QStringLiteral("SRAM"));
        item.MaxSRAM = e.attribute(QStringLiteral("MaxSRAM"));
        list.append(item);
    }
    return list;
}
