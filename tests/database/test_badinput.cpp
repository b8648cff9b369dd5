// Hostile database files: every reader and the checker must refuse or survive them with a
// reason, never crash, hang or exhaust memory.

#include "database/catalogue.h"
#include "database/databasechecker.h"
#include "database/devicecheck.h"
#include "database/devicereader.h"
#include "database/paths.h"
#include "database/peripheralreader.h"
#include "database/safexml.h"
#include "tests/common/testsupport.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <functional>

// Readable QString values in failure messages.
static void PrintTo(const QString &s, std::ostream *os)
{
    *os << '"' << s.toStdString() << '"';
}

namespace {

const QString kSeries = QStringLiteral("device/MQ48T110/");
const QString kDevice = kSeries + QStringLiteral("MQ48T110C8T7.xml");

// The line (1-based) of the first occurrence of `needle`.
int lineOf(const QByteArray &content, const QByteArray &needle)
{
    const int at = content.indexOf(needle);
    return at < 0 ? -1 : content.left(at).count('\n') + 1;
}

// A copy of the small valid database to break.
class HostileDatabase : public ::testing::Test
{
public:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        const QString source = testsupport::fixture("database/db/MQ48DB");
        QDirIterator it(source, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            ASSERT_TRUE(
                testsupport::writeFile(folder() + "/" + QDir(source).relativeFilePath(path),
                                       testsupport::readFile(path)));
        }
    }

    QString folder() const { return m_dir.path() + "/MQ48DB"; }
    QString path(const QString &file) const { return folder() + "/" + file; }
    QByteArray read(const QString &file) const { return testsupport::readFile(path(file)); }
    void write(const QString &file, const QByteArray &content)
    {
        ASSERT_TRUE(testsupport::writeFile(path(file), content));
    }
    // Replaces the first `from` of a file; the line where it stood.
    int plant(const QString &file, const QByteArray &from, const QByteArray &to)
    {
        QByteArray content = read(file);
        const int line = lineOf(content, from);
        EXPECT_GE(line, 1) << from.constData();
        content.replace(content.indexOf(from), from.size(), to);
        write(file, content);
        return line;
    }
    QStringList defects() const
    {
        QStringList lines;
        for (const DatabaseDefect &d : DatabaseChecker(folder()).run())
            lines << QLatin1Char('[') + defectKindName(d.kind) + QStringLiteral("] ") + d.text();
        return lines;
    }
    bool reported(const QString &kind, const QString &text) const
    {
        for (const QString &line : defects()) {
            if (line.startsWith(QLatin1Char('[') + kind + QLatin1Char(']')) && line.contains(text))
                return true;
        }
        return false;
    }

private:
    QTemporaryDir m_dir;
};

// One way of breaking the device file, with what the program and the checker must say.
struct DeviceCase
{
    const char *name;
    std::function<int(HostileDatabase &)> breakIt; // returns the line of the fault, or 0
    QString problem;                               // the fatal reason; empty: still opens
    QString defectKind;
    QString defect; // "%1" stands for the line
};

