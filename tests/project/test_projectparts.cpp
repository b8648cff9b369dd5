#include "projecttestsupport.h"

#include "common/testsupport.h"
#include "database/paths.h"
#include "project/devicefacts.h"
#include "project/idetable.h"
#include "project/projectformats.h"
#include "project/projectinfo.h"
#include "project/projectsizes.h"
#include "project/stagedfiles.h"
#include "project/xmltree.h"

#include <QDir>
#include <QDomDocument>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QXmlStreamWriter>

#include <gtest/gtest.h>

namespace {

// --- the ordered XML tree ---------------------------------------------------------------------

TEST(XmlTree, WritesBackWhatItReadInTheSameOrderAndLayout)
{
    const QByteArray source =
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\" standalone=\"no\" ?>\n"
        "<?fileVersion 4.0.0?>\n"
        "<root zeta=\"1\" alpha=\"a &amp; &quot;b&quot;\" mid=\"3\">\n"
        "\t<!-- a comment -->\n"
        "\t<empty></empty>\n"
        "\t<flag on=\"true\"/>\n"
        "\t<text>x &lt; y\tand tab</text>\n"
        "</root>\n";
    XmlTree tree;
    ASSERT_TRUE(tree.parse(source));
    const QByteArray expected = QByteArray(source).replace("ISO-8859-1", "UTF-8");
    for (int run = 0; run < 3; ++run)
        EXPECT_EQ(tree.serialize(), expected);
}

TEST(XmlTree, SelectsByPathChildTextAttributeAndAnyDepth)
{
    XmlTree tree;
    ASSERT_TRUE(tree.parse("<p><g><name>user</name><f>1</f></g><g><name>firmware</name><f>2</f>"
                           "</g><a><b><o kind=\"x\"/><o kind=\"y\"/></b></a></p>"));
    ASSERT_EQ(tree.select(QStringLiteral("g")).size(), 2);
    const QList<XmlNode *> firmware = tree.select(QStringLiteral("g[name=firmware]/f"));
    ASSERT_EQ(firmware.size(), 1);
    EXPECT_EQ(firmware.first()->ownText(), QStringLiteral("2"));
    EXPECT_EQ(tree.select(QStringLiteral("**/o[@kind=y]")).size(), 1);
    EXPECT_EQ(tree.select(QStringLiteral("**/o")).size(), 2);
    EXPECT_TRUE(tree.select(QStringLiteral("g[name=none]")).isEmpty());
}

TEST(XmlTree, RefusesMalformedAndEntityExpandingDocuments)
{
    XmlTree tree;
    EXPECT_FALSE(tree.parse("<a><b></a>"));
    EXPECT_FALSE(tree.parse("<!DOCTYPE a [<!ENTITY x \"xxxxxxxx\">]><a>&x;</a>"));
    EXPECT_FALSE(tree.parse(""));
    EXPECT_TRUE(tree.root().name.isEmpty());
}

// --- device facts ------------------------------------------------------------------------------

TEST(DeviceFacts, StemsFamiliesAndFlashCharactersOfTheSeries)
{
    EXPECT_EQ(devicefacts::deviceStem(QStringLiteral("MQ48T110")), QStringLiteral("t110"));
    EXPECT_EQ(devicefacts::deviceStem(QStringLiteral("MQ48T220")), QStringLiteral("t210_220"));
    EXPECT_EQ(devicefacts::boardStem(QStringLiteral("MQ48T220")), QStringLiteral("t220"));
    EXPECT_EQ(devicefacts::deviceStem(QStringLiteral("MQ48X999")), QString());
    EXPECT_EQ(devicefacts::packageFamily(QStringLiteral("MQ48T520")),
              QStringLiteral("MQ48T510_520"));
    EXPECT_EQ(devicefacts::packageFamily(QStringLiteral("MQ48T110")), QStringLiteral("MQ48T110"));
    EXPECT_EQ(devicefacts::codeStem(QStringLiteral("MQ48V250")), QStringLiteral("mq48v250"));
    EXPECT_EQ(devicefacts::linkerStem(QStringLiteral("MQ48T110"), 64),
              QStringLiteral("MQ48T110x8"));
    EXPECT_EQ(devicefacts::linkerStem(QStringLiteral("MQ48T110"), 128),
              QStringLiteral("MQ48T110xB"));
    EXPECT_EQ(devicefacts::linkerStem(QStringLiteral("MQ48T110"), 32),
              QStringLiteral("MQ48T110x6"));
    EXPECT_EQ(devicefacts::flashCodeChar(448), QLatin1Char('D'));
    EXPECT_EQ(devicefacts::flashCodeChar(320), QLatin1Char('M')); // unknown, above 256
    EXPECT_TRUE(devicefacts::flashCodeChar(100).isNull());
    EXPECT_EQ(devicefacts::sizeKiB(QStringLiteral("64 KB")), 64);
    EXPECT_EQ(devicefacts::sizeKiB(QStringLiteral("1 MB")), 1024);
    EXPECT_EQ(devicefacts::sizeKiB(QStringLiteral("lots")), 0);
    EXPECT_EQ(devicefacts::generatedSources(QStringLiteral("MQ48T110")),
              (QStringList{QStringLiteral("main.c"), QStringLiteral("mq48t110_pf_config.c"),
                           QStringLiteral("mq48t110_int.c")}));
}

TEST(DeviceFacts, FindsInstalledPackagesNewestFirstAndChecksTheirFolders)
{
    QTemporaryDir dir;
    const QString family = dir.path() + QStringLiteral("/PF_MQ48T110/");
    for (const char *name :
         {"MQ48T110_Firmware_Library_V1.9.0", "MQ48T110_Firmware_Library_V2.10.0",
          "MQ48T110_Firmware_Library_V2.2.0", "Other_Firmware_Library_V3"})
        ASSERT_TRUE(QDir().mkpath(family + QLatin1String(name)));
    EXPECT_EQ(devicefacts::installedPackageVersions(dir.path(), QStringLiteral("MQ48T110")),
              (QStringList{QStringLiteral("V2.10.0"), QStringLiteral("V2.2.0"),
                           QStringLiteral("V1.9.0")}));
    EXPECT_TRUE(
        devicefacts::installedPackageVersions(QString(), QStringLiteral("MQ48T110")).isEmpty());

    EXPECT_TRUE(
        devicefacts::isFirmwarePackage(projecttest::fixturePackage(), QStringLiteral("MQ48T110")));
    EXPECT_FALSE(
        devicefacts::isFirmwarePackage(projecttest::fixturePackage(), QStringLiteral("MQ48T120")));
    EXPECT_FALSE(devicefacts::isFirmwarePackage(family + QStringLiteral("MQ48T110_Firmware_"
                                                                        "Library_V1.9.0"),
                                                QStringLiteral("MQ48T110")));
    EXPECT_EQ(devicefacts::packageFolder(QStringLiteral("/r"), QStringLiteral("MQ48T210"),
                                         QStringLiteral("V2.0.0")),
              QStringLiteral("/r/PF_MQ48T210_220/MQ48T210_220_Firmware_Library_V2.0.0"));
}

// --- IDE table -----------------------------------------------------------------------------

TEST(IdeTable, DialogOrderIndicesAndProjectFilesToOpen)
{
    EXPECT_EQ(dialogIdeNames(),
              (QStringList{QStringLiteral("MDK_V5"), QStringLiteral("MDK_V4"),
                           QStringLiteral("IAR_V9.3"), QStringLiteral("IAR_V8.2"),
                           QStringLiteral("IAR_V7.4"), QStringLiteral("Eclipse_gcc"),
                           QStringLiteral("MQ48_IDE")}));
    EXPECT_EQ(ideIndexOfName(QStringLiteral("mq48_ide")), 0);
    EXPECT_EQ(ideIndexOfName(QStringLiteral("iar_v6.10")), 2);
    EXPECT_EQ(ideIndexOfName(QStringLiteral("MDK_V5")), 7);
    EXPECT_EQ(ideIndexOfName(QStringLiteral("Visual Studio")), -1);
    EXPECT_EQ(
        ideProjectFile(QStringLiteral("/p/B"), QStringLiteral("B"), QStringLiteral("MDK_V4")),
        QStringLiteral("/p/B/project/MDK_V4/B.uvproj"));
    EXPECT_EQ(
        ideProjectFile(QStringLiteral("/p/B"), QStringLiteral("B"), QStringLiteral("IAR_V8.2")),
        QStringLiteral("/p/B/project/IAR_V8.2/B.eww"));
    EXPECT_EQ(
        ideProjectFile(QStringLiteral("/p/B"), QStringLiteral("B"), QStringLiteral("MQ48_IDE")),
        QStringLiteral("/p/B/project/MQ48_IDE/.project"));
    // Every offered toolchain has its template in the shipped database.
    for (const QString &name : dialogIdeNames()) {
        const IdeType ide = ideTypeByName(name);
        for (const TemplateFile &file : ProjectFormat::of(ide.format).files(ide))
            EXPECT_TRUE(QFileInfo::exists(projecttest::templateRoot() + QLatin1Char('/') +
                                          ide.templateFolder + QLatin1Char('/') +
                                          file.templateName))
                << qPrintable(name + QLatin1Char(' ') + file.templateName);
    }
}

TEST(DefineList, TheDeviceStandsBeforeTheDriverSwitch)
{
    QStringList defines{QStringLiteral("DEBUG"), QStringLiteral("MQ48T110C8T"),
                        QStringLiteral("USE_STDPERIPH_DRIVER")};
    ASSERT_TRUE(replaceDeviceDefine(defines, QStringLiteral("MQ48T110CBT")));
    EXPECT_EQ(defines, (QStringList{QStringLiteral("DEBUG"), QStringLiteral("MQ48T110CBT"),
                                    QStringLiteral("USE_STDPERIPH_DRIVER")}));
    defines = QStringList{QStringLiteral("USE_STDPERIPH_DRIVER")};
    ASSERT_TRUE(replaceDeviceDefine(defines, QStringLiteral("MQ48T110CBT")));
    EXPECT_EQ(defines.first(), QStringLiteral("MQ48T110CBT"));
    defines = QStringList{QStringLiteral("MQ48T110C8T")};
    EXPECT_FALSE(replaceDeviceDefine(defines, QStringLiteral("MQ48T110CBT")));
}

// --- sizes and the design block -------------------------------------------------------------

TEST(ProjectSizes, ReadsHexadecimalAndComparesEachWithTheSram)
{
    quint32 heap = 0;
    quint32 stack = 0;
    QString problem;
    ASSERT_TRUE(parseProjectSizes(QStringLiteral("0x200"), QStringLiteral("400"), 0x2000, &heap,
                                  &stack, &problem));
    EXPECT_EQ(heap, 0x200u);
    EXPECT_EQ(stack, 0x400u);
    // Each alone fits although together they would not.
    EXPECT_TRUE(parseProjectSizes(QStringLiteral("0x2000"), QStringLiteral("0x2000"), 0x2000,
                                  &heap, &stack, &problem));

    EXPECT_FALSE(parseProjectSizes(QString(), QString(), 0x2000, &heap, &stack, &problem));
    EXPECT_EQ(problem, QStringLiteral("\"Minimum Heap Size\" input error!"));
    EXPECT_FALSE(parseProjectSizes(QStringLiteral("0x100"), QStringLiteral("0xx1"), 0x2000, &heap,
                                   &stack, &problem));
    EXPECT_EQ(problem, QStringLiteral("\"Minimum Stack Size\" input error!"));
    EXPECT_FALSE(parseProjectSizes(QStringLiteral("0x20000"), QStringLiteral("0x100"), 0x8000,
                                   &heap, &stack, &problem));
    EXPECT_EQ(problem, QStringLiteral("\"Minimum Heap Size\" input error, cannot be greater "
                                      "than SRAM size(0x8000)"));
    EXPECT_FALSE(parseProjectSizes(QStringLiteral("0x100"), QStringLiteral("0x2001"), 0x2000,
                                   &heap, &stack, &problem));
    EXPECT_TRUE(problem.startsWith(QLatin1String("\"Minimum Stack Size\" input error, cannot")));
}

TEST(ProjectInfomation, SavesAndLoadsTheDesignBlockInItsOrder)
{
    ProjectInfo info;
    info.projectName = QStringLiteral("Board <1>");
    info.projectLocation = QStringLiteral("/home/u/work");
    info.toolchainIDE = QStringLiteral("IAR_V8.2");
    info.keepUserCode = false;
    info.minHeapSize = QStringLiteral("0x300");
    info.useFirmware = false;
    info.packageVersion = QStringLiteral("V2.0.0");

    QByteArray data;
    QXmlStreamWriter writer(&data);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("Root"));
    writeProjectInfomation(writer, info);
    writer.writeEndElement();
    writer.writeEndDocument();

