#pragma once

#include <QByteArray>
#include <QString>

class QDomDocument;

// Guarded XML parsing: every DOM parse of a file goes through these functions. A stream
// pre-scan refuses documents that are malformed, nested deeper than kMaxXmlDepth, larger than
// kMaxXmlBytes, or that declare DTD entities, before the DOM parser ever sees them.

constexpr int kMaxXmlDepth = 256;
constexpr qint64 kMaxXmlBytes = 64 * 1024 * 1024;

// True when `data` is well-formed and within the limits above.
bool isSafeXml(const QByteArray &data);

// Reads the file at `path` into `data` and checks it with isSafeXml(); false on any failure.
bool readSafeXmlFile(const QString &path, QByteArray *data);

// Parses `data` into `doc`; false (and `doc` untouched) when the guard or the parser refuses.
bool parseXmlDocument(const QByteArray &data, QDomDocument *doc);

// Reads and parses the file at `path`; false when it can't be read or parse fails.
bool loadXmlDocument(const QString &path, QDomDocument *doc);
