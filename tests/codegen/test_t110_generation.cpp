// The T110 generator end to end: user code across runs, determinism, failures, the thread,
// and the sections that are not one peripheral's own (labels, interrupts, DMA, SysTick,
// clock lines, module switches).

#include "armcompiler.h"
#include "codegen/familygenerator.h"
#include "codegen/familytable.h"
#include "codegen/generatecodethread.h"
#include "codegentestsupport.h"
#include "common/testsupport.h"
#include "generatedproject.h"
#include "t110design.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <atomic>

namespace {

void expectCompiles(const GeneratedProject &project, const QString &device)
{
    if (!ArmCompiler().available())
        return;
    QString output;
    EXPECT_TRUE(project.compiles(device, &output)) << qPrintable(output);
}

// The names of the user slots of a text, in order.
QStringList slotNames(const QString &text)
{
    static const QRegularExpression begin(QStringLiteral("/\\* add user code begin (.+?) \\*/"));
    QStringList names;
    auto it = begin.globalMatch(text);
    while (it.hasNext())
        names << it.next().captured(1);
    return names;
}

// Writes a marker line into every slot of a text, as a user would.
QString withMarkers(const QString &file, QString text)
{
    for (const QString &name : slotNames(text)) {
        const QString line = "/* add user code begin " + name + " */\n";
        text.replace(line, line + "  /* mark " + file + ":" + name + " */\n");
    }
    return text;
}

QString markerOf(const QString &file, const QString &slot)
{
    return "/* mark " + file + ":" + slot + " */";
}

T110Design usartAndSpi()
{
    T110Design d;
    d.configure("USART1", {"ASYNC"}).place("USART1_TX").place("USART1_RX");
    d.configure("SPI1", {"MASTER", "FULL_DUPLEX", "USED"})
        .place("SPI1_SCK")
        .place("SPI1_MISO")
        .place("SPI1_MOSI");
    d.place("GPIO_Output", "PB0", "LED");
    d.irq("USART1_IRQ", 1, 0);
    return d;
}

void setUnconfigured(GeneratorInputs &in, const QString &instance)
{
    for (GeneratorPeripheral &p : in.peripherals) {
        if (p.instanceName == instance) {
            p.configured = false;
            p.status = IPSTATUS_INACTIVE;
            p.semaphores.clear();
        }
    }
    for (int i = in.pins.size() - 1; i >= 0; --i) {
        if (signalBelongsTo(in.pins.at(i).signal, instance))
            in.pins.removeAt(i);
    }
}

GeneratorInterrupt *interruptNamed(GeneratorInputs &in, const QString &section)
{
    for (GeneratorInterrupt &irq : in.interrupts) {
        if (irq.sectionName() == section)
            return &irq;
    }
    return nullptr;
}

} // namespace

TEST(T110Generation, AnEmptyDesignGeneratesAndCompiles)
{
    T110Design design;
    GeneratedProject project;
    ASSERT_TRUE(project.generate(design.inputs)) << qPrintable(project.error());
    const QString main = project.text("main.c");
    EXPECT_TRUE(main.contains("pf_system_clock_config();"));
    EXPECT_FALSE(main.contains("pf_usart1_init"));
    // Nothing uses a clock: the periph clock function is gone from all three files.
    for (const char *name : {"main.c", "mq48t110_pf_config.c", "mq48t110_pf_config.h"})
        EXPECT_FALSE(project.text(name).contains("pf_periph_clock_config")) << name;
    for (const QString &name : GeneratedProject::fileNames()) {
        const QString text = project.text(name);
        EXPECT_FALSE(text.isEmpty()) << qPrintable(name);
        EXPECT_FALSE(text.contains("[#")) << qPrintable(name);
        EXPECT_FALSE(text.contains("[/#")) << qPrintable(name);
    }
    expectCompiles(project, design.inputs.deviceName);
}

TEST(T110Generation, EachPackageGetsItsDeviceAndCompiles)
{
    for (const char *device : {"MQ48T110CBT", "MQ48T110K6U", "MQ48T110F6P"}) {
        T110Design design(device);
        design.configure("USART1", {"ASYNC"}).place("USART1_TX").place("USART1_RX");
        GeneratedProject project;
        ASSERT_TRUE(project.generate(design.inputs)) << device << qPrintable(project.error());
        EXPECT_TRUE(project.text("mq48t110_pf_config.c").contains("usart_init(USART1, 115200"));
        expectCompiles(project, device);
    }
}

