#include "projecttestsupport.h"

#include "common/testsupport.h"
#include "database/configstore.h"
#include "database/paths.h"
#include "project/idetable.h"
#include "project/projectsetting.h"
#include "project/stagedfiles.h"
#include "widgets/messagebox.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>

#include <gtest/gtest.h>

namespace {

// An installation in a temporary folder (catalogue, templates, config.xml) with every
// message recorded and answered by `answer` instead of shown.
class ProjectSettingTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        const QString db = app.path() + QStringLiteral("/MQ48DB");
        ASSERT_TRUE(QDir().mkpath(db));
        ASSERT_TRUE(
            QFile::copy(QStringLiteral(MQ48_SOURCE_DIR) + QStringLiteral("/MQ48DB/MCUList.xml"),
                        db + QStringLiteral("/MCUList.xml")));
        QString error;
        ASSERT_TRUE(checkedio::copyTree(projecttest::templateRoot(),
                                        db + QStringLiteral("/projectTemplate"), {}, &error));
        setAppFolderOverride(app.path());
        config = app.path() + QStringLiteral("/config.xml");
        ASSERT_TRUE(CreateConfigFile(config));
        setConfig(QStringLiteral("PackagePath"), projecttest::fixtureRepository());
        setConfig(QStringLiteral("ProjectLocation"), out.path());
        setUserMessageHandler([this](QWidget *, const UserMessage &message) {
            messages << message;
            return answer ? answer(message) : 0;
        });
    }

    void TearDown() override
    {
        setUserMessageHandler({});
        setAppFolderOverride(QString());
    }

    void setConfig(const QString &key, const QString &value)
    {
        ASSERT_TRUE(SetConfigValue(config, key, value));
    }

    QString configValue(const QString &key) const
    {
        QString value;
        GetConfigValue(config, key, value);
        return value;
    }

    static ProjectTarget t110(const QString &device = QStringLiteral("MQ48T110C8T"))
    {
        ProjectTarget target;
        target.series = QStringLiteral("MQ48T110");
        target.device = device;
        target.driverStems = projecttest::usartTimerDrivers();
        return target;
    }

    template <typename T> static T *child(ProjectSetting &dialog, const char *name)
    {
        T *widget = dialog.findChild<T *>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }

    QStringList texts() const
    {
        QStringList list;
        for (const UserMessage &message : messages)
            list << message.text;
        return list;
    }

    QTemporaryDir app;
    QTemporaryDir out;
    QString config;
    QList<UserMessage> messages;
    std::function<int(const UserMessage &)> answer;
};

TEST_F(ProjectSettingTest, StartsFromTheDeviceTheSettingsFileAndTheInstalledPackage)
{
    setConfig(QStringLiteral("ToolchainIDE"), QStringLiteral("IAR_V8.2"));
    ProjectSetting dialog;
    dialog.setTarget(t110());
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Project Manager"));
    EXPECT_EQ(child<QLineEdit>(dialog, "projectNameEdit")->text(),
              QStringLiteral("MQ48T110C8T_PinForge"));
    EXPECT_EQ(child<QLineEdit>(dialog, "projectLocationEdit")->text(), out.path());
    EXPECT_EQ(child<QComboBox>(dialog, "ideCombo")->currentText(), QStringLiteral("IAR_V8.2"));
    EXPECT_EQ(dialog.ideIndex(), 4);
    EXPECT_EQ(child<QLineEdit>(dialog, "heapEdit")->text(), QStringLiteral("0x200"));
    EXPECT_EQ(child<QLineEdit>(dialog, "stackEdit")->text(), QStringLiteral("0x400"));
    EXPECT_TRUE(child<QCheckBox>(dialog, "keepUserCodeCheck")->isChecked());
    EXPECT_EQ(child<QComboBox>(dialog, "packageVersionCombo")->currentText(),
              QStringLiteral("V2.0.0"));
    EXPECT_EQ(QDir::fromNativeSeparators(child<QLineEdit>(dialog, "firmwarePathEdit")->text()),
              projecttest::fixturePackage());
    EXPECT_TRUE(child<QLabel>(dialog, "firmwareMessageLabel")->text().isEmpty());

    // The size edits take hexadecimal text only.
    QLineEdit *heap = child<QLineEdit>(dialog, "heapEdit");
    int position = 0;
    QString bad = QStringLiteral("0x2g");
    EXPECT_EQ(heap->validator()->validate(bad, position), QValidator::Invalid);
}

