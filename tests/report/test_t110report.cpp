// The report of a real T110 design with everything on, built through the work form and read
// back from the PDF; and the work form's "Generate Report" with its dialog and messages.

#include "app/generatereportaction.h"
#include "app/uifont.h"
#include "database/language.h"
#include "pdftext.h"
#include "peripherals/dmarequestmodel.h"
#include "t110design.h"
#include "widgets/messagebox.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTranslator>
#include <gtest/gtest.h>

#include <memory>

namespace {

class T110ReportTest : public ::testing::Test
{
protected:
    // Building the design takes a while: the tests share one.
    static void SetUpTestSuite()
    {
        InstallUiFont();
        g_language = 0;
        program = new ProgramFolder;
        design = new EverythingOnT110;
    }
    static void TearDownTestSuite()
    {
        delete design;
        delete program;
        design = nullptr;
        program = nullptr;
        g_language = 1;
    }
    void SetUp() override
    {
        ASSERT_TRUE(pdftext::available()) << "poppler-utils is missing (tools/install-deps.sh)";
        ASSERT_TRUE(design->built());
        g_language = 0;
    }

    QString writeReport(const QString &name = QStringLiteral("t110.pdf"))
    {
        const QString path = dir.filePath(name);
        QString error;
        EXPECT_TRUE(writeDesignReport(&design->form(), path, &error)) << error.toStdString();
        return path;
    }

    static ProgramFolder *program;
    static EverythingOnT110 *design;
    QTemporaryDir dir;
};

ProgramFolder *T110ReportTest::program = nullptr;
EverythingOnT110 *T110ReportTest::design = nullptr;

// Records the messages and chooses the report's file.
class ActionHarness
{
public:
    ActionHarness()
    {
        setUserMessageHandler([this](QWidget *, const UserMessage &m) {
            messages << m;
            return answer;
        });
        setReportFileChooser([this](QWidget *, const QString &suggested) {
            suggestions << suggested;
            return file;
        });
    }
    ~ActionHarness()
    {
        setUserMessageHandler({});
        setReportFileChooser({});
    }

    QList<UserMessage> messages;
    QStringList suggestions;
    QString file;
    int answer = 2;
};

int indexAfter(const QString &text, const QString &what, int from)
{
    const int at = text.indexOf(what, from);
    return at < 0 ? -1 : at + what.size();
}

} // namespace

