#include "database/dbtextexchange.h"
#include "tests/common/testsupport.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// A peripheral file with every case of the text rules.
const QByteArray kPeripheral = QByteArrayLiteral(
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<IP>\n"
    "  <Mode Name=\"Mode\" UserName=\"Mode\" UserNameCH=\"模式\">\n"
    "    <Configuration Name=\"Async\" UserName=\"Asynchronous\" UserNameCH=\"异步\"/>\n"
    "  </Mode>\n"
    "  <RefParameter Name=\"BaudRate\" Comment=\"Baud Rate\" CommentCH=\"波特率\" "
    "Group=\"Basic Parameters\" GroupCH=\"基本参数\" Type=\"integer\">\n"
    "  <RefParameter Name=\"Parity\" Comment=\"Parity\" CommentCH=\"校验\" "
    "Group=\"Basic Parameters\" GroupCH=\"基本参数\" Type=\"list\">\n"
    "  <RefParameter Name=\"Mode\" Comment=\"Mode\" CommentCH=\"方向\" Group=\"Mode\" "
    "GroupCH=\"模式\">\n"
    "    <PossibleValue Value=\"9\" Comment=\"Priority\" Condition=\"X\"/>\n"
    "  <RefMode Name=\"GPIO_Output\" Comment=\"General purpose output\" "
    "Group=\"GPIO settings\" GroupCH=\"GPIO 设置\">\n"
    "  <RefParameter Name=\"Again\" Comment=\"Baud Rate\" CommentCH=\"波特率\">\n"
    "</IP>\n");

QString exported()
{
    return DbTextExchange::exportTexts(kPeripheral);
}

// The lines of `after` that differ from those of `before`, by line number.
QMap<int, QByteArray> changedLines(const QByteArray &before, const QByteArray &after)
{
    const QList<QByteArray> a = before.split('\n');
    const QList<QByteArray> b = after.split('\n');
    EXPECT_EQ(a.size(), b.size());
    QMap<int, QByteArray> changed;
    for (int i = 0; i < qMin(a.size(), b.size()); ++i) {
        if (a[i] != b[i])
            changed.insert(i, b[i]);
    }
    return changed;
}

TEST(DbTextExport, ListsEachPairOncePerPassWithoutRefModeLines)
{
    const QString expected =
        QStringLiteral("        Comment=\"Baud Rate\"  CommentCH=\"波特率\"\n"
                       "        Comment=\"Parity\"  CommentCH=\"校验\"\n"
                       "        Comment=\"Mode\"  CommentCH=\"方向\"\n"
                       "        Comment=\"Priority\"  CommentCH=\"\"\n"
                       "\n"
                       "        Group=\"Basic Parameters\"  GroupCH=\"基本参数\"\n"
                       "        Group=\"Mode\"  GroupCH=\"模式\"\n"
                       "\n"
                       "        UserName=\"Mode\"  UserNameCH=\"模式\"\n"
                       "        UserName=\"Asynchronous\"  UserNameCH=\"异步\"\n");
    EXPECT_EQ(exported(), expected);
}

TEST(DbTextExport, KeepsTheSpacingOfTheFileInItsEntries)
{
    const QByteArray xml = "<A Comment = \"Clock\"   CommentCH= \"时钟\"/>\n"
                           "<B Comment=\"Clock\" CommentCH=\"时钟\"/>\n";
    EXPECT_EQ(DbTextExchange::exportTexts(xml),
              QStringLiteral("        Comment = \"Clock\"  CommentCH= \"时钟\"\n"
                             "        Comment=\"Clock\"  CommentCH=\"时钟\"\n\n\n"));
}

TEST(DbTextImport, UneditedTextsLeaveTheFileAsItWas)
{
    EXPECT_EQ(DbTextExchange::importTexts(kPeripheral, exported().toUtf8()), kPeripheral);

    // Line ends, a missing last line end and bytes that are no UTF-8 all stay.
    QByteArray odd = kPeripheral;
    odd.replace("\n", "\r\n");
    odd.insert(odd.indexOf("<IP>") + 4, "\xff\xfe");
    odd.chop(2);
    EXPECT_EQ(DbTextExchange::importTexts(odd, DbTextExchange::exportTexts(odd).toUtf8()), odd);
}

