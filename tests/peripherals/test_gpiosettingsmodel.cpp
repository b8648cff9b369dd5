#include "database/language.h"
#include "database/paths.h"
#include "database/peripheralreader.h"
#include "modefixture.h"
#include "peripherals/gpiosettingsmodel.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

// The MQ48T110 GPIO file and a few hand-made pins of its package.
class GpioModelTest : public ::testing::Test
{
protected:
    GpioModelTest()
        : model(ReadIPFile(QStringLiteral(MQ48_SOURCE_DIR
                                          "/MQ48DB/device/MQ48T110/Peripherals/GPIO-V1.0.xml")))
    {
        fx.pin(10, "PA0", {"GPIO_Input", "GPIO_Output", "USART2_CTS"});
        fx.pin(30, "PA9", {"GPIO_Input", "GPIO_Output", "USART1_TX", "TMR1_CH2"});
        fx.pin(31, "PA10", {"GPIO_Input", "USART1_RX"});
        fx.pin(42, "PB6", {"GPIO_Input", "USART1_TX"});
        model.setSignalOwners({{"USART1_TX", "USART1"}, {"USART1_RX", "USART1"}});
    }

    void light(int pin, const QString &func, int status, const QString &ioMode)
    {
        MCUPinSignal *s = fx.sig(pin, func);
        s->status = status;
        s->IOMode = ioMode;
    }

    // USART1 in asynchronous mode and PA0 an output ticked by hand.
    void usartAndOutput()
    {
        light(30, "USART1_TX", SIGNAL_MODE_ONLY, "MuxOutputPushPull");
        light(31, "USART1_RX", SIGNAL_MODE_ONLY, "MuxInput");
        light(10, "GPIO_Output", SIGNAL_PIN_AND_MODE, "GPIO_Output");
        model.update(fx.info.get());
    }

    ModeFixture fx;
    GpioSettingsModel model;
};