TEST_F(T110ReportTest, EverySectionPinPeripheralRequestAndInterruptIsPrinted)
{
    const QString pdf = writeReport();
    const QStringList pages = pdftext::pages(pdf);
    ASSERT_GE(pages.size(), 10);
    const QString all = pages.join(QLatin1Char('\n')).simplified();

    // The sections in their order, each of 2 to 7 on a page of its own.
    int at = 0;
    for (const char *title :
         {"1 Overview", "1.1 Project", "1.2 MCU Information", "1.3 Cores Information",
          "2 Pinout Configuration", "3 Pins Configuration", "4 Clock Tree Configuration",
          "5 Software Project", "5.1 Project Settings",
          "6 Peripherals and Middlewares Configuration", "7 System Configuration",
          "7.1 DMA Configuration", "7.2 GPIO Configuration", "7.3 NVIC Configuration",
          "IMPORTANT NOTICE - PLEASE READ CAREFULLY"}) {
        const int next = indexAfter(all, QLatin1String(title), at);
        EXPECT_GT(next, 0) << "missing or out of order: " << title;
        at = qMax(at, next);
    }
    // Every page carries its number, and the last number is the page count.
    for (int p = 1; p <= pages.size(); ++p) {
        const QStringList lines = pages.at(p - 1).split('\n', Qt::SkipEmptyParts);
        ASSERT_FALSE(lines.isEmpty());
        EXPECT_TRUE(lines.last().simplified().endsWith(QStringLiteral(" %1").arg(p))) << p;
    }
    EXPECT_EQ(pdftext::pageCount(pdf), pages.size());
    EXPECT_TRUE(all.contains("MCU Name MQ48T110C8T"));
    EXPECT_TRUE(all.contains("MCU Package LQFP48"));
    EXPECT_TRUE(all.contains("MCU Pin number 48"));

    // A row for every pin with a lit signal: number, name, type, structure and signals.
    const DevicePinInfo *pins = design->form().design().devicePinInfo;
    ASSERT_NE(pins, nullptr);
    int lit = 0;
    for (const MCUPinsBaseInfo *pin : pins->pins) {
        if (!pin->remapOff)
            continue;
        QStringList signalNames;
        for (const MCUPinSignal *s : pin->signalList) {
            if (s->status > SIGNAL_FREE)
                signalNames << s->Func;
        }
        if (signalNames.isEmpty())
            continue;
        ++lit;
        const QString row = QStringList{QString::number(pin->PinNum), pin->PinName.trimmed(),
                                        pin->PinType, pin->GPIOStructure,
                                        signalNames.join('/')}
                                .join(' ')
                                .simplified();
        EXPECT_TRUE(all.contains(row)) << row.toStdString();
    }
    EXPECT_GE(lit, 30);
    EXPECT_TRUE(all.contains(design->labelledPin + " ")) << design->labelledPin.toStdString();
    EXPECT_TRUE(all.contains(design->label));

    // Each configured peripheral in order under section 6, with its changed parameters.
    at = all.indexOf("6 Peripherals and Middlewares Configuration");
    for (int i = 0; i < design->configured.size(); ++i) {
        const QString heading = QStringLiteral("6.%1 %2").arg(i + 1).arg(design->configured.at(i));
        const int next = indexAfter(all, heading + " Name Value State Enable", at);
        EXPECT_GT(next, 0) << heading.toStdString();
        at = qMax(at, next);
    }
    ASSERT_GE(design->changed.size(), 3);
    for (const ChangedParameter &c : design->changed) {
        const QString row = c.name + ' ' + c.value + " Yes";
        EXPECT_TRUE(all.contains(row)) << c.instance.toStdString() << ": " << row.toStdString();
    }

    // The DMA requests on their channels, and the interrupts switched on.
    ASSERT_FALSE(design->form().dmaModels().isEmpty());
    ASSERT_EQ(design->dmaRequests.size(), 3);
    for (const DMARequest &r : design->form().dmaModels().first()->requests())
        EXPECT_TRUE(all.contains(r.name + ' ' + r.channel + ' ')) << r.name.toStdString();
    EXPECT_TRUE(all.contains("DMA request Settings:"));
    ASSERT_GE(design->enabledInterrupts.size(), 10);
    for (const QString &irq : design->enabledInterrupts) {
        // A long name wraps in its cell; "true" stands beside its first line.
        bool found = false;
        for (int n = irq.size(); n >= qMin(20, int(irq.size())) && !found; --n)
            found = all.contains(irq.left(n) + " true ");
        EXPECT_TRUE(found) << irq.toStdString();
    }
    EXPECT_TRUE(all.contains(" Unused "));
}

TEST_F(T110ReportTest, InChineseTheCaptionsAndTheDatabaseTextsAreChinese)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral(":/image/tr_zh.qm")));
    QCoreApplication::installTranslator(&translator);
    g_language = 1;
    const QString pdf = writeReport(QStringLiteral("t110_zh.pdf"));
    QCoreApplication::removeTranslator(&translator);
    g_language = 0;

    const QString all = pdftext::text(pdf).simplified();
    for (const char *caption : {"1.2 MCU 信息", "3 引脚配置", "引脚编号 引脚名称", "4 时钟树配置",
                                "6 外设及中间件配置", "状态 使能", "参数设置", "7.1 DMA 配置",
                                "DMA 请求设置：", "7.3 NVIC 配置", "NVIC 中断表", "重要通知"})
        EXPECT_TRUE(all.contains(
            QString::fromUtf8(caption).normalized(QString::NormalizationForm_KC)))
            << caption;
    // The panels' own Chinese texts: a changed USART parameter and its value.
    EXPECT_TRUE(all.contains(QString::fromUtf8("波特率 9600 Bits/s 是")));
    bool cjkEmbedded = false;
    for (const QString &font : pdftext::fonts(pdf)) {
        const QStringList columns = font.split(' ', Qt::SkipEmptyParts);
        if (font.contains("CJK", Qt::CaseInsensitive) && columns.size() >= 6 &&
            columns.at(columns.size() - 5) == QLatin1String("yes"))
            cjkEmbedded = true;
    }
    EXPECT_TRUE(cjkEmbedded) << pdftext::fonts(pdf).join('\n').toStdString();
}

