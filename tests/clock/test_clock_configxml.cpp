#include "clock/clockconfigxml.h"

#include <gtest/gtest.h>

#include <QDomDocument>
#include <QXmlStreamWriter>

namespace {

QString saved(const ClockTreeState &s)
{
    QString xml;
    QXmlStreamWriter writer(&xml);
    EXPECT_TRUE(saveClockConfig(s, writer));
    return xml;
}

QDomElement parsed(const QString &xml, QDomDocument &doc)
{
    EXPECT_TRUE(doc.setContent(xml));
    return doc.documentElement();
}

// Every field a design attribute can hold, moved away from its Reset value.
void moveAwayFromDefaults(ClockTreeState &s)
{
    s.rtcsel = 2;
    s.rtcdiv = 17;
    s.hext = 12.5;
    s.pllrcs = 0;
    s.pllhextdiv = 1;
    s.hextdiv = 3;
    s.pllmode = 1 - s.pllmode;
    s.pllmult = 33;
    s.pllms = 3;
    s.pllns = 250;
    s.pllfr = 16;
    s.pllfp = 6;
    s.pllfu = 14;
    s.sclkselect = 0;
    s.sclkhextdiv = 4;
    s.sclkhickdiv = 8;
    s.ahbdiv = 64;
    s.apb1div = 4;
    s.apb2div = 8;
    s.systicdiv = 1;
    s.usbdiv = 2.5;
    s.hicktousb = 1 - s.hicktousb;
    s.hicktosclk = 1;
    s.adcdiv = 12;
    s.clkout1 = 3;
    s.clkout2 = 5;
    s.clkout1div1 = 2;
    s.clkout1div2 = 256;
    s.clkout2div1 = 5;
    s.clkout2div2 = 8;
    s.clkout = 7;
    s.clkoutdiv = 16;
    s.clkoutdiv1 = 3;
    s.clkoutdiv2 = 128;
    s.usart1clocksel = 3;
    s.usart2clocksel = 2;
    s.usart3clocksel = 1;
    s.i2c1clocksel = 2;
    s.adcclocksel = 1;
    s.i2sf5clocksel = 3;
    s.i2sf5ext = 20.5;
    s.hextBypass = true;
    s.lextBypass = true;
}

} // namespace

TEST(ClockConfigXml, AttributeSetsFollowTheFamily)
{
    EXPECT_EQ(clockConfigAttributes(ClockModel::T510),
              (QStringList{"rtcsel",     "rtcdiv",    "hext",        "pllrcs",      "pllms",
                           "pllns",      "pllfr",     "sclkselect",  "ahbdiv",      "apb1div",
                           "apb2div",    "systicdiv", "usbdiv",      "hicktousb",   "hicktosclk",
                           "clkout1",    "clkout2",   "clkout1div1", "clkout1div2", "clkout2div1",
                           "clkout2div2"}));
    const QStringList t250 = clockConfigAttributes(ClockModel::T250);
    EXPECT_TRUE(t250.contains("hextdiv"));
    EXPECT_TRUE(t250.contains("pllmult"));
    EXPECT_FALSE(t250.contains("pllms"));
    EXPECT_FALSE(t250.contains("rtcdiv"));
    const QStringList t320 = clockConfigAttributes(ClockModel::T320);
    EXPECT_TRUE(t320.contains("pllmode"));
    EXPECT_FALSE(t320.contains("hicktousb"));
    EXPECT_FALSE(t320.contains("hextdiv")); // fixed /2
    EXPECT_TRUE(clockConfigAttributes(ClockModel::T110).contains("lextbypass"));
    EXPECT_FALSE(clockConfigAttributes(ClockModel::T110).contains("usbdiv"));
    EXPECT_TRUE(clockConfigAttributes(ClockModel::V130).contains("adcclocksel"));
    EXPECT_TRUE(clockConfigAttributes(ClockModel::T210).contains("hickdiv"));
    EXPECT_TRUE(clockConfigAttributes(ClockModel::T050).isEmpty());
}

TEST(ClockConfigXml, EveryFamilyRoundTrips)
{
    for (const ClockFamily *f : treeClockFamilies()) {
        SCOPED_TRACE(f->name);
        ClockTreeState original(f->model);
        moveAwayFromDefaults(original);
        original.recalculate();
        const QString xml = saved(original);

        QDomDocument doc;
        const QDomElement element = parsed(xml, doc);
        EXPECT_EQ(element.tagName(), "ClockConfiguration");
        EXPECT_EQ(element.attribute("series"), f->saveSeries);
        EXPECT_EQ(element.attributes().count(), clockConfigAttributes(f->model).size() + 1);

        ClockTreeState loaded(f->model);
        ClockConfigTexts texts;
        ASSERT_TRUE(loadClockConfig(loaded, element, &texts));
        EXPECT_EQ(saved(loaded), xml);
        EXPECT_NE(saved(ClockTreeState(f->model)), xml);
        EXPECT_EQ(texts.hext, "12.500000");
        EXPECT_DOUBLE_EQ(loaded.sclk, original.sclk);
        EXPECT_DOUBLE_EQ(loaded.hext, 12.5);
    }
    // W320 shares the T320 writer and its series name.
    ClockTreeState w320(ClockModel::W320);
    EXPECT_TRUE(saved(w320).contains("series=\"MQ48T320\""));
    ClockTreeState none(ClockModel::T230);
    QString xml;
    QXmlStreamWriter writer(&xml);
    EXPECT_FALSE(saveClockConfig(none, writer));
    EXPECT_TRUE(xml.isEmpty());
}

