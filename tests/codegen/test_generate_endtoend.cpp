// From the work form to a project that builds: a T110 design with USART1 on DMA and its
// interrupt, and a labelled GPIO output, is generated through the "Generate code" action with
// the Project Manager answered like a user, against the firmware package installed from the
// zip the build makes. The project folder must hold the IDE project, the library and the
// code, and the Eclipse project must build with the cross compiler as its files say.

#include "app/formconfiguration.h"
#include "app/generatecodeaction.h"
#include "armcompiler.h"
#include "codegentestsupport.h"
#include "common/testsupport.h"
#include "packages/installcommand.h"
#include "peripherals/dmarequestmodel.h"
#include "peripherals/gpiosettingsmodel.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/nvicmodel.h"
#include "project/idetable.h"
#include "project/projectsetting.h"
#include "projectflow.h"

#include <QDir>
#include <QDirIterator>
#include <QDomDocument>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextStream>
#include <gtest/gtest.h>

namespace {

// The zip of the program's own T110 package, as the build leaves it beside the program.
QString packageZip()
{
    return QFileInfo(QStringLiteral(MQ48_BUILD_DB_DIR)).path() +
           QStringLiteral("/Package/MQ48T110_Firmware_Library_V2.0.0.zip");
}

QString read(const QString &path)
{
    return QString::fromUtf8(testsupport::readFile(path));
}

// Every file below a folder, relative to it.
QStringList filesBelow(const QString &folder)
{
    QStringList files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
        files << it.next().mid(folder.size() + 1);
    files.sort();
    return files;
}

// The values of the options of a .cproject whose id starts with `idStart`.
QStringList cprojectValues(const QDomDocument &doc, const QString &idStart)
{
    QStringList values;
    const QDomNodeList options = doc.elementsByTagName(QStringLiteral("option"));
    for (int i = 0; i < options.size(); ++i) {
        const QDomElement option = options.at(i).toElement();
        if (!option.attribute(QStringLiteral("superClass")).startsWith(idStart))
            continue;
        const QDomNodeList items = option.elementsByTagName(QStringLiteral("listOptionValue"));
        for (int j = 0; j < items.size(); ++j)
            values << items.at(j).toElement().attribute(QStringLiteral("value"));
    }
    return values;
}

// Builds an Eclipse project as the IDE would from its files: the sources its .project links
// and the start-up file in its folder, with the defines, include paths and linker script of
// its .cproject. False with the compiler's messages in `output`.
bool buildEclipseProject(const QString &ideFolder, const QString &elf, QString *output)
{
    QDomDocument project;
    QDomDocument cproject;
    if (!project.setContent(testsupport::readFile(ideFolder + "/.project")) ||
        !cproject.setContent(testsupport::readFile(ideFolder + "/.cproject"))) {
        *output = "the Eclipse project files are not XML";
        return false;
    }
    const auto resolve = [&ideFolder](QString value) {
        value.remove(QLatin1Char('"'));
        value.replace(QStringLiteral("${ProjDirPath}"), ideFolder);
        value.replace(QStringLiteral("${workspace_project_locations}"), ideFolder);
        value.replace(QStringLiteral("${workspace_loc:/${ProjName}}"), ideFolder);
        return QDir::cleanPath(value);
    };
    QStringList args = {"-mcpu=cortex-m4", "-mthumb", "-std=c99", "-Wall",
                        "-Wextra",         "-Werror", "-Os",      "-ffunction-sections",
                        "-fdata-sections"};
    for (const QString &define :
         cprojectValues(cproject, "ilg.gnuarmeclipse.managedbuild.cross.option.c.compiler.defs"))
        args << "-D" + define;
    for (const QString &path : cprojectValues(
             cproject, "ilg.gnuarmeclipse.managedbuild.cross.option.c.compiler.include.paths"))
        args << "-I" + resolve(path);
    const QDomNodeList links = project.elementsByTagName(QStringLiteral("link"));
    for (int i = 0; i < links.size(); ++i) {
        // Type 1 links a file; the others are the virtual folders that group them.
        if (links.at(i).firstChildElement(QStringLiteral("type")).text() != QLatin1String("1"))
            continue;
        const QString location =
            links.at(i).firstChildElement(QStringLiteral("locationURI")).text();
        const QRegularExpressionMatch m =
            QRegularExpression(QStringLiteral("^PARENT-(\\d+)-PROJECT_LOC/(.*)$")).match(location);
        if (!m.hasMatch()) {
            *output = "a link the test can't resolve: " + location;
            return false;
        }
        QString base = ideFolder;
        for (int up = m.captured(1).toInt(); up > 0; --up)
            base = QFileInfo(base).path();
        args << base + QLatin1Char('/') + m.captured(2);
    }
    for (const QString &startup : QDir(ideFolder).entryList({QStringLiteral("startup_*.s")}))
        args << ideFolder + QLatin1Char('/') + startup;
    const QStringList scripts = cprojectValues(
        cproject, "ilg.gnuarmeclipse.managedbuild.cross.option.c.linker.scriptfile");
    if (scripts.size() != 1) {
        *output = "the project names no single linker script";
        return false;
    }
    args << "-T" << resolve(scripts.first()) << ArmCompiler::bareMetalLinkArgs(elf);
    QProcess gcc;
    gcc.setWorkingDirectory(QFileInfo(elf).path());
    gcc.setProcessChannelMode(QProcess::MergedChannels);
    gcc.start(QStandardPaths::findExecutable(QStringLiteral("arm-none-eabi-gcc")), args);
    if (!gcc.waitForFinished(300000)) {
        *output = "the compiler did not finish";
        return false;
    }
    *output = args.join(' ') + "\n" + QString::fromLocal8Bit(gcc.readAll());
    return gcc.exitStatus() == QProcess::NormalExit && gcc.exitCode() == 0;
}

// The design of these tests on a work form, and the program folder and package repository
// it is generated with.
class GenerateEndToEnd : public ::testing::Test
{
protected:
    void SetUp() override
    {
        // MQ48_KEEP_OUTPUT=1 leaves the generated projects for a look.
        out.setAutoRemove(qEnvironmentVariableIsEmpty("MQ48_KEEP_OUTPUT"));
        ASSERT_TRUE(QFileInfo::exists(packageZip())) << qPrintable(packageZip());
        QString errors;
        QTextStream err(&errors);
        ASSERT_EQ(installPackageCommand(packageZip(), repository.path(), err), 0)
            << qPrintable(errors);
        program.setConfig("PackagePath", repository.path());

        ASSERT_TRUE(form.buildDesign("MQ48T110", "MQ48T110C8T", "LQFP48"));
        form.modePanel("USART1")->setModeSelection("Mode", "Asynchronous");
        DmaRequestModel *dma = form.dmaModels().value(0);
        ASSERT_NE(dma, nullptr);
        ASSERT_TRUE(dma->addRequest("USART1_TX").ok());
        ASSERT_TRUE(dma->addRequest("USART1_RX").ok());
        for (const DMARequest &r : dma->requests())
            channels[r.name] = r.channel;
        NvicModel *nvic = form.nvicModel();
        ASSERT_TRUE(nvic->setPriorityGroup("NVIC_PRIORITY_GROUP_2"));
        ASSERT_TRUE(nvic->setInterrupt("USART1_IRQn", true, 2, 1));

        placeByHand(form, "PC13", "GPIO_Output");
        GpioSettingsModel *gpio = form.gpioModel();
        ASSERT_TRUE(gpio->setLabel("GPIO_Output", "PC13", "LED"));
        ASSERT_TRUE(gpio->setParameter("GPIO_Output", "PC13", "Pull type", "GPIO_PULL_UP"));
        harness.messages.clear();
    }

