#include "database/catalogue.h"
#include "database/language.h"
#include "database/paths.h"
#include "tests/common/testsupport.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// Restores g_language when a test ends.
struct LanguageGuard
{
    int saved = g_language;
    ~LanguageGuard() { g_language = saved; }
};

QString catalogue()
{
    return testsupport::fixture("database/catalogue/MCUList.xml");
}

} // namespace

TEST(Catalogue, SeriesResolvedByLanguageInFileOrder)
{
    LanguageGuard guard;
    g_language = 0;
    const QList<MCUSerialInfo> en = GetMCUSerialList(catalogue());
    ASSERT_EQ(en.size(), 2);
    EXPECT_EQ(en[0].Serial, "MQ48T110");
    EXPECT_EQ(en[1].Serial, "MQ48T510");
    EXPECT_EQ(en[0].Info, en[0].InfoEN);
    EXPECT_FALSE(en[0].InfoCH.isEmpty());

    g_language = 1;
    const QList<MCUSerialInfo> zh = GetMCUSerialList(catalogue());
    ASSERT_EQ(zh.size(), 2);
    EXPECT_EQ(zh[0].Info, zh[0].InfoCH);
    // Rule A: no fallback to English when the Chinese text is missing.
    EXPECT_TRUE(zh[1].InfoCH.isEmpty());
    EXPECT_TRUE(zh[1].Info.isEmpty());
}

TEST(Catalogue, SectionLookupSearchesAttributesAndFirstWins)
{
    // The T110 section carries `term` as its second attribute; T510 exists twice.
    const QList<MCUListItem> t110 = GetMCUList(catalogue(), "MQ48T110");
    ASSERT_EQ(t110.size(), 2);
    EXPECT_EQ(t110[0].Name, "MQ48T110C8T7");
    EXPECT_EQ(t110[0].Package, "LQFP48");
    EXPECT_EQ(t110[0].Flash, "64");
    EXPECT_EQ(t110[0].SRAM, "16");
    EXPECT_TRUE(t110[0].MaxSRAM.isEmpty());
    EXPECT_EQ(t110[1].MaxSRAM, "32");

    const QList<MCUListItem> t510 = GetMCUList(catalogue(), "MQ48T510");
    ASSERT_EQ(t510.size(), 1);
    EXPECT_EQ(t510[0].Name, "MQ48T510VGT7");

    EXPECT_EQ(GetMCUPackageList(catalogue()), (QStringList{"LQFP48", "QFN32", "LQFP100"}));
    EXPECT_TRUE(GetMCUList(catalogue(), "MQ48T999").isEmpty());
}

TEST(Catalogue, BadFilesGiveEmptyLists)
{
    QTemporaryDir dir;
    const QByteArray good = testsupport::readFile(catalogue());
    ASSERT_FALSE(good.isEmpty());
    const QString truncated = dir.filePath("truncated.xml");
    ASSERT_TRUE(testsupport::writeFile(truncated, good.left(good.size() / 2)));
    const QString garbage = dir.filePath("garbage.xml");
    ASSERT_TRUE(testsupport::writeFile(garbage, "not xml at all"));

    for (const QString &path : {truncated, garbage, dir.filePath("missing.xml")}) {
        EXPECT_TRUE(GetMCUSerialList(path).isEmpty()) << qPrintable(path);
        EXPECT_TRUE(GetMCUPackageList(path).isEmpty()) << qPrintable(path);
        EXPECT_TRUE(GetMCUList(path, "MQ48T110").isEmpty()) << qPrintable(path);
    }
}

TEST(Catalogue, DefaultPathFollowsAppFolderOverride)
{
    setAppFolderOverride(testsupport::fixture("database/db"));
    EXPECT_EQ(databaseFolder(), testsupport::fixture("database/db/MQ48DB"));
    EXPECT_EQ(GetMCUList("MQ48T110").size(), 2);
    EXPECT_EQ(GetMCUSerialList().size(), 1);
    EXPECT_EQ(GetMCUPackageList(), (QStringList{"LQFP48", "QFN32"}));
    setAppFolderOverride(QString());
    EXPECT_NE(appFolder(), testsupport::fixture("database/db"));
}
