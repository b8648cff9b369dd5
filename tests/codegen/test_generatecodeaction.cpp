// The generate action of the work form, driven offscreen on a real T110 design: its checks
// and their messages, the project manager that decides where the code goes, the run in the
// thread, the design saved afterwards and the result box.

#include "app/formconfiguration.h"
#include "app/generatecodeaction.h"
#include "app/languagesetting.h"
#include "codegentestsupport.h"
#include "common/testsupport.h"
#include "database/configstore.h"
#include "database/paths.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "pinout/chipview.h"
#include "projectflow.h"
#include "project/projectsetting.h"
#include "widgets/messagebox.h"

#include <QAction>
#include <QMenu>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QString configValue(const QString &key)
{
    QString value;
    GetConfigValue(ConfigFilePath(), key, value);
    return value;
}

// A T110 design on the form with USART1 on and a GPIO output.
struct UsartDesign
{
    UsartDesign()
    {
        built = form.buildDesign("MQ48T110", "MQ48T110C8T", "LQFP48");
        if (!built)
            return;
        form.modePanel("USART1")->setModeSelection("Mode", "Asynchronous");
        placeByHand(form, "PC13", "GPIO_Output");
    }
    FormConfiguration form;
    bool built = false;
};

} // namespace

TEST(GenerateAction, TheProjectManagerDecidesWhereTheCodeGoesAndTheDesignIsSavedAfter)
{
    ProgramFolder program;
    QTemporaryDir out;
    FlowHarness harness;
    UsartDesign design;
    ASSERT_TRUE(design.built);
    harness.messages.clear();
    harness.answer = [&out](ProjectAnswer &a) {
        a.name = "blinky";
        a.location = out.path();
        a.copyLibraries = false; // code only: no IDE project is written
        return true;
    };
    int saves = 0;
    GenerateCodeAction action(&design.form);
    ASSERT_TRUE(action.run([&] {
        ++saves;
        // The design is saved once the code is there.
        EXPECT_TRUE(QFileInfo::exists(out.path() + "/blinky/project/src/main.c"));
        return true;
    })) << qPrintable(harness.texts().join("\n"));

    EXPECT_EQ(harness.projectManagerRuns, 1);
    EXPECT_EQ(saves, 1);
    ASSERT_EQ(harness.messages.size(), 1) << qPrintable(harness.texts().join("\n"));
    const UserMessage &done = harness.messages.first();
    EXPECT_EQ(done.kind, UserMessage::Information);
    EXPECT_EQ(done.text, QStringLiteral("Generate code finished!"));
    // Without an IDE project there is nothing to open but the folder.
    EXPECT_EQ(done.buttons, (QStringList{" Open Folder  ", "OK"}));

    const QString project = out.path() + "/blinky/project";
    EXPECT_EQ(action.outputFolder(), project);
    const QString main = QString::fromUtf8(testsupport::readFile(project + "/src/main.c"));
    EXPECT_TRUE(main.contains("pf_usart1_init();"));
    EXPECT_TRUE(main.contains("pf_gpio_config();"));
    EXPECT_TRUE(QFileInfo::exists(project + "/inc/mq48t110_conf.h"));
    EXPECT_FALSE(QFileInfo::exists(project + "/Eclipse_gcc"));
    EXPECT_FALSE(QFileInfo::exists(out.path() + "/blinky/libraries"));
    EXPECT_EQ(configValue("ProjectLocation"), out.path());
    EXPECT_EQ(configValue("ToolchainIDE"), "Eclipse_gcc");
    EXPECT_EQ(design.form.projectSetting()->toProjectInfo().projectName, "blinky");

    // The second run keeps the user's code without asking about overwriting, and "Open
    // Folder" opens the generated folder.
    harness.messages.clear();
    harness.press = [](const UserMessage &) { return 0; };
    ASSERT_TRUE(action.run([&] { return ++saves > 0; }));
    EXPECT_EQ(harness.texts(), QStringList{"Generate code finished!"});
    ASSERT_EQ(harness.desktop.urls.size(), 1);
    EXPECT_EQ(harness.desktop.urls.first(), QUrl::fromLocalFile(project));
}

TEST(GenerateAction, CancellingTheProjectManagerWritesAndSavesNothing)
{
    ProgramFolder program;
    QTemporaryDir out;
    program.setConfig("ProjectLocation", out.path());
    FlowHarness harness;
    UsartDesign design;
    ASSERT_TRUE(design.built);
    harness.messages.clear();

    int saves = 0;
    GenerateCodeAction action(&design.form);
    EXPECT_FALSE(action.run([&] { return ++saves > 0; }));
    EXPECT_EQ(harness.projectManagerRuns, 1);
    EXPECT_EQ(saves, 0);
    EXPECT_TRUE(harness.messages.isEmpty()) << qPrintable(harness.texts().join("\n"));
    EXPECT_TRUE(QDir(out.path()).isEmpty());
}

