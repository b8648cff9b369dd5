#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Moves the bilingual texts of peripheral files (Comment, Group and UserName with their
// Chinese partners) out to plain text files for translators and puts edited texts back,
// working on the lines of the files as text and leaving every other byte as it was.
class DbTextExchange
{
public:
    // Files handled by one folder run.
    struct FolderResult
    {
        QStringList written; // files written, in the order of the folder listing
        QStringList skipped; // files that could not be read or written
    };

    // The text file of one XML file: the Comment pairs, a blank line, the Group pairs, a
    // blank line, the UserName pairs. Each distinct pair stands once, indented by eight
    // blanks; a text without its Chinese partner gets an empty one. Lines that mention
    // RefMode are left out.
    static QString exportTexts(const QByteArray &xml);

    // The XML file with the texts of `txt` put back. A text line names the English value
    // as exported, optionally a new English value (CommentNew="...", GroupNew="...",
    // UserNameNew="...") and the Chinese value. Only the values of those attributes
    // change; an empty Chinese value is never added where the XML has none. When the XML
    // gives one English text several Chinese ones, the text lines of that English text are
    // taken in the order of the export.
    static QByteArray importTexts(const QByteArray &xml, const QByteArray &txt);

    // Writes "<name>.txt" beside every "<name>.xml" of the folder (not its subfolders).
    static FolderResult exportFolder(const QString &folder);

    // Puts the texts of every "<name>.txt" of the folder back into "<name>.xml"; an XML
    // file is only rewritten when its content changes.
    static FolderResult importFolder(const QString &folder);
};
