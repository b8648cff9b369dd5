#include "app/generatecodeaction.h"

#include "app/formconfiguration.h"
#include "app/generatorinputsbuilder.h"
#include "app/modaldialogs.h"
#include "clock/mq48pllconfig.h"
#include "codegen/familygenerator.h"
#include "codegen/familytable.h"
#include "codegen/generatecodethread.h"
#include "database/paths.h"
#include "packages/packagesettings.h"
#include "pinout/pinassignengine.h"
#include "project/devicefacts.h"
#include "project/idetable.h"
#include "project/projectinfo.h"
#include "project/projectsetting.h"
#include "project/projectwriter.h"
#include "widgets/messagebox.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QProgressDialog>
#include <QTextStream>
#include <QThread>
#include <QUrl>

namespace {

// The package folder a headless run uses: the design's version in the settings' repository,
// else the folder an older design names, else the newest installed version; empty when none
// is a usable package.
QString headlessPackageFolder(const ProjectInfo &info, const QString &series)
{
    const QString repository = repositoryPathOrDefault();
    QStringList candidates;
    if (!info.packageVersion.isEmpty() && !repository.isEmpty())
        candidates << devicefacts::packageFolder(repository, series, info.packageVersion);
    if (!info.firmwarePath.isEmpty())
        candidates << info.firmwarePath;
    for (const QString &version : devicefacts::installedPackageVersions(repository, series))
        candidates << devicefacts::packageFolder(repository, series, version);
    for (const QString &folder : qAsConst(candidates)) {
        if (devicefacts::isFirmwarePackage(folder, series))
            return folder;
    }
    return QString();
}

QString noGeneratorText(const QString &series)
{
    return GenerateCodeAction::tr("No code generator exists for the series \"%1\".").arg(series);
}

} // namespace

GenerateCodeAction::GenerateCodeAction(FormConfiguration *form)
    : QObject(form), m_form(form), m_thread(new GenerateCodeThread(this))
{
    connect(m_thread, &GenerateCodeThread::GenerateCodeFinished, this,
            &GenerateCodeAction::CodeView_Generate_Finished, Qt::QueuedConnection);
}

GenerateCodeAction::~GenerateCodeAction()
{
    m_thread->wait();
}

QStringList GenerateCodeAction::manualPinsWithoutEffect(const DevicePinInfo *info)
{
    QStringList entries;
    if (!info)
        return entries;
    for (const MCUPinsBaseInfo *pin : info->pins) {
        if (!pin->remapOff)
            continue;
        for (const MCUPinSignal *s : pin->signalList) {
            if (s->status == SIGNAL_PIN_ONLY && !PinAssignEngine::isGpioWord(s->Func))
                entries << pin->PinName.trimmed() + QStringLiteral(" (") + s->Func +
                               QLatin1Char(')');
        }
    }
    return entries;
}

QString GenerateCodeAction::manualPinsMessage(const QStringList &entries)
{
    QString list = entries.mid(0, 4).join(QStringLiteral(" / "));
    if (entries.size() > 4)
        list += QStringLiteral(" / ......");
    return tr("The manually configured pin signal does not take effect.") + QLatin1Char('\n') +
           list;
}

QStringList GenerateCodeAction::peripheralsInError(const QMap<QString, IPSTATUS> &status)
{
    QStringList names;
    for (auto it = status.cbegin(); it != status.cend(); ++it) {
        if ((it.value() & IPSTATUS_UNFINISHED) != 0)
            names << it.key();
    }
    return names;
}

QString GenerateCodeAction::peripheralsInErrorMessage(const QStringList &instances)
{
    return tr("These peripherals still have some not configured or wrong parameter value.\n"
              "Peripherals:   ") +
           QStringLiteral("( ") + instances.join(QStringLiteral(", ")) + QStringLiteral(" )");
}

QString GenerateCodeAction::codeViewFolder(const FormConfiguration &form)
{
    const ProjectSetting *setting = form.projectSetting();
    const QString project = setting ? setting->projectFolder() : QString();
    if (!form.currentDesignPath().isEmpty() && !project.isEmpty() && QFileInfo(project).isDir())
        return project + QStringLiteral("/project");
    return databaseFolder() + QStringLiteral("/CodeView/project");
}

void GenerateCodeAction::CodeView_Generate_Finished(bool flag)
{
    m_result = flag;
    m_finished = true;
}

GenerateCodeAction::Check GenerateCodeAction::runChecks()
{
    MQ48PLLConfig *clock = m_form->clockPage();
    if (clock && !clock->checkClockConfig()) {
        m_form->ClockConfig_PushButton_Clicked();
        return Check::ClockInvalid;
    }
    const QStringList manual = manualPinsWithoutEffect(m_form->design().devicePinInfo);
    if (!manual.isEmpty()) {
        tellUser(m_form, UserMessage::Error, tr("Error"), manualPinsMessage(manual));
        return Check::PinsInvalid;
    }
    const QStringList wrong = peripheralsInError(m_form->panelStatus());
    if (!wrong.isEmpty()) {
        m_form->PINConfig_PushButton_Clicked();
        tellUser(m_form, UserMessage::Error, tr("Error"), peripheralsInErrorMessage(wrong));
        return Check::PinsInvalid;
    }
    return Check::Passed;
}

