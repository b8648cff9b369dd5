#include "app/designdocument.h"
#include "tests/common/testsupport.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

DesignDocument fullDocument()
{
    DesignDocument doc;
    doc.series = QStringLiteral("MQ48T110");
    doc.device = QStringLiteral("MQ48T110C8T");
    doc.package = QStringLiteral("LQFP48");
    doc.peripherals.append({QStringLiteral("USART1"),
                            {{QStringLiteral("Mode"), QStringLiteral("Asynchronous")}},
                            {{QStringLiteral("BaudRate"), QStringLiteral("9600")}}});
    doc.peripherals.append({QStringLiteral("DEBUG"), {{QStringLiteral("SWD"), "FALSE"}}, {}});
    doc.dmaBlocks.append({QStringLiteral("DMA1"),
                          {{QStringLiteral("USART1_TX"),
                            {{QStringLiteral("Instance"), QStringLiteral("DMA1_Channel2")},
                             {QStringLiteral("Priority"), QStringLiteral("DMA_PRIORITY_HIGH")}}},
                           {QStringLiteral("MEMTOMEM2"),
                            {{QStringLiteral("Instance"), QStringLiteral("DMA1_Channel5")}}}}});
    doc.nvic.present = true;
    doc.nvic.priorityGroup = QStringLiteral("NVIC_PRIORITY_GROUP_2");
    doc.nvic.showType = 0;
    doc.nvic.interrupts = {{QStringLiteral("USART1_IRQHandler"), QStringLiteral("1;2;1")}};
    doc.gpio.present = true;
    doc.gpio.showType = 1;
    doc.gpio.signalList.append({QStringLiteral("USART1_TX"),
                                QStringLiteral("PA9"),
                                {{QStringLiteral("GPIO_Pull"), QStringLiteral("GPIO_PULL_UP")},
                                 {QStringLiteral("Label"), QStringLiteral("DEBUG_TX")}}});
    doc.hasClock = true;
    doc.clock = {{QStringLiteral("hext"), QStringLiteral("8")},
                 {QStringLiteral("sclkselect"), QStringLiteral("2")}};
    doc.pins = {{QStringLiteral("PA9"), QStringLiteral("USART1_TX"), 3},
                {QStringLiteral("PB0"), QStringLiteral("GPIO_Output"), 1}};
    doc.hasProject = true;
    doc.project.projectName = QStringLiteral("blinky");
    doc.project.projectLocation = QStringLiteral("/home/user/work");
    doc.project.toolchainIDE = QStringLiteral("MDK_V5");
    doc.project.keepUserCode = false;
    doc.project.minHeapSize = QStringLiteral("0x200");
    doc.project.minStackSize = QStringLiteral("0x400");
    doc.project.packageVersion = QStringLiteral("V2.0.0");
    return doc;
}

QStringList rootChildren(const QByteArray &xml)
{
    QStringList names;
    const QString text = QString::fromUtf8(xml);
    int pos = 0;
    // The writer indents root children by four blanks.
    while ((pos = text.indexOf(QStringLiteral("\n    <"), pos)) >= 0) {
        pos += 6;
        if (text.at(pos) == QLatin1Char('/'))
            continue;
        int end = pos;
        while (end < text.size() && (text.at(end).isLetterOrNumber() || text.at(end) == '_'))
            ++end;
        names << text.mid(pos, end - pos);
    }
    return names;
}

TEST(DesignDocument, WritesBlocksInTheirOrderAndReadsThemBackUnchanged)
{
    const DesignDocument doc = fullDocument();
    const QByteArray xml = designDocumentToXml(doc);
    EXPECT_EQ(rootChildren(xml),
              QStringList({"MCUInfo", "USART1", "DEBUG", "DMA1", "NVIC", "GPIO",
                           "ClockConfiguration", "PINInfo", "ProjectInfomation"}));
    EXPECT_TRUE(xml.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));

    DesignDocument back;
    const DesignReadResult result = parseDesignDocument(xml, &back);
    ASSERT_EQ(result.status, DesignReadStatus::Ok);
    EXPECT_TRUE(result.problems.isEmpty()) << result.problems.join('\n').toStdString();
    EXPECT_EQ(result.formatVersion, kDesignFormatVersion);
    EXPECT_EQ(designDocumentToXml(back), xml);

    ASSERT_NE(back.peripheral(QStringLiteral("USART1")), nullptr);
    EXPECT_EQ(back.peripheral(QStringLiteral("USART1"))->parameters.value(0).second, "9600");
    EXPECT_EQ(back.dmaBlocks.value(0).requests.value(1).element, "MEMTOMEM2");
    EXPECT_EQ(back.nvic.priorityGroup, "NVIC_PRIORITY_GROUP_2");
    EXPECT_EQ(back.gpio.signalList.value(0).parameters.value(1).second, "DEBUG_TX");
    EXPECT_EQ(back.pins.value(1).signalType, 1);
    EXPECT_FALSE(back.project.keepUserCode);
}

TEST(DesignDocument, LeavesOutBlocksThatHoldNothing)
{
    DesignDocument doc;
    doc.series = QStringLiteral("MQ48T110");
    doc.device = QStringLiteral("MQ48T110C8T");
    doc.package = QStringLiteral("LQFP48");
    doc.gpio.present = true;
    doc.nvic.present = true; // defaults: group and show type are left out
    const QByteArray xml = designDocumentToXml(doc);
    EXPECT_EQ(rootChildren(xml), QStringList({"MCUInfo", "NVIC", "GPIO"}));
    EXPECT_FALSE(xml.contains("ShowType"));
    EXPECT_FALSE(xml.contains("PriorityGroup"));
    // A peripheral without changed parameters has no Parameters element.
    doc.peripherals.append({QStringLiteral("TMR1"), {{"Activated", "TRUE"}}, {}});
    EXPECT_FALSE(designDocumentToXml(doc).contains("<Parameters"));
}

