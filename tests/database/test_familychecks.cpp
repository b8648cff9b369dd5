// The checker on the kinds of data of the larger families: virtual signals with pins, the
// interrupt table, DMA and EDMA requests, several ADCs, CAN bit timing, semaphore routes,
// macro prefixes, remap groups and Multi functions. Each case plants defects in a copy of a
// small MQ48T510 database (two packages) and reads what the checker says.

#include "tests/database/planteddatabase.h"

#include <QFile>

namespace {

const QString kSeries = "device/MQ48T510/";
const QString kLarge = kSeries + "MQ48T510VGT.xml";
const QString kSmall = kSeries + "MQ48T510RGT.xml";
const QString kNvic = kSeries + "Peripherals/NVIC-V1.0.xml";
const QString kDma = kSeries + "Peripherals/DMA-V1.0.xml";
const QString kEdma = kSeries + "Peripherals/EDMA-V1.0.xml";
const QString kCan = kSeries + "Peripherals/CAN-V1.0.xml";

class FamilyDatabase : public PlantedDatabase
{
protected:
    QString source() const override { return testsupport::fixture("database/family/MQ48DB"); }
};

} // namespace

TEST_F(FamilyDatabase, ValidFamilyDatabaseHasNoDefects)
{
    // Among others: a NOR bank's name with "-" in a vector condition, the same generator
    // request line on two controllers, ADC1's inner channel 16 without a pin, and an
    // ADC-Common condition on ADC1's semaphore, which the family routes.
    EXPECT_EQ(defects(), QStringList());
}

TEST_F(FamilyDatabase, VirtualSignals)
{
    // Declared virtual by a RefSignal of its file, a mode signal needs no pin; undeclared,
    // it does.
    plant(kSeries + "Peripherals/ADC1-V1.0.xml",
          "<RefSignal Name=\"EXINT11\" IOMode=\"\" Virtual=\"true\"/>", "");
    // A virtual name that the mode logic reads as a pin needs that pin on some package.
    plant(kLarge, "PinName=\"PF15\"", "PinName=\"PF13\"");
    EXPECT_EQ(defects(),
              (QStringList{kSeries + "Peripherals/ADC1-V1.0.xml: Mode \"External trigger\" / "
                                     "\"External trigger\": signal \"EXINT11\" of ADC1 is on no "
                                     "pin of MQ48T510RGT, MQ48T510VGT",
                           kSeries + "Peripherals/SCFG-V1.0.xml: Mode \"PF15 Ultra Strength\": "
                                     "virtual signal \"SCFG_VS_PF15Ultra\" stands for pin "
                                     "\"PF15\", which no package of MQ48T510 has"}));
}

TEST_F(FamilyDatabase, InterruptConditionsNameInstancesOfTheSeries)
{
    plant(kNvic, "Condition=\"XMC_NORFlash-PSRAM-SRAM-ROM-LCD_1\"",
          "Condition=\"XMC_NORFlash-PSRAM-SRAM-ROM-LCD_2\"");
    plant(kNvic, "Condition=\"CAN1\"", "Condition=\"CAN1 TX\"");
    const QString prefix = kNvic + ": RefParameter \"IRQn\": vector ";
    EXPECT_EQ(defects(),
              (QStringList{prefix + "\"CAN1_TX_IRQn\": Condition \"CAN1 TX\" is not an instance "
                                    "name",
                           prefix + "\"XMC_IRQn\": Condition names "
                                    "\"XMC_NORFlash-PSRAM-SRAM-ROM-LCD_2\", which no device of "
                                    "the series lists"}));
}