    // Generates through the action with the Project Manager answered for `ide`.
    bool generate(const QString &name, const QString &ide)
    {
        harness.answer = [this, name, ide](ProjectAnswer &a) {
            a.name = name;
            a.location = out.path();
            a.ide = ide;
            return true;
        };
        return action.run([this] { return ++saves > 0; });
    }

    QString folder(const QString &name) const { return out.path() + QLatin1Char('/') + name; }

    ProgramFolder program;
    QTemporaryDir repository;
    QTemporaryDir out;
    FlowHarness harness;
    FormConfiguration form;
    GenerateCodeAction action{&form};
    QMap<QString, QString> channels; // request -> channel
    int saves = 0;
};

} // namespace

TEST_F(GenerateEndToEnd, EclipseProjectHoldsLibraryAndCodeOfTheDesignAndBuilds)
{
    harness.press = [](const UserMessage &m) {
        // " Open Project  " on the finished box.
        return m.text == QLatin1String("Generate code finished!") ? 1 : 0;
    };
    ASSERT_TRUE(generate("uart_dma", "Eclipse_gcc")) << qPrintable(harness.texts().join("\n"));
    EXPECT_EQ(saves, 1);
    const UserMessage *done = harness.message("Generate code finished!");
    ASSERT_NE(done, nullptr) << qPrintable(harness.texts().join("\n"));
    EXPECT_EQ(done->buttons, (QStringList{" Open Folder  ", " Open Project  ", "OK"}));
    const QString root = folder("uart_dma");
    ASSERT_EQ(harness.desktop.urls.size(), 1);
    EXPECT_EQ(harness.desktop.urls.first(),
              QUrl::fromLocalFile(ideProjectFile(root, "uart_dma", "Eclipse_gcc")));

    // The library, the IDE project and the generated code, side by side.
    const QStringList files = filesBelow(root);
    for (const char *expected :
         {"libraries/drivers/src/mq48t110_usart.c", "libraries/drivers/inc/mq48t110_usart.h",
          "libraries/cmsis/cm4/device_support/system_mq48t110.c", "project/Eclipse_gcc/.project",
          "project/Eclipse_gcc/.cproject", "project/Eclipse_gcc/startup_mq48t110.s",
          "project/Eclipse_gcc/ldscripts/MQ48T110x8_FLASH.ld", "project/src/main.c",
          "project/src/mq48t110_pf_config.c", "project/src/mq48t110_int.c",
          "project/inc/mq48t110_pf_config.h", "project/inc/mq48t110_int.h",
          "project/inc/mq48t110_conf.h"})
        EXPECT_TRUE(files.contains(expected)) << expected << "\n" << qPrintable(files.join("\n"));

    // What the user set on the other pages is in the code.
    const QString config = read(root + "/project/src/mq48t110_pf_config.c");
    const QString header = read(root + "/project/inc/mq48t110_pf_config.h");
    const QString main = read(root + "/project/src/main.c");
    ASSERT_EQ(channels.size(), 2);
    for (const QString &request : {QStringLiteral("USART1_TX"), QStringLiteral("USART1_RX")}) {
        const QString fn = "pf_" + channels.value(request).toLower() + "_init";
        EXPECT_TRUE(config.contains("void " + fn + "(void)")) << qPrintable(fn);
        EXPECT_TRUE(main.contains(fn + "();")) << qPrintable(fn);
        EXPECT_TRUE(config.contains("\"" + request.toLower() + "\"")) << qPrintable(request);
    }
    EXPECT_TRUE(config.contains("nvic_priority_group_config(NVIC_PRIORITY_GROUP_2);"));
    EXPECT_TRUE(config.contains("nvic_irq_enable(USART1_IRQn, 2, 1);"));
    EXPECT_TRUE(QRegularExpression("#define LED_PIN +GPIO_PINS_13").match(header).hasMatch())
        << qPrintable(header);
    EXPECT_TRUE(QRegularExpression("#define LED_GPIO_PORT +GPIOC").match(header).hasMatch());
    EXPECT_TRUE(config.contains("gpio_init_struct.gpio_pull = GPIO_PULL_UP;"));
    EXPECT_TRUE(config.contains("gpio_init(LED_GPIO_PORT, &gpio_init_struct);"));
    EXPECT_TRUE(
        read(root + "/project/src/mq48t110_int.c").contains("void USART1_IRQHandler(void)"));
    for (const QString &file : files)
        EXPECT_FALSE(read(root + "/" + file).contains("[#")) << qPrintable(file);

    ArmCompiler gcc;
    if (!gcc.available())
        GTEST_SKIP() << "arm-none-eabi-gcc is not installed";
    QString output;
    EXPECT_TRUE(
        buildEclipseProject(root + "/project/Eclipse_gcc", out.path() + "/uart_dma.elf", &output))
        << qPrintable(output);
}

