#include "packages/packageindex.h"

#include "database/safexml.h"

#include <QDebug>
#include <QDomDocument>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QRegularExpression>
#include <QStringList>
#include <QTextStream>
#include <QUrl>

namespace {

// The first object of `array` whose "name" is `name`; empty when none.
QJsonObject namedElement(const QJsonArray &array, const QString &name)
{
    for (const QJsonValue &value : array) {
        const QJsonObject object = value.toObject();
        if (object.value(QStringLiteral("name")).toString() == name)
            return object;
    }
    return QJsonObject();
}

} // namespace

bool ReadPackageIndex(const QString &indexPath, const QString &section, const QString &family,
                      QString *version, QString *url)
{
    QFile file(indexPath);
    if (!file.open(QIODevice::ReadOnly)) {
        qDebug() << "Can't open " + indexPath;
        return false;
    }
    if (file.size() > kMaxPackageIndexBytes) {
        qDebug() << "Package index too large:" << indexPath;
        return false;
    }
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(stream.readAll().toUtf8(), &error);
    if (error.error != QJsonParseError::NoError || !doc.isObject()) {
        qDebug() << "Package index parse error:" << error.errorString();
        return false;
    }
    const QJsonArray children = doc.object().value(QStringLiteral("children")).toArray();
    const QJsonObject group = namedElement(children, section);
    const QJsonObject release =
        namedElement(group.value(QStringLiteral("releases")).toArray(), family);
    if (release.isEmpty())
        return false;
    *version = release.value(QStringLiteral("version")).toString();
    *url = release.value(QStringLiteral("url")).toString();
    return true;
}

QString GetDownloadInfo(const QString &file, const QString &key, const QString &toolName,
                        const QString &section)
{
    QDomDocument doc;
    if (!loadXmlDocument(file, &doc))
        return QString();
    const QDomElement group = doc.documentElement().firstChildElement(section);
    for (QDomElement tool = group.firstChildElement(); !tool.isNull();
         tool = tool.nextSiblingElement()) {
        for (QDomElement field = tool.firstChildElement(); !field.isNull();
             field = field.nextSiblingElement()) {
            if (field.text() == toolName)
                return tool.firstChildElement(key).text();
        }
    }
    return QString();
}

int VersionNumberFromText(const QString &versionText)
{
    const QStringList parts = versionText.mid(1).split(QLatin1Char('.'));
    if (parts.size() != 3)
        return 0;
    int number = 0;
    for (int i = 0; i < 3; ++i) {
        bool ok = false;
        const int part = parts.at(i).toInt(&ok, 16);
        if (!ok || part < 0 || part > 0x7fff)
            return 0;
        number |= part << (8 * (2 - i));
    }
    return number;
}

bool UrlNameHasVersion(const QString &url)
{
    static const QRegularExpression pattern(QStringLiteral("_V(\\d+).(\\d+).(\\d+)"));
    return pattern.match(url).hasMatch();
}

QString VersionForDownloadName(const QString &url, const QString &version)
{
    if (UrlNameHasVersion(url))
        return QString();
    return version.startsWith(QLatin1Char('V')) ? version.mid(1) : version;
}
