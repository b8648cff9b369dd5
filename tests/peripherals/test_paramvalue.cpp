#include "peripherals/paramvalue.h"

#include <gtest/gtest.h>

namespace {

RefParameter numeric(const QString &type, const QString &value, const QString &min,
                     const QString &max, const QString &unit = QString())
{
    RefParameter p;
    p.Name = "P";
    p.Comment = "Period";
    p.Type = type;
    p.Value = value;
    p.DefaultValue = value;
    p.Min = min;
    p.Max = max;
    p.Unit = unit;
    return p;
}

RefParamValue option(const QString &value, const QString &condition = QString(),
                     const QString &action = QString())
{
    RefParamValue v;
    v.Value = value;
    v.Comment = value.toLower();
    v.Condition = condition;
    v.Action = action;
    return v;
}

} // namespace

TEST(ParamValue, HexadecimalPaddingAndLabels)
{
    const RefParameter p = numeric("hexadecimal", "1F", "0", "FFFF");
    EXPECT_EQ(ParamValue::padHex("1F", "FFFF"), "001F");
    EXPECT_EQ(ParamValue::hexValue("0x1f", "0xFFFF"), "0x001F");
    EXPECT_EQ(ParamValue::displayText(p, "1F"), "0x001F");
    EXPECT_EQ(ParamValue::displayText(p, "0x"), "Error");
    EXPECT_EQ(ParamValue::labelText(p), "Period (0x0-0xFFFF)");
    EXPECT_EQ(ParamValue::labelText(numeric("integer", "1", "1", "16")), "Period (1-16)");
    EXPECT_EQ(ParamValue::labelText(numeric("integer", "1", "", "16")), "Period");
    EXPECT_EQ(ParamValue::displayText(numeric("double", "2.5", "", "", "MHz"), "2.5"), "2.5 MHz");
}

TEST(ParamValue, EditsAreClippedToTheRange)
{
    RefParameter p = numeric("integer", "10", "2", "100", "ms");
    ParamEdit e = ParamValue::edit(p, "250");
    EXPECT_TRUE(e.readable);
    EXPECT_TRUE(e.clipped);
    EXPECT_EQ(e.value, "100");
    EXPECT_EQ(e.display, "100 ms");
    e = ParamValue::edit(p, "1 ms");
    EXPECT_EQ(e.value, "2");
    e = ParamValue::edit(p, "42 ms"); // the unit is stripped
    EXPECT_EQ(e.value, "42");
    EXPECT_FALSE(e.clipped);
    e = ParamValue::edit(p, "10");
    EXPECT_FALSE(e.changed);
    // A text that can't be read keeps the last value.
    e = ParamValue::edit(p, "abc");
    EXPECT_FALSE(e.readable);
    EXPECT_EQ(e.display, "10 ms");

    RefParameter h = numeric("hexadecimal", "0x0010", "0x0", "0x0FFF");
    e = ParamValue::edit(h, "0x1FFFF");
    EXPECT_EQ(e.value, "0x0FFF");
    e = ParamValue::edit(h, "ab");
    EXPECT_EQ(e.value, "0x00AB");
    EXPECT_EQ(e.display, "0x00AB");
    EXPECT_FALSE(ParamValue::edit(h, "0xZZ").readable);

    RefParameter d = numeric("double", "1.5", "0.5", "8.0");
    EXPECT_EQ(ParamValue::edit(d, "2.500").value, "2.5");
    EXPECT_EQ(ParamValue::edit(d, "3.000").value, "3.0");
    EXPECT_EQ(ParamValue::edit(d, "9").value, "8.0");
    EXPECT_EQ(ParamValue::trimDouble("12"), "12");

    RefParameter s;
    s.Type = "string edit";
    EXPECT_EQ(ParamValue::edit(s, "  name rest").value, "name");
}

TEST(ParamValue, Validity)
{
    EXPECT_TRUE(ParamValue::isValid(numeric("integer", "50", "1", "100")));
    EXPECT_FALSE(ParamValue::isValid(numeric("integer", "150", "1", "100")));
    EXPECT_FALSE(ParamValue::isValid(numeric("integer", "x", "1", "100")));
    EXPECT_TRUE(ParamValue::isValid(numeric("integer", "PCLK*2", "1", "100"))); // a formula
    EXPECT_TRUE(ParamValue::isValid(numeric("integer", "150", "", "")));
    EXPECT_FALSE(ParamValue::isValid(numeric("hexadecimal", "0x1FFFF", "0", "FFFF")));
    // "0x" bounds of an integer parameter are read as hexadecimal.
    EXPECT_FALSE(ParamValue::isValid(numeric("integer", "300", "0", "0xFF")));
}

TEST(ParamValue, ListEntriesFollowConditionsAndActions)
{
    RefParameter p;
    p.Type = "list";
    p.Value = "B";
    p.PossibleValues = {option("A"), option("B", "SEM_B"), option("C", "", "Greyed"),
                        option("D", "", "Remove"), option("E", "Mode=FAST")};
    ParamListChoice c = ParamValue::listChoice(p, {"SEM_B"});
    ASSERT_EQ(c.entries.size(), 3);
    EXPECT_EQ(c.entries.at(1).text, "b");
    EXPECT_TRUE(c.entries.at(2).greyed);
    EXPECT_EQ(c.current, 1);
    EXPECT_TRUE(c.valid);
    EXPECT_EQ(ParamValue::listChoice(p, {"SEM_B", "Mode=FAST"}).entries.size(), 4);

    // The chosen value disappears with its semaphore: first entry, row invalid.
    c = ParamValue::listChoice(p, {});
    EXPECT_EQ(c.current, 0);
    EXPECT_EQ(c.value, "A");
    EXPECT_FALSE(c.valid);
    // A greyed choice is kept but not valid.
    p.Value = "C";
    c = ParamValue::listChoice(p, {});
    EXPECT_EQ(c.value, "C");
    EXPECT_FALSE(c.valid);
}