TEST_F(T110ReportTest, GenerateReportAsksForTheFileWritesItAndSaysSo)
{
    ActionHarness harness;
    harness.file = dir.filePath("chosen.pdf");
    harness.answer = 2; // "OK"
    ASSERT_TRUE(runGenerateReportAction(&design->form()));
    ASSERT_EQ(harness.suggestions.size(), 1);
    // An unsaved design without a project: the device's name.
    EXPECT_EQ(harness.suggestions.first(), QStringLiteral("MQ48T110C8T_PinForge.pdf"));
    ASSERT_EQ(harness.messages.size(), 1);
    const UserMessage &done = harness.messages.first();
    EXPECT_EQ(done.kind, UserMessage::Information);
    EXPECT_EQ(done.title, QStringLiteral("Information"));
    EXPECT_EQ(done.text, QStringLiteral("Generate report finished!"));
    EXPECT_EQ(done.buttons, (QStringList{QStringLiteral(" Open Folder  "),
                                         QStringLiteral(" Preview Report  "), okButtonText()}));
    EXPECT_GE(pdftext::pageCount(harness.file), 10);

    // A cancelled dialog ends quietly.
    harness.messages.clear();
    harness.file.clear();
    EXPECT_FALSE(runGenerateReportAction(&design->form()));
    EXPECT_TRUE(harness.messages.isEmpty());

    // A file that cannot be written: one error box with the reason, and no file.
    harness.file = dir.filePath("missing-folder/report.pdf");
    EXPECT_FALSE(runGenerateReportAction(&design->form()));
    ASSERT_EQ(harness.messages.size(), 1);
    EXPECT_EQ(harness.messages.first().kind, UserMessage::Error);
    EXPECT_EQ(harness.messages.first().title, QStringLiteral("Error"));
    EXPECT_EQ(harness.messages.first().text,
              QStringLiteral("Failed to open the file. It may be in use or the path is wrong.\n") +
                  harness.file);
    EXPECT_FALSE(QFileInfo::exists(dir.filePath("missing-folder")));
}

TEST_F(T110ReportTest, TheSuggestedFileFollowsTheProjectOrTheDesign)
{
    ProjectInfo project;
    project.projectName = QStringLiteral("blinky");
    project.projectLocation = QStringLiteral("/home/user/work");
    EXPECT_EQ(suggestedReportPath(design->form(), project),
              QStringLiteral("/home/user/work/blinky/blinky.pdf"));
    EXPECT_EQ(suggestedReportPath(design->form(), ProjectInfo()),
              QStringLiteral("MQ48T110C8T_PinForge.pdf"));

    // The project's facts reach sections 1.1 and 5.1.
    project.toolchainIDE = QStringLiteral("IAR");
    project.packageVersion = QStringLiteral("V2.0.1");
    const QString path = dir.filePath("project.pdf");
    QString error;
    ASSERT_TRUE(writeDesignReport(&design->form(), path, &error, project));
    const QString all = pdftext::text(path).simplified();
    EXPECT_TRUE(all.contains("Project Name blinky"));
    EXPECT_TRUE(all.contains("Project Folder /home/user/work/blinky"));
    EXPECT_TRUE(all.contains("Toolchain/IDE IAR"));
    EXPECT_TRUE(all.contains("Firmware Package Name and Version MQ48T110_Firmware_Library_V2.0.1"));
    EXPECT_TRUE(all.contains("Minimum Heap Size 0x200"));
}

TEST(T110ReportWithoutDesign, NothingIsWrittenForAClosedForm)
{
    FormConfiguration form;
    const QTemporaryDir dir;
    QString error;
    EXPECT_FALSE(writeDesignReport(&form, dir.filePath("none.pdf"), &error));
    EXPECT_EQ(error, QStringLiteral("No design is open."));
    EXPECT_FALSE(QFileInfo::exists(dir.filePath("none.pdf")));
    EXPECT_FALSE(writeDesignReport(nullptr, dir.filePath("none.pdf"), &error));
}
