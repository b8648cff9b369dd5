#include "packages/packageinstaller.h"

#include "packages/packagenames.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <QUuid>

#include <quazip/quacrc32.h>
#include <quazip/quazip.h>
#include <quazip/quazipfile.h>
#include <quazip/quazipfileinfo.h>

namespace {

// An entry name fit for a message: control characters become "?", long names are cut.
QString shown(const QString &name)
{
    QString text = name.left(200);
    for (QChar &c : text) {
        if (c.unicode() < 0x20 || c.unicode() == 0x7f)
            c = QLatin1Char('?');
    }
    return name.size() > 200 ? text + QStringLiteral("...") : text;
}

// Unix file-type bits of the external attributes.
constexpr quint32 kTypeMask = 0170000;
constexpr quint32 kTypeLink = 0120000;
constexpr quint32 kTypeFile = 0100000;
constexpr quint32 kTypeDir = 0040000;

// One archive entry after its checks.
struct Entry
{
    QStringList parts; // the path below the package folder, one part per folder level
    bool isDir = false;
    quint64 size = 0;
    quint32 crc = 0;
};

// Checks one entry name and splits it; on refusal returns false with `reason` set.
bool splitEntryName(const QString &raw, const ArchiveLimits &limits, QStringList *parts,
                    bool *isDir, QString *reason)
{
    QString name = raw;
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (name.isEmpty() || name.size() > limits.maxNameLength || name.contains(QChar(0))) {
        *reason = PackageInstaller::tr("The entry \"%1\" has a name that is not allowed.")
                      .arg(shown(raw));
        return false;
    }
    if (name.startsWith(QLatin1Char('/'))) {
        *reason = PackageInstaller::tr("The entry \"%1\" has an absolute path.").arg(shown(raw));
        return false;
    }
    if (name.size() >= 2 && name.at(1) == QLatin1Char(':') && name.at(0).isLetter()) {
        *reason = PackageInstaller::tr("The entry \"%1\" has a drive letter.").arg(shown(raw));
        return false;
    }
    *isDir = name.endsWith(QLatin1Char('/'));
    parts->clear();
    for (const QString &part : name.split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        if (part == QLatin1String("."))
            continue;
        if (part == QLatin1String("..")) {
            *reason = PackageInstaller::tr("The entry \"%1\" points outside the package folder.")
                          .arg(shown(raw));
            return false;
        }
        for (const QChar c : part) {
            if (c.unicode() < 0x20 || c == QLatin1Char(':')) {
                *reason = PackageInstaller::tr("The entry \"%1\" has a name that is not allowed.")
                              .arg(shown(raw));
                return false;
            }
        }
        parts->append(part);
    }
    if (parts->isEmpty()) {
        *reason = PackageInstaller::tr("The entry \"%1\" has a name that is not allowed.")
                      .arg(shown(raw));
        return false;
    }
    return true;
}

// Reads the central directory and checks every entry; fills `entries` in archive order.
bool checkEntries(QuaZip &zip, const QString &zipName, const ArchiveLimits &limits,
                  QList<Entry> *entries, QString *reason)
{
    const QList<QuaZipFileInfo64> infos = zip.getFileInfoList64();
    if (zip.getZipError() != UNZ_OK) {
        *reason = PackageInstaller::tr("\"%1\" is not a readable zip archive.").arg(zipName);
        return false;
    }
    if (infos.size() > limits.maxEntries) {
        *reason = PackageInstaller::tr("The archive has %1 entries, more than the limit of %2.")
                      .arg(infos.size())
                      .arg(limits.maxEntries);
        return false;
    }
    quint64 total = 0;
    QSet<QString> files;
    QSet<QString> folders;
    for (const QuaZipFileInfo64 &info : infos) {
        Entry entry;
        if (!splitEntryName(info.name, limits, &entry.parts, &entry.isDir, reason))
            return false;
        const quint32 type = (info.externalAttr >> 16) & kTypeMask;
        if (type == kTypeLink) {
            *reason =
                PackageInstaller::tr("The entry \"%1\" is a symbolic link.").arg(shown(info.name));
            return false;
        }
        if (type == kTypeDir)
            entry.isDir = true;
        if (type != 0 && type != kTypeFile && type != kTypeDir) {
            *reason = PackageInstaller::tr("The entry \"%1\" is not a plain file or folder.")
                          .arg(shown(info.name));
            return false;
        }
        if (info.isEncrypted()) {
            *reason = PackageInstaller::tr("The entry \"%1\" is encrypted.").arg(shown(info.name));
            return false;
        }
        if (!entry.isDir && info.method != 0 && info.method != Z_DEFLATED) {
            *reason =
                PackageInstaller::tr("The entry \"%1\" uses an unsupported compression method.")
                    .arg(shown(info.name));
            return false;
        }
        entry.size = entry.isDir ? 0 : info.uncompressedSize;
        entry.crc = info.crc;
        total += entry.size;
        if (total > quint64(limits.maxTotalBytes)) {
            *reason = PackageInstaller::tr(
                          "The archive unpacks to more than %1 MB, the limit for a package.")
                          .arg(limits.maxTotalBytes >> 20);
            return false;
        }
        // A path may be a file once, and never a file and a folder at the same time.
        const QString path = entry.parts.join(QLatin1Char('/'));
        bool clash =
            entry.isDir ? files.contains(path) : (files.contains(path) || folders.contains(path));
        for (int i = 1; i < entry.parts.size() && !clash; ++i) {
            const QString folder = QStringList(entry.parts.mid(0, i)).join(QLatin1Char('/'));
            clash = files.contains(folder);
            folders.insert(folder);
        }
        if (clash) {
            *reason =
                PackageInstaller::tr("The entry \"%1\" appears twice or clashes with a folder.")
                    .arg(shown(info.name));
            return false;
        }
        (entry.isDir ? folders : files).insert(path);
        entries->append(entry);
    }
    return true;
}

// True when one top folder holds everything (an archive made from the package folder
// itself): it is dropped so that the package's own folders lie at the top.
bool hasCommonTopFolder(const QList<Entry> &entries)
{
    if (entries.isEmpty())
        return false;
    const QString top = entries.first().parts.first();
    if (top == QLatin1String("libraries"))
        return false;
    for (const Entry &entry : entries) {
        if (entry.parts.first() != top || (!entry.isDir && entry.parts.size() < 2))
            return false;
    }
    return true;
}

// A package has its "libraries" folder at the top (below the dropped folder, if any).
bool looksLikePackage(const QList<Entry> &entries, int strip)
{
    for (const Entry &entry : entries) {
        if (entry.parts.size() > strip && entry.parts.at(strip) == QLatin1String("libraries"))
            return true;
    }
    return false;
}

// The folder that receives the staging folder: the repository's parent when it can be
// written, else the nearest existing ancestor, else the system's temporary folder.
QString stagingParent(const QString &repoPath)
{
    QFileInfo info(QFileInfo(repoPath).absolutePath());
    while (!info.exists() && !info.isRoot() && info.absoluteFilePath() != info.absolutePath())
        info = QFileInfo(info.absolutePath());
    if (info.isDir() && info.isWritable())
        return info.absoluteFilePath();
    return QDir::tempPath();
}

// The highest folder of `path` that does not exist yet; empty when `path` exists.
QString firstMissingFolder(const QString &path)
{
    QString missing;
    QFileInfo info(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    while (!info.exists()) {
        missing = info.absoluteFilePath();
        const QString parent = info.absolutePath();
        if (parent == missing)
            break;
        info = QFileInfo(parent);
    }
    return missing;
}

// A name beside `path` that nothing uses, for a folder that lives only during the move.
QString sideName(const QString &path, const char *what)
{
    const QFileInfo info(path);
    return info.absolutePath() + QStringLiteral("/.") + info.fileName() + QLatin1Char('.') +
           QLatin1String(what) + QLatin1Char('-') +
           QUuid::createUuid().toString(QUuid::Id128).left(12);
}

} // namespace

bool removePath(const QString &path)
{
    const QFileInfo info(path);
    if (info.isSymLink() || (info.exists() && !info.isDir()))
        return QFile::remove(path);
    if (!info.exists())
        return true;
    // QDir::removeRecursively() deletes links inside the tree without following them.
    return QDir(path).removeRecursively();
}

bool copyFolder(const QString &from, const QString &to)
{
    if (!QFileInfo(from).isDir() || QFileInfo::exists(to) || QFileInfo(to).isSymLink() ||
        !QDir().mkpath(to))
        return false;
    QDirIterator it(from, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString source = it.next();
        const QFileInfo info = it.fileInfo();
        const QString target = to + source.mid(from.size());
        bool ok = true;
        if (info.isSymLink())
            ok = QFile::link(info.symLinkTarget(), target);
        else if (info.isDir())
            ok = QDir().mkpath(target);
        else
            ok = QFile::copy(source, target);
        if (!ok) {
            removePath(to);
            return false;
        }
    }
    return true;
}

PackageInstaller::PackageInstaller(const QString &zipPath, const QString &repoPath)
    : m_zipPath(zipPath), m_repoPath(QDir::cleanPath(QFileInfo(repoPath).absoluteFilePath())),
      m_packageName(QFileInfo(zipPath).completeBaseName()),
      m_family(PackageFamilyOf(m_packageName))
{
}

QString PackageInstaller::targetPath() const
{
    return m_repoPath + QLatin1Char('/') + PackageFamilyFolderName(m_family) + QLatin1Char('/') +
           m_packageName;
}

int PackageInstaller::entryCount(const QString &zipPath)
{
    QuaZip zip(zipPath);
    if (!zip.open(QuaZip::mdUnzip))
        return 0;
    return qMax(0, zip.getEntriesCount());
}

namespace {

using Status = PackageInstaller::Status;

QString damagedText(const QString &name)
{
    return PackageInstaller::tr(
               "The entry \"%1\" is damaged: its size or checksum (CRC) does not match.")
        .arg(name);
}

QString canceledText()
{
    return PackageInstaller::tr("The installation was cancelled.");
}

// Unpacks the current entry of `zip` to `path`, never writing more than its declared size,
// and compares size and CRC with the central directory.
Status unpackFile(QuaZip &zip, const Entry &entry, const QString &path,
                  const std::atomic_bool *cancel, QString *reason)
{
    QFile out(path);
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        *reason = PackageInstaller::tr("Can't write \"%1\": %2").arg(path, out.errorString());
        return PackageInstaller::WriteFailed;
    }
    const QString name = shown(zip.getCurrentFileName());
    QuaZipFile reader(&zip);
    if (!reader.open(QIODevice::ReadOnly)) {
        *reason = damagedText(name);
        return PackageInstaller::Refused;
    }
    QByteArray buffer(256 * 1024, Qt::Uninitialized);
    QuaCrc32 crc;
    quint64 count = 0;
    bool damaged = false;
    for (;;) {
        const qint64 got = reader.read(buffer.data(), buffer.size());
        if (got <= 0) {
            damaged = got < 0;
            break;
        }
        count += quint64(got);
        if (count > entry.size) {
            damaged = true;
            break;
        }
        crc.update(QByteArray::fromRawData(buffer.constData(), int(got)));
        if (out.write(buffer.constData(), got) != got) {
            *reason = PackageInstaller::tr("Can't write \"%1\": %2").arg(path, out.errorString());
            return PackageInstaller::WriteFailed;
        }
        if (cancel && cancel->load()) {
            *reason = canceledText();
            return PackageInstaller::Canceled;
        }
    }
    reader.close();
    if (damaged || reader.getZipError() != UNZ_OK || count != entry.size ||
        crc.value() != entry.crc) {
        *reason = damagedText(name);
        return PackageInstaller::Refused;
    }
    if (!out.flush() || out.error() != QFileDevice::NoError) {
        *reason = PackageInstaller::tr("Can't write \"%1\": %2").arg(path, out.errorString());
        return PackageInstaller::WriteFailed;
    }
    out.close();
    return PackageInstaller::Installed;
}

// Removes the folders from `folder` up to `top`, as long as they are empty.
void removeEmptyFolders(QString folder, const QString &top)
{
    if (top.isEmpty())
        return;
    while (folder.startsWith(top) && QDir().rmdir(folder) && folder != top)
        folder = QFileInfo(folder).absolutePath();
}

// Moves the unpacked package to `target`; a package there before is set aside first and
// comes back when the move fails, as do the folders this step created.
Status moveIntoPlace(const QString &staged, const QString &target, QString *reason)
{
    const QString familyFolder = QFileInfo(target).absolutePath();
    const QString createdTop = firstMissingFolder(familyFolder);
    if (!QDir().mkpath(familyFolder)) {
        removeEmptyFolders(familyFolder, createdTop);
        *reason = PackageInstaller::tr("Can't create the folder \"%1\".").arg(familyFolder);
        return PackageInstaller::WriteFailed;
    }
    QString backup;
    const QFileInfo existing(target);
    if (existing.exists() || existing.isSymLink()) {
        backup = sideName(target, "replaced");
        if (!QDir().rename(target, backup)) {
            *reason =
                PackageInstaller::tr("Can't replace the installed package \"%1\".").arg(target);
            return PackageInstaller::WriteFailed;
        }
    }
    bool placed = QDir().rename(staged, target);
    if (!placed) {
        // The staging folder lies on another disk: copy beside the target, then rename.
        const QString incoming = sideName(target, "incoming");
        placed = copyFolder(staged, incoming) && QDir().rename(incoming, target);
        if (!placed)
            removePath(incoming);
    }
    if (!placed) {
        if (!backup.isEmpty())
            QDir().rename(backup, target);
        removeEmptyFolders(familyFolder, createdTop);
        *reason = PackageInstaller::tr("Can't move the package into \"%1\".").arg(target);
        return PackageInstaller::WriteFailed;
    }
    if (!backup.isEmpty())
        removePath(backup);
    return PackageInstaller::Installed;
}

} // namespace