TEST(UserCodeAcrossRuns, EverySlotSurvivesTwoRegenerationsByteForByte)
{
    T110Design design = usartAndSpi();
    GeneratedProject project;
    ASSERT_TRUE(project.generate(design.inputs)) << qPrintable(project.error());
    QMap<QString, QString> edited;
    int slotCount = 0;
    for (const QString &name : GeneratedProject::fileNames()) {
        edited[name] = withMarkers(name, project.text(name));
        slotCount += slotNames(edited[name]).size();
        ASSERT_TRUE(project.write(name, edited[name]));
    }
    EXPECT_GT(slotCount, 60);

    for (int run = 0; run < 2; ++run) {
        ASSERT_TRUE(project.generate(design.inputs)) << qPrintable(project.error());
        for (const QString &name : GeneratedProject::fileNames())
            EXPECT_EQ(edited[name], project.text(name)) << qPrintable(name) << " run " << run;
    }

    // A change of the clock rebuilds the clock function and keeps every slot's text.
    design.inputs.clock.ahbdiv = 2;
    design.inputs.clock.recalculate();
    ASSERT_TRUE(project.generate(design.inputs));
    EXPECT_TRUE(project.text("mq48t110_pf_config.c").contains("crm_ahb_div_set(CRM_AHB_DIV_2);"));
    for (const QString &name : GeneratedProject::fileNames()) {
        const QString text = project.text(name);
        for (const QString &slot : slotNames(edited[name]))
            EXPECT_EQ(text.count(markerOf(name, slot)), 1) << qPrintable(name + " " + slot);
    }
    expectCompiles(project, design.inputs.deviceName);
}

TEST(UserCodeAcrossRuns, SwitchingAPeripheralOffLosesOnlyItsOwnSlots)
{
    T110Design design = usartAndSpi();
    GeneratedProject project;
    ASSERT_TRUE(project.generate(design.inputs));
    for (const QString &name : GeneratedProject::fileNames())
        ASSERT_TRUE(project.write(name, withMarkers(name, project.text(name))));

    GeneratorInputs without = design.inputs;
    setUnconfigured(without, "USART1");
    ASSERT_TRUE(project.generate(without));
    const QString config = project.text("mq48t110_pf_config.c");
    EXPECT_FALSE(config.contains("pf_usart1_init"));
    EXPECT_FALSE(config.contains(markerOf("mq48t110_pf_config.c", "usart1_init 0")));
    EXPECT_TRUE(config.contains(markerOf("mq48t110_pf_config.c", "spi1_init 0")));
    EXPECT_TRUE(project.text("main.c").contains(markerOf("main.c", "1")));
    EXPECT_FALSE(project.text("mq48t110_pf_config.h").contains("pf_usart1_init"));

    // On again: the slot is back, empty.
    ASSERT_TRUE(project.generate(design.inputs));
    const QString again = project.text("mq48t110_pf_config.c");
    EXPECT_TRUE(again.contains("/* add user code begin usart1_init 0 */\n\n"
                               "  /* add user code end usart1_init 0 */"));
    EXPECT_TRUE(again.contains(markerOf("mq48t110_pf_config.c", "spi1_init 2")));
}

TEST(UserCodeAcrossRuns, KeepUserCodeOffAndOtherFilesOfTheFolders)
{
    T110Design design;
    GeneratedProject project;
    ASSERT_TRUE(project.generate(design.inputs));
    QString main = withMarkers("main.c", project.text("main.c"));
    main.replace("int main(void)", "/* edited outside a slot */\nint main(void)");
    ASSERT_TRUE(project.write("main.c", main));
    ASSERT_TRUE(testsupport::writeFile(project.root() + "/src/mine.c", "int mine;\n"));

    ASSERT_TRUE(project.generate(design.inputs));
    main = project.text("main.c");
    EXPECT_TRUE(main.contains(markerOf("main.c", "3")));
    EXPECT_FALSE(main.contains("edited outside a slot"));
    EXPECT_TRUE(QFileInfo::exists(project.root() + "/src/mine.c"));

    design.inputs.keepUserCode = false;
    ASSERT_TRUE(project.generate(design.inputs));
    EXPECT_FALSE(project.text("main.c").contains("/* mark "));
}

