// The chip drawing as a new user sees it: texts stay on their pins and read the right way up,
// the drawing holds still, the label editor survives a bad label, broken counts draw nothing,
// and crystal pins are taken last.

#include "common/testsupport.h"
#include "database/devicecheck.h"
#include "database/devicereader.h"
#include "pinfixture.h"
#include "pinout/chipview.h"
#include "pinout/custompinaction.h"
#include "pinout/enter_userlabel_dialog.h"
#include "pinout/pingraphicsview.h"
#include "pinout/pinqgraphicsrectitem.h"
#include "pinout/pinqgraphicstextitem.h"
#include "widgets/messagebox.h"

#include <QApplication>
#include <QDirIterator>
#include <QFontMetricsF>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QLineEdit>
#include <QTest>
#include <QTextDocument>
#include <QtMath>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace {

QString sourceDevice(const QString &series, const QString &device)
{
    return QStringLiteral(MQ48_SOURCE_DIR) + "/MQ48DB/device/" + series + "/" + device + ".xml";
}

// The rectangle of a text item's glyphs in scene coordinates.
QRectF inkRect(const PinQGraphicsTextItem *text)
{
    const double margin = text->document()->documentMargin();
    const QFontMetricsF metrics(text->font());
    return text->mapRectToScene(
        QRectF(margin, margin, metrics.horizontalAdvance(text->toPlainText()), metrics.height()));
}

// The angle at which a text reads on the screen, in degrees from 0 to 359.
int screenAngle(const ChipView &view, const QGraphicsItem *text)
{
    const QTransform t = text->sceneTransform() * view.graphicsView()->transform();
    const int degrees = qRound(qRadiansToDegrees(std::atan2(t.m12(), t.m11())));
    return ((degrees % 360) + 360) % 360;
}

struct MessageSink
{
    explicit MessageSink(std::function<void()> onMessage = {})
    {
        setUserMessageHandler([this, onMessage](QWidget *, const UserMessage &m) {
            messages << m.text;
            if (onMessage)
                onMessage();
            return 0;
        });
    }
    ~MessageSink() { setUserMessageHandler({}); }
    QStringList messages;
};

} // namespace

// "BOOT0" and every other pin name stays within its pin, on every device shipped.
TEST(ChipDrawingFit, EveryPinNameStaysOnItsPinOnEveryShippedDevice)
{
    QDirIterator it(QStringLiteral(MQ48_SOURCE_DIR) + "/MQ48DB/device", {"*.xml"}, QDir::Files,
                    QDirIterator::Subdirectories);
    QSet<QString> packages;
    while (it.hasNext()) {
        const QString file = it.next();
        if (file.contains("/Peripherals/"))
            continue;
        std::unique_ptr<DevicePinInfo> info(NewDevicePinInfo(file));
        ChipView view(info.get());
        packages.insert(info->Package + QString::number(info->PinNums));
        for (int i = 0; i < view.pinItems().size(); ++i) {
            const PinQGraphicsTextItem *name = view.pinNameItems().at(i);
            if (name->toPlainText().isEmpty())
                continue;
            const QRectF pin = view.pinItems().at(i)->sceneBoundingRect();
            const QRectF ink = inkRect(name);
            const bool across = view.pinItems().at(i)->side() % 2 == 1;
            const double inkStart = across ? ink.top() : ink.left();
            const double inkEnd = across ? ink.bottom() : ink.right();
            const double pinStart = across ? pin.top() : pin.left();
            const double pinEnd = across ? pin.bottom() : pin.right();
            EXPECT_GE(inkStart, pinStart - 0.5)
                << qPrintable(file) << " " << qPrintable(name->toPlainText());
            EXPECT_LE(inkEnd, pinEnd + 0.5)
                << qPrintable(file) << " " << qPrintable(name->toPlainText());
        }
    }
    for (const char *package : {"LQFP144", "QFN32", "TSSOP20"})
        EXPECT_TRUE(packages.contains(package)) << package;
}

