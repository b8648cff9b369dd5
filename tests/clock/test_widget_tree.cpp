#include "clock/clockgraphicsview.h"
#include "clock/mq48clocktree.h"
#include "clock/mq48familytrees.h"
#include "test_widget_support.h"

#include <QComboBox>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTranslator>
#include <gtest/gtest.h>

#include <memory>

namespace {

const QColor kGreen(152, 251, 152);
const QColor kYellow(255, 255, 225);
const QColor kRed(220, 0, 0);

template <class W> W *ctl(MQ48ClockTree &t, const char *name)
{
    return qobject_cast<W *>(t.control(QLatin1String(name)));
}

class TreeTest : public ::testing::Test
{
protected:
    MessageRecorder rec;
};

} // namespace

TEST_F(TreeTest, T510StartsAt288MHzWithUsageNoteAndRegister)
{
    MQ48T510PLL tree;
    EXPECT_STREQ(tree.metaObject()->className(), "MQ48T510PLL");
    EXPECT_EQ(ctl<QLineEdit>(tree, "sclk")->text(), "288.000");
    EXPECT_EQ(ctl<QLabel>(tree, "pllout")->text(), "288.000 MHz");
    EXPECT_EQ(ctl<QLabel>(tree, "pllreg")->text(), "0x00022401");
    EXPECT_EQ(ctl<QLineEdit>(tree, "out_systick")->text(), "36.000"); // ahb * 0.125
    EXPECT_EQ(ctl<QLineEdit>(tree, "apb1p")->text(), "144.000");
    tree.show();
    EXPECT_TRUE(ctl<QLabel>(tree, "usage1")->isVisible());
    EXPECT_TRUE(rec.texts.isEmpty());
}

TEST_F(TreeTest, HextFieldMarksPendingAndRangeThenAppliesOnEnter)
{
    MQ48T510PLL tree;
    tree.setHextEnable(true);
    QLineEdit *hext = ctl<QLineEdit>(tree, "hext");
    typeInto(hext, "12", false);
    EXPECT_EQ(tree.fieldBackground("hext"), kYellow);
    EXPECT_NE(tree.fieldTextColor("hext"), kRed);
    typeInto(hext, "30", false);
    EXPECT_EQ(tree.fieldTextColor("hext"), kRed);

    QTest::keyClick(hext, Qt::Key_Return);
    EXPECT_EQ(rec.texts, QStringList{"hext input error!"});
    EXPECT_DOUBLE_EQ(tree.clockState().hext, 8.0);

    typeInto(hext, "12");
    EXPECT_DOUBLE_EQ(tree.clockState().hext, 12.0);
    EXPECT_EQ(tree.fieldBackground("hext"), kGreen);
    EXPECT_EQ(rec.texts.size(), 1);
}

TEST_F(TreeTest, PllMsFieldKeepsSlashAndAsksToAdjust)
{
    MQ48T510PLL tree; // PLL on HICK: 8 MHz reaches the PLL
    QLineEdit *ms = ctl<QLineEdit>(tree, "pllms");
    ms->selectAll();
    ms->del();
    QTest::keyClicks(ms, "3");
    EXPECT_EQ(ms->text(), "/3");
    EXPECT_EQ(ms->cursorPosition(), 2);
    EXPECT_EQ(tree.fieldBackground("pllms"), kYellow);

    // 8 / 15 is below 2 MHz: Cancel keeps the old settings and does not recalculate.
    rec.answers = {false};
    typeInto(ms, "15");
    ASSERT_EQ(rec.messages.size(), 1);
    EXPECT_EQ(rec.messages[0].title, "Warning");
    EXPECT_EQ(rec.messages[0].buttons, QStringList({"Yes", "Cancel"}));
    EXPECT_TRUE(rec.texts[0].startsWith("pll_ms input error, is it adjusted automatically?\nThe"));
    EXPECT_EQ(tree.clockState().pllms, 1);
    EXPECT_DOUBLE_EQ(tree.clockState().sclk, 288.0);

    // Yes takes the largest legal divider, 4; the VCO then falls below 500 MHz and the
    // multiplier is offered its own adjustment.
    rec.texts.clear();
    rec.answers = {true, true};
    QTest::keyClick(ms, Qt::Key_Return);
    ASSERT_EQ(rec.texts.size(), 2);
    EXPECT_TRUE(rec.texts[1].startsWith("pll_ns input error"));
    const ClockTreeState &s = tree.clockState();
    EXPECT_EQ(s.pllms, 4);
    EXPECT_EQ(ms->text(), "/4");
    EXPECT_GE(8.0 * s.pllns / 4, 500.0);
    EXPECT_DOUBLE_EQ(s.pllclk, 8.0 * s.pllns / 4 / 4);
    EXPECT_EQ(ctl<QLineEdit>(tree, "sclk")->text(), QString::number(s.pllclk, 'f', 3));

    rec.texts.clear();
    typeInto(ms, "16");
    EXPECT_EQ(rec.texts, QStringList{"pll_ms input error!"});
}

