#pragma once

#include "project/idetable.h"
#include "project/projectinfo.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

// Everything the project writer needs to turn an IDE template into one user's project.
struct ProjectJob
{
    QString ideName;       // a dialog name: "MDK_V5", "Eclipse_gcc", ...
    QString templateRoot;  // the template tree; empty: the database's projectTemplate folder
    QString projectFolder; // the folder that holds "project/" and "libraries/"
    QString series;        // "MQ48T110"
    QString device;        // "MQ48T110C8T", also the device define
    QString projectName;
    QString firmwarePath; // the firmware package folder
    quint32 heapSize = 0x200;
    quint32 stackSize = 0x400;
    int flashKiB = 0;
    int ramKiB = 0;
    bool keepUserCode = true;     // existing startup and linker files are kept
    bool packageAvailable = true; // the package passed the project manager's check
    QStringList driverStems;      // "mq48t110_crm", ... of the peripherals in use
    QStringList userSources;      // generated sources; empty: the series' default three
};

// What the project writer derives from a job and hands to the writer of one IDE format.
struct ProjectContext
{
    ProjectJob job;
    IdeType ide;
    QString stem;          // "t110"
    QString linkerStem;    // "MQ48T110x8"
    QString startupFile;   // "startup_mq48t110.s", empty when the project has none
    QString systemFile;    // "system_mq48t110.c", empty when the library lacks it
    QStringList userFiles; // generated sources, in order
    QStringList drivers;   // driver stems whose source exists in the project's library
    QString templateFolder;
    QString outputFolder; // the staged IDE folder

    quint32 flashBytes() const { return quint32(job.flashKiB) * 1024u; }
    quint32 ramBytes() const { return quint32(job.ramKiB) * 1024u; }
    // "<series>_<KiB, three digits>", the name of the flash programming algorithm.
    QString flashAlgorithm() const;
    // Whether the series writes its device as "-<device>" in the IDEs' device references.
    bool dashedDeviceForm() const;
};

// Writes the project folder of one IDE type: copies the firmware library, the template and
// the startup and linker files, sets the stack and heap sizes, and rewrites the IDE's project
// files for the device. Everything is built in a staging folder and moved into place at the
// end, so a failure leaves the project folder as it was.
class ProjectWriter
{
    Q_DECLARE_TR_FUNCTIONS(ProjectWriter)

public:
    enum Result {
        Written = 0,
        FirmwareFailed = 1, // the library, startup or linker file could not be copied
        LinkerFailed = 2,   // the stack and heap lines were not found
        ProjectFailed = 3,  // the template could not be turned into the project
    };

    // Runs the three stages; returns a Result and, on failure, a reason in `error`.
    static int write(const ProjectJob &job, QString *error = nullptr);

    // Folders of the package that are never copied into a project.
    static QStringList skippedFolders();

    // Whether a project name can name the project's folder and files: not empty, no path
    // separator, no character that file systems refuse.
    static bool isUsableName(const QString &name);
};

// The command line's entry: writes the project of a design's project settings for a device
// of the catalogue, with the firmware package in `packageFolder` (empty: no library), into
// `projectFolder` (empty: the settings' location and name). Returns an empty text on success,
// else the reason.
QString writeProjectFromInfo(const ProjectInfo &info, const QString &series, const QString &device,
                             const QString &packageFolder, const QStringList &driverStems,
                             const QString &projectFolder = QString());
