#include "pinfixture.h"
#include "pinout/pinassignengine.h"

#include <gtest/gtest.h>

namespace {

// --- Single signals -----------------------------------------------------------------------

TEST(PinEngineSingles, SharedPinIsLeftToTheSignalThatHasNoOtherInEitherOrder)
{
    for (const QStringList &order : {QStringList{"A", "B"}, QStringList{"B", "A"}}) {
        PinFixture f;
        f.pin(10, "PA0", {"A", "B"});
        f.pin(20, "PA1", {"A"});
        PinAssignEngine engine(f.info.get());
        engine.receiveIPPinSignals(modeSignals(order), modeSignals(order), "IP1");
        EXPECT_EQ(f.status(20, "A"), 2) << order.join(",").toStdString();
        EXPECT_EQ(f.status(10, "B"), 2) << order.join(",").toStdString();
        EXPECT_EQ(f.status(10, "A"), 0) << order.join(",").toStdString();
    }
}

TEST(PinEngineSingles, SignalMovesOnWhenItsPinIsTakenAndStaysUnlitWithoutOne)
{
    PinFixture f;
    f.pin(1, "PA0", {"USART1_TX", "SPI1_MOSI"});
    f.pin(2, "PA1", {"USART1_TX"});
    PinAssignEngine engine(f.info.get());
    engine.receiveIPPinSignals(modeSignals({"SPI1_MOSI"}), modeSignals({"SPI1_MOSI"}), "SPI1");
    engine.receiveIPPinSignals(modeSignals({"USART1_TX"}), modeSignals({"USART1_TX"}), "USART1");
    EXPECT_EQ(f.status(1, "SPI1_MOSI"), 2);
    EXPECT_EQ(f.status(1, "USART1_TX"), 0);
    EXPECT_EQ(f.status(2, "USART1_TX"), 2);
    EXPECT_EQ(f.sig(2, "USART1_TX")->IOMode, "GPIO_MuxOutputPushPull");

    // A third instance wanting a signal whose only pin is taken gets nothing, silently.
    f.pin(3, "PA2", {"I2C1_SDA", "TMR1_CH1"});
    engine.receiveIPPinSignals(modeSignals({"TMR1_CH1"}), modeSignals({"TMR1_CH1"}), "TMR1");
    engine.receiveIPPinSignals(modeSignals({"I2C1_SDA"}), modeSignals({"I2C1_SDA"}), "I2C1");
    EXPECT_EQ(f.status(3, "TMR1_CH1"), 2);
    EXPECT_EQ(f.status(3, "I2C1_SDA"), 0);
}

TEST(PinEngineSingles, MultiAndEthernetSignalsShareAPinOthersDoNot)
{
    struct Case
    {
        const char *what;
        QString first;
        QString second;
        bool shared;
    };
    const QList<Case> cases = {
        {"two Multi", "ADC1_IN0*", "ADC2_IN0*", true},
        {"Multi and plain", "ADC1_IN0*", "TMR2_CH1", false},
        {"MII and RMII forms", "EMAC_MII_RXD0", "EMAC_RMII_RXD0", true},
        {"two Ethernet lines", "EMAC_MII_RXD0", "EMAC_MII_RXD1", false},
    };
    for (const Case &c : cases) {
        PinFixture f;
        f.pin(5, "PA5", {c.first, c.second});
        PinAssignEngine engine(f.info.get());
        const QString a = QString(c.first).remove('*');
        const QString b = QString(c.second).remove('*');
        engine.receiveIPPinSignals(modeSignals({a}), modeSignals({a}), "X");
        engine.receiveIPPinSignals(modeSignals({b}), modeSignals({b}), "Y");
        EXPECT_EQ(f.status(5, a), 2) << c.what;
        EXPECT_EQ(f.status(5, b), c.shared ? 2 : 0) << c.what;
    }
}

TEST(PinEngineSingles, TickedSignalThatAModeWantsStaysWhereItIs)
{
    PinFixture f;
    f.pin(1, "PA0", {"USART1_RX"});
    f.pin(7, "PB0", {"USART1_RX"});
    f.sig(7, "USART1_RX")->status = 1;
    PinAssignEngine engine(f.info.get());
    engine.receiveIPPinSignals(modeSignals({"USART1_RX"}), modeSignals({"USART1_RX"}), "USART1");
    EXPECT_EQ(f.status(7, "USART1_RX"), 3);
    EXPECT_EQ(f.status(1, "USART1_RX"), 0);
}

TEST(PinEngineSingles, EmptyValidListReleasesAsTheClear)
{
    PinFixture f;
    f.pin(1, "PA0", {"SPI1_SCK"});
    f.pin(2, "PA1", {"SPI1_MISO"});
    f.pin(3, "PA2", {"GPIO_Output", "SPI1_NSS"});
    f.sig(1, "SPI1_SCK")->status = 3;
    f.sig(2, "SPI1_MISO")->status = 2;
    f.sig(2, "SPI1_MISO")->IOMode = "GPIO_MuxOutputPushPull";
    f.sig(3, "GPIO_Output")->IOMode = "GPIO_Output_PP";
    PinAssignEngine engine(f.info.get());
    const QList<ModeSignal> all = modeSignals({"SPI1_SCK", "SPI1_MISO", "GPIO_Output"});
    engine.receiveIPPinSignals(all, {}, "SPI1");
    EXPECT_EQ(f.status(1, "SPI1_SCK"), 1);
    EXPECT_EQ(f.status(2, "SPI1_MISO"), 0);
    EXPECT_TRUE(f.sig(2, "SPI1_MISO")->IOMode.isEmpty());
    // GPIO words keep their mode when let go.
    EXPECT_EQ(f.sig(3, "GPIO_Output")->IOMode, "GPIO_Output_PP");
}

// --- State table --------------------------------------------------------------------------

TEST(PinEngineStates, TransitionsOfOneSignal)
{
    enum Event { ModeLights, ModeLetsGo, UserTicks, UserUnticks };
    struct Row
    {
        int from;
        Event event;
        QString func;
        int to;
    };
    const QList<Row> table = {
        {0, ModeLights, "USART2_TX", 2}, {1, ModeLights, "USART2_TX", 3},
        {2, ModeLights, "USART2_TX", 2}, {3, ModeLights, "USART2_TX", 3},
        {0, UserTicks, "USART2_TX", 1},  {0, UserTicks, "GPIO_Input", 3},
        {0, UserTicks, "EVENTOUT", 3},   {3, UserUnticks, "USART2_TX", 0},
        {3, ModeLetsGo, "USART2_TX", 1}, {1, ModeLetsGo, "USART2_TX", 1},
        {2, ModeLetsGo, "USART2_TX", 0},
    };
    for (const Row &row : table) {
        PinFixture f;
        MCUPinsBaseInfo *pin = f.pin(4, "PA4", {row.func});
        MCUPinSignal *sig = f.sig(4, row.func);
        sig->status = row.from;
        PinAssignEngine engine(f.info.get());
        const QList<ModeSignal> list = modeSignals({row.func});
        switch (row.event) {
        case ModeLights:
            engine.receiveIPPinSignals(list, list, "IP");
            break;
        case ModeLetsGo:
            engine.receiveClearIPPinSignals(list);
            break;
        case UserTicks:
        case UserUnticks: {
            // The pin item changes the shared record, then hands a copy to the engine.
            MCUPinsBaseInfo copy = *pin;
            if (row.event == UserTicks)
                sig->status |= PinAssignEngine::isGpioWord(row.func) ? 3 : 1;
            else
                sig->status = 0;
            engine.updatePinConfig(copy);
            break;
        }
        }
        EXPECT_EQ(sig->status, row.to)
            << row.func.toStdString() << " from " << row.from << " event " << row.event;
    }
}

TEST(PinEngineStates, ResetFreesEverythingAndKeepsGpioModes)
{
    PinFixture f;
    f.pin(1, "PA0", {"TMR1_CH1", "GPIO_Input"});
    f.pin(1, "PA0", {"TMR1_CH1"}, "PINREMAP");
    f.sig(1, "TMR1_CH1")->status = 3;
    f.sig(1, "TMR1_CH1")->extra = QStringList{"SPI1"};
    f.sig(1, "TMR1_CH1")->flag = 1;
    f.sig(1, "TMR1_CH1")->IOMode = "x";
    f.sig(1, "GPIO_Input")->IOMode = "GPIO_Input_Floating";
    PinAssignEngine engine(f.info.get());
    engine.setPinRemap(true);
    engine.reset();
    EXPECT_FALSE(engine.pinRemap());
    for (MCUPinsBaseInfo *p : f.info->pins) {
        for (MCUPinSignal *s : p->signalList) {
            EXPECT_EQ(s->status, 0);
            EXPECT_EQ(s->flag, 0);
            EXPECT_TRUE(s->extra.isEmpty());
        }
    }
    EXPECT_EQ(f.sig(1, "GPIO_Input")->IOMode, "GPIO_Input_Floating");
    EXPECT_TRUE(f.sig(1, "TMR1_CH1")->IOMode.isEmpty());
}

// --- User ticks ---------------------------------------------------------------------------

TEST(PinEngineUser, TickedPeripheralSignalMovesWithItsState)
{
    PinFixture f;
    MCUPinsBaseInfo *from = f.pin(1, "PA0", {"I2C1_SCL"});
    MCUPinsBaseInfo *to = f.pin(9, "PB6", {"I2C1_SCL"});
    Q_UNUSED(from)
    f.sig(1, "I2C1_SCL")->status = 2;
    f.sig(1, "I2C1_SCL")->IOMode = "GPIO_MuxOutputOpenDrain";
    PinAssignEngine engine(f.info.get());
    f.sig(9, "I2C1_SCL")->status = 1;
    engine.updatePinConfig(*to);
    EXPECT_EQ(f.status(9, "I2C1_SCL"), 2);
    EXPECT_EQ(f.sig(9, "I2C1_SCL")->IOMode, "GPIO_MuxOutputOpenDrain");
    EXPECT_EQ(f.status(1, "I2C1_SCL"), 0);
}

TEST(PinEngineUser, EventoutStandsOnOnePinOnlyOnSomeFamilies)
{
    for (const QString &model : {QString("MQ48T250C8T"), QString("MQ48T110C8T")}) {
        PinFixture f(model);
        f.pin(1, "PA0", {"EVENTOUT"});
        MCUPinsBaseInfo *second = f.pin(2, "PA1", {"EVENTOUT"});
        f.sig(1, "EVENTOUT")->status = 3;
        PinAssignEngine engine(f.info.get());
        f.sig(2, "EVENTOUT")->status = 3;
        engine.updatePinConfig(*second);
        EXPECT_EQ(f.status(1, "EVENTOUT"), model.contains("T250") ? 0 : 3) << model.toStdString();
        EXPECT_EQ(f.status(2, "EVENTOUT"), 3);
    }
}

TEST(PinEngineUser, CopiedRecordWithOwnSignalObjectsIsTakenOver)
{
    PinFixture f;
    f.pin(3, "PA3", {"GPIO_Output", "SPI1_SCK"});
    PinAssignEngine engine(f.info.get());
    MCUPinsBaseInfo detached = *f.info->pins.first();
    MCUPinSignal a = *detached.signalList.at(0);
    MCUPinSignal b = *detached.signalList.at(1);
    a.status = 3;
    detached.signalList = {&a, &b};
    engine.updatePinConfig(detached);
    EXPECT_EQ(f.status(3, "GPIO_Output"), 3);
    EXPECT_EQ(f.info->pins.first()->signalList.at(0), f.sig(3, "GPIO_Output"));
}

// --- Labels -------------------------------------------------------------------------------

TEST(PinEngineLabels, LabelIsLostForGoodWhenItsSignalIsLetGo)
{
    PinFixture f;
    MCUPinsBaseInfo *pin = f.pin(6, "PA6", {"ADC1_IN6", "TMR3_CH1"});
    PinAssignEngine engine(f.info.get());
    const QList<ModeSignal> adc = modeSignals({"ADC1_IN6"});
    engine.receiveIPPinSignals(adc, adc, "ADC1");
    engine.setFirstLitUserLabel(6, "VBAT_SENSE");
    EXPECT_EQ(PinAssignEngine::pinLabelText(*pin), "VBAT_SENSE");
    EXPECT_TRUE(engine.searchList().contains("VBAT_SENSE"));

    engine.receiveClearIPPinSignals(adc);
    engine.clearIdleLabels();
    EXPECT_TRUE(f.sig(6, "ADC1_IN6")->userLabel.isEmpty());
    engine.receiveIPPinSignals(adc, adc, "ADC1");
    EXPECT_EQ(PinAssignEngine::pinLabelText(*pin), "ADC1_IN6");
    EXPECT_FALSE(engine.searchList().contains("VBAT_SENSE"));
}

TEST(PinEngineLabels, PinTexts)
{
    PinFixture f;
    MCUPinsBaseInfo *pin = f.pin(1, "PC14-OSC32_IN", {"RTC_TAMP*", "RTC_OUT*", "GPIO_Input"});
    EXPECT_EQ(PinAssignEngine::pinNameText(*pin), "PC14..");
    EXPECT_EQ(PinAssignEngine::pinNameText(*f.pin(2, "PA10", {})), "PA10");
    EXPECT_EQ(PinAssignEngine::pinLabelText(*pin), "");
    f.sig(1, "RTC_TAMP")->status = 2;
    f.sig(1, "RTC_OUT")->status = 1;
    EXPECT_EQ(PinAssignEngine::pinLabelText(*pin), "RTC_TAMP  RTC_OUT");
    f.sig(1, "RTC_OUT")->userLabel = "WAKE";
    EXPECT_EQ(PinAssignEngine::pinLabelText(*pin), "WAKE");
}

TEST(PinEngineLabels, SearchListHasFunctionsLabelsAndNamesOnceSorted)
{
    PinFixture f;
    f.pin(1, "VDD", {"VDD_POWER"}, QString(), true);
    f.pin(2, "PA1", {"usart2_rts", "ADC1_IN1"});
    f.pin(3, "PA2", {"ADC1_IN1"});
    f.sig(2, "ADC1_IN1")->status = 2;
    f.sig(2, "ADC1_IN1")->userLabel = "Sense";
    PinAssignEngine engine(f.info.get());
    EXPECT_EQ(engine.searchList(),
              QStringList({"ADC1_IN1", "PA1", "PA2", "Sense", "usart2_rts", "VDD"}));
}

// --- Pin variants -------------------------------------------------------------------------

TEST(PinEngineRemap, RemapRecordsAreUntouchedWhileRemapIsOff)
{
    PinFixture f;
    f.pin(12, "PA12", {"USART1_RTS"}, "NOPINREMAP");
    f.pin(12, "PA10", {"USART1_RTS", "I2C1_SDA"}, "PINREMAP");
    PinAssignEngine engine(f.info.get());
    const QList<ModeSignal> rts = modeSignals({"USART1_RTS"});
    engine.receiveIPPinSignals(rts, rts, "USART1");
    MCUPinsBaseInfo *remapped = f.info->pins.at(1);
    EXPECT_EQ(engine.activePin(12), f.info->pins.at(0));
    EXPECT_EQ(remapped->signalList.at(0)->status, 0);
    EXPECT_EQ(f.info->pins.at(0)->signalList.at(0)->status, 2);

    EXPECT_EQ(engine.setPinRemap(true), QList<int>({12}));
    EXPECT_EQ(engine.activePin(12), remapped);
    EXPECT_EQ(f.info->pins.at(0)->signalList.at(0)->status, 0);
    engine.receiveIPPinSignals(rts, rts, "USART1");
    EXPECT_EQ(remapped->signalList.at(0)->status, 2);

    engine.setPinRemap(false);
    EXPECT_EQ(remapped->signalList.at(0)->status, 0);
    EXPECT_EQ(engine.activePin(12), f.info->pins.at(0));
}

// --- Groups -------------------------------------------------------------------------------

// USART1 has two pin groups; SPI1 can take pin 3, which group A needs.
PinFixture groupedDevice()
{
    PinFixture f;
    f.pin(1, "PA9", {"USART1_TX"});
    f.pin(2, "PA10", {"USART1_RX"});
    f.pin(3, "PB6", {"USART1_TX", "SPI1_SCK"});
    f.pin(4, "PB7", {"USART1_RX"});
    f.group("USART1", {{"USART1_TX", 1}, {"USART1_RX", 2}});
    f.group("USART1", {{"USART1_TX", 3}, {"USART1_RX", 4}});
    return f;
}

TEST(PinEngineGroups, GroupHelpers)
{
    PinFixture f = groupedDevice();
    f.group("XMC", {{"XMC_A0", 9}});
    PinAssignEngine engine(f.info.get());
    EXPECT_TRUE(engine.isGroupedSignal("USART1_RX"));
    EXPECT_FALSE(engine.isGroupedSignal("SPI1_SCK"));
    EXPECT_EQ(engine.groupsOfInstance("USART1").size(), 2);
    EXPECT_EQ(engine.groupsOfInstance("XMC_BANK1").size(), 1);
    EXPECT_EQ(engine.groupsOfSignal("USART1_TX").size(), 2);

    f.sig(3, "USART1_TX")->status = 2;
    const PinsSignalsGroup *second = &f.info->signalGroups.at(1);
    EXPECT_EQ(engine.litGroupFor("USART1_TX", 3), second);
    EXPECT_TRUE(engine.groupIsLit(second));
    EXPECT_EQ(engine.activeRecordsOf(second).size(), 1);
    EXPECT_EQ(engine.bestGroupFor("USART1_RX", 2), &f.info->signalGroups.at(0));
    EXPECT_EQ(engine.bestGroupFor("USART1_RX", 99), nullptr);

    PinFixture empty;
    PinAssignEngine none(empty.info.get());
    EXPECT_FALSE(none.isGroupedSignal("USART1_TX"));
}

TEST(PinEngineGroups, GroupedSignalsTakeTheFirstFreeGroupAndMoveTogether)
{
    PinFixture f = groupedDevice();
    PinAssignEngine engine(f.info.get());
    const QList<ModeSignal> both = modeSignals({"USART1_TX", "USART1_RX"});
    engine.receiveIPPinSignals(both, both, "USART1");
    EXPECT_EQ(f.status(1, "USART1_TX"), 2);
    EXPECT_EQ(f.status(2, "USART1_RX"), 2);

    // The user picks TX on pin 3: RX follows to the second group's pin.
    MCUPinsBaseInfo *pin3 = engine.activePin(3);
    ASSERT_TRUE(engine.groupPreCheck("USART1_TX", 3));
    f.sig(3, "USART1_TX")->status |= 1;
    engine.updatePinConfig(*pin3);
    EXPECT_EQ(f.status(3, "USART1_TX"), 2);
    EXPECT_EQ(f.status(4, "USART1_RX"), 2);
    EXPECT_EQ(f.status(1, "USART1_TX"), 0);
    EXPECT_EQ(f.status(2, "USART1_RX"), 0);

    // The mode asks again: the group in use is kept.
    engine.receiveIPPinSignals(both, both, "USART1");
    EXPECT_EQ(f.status(3, "USART1_TX"), 2);
    EXPECT_EQ(f.status(4, "USART1_RX"), 2);
}

TEST(PinEngineGroups, TakenPinSendsTheGroupElsewhereAndPreCheckRefusesStrayPins)
{
    PinFixture f = groupedDevice();
    f.pin(5, "PC0", {"USART1_TX"});
    PinAssignEngine engine(f.info.get());
    const QList<ModeSignal> both = modeSignals({"USART1_TX", "USART1_RX"});
    f.sig(3, "SPI1_SCK")->status = 2;
    engine.receiveIPPinSignals(both, both, "USART1");
    // Group B is refused by pin 3, so group A is taken.
    EXPECT_EQ(f.status(1, "USART1_TX"), 2);
    EXPECT_EQ(f.status(3, "USART1_TX"), 0);

    // Pin 5 carries TX in no group: a pick there can't keep the group.
    EXPECT_FALSE(engine.groupPreCheck("USART1_TX", 5));
    EXPECT_TRUE(engine.groupPreCheck("USART1_TX", 1));
    EXPECT_TRUE(engine.groupPreCheck("SPI1_SCK", 7));
}

TEST(PinEngineGroups, ClearingTheInstanceDropsItsTimerClaim)
{
    PinFixture f;
    f.pin(1, "PA0", {"SPI2_MOSI", "TMR2_CH1"});
    f.pin(2, "PA1", {"SPI2_SCK"});
    f.group("SPI2", {{"SPI2_MOSI!", 1}, {"SPI2_SCK", 2}});
    PinAssignEngine engine(f.info.get());
    const QList<ModeSignal> all = modeSignals({"SPI2_MOSI", "SPI2_SCK"});
    QList<ModeSignal> sckOnly = {modeSignal("SPI2_SCK", "GPIO_MuxOutputPushPull")};
    engine.receiveIPPinSignals(all, sckOnly, "SPI2");
    EXPECT_EQ(f.status(2, "SPI2_SCK"), 2);
    MCUPinSignal *timer = f.sig(1, "TMR2_CH1");
    EXPECT_EQ(timer->extra, QStringList({"SPI2"}));
    EXPECT_EQ(timer->flag, 1);
    // A claimed timer signal can't be driven as an alternate output, only as input.
    const MCUPinsBaseInfo *pin1 = engine.activePin(1);
    EXPECT_FALSE(engine.pinAcceptsWithMode(pin1, "TMR2_CH1", "GPIO_MuxOutputPushPull"));
    EXPECT_TRUE(engine.pinAcceptsWithMode(pin1, "TMR2_CH1", "GPIO_Input"));

    engine.receiveClearIPPinSignals(all);
    EXPECT_EQ(f.status(2, "SPI2_SCK"), 0);
    EXPECT_TRUE(timer->extra.isEmpty());
    EXPECT_EQ(timer->flag, 0);
}

TEST(PinEngineGroups, TimerOutputOnAMemberPinRejectsTheGroup)
{
    PinFixture f;
    f.pin(1, "PA0", {"SPI2_MOSI", "TMR2_CH1"});
    f.pin(2, "PA1", {"SPI2_SCK"});
    f.pin(3, "PB0", {"SPI2_MOSI"});
    f.pin(4, "PB1", {"SPI2_SCK"});
    f.group("SPI2", {{"SPI2_MOSI!", 1}, {"SPI2_SCK", 2}});
    f.group("SPI2", {{"SPI2_MOSI", 3}, {"SPI2_SCK", 4}});
    f.sig(1, "TMR2_CH1")->status = 2;
    f.sig(1, "TMR2_CH1")->IOMode = "GPIO_MuxOutputPushPull";
    PinAssignEngine engine(f.info.get());
    const QList<ModeSignal> sck = {modeSignal("SPI2_SCK", "GPIO_MuxOutputPushPull")};
    EXPECT_FALSE(engine.groupFits(&f.info->signalGroups.at(0), sck));
    EXPECT_TRUE(engine.groupFits(&f.info->signalGroups.at(1), sck));
    engine.receiveIPPinSignals(modeSignals({"SPI2_MOSI", "SPI2_SCK"}), sck, "SPI2");
    EXPECT_EQ(f.status(4, "SPI2_SCK"), 2);
    EXPECT_EQ(f.status(2, "SPI2_SCK"), 0);
}

} // namespace
