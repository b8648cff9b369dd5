#include "project/stagedfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 kChunk = 256 * 1024;

bool finishWrite(QFile &file, QString *error)
{
    if (!file.flush() || file.error() != QFileDevice::NoError) {
        if (error)
            *error =
                StagedFiles::tr("Can't write \"%1\": %2").arg(file.fileName(), file.errorString());
        file.close();
        file.remove();
        return false;
    }
    file.close();
    if (file.error() != QFileDevice::NoError) {
        if (error)
            *error =
                StagedFiles::tr("Can't write \"%1\": %2").arg(file.fileName(), file.errorString());
        file.remove();
        return false;
    }
    return true;
}

bool removeAny(const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir() && !info.isSymLink())
        return QDir(path).removeRecursively();
    if (!info.exists() && !info.isSymLink())
        return true;
    return QFile::remove(path);
}

} // namespace

namespace checkedio {

bool writeFile(const QString &path, const QByteArray &data, QString *error)
{
    if (!QDir().mkpath(QFileInfo(path).absolutePath())) {
        if (error)
            *error = StagedFiles::tr("Can't create the folder of \"%1\".").arg(path);
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        if (error)
            *error = StagedFiles::tr("Can't write \"%1\": %2").arg(path, file.errorString());
        return false;
    }
    if (file.write(data) != data.size()) {
        if (error)
            *error = StagedFiles::tr("Can't write \"%1\": %2").arg(path, file.errorString());
        file.close();
        file.remove();
        return false;
    }
    return finishWrite(file, error);
}

bool copyFile(const QString &source, const QString &target, QString *error)
{
    QFile in(source);
    if (!in.open(QIODevice::ReadOnly)) {
        if (error)
            *error = StagedFiles::tr("Can't read \"%1\": %2").arg(source, in.errorString());
        return false;
    }
    if (!QDir().mkpath(QFileInfo(target).absolutePath())) {
        if (error)
            *error = StagedFiles::tr("Can't create the folder of \"%1\".").arg(target);
        return false;
    }
    QFile out(target);
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        if (error)
            *error = StagedFiles::tr("Can't write \"%1\": %2").arg(target, out.errorString());
        return false;
    }
    qint64 copied = 0;
    while (!in.atEnd()) {
        const QByteArray chunk = in.read(kChunk);
        if (chunk.isEmpty() && in.error() != QFileDevice::NoError) {
            if (error)
                *error = StagedFiles::tr("Can't read \"%1\": %2").arg(source, in.errorString());
            out.close();
            out.remove();
            return false;
        }
        if (out.write(chunk) != chunk.size()) {
            if (error)
                *error = StagedFiles::tr("Can't write \"%1\": %2").arg(target, out.errorString());
            out.close();
            out.remove();
            return false;
        }
        copied += chunk.size();
    }
    if (copied != in.size()) {
        if (error)
            *error = StagedFiles::tr("Can't read \"%1\": %2").arg(source, in.errorString());
        out.close();
        out.remove();
        return false;
    }
    return finishWrite(out, error);
}

bool copyTree(const QString &source, const QString &target, const QStringList &skippedFolders,
              QString *error)
{
    const QFileInfo sourceInfo(source);
    if (!sourceInfo.isDir()) {
        if (error)
            *error = StagedFiles::tr("The folder \"%1\" does not exist.").arg(source);
        return false;
    }
    if (!QDir().mkpath(target)) {
        if (error)
            *error = StagedFiles::tr("Can't create the folder \"%1\".").arg(target);
        return false;
    }
    const QDir dir(source);
    const QFileInfoList entries = dir.entryInfoList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo &entry : entries) {
        if (entry.isSymLink())
            continue;
        const QString to = target + QLatin1Char('/') + entry.fileName();
        if (entry.isDir()) {
            if (skippedFolders.contains(entry.fileName(), Qt::CaseInsensitive))
                continue;
            if (!copyTree(entry.filePath(), to, skippedFolders, error))
                return false;
        } else if (!copyFile(entry.filePath(), to, error)) {
            return false;
        }
    }
    return true;
}

