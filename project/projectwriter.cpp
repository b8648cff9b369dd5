#include "project/projectwriter.h"

#include "database/catalogue.h"
#include "database/paths.h"
#include "project/devicefacts.h"
#include "project/projectformats.h"
#include "project/projectsizes.h"
#include "project/stagedfiles.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

// A stack or heap line of a startup or linker file, and how it is written back.
struct SizeLine
{
    ProjectFormatKind format;
    bool stack;
    const char *pattern;
    const char *prefix; // the line up to the value
    const char *suffix; // the line behind the value
    int digits;         // zero padding of the value, 0 for none
};

const SizeLine kSizeLines[] = {
    {ProjectFormatKind::Keil, true, "Stack_Size\\s*EQU\\s*0x[0-9A-Fa-f]{8}",
     "Stack_Size      EQU     0x", "", 8},
    {ProjectFormatKind::Keil, false, "Heap_Size\\s*EQU\\s*0x[0-9A-Fa-f]{8}",
     "Heap_Size       EQU     0x", "", 8},
    {ProjectFormatKind::Iar, true, "define symbol __ICFEDIT_size_cstack__\\s*=\\s*0x[0-9A-Fa-f]*;",
     "define symbol __ICFEDIT_size_cstack__\t= 0x", ";", 0},
    {ProjectFormatKind::Iar, false, "define symbol __ICFEDIT_size_heap__\\s*=\\s*0x[0-9A-Fa-f]*;",
     "define symbol __ICFEDIT_size_heap__\t\t= 0x", ";", 0},
    {ProjectFormatKind::Eclipse, true, "_Min_Stack_Size\\s*=\\s*0x[0-9A-Fa-f]*;",
     "_Min_Stack_Size = 0x", ";", 0},
    {ProjectFormatKind::Eclipse, false, "_Min_Heap_Size\\s*=\\s*0x[0-9A-Fa-f]*;",
     "_Min_Heap_Size = 0x", ";", 0},
};

// Sets the stack and heap lines of one file; false when a line is missing.
bool setSizes(QString &text, ProjectFormatKind format, quint32 stack, quint32 heap)
{
    for (const SizeLine &line : kSizeLines) {
        if (line.format != format)
            continue;
        const QRegularExpression re(QString::fromLatin1(line.pattern));
        if (!re.match(text).hasMatch())
            return false;
        QString value = QString::number(line.stack ? stack : heap, 16).toUpper();
        value = value.rightJustified(line.digits, QLatin1Char('0'));
        text.replace(re,
                     QString::fromLatin1(line.prefix) + value + QString::fromLatin1(line.suffix));
    }
    return true;
}

// One run of the writer: the staged project folder and what has been derived so far.
class WriterRun
{
    Q_DECLARE_TR_FUNCTIONS(ProjectWriter)

public:
    explicit WriterRun(const ProjectJob &job) : m_stage(job.projectFolder) { m_context.job = job; }

    int run(QString *error);

private:
    bool prepare(QString *error);
    bool firmwareStage(QString *error);
    bool linkerStage(QString *error);
    bool projectStage(QString *error);

    // A file of the package's startup folder copied to `relative` in the IDE folder, or the
    // project's own copy kept when asked. Returns false on a failed copy.
    bool stageStartupFile(const QString &source, const QString &relative, QString *stagedPath,
                          QString *error);

    ProjectContext m_context;
    StagedFiles m_stage;
    QString m_libraries;   // the library the project will have after commit
    QString m_startupRoot; // the package's startup folder, empty without a library
    QString m_ideRelative; // "project/<IDE>"
    bool m_newIdeFolder = false;
    QString m_stagedStartup;
    QString m_stagedLinker;
};