    QDomDocument doc;
    ASSERT_TRUE(doc.setContent(data));
    const QDomElement block = doc.documentElement().firstChildElement();
    EXPECT_EQ(block.tagName(), QStringLiteral("ProjectInfomation"));
    QStringList keys;
    for (QDomElement e = block.firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
        keys << e.tagName();
    EXPECT_EQ(keys,
              (QStringList{QStringLiteral("ProjectName"), QStringLiteral("ProjectLocation"),
                           QStringLiteral("ToolchainIDE"), QStringLiteral("KeepUserCode"),
                           QStringLiteral("MinHeapSize"), QStringLiteral("MinStackSize"),
                           QStringLiteral("UseFirmware"), QStringLiteral("PackageVersion")}));
    EXPECT_EQ(readProjectInfomation(doc.documentElement()), info);
    EXPECT_EQ(info.projectFolder(), QStringLiteral("/home/u/work/Board <1>"));

    // An older design names its package folder; a misspelt block is not this one.
    ASSERT_TRUE(doc.setContent(QByteArray("<Root><ProjectInformation><ProjectName>x"
                                          "</ProjectName></ProjectInformation>"
                                          "<ProjectInfomation><FirmwarePath>/f</FirmwarePath>"
                                          "<KeepUserCode>true</KeepUserCode>"
                                          "</ProjectInfomation></Root>")));
    const ProjectInfo old = readProjectInfomation(doc.documentElement());
    EXPECT_TRUE(old.projectName.isEmpty());
    EXPECT_EQ(old.firmwarePath, QStringLiteral("/f"));
    EXPECT_TRUE(old.keepUserCode);
}

// --- the command line's entry ------------------------------------------------------------------

// An installation with the shipped catalogue and templates, writing into a temporary folder.
class ProjectCommand : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(app.isValid());
        ASSERT_TRUE(QDir().mkpath(app.path() + QStringLiteral("/MQ48DB")));
        ASSERT_TRUE(
            QFile::copy(QStringLiteral(MQ48_SOURCE_DIR) + QStringLiteral("/MQ48DB/MCUList.xml"),
                        app.path() + QStringLiteral("/MQ48DB/MCUList.xml")));
        QString error;
        ASSERT_TRUE(checkedio::copyTree(projecttest::templateRoot(),
                                        app.path() + QStringLiteral("/MQ48DB/projectTemplate"), {},
                                        &error))
            << qPrintable(error);
        setAppFolderOverride(app.path());
        info.projectName = QStringLiteral("Cli");
        info.projectLocation = out.path();
        info.toolchainIDE = QStringLiteral("Eclipse_gcc");
    }
    void TearDown() override { setAppFolderOverride(QString()); }

    QTemporaryDir app;
    QTemporaryDir out;
    ProjectInfo info;
};

