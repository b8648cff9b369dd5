#include "database/devicereader.h"
#include "database/paths.h"
#include "database/peripheralreader.h"
#include "tests/common/testsupport.h"

#include <QFileInfo>
#include <QSet>
#include <algorithm>
#include <gtest/gtest.h>
#include <memory>

// The shipped MQ48T110 database read through the program's own readers.

namespace {

const QString kSeries = QStringLiteral("MQ48T110");

QString devicePath(const QString &name)
{
    return testsupport::sourceDatabase() + "/device/MQ48T110/" + name + ".xml";
}

IPNode peripheral(const QString &stem)
{
    return ReadIPFile(testsupport::sourceDatabase() + "/device/MQ48T110/Peripherals/" + stem +
                      "-V1.0.xml");
}

const MCUPinsBaseInfo *pinNamed(const DevicePinInfo &info, const QString &name)
{
    for (const MCUPinsBaseInfo *pin : info.pins) {
        if (pin->PinName == name)
            return pin;
    }
    return nullptr;
}

bool hasFunc(const MCUPinsBaseInfo *pin, const QString &func)
{
    for (const MCUPinSignal *s : pin->signalList) {
        if (s->Func == func)
            return true;
    }
    return false;
}

// Every signal name that stands on some pin of the device.
QSet<QString> signalsOf(const DevicePinInfo &info)
{
    QSet<QString> out;
    for (const MCUPinsBaseInfo *pin : info.pins) {
        for (const MCUPinSignal *s : pin->signalList)
            out.insert(s->Func);
    }
    return out;
}

ModeOption modeNamed(const QList<ModeOption> &modes, const QString &name)
{
    for (const ModeOption &m : modes) {
        if (m.Name == name)
            return m;
    }
    return ModeOption();
}

} // namespace

TEST(T110Database, EveryDeviceLoadsWithThePinsOfItsPackage)
{
    const struct
    {
        const char *name;
        const char *package;
        int pins;
    } devices[] = {{"MQ48T110F6P", "TSSOP", 20}, {"MQ48T110F8P", "TSSOP", 20},
                   {"MQ48T110K6U", "QFN", 32},   {"MQ48T110K8U", "QFN", 32},
                   {"MQ48T110K8T", "LQFP", 32},  {"MQ48T110C8T", "LQFP", 48},
                   {"MQ48T110CBT", "LQFP", 48}};
    for (const auto &d : devices) {
        SCOPED_TRACE(d.name);
        std::unique_ptr<DevicePinInfo> info(NewDevicePinInfo(devicePath(d.name)));
        ASSERT_TRUE(info);
        EXPECT_EQ(info->MCUName, QString(d.name));
        EXPECT_EQ(info->Package, QString(d.package));
        EXPECT_EQ(info->PinNums, d.pins);
        QSet<int> numbers;
        for (const MCUPinsBaseInfo *pin : info->pins) {
            numbers.insert(pin->PinNum);
            if (pin->PinFixed) {
                EXPECT_TRUE(pin->signalList.isEmpty()) << pin->PinName.toStdString();
                continue;
            }
            EXPECT_TRUE(hasFunc(pin, "GPIO_Input") && hasFunc(pin, "GPIO_Output") &&
                        hasFunc(pin, "GPIO_Analog"))
                << pin->PinName.toStdString();
            EXPECT_FALSE(pin->Remarks_EN.isEmpty() || pin->Remarks_CH.isEmpty());
        }
        EXPECT_EQ(numbers.size(), d.pins);
        EXPECT_EQ(*std::min_element(numbers.begin(), numbers.end()), 1);
        EXPECT_EQ(*std::max_element(numbers.begin(), numbers.end()), d.pins);
        EXPECT_NE(GetDevicePID(devicePath(d.name)), 0u);
    }
}

TEST(T110Database, TssopPinsSeventeenAndEighteenSwapWithTheRemap)
{
    std::unique_ptr<DevicePinInfo> info(NewDevicePinInfo(devicePath("MQ48T110F6P")));
    ASSERT_TRUE(info);
    const MCUPinsBaseInfo *pa9 = pinNamed(*info, "PA9");
    const MCUPinsBaseInfo *pa11 = pinNamed(*info, "PA11");
    const MCUPinsBaseInfo *pa12 = pinNamed(*info, "PA12");
    ASSERT_TRUE(pa9 && pa11 && pa12);
    EXPECT_EQ(pa9->PinNum, 17);
    EXPECT_EQ(pa11->PinNum, 17);
    EXPECT_EQ(pa12->PinNum, 18);
    EXPECT_TRUE(pa9->remapOff);
    EXPECT_FALSE(pa11->remapOff);
    EXPECT_TRUE(hasFunc(pa11, "USART1_CTS"));
    EXPECT_TRUE(hasFunc(pa11, "EXINT11"));
    // The 48-pin package has both pins on their own, without variants.
    std::unique_ptr<DevicePinInfo> big(NewDevicePinInfo(devicePath("MQ48T110CBT")));
    ASSERT_TRUE(big);
    EXPECT_TRUE(pinNamed(*big, "PA11")->remapOff);
    EXPECT_NE(pinNamed(*big, "PA11")->PinNum, pinNamed(*big, "PA9")->PinNum);
}

