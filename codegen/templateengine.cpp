#include "codegen/templateengine.h"

#include <QHash>
#include <QRegularExpression>

namespace TemplateEngine {

namespace {

// Index behind the line break of an opening tag whose "]" ends before `pos`, or -1.
int openingEnd(const QString &text, int pos, Tail tail)
{
    const int n = text.size();
    if (tail != Tail::Strict) {
        while (pos < n && text.at(pos) == QLatin1Char(' '))
            ++pos;
    }
    if (pos < n && text.at(pos) == QLatin1Char('\n'))
        return pos + 1;
    return -1;
}

// Index behind the tail of a closing tag whose "]" ends before `pos`, or -1.
int closingEnd(const QString &text, int pos, Tail tail)
{
    const int n = text.size();
    if (tail != Tail::Strict) {
        while (pos < n && text.at(pos) == QLatin1Char(' '))
            ++pos;
    }
    const int breaks = pos;
    while (pos < n && text.at(pos) == QLatin1Char('\n'))
        ++pos;
    if (pos == breaks && tail != Tail::Optional)
        return -1;
    return pos;
}

// A compiled pattern, kept for the next use of the same text on this thread.
const QRegularExpression &cachedPattern(const QString &pattern)
{
    thread_local QHash<QString, QRegularExpression> cache;
    auto it = cache.find(pattern);
    if (it == cache.end()) {
        QRegularExpression re(pattern, QRegularExpression::DotMatchesEverythingOption);
        re.optimize();
        it = cache.insert(pattern, re);
    }
    return it.value();
}

QStringList capturesOf(const QRegularExpressionMatch &m)
{
    QStringList caps;
    for (int i = 0; i <= m.lastCapturedIndex(); ++i)
        caps << m.captured(i);
    return caps;
}

} // namespace

Block findBlock(const QString &text, const QString &tag, Tail tail, int from)
{
    const QString open = QLatin1String("[#") + tag + QLatin1Char(']');
    const QString close = QLatin1String("[/#") + tag + QLatin1Char(']');
    int pos = qMax(0, from);
    while (true) {
        const int s = text.indexOf(open, pos);
        if (s < 0)
            return {};
        const int bodyStart = openingEnd(text, s + open.size(), tail);
        if (bodyStart < 0) {
            pos = s + 1;
            continue;
        }
        // The body holds at least one character; the last closing tag wins.
        int c = text.lastIndexOf(close);
        while (c >= bodyStart + 1) {
            const int e = closingEnd(text, c + close.size(), tail);
            if (e >= 0)
                return Block{s, bodyStart, c, e};
            c = text.lastIndexOf(close, c - 1);
        }
        // No closing tag behind the first opening one: none behind a later one either.
        return {};
    }
}

QString blockBody(const QString &text, const Block &block)
{
    return text.mid(block.bodyStart, block.bodyEnd - block.bodyStart);
}

bool keepBlock(QString &text, const QString &tag, Tail tail)
{
    bool found = false;
    int from = 0;
    for (Block b = findBlock(text, tag, tail, from); b.isValid();
         b = findBlock(text, tag, tail, from)) {
        const QString replacement = blockBody(text, b) + QLatin1Char('\n');
        text.replace(b.start, b.end - b.start, replacement);
        from = b.start + replacement.size();
        found = true;
    }
    return found;
}

bool dropBlock(QString &text, const QString &tag, Tail tail)
{
    bool found = false;
    int from = 0;
    for (Block b = findBlock(text, tag, tail, from); b.isValid();
         b = findBlock(text, tag, tail, from)) {
        text.remove(b.start, b.end - b.start);
        from = b.start;
        found = true;
    }
    return found;
}

bool gateBlock(QString &text, const QString &tag, bool on, Tail tail)
{
    return on ? keepBlock(text, tag, tail) : dropBlock(text, tag, tail);
}

bool gateBlockBySignal(QString &text, const QStringList &names,
                       const std::function<bool(const QString &)> &isAssigned,
                       const QString &tag, bool withBreak)
{
    const Block b = findBlock(text, tag);
    if (!b.isValid())
        return false;
    for (const QString &name : names) {
        if (isAssigned(name)) {
            QString body = blockBody(text, b);
            if (withBreak)
                body += QLatin1Char('\n');
            text.replace(b.start, b.end - b.start, body);
            return true;
        }
    }
    text.remove(b.start, b.end - b.start);
    return true;
}

bool editBlock(QString &text, const QString &tag, bool keep,
               const std::function<bool(QString &body)> &edit, Tail tail)
{
    const Block b = findBlock(text, tag, tail);
    if (!b.isValid())
        return false;
    if (!keep) {
        text.remove(b.start, b.end - b.start);
        return true;
    }
    const QString original = blockBody(text, b);
    QString body = original + QLatin1Char('\n');
    if (!edit(body))
        return false;
    closeBlanks(body);
    const QString whole = text.mid(b.start, b.end - b.start);
    text.replace(b.start, b.end - b.start, expandCaptures(body, {whole, original}));
    return true;
}

bool repeatBlock(QString &text, const QString &tag, int count,
                 const std::function<bool(QString &copy, int index)> &perCopy, Tail tail)
{
    const Block b = findBlock(text, tag, tail);
    if (!b.isValid())
        return false;
    if (count <= 0) {
        text.remove(b.start, b.end - b.start);
        return true;
    }
    const QString pattern = blockBody(text, b);
    QString accumulated;
    for (int i = 0; i < count; ++i) {
        QString copy = pattern;
        if (!perCopy(copy, i))
            return false;
        accumulated += copy;
    }
    accumulated += QLatin1Char('\n');
    text.replace(b.start, b.end - b.start, accumulated);
    return true;
}

bool replacePattern(QString &text, const QString &pattern, const QString &after)
{
    const QRegularExpression &re = cachedPattern(pattern);
    QRegularExpressionMatchIterator it = re.globalMatch(text);
    if (!it.hasNext())
        return false;
    QString out;
    int last = 0;
    while (it.hasNext()) {
        const QRegularExpressionMatch m = it.next();
        out += text.midRef(last, m.capturedStart() - last);
        out += expandCaptures(after, capturesOf(m));
        last = m.capturedEnd();
    }
    out += text.midRef(last);
    text = out;
    return true;
}

bool replaceLastMatch(QString &text, const QString &pattern, const QString &after)
{
    const QRegularExpression &re = cachedPattern(pattern);
    QRegularExpressionMatchIterator it = re.globalMatch(text);
    QRegularExpressionMatch last;
    while (it.hasNext())
        last = it.next();
    if (!last.hasMatch())
        return false;
    text.replace(last.capturedStart(), last.capturedLength(),
                 expandCaptures(after, capturesOf(last)));
    return true;
}

bool containsPattern(const QString &text, const QString &pattern)
{
    return cachedPattern(pattern).match(text).hasMatch();
}

bool rewriteAssignment(QString &text, const QString &lhs, const QString &value)
{
    if (value.isEmpty())
        return false;
    return replacePattern(text, lhs + QLatin1String("\\s*=\\s*\\w+;?"),
                          lhs + QLatin1String(" = ") + value + QLatin1Char(';'));
}

bool rewriteCall(QString &text, const QString &fn, const QStringList &args, bool keepFirst)
{
    const int argc = args.size() + (keepFirst ? 1 : 0);
    if (argc <= 0)
        return false;
    QString pattern = fn + QLatin1String("\\((\\s*\\w+)");
    for (int i = 1; i < argc; ++i)
        pattern += QLatin1String(",\\s*(\\w+)");
    pattern += QLatin1String("\\);?");
    const QRegularExpression &re = cachedPattern(pattern);
    QRegularExpressionMatchIterator it = re.globalMatch(text);
    if (!it.hasNext())
        return false;
    QString out;
    int last = 0;
    while (it.hasNext()) {
        const QRegularExpressionMatch m = it.next();
        QStringList values;
        for (int i = 0; i < argc; ++i) {
            const int argIndex = keepFirst ? i - 1 : i;
            const QString given = argIndex >= 0 ? args.at(argIndex) : QString();
            values << (given.isEmpty() ? m.captured(i + 1) : given);
        }
        out += text.midRef(last, m.capturedStart() - last);
        out += fn + QLatin1Char('(') + values.join(QLatin1String(", ")) + QLatin1String(");");
        last = m.capturedEnd();
    }
    out += text.midRef(last);
    text = out;
    return true;
}

void closeBlanks(QString &text)
{
    // Right to left, so that earlier offsets stay valid; matches never overlap because
    // each one ends at its own brace.
    for (int i = text.lastIndexOf(QLatin1Char('}')); i > 0;
         i = text.lastIndexOf(QLatin1Char('}'), i - 1)) {
        int j = i;
        while (j > 0 && text.at(j - 1) == QLatin1Char('\n'))
            --j;
        if (j == i)
            continue;
        while (j > 0 && text.at(j - 1) == QLatin1Char(' '))
            --j;
        text.replace(j, i - j, QStringLiteral("\n"));
        i = j + 1;
    }
}

void openBlanks(QString &text)
{
    QString out;
    out.reserve(text.size());
    const int n = text.size();
    int i = 0;
    while (i < n) {
        const QChar c = text.at(i);
        out += c;
        ++i;
        if (c != QLatin1Char('{'))
            continue;
        int j = i;
        while (j < n && text.at(j) == QLatin1Char(' '))
            ++j;
        int k = j;
        while (k < n && text.at(k) == QLatin1Char('\n'))
            ++k;
        if (k > j) {
            out += QLatin1Char('\n');
            i = k;
        }
    }
    text = out;
}

QString expandCaptures(const QString &after, const QStringList &captures)
{
    if (!after.contains(QLatin1Char('\\')))
        return after;
    QString out;
    out.reserve(after.size());
    const int n = after.size();
    for (int i = 0; i < n; ++i) {
        const QChar c = after.at(i);
        if (c == QLatin1Char('\\') && i + 1 < n && after.at(i + 1).isDigit()) {
            int number = after.at(i + 1).digitValue();
            int used = 1;
            if (i + 2 < n && after.at(i + 2).isDigit()) {
                const int two = number * 10 + after.at(i + 2).digitValue();
                if (two < captures.size()) {
                    number = two;
                    used = 2;
                }
            }
            if (number < captures.size()) {
                out += captures.at(number);
                i += used;
                continue;
            }
        }
        out += c;
    }
    return out;
}

} // namespace TemplateEngine
