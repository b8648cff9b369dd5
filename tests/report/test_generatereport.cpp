// The report's PDF from inputs made by hand, read back with poppler's tools: sections in
// their order, header, footer and page numbers, long tables over pages, long cells inside
// the page, Chinese captions with an embedded font, and files that cannot be written.

#include "app/uifont.h"
#include "database/language.h"
#include "pdftext.h"
#include "report/generatereport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <gtest/gtest.h>

namespace {

const QStringList kSections = {
    "1 Overview",         "1.1 Project",
    "1.2 MCU Information", "1.3 Cores Information",
    "2 Pinout Configuration", "3 Pins Configuration",
    "4 Clock Tree Configuration", "5 Software Project",
    "5.1 Project Settings", "6 Peripherals and Middlewares Configuration",
    "7 System Configuration", "7.1 DMA Configuration",
    "7.2 GPIO Configuration", "7.3 NVIC Configuration",
    "IMPORTANT NOTICE - PLEASE READ CAREFULLY"};

class ReportPdfTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(pdftext::available()) << "poppler-utils is missing (tools/install-deps.sh)";
        InstallUiFont();
        m_language = g_language;
        g_language = 0;
        ASSERT_TRUE(dir.isValid());
    }
    void TearDown() override { g_language = m_language; }

    // A small design: a few pins, one peripheral, no DMA request.
    static ReportInputs inputs()
    {
        ReportInputs in;
        in.project.projectName = QStringLiteral("blinky");
        in.project.projectFolder = QStringLiteral("/home/user/blinky");
        in.project.toolchain = QStringLiteral("Keil MDK V5");
        in.project.minHeapSize = QStringLiteral("0x200");
        in.project.minStackSize = QStringLiteral("0x400");
        in.project.date = QDate(2024, 5, 17);
        in.project.version = QStringLiteral("V1.0.08");
        in.mcu = {QStringLiteral("MQ48T510"), QStringLiteral("MQ48T510RGT"),
                  QStringLiteral("LQFP64"), 64, QStringLiteral("1024 KB"),
                  QStringLiteral("384 KB"), QStringLiteral("512 KB")};
        for (int i = 1; i <= 4; ++i)
            in.pins << ReportPinRow{i, QStringLiteral("PA%1").arg(i), QStringLiteral("I/O"),
                                    QStringLiteral("FT"), QString(), QString()};
        in.pins[1].signal = QStringLiteral("USART1_TX");
        in.pins[1].label = QStringLiteral("CONSOLE_TX");
        ReportPeripheral usart;
        usart.instance = QStringLiteral("USART1");
        usart.enabled = true;
        usart.modes << ReportNameValue{QStringLiteral("Mode"), QStringLiteral("Asynchronous")};
        usart.parameters << ReportParameterRow{QStringLiteral("Basic Parameters"),
                                               QStringLiteral("Baud Rate"),
                                               QStringLiteral("9600 Bits/s"), true}
                         << ReportParameterRow{QStringLiteral("Basic Parameters"),
                                               QStringLiteral("Stop Bits"),
                                               QStringLiteral("1"), false};
        in.peripherals << usart;
        in.dma << ReportDmaController();
        in.priorityGroup = QStringLiteral("4 bits for preemption");
        in.nvic << ReportNvicRow{QStringLiteral("USART1 global interrupt"),
                                 QStringLiteral("true"), QStringLiteral("1"),
                                 QStringLiteral("0")};
        return in;
    }

    QString write(const ReportInputs &in, int *pages = nullptr)
    {
        const QString path = dir.filePath(QStringLiteral("report%1.pdf").arg(++m_count));
        GenerateReport report;
        report.setInputs(in);
        QString error;
        EXPECT_TRUE(report.writePdf(path, &error)) << error.toStdString();
        if (pages)
            *pages = report.pageCount();
        return path;
    }

    // The page of the report that holds a text, 0 when none does.
    static int pageOf(const QStringList &pages, const QString &text, int from = 1)
    {
        for (int p = from; p <= pages.size(); ++p) {
            if (pages.at(p - 1).contains(text))
                return p;
        }
        return 0;
    }

    QTemporaryDir dir;

