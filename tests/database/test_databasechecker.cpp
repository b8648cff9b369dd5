#include "tests/database/planteddatabase.h"

#include <QFile>
#include <QProcess>

namespace {

const QString kSeries = "device/MQ48T110/";

} // namespace

TEST_F(PlantedDatabase, ValidDatabaseHasNoDefects)
{
    EXPECT_EQ(defects(), QStringList());
}

TEST_F(PlantedDatabase, FilesThatDoNotParseOrHaveTheWrongRoot)
{
    const QString usart = kSeries + "Peripherals/USART-2.0.xml";
    const QByteArray content = testsupport::readFile(folder() + "/" + usart);
    ASSERT_TRUE(testsupport::writeFile(folder() + "/" + usart, content.left(content.size() / 2)));
    plant(kSeries + "Peripherals/TMR-1.0.xml", "<IP Name=\"TMR\"", "<Peripheral Name=\"TMR\"");
    plant(kSeries + "Peripherals/TMR-1.0.xml", "</IP>", "</Peripheral>");
    EXPECT_EQ(defects(),
              (QStringList{kSeries + "Peripherals/TMR-1.0.xml: root element is \"Peripheral\", "
                                     "not \"IP\"",
                           kSeries + "Peripherals/USART-2.0.xml: does not parse: line 29: "
                                     "Premature end of document."}));
}

TEST_F(PlantedDatabase, MissingDeviceFileAndCatalogue)
{
    ASSERT_TRUE(QFile::remove(folder() + "/" + kSeries + "MQ48T110K8U7.xml"));
    EXPECT_EQ(defects(), QStringList{kSeries + "MQ48T110K8U7.xml: file is missing"});
    ASSERT_TRUE(QFile::remove(folder() + "/MCUList.xml"));
    EXPECT_EQ(defects(), QStringList{"MCUList.xml: file is missing"});
}

TEST_F(PlantedDatabase, RowWithoutFile)
{
    plant(kSeries + "MQ48T110K8U7.xml", "Name=\"USART\" Version=\"2.0\"",
          "Name=\"USART\" Version=\"2.1\"");
    EXPECT_EQ(defects(), QStringList{kSeries + "MQ48T110K8U7.xml: PeripheralsList \"USART1\": "
                                               "no file \"Peripherals/USART-2.1.xml\""});
}

TEST_F(PlantedDatabase, SignalOnNoPin)
{
    // A virtual signal needn't be on a pin; a real one must be, for every instance.
    plant(kSeries + "Peripherals/USART-2.0.xml", "<Signal Name=\"RX\" IOMode=\"Alternate\"/>",
          "<Signal Name=\"RX\" IOMode=\"Alternate\"/><Signal Name=\"SYNC\" Virtual=\"true\"/>"
          "<Signal Name=\"RXD\" IOMode=\"Alternate\"/>");
    const QString prefix = kSeries + "Peripherals/USART-2.0.xml: Mode \"Mode\" / "
                                     "\"Asynchronous\": signal ";
    EXPECT_EQ(defects(),
              (QStringList{prefix + "\"USART1_RXD\" of USART1 is on no pin of MQ48T110C8T7, "
                                    "MQ48T110K8U7",
                           prefix + "\"USART2_RXD\" of USART2 is on no pin of MQ48T110C8T7, "
                                    "MQ48T110K8U7"}));
}

TEST_F(PlantedDatabase, RangeBeyondThePins)
{
    plant(kSeries + "Peripherals/TMR-1.0.xml", "CH1--CH4", "CH1--CH5");
    EXPECT_EQ(kinds(),
              (QList<DefectKind>{DefectKind::SignalNotOnPin, DefectKind::SignalNotOnPin}));
    EXPECT_TRUE(defects().first().endsWith("signal \"TMR1_CH5\" of TMR1 is on no pin of "
                                           "MQ48T110C8T7, MQ48T110K8U7"));
}

TEST_F(PlantedDatabase, GroupPinOnNoPackage)
{
    plant(kSeries + "MQ48T110C8T7.xml", "PinName=\"PB7\"/>", "PinName=\"PC13\"/>");
    EXPECT_EQ(defects(), QStringList{kSeries + "MQ48T110C8T7.xml: PinsSignalsGroup \"USART1\" 1: "
                                               "pin \"PC13\" of signal \"USART1_RX\" is on no "
                                               "package of MQ48T110"});
}

TEST_F(PlantedDatabase, IRQnValueOffPattern)
{
    plant(kSeries + "Peripherals/NVIC-1.0.xml", "N:2,USART2_IRQHandler", "N:2");
    EXPECT_EQ(defects(), QStringList{kSeries + "Peripherals/NVIC-1.0.xml: RefParameter \"IRQn\": "
                                               "value \"USART2_IRQn,N,Y:N,Y:3,N:2\" does not "
                                               "match the IRQn pattern"});
}

