#include "database/catalogue.h"
#include "packages/filedownloader.h"
#include "packages/packageindex.h"
#include "packages/packagenames.h"
#include "tests/common/testsupport.h"
#include "tests/packages/packagefixtures.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QStringList catalogueRows()
{
    return PackageFamilyRows(GetMCUSerialList(testsupport::sourceDatabase() + "/MCUList.xml"));
}

TEST(PackageFamilies, SeriesSharingALibraryShareOneRowInCatalogueOrder)
{
    const QStringList rows = catalogueRows();
    ASSERT_FALSE(rows.isEmpty());
    EXPECT_EQ(rows.first(), "MQ48T510_520"); // the catalogue starts with the T510
    for (const char *merged : {"MQ48T210_220", "MQ48T250_260", "MQ48T510_520"})
        EXPECT_EQ(rows.count(merged), 1) << merged;
    for (const char *member : {"MQ48T210", "MQ48T220", "MQ48T250", "MQ48T260", "MQ48T510"})
        EXPECT_FALSE(rows.contains(member)) << member;
    // Lookalike series of another line keep their own rows.
    EXPECT_TRUE(rows.contains("MQ48T110"));
    EXPECT_TRUE(rows.contains("MQ48V250"));
    EXPECT_EQ(PackageFamilyName("MQ48T630"), "MQ48T610_620_630");
    EXPECT_EQ(PackageFamilyName("MQ48T120"), "MQ48T120");
}

TEST(PackageFamilies, PackageNamesAreCheckedForMarkSuffixAndFamily)
{
    const QStringList rows = catalogueRows();
    EXPECT_TRUE(IsValidPackageName("/x/MQ48T110_Firmware_Library_V2.0.0.zip", rows));
    EXPECT_TRUE(IsValidPackageName("MQ48T510_520_Firmware_Library_V1.2.3.zip", rows));
    // The member of a merged family is not a row of its own.
    EXPECT_FALSE(IsValidPackageName("MQ48T510_Firmware_Library_V1.2.3.zip", rows));
    EXPECT_FALSE(IsValidPackageName("MQ48T110_Firmware_Library_V2.0.0.rar", rows));
    EXPECT_FALSE(IsValidPackageName("MQ48T110_Firmware_Library_V2.0.0.zip.txt", rows));
    EXPECT_FALSE(IsValidPackageName("MQ48T110_Firmware_Library_2.0.0.zip", rows));
    EXPECT_FALSE(IsValidPackageName("XY99T110_Firmware_Library_V2.0.0.zip", rows));
    EXPECT_FALSE(IsValidPackageName("MQ48T999_Firmware_Library_V2.0.0.zip", rows));
    EXPECT_FALSE(IsValidPackageName("/x/MQ48T110_Firmware_Library_V2.0.0.zip", {}));
    EXPECT_EQ(PackageFamilyOf("MQ48T510_520_Firmware_Library_V1.0.0"), "MQ48T510_520");
    EXPECT_EQ(PackageFamilyOf("MQ48T110_Firmware_Libraries"), "");
}

TEST(PackageFamilies, VersionIsTheLastPartWhenItStartsWithV)
{
    EXPECT_EQ(PackageVersionOf("MQ48T110_Firmware_Library_V2.0.0"), "V2.0.0");
    EXPECT_EQ(PackageVersionOf("MQ48T110_Firmware_Library_V2.0.0_beta"), "Unknown version");
    EXPECT_EQ(PackageVersionOf("MQ48T110_Firmware_Library_2.0.0"), "Unknown version");
    EXPECT_EQ(PackageVersionOf("MQ48T110_Firmware_Library"), "Unknown version");
}

// A scratch folder whose "repo" holds package folders made by the test.
class RepositoryListing : public ::testing::Test
{
protected:
    QTemporaryDir dir;
    QString repo() const { return dir.path() + "/repo"; }
    void folder(const QString &relative) { ASSERT_TRUE(QDir().mkpath(repo() + "/" + relative)); }
};

