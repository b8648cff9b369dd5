#include "database/language.h"
#include "database/paths.h"
#include "database/peripheralreader.h"
#include "tests/common/testsupport.h"

#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

namespace {

struct LanguageGuard
{
    int saved = g_language;
    ~LanguageGuard() { g_language = saved; }
};

QString peripheral(const QString &file)
{
    return testsupport::fixture("database/db/MQ48DB/device/MQ48T110/Peripherals/" + file);
}

IPNode edge()
{
    return ReadIPFile(testsupport::fixture("database/reader/EDGE-1.0.xml"));
}

QStringList names(const QList<ModeSignal> &signalList)
{
    QStringList list;
    for (const ModeSignal &s : signalList)
        list << s.signalName;
    return list;
}

} // namespace

TEST(PeripheralReader, TreeKeepsCommentsAndText)
{
    const IPNode root = edge();
    ASSERT_EQ(root.tagName, "IP");
    EXPECT_EQ(root.attribute("Name"), "EDGE");
    ASSERT_FALSE(root.children.isEmpty());
    EXPECT_TRUE(root.children.first().isEmpty()) << "the comment is an empty node";
    EXPECT_TRUE(root.children.first().attributes.isEmpty());

    const IPNode &withText = root.children.last();
    EXPECT_EQ(withText.tagName, "RefParameter");
    EXPECT_TRUE(withText.text.isEmpty()) << "an element with attributes loses its text";
    ASSERT_EQ(withText.attributes.size(), 2);
    EXPECT_EQ(withText.attributes[0].first, "Note") << "attributes in document order";

    const RefMode mode = GetRefMode("Async", root);
    EXPECT_EQ(mode.ConfigForMode, (QStringList{"edge_init", "edge_start"}));
}

TEST(PeripheralReader, ModesWithSubstitutionsAndRanges)
{
    LanguageGuard guard;
    g_language = 0;
    const QList<ModeOption> modes = GetIPModes("USART2", edge());
    ASSERT_EQ(modes.size(), 1) << "only Mode elements count";
    const ModeOption &mode = modes.first();
    EXPECT_EQ(mode.Name, "Basic");
    EXPECT_EQ(mode.displayName, "Basic");
    EXPECT_EQ(mode.RemoveCondition, "USART2_QFN");
    EXPECT_EQ(mode.LogicOperator, "XOR");
    EXPECT_EQ(mode.Expression, "M2|USART2_B") << "$Index from the trailing digits";
    EXPECT_TRUE(mode.AndFlag);
    EXPECT_EQ(mode.diagnosticText, "outer");
    EXPECT_EQ(mode.annotationText, "note");
    EXPECT_EQ(mode.semaphores, QStringList{"USART2_ON"});

    ASSERT_EQ(mode.signalGroups.size(), 2) << "a comment is no group; any element name is";
    const ModeSignalGroup &group = mode.signalGroups[0];
    EXPECT_EQ(group.RemoveCondition, "not USART2");
    EXPECT_EQ(group.Expression, "USART2_A&X$Index") << "level 3 keeps $Index";
    EXPECT_FALSE(group.AndFlag);
    EXPECT_EQ(group.LogicOp, "AND");
    EXPECT_EQ(group.semaphores, (QStringList{"USART2_RANGES", "PLAIN"}));
    EXPECT_EQ(mode.signalGroups[1].Name, "Second");

    ASSERT_EQ(group.signalList.size(), 5);
    EXPECT_EQ(names(group.signalList[0]), (QStringList{"USART2_CH1", "USART2_CH2", "USART2_CH3"}));
    EXPECT_TRUE(group.signalList[1].isEmpty()) << "a falling range gives nothing";
    EXPECT_EQ(names(group.signalList[2]), QStringList{"USART2_ch1--CH2"});
    EXPECT_EQ(group.signalList[2].first().IOMode, "Output");
    EXPECT_EQ(names(group.signalList[3]), QStringList{"EXINT5"});
    EXPECT_EQ(names(group.signalList[4]), QStringList{"IR_OUT"});
    for (const ModeSignal &s : group.signalList[0]) {
        EXPECT_EQ(s.IOMode, "Alternate");
        EXPECT_FALSE(s.Virtual);
    }

    g_language = 1;
    const ModeOption zh = GetIPModes("TMR", edge()).first();
    EXPECT_EQ(zh.displayName, "基本");
    EXPECT_EQ(zh.Expression, "M$Index|TMR_B") << "no trailing digits: $Index stays";
    EXPECT_TRUE(zh.signalGroups[0].displayName.isEmpty()) << "rule A has no fallback";
}