TEST_F(PlantedDatabase, UnknownType)
{
    plant(kSeries + "Peripherals/USART-2.0.xml", "Type=\"integer\"", "Type=\"int\"");
    EXPECT_EQ(defects(), QStringList{kSeries + "Peripherals/USART-2.0.xml: RefParameter "
                                               "\"BaudRate\": unknown Type \"int\""});
}

TEST_F(PlantedDatabase, TextEmptyInOneLanguage)
{
    plant(kSeries + "Peripherals/USART-2.0.xml", "CommentCH=\"波特率\"", "");
    plant(kSeries + "MQ48T110C8T7.xml", "About=\"Serial port 1\"", "About=\"\"");
    // A number needs no translation.
    plant(kSeries + "Peripherals/NVIC-1.0.xml", "Comment=\"15\" CommentCH=\"15\"",
          "Comment=\"15\"");
    EXPECT_EQ(defects(),
              (QStringList{kSeries + "MQ48T110C8T7.xml: PeripheralsList \"USART1\": \"About\" is "
                                     "empty but \"AboutCH\" is not",
                           kSeries + "Peripherals/USART-2.0.xml: RefParameter \"BaudRate\": "
                                     "\"CommentCH\" is empty but \"Comment\" is not"}));
}

TEST_F(PlantedDatabase, ConditionNamesNothing)
{
    plant(kSeries + "Peripherals/USART-2.0.xml", "$IpInstance_ASYNC|$IpInstance_HALF",
          "$IpInstance_ASYNC|$IpInstance_SYNC");
    plant(kSeries + "Peripherals/TMR-1.0.xml", "Condition=\"Prescaler>0x0\"",
          "Condition=\"Prescale>0x0\"");
    const QString usart = kSeries + "Peripherals/USART-2.0.xml: RefParameter \"Parity\": ";
    EXPECT_EQ(defects(),
              (QStringList{kSeries + "Peripherals/TMR-1.0.xml: RefParameter \"ClockDivision\" / "
                                     "PossibleValue \"TMR_CLOCK_DIV2\": Condition names "
                                     "\"Prescale\", which nothing defines",
                           usart + "Expression names \"USART1_SYNC\", which nothing defines",
                           usart + "Expression names \"USART2_SYNC\", which nothing defines"}));
}

TEST_F(PlantedDatabase, ModeExpressionNamesNothing)
{
    plant(kSeries + "Peripherals/TMR-1.0.xml", "!TMR$Index_ONEPULSE", "!TMR$Index_TWOPULSE");
    const QString prefix = kSeries + "Peripherals/TMR-1.0.xml: Mode \"PWM\": Expression names ";
    EXPECT_EQ(defects(), (QStringList{prefix + "\"TMR1_TWOPULSE\", which nothing defines",
                                      prefix + "\"TMR2_TWOPULSE\", which nothing defines"}));
}

TEST_F(PlantedDatabase, DefaultOutsideRangeOrValues)
{
    plant(kSeries + "Peripherals/USART-2.0.xml", "DefaultValue=\"115200\"",
          "DefaultValue=\"300\"");
    plant(kSeries + "Peripherals/USART-2.0.xml", "DefaultValue=\"USART_DATA_8BITS\"",
          "DefaultValue=\"USART_DATA_7BITS\"");
    plant(kSeries + "Peripherals/USART-2.0.xml", "DefaultValue=\"0x01\"", "DefaultValue=\"1FF\"");
    const QString prefix = kSeries + "Peripherals/USART-2.0.xml: RefParameter ";
    EXPECT_EQ(defects(),
              (QStringList{prefix + "\"BaudRate\": default value \"300\" is outside "
                                    "1200..4500000",
                           prefix + "\"WordLength\": default value \"USART_DATA_7BITS\" is not "
                                    "among its possible values",
                           prefix + "\"IrDAPrescaler\": default value \"1FF\" is outside "
                                    "0x01..0xFF"}));
}

TEST_F(PlantedDatabase, CommandLineTool)
{
#ifndef MQ48DBCHECK_PATH
    GTEST_SKIP() << "mq48dbcheck is not part of this build";
#else
    const QString tool = QStringLiteral(MQ48DBCHECK_PATH);
    QProcess process;
    process.start(tool, {folder()});
    ASSERT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 0);

    plant(kSeries + "Peripherals/USART-2.0.xml", "Type=\"integer\"", "Type=\"int\"");
    process.start(tool, {folder()});
    ASSERT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 1);
    const QString output = QString::fromUtf8(process.readAllStandardOutput());
    EXPECT_TRUE(output.contains("[unknown-type] " + kSeries + "Peripherals/USART-2.0.xml"));
    EXPECT_TRUE(output.contains("1 defect(s): unknown-type=1"));

    process.start(tool, {folder() + "/nothing"});
    ASSERT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 2);
#endif
}
