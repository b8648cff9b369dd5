#include "database/devicereader.h"
#include "database/language.h"
#include "tests/common/testsupport.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

namespace {

QString device(const QString &name)
{
    return testsupport::fixture("database/db/MQ48DB/device/MQ48T110/" + name + ".xml");
}

struct LanguageGuard
{
    int saved = g_language;
    ~LanguageGuard() { g_language = saved; }
};

const MCUPinsBaseInfo *pinNamed(const DevicePinInfo &info, const QString &name,
                                const QString &variant = QString())
{
    for (const MCUPinsBaseInfo *pin : info.pins) {
        if (pin->PinName.trimmed() == name && (variant.isEmpty() || pin->Variant == variant))
            return pin;
    }
    return nullptr;
}

} // namespace

TEST(DeviceReader, SectionAttributesAndPID)
{
    const QString path = device("MQ48T110C8T7");
    EXPECT_EQ(GetSectionAttribute(path, "MCUBaseInfo", "MCUName"), "MQ48T110C8T7")
        << "the first child carrying the attribute wins";
    EXPECT_EQ(GetSectionAttribute(path, "MCUBaseInfo", "Package"), "LQFP48");
    EXPECT_TRUE(GetSectionAttribute(path, "MCUBaseInfo", "Nothing").isEmpty());
    EXPECT_TRUE(GetSectionAttribute(path, "NoSuchTerm", "MCUName").isEmpty());
    EXPECT_EQ(GetDevicePID(path), 0x50011234u);
    EXPECT_EQ(GetDevicePID(device("MQ48T110K8U7")), 0x50011235u);
    EXPECT_EQ(GetDevicePID(device("missing")), 0u);
}

TEST(DeviceReader, BuildsPinsAndSignals)
{
    LanguageGuard guard;
    g_language = 0;
    DevicePinInfo info;
    ASSERT_TRUE(ReadDevicePinInfo(device("MQ48T110C8T7"), &info));
    EXPECT_EQ(info.MCUName, "MQ48T110C8T7");
    EXPECT_EQ(info.Package, "LQFP48");
    EXPECT_EQ(info.xPinNum, 12);
    EXPECT_EQ(info.yPinNum, 12);
    EXPECT_EQ(info.PinNums, 48);
    EXPECT_EQ(info.rotation, 0);
    EXPECT_EQ(info.devicePath, device("MQ48T110C8T7"));
    ASSERT_EQ(info.pins.size(), 15);

    const MCUPinsBaseInfo *vdd = info.pins.first();
    EXPECT_EQ(vdd->PinNum, 1);
    EXPECT_TRUE(vdd->PinFixed);
    EXPECT_EQ(vdd->Remarks, "Digital supply");
    EXPECT_EQ(vdd->Remarks_CH, "数字电源");
    EXPECT_TRUE(vdd->signalList.isEmpty());

    const MCUPinsBaseInfo *vss = info.pins.last();
    EXPECT_FALSE(vss->PinFixed) << "\"TRUE\" is not \"true\"";
    EXPECT_TRUE(vss->remapOff) << "only the exact \"PINREMAP\" clears remapOff";

    const MCUPinsBaseInfo *pa9 = pinNamed(info, "PA9");
    ASSERT_NE(pa9, nullptr);
    EXPECT_EQ(pa9->PinName, "PA9 ") << "trailing blanks are kept";
    EXPECT_EQ(pa9->GPIOStructure, "FT");
    EXPECT_EQ(pa9->PinType, "I/O");
    ASSERT_EQ(pa9->signalList.size(), 3);
    EXPECT_EQ(pa9->signalList[1]->Func, "USART1_TX");
    EXPECT_EQ(pa9->signalList[1]->IOMode, "Alternate");
    EXPECT_EQ(pa9->signalList[1]->InPin, "PA9 ");
    EXPECT_EQ(pa9->signalList[1]->status, 0);
    EXPECT_FALSE(pa9->signalList[1]->Multi);

    const MCUPinsBaseInfo *remap = pinNamed(info, "PB6", "PINREMAP");
    const MCUPinsBaseInfo *noRemap = pinNamed(info, "PB6", "NOPINREMAP");
    ASSERT_TRUE(remap && noRemap);
    EXPECT_FALSE(remap->remapOff);
    EXPECT_TRUE(noRemap->remapOff);
    EXPECT_EQ(remap->PinNum, noRemap->PinNum);

    const MCUPinsBaseInfo *pb0 = pinNamed(info, "PB0");
    ASSERT_NE(pb0, nullptr);
    const MCUPinSignal *adc = pb0->signalList.at(1);
    EXPECT_TRUE(adc->Multi);
    EXPECT_EQ(adc->InPin, "PB0/PB1");
    ASSERT_EQ(adc->multiPins.size(), 2);
    EXPECT_EQ(adc->multiPins[0].Func, "ADC1_IN9");
    EXPECT_EQ(adc->multiPins[0].PinNum, 13);
    EXPECT_EQ(adc->multiPins[1].PinNum, 0);
    EXPECT_FALSE(pinNamed(info, "PB1")->signalList.first()->Multi) << "\"True\" is not \"true\"";
}

