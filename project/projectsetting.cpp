#include "project/projectsetting.h"

#include "database/catalogue.h"
#include "database/configstore.h"
#include "database/paths.h"
#include "project/devicefacts.h"
#include "project/generateprojectthread.h"
#include "project/idetable.h"
#include "project/projectsizes.h"
#include "widgets/messagebox.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QThread>
#include <QVBoxLayout>

namespace {

constexpr int kWaitTurns = 6000; // turns of 10 ms: one minute
const char *const kGroupTitleStyle =
    "QLabel { background-color: rgb(139, 207, 215); color: white; padding: 3px; }";
const char *const kProblemStyle = "QLabel { color: red; }";

// A titled group: the coloured title label above a grid of fields.
QGridLayout *addGroup(QVBoxLayout *page, QLabel *label, const QString &objectName)
{
    label->setObjectName(objectName);
    label->setStyleSheet(QString::fromLatin1(kGroupTitleStyle));
    page->addWidget(label);
    auto *grid = new QGridLayout;
    grid->setContentsMargins(8, 4, 8, 8);
    page->addLayout(grid);
    return grid;
}

} // namespace

ProjectSetting::ProjectSetting(QWidget *parent) : QDialog(parent)
{
    setWindowTitle(tr("Project Manager"));
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    buildWidgets();
    // Wide enough for a package path of the usual depth in the dialog's own font.
    setMinimumWidth(fontMetrics().averageCharWidth() * 72);

    QString value;
    if (QFileInfo::exists(configPath())) {
        if (GetConfigValue(configPath(), QStringLiteral("PackagePath"), value))
            m_repoPath = value;
        if (GetConfigValue(configPath(), QStringLiteral("ProjectLocation"), value))
            m_locationEdit->setText(value);
        if (GetConfigValue(configPath(), QStringLiteral("ToolchainIDE"), value) &&
            m_ideCombo->findText(value) >= 0)
            m_ideCombo->setCurrentIndex(m_ideCombo->findText(value));
    }
    IDETypeChanged_comboBoxSlot(m_ideCombo->currentIndex());
}

void ProjectSetting::retranslateUi()
{
    setWindowTitle(tr("Project Manager"));
    for (const auto &entry : qAsConst(m_sourceTexts)) {
        const QString text = tr(entry.second);
        if (auto *label = qobject_cast<QLabel *>(entry.first))
            label->setText(text);
        else if (auto *button = qobject_cast<QAbstractButton *>(entry.first))
            button->setText(text);
    }
    updatePackagePath();
}

QString ProjectSetting::configPath() const
{
    return appFolder() + QStringLiteral("/config.xml");
}

