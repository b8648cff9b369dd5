#include "app/designloader.h"
#include "app/workformrules.h"
#include "database/language.h"
#include "database/paths.h"
#include "tests/common/testsupport.h"

#include <QDir>
#include <gtest/gtest.h>

namespace {

// Points the database at the work form's fixture for the lifetime of the object.
struct FixtureDatabase
{
    FixtureDatabase() { setAppFolderOverride(testsupport::fixture(QStringLiteral("workform"))); }
    ~FixtureDatabase() { setAppFolderOverride(QString()); }
};

QStringList instanceNames(const QList<PeripheralListItem> &rows)
{
    QStringList names;
    for (const PeripheralListItem &row : rows)
        names << row.InstanceName;
    return names;
}

QStringList dmaNames(const QList<DMATree> &trees)
{
    QStringList names;
    for (const DMATree &tree : trees)
        names << tree.name;
    return names;
}

TEST(DesignLoader, ReadsEveryPartOfTheDeviceInBuildOrder)
{
    FixtureDatabase db;
    DesignData data;
    ASSERT_TRUE(DesignLoader().load(QStringLiteral("MQ48T110"), QStringLiteral("MQ48T110FX"),
                                    QStringLiteral("LQFP8"), &data));

    EXPECT_EQ(data.loadSteps,
              QStringList({"catalogue", "devicePath", "devicePinInfo", "pid", "peripheralList",
                           "gpioTree", "nvicTree", "dmaTree:DMA", "gpioPins", "gpioRows",
                           "nvicInterrupts", "clockModel"}));
    EXPECT_TRUE(data.inCatalogue);
    EXPECT_EQ(data.catalogueRow.Flash, QStringLiteral("32 KB"));
    EXPECT_EQ(
        QDir::cleanPath(data.devicePath),
        QDir::cleanPath(testsupport::fixture("workform/MQ48DB/device/MQ48T110/MQ48T110FX.xml")));
    EXPECT_EQ(data.pid, 0x5110A001u);
    ASSERT_NE(data.devicePinInfo, nullptr);
    EXPECT_EQ(data.devicePinInfo->PinNums, 8);
    EXPECT_EQ(data.devicePinInfo->pins.size(), 8);
    EXPECT_EQ(instanceNames(data.peripheralList),
              QStringList({"CRM", "DMA", "GPIO", "NVIC", "USART1"}));
    EXPECT_EQ(data.gpioTree.tagName, QStringLiteral("IP"));
    EXPECT_EQ(data.nvicTree.tagName, QStringLiteral("IP"));
    EXPECT_EQ(dmaNames(data.dmaTrees), QStringList({"DMA"}));
    EXPECT_FALSE(data.dmaTrees.first().tree.isEmpty());
    EXPECT_TRUE(data.dmaTrees.first().secondaryPath.contains(
        QStringLiteral("/device/Peripherals/DMA-v1_0.xml")));

    ASSERT_EQ(data.gpioPins.size(), 3);
    EXPECT_EQ(data.gpioPins.at(0)->Name, QStringLiteral("PA0"));
    EXPECT_EQ(data.gpioPins.at(0)->GPIO_Pin, QStringLiteral("GPIO_PINS_0"));
    // Only pins that carry functions become GPIO rows, in pin order.
    QStringList rowPins;
    for (const MCUPinsBaseInfo *pin : data.gpioRows)
        rowPins << pin->PinName;
    EXPECT_EQ(rowPins, QStringList({"PA0", "PA1", "PB0", "PF0"}));
    // The malformed IRQn entry is skipped.
    ASSERT_EQ(data.nvicInterrupts.size(), 2);
    EXPECT_EQ(data.nvicInterrupts.at(1)->Handler, QStringLiteral("USART1_IRQHandler"));
    EXPECT_EQ(data.clockModel, 9);
}

TEST(DesignLoader, KeepsEveryListedDmaControllerAndDropsTheOldDesign)
{
    FixtureDatabase db;
    DesignData data;
    DesignLoader loader;
    loader.load(QStringLiteral("MQ48T110"), QStringLiteral("MQ48T110FX"), QString(), &data);
    ASSERT_FALSE(data.gpioPins.isEmpty());

    ASSERT_TRUE(loader.load(QStringLiteral("MQ48T230"), QStringLiteral("MQ48T230QY"),
                            QStringLiteral("QFN12"), &data));
    EXPECT_EQ(data.mcuName, QStringLiteral("MQ48T230QY"));
    EXPECT_EQ(data.pid, 0x5230B002u);
    // DMA before EDMA, whatever the order of the list; a listed file that is missing still
    // gives a (empty) controller.
    EXPECT_EQ(dmaNames(data.dmaTrees), QStringList({"DMA", "EDMA"}));
    EXPECT_TRUE(data.dmaTrees.at(0).tree.isEmpty());
    EXPECT_FALSE(data.dmaTrees.at(1).tree.isEmpty());
    // No GPIO or NVIC block: nothing of the previous device survives.
    EXPECT_TRUE(data.gpioPins.isEmpty());
    EXPECT_TRUE(data.nvicInterrupts.isEmpty());
    EXPECT_TRUE(data.gpioTree.isEmpty());
    EXPECT_EQ(data.clockModel, 2);
}

TEST(DesignLoader, UnknownDeviceGivesAnEmptyPackage)
{
    FixtureDatabase db;
    DesignData data;
    EXPECT_FALSE(
        DesignLoader().load(QStringLiteral("MQ48T110"), QStringLiteral("NOPE"), QString(), &data));
    EXPECT_FALSE(data.inCatalogue);
    ASSERT_NE(data.devicePinInfo, nullptr);
    EXPECT_TRUE(data.devicePinInfo->pins.isEmpty());
    EXPECT_TRUE(data.peripheralList.isEmpty());
    EXPECT_TRUE(data.dmaTrees.isEmpty());
    EXPECT_EQ(data.pid, 0u);
}

TEST(DesignLoader, SystemBlocksAreTheFourWithPanelsOfTheirOwn)
{
    for (const char *name : {"GPIO", "NVIC", "DMA", "EDMA"})
        EXPECT_TRUE(DesignLoader::isSystemBlock(QString::fromLatin1(name))) << name;
    for (const char *name : {"DMA1", "USART1", "gpio", ""})
        EXPECT_FALSE(DesignLoader::isSystemBlock(QString::fromLatin1(name))) << name;
}

TEST(WorkFormRules, EverySeriesOfTheFamilyListSelectsItsClockPage)
{
    const QList<QPair<QString, int>> expected = {
        {"MQ48T510", 13}, {"MQ48T520", 14}, {"MQ48T250", 7},  {"MQ48V250", 24},
        {"MQ48T260", 8},  {"MQ48T110", 9},  {"MQ48T120", 15}, {"MQ48T320", 5},
        {"MQ48W320", 17}, {"MQ48T310", 4},  {"MQ48T230", 2},  {"MQ48T050", 16},
        {"MQ48T130", 18}, {"MQ48V130", 29}, {"MQ48T220", 19}, {"MQ48T210", 20}};
    for (const auto &pair : expected)
        EXPECT_EQ(WorkFormRules::clockModelOfSeries(pair.first), pair.second)
            << pair.first.toStdString();
    EXPECT_EQ(WorkFormRules::clockModelOfSeries(QStringLiteral("MQ48T999")), 0);
    EXPECT_EQ(WorkFormRules::clockModelOfSeries(QStringLiteral("mq48t510")), 0);
}

TEST(WorkFormRules, PinPageWarnsWhileAnyPanelIsUnfinished)
{
    QMap<QString, IPSTATUS> panels{{"USART1", IPSTATUS_ACTIVE}, {"ADC1", IPSTATUS_INACTIVE}};
    EXPECT_FALSE(WorkFormRules::pinPageWarns(IPSTATUS_ACTIVE, panels));
    EXPECT_TRUE(WorkFormRules::pinPageWarns(IPSTATUS_ACTIVE | IPSTATUS_UNFINISHED, panels));
    panels.insert("SPI1", IPSTATUS_INACTIVE | IPSTATUS_UNFINISHED);
    EXPECT_TRUE(WorkFormRules::pinPageWarns(IPSTATUS_ACTIVE, panels));

    EXPECT_TRUE(WorkFormRules::changeUpdatesClock(QStringLiteral("USB_OTGHS1")));
    EXPECT_TRUE(WorkFormRules::changeUpdatesClock(QStringLiteral("I2C1")));
    EXPECT_FALSE(WorkFormRules::changeUpdatesClock(QStringLiteral("I2C2")));
    EXPECT_FALSE(WorkFormRules::changeUpdatesClock(QStringLiteral("USART4")));
}

TEST(WorkFormRules, ManualAndHomePageFollowTheLanguage)
{
    EXPECT_EQ(WorkFormRules::manualPath(QStringLiteral("/opt/pf"), 1),
              QStringLiteral("/opt/pf/../Documents/UM_MQ48_Pin_Forge.pdf"));
    EXPECT_EQ(WorkFormRules::manualPath(QStringLiteral("/opt/pf"), 0),
              QStringLiteral("/opt/pf/../Documents/UM_MQ48_Pin_Forge_EN.pdf"));
    EXPECT_NE(WorkFormRules::homePageUrl(0), WorkFormRules::homePageUrl(1));
    EXPECT_TRUE(WorkFormRules::homePageUrl(0).isValid());

    const QList<int> sizes = WorkFormRules::splitterSizes(1920);
    EXPECT_EQ(sizes, QList<int>({256, 832, 832}));
}

} // namespace