TEST_F(RepositoryListing, ListsOnlyPackageFoldersOfKnownFamilies)
{
    const QStringList rows = catalogueRows();
    folder("PF_MQ48T110/MQ48T110_Firmware_Library_V2.0.0");
    folder("PF_MQ48T110/MQ48T110_Firmware_Library_V1.9.0");
    folder("PF_MQ48T110/MQ48T110_Firmware_Library");        // no version
    folder("PF_MQ48T110/MQ48T120_Firmware_Library_V1.0.0"); // another family's name
    folder("PF_MQ48T110/notes");                            // not a package
    testsupport::writeFile(repo() + "/PF_MQ48T110/MQ48T110_Firmware_Library_V3.0.0", "file");
    folder("PF_MQ48T510_520/MQ48T510_520_Firmware_Library_V1.0.0");
    folder("PF_MQ48T510/MQ48T510_Firmware_Library_V1.0.0"); // member, not a row
    folder("XX_MQ48T120/MQ48T120_Firmware_Library_V1.0.0"); // other prefix
    folder("MQ48T120/MQ48T120_Firmware_Library_V1.0.0");    // no prefix
    folder("PF_MQ48T999/MQ48T999_Firmware_Library_V1.0.0"); // unknown family

    const QList<InstalledPackage> list = ListInstalledPackages(repo(), rows);
    QStringList seen;
    for (const InstalledPackage &package : list)
        seen << package.family + "|" + package.folderName + "|" + package.version;
    // Family rows in catalogue order (T510_520 comes first), names sorted within a family.
    EXPECT_EQ(seen, QStringList({
                        "MQ48T510_520|MQ48T510_520_Firmware_Library_V1.0.0|V1.0.0",
                        "MQ48T110|MQ48T110_Firmware_Library|Unknown version",
                        "MQ48T110|MQ48T110_Firmware_Library_V1.9.0|V1.9.0",
                        "MQ48T110|MQ48T110_Firmware_Library_V2.0.0|V2.0.0",
                    }));
    EXPECT_EQ(list.last().path, repo() + "/PF_MQ48T110/MQ48T110_Firmware_Library_V2.0.0");
    EXPECT_TRUE(list.last().created.isValid());
}

TEST_F(RepositoryListing, MissingOrEmptyRepositoryListsNothing)
{
    EXPECT_TRUE(ListInstalledPackages(repo(), catalogueRows()).isEmpty());
    EXPECT_TRUE(ListInstalledPackages(QString(), catalogueRows()).isEmpty());
    folder("PF_MQ48T110");
    EXPECT_TRUE(ListInstalledPackages(repo(), catalogueRows()).isEmpty());
}

TEST(PackageIndex, FindsTheReleaseOfAFamilyInTheSection)
{
    QTemporaryDir dir;
    const QString index = dir.path() + "/bsp_index.json";
    testsupport::writeFile(index, R"({"children": [
        {"name": "Tools", "releases": [{"name": "MQ48T110", "version": "9", "url": "wrong"}]},
        {"name": "Board_Support_Packages", "releases": [
            {"name": "MQ48T120", "version": "1.0.0", "url": "https://h/a.zip"},
            {"name": "MQ48T110", "version": "2.0.1", "url": "https://h/\u6d4b.zip"}]}]})");
    QString version = "untouched";
    QString url = "untouched";
    ASSERT_TRUE(ReadPackageIndex(index, "Board_Support_Packages", "MQ48T110", &version, &url));
    EXPECT_EQ(version, "2.0.1");
    EXPECT_EQ(url, QString::fromUtf8("https://h/\xe6\xb5\x8b.zip"));

    version = url = "untouched";
    EXPECT_FALSE(ReadPackageIndex(index, "Board_Support_Packages", "MQ48T050", &version, &url));
    EXPECT_FALSE(ReadPackageIndex(index, "Nothing", "MQ48T110", &version, &url));
    EXPECT_FALSE(ReadPackageIndex(dir.path() + "/none.json", "Board_Support_Packages", "MQ48T110",
                                  &version, &url));
    testsupport::writeFile(index, "{\"children\": [");
    EXPECT_FALSE(ReadPackageIndex(index, "Board_Support_Packages", "MQ48T110", &version, &url));
    EXPECT_EQ(version, "untouched");
    EXPECT_EQ(url, "untouched");
}

