#include "app/languagesetting.h"
#include "database/configstore.h"
#include "tests/common/testsupport.h"

#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// Names and texts of the root's child elements, in order.
QStringList children(const QString &path)
{
    QDomDocument doc;
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly) || !doc.setContent(&f))
        return {QStringLiteral("<unreadable>")};
    QStringList out;
    for (QDomElement e = doc.documentElement().firstChildElement(); !e.isNull();
         e = e.nextSiblingElement())
        out << e.tagName() + QStringLiteral("=") + e.text();
    return out;
}

class ConfigStore : public ::testing::Test
{
protected:
    QTemporaryDir dir;
    QString path = dir.path() + QStringLiteral("/config.xml");

    void write(const char *xml) { ASSERT_TRUE(testsupport::writeFile(path, xml)); }
};

TEST_F(ConfigStore, NewFileHasDeclarationAndEmptyRootAndGrowsOnWrite)
{
    ASSERT_TRUE(CreateConfigFile(path));
    const QByteArray created = testsupport::readFile(path);
    EXPECT_TRUE(created.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"))
        << created.data();
    EXPECT_TRUE(created.contains("<Configuration/>")) << created.data();

    QString value = QStringLiteral("untouched");
    EXPECT_FALSE(GetConfigValue(path, QStringLiteral("Language"), value));
    EXPECT_EQ(value, QStringLiteral("untouched"));

    ASSERT_TRUE(SetConfigValue(path, QStringLiteral("Language"), QStringLiteral("UI_CH")));
    ASSERT_TRUE(SetConfigValue(path, QStringLiteral("PackagePath"), QStringLiteral("/opt/pk")));
    EXPECT_EQ(children(path), QStringList({QStringLiteral("Language=UI_CH"),
                                           QStringLiteral("PackagePath=/opt/pk")}));
    // Indented by four blanks.
    EXPECT_TRUE(testsupport::readFile(path).contains("\n    <Language>UI_CH</Language>\n"));
    ASSERT_TRUE(GetConfigValue(path, QStringLiteral("PackagePath"), value));
    EXPECT_EQ(value, QStringLiteral("/opt/pk"));
}

TEST_F(ConfigStore, ReadsFirstMatchingElementCaseSensitively)
{
    write("<?xml version=\"1.0\"?><Configuration><!--Language-->"
          "<language>lower</language><Language>first</Language><Language>second</Language>"
          "</Configuration>");
    QString value;
    ASSERT_TRUE(GetConfigValue(path, QStringLiteral("Language"), value));
    EXPECT_EQ(value, QStringLiteral("first"));
    ASSERT_TRUE(GetConfigValue(path, QStringLiteral("language"), value));
    EXPECT_EQ(value, QStringLiteral("lower"));
}

TEST_F(ConfigStore, UnreadableOrEmptyFilesGiveNoValue)
{
    QString value = QStringLiteral("kept");
    EXPECT_FALSE(GetConfigValue(path, QStringLiteral("Language"), value)); // missing
    write("<Configuration><Language>UI_CH</Language>");                    // malformed
    EXPECT_FALSE(GetConfigValue(path, QStringLiteral("Language"), value));
    write("<Configuration></Configuration>"); // no children
    EXPECT_FALSE(GetConfigValue(path, QStringLiteral("Language"), value));
    EXPECT_EQ(value, QStringLiteral("kept"));
}

TEST_F(ConfigStore, SetChangesEveryDuplicateAndKeepsOrderAndOtherKeys)
{
    write("<?xml version=\"1.0\" encoding=\"UTF-8\"?><Configuration>"
          "<ProjectLocation>/home/a</ProjectLocation><PackagePath>old</PackagePath>"
          "<Language>UI_EN</Language><PackagePath>old2</PackagePath>"
          "<ToolchainIDE>Keil</ToolchainIDE></Configuration>");
    ASSERT_TRUE(SetConfigValue(path, QStringLiteral("PackagePath"), QStringLiteral("/new")));
    EXPECT_EQ(
        children(path),
        QStringList({QStringLiteral("ProjectLocation=/home/a"), QStringLiteral("PackagePath=/new"),
                     QStringLiteral("Language=UI_EN"), QStringLiteral("PackagePath=/new"),
                     QStringLiteral("ToolchainIDE=Keil")}));
}

TEST_F(ConfigStore, EmptyElementStaysEmptyWhileSetSucceeds)
{
    write("<Configuration><ProjectLocation/><Language>UI_EN</Language></Configuration>");
    EXPECT_TRUE(SetConfigValue(path, QStringLiteral("ProjectLocation"), QStringLiteral("/x")));
    EXPECT_EQ(children(path),
              QStringList({QStringLiteral("ProjectLocation="), QStringLiteral("Language=UI_EN")}));
}

TEST_F(ConfigStore, SetNeedsAnExistingReadableFile)
{
    EXPECT_FALSE(SetConfigValue(path, QStringLiteral("Language"), QStringLiteral("UI_CH")));
    EXPECT_FALSE(QFile::exists(path));
    write("<Configuration>");
    EXPECT_FALSE(SetConfigValue(path, QStringLiteral("Language"), QStringLiteral("UI_CH")));
    EXPECT_EQ(testsupport::readFile(path), QByteArray("<Configuration>"));
}

TEST_F(ConfigStore, StoringTheLanguageCreatesTheFileWithOneChild)
{
    ASSERT_TRUE(StoreLanguageSetting(path, 1));
    EXPECT_EQ(children(path), QStringList({QStringLiteral("Language=UI_CH")}));
    ASSERT_TRUE(StoreLanguageSetting(path, 0));
    EXPECT_EQ(children(path), QStringList({QStringLiteral("Language=UI_EN")}));
}

// The language at start: the setting decides when it is one of the two known values,
// otherwise the system locale; nothing is ever written.
TEST_F(ConfigStore, StartLanguageFollowsSettingThenLocale)
{
    const QLocale chinese(QLocale::Chinese, QLocale::China);
    const QLocale german(QLocale::German, QLocale::Germany);

    StartLanguage start = ChooseStartLanguage(path, chinese);
    EXPECT_EQ(start.language, 1);
    EXPECT_EQ(start.catalogue, QStringLiteral(":/image/tr_zh.qm"));
    start = ChooseStartLanguage(path, german);
    EXPECT_EQ(start.language, 0);
    EXPECT_EQ(start.catalogue, QStringLiteral(":/image/tr_en.qm"));
    EXPECT_FALSE(QFile::exists(path));

    write("<Configuration><Language>UI_EN</Language></Configuration>");
    EXPECT_EQ(ChooseStartLanguage(path, chinese).language, 0);
    write("<Configuration><Language>UI_CH</Language></Configuration>");
    start = ChooseStartLanguage(path, german);
    EXPECT_EQ(start.language, 1);
    EXPECT_EQ(start.catalogue, QStringLiteral(":/image/tr_zh.qm"));

    for (const char *other : {"<Configuration><Language>UI_FR</Language></Configuration>",
                              "<Configuration><Language>ui_ch</Language></Configuration>",
                              "<Configuration><Language/></Configuration>",
                              "<Configuration><Language>UI_CH</Language>",
                              "<Configuration><PackagePath>/p</PackagePath></Configuration>"}) {
        write(other);
        EXPECT_EQ(ChooseStartLanguage(path, chinese).language, 1) << other;
        EXPECT_EQ(ChooseStartLanguage(path, german).language, 0) << other;
        EXPECT_EQ(testsupport::readFile(path), QByteArray(other));
    }
}

} // namespace