TEST_F(TreeTest, PllNsQuestionNamesTheFamilyVcoLimit)
{
    {
        MQ48T510PLL tree;
        rec.answers = {false};
        typeInto(ctl<QLineEdit>(tree, "pllns"), "200");
        ASSERT_EQ(rec.texts.size(), 1);
        EXPECT_TRUE(rec.texts[0].endsWith("<= 1200MHz"));
        EXPECT_EQ(tree.clockState().pllns, 144);
    }
    rec.texts.clear();
    MQ48T130PLL tree;
    rec.answers = {true};
    typeInto(ctl<QLineEdit>(tree, "pllns"), "200");
    ASSERT_EQ(rec.texts.size(), 1);
    EXPECT_TRUE(rec.texts[0].endsWith("<= 1000MHz"));
    EXPECT_LT(tree.clockState().pllns, 200);
    EXPECT_EQ(ctl<QLineEdit>(tree, "pllns")->text(),
              QStringLiteral("*%1").arg(tree.clockState().pllns));
}

TEST_F(TreeTest, TypedSystemClockIsBackSolvedAndShownAsReached)
{
    MQ48T510PLL tree;
    QLineEdit *sclk = ctl<QLineEdit>(tree, "sclk");
    typeInto(sclk, "100");
    const ClockTreeState &s = tree.clockState();
    EXPECT_NEAR(s.sclk, 100.0, 1.0);
    EXPECT_EQ(sclk->text(), QString::number(s.sclk, 'f', 3));
    EXPECT_EQ(ctl<QLineEdit>(tree, "pllms")->text(), QStringLiteral("/%1").arg(s.pllms));
    EXPECT_EQ(ctl<QLineEdit>(tree, "pllns")->text(), QStringLiteral("*%1").arg(s.pllns));
    EXPECT_EQ(tree.fieldBackground("sclk"), kGreen);
    tree.show();
    EXPECT_FALSE(ctl<QLabel>(tree, "usage1")->isVisible());

    typeInto(sclk, "300");
    EXPECT_EQ(rec.texts, QStringList{"sclk input error!"});
    EXPECT_NEAR(s.sclk, 100.0, 1.0);
}

TEST_F(TreeTest, OutOfRangeClocksRaiseTheErrorFlagAndBlockChecking)
{
    MQ48T510PLL tree;
    QSignalSpy errors(&tree, &MQ48ClockTree::SendClockHaveErrorSignal);
    ctl<QComboBox>(tree, "pllfr")->setCurrentIndex(0); // 1152 MHz
    ASSERT_FALSE(errors.isEmpty());
    EXPECT_TRUE(errors.last().at(0).toBool());
    EXPECT_EQ(tree.fieldTextColor("sclk"), kRed);

    // The field shows the computed 1152 MHz, so the input check speaks first.
    EXPECT_FALSE(tree.checkClockConfig());
    EXPECT_EQ(rec.texts, QStringList{"sclk input error!"});

    ctl<QComboBox>(tree, "pllfr")->setCurrentIndex(2);
    EXPECT_FALSE(errors.last().at(0).toBool());
    rec.texts.clear();
    EXPECT_TRUE(tree.checkClockConfig());
    EXPECT_TRUE(rec.texts.isEmpty());
}

TEST_F(TreeTest, CheckClockConfigNamesTheBrokenLimit)
{
    MQ48T320PLL tree; // multiplier 2 from the 4 MHz HICK input gives 8 MHz, below 16
    ctl<QComboBox>(tree, "pllmult")->setCurrentIndex(0);
    EXPECT_DOUBLE_EQ(tree.clockState().pllclk, 8.0);
    EXPECT_EQ(tree.fieldTextColor("pllout"), kRed);
    EXPECT_FALSE(tree.checkClockConfig());
    EXPECT_EQ(rec.texts, QStringList{"Can not support pll clock less than 16MHz"});
    EXPECT_EQ(rec.messages[0].kind, UserMessage::Error);
}

