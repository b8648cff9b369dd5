#include "peripherals/calculators/paramlist.h"

#include <QRegularExpression>

#include <cmath>

namespace ParamList {

RefParameter *find(QList<RefParameter> &list, const QString &name)
{
    for (RefParameter &p : list) {
        if (p.Name == name)
            return &p;
    }
    return nullptr;
}

const RefParameter *find(const QList<RefParameter> &list, const QString &name)
{
    for (const RefParameter &p : list) {
        if (p.Name == name)
            return &p;
    }
    return nullptr;
}

RefParameter get(const QList<RefParameter> &list, const QString &name)
{
    const RefParameter *p = find(list, name);
    return p ? *p : RefParameter();
}

QString value(const QList<RefParameter> &list, const QString &name)
{
    const RefParameter *p = find(list, name);
    return p ? p->Value : QString();
}

double number(const QList<RefParameter> &list, const QString &name, bool *ok)
{
    const QString text = value(list, name).trimmed();
    bool read = false;
    double result = 0.0;
    if (text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
        result = double(text.mid(2).toULongLong(&read, 16));
    else
        result = leadingNumber(text, &read);
    if (ok)
        *ok = read;
    return read ? result : 0.0;
}

bool setValue(QList<RefParameter> &list, const QString &name, const QString &value)
{
    RefParameter *p = find(list, name);
    if (!p || p->Value == value)
        return false;
    p->Value = value;
    return true;
}

int trailingNumber(const QString &text)
{
    static const QRegularExpression digits(QStringLiteral("(\\d+)\\D*$"));
    const QRegularExpressionMatch m = digits.match(text);
    if (!m.hasMatch())
        return -1;
    bool ok = false;
    const int n = m.captured(1).toInt(&ok);
    return ok ? n : -1;
}

double leadingNumber(const QString &text, bool *ok)
{
    static const QRegularExpression pattern(QStringLiteral("^\\s*(-?\\d+\\.?\\d*)"));
    const QRegularExpressionMatch m = pattern.match(text);
    bool read = false;
    const double v = m.hasMatch() ? m.captured(1).toDouble(&read) : 0.0;
    if (ok)
        *ok = read;
    return read ? v : 0.0;
}

QString formatNumber(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    if (text.contains(QLatin1Char('.'))) {
        while (text.endsWith(QLatin1Char('0')))
            text.chop(1);
        if (text.endsWith(QLatin1Char('.')))
            text.chop(1);
    }
    if (text == QLatin1String("-0"))
        text = QStringLiteral("0");
    return text;
}

QString formatFrequency(double hz)
{
    if (std::fabs(hz) >= 1e6)
        return formatNumber(hz / 1e6) + QStringLiteral(" MHz");
    if (std::fabs(hz) >= 1e3)
        return formatNumber(hz / 1e3) + QStringLiteral(" kHz");
    return formatNumber(hz) + QStringLiteral(" Hz");
}

bool setCount(QList<RefParameter> &list, const QString &name, int count)
{
    RefParameter *p = find(list, name);
    if (!p)
        return false;
    QString wanted = QString::number(count);
    if (p->Type == QLatin1String("list")) {
        wanted.clear();
        for (const RefParamValue &v : p->PossibleValues) {
            if (v.Value == QString::number(count) || trailingNumber(v.Value) == count) {
                wanted = v.Value;
                break;
            }
        }
        if (wanted.isEmpty())
            return false;
    }
    if (p->Value == wanted)
        return false;
    p->Value = wanted;
    return true;
}

} // namespace ParamList