TEST_F(GenerateEndToEnd, KeilProjectNamesTheDeviceTheSizesAndEveryFileItNeeds)
{
    ASSERT_TRUE(generate("uart_keil", "MDK_V5")) << qPrintable(harness.texts().join("\n"));
    const QString root = folder("uart_keil");
    const QString uvprojx = ideProjectFile(root, "uart_keil", "MDK_V5");
    EXPECT_EQ(uvprojx, root + "/project/MDK_V5/uart_keil.uvprojx");
    QDomDocument doc;
    ASSERT_TRUE(doc.setContent(testsupport::readFile(uvprojx))) << qPrintable(uvprojx);
    EXPECT_EQ(doc.elementsByTagName("Device").at(0).toElement().text(), "MQ48T110C8T");

    // Every file the project lists is in the folder; the generated ones and the drivers the
    // design uses are among them.
    QStringList listed;
    const QDomNodeList paths = doc.elementsByTagName("FilePath");
    for (int i = 0; i < paths.size(); ++i) {
        const QString relative = paths.at(i).toElement().text().replace('\\', '/');
        listed << QFileInfo(relative).fileName();
        EXPECT_TRUE(QFileInfo::exists(root + "/project/MDK_V5/" + relative))
            << qPrintable(relative);
    }
    for (const char *file : {"main.c", "mq48t110_pf_config.c", "mq48t110_int.c",
                             "mq48t110_usart.c", "mq48t110_dma.c", "mq48t110_gpio.c"})
        EXPECT_TRUE(listed.contains(file)) << file << "\n" << qPrintable(listed.join("\n"));
    // The Project Manager's default stack size reaches the start-up file of the project.
    EXPECT_TRUE(read(root + "/project/MDK_V5/startup_mq48t110.s")
                    .contains("Stack_Size      EQU     0x00000400"));

    ArmCompiler gcc;
    if (!gcc.available())
        GTEST_SKIP() << "arm-none-eabi-gcc is not installed";
    QString output;
    const QString code = root + "/project";
    EXPECT_TRUE(gcc.compile(
        {code + "/src/main.c", code + "/src/mq48t110_pf_config.c", code + "/src/mq48t110_int.c"},
        {code + "/inc"}, "MQ48T110C8T", &output))
        << qPrintable(output);
}