TEST(T110Database, EveryListedPeripheralHasAFileWithModes)
{
    setAppFolderOverride(QFileInfo(testsupport::sourceDatabase()).path());
    const QList<PeripheralListItem> rows = GetPeripheralsList(devicePath("MQ48T110C8T"));
    ASSERT_EQ(rows.size(), 30);
    EXPECT_EQ(rows.first().InstanceName, QString("CRM"));
    for (const PeripheralListItem &row : rows) {
        SCOPED_TRACE(row.InstanceName.toStdString());
        const QString path = PeripheralFilePath(kSeries, row);
        ASSERT_TRUE(QFileInfo::exists(path)) << path.toStdString();
        const IPNode root = ReadIPFile(path);
        EXPECT_EQ(root.tagName, QString("IP"));
        if (row.InstanceName != "GPIO" && row.InstanceName != "NVIC" &&
            row.InstanceName != "DMA") {
            EXPECT_FALSE(GetIPModes(row.InstanceName, root).isEmpty());
        }
    }
    setAppFolderOverride(QString());
}

TEST(T110Database, ModeSignalsStandOnPinsOfTheLargestPackage)
{
    std::unique_ptr<DevicePinInfo> info(NewDevicePinInfo(devicePath("MQ48T110CBT")));
    ASSERT_TRUE(info);
    const QSet<QString> onPins = signalsOf(*info);
    for (const PeripheralListItem &row : GetPeripheralsList(devicePath("MQ48T110CBT"))) {
        const IPNode root = peripheral(row.Name);
        QSet<QString> virtualNames;
        for (const ModeSignal &s : GetIPRefSignals(row.InstanceName, root)) {
            if (s.Virtual)
                virtualNames.insert(s.signalName);
        }
        for (const ModeOption &mode : GetIPModes(row.InstanceName, root)) {
            for (const ModeSignalGroup &group : mode.signalGroups) {
                for (const QList<ModeSignal> &list : group.signalList) {
                    for (const ModeSignal &s : list) {
                        EXPECT_TRUE(onPins.contains(s.signalName) ||
                                    virtualNames.contains(s.signalName))
                            << row.InstanceName.toStdString() << " " << s.signalName.toStdString();
                    }
                }
            }
        }
    }
}

TEST(T110Database, InstanceSubstitutionsReachTheSharedFiles)
{
    const QList<ModeOption> usart = GetIPModes("USART2", peripheral("USART"));
    const ModeOption mode = modeNamed(usart, "Mode");
    ASSERT_FALSE(mode.signalGroups.isEmpty());
    const ModeSignalGroup async = mode.signalGroups.first();
    EXPECT_EQ(async.Name, QString("Asynchronous"));
    ASSERT_EQ(async.signalList.size(), 2);
    EXPECT_EQ(async.signalList[0][0].signalName, QString("USART2_TX"));
    EXPECT_EQ(async.signalList[1][0].signalName, QString("USART2_RX"));
    EXPECT_TRUE(async.semaphores.contains("USART2_ASYNC"));

    // SPI and I2S of one block lock each other out through the mode condition.
    EXPECT_EQ(modeNamed(GetIPModes("SPI1", peripheral("SPI")), "Mode").Expression,
              QString("!I2S1_USED"));
    EXPECT_EQ(modeNamed(GetIPModes("I2S2", peripheral("I2S")), "Mode").Expression,
              QString("!SPI2_USED"));

    const RefParameter rank =
        GetRefParameter("ADC1", "Channel_OrdinarySequence_3", peripheral("ADC1"));
    EXPECT_EQ(rank.Expression, QString("ADC1_ORD_ON&ADC1_ORD_NUM>2"));
}

