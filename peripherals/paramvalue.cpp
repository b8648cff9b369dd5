#include "peripherals/paramvalue.h"

#include "peripherals/expressionevaluator.h"

#include <QRegularExpression>

#include <limits>

namespace {

QString stripPrefix(const QString &text)
{
    QString t = text.trimmed();
    if (t.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
        t = t.mid(2);
    return t;
}

QString stripUnit(const QString &text, const QString &unit)
{
    QString t = text.trimmed();
    if (!unit.isEmpty() && t.endsWith(unit))
        t.chop(unit.size());
    return t.trimmed();
}

// A bound as an unsigned integer: a bound of a broken file (negative, 1e30) is brought into
// the range of the type instead of overflowing the conversion.
quint64 boundToUnsigned(double bound)
{
    if (!(bound > 0))
        return 0;
    if (bound >= 18446744073709551615.0)
        return std::numeric_limits<quint64>::max();
    return quint64(bound);
}

} // namespace

bool ParamValue::isNumeric(const RefParameter &p)
{
    return isHex(p) || isInteger(p) || isDouble(p);
}

QString ParamValue::padHex(const QString &value, const QString &max)
{
    QString digits = stripPrefix(value);
    const int width = stripPrefix(max).size();
    while (digits.size() < width)
        digits.prepend(QLatin1Char('0'));
    return digits;
}

QString ParamValue::hexValue(const QString &value, const QString &max)
{
    const QString digits = padHex(value, max).toUpper();
    return digits.isEmpty() ? QString() : QStringLiteral("0x") + digits;
}

QString ParamValue::trimDouble(const QString &text)
{
    QString t = text.trimmed();
    const int dot = t.indexOf(QLatin1Char('.'));
    if (dot < 0)
        return t;
    while (t.size() > dot + 2 && t.endsWith(QLatin1Char('0')))
        t.chop(1);
    return t;
}

QString ParamValue::labelText(const RefParameter &p)
{
    // A bound that is still a formula (a "/n" divisor waiting for its clock) is no range.
    double low = 0;
    double high = 0;
    const bool range = readBound(p, p.Min, &low) && readBound(p, p.Max, &high);
    if (isHex(p) && range)
        return QStringLiteral("%1 (0x%2-0x%3)")
            .arg(p.Comment, stripPrefix(p.Min), stripPrefix(p.Max));
    if ((isInteger(p) || isDouble(p)) && range)
        return QStringLiteral("%1 (%2-%3)").arg(p.Comment, p.Min, p.Max);
    if (p.Type == QLatin1String("string") && !p.Annotation.isEmpty())
        return p.Comment + QLatin1Char(' ') + p.Annotation;
    return p.Comment;
}

QString ParamValue::displayText(const RefParameter &p, const QString &value)
{
    QString text = value;
    if (value.contains(QLatin1Char('*')))
        return value;
    if (isHex(p)) {
        const QString bare = stripPrefix(stripUnit(value, p.Unit));
        const QString digits = bare.isEmpty() ? QString() : padHex(bare, p.Max);
        text = digits.isEmpty() ? QStringLiteral("Error") : QStringLiteral("0x") + digits;
    }
    if (isNumeric(p) && !p.Unit.isEmpty() && !text.endsWith(p.Unit))
        text += QLatin1Char(' ') + p.Unit;
    return text;
}

bool ParamValue::readNumber(const RefParameter &p, const QString &text, double *number,
                            quint64 *integer)
{
    bool ok = false;
    QString t = stripUnit(text, p.Unit);
    if (isHex(p)) {
        t = stripPrefix(t);
        const quint64 v = t.toULongLong(&ok, 16);
        if (ok) {
            *integer = v;
            *number = double(v);
        }
        return ok;
    }
    static const QRegularExpression numberPattern(QStringLiteral("^(\\d+\\.?\\d*)\\D*$"));
    if (isInteger(p)) {
        bool plain = false;
        quint64 v = t.toULongLong(&plain, 10);
        if (!plain) {
            const auto m = numberPattern.match(t);
            if (!m.hasMatch() || m.captured(1).contains(QLatin1Char('.')))
                return false;
            v = m.captured(1).toULongLong(&plain, 10);
        }
        if (plain) {
            *integer = v;
            *number = double(v);
        }
        return plain;
    }
    double d = t.toDouble(&ok);
    if (!ok) {
        const auto m = numberPattern.match(t);
        if (!m.hasMatch())
            return false;
        d = m.captured(1).toDouble(&ok);
    }
    if (ok)
        *number = d;
    return ok;
}

bool ParamValue::readBound(const RefParameter &p, const QString &bound, double *value)
{
    if (bound.trimmed().isEmpty())
        return false;
    bool ok = false;
    const QString b = bound.trimmed();
    if (isHex(p) || b.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) {
        *value = double(stripPrefix(b).toULongLong(&ok, 16));
        return ok;
    }
    *value = b.toDouble(&ok);
    return ok;
}

ParamEdit ParamValue::edit(const RefParameter &p, const QString &text)
{
    ParamEdit result;
    if (p.Type == QLatin1String("string") || p.Type == QLatin1String("string edit")) {
        QString v = text.trimmed();
        if (p.Type == QLatin1String("string edit"))
            v = v.section(QLatin1Char(' '), 0, 0, QString::SectionSkipEmpty);
        result.readable = true;
        result.value = v;
        result.display = v;
        result.changed = v != p.Value;
        return result;
    }
    double number = 0;
    quint64 integer = 0;
    if (!readNumber(p, text, &number, &integer)) {
        result.value = p.Value;
        result.display = displayText(p, p.Value);
        return result;
    }
    result.readable = true;
    double low = 0;
    double high = 0;
    QString value;
    if (readBound(p, p.Min, &low) && number < low) {
        number = low;
        integer = boundToUnsigned(low);
        result.clipped = true;
    } else if (readBound(p, p.Max, &high) && number > high) {
        number = high;
        integer = boundToUnsigned(high);
        result.clipped = true;
    }
    if (isHex(p))
        value = hexValue(QString::number(integer, 16), p.Max);
    else if (isInteger(p))
        value = QString::number(integer);
    else if (result.clipped)
        value = trimDouble(number == low && !p.Min.isEmpty() ? p.Min : p.Max);
    else
        value = trimDouble(stripUnit(text, p.Unit).section(QLatin1Char(' '), 0, 0));
    if (isDouble(p)) {
        bool ok = false;
        value.toDouble(&ok);
        if (!ok)
            value = trimDouble(QString::number(number, 'f', 6));
    }
    double stored = 0;
    quint64 storedInt = 0;
    result.changed = !readNumber(p, p.Value, &stored, &storedInt) || stored != number;
    result.value = result.changed ? value : (isHex(p) ? hexValue(p.Value, p.Max) : p.Value);
    result.display = displayText(p, result.value);
    return result;
}

bool ParamValue::isValid(const RefParameter &p)
{
    if (p.Value.contains(QLatin1Char('*')) || !isNumeric(p))
        return true;
    double number = 0;
    quint64 integer = 0;
    if (!readNumber(p, p.Value, &number, &integer))
        return false;
    double bound = 0;
    if (readBound(p, p.Min, &bound) && number < bound)
        return false;
    if (readBound(p, p.Max, &bound) && number > bound)
        return false;
    return true;
}

bool ParamValue::rowValueValid(const RefParameter &p, const QStringList &enabled)
{
    if (p.Type == QLatin1String("list"))
        return listChoice(p, enabled).valid;
    if (!isNumeric(p))
        return true;
    // The row shows a hexadecimal value padded to its maximum.
    if (isHex(p) && !p.Value.isEmpty() && !p.Value.contains(QLatin1Char('*'))) {
        RefParameter shown = p;
        shown.Value = hexValue(p.Value, p.Max);
        return isValid(shown);
    }
    return isValid(p);
}

ParamListChoice ParamValue::listChoice(const RefParameter &p, const QStringList &enabled)
{
    ParamListChoice choice;
    for (int i = 0; i < p.PossibleValues.size(); ++i) {
        const RefParamValue &v = p.PossibleValues.at(i);
        if (v.Action.contains(QLatin1String("Remove")))
            continue;
        ParamListEntry entry;
        entry.valueIndex = i;
        entry.text = v.Comment.isEmpty() ? v.Value : v.Comment;
        if (!v.Action.isEmpty())
            entry.greyed = true;
        else if (!ExpressionEvaluator::valueHolds(v.Condition, enabled))
            continue;
        if (v.Value == p.Value)
            choice.current = choice.entries.size();
        choice.entries << entry;
    }
    if (choice.current < 0 && !choice.entries.isEmpty()) {
        choice.current = 0;
        choice.valid = false;
    }
    if (choice.current >= 0) {
        choice.value = p.PossibleValues.at(choice.entries.at(choice.current).valueIndex).Value;
        if (choice.entries.at(choice.current).greyed)
            choice.valid = false;
    } else {
        choice.valid = p.PossibleValues.isEmpty();
    }
    return choice;
}