TEST(GenerateAction, TheMenuAndToolBarActionsOpenTheProjectManager)
{
    ProgramFolder program;
    FlowHarness harness;
    UsartDesign design;
    ASSERT_TRUE(design.built);
    QList<QAction *> generate;
    for (QAction *a : design.form.findChildren<QAction *>()) {
        if (a->text() == QLatin1String("Generate code") && !a->menu())
            generate << a;
    }
    ASSERT_EQ(generate.size(), 2);
    for (QAction *a : generate) {
        EXPECT_TRUE(a->isEnabled());
        a->trigger();
    }
    EXPECT_EQ(harness.projectManagerRuns, 2);
}

TEST(GenerateAction, APinSetByHandWithoutItsModeStopsBeforeTheProjectManager)
{
    ProgramFolder program;
    FlowHarness harness;
    FormConfiguration form;
    ASSERT_TRUE(form.buildDesign("MQ48T110", "MQ48T110C8T", "LQFP48"));
    harness.messages.clear();
    placeByHand(form, "PA9", "USART1_TX");

    GenerateCodeAction action(&form);
    EXPECT_FALSE(action.run());
    ASSERT_EQ(harness.messages.size(), 1);
    EXPECT_EQ(harness.messages.first().kind, UserMessage::Error);
    EXPECT_EQ(harness.messages.first().text,
              QStringLiteral("The manually configured pin signal does not take effect.\n"
                             "PA9 (USART1_TX)"));
    EXPECT_EQ(harness.projectManagerRuns, 0);
}

TEST(GenerateAction, APeripheralInErrorBringsThePinPageForwardAndIsNamed)
{
    ProgramFolder program;
    FlowHarness harness;
    UsartDesign design;
    ASSERT_TRUE(design.built);
    design.form.show();
    design.form.ClockConfig_PushButton_Clicked();
    design.form.ReceiveIPStatusFlag("TMR3", IPSTATUS_ACTIVE | IPSTATUS_UNFINISHED);
    harness.messages.clear();

    GenerateCodeAction action(&design.form);
    EXPECT_FALSE(action.run());
    EXPECT_EQ(harness.texts(),
              QStringList{"These peripherals still have some not configured or wrong parameter "
                          "value.\nPeripherals:   ( TMR3 )"});
    EXPECT_TRUE(design.form.chipDrawing()->isVisible());
    EXPECT_EQ(harness.projectManagerRuns, 0);
}

TEST(GenerateAction, AFolderThatCannotBeMadeEndsInOneFailureBoxAndNoSave)
{
    ProgramFolder program;
    QTemporaryDir out;
    ASSERT_TRUE(testsupport::writeFile(out.path() + "/file", "not a folder"));
    FlowHarness harness;
    UsartDesign design;
    ASSERT_TRUE(design.built);
    harness.messages.clear();
    harness.answer = [&out](ProjectAnswer &a) {
        a.name = "inside";
        a.location = out.path() + "/file";
        a.copyLibraries = false;
        return true;
    };

    int saves = 0;
    GenerateCodeAction action(&design.form);
    EXPECT_FALSE(action.run([&] { return ++saves > 0; }));
    EXPECT_EQ(saves, 0);
    ASSERT_EQ(harness.messages.size(), 1) << qPrintable(harness.texts().join("\n"));
    EXPECT_EQ(harness.messages.first().kind, UserMessage::Error);
    EXPECT_TRUE(harness.messages.first().text.startsWith("Generate code failed!"))
        << qPrintable(harness.messages.first().text);
}

TEST(GenerateAction, CheckMessagesListFourPinsAndThePeripheralsInError)
{
    EXPECT_EQ(GenerateCodeAction::manualPinsMessage({"PA0 (ADC1_IN0)", "PA1 (ADC1_IN1)"}),
              QStringLiteral("The manually configured pin signal does not take effect.\n"
                             "PA0 (ADC1_IN0) / PA1 (ADC1_IN1)"));
    const QString five = GenerateCodeAction::manualPinsMessage({"a", "b", "c", "d", "e"});
    EXPECT_TRUE(five.endsWith("\na / b / c / d / ......")) << qPrintable(five);
    const QString four = GenerateCodeAction::manualPinsMessage({"a", "b", "c", "d"});
    EXPECT_TRUE(four.endsWith("\na / b / c / d")) << qPrintable(four);

    QMap<QString, IPSTATUS> status;
    status["USART1"] = IPSTATUS_ACTIVE;
    status["TMR3"] = IPSTATUS_ACTIVE | IPSTATUS_UNFINISHED;
    status["ADC1"] = IPSTATUS_INACTIVE | IPSTATUS_UNFINISHED;
    status["SPI1"] = IPSTATUS_INACTIVE;
    const QStringList wrong = GenerateCodeAction::peripheralsInError(status);
    EXPECT_EQ(wrong, (QStringList{"ADC1", "TMR3"}));
    EXPECT_EQ(GenerateCodeAction::peripheralsInErrorMessage(wrong),
              QStringLiteral("These peripherals still have some not configured or wrong "
                             "parameter value.\nPeripherals:   ( ADC1, TMR3 )"));
}