TEST_F(ProjectSettingTest, AnEmptyNameOrBadSizesKeepTheDialogOpenAndWriteNothing)
{
    ProjectSetting dialog;
    dialog.setTarget(t110());
    child<QLineEdit>(dialog, "projectNameEdit")->setText(QStringLiteral("  "));
    dialog.OK_btnSlot();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_EQ(messages.last().kind, UserMessage::Error);
    EXPECT_EQ(messages.last().title, QStringLiteral("Error"));
    EXPECT_EQ(messages.last().text, QStringLiteral("Project name or project location is empty!"));

    child<QLineEdit>(dialog, "projectNameEdit")->setText(QStringLiteral("Board"));
    child<QLineEdit>(dialog, "heapEdit")->setText(QStringLiteral("0x20000"));
    dialog.OK_btnSlot();
    EXPECT_EQ(messages.last().text,
              QStringLiteral("\"Minimum Heap Size\" input error, cannot be greater than SRAM "
                             "size(0x2000)"));

    child<QLineEdit>(dialog, "heapEdit")->setText(QStringLiteral("0x200"));
    child<QLineEdit>(dialog, "stackEdit")->clear();
    dialog.OK_btnSlot();
    EXPECT_EQ(messages.last().text, QStringLiteral("\"Minimum Stack Size\" input error!"));

    child<QLineEdit>(dialog, "stackEdit")->setText(QStringLiteral("0x400"));
    child<QLineEdit>(dialog, "projectNameEdit")->setText(QStringLiteral("a/b"));
    dialog.OK_btnSlot();
    EXPECT_EQ(messages.size(), 4);
    EXPECT_NE(dialog.result(), QDialog::Accepted);
    EXPECT_TRUE(QDir(out.path()).isEmpty());
}

TEST_F(ProjectSettingTest, OkWritesTheProjectAndRemembersTheAnswers)
{
    ProjectSetting dialog;
    dialog.setTarget(t110(QStringLiteral("MQ48T110CBT")));
    child<QComboBox>(dialog, "ideCombo")->setCurrentText(QStringLiteral("Eclipse_gcc"));
    child<QLineEdit>(dialog, "stackEdit")->setText(QStringLiteral("0x3000"));
    dialog.OK_btnSlot();
    EXPECT_TRUE(messages.isEmpty()) << qPrintable(texts().join(QLatin1Char('\n')));
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_TRUE(dialog.projectWritten());
    EXPECT_EQ(dialog.projectResult(), 0);
    EXPECT_EQ(dialog.ideIndex(), 1);

    const QString folder = out.path() + QStringLiteral("/MQ48T110CBT_PinForge");
    EXPECT_EQ(dialog.projectFolder(), folder);
    EXPECT_EQ(dialog.designFilePath(), folder + QStringLiteral("/MQ48T110CBT_PinForge.MQPF"));
    EXPECT_TRUE(QFileInfo::exists(folder + QStringLiteral("/project/Eclipse_gcc/.cproject")));
    const QByteArray script = testsupport::readFile(
        folder + QStringLiteral("/project/Eclipse_gcc/ldscripts/MQ48T110xB_FLASH.ld"));
    EXPECT_TRUE(script.contains("_Min_Stack_Size = 0x3000;"));
    EXPECT_EQ(configValue(QStringLiteral("ToolchainIDE")), QStringLiteral("Eclipse_gcc"));
    EXPECT_EQ(configValue(QStringLiteral("ProjectLocation")), out.path());

    const ProjectInfo info = dialog.toProjectInfo();
    EXPECT_EQ(info.projectName, QStringLiteral("MQ48T110CBT_PinForge"));
    EXPECT_EQ(info.minStackSize, QStringLiteral("0x3000"));
    EXPECT_EQ(info.packageVersion, QStringLiteral("V2.0.0"));
    ProjectSetting again;
    again.setTarget(t110(QStringLiteral("MQ48T110CBT")));
    again.setProjectInfo(info);
    EXPECT_EQ(again.toProjectInfo(), info);
}

