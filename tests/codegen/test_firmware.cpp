// The T110 firmware package of the source tree: its agreed layout, the stack and heap lines
// the project writer rewrites, every macro the database, the pin tables, the interrupt table
// and the clock page can put into generated code, and a generated program linked with the
// start-up file and linker script of each flash size.

#include "armcompiler.h"
#include "codegentestsupport.h"
#include "common/testsupport.h"
#include "generatedproject.h"
#include "t110design.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const QStringList kDrivers = {"crm", "cmp",  "tmr",   "ertc",  "gpio",  "i2c",  "usart",
                              "pwc", "adc",  "spi",   "dma",   "debug", "flash", "crc",
                              "wwdt", "wdt", "exint", "misc",  "scfg"};
const QStringList kDevices = {"MQ48T110F6P", "MQ48T110F8P", "MQ48T110K6U", "MQ48T110K8U",
                              "MQ48T110K8T", "MQ48T110C8T", "MQ48T110CBT"};

QString package(const QString &relative)
{
    return ArmCompiler::packageFolder() + "/" + relative;
}

QString startupFolder()
{
    return package("libraries/cmsis/cm4/device_support/startup");
}

QString readText(const QString &path)
{
    return QString::fromUtf8(testsupport::readFile(path));
}

// The macro names of the values column of docs/firmware-macros.md, settings left out.
// True when a "*(T510, T110)*" family note is absent or names the T110.
bool notesT110(const QString &note)
{
    return note.isEmpty() || note.split(QStringLiteral(", ")).contains(QStringLiteral("T110"));
}

// The values the macro list gives for the T110: sections of files the series has, and within
// them the parameters and values not marked as other families' only.
QSet<QString> documentedMacros()
{
    QSet<QString> names;
    const QString doc = readText(QStringLiteral(MQ48_SOURCE_DIR) + "/docs/firmware-macros.md");
    static const QRegularExpression value(
        QStringLiteral("`([A-Za-z_]\\w*)`( \\(setting\\))?( \\*\\(([^)]*)\\)\\*)?"));
    static const QRegularExpression paramNote(QStringLiteral("\\*\\(([^)]*)\\)\\*"));
    bool sectionHasT110 = false;
    bool expectFamilies = false;
    for (const QString &line : doc.split('\n')) {
        if (line.startsWith(QLatin1String("## "))) {
            sectionHasT110 = false;
            expectFamilies = true;
            continue;
        }
        if (expectFamilies && !line.trimmed().isEmpty()) {
            sectionHasT110 = notesT110(line.section(';', 0, 0).trimmed()) &&
                             line.section(';', 0, 0).contains(QLatin1String("T110"));
            expectFamilies = false;
            continue;
        }
        if (!sectionHasT110 || !line.startsWith(QLatin1String("| `")))
            continue;
        const QString parameter = line.section('|', 1, 1);
        // A DMA request's channel names a register block, not a value the code writes.
        if (parameter.contains(QLatin1String("`Instance`")) ||
            !notesT110(paramNote.match(parameter).captured(1)))
            continue;
        auto it = value.globalMatch(line.section('|', 2, 2));
        while (it.hasNext()) {
            const QRegularExpressionMatch m = it.next();
            if (m.captured(2).isEmpty() && notesT110(m.captured(4)))
                names << m.captured(1);
        }
    }
    return names;
}

