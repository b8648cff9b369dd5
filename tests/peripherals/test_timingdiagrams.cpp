#include "clock/clockfamilies.h"
#include "clock/mq48clocktree.h"
#include "clock/mq48pllconfig.h"
#include "database/devicereader.h"
#include "database/language.h"
#include "database/paths.h"
#include "peripherals/calculators/paramlist.h"
#include "peripherals/diagrams/timingdiagrams.h"
#include "peripherals/diagrams/timingpictures.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/oneparamwidget.h"
#include "peripherals/paramsettingwidget.h"
#include "peripherals/procheckbox.h"
#include "peripherals/procombobox.h"
#include "widgets/messagebox.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

RefParameter param(const QString &name, const QString &type, const QString &value)
{
    RefParameter p;
    p.Name = name;
    p.Comment = name;
    p.Group = QStringLiteral("Bit Timings Parameters");
    p.Type = type;
    p.Value = value;
    p.DefaultValue = value;
    return p;
}

// A CAN parameter list as a family with CAN would ship it.
QList<RefParameter> canList()
{
    RefParameter tolerance = param("BaudRate_Deviation_Tolerance", "list", "FALSE");
    for (const char *v : {"TRUE", "FALSE"}) {
        RefParamValue pv;
        pv.Value = pv.Comment = QLatin1String(v);
        tolerance.PossibleValues << pv;
    }
    RefParameter rsaw = param("RSAW", "list", "CAN_RSAW_1TQ");
    for (int i = 1; i <= 4; ++i) {
        RefParamValue pv;
        pv.Value = QStringLiteral("CAN_RSAW_%1TQ").arg(i);
        pv.Comment = QString::number(i);
        rsaw.PossibleValues << pv;
    }
    RefParameter select = param("BaudRate_Result_Select", "list", "0");
    RefParameter division = param("BaudRate_Division", "string", "");
    division.Enable = false;
    return {param("BaudRate", "double", "500"),
            param("Sample_Point", "double", "87.5"),
            tolerance,
            param("BaudRate_Deviation", "double", "1"),
            select,
            division,
            param("BTS1", "string", ""),
            param("BTS2", "string", ""),
            rsaw};
}

// Every text and label of a layout keeps clear of the others and inside the picture.
void expectNoOverlap(const TimingLayout &layout, const char *what)
{
    QList<QRectF> rects = layout.labels.values();
    for (const TimingDrawing::Text &t : layout.drawing.texts)
        rects << t.rect;
    for (int i = 0; i < rects.size(); ++i) {
        EXPECT_TRUE(layout.bounds.contains(rects.at(i))) << what << " " << i;
        EXPECT_FALSE(rects.at(i).isEmpty()) << what << " " << i;
        for (int j = i + 1; j < rects.size(); ++j)
            EXPECT_FALSE(rects.at(i).intersects(rects.at(j))) << what << " " << i << "/" << j;
    }
}

} // namespace

TEST(TimingDiagrams, InitialTextsAndTimerLabelsAsTheNumbersArrive)
{
    CAN_Configuration_Diagram can;
    EXPECT_EQ(can.labelText(TimingPictures::kCanSample), "87.5");
    I2C_Configuration_Diagram i2c;
    EXPECT_EQ(i2c.labelText(TimingPictures::kI2cRise), "10 ns");
    EXPECT_EQ(i2c.labelText(TimingPictures::kI2cFall), "1000 ns");
    EXPECT_EQ(i2c.labelText(TimingPictures::kI2cSetup), "250 ns");
    EXPECT_EQ(i2c.labelText(TimingPictures::kI2cHold), "0 ns");
    EXPECT_EQ(i2c.labelText(TimingPictures::kI2cPeriod), "1 / (100 KHz)");
    i2c.ReciveI2CParamValue(300, 120, 100, 400);
    EXPECT_EQ(i2c.labelText(TimingPictures::kI2cRise), "300 ns");
    EXPECT_EQ(i2c.labelText(TimingPictures::kI2cPeriod), "1 / (400 KHz)");

    TMR_Configuration_Diagram tmr;
    EXPECT_EQ(tmr.direction(), 3u);
    tmr.ReciveTMRParamValue(72.0, 71, 999, 2);
    EXPECT_EQ(tmr.labelText(TimingPictures::kTmrClock), "72000000 Hz");
    EXPECT_EQ(tmr.labelText(TimingPictures::kTmrDivider), "71");
    EXPECT_EQ(tmr.labelText(TimingPictures::kTmrPeriod), "999");
    EXPECT_EQ(tmr.labelText(TimingPictures::kTmrOutput), "1000.000 Hz");
    EXPECT_EQ(tmr.direction(), 2u);
    tmr.ReciveTMRParamValue(0.0, 0, 9, 1);
    EXPECT_EQ(tmr.labelText(TimingPictures::kTmrClock), "External clock");
    EXPECT_EQ(tmr.labelText(TimingPictures::kTmrOutput), "");
    EXPECT_EQ(tmr.direction(), 1u);
    // The labels sit where the layout put them, on the picture.
    const TimingLayout &layout = tmr.pictureItem()->timingLayout();
    for (const QString &key : tmr.labelKeys()) {
        ASSERT_TRUE(layout.labels.contains(key)) << qPrintable(key);
        EXPECT_TRUE(layout.bounds.contains(layout.labels.value(key)));
    }
    expectNoOverlap(layout, "timer");
}