TEST(UserCodeAcrossRuns, AForeignFileGivesUpOnlyItsMatchingSlots)
{
    T110Design design;
    GeneratedProject project;
    ASSERT_TRUE(project.generate(design.inputs));
    ASSERT_TRUE(project.write("main.c", "#include \"other.h\"\n"
                                        "int stray;\n"
                                        "/* add user code begin 1 */\n"
                                        "  int kept = 1;\n"
                                        "/* add user code end 1 */\n"
                                        "/* add user code begin unknown */\n"
                                        "  int lost;\n"
                                        "/* add user code end unknown */\n"));
    ASSERT_TRUE(project.generate(design.inputs));
    const QString main = project.text("main.c");
    EXPECT_TRUE(main.contains("int kept = 1;"));
    EXPECT_FALSE(main.contains("stray"));
    EXPECT_FALSE(main.contains("lost"));
    EXPECT_FALSE(main.contains("other.h"));
    EXPECT_TRUE(main.contains("pf_system_clock_config();"));
}

TEST(GenerationRuns, AreByteForByteDeterministic)
{
    T110Design design = usartAndSpi();
    design.dma("USART1_RX", "DMA1_Channel5").irq("DMA1_Channel5_4_IRQ");
    GeneratedProject first, second;
    ASSERT_TRUE(first.generate(design.inputs));
    ASSERT_TRUE(second.generate(design.inputs));
    for (const QString &name : GeneratedProject::fileNames()) {
        EXPECT_EQ(testsupport::readFile(first.path(name)), testsupport::readFile(second.path(name)))
            << qPrintable(name);
    }
}

TEST(GenerationFailures, AFamilyWithoutTemplatesNamesWhatIsMissing)
{
    GenerateCode_All_T120 generator;
    GeneratorInputs in;
    in.familyCode = familyCodeOfSeries("MQ48T120");
    in.series = "MQ48T120";
    in.deviceName = "MQ48T120C8T";
    generator.setInputs(in);
    EXPECT_EQ(generator.missingTemplates().size(), 6);
    QTemporaryDir dir;
    EXPECT_FALSE(generator.generate(dir.path() + "/project"));
    EXPECT_TRUE(generator.errorMessage().contains("main.c")) << qPrintable(generator.errorMessage());
    EXPECT_TRUE(generator.errorMessage().contains("T120")) << qPrintable(generator.errorMessage());
    EXPECT_FALSE(QFileInfo::exists(dir.path() + "/project/src/main.c"));

    EXPECT_EQ(createFamilyGenerator(12345), nullptr);
    auto t110 = createFamilyGenerator(familyCodeOfSeries("MQ48T110"));
    ASSERT_NE(t110, nullptr);
    EXPECT_EQ(t110->generatorName(), QStringLiteral("GenerateCode_All_T110"));
    t110->setInputs(T110Design().inputs);
    EXPECT_TRUE(t110->missingTemplates().isEmpty());
}

TEST(GenerationFailures, AnOutputFolderThatCannotBeMadeFails)
{
    QTemporaryDir dir;
    // A file stands where the "src" folder must go.
    ASSERT_TRUE(testsupport::writeFile(dir.path() + "/project/src", "in the way"));
    T110Design design;
    GenerateCode_All_T110 generator;
    generator.setInputs(design.inputs);
    EXPECT_FALSE(generator.generate(dir.path() + "/project"));
    EXPECT_FALSE(generator.errorMessage().isEmpty());
}