TEST_F(TreeTest, CheckClockConfigReportsInputFaultsFirst)
{
    MQ48T510PLL tree;
    tree.setHextEnable(true);
    typeInto(ctl<QLineEdit>(tree, "hext"), "99", false);
    typeInto(ctl<QLineEdit>(tree, "pllms"), "99", false);
    EXPECT_FALSE(tree.checkClockConfig());
    EXPECT_EQ(rec.texts, QStringList{"hext input error!"});
    EXPECT_EQ(rec.messages.last().title, "Error");

    typeInto(ctl<QLineEdit>(tree, "hext"), "8", false);
    EXPECT_FALSE(tree.checkClockConfig());
    EXPECT_EQ(rec.texts.last(), "pll_ms input error!");
}

TEST_F(TreeTest, UsbWarningIsAnsweredWithYesOrCancel)
{
    MQ48T510PLL tree;
    tree.setPeripheralClockGate("USB_OTGFS1", true);
    ctl<QRadioButton>(tree, "hicktousb_0")->click(); // USB on the PLL: 288 / 6
    EXPECT_DOUBLE_EQ(tree.clockState().usbclk, 48.0);
    EXPECT_NE(tree.fieldTextColor("usbout"), kRed);
    typeInto(ctl<QLineEdit>(tree, "sclk"), "100"); // no divider gives 48 from ~100 MHz
    EXPECT_NE(tree.clockState().usbclk, 48.0);
    EXPECT_EQ(tree.fieldTextColor("usbout"), kRed);

    rec.answers = {false};
    EXPECT_FALSE(tree.checkClockConfig());
    ASSERT_EQ(rec.texts.size(), 1);
    EXPECT_TRUE(rec.texts[0].startsWith("USB clock must be 48MHz."));
    EXPECT_EQ(rec.messages[0].buttons, QStringList({"Yes", "Cancel"}));
    rec.answers = {true};
    EXPECT_TRUE(tree.checkClockConfig());
    EXPECT_EQ(rec.texts.size(), 2);
}

TEST_F(TreeTest, UsbOnPllIsSolvedWhileTheSystemClockStaysOnHext)
{
    MQ48T510PLL tree;
    tree.setHextEnable(true);
    ctl<QRadioButton>(tree, "sclkselect_0")->click();
    EXPECT_EQ(tree.clockState().sclkselect, 0);
    EXPECT_FALSE(ctl<QLineEdit>(tree, "pllms")->isEnabled());

    tree.setPeripheralClockGate("USB_OTGFS2", true);
    ctl<QRadioButton>(tree, "hicktousb_0")->click();
    const ClockTreeState &s = tree.clockState();
    EXPECT_EQ(s.sclkselect, 0);
    EXPECT_DOUBLE_EQ(s.sclk, 8.0);
    EXPECT_DOUBLE_EQ(s.usbclk, 48.0);
    EXPECT_DOUBLE_EQ(s.pllclk, 48.0 * s.usbdiv);
    EXPECT_TRUE(ctl<QLineEdit>(tree, "pllms")->isEnabled());
    EXPECT_TRUE(rec.texts.isEmpty());
}

TEST_F(TreeTest, SwitchingHextOffMovesItsConsumersAway)
{
    MQ48T510PLL tree;
    tree.setHextEnable(true);
    ctl<QRadioButton>(tree, "sclkselect_0")->click();
    ASSERT_EQ(tree.clockState().sclkselect, 0);
    tree.setHextEnable(false);
    EXPECT_EQ(tree.clockState().sclkselect, 2);
    EXPECT_TRUE(ctl<QRadioButton>(tree, "sclkselect_2")->isChecked());
    EXPECT_FALSE(ctl<QRadioButton>(tree, "sclkselect_0")->isEnabled());
    EXPECT_FALSE(ctl<QLineEdit>(tree, "hext")->isEnabled());
}

TEST_F(TreeTest, RtcFieldFollowsTheChosenSource)
{
    MQ48T510PLL tree;
    tree.setHextEnable(true);
    tree.setLextEnable(true);
    QLineEdit *rtc = ctl<QLineEdit>(tree, "tortc");
    EXPECT_EQ(rtc->text(), "40");
    ctl<QRadioButton>(tree, "rtcsel_1")->click();
    EXPECT_EQ(rtc->text(), "32.768");
    ctl<QRadioButton>(tree, "rtcsel_2")->click();
    EXPECT_TRUE(ctl<QComboBox>(tree, "rtcdiv")->isEnabled());
    ctl<QComboBox>(tree, "rtcdiv")->setCurrentIndex(2); // /4
    EXPECT_EQ(rtc->text(), "2000.000");
    tree.setLextEnable(false);
    EXPECT_EQ(tree.clockState().rtcsel, 2);
}

