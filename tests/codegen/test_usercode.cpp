#include "codegen/usercode.h"
#include "codegentestsupport.h"

#include <gtest/gtest.h>

namespace {

QString slotText(const QString &name, const QString &inner)
{
    return QStringLiteral("/* add user code begin %1 */\n%2/* add user code end %1 */\n")
        .arg(name, inner);
}

} // namespace

TEST(UserCodeMerge, SlotsTakeTheOldTextAndNothingElseDoes)
{
    const QString tpl = QStringLiteral("int a;\n") + slotText("private includes", "\n") +
                        QStringLiteral("void f(void)\n{\n  ") + slotText("f_init 0", "\n") +
                        QStringLiteral("}\n") + slotText("1", "\n");
    const QString old = QStringLiteral("int edited_outside;\n") +
                        slotText("private includes", "#include <string.h>\n") +
                        QStringLiteral("void f(void)\n{\n  ") +
                        slotText("f_init 0", "  count++;\n  ") + QStringLiteral("}\n") +
                        slotText("gone 0", "lost();\n");
    QString merged = tpl;
    UserCode::mergeUserCode(old, merged);
    EXPECT_EQ(merged, QStringLiteral("int a;\n") +
                          slotText("private includes", "#include <string.h>\n") +
                          QStringLiteral("void f(void)\n{\n  ") +
                          slotText("f_init 0", "  count++;\n  ") + QStringLiteral("}\n") +
                          slotText("1", "\n"));
    EXPECT_FALSE(merged.contains(QLatin1String("edited_outside")));
    EXPECT_FALSE(merged.contains(QLatin1String("lost")));
}

TEST(UserCodeMerge, BrokenOrForeignSlotsGiveWhatMatchesByName)
{
    const QString tpl = slotText("0", "\n") + slotText("2", "\n");
    // The end line of slot 0 was deleted by the user: the template's empty slot stays.
    const QString old = QStringLiteral("/* add user code begin 0 */\nhalf();\n") +
                        slotText("2", "kept();\n");
    QString merged = tpl;
    UserCode::mergeUserCode(old, merged);
    EXPECT_EQ(merged, slotText("0", "\n") + slotText("2", "kept();\n"));

    // A file of another family gives its text to the slots of the same names.
    const QString foreign = QStringLiteral("/* other banner */\n") + slotText("2", "x = 1;\n");
    merged = tpl;
    UserCode::mergeUserCode(foreign, merged);
    EXPECT_EQ(merged, slotText("0", "\n") + slotText("2", "x = 1;\n"));
}

TEST(UserCodeMerge, SlotNamesAreWordGroupsOnCompleteBeginLines)
{
    const QString tpl = QStringLiteral("  /* add user code begin W1_HardFault_IRQ 0 */\n"
                                       "/*add user code begin bad*/ x\n"
                                       "/* add user code begin  double */\n"
                                       "/* add user code begin dma define */\n");
    EXPECT_EQ(UserCode::slotNames(tpl), QStringList({"W1_HardFault_IRQ 0", "dma define"}));
}

TEST(UserCodeMerge, ANameUsedTwiceSpansFromItsFirstBeginToItsLastEnd)
{
    const QString tpl = slotText("1", "\n") + QStringLiteral("middle();\n") + slotText("1", "\n");
    const QString old = slotText("1", "a();\n") + QStringLiteral("between();\n") +
                        slotText("1", "b();\n");
    QString merged = tpl;
    UserCode::mergeUserCode(old, merged);
    EXPECT_EQ(merged, old);
}
