#include "database/safexml.h"

#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace {

// Walks the whole document once without building anything; true when it is safe to parse.
bool preScan(const QByteArray &data)
{
    QXmlStreamReader reader(data);
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (++depth > kMaxXmlDepth)
                return false;
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        case QXmlStreamReader::DTD:
            if (!reader.entityDeclarations().isEmpty() ||
                reader.text().contains(QLatin1String("<!ENTITY")))
                return false;
            break;
        case QXmlStreamReader::EntityReference:
            return false;
        default:
            break;
        }
    }
    return !reader.hasError();
}

} // namespace

bool isSafeXml(const QByteArray &data)
{
    return data.size() <= kMaxXmlBytes && preScan(data);
}

bool readSafeXmlFile(const QString &path, QByteArray *data)
{
    if (!data)
        return false;
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > kMaxXmlBytes)
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray content = file.read(kMaxXmlBytes + 1);
    if (file.error() != QFileDevice::NoError || !isSafeXml(content))
        return false;
    *data = content;
    return true;
}

bool parseXmlDocument(const QByteArray &data, QDomDocument *doc)
{
    if (!doc || !isSafeXml(data))
        return false;
    QDomDocument parsed;
    if (!parsed.setContent(data, false))
        return false;
    *doc = parsed;
    return true;
}

bool loadXmlDocument(const QString &path, QDomDocument *doc)
{
    QByteArray data;
    if (!doc || !readSafeXmlFile(path, &data))
        return false;
    QDomDocument parsed;
    if (!parsed.setContent(data, false))
        return false;
    *doc = parsed;
    return true;
}