void ProjectSetting::buildWidgets()
{
    auto *page = new QVBoxLayout(this);

    QGridLayout *project =
        addGroup(page, translated(new QLabel, QT_TR_NOOP("Project Settings")),
                 QStringLiteral("projectSettingsTitle"));
    m_nameEdit = new QLineEdit;
    m_nameEdit->setObjectName(QStringLiteral("projectNameEdit"));
    m_locationEdit = new QLineEdit;
    m_locationEdit->setObjectName(QStringLiteral("projectLocationEdit"));
    m_browseButton = translated(new QPushButton, QT_TR_NOOP("Browse"));
    m_browseButton->setObjectName(QStringLiteral("browseButton"));
    m_ideCombo = new QComboBox;
    m_ideCombo->setObjectName(QStringLiteral("ideCombo"));
    m_ideCombo->addItems(dialogIdeNames());
    m_keepCheck = translated(new QCheckBox, QT_TR_NOOP("Keep User Code when re-generating"));
    m_keepCheck->setObjectName(QStringLiteral("keepUserCodeCheck"));
    m_keepCheck->setChecked(true);
    project->addWidget(translated(new QLabel, QT_TR_NOOP("Project Name")), 0, 0);
    project->addWidget(m_nameEdit, 0, 1, 1, 2);
    project->addWidget(translated(new QLabel, QT_TR_NOOP("Project Location")), 1, 0);
    project->addWidget(m_locationEdit, 1, 1);
    project->addWidget(m_browseButton, 1, 2);
    project->addWidget(translated(new QLabel, QT_TR_NOOP("Toolchain/IDE")), 2, 0);
    project->addWidget(m_ideCombo, 2, 1, 1, 2);
    project->addWidget(m_keepCheck, 3, 0, 1, 3);
    project->setColumnStretch(1, 1);

    QGridLayout *linker =
        addGroup(page, translated(new QLabel, QT_TR_NOOP("Linker Settings")),
                 QStringLiteral("linkerSettingsTitle"));
    const QRegularExpression hexText(QStringLiteral("[0-9A-Fa-fXx]+$"));
    m_heapEdit = new QLineEdit(QStringLiteral("0x200"));
    m_heapEdit->setObjectName(QStringLiteral("heapEdit"));
    m_heapEdit->setValidator(new QRegularExpressionValidator(hexText, m_heapEdit));
    m_stackEdit = new QLineEdit(QStringLiteral("0x400"));
    m_stackEdit->setObjectName(QStringLiteral("stackEdit"));
    m_stackEdit->setValidator(new QRegularExpressionValidator(hexText, m_stackEdit));
    linker->addWidget(translated(new QLabel, QT_TR_NOOP("Minimum Heap Size (0x)")), 0, 0);
    linker->addWidget(m_heapEdit, 0, 1);
    linker->addWidget(translated(new QLabel, QT_TR_NOOP("Minimum Stack Size (0x)")), 1, 0);
    linker->addWidget(m_stackEdit, 1, 1);
    linker->setColumnStretch(1, 1);

    QGridLayout *firmware =
        addGroup(page, translated(new QLabel, QT_TR_NOOP("MCU and Firmware Package")),
                 QStringLiteral("firmwareTitle"));
    m_firmwareCheck =
        translated(new QCheckBox, QT_TR_NOOP("Copy libraries into the project folder"));
    m_firmwareCheck->setObjectName(QStringLiteral("copyLibrariesCheck"));
    m_firmwareCheck->setChecked(true);
    m_versionCombo = new QComboBox;
    m_versionCombo->setObjectName(QStringLiteral("packageVersionCombo"));
    m_packageButton = translated(new QPushButton, QT_TR_NOOP("Package Manager"));
    m_packageButton->setObjectName(QStringLiteral("packageManagerButton"));
    m_pathLabel = translated(new QLabel, QT_TR_NOOP("Firmware Relative Path"));
    m_pathEdit = new QLineEdit;
    m_pathEdit->setObjectName(QStringLiteral("firmwarePathEdit"));
    m_pathEdit->setReadOnly(true);
    m_messageLabel = new QLabel;
    m_messageLabel->setObjectName(QStringLiteral("firmwareMessageLabel"));
    m_messageLabel->setWordWrap(true);
    m_messageLabel->setStyleSheet(QString::fromLatin1(kProblemStyle));
    // Room for a two-line message, so that showing one does not change the dialog's size.
    m_messageLabel->setMinimumHeight(m_messageLabel->fontMetrics().lineSpacing() * 2 + 4);
    m_messageLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    firmware->addWidget(m_firmwareCheck, 0, 0, 1, 3);
    firmware->addWidget(translated(new QLabel, QT_TR_NOOP("Package Version")), 1, 0);
    firmware->addWidget(m_versionCombo, 1, 1);
    firmware->addWidget(m_packageButton, 1, 2);
    firmware->addWidget(m_pathLabel, 2, 0);
    firmware->addWidget(m_pathEdit, 2, 1, 1, 2);
    firmware->addWidget(m_messageLabel, 3, 0, 1, 3);
    firmware->setColumnStretch(1, 1);

    page->addStretch(1);
    auto *buttons = new QHBoxLayout;
    auto *ok = translated(new QPushButton, QT_TR_NOOP("OK"));
    ok->setObjectName(QStringLiteral("okButton"));
    ok->setDefault(true);
    auto *cancel = translated(new QPushButton, QT_TR_NOOP("Cancel"));
    cancel->setObjectName(QStringLiteral("cancelButton"));
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    page->addLayout(buttons);

    connect(m_browseButton, &QPushButton::clicked, this,
            &ProjectSetting::OpenProjLocation_btnSlot);
    connect(m_packageButton, &QPushButton::clicked, this,
            &ProjectSetting::OpenPackageManager_btnSlot);
    connect(ok, &QPushButton::clicked, this, &ProjectSetting::OK_btnSlot);
    connect(cancel, &QPushButton::clicked, this, &ProjectSetting::Cancel_btnSlot);
    connect(m_firmwareCheck, &QCheckBox::stateChanged, this,
            &ProjectSetting::FirmwareConfigEnable);
    connect(m_keepCheck, &QCheckBox::stateChanged, this, &ProjectSetting::KeepUserCode_CheckSlot);
    connect(m_ideCombo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ProjectSetting::IDETypeChanged_comboBoxSlot);
    connect(m_versionCombo, &QComboBox::currentTextChanged, this,
            &ProjectSetting::PackageVersionChanged_comboBoxSlot);
}