private:
    int m_language = 0;
    int m_count = 0;
};

QString simplified(const QString &text)
{
    return text.simplified();
}

} // namespace

TEST_F(ReportPdfTest, SectionsComeInOrderEachPageWithHeaderFooterAndNumber)
{
    int painted = 0;
    const QString pdf = write(inputs(), &painted);
    const QStringList pages = pdftext::pages(pdf);
    ASSERT_EQ(pages.size(), painted);
    EXPECT_EQ(pdftext::info(pdf, "Title"), QStringLiteral("MQ48 PinForeg Configuration Report"));
    EXPECT_EQ(pdftext::info(pdf, "Creator"), QStringLiteral("Velmora Technology"));
    EXPECT_TRUE(pdftext::info(pdf, "Page size").contains("A4"));

    const QString all = simplified(pages.join(QLatin1Char('\n')));
    int at = 0;
    for (const QString &title : kSections) {
        const int found = all.indexOf(title, at);
        EXPECT_GE(found, 0) << "missing or out of order: " << title.toStdString();
        if (found >= 0)
            at = found + title.size();
    }
    // Sections 2 to 7 and the notice each begin a page of their own; with this small design
    // that makes eight pages.
    EXPECT_EQ(pages.size(), 8);
    EXPECT_EQ(pageOf(pages, "2 Pinout Configuration"), 2);
    EXPECT_EQ(pageOf(pages, "IMPORTANT NOTICE"), 8);
    for (int p = 1; p <= pages.size(); ++p) {
        const QStringList lines = pages.at(p - 1).split('\n', Qt::SkipEmptyParts);
        ASSERT_GE(lines.size(), 2);
        EXPECT_TRUE(lines.first().contains("MQ48 PinForge Configuration Report")) << p;
        EXPECT_EQ(simplified(lines.last()), QStringLiteral("2024-05-17 %1").arg(p)) << p;
    }

    // The facts of the overview and of the project settings.
    EXPECT_TRUE(all.contains("Generated with MQ48 PinForge V1.0.08"));
    EXPECT_TRUE(all.contains("MCU Pin number 64"));
    EXPECT_TRUE(all.contains("SRAM Default: 384 KB"));
    EXPECT_TRUE(all.contains("Max: 512 KB"));
    EXPECT_TRUE(all.contains("Cores ARM Cortex-M4"));
    EXPECT_TRUE(all.contains("Toolchain/IDE Keil MDK V5"));
    EXPECT_TRUE(all.contains("Minimum Stack Size 0x400"));
    EXPECT_TRUE(all.contains("2 PA2 I/O FT USART1_TX CONSOLE_TX"));
    EXPECT_TRUE(all.contains("State Enable"));
    EXPECT_TRUE(all.contains("Baud Rate 9600 Bits/s Yes"));
    EXPECT_TRUE(all.contains("Stop Bits 1"));
    EXPECT_FALSE(all.contains("Stop Bits 1 Yes"));
    EXPECT_TRUE(all.contains("Nothing configuration in DMA Service."));
    EXPECT_TRUE(all.contains("Priority Group: 4 bits for preemption"));
    EXPECT_TRUE(all.contains("USART1 global interrupt true 1 0"));
}

TEST_F(ReportPdfTest, ADeviceWithoutLargerSramAndADesignWithoutPeripheralsPrintLess)
{
    ReportInputs in = inputs();
    in.mcu.maxSram.clear();
    in.peripherals.clear();
    in.dma.clear(); // a device without DMA still says so
    const QStringList pages = pdftext::pages(write(in));
    const QString all = simplified(pages.join(QLatin1Char('\n')));
    EXPECT_TRUE(all.contains("SRAM 384 KB"));
    EXPECT_FALSE(all.contains("Default:"));
    EXPECT_TRUE(all.contains("Nothing configuration in DMA Service."));
    // Section 6 is its heading alone.
    const int six = pageOf(pages, "6 Peripherals and Middlewares Configuration");
    ASSERT_GT(six, 0);
    const QStringList lines = pages.at(six - 1).split('\n', Qt::SkipEmptyParts);
    EXPECT_EQ(lines.size(), 3) << pages.at(six - 1).toStdString();
}

