#include "pdftext.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QXmlStreamReader>

namespace pdftext {

namespace {

QString run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(60000))
        return QString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

bool available()
{
    for (const char *tool : {"pdftotext", "pdffonts", "pdfinfo"}) {
        if (QStandardPaths::findExecutable(QLatin1String(tool)).isEmpty())
            return false;
    }
    return true;
}

QString text(const QString &pdf, int page)
{
    QStringList args{QStringLiteral("-layout"), QStringLiteral("-enc"), QStringLiteral("UTF-8")};
    if (page > 0)
        args << QStringLiteral("-f") << QString::number(page) << QStringLiteral("-l")
             << QString::number(page);
    args << pdf << QStringLiteral("-");
    // Pages end in a form feed.
    return run(QStringLiteral("pdftotext"), args)
        .replace(QLatin1Char('\f'), QLatin1Char('\n'))
        .normalized(QString::NormalizationForm_KC);
}

QStringList pages(const QString &pdf)
{
    QStringList out;
    const int count = pageCount(pdf);
    for (int p = 1; p <= count; ++p)
        out << text(pdf, p);
    return out;
}

int pageCount(const QString &pdf)
{
    return info(pdf, QStringLiteral("Pages")).toInt();
}

QStringList fonts(const QString &pdf)
{
    QStringList lines = run(QStringLiteral("pdffonts"), {pdf}).split(QLatin1Char('\n'));
    // Two lines of heading, then one line per font.
    lines = lines.mid(2);
    lines.removeAll(QString());
    return lines;
}

QString info(const QString &pdf, const QString &key)
{
    const QStringList lines = run(QStringLiteral("pdfinfo"), {pdf}).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (line.startsWith(key + QLatin1Char(':')))
            return line.mid(key.size() + 1).trimmed();
    }
    return QString();
}

QList<Word> words(const QString &pdf)
{
    QList<Word> out;
    QXmlStreamReader xml(run(QStringLiteral("pdftotext"),
                             {QStringLiteral("-bbox"), pdf, QStringLiteral("-")}));
    int page = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("page")) {
            ++page;
        } else if (xml.name() == QLatin1String("word")) {
            const auto a = xml.attributes();
            Word w;
            w.page = page;
            const qreal x0 = a.value(QStringLiteral("xMin")).toDouble();
            const qreal y0 = a.value(QStringLiteral("yMin")).toDouble();
            const qreal x1 = a.value(QStringLiteral("xMax")).toDouble();
            const qreal y1 = a.value(QStringLiteral("yMax")).toDouble();
            w.box = QRectF(QPointF(x0, y0), QPointF(x1, y1));
            w.text = xml.readElementText();
            out << w;
        }
    }
    return out;
}

QSizeF pageSize(const QString &pdf)
{
    // "595.276 x 841.89 pts (A4)"
    const QRegularExpression size(QStringLiteral("([\\d.]+) x ([\\d.]+) pts"));
    const QRegularExpressionMatch m = size.match(info(pdf, QStringLiteral("Page size")));
    return m.hasMatch() ? QSizeF(m.captured(1).toDouble(), m.captured(2).toDouble()) : QSizeF();
}

} // namespace pdftext