bool readFile(const QString &path, QByteArray *data, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = StagedFiles::tr("Can't read \"%1\": %2").arg(path, file.errorString());
        return false;
    }
    *data = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        if (error)
            *error = StagedFiles::tr("Can't read \"%1\": %2").arg(path, file.errorString());
        return false;
    }
    return true;
}

} // namespace checkedio

StagedFiles::StagedFiles(const QString &root)
    : m_root(QDir::cleanPath(QDir(root).absolutePath())),
      m_stage(m_root + QLatin1Char('/') + stageFolderName())
{
}

StagedFiles::~StagedFiles()
{
    if (!m_finished)
        discard();
}

QString StagedFiles::stageFolderName()
{
    return QStringLiteral(".pinforge-staging");
}

bool StagedFiles::makeFolders(const QString &path, QString *error)
{
    // Create one level at a time so that every created folder is remembered for discard().
    QStringList missing;
    QString at = QDir::cleanPath(path);
    while (!QFileInfo(at).exists()) {
        missing.prepend(at);
        const QString parent = QFileInfo(at).absolutePath();
        if (parent == at)
            break;
        at = parent;
    }
    for (const QString &folder : missing) {
        if (!QDir().mkdir(folder)) {
            if (error)
                *error = tr("Can't create the folder \"%1\".").arg(folder);
            return false;
        }
        m_createdFolders << folder;
    }
    if (!QFileInfo(path).isDir()) {
        if (error)
            *error = tr("\"%1\" is not a folder.").arg(path);
        return false;
    }
    return true;
}

bool StagedFiles::begin(QString *error)
{
    if (!makeFolders(m_root, error))
        return false;
    if (QFileInfo::exists(m_stage) && !removeAny(m_stage)) {
        if (error)
            *error = tr("Can't remove the folder \"%1\".").arg(m_stage);
        return false;
    }
    if (!QDir().mkdir(m_stage)) {
        if (error)
            *error = tr("Can't create the folder \"%1\".").arg(m_stage);
        return false;
    }
    m_begun = true;
    return true;
}

QString StagedFiles::stagePath(const QString &relative) const
{
    return m_stage + QLatin1Char('/') + relative;
}

void StagedFiles::replace(const QString &relative)
{
    m_planned << relative;
}

bool StagedFiles::commit(QString *error)
{
    const QString backupRoot = m_stage + QStringLiteral("/.previous");
    if (!QDir().mkpath(backupRoot)) {
        if (error)
            *error = tr("Can't create the folder \"%1\".").arg(backupRoot);
        return false;
    }
    QList<Move> done;
    int number = 0;
    for (const QString &relative : qAsConst(m_planned)) {
        const QString staged = stagePath(relative);
        Move move;
        move.target = m_root + QLatin1Char('/') + relative;
        const QFileInfo previous(move.target);
        bool ok = makeFolders(previous.absolutePath(), error);
        if (ok && (previous.exists() || previous.isSymLink())) {
            move.backup = backupRoot + QLatin1Char('/') + QString::number(number++);
            ok = QDir().rename(move.target, move.backup);
            if (!ok && error)
                *error = tr("Can't replace \"%1\".").arg(move.target);
            if (!ok)
                move.backup.clear();
        }
        if (ok) {
            ok = QDir().rename(staged, move.target);
            if (!ok && error)
                *error = tr("Can't replace \"%1\".").arg(move.target);
            if (!ok && !move.backup.isEmpty())
                QDir().rename(move.backup, move.target);
        }
        if (!ok) {
            undo(done);
            discard();
            return false;
        }
        done << move;
    }
    m_finished = true;
    m_begun = false;
    removeAny(m_stage);
    return true;
}

void StagedFiles::undo(const QList<Move> &done)
{
    for (int i = done.size() - 1; i >= 0; --i) {
        const Move &move = done.at(i);
        removeAny(move.target);
        if (!move.backup.isEmpty())
            QDir().rename(move.backup, move.target);
    }
}

void StagedFiles::discard()
{
    m_finished = true;
    if (m_begun)
        removeAny(m_stage);
    m_begun = false;
    for (int i = m_createdFolders.size() - 1; i >= 0; --i)
        QDir().rmdir(m_createdFolders.at(i)); // only succeeds while the folder is empty
    m_createdFolders.clear();
}