TEST(DeviceReader, RemarksByLanguage)
{
    LanguageGuard guard;
    g_language = 1;
    std::unique_ptr<DevicePinInfo> info(NewDevicePinInfo(device("MQ48T110C8T7")));
    EXPECT_EQ(info->pins.first()->Remarks, "数字电源");
    EXPECT_TRUE(pinNamed(*info, "PA0")->Remarks.isEmpty());
}

TEST(DeviceReader, GroupsResolveAndDropPerPackage)
{
    DevicePinInfo big;
    ASSERT_TRUE(ReadDevicePinInfo(device("MQ48T110C8T7"), &big));
    ASSERT_EQ(big.signalGroups.size(), 3);
    const PinsSignalsGroup &usart = big.signalGroups[0];
    EXPECT_EQ(usart.IPName, "USART1");
    EXPECT_EQ(usart.GMUX, "USART1_GMUX_0000");
    ASSERT_EQ(usart.signalList.size(), 2);
    EXPECT_EQ(usart.signalList[0].pinIndex, 7) << "\"PA9\" matches the pin \"PA9 \"";
    EXPECT_EQ(usart.signalList[1].pinIndex, 8);
    EXPECT_EQ(big.signalGroups[1].GroupNum, 1);
    EXPECT_EQ(big.signalGroups[1].signalList[0].pinIndex, 10);
    const PinsSignalsGroup &tmr = big.signalGroups[2];
    EXPECT_EQ(tmr.GroupNum, 0);
    EXPECT_FALSE(tmr.signalList[0].TMRIPCanUse);
    EXPECT_TRUE(tmr.signalList[1].TMRIPCanUse) << "only \"NO\" clears it";
    EXPECT_TRUE(tmr.signalList[2].TMRIPCanUse);

    // The small package lacks PA10, PB6 and PB7: one signal leaves the first group and the
    // second group disappears.
    DevicePinInfo small;
    ASSERT_TRUE(ReadDevicePinInfo(device("MQ48T110K8U7"), &small));
    ASSERT_EQ(small.signalGroups.size(), 2);
    EXPECT_EQ(small.signalGroups[0].GMUX, "USART1_GMUX_0000");
    ASSERT_EQ(small.signalGroups[0].signalList.size(), 1);
    EXPECT_EQ(small.signalGroups[0].signalList[0].SignalName, "USART1_TX");
    EXPECT_EQ(small.signalGroups[1].IPName, "TMR2");

    const QList<PinsSignalsGroup> raw = GetPinsSignalsGroups(device("MQ48T110K8U7"));
    ASSERT_EQ(raw.size(), 3);
    EXPECT_EQ(raw[1].signalList[0].pinIndex, -1);
}

