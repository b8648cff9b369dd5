#pragma once

#include <QString>

#include <ostream>

// Readable QString values in the failure messages of the code generation tests.
inline void PrintTo(const QString &text, std::ostream *os)
{
    *os << '"' << text.toStdString() << '"';
}