TEST_F(FamilyDatabase, EdmaVectorsNeedTheEdmaController)
{
    // DMA1 and DMA2 stand for the DMA row, EDMA for the EDMA row: without that row its
    // vectors name nothing.
    for (const QString &device : {kSmall, kLarge})
        removeLine(device, "<Peripheral InstanceName=\"EDMA\"");
    const QString prefix = kNvic + ": RefParameter \"IRQn\": vector ";
    const QString tail = ": Condition names \"EDMA\", which no device of the series lists";
    EXPECT_EQ(defects(), (QStringList{prefix + "\"DMAMUX_IRQn\"" + tail,
                                      prefix + "\"EDMA_Stream1_IRQn\"" + tail,
                                      prefix + "\"EDMA_Stream2_IRQn\"" + tail}));
}

TEST_F(FamilyDatabase, VectorsAndHandlersStandOnce)
{
    plant(kNvic, "CAN1_TX_IRQn,Y,N:N,Y:0,Y:0,CAN1_TX_IRQHandler",
          "DMA1_Channel1_IRQn,Y,N:N,Y:0,Y:0,CAN1_TX_IRQHandler");
    plant(kNvic, "XMC_IRQn,Y,N:N,Y:0,Y:0,XMC_IRQHandler",
          "XMC_IRQn,Y,N:N,Y:0,Y:0,ADC1_2_IRQHandler");
    const QString prefix = kNvic + ": RefParameter \"IRQn\": vector ";
    EXPECT_EQ(defects(),
              (QStringList{prefix + "\"DMA1_Channel1_IRQn\" stands more than once",
                           prefix + "\"XMC_IRQn\": the handler \"ADC1_2_IRQHandler\" serves "
                                    "another vector as well"}));
}

TEST_F(FamilyDatabase, DmaChannelsHaveVectors)
{
    plant(kDma, "<PossibleValue>DMA1_Channel3</PossibleValue>",
          "<PossibleValue>DMA1_Channel9</PossibleValue>");
    plant(kDma, "<PossibleValue>DMA2_Channel1</PossibleValue>",
          "<PossibleValue>DMA3_Channel1</PossibleValue>");
    plant(kEdma, "<PossibleValue>EDMA_Stream2</PossibleValue>",
          "<PossibleValue>EDMA_Channel2</PossibleValue>");
    // A channel in the range of its controller whose vector is missing.
    plant(kNvic, "DMA1_Channel2_IRQn,Y,N:N,Y:0,Y:0,DMA1_Channel2_IRQHandler",
          "DMA1_Spare_IRQn,Y,N:N,Y:0,Y:0,DMA1_Spare_IRQHandler");
    // The EDMA file stands twice: the secondary copy now differs.
    EXPECT_EQ(defects(),
              (QStringList{kDma + ": RefMode \"ADC1\": channel \"DMA1_Channel2\" has no "
                                  "interrupt vector",
                           kDma + ": RefMode \"ADC1\": channel \"DMA3_Channel1\": the interrupt "
                                  "table has no vector of DMA3",
                           kDma + ": RefMode \"MEMTOMEM\": channel \"DMA1_Channel9\" lies "
                                  "beyond the channels of DMA1 (1 to 3)",
                           kDma + ": RefMode \"DMA1_GENERATOR\": channel \"DMA1_Channel2\" has "
                                  "no interrupt vector",
                           kEdma + ": RefMode \"ADC2\": channel \"EDMA_Channel2\" is neither "
                                   "DMA<n>_Channel<m> nor EDMA_Stream<k>",
                           kSeries + "device/Peripherals/EDMA-V1.0.xml: differs from "
                                     "\"Peripherals/EDMA-V1.0.xml\""}));
}

TEST_F(FamilyDatabase, DmaRequestsNameListedInstancesAndOwnLines)
{
    plant(kDma, "<PossibleValue>ADC1</PossibleValue>", "<PossibleValue>ADC3</PossibleValue>");
    // Two requests on one controller with one request line; on two controllers it is fine.
    plant(kDma, "DefaultValue=\"DMA2_Channel1\">\n            <PossibleValue>DMA2_Channel1",
          "DefaultValue=\"DMA2_Channel1\">\n            <PossibleValue>DMA1_Channel1");
    EXPECT_EQ(defects(),
              (QStringList{kDma + ": RefMode \"ADC1\": IpInstance \"ADC3\" is no instance that "
                                  "a device of MQ48T510 lists",
                           kDma + ": RefMode \"DMA2_GENERATOR\": RequestSelect "
                                  "\"DMAMUX_DMAREQ_ID_REQ_G1\" is the request line of "
                                  "\"DMA1_GENERATOR\" on the same controller as well"}));
}