TEST(GenerateCodeThreadRun, RunsTheGeneratorOfTheFamilyAndReports)
{
    T110Design design;
    GenerateCode_All_T110 generator;
    generator.setInputs(design.inputs);
    QTemporaryDir dir;

    GenerateCodeThread thread;
    std::atomic<int> reported(-1);
    QObject::connect(&thread, &GenerateCodeThread::GenerateCodeFinished,
                     [&](bool flag) { reported = flag ? 1 : 0; });
    thread.setGenerator(&generator, design.inputs.familyCode);
    EXPECT_EQ(thread.selectedGenerator(), &generator);
    EXPECT_EQ(thread.generateT110, &generator);
    EXPECT_EQ(thread.generateT120, nullptr);
    thread.outputFolder = dir.path() + "/project";
    thread.start();
    ASSERT_TRUE(thread.wait(30000));
    EXPECT_EQ(reported, 1);
    EXPECT_TRUE(QFileInfo::exists(dir.path() + "/project/src/main.c"));

    // The T110 generator does not serve another family's code.
    thread.setGenerator(&generator, familyCodeOfSeries("MQ48T130"));
    EXPECT_EQ(thread.selectedGenerator(), nullptr);
    reported = -1;
    thread.start();
    ASSERT_TRUE(thread.wait(30000));
    EXPECT_EQ(reported, 0);
}

TEST(Sections, LabelsUsedTwiceGetTheirPortAndPinAndTheCallsUseThem)
{
    T110Design design;
    design.place("GPIO_Output", "PB0", "LED").place("GPIO_Output", "PB1", "LED");
    design.place("GPIO_Input", "PA0", "KEY");
    design.configure("USART1", {"ASYNC"}).place("USART1_TX", QString(), "TX");
    GeneratedProject project;
    ASSERT_TRUE(project.generate(design.inputs));
    const QString header = project.text("mq48t110_pf_config.h");
    EXPECT_TRUE(header.contains("#define LED_B0_PIN    GPIO_PINS_0\n"
                                "#define LED_B0_GPIO_PORT    GPIOB\n\n"
                                "#define LED_B1_PIN    GPIO_PINS_1\n"));
    EXPECT_TRUE(header.contains("#define KEY_PIN    GPIO_PINS_0\n#define KEY_GPIO_PORT    GPIOA\n"));
    EXPECT_TRUE(header.contains("#define TX_PIN    GPIO_PINS_9"));
    const QString config = project.text("mq48t110_pf_config.c");
    EXPECT_TRUE(config.contains("gpio_init(LED_B1_GPIO_PORT, &gpio_init_struct);"));
    EXPECT_TRUE(config.contains("gpio_init_struct.gpio_pins = TX_PIN;"));
    EXPECT_TRUE(config.contains("gpio_pin_mux_config(TX_GPIO_PORT, GPIO_PINS_SOURCE9, GPIO_MUX_1);"));
    // Output level low by default: the pins are reset before their init.
    EXPECT_TRUE(config.contains("gpio_bits_reset(LED_B0_GPIO_PORT, LED_B0_PIN);"));
    expectCompiles(project, design.inputs.deviceName);

    for (GeneratorPin &pin : design.inputs.pins) {
        for (GpioSetting &s : pin.gpioSettings) {
            if (s.first == "Output level")
                s.second = "GPIO_OUTPUTLEVEL_HIGH";
        }
    }
    ASSERT_TRUE(project.generate(design.inputs));
    EXPECT_TRUE(project.text("mq48t110_pf_config.c")
                    .contains("gpio_bits_set(LED_B0_GPIO_PORT, LED_B0_PIN);"));
}

TEST(Sections, ADisabledInterruptLeavesNoPrototypeHandlerOrPriority)
{
    T110Design design;
    design.configure("USART1", {"ASYNC"}).place("USART1_TX").place("USART1_RX");
    design.configure("USART2", {"ASYNC"}).place("USART2_TX").place("USART2_RX");
    design.irq("USART1_IRQ", 2, 1).irq("USART2_IRQ", 3, 0);
    GeneratedProject project;
    ASSERT_TRUE(project.generate(design.inputs));
    QString config = project.text("mq48t110_pf_config.c");
    const int first = config.indexOf("nvic_irq_enable(USART1_IRQn, 2, 1);");
    const int second = config.indexOf("nvic_irq_enable(USART2_IRQn, 3, 0);");
    EXPECT_GT(first, 0);
    EXPECT_GT(second, first);
    EXPECT_TRUE(project.text("mq48t110_int.c").contains("void USART2_IRQHandler(void)"));
    EXPECT_TRUE(project.text("mq48t110_int.h").contains("void USART2_IRQHandler(void);"));
    expectCompiles(project, design.inputs.deviceName);

    interruptNamed(design.inputs, "USART2_IRQ")->enabled = false;
    ASSERT_TRUE(project.generate(design.inputs));
    config = project.text("mq48t110_pf_config.c");
    EXPECT_TRUE(config.contains("nvic_irq_enable(USART1_IRQn, 2, 1);"));
    EXPECT_FALSE(config.contains("USART2_IRQn"));
    EXPECT_FALSE(project.text("mq48t110_int.c").contains("USART2_IRQHandler"));
    EXPECT_FALSE(project.text("mq48t110_int.h").contains("USART2_IRQHandler"));

    // With no interrupt at all the NVIC function goes from main and the header.
    for (GeneratorInterrupt &irq : design.inputs.interrupts)
        irq.enabled = false;
    ASSERT_TRUE(project.generate(design.inputs));
    EXPECT_FALSE(project.text("main.c").contains("pf_nvic_config"));
    EXPECT_FALSE(project.text("mq48t110_pf_config.h").contains("pf_nvic_config"));
    expectCompiles(project, design.inputs.deviceName);
}

