#include "clock/clockfamilies.h"
#include "clock/clockmacros.h"
#include "clock/clocktreestate.h"

#include <gtest/gtest.h>

#include <QMap>

TEST(ClockFamilies, ResetReachesEachFamilysSystemClock)
{
    const QMap<QString, double> expected = {
        {"T510", 288}, {"T520", 288}, {"T250", 240}, {"T260", 240}, {"V250", 200},
        {"T310", 200}, {"T320", 144}, {"W320", 144}, {"T110", 120}, {"T120", 96},
        {"T130", 150}, {"V130", 150}, {"T220", 216}, {"T210", 216},
    };
    const QList<const ClockFamily *> trees = treeClockFamilies();
    ASSERT_EQ(trees.size(), expected.size());
    for (const ClockFamily *f : trees) {
        SCOPED_TRACE(f->name);
        ASSERT_TRUE(expected.contains(f->name));
        ClockTreeState s(f->model);
        EXPECT_EQ(s.sclkselect, 1);
        EXPECT_DOUBLE_EQ(s.sclk, expected.value(f->name));
        EXPECT_TRUE(s.limitFaults().isEmpty());

        // Reset after edits comes back to the same place.
        s.sclkselect = 0;
        s.ahbdiv = 4;
        s.pllms = 9;
        s.setPeripheralGate(QStringLiteral("ADC1"), true);
        s.resetToDefaults();
        EXPECT_DOUBLE_EQ(s.sclk, expected.value(f->name));
        EXPECT_FALSE(s.adcEnabled);
    }
    EXPECT_DOUBLE_EQ(ClockTreeState(ClockModel::T130).pllclk, 300.0);
    EXPECT_DOUBLE_EQ(ClockTreeState(ClockModel::T220).hext, 12.0);
    EXPECT_EQ(ClockTreeState(ClockModel::T130).clkout, 5);
    EXPECT_DOUBLE_EQ(ClockTreeState(ClockModel::T510).usbclk, 48.0);
}

TEST(ClockFamilies, UsbDefaultsGive48WhenEnabled)
{
    for (const ClockFamily *f : treeClockFamilies()) {
        if (!f->hasUsb)
            continue;
        SCOPED_TRACE(f->name);
        ClockTreeState s(f->model);
        const QString usb = f->model == ClockModel::T250 || f->model == ClockModel::T260 ||
                                    f->model == ClockModel::V250 || f->model == ClockModel::T310
                                ? QStringLiteral("USBFS")
                                : QStringLiteral("USB_OTGFS1");
        const ClockGateChange change = s.setPeripheralGate(usb, true);
        EXPECT_TRUE(change.usbEnabledChanged);
        s.recalculate();
        EXPECT_DOUBLE_EQ(s.usbclk, 48.0);
        // From the PLL, a system clock of 96 MHz leads to a USB divider giving 48.
        s.hicktousb = 0;
        s.sclk = 96.0;
        s.solveForSclk();
        EXPECT_DOUBLE_EQ(s.sclk, 96.0);
        EXPECT_DOUBLE_EQ(s.usbclk, 48.0) << "from the PLL";
        EXPECT_TRUE(s.limitFaults().isEmpty());
    }
}

TEST(ClockFamilies, SeriesAndModelLookups)
{
    EXPECT_EQ(clockFamilyForSeries("MQ48W320")->model, ClockModel::W320);
    EXPECT_STREQ(clockFamilyForSeries("MQ48W320")->saveSeries, "MQ48T320");
    EXPECT_EQ(clockFamilyForSeries("MQ48T230"), nullptr); // no tree
    EXPECT_EQ(clockFamilyForSeries("MQ48X999"), nullptr);
    EXPECT_EQ(clockFamily(3), nullptr);
    EXPECT_FALSE(clockFamily(ClockModel::T050)->hasTree());
    EXPECT_STREQ(clockFamily(ClockModel::V250)->background, ":/image/260PLL.bmp");
    EXPECT_DOUBLE_EQ(familyVcoMax(ClockModel::T520), 1200.0);
    EXPECT_DOUBLE_EQ(familyVcoMax(ClockModel::T130), 1000.0);
    EXPECT_TRUE(familyHalfBus(ClockModel::T230));
    EXPECT_FALSE(familyHalfBus(ClockModel::T120));
    EXPECT_TRUE(familyMsnsOnly(ClockModel::T210));
}