void ProjectSetting::setTarget(const ProjectTarget &target)
{
    m_target = target;
    m_flashKiB = 0;
    m_sramKiB = 0;
    for (const MCUListItem &row : GetMCUList(target.series)) {
        if (row.Name == target.device) {
            m_flashKiB = devicefacts::sizeKiB(row.Flash);
            m_sramKiB = devicefacts::sizeKiB(row.SRAM);
        }
    }
    if (m_nameEdit->text().trimmed().isEmpty() && !target.device.isEmpty())
        m_nameEdit->setText(target.device + QStringLiteral("_PinForge"));
    fillPackageVersions(QString());
}

void ProjectSetting::setProjectInfo(const ProjectInfo &info)
{
    if (!info.projectName.trimmed().isEmpty())
        m_nameEdit->setText(info.projectName);
    if (!info.projectLocation.trimmed().isEmpty())
        m_locationEdit->setText(info.projectLocation);
    const int ide = m_ideCombo->findText(info.toolchainIDE);
    if (ide >= 0)
        m_ideCombo->setCurrentIndex(ide);
    m_keepCheck->setChecked(info.keepUserCode);
    if (!info.minHeapSize.isEmpty())
        m_heapEdit->setText(info.minHeapSize);
    if (!info.minStackSize.isEmpty())
        m_stackEdit->setText(info.minStackSize);
    m_firmwareCheck->setChecked(info.useFirmware);
    FirmwareConfigEnable(m_firmwareCheck->checkState());
    if (!info.packageVersion.isEmpty()) {
        fillPackageVersions(info.packageVersion);
    } else if (!info.firmwarePath.isEmpty() && info.useFirmware) {
        // Older designs name the package folder itself.
        m_firmwarePath = info.firmwarePath;
        m_pathEdit->setText(info.firmwarePath);
        m_messageLabel->clear();
    }
}

ProjectInfo ProjectSetting::toProjectInfo() const
{
    ProjectInfo info;
    info.projectName = m_nameEdit->text().trimmed();
    info.projectLocation = m_locationEdit->text().trimmed();
    info.toolchainIDE = m_ideCombo->currentText();
    info.keepUserCode = m_keepCheck->isChecked();
    info.minHeapSize = m_heapEdit->text();
    info.minStackSize = m_stackEdit->text();
    info.useFirmware = m_firmwareCheck->isChecked();
    info.firmwarePath = m_firmwarePath;
    info.packageVersion = m_versionCombo->currentText();
    return info;
}

QString ProjectSetting::projectFolder() const
{
    return toProjectInfo().projectFolder();
}

QString ProjectSetting::projectName() const
{
    return m_nameEdit->text().trimmed();
}

void ProjectSetting::fillPackageVersions(const QString &wanted)
{
    const QString keep = wanted.isEmpty() ? m_versionCombo->currentText() : wanted;
    QStringList versions = devicefacts::installedPackageVersions(m_repoPath, m_target.series);
    if (!keep.isEmpty() && !versions.contains(keep))
        versions.prepend(keep); // the design's version, shown even when it is not installed
    {
        const QSignalBlocker blocker(m_versionCombo);
        m_versionCombo->clear();
        m_versionCombo->addItems(versions);
        const int at = m_versionCombo->findText(keep);
        if (at >= 0)
            m_versionCombo->setCurrentIndex(at);
    }
    updatePackagePath();
}