TEST(Sections, DmaChannelsFillTheirRequestAndToggleTheirDefines)
{
    T110Design design;
    design.configure("USART1", {"ASYNC"}).place("USART1_TX").place("USART1_RX");
    design.configure("SPI1", {"MASTER", "FULL_DUPLEX", "USED"});
    design.configure("I2S1", {"MASTER"});
    design.dma("USART1_TX", "DMA1_Channel4");   // moved off its default channel
    design.dma("USART1_RX", "DMA1_Channel3");   // on its default channel
    design.dma("I2S1_TX", "DMA1_Channel1");
    design.dma("MEMTOMEM", "DMA1_Channel5");
    GeneratedProject project;
    ASSERT_TRUE(project.generate(design.inputs));
    const QString main = project.text("main.c");
    EXPECT_TRUE(main.contains("pf_dma_channel_config(DMA1_CHANNEL4, (uint32_t)&USART1->dt,"));
    EXPECT_TRUE(main.contains("scfg_dma_channel_remap(SCFG_DMA_REMAP_USART1_TX, TRUE);"));
    EXPECT_FALSE(main.contains("SCFG_DMA_REMAP_USART1_RX"));
    EXPECT_TRUE(main.contains("pf_dma_channel_config(DMA1_CHANNEL1, (uint32_t)&SPI1->dt,"));
    EXPECT_TRUE(main.contains("pf_dma_channel_config(DMA1_CHANNEL5, "
                              "DMA1_CHANNEL5_PERIPHERAL_BASE_ADDR,"));
    EXPECT_FALSE(main.contains("DMA1_CHANNEL2"));
    const QString config = project.text("mq48t110_pf_config.c");
    EXPECT_TRUE(config.contains("@brief  init dma1 channel4 for \"usart1_tx\""));
    EXPECT_TRUE(config.contains("@brief  init dma1 channel5 for \"memtomem\""));
    EXPECT_FALSE(config.contains("pf_dma1_channel2_init"));
    QString header = project.text("mq48t110_pf_config.h");
    EXPECT_TRUE(header.contains("\n#define DMA1_CHANNEL4_BUFFER_SIZE   0"));
    EXPECT_TRUE(header.contains("\n//#define DMA1_CHANNEL2_BUFFER_SIZE   0"));
    expectCompiles(project, design.inputs.deviceName);

    // The user's value in the define slot is kept and switched off with its channel.
    header.replace("#define DMA1_CHANNEL4_BUFFER_SIZE   0", "#define DMA1_CHANNEL4_BUFFER_SIZE   64");
    ASSERT_TRUE(project.write("mq48t110_pf_config.h", header));
    design.inputs.dmaRequests.removeFirst();
    ASSERT_TRUE(project.generate(design.inputs));
    EXPECT_TRUE(project.text("mq48t110_pf_config.h")
                    .contains("\n//#define DMA1_CHANNEL4_BUFFER_SIZE   64"));
    expectCompiles(project, design.inputs.deviceName);
}