// However often the drawing turns, no pin text reads upside down.
TEST(ChipDrawingFit, NoTextIsUpsideDownAfterARotation)
{
    std::unique_ptr<DevicePinInfo> info(NewDevicePinInfo(sourceDevice("MQ48T510", "MQ48T510ZGT")));
    ASSERT_EQ(info->PinNums, 144);
    ChipView view(info.get());
    const QRectF before = view.pinItems().at(0)->sceneBoundingRect();
    for (int turn = 1; turn <= 4; ++turn) {
        view.Rotated_Clockwise();
        for (auto *list : {&view.pinNameItems(), &view.pinLabelItems()}) {
            for (const PinQGraphicsTextItem *text : *list) {
                if (!text->toPlainText().isEmpty()) {
                    EXPECT_NE(screenAngle(view, text), 180)
                        << "turn " << turn << " " << qPrintable(text->toPlainText());
                }
            }
        }
        // The model, package and logo on the body read the right way up too.
        int bodyTexts = 0;
        for (const QGraphicsItem *item : view.scene()->items()) {
            if (const auto *text = dynamic_cast<const QGraphicsSimpleTextItem *>(item)) {
                ++bodyTexts;
                EXPECT_NE(screenAngle(view, text), 180)
                    << "turn " << turn << " " << qPrintable(text->text());
            }
        }
        EXPECT_EQ(bodyTexts, 3);
    }
    EXPECT_EQ(info->rotation, 0);
    view.Rotated_AnitClockwise();
    EXPECT_EQ(info->rotation, 270);
    for (const PinQGraphicsTextItem *text : view.pinNameItems())
        EXPECT_NE(screenAngle(view, text), 180) << qPrintable(text->toPlainText());
    // The pins themselves don't move: only the view turns.
    EXPECT_EQ(view.pinItems().at(0)->sceneBoundingRect(), before);
}

// A text turned the right way up keeps its place on the pin.
TEST(ChipDrawingFit, AFlippedTextKeepsItsPlace)
{
    std::unique_ptr<DevicePinInfo> info(NewDevicePinInfo(sourceDevice("MQ48T510", "MQ48T510ZGT")));
    ChipView view(info.get());
    QList<QRectF> places;
    for (const PinQGraphicsTextItem *text : view.pinNameItems())
        places << text->sceneBoundingRect();
    for (int turn = 1; turn <= 4; ++turn) {
        view.Rotated_Clockwise();
        for (int i = 0; i < places.size(); ++i) {
            const QRectF now = view.pinNameItems().at(i)->sceneBoundingRect();
            EXPECT_NEAR(now.center().x(), places.at(i).center().x(), 0.01) << "turn " << turn;
            EXPECT_NEAR(now.center().y(), places.at(i).center().y(), 0.01) << "turn " << turn;
        }
    }
}

// A label that appears beside a pin neither grows the scene nor moves what the user sees.
TEST(ChipDrawingFit, TheDrawingHoldsStillWhenALabelAppears)
{
    std::unique_ptr<DevicePinInfo> info(NewDevicePinInfo(sourceDevice("MQ48T110", "MQ48T110C8T")));
    ChipView view(info.get());
    view.resize(900, 700);
    view.show();
    QApplication::processEvents();
    PinGraphicsView *gv = view.graphicsView();
    const QRectF sceneRect = view.scene()->sceneRect();
    const QPointF centre = gv->mapToScene(gv->viewport()->rect().center());

    // The longest label: 16 characters on a pin of the left side.
    PinQGraphicsRectItem *pin = nullptr;
    for (PinQGraphicsRectItem *item : view.pinItems()) {
        if (item->side() == 0 && !item->pinActions().isEmpty() && !item->pinInfo().PinFixed) {
            pin = item;
            break;
        }
    }
    ASSERT_NE(pin, nullptr);
    pin->pinActions().first()->trigger();
    view.ReceiveGPIOSignalsUserLabelChange(pin->pinInfo().PinNum, QString(), "WWWWWWWWWWWWWWWW");
    QApplication::processEvents();

    EXPECT_EQ(view.scene()->sceneRect(), sceneRect);
    EXPECT_EQ(gv->mapToScene(gv->viewport()->rect().center()), centre);
    for (const PinQGraphicsTextItem *label : view.pinLabelItems())
        EXPECT_TRUE(sceneRect.contains(label->sceneBoundingRect()))
            << qPrintable(label->toPlainText());
}

// Counts far beyond a package draw nothing instead of exhausting memory or overflowing.
TEST(ChipDrawingFit, BrokenCountsDrawNothing)
{
    for (const char *package : {"LQFP", "QFN", "TSSOP"}) {
        const ChipLayout huge = ChipLayout::forPackage(package, 2147483647, 2147483647, 400000);
        EXPECT_TRUE(huge.pins.isEmpty()) << package;
        const ChipLayout negative = ChipLayout::forPackage(package, -5, -5, -20);
        EXPECT_TRUE(negative.pins.isEmpty()) << package;
    }
    const ChipLayout limit =
        ChipLayout::forPackage("LQFP", kMaxSidePins, kMaxSidePins, kMaxDevicePins);
    EXPECT_EQ(limit.pins.size(), 4 * kMaxSidePins);

    PinFixture f;
    f.info->xPinNum = f.info->yPinNum = 2147483647;
    f.info->PinNums = 400000;
    ChipView view(f.info.get());
    EXPECT_TRUE(view.pinItems().isEmpty());
}