// The macros the T110 clock page can produce for the sections it writes, over its settings
// (the family's clock steps have no HEXT divider line; its clock output has no USB item).
QSet<QString> clockMacros()
{
    QSet<QString> names;
    auto add = [&names](const QString &macro) {
        if (!macro.isEmpty())
            names << macro;
    };
    ClockTreeState s(9);
    for (int source = 0; source <= 2; ++source) {
        s.sclkselect = source;
        for (int pllSource = 0; pllSource <= 1; ++pllSource) {
            s.pllrcs = pllSource;
            for (int hextDiv = 0; hextDiv <= 1; ++hextDiv) {
                s.pllhextdiv = hextDiv;
                for (int mode = 0; mode <= 1; ++mode) {
                    s.pllmode = mode;
                    add(s.pllSourceMacro());
                    add(s.pllFrMacro());
                    add(s.sclkMacro());
                }
            }
        }
    }
    s.sclkselect = 1;
    s.pllmode = 0;
    for (int mult = 2; mult <= 64; ++mult) {
        s.pllmult = mult;
        add(s.pllMultMacro());
    }
    for (int div : {1, 2, 4, 8, 16, 64, 128, 256, 512}) {
        s.ahbdiv = div;
        s.clkoutdiv = div;
        add(s.ahbDivMacro());
        add(s.clkoutDivMacro());
    }
    for (int div : {1, 2, 4, 8, 16}) {
        s.apb1div = s.apb2div = div;
        add(s.apb1DivMacro());
        add(s.apb2DivMacro());
    }
    for (int div : {2, 3, 4, 5, 6, 8, 12, 16}) {
        s.adcdiv = div;
        add(s.adcDivMacro());
    }
    for (int out = 0; out <= s.family()->clkoutMax; ++out) {
        if (out == 6 && !s.family()->hasUsb)
            continue;
        s.clkout = out;
        add(s.clkoutMacro());
    }
    for (int rtc = 0; rtc <= 2; ++rtc) {
        s.rtcsel = rtc;
        add(s.rtcClockMacro());
    }
    for (double sclk : {24.0, 48.0, 72.0, 96.0, 120.0}) {
        s.sclk = sclk;
        add(s.flashWaitCycleMacro());
    }
    return names;
}

// The pin macros and interrupt names of every T110 device.
void deviceTables(QSet<QString> *macros, QStringList *handlers)
{
    for (const QString &device : kDevices) {
        const GeneratorInputs in = T110Design(device).inputs;
        for (const PinMacroRecord &pin : in.pinMacros) {
            *macros << pin.pinsMacro << pin.pinsSourceMacro << pin.portMacro
                    << pin.scfgPortSourceMacro << pin.scfgPinsSourceMacro << pin.exintLineMacro;
            for (const auto &mux : pin.muxes)
                *macros << mux.second;
        }
        for (const GeneratorInterrupt &irq : in.interrupts) {
            *macros << irq.irqName;
            if (!handlers->contains(irq.handler))
                *handlers << irq.handler;
        }
    }
    macros->remove(QString());
}

} // namespace

TEST(FirmwarePackage, HasTheAgreedLayoutAndTheStackAndHeapLines)
{
    QStringList files = {
        "libraries/cmsis/cm4/core_support/mq48_cm4_core.h",
        "libraries/cmsis/cm4/device_support/mq48t110.h",
        "libraries/cmsis/cm4/device_support/system_mq48t110.c",
        "libraries/cmsis/cm4/device_support/system_mq48t110.h",
        "libraries/cmsis/cm4/device_support/startup/gcc/startup_mq48t110.s",
        "libraries/cmsis/cm4/device_support/startup/mdk/startup_mq48t110.s",
        "libraries/cmsis/cm4/device_support/startup/iar/startup_mq48t110.s",
        "libraries/drivers/inc/mq48t110_def.h",
        "project/mq_board_t110/templates/mq48t110_conf.h",
    };
    for (const QString &d : kDrivers) {
        files << "libraries/drivers/inc/mq48t110_" + d + ".h"
              << "libraries/drivers/src/mq48t110_" + d + ".c";
    }
    for (const QString &f : files)
        EXPECT_TRUE(QFileInfo(package(f)).isFile()) << qPrintable(f);
    EXPECT_TRUE(QFileInfo(package("middlewares")).isDir());

    // One linker script and one configuration per flash size of the devices.
    const QRegularExpression ldStack(QStringLiteral("\n_Min_Stack_Size = 0x[0-9A-Fa-f]+;\n"));
    const QRegularExpression ldHeap(QStringLiteral("\n_Min_Heap_Size = 0x[0-9A-Fa-f]+;\n"));
    const QRegularExpression icfStack(
        QStringLiteral("\ndefine symbol __ICFEDIT_size_cstack__ = 0x[0-9A-Fa-f]+;\n"));
    const QRegularExpression icfHeap(
        QStringLiteral("\ndefine symbol __ICFEDIT_size_heap__ = 0x[0-9A-Fa-f]+;\n"));
    for (const QString &device : kDevices) {
        const QString ld = startupFolder() + "/gcc/linker/" + ArmCompiler::linkerScript(device);
        const QString stem = ArmCompiler::linkerScript(device).remove("_FLASH.ld");
        const QString icf = startupFolder() + "/iar/linker/" + stem + ".icf";
        ASSERT_TRUE(QFileInfo::exists(ld)) << qPrintable(ld);
        ASSERT_TRUE(QFileInfo::exists(icf)) << qPrintable(icf);
        EXPECT_TRUE(readText(ld).contains(ldStack)) << qPrintable(ld);
        EXPECT_TRUE(readText(ld).contains(ldHeap)) << qPrintable(ld);
        EXPECT_TRUE(readText(icf).contains(icfStack)) << qPrintable(icf);
        EXPECT_TRUE(readText(icf).contains(icfHeap)) << qPrintable(icf);
    }
    const QString mdk = readText(startupFolder() + "/mdk/startup_mq48t110.s");
    EXPECT_TRUE(mdk.contains(QRegularExpression("\nStack_Size      EQU     0x[0-9A-F]{8}\n")));
    EXPECT_TRUE(mdk.contains(QRegularExpression("\nHeap_Size       EQU     0x[0-9A-F]{8}\n")));
}

