#pragma once

#include <QString>

// Readers of the two small files of the download site: the package index bsp_index.json and
// the version list VelmoraDownloadResource.xml.

// Largest index file that is read at all.
constexpr qint64 kMaxPackageIndexBytes = 8 * 1024 * 1024;

// Finds, in the index file `indexPath`, the element of "children" whose "name" is `section`,
// and in its "releases" the element whose "name" is `family`; stores its "version" and "url".
// False, with the outputs untouched, when the file can't be opened, is too large, is no valid
// JSON, or when nothing matches (the reason goes to the debug output).
bool ReadPackageIndex(const QString &indexPath, const QString &section, const QString &family,
                      QString *version, QString *url);

// In the version list `file`: the first root child named `section`, in it the first tool
// element that has a child whose text is `toolName`, and of that element the text of the
// child named `key`. Empty when anything is missing or the file can't be read.
QString GetDownloadInfo(const QString &file, const QString &key, const QString &toolName,
                        const QString &section);

// The number of a published version text "V1.0.08": the first character is dropped, the
// rest is cut at its two "." and each part is read in base 16, giving
// (first << 16) | (second << 8) | third. 0 when the text has not three numeric parts.
int VersionNumberFromText(const QString &versionText);

// True when a download URL's file name carries its version already ("_V1.2.3").
bool UrlNameHasVersion(const QString &url);

// The version to put into the name of a file downloaded from `url`: none when the URL's name
// has one already, else `version` without a leading "V" (the name gets "_V" before it).
QString VersionForDownloadName(const QString &url, const QString &version);
