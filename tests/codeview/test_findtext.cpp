#include "codeview/findtext.h"

#include <gtest/gtest.h>

using namespace findtext;

TEST(FindEscapes, ResolvesEachKindOfEscape)
{
    EXPECT_EQ(applyEscapes(QStringLiteral("a\\tb\\nc\\rd\\\\e")), QStringLiteral("a\tb\nc\rd\\e"));
    EXPECT_EQ(applyEscapes(QStringLiteral("x\\0y")),
              QString(QStringLiteral("x")) + QChar(0) + QStringLiteral("y"));
    EXPECT_EQ(applyEscapes(QStringLiteral("\\b01000001")), QStringLiteral("A"));
    EXPECT_EQ(applyEscapes(QStringLiteral("\\o101")), QStringLiteral("A"));
    EXPECT_EQ(applyEscapes(QStringLiteral("\\d065")), QStringLiteral("A"));
    EXPECT_EQ(applyEscapes(QStringLiteral("\\x41\\x7a")), QStringLiteral("Az"));
    EXPECT_EQ(applyEscapes(QStringLiteral("\\u65F6\\u949f")), QStringLiteral("时钟"));
    // Digits behind a numeric escape that are not needed stay text.
    EXPECT_EQ(applyEscapes(QStringLiteral("\\x4142")), QStringLiteral("A42"));
}

TEST(FindEscapes, KeepsBackslashesThatStartNoEscape)
{
    // Too few characters left.
    EXPECT_EQ(applyEscapes(QStringLiteral("\\x4")), QStringLiteral("\\x4"));
    EXPECT_EQ(applyEscapes(QStringLiteral("\\u12")), QStringLiteral("\\u12"));
    // A digit outside the base, or something that is no digit at all.
    EXPECT_EQ(applyEscapes(QStringLiteral("\\b01000002")), QStringLiteral("\\b01000002"));
    EXPECT_EQ(applyEscapes(QStringLiteral("\\o108")), QStringLiteral("\\o108"));
    EXPECT_EQ(applyEscapes(QStringLiteral("\\xg1")), QStringLiteral("\\xg1"));
    EXPECT_EQ(applyEscapes(QStringLiteral("\\u0x41")), QStringLiteral("\\u0x41"));
    EXPECT_EQ(applyEscapes(QStringLiteral("\\d+12")), QStringLiteral("\\d+12"));
    // An unknown letter, and a backslash at the end.
    EXPECT_EQ(applyEscapes(QStringLiteral("a\\qb")), QStringLiteral("a\\qb"));
    EXPECT_EQ(applyEscapes(QStringLiteral("end\\")), QStringLiteral("end\\"));
    // A kept backslash does not swallow the escape that follows its letter.
    EXPECT_EQ(applyEscapes(QStringLiteral("\\x\\t")), QStringLiteral("\\x\t"));
}

TEST(FindHistory, NewestFirstWithoutCopiesAndBounded)
{
    QStringList history;
    history = pushHistory(history, QStringLiteral("usart"));
    history = pushHistory(history, QStringLiteral("gpio"));
    history = pushHistory(history, QStringLiteral("usart"));
    EXPECT_EQ(history, (QStringList{QStringLiteral("usart"), QStringLiteral("gpio")}));

    EXPECT_EQ(pushHistory(history, QString()), history);
    EXPECT_EQ(pushHistory(history, QString(64, QLatin1Char('a'))), history);
    EXPECT_EQ(pushHistory(history, QString(63, QLatin1Char('a'))).first().size(), 63);

    QStringList many;
    for (int i = 0; i < 16; ++i)
        many = pushHistory(many, QStringLiteral("text %1").arg(i));
    EXPECT_EQ(many.size(), kHistoryLimit - 1);
    EXPECT_EQ(many.first(), QStringLiteral("text 15"));
    EXPECT_FALSE(many.contains(QStringLiteral("text 1")));
}

TEST(CodeFileStem, SeriesPairsShareOneStem)
{
    EXPECT_EQ(codeFileStem(QStringLiteral("MQ48T110")), QStringLiteral("mq48t110"));
    EXPECT_EQ(codeFileStem(QStringLiteral("MQ48T520")), QStringLiteral("mq48t510_520"));
    EXPECT_EQ(codeFileStem(QStringLiteral("MQ48T510")), QStringLiteral("mq48t510_520"));
    EXPECT_EQ(codeFileStem(QStringLiteral("MQ48T260")), QStringLiteral("mq48t250_260"));
    EXPECT_EQ(codeFileStem(QStringLiteral("MQ48T210")), QStringLiteral("mq48t210_220"));
    EXPECT_EQ(codeFileStem(QStringLiteral("MQ48V250")), QStringLiteral("mq48v250"));
}