bool WriterRun::prepare(QString *error)
{
    ProjectJob &job = m_context.job;
    m_context.ide = ideTypeByName(job.ideName);
    if (!m_context.ide.isValid() || m_context.ide.name.isEmpty()) {
        if (error)
            *error = tr("Unknown toolchain \"%1\".").arg(job.ideName);
        return false;
    }
    m_context.stem = devicefacts::deviceStem(job.series);
    m_context.linkerStem = devicefacts::linkerStem(job.series, job.flashKiB);
    if (m_context.stem.isEmpty() || job.device.isEmpty()) {
        if (error)
            *error = tr("The device \"%1\" has no firmware package.").arg(job.device);
        return false;
    }
    if (m_context.linkerStem.isEmpty() || job.ramKiB <= 0) {
        if (error)
            *error = tr("The memory sizes of \"%1\" are unknown.").arg(job.device);
        return false;
    }
    if (job.projectFolder.isEmpty() || job.projectName.isEmpty()) {
        if (error)
            *error = tr("Project name or project location is empty!");
        return false;
    }
    if (!ProjectWriter::isUsableName(job.projectName)) {
        if (error)
            *error =
                tr("The project name \"%1\" can't be used as a folder name.").arg(job.projectName);
        return false;
    }
    const QString root = job.templateRoot.isEmpty()
                             ? databaseFolder() + QStringLiteral("/projectTemplate")
                             : job.templateRoot;
    m_context.templateFolder = root + QLatin1Char('/') + m_context.ide.templateFolder;
    if (!QFileInfo(m_context.templateFolder).isDir()) {
        if (error)
            *error =
                tr("The project template \"%1\" does not exist.").arg(m_context.templateFolder);
        return false;
    }
    m_context.userFiles =
        job.userSources.isEmpty() ? devicefacts::generatedSources(job.series) : job.userSources;
    m_ideRelative = QStringLiteral("project/") + m_context.ide.projectFolder();
    return true;
}

bool WriterRun::stageStartupFile(const QString &source, const QString &relative,
                                 QString *stagedPath, QString *error)
{
    const QString existing = m_stage.root() + QLatin1Char('/') + relative;
    const QString staged = m_stage.stagePath(relative);
    if (m_context.job.keepUserCode && QFileInfo(existing).isFile()) {
        if (!checkedio::copyFile(existing, staged, error))
            return false;
    } else if (!QFileInfo(source).isFile()) {
        if (error)
            *error = tr("The firmware package lacks \"%1\".").arg(source);
        return false;
    } else if (!checkedio::copyFile(source, staged, error)) {
        return false;
    }
    if (!m_newIdeFolder)
        m_stage.replace(relative);
    *stagedPath = staged;
    return true;
}