void ProjectSetting::updatePackagePath()
{
    if (!m_useFirmware) {
        m_firmwarePath.clear();
        m_pathEdit->clear();
        m_messageLabel->clear();
        return;
    }
    const QString version = m_versionCombo->currentText();
    const QString folder = version.isEmpty() || m_repoPath.isEmpty()
                               ? QString()
                               : devicefacts::packageFolder(m_repoPath, m_target.series, version);
    if (!folder.isEmpty() && QFileInfo(folder).isDir()) {
        m_firmwarePath = folder;
        m_pathEdit->setText(QDir::toNativeSeparators(folder));
        m_pathEdit->setCursorPosition(0);
        m_pathEdit->setToolTip(m_pathEdit->text());
        m_messageLabel->clear();
        return;
    }
    m_firmwarePath.clear();
    m_pathEdit->clear();
    m_pathEdit->setToolTip(QString());
    const QString name = version.isEmpty() ? devicefacts::packageFamily(m_target.series) +
                                                 QStringLiteral("_Firmware_Library")
                                           : devicefacts::packageName(m_target.series, version);
    m_messageLabel->setText(tr("The firmware package of %1 does not exist, please click "
                               "\"Package Manager\" to install the firmware package.")
                                .arg(name));
}

void ProjectSetting::OpenProjLocation_btnSlot()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Select directory"), m_locationEdit->text());
    if (!folder.isEmpty())
        m_locationEdit->setText(QDir::toNativeSeparators(folder));
}

void ProjectSetting::OpenPackageManager_btnSlot()
{
    emit SendOpenPackageManager();
}

void ProjectSetting::updateRepoPath(const QString &path)
{
    m_repoPath = path;
    fillPackageVersions(QString());
}

void ProjectSetting::FirmwareConfigEnable(int state)
{
    m_useFirmware = state != Qt::Unchecked;
    m_versionCombo->setEnabled(m_useFirmware);
    m_packageButton->setEnabled(m_useFirmware);
    m_pathEdit->setEnabled(m_useFirmware);
    m_pathLabel->setEnabled(m_useFirmware);
    updatePackagePath();
}

void ProjectSetting::KeepUserCode_CheckSlot(int state)
{
    m_keepUserCode = state != Qt::Unchecked;
}

void ProjectSetting::IDETypeChanged_comboBoxSlot(int index)
{
    m_ideIndex = ideIndexOfName(m_ideCombo->itemText(index));
}

void ProjectSetting::PackageVersionChanged_comboBoxSlot(const QString &)
{
    updatePackagePath();
}

void ProjectSetting::gererateProject_Slot(int nResult)
{
    m_result = nResult;
}

void ProjectSetting::OK_btnSlot()
{
    const QString name = projectName();
    const QString location = m_locationEdit->text().trimmed();
    if (name.isEmpty() || location.isEmpty()) {
        tellUser(this, UserMessage::Error, tr("Error"),
                 tr("Project name or project location is empty!"));
        return;
    }
    if (!ProjectWriter::isUsableName(name)) {
        tellUser(this, UserMessage::Error, tr("Error"),
                 tr("The project name \"%1\" can't be used as a folder name.").arg(name));
        return;
    }
    const QString folder = projectFolder();
    const QString designFile = folder + QLatin1Char('/') + name + QStringLiteral(".MQPF");
    const bool sameDesign =
        !m_target.designPath.isEmpty() && QFileInfo(m_target.designPath) == QFileInfo(designFile);
    const bool skipQuestion = (m_keepUserCode && m_target.generatedBefore) || sameDesign;
    if (QFileInfo::exists(folder) && !skipQuestion &&
        !confirmUser(this, UserMessage::Warning, tr("Warning"),
                     tr("%1 already exists, do you want to overwrite it?").arg(name),
                     yesButtonText()))
        return;

    m_projectWritten = false;
    if (m_useFirmware) {
        quint32 heap = 0;
        quint32 stack = 0;
        QString problem;
        if (!parseProjectSizes(m_heapEdit->text(), m_stackEdit->text(), quint32(m_sramKiB) * 1024u,
                               &heap, &stack, &problem)) {
            tellUser(this, UserMessage::Error, tr("Error"), problem);
            return;
        }
        if (!startProjectWriter())
            return;
    }
    m_designFilePath = designFile;
    storeSettings();
    accept();
}