TEST(ClockFamilies, ClockOfPeripheralByBusAndSelect)
{
    ClockTreeState t510(ClockModel::T510);
    t510.ahbdiv = 2;
    t510.apb1div = 2;
    t510.apb2div = 4;
    t510.recalculate(); // sclk 288, ahb 144, apb1 72, apb2 36
    EXPECT_DOUBLE_EQ(t510.clockOfPeripheral("ADC3"), 144.0);
    EXPECT_DOUBLE_EQ(t510.clockOfPeripheral("DAC"), 72.0);
    EXPECT_DOUBLE_EQ(t510.clockOfPeripheral("SPI4"), 36.0);
    EXPECT_DOUBLE_EQ(t510.clockOfPeripheral("I2S4"), 288.0);
    EXPECT_DOUBLE_EQ(t510.clockOfPeripheral("TMR20"), 72.0);
    EXPECT_DOUBLE_EQ(t510.clockOfPeripheral("TMR13"), 144.0);
    EXPECT_DOUBLE_EQ(t510.clockOfPeripheral("TMR15"), 0.0);
    EXPECT_DOUBLE_EQ(t510.clockOfPeripheral("usart1"), 0.0);

    ClockTreeState t130(ClockModel::T130); // sclk 150, apb1 75, apb2 150
    EXPECT_DOUBLE_EQ(t130.clockOfPeripheral("USART1"), 150.0);
    EXPECT_DOUBLE_EQ(t130.clockOfPeripheral("USART2"), 75.0);
    t130.usart2clocksel = 2;
    t130.usart3clocksel = 3;
    t130.i2c1clocksel = 1;
    t130.adcclocksel = 1;
    EXPECT_DOUBLE_EQ(t130.clockOfPeripheral("USART2"), 48.0);
    EXPECT_DOUBLE_EQ(t130.clockOfPeripheral("USART3"), 0.032768);
    EXPECT_DOUBLE_EQ(t130.clockOfPeripheral("I2C1"), 150.0);
    EXPECT_DOUBLE_EQ(t130.clockOfPeripheral("ADC1"), 300.0);
    EXPECT_DOUBLE_EQ(t130.clockOfPeripheral("USART6"), 150.0);

    ClockTreeState t220(ClockModel::T220);
    t220.i2sf5clocksel = 3;
    t220.i2sf5ext = 24.576;
    EXPECT_DOUBLE_EQ(t220.clockOfPeripheral("I2SF5"), 24.576);
    t220.i2sf5clocksel = 0;
    EXPECT_DOUBLE_EQ(t220.clockOfPeripheral("I2SF5"), 216.0);

    ClockTreeState w320(ClockModel::W320);
    EXPECT_DOUBLE_EQ(w320.clockOfPeripheral("SDIO1"), 0.0);
    EXPECT_DOUBLE_EQ(w320.clockOfPeripheral("CMP2"), w320.apb1clk);
    EXPECT_EQ(peripheralsOnBus(ClockModel::T110, PeripheralClockBus::Apb2Tmr),
              (QStringList{"TMR1", "TMR15", "TMR16", "TMR17"}));
}

TEST(ClockFamilies, GatesCombineIntoUsbAndAdcFlags)
{
    ClockTreeState s(ClockModel::T510);
    EXPECT_TRUE(s.setPeripheralGate("USB_OTGFS2", true).usbEnabledChanged);
    EXPECT_FALSE(s.setPeripheralGate("USB_OTGFS1", true).usbEnabledChanged);
    EXPECT_FALSE(s.setPeripheralGate("USB_OTGFS2", false).usbEnabledChanged);
    EXPECT_TRUE(s.usbEnabled);
    const ClockGateChange off = s.setPeripheralGate("USB_OTGFS1", false);
    EXPECT_TRUE(off.changed);
    EXPECT_TRUE(off.usbEnabledChanged);
    EXPECT_FALSE(s.usbEnabled);
    EXPECT_FALSE(s.setPeripheralGate("ADC1", true).changed); // no ADC gate on T510

    ClockTreeState t250(ClockModel::T250);
    t250.setPeripheralGate("ADC3", true);
    EXPECT_TRUE(t250.adcEnabled);
    t250.recalculate();
    EXPECT_DOUBLE_EQ(t250.adcclk, t250.apb2clk / 6);

    ClockTreeState t220(ClockModel::T220);
    EXPECT_EQ(clockGateOf(ClockModel::T220, "USB_OTGHS1"), ClockGate::Usb2);
    t220.setPeripheralGate("I2SF5", true);
    EXPECT_TRUE(t220.i2sf5Enabled);
    EXPECT_EQ(clockGateOf(ClockModel::T110, "USB_OTGFS1"), ClockGate::None);
}