TEST(PeripheralReader, SignalNamesByInstance)
{
    EXPECT_EQ(FullSignalName("USART1", "TX"), "USART1_TX");
    EXPECT_EQ(FullSignalName("XMC", "A0"), "XMC_A0");
    EXPECT_EQ(FullSignalName("XMC_SDRAM_1", "EXINT3"), "EXINT3");
    EXPECT_EQ(FullSignalName("PWC", "WKUP2"), "WKUP2");
    EXPECT_EQ(ExpandSignalRange("IN3--IN3"), QStringList{"IN3"});
    EXPECT_EQ(ExpandSignalRange("A--B--C"), QStringList{"A--B--C"});
    EXPECT_EQ(ExpandSignalRange("x_CH9--CH10"), (QStringList{"CH9", "CH10"}));
}

TEST(PeripheralReader, RefSignals)
{
    const QList<ModeSignal> list = GetIPRefSignals("PWC", edge());
    ASSERT_EQ(list.size(), 3);
    EXPECT_EQ(list[0].signalName, "WKUP1");
    EXPECT_TRUE(list[0].enabled);
    EXPECT_FALSE(list[0].Virtual);
    EXPECT_EQ(list[1].signalName, "PWC_CLK");
    EXPECT_TRUE(list[1].Virtual);
    EXPECT_FALSE(list[2].Virtual) << "Virtual is compared exactly";
}

TEST(PeripheralReader, RefModeVariants)
{
    LanguageGuard guard;
    g_language = 1;
    const IPNode root = edge();
    const RefMode first = GetRefMode("Async", root);
    EXPECT_EQ(first.Comment, "first");
    EXPECT_EQ(first.HalMode, "HAL_ASYNC");
    EXPECT_TRUE(first.Group.isEmpty()) << "no GroupCH in a Chinese run: rule A";
    ASSERT_EQ(first.Parameters.size(), 1);
    EXPECT_EQ(first.Parameters[0].PossibleValues, (QStringList{"LOW", "HIGH"}));

    EXPECT_EQ(GetRefModeByBase("Async", "Base2", root).Comment, "second");
    EXPECT_EQ(GetRefModeByBase("Async", "Base2", root).Group, "第二");
    EXPECT_TRUE(GetRefModeByBase("Async", "Base3", root).Name.isEmpty());
    const RefMode abstract = GetAbstractRefMode(root);
    EXPECT_EQ(abstract.Name, "Abstract1");
    EXPECT_TRUE(abstract.Abstract);
    const RefMode none = GetRefMode("Nothing", root);
    EXPECT_TRUE(none.Name.isEmpty());
    EXPECT_FALSE(none.Abstract);
    EXPECT_EQ(GetAllRefModes(root).size(), 3);
}

TEST(PeripheralReader, RefModeUnderConcurrentReaders)
{
    const IPNode root = edge();
    QList<QThread *> threads;
    QAtomicInt failures;
    for (int t = 0; t < 4; ++t) {
        threads << QThread::create([&root, &failures] {
            for (int i = 0; i < 200; ++i) {
                if (GetRefMode("Async", root).Comment != QLatin1String("first"))
                    failures.ref();
            }
        });
        threads.last()->start();
    }
    for (QThread *thread : threads) {
        thread->wait();
        delete thread;
    }
    EXPECT_EQ(failures.loadRelaxed(), 0);
}

