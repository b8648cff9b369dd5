#include "database/safexml.h"

#include <QCoreApplication>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QTextCodec>
#include <QXmlStreamReader>

namespace {

// The first line with bytes that are no UTF-8, in a document that claims no other encoding;
// 0 when there is none.
int firstBadUtf8Line(const QByteArray &data)
{
    if (data.startsWith("\xff\xfe") || data.startsWith("\xfe\xff"))
        return 0;
    const int declarationEnd = data.indexOf("?>");
    const QByteArray declaration = data.startsWith("<?xml") && declarationEnd > 0
                                       ? data.left(declarationEnd).toLower()
                                       : QByteArray();
    if (declaration.contains("encoding") && !declaration.contains("utf-8"))
        return 0;
    QTextCodec *utf8 = QTextCodec::codecForName("UTF-8");
    int line = 1;
    int start = 0;
    while (start <= data.size()) {
        int end = data.indexOf('\n', start);
        if (end < 0)
            end = data.size();
        QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
        utf8->toUnicode(data.constData() + start, end - start, &state);
        // A sequence cut off at the very end is a truncated file, not a wrong encoding.
        if (state.invalidChars > 0 || (state.remainingChars > 0 && end < data.size()))
            return line;
        start = end + 1;
        ++line;
    }
    return 0;
}

QString atLine(const QXmlStreamReader &reader, const QString &what)
{
    return QCoreApplication::translate("SafeXml", "line %1: %2")
        .arg(reader.lineNumber())
        .arg(what);
}

// Walks the whole document once without building anything; empty when it is safe to parse,
// else the reason.
QString preScan(const QByteArray &data)
{
    QXmlStreamReader reader(data);
    int depth = 0;
    bool root = false;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            root = true;
            if (++depth > kMaxXmlDepth)
                return atLine(reader, QCoreApplication::translate("SafeXml",
                                                                  "elements nested deeper than %1")
                                          .arg(kMaxXmlDepth));
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        case QXmlStreamReader::DTD:
            if (!reader.entityDeclarations().isEmpty() ||
                reader.text().contains(QLatin1String("<!ENTITY")))
                return atLine(reader, QCoreApplication::translate(
                                          "SafeXml", "the document declares entities"));
            break;
        case QXmlStreamReader::EntityReference:
            return atLine(reader,
                          QCoreApplication::translate("SafeXml", "undeclared entity reference"));
        default:
            break;
        }
    }
    if (reader.hasError()) {
        // The stream decoder blames line 1 for bytes that are no UTF-8: find the real line.
        const int badLine = firstBadUtf8Line(data);
        if (badLine > 0)
            return QCoreApplication::translate("SafeXml", "line %1: bytes that are no UTF-8")
                .arg(badLine);
        return atLine(reader, reader.errorString());
    }
    if (!root)
        return QCoreApplication::translate("SafeXml", "the file holds no element");
    return QString();
}

} // namespace

bool isSafeXml(const QByteArray &data)
{
    return xmlProblem(data).isEmpty();
}

QString xmlProblem(const QByteArray &data)
{
    if (data.size() > kMaxXmlBytes)
        return QCoreApplication::translate("SafeXml", "larger than %1 MB")
            .arg(kMaxXmlBytes / (1024 * 1024));
    return preScan(data);
}

bool readSafeXmlFile(const QString &path, QByteArray *data)
{
    return readSafeXmlFile(path, data, nullptr);
}

bool readSafeXmlFile(const QString &path, QByteArray *data, QString *problem)
{
    QString why;
    const auto fail = [&](const QString &reason) {
        if (problem)
            *problem = reason;
        return false;
    };
    if (!data)
        return fail(QCoreApplication::translate("SafeXml", "nothing to read into"));
    const QFileInfo info(path);
    if (!info.exists())
        return fail(QCoreApplication::translate("SafeXml", "the file does not exist"));
    if (!info.isFile())
        return fail(QCoreApplication::translate("SafeXml", "not a file"));
    if (info.size() > kMaxXmlBytes)
        return fail(QCoreApplication::translate("SafeXml", "larger than %1 MB")
                        .arg(kMaxXmlBytes / (1024 * 1024)));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(QCoreApplication::translate("SafeXml", "can not be opened: ") +
                    file.errorString());
    const QByteArray content = file.read(kMaxXmlBytes + 1);
    if (file.error() != QFileDevice::NoError)
        return fail(QCoreApplication::translate("SafeXml", "can not be read: ") +
                    file.errorString());
    why = xmlProblem(content);
    if (!why.isEmpty())
        return fail(why);
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

namespace {
SetAsideHandler &setAsideHandler()
{
    static SetAsideHandler handler = nullptr;
    return handler;
}
} // namespace

void setSetAsideHandler(SetAsideHandler handler)
{
    setAsideHandler() = handler;
}

QString setAsideUnreadableFile(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return QString();
    QString aside = path + QStringLiteral(".bad");
    for (int n = 2; QFileInfo::exists(aside) && n < 1000; ++n)
        aside = path + QStringLiteral(".bad") + QString::number(n);
    if (QFileInfo::exists(aside) || !QFile::rename(path, aside))
        return QString();
    if (SetAsideHandler handler = setAsideHandler())
        handler(path, aside);
    return aside;
}
