#include "peripherals/expressionevaluator.h"

namespace {

const QChar kAnd = QLatin1Char('&');
const QChar kOr = QLatin1Char('|');

bool containsTrimmed(const QStringList &list, const QString &name)
{
    for (const QString &entry : list) {
        if (entry.trimmed() == name)
            return true;
    }
    return false;
}

// Reads an integer constant: base 16 with a "0x" prefix, else base 10.
bool readNumber(const QString &text, qlonglong *value)
{
    const QString t = text.trimmed();
    bool ok = false;
    if (t.toLower().startsWith(QLatin1String("0x")))
        *value = t.mid(2).toLongLong(&ok, 16);
    else
        *value = t.toLongLong(&ok, 10);
    return ok;
}

} // namespace

bool ExpressionEvaluator::wordHolds(const QString &word, const QStringList &list)
{
    if (word.contains(QLatin1Char('!'))) {
        QString name = word;
        name.remove(QLatin1Char('!'));
        name = name.trimmed();
        return !containsTrimmed(list, name);
    }
    return containsTrimmed(list, word.trimmed());
}

bool ExpressionEvaluator::semaphoreHolds(const QString &expression, const QStringList &blocked,
                                         bool andFlag)
{
    if (expression.isEmpty())
        return true;
    if (andFlag) {
        const QStringList terms = expression.split(kAnd);
        for (const QString &term : terms) {
            bool any = false;
            for (const QString &alt : term.split(kOr)) {
                if (wordHolds(alt, blocked)) {
                    any = true;
                    break;
                }
            }
            if (!any)
                return false;
        }
        return true;
    }
    for (const QString &part : expression.split(kOr)) {
        bool all = true;
        for (const QString &factor : part.split(kAnd)) {
            if (!wordHolds(factor, blocked)) {
                all = false;
                break;
            }
        }
        if (all)
            return true;
    }
    return false;
}

bool ExpressionEvaluator::valueHolds(const QString &expression, const QStringList &enabled)
{
    if (expression.isEmpty())
        return true;
    for (const QString &term : expression.split(kAnd)) {
        bool any = false;
        for (const QString &alt : term.split(kOr)) {
            if (alternativeHolds(alt.trimmed(), enabled)) {
                any = true;
                break;
            }
        }
        if (!any)
            return false;
    }
    return true;
}

bool ExpressionEvaluator::alternativeHolds(const QString &alternative, const QStringList &enabled)
{
    if (alternative.contains(QLatin1String("!=")))
        return compareHolds(alternative, QStringLiteral("!="), enabled);
    if (alternative.contains(QLatin1Char('=')))
        return compareHolds(alternative, QStringLiteral("="), enabled);
    if (alternative.contains(QLatin1Char('>')))
        return greaterHolds(alternative, enabled);
    return wordHolds(alternative, enabled);
}

bool ExpressionEvaluator::compareHolds(const QString &alternative, const QString &op,
                                       const QStringList &enabled)
{
    const QStringList pieces = alternative.split(op);
    if (pieces.size() < 2)
        return false;
    const QString name = pieces.at(0).trimmed();
    const QString wanted = pieces.at(1).trimmed();
    const bool equal = op == QLatin1String("=");
    for (const QString &entry : enabled) {
        const QStringList sides = entry.split(QLatin1Char('='));
        if (sides.size() < 2 || sides.at(0).trimmed() != name)
            continue;
        const bool same = sides.at(1).trimmed() == wanted;
        if (same == equal)
            return true;
    }
    return false;
}

bool ExpressionEvaluator::greaterHolds(const QString &alternative, const QStringList &enabled)
{
    const QStringList pieces = alternative.split(QLatin1Char('>'));
    if (pieces.size() < 2)
        return false;
    const QString name = pieces.at(0).trimmed();
    qlonglong constant = 0;
    if (!readNumber(pieces.at(1), &constant))
        return false;
    for (const QString &entry : enabled) {
        const QStringList sides = entry.split(QLatin1Char('='));
        if (sides.size() < 2 || sides.at(0).trimmed() != name)
            continue;
        qlonglong value = 0;
        if (!readNumber(sides.at(1), &value))
            return false;
        return value > constant;
    }
    return false;
}
