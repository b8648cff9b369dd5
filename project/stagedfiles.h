#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

// Checked file operations: every write is verified (written size, flush, error state) and a
// failure leaves no partial target behind.
namespace checkedio {

// Writes `data` to `path`, creating its folder; false with a reason in `error` on any failure.
bool writeFile(const QString &path, const QByteArray &data, QString *error);

// Copies one file by reading and writing it, checked like writeFile().
bool copyFile(const QString &source, const QString &target, QString *error);

// Copies a folder tree, creating folders as needed. Folders whose name is listed in
// `skippedFolders` are left out, and so are symbolic links.
bool copyTree(const QString &source, const QString &target, const QStringList &skippedFolders,
              QString *error);

// Reads a whole file; false when it can't be opened or read.
bool readFile(const QString &path, QByteArray *data, QString *error);

} // namespace checkedio

// Builds new files and folders in a staging folder inside the target root and moves them into
// place together; if one move fails, everything already replaced is put back. An object that
// is destroyed without a successful commit() discards its stage and the folders it created.
class StagedFiles
{
    Q_DECLARE_TR_FUNCTIONS(StagedFiles)

public:
    explicit StagedFiles(const QString &root);
    ~StagedFiles();
    StagedFiles(const StagedFiles &) = delete;
    StagedFiles &operator=(const StagedFiles &) = delete;

    // Creates the root (and its parents) and an empty stage; false when either fails.
    bool begin(QString *error);

    QString root() const { return m_root; }
    // Where the staged copy of root-relative `relative` is built.
    QString stagePath(const QString &relative) const;

    // Plans that the staged `relative` (file or folder) replaces the one of the root as a
    // whole. Entries move in the order they were planned.
    void replace(const QString &relative);

    // Moves every planned entry into place. On failure the root is as it was before.
    bool commit(QString *error);

    // Removes the stage and whatever begin() or commit() created; the root's own contents
    // stay untouched. Called by the destructor when nothing was committed.
    void discard();

    // Name of the staging folder inside the root.
    static QString stageFolderName();

private:
    struct Move
    {
        QString target;
        QString backup; // empty when there was no previous target
    };
    void undo(const QList<Move> &done);
    bool makeFolders(const QString &path, QString *error);

    QString m_root;
    QString m_stage;
    QStringList m_planned;
    QStringList m_createdFolders; // created by this object, outermost first
    bool m_begun = false;         // the stage exists and belongs to this object
    bool m_finished = false;
};
