#include "peripherals/expressionevaluator.h"

#include <gtest/gtest.h>

namespace {

bool sem(const QString &e, const QStringList &l, bool andFlag = true)
{
    return ExpressionEvaluator::semaphoreHolds(e, l, andFlag);
}

bool val(const QString &e, const QStringList &l)
{
    return ExpressionEvaluator::valueHolds(e, l);
}

} // namespace

TEST(SemaphoreEvaluator, WordsAndNegation)
{
    const QStringList l = {"A", " B "};
    EXPECT_TRUE(sem("A", l));
    EXPECT_TRUE(sem(" B", l)); // names are trimmed on both sides
    EXPECT_FALSE(sem("C", l));
    EXPECT_TRUE(sem("!C", l));
    EXPECT_FALSE(sem("!A", l));
    EXPECT_FALSE(sem("!!A", l)); // every "!" is removed
    // An empty list: plain words fail, negated words hold.
    EXPECT_FALSE(sem("A", {}));
    EXPECT_TRUE(sem("!A", {}));
    // An empty text is not evaluated.
    EXPECT_TRUE(sem("", {}));
    EXPECT_TRUE(sem("", {}, false));
}

TEST(SemaphoreEvaluator, AndFlagChoosesTheSplitOrder)
{
    // "A&B|C": with AndFlag true it reads A & (B | C); with false (A & B) | C.
    EXPECT_TRUE(sem("A&B|C", {"A", "C"}, true));
    EXPECT_FALSE(sem("A&B|C", {"C"}, true));
    EXPECT_TRUE(sem("A&B|C", {"C"}, false));
    EXPECT_FALSE(sem("A&B|C", {"A"}, false));
    EXPECT_TRUE(sem("A&B|C", {"A", "B"}, false));
    // "A|B&C": true gives (A | B) & C, false gives A | (B & C).
    EXPECT_FALSE(sem("A|B&C", {"A"}, true));
    EXPECT_TRUE(sem("A|B&C", {"A"}, false));
    EXPECT_TRUE(sem("A|B&C", {"B", "C"}, true));
    // Empty parts are kept and never hold as plain words.
    EXPECT_FALSE(sem("A&", {"A"}, true));
    EXPECT_TRUE(sem("A|", {"A"}, true));
}

TEST(ValueEvaluator, ComparisonsOverNameValueEntries)
{
    const QStringList l = {"Mode=FAST", "Size = 0x20", "Count=7", "SEM_X"};
    EXPECT_TRUE(val("Mode=FAST", l));
    EXPECT_FALSE(val("Mode=SLOW", l));
    EXPECT_TRUE(val("Mode!=SLOW", l));
    EXPECT_FALSE(val("Mode!=FAST", l));
    // A name that is absent holds neither way.
    EXPECT_FALSE(val("Other=1", l));
    EXPECT_FALSE(val("Other!=1", l));
    // ">" reads hexadecimal after "0x" on either side, decimal otherwise.
    EXPECT_TRUE(val("Size>31", l));
    EXPECT_FALSE(val("Size>0x20", l));
    EXPECT_TRUE(val("Size>0x1F", l));
    EXPECT_TRUE(val("Count>6", l));
    EXPECT_FALSE(val("Count>7", l));
    EXPECT_FALSE(val("Mode>1", l)); // not a number
    EXPECT_FALSE(val("Count>x", l));
    // Plain and negated semaphores as in the other evaluator.
    EXPECT_TRUE(val("SEM_X", l));
    EXPECT_TRUE(val("!SEM_Y", l));
    EXPECT_FALSE(val("!SEM_X", l));
}

TEST(ValueEvaluator, AlwaysAndOverOr)
{
    const QStringList l = {"A", "Mode=2"};
    EXPECT_TRUE(val("A & Mode=1|Mode=2", l));
    EXPECT_FALSE(val("B & Mode=1|Mode=2", l));
    EXPECT_TRUE(val("B|A & !C", l));
    EXPECT_TRUE(val("", {}));
    EXPECT_FALSE(val("A", {}));
    EXPECT_TRUE(val("!A", {}));
    EXPECT_FALSE(val("Mode=2", {}));
}
