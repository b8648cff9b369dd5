#include "common/testsupport.h"
#include "pinfixture.h"
#include "pinout/chipview.h"
#include "pinout/custompinaction.h"
#include "pinout/enter_userlabel_dialog.h"
#include "pinout/pingraphicsview.h"
#include "widgets/messagebox.h"
#include "pinout/pinqgraphicsrectitem.h"
#include "pinout/pinqgraphicstextitem.h"

#include "database/devicereader.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// Collects the error boxes instead of showing them.
struct MessageCatcher
{
    MessageCatcher()
    {
        setUserMessageHandler([this](QWidget *, const UserMessage &m) {
            messages.append(m.text);
            return 0;
        });
    }
    ~MessageCatcher() { setUserMessageHandler({}); }
    QStringList messages;
};

CustomPinAction *actionFor(PinQGraphicsRectItem *item, const QString &func)
{
    for (CustomPinAction *action : item->pinActions()) {
        if (action->signalName == func)
            return action;
    }
    return nullptr;
}

// A 48-pin chip with a few pins of interest.
PinFixture smallChip()
{
    PinFixture f;
    f.pin(1, "VBAT", {}, QString(), true);
    f.pin(2, "PC13", {"GPIO_Output", "RTC_TAMP", "EVENTOUT"});
    f.pin(3, "PA0", {"ADC1_IN0*", "ADC2_IN0*", "TMR2_CH1"});
    f.pin(4, "PA1", {"USART2_TX"});
    f.pin(5, "PA2", {"USART2_TX", "SPI1_SCK"});
    f.pin(6, "VDD", {"VDD"}, QString(), true);
    f.group("USART2", {{"USART2_TX", 4}});
    return f;
}

TEST(ChipViewSignals, EachRequestEmitsWithTheFlagsOfItsKind)
{
    PinFixture f = smallChip();
    ChipView view(f.info.get());
    QSignalSpy spy(&view, &ChipView::SendAllConfigedSignals);
    const QList<ModeSignal> spi = modeSignals({"SPI1_SCK"});

    struct Row
    {
        const char *what;
        std::function<void()> act;
        bool flag;
        QString name;
    };
    const QList<Row> rows = {
        {"mode", [&] { view.ReciveIPPinSignals(spi, spi, false, "SPI1"); }, false, "SPI1"},
        {"clear", [&] { view.ReciveClearIPPinSignals(spi, true, "SPI1"); }, true, "SPI1"},
        {"tick", [&] { view.UpdatePinConfigInfoSlot(*f.info->pins.at(1)); }, true, ""},
        {"label", [&] { view.UpdatePinConfigInfoUserLabel(*f.info->pins.at(1)); }, true,
         "UserLabel"},
        {"remap", [&] { view.ReceivePinRemapFlag(true); }, true, ""},
        {"reset", [&] { view.AllConfigReset(); }, false, ""},
    };
    for (const Row &row : rows) {
        spy.clear();
        row.act();
        ASSERT_EQ(spy.count(), 1) << row.what;
        EXPECT_EQ(spy.at(0).at(0).value<DevicePinInfo *>(), f.info.get()) << row.what;
        EXPECT_EQ(spy.at(0).at(1).toBool(), row.flag) << row.what;
        EXPECT_EQ(spy.at(0).at(2).toString(), row.name) << row.what;
    }
    spy.clear();
    view.ReceiveGPIOSignalsUserLabelChange(2, "x", "LED");
    EXPECT_EQ(spy.count(), 0);
}

TEST(ChipViewDrawing, PackagesAreLaidOutByTheirTable)
{
    struct Case
    {
        QString package;
        int pins;
        int x;
        int y;
        int bodyWidth;
        int bodyHeight;
    };
    const QList<Case> cases = {
        {"LQFP", 48, 12, 12, 12 * 25 + 44, 12 * 25 + 44},
        {"QFN", 32, 8, 8, 8 * 36 + 104, 8 * 36 + 104},
        {"TSSOP", 20, 0, 10, int((10 * 40 + 20) / 6.5 * 4.4), 10 * 40 + 20},
    };
    for (const Case &c : cases) {
        PinFixture f("MQ48T110X", c.package, c.pins);
        f.info->xPinNum = c.x;
        f.info->yPinNum = c.y;
        for (int n = 1; n <= c.pins; ++n)
            f.pin(n, QStringLiteral("P%1").arg(n), {"GPIO_Input"});
        ChipView view(f.info.get());
        EXPECT_EQ(view.bodyWidth, c.bodyWidth) << c.package.toStdString();
        EXPECT_EQ(view.bodyHeight, c.bodyHeight) << c.package.toStdString();
        ASSERT_EQ(view.pinItems().size(), c.pins);
        EXPECT_EQ(view.pinNameItems().size(), c.pins);
        EXPECT_EQ(view.pinLabelItems().size(), c.pins);
        // Pin 1 is at the top of the left side; the last pin closes the circle at the top.
        PinQGraphicsRectItem *first = view.pinItem(1);
        EXPECT_EQ(first->side(), 0);
        EXPECT_DOUBLE_EQ(first->rect().right(), 0);
        EXPECT_DOUBLE_EQ(first->rect().top(), view.cornerGap);
        PinQGraphicsRectItem *last = view.pinItem(c.pins);
        EXPECT_EQ(last->side(), c.package == "TSSOP" ? 2 : 3);
        // No two pins overlap and every pin touches the body.
        for (PinQGraphicsRectItem *a : view.pinItems()) {
            const QRectF body(0, 0, view.bodyWidth, view.bodyHeight);
            EXPECT_TRUE(a->rect().intersects(body.adjusted(-1, -1, 1, 1)));
            for (PinQGraphicsRectItem *b : view.pinItems())
                EXPECT_TRUE(a == b || !a->rect().intersects(b->rect()));
        }
    }
}