TEST_F(FamilyDatabase, EdmaHasItsSecondaryCopy)
{
    ASSERT_TRUE(QFile::remove(folder() + "/" + kSeries + "device/Peripherals/EDMA-V1.0.xml"));
    EXPECT_EQ(defects(), QStringList{kEdma + ": the series has DMA and EDMA, but no "
                                             "\"device/Peripherals/EDMA-V1.0.xml\""});
}

TEST_F(FamilyDatabase, AdcChannelsNeedTheirPins)
{
    const QString adc2 = kSeries + "Peripherals/ADC2-V1.0.xml";
    plant(adc2, "Value=\"ADC_CHANNEL_1\" Comment", "Value=\"ADC_CHANNEL_17\" Comment");
    plant(adc2, "    </RefParameter>",
          "        <PossibleValue Value=\"ADC_CHANNEL_5\" Comment=\"Channel 5\" "
          "CommentCH=\"通道 5\"/>\n    </RefParameter>");
    // ADC-Common shares ADC1's settings: a package that lists it needs ADC1 too.
    removeLine(kSmall, "<Peripheral InstanceName=\"ADC1\"");
    const QString prefix = adc2 + ": RefParameter \"Channel_1\": ";
    EXPECT_EQ(defects(),
              (QStringList{kSmall + ": PeripheralsList \"ADC-Common\": ADC-Common is listed "
                                    "without ADC1, whose settings it shares",
                           prefix + "\"ADC_CHANNEL_17\" of ADC2: channels 16 and 17 are "
                                    "ADC1's inner channels only",
                           prefix + "\"ADC_CHANNEL_5\" of ADC2 needs \"ADC2_IN5\", which is on "
                                    "no pin of MQ48T510RGT, MQ48T510VGT"}));
}

TEST_F(FamilyDatabase, CanBitTimingRanges)
{
    plant(kCan,
          "Name=\"BTS1\" Comment=\"Time segment 1\" CommentCH=\"时间段 1\" Group=\"Bit "
          "timing\" GroupCH=\"位时序\" Type=\"integer\" DefaultValue=\"13\" Min=\"1\" "
          "Max=\"16\"",
          "Name=\"BTS1\" Comment=\"Time segment 1\" CommentCH=\"时间段 1\" Group=\"Bit "
          "timing\" GroupCH=\"位时序\" Type=\"integer\" DefaultValue=\"13\" Min=\"1\" "
          "Max=\"15\"");
    // The larger families have a twelve-bit prescaler.
    plant(kCan, "Max=\"4096\"", "Max=\"1024\"");
    plant(kCan, "Type=\"double\" DefaultValue=\"87.5\"", "Type=\"integer\" DefaultValue=\"87\"");
    plant(kCan, "<PossibleValue Value=\"4\"", "<PossibleValue Value=\"5\"");
    plant(kCan, "<RefParameter Name=\"BTS2\"", "<RefParameter Name=\"BTS_2\"");
    const QString prefix = kCan + ": RefParameter ";
    EXPECT_EQ(defects(),
              (QStringList{prefix + "\"BTS1\": ranges \"1\" to \"15\"; the controller of "
                                    "MQ48T510 takes 1 to 16",
                           kCan + ": the bit timing parameter \"BTS2\" is missing",
                           prefix + "\"BaudRate_Division\": ranges \"1\" to \"1024\"; the "
                                    "controller of MQ48T510 takes 1 to 4096",
                           prefix + "\"Sample_Point\": the sample point is a percentage with a "
                                    "fraction: its Type must be \"double\", not \"integer\"",
                           prefix + "\"RSAW\": value \"5\" is no jump width of 1 to 4 quanta"}));
}

