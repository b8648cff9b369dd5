// The clock page as a new user meets it: the solver keeps within the limits and to divider
// values the firmware names, a PLL mode switch raises no error the user didn't make, the
// page speaks the language of the moment, says why a family has no tree, and its lists and
// disabled fields don't mislead.

#include "clock/clocktreestate.h"
#include "clock/mq48clocktree.h"
#include "clock/mq48familytrees.h"
#include "clock/mq48pllconfig.h"
#include "test_widget_support.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QToolBar>
#include <QTranslator>
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace {

const QList<int> kNamedFu = {11, 12, 13, 14, 16, 18, 20};

ClockTreeState onPllFromHext(int model, double hext, double sclk)
{
    ClockTreeState s(model);
    s.pllmode = 1;
    s.pllrcs = 0;
    s.hext = hext;
    s.hextEnabled = true;
    s.sclkselect = 1;
    s.sclk = sclk;
    return s;
}

class NewUserClock : public ::testing::Test
{
protected:
    MessageRecorder rec;
};

} // namespace

// A wished clock that only a setting above the limit would hit exactly gets the nearest
// setting within it.
TEST(ClockSolverLimits, TheNearestSettingWithinTheLimitsWins)
{
    struct Case
    {
        int model;
        double hext;
        double wished;
    } cases[] = {{ClockModel::T510, 25.0, 288.0},
                 {ClockModel::T220, 12.288, 216.0},
                 {ClockModel::T210, 12.288, 216.0},
                 {ClockModel::T130, 25.0, 150.0}};
    for (const Case &c : cases) {
        ClockTreeState s = onPllFromHext(c.model, c.hext, c.wished);
        s.solveForSclk();
        const ClockFamily *f = s.family();
        EXPECT_LE(s.sclk, f->sclkMax) << f->name;
        if (f->pllMax > 0.0) {
            EXPECT_LE(s.pllclk, f->pllMax) << f->name;
        }
        EXPECT_NEAR(s.sclk, c.wished, 0.5) << f->name;
    }

    // Over a sweep of wishes and crystals no family's result leaves its limits.
    for (const ClockFamily *f : allClockFamilies()) {
        for (double hext = 4.0; hext <= 25.0; hext += 1.7) {
            for (double wished = 8.0; wished <= f->sclkMax; wished += 13.3) {
                ClockTreeState s = onPllFromHext(f->model, hext, wished);
                if (f->pllForm == PllForm::Multiplier)
                    s.pllmode = 0;
                s.solveForSclk();
                EXPECT_LE(s.sclk, f->sclkMax + 1e-9)
                    << f->name << " hext " << hext << " wished " << wished;
            }
        }
    }
}

// The USB divider of T210 and T220 is always one the firmware macro table names.
TEST(ClockSolverLimits, OnlyNamedUsbDividersAreChosen)
{
    for (int model : {ClockModel::T220, ClockModel::T210}) {
        for (int pllrcs : {0, 1}) {
            for (double wished = 4.0; wished <= 216.0; wished += 0.5) {
                ClockTreeState s(model);
                s.pllmode = 1;
                s.pllrcs = pllrcs;
                s.hextEnabled = pllrcs == 0;
                s.setPeripheralGate(ClockGate::Usb1, true);
                s.hicktousb = 0;
                s.sclkselect = 1;
                s.sclk = wished;
                s.solveForSclk();
                EXPECT_TRUE(kNamedFu.contains(s.pllfu))
                    << "fu " << s.pllfu << " at sclk " << wished << " pllrcs " << pllrcs;
            }
        }
    }
    // The case a user met: PLL on HICK, USB on the PLL, 180 MHz.
    ClockTreeState s(ClockModel::T220);
    s.pllmode = 1;
    s.pllrcs = 1;
    s.setPeripheralGate(ClockGate::Usb1, true);
    s.hicktousb = 0;
    s.sclkselect = 1;
    s.sclk = 180.0;
    s.solveForSclk();
    EXPECT_TRUE(kNamedFu.contains(s.pllfu)) << s.pllfu;
    EXPECT_FALSE(s.usbDivMacro().isEmpty());
}

// Clocks typed far beyond any chip must not overflow the integer conversions.
TEST(ClockSolverLimits, AbsurdClocksDoNotOverflow)
{
    for (const ClockFamily *f : allClockFamilies()) {
        ClockTreeState s(f->model);
        s.setPeripheralGate(ClockGate::Usb1, true);
        s.hicktousb = 0;
        s.sclkselect = 1;
        s.sclk = 1.0e300;
        s.hext = 1.0e300;
        if (f->isFlexibleCapable()) {
            s.pllmode = 1;
            s.solveForSclk();
            EXPECT_LE(s.sclk, f->sclkMax) << f->name;
            s.sclk = 1.0e300;
        }
        s.pllmode = 0;
        s.solveForSclk();
        s.recalculate();
        EXPECT_GE(s.usbdiv, 1.0) << f->name;
        EXPECT_TRUE(std::isfinite(s.ahbclk)) << f->name;
    }
}