TEST(TimingDiagrams, TextsKeepClearOfEachOtherWhateverTheirMeasuredSize)
{
    // Narrow, usual and very wide labels (a wide font, long numbers): the pictures grow.
    for (qreal scale : {0.5, 1.0, 4.0}) {
        QMap<QString, QSizeF> sizes;
        for (const char *key :
             {TimingPictures::kCanSync, TimingPictures::kCanBs1, TimingPictures::kCanBs2,
              TimingPictures::kCanSample, TimingPictures::kI2cRise, TimingPictures::kI2cFall,
              TimingPictures::kI2cSetup, TimingPictures::kI2cHold, TimingPictures::kI2cPeriod,
              TimingPictures::kTmrClock, TimingPictures::kTmrDivider, TimingPictures::kTmrOutput})
            sizes.insert(QLatin1String(key), QSizeF(60 * scale, 16 * qMax(1.0, scale / 2)));
        for (uint bs1 : {1u, 8u, 16u}) {
            for (uint bs2 : {1u, 8u}) {
                const TimingLayout can =
                    layoutTiming(TimingPictures::can(bs1, bs2, 1, sizes), sizes);
                expectNoOverlap(can, "can");
                // Each segment is wide enough for its value.
                for (const char *key : {TimingPictures::kCanBs1, TimingPictures::kCanBs2})
                    EXPECT_GE(can.labels.value(QLatin1String(key)).width(),
                              sizes.value(QLatin1String(key)).width());
            }
        }
        expectNoOverlap(layoutTiming(TimingPictures::i2c(sizes), sizes), "i2c");
        for (uint direction : {1u, 2u, 3u})
            expectNoOverlap(layoutTiming(TimingPictures::tmr(direction, sizes), sizes), "tmr");
    }
}

TEST(TimingDiagrams, CanDiagramFollowsTheSearchOfASyntheticCanPanel)
{
    QStringList messages;
    setUserMessageHandler([&messages](QWidget *, const UserMessage &m) {
        messages << m.text;
        return 0;
    });
    MQ48PLLConfig page;
    page.setMcuModel(ClockModel::T250);
    // A 144 MHz system clock puts the CAN on a 72 MHz bus.
    auto *pll = qobject_cast<QRadioButton *>(page.tree()->control("sclkselect_1"));
    auto *sclk = qobject_cast<QLineEdit *>(page.tree()->control("sclk"));
    ASSERT_TRUE(pll && sclk);
    pll->click();
    sclk->selectAll();
    sclk->del();
    QTest::keyClicks(sclk, "144");
    QTest::keyClick(sclk, Qt::Key_Return);
    ASSERT_DOUBLE_EQ(page.clockOfPeripheral("CAN1"), 72.0);
    ParamSettingWidget params("MQ48T250", "CAN1", canList());
    std::unique_ptr<TimingDiagram> diagram(createTimingDiagram("CAN", &params, nullptr));
    ASSERT_NE(diagram, nullptr);
    params.setClockPage(&page);
    const auto shows = [&] {
        const QStringList solution =
            ParamList::value(params.parameters, "BaudRate_Result_Select").split(',');
        ASSERT_EQ(solution.size(), 3);
        EXPECT_EQ(diagram->labelText(TimingPictures::kCanBs1), solution.at(1));
        EXPECT_EQ(diagram->labelText(TimingPictures::kCanBs2), solution.at(2));
        EXPECT_EQ(diagram->labelText(TimingPictures::kCanSync), "1");
        EXPECT_EQ(diagram->labelText(TimingPictures::kCanSample),
                  QString::number(ParamList::number(params.parameters, "Sample_Point"), 'f', 1));
        EXPECT_EQ(params.parameterValue("BTS1"), solution.at(1));
        EXPECT_EQ(params.parameterValue("BaudRate_Division"), solution.at(0));
    };
    ASSERT_FALSE(params.canResults.isEmpty())
        << page.clockOfPeripheral("CAN1") << " MHz gives no 500 kbit/s";
    shows();

    // 1000 kbit/s asks for a 75 % sample point; the search runs at the next refresh.
    params.ParamModefySlot("BaudRate", "1000", true);
    EXPECT_EQ(params.parameterValue("Sample_Point"), "75");
    QTest::qWait(250);
    ASSERT_FALSE(params.canResults.isEmpty());
    shows();
    EXPECT_EQ(params.canResults.first().samplePoint, 75.0);

    // No timing reaches 999 kbit/s exactly: the list says so, the row is red with the reason,
    // the box tells it once, and the diagram falls back.
    params.ParamModefySlot("BaudRate", "999", true);
    QTest::qWait(250);
    EXPECT_TRUE(params.canResults.isEmpty());
    EXPECT_EQ(params.parameterValue("BaudRate_Result_Select"), "0");
    OneParamWidget *select = params.rowOf("BaudRate_Result_Select");
    ASSERT_NE(select, nullptr);
    EXPECT_FALSE(select->isValueValid());
    EXPECT_TRUE(select->problemText().startsWith("No bit timing gives 999 kbit/s"));
    ASSERT_EQ(messages.size(), 1);
    EXPECT_EQ(messages.first(), select->problemText());
    EXPECT_EQ(diagram->labelText(TimingPictures::kCanBs1), "1");
    EXPECT_EQ(diagram->labelText(TimingPictures::kCanSample), "75.0");
    setUserMessageHandler({});
}

