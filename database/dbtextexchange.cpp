#include "database/dbtextexchange.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSet>
#include <QVector>

#include <algorithm>

namespace {

// One attribute family: "Comment" with "CommentCH" and "CommentNew", and so on.
struct TextKind
{
    QString name;
    QRegularExpression pair;   // English and Chinese side by side
    QRegularExpression single; // English alone
    QRegularExpression edited; // English, new English, Chinese
    QRegularExpression chineseAttribute;
};

const QVector<TextKind> &textKinds()
{
    static const QVector<TextKind> kinds = [] {
        QVector<TextKind> list;
        for (const char *name : {"Comment", "Group", "UserName"}) {
            const QString n = QString::fromLatin1(name);
            const QString value = QStringLiteral(" *= *\"([^\"]+)\"{1}");
            const QString maybeEmpty = QStringLiteral(" *= *\"([^\"]*)\"{1}");
            TextKind kind;
            kind.name = n;
            kind.pair =
                QRegularExpression(QStringLiteral("(%1%2) *(%1CH%3)").arg(n, value, maybeEmpty));
            kind.single = QRegularExpression(n + value);
            kind.edited = QRegularExpression(
                QStringLiteral("(%1%2) *(%1New%2) *(%1CH%3)").arg(n, value, maybeEmpty));
            kind.chineseAttribute = QRegularExpression(n + QStringLiteral("CH *="));
            list.append(kind);
        }
        return list;
    }();
    return kinds;
}

const QString kRefMode = QStringLiteral("RefMode");
const QString kIndent = QStringLiteral("        ");

// Where one text pair stands on an XML line.
struct Occurrence
{
    QString entry; // the pair as it is written to the text file
    QString english;
    int englishStart = -1;
    int englishLength = 0;
    bool hasChinese = false;
    QString chinese;
    int chineseStart = -1;
    int chineseLength = 0;
    int attributeEnd = -1; // behind the English attribute's closing quote
};

// The first pair of `kind` on the line, by the same rules for export and import.
bool findOccurrence(const QString &line, const TextKind &kind, Occurrence *out)
{
    QRegularExpressionMatch m = kind.pair.match(line);
    if (m.hasMatch()) {
        out->entry = m.captured(1) + QStringLiteral("  ") + m.captured(3);
        out->english = m.captured(2);
        out->englishStart = m.capturedStart(2);
        out->englishLength = m.capturedLength(2);
        out->hasChinese = true;
        out->chinese = m.captured(4);
        out->chineseStart = m.capturedStart(4);
        out->chineseLength = m.capturedLength(4);
        out->attributeEnd = m.capturedEnd(1);
        return true;
    }
    m = kind.single.match(line);
    if (!m.hasMatch())
        return false;
    out->entry = m.captured(0) + QStringLiteral("  ") + kind.name + QStringLiteral("CH=\"\"");
    out->english = m.captured(1);
    out->englishStart = m.capturedStart(1);
    out->englishLength = m.capturedLength(1);
    out->hasChinese = false;
    out->chinese.clear();
    out->attributeEnd = m.capturedEnd(0);
    return true;
}

// A line of a file without its line end, and the line end as it was.
struct RawLine
{
    QByteArray text;
    QByteArray end;
};

QVector<RawLine> splitLines(const QByteArray &content)
{
    QVector<RawLine> lines;
    int start = 0;
    while (start < content.size()) {
        const int nl = content.indexOf('\n', start);
        RawLine line;
        if (nl < 0) {
            line.text = content.mid(start);
            start = content.size();
        } else {
            line.text = content.mid(start, nl - start);
            line.end = QByteArrayLiteral("\n");
            start = nl + 1;
        }
        if (line.text.endsWith('\r')) {
            line.text.chop(1);
            line.end.prepend('\r');
        }
        lines.append(line);
    }
    return lines;
}

QStringList decodedLines(const QVector<RawLine> &raw)
{
    QStringList lines;
    lines.reserve(raw.size());
    for (const RawLine &line : raw)
        lines.append(QString::fromUtf8(line.text));
    return lines;
}

// The distinct entries of one kind in the order of the file, lines with RefMode left out.
QStringList distinctEntries(const QStringList &lines, const TextKind &kind)
{
    QStringList entries;
    QSet<QString> seen;
    Occurrence occ;
    for (const QString &line : lines) {
        if (line.contains(kRefMode) || !findOccurrence(line, kind, &occ))
            continue;
        if (!seen.contains(occ.entry)) {
            seen.insert(occ.entry);
            entries.append(occ.entry);
        }
    }
    return entries;
}

// One line of a text file, read back.
struct TextLine
{
    QString english;
    QString newEnglish; // empty when the English text stays
    QString chinese;
};

// Reads one text file line into its kind and texts; -1 when it holds no pair.
int parseTextLine(const QString &line, TextLine *out)
{
    const QVector<TextKind> &kinds = textKinds();
    for (int k = 0; k < kinds.size(); ++k) {
        const QRegularExpressionMatch m = kinds[k].edited.match(line);
        if (m.hasMatch()) {
            *out = {m.captured(2), m.captured(4), m.captured(6)};
            return k;
        }
    }
    for (int k = 0; k < kinds.size(); ++k) {
        const QRegularExpressionMatch m = kinds[k].pair.match(line);
        if (m.hasMatch()) {
            *out = {m.captured(2), QString(), m.captured(4)};
            return k;
        }
    }
    return -1;
}

// A change of one line: replace `length` characters at `start` by `text`.
struct Edit
{
    int start;
    int length;
    QString text;
};

QString applyEdits(QString line, QVector<Edit> edits)
{
    std::sort(edits.begin(), edits.end(),
              [](const Edit &a, const Edit &b) { return a.start < b.start; });
    // Overlapping spans can only come from texts that quote other attributes; the first wins.
    QVector<Edit> kept;
    int end = -1;
    for (const Edit &e : qAsConst(edits)) {
        if (e.start < end)
            continue;
        kept.append(e);
        end = e.start + e.length;
    }
    for (int i = kept.size() - 1; i >= 0; --i)
        line.replace(kept[i].start, kept[i].length, kept[i].text);
    return line;
}

bool readFile(const QString &path, QByteArray *content)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    *content = file.readAll();
    return file.error() == QFileDevice::NoError;
}

