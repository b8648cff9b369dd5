#include "codegen/templateengine.h"
#include "codegentestsupport.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

using namespace TemplateEngine;

namespace {

// The block pattern as a regular expression with the dot across lines and greedy bodies:
// the scanner must find the same spans.
Block regexBlock(const QString &text, const QString &tag, Tail tail)
{
    const QString t = QRegularExpression::escape(tag);
    QString open = QStringLiteral("\\[#") + t + QStringLiteral("\\] *\n");
    QString close = QStringLiteral("\\[/#") + t;
    if (tail == Tail::Strict) {
        open = QStringLiteral("\\[#") + t + QStringLiteral("\\]\n");
        close += QStringLiteral("\\]\n+");
    } else if (tail == Tail::Optional) {
        close += QStringLiteral("\\] *\n*");
    } else {
        close += QStringLiteral("\\] *\n+");
    }
    const QRegularExpression re(open + QStringLiteral("(.+)") + close,
                                QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch m = re.match(text);
    if (!m.hasMatch())
        return {};
    return Block{m.capturedStart(), m.capturedStart(1),
                 m.capturedEnd(1), m.capturedEnd()};
}

} // namespace

TEST(TemplateBlocks, KeepLeavesExactlyOneBlankLineAndDropClosesUp)
{
    const QString tpl = QStringLiteral("a();\n\n[#x]\n  b();\n[/#x]\n\n\n\n  c();\n");
    QString kept = tpl;
    ASSERT_TRUE(keepBlock(kept, QStringLiteral("x")));
    EXPECT_EQ(kept, QStringLiteral("a();\n\n  b();\n\n  c();\n"));
    QString dropped = tpl;
    ASSERT_TRUE(dropBlock(dropped, QStringLiteral("x")));
    EXPECT_EQ(dropped, QStringLiteral("a();\n\n  c();\n"));
    // A missing block is a failure and changes nothing.
    QString missing = tpl;
    EXPECT_FALSE(gateBlock(missing, QStringLiteral("y"), true));
    EXPECT_FALSE(gateBlock(missing, QStringLiteral("y"), false));
    EXPECT_EQ(missing, tpl);
}

TEST(TemplateBlocks, TrailingBlanksBehindTagsMatchExceptForClockTags)
{
    const QString tpl = QStringLiteral("[#enable hext]   \nx\n[/#enable hext]  \ny\n");
    QString normal = tpl;
    EXPECT_TRUE(keepBlock(normal, QStringLiteral("enable hext")));
    EXPECT_EQ(normal, QStringLiteral("x\n\ny\n"));
    QString clock = tpl;
    EXPECT_FALSE(keepBlock(clock, QStringLiteral("enable hext"), Tail::Strict));
    EXPECT_EQ(clock, tpl);
    QString plain = QStringLiteral("[#enable hext]\nx\n[/#enable hext]\ny\n");
    EXPECT_TRUE(dropBlock(plain, QStringLiteral("enable hext"), Tail::Strict));
    EXPECT_EQ(plain, QStringLiteral("y\n"));
}

TEST(TemplateBlocks, OptionalTailLetsTheBlockEndTheText)
{
    QString text = QStringLiteral("a\n[#dma_channel_config]\nf();\n[/#dma_channel_config]");
    QString strict = text;
    EXPECT_FALSE(keepBlock(strict, QStringLiteral("dma_channel_config")));
    EXPECT_TRUE(keepBlock(text, QStringLiteral("dma_channel_config"), Tail::Optional));
    EXPECT_EQ(text, QStringLiteral("a\nf();\n\n"));
}

TEST(TemplateBlocks, ReusedNamesAreAddressedInsideTheirParent)
{
    QString text = QStringLiteral("[#output]\n[#init]\nout\n[/#init]\n[/#output]\n"
                                  "[#input]\n[#init]\nin\n[/#init]\n[/#input]\n");
    ASSERT_TRUE(editBlock(text, QStringLiteral("input"), true, [](QString &body) {
        return repeatBlock(body, QStringLiteral("init"), 2, [](QString &copy, int i) {
            copy.replace(QStringLiteral("in"), QStringLiteral("in%1").arg(i));
            return true;
        });
    }));
    EXPECT_EQ(text, QStringLiteral("[#output]\n[#init]\nout\n[/#init]\n[/#output]\n"
                                   "in0\nin1\n\n"));
    // Searched in the whole text, a name used twice spans from its first opening to its
    // last closing tag.
    QString whole = QStringLiteral("[#init]\na\n[/#init]\nmid\n[#init]\nb\n[/#init]\nend\n");
    ASSERT_TRUE(dropBlock(whole, QStringLiteral("init")));
    EXPECT_EQ(whole, QStringLiteral("end\n"));
}

TEST(TemplateBlocks, RepeatGivesAdjacentCopiesOrNothing)
{
    const QString tpl = QStringLiteral("{\n[#line]\n  f(X);\n[/#line]\n\n\n  g();\n}\n");
    QString none = tpl;
    ASSERT_TRUE(repeatBlock(none, QStringLiteral("line"), 0,
                            [](QString &, int) { return true; }));
    EXPECT_EQ(none, QStringLiteral("{\n  g();\n}\n"));
    QString three = tpl;
    ASSERT_TRUE(repeatBlock(three, QStringLiteral("line"), 3, [](QString &copy, int i) {
        copy.replace(QLatin1Char('X'), QString::number(i));
        return true;
    }));
    EXPECT_EQ(three, QStringLiteral("{\n  f(0);\n  f(1);\n  f(2);\n\n  g();\n}\n"));
    QString failing = tpl;
    EXPECT_FALSE(repeatBlock(failing, QStringLiteral("line"), 2,
                             [](QString &, int i) { return i == 0; }));
    EXPECT_EQ(failing, tpl);
}

TEST(TemplateBlocks, EditBlockDropsOrRewritesAndKeepsTextOnFailure)
{
    const QString tpl =
        QStringLiteral("[#f]\nvoid f(void)\n{\n[#a]\n  a();\n[/#a]\n\n}\n[/#f]\n\nz\n");
    QString dropped = tpl;
    ASSERT_TRUE(editBlock(dropped, QStringLiteral("f"), false, [](QString &) { return true; }));
    EXPECT_EQ(dropped, QStringLiteral("z\n"));
    QString edited = tpl;
    ASSERT_TRUE(editBlock(edited, QStringLiteral("f"), true, [](QString &b) {
        return keepBlock(b, QStringLiteral("a"));
    }));
    EXPECT_EQ(edited, QStringLiteral("void f(void)\n{\n  a();\n}\n\nz\n"));
    QString failed = tpl;
    EXPECT_FALSE(editBlock(failed, QStringLiteral("f"), true, [](QString &b) {
        keepBlock(b, QStringLiteral("a"));
        return false;
    }));
    EXPECT_EQ(failed, tpl);
}

TEST(TemplateBlocks, SignalGateKeepsForTheFirstAssignedName)
{
    const QString tpl = QStringLiteral("[#tx]\nt();\n[/#tx]\nrest\n");
    auto assigned = [](const QString &s) { return s == QLatin1String("USART1_TX"); };
    QString kept = tpl;
    ASSERT_TRUE(gateBlockBySignal(kept, {"USART2_TX", "USART1_TX"}, assigned,
                                  QStringLiteral("tx"), false));
    EXPECT_EQ(kept, QStringLiteral("t();\nrest\n"));
    QString withBreak = tpl;
    ASSERT_TRUE(gateBlockBySignal(withBreak, {"USART1_TX"}, assigned, QStringLiteral("tx"), true));
    EXPECT_EQ(withBreak, QStringLiteral("t();\n\nrest\n"));
    QString none = tpl;
    ASSERT_TRUE(gateBlockBySignal(none, {}, assigned, QStringLiteral("tx"), true));
    EXPECT_EQ(none, QStringLiteral("rest\n"));
}

TEST(TemplateBlocks, ScannerFindsTheSpansOfTheGreedyPattern)
{
    // Texts built from pieces that exercise the edge cases: tags with blanks, tags inside
    // lines, empty bodies, repeated names, missing closings, text ends.
    const QStringList pieces = {"[#t]\n",  "[#t] \n", "[#t]x\n", "[/#t]\n", "[/#t]  \n",
                                "[/#t]",   "[/#t]\n\n\n", "body\n", "\n", " ",
                                "[#u]\n",  "[/#u]\n", "a[#t]\n", "[/#t]b\n"};
    int compared = 0;
    for (int seed = 1; seed < 4000; ++seed) {
        QString text;
        quint32 v = static_cast<quint32>(seed) * 2654435761u;
        for (int i = 0; i < 7; ++i) {
            text += pieces.at(static_cast<int>(v % pieces.size()));
            v = v * 1103515245u + 12345u;
        }
        for (Tail tail : {Tail::Blanks, Tail::Optional, Tail::Strict}) {
            const Block expected = regexBlock(text, QStringLiteral("t"), tail);
            const Block found = findBlock(text, QStringLiteral("t"), tail);
            ASSERT_EQ(found.start, expected.start) << qPrintable(text);
            ASSERT_EQ(found.bodyStart, expected.bodyStart) << qPrintable(text);
            ASSERT_EQ(found.bodyEnd, expected.bodyEnd) << qPrintable(text);
            ASSERT_EQ(found.end, expected.end) << qPrintable(text);
            compared += expected.isValid() ? 1 : 0;
        }
    }
    EXPECT_GT(compared, 1000);
}

TEST(TemplateLines, AssignmentTakesTheValueOrLeavesTheExample)
{
    QString text = QStringLiteral("  s.gpio_out_type  = GPIO_OUTPUT_PUSH_PULL;\n"
                                  "  s.gpio_pull = GPIO_PULL_NONE\n");
    EXPECT_TRUE(rewriteAssignment(text, QStringLiteral("s.gpio_out_type"),
                                  QStringLiteral("GPIO_OUTPUT_OPEN_DRAIN")));
    EXPECT_FALSE(rewriteAssignment(text, QStringLiteral("s.gpio_pull"), QString()));
    EXPECT_FALSE(rewriteAssignment(text, QStringLiteral("s.gpio_mode"), QStringLiteral("X")));
    EXPECT_TRUE(rewriteAssignment(text, QStringLiteral("s.gpio_pull"), QStringLiteral("UP")));
    EXPECT_EQ(text, QStringLiteral("  s.gpio_out_type = GPIO_OUTPUT_OPEN_DRAIN;\n"
                                   "  s.gpio_pull = UP;\n"));
}

TEST(TemplateLines, CallsKeepTheirFirstArgumentAndTemplateValuesForGaps)
{
    QString text = QStringLiteral("  usart_init(USART2, 9600, USART_DATA_8BITS, USART_STOP_1_BIT);\n"
                                  "  tmr_channel_value_set(TMR1, TMR_SELECT_CHANNEL_2, 0);\n");
    EXPECT_TRUE(rewriteCall(text, QStringLiteral("usart_init"),
                            {"115200", QString(), "USART_STOP_2_BIT"}));
    EXPECT_TRUE(rewriteCall(text, QStringLiteral("tmr_channel_value_set"), {QString(), "500"}));
    EXPECT_FALSE(rewriteCall(text, QStringLiteral("usart_enable"), {"TRUE"}));
    EXPECT_EQ(text, QStringLiteral("  usart_init(USART2, 115200, USART_DATA_8BITS, USART_STOP_2_BIT);\n"
                                   "  tmr_channel_value_set(TMR1, TMR_SELECT_CHANNEL_2, 500);\n"));
    QString single = QStringLiteral("crc_init_data_set(0xFFFFFFFF);");
    EXPECT_TRUE(rewriteCall(single, QStringLiteral("crc_init_data_set"), {"0x0"}, false));
    EXPECT_EQ(single, QStringLiteral("crc_init_data_set(0x0);"));
}

TEST(TemplateLines, BracesCloseAndOpenWithoutBlankLines)
{
    QString text = QStringLiteral("{  \n\n  a();\n\n   \n}\n{\n}\n  b();   \n\n}\n");
    closeBlanks(text);
    openBlanks(text);
    // A line holding blanks interrupts the run of line breaks: the breaks before it stay.
    EXPECT_EQ(text, QStringLiteral("{\n  a();\n\n\n}\n{\n}\n  b();\n}\n"));
}

TEST(TemplateLines, ReplacementsReadBackslashDigitsAsCaptures)
{
    EXPECT_EQ(expandCaptures(QStringLiteral("x\\1y\\2\\9\\\\n"), {"all", "one", "two"}),
              QStringLiteral("xoneytwo\\9\\\\n"));
    QString text = QStringLiteral("  usart_hardware_flow_control_set(USART1, NONE);\n\n\n  x();\n");
    ASSERT_TRUE(replacePattern(
        text,
        QStringLiteral(" *usart_hardware_flow_control_set\\(((\\s*\\w+),\\s*\\w+)\\);?\n+"),
        QStringLiteral("  usart_hardware_flow_control_set(\\2, CTS);\n\n")));
    EXPECT_EQ(text, QStringLiteral("  usart_hardware_flow_control_set(USART1, CTS);\n\n  x();\n"));
    QString last = QStringLiteral("f(1);\nf(2);\nf(3);\n");
    ASSERT_TRUE(replaceLastMatch(last, QStringLiteral("f\\((\\w+)\\);"), QStringLiteral("f(9);")));
    EXPECT_EQ(last, QStringLiteral("f(1);\nf(2);\nf(9);\n"));
}