TEST(PeripheralReader, RefParameterFieldsAndRuleB)
{
    LanguageGuard guard;
    g_language = 1;
    const IPNode root = edge();
    const RefParameter p = GetRefParameter("USART3", "Speed", root);
    EXPECT_EQ(p.Name, "Speed");
    EXPECT_TRUE(p.InstanceName.isEmpty());
    EXPECT_EQ(p.Comment, "Speed") << "rule B falls back to English";
    EXPECT_EQ(p.CommentCH, "Speed") << "and overwrites the empty Chinese text";
    EXPECT_EQ(p.Group, "Main");
    EXPECT_EQ(p.Type, "list");
    EXPECT_EQ(p.DefaultValue, "LOW");
    EXPECT_EQ(p.Value, "LOW");
    EXPECT_FALSE(p.Visible);
    EXPECT_FALSE(p.Enable) << "only \"true\" in any case is true";
    EXPECT_TRUE(p.Reload);
    EXPECT_TRUE(p.Relevant);
    EXPECT_EQ(p.Description, "How fast");
    EXPECT_EQ(p.Expression, "USART3_ON|Mode=USART3");
    EXPECT_EQ(p.Diagnostic, "needs a mode") << "no Chinese diagnostic at this level";
    EXPECT_FALSE(p.AndFlag);
    EXPECT_EQ(p.Annotation, "a note");
    ASSERT_EQ(p.PossibleValues.size(), 2) << "a comment is no possible value";
    const RefParamValue &low = p.PossibleValues[0];
    EXPECT_EQ(low.Comment, "低");
    EXPECT_EQ(low.Semaphore, "USART3_LOW");
    EXPECT_EQ(low.Condition, "USART3_ON");
    EXPECT_EQ(low.Action, "act");
    EXPECT_FALSE(low.AndFlag);
    EXPECT_EQ(low.available, 0);
    const RefParamValue &high = p.PossibleValues[1];
    EXPECT_EQ(high.Comment, "High");
    EXPECT_EQ(high.CommentCH, "High");
    EXPECT_EQ(high.Diagnostic, "only English");
    EXPECT_TRUE(high.AndFlag);

    g_language = 0;
    const RefParameter en = GetRefParameter("USART3", "Speed", root);
    EXPECT_TRUE(en.CommentCH.isEmpty()) << "no side effect in an English run";

    EXPECT_TRUE(GetRefParameter("USART3", "Missing", root).Name.isEmpty());
    EXPECT_EQ(GetRefParameter("USART3", "Instance", root).DefaultValue, "EDGEx")
        << "the Instance rule belongs to GetRefParameters";
}

TEST(PeripheralReader, RefParametersListAndInstance)
{
    const IPNode root = edge();
    const QList<RefParameter> speeds = GetRefParameters("I2C1", "Speed", root);
    ASSERT_EQ(speeds.size(), 2);
    EXPECT_EQ(speeds[1].Type, "fancy") << "unknown types are plain text";
    const QList<RefParameter> instance = GetRefParameters("I2C1", "Instance", root);
    ASSERT_EQ(instance.size(), 1);
    EXPECT_EQ(instance[0].DefaultValue, "I2C1");
    EXPECT_EQ(instance[0].Value, "I2C1");
    EXPECT_EQ(GetAllRefParameters("I2C1", root).size(), 4);
}