TEST_F(ProjectCommand, WritesTheProjectOfADesignForACatalogueDevice)
{
    const QString error =
        writeProjectFromInfo(info, QStringLiteral("MQ48T110"), QStringLiteral("MQ48T110CBT"),
                             projecttest::fixturePackage(), projecttest::usartTimerDrivers());
    EXPECT_TRUE(error.isEmpty()) << qPrintable(error);
    EXPECT_TRUE(QFileInfo::exists(out.path() + QStringLiteral("/Cli/project/Eclipse_gcc/ldscripts/"
                                                              "MQ48T110xB_FLASH.ld")));
    EXPECT_TRUE(QFileInfo::exists(out.path() + QStringLiteral("/Cli/libraries/drivers")));
}

TEST_F(ProjectCommand, ExplainsWhatStopsIt)
{
    info.minStackSize = QStringLiteral("0x4000");
    EXPECT_EQ(writeProjectFromInfo(info, QStringLiteral("MQ48T110"), QStringLiteral("MQ48T110C8T"),
                                   QString(), {}),
              QStringLiteral("\"Minimum Stack Size\" input error, cannot be greater than SRAM "
                             "size(0x2000)"));
    info.minStackSize = QStringLiteral("0x400");
    EXPECT_FALSE(writeProjectFromInfo(info, QStringLiteral("MQ48T110"),
                                      QStringLiteral("MQ48T110Z9Z"), QString(), {})
                     .isEmpty());
    EXPECT_FALSE(writeProjectFromInfo(info, QStringLiteral("MQ48T110"),
                                      QStringLiteral("MQ48T110C8T"), out.path(), {})
                     .isEmpty());
    info.toolchainIDE = QStringLiteral("Notepad");
    EXPECT_FALSE(writeProjectFromInfo(info, QStringLiteral("MQ48T110"),
                                      QStringLiteral("MQ48T110C8T"), QString(), {})
                     .isEmpty());
    EXPECT_FALSE(QFileInfo::exists(out.path() + QStringLiteral("/Cli")));
}

} // namespace