TEST_F(TreeTest, ManyQuickChangesReachOtherPanelsAsOneSignal)
{
    MQ48T510PLL tree;
    QSignalSpy changed(&tree, &MQ48ClockTree::SendClockChangedSignal);
    QTest::qWait(600); // the start-up change goes out first
    changed.clear();
    QComboBox *ahb = ctl<QComboBox>(tree, "ahbdiv");
    for (int i : {1, 2, 3, 0})
        ahb->setCurrentIndex(i);
    EXPECT_EQ(changed.count(), 0);
    QTest::qWait(1100);
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(TreeTest, UsbSourceChangeIsSignalledFromTheTimer)
{
    MQ48T510PLL tree;
    QSignalSpy usb(&tree, &MQ48ClockTree::SendUSBClockSourceChangeSignal);
    tree.setPeripheralClockGate("USB_OTGFS1", true);
    ctl<QRadioButton>(tree, "hicktousb_0")->click();
    EXPECT_EQ(usb.count(), 0);
    EXPECT_TRUE(usb.wait(1000));
    EXPECT_EQ(usb.count(), 1);
}

TEST_F(TreeTest, ClockOutputsFollowTheirPins)
{
    MQ48T510PLL tree;
    EXPECT_FALSE(ctl<QRadioButton>(tree, "clkout1_3")->isEnabled());
    tree.setClockOut1Pin(1);
    ASSERT_TRUE(ctl<QRadioButton>(tree, "clkout1_3")->isEnabled());
    ctl<QRadioButton>(tree, "clkout1_3")->click();             // PLL
    ctl<QComboBox>(tree, "clockout1div1")->setCurrentIndex(1); // /2
    EXPECT_EQ(ctl<QLabel>(tree, "clkout1_src_3")->text(), "(288.000 MHz)");
    EXPECT_EQ(ctl<QLabel>(tree, "clkout1_val")->text(), "144.000 MHz");
    EXPECT_TRUE(ctl<QLabel>(tree, "clkout1_src_0")->text().isEmpty());

    MQ48T110PLL single;
    single.setClockOutPin(2);
    ctl<QRadioButton>(single, "clkout_5")->click(); // sclk
    EXPECT_EQ(single.clockState().clkout, 5);
    EXPECT_TRUE(ctl<QLabel>(single, "clkout_val")->text().contains("120.000 MHz"));
}

TEST_F(TreeTest, PeripheralListsOpenOnClickAndCloseOnAClickElsewhere)
{
    MQ48T510PLL tree;
    tree.resize(1560, 960);
    tree.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&tree));
    ctl<QPushButton>(tree, "list_apb1")->click();
    EXPECT_TRUE(tree.listOpen("list_apb1"));
    ctl<QPushButton>(tree, "list_apb2tmr")->click();
    EXPECT_FALSE(tree.listOpen("list_apb1"));
    EXPECT_TRUE(tree.listOpen("list_apb2tmr"));
    QTest::mouseClick(tree.view()->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    EXPECT_FALSE(tree.listOpen("list_apb2tmr"));
}

TEST_F(TreeTest, PllModeSwapsMultiplierAndFlexibleFields)
{
    MQ48T320PLL tree;
    tree.show();
    QComboBox *mode = ctl<QComboBox>(tree, "pllmode");
    ASSERT_TRUE(mode);
    EXPECT_EQ(tree.clockState().pllmode, 0);
    EXPECT_TRUE(ctl<QComboBox>(tree, "pllmult")->isVisible());
    EXPECT_FALSE(ctl<QLineEdit>(tree, "pllms")->isVisible());
    ctl<QComboBox>(tree, "pllmult")->setCurrentIndex(30 - 2);
    EXPECT_DOUBLE_EQ(tree.clockState().sclk, 120.0);

    mode->setCurrentIndex(0); // flexible
    EXPECT_EQ(tree.clockState().pllmode, 1);
    EXPECT_TRUE(ctl<QLineEdit>(tree, "pllms")->isVisible());
    EXPECT_FALSE(ctl<QComboBox>(tree, "pllmult")->isVisible());
}