TEST(PeripheralReader, GpioPins)
{
    const QList<GPIOPinRecord> pins = GetGPIOPinRecords(ReadIPFile(peripheral("GPIO-1.0.xml")));
    ASSERT_EQ(pins.size(), 2);
    const GPIOPinRecord &pa0 = pins[0];
    EXPECT_EQ(pa0.Name, "PA0");
    EXPECT_EQ(pa0.PortName, "GPIOA");
    EXPECT_EQ(pa0.GPIO_x, "GPIOA");
    EXPECT_EQ(pa0.GPIO_Pin, "GPIO_PINS_0");
    EXPECT_EQ(pa0.GPIO_PinSource, "GPIO_PINS_SOURCE0");
    EXPECT_EQ(pa0.EXINT_LINE_x, "EXINT_LINE_0");
    EXPECT_EQ(pa0.SCFG_GPIO_x, "SCFG_PORT_SOURCE_GPIOA");
    EXPECT_EQ(pa0.SCFG_PINS_SOURCE_x, "SCFG_PINS_SOURCE0");
    ASSERT_EQ(pa0.pinSignals.size(), 2);
    EXPECT_EQ(pa0.pinSignals[1], qMakePair(QString("USART2_CTS"), QString("GPIO_MUX_7")));
    const GPIOPinRecord &pa9 = pins[1];
    EXPECT_TRUE(pa9.EXINT_LINE_x.isEmpty());
    ASSERT_EQ(pa9.pinSignals.size(), 2);
    EXPECT_TRUE(pa9.pinSignals[1].first.isEmpty()) << "Name must be the first attribute";
    EXPECT_TRUE(pa9.pinSignals[1].second.isEmpty()) << "only SpecificParameter gives a value";
}

TEST(PeripheralReader, NvicTable)
{
    LanguageGuard guard;
    g_language = 0;
    IPNode root = ReadIPFile(peripheral("NVIC-1.0.xml"));
    QList<NVICInterrupt> irqs = GetNVICInterrupts(root);
    ASSERT_EQ(irqs.size(), 6);
    EXPECT_EQ(irqs[0].IRQName, "USART1_IRQn");
    EXPECT_EQ(irqs[0].Handler, "USART1_IRQHandler");
    EXPECT_TRUE(irqs[0].flag2);
    EXPECT_FALSE(irqs[0].flag3);
    EXPECT_TRUE(irqs[0].flag4);
    EXPECT_FALSE(irqs[0].flag5) << "\"n\"";
    EXPECT_TRUE(irqs[0].flag7) << "\"y\" upper-cased";
    EXPECT_EQ(irqs[1].defaultPreemption, 3);
    EXPECT_EQ(irqs[1].preemption, 3);
    EXPECT_EQ(irqs[1].defaultSub, 2);
    EXPECT_EQ(irqs[1].sub, 2);
    EXPECT_EQ(irqs[1].preemptionHigh, 0);
    EXPECT_EQ(irqs[2].IRQName, "TMR1_IRQn");
    EXPECT_EQ(irqs[2].Handler, "TMR1_IRQHandler");
    EXPECT_EQ(irqs[2].conditions, (QStringList{"TMR1", "TMR2"}));
    EXPECT_EQ(irqs[2].Diagnostic, "Shared line");
    EXPECT_EQ(irqs[0].Comment, "USART1 global interrupt");

    // An eight-field value is skipped; a value with extra commas goes to the greedy groups.
    QTemporaryDir dir;
    const QString path = dir.filePath("NVIC-x.xml");
    ASSERT_TRUE(
        testsupport::writeFile(path, "<IP><RefParameter Name=\"IRQn\">"
                                     "<PossibleValue Value=\"A_IRQn,Y,N:Y,N:0,Y:0\"/>"
                                     "<PossibleValue Value=\"B_IRQn,Y,N,N:Y,N:4,Y:1,B_Handler\"/>"
                                     "</RefParameter></IP>"));
    irqs = GetNVICInterrupts(ReadIPFile(path));
    ASSERT_EQ(irqs.size(), 1);
    EXPECT_EQ(irqs[0].IRQName, "B_IRQn");
    EXPECT_EQ(irqs[0].defaultPreemption, 4);
    EXPECT_EQ(irqs[0].conditions, QStringList{""});
    EXPECT_TRUE(GetNVICInterrupts(IPNode()).isEmpty());
}