TEST(FirmwarePackage, EveryStartupFileHasEveryHandlerOfTheInterruptTable)
{
    QSet<QString> macros;
    QStringList handlers;
    deviceTables(&macros, &handlers);
    ASSERT_GT(handlers.size(), 30);
    for (const char *toolchain : {"gcc", "mdk", "iar"}) {
        const QString text =
            readText(startupFolder() + "/" + toolchain + "/startup_mq48t110.s");
        for (const QString &handler : handlers) {
            EXPECT_TRUE(text.contains(QRegularExpression("\\b" + handler + "\\b")))
                << toolchain << " " << qPrintable(handler);
        }
    }
}

TEST(FirmwarePackage, DeclaresEveryMacroTheDatabaseAndTheClockPageWrite)
{
    ArmCompiler gcc;
    if (!gcc.available())
        GTEST_SKIP() << "arm-none-eabi-gcc is not installed";
    QSet<QString> macros = documentedMacros();
    ASSERT_GT(macros.size(), 250);
    macros += clockMacros();
    QStringList handlers;
    deviceTables(&macros, &handlers);
    QStringList sorted = macros.values();
    sorted.sort();

    // One statement per name, so that the compiler names each one that is missing.
    QString c = "#include \"mq48t110.h\"\n\nvoid every_macro(void);\nvoid every_macro(void)\n{\n";
    for (const QString &name : sorted)
        c += "  (void)(" + name + ");\n";
    c += "}\n";
    QTemporaryDir dir;
    ASSERT_TRUE(testsupport::writeFile(dir.path() + "/macros.c", c.toUtf8()));
    QString output;
    EXPECT_TRUE(gcc.compile({dir.path() + "/macros.c"},
                            {package("project/mq_board_t110/templates")}, "MQ48T110CBT", &output))
        << qPrintable(output.left(4000));
}

TEST(FirmwarePackage, AGeneratedProgramLinksForEveryFlashSize)
{
    ArmCompiler gcc;
    if (!gcc.available())
        GTEST_SKIP() << "arm-none-eabi-gcc is not installed";
    for (const char *device : {"MQ48T110F6P", "MQ48T110C8T", "MQ48T110CBT"}) {
        SCOPED_TRACE(device);
        T110Design design(device);
        design.configure("USART1", {"ASYNC"}).place("USART1_TX").place("USART1_RX");
        design.irq("USART1_IRQ", 1, 0);
        design.dma("USART1_TX", "DMA1_Channel2").irq("DMA1_Channel3_2_IRQ");
        GeneratedProject project;
        ASSERT_TRUE(project.generate(design.inputs)) << qPrintable(project.error());
        const QString elf = project.root() + "/program.elf";
        QString output;
        ASSERT_TRUE(gcc.link({project.path("main.c"), project.path("mq48t110_pf_config.c"),
                              project.path("mq48t110_int.c")},
                             {project.root() + "/inc"}, device, elf, &output))
            << qPrintable(output.left(4000));
        const QString symbols = gcc.symbols(elf);
        if (symbols.isEmpty())
            continue; // no nm beside the compiler
        // The vector table opens the flash; the generated handler replaces the weak one.
        EXPECT_TRUE(symbols.contains(QRegularExpression("08000000 \\w mq_vectors")));
        EXPECT_TRUE(symbols.contains(QRegularExpression("\\w+ T USART1_IRQHandler")));
        EXPECT_TRUE(symbols.contains(QRegularExpression("\\w+ W WWDT_IRQHandler")));
    }
}