QByteArray nested(int depth)
{
    return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

QList<DeviceCase> deviceCases()
{
    const auto change = [](const char *from, const char *to) {
        return [=](HostileDatabase &db) { return db.plant(kDevice, from, to); };
    };
    return {
        {"PinNums far beyond a package", change("PinNums=\"48\"", "PinNums=\"400000\""),
         "PinNums \"400000\" lies outside 1 to 1024", "device-file",
         "line %1: PinNums \"400000\" lies outside 1 to 1024"},
        {"xPinNum at the largest integer", change("xPinNum=\"12\"", "xPinNum=\"2147483647\""),
         "xPinNum \"2147483647\" lies outside 0 to 256", "device-file",
         "line %1: xPinNum \"2147483647\""},
        {"yPinNum beyond any integer", change("yPinNum=\"12\"", "yPinNum=\"99999999999\""),
         "yPinNum \"99999999999\" is not a number", "device-file", "line %1: yPinNum"},
        {"negative side count", change("yPinNum=\"12\"", "yPinNum=\"-12\""),
         "yPinNum \"-12\" lies outside 0 to 256", "device-file", "line %1: yPinNum"},
        {"count is no number", change("PinNums=\"48\"", "PinNums=\"4 8\""),
         "PinNums \"4 8\" is not a number", "device-file", "line %1: PinNums"},
        {"count missing", change("PinNums=\"48\"", ""), "the pin count PinNums is missing",
         "device-file", "PinNums is missing"},
        {"PinNum with letters",
         change("PinNum=\"2\" PinName=\"PA0\"", "PinNum=\"1abc\" PinName=\"PA0\""),
         "Pin \"PA0\": PinNum \"1abc\" is not a number", "device-file",
         "Pin \"PA0\": line %1: PinNum \"1abc\" is not a number"},
        {"PinNum beyond the count",
         change("PinNum=\"2\" PinName=\"PA0\"", "PinNum=\"49\" PinName=\"PA0\""),
         "PinNum \"49\" lies outside 1 to 48", "device-file", "line %1: PinNum \"49\""},
        {"pin without a name", change("PinName=\"PA1\" ", ""), "the pin has no PinName",
         "device-file", "line %1: the pin has no PinName"},
        {"pin without a number", change("PinNum=\"3\" ", ""), "the pin has no PinNum",
         "device-file", "line %1: the pin has no PinNum"},
        {"two pins, one number",
         change("PinNum=\"3\" PinName=\"PA1\"", "PinNum=\"2\" PinName=\"PA1\""), QString(),
         "device-file", "line %1: PinNum 2 is used by the pin of line"},
        {"function without a name", change("<Signal Func=\"GPIO_Analog\"/>", "<Signal/>"),
         "a function of the pin has no Func", "device-file",
         "line %1: a function of the pin has no Func"},
        {"peripheral row without a name",
         change("Name=\"USART\" Version=\"2.0\"", "Version=\"2.0\""),
         "the row lacks InstanceName or Name", "device-file",
         "line %1: the row lacks InstanceName or Name"},
        {"PID no hexadecimal number", change("PID=\"0x50011234\"", "PID=\"0x5001G\""), QString(),
         "device-file", "line %1: PID \"0x5001G\" is not a hexadecimal number"},
        {"group number no number", change("GroupNum=\"1\"", "GroupNum=\"one\""), QString(),
         "device-file", "line %1: GroupNum \"one\" is not a number"},
        {"section without its term", change("term=\"PinsList\"", "term=\"Pins\""),
         "the file has no section \"PinsList\"", "file", "the file has no section \"PinsList\""},
        {"truncated in the middle",
         [](HostileDatabase &db) {
             const QByteArray content = db.read(kDevice);
             db.write(kDevice, content.left(content.size() / 2));
             return 0;
         },
         "the file can not be read: line", "file", "does not parse: line"},
        {"nesting deeper than the guard",
         [](HostileDatabase &db) {
             return db.plant(kDevice, "<Signal Func=\"GPIO_Analog\"/>",
                             "<Signal Func=\"GPIO_Analog\">" + nested(300) + "</Signal>");
         },
         "elements nested deeper than 256", "file", "does not parse: line %1: elements nested"},
        {"entity blow-up",
         [](HostileDatabase &db) {
             return db.plant(
                 kDevice, "<Device>",
                 "<!DOCTYPE Device [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;\">]>"
                 "<Device>");
         },
         "the document declares entities", "file", "declares entities"},
        {"bytes that are no UTF-8",
         change("Remarks_EN=\"Digital supply\"", "Remarks_EN=\"\xff\xfe\""),
         "the file can not be read: line", "file",
         "does not parse: line %1: bytes that are no UTF-8"},
        {"missing file",
         [](HostileDatabase &db) {
             QFile::remove(db.path(kDevice));
             return 0;
         },
         "the file does not exist", "file", "MQ48T110C8T7.xml: file is missing"},
        {"larger than the guard",
         [](HostileDatabase &db) {
             QFile file(db.path(kDevice));
             EXPECT_TRUE(file.open(QIODevice::ReadWrite));
             EXPECT_TRUE(file.resize(kMaxXmlBytes + 1)); // sparse: cheap to make
             return 0;
         },
         "larger than 64 MB", "file", "does not parse: larger than 64 MB"},
    };
}

} // namespace