TEST(VersionList, ToolEntriesAreFoundByNameInTheirSection)
{
    QTemporaryDir dir;
    const QString list = dir.path() + "/VelmoraDownloadResource.xml";
    testsupport::writeFile(list, R"(<?xml version="1.0" encoding="UTF-8"?>
<Resources>
  <OtherTool><Tool><Name>MQ48 Pin Forge</Name><Version>V9.9.99</Version></Tool></OtherTool>
  <VelmoraTool>
    <Tool><Name>Flash Writer</Name><Version>V3.0.00</Version></Tool>
    <Tool><Name>MQ48 Pin Forge</Name><Version>V1.0.10</Version>
          <URL>https://cn/PinForge_V1.0.10.zip</URL><URLEN>https://en/PinForge.zip</URLEN></Tool>
  </VelmoraTool>
</Resources>)");
    EXPECT_EQ(GetDownloadInfo(list, "Version", "MQ48 Pin Forge", "VelmoraTool"), "V1.0.10");
    EXPECT_EQ(GetDownloadInfo(list, "URLEN", "MQ48 Pin Forge", "VelmoraTool"),
              "https://en/PinForge.zip");
    EXPECT_EQ(GetDownloadInfo(list, "Version", "Flash Writer", "VelmoraTool"), "V3.0.00");
    EXPECT_EQ(GetDownloadInfo(list, "Missing", "MQ48 Pin Forge", "VelmoraTool"), "");
    EXPECT_EQ(GetDownloadInfo(list, "Version", "Nobody", "VelmoraTool"), "");
    EXPECT_EQ(
        GetDownloadInfo(dir.path() + "/none.xml", "Version", "MQ48 Pin Forge", "VelmoraTool"), "");
}

TEST(VersionList, VersionPartsAreReadInBase16)
{
    EXPECT_EQ(VersionNumberFromText("V1.0.08"), 0x10008);
    EXPECT_EQ(VersionNumberFromText("V1.0.10"), 0x10010); // ten counts as sixteen
    EXPECT_GT(VersionNumberFromText("V1.0.10"), VersionNumberFromText("V1.0.09"));
    EXPECT_EQ(VersionNumberFromText("V2.1.0A"), 0x2010A);
    EXPECT_EQ(VersionNumberFromText("V1.0.x"), 0);
    EXPECT_EQ(VersionNumberFromText("V1.0"), 0);
    EXPECT_EQ(VersionNumberFromText(""), 0);
}

TEST(DownloadNames, VersionGoesIntoTheNameUnlessTheUrlCarriesOne)
{
    EXPECT_EQ(DownloadFileName(QUrl("https://h/d/PinForge.zip"), ""), "PinForge.zip");
    EXPECT_EQ(DownloadFileName(QUrl("https://h/d/PinForge.zip?x=1"), "1.0.10"),
              "PinForge_V1.0.10.zip");
    EXPECT_EQ(DownloadFileName(QUrl("https://h/d/"), "1.0"), "");
    EXPECT_TRUE(UrlNameHasVersion("https://h/MQ48T110_Firmware_Library_V2.0.0.zip"));
    EXPECT_FALSE(UrlNameHasVersion("https://h/MQ48T110_Firmware_Library.zip"));
    EXPECT_EQ(VersionForDownloadName("https://h/Lib_V2.0.0.zip", "V2.0.1"), "");
    EXPECT_EQ(VersionForDownloadName("https://h/Lib.zip", "V2.0.1"), "2.0.1");
    EXPECT_EQ(VersionForDownloadName("https://h/Lib.zip", "2.0.1"), "2.0.1");
}

} // namespace
