#pragma once

#include "database/records.h"

#include <QList>
#include <QString>

// Lookups and writes over one peripheral's parameter list, by parameter name.
namespace ParamList {

// The first parameter of that name, or nullptr.
RefParameter *find(QList<RefParameter> &list, const QString &name);
const RefParameter *find(const QList<RefParameter> &list, const QString &name);
// A copy of the parameter; a record with an empty Name when there is none.
RefParameter get(const QList<RefParameter> &list, const QString &name);
// The value of a parameter; empty when there is none.
QString value(const QList<RefParameter> &list, const QString &name);
// The value read as a number (a "0x" text in base 16); `ok` false when it isn't one.
double number(const QList<RefParameter> &list, const QString &name, bool *ok = nullptr);
// Writes a value; true when the parameter exists and its value changed.
bool setValue(QList<RefParameter> &list, const QString &name, const QString &value);

// The last run of digits of a text ("SPI_MCLK_DIV_16" 16, "CAN_RSAW_3TQ" 3); -1 without.
int trailingNumber(const QString &text);
// The number in front of a unit ("44.1 KHz" 44.1); `ok` false when there is none.
double leadingNumber(const QString &text, bool *ok = nullptr);
// A decimal text without needless zeros: at most `decimals` places, none for whole numbers.
QString formatNumber(double value, int decimals = 3);
// A frequency in Hz written with the unit that suits it ("60 MHz", "234.375 kHz").
QString formatFrequency(double hz);
// Sets a list or numeric parameter to a count: a list takes the possible value whose text
// ends in that number, any other type the number itself. True when the value changed.
bool setCount(QList<RefParameter> &list, const QString &name, int count);

} // namespace ParamList
