// The work form's code view, package manager, version download and the headless generation,
// on the shipped T110 database, offscreen.

#include "app/formconfiguration.h"
#include "app/generatecodeaction.h"
#include "clock/mq48pllconfig.h"
#include "codegen/generatecodethread.h"
#include "codeview/finddialog.h"
#include "codeview/formcodeview.h"
#include "codeview/myqsciscintilla.h"
#include "common/testsupport.h"
#include "database/language.h"
#include "database/paths.h"
#include "packages/installcommand.h"
#include "packages/packagemanager.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "pinout/chipview.h"
#include "project/projectinfo.h"
#include "project/projectsetting.h"
#include "projectflow.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextStream>
#include <gtest/gtest.h>

namespace {

QString packageZip()
{
    return QFileInfo(QStringLiteral(MQ48_BUILD_DB_DIR)).path() +
           QStringLiteral("/Package/MQ48T110_Firmware_Library_V2.0.0.zip");
}

QPushButton *pageButton(const FormConfiguration &form, const QString &text)
{
    for (QPushButton *button : form.findChildren<QPushButton *>()) {
        // Buttons show a literal '&' as "&&".
        if (button->text().replace(QStringLiteral("&&"), QStringLiteral("&")) == text)
            return button;
    }
    ADD_FAILURE() << "no button " << qPrintable(text);
    static QPushButton none;
    return &none;
}

// A T110 form on its own program folder, with the stand-in user.
struct WiredForm
{
    WiredForm() { built = form.buildDesign("MQ48T110", "MQ48T110C8T", "LQFP48"); }
    QString scratch() const { return program.path() + "/MQ48DB/CodeView"; }
    // Clicks "Code View" and counts the generations it started.
    int showCodeView()
    {
        auto *thread = form.findChild<GenerateCodeThread *>();
        EXPECT_NE(thread, nullptr);
        QSignalSpy runs(thread, &GenerateCodeThread::GenerateCodeFinished);
        pageButton(form, "Code View")->click();
        return runs.count();
    }
    QString shownFile(int tab) const { return form.codeViewPage()->editor(tab)->text(); }

    ProgramFolder program;
    FlowHarness harness;
    FormConfiguration form;
    bool built = false;
};

QString generateText(FormConfiguration &form, const ProjectInfo &info, const QString &out,
                     int *result, bool keep = true)
{
    QString text;
    QTextStream err(&text);
    *result = generateHeadless(&form, info, out, keep, err);
    return text;
}

} // namespace

TEST(CodeViewPage, ShowsTheDesignAsItStandsAndFollowsEachChangeWithOneGeneration)
{
    WiredForm f;
    ASSERT_TRUE(f.built);
    f.form.show();
    f.form.modePanel("USART1")->setModeSelection("Mode", "Asynchronous");
    f.harness.messages.clear();

    ASSERT_TRUE(pageButton(f.form, "Code View")->isEnabled());
    EXPECT_EQ(f.showCodeView(), 1);
    EXPECT_TRUE(f.harness.messages.isEmpty()) << qPrintable(f.harness.texts().join("\n"));
    EXPECT_EQ(f.harness.projectManagerRuns, 0);
    EXPECT_TRUE(f.form.codeViewPage()->isVisible());
    EXPECT_FALSE(f.form.chipDrawing()->isVisible());
    EXPECT_FALSE(f.form.clockPage()->isVisible());
    QTabWidget *tabs = f.form.codeViewPage()->tabWidget();
    EXPECT_EQ(tabs->tabText(1), "mq48t110_pf_config.c");
    EXPECT_EQ(tabs->currentIndex(), 0);
    EXPECT_TRUE(f.shownFile(0).contains("pf_usart1_init();"));
    EXPECT_TRUE(f.shownFile(1).contains("void pf_usart1_init(void)"));
    EXPECT_FALSE(f.shownFile(1).contains("pf_spi1_init"));
    // An unsaved design is generated into the database's scratch folder.
    EXPECT_TRUE(QFileInfo::exists(f.scratch() + "/project/src/mq48t110_pf_config.c"));

    // A change on the pin page shows at the next switch.
    pageButton(f.form, "Pin out & Configuration")->click();
    f.form.modePanel("SPI1")->setModeSelection("Mode", "Full-Duplex Master");
    EXPECT_EQ(f.showCodeView(), 1);
    EXPECT_TRUE(f.shownFile(1).contains("void pf_spi1_init(void)"));
    EXPECT_TRUE(f.shownFile(1).contains("void pf_usart1_init(void)"));

    // Closing the design removes the scratch folder.
    f.harness.press = [](const UserMessage &m) { return m.buttons.indexOf("No"); };
    f.form.close();
    EXPECT_FALSE(QFileInfo::exists(f.scratch()));
}

