#include "database/xmlsection.h"

#include "database/safexml.h"

#include <QDomDocument>
#include <QDomNamedNodeMap>

QDomElement findTermSection(const QDomElement &root, const QString &term)
{
    for (QDomElement e = root.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        const QDomNamedNodeMap attrs = e.attributes();
        for (int i = 0; i < attrs.count(); ++i) {
            const QDomAttr attr = attrs.item(i).toAttr();
            if (attr.name() == QLatin1String("term")) {
                if (attr.value() == term)
                    return e;
                break;
            }
        }
    }
    return QDomElement();
}

LoadedXml loadXmlFile(const QString &path)
{
    LoadedXml file;
    if (loadXmlDocument(path, &file.doc))
        file.root = file.doc.documentElement();
    return file;
}