TEST(DesignDocument, OnlyTheMisspeltProjectBlockCounts)
{
    QByteArray xml = designDocumentToXml(fullDocument());
    xml.replace("ProjectInfomation", "ProjectInformation");
    DesignDocument doc;
    ASSERT_EQ(parseDesignDocument(xml, &doc).status, DesignReadStatus::Ok);
    EXPECT_FALSE(doc.hasProject);
    // ... and the correct spelling is taken as a peripheral block nobody has.
    EXPECT_NE(doc.peripheral(QStringLiteral("ProjectInformation")), nullptr);
}

TEST(DesignDocument, BrokenFilesAreRefusedWithTheirReason)
{
    DesignDocument doc;
    const QByteArray good = designDocumentToXml(fullDocument());
    EXPECT_EQ(parseDesignDocument(QByteArray(), &doc).status, DesignReadStatus::Unreadable);
    EXPECT_EQ(parseDesignDocument(good.left(good.size() / 2), &doc).status,
              DesignReadStatus::Unreadable);
    EXPECT_EQ(parseDesignDocument("not xml at all", &doc).status, DesignReadStatus::Unreadable);
    EXPECT_EQ(
        parseDesignDocument("<Configuration><Language>UI_EN</Language></Configuration>", &doc)
            .status,
        DesignReadStatus::NotADesign);
    EXPECT_EQ(
        parseDesignDocument("<Root><MCUInfo><MCUName>X</MCUName></MCUInfo></Root>", &doc).status,
        DesignReadStatus::NoDeviceInfo);

    QByteArray deep = "<Root><MCUInfo><MCUSerials>A</MCUSerials><MCUName>B</MCUName>"
                      "<MCUPackage>C</MCUPackage></MCUInfo><USART1>";
    deep += QByteArray("<a>").repeated(100000) + QByteArray("</a>").repeated(100000);
    deep += "</USART1></Root>";
    EXPECT_EQ(parseDesignDocument(deep, &doc).status, DesignReadStatus::Unreadable);

    QTemporaryDir dir;
    EXPECT_EQ(readDesignDocument(dir.filePath("absent.MQPF"), &doc).status,
              DesignReadStatus::NotFound);
}

TEST(DesignDocument, SkipsWhatMakesNoSenseAndKeepsTheRest)
{
    QByteArray xml = designDocumentToXml(fullDocument());
    // A second USART1 block, a nameless parameter, a bad show type, a bad pin type.
    xml.replace("<DMA1>", "<USART1><Mode><ModeSub name=\"Mode\" value=\"Off\"/></Mode></USART1>"
                          "<DMA1>");
    xml.replace("<ParametersSub name=\"BaudRate\"", "<ParametersSub name=\"\"");
    xml.replace("<ShowType>1</ShowType>", "<ShowType>seven</ShowType>");
    xml.replace("signaltype=\"1\"", "signaltype=\"1abc\"");
    DesignDocument doc;
    const DesignReadResult result = parseDesignDocument(xml, &doc);
    ASSERT_EQ(result.status, DesignReadStatus::Ok);
    EXPECT_EQ(result.problems.size(), 4) << result.problems.join('\n').toStdString();
    EXPECT_EQ(doc.peripherals.size(), 2);
    EXPECT_EQ(doc.peripheral(QStringLiteral("USART1"))->modes.value(0).second, "Asynchronous");
    EXPECT_TRUE(doc.peripheral(QStringLiteral("USART1"))->parameters.isEmpty());
    EXPECT_EQ(doc.gpio.showType, 0);
    EXPECT_EQ(doc.pins.size(), 1);
    EXPECT_EQ(doc.dmaBlocks.size(), 1);
}

TEST(DesignDocument, TellsANewerOrUnknownFormat)
{
    QByteArray xml = designDocumentToXml(fullDocument());
    DesignDocument doc;
    EXPECT_FALSE(parseDesignDocument(xml, &doc).newerFormat());
    xml.replace("FormatVersion=\"1\"", "FormatVersion=\"7\"");
    EXPECT_TRUE(parseDesignDocument(xml, &doc).newerFormat());
    xml.replace("FormatVersion=\"7\"", "FormatVersion=\"x\"");
    EXPECT_TRUE(parseDesignDocument(xml, &doc).newerFormat());
    xml.replace(" FormatVersion=\"x\"", "");
    const DesignReadResult old = parseDesignDocument(xml, &doc);
    EXPECT_EQ(old.formatVersion, 0);
    EXPECT_FALSE(old.newerFormat());
}

TEST(DesignDocument, AFailedSaveLeavesThePreviousFile)
{
    QTemporaryDir dir;
    const QString path = dir.filePath("design.MQPF");
    QString error;
    ASSERT_TRUE(writeDesignDocument(path, fullDocument(), &error)) << error.toStdString();
    const QByteArray before = testsupport::readFile(path);

    // A target that can't be written: a folder in the way.
    QDir(dir.path()).mkdir(QStringLiteral("blocked.MQPF"));
    EXPECT_FALSE(writeDesignDocument(dir.filePath("blocked.MQPF"), fullDocument(), &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_FALSE(writeDesignDocument(dir.filePath("no/such/folder.MQPF"), fullDocument(), &error));
    EXPECT_EQ(testsupport::readFile(path), before);
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList({"design.MQPF"}));
}

} // namespace