TEST(ClockFamilies, MacroAccessors)
{
    ClockTreeState s(ClockModel::T510);
    EXPECT_EQ(s.pllSourceMacro(), "CRM_PLL_SOURCE_HICK");
    EXPECT_EQ(s.pllFrMacro(), "CRM_PLL_FR_4");
    EXPECT_EQ(s.pllMsText(), "1");
    EXPECT_EQ(s.pllNsText(), "144");
    EXPECT_EQ(s.pllOutputRangeMacro(), "CRM_PLL_OUTPUT_RANGE_GT72MHZ");
    EXPECT_EQ(s.sclkMacro(), "CRM_SCLK_PLL");
    EXPECT_EQ(s.apb1DivMacro(), "CRM_APB1_DIV_2");
    EXPECT_EQ(s.ldoMacro(), "PWC_LDO_OUTPUT_1V3");
    EXPECT_EQ(s.flashClockDivMacro(), "FLASH_CLOCK_DIV_3");
    EXPECT_EQ(s.pllcfgRegister(), 0x00022401u);
    EXPECT_EQ(s.usbDivMacro(), "CRM_USB_DIV_1"); // USB off
    EXPECT_EQ(s.ertcHextDivMacro(), "CRM_ERTC_CLOCK_HEXT_DIV_2");
    s.rtcdiv = 31;
    EXPECT_EQ(s.ertcHextDivMacro(), "CRM_ERTC_CLOCK_HEXT_DIV_31");

    s.sclkselect = 2;
    s.recalculate();
    EXPECT_FALSE(s.pllInUse());
    EXPECT_EQ(s.pllSourceMacro(), "CRM_PLL_SOURCE_HEXT");
    EXPECT_EQ(s.pllOutputRangeMacro(), "");
    EXPECT_EQ(s.pllMsText(), "1");
    EXPECT_EQ(s.pllNsText(), "31");
    s.setPeripheralGate("USB_OTGFS1", true);
    s.hicktousb = 0;
    s.usbdiv = 1.5;
    EXPECT_EQ(s.usbDivMacro(), "CRM_USB_DIV_1_5");
    EXPECT_EQ(s.usbClockSourceMacro(), "CRM_USB_CLOCK_SOURCE_PLL");

    // Flash wait cycles by system clock, bounds inclusive.
    const QList<QPair<double, QString>> waits = {
        {32.0, "FLASH_WAIT_CYCLE_0"},  {32.5, "FLASH_WAIT_CYCLE_1"},
        {128.0, "FLASH_WAIT_CYCLE_3"}, {216.0, "FLASH_WAIT_CYCLE_6"},
        {216.1, "FLASH_WAIT_CYCLE_7"},
    };
    for (const auto &w : waits) {
        s.sclk = w.first;
        EXPECT_EQ(s.flashWaitCycleMacro(), w.second) << w.first;
    }

    ClockTreeState t250(ClockModel::T250);
    t250.pllrcs = 0;
    t250.pllhextdiv = 1;
    t250.hextdiv = 3;
    EXPECT_EQ(t250.pllSourceMacro(), "CRM_PLL_SOURCE_HEXT_DIV");
    EXPECT_EQ(t250.hextDivMacro(), "CRM_HEXT_DIV_3");
    EXPECT_EQ(t250.pllMultMacro(), "CRM_PLL_MULT_60");
    EXPECT_EQ(t250.rtcClockMacro(), "CRM_RTC_CLOCK_LICK");
    t250.rtcsel = 1;
    EXPECT_EQ(t250.rtcClockMacro(), "CRM_RTC_CLOCK_LEXT");
    EXPECT_EQ(t250.adcDivMacro(), "CRM_ADC_DIV_6");
    EXPECT_EQ(t250.ertcHextDivMacro(), "");
    t250.sclk = 200.0;
    EXPECT_EQ(t250.ldoMacro(), "PWC_LDO_OUTPUT_1V2");
    t250.sclk = 144.0;
    EXPECT_EQ(t250.ldoMacro(), "PWC_LDO_OUTPUT_1V0");

    ClockTreeState t130(ClockModel::T130);
    EXPECT_EQ(t130.ldoMacro(), "PWC_LDO_OUTPUT_1V3");
    t130.sclk = 64.0;
    EXPECT_EQ(t130.ldoMacro(), "PWC_LDO_OUTPUT_1V0");
    t130.usart1clocksel = 2;
    EXPECT_EQ(t130.usartClockSourceMacro(1), "CRM_USART_CLOCK_SOURCE_HICK48");
    EXPECT_EQ(t130.rtcClockMacro(), "CRM_ERTC_CLOCK_LICK");
    EXPECT_EQ(t130.clkoutMacro(), "CRM_CLKOUT_SCLK");

    ClockTreeState t220(ClockModel::T220);
    EXPECT_EQ(t220.pllFpMacro(), "CRM_PLL_FP_4");
    EXPECT_EQ(t220.pllFuMacro(), "CRM_PLL_FU_18");
    EXPECT_EQ(t220.usbClockSourceMacro(), "CRM_USB_CLOCK_SOURCE_PLLU");
    t220.clkout = 6;
    EXPECT_EQ(t220.clkoutMacro(), "CRM_CLKOUT_USBFS");
    t220.sclk = 168.0;
    EXPECT_EQ(t220.ldoMacro(), "PWC_LDO_OUTPUT_1V2");
}