// Each broken device file: the design can't be opened (with the reason and place) or opens
// as before; the reader keeps its counts within the limits, and the checker names the fault.
TEST_F(HostileDatabase, BrokenDeviceFilesAreRefusedWithTheReasonAndLine)
{
    const QList<DeviceCase> cases = deviceCases();
    for (const DeviceCase &c : cases) {
        SCOPED_TRACE(c.name);
        SetUp();
        const int line = c.breakIt(*this);
        const QString file = path(kDevice);

        const QString problem = DeviceFileProblem(file);
        if (c.problem.isEmpty())
            EXPECT_EQ(problem, QString());
        else
            EXPECT_TRUE(problem.contains(c.problem)) << qPrintable(problem);

        DevicePinInfo info;
        ReadDevicePinInfo(file, &info);
        EXPECT_GE(info.PinNums, 0);
        EXPECT_LE(info.PinNums, kMaxDevicePins);
        EXPECT_LE(info.xPinNum, kMaxSidePins);
        EXPECT_LE(info.yPinNum, kMaxSidePins);
        EXPECT_GE(info.xPinNum, 0);
        EXPECT_GE(info.yPinNum, 0);

        const QString expected =
            QString(c.defect).replace(QStringLiteral("%1"), QString::number(line));
        EXPECT_TRUE(reported(c.defectKind, expected)) << qPrintable(expected) << "\n"
                                                      << qPrintable(defects().join('\n'));
    }
}

TEST_F(HostileDatabase, TheShippedAndTheFixtureDevicesAllOpen)
{
    for (const QString &root : {folder(), testsupport::sourceDatabase()}) {
        QDirIterator it(root + "/device", {"*.xml"}, QDir::Files, QDirIterator::Subdirectories);
        int devices = 0;
        while (it.hasNext()) {
            const QString file = it.next();
            if (file.contains("/Peripherals/"))
                continue;
            ++devices;
            EXPECT_EQ(DeviceFileIssues(file).size(), 0)
                << qPrintable(file) << ": " << qPrintable(DeviceFileProblem(file));
        }
        EXPECT_GT(devices, 1) << qPrintable(root);
    }
}

TEST_F(HostileDatabase, UTF16FileReadsLikeUTF8)
{
    const QString text = QString::fromUtf8(read(kDevice)).replace("UTF-8", "UTF-16");
    QByteArray utf16("\xff\xfe", 2); // little-endian byte order mark
    for (const QChar c : text) {
        utf16.append(char(c.unicode() & 0xff));
        utf16.append(char(c.unicode() >> 8));
    }
    write(kDevice, utf16);
    EXPECT_EQ(DeviceFileProblem(path(kDevice)), QString());
    DevicePinInfo info;
    ASSERT_TRUE(ReadDevicePinInfo(path(kDevice), &info));
    EXPECT_EQ(info.PinNums, 48);
    EXPECT_EQ(info.pins.size(), 15);
}

// Signal ranges come from files too: a range is expanded only while it is one a peripheral
// can have.
TEST(SignalRange, HugeOrOverflowingRangesStayOneName)
{
    EXPECT_EQ(ExpandSignalRange("CH1--CH4"), QStringList({"CH1", "CH2", "CH3", "CH4"}));
    EXPECT_EQ(ExpandSignalRange("CH4--CH1"), QStringList());
    EXPECT_EQ(ExpandSignalRange("CH0--CH50000000"), QStringList{"CH0--CH50000000"});
    EXPECT_EQ(ExpandSignalRange("CH1--CH2147483647"), QStringList{"CH1--CH2147483647"});
    EXPECT_EQ(ExpandSignalRange("CH2147483646--CH2147483647"),
              QStringList({"CH2147483646", "CH2147483647"}));
    EXPECT_EQ(ExpandSignalRange("CH9223372036854775807--CH9223372036854775807"),
              QStringList{"CH9223372036854775807"});
    EXPECT_EQ(ExpandSignalRange("CH1--CH99999999999999999999"),
              QStringList{"CH1--CH99999999999999999999"});
    EXPECT_EQ(ExpandSignalRange(QString("CH0--CH%1").arg(kMaxSignalRange - 1)).size(),
              kMaxSignalRange);
}