TEST(PeripheralReader, DmaRequests)
{
    const QList<DMARequestInfo> requests = GetDMARequests(ReadIPFile(peripheral("DMA-1.0.xml")));
    ASSERT_EQ(requests.size(), 4);
    EXPECT_EQ(requests[0].Name, "USART1_TX");
    EXPECT_EQ(requests[0].kind, DMARequestKind::Peripheral);
    EXPECT_EQ(requests[0].IpInstance, "USART1");
    ASSERT_EQ(requests[0].Parameters.size(), 3);
    EXPECT_EQ(requests[0].Parameters[1].Comment, "Channel");
    EXPECT_EQ(requests[0].Parameters[1].DefaultValue, "DMA1_Channel4");
    EXPECT_EQ(requests[0].Parameters[1].PossibleValues,
              (QStringList{"DMA1_Channel4", "DMA1_Channel2"}));
    EXPECT_EQ(requests[1].kind, DMARequestKind::MemToMem);
    EXPECT_EQ(requests[2].kind, DMARequestKind::Generator);
    EXPECT_EQ(requests[2].controller, "DMA2");
    EXPECT_EQ(requests[3].controller, "DMA1");
}

TEST(PeripheralReader, FilePaths)
{
    setAppFolderOverride("/opt/pf");
    PeripheralListItem row;
    row.InstanceName = "USART1";
    row.Name = "USART";
    row.Version = "2.0";
    EXPECT_EQ(PeripheralFilePath("MQ48T110", row),
              "/opt/pf/MQ48DB/device/MQ48T110/Peripherals/USART-2.0.xml");
    row.Version.clear();
    EXPECT_TRUE(PeripheralFilePath("MQ48T110", row).isEmpty());

    PeripheralListItem dma;
    dma.InstanceName = "DMA";
    dma.Name = "DMAx";
    dma.Version = "3.1";
    const QList<PeripheralListItem> rows{row, dma};
    EXPECT_EQ(BlockPeripheralFilePath("MQ48T110", rows, "DMA"),
              "/opt/pf/MQ48DB/device/MQ48T110/Peripherals/DMA-3.1.xml");
    EXPECT_EQ(BlockPeripheralFilePath("MQ48T110", rows, "EDMA"),
              "/opt/pf/MQ48DB/device/MQ48T110/Peripherals/EDMA-.xml");
    EXPECT_EQ(DMASecondaryFilePath("MQ48T110", rows, "DMA"),
              "/opt/pf/MQ48DB/device/MQ48T110/device/Peripherals/DMA-3.1.xml");
    EXPECT_EQ(deviceFilePath("MQ48T110", "MQ48T110C8T7"),
              "/opt/pf/MQ48DB/device/MQ48T110/MQ48T110C8T7.xml");
    setAppFolderOverride(QString());
}

TEST(PeripheralReader, BadFilesGiveEmptyTree)
{
    QTemporaryDir dir;
    const QByteArray good = testsupport::readFile(peripheral("USART-2.0.xml"));
    ASSERT_FALSE(good.isEmpty());
    QStringList paths;
    for (int cut : {10, good.size() / 3, good.size() - 8}) {
        paths << dir.filePath(QString("cut%1.xml").arg(cut));
        ASSERT_TRUE(testsupport::writeFile(paths.last(), good.left(cut)));
    }
    paths << dir.filePath("wrongroot.xml");
    ASSERT_TRUE(testsupport::writeFile(paths.last(), "<Device><Mode Name=\"x\"/></Device>"));
    paths << dir.filePath("empty.xml");
    ASSERT_TRUE(testsupport::writeFile(paths.last(), ""));
    paths << dir.filePath("missing.xml");

    for (const QString &path : paths) {
        const IPNode root = ReadIPFile(path);
        EXPECT_TRUE(root.isEmpty()) << qPrintable(path);
        EXPECT_TRUE(root.children.isEmpty());
        EXPECT_TRUE(GetIPModes("USART1", root).isEmpty());
        EXPECT_TRUE(GetRefParameters("USART1", "BaudRate", root).isEmpty());
    }
    EXPECT_EQ(GetIPModes("USART1", ReadIPFile(peripheral("USART-2.0.xml"))).size(), 2);
}