TEST(ChipViewDrawing, ZoomStepsStopAtTheLimitsAndResetKeepsTheTurn)
{
    PinFixture f = smallChip();
    ChipView view(f.info.get());
    PinGraphicsView *gv = view.graphicsView();
    int steps = 0;
    while (steps < 50) {
        const double before = gv->currentScale();
        view.ZoomIn();
        if (gv->currentScale() == before)
            break;
        ++steps;
    }
    EXPECT_LT(steps, 50);
    EXPECT_LE(gv->currentScale(), 5.0);
    EXPECT_GT(gv->currentScale() * 1.2, 5.0); // the refused step would have passed the limit
    view.Rotated_Clockwise();
    EXPECT_EQ(f.info->rotation, 90);
    view.ZoomReset();
    EXPECT_NEAR(gv->currentScale(), 1.0, 1e-9);
    EXPECT_NEAR(gv->transform().m12(), 1.0, 1e-9); // still turned by 90 degrees
    EXPECT_DOUBLE_EQ(gv->factor, 1.0);
    for (int i = 0; i < 20; ++i)
        view.ZoomOut();
    EXPECT_GE(gv->currentScale(), 0.2);
}

TEST(PinItemMenu, MenusFollowThePinKind)
{
    PinFixture f = smallChip();
    ChipView view(f.info.get());
    PinQGraphicsRectItem *vbat = view.pinItem(1);
    EXPECT_EQ(vbat->signalMenu(), nullptr);
    EXPECT_EQ(vbat->labelMenu(), nullptr);
    PinQGraphicsRectItem *vdd = view.pinItem(6);
    ASSERT_NE(vdd->signalMenu(), nullptr);
    EXPECT_EQ(vdd->enterLabelAction(), nullptr);
    PinQGraphicsRectItem *pc13 = view.pinItem(2);
    ASSERT_NE(pc13->signalMenu(), nullptr);
    EXPECT_EQ(pc13->signalMenu()->actions().first()->text(), "Reset_State");
    EXPECT_EQ(pc13->pinActions().size(), 3);
    EXPECT_NE(pc13->enterLabelAction(), nullptr);
    EXPECT_EQ(pc13->fillColor(), QColor(190, 190, 190));
    EXPECT_EQ(vdd->fillColor(), QColor(220, 230, 241));
}

TEST(PinItemMenu, TickingLightsThePinAndResetStateClearsIt)
{
    PinFixture f = smallChip();
    ChipView view(f.info.get());
    QSignalSpy spy(&view, &ChipView::SendAllConfigedSignals);
    PinQGraphicsRectItem *pc13 = view.pinItem(2);

    actionFor(pc13, "RTC_TAMP")->trigger();
    EXPECT_EQ(f.status(2, "RTC_TAMP"), 1);
    EXPECT_EQ(pc13->fillColor(), QColor(243, 233, 110));
    EXPECT_TRUE(pc13->toolTip().contains("+ RTC_TAMP"));
    EXPECT_EQ(spy.count(), 1);

    // A GPIO word replaces the peripheral signal and is in use at once.
    actionFor(pc13, "GPIO_Output")->trigger();
    EXPECT_EQ(f.status(2, "GPIO_Output"), 3);
    EXPECT_EQ(f.status(2, "RTC_TAMP"), 0);
    EXPECT_FALSE(actionFor(pc13, "RTC_TAMP")->isChecked());
    EXPECT_EQ(pc13->fillColor(), QColor(0, 200, 0));
    EXPECT_EQ(view.pinNameItems().at(1)->defaultTextColor(), QColor(Qt::white));
    EXPECT_EQ(view.pinLabelItems().at(1)->toPlainText(), "GPIO_Output");

    pc13->checkedLibAction(pc13->resetAction());
    EXPECT_EQ(f.status(2, "GPIO_Output"), 0);
    EXPECT_EQ(pc13->fillColor(), QColor(190, 190, 190));
    EXPECT_EQ(pc13->toolTip(), "Pin 2----PC13\n");
    EXPECT_EQ(view.pinLabelItems().at(1)->toPlainText(), "");
}

