#pragma once

#include "packages/packageinstaller.h"

#include <QString>
#include <QStringList>
#include <QThread>

#include <atomic>

// Installs one package zip into a repository on its own thread (see PackageInstaller).
class ExtractThread : public QThread
{
    Q_OBJECT
public:
    ExtractThread(const QString &zipPath, const QString &repoPath, QObject *parent = nullptr);

    // Asks the running installation to stop; the repository then stays as it was.
    void requestCancel() { m_cancel = true; }
    // Valid after emitResult.
    PackageInstaller::Outcome outcome() const { return m_outcome; }
    QString targetPath() const { return m_installer.targetPath(); }

signals:
    void emitResult(bool installed);
    void emitUnzipping(int entriesDone, int entriesTotal);

protected:
    void run() override;

private:
    PackageInstaller m_installer;
    PackageInstaller::Outcome m_outcome;
    std::atomic_bool m_cancel{false};
};

// Deletes package folders on its own thread, and each family folder that is empty then.
class DelDirThread : public QThread
{
    Q_OBJECT
public:
    DelDirThread(const QStringList &folders, const QStringList &familyFolders,
                 QObject *parent = nullptr);

signals:
    // The folders that could not be removed.
    void emitResult(const QStringList &errors);

protected:
    void run() override;

private:
    QStringList m_folders;
    QStringList m_familyFolders;
};

// Copies a folder with everything in it on its own thread.
class CopyDirThread : public QThread
{
    Q_OBJECT
public:
    CopyDirThread(const QString &from, const QString &to, QObject *parent = nullptr);

signals:
    // 0 when everything was copied, 1 when not (the copy is then removed again).
    void emitResult(int result);

protected:
    void run() override;

private:
    QString m_from;
    QString m_to;
};