TEST(CodeViewPage, AProblemOfTheDesignShowsItsMessageInsteadOfTheCode)
{
    WiredForm f;
    ASSERT_TRUE(f.built);
    f.form.show();
    placeByHand(f.form, "PA9", "USART1_TX");
    f.harness.messages.clear();

    EXPECT_EQ(f.showCodeView(), 0);
    EXPECT_EQ(f.harness.texts(),
              QStringList{"The manually configured pin signal does not take effect.\n"
                          "PA9 (USART1_TX)"});
    EXPECT_FALSE(f.form.codeViewPage()->isVisible());
    EXPECT_TRUE(f.form.chipDrawing()->isVisible());
    EXPECT_FALSE(QFileInfo::exists(f.scratch()));
}

TEST(CodeViewPage, TheSearchBoxAndTheProjectManagerFollowTheLanguage)
{
    WiredForm f;
    ASSERT_TRUE(f.built);
    f.form.modePanel("USART1")->setModeSelection("Mode", "Asynchronous");
    f.showCodeView();
    f.form.codeViewPage()->openFindDialog();
    FindDialog *find = f.form.codeViewPage()->findDialog();
    ASSERT_NE(find, nullptr);
    ASSERT_EQ(find->windowTitle(), "Find");
    ASSERT_EQ(f.form.projectSetting()->windowTitle(), "Project Manager");

    f.harness.press = [](const UserMessage &) { return 0; }; // "Yes", switch
    f.form.Chinese_Action_Triggered();
    ASSERT_EQ(g_language, 1);
    EXPECT_NE(find->windowTitle(), "Find");
    EXPECT_EQ(find->windowTitle(), QCoreApplication::translate("FindDialog", "Find"));
    ProjectSetting *setting = f.form.projectSetting();
    EXPECT_EQ(setting->windowTitle(),
              QCoreApplication::translate("ProjectSetting", "Project Manager"));
    EXPECT_NE(setting->windowTitle(), "Project Manager");
    auto *manager = setting->findChild<QPushButton *>("packageManagerButton");
    ASSERT_NE(manager, nullptr);
    EXPECT_EQ(manager->text(), QCoreApplication::translate("ProjectSetting", "Package Manager"));
    EXPECT_NE(manager->text(), "Package Manager");

    f.form.English_Action_Triggered();
    EXPECT_EQ(find->windowTitle(), "Find");
    EXPECT_EQ(manager->text(), "Package Manager");
}

TEST(PackageManagerWiring, TheProjectManagerFindsWhatThePackageManagerInstalls)
{
    WiredForm f;
    ASSERT_TRUE(f.built);
    QTemporaryDir repository;
    ProjectSetting *setting = f.form.projectSetting();
    ASSERT_NE(setting, nullptr);
    auto *versions = setting->findChild<QComboBox *>("packageVersionCombo");
    auto *path = setting->findChild<QLineEdit *>("firmwarePathEdit");
    ASSERT_TRUE(versions && path);
    EXPECT_EQ(versions->count(), 0);

    // The user picks a repository in the package manager and installs the T110 package.
    f.harness.other = [&repository](QDialog *dialog) {
        auto *manager = qobject_cast<PackageManager *>(dialog);
        EXPECT_NE(manager, nullptr);
        if (!manager)
            return int(QDialog::Rejected);
        emit manager->emitRepoPathChanged(repository.path());
        QString errors;
        QTextStream err(&errors);
        EXPECT_EQ(installPackageCommand(packageZip(), repository.path(), err), 0)
            << qPrintable(errors);
        return int(QDialog::Rejected);
    };
    f.form.PackageManager_Action_Triggered();
    EXPECT_EQ(f.harness.otherDialogs, QStringList{"PackageManager"});
    EXPECT_EQ(versions->currentText(), "V2.0.0");
    const QString package = repository.path() + "/PF_MQ48T110/MQ48T110_Firmware_Library_V2.0.0";
    EXPECT_EQ(QDir::fromNativeSeparators(path->text()), package);
    EXPECT_EQ(setting->firmwarePath(), package);
    EXPECT_TRUE(setting->findChild<QLabel *>("firmwareMessageLabel")->text().isEmpty());

    // The Project Manager's own button opens the package manager too.
    f.harness.other = {};
    setting->findChild<QPushButton *>("packageManagerButton")->click();
    EXPECT_EQ(f.harness.otherDialogs, (QStringList{"PackageManager", "PackageManager"}));
}

TEST(VersionDownloadWiring, TheActionAsksTheDownloadSiteAndReportsAFailedDownload)
{
    WiredForm f;
    ASSERT_TRUE(f.built);
    // Nothing listens on this port: the download fails at once.
    f.program.setConfig("DownloadSite", "https://127.0.0.1:9/");
    f.harness.messages.clear();
    f.form.NewVersionDownload_Triggered();
    ASSERT_FALSE(f.harness.messages.isEmpty());
    EXPECT_TRUE(f.harness.messages.last().text.startsWith("Download failed"))
        << qPrintable(f.harness.texts().join("\n"));
}