TEST(DeviceReader, PeripheralsList)
{
    LanguageGuard guard;
    g_language = 0;
    const QList<PeripheralListItem> rows = GetPeripheralsList(device("MQ48T110C8T7"));
    ASSERT_EQ(rows.size(), 8);
    EXPECT_EQ(rows[3].InstanceName, "USART1");
    EXPECT_EQ(rows[3].Name, "USART");
    EXPECT_EQ(rows[3].Version, "2.0");
    EXPECT_EQ(rows[3].GroupName, "Connectivity");
    EXPECT_EQ(rows[3].Config, "uart");
    EXPECT_EQ(rows[3].AboutText, "Serial port 1");
    EXPECT_TRUE(rows[7].Version.isEmpty());
    g_language = 1;
    EXPECT_EQ(GetPeripheralsList(device("MQ48T110C8T7"))[3].AboutText, "串口1");
}

TEST(DeviceReader, PinNameComparison)
{
    EXPECT_TRUE(PinNamesMatch("PA9 ", "PA9"));
    EXPECT_TRUE(PinNamesMatch("PA9 (remap)", "PA9"));
    EXPECT_TRUE(PinNamesMatch("PA11/PA9 x", "PA9"));
    EXPECT_TRUE(PinNamesMatch("PA9", "PB1/PA9"));
    EXPECT_TRUE(PinNamesMatch("VDD and more", "VDD and more"));
    EXPECT_FALSE(PinNamesMatch("PA9", "PA90"));
    EXPECT_FALSE(PinNamesMatch("PA1", "PA10/PA11"));
    EXPECT_FALSE(PinNamesMatch("x PA9", "PA9"));
    EXPECT_FALSE(PinNamesMatch("", "PA9"));
}

TEST(DeviceReader, BadFilesGiveEmptyResults)
{
    QTemporaryDir dir;
    const QByteArray good = testsupport::readFile(device("MQ48T110C8T7"));
    const QString truncated = dir.filePath("truncated.xml");
    ASSERT_TRUE(testsupport::writeFile(truncated, good.left(good.size() * 2 / 3)));
    const QString binary = dir.filePath("binary.xml");
    ASSERT_TRUE(testsupport::writeFile(binary, QByteArray("\x00\x01\xff<", 4)));

    for (const QString &path : {truncated, binary, dir.filePath("missing.xml")}) {
        DevicePinInfo info;
        info.pins.append(new MCUPinsBaseInfo); // a previous content is discarded
        EXPECT_FALSE(ReadDevicePinInfo(path, &info));
        EXPECT_TRUE(info.pins.isEmpty());
        EXPECT_TRUE(info.signalGroups.isEmpty());
        EXPECT_EQ(info.PinNums, 0);
        EXPECT_EQ(info.devicePath, path);
        EXPECT_TRUE(GetPeripheralsList(path).isEmpty());
        EXPECT_EQ(GetDevicePID(path), 0u);
        EXPECT_TRUE(GetSectionAttribute(path, "MCUBaseInfo", "MCUName").isEmpty());
    }
}

TEST(DeviceReader, NonNumbersReadAsZero)
{
    QTemporaryDir dir;
    const QString path = dir.filePath("odd.xml");
    ASSERT_TRUE(testsupport::writeFile(
        path, "<D><S term=\"MCUBaseInfo\"><I xPinNum=\"twelve\" PinNums=\" 20 \" PID=\"zz\"/></S>"
              "<S term=\"PinsList\"><P PinNum=\"x\" PinName=\"PA0\"/></S></D>"));
    DevicePinInfo info;
    ASSERT_TRUE(ReadDevicePinInfo(path, &info));
    EXPECT_EQ(info.xPinNum, 0);
    EXPECT_EQ(info.PinNums, 20);
    EXPECT_EQ(info.pins.first()->PinNum, 0);
    EXPECT_EQ(GetDevicePID(path), 0u);
}

TEST(Records, PinCopiesShareSignals)
{
    auto info = std::make_unique<DevicePinInfo>();
    auto *pin = new MCUPinsBaseInfo;
    pin->signalList.append(new MCUPinSignal);
    info->pins.append(pin);
    MCUPinsBaseInfo view = *pin;
    view.signalList.first()->status = SIGNAL_PIN_ONLY;
    EXPECT_EQ(pin->signalList.first()->status, SIGNAL_PIN_ONLY);
    info.reset(); // deletes the pin and its signal once; the view must not be used after
}