TEST(PinItemMenu, SecondMultiSignalKeepsTheFirst)
{
    PinFixture f = smallChip();
    ChipView view(f.info.get());
    PinQGraphicsRectItem *pa0 = view.pinItem(3);
    actionFor(pa0, "ADC1_IN0")->trigger();
    actionFor(pa0, "ADC2_IN0")->trigger();
    EXPECT_EQ(f.status(3, "ADC1_IN0"), 1);
    EXPECT_EQ(f.status(3, "ADC2_IN0"), 1);
    EXPECT_TRUE(actionFor(pa0, "ADC1_IN0")->isChecked());
    EXPECT_FALSE(actionFor(pa0, "ADC1_IN0")->icon().isNull() &&
                 !QFile::exists(":/image/add_P.png"));
    actionFor(pa0, "TMR2_CH1")->trigger();
    EXPECT_EQ(f.status(3, "ADC1_IN0"), 0);
    EXPECT_EQ(f.status(3, "ADC2_IN0"), 0);
    EXPECT_EQ(f.status(3, "TMR2_CH1"), 1);
}

TEST(PinItemMenu, GroupPreCheckFailureUndoesThePick)
{
    PinFixture f = smallChip();
    ChipView view(f.info.get());
    MessageCatcher catcher;
    const QList<ModeSignal> tx = modeSignals({"USART2_TX"});
    view.ReciveIPPinSignals(tx, tx, true, "USART2");
    ASSERT_EQ(f.status(4, "USART2_TX"), 2);

    PinQGraphicsRectItem *pa2 = view.pinItem(5);
    actionFor(pa2, "USART2_TX")->trigger();
    EXPECT_EQ(catcher.messages, QStringList({"Unable to find signal group, switching failed!"}));
    EXPECT_FALSE(actionFor(pa2, "USART2_TX")->isChecked());
    EXPECT_EQ(f.status(5, "USART2_TX"), 0);
    EXPECT_EQ(f.status(4, "USART2_TX"), 2);
}

TEST(PinItemLabel, DialogCutsBadTextAndLabelReachesThePin)
{
    PinFixture f = smallChip();
    ChipView view(f.info.get());
    MessageCatcher catcher;
    PinQGraphicsRectItem *pc13 = view.pinItem(2);
    actionFor(pc13, "GPIO_Output")->trigger();
    pc13->EnterLabelAction(pc13->enterLabelAction());
    Enter_UserLabel_Dialog *dialog = pc13->labelDialog();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(dialog->isEditing);

    // The modal box takes the keystrokes after a bad one; headless each key arrives.
    QTest::keyClicks(dialog->lineEdit(), "1");
    EXPECT_EQ(catcher.messages.size(), 1);
    EXPECT_EQ(dialog->lineEdit()->text(), "");
    QTest::keyClicks(dialog->lineEdit(), "a-");
    EXPECT_EQ(catcher.messages.size(), 2);
    EXPECT_EQ(dialog->lineEdit()->text(), "a");
    EXPECT_EQ(f.sig(2, "GPIO_Output")->userLabel, "a");
    dialog->lineEdit()->clear();
    catcher.messages.clear();

    QTest::keyClicks(dialog->lineEdit(), "_led2");
    EXPECT_TRUE(catcher.messages.isEmpty());
    EXPECT_EQ(f.sig(2, "GPIO_Output")->userLabel, "_led2");
    EXPECT_EQ(view.pinLabelItems().at(1)->toPlainText(), "_led2");
    EXPECT_TRUE(view.searchBox()->findText("_led2") >= 0);

    // A press on the drawing ends the edit; an empty label is allowed and clears.
    view.ZoomIn();
    EXPECT_FALSE(dialog->isEditing);
    dialog->lineEdit()->clear();
    dialog->UserLabel_LineEdit_textEdit("");
    EXPECT_EQ(view.pinLabelItems().at(1)->toPlainText(), "GPIO_Output");

    EXPECT_TRUE(Enter_UserLabel_Dialog::isValidLabel("abc_1"));
    EXPECT_FALSE(Enter_UserLabel_Dialog::isValidLabel("a-b"));
}