TEST(Sections, SysTickFollowsItsInterruptAndTheClockDivider)
{
    T110Design design;
    design.inputs.clock.systicdiv = 1;
    GeneratedProject project;
    ASSERT_TRUE(project.generate(design.inputs));
    QString config = project.text("mq48t110_pf_config.c");
    EXPECT_TRUE(config.contains("systick_clock_source_config(SYSTICK_CLOCK_SOURCE_AHBCLK_NODIV);\n"
                                "  systick_interrupt_config(system_core_clock / 1000);"));

    interruptNamed(design.inputs, "SysTick_IRQ")->enabled = false;
    ASSERT_TRUE(project.generate(design.inputs));
    for (const char *name : {"main.c", "mq48t110_pf_config.c", "mq48t110_pf_config.h"})
        EXPECT_FALSE(project.text(name).contains("systick")) << name;
    expectCompiles(project, design.inputs.deviceName);
}

TEST(Sections, ClockLinesFollowTheClockState)
{
    T110Design design;
    ClockTreeState &c = design.inputs.clock;
    // HICK divided on the system clock (8 MHz) with bypass set but no crystal; then a
    // 12 MHz crystal in bypass on the system clock.
    c.sclkselect = 2;
    c.hicktosclk = 0;
    c.hextBypass = true;
    c.recalculate();
    GeneratedProject project;
    ASSERT_TRUE(project.generate(design.inputs));
    QString config = project.text("mq48t110_pf_config.c");
    EXPECT_TRUE(config.contains("flash_psr_set(FLASH_WAIT_CYCLE_0);"));
    EXPECT_FALSE(config.contains("CRM_CLOCK_SOURCE_HEXT"));
    EXPECT_FALSE(config.contains("crm_hext_bypass"));
    EXPECT_FALSE(config.contains("- hext                = HEXT_VALUE"));
    EXPECT_FALSE(config.contains("crm_pll_config"));
    EXPECT_TRUE(config.contains("crm_sysclk_switch(CRM_SCLK_HICK);"));

    c.hextEnabled = true;
    c.hext = 12.0;
    c.sclkselect = 0;
    c.recalculate();
    ASSERT_TRUE(project.generate(design.inputs));
    config = project.text("mq48t110_pf_config.c");
    EXPECT_TRUE(config.contains("crm_clock_source_enable(CRM_CLOCK_SOURCE_HEXT, TRUE);"));
    EXPECT_TRUE(config.contains("crm_hext_bypass(TRUE);"));
    EXPECT_TRUE(config.contains("crm_sysclk_switch(CRM_SCLK_HEXT);"));
    EXPECT_TRUE(config.contains("*         - sclk                = 12000000\n"));
    EXPECT_TRUE(project.text("mq48t110_conf.h")
                    .contains("#define HEXT_VALUE               ((uint32_t)12000000)"));
    expectCompiles(project, design.inputs.deviceName);
}

TEST(Sections, ModuleSwitchesAndDriverFilesFollowTheDesign)
{
    T110Design design;
    design.configure("USART1", {"ASYNC"}).place("USART1_TX").place("USART1_RX");
    design.dma("USART1_TX", "DMA1_Channel2");
    GeneratedProject project;
    ASSERT_TRUE(project.generate(design.inputs));
    const QString conf = project.text("mq48t110_conf.h");
    EXPECT_TRUE(conf.contains("\n#define USART_MODULE_ENABLED\n"));
    EXPECT_TRUE(conf.contains("\n#define DMA_MODULE_ENABLED\n"));
    EXPECT_TRUE(conf.contains("\n/*#define SPI_MODULE_ENABLED"));
    EXPECT_TRUE(conf.contains("\n/*#define TMR_MODULE_ENABLED"));

    GenerateCode_All_T110 generator;
    generator.setInputs(design.inputs);
    const QStringList stems = generator.driverFileStems();
    ASSERT_FALSE(stems.isEmpty());
    EXPECT_EQ(stems.first(), QStringLiteral("mq48t110_crm"));
    EXPECT_TRUE(stems.contains("mq48t110_usart"));
    EXPECT_TRUE(stems.contains("mq48t110_dma"));
    EXPECT_FALSE(stems.contains("mq48t110_spi"));
    // Every stem is a driver source of the package.
    for (const QString &stem : stems) {
        EXPECT_TRUE(QFileInfo::exists(ArmCompiler::packageFolder() +
                                      "/libraries/drivers/src/" + stem + ".c"))
            << qPrintable(stem);
    }
}
