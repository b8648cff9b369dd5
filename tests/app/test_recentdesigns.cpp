#include "app/recentdesigns.h"
#include "tests/common/testsupport.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class RecentDesigns : public ::testing::Test
{
protected:
    QTemporaryDir dir;
    QString list = dir.path() + QStringLiteral("/resentlyProject.xml");
};

TEST_F(RecentDesigns, MissingOrBrokenFileGivesEmptyList)
{
    EXPECT_TRUE(GetRecentDesigns(list).isEmpty());
    ASSERT_TRUE(testsupport::writeFile(list, "<Root><ResentlyProject><FilePath>a</FilePath>"));
    EXPECT_TRUE(GetRecentDesigns(list).isEmpty());
}

TEST_F(RecentDesigns, ReadsOnlyTheFirstListInOrder)
{
    ASSERT_TRUE(testsupport::writeFile(
        list, "<Root><Other><FilePath>x</FilePath></Other>"
              "<ResentlyProject><FilePath>/b.MQPF</FilePath><Note/>"
              "<FilePath>/a.MQPF</FilePath></ResentlyProject>"
              "<ResentlyProject><FilePath>/c.MQPF</FilePath></ResentlyProject></Root>"));
    EXPECT_EQ(GetRecentDesigns(list),
              QStringList({QStringLiteral("/b.MQPF"), QStringLiteral("/a.MQPF")}));
}

TEST_F(RecentDesigns, AddingMovesToFrontAndKeepsFive)
{
    for (const char *p : {"/1.MQPF", "/2.MQPF", "/3.MQPF", "/4.MQPF", "/5.MQPF"})
        ASSERT_TRUE(AddRecentDesign(list, QString::fromLatin1(p)));
    EXPECT_EQ(GetRecentDesigns(list).first(), QStringLiteral("/5.MQPF"));

    // The same path again: one entry, at the front.
    ASSERT_TRUE(AddRecentDesign(list, QStringLiteral("/3.MQPF")));
    EXPECT_EQ(GetRecentDesigns(list),
              QStringList({"/3.MQPF", "/5.MQPF", "/4.MQPF", "/2.MQPF", "/1.MQPF"}));

    // A sixth design pushes out the oldest.
    ASSERT_TRUE(AddRecentDesign(list, QStringLiteral("/6.MQPF")));
    EXPECT_EQ(GetRecentDesigns(list),
              QStringList({"/6.MQPF", "/3.MQPF", "/5.MQPF", "/4.MQPF", "/2.MQPF"}));

    EXPECT_FALSE(AddRecentDesign(list, QString()));
    EXPECT_EQ(GetRecentDesigns(list).size(), kMaxRecentDesigns);
}

TEST_F(RecentDesigns, FileShapeAndDeletion)
{
    ASSERT_TRUE(WriteRecentDesigns(list, {"/a b/\xC3\xA9.MQPF", "/c.MQPF", "/a b/\xC3\xA9.MQPF"}));
    const QByteArray xml = testsupport::readFile(list);
    EXPECT_TRUE(xml.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>")) << xml.data();
    EXPECT_TRUE(xml.contains("<Root>\n    <ResentlyProject>\n        <FilePath>")) << xml.data();

    ASSERT_TRUE(DeleteRecentDesign(list, QString::fromUtf8("/a b/\xC3\xA9.MQPF")));
    EXPECT_EQ(GetRecentDesigns(list), QStringList({QStringLiteral("/c.MQPF")}));
    ASSERT_TRUE(DeleteRecentDesign(list, QStringLiteral("/c.MQPF")));
    EXPECT_TRUE(GetRecentDesigns(list).isEmpty());
    EXPECT_TRUE(QFile::exists(list));
}

} // namespace