TEST_F(ProjectSettingTest, TheOverwriteQuestionIsSkippedAfterAGenerationThatKeptUserCode)
{
    const QString folder = out.path() + QStringLiteral("/MQ48T110C8T_PinForge");
    ASSERT_TRUE(QDir().mkpath(folder));
    answer = [](const UserMessage &) { return 1; }; // Cancel
    {
        ProjectSetting dialog;
        dialog.setTarget(t110());
        dialog.OK_btnSlot();
        ASSERT_EQ(messages.size(), 1);
        EXPECT_EQ(messages.last().kind, UserMessage::Warning);
        EXPECT_EQ(messages.last().text,
                  QStringLiteral("MQ48T110C8T_PinForge already exists, do you want to "
                                 "overwrite it?"));
        EXPECT_NE(dialog.result(), QDialog::Accepted);
        EXPECT_TRUE(QDir(folder).isEmpty());
    }
    messages.clear();
    ProjectTarget generated = t110();
    generated.generatedBefore = true;
    {
        ProjectSetting dialog;
        dialog.setTarget(generated);
        dialog.OK_btnSlot();
        EXPECT_TRUE(messages.isEmpty());
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
    }
    {
        // Without keep user code the question comes back.
        ProjectSetting dialog;
        dialog.setTarget(generated);
        child<QCheckBox>(dialog, "keepUserCodeCheck")->setChecked(false);
        dialog.OK_btnSlot();
        EXPECT_EQ(messages.size(), 1);
    }
    {
        // The folder of this very design: no question either.
        ProjectTarget same = t110();
        same.designPath = folder + QStringLiteral("/MQ48T110C8T_PinForge.MQPF");
        ASSERT_TRUE(testsupport::writeFile(same.designPath, "<Root/>"));
        ProjectSetting dialog;
        dialog.setTarget(same);
        dialog.OK_btnSlot();
        EXPECT_EQ(messages.size(), 1);
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
    }
}

TEST_F(ProjectSettingTest, AMissingPackageIsShownAndAskedAboutAndYesWritesNoLibrary)
{
    QTemporaryDir emptyRepository;
    setConfig(QStringLiteral("PackagePath"), emptyRepository.path());
    ProjectSetting dialog;
    dialog.setTarget(t110());
    QLabel *message = child<QLabel>(dialog, "firmwareMessageLabel");
    EXPECT_EQ(message->text(),
              QStringLiteral("The firmware package of MQ48T110_Firmware_Library does not exist, "
                             "please click \"Package Manager\" to install the firmware "
                             "package."));
    EXPECT_TRUE(message->styleSheet().contains(QLatin1String("red")));
    EXPECT_TRUE(child<QLineEdit>(dialog, "firmwarePathEdit")->text().isEmpty());

    answer = [](const UserMessage &) { return 1; };
    dialog.OK_btnSlot();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_EQ(messages.last().text,
              QStringLiteral("The Firmware Package(MQ48T110_Firmware_Library_V2.x.x) by the "
                             "Project is not available, Please confirm whether to continue?"));
    EXPECT_NE(dialog.result(), QDialog::Accepted);

    answer = [](const UserMessage &) { return 0; };
    dialog.OK_btnSlot();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_TRUE(dialog.projectWritten());
    const QString folder = dialog.projectFolder();
    EXPECT_TRUE(QFileInfo::exists(folder + QStringLiteral("/project/MDK_V5/"
                                                          "MQ48T110C8T_PinForge.uvprojx")));
    EXPECT_FALSE(QFileInfo::exists(folder + QStringLiteral("/libraries")));
}

TEST_F(ProjectSettingTest, ThePackagePathFollowsTheVersionTheRepositoryAndTheCheckBox)
{
    QTemporaryDir repository;
    const QString family = repository.path() + QStringLiteral("/PF_MQ48T110/");
    ASSERT_TRUE(QDir().mkpath(family + QStringLiteral("MQ48T110_Firmware_Library_V2.0.0")));
    ASSERT_TRUE(QDir().mkpath(family + QStringLiteral("MQ48T110_Firmware_Library_V1.0.0")));
    ProjectSetting dialog;
    dialog.setTarget(t110());
    QSignalSpy packageManager(&dialog, &ProjectSetting::SendOpenPackageManager);
    child<QPushButton>(dialog, "packageManagerButton")->click();
    EXPECT_EQ(packageManager.count(), 1);

    dialog.updateRepoPath(repository.path());
    QComboBox *versions = child<QComboBox>(dialog, "packageVersionCombo");
    QLineEdit *path = child<QLineEdit>(dialog, "firmwarePathEdit");
    ASSERT_EQ(versions->count(), 2);
    EXPECT_EQ(versions->currentText(), QStringLiteral("V2.0.0"));
    versions->setCurrentText(QStringLiteral("V1.0.0"));
    EXPECT_EQ(QDir::fromNativeSeparators(path->text()),
              family + QStringLiteral("MQ48T110_Firmware_Library_V1.0.0"));
    EXPECT_EQ(dialog.firmwarePath(), family + QStringLiteral("MQ48T110_Firmware_Library_V1.0.0"));

    // A design's version that is not installed stays selected and is reported.
    ProjectInfo info = dialog.toProjectInfo();
    info.packageVersion = QStringLiteral("V3.0.0");
    dialog.setProjectInfo(info);
    EXPECT_EQ(versions->currentText(), QStringLiteral("V3.0.0"));
    EXPECT_TRUE(path->text().isEmpty());
    EXPECT_TRUE(child<QLabel>(dialog, "firmwareMessageLabel")
                    ->text()
                    .contains(QLatin1String("MQ48T110_Firmware_Library_V3.0.0")));

    child<QCheckBox>(dialog, "copyLibrariesCheck")->setChecked(false);
    EXPECT_FALSE(versions->isEnabled());
    EXPECT_FALSE(dialog.useFirmware());
    EXPECT_TRUE(path->text().isEmpty());
    EXPECT_TRUE(child<QLabel>(dialog, "firmwareMessageLabel")->text().isEmpty());

    // Without the library no project is written: only the folder is named.
    dialog.OK_btnSlot();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_FALSE(dialog.projectWritten());
    EXPECT_FALSE(QFileInfo::exists(dialog.projectFolder()));
}