TEST_F(GenerateEndToEnd, RegeneratingAChangedDesignKeepsTheUsersCodeAndFiles)
{
    ASSERT_TRUE(generate("keep", "Eclipse_gcc")) << qPrintable(harness.texts().join("\n"));
    const QString code = folder("keep") + "/project";
    QString main = read(code + "/src/main.c");
    const QString slot = "  /* add user code begin 2 */\n";
    ASSERT_TRUE(main.contains(slot));
    main.replace(slot, slot + "  led_blink_forever();\n");
    ASSERT_TRUE(testsupport::writeFile(code + "/src/main.c", main.toUtf8()));
    ASSERT_TRUE(testsupport::writeFile(code + "/src/app.c", "int app;\n"));

    // The RX request goes and the interrupt's priority changes.
    DmaRequestModel *dma = form.dmaModels().first();
    int rx = -1;
    for (int i = 0; i < dma->requests().size(); ++i) {
        if (dma->requests().at(i).name == QLatin1String("USART1_RX"))
            rx = i;
    }
    ASSERT_TRUE(dma->removeRequest(rx));
    ASSERT_TRUE(form.nvicModel()->setPreemption("USART1_IRQn", 3));
    harness.messages.clear();
    ASSERT_TRUE(generate("keep", "Eclipse_gcc")) << qPrintable(harness.texts().join("\n"));

    // Generated before with "Keep User Code": no question about overwriting.
    EXPECT_EQ(harness.texts(), QStringList{"Generate code finished!"});
    main = read(code + "/src/main.c");
    EXPECT_TRUE(main.contains(slot + "  led_blink_forever();\n")) << qPrintable(main);
    EXPECT_EQ(read(code + "/src/app.c"), "int app;\n");
    const QString config = read(code + "/src/mq48t110_pf_config.c");
    EXPECT_TRUE(config.contains("nvic_irq_enable(USART1_IRQn, 3, 1);"));
    EXPECT_FALSE(config.contains("pf_" + channels.value("USART1_RX").toLower() + "_init"));
    EXPECT_TRUE(config.contains("pf_" + channels.value("USART1_TX").toLower() + "_init"));
}