// Switching the PLL between its forms keeps the system clock and asks nothing.
TEST_F(NewUserClock, SwitchingThePllModeKeepsTheSystemClockWithoutAQuestion)
{
    for (const ClockFamily *f : treeClockFamilies()) {
        if (f->pllForm != PllForm::Selectable)
            continue;
        SCOPED_TRACE(f->name);
        std::unique_ptr<MQ48ClockTree> tree(createClockTree(f->model));
        auto *mode = qobject_cast<QComboBox *>(tree->control("pllmode"));
        ASSERT_TRUE(mode);
        const double before = tree->clockState().sclk;
        mode->setCurrentIndex(0); // flexible
        EXPECT_EQ(tree->clockState().pllmode, 1);
        EXPECT_TRUE(rec.texts.isEmpty()) << qPrintable(rec.texts.join('\n'));
        EXPECT_NEAR(tree->clockState().sclk, before, 1e-9);
        EXPECT_TRUE(tree->checkClockConfig()) << qPrintable(rec.texts.join('\n'));
        mode->setCurrentIndex(1); // normal
        EXPECT_TRUE(rec.texts.isEmpty()) << qPrintable(rec.texts.join('\n'));
        EXPECT_NEAR(tree->clockState().sclk, before, 1e-9);
    }
}

// A disabled field shows no state colour: HEXT is grey until a crystal is switched on.
TEST_F(NewUserClock, ADisabledHextFieldIsNotGreen)
{
    MQ48T510PLL tree;
    tree.resize(1560, 960);
    tree.show();
    QLineEdit *hext = qobject_cast<QLineEdit *>(tree.control("hext"));
    ASSERT_TRUE(hext);
    ASSERT_FALSE(hext->isEnabled());
    const QColor green(152, 251, 152);
    EXPECT_NE(tree.fieldBackground("hext"), green);
    // What is drawn: a point on the left of the right-aligned text.
    const QImage shown = hext->grab().toImage();
    EXPECT_NE(shown.pixelColor(6, shown.height() / 2), green);

    tree.setHextEnable(true);
    EXPECT_EQ(tree.fieldBackground("hext"), green);
    const QImage enabled = hext->grab().toImage();
    EXPECT_EQ(enabled.pixelColor(6, enabled.height() / 2), green);
}

// An open peripheral list covers no value of the drawing, its title least of all.
TEST_F(NewUserClock, PeripheralListsCoverNoValue)
{
    for (const ClockFamily *f : treeClockFamilies()) {
        std::unique_ptr<MQ48ClockTree> tree(createClockTree(f->model));
        tree->resize(1560, 960);
        tree->show();
        for (const char *button : {"list_apb1", "list_apb1tmr", "list_apb2", "list_apb2tmr"}) {
            auto *push = qobject_cast<QPushButton *>(tree->control(button));
            ASSERT_TRUE(push) << f->name << " " << button;
            push->click();
            QGraphicsProxyWidget *listProxy = nullptr;
            for (QGraphicsItem *item : tree->scene()->items()) {
                auto *proxy = dynamic_cast<QGraphicsProxyWidget *>(item);
                if (proxy && proxy->widget()->findChild<QGroupBox *>(QString(button) + "_group"))
                    listProxy = proxy;
            }
            ASSERT_TRUE(listProxy && listProxy->isVisible()) << f->name << " " << button;
            const QRectF listRect = listProxy->sceneBoundingRect();
            for (QLineEdit *value : tree->findChildren<QLineEdit *>()) {
                QGraphicsProxyWidget *proxy = value->window()->graphicsProxyWidget();
                if (!proxy || !proxy->isVisible())
                    continue;
                EXPECT_FALSE(
                    proxy->sceneBoundingRect().adjusted(1, 1, -1, -1).intersects(listRect))
                    << f->name << " " << button << " covers " << qPrintable(value->objectName());
            }
            push->click();
        }
    }
}

// A page made while Chinese was on shows a new design's tool bar in the language of the
// moment.
TEST_F(NewUserClock, ANewDesignsToolBarSpeaksTheLanguageOfTheMoment)
{
    QTranslator zh;
    ASSERT_TRUE(zh.load(QStringLiteral(":/image/tr_zh.qm")));
    QCoreApplication::installTranslator(&zh);
    MQ48PLLConfig page;
    const QString chineseZoomIn = page.findChild<QToolBar *>()->actions().first()->text();
    QCoreApplication::removeTranslator(&zh);
    ASSERT_NE(chineseZoomIn, "Zoom in");

    page.setMcuModel(ClockModel::T110);
    QStringList texts;
    for (QAction *a : page.findChild<QToolBar *>()->actions()) {
        if (!a->text().isEmpty())
            texts << a->text();
    }
    EXPECT_EQ(texts, QStringList({"Zoom in", "Zoom Reset", "Zoom out", "Config Reset"}));
    page.retranslate();
    EXPECT_EQ(page.findChild<QToolBar *>()->actions().last()->text(), "Reset Configuration");
}

// T230 and T050 have no tree: the page says so, and a family with a tree takes its place.
TEST_F(NewUserClock, AFamilyWithoutATreeGetsANote)
{
    MQ48PLLConfig page;
    page.resize(1200, 800);
    page.show();
    for (int model : {ClockModel::T230, ClockModel::T050}) {
        page.setMcuModel(model);
        EXPECT_EQ(page.tree(), nullptr);
        ASSERT_NE(page.note(), nullptr);
        EXPECT_TRUE(page.note()->isVisible());
        EXPECT_TRUE(page.note()->text().contains(clockFamily(model)->series))
            << qPrintable(page.note()->text());
    }
    page.setMcuModel(ClockModel::T110);
    EXPECT_EQ(page.note(), nullptr);
    ASSERT_NE(page.tree(), nullptr);
    EXPECT_TRUE(page.tree()->isVisible());
}
