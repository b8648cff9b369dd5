// Broken files beside the program and in the database, as the start page meets them: nothing
// is lost without a word, nothing hangs, and a device file that can't carry a design is named
// once while the start page stays.

#include "app/customcommandlinkbutton.h"
#include "app/languagesetting.h"
#include "app/mainwindow.h"
#include "app/recentdesigns.h"
#include "database/configstore.h"
#include "peripherals/paramvalue.h"
#include "tests/app/appfolder.h"
#include "tests/common/testsupport.h"
#include "widgets/messagebox.h"

#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>
#include <gtest/gtest.h>

namespace {

// Records the messages and answers each with its first button.
struct Messages
{
    Messages()
    {
        setUserMessageHandler([this](QWidget *, const UserMessage &m) {
            texts << m.text;
            titles << m.title;
            return 0;
        });
    }
    ~Messages() { setUserMessageHandler({}); }
    QStringList texts;
    QStringList titles;
};

QByteArray recentList(int entries)
{
    QByteArray xml = "<?xml version=\"1.0\"?>\n<Root>\n<ResentlyProject>\n";
    for (int i = 0; i < entries; ++i)
        xml += "<FilePath>/designs/d" + QByteArray::number(i) + ".MQPF</FilePath>\n";
    return xml + "</ResentlyProject>\n</Root>\n";
}

int recentRowCount(const MainWindow &w)
{
    int rows = 0;
    for (CustomCommandLinkButton *b : w.findChildren<CustomCommandLinkButton *>())
        rows += b->isHidden() ? 0 : 1;
    return rows;
}

class BadFiles : public ::testing::Test
{
protected:
    TempAppFolder folder;
    Messages messages;
};

} // namespace

// A huge list costs no more than what the page shows.
TEST_F(BadFiles, AHugeRecentListIsReadOnlyAsFarAsThePageShows)
{
    const QString list = folder.file("resentlyProject.xml");
    ASSERT_TRUE(testsupport::writeFile(list, recentList(200000)));
    EXPECT_EQ(GetRecentDesigns(list),
              QStringList({"/designs/d0.MQPF", "/designs/d1.MQPF", "/designs/d2.MQPF",
                           "/designs/d3.MQPF", "/designs/d4.MQPF"}));

    ASSERT_TRUE(testsupport::writeFile(list, recentList(5000)));
    MainWindow w;
    EXPECT_EQ(recentRowCount(w), kMaxRecentDesigns);
    EXPECT_TRUE(messages.texts.isEmpty());
    EXPECT_TRUE(QFileInfo::exists(list));
}

// One stray byte: the list is kept aside under ".bad", the user is told once, and a new list
// starts with the next design.
TEST_F(BadFiles, AnUnreadableRecentListIsSetAsideAndSaidOnce)
{
    const QString list = folder.file("resentlyProject.xml");
    const QByteArray broken = "x" + recentList(5);
    ASSERT_TRUE(testsupport::writeFile(list, broken));
    {
        MainWindow w;
        EXPECT_EQ(recentRowCount(w), 0);
    }
    ASSERT_EQ(messages.texts.size(), 1);
    EXPECT_EQ(messages.titles.first(), "Warning");
    EXPECT_TRUE(messages.texts.first().contains("resentlyProject.xml.bad"));
    EXPECT_EQ(testsupport::readFile(list + ".bad"), broken);
    EXPECT_FALSE(QFileInfo::exists(list));

    ASSERT_TRUE(AddRecentDesign(list, "/designs/new.MQPF"));
    EXPECT_EQ(GetRecentDesigns(list), QStringList{"/designs/new.MQPF"});
    MainWindow again;
    EXPECT_EQ(recentRowCount(again), 1);
    EXPECT_EQ(messages.texts.size(), 1);

    // A second broken list does not overwrite the first one kept aside.
    ASSERT_TRUE(testsupport::writeFile(list, "<Root><ResentlyProject><FilePath>"));
    EXPECT_TRUE(GetRecentDesigns(list).isEmpty());
    EXPECT_EQ(testsupport::readFile(list + ".bad"), broken);
    EXPECT_TRUE(QFileInfo::exists(list + ".bad2"));
}

