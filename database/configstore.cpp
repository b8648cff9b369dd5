#include "database/configstore.h"

#include "database/safexml.h"

#include <QDomDocument>
#include <QFileInfo>
#include <QSaveFile>

namespace {

constexpr int kIndent = 4;

// Replaces the file's content with the document; false when any step of the write fails.
bool saveDocument(const QString &path, const QDomDocument &doc)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    const QByteArray data = doc.toByteArray(kIndent);
    if (file.write(data) != data.size() || !file.flush() || file.error() != QFileDevice::NoError) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

} // namespace

bool CreateConfigFile(const QString &path)
{
    QDomDocument doc;
    doc.appendChild(doc.createProcessingInstruction(
        QStringLiteral("xml"), QStringLiteral("version=\"1.0\" encoding=\"UTF-8\"")));
    doc.appendChild(doc.createElement(QStringLiteral("Configuration")));
    return saveDocument(path, doc);
}

bool GetConfigValue(const QString &path, const QString &key, QString &value)
{
    QDomDocument doc;
    if (!loadXmlDocument(path, &doc))
        return false;
    const QDomElement root = doc.documentElement();
    if (!root.hasChildNodes())
        return false;
    for (QDomNode node = root.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isElement() && node.nodeName() == key) {
            value = node.toElement().text();
            return true;
        }
    }
    return false;
}

bool SetConfigValue(const QString &path, const QString &key, const QString &value)
{
    QDomDocument doc;
    if (!loadXmlDocument(path, &doc))
        return false;
    QDomElement root = doc.documentElement();
    if (root.isNull())
        return false;
    bool found = false;
    for (QDomNode node = root.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isElement() && node.nodeName() == key) {
            // An empty element has no first child: setting a null node changes nothing.
            node.firstChild().setNodeValue(value);
            found = true;
        }
    }
    if (!found) {
        QDomElement element = doc.createElement(key);
        element.appendChild(doc.createTextNode(value));
        root.appendChild(element);
    }
    return saveDocument(path, doc);
}

bool StoreConfigValue(const QString &path, const QString &key, const QString &value)
{
    QDomDocument doc;
    if (QFileInfo(path).isFile() && QFileInfo(path).isReadable() && !loadXmlDocument(path, &doc))
        setAsideUnreadableFile(path);
    if (!QFileInfo::exists(path) && !CreateConfigFile(path))
        return false;
    return SetConfigValue(path, key, value);
}
