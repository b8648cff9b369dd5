#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "widgets/messagebox.h"

#include <functional>
#include <map>
#include <string>

// Writes zip archives entry by entry, including the malformed and hostile kinds that no
// ordinary tool produces.
class ZipWriter
{
public:
    explicit ZipWriter(const QString &path);
    ~ZipWriter();

    void addFile(const QString &name, const QByteArray &data);
    void addFolder(const QString &name);
    // A Unix symbolic link entry whose data is the link target.
    void addSymlink(const QString &name, const QString &target);
    // A stored entry that claims `crc` and `declaredSize`, whatever its data is.
    void addRawStored(const QString &name, const QByteArray &data, quint32 crc,
                      quint64 declaredSize);
    // A deflated entry of `size` zero bytes, built in constant memory (a zip bomb).
    void addZeros(const QString &name, quint64 size);
    // Closes the archive; true when every entry was written.
    bool close();

private:
    struct Private;
    Private *d;
};

// The file of a small T110 firmware package, as the layout of the package describes it:
// relative path -> content.
QMap<QString, QByteArray> fixturePackageFiles();

// Writes the fixture package's files into `folder`.
void writeFixturePackage(const QString &folder);

// Zips the folder `parent`/`name` (the folder itself at the archive's top) with the same
// tool the build uses for the program's packages; true on success.
bool zipFolderLikeTheBuild(const QString &parent, const QString &name, const QString &zipPath);

// The zip of the fixture package "MQ48T110_Firmware_Library_V2.0.0" (or `name`), made in
// `workFolder`; returns its path.
QString makeFixturePackageZip(const QString &workFolder,
                              const QString &name = "MQ48T110_Firmware_Library_V2.0.0");

// A folder's content for comparisons: relative path -> "<dir>", "link:" + target, or
// "file:" + the MD5 of the content. Prints readably in test failures.
using Tree = std::map<std::string, std::string>;

// Everything below `folder`, hidden entries and links included.
Tree snapshotTree(const QString &folder);
// Only the files of a tree.
Tree filesOnly(const Tree &tree);
// The tree of the files `files` (relative path -> content).
Tree treeOfFiles(const QMap<QString, QByteArray> &files);

// The names directly in `folder`, hidden ones included.
QStringList entriesOf(const QString &folder);

// A throw-away program folder with the catalogue of the source tree; the program's paths
// point into it while the object lives.
class PackageAppFolder
{
public:
    PackageAppFolder();
    ~PackageAppFolder();
    PackageAppFolder(const PackageAppFolder &) = delete;
    PackageAppFolder &operator=(const PackageAppFolder &) = delete;

    QString path() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
    int m_savedLanguage;
};

// Records every message the code shows and answers it through `answer` (default: the first
// button); restores the message boxes when it goes.
class MessageRecorder
{
public:
    explicit MessageRecorder(std::function<int(const UserMessage &)> answer = nullptr);
    ~MessageRecorder();

    QList<UserMessage> messages;
    QStringList texts() const;
    // The index of the button with `text` in `message`, -1 when none.
    static int button(const UserMessage &message, const QString &text);

private:
    std::function<int(const UserMessage &)> m_answer;
};