TEST(WorkFormRules, SemaphoresTravelOnlyAlongTheFamilysPairs)
{
    using WorkFormRules::semaphoreTargets;
    // Pairs run both ways where the family says so, and one way otherwise.
    EXPECT_EQ(semaphoreTargets("MQ48T110", "I2S2"), QStringList{"SPI2"});
    EXPECT_EQ(semaphoreTargets("MQ48T110", "SPI2"), QStringList{"I2S2"});
    EXPECT_EQ(semaphoreTargets("MQ48T110", "TMR16"), QStringList{"TMR17"});
    EXPECT_TRUE(semaphoreTargets("MQ48T110", "TMR17").isEmpty());
    EXPECT_TRUE(semaphoreTargets("MQ48T110", "I2S3").isEmpty());
    EXPECT_EQ(semaphoreTargets("MQ48T120", "I2S3"), QStringList{"SPI3"});

    EXPECT_EQ(semaphoreTargets("MQ48T520", "ADC-Common"), (QStringList{"ADC1", "ADC2", "ADC3"}));
    EXPECT_EQ(semaphoreTargets("MQ48T520", "SCFG"), (QStringList{"I2S2", "I2S3"}));
    EXPECT_EQ(semaphoreTargets("MQ48T250", "EXINT"), (QStringList{"ADC1", "ADC2", "DAC"}));
    EXPECT_EQ(semaphoreTargets("MQ48W320", "CMP1"), QStringList{"CMP2"});
    EXPECT_EQ(semaphoreTargets("MQ48T310", "USBFS"), QStringList{"ACC"});
    // A family without a row and an unknown sender route nowhere.
    EXPECT_TRUE(semaphoreTargets("MQ48T230", "I2S1").isEmpty());
    EXPECT_TRUE(semaphoreTargets("MQ48T110", "USART1").isEmpty());
}