bool GenerateCodeAction::generateInThread(FamilyGenerator *generator,
                                          const GeneratorInputs &inputs, const QString &folder)
{
    generator->setInputs(inputs);
    m_outputFolder = folder;
    m_finished = false;
    m_result = false;
    m_thread->setGenerator(generator, inputs.familyCode);
    m_thread->outputFolder = folder;
    QProgressDialog progress(tr("Generate code, Please Waiting..."), QString(), 0, 0, m_form);
    progress.setWindowTitle(QStringLiteral("MQ48 Pin Forge"));
    progress.setCancelButton(nullptr);
    progress.setWindowModality(Qt::WindowModal);
    progress.setFont(QFont(QStringLiteral("Arial")));
    progress.setStyleSheet(QStringLiteral("QProgressBar{text-align:center;}"));
    progress.setMinimumDuration(0);
    progress.show();
    m_thread->start();
    while (!m_finished) {
        QApplication::processEvents();
        QThread::msleep(10);
    }
    m_thread->wait();
    progress.close();
    m_thread->setGenerator(nullptr, 0);
    if (m_result)
        return true;
    // One box; the reason, when the generator named one, on the line below.
    QString text = tr("Generate code failed!");
    if (!generator->errorMessage().isEmpty())
        text += QLatin1Char('\n') + generator->errorMessage();
    tellUser(m_form, UserMessage::Error, tr("Error"), text);
    return false;
}

void GenerateCodeAction::offerResult(const QString &projectFile)
{
    UserMessage done;
    done.kind = UserMessage::Information;
    done.title = tr("Information");
    done.text = tr("Generate code finished!");
    done.buttons << tr(" Open Folder  ");
    if (!projectFile.isEmpty())
        done.buttons << tr(" Open Project  ");
    done.buttons << tr("OK");
    const int answer = showUserMessage(m_form, done);
    if (answer == 0) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(m_outputFolder));
    } else if (answer == 1 && !projectFile.isEmpty()) {
        if (!QDesktopServices::openUrl(QUrl::fromLocalFile(projectFile)))
            tellUser(m_form, UserMessage::Warning, tr("Warning"),
                     tr("Open the project error! \n\nPlease install toolchain to open the "
                        "project.\n"));
    }
}

bool GenerateCodeAction::run(const std::function<bool()> &saveDesign)
{
    if (!m_form || !m_form->isDesignOpen() || !m_form->projectSetting())
        return false;
    if (runChecks() != Check::Passed)
        return false;

    GeneratorInputs inputs = GeneratorInputsBuilder::fromForm(*m_form);
    std::unique_ptr<FamilyGenerator> generator = createFamilyGenerator(inputs.familyCode);
    if (!generator) {
        tellUser(m_form, UserMessage::Error, tr("Error"),
                 tr("Generate code failed!") + QLatin1Char('\n') + noGeneratorText(inputs.series));
        return false;
    }
    generator->setInputs(inputs);

    // The project manager writes the IDE project before it closes; it lists the drivers the
    // code will use.
    ProjectSetting *dialog = m_form->projectSetting();
    ProjectTarget target = dialog->target();
    target.designPath = m_form->currentDesignPath();
    target.driverStems = generator->driverFileStems();
    dialog->setTarget(target);
    if (runModalDialog(dialog) != QDialog::Accepted)
        return false;
    const QString projectFolder = dialog->projectFolder();
    if (projectFolder.isEmpty())
        return false;
    const ProjectInfo info = dialog->toProjectInfo();
    inputs.keepUserCode = info.keepUserCode;
    if (!generateInThread(generator.get(), inputs, projectFolder + QStringLiteral("/project")))
        return false;
    generator.reset();

    target.generatedBefore = true;
    dialog->setTarget(target);
    if (saveDesign)
        saveDesign();
    offerResult(dialog->projectWritten()
                    ? ideProjectFile(projectFolder, info.projectName, info.toolchainIDE)
                    : QString());
    return true;
}