TEST(T110Database, TimersWithSubordinateModeStartWithTheActivatedBox)
{
    for (const QString &stem : {QString("TMR1"), QString("TMR3"), QString("TMR15")}) {
        const QList<ModeOption> modes = GetIPModes(stem, peripheral(stem));
        ASSERT_GE(modes.size(), 3) << stem.toStdString();
        EXPECT_EQ(modes[0].Name, QString("Activated"));
        EXPECT_EQ(modes[1].Name, QString("Subordinate mode"));
        EXPECT_EQ(modes[2].Name, QString("Sub-mode input selection"));
    }
    const QList<RefParameter> tmr1 = GetAllRefParameters("TMR1", peripheral("TMR1"));
    QStringList names;
    for (const RefParameter &p : tmr1)
        names << p.Name;
    for (const char *n :
         {"Period", "DividerValue", "CounterDirection", "RepetitionCounter", "Channel4Mode",
          "OCMode_1", "OCCPolarity_3", "DeadTime", "Multi_Channels", "TMR_SubMode_Control"})
        EXPECT_TRUE(names.contains(n)) << n;
    EXPECT_FALSE(names.contains("OCCPolarity_4"));
}

TEST(T110Database, NvicTableHasTheSystemVectorsFirst)
{
    const IPNode nvic = peripheral("NVIC");
    const QList<NVICInterrupt> irqs = GetNVICInterrupts(nvic);
    ASSERT_EQ(irqs.size(), 39);
    EXPECT_EQ(irqs[0].IRQName, QString("Reset_IRQn"));
    EXPECT_EQ(irqs[9].IRQName, QString("SysTick_IRQn"));
    EXPECT_EQ(irqs[9].Handler, QString("SysTick_Handler"));
    EXPECT_TRUE(irqs[9].flag2);
    const NVICInterrupt &usart1 = irqs[36];
    EXPECT_EQ(usart1.Handler, QString("USART1_IRQHandler"));
    EXPECT_EQ(usart1.conditions, QStringList{"USART1"});
    EXPECT_FALSE(usart1.flag4);

    const RefParameter group = GetRefParameter("NVIC", "PriorityGroup", nvic);
    EXPECT_EQ(group.DefaultValue, QString("NVIC_PRIORITY_GROUP_4"));
    ASSERT_EQ(group.PossibleValues.size(), 5);
    // With two preemption bits the values 0 to 3 are legal, 4 is not.
    const RefParameter pre = GetRefParameter("NVIC", "PreemptionPriority", nvic);
    EXPECT_TRUE(pre.PossibleValues[3].Condition.contains("NVIC_PRIORITY_GROUP_2"));
    EXPECT_FALSE(pre.PossibleValues[4].Condition.contains("NVIC_PRIORITY_GROUP_2"));
}

TEST(T110Database, DmaRequestsNameTheirChannelsAndPeripherals)
{
    const QList<DMARequestInfo> requests = GetDMARequests(peripheral("DMA"));
    ASSERT_EQ(requests.size(), 39);
    int memToMem = 0;
    for (const DMARequestInfo &r : requests) {
        if (r.kind == DMARequestKind::MemToMem)
            ++memToMem;
        if (r.Name == "TMR16_CH1") {
            EXPECT_EQ(r.IpInstance, QString("TMR16"));
            for (const DMARequestParameter &p : r.Parameters) {
                if (p.Name == "Instance") {
                    EXPECT_EQ(p.PossibleValues, (QStringList{"DMA1_Channel3", "DMA1_Channel4"}));
                }
            }
        }
    }
    EXPECT_EQ(memToMem, 1);
}

TEST(T110Database, GpioFileCarriesMuxMacrosAndModeSettings)
{
    const IPNode gpio = peripheral("GPIO");
    const QList<GPIOPinRecord> pins = GetGPIOPinRecords(gpio);
    ASSERT_EQ(pins.size(), 39);
    bool found = false;
    for (const GPIOPinRecord &pin : pins) {
        if (pin.Name != "PA9")
            continue;
        found = true;
        EXPECT_EQ(pin.GPIO_x, QString("GPIOA"));
        EXPECT_EQ(pin.GPIO_Pin, QString("GPIO_PINS_9"));
        EXPECT_EQ(pin.SCFG_PINS_SOURCE_x, QString("SCFG_PINS_SOURCE9"));
        EXPECT_TRUE(pin.pinSignals.contains({"USART1_TX", "GPIO_MUX_1"}));
        EXPECT_TRUE(pin.pinSignals.contains({"CRM_CLKOUT", "GPIO_MUX_5"}));
    }
    EXPECT_TRUE(found);
    const RefMode od = GetRefMode("MuxOutputOpenDrain", gpio);
    ASSERT_FALSE(od.Parameters.isEmpty());
    bool typeSeen = false;
    for (const RefModeParameter &p : od.Parameters) {
        if (p.Name == "GPIO type") {
            typeSeen = true;
            EXPECT_EQ(p.PossibleValues.first(), QString("GPIO_OUTPUT_OPEN_DRAIN"));
        }
    }
    EXPECT_TRUE(typeSeen);
    EXPECT_EQ(GetRefParameter("GPIO", "Pull type", gpio).DefaultValue, QString("GPIO_PULL_NONE"));
}