TEST_F(ReportPdfTest, AnEdmaDeviceListsItsRequestsAfterTheDmaPart)
{
    ReportInputs in = inputs();
    ReportDmaController edma;
    edma.edma = true;
    ReportDmaRequest request;
    request.request = QStringLiteral("SPI1_RX");
    request.channel = QStringLiteral("EDMA_Stream3");
    request.direction = QStringLiteral("Peripheral to memory");
    request.priority = QStringLiteral("High");
    request.settings << ReportNameValue{QStringLiteral("FIFO mode"), QStringLiteral("Enable")};
    edma.requests << request;
    in.dma = {edma}; // the device has EDMA only
    const QString all = simplified(pdftext::text(write(in)));
    int at = 0;
    for (const char *text :
         {"7.1 DMA Configuration", "Nothing configuration in DMA Service.",
          "7.2 EDMA Configuration", "EDMA Request Channel Direction Priority",
          "SPI1_RX EDMA_Stream3 Peripheral to memory High", "EDMA request Settings:",
          "SPI1_RX Name Value FIFO mode Enable", "7.3 GPIO Configuration",
          "7.4 NVIC Configuration"}) {
        const int found = all.indexOf(QLatin1String(text), at);
        EXPECT_GE(found, 0) << "missing or out of order: " << text;
        at = qMax(at, found);
    }
    EXPECT_FALSE(all.contains("Nothing configuration in EDMA Service."));
}

TEST_F(ReportPdfTest, AThreeHundredRowTableRepeatsItsHeaderOnEveryPageItCovers)
{
    ReportInputs in = inputs();
    in.pins.clear();
    for (int i = 1; i <= 300; ++i)
        in.pins << ReportPinRow{i, QStringLiteral("P%1X").arg(i), QStringLiteral("I/O"),
                                QStringLiteral("FT"), QStringLiteral("SIG%1").arg(i),
                                QString()};
    int painted = 0;
    const QStringList pages = pdftext::pages(write(in, &painted));
    ASSERT_EQ(pages.size(), painted);
    const int first = pageOf(pages, "3 Pins Configuration");
    const int clock = pageOf(pages, "4 Clock Tree Configuration");
    ASSERT_GT(first, 0);
    ASSERT_GE(clock - first, 5) << "300 rows need several pages";
    // A caption too wide for its column goes on the line below.
    const QRegularExpression header(QStringLiteral(
        "Pin(\\s+Number)?\\s+Pin Name\\s+Pin Type\\s+GPIO(\\s+Structure)?\\s+Signal Name"
        "\\s+Label"));
    int next = 1;
    for (int p = first; p < clock; ++p) {
        const QString page = pages.at(p - 1);
        EXPECT_TRUE(header.match(page).hasMatch()) << "no header row on page " << p;
        // The rows go on where the last page stopped, each once and in order.
        const QRegularExpression row(QStringLiteral("(\\d+)\\s+P(\\d+)X\\s+I/O"));
        auto it = row.globalMatch(page);
        while (it.hasNext()) {
            const auto m = it.next();
            EXPECT_EQ(m.captured(1).toInt(), next);
            EXPECT_EQ(m.captured(2).toInt(), next);
            ++next;
        }
    }
    EXPECT_EQ(next, 301);
    // The footer stands on each of these pages with its number.
    for (int p = first; p < clock; ++p)
        EXPECT_TRUE(pages.at(p - 1).trimmed().endsWith(QString::number(p)));
}