TEST(TimingDiagrams, T110PanelsCarryTheirDiagrams)
{
    g_language = 0;
    setAppFolderOverride(QStringLiteral(MQ48_SOURCE_DIR));
    setUserMessageHandler([](QWidget *, const UserMessage &) { return 0; });
    const QString path = deviceFilePath("MQ48T110", "MQ48T110C8T");
    std::unique_ptr<DevicePinInfo> info(NewDevicePinInfo(path));
    MQ48PLLConfig page;
    page.setMcuModel(ClockModel::T110);
    std::vector<std::unique_ptr<IP_ModeAndConfiguration>> panels;
    for (const PeripheralListItem &row : GetPeripheralsList(path)) {
        if (row.InstanceName != "I2C1" && row.InstanceName != "TMR1" &&
            row.InstanceName != "USART1")
            continue;
        panels.emplace_back(
            new IP_ModeAndConfiguration(row, IPNode(), "MQ48T110C8T", "MQ48T110", info.get()));
        panels.back()->paramSettingWidget()->setClockPage(&page);
    }
    ASSERT_EQ(panels.size(), 3u);
    for (const auto &panel : panels) {
        ParamSettingWidget *params = panel->paramSettingWidget();
        if (panel->instanceName() == "USART1") {
            EXPECT_EQ(panel->timingDiagram(), nullptr);
        } else if (panel->instanceName() == "I2C1") {
            auto *d = qobject_cast<I2C_Configuration_Diagram *>(panel->timingDiagram());
            ASSERT_NE(d, nullptr);
            EXPECT_EQ(d->labelText(TimingPictures::kI2cPeriod), "1 / (100 KHz)");
            EXPECT_EQ(d->labelText(TimingPictures::kI2cRise), "1000 ns");
            params->ParamModefySlot("I2C_Mode", "I2C_Fast", true);
            QTest::qWait(250);
            EXPECT_EQ(d->labelText(TimingPictures::kI2cPeriod), "1 / (400 KHz)");
            EXPECT_EQ(d->labelText(TimingPictures::kI2cSetup), "100 ns");
        } else {
            auto *d = qobject_cast<TMR_Configuration_Diagram *>(panel->timingDiagram());
            ASSERT_NE(d, nullptr);
            params->ParamModefySlot("DividerValue", "99", true);
            params->ParamModefySlot("Period", "9", true);
            QTest::qWait(250);
            const double clock = page.clockOfPeripheral("TMR1");
            EXPECT_EQ(d->labelText(TimingPictures::kTmrDivider), "99");
            EXPECT_EQ(d->labelText(TimingPictures::kTmrPeriod), "9");
            EXPECT_EQ(d->labelText(TimingPictures::kTmrOutput),
                      QString::number(clock * 1e6 / 100 / 10, 'f', 3) + " Hz");
        }
    }
    panels.clear();
    setUserMessageHandler({});
    setAppFolderOverride(QString());
    g_language = 1;
}