TEST(ClockFamilies, ClockOutputPins)
{
    ClockTreeState t120(ClockModel::T120);
    t120.clkoutpin = 2;
    ClockOutGpio g = t120.clkoutGpio();
    EXPECT_EQ(g.port, "GPIOA");
    EXPECT_EQ(g.pin, "GPIO_PINS_9");
    EXPECT_EQ(g.mux, "GPIO_MUX_5");
    t120.clkoutpin = 3;
    g = t120.clkoutGpio();
    EXPECT_EQ(g.clock, "CRM_GPIOB_PERIPH_CLOCK");
    EXPECT_EQ(g.source, "GPIO_PINS_SOURCE13");
    EXPECT_EQ(g.mux, "GPIO_MUX_3");

    ClockTreeState t320(ClockModel::T320);
    t320.clkoutpin = 3;
    EXPECT_EQ(t320.clkoutGpio().mux, "GPIO_MUX_0");
    t320.clkoutpin = 4;
    EXPECT_EQ(t320.clkoutGpio().pin, "GPIO_PINS_9");
    EXPECT_EQ(t320.clkoutGpio().port, "GPIOC");

    ClockTreeState t510(ClockModel::T510);
    t510.clkout1pin = 2;
    EXPECT_EQ(t510.clkout1Gpio().port, "GPIOE");
    EXPECT_EQ(t510.clkout1Gpio().pin, "GPIO_PINS_4");
    t510.clkout1pin = 0;
    EXPECT_EQ(t510.clkout1Gpio().pin, "GPIO_PINS_0");
}

TEST(ClockFamilies, MacroTablesKeepTheirOrder)
{
    EXPECT_EQ(ClockMacros::at(ClockMacros::PllFu, 1), "CRM_PLL_FU_13");
    EXPECT_EQ(ClockMacros::at(ClockMacros::PllFu, 7), "");
    EXPECT_EQ(ClockMacros::at(ClockMacros::Clkout, 11), "CRM_CLKOUT_USBFS");
    EXPECT_EQ(ClockMacros::at(ClockMacros::UsbDiv, 16), "CRM_USB_DIV_9");
    EXPECT_EQ(ClockMacros::at(ClockMacros::ErtcHextDiv, 29), "CRM_ERTC_CLOCK_HEXT_DIV_31");
    EXPECT_EQ(ClockMacros::at(ClockMacros::GpioPin, 16), "GPIO_PINS_ALL");
    EXPECT_EQ(ClockMacros::byNumber(ClockMacros::AhbDiv, 16), "CRM_AHB_DIV_16");
    EXPECT_EQ(ClockMacros::byNumber(ClockMacros::AhbDiv, 32), "");
    EXPECT_EQ(ClockMacros::byNumber(ClockMacros::PllFp, 2), "CRM_PLL_FP_2");
}