bool ProjectSetting::startProjectWriter()
{
    const bool available = devicefacts::isFirmwarePackage(m_firmwarePath, m_target.series);
    if (!available &&
        !confirmUser(this, UserMessage::Warning, tr("Warning"),
                     tr("The Firmware Package(%1) by the Project is not available, Please "
                        "confirm whether to continue?")
                         .arg(devicefacts::packageFamily(m_target.series) +
                              QStringLiteral("_Firmware_Library_V2.x.x")),
                     yesButtonText()))
        return false;

    ProjectJob job;
    job.ideName = m_ideCombo->currentText();
    job.projectFolder = projectFolder();
    job.series = m_target.series;
    job.device = m_target.device;
    job.projectName = projectName();
    job.firmwarePath = m_firmwarePath;
    parseHexSize(m_heapEdit->text(), &job.heapSize);
    parseHexSize(m_stackEdit->text(), &job.stackSize);
    job.flashKiB = m_flashKiB;
    job.ramKiB = m_sramKiB;
    job.keepUserCode = m_keepUserCode;
    job.packageAvailable = available;
    job.driverStems = m_target.driverStems;
    job.userSources = m_target.userSources;

    m_result = -1;
    m_resultError.clear();
    GenerateProjectThread thread(job);
    connect(&thread, &GenerateProjectThread::emitResult, this,
            &ProjectSetting::gererateProject_Slot);
    thread.start();

    QProgressDialog progress(tr("Generate code, Please Waiting..."), QString(), 0, 0, this);
    progress.setWindowTitle(windowTitle());
    progress.setFont(QFont(QStringLiteral("Arial")));
    progress.setStyleSheet(QStringLiteral("QProgressBar{text-align:center;}"));
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(0);
    progress.show();
    for (int turn = 0; m_result < 0 && turn < kWaitTurns; ++turn) {
        QCoreApplication::processEvents();
        QThread::msleep(10);
    }
    if (m_result < 0) {
        thread.terminate();
        thread.wait();
    } else {
        thread.wait();
        m_resultError = thread.errorText();
    }
    progress.close();
    return handleWriterResult();
}

bool ProjectSetting::handleWriterResult()
{
    QString question;
    if (m_result == ProjectWriter::FirmwareFailed)
        question = tr("Failed to copy firmware package file, Please confirm whether to "
                      "continue?");
    else if (m_result == ProjectWriter::ProjectFailed)
        question = tr("Failure to Config Project file! Please confirm whether to continue?");
    m_projectWritten = m_result == ProjectWriter::Written;
    if (question.isEmpty())
        return true;
    return confirmUser(this, UserMessage::Warning, tr("Warning"), question, yesButtonText());
}

void ProjectSetting::Cancel_btnSlot()
{
    reject();
}

void ProjectSetting::storeSettings()
{
    const QString path = configPath();
    if (!QFileInfo::exists(path))
        CreateConfigFile(path);
    const QString location = m_locationEdit->text().trimmed();
    if (!location.isEmpty())
        SetConfigValue(path, QStringLiteral("ProjectLocation"), location);
    SetConfigValue(path, QStringLiteral("ToolchainIDE"), m_ideCombo->currentText());
}

void ProjectSetting::closeEvent(QCloseEvent *event)
{
    storeSettings();
    QDialog::closeEvent(event);
}

bool runProjectSetting(QWidget *parent, const ProjectTarget &target, ProjectInfo &inOut)
{
    ProjectSetting dialog(parent);
    dialog.setTarget(target);
    dialog.setProjectInfo(inOut);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    inOut = dialog.toProjectInfo();
    return true;
}
