#pragma once

#include <QDomDocument>
#include <QDomElement>
#include <QString>

// Lookup of the `term` sections shared by the catalogue and the device files.

// The first child element of `root` that has an attribute `term` equal to `term`; the
// attributes are searched one by one, so `term` needn't be the first. Null when none.
QDomElement findTermSection(const QDomElement &root, const QString &term);

// A parsed file that keeps its document alive while its elements are in use.
struct LoadedXml
{
    QDomDocument doc;
    QDomElement root; // null when the file can't be read or parsed
};

// Reads the file at `path` through the guarded loader.
LoadedXml loadXmlFile(const QString &path);
