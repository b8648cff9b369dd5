#pragma once

#include <QString>
#include <QStringList>

// Text rules of the search box and of the code file names, free of any widget.
namespace findtext {

// The longest search text that is kept in the history of the search box.
constexpr int kMaxHistoryText = 63;
// A history that reaches this size after an insertion loses its last entry.
constexpr int kHistoryLimit = 15;

// Puts `text` at the top of the history, removing an earlier copy; texts that are empty or
// longer than kMaxHistoryText leave the history as it is.
QStringList pushHistory(QStringList history, const QString &text);

// Resolves the escapes of a search text: \0 \\ \n \r \t, \b with 8 binary digits, \o with 3
// octal, \d with 3 decimal, \x with 2 and \u with 4 hexadecimal digits. A backslash that
// starts no valid escape stays in the text with the character behind it.
QString applyEscapes(const QString &text);

// The stem of the generated file names of a series: the series in lower case, or the
// joined name of the series pairs that share their files ("mq48t510_520").
QString codeFileStem(const QString &series);

} // namespace findtext