TEST_F(GpioModelTest, LitSignalsGetRowsInPinOrderWithTheDefaultsOfTheirMode)
{
    QSignalSpy changed(&model, &GpioSettingsModel::changed);
    usartAndOutput();
    ASSERT_EQ(model.rows().size(), 3);
    EXPECT_EQ(changed.count(), 1);

    const GpioSettingRow &out = model.rows().at(0);
    EXPECT_EQ(out.pinName, "PA0");
    EXPECT_EQ(out.signal, "GPIO_Output");
    EXPECT_TRUE(out.instanceName.isEmpty());
    EXPECT_EQ(out.value("Output level"), "GPIO_OUTPUTLEVEL_LOW");
    EXPECT_EQ(out.value("GPIO mode"), "GPIO_MODE_OUTPUT");
    EXPECT_EQ(out.value("GPIO type"), "GPIO_OUTPUT_PUSH_PULL");
    EXPECT_EQ(out.value("Pull type"), "GPIO_PULL_NONE");
    EXPECT_EQ(out.value("Driver capability"), "GPIO_DRIVE_STRENGTH_STRONGER");

    const GpioSettingRow &tx = model.rows().at(1);
    EXPECT_EQ(tx.signal, "USART1_TX");
    EXPECT_EQ(tx.instanceName, "USART1");
    EXPECT_EQ(tx.value("GPIO mode"), "GPIO_MODE_MUX");
    EXPECT_EQ(tx.parameter("Output level"), nullptr);
    const GpioSettingRow &rx = model.rows().at(2);
    EXPECT_EQ(rx.value("GPIO mode"), "GPIO_MODE_MUX");
    EXPECT_EQ(rx.parameter("GPIO type"), nullptr);
    for (const GpioSettingRow &row : model.rows())
        EXPECT_FALSE(row.modified);

    EXPECT_EQ(model.rowsOfInstance("USART1").size(), 2);
    ASSERT_EQ(model.rowsWithoutInstance().size(), 1);
    EXPECT_EQ(model.rowsWithoutInstance().first().signal, "GPIO_Output");
    EXPECT_EQ(model.instancesWithRows(), QStringList{"USART1"});

    // The same pins again change nothing.
    model.update(fx.info.get());
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(GpioModelTest, EditsAreMarkedAndKeptUntilTheSignalsModeChangesOrItGoes)
{
    usartAndOutput();
    EXPECT_TRUE(model.setParameter("USART1_TX", "PA9", "Pull type", "GPIO_PULL_UP"));
    EXPECT_FALSE(model.setParameter("USART1_TX", "PA9", "Pull type", "GPIO_PULL_SIDEWAYS"));
    EXPECT_FALSE(model.setParameter("USART1_TX", "PA9", "Output level", "GPIO_OUTPUTLEVEL_LOW"));
    EXPECT_FALSE(model.setParameter("USART1_TX", "PA10", "Pull type", "GPIO_PULL_UP"));
    const GpioSettingRow *tx = model.row("USART1_TX", "PA9");
    ASSERT_NE(tx, nullptr);
    EXPECT_TRUE(tx->modified);
    EXPECT_EQ(tx->value("Pull type"), "GPIO_PULL_UP");
    EXPECT_FALSE(model.row("USART1_RX", "PA10")->modified);

    // Another mode lighting a pin elsewhere keeps the edit.
    light(42, "GPIO_Input", SIGNAL_PIN_AND_MODE, "GPIO_Input");
    model.update(fx.info.get());
    EXPECT_EQ(model.row("USART1_TX", "PA9")->value("Pull type"), "GPIO_PULL_UP");

    // The signal moves to PB6: its row follows with the settings.
    light(42, "GPIO_Input", SIGNAL_FREE, QString());
    light(30, "USART1_TX", SIGNAL_FREE, QString());
    light(42, "USART1_TX", SIGNAL_MODE_ONLY, "MuxOutputPushPull");
    model.update(fx.info.get());
    EXPECT_EQ(model.row("USART1_TX", "PA9"), nullptr);
    tx = model.row("USART1_TX", "PB6");
    ASSERT_NE(tx, nullptr);
    EXPECT_TRUE(tx->modified);
    EXPECT_EQ(tx->value("Pull type"), "GPIO_PULL_UP");

    // A new IOMode brings the defaults of that mode.
    light(42, "USART1_TX", SIGNAL_MODE_ONLY, "MuxOutputOpenDrain");
    model.update(fx.info.get());
    tx = model.row("USART1_TX", "PB6");
    EXPECT_FALSE(tx->modified);
    EXPECT_EQ(tx->value("GPIO type"), "GPIO_OUTPUT_OPEN_DRAIN");
    EXPECT_EQ(tx->value("Pull type"), "GPIO_PULL_NONE");

    // Switched off: the row goes.
    light(42, "USART1_TX", SIGNAL_FREE, QString());
    model.update(fx.info.get());
    EXPECT_EQ(model.findRow("USART1_TX", QString()), -1);
    EXPECT_EQ(model.rows().size(), 2);
}

TEST_F(GpioModelTest, ResetRestoresDefaultsAndKeepsLabels)
{
    usartAndOutput();
    ASSERT_TRUE(model.setParameter("GPIO_Output", "PA0", "Output level", "GPIO_OUTPUTLEVEL_HIGH"));
    ASSERT_TRUE(model.setLabel("GPIO_Output", "PA0", "LED"));
    model.resetParameters();
    const GpioSettingRow *out = model.row("GPIO_Output", "PA0");
    EXPECT_EQ(out->value("Output level"), "GPIO_OUTPUTLEVEL_LOW");
    EXPECT_FALSE(out->modified);
    EXPECT_EQ(out->userLabel, "LED");
}

TEST_F(GpioModelTest, LabelsAreCheckedAnnouncedAndReadBackFromThePins)
{
    usartAndOutput();
    QSignalSpy labels(&model, &GpioSettingsModel::labelChanged);
    EXPECT_TRUE(model.setLabel("USART1_RX", "PA10", "GPS_RX"));
    ASSERT_EQ(labels.count(), 1);
    EXPECT_EQ(labels.at(0).at(0).toInt(), 31);
    EXPECT_EQ(labels.at(0).at(2).toString(), "GPS_RX");
    EXPECT_FALSE(model.setLabel("USART1_RX", "PA10", "9V"));
    EXPECT_EQ(model.row("USART1_RX", "PA10")->userLabel, "GPS_RX");

    bool cut = false;
    EXPECT_EQ(GpioSettingsModel::acceptLabel("LED-1", &cut), "LED");
    EXPECT_TRUE(cut);
    EXPECT_EQ(GpioSettingsModel::acceptLabel("9abc", &cut), "");
    EXPECT_EQ(GpioSettingsModel::acceptLabel("_ok_2", &cut), "_ok_2");
    EXPECT_FALSE(cut);

    // A label given on the drawing reaches the row with the next refresh.
    fx.sig(10, "GPIO_Output")->userLabel = "BUZZER";
    model.update(fx.info.get());
    EXPECT_EQ(model.row("GPIO_Output", "PA0")->userLabel, "BUZZER");
}

TEST_F(GpioModelTest, TwoSignalsOnOnePinShareOneRowAndAModeWithoutSettingsHasNone)
{
    light(30, "USART1_TX", SIGNAL_MODE_ONLY, "MuxOutputPushPull");
    light(30, "TMR1_CH2", SIGNAL_PIN_ONLY, "MuxOutputPushPull");
    light(31, "USART1_RX", SIGNAL_MODE_ONLY, "Oscillator");
    model.update(fx.info.get());
    ASSERT_EQ(model.rows().size(), 2);
    EXPECT_EQ(model.rows().at(0).displaySignal(), "USART1_TX/TMR1_CH2");
    EXPECT_GE(model.findRow("TMR1_CH2", "PA9"), 0);
    EXPECT_TRUE(model.rows().at(1).parameters.isEmpty());

    // Only signals lit by a mode belong to a peripheral.
    light(30, "USART1_TX", SIGNAL_FREE, QString());
    light(30, "TMR1_CH2", SIGNAL_FREE, QString());
    light(42, "USART1_TX", SIGNAL_PIN_ONLY, "MuxOutputPushPull");
    model.update(fx.info.get());
    EXPECT_TRUE(model.row("USART1_TX", "PB6")->instanceName.isEmpty());
}

} // namespace