bool WriterRun::firmwareStage(QString *error)
{
    const ProjectJob &job = m_context.job;
    const QString package = job.firmwarePath;
    const bool havePackage =
        !package.isEmpty() && QFileInfo(package + QStringLiteral("/libraries")).isDir();
    if (job.packageAvailable && !havePackage) {
        if (error)
            *error = tr("The firmware package \"%1\" does not exist.").arg(package);
        return false;
    }
    if (!m_stage.begin(error))
        return false;

    const QStringList skipped = ProjectWriter::skippedFolders();
    const QString projectLibraries = m_stage.root() + QStringLiteral("/libraries");
    if (havePackage) {
        // A checked package replaces the library and the middlewares as a whole; an
        // unchecked one only brings its cmsis and drivers folders.
        for (const QString &part : {QStringLiteral("cmsis"), QStringLiteral("drivers")}) {
            const QString from = package + QStringLiteral("/libraries/") + part;
            if (!checkedio::copyTree(from, m_stage.stagePath(QStringLiteral("libraries/") + part),
                                     skipped, error))
                return false;
            if (!job.packageAvailable)
                m_stage.replace(QStringLiteral("libraries/") + part);
        }
        if (job.packageAvailable) {
            m_stage.replace(QStringLiteral("libraries"));
            const QString middlewares = package + QStringLiteral("/middlewares");
            if (QFileInfo(middlewares).isDir()) {
                if (!checkedio::copyTree(middlewares,
                                         m_stage.stagePath(QStringLiteral("middlewares")), skipped,
                                         error))
                    return false;
                m_stage.replace(QStringLiteral("middlewares"));
            }
        }
        m_libraries = m_stage.stagePath(QStringLiteral("libraries"));
        m_startupRoot = package + QStringLiteral("/libraries/cmsis/cm4/device_support/startup/");
    } else {
        // No package: the project keeps whatever library it already has.
        m_libraries = projectLibraries;
        const QString own =
            projectLibraries + QStringLiteral("/cmsis/cm4/device_support/startup/");
        if (QFileInfo(own).isDir())
            m_startupRoot = own;
    }

    // The IDE folder: a new one starts as a copy of the template's other files; in an existing
    // one only the files written here are replaced and the user's own files stay.
    const QString ideTarget = m_stage.root() + QLatin1Char('/') + m_ideRelative;
    const QString ideStaged = m_stage.stagePath(m_ideRelative);
    m_newIdeFolder = !QFileInfo::exists(ideTarget);
    if (!QDir().mkpath(ideStaged)) {
        if (error)
            *error = tr("Can't create the folder \"%1\".").arg(ideStaged);
        return false;
    }
    if (m_newIdeFolder) {
        QStringList managed;
        for (const TemplateFile &file :
             ProjectFormat::of(m_context.ide.format).files(m_context.ide))
            managed << file.templateName;
        const QDir templates(m_context.templateFolder);
        for (const QFileInfo &entry : templates.entryInfoList(
                 QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name)) {
            if (managed.contains(entry.fileName()) || entry.isSymLink())
                continue;
            const QString to = ideStaged + QLatin1Char('/') + entry.fileName();
            const bool ok = entry.isDir()
                                ? checkedio::copyTree(entry.filePath(), to, skipped, error)
                                : checkedio::copyFile(entry.filePath(), to, error);
            if (!ok)
                return false;
        }
    }

    if (m_startupRoot.isEmpty())
        return true; // no library at all: the project names no startup or linker file

    const QString startupName =
        QStringLiteral("startup_mq48") + m_context.stem + QStringLiteral(".s");
    const QString startupFolder = m_startupRoot + m_context.ide.startupFolder;
    if (!stageStartupFile(startupFolder + QLatin1Char('/') + startupName,
                          m_ideRelative + QLatin1Char('/') + startupName, &m_stagedStartup, error))
        return false;
    m_context.startupFile = startupName;

    QString linkerName;
    QString linkerRelative = m_ideRelative + QLatin1Char('/');
    switch (m_context.ide.format) {
    case ProjectFormatKind::Eclipse:
        linkerName = m_context.linkerStem + QStringLiteral("_FLASH.ld");
        if (!m_context.ide.linkerFolder.isEmpty())
            linkerRelative += m_context.ide.linkerFolder + QLatin1Char('/');
        break;
    case ProjectFormatKind::Iar:
        linkerName = m_context.linkerStem + QStringLiteral(".icf");
        break;
    case ProjectFormatKind::Keil:
        return true; // the memory layout is part of the µVision project
    }
    return stageStartupFile(startupFolder + QStringLiteral("/linker/") + linkerName,
                            linkerRelative + linkerName, &m_stagedLinker, error);
}

bool WriterRun::linkerStage(QString *error)
{
    const QString file =
        m_context.ide.format == ProjectFormatKind::Keil ? m_stagedStartup : m_stagedLinker;
    if (file.isEmpty())
        return true;
    QByteArray data;
    if (!checkedio::readFile(file, &data, error))
        return false;
    QString text = QString::fromUtf8(data);
    if (!setSizes(text, m_context.ide.format, m_context.job.stackSize, m_context.job.heapSize)) {
        if (error)
            *error = tr("The stack and heap sizes can't be set in \"%1\".")
                         .arg(QFileInfo(file).fileName());
        return false;
    }
    return checkedio::writeFile(file, text.toUtf8(), error);
}