TEST(ClockConfigXml, OutOfRangeValuesFallBack)
{
    QDomDocument doc;
    QDomElement e =
        parsed("<ClockConfiguration rtcsel='7' rtcdiv='1' hext='abc' pllrcs='2' pllms='16' "
               "pllns='501' pllfr='3' sclkselect='3' ahbdiv='32' apb1div='0' apb2div='x' "
               "systicdiv='4' usbdiv='2.3' hicktousb='5' hicktosclk='-1' clkout1='4' "
               "clkout2='-2' clkout1div1='6' clkout1div2='3' clkout2div1='0' clkout2div2='1024'/>",
               doc);
    ClockTreeState s(ClockModel::T510);
    ClockConfigTexts texts;
    ASSERT_TRUE(loadClockConfig(s, e, &texts));
    EXPECT_EQ(s.rtcsel, 0);
    EXPECT_EQ(s.rtcdiv, 2);
    EXPECT_EQ(texts.hext, "abc"); // left for the field to show and check
    EXPECT_DOUBLE_EQ(s.hext, 8.0);
    EXPECT_EQ(s.pllrcs, 1);
    EXPECT_EQ(s.pllms, 1);
    EXPECT_EQ(s.pllns, 31);
    EXPECT_EQ(s.pllfr, 1);
    EXPECT_EQ(s.sclkselect, 0);
    EXPECT_EQ(s.ahbdiv, 1);
    EXPECT_EQ(s.apb1div, 1);
    EXPECT_EQ(s.apb2div, 1);
    EXPECT_EQ(s.systicdiv, 1);
    EXPECT_DOUBLE_EQ(s.usbdiv, 1.0);
    EXPECT_EQ(s.hicktousb, 0);
    EXPECT_EQ(s.hicktosclk, 0);
    EXPECT_EQ(s.clkout1, 0);
    EXPECT_EQ(s.clkout2, 0);
    EXPECT_EQ(s.clkout1div1, 1);
    EXPECT_EQ(s.clkout1div2, 1);
    EXPECT_EQ(s.clkout2div1, 1);
    EXPECT_EQ(s.clkout2div2, 1);
    EXPECT_DOUBLE_EQ(s.sclk, 8.0); // recalculated from HEXT

    e = parsed("<ClockConfiguration pllrcs='0' pllmult='65' hextdiv='6' adcdiv='7' "
               "pllhextdiv='3' clkout='11' clkoutdiv='3'/>",
               doc);
    ClockTreeState t250(ClockModel::T250);
    ASSERT_TRUE(loadClockConfig(t250, e));
    EXPECT_EQ(t250.pllrcs, 0);
    EXPECT_EQ(t250.pllmult, 2);
    EXPECT_EQ(t250.hextdiv, 2);
    EXPECT_EQ(t250.adcdiv, 2);
    EXPECT_EQ(t250.pllhextdiv, 0);
    EXPECT_EQ(t250.clkout, 0);
    EXPECT_EQ(t250.clkoutdiv, 1);
    EXPECT_DOUBLE_EQ(t250.sclk, 16.0); // 8 MHz HEXT * 2

    e = parsed("<ClockConfiguration pllfp='3' pllfu='15' hickdiv='32' i2sf5clocksel='4'/>", doc);
    ClockTreeState t220(ClockModel::T220);
    ASSERT_TRUE(loadClockConfig(t220, e));
    EXPECT_EQ(t220.pllfp, 1);
    EXPECT_EQ(t220.pllfu, 11);
    EXPECT_EQ(t220.sclkhickdiv, 1);
    EXPECT_EQ(t220.i2sf5clocksel, 0);

    e = parsed("<ClockConfiguration clkout='6' hextbypass='1' lextbypass='yes'/>", doc);
    ClockTreeState t110(ClockModel::T110);
    ASSERT_TRUE(loadClockConfig(t110, e));
    EXPECT_EQ(t110.clkout, 0); // no USB source on this family
    EXPECT_TRUE(t110.hextBypass);
    EXPECT_FALSE(t110.lextBypass);
}

TEST(ClockConfigXml, MissingValuesKeepAndChildTextsAndOtherAdcNameAreRead)
{
    QDomDocument doc;
    const QDomElement e = parsed("<ClockConfiguration><pllmult>40</pllmult>"
                                 "<toadcdiv>8</toadcdiv></ClockConfiguration>",
                                 doc);
    ClockTreeState t260(ClockModel::T260);
    ASSERT_TRUE(loadClockConfig(t260, e));
    EXPECT_EQ(t260.pllmult, 40);
    EXPECT_EQ(t260.adcdiv, 8);
    EXPECT_EQ(t260.pllrcs, 1); // absent: the Reset value stays
    EXPECT_DOUBLE_EQ(t260.sclk, 160.0);

    ClockTreeState unknown(3);
    EXPECT_FALSE(loadClockConfig(unknown, e));
}