TEST(DbTextImport, AnEditedChineseTextLandsInItsOwnAttribute)
{
    QString txt = exported();
    // "Mode" is a Comment, a Group and a UserName here; only the Group changes.
    txt.replace(QStringLiteral("Group=\"Mode\"  GroupCH=\"模式\""),
                QStringLiteral("Group=\"Mode\"  GroupCH=\"工作模式\""));
    const QByteArray updated = DbTextExchange::importTexts(kPeripheral, txt.toUtf8());
    const QMap<int, QByteArray> changed = changedLines(kPeripheral, updated);
    ASSERT_EQ(changed.keys(), QList<int>{7});
    EXPECT_EQ(QString::fromUtf8(changed[7]),
              QStringLiteral("  <RefParameter Name=\"Mode\" Comment=\"Mode\" CommentCH=\"方向\" "
                             "Group=\"Mode\" GroupCH=\"工作模式\">"));

    // A pair that stands on several lines changes on each of them.
    txt = exported().replace(QStringLiteral("CommentCH=\"波特率\""),
                             QStringLiteral("CommentCH=\"波特率（位/秒）\""));
    const QMap<int, QByteArray> both =
        changedLines(kPeripheral, DbTextExchange::importTexts(kPeripheral, txt.toUtf8()));
    ASSERT_EQ(both.keys(), (QList<int>{5, 10}));
    EXPECT_TRUE(both[10].contains("Comment=\"Baud Rate\" CommentCH=\"波特率（位/秒）\">"));
}

TEST(DbTextImport, NewEnglishTextsAndMissingChineseAttributes)
{
    QString txt = exported();
    txt.replace(QStringLiteral("Comment=\"Parity\"  CommentCH=\"校验\""),
                QStringLiteral("Comment=\"Parity\"  CommentNew=\"Parity Bit\"  "
                               "CommentCH=\"校验位\""));
    txt.replace(QStringLiteral("Comment=\"Priority\"  CommentCH=\"\""),
                QStringLiteral("Comment=\"Priority\"  CommentCH=\"优先级\""));
    const QMap<int, QByteArray> changed =
        changedLines(kPeripheral, DbTextExchange::importTexts(kPeripheral, txt.toUtf8()));
    ASSERT_EQ(changed.keys(), (QList<int>{6, 8}));
    EXPECT_TRUE(changed[6].contains("Name=\"Parity\" Comment=\"Parity Bit\" CommentCH=\"校验位\" "
                                    "Group=\"Basic Parameters\""));
    // The file had no Chinese text there: the attribute follows the English one.
    EXPECT_TRUE(changed[8].contains("Comment=\"Priority\" CommentCH=\"优先级\" Condition=\"X\""));

    // Lines with RefMode are neither exported nor changed.
    const QByteArray refMode = "<RefMode Name=\"Out\" Comment=\"Priority\" Group=\"G\">\n"
                               "<P Comment=\"Priority\" Group=\"G\" GroupCH=\"组\"/>\n";
    EXPECT_EQ(
        DbTextExchange::importTexts(refMode, txt.toUtf8() + "Group=\"G\"  GroupCH=\"组别\"\n"),
        QByteArray("<RefMode Name=\"Out\" Comment=\"Priority\" Group=\"G\">\n"
                   "<P Comment=\"Priority\" CommentCH=\"优先级\" Group=\"G\" "
                   "GroupCH=\"组别\"/>\n"));

    // An empty Chinese text is never added, nor a second Chinese attribute.
    const QByteArray reversed = "<A CommentCH=\"旧\" Comment=\"Clock\"/>\n";
    EXPECT_EQ(DbTextExchange::importTexts(
                  reversed, QByteArrayLiteral("Comment=\"Clock\"  CommentCH=\"时钟\"\n")),
              reversed);
}

TEST(DbTextImport, OneEnglishTextWithSeveralChineseOnesKeepsThemApart)
{
    const QByteArray xml = "<A Comment=\"Date\" CommentCH=\"日\"/>\n"
                           "<B Comment=\"Date\" CommentCH=\"日期\"/>\n"
                           "<C Comment=\"Date\"/>\n"
                           "<D Comment=\"Date\" CommentCH=\"日期\"/>\n";
    const QString txt = DbTextExchange::exportTexts(xml);
    EXPECT_EQ(txt.count(QStringLiteral("Comment=\"Date\"")), 3);
    EXPECT_EQ(DbTextExchange::importTexts(xml, txt.toUtf8()), xml);

    QString edited = txt;
    edited.replace(QStringLiteral("CommentCH=\"日期\""), QStringLiteral("CommentCH=\"日子\""));
    EXPECT_EQ(DbTextExchange::importTexts(xml, edited.toUtf8()),
              QByteArray("<A Comment=\"Date\" CommentCH=\"日\"/>\n"
                         "<B Comment=\"Date\" CommentCH=\"日子\"/>\n"
                         "<C Comment=\"Date\"/>\n"
                         "<D Comment=\"Date\" CommentCH=\"日子\"/>\n"));

    // A text file that lost some lines of that text gives all of them its last line.
    const QByteArray one = "Comment=\"Date\"  CommentCH=\"日期\"\n";
    EXPECT_EQ(DbTextExchange::importTexts(xml, one),
              QByteArray("<A Comment=\"Date\" CommentCH=\"日期\"/>\n"
                         "<B Comment=\"Date\" CommentCH=\"日期\"/>\n"
                         "<C Comment=\"Date\" CommentCH=\"日期\"/>\n"
                         "<D Comment=\"Date\" CommentCH=\"日期\"/>\n"));
}