TEST_F(ReportPdfTest, ALongUnbreakableCellWrapsInsideThePage)
{
    ReportInputs in = inputs();
    const QString label = QStringLiteral("VERY_LONG_LABEL_WITHOUT_ANY_BLANK_").repeated(6);
    in.pins[0].label = label;
    in.peripherals[0].parameters[0].value = QStringLiteral("0123456789ABCDEF").repeated(12);
    const QString pdf = write(in);
    const QSizeF page = pdftext::pageSize(pdf);
    ASSERT_GT(page.width(), 500);
    // The page's margins are 30 points; no word may pass them.
    QString pieces;
    for (const pdftext::Word &w : pdftext::words(pdf)) {
        EXPECT_GE(w.box.left(), 30 - 1) << w.text.toStdString();
        EXPECT_LE(w.box.right(), page.width() - 30 + 1) << w.text.toStdString();
        if (w.text.size() >= 8 && label.contains(w.text))
            pieces += w.text;
    }
    // The label is all there, over several lines.
    EXPECT_EQ(pieces, label);
    EXPECT_FALSE(pdftext::text(pdf).contains(label));
}

TEST_F(ReportPdfTest, InChineseTheCaptionsAreChineseAndTheFontIsEmbedded)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral(":/image/tr_zh.qm")));
    QCoreApplication::installTranslator(&translator);
    g_language = 1;
    ReportInputs in = inputs();
    in.nvic[0].interrupt = QStringLiteral("USART1 全局中断");
    const QString pdf = write(in);
    QCoreApplication::removeTranslator(&translator);

    const QString all = simplified(pdftext::text(pdf));
    for (const char *caption : {"MQ48 PinForge 配置报告", "1 概述", "2 引脚分布配置", "3 引脚配置",
                                "4 时钟树配置", "5.1 工程设置", "6 外设及中间件配置", "7 系统配置",
                                "DMA 服务中没有任何配置。", "USART1 全局中断", "重要通知"})
        EXPECT_TRUE(all.contains(QString::fromUtf8(caption))) << caption;
    EXPECT_FALSE(all.contains("Pins Configuration"));

    bool cjkEmbedded = false;
    for (const QString &font : pdftext::fonts(pdf)) {
        const QStringList columns = font.split(' ', Qt::SkipEmptyParts);
        // name, type words, encoding, emb, sub, uni, object, generation
        if (font.contains("CJK", Qt::CaseInsensitive) && columns.size() >= 6 &&
            columns.at(columns.size() - 5) == QLatin1String("yes"))
            cjkEmbedded = true;
    }
    EXPECT_TRUE(cjkEmbedded) << pdftext::fonts(pdf).join('\n').toStdString();
}

TEST_F(ReportPdfTest, AFileThatCannotBeWrittenGivesTheMessageAndLeavesNoFile)
{
    // A folder whose "parent" is a file, and a path that is a folder.
    const QString blocker = dir.filePath("not-a-folder");
    QFile file(blocker);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("x");
    file.close();
    ASSERT_TRUE(QDir(dir.path()).mkdir("existing-folder"));
    const QStringList before = QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden |
                                                          QDir::NoDotAndDotDot);
    for (const QString &path : {blocker + "/report.pdf", dir.filePath("existing-folder"),
                                QString()}) {
        GenerateReport report;
        report.setInputs(inputs());
        QString error;
        EXPECT_FALSE(report.writePdf(path, &error)) << path.toStdString();
        EXPECT_EQ(error, GenerateReport::openFailedMessage(path));
        EXPECT_TRUE(error.startsWith(
            "Failed to open the file. It may be in use or the path is wrong."));
        EXPECT_TRUE(error.endsWith(path));
    }
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden |
                                         QDir::NoDotAndDotDot),
              before);
    EXPECT_TRUE(QFileInfo(dir.filePath("existing-folder")).isDir());
}

TEST_F(ReportPdfTest, AnEarlierReportIsReplacedWholeWithNothingLeftBeside)
{
    const QString path = dir.filePath("report.pdf");
    QFile old(path);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("an older report");
    old.close();
    GenerateReport report;
    report.setInputs(inputs());
    QString error;
    ASSERT_TRUE(report.writePdf(path, &error)) << error.toStdString();
    EXPECT_EQ(pdftext::pageCount(path), report.pageCount());
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden),
              QStringList{QStringLiteral("report.pdf")});
}