TEST_F(TreeTest, T130PeripheralClockSelectsNeedTheirGate)
{
    MQ48T130PLL tree;
    QRadioButton *sclk = ctl<QRadioButton>(tree, "usart1clocksel_1");
    EXPECT_FALSE(sclk->isEnabled());
    EXPECT_EQ(sclk->toolTip(), "Need to enable \"USART1\" in \"Pin out Configuration\".");
    tree.setPeripheralClockGate("USART1", true);
    ASSERT_TRUE(sclk->isEnabled());
    sclk->click();
    EXPECT_DOUBLE_EQ(tree.clockState().clockOfPeripheral("USART1"), tree.clockState().sclk);
    EXPECT_EQ(ctl<QLineEdit>(tree, "out_systick")->text(),
              QString::number(tree.clockState().ahbclk / 8, 'f', 3));
}

TEST_F(TreeTest, ResetKeepsWhatOtherPanelsReported)
{
    MQ48T510PLL tree;
    tree.setHextEnable(true);
    tree.setClockOut1Pin(2);
    ctl<QComboBox>(tree, "ahbdiv")->setCurrentIndex(3);
    ASSERT_EQ(tree.clockState().ahbdiv, 8);
    tree.resetConfig();
    EXPECT_EQ(tree.clockState().ahbdiv, 1);
    EXPECT_EQ(ctl<QComboBox>(tree, "ahbdiv")->currentIndex(), 0);
    EXPECT_TRUE(tree.clockState().hextEnabled);
    EXPECT_EQ(tree.clockState().clkout1pin, 2);
    EXPECT_TRUE(ctl<QLineEdit>(tree, "hext")->isEnabled());
}

namespace {

// Every family's drawing must keep its values readable: no visible control covers another and
// all lie on the drawing.
void expectEveryFamilyWithoutOverlap(const char *condition)
{
    for (const ClockFamily *f : treeClockFamilies()) {
        std::unique_ptr<MQ48ClockTree> tree(createClockTree(f->model));
        ASSERT_TRUE(tree) << f->name;
        EXPECT_STREQ(tree->metaObject()->className(), f->treeClass);
        tree->resize(1560, 960);
        tree->show();
        const QRectF sheet = tree->diagram()->sceneBoundingRect();
        QList<QPair<QString, QRectF>> boxes;
        for (QGraphicsItem *item : tree->scene()->items()) {
            auto *proxy = dynamic_cast<QGraphicsProxyWidget *>(item);
            if (!proxy || !proxy->isVisible() || proxy->zValue() >= 2.0)
                continue;
            QWidget *inner = proxy->widget()->findChild<QWidget *>();
            const QString name = inner ? inner->objectName() : QString();
            if (!name.startsWith("cap_") && !inner->isEnabled() && name.isEmpty())
                continue;
            const QRectF r = proxy->sceneBoundingRect().adjusted(1, 1, -1, -1);
            EXPECT_TRUE(sheet.contains(r))
                << condition << " " << f->name << " " << qPrintable(name);
            for (const auto &other : boxes) {
                EXPECT_FALSE(other.second.intersects(r))
                    << condition << " " << f->name << ": " << qPrintable(name) << " overlaps "
                    << qPrintable(other.first);
            }
            boxes.append({name, r});
        }
        EXPECT_GT(boxes.size(), 40) << f->name;
    }
}

} // namespace

TEST_F(TreeTest, EveryFamilyLaysOutItsControlsWithoutOverlap)
{
    expectEveryFamilyWithoutOverlap("default font");
}

// The captions are measured in whatever font the machine gives for "Arial": a wide one must
// not make them run into their neighbours either.
TEST_F(TreeTest, LayoutHoldsWithAWideFont)
{
    const QStringList before = QFont::substitutes(QStringLiteral("Arial"));
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("DejaVu Sans Mono"));
    expectEveryFamilyWithoutOverlap("wide font");
    QFont::removeSubstitutions(QStringLiteral("Arial"));
    QFont::insertSubstitutions(QStringLiteral("Arial"), before);
}

TEST_F(TreeTest, LayoutHoldsInChinese)
{
    QTranslator zh;
    ASSERT_TRUE(zh.load(QStringLiteral(":/image/tr_zh.qm")));
    QCoreApplication::installTranslator(&zh);
    expectEveryFamilyWithoutOverlap("Chinese");
    QCoreApplication::removeTranslator(&zh);
}