// A config.xml that does not parse no longer makes every setting change fail: the first
// change keeps it aside, says so once, and writes a new file.
TEST_F(BadFiles, AnUnreadableSettingsFileIsSetAsideAtTheFirstChange)
{
    const QString config = folder.file("config.xml");
    ASSERT_TRUE(testsupport::writeFile(config, "<Configuration><Language>UI_CH</Lang"));
    // At start it counts as no setting, without a word.
    EXPECT_EQ(ChooseStartLanguage(config, QLocale(QLocale::English)).language, 0);
    EXPECT_TRUE(messages.texts.isEmpty());

    MainWindow w; // the page tells the user
    ASSERT_TRUE(StoreLanguageSetting(config, 1));
    ASSERT_EQ(messages.texts.size(), 1);
    EXPECT_TRUE(messages.texts.first().contains("config.xml.bad"));
    QString value;
    ASSERT_TRUE(GetConfigValue(config, "Language", value));
    EXPECT_EQ(value, "UI_CH");

    ASSERT_TRUE(StoreConfigValue(config, "PackagePath", "/packages"));
    ASSERT_TRUE(GetConfigValue(config, "Language", value));
    EXPECT_EQ(value, "UI_CH");
    EXPECT_EQ(messages.texts.size(), 1);
}

// A device file that is missing, cut short or without its sections is named in one message;
// the start page stays and no empty chip opens.
TEST_F(BadFiles, ABrokenDeviceFileIsNamedOnceAndTheStartPageStays)
{
    const QString device = folder.file("MQ48DB/device/MQ48T510/MQ48T510VGT7.xml");
    const QByteArray good =
        "<Device><S term=\"MCUBaseInfo\"><I MCUName=\"MQ48T510VGT7\" Package=\"LQFP\" "
        "PinNums=\"100\" xPinNum=\"25\" yPinNum=\"25\"/></S><S term=\"PinsList\"><P PinNum=\"1\" "
        "PinName=\"PE2\"/></S><S term=\"PeripheralsList\"/></Device>";
    struct Case
    {
        const char *name;
        QByteArray content; // empty: no file
        const char *reason;
    } cases[] = {
        {"missing", QByteArray(), "the file does not exist"},
        {"cut short", good.left(good.size() / 2), "line 1"},
        {"without sections", "<Device><S term=\"Other\"/></Device>", "no section"},
        {"counts beyond any package", QByteArray(good).replace("\"100\"", "\"400000\""),
         "PinNums \"400000\""},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        QFile::remove(device);
        if (!c.content.isEmpty()) {
            ASSERT_TRUE(testsupport::writeFile(device, c.content));
        }
        messages.texts.clear();
        MainWindow w;
        w.show();
        w.findChild<QPushButton *>("newDesignButton")->click();
        ASSERT_EQ(messages.texts.size(), 1) << qPrintable(messages.texts.join('\n'));
        EXPECT_TRUE(messages.texts.first().contains("MQ48T510VGT7.xml"));
        EXPECT_TRUE(messages.texts.first().contains(c.reason))
            << qPrintable(messages.texts.first());
        EXPECT_TRUE(w.isVisible());
    }

    // The good file opens.
    ASSERT_TRUE(testsupport::writeFile(device, good));
    messages.texts.clear();
    MainWindow w;
    w.show();
    w.findChild<QPushButton *>("newDesignButton")->click();
    EXPECT_FALSE(w.isVisible());
}

// Bounds of a broken peripheral file are brought into the range of the type instead of
// overflowing the conversion.
TEST(BadParameterBounds, HugeOrNegativeBoundsOfAnIntegerClipSafely)
{
    RefParameter p;
    p.Type = "integer";
    p.Value = "5";
    p.Min = "1e30";
    ParamEdit edit = ParamValue::edit(p, "7");
    EXPECT_TRUE(edit.readable);
    EXPECT_TRUE(edit.clipped);
    EXPECT_EQ(edit.value, "18446744073709551615");

    p.Min = "-1e30";
    p.Max = "-3";
    edit = ParamValue::edit(p, "7");
    EXPECT_TRUE(edit.clipped);
    EXPECT_EQ(edit.value, "0");
    EXPECT_FALSE(ParamValue::isValid(p));
}