TEST_F(FamilyDatabase, ConditionsOnAnotherInstanceNeedARoute)
{
    // ADC1's semaphores reach ADC-Common on this family, but not ADC2.
    plant(kSeries + "Peripherals/ADC2-V1.0.xml",
          "Value=\"ADC12_ORDINARY_TRIG_TMR1CH1\" Comment=\"TMR1 channel 1\"",
          "Value=\"ADC12_ORDINARY_TRIG_TMR1CH1\" Condition=\"ADC1_IN1\" Comment=\"TMR1 "
          "channel 1\"");
    EXPECT_EQ(defects(), QStringList{kSeries + "Peripherals/ADC2-V1.0.xml: RefParameter "
                                               "\"Trigger\": ADC2 reads \"ADC1_IN1\" of ADC1, "
                                               "but on MQ48T510 no semaphore of theirs reaches "
                                               "ADC2"});
}

TEST_F(FamilyDatabase, MacroValuesOfTheirModule)
{
    plant(kCan, "Value=\"CAN_MODE_LOOPBACK\"", "Value=\"SPI_MODE_LOOPBACK\"");
    plant(kSeries + "Peripherals/XMC1-V1.0.xml", "Value=\"XMC_MEMORY_WIDTH_16\"",
          "Value=\"XMC-MEMORY-WIDTH-16\"");
    // Mixed case is a panel setting, not a macro.
    plant(kSeries + "Peripherals/ADC1-V1.0.xml", "Value=\"ADC_LEFT_ALIGNMENT\"",
          "Value=\"LeftAligned\"");
    plant(kSeries + "Peripherals/ADC1-V1.0.xml", "DefaultValue=\"ADC_RIGHT_ALIGNMENT\"",
          "DefaultValue=\"LeftAligned\"");
    EXPECT_EQ(defects(),
              (QStringList{kCan + ": RefParameter \"CAN_Mode\": macro \"SPI_MODE_LOOPBACK\" is "
                                  "not of the module CAN_",
                           kSeries + "Peripherals/XMC1-V1.0.xml: RefParameter \"DataWidth\": "
                                     "value \"XMC-MEMORY-WIDTH-16\" is no macro name"}));
}

TEST_F(FamilyDatabase, RemapGroups)
{
    plant(kLarge, "GroupNum=\"1\" GMUX=\"CAN1_GMUX_01\"", "GroupNum=\"1\" GMUX=\"\"");
    plant(kSmall, "</Section>\n    <Section term=\"PeripheralsList\">",
          "    <Group IPName=\"CAN1\" GroupNum=\"2\" GMUX=\"CAN1_GMUX_01\">\n"
          "            <Signal SignalName=\"CAN1_RX\" PinName=\"PB8\"/>\n"
          "        </Group>\n"
          "    </Section>\n    <Section term=\"PeripheralsList\">");
    EXPECT_EQ(defects(),
              (QStringList{kSmall + ": PinsSignalsGroup \"CAN1\" 2: GMUX \"CAN1_GMUX_01\" is "
                                    "also the one of group 1",
                           kLarge + ": PinsSignalsGroup \"CAN1\" 1: the group has no GMUX; only "
                                    "group 0, the default placing, goes without a remap"}));
}

TEST_F(FamilyDatabase, MultiFunctionsSharePins)
{
    plant(kLarge, "<Signal Func=\"XMC_A0\" IOMode=\"MuxOutputPushPull\" Multi=\"true\"/>",
          "<Signal Func=\"XMC_A0\" IOMode=\"MuxOutputPushPull\"/>");
    EXPECT_EQ(defects(), QStringList{kLarge + ": Pin \"PD14\": \"XMC_D0\" is Multi, but no other "
                                              "function of the pin is: it shares the pin with "
                                              "nothing"});
}
