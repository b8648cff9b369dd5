#include "packages/packageworkers.h"

#include <QDir>
#include <QFileInfo>

ExtractThread::ExtractThread(const QString &zipPath, const QString &repoPath, QObject *parent)
    : QThread(parent), m_installer(zipPath, repoPath)
{
    m_installer.setCancelFlag(&m_cancel);
    m_installer.setProgress([this](int done, int total) { emit emitUnzipping(done, total); });
}

void ExtractThread::run()
{
    m_outcome = m_installer.install();
    emit emitResult(m_outcome.status == PackageInstaller::Installed);
}

DelDirThread::DelDirThread(const QStringList &folders, const QStringList &familyFolders,
                           QObject *parent)
    : QThread(parent), m_folders(folders), m_familyFolders(familyFolders)
{
}

void DelDirThread::run()
{
    QStringList errors;
    for (const QString &folder : m_folders) {
        const QFileInfo info(folder);
        if ((info.exists() || info.isSymLink()) && !removePath(folder))
            errors.append(folder);
    }
    for (const QString &family : m_familyFolders) {
        const QDir dir(family);
        if (dir.exists() &&
            dir.entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System)
                .isEmpty())
            QDir().rmdir(family);
    }
    emit emitResult(errors);
}

CopyDirThread::CopyDirThread(const QString &from, const QString &to, QObject *parent)
    : QThread(parent), m_from(from), m_to(to)
{
}

void CopyDirThread::run()
{
    emit emitResult(copyFolder(m_from, m_to) ? 0 : 1);
}