TEST(HeadlessGenerate, ProblemsAreListedOnePerLineAndNothingIsWritten)
{
    WiredForm f;
    ASSERT_TRUE(f.built);
    QTemporaryDir out;
    EXPECT_TRUE(generationProblems(&f.form).isEmpty());
    placeByHand(f.form, "PA9", "USART1_TX");
    placeByHand(f.form, "PA10", "USART1_RX");
    f.form.ReceiveIPStatusFlag("TMR3", IPSTATUS_ACTIVE | IPSTATUS_UNFINISHED);
    const QStringList expected = {
        "The manually configured pin signal does not take effect: PA9 (USART1_TX)",
        "The manually configured pin signal does not take effect: PA10 (USART1_RX)",
        "The peripheral TMR3 still has some not configured or wrong parameter value."};
    EXPECT_EQ(generationProblems(&f.form), expected);

    int result = -1;
    const QString text = generateText(f.form, ProjectInfo(), out.path() + "/p", &result);
    EXPECT_EQ(result, HeadlessProblems);
    EXPECT_EQ(text, expected.join('\n') + '\n');
    EXPECT_FALSE(QFileInfo::exists(out.path() + "/p"));
    EXPECT_TRUE(f.harness.messages.isEmpty()) << qPrintable(f.harness.texts().join("\n"));
}

TEST(HeadlessGenerate, WritesTheCodeAndTheIdeProjectWhenAPackageIsInstalled)
{
    WiredForm f;
    ASSERT_TRUE(f.built);
    f.form.modePanel("USART1")->setModeSelection("Mode", "Asynchronous");
    QTemporaryDir out;
    QTemporaryDir repository;
    f.program.setConfig("PackagePath", repository.path());

    // No toolchain named: the code only, into the design's project folder.
    ProjectInfo info;
    info.projectName = "cli";
    info.projectLocation = out.path();
    int result = -1;
    QString text = generateText(f.form, info, QString(), &result);
    EXPECT_EQ(result, HeadlessGenerated) << qPrintable(text);
    EXPECT_TRUE(text.isEmpty()) << qPrintable(text);
    EXPECT_TRUE(testsupport::readFile(out.path() + "/cli/project/src/mq48t110_pf_config.c")
                    .contains("void pf_usart1_init(void)"));
    EXPECT_EQ(QDir(out.path() + "/cli/project").entryList(QDir::Dirs | QDir::NoDotAndDotDot),
              (QStringList{"inc", "src"}));

    // A toolchain but no package: a note, and still the code.
    info.toolchainIDE = "MDK_V5";
    text = generateText(f.form, info, out.path() + "/other", &result);
    EXPECT_EQ(result, HeadlessGenerated) << qPrintable(text);
    EXPECT_EQ(text, "No firmware package of MQ48T110 is installed; only the code is written.\n");
    EXPECT_TRUE(QFileInfo::exists(out.path() + "/other/project/src/main.c"));
    EXPECT_FALSE(QFileInfo::exists(out.path() + "/other/project/MDK_V5"));

    // With the package installed, the IDE project and the library come along; --ide names
    // the toolchain without regard to case.
    QString errors;
    QTextStream err(&errors);
    ASSERT_EQ(installPackageCommand(packageZip(), repository.path(), err), 0)
        << qPrintable(errors);
    info.toolchainIDE = "eclipse_gcc";
    text = generateText(f.form, info, out.path() + "/full", &result);
    EXPECT_EQ(result, HeadlessGenerated) << qPrintable(text);
    EXPECT_TRUE(QFileInfo::exists(out.path() + "/full/project/Eclipse_gcc/.project"));
    EXPECT_TRUE(QFileInfo::exists(out.path() + "/full/libraries/drivers/src/mq48t110_usart.c"));
    EXPECT_TRUE(QFileInfo::exists(out.path() + "/full/project/src/mq48t110_int.c"));
    EXPECT_TRUE(f.harness.messages.isEmpty()) << qPrintable(f.harness.texts().join("\n"));
}

TEST(HeadlessGenerate, UnusableFoldersAndToolchainsEndWithTheirCodes)
{
    WiredForm f;
    ASSERT_TRUE(f.built);
    QTemporaryDir out;
    ASSERT_TRUE(testsupport::writeFile(out.path() + "/file", "not a folder"));
    int result = -1;

    QString text = generateText(f.form, ProjectInfo(), QString(), &result);
    EXPECT_EQ(result, HeadlessProblems);
    EXPECT_TRUE(text.contains("--output")) << qPrintable(text);

    ProjectInfo info;
    info.toolchainIDE = "Turbo_C";
    text = generateText(f.form, info, out.path() + "/p", &result);
    EXPECT_EQ(result, HeadlessProblems);
    EXPECT_EQ(text, "Unknown toolchain/IDE \"Turbo_C\".\n");

    text = generateText(f.form, ProjectInfo(), out.path() + "/file", &result);
    EXPECT_EQ(result, HeadlessWriteFailed);
    EXPECT_TRUE(text.startsWith("Generate code failed!")) << qPrintable(text);
}