// After the message about a bad label, the editor stays open on what is left, selected, even
// though the message took the focus from it.
TEST(ChipDrawingFit, LabelEditorStaysOpenWithTheTextSelectedAfterABadLabel)
{
    PinFixture f;
    f.pin(1, "PC13", {"GPIO_Output"});
    ChipView view(f.info.get());
    PinQGraphicsRectItem *pc13 = view.pinItem(1);
    pc13->pinActions().first()->trigger();
    pc13->EnterLabelAction(pc13->enterLabelAction());
    Enter_UserLabel_Dialog *dialog = pc13->labelDialog();
    ASSERT_NE(dialog, nullptr);
    ASSERT_TRUE(dialog->isVisible());

    // A real message box takes the focus, which ends the line edit's editing.
    MessageSink sink([dialog] { dialog->Value_LineEdit_editingFinished(); });
    QTest::keyClicks(dialog->lineEdit(), "led-");
    ASSERT_EQ(sink.messages.size(), 1);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(dialog->isEditing);
    EXPECT_EQ(dialog->lineEdit()->text(), "led");
    EXPECT_EQ(dialog->lineEdit()->selectedText(), "led");
    EXPECT_EQ(f.sig(1, "GPIO_Output")->userLabel, "led");

    // Typing on replaces the selection; Enter on a good label closes the editor.
    QTest::keyClicks(dialog->lineEdit(), "run");
    EXPECT_EQ(dialog->lineEdit()->text(), "run");
    dialog->Value_LineEdit_editingFinished();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(dialog->isEditing);
}

// A mode's signals take an equivalent group that leaves the crystal pins free, and single
// signals take another pin first; only when nothing else fits do they take a crystal pin.
TEST(ChipEngineOscillator, CrystalPinsAreTakenOnlyWhenNothingElseFits)
{
    PinFixture f;
    f.pin(2, "PF0", {"GPIO_Output", "I2C1_SDA", "CRM_HEXT_IN", "TMR3_CH1"});
    f.pin(3, "PF1", {"GPIO_Output", "I2C1_SCL", "CRM_HEXT_OUT"});
    f.pin(20, "PB6", {"GPIO_Output", "I2C1_SCL", "USART1_TX"});
    f.pin(21, "PB7", {"GPIO_Output", "I2C1_SDA", "USART1_RX"});
    f.pin(22, "PA6", {"GPIO_Output", "TMR3_CH1"});
    f.group("I2C1", {{"I2C1_SDA", 2}, {"I2C1_SCL", 3}});
    f.group("I2C1", {{"I2C1_SCL", 20}, {"I2C1_SDA", 21}});
    f.group("USART1", {{"USART1_TX", 20}, {"USART1_RX", 21}});
    ChipView view(f.info.get());

    const QList<ModeSignal> i2c = modeSignals({"I2C1_SDA", "I2C1_SCL"});
    view.ReciveIPPinSignals(i2c, i2c, true, "I2C1");
    EXPECT_EQ(f.status(21, "I2C1_SDA"), 2);
    EXPECT_EQ(f.status(20, "I2C1_SCL"), 2);
    EXPECT_EQ(f.status(2, "I2C1_SDA"), 0);

    const QList<ModeSignal> tmr = modeSignals({"TMR3_CH1"});
    view.ReciveIPPinSignals(tmr, tmr, true, "TMR3");
    EXPECT_EQ(f.status(22, "TMR3_CH1"), 2);
    EXPECT_EQ(f.status(2, "TMR3_CH1"), 0);

    // With USART1 on PB6/PB7 first, I2C1 has only the crystal pins left.
    view.AllConfigReset();
    const QList<ModeSignal> usart = modeSignals({"USART1_TX", "USART1_RX"});
    view.ReciveIPPinSignals(usart, usart, true, "USART1");
    view.ReciveIPPinSignals(i2c, i2c, true, "I2C1");
    EXPECT_EQ(f.status(2, "I2C1_SDA"), 2);
    EXPECT_EQ(f.status(3, "I2C1_SCL"), 2);
}