GenerateCodeAction::CodeViewOutcome GenerateCodeAction::generateForCodeView()
{
    if (!m_form || !m_form->isDesignOpen())
        return CodeViewOutcome::Failed;
    switch (runChecks()) {
    case Check::ClockInvalid:
        return CodeViewOutcome::ClockInvalid;
    case Check::PinsInvalid:
        return CodeViewOutcome::PinsInvalid;
    case Check::Passed:
        break;
    }
    GeneratorInputs inputs = GeneratorInputsBuilder::fromForm(*m_form);
    std::unique_ptr<FamilyGenerator> generator = createFamilyGenerator(inputs.familyCode);
    if (!generator) {
        tellUser(m_form, UserMessage::Error, tr("Error"),
                 tr("Generate code failed!") + QLatin1Char('\n') + noGeneratorText(inputs.series));
        return CodeViewOutcome::Failed;
    }
    // Looking at the code must never cost the user's code in the project it is written to,
    // whatever the project manager says about regenerating.
    inputs.keepUserCode = true;
    return generateInThread(generator.get(), inputs, codeViewFolder(*m_form))
               ? CodeViewOutcome::Generated
               : CodeViewOutcome::Failed;
}

QStringList generationProblems(FormConfiguration *form)
{
    QStringList problems;
    if (!form || !form->isDesignOpen()) {
        problems << GenerateCodeAction::tr("No design is open.");
        return problems;
    }
    if (MQ48PLLConfig *clock = form->clockPage()) {
        // The clock page explains itself in message boxes: its errors are the problems, and
        // its questions are answered as a user who accepts them would.
        QStringList clockErrors;
        const UserMessageHandler previous = userMessageHandler();
        setUserMessageHandler([&clockErrors](QWidget *, const UserMessage &message) {
            if (message.kind == UserMessage::Error)
                clockErrors << message.text;
            return 0;
        });
        const bool valid = clock->checkClockConfig();
        setUserMessageHandler(previous);
        if (!valid && clockErrors.isEmpty())
            clockErrors << GenerateCodeAction::tr("The clock configuration is not valid.");
        if (!valid)
            problems << clockErrors;
    }
    for (const QString &entry :
         GenerateCodeAction::manualPinsWithoutEffect(form->design().devicePinInfo))
        problems << GenerateCodeAction::tr(
                        "The manually configured pin signal does not take effect: %1")
                        .arg(entry);
    for (const QString &instance : GenerateCodeAction::peripheralsInError(form->panelStatus()))
        problems << GenerateCodeAction::tr(
                        "The peripheral %1 still has some not configured or wrong parameter "
                        "value.")
                        .arg(instance);
    return problems;
}

int generateHeadless(FormConfiguration *form, const ProjectInfo &info, const QString &outputDir,
                     bool keepUserCode, QTextStream &err)
{
    const QStringList problems = generationProblems(form);
    for (const QString &problem : problems)
        err << problem << '\n';
    if (!problems.isEmpty()) {
        err.flush();
        return HeadlessProblems;
    }

    GeneratorInputs inputs = GeneratorInputsBuilder::fromForm(*form);
    inputs.keepUserCode = keepUserCode;
    std::unique_ptr<FamilyGenerator> generator = createFamilyGenerator(inputs.familyCode);
    if (!generator) {
        err << noGeneratorText(inputs.series) << '\n';
        err.flush();
        return HeadlessProblems;
    }
    generator->setInputs(inputs);

    const QString folder = outputDir.isEmpty()
                               ? info.projectFolder()
                               : QDir::cleanPath(QFileInfo(outputDir).absoluteFilePath());
    if (folder.isEmpty()) {
        err << GenerateCodeAction::tr("The design names no project folder; give one with "
                                      "--output.")
            << '\n';
        err.flush();
        return HeadlessProblems;
    }

    ProjectInfo project = info;
    project.keepUserCode = keepUserCode;
    if (project.projectName.trimmed().isEmpty())
        project.projectName = QFileInfo(folder).fileName();
    if (!project.toolchainIDE.isEmpty()) {
        const IdeType ide = ideTypeByName(project.toolchainIDE);
        if (!ide.isValid() || ide.name.isEmpty()) {
            err << GenerateCodeAction::tr("Unknown toolchain/IDE \"%1\".")
                       .arg(project.toolchainIDE)
                << '\n';
            err.flush();
            return HeadlessProblems;
        }
        project.toolchainIDE = ide.name;
    }
    if (!project.toolchainIDE.isEmpty() && project.useFirmware) {
        const QString package = headlessPackageFolder(project, inputs.series);
        if (package.isEmpty()) {
            err << GenerateCodeAction::tr("No firmware package of %1 is installed; only the "
                                          "code is written.")
                       .arg(devicefacts::packageFamily(inputs.series))
                << '\n';
        } else {
            const QString failure =
                writeProjectFromInfo(project, inputs.series, inputs.deviceName, package,
                                     generator->driverFileStems(), folder);
            if (!failure.isEmpty()) {
                err << failure << '\n';
                err.flush();
                return HeadlessWriteFailed;
            }
        }
    }

    if (!generator->generate(folder + QStringLiteral("/project"))) {
        err << GenerateCodeAction::tr("Generate code failed!");
        if (!generator->errorMessage().isEmpty())
            err << ' ' << generator->errorMessage();
        err << '\n';
        err.flush();
        return HeadlessWriteFailed;
    }
    err.flush();
    return HeadlessGenerated;
}
