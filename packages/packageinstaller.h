#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>

// Limits that an archive must keep before anything of it is unpacked.
struct ArchiveLimits
{
    qint64 maxTotalBytes = qint64(1) << 30; // sum of the unpacked sizes
    int maxEntries = 65536;
    int maxNameLength = 1024;
};

// Installs one firmware package zip into a repository without ever leaving the repository
// half-changed: the archive's entries are checked first (no "..", absolute paths, drive
// letters, links or special files, sizes within the limits), then unpacked into a staging
// folder next to the repository while sizes and CRCs are verified, and only then moved into
// place as <repo>/PF_<family>/<package name>. Any failure or cancel removes the staging
// folder and restores what was there before. Runs on any thread; it touches only files.
class PackageInstaller
{
    Q_DECLARE_TR_FUNCTIONS(PackageInstaller)

public:
    enum Status { Installed, Refused, WriteFailed, Canceled };

    struct Outcome
    {
        Status status = Refused;
        QString reason;      // translated, empty when installed
        QString packagePath; // the installed package folder
    };

    // Called after each unpacked entry with the entries done and the total.
    using Progress = std::function<void(int done, int total)>;

    PackageInstaller(const QString &zipPath, const QString &repoPath);

    // The zip's file name without ".zip", e.g. "MQ48T110_Firmware_Library_V2.0.0".
    QString packageName() const { return m_packageName; }
    // The family named by the zip's name, e.g. "MQ48T110".
    QString family() const { return m_family; }
    // Where the package goes: <repo>/PF_<family>/<package name>.
    QString targetPath() const;

    void setLimits(const ArchiveLimits &limits) { m_limits = limits; }
    void setProgress(Progress progress) { m_progress = std::move(progress); }
    // The installation stops, leaving the repository as it was, once the flag is true.
    void setCancelFlag(const std::atomic_bool *cancel) { m_cancel = cancel; }

    Outcome install();

    // The number of entries of a zip, 0 when it can't be read.
    static int entryCount(const QString &zipPath);

private:
    bool canceled() const { return m_cancel && m_cancel->load(); }

    QString m_zipPath;
    QString m_repoPath;
    QString m_packageName;
    QString m_family;
    ArchiveLimits m_limits;
    Progress m_progress;
    const std::atomic_bool *m_cancel = nullptr;
};

// Removes a file, a link (never what it points to) or a folder with everything in it.
bool removePath(const QString &path);

// Copies the folder `from` with everything in it to the new folder `to`; links are copied as
// links. False when `to` exists already, or, with `to` removed again, when anything can't be
// copied.
bool copyFolder(const QString &from, const QString &to);
