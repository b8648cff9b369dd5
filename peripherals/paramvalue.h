#pragma once

#include "database/records.h"

#include <QList>
#include <QString>
#include <QStringList>

// Outcome of an edit of a numeric or text parameter field.
struct ParamEdit
{
    bool readable = false; // false: the text was refused and the last value stays
    bool changed = false;  // the value differs from the stored one
    bool clipped = false;  // the number was brought into Min..Max
    QString value;         // the value to store (hexadecimal with "0x" and padding)
    QString display;       // the text the field shows
};

// One entry of a list parameter as the row shows it.
struct ParamListEntry
{
    int valueIndex = -1; // into PossibleValues
    QString text;
    bool greyed = false;
};

// The entries of a list parameter and the current choice among them.
struct ParamListChoice
{
    QList<ParamListEntry> entries;
    int current = -1;  // into entries
    bool valid = true; // false when the stored value had to fall back to the first entry
    QString value;     // the value of the current entry
};

// Parsing, formatting, range clipping and validity of parameter values by their Type.
class ParamValue
{
public:
    static bool isHex(const RefParameter &p) { return p.Type == QLatin1String("hexadecimal"); }
    static bool isInteger(const RefParameter &p) { return p.Type == QLatin1String("integer"); }
    static bool isDouble(const RefParameter &p) { return p.Type == QLatin1String("double"); }
    static bool isNumeric(const RefParameter &p);

    // The digits of a hexadecimal text, "0x" removed, left-padded with "0" to the length of
    // the digits of `max`.
    static QString padHex(const QString &value, const QString &max);
    // A hexadecimal value as stored: "0x" and the padded digits, upper case.
    static QString hexValue(const QString &value, const QString &max);
    // Removes the fraction's trailing zeros of a decimal text, down to one digit.
    static QString trimDouble(const QString &text);

    // The text of the row's label for a parameter.
    static QString labelText(const RefParameter &p);
    // The text the field shows for a value: "0x" for hexadecimal, then a blank and the unit.
    static QString displayText(const RefParameter &p, const QString &value);

    // Reads the number of a field's text; false when there is none.
    static bool readNumber(const RefParameter &p, const QString &text, double *number,
                           quint64 *integer);
    // The edit of a field: the range check and the clipping.
    static ParamEdit edit(const RefParameter &p, const QString &text);
    // Does the stored value satisfy the type and range?
    static bool isValid(const RefParameter &p);
    // Does the parameter's row hold a valid value over the enabled semaphores: a list value
    // that is offered and not greyed, a number within its range? Other types always do.
    static bool rowValueValid(const RefParameter &p, const QStringList &enabled);

    // The entries of a list parameter over the enabled semaphores (entries "name=value"
    // allowed) and the choice of the stored value.
    static ParamListChoice listChoice(const RefParameter &p, const QStringList &enabled);

private:
    static bool readBound(const RefParameter &p, const QString &bound, double *value);
};