bool writeFile(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (file.write(content) != content.size() || !file.flush() ||
        file.error() != QFileDevice::NoError) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

QStringList filesOf(const QString &folder, const QString &pattern)
{
    return QDir(folder).entryList({pattern}, QDir::Files | QDir::CaseSensitive, QDir::Name);
}

QString withSuffix(const QString &name, const QString &suffix)
{
    return name.left(name.size() - 4) + suffix;
}

} // namespace

QString DbTextExchange::exportTexts(const QByteArray &xml)
{
    const QStringList lines = decodedLines(splitLines(xml));
    QString out;
    const QVector<TextKind> &kinds = textKinds();
    for (int k = 0; k < kinds.size(); ++k) {
        if (k > 0)
            out += QLatin1Char('\n');
        for (const QString &entry : distinctEntries(lines, kinds[k]))
            out += kIndent + entry + QLatin1Char('\n');
    }
    return out;
}

QByteArray DbTextExchange::importTexts(const QByteArray &xml, const QByteArray &txt)
{
    const QVector<TextKind> &kinds = textKinds();
    const int kindCount = kinds.size();

    // The text lines by kind and English text, in the order of the text file.
    QVector<QHash<QString, QVector<TextLine>>> edited(kindCount);
    for (const RawLine &raw : splitLines(txt)) {
        TextLine line;
        const int k = parseTextLine(QString::fromUtf8(raw.text), &line);
        if (k >= 0)
            edited[k][line.english].append(line);
    }

    QVector<RawLine> rawLines = splitLines(xml);
    const QStringList lines = decodedLines(rawLines);

    // The entries the export makes of this file, grouped by English text, so that the n-th
    // text line of an English text belongs to its n-th entry.
    QVector<QHash<QString, QStringList>> exported(kindCount);
    for (int k = 0; k < kindCount; ++k) {
        for (const QString &entry : distinctEntries(lines, kinds[k])) {
            Occurrence occ;
            findOccurrence(entry, kinds[k], &occ);
            exported[k][occ.english].append(entry);
        }
    }

    QByteArray result;
    result.reserve(xml.size() + xml.size() / 8);
    for (int i = 0; i < rawLines.size(); ++i) {
        const QString &line = lines[i];
        QVector<Edit> edits;
        if (!line.contains(kRefMode)) {
            for (int k = 0; k < kindCount; ++k) {
                Occurrence occ;
                if (!findOccurrence(line, kinds[k], &occ))
                    continue;
                const QVector<TextLine> candidates = edited[k].value(occ.english);
                if (candidates.isEmpty())
                    continue;
                const QStringList entries = exported[k].value(occ.english);
                const int index = entries.indexOf(occ.entry);
                const TextLine &text = candidates.size() == entries.size() && index >= 0
                                           ? candidates[index]
                                           : candidates.last();
                if (!text.newEnglish.isEmpty() && text.newEnglish != occ.english)
                    edits.append({occ.englishStart, occ.englishLength, text.newEnglish});
                if (occ.hasChinese) {
                    if (text.chinese != occ.chinese)
                        edits.append({occ.chineseStart, occ.chineseLength, text.chinese});
                } else if (!text.chinese.isEmpty() &&
                           !kinds[k].chineseAttribute.match(line).hasMatch()) {
                    edits.append(
                        {occ.attributeEnd, 0,
                         QStringLiteral(" %1CH=\"%2\"").arg(kinds[k].name, text.chinese)});
                }
            }
        }
        if (edits.isEmpty())
            result += rawLines[i].text;
        else
            result += applyEdits(line, edits).toUtf8();
        result += rawLines[i].end;
    }
    return result;
}

DbTextExchange::FolderResult DbTextExchange::exportFolder(const QString &folder)
{
    FolderResult result;
    const QDir dir(folder);
    for (const QString &name : filesOf(folder, QStringLiteral("*.xml"))) {
        const QString xmlPath = dir.filePath(name);
        const QString txtPath = dir.filePath(withSuffix(name, QStringLiteral(".txt")));
        QByteArray xml;
        if (!readFile(xmlPath, &xml) || !writeFile(txtPath, exportTexts(xml).toUtf8())) {
            result.skipped.append(xmlPath);
            continue;
        }
        result.written.append(txtPath);
    }
    return result;
}

DbTextExchange::FolderResult DbTextExchange::importFolder(const QString &folder)
{
    FolderResult result;
    const QDir dir(folder);
    for (const QString &name : filesOf(folder, QStringLiteral("*.txt"))) {
        const QString txtPath = dir.filePath(name);
        const QString xmlPath = dir.filePath(withSuffix(name, QStringLiteral(".xml")));
        QByteArray txt;
        QByteArray xml;
        if (!QFileInfo::exists(xmlPath) || !readFile(txtPath, &txt) || !readFile(xmlPath, &xml)) {
            result.skipped.append(txtPath);
            continue;
        }
        const QByteArray updated = importTexts(xml, txt);
        if (updated == xml)
            continue;
        if (!writeFile(xmlPath, updated)) {
            result.skipped.append(xmlPath);
            continue;
        }
        result.written.append(xmlPath);
    }
    return result;
}
