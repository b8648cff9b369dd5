#include "codegen/usercode.h"

#include "codegen/templateengine.h"

namespace UserCode {

namespace {

const QString kBegin = QStringLiteral("add user code begin ");
const QString kEnd = QStringLiteral("add user code end ");

bool isWordChar(QChar c)
{
    return c.isLetterOrNumber() || c == QLatin1Char('_');
}

// Start of the "/*" in front of `keywordPos` (blanks allowed between), or -1.
int commentStart(const QString &text, int keywordPos)
{
    int i = keywordPos;
    while (i > 0 && text.at(i - 1) == QLatin1Char(' '))
        --i;
    if (i >= 2 && text.at(i - 1) == QLatin1Char('*') && text.at(i - 2) == QLatin1Char('/'))
        return i - 2;
    return -1;
}

// Index behind the "*/" that follows `pos` after blanks, or -1.
int commentEnd(const QString &text, int pos)
{
    const int n = text.size();
    while (pos < n && text.at(pos) == QLatin1Char(' '))
        ++pos;
    if (pos + 1 < n && text.at(pos) == QLatin1Char('*') && text.at(pos + 1) == QLatin1Char('/'))
        return pos + 2;
    return -1;
}

struct Span
{
    int start = -1;
    int end = -1;
    int innerStart = -1; // behind the begin line's "*/"
    int innerEnd = -1;   // the "/*" of the end line
};

// A marker "/* *add user code <kind> NAME *\*/" starting at or behind `from`: the first
// one when `last` is false, else the last one.
Span findMarker(const QString &text, const QString &keyword, const QString &name, int from,
                bool last)
{
    const QString needle = keyword + name;
    Span found;
    int pos = text.indexOf(needle, from);
    while (pos >= 0) {
        const int start = commentStart(text, pos);
        const int end = start >= from ? commentEnd(text, pos + needle.size()) : -1;
        if (end >= 0) {
            found = Span{start, end};
            if (!last)
                return found;
        }
        pos = text.indexOf(needle, pos + 1);
    }
    return found;
}

// The region of a slot: from the first begin line to the last end line behind it, with at
// least one character between the two.
Span slotRegion(const QString &text, const QString &name)
{
    const Span begin = findMarker(text, kBegin, name, 0, false);
    if (begin.start < 0)
        return {};
    const Span end = findMarker(text, kEnd, name, begin.end + 1, true);
    if (end.start < 0)
        return {};
    return Span{begin.start, end.end, begin.end, end.start};
}

} // namespace

QStringList slotNames(const QString &templateText)
{
    // A begin line: "/*", blanks, the keyword, a name of words and blanks, "*/", a line
    // break. The name is the text between, trimmed.
    QStringList names;
    const int n = templateText.size();
    int pos = templateText.indexOf(kBegin);
    while (pos >= 0) {
        int next = pos + 1;
        if (commentStart(templateText, pos) >= 0) {
            int i = pos + kBegin.size();
            if (i < n && isWordChar(templateText.at(i))) {
                while (i < n && (isWordChar(templateText.at(i)) ||
                                 templateText.at(i) == QLatin1Char(' ')))
                    ++i;
                if (i + 2 < n && templateText.at(i) == QLatin1Char('*') &&
                    templateText.at(i + 1) == QLatin1Char('/') &&
                    templateText.at(i + 2) == QLatin1Char('\n')) {
                    names << templateText.mid(pos + kBegin.size(), i - pos - kBegin.size())
                                 .trimmed();
                    next = i + 3;
                }
            }
        }
        pos = templateText.indexOf(kBegin, next);
    }
    return names;
}

void mergeUserCode(QString oldText, QString &templateText)
{
    for (const QString &name : slotNames(templateText)) {
        const Span old = slotRegion(oldText, name);
        if (old.start < 0)
            continue;
        const Span slot = slotRegion(templateText, name);
        if (slot.start < 0)
            continue;
        const QString whole = templateText.mid(slot.start, slot.end - slot.start);
        const QString inner = templateText.mid(slot.innerStart, slot.innerEnd - slot.innerStart);
        const QString replacement = TemplateEngine::expandCaptures(
            oldText.mid(old.start, old.end - old.start), {whole, inner});
        templateText.replace(slot.start, slot.end - slot.start, replacement);
    }
}

} // namespace UserCode