TEST_F(HostileDatabase, PeripheralFileFaultsAreNamedWithTheReason)
{
    const QString usart = kSeries + "Peripherals/USART-2.0.xml";
    const QString nvic = kSeries + "Peripherals/NVIC-1.0.xml";
    plant(usart, "Min=\"1200\"", "Min=\"1e30\"");
    plant(nvic, "Y:3,N:2,USART2_IRQHandler", "Y:x,N:2,USART2_IRQHandler");
    const int line = plant(kSeries + "Peripherals/TMR-1.0.xml", "CH1--CH4", "CH1--CH50000000");
    Q_UNUSED(line)
    EXPECT_TRUE(reported("bad-number", "RefParameter \"BaudRate\": Min \"1e30\" is not a number "
                                       "of the type \"integer\""));
    EXPECT_TRUE(reported("bad-number", "the preemption priority \"x\" is not a number from 0 "
                                       "to 15"));
    EXPECT_TRUE(reported("signal-not-on-pin", "signal \"TMR1_CH1--CH50000000\""));

    // A file cut short says where the reader stopped.
    const QByteArray content = read(usart);
    write(usart, content.left(content.size() - 20));
    EXPECT_TRUE(
        reported("file", "USART-2.0.xml: does not parse: line " +
                             QString::number(content.left(content.size() - 20).count('\n') + 1)))
        << qPrintable(defects().join('\n'));
}

TEST_F(HostileDatabase, NamesThatWouldLeaveTheFolderAreNotRead)
{
    plant(kDevice, "Name=\"USART\" Version=\"2.0\"",
          "Name=\"../../../../etc/passwd\" Version=\"2.0\"");
    EXPECT_TRUE(reported("unsafe-name", "PeripheralsList \"USART1\": the file name "
                                        "\"../../../../etc/passwd-2.0.xml\" would leave"));
    for (const QString &line : defects())
        EXPECT_FALSE(line.contains("no file")) << qPrintable(line);

    PeripheralListItem row;
    row.Name = "../../etc/passwd";
    row.Version = "1.0";
    EXPECT_EQ(PeripheralFilePath("MQ48T110", row), QString());
    EXPECT_EQ(deviceFilePath("MQ48T110", "../MQ48T110C8T7"), QString());
    EXPECT_EQ(deviceFilePath("..", "MCUList"), QString());
    EXPECT_FALSE(deviceFilePath("MQ48T110", "MQ48T110C8T7").isEmpty());
}

TEST_F(HostileDatabase, CatalogueFaults)
{
    // A second entry of the same series, and a device without a name.
    plant("MCUList.xml", "</Section>",
          "<Item Serial=\"MQ48T110\" InfoEN=\"again\" InfoCH=\"再次\"/></Section>");
    plant("MCUList.xml", "<MCU Name=\"MQ48T110K8U7\"", "<MCU Name=\"\"");
    const QStringList found = defects();
    EXPECT_TRUE(reported("duplicate", "MCUSerialsList \"MQ48T110\": the series is listed more "
                                      "than once"))
        << qPrintable(found.join('\n'));
    EXPECT_TRUE(reported("device-file", "MCUList.xml: MQ48T110: a device row has no Name"));
    for (const QString &line : found)
        EXPECT_FALSE(line.contains("MQ48T110/.xml")) << qPrintable(line);

    // A catalogue that stops in the middle.
    const QByteArray content = read("MCUList.xml");
    write("MCUList.xml", content.left(content.indexOf("<Section term=\"MQ48T110\">") + 10));
    EXPECT_EQ(defects().size(), 1);
    EXPECT_TRUE(reported("file", "MCUList.xml: does not parse: line"))
        << qPrintable(defects().join('\n'));
    EXPECT_TRUE(GetMCUSerialList(path("MCUList.xml")).isEmpty());
}

// The index that makes group matching near-linear finds exactly the pin that a walk over all
// pins with PinNamesMatch() finds first.
TEST(PinNameIndex, FindsTheSameFirstPinAsTheWalk)
{
    QRandomGenerator random(13);
    const QStringList words{"PA1",     "PA2",         "PB7",    "PA9",  "OSC_IN", "",    " ",
                            "PA1/PB7", "PA9 (remap)", "PB7 /x", "/PA2", "PC13 ",  " PA2"};
    for (int round = 0; round < 200; ++round) {
        QStringList pins;
        const int count = 1 + int(random.bounded(12));
        for (int i = 0; i < count; ++i) {
            QString name = words.at(int(random.bounded(words.size())));
            if (random.bounded(3) == 0)
                name += QStringLiteral("/") + words.at(int(random.bounded(words.size())));
            pins << name;
        }
        const PinNameIndex index(pins);
        for (const QString &wanted : words) {
            int expected = -1;
            for (int i = 0; i < pins.size() && expected < 0; ++i) {
                if (PinNamesMatch(pins.at(i), wanted))
                    expected = i;
            }
            EXPECT_EQ(index.find(wanted), expected)
                << qPrintable(pins.join('|')) << " <- " << qPrintable(wanted);
        }
    }
}