PackageInstaller::Outcome PackageInstaller::install()
{
    Outcome outcome;
    const QString zipName = QFileInfo(m_zipPath).fileName();
    if (m_family.isEmpty()) {
        outcome.reason =
            tr("The file name \"%1\" is not the name of a firmware package.").arg(zipName);
        return outcome;
    }

    // 1. Check the whole archive before anything is written.
    QuaZip zip(m_zipPath);
    if (!QFileInfo(m_zipPath).isFile() || !zip.open(QuaZip::mdUnzip)) {
        outcome.reason = tr("\"%1\" is not a readable zip archive.").arg(zipName);
        return outcome;
    }
    QList<Entry> entries;
    if (!checkEntries(zip, zipName, m_limits, &entries, &outcome.reason))
        return outcome;
    const int strip = hasCommonTopFolder(entries) ? 1 : 0;
    if (!looksLikePackage(entries, strip)) {
        outcome.reason =
            tr("\"%1\" is not a firmware package: it has no \"libraries\" folder.").arg(zipName);
        return outcome;
    }
    quint64 total = 0;
    for (const Entry &entry : entries)
        total += entry.size;

    // 2. Unpack into a staging folder beside the repository.
    QTemporaryDir staging(stagingParent(m_repoPath) + QStringLiteral("/.PinForge-install-XXXXXX"));
    const QString stagedPackage = staging.path() + QStringLiteral("/package");
    if (!staging.isValid() || !QDir().mkpath(stagedPackage)) {
        outcome.status = WriteFailed;
        outcome.reason = tr("Can't create a working folder beside \"%1\".").arg(m_repoPath);
        return outcome;
    }
    const qint64 free = QStorageInfo(staging.path()).bytesAvailable();
    if (free >= 0 && quint64(free) < total + (quint64(1) << 20)) {
        outcome.status = WriteFailed;
        outcome.reason = tr("Not enough free disk space: %1 MB needed, %2 MB free.")
                             .arg((total >> 20) + 1)
                             .arg(free >> 20);
        return outcome;
    }
    int index = 0;
    for (bool more = zip.goToFirstFile(); more; more = zip.goToNextFile(), ++index) {
        if (canceled() || index >= entries.size())
            break;
        const Entry &entry = entries.at(index);
        const QStringList parts = entry.parts.mid(strip);
        if (!parts.isEmpty()) {
            const QString path = stagedPackage + QLatin1Char('/') + parts.join(QLatin1Char('/'));
            const QString folder = entry.isDir ? path : QFileInfo(path).absolutePath();
            if (!QDir().mkpath(folder)) {
                outcome.status = WriteFailed;
                outcome.reason = tr("Can't create the folder \"%1\".").arg(folder);
                return outcome;
            }
            if (!entry.isDir) {
                outcome.status = unpackFile(zip, entry, path, m_cancel, &outcome.reason);
                if (outcome.status != Installed)
                    return outcome;
            }
        }
        if (m_progress)
            m_progress(index + 1, entries.size());
    }
    if (canceled()) {
        outcome.status = Canceled;
        outcome.reason = canceledText();
        return outcome;
    }
    if (zip.getZipError() != UNZ_OK || index != entries.size()) {
        outcome.status = Refused;
        outcome.reason = tr("\"%1\" is not a readable zip archive.").arg(zipName);
        return outcome;
    }

    // 3. Move into place.
    outcome.status = moveIntoPlace(stagedPackage, targetPath(), &outcome.reason);
    if (outcome.status == Installed)
        outcome.packagePath = targetPath();
    return outcome;
}