bool WriterRun::projectStage(QString *error)
{
    // Only library sources that exist are named in the project.
    for (const QString &stem : m_context.job.driverStems) {
        const QString source =
            m_libraries + QStringLiteral("/drivers/src/") + stem + QStringLiteral(".c");
        if (QFileInfo(source).isFile() && !m_context.drivers.contains(stem))
            m_context.drivers << stem;
    }
    const QString system = QStringLiteral("system_mq48") + m_context.stem + QStringLiteral(".c");
    if (QFileInfo(m_libraries + QStringLiteral("/cmsis/cm4/device_support/") + system).isFile())
        m_context.systemFile = system;

    m_context.outputFolder = m_stage.stagePath(m_ideRelative);
    QStringList written;
    if (!ProjectFormat::of(m_context.ide.format).write(m_context, &written, error))
        return false;
    if (m_newIdeFolder) {
        m_stage.replace(m_ideRelative);
    } else {
        for (const QString &name : written)
            m_stage.replace(m_ideRelative + QLatin1Char('/') + name);
    }
    return true;
}

int WriterRun::run(QString *error)
{
    if (!prepare(error))
        return ProjectWriter::ProjectFailed;
    if (!firmwareStage(error))
        return ProjectWriter::FirmwareFailed;
    if (!linkerStage(error))
        return ProjectWriter::LinkerFailed;
    if (!projectStage(error))
        return ProjectWriter::ProjectFailed;
    if (!m_stage.commit(error))
        return ProjectWriter::FirmwareFailed;
    return ProjectWriter::Written;
}

} // namespace

int ProjectWriter::write(const ProjectJob &job, QString *error)
{
    WriterRun run(job);
    return run.run(error);
}

QStringList ProjectWriter::skippedFolders()
{
    return {QStringLiteral("documents"), QStringLiteral("doc"), QStringLiteral("html")};
}

bool ProjectWriter::isUsableName(const QString &name)
{
    static const QString forbidden = QStringLiteral("/\\:*?\"<>|");
    if (name.trimmed().isEmpty() || name == QLatin1String(".") || name == QLatin1String(".."))
        return false;
    for (const QChar c : name) {
        if (forbidden.contains(c) || c.unicode() < 0x20)
            return false;
    }
    return true;
}

QString writeProjectFromInfo(const ProjectInfo &info, const QString &series, const QString &device,
                             const QString &packageFolder, const QStringList &driverStems,
                             const QString &projectFolder)
{
    ProjectJob job;
    job.ideName = info.toolchainIDE;
    job.projectFolder = projectFolder.isEmpty() ? info.projectFolder() : projectFolder;
    job.projectName = info.projectName.trimmed();
    job.series = series;
    job.device = device;
    job.keepUserCode = info.keepUserCode;
    job.driverStems = driverStems;
    for (const MCUListItem &row : GetMCUList(series)) {
        if (row.Name == device) {
            job.flashKiB = devicefacts::sizeKiB(row.Flash);
            job.ramKiB = devicefacts::sizeKiB(row.SRAM);
        }
    }
    if (job.flashKiB <= 0)
        return ProjectWriter::tr("The device \"%1\" is not in the catalogue.").arg(device);

    QString problem;
    if (!parseProjectSizes(info.minHeapSize, info.minStackSize, quint32(job.ramKiB) * 1024u,
                           &job.heapSize, &job.stackSize, &problem))
        return problem;

    job.firmwarePath = packageFolder;
    job.packageAvailable = !packageFolder.isEmpty();
    if (job.packageAvailable && !devicefacts::isFirmwarePackage(packageFolder, series))
        return ProjectWriter::tr("\"%1\" is not a firmware package of %2.")
            .arg(packageFolder, series);

    QString error;
    if (ProjectWriter::write(job, &error) != ProjectWriter::Written)
        return error.isEmpty() ? ProjectWriter::tr("Failure to Config Project file!") : error;
    return QString();
}
