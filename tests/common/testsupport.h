#pragma once

#include <QString>
#include <QTemporaryDir>

namespace testsupport {

// Absolute path of a file below tests/fixtures.
QString fixture(const QString &relative);

// Absolute path of the database shipped in the source tree.
QString sourceDatabase();

// Writes text to a file, creating its folders; returns false on failure.
bool writeFile(const QString &path, const QByteArray &content);

// Reads a whole file; empty when it can't be read.
QByteArray readFile(const QString &path);

} // namespace testsupport