class DbTextFolder : public ::testing::Test
{
protected:
    QString file(const QString &name) const { return dir.path() + QLatin1Char('/') + name; }
    QTemporaryDir dir;
};

TEST_F(DbTextFolder, ExportWritesATextFileBesideEachXmlFileOnly)
{
    ASSERT_TRUE(testsupport::writeFile(file("USART-V1.0.xml"), kPeripheral));
    ASSERT_TRUE(testsupport::writeFile(file("MQ48T110_Info_EN.htm"), kPeripheral));
    ASSERT_TRUE(testsupport::writeFile(file("notes.xml.bak"), kPeripheral));
    ASSERT_TRUE(testsupport::writeFile(file("sub/GPIO-V1.0.xml"), kPeripheral));

    const DbTextExchange::FolderResult result = DbTextExchange::exportFolder(dir.path());
    EXPECT_EQ(result.written, QStringList{file("USART-V1.0.txt")});
    EXPECT_TRUE(result.skipped.isEmpty());
    EXPECT_EQ(QString::fromUtf8(testsupport::readFile(file("USART-V1.0.txt"))), exported());
    EXPECT_EQ(QDir(dir.path()).entryList({"*.txt"}, QDir::Files).size(), 1);
    EXPECT_FALSE(QFileInfo::exists(file("sub/GPIO-V1.0.txt")));
}

TEST_F(DbTextFolder, ImportRewritesOnlyTheXmlFilesWhoseTextsChanged)
{
    ASSERT_TRUE(testsupport::writeFile(file("USART-V1.0.xml"), kPeripheral));
    ASSERT_TRUE(testsupport::writeFile(file("SPI-V1.0.xml"), kPeripheral));
    DbTextExchange::exportFolder(dir.path());
    QString txt = QString::fromUtf8(testsupport::readFile(file("SPI-V1.0.txt")));
    txt.replace(QStringLiteral("校验"), QStringLiteral("奇偶校验"));
    ASSERT_TRUE(testsupport::writeFile(file("SPI-V1.0.txt"), txt.toUtf8()));
    // A text file without its XML file is passed over.
    ASSERT_TRUE(testsupport::writeFile(file("Orphan.txt"), txt.toUtf8()));

    const DbTextExchange::FolderResult result = DbTextExchange::importFolder(dir.path());
    EXPECT_EQ(result.written, QStringList{file("SPI-V1.0.xml")});
    EXPECT_EQ(result.skipped, QStringList{file("Orphan.txt")});
    EXPECT_EQ(testsupport::readFile(file("USART-V1.0.xml")), kPeripheral);
    EXPECT_TRUE(QString::fromUtf8(testsupport::readFile(file("SPI-V1.0.xml")))
                    .contains(QStringLiteral("Comment=\"Parity\" CommentCH=\"奇偶校验\"")));
    EXPECT_FALSE(QFileInfo::exists(file("Orphan.xml")));
}

TEST_F(DbTextFolder, RoundTripOverTheShippedDatabaseChangesNoByte)
{
    // Every folder of the shipped device database that holds XML files, copied.
    const QString source = testsupport::sourceDatabase() + QStringLiteral("/device");
    QMap<QString, QByteArray> originals;
    QDirIterator it(source, {"*.xml"}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const QString rel = QDir(source).relativeFilePath(path);
        originals.insert(rel, testsupport::readFile(path));
        ASSERT_TRUE(testsupport::writeFile(file(rel), originals[rel]));
    }
    ASSERT_GT(originals.size(), 100);

    QSet<QString> folders;
    for (const QString &rel : originals.keys())
        folders.insert(QFileInfo(file(rel)).absolutePath());
    int texts = 0;
    for (const QString &folder : folders) {
        const DbTextExchange::FolderResult out = DbTextExchange::exportFolder(folder);
        EXPECT_TRUE(out.skipped.isEmpty());
        texts += out.written.size();
        const DbTextExchange::FolderResult in = DbTextExchange::importFolder(folder);
        EXPECT_TRUE(in.written.isEmpty()) << in.written.join(' ').toStdString();
        EXPECT_TRUE(in.skipped.isEmpty());
    }
    EXPECT_EQ(texts, originals.size());
    for (auto i = originals.cbegin(); i != originals.cend(); ++i)
        EXPECT_EQ(testsupport::readFile(file(i.key())), i.value()) << i.key().toStdString();
    // The USART file's texts did travel.
    EXPECT_TRUE(testsupport::readFile(file("MQ48T110/Peripherals/USART-V1.0.txt"))
                    .contains("Comment=\"Baud Rate\"  CommentCH=\"波特率\""));
}

} // namespace
