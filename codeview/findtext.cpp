#include "codeview/findtext.h"

namespace findtext {

QStringList pushHistory(QStringList history, const QString &text)
{
    if (text.isEmpty() || text.size() > kMaxHistoryText)
        return history;
    history.removeAll(text);
    history.prepend(text);
    if (history.size() >= kHistoryLimit)
        history.removeLast();
    return history;
}

namespace {

// Reads `count` digits of `base` at `pos`; false when too few remain or one is not a digit.
bool readDigits(const QString &text, int pos, int count, int base, uint *value)
{
    if (pos + count > text.size())
        return false;
    uint result = 0;
    for (int i = pos; i < pos + count; ++i) {
        const ushort c = text.at(i).toLower().unicode();
        int digit = -1;
        if (c >= '0' && c <= '9')
            digit = c - '0';
        else if (c >= 'a' && c <= 'f')
            digit = c - 'a' + 10;
        if (digit < 0 || digit >= base)
            return false;
        result = result * base + digit;
    }
    *value = result;
    return true;
}

} // namespace

QString applyEscapes(const QString &text)
{
    struct NumericEscape
    {
        QChar letter;
        int digits;
        int base;
    };
    static const NumericEscape numeric[] = {{QLatin1Char('b'), 8, 2},
                                            {QLatin1Char('o'), 3, 8},
                                            {QLatin1Char('d'), 3, 10},
                                            {QLatin1Char('x'), 2, 16},
                                            {QLatin1Char('u'), 4, 16}};
    QString out;
    out.reserve(text.size());
    int i = 0;
    while (i < text.size()) {
        const QChar c = text.at(i);
        if (c != QLatin1Char('\\') || i + 1 >= text.size()) {
            out += c;
            ++i;
            continue;
        }
        const QChar letter = text.at(i + 1);
        switch (letter.unicode()) {
        case '0':
            out += QChar(0);
            i += 2;
            continue;
        case '\\':
            out += QLatin1Char('\\');
            i += 2;
            continue;
        case 'n':
            out += QLatin1Char('\n');
            i += 2;
            continue;
        case 'r':
            out += QLatin1Char('\r');
            i += 2;
            continue;
        case 't':
            out += QLatin1Char('\t');
            i += 2;
            continue;
        default:
            break;
        }
        bool done = false;
        for (const NumericEscape &e : numeric) {
            uint value = 0;
            if (letter == e.letter && readDigits(text, i + 2, e.digits, e.base, &value)) {
                out += QChar(static_cast<ushort>(value));
                i += 2 + e.digits;
                done = true;
                break;
            }
        }
        if (!done) {
            out += c;
            out += letter;
            i += 2;
        }
    }
    return out;
}

QString codeFileStem(const QString &series)
{
    static const QList<QPair<QStringList, QString>> pairs = {
        {{QStringLiteral("MQ48T510"), QStringLiteral("MQ48T520")}, QStringLiteral("mq48t510_520")},
        {{QStringLiteral("MQ48T250"), QStringLiteral("MQ48T260")}, QStringLiteral("mq48t250_260")},
        {{QStringLiteral("MQ48T210"), QStringLiteral("MQ48T220")},
         QStringLiteral("mq48t210_220")}};
    for (const auto &pair : pairs) {
        if (pair.first.contains(series))
            return pair.second;
    }
    return series.toLower();
}

} // namespace findtext