TEST_F(ProjectSettingTest, AFailedWriterAsksWhetherToGoOnAndAStackLineProblemDoesNot)
{
    const QString ewp =
        app.path() + QStringLiteral("/MQ48DB/projectTemplate/iar_v9.3/template.ewp");
    QByteArray text = testsupport::readFile(ewp);
    ASSERT_TRUE(testsupport::writeFile(ewp, text.replace("<name>firmware</name>", "<name/>")));
    setConfig(QStringLiteral("ToolchainIDE"), QStringLiteral("IAR_V9.3"));
    ProjectSetting dialog;
    dialog.setTarget(t110());
    answer = [](const UserMessage &) { return 1; };
    dialog.OK_btnSlot();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_EQ(messages.last().text,
              QStringLiteral("Failure to Config Project file! Please confirm whether to "
                             "continue?"));
    EXPECT_EQ(dialog.projectResult(), 3);
    EXPECT_NE(dialog.result(), QDialog::Accepted);
    EXPECT_FALSE(QFileInfo::exists(dialog.projectFolder()));

    answer = [](const UserMessage &) { return 0; };
    dialog.OK_btnSlot();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_FALSE(dialog.projectWritten());

    // A package whose linker file lacks the size lines: result 2 and no question.
    QTemporaryDir repository;
    const QString package =
        repository.path() + QStringLiteral("/PF_MQ48T110/MQ48T110_Firmware_Library_V2.0.0");
    QString error;
    ASSERT_TRUE(checkedio::copyTree(projecttest::fixturePackage(), package, {}, &error));
    ASSERT_TRUE(testsupport::writeFile(
        package + QStringLiteral("/libraries/cmsis/cm4/device_support/startup/iar/linker/"
                                 "MQ48T110x8.icf"),
        "/* empty */\n"));
    messages.clear();
    ProjectSetting second;
    second.setTarget(t110());
    second.updateRepoPath(repository.path());
    child<QComboBox>(second, "ideCombo")->setCurrentText(QStringLiteral("IAR_V7.4"));
    second.OK_btnSlot();
    EXPECT_TRUE(messages.isEmpty());
    EXPECT_EQ(second.projectResult(), 2);
    EXPECT_EQ(second.result(), QDialog::Accepted);
}

TEST_F(ProjectSettingTest, TheSingleEntryFillsTheDesignsAnswersOrLeavesThemOnCancel)
{
    ProjectInfo info;
    info.projectName = QStringLiteral("Saved");
    info.toolchainIDE = QStringLiteral("MDK_V4");
    info.minHeapSize = QStringLiteral("0x100");
    QTimer::singleShot(0, [] {
        if (auto *dialog = qobject_cast<ProjectSetting *>(QApplication::activeModalWidget()))
            dialog->OK_btnSlot();
    });
    ASSERT_TRUE(runProjectSetting(nullptr, t110(), info));
    EXPECT_EQ(info.projectName, QStringLiteral("Saved"));
    EXPECT_EQ(info.projectLocation, out.path());
    EXPECT_EQ(info.minHeapSize, QStringLiteral("0x100"));
    EXPECT_TRUE(QFileInfo::exists(
        ideProjectFile(info.projectFolder(), info.projectName, info.toolchainIDE)));

    const ProjectInfo before = info;
    QTimer::singleShot(0, [] {
        if (auto *dialog = qobject_cast<ProjectSetting *>(QApplication::activeModalWidget())) {
            dialog->findChild<QComboBox *>(QStringLiteral("ideCombo"))
                ->setCurrentText(QStringLiteral("MQ48_IDE"));
            dialog->close(); // the window button: like Cancel, but the choice is stored
        }
    });
    EXPECT_FALSE(runProjectSetting(nullptr, t110(), info));
    EXPECT_EQ(info, before);
    EXPECT_EQ(configValue(QStringLiteral("ToolchainIDE")), QStringLiteral("MQ48_IDE"));
}

} // namespace
