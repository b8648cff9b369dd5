#include "database/safexml.h"
#include "tests/common/testsupport.h"

#include <QDomDocument>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QByteArray nested(int depth)
{
    QByteArray data;
    data.reserve(depth * 7 + 16);
    for (int i = 0; i < depth; ++i)
        data += "<a>";
    for (int i = 0; i < depth; ++i)
        data += "</a>";
    return data;
}

} // namespace

TEST(SafeXml, ParsesOrdinaryDocument)
{
    QDomDocument doc;
    ASSERT_TRUE(parseXmlDocument("<?xml version=\"1.0\"?><IP><Mode Name=\"x\"/></IP>", &doc));
    EXPECT_EQ(doc.documentElement().tagName(), "IP");
    EXPECT_EQ(doc.documentElement().firstChildElement().attribute("Name"), "x");
}

TEST(SafeXml, RefusesDeepNestingFromFile)
{
    QTemporaryDir dir;
    const QString path = dir.filePath("deep.xml");
    ASSERT_TRUE(testsupport::writeFile(path, nested(100000)));
    QDomDocument doc;
    doc.setContent(QByteArray("<keep/>"));
    EXPECT_FALSE(loadXmlDocument(path, &doc));
    EXPECT_EQ(doc.documentElement().tagName(), "keep") << "a refused parse leaves doc alone";

    // The limit itself is accepted, one more level is not.
    EXPECT_TRUE(parseXmlDocument(nested(kMaxXmlDepth), &doc));
    EXPECT_FALSE(parseXmlDocument(nested(kMaxXmlDepth + 1), &doc));
}

TEST(SafeXml, RefusesEntityDeclarations)
{
    QByteArray bomb = "<?xml version=\"1.0\"?>\n<!DOCTYPE r [\n<!ENTITY a \"";
    bomb += QByteArray(10000, 'x');
    bomb += "\">\n<!ENTITY b \"";
    for (int i = 0; i < 10000; ++i)
        bomb += "&a;";
    bomb += "\">\n]>\n<r>";
    for (int i = 0; i < 1000; ++i)
        bomb += "&b;";
    bomb += "</r>";
    QDomDocument doc;
    EXPECT_FALSE(parseXmlDocument(bomb, &doc));

    // Even one small declared entity is refused; a plain DOCTYPE is fine.
    EXPECT_FALSE(parseXmlDocument("<!DOCTYPE r [<!ENTITY e \"v\">]><r>&e;</r>", &doc));
    EXPECT_TRUE(parseXmlDocument("<!DOCTYPE r><r/>", &doc));
}

TEST(SafeXml, RefusesMalformedMissingAndEmpty)
{
    QDomDocument doc;
    EXPECT_FALSE(parseXmlDocument("<IP><Mode></IP>", &doc));
    EXPECT_FALSE(parseXmlDocument("<IP><Mode Name=\"a\"/>", &doc)) << "truncated";
    EXPECT_FALSE(parseXmlDocument(QByteArray(), &doc));
    EXPECT_FALSE(parseXmlDocument("<r>&undeclared;</r>", &doc));
    EXPECT_FALSE(loadXmlDocument("/nonexistent/nothing.xml", &doc));
    EXPECT_FALSE(parseXmlDocument("<r/>", nullptr));

    QTemporaryDir dir;
    EXPECT_FALSE(loadXmlDocument(dir.path(), &doc)) << "a folder is not a file";
}