TEST(PinItemSearch, BlinkingFollowsTheSearchRules)
{
    PinFixture f = smallChip();
    ChipView view(f.info.get());
    auto blinking = [&] {
        QList<int> pins;
        for (PinQGraphicsRectItem *item : view.pinItems()) {
            if (item->isBlinking())
                pins.append(item->pinInfo().PinNum);
        }
        return pins;
    };
    view.searchBox()->setEditText("usart2_tx");
    view.QueryEditingFinished();
    EXPECT_EQ(blinking(), QList<int>({4, 5}));
    view.QueryActived(0); // mixed case as typed finds nothing
    EXPECT_EQ(blinking(), QList<int>());
    view.searchBox()->setEditText("ADC");
    view.QueryActived(0); // no exact hit: contained text
    EXPECT_EQ(blinking(), QList<int>({3}));
    view.searchBox()->setEditText("P");
    view.QueryEditingFinished(); // one letter finds nothing
    EXPECT_EQ(blinking(), QList<int>());

    view.ReceiveGPIOQuerySignals("PA2", "SPI1_SCK");
    EXPECT_EQ(blinking(), QList<int>({5}));
    view.ReceiveGPIOQuerySignals("", "VDD");
    EXPECT_EQ(blinking(), QList<int>({6}));
    view.ReceiveGPIOQuerySignals("", "");
    EXPECT_EQ(blinking(), QList<int>());

    // A mode request stops all blinking.
    view.ReceiveGPIOQuerySignals("", "VDD");
    const QList<ModeSignal> spi = modeSignals({"SPI1_SCK"});
    view.ReciveIPPinSignals(spi, spi, true, "SPI1");
    EXPECT_EQ(blinking(), QList<int>());
}

TEST(ChipViewRemap, PinItemsShowTheRecordInForce)
{
    PinFixture f = smallChip();
    f.pin(4, "PA1", {"USART2_TX"}, "NOPINREMAP");
    f.dropPin(3); // the plain PA1 above is replaced by the variant pair
    f.pin(4, "PB9", {"I2C1_SDA", "CAN_TX"}, "PINREMAP");
    ChipView view(f.info.get());
    EXPECT_EQ(view.pinItem(4)->pinInfo().PinName, "PA1");
    view.ReceivePinRemapFlag(true);
    EXPECT_EQ(view.pinItem(4)->pinInfo().PinName, "PB9");
    EXPECT_EQ(view.pinItem(4)->pinActions().size(), 2);
    actionFor(view.pinItem(4), "CAN_TX")->trigger();
    EXPECT_EQ(f.status(4, "CAN_TX"), 1);
    view.AllConfigReset();
    EXPECT_EQ(view.pinItem(4)->pinInfo().PinName, "PA1");
    EXPECT_EQ(view.pinItem(4)->fillColor(), QColor(190, 190, 190));
}

// Every function of every pin of every device of the series can be ticked and unticked.
TEST(ChipViewDatabase, EveryFunctionOfEveryT110DeviceCanBeTicked)
{
    const QDir series(testsupport::sourceDatabase() + "/device/MQ48T110");
    const QStringList files = series.entryList({"MQ48T110*.xml"}, QDir::Files, QDir::Name);
    ASSERT_FALSE(files.isEmpty()) << "no device files in " << series.path().toStdString();
    MessageCatcher catcher;
    int ticks = 0;
    for (const QString &file : files) {
        std::unique_ptr<DevicePinInfo> info(NewDevicePinInfo(series.filePath(file)));
        ASSERT_GT(info->pins.size(), 0) << file.toStdString();
        ChipView view(info.get());
        EXPECT_EQ(view.pinItems().size(), info->PinNums) << file.toStdString();
        for (PinQGraphicsRectItem *item : view.pinItems()) {
            for (CustomPinAction *action : item->pinActions()) {
                catcher.messages.clear();
                action->trigger();
                MCUPinSignal *sig = nullptr;
                for (MCUPinSignal *s : item->pinInfo().signalList) {
                    if (s->Func == action->signalName)
                        sig = s;
                }
                ASSERT_NE(sig, nullptr);
                if (catcher.messages.isEmpty()) {
                    EXPECT_GT(sig->status, 0)
                        << file.toStdString() << " " << action->text().toStdString();
                    EXPECT_TRUE(action->isChecked());
                    ++ticks;
                } else {
                    EXPECT_FALSE(action->isChecked());
                }
            }
            item->checkedLibAction(item->resetAction());
            EXPECT_EQ(item->pinState(), 0) << file.toStdString();
        }
        view.AllConfigReset();
    }
    EXPECT_GT(ticks, 0);
}

} // namespace
