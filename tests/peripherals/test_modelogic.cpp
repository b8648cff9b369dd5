#include "modefixture.h"

#include "peripherals/modelogic.h"

#include <gtest/gtest.h>

namespace {

QStringList names(const QList<ModeSignal> &list)
{
    QStringList out;
    for (const ModeSignal &s : list)
        out << s.signalName;
    return out;
}

bool available(const QString &model, const ModeSignal &s, const DevicePinInfo *info)
{
    return ModeLogic::modeAvailable({s}, info, model);
}

} // namespace

TEST(ModeAvailability, VirtualNamesFollowTheFamilyRow)
{
    ModeFixture f;
    f.pin(1, "PA0", {"EXINT0", "USART1_TX"});
    f.pin(2, "PD13", {"GPIO_Input"});
    // Listed without an arrow: looked up as it stands.
    EXPECT_FALSE(available("MQ48T110", msig("EXINT11", true), f.info.get()));
    EXPECT_TRUE(available("MQ48T110", msig("EXINT0", false), f.info.get()));
    f.pin(3, "PA11", {"EXINT11"});
    EXPECT_TRUE(available("MQ48T110", msig("EXINT11", true), f.info.get()));
    // Listed with an arrow: the pin name is looked up instead.
    EXPECT_TRUE(available("MQ48T130", msig("SCFG_VS_PD13Ultra", true), f.info.get()));
    EXPECT_FALSE(available("MQ48T130", msig("SCFG_VS_PD12Ultra", true), f.info.get()));
    // Not listed for the family: a virtual name counts as present...
    EXPECT_TRUE(available("MQ48T250", msig("SCFG_VS_PD12Ultra", true), f.info.get()));
    EXPECT_TRUE(available("MQ48T510", msig("SCFG_VS_I2S23", true), f.info.get()));
    // ...but the same name as a real signal is looked for.
    EXPECT_FALSE(available("MQ48T250", msig("SCFG_VS_PD12Ultra"), f.info.get()));
    EXPECT_FALSE(available("MQ48T510", msig("SCFG_VS_I2S23"), f.info.get()));
}

TEST(ModeAvailability, PackageRulesOfTheScfgNames)
{
    ModeFixture lqfp("LQFP", 48);
    ModeFixture tssop("TSSOP", 20);
    ModeFixture qfn("QFN", 32);
    const ModeSignal remap = msig("SCFG_VS_PA11PA12_REMAP", true);
    EXPECT_FALSE(available("MQ48T110", remap, lqfp.info.get()));
    EXPECT_TRUE(available("MQ48T110", remap, tssop.info.get()));
    EXPECT_TRUE(available("MQ48T120", remap, tssop.info.get()));

    EXPECT_FALSE(available("MQ48T220", msig("SCFG_VS_I2S23", true), qfn.info.get()));
    EXPECT_FALSE(available("MQ48T210", msig("SCFG_VS_I2S12", true), qfn.info.get()));
    EXPECT_TRUE(available("MQ48T220", msig("SCFG_VS_I2S13", true), qfn.info.get()));
    EXPECT_TRUE(available("MQ48T220", msig("SCFG_VS_I2S23", true), lqfp.info.get()));
    EXPECT_FALSE(available("MQ48T120", msig("SCFG_VS_I2S23", true), tssop.info.get()));
    EXPECT_FALSE(available("MQ48T120", msig("SCFG_VS_I2S13", true), tssop.info.get()));
    EXPECT_TRUE(available("MQ48T120", msig("SCFG_VS_I2S12", true), tssop.info.get()));
    EXPECT_TRUE(available("MQ48T120", msig("SCFG_VS_I2S13", true), lqfp.info.get()));
}

TEST(ModeLogicBuild, ControlsFollowAvailabilityAndRemoveConditions)
{
    ModeFixture f;
    f.pin(1, "PA9", {"USART1_TX"});
    f.pin(2, "PA10", {"USART1_RX"});
    ModeOption mode = mcombo("Mode", {mgroup("Asynchronous", {"USART1_TX", "USART1_RX"}),
                                      mgroup("Synchronous", {"USART1_TX", "USART1_CK"}),
                                      mgroup("Half", {"USART1_TX"})});
    mode.signalGroups[2].RemoveCondition = "MQ48T110";
    ModeOption gone = mcheck("LIN", {"USART1_TX"});
    gone.RemoveCondition = "LQFP";
    ModeOption absent = mcheck("Hardware", {"USART1_CTS"});
    ModeOption exint = mcheck("Line 11", {"EXINT11"});
    ModeLogic logic("USART1", "USART", "MQ48T110", "LQFP");
    logic.build({mode, gone, absent, exint}, {msig("EXINT11", true), msig("USART1_TX")},
                f.info.get());
    // Only the combo survives, with its one available and not removed item.
    ASSERT_EQ(logic.controls.size(), 1);
    const ModeControl &c = logic.controls.first();
    EXPECT_TRUE(c.isCombo());
    ASSERT_EQ(c.items.size(), 1);
    EXPECT_EQ(c.items.first().text, "Asynchronous");
    EXPECT_EQ(c.textAt(0), "Disable");
    // All signals of all modes are known, virtual ones marked.
    EXPECT_TRUE(names(logic.allSignals).contains("USART1_CK"));
    EXPECT_TRUE(names(logic.allSignals).contains("EXINT11"));
}

TEST(ModeLogicEnableTest, ItemsFollowThePins)
{
    ModeFixture f;
    f.pin(1, "PA2", {"USART2_TX", "TMR15_CH1"});
    f.pin(2, "PA3", {"USART2_RX"});
    f.pin(3, "PA4", {"USART2_CK", "SPI1_CS"});
    ModeLogic logic("USART2", "USART", "MQ48T110", "LQFP");
    logic.build({mcombo("Mode", {mgroup("Asynchronous", {"USART2_TX", "USART2_RX"}),
                                 mgroup("Synchronous", {"USART2_TX", "USART2_RX", "USART2_CK"})})},
                {}, f.info.get());
    logic.updateSignalStates(f.info.get());
    ModeControl &c = logic.controls[0];
    EXPECT_TRUE(c.itemEnabled(1));
    EXPECT_TRUE(c.itemEnabled(2));

    // Another instance takes PA4: synchronous mode can't be placed, asynchronous can.
    f.sig(3, "SPI1_CS")->status = SIGNAL_MODE_ONLY;
    logic.updateSignalStates(f.info.get());
    EXPECT_TRUE(c.itemEnabled(1));
    EXPECT_FALSE(c.itemEnabled(2));
    EXPECT_TRUE(c.itemEnabled(0)); // "Disable" always passes
    EXPECT_TRUE(c.itemEnabled(7)); // outside the list passes
    EXPECT_FALSE(logic.selectCombo(0, 2).accepted);
    EXPECT_EQ(c.current, 0);

    // Our own lit signals don't block our own items: TX is lit by asynchronous mode and a
    // timer channel holds nothing else on PA2.
    ASSERT_TRUE(logic.selectCombo(0, 1).accepted);
    f.sig(1, "USART2_TX")->status = SIGNAL_MODE_ONLY;
    f.sig(2, "USART2_RX")->status = SIGNAL_MODE_ONLY;
    f.sig(3, "SPI1_CS")->status = SIGNAL_FREE;
    logic.updateSignalStates(f.info.get());
    EXPECT_TRUE(c.itemEnabled(2));
}

TEST(ModeLogicEnableTest, ReleasingTheCurrentItemFreesItsPins)
{
    ModeFixture f;
    // Both alternatives need PB6, which only one signal can hold.
    f.pin(1, "PB6", {"I2C1_SCL", "I2C1_SMBA"});
    f.pin(2, "PB7", {"I2C1_SDA"});
    ModeLogic logic("I2C1", "I2C", "MQ48T110", "LQFP");
    logic.build({mcombo("I2C", {mgroup("I2C", {"I2C1_SCL", "I2C1_SDA"}),
                                mgroup("SMBus", {"I2C1_SMBA", "I2C1_SDA"})})},
                {}, f.info.get());
    ASSERT_TRUE(logic.selectCombo(0, 1).accepted);
    f.sig(1, "I2C1_SCL")->status = SIGNAL_MODE_ONLY;
    f.sig(2, "I2C1_SDA")->status = SIGNAL_MODE_ONLY;
    logic.updateSignalStates(f.info.get());
    // SMBA finds no free pin, but it would once the current item lets PB6 go.
    EXPECT_TRUE(logic.controls[0].itemEnabled(2));
    // A ticked check box is not judged; an unticked one is.
    ModeLogic boxes("I2C1", "I2C", "MQ48T110", "LQFP");
    boxes.build({mcheck("Alert", {"I2C1_SMBA"})}, {}, f.info.get());
    boxes.updateSignalStates(f.info.get());
    EXPECT_FALSE(boxes.controls[0].itemEnabled(1));
}

TEST(ModeLogicChange, SignalListsOfACombo)
{
    ModeFixture f;
    f.pin(1, "PA9", {"USART1_TX"});
    f.pin(2, "PA10", {"USART1_RX"});
    f.pin(3, "PA8", {"USART1_CK"});
    f.pin(4, "PA12", {"USART1_RTS"});
    ModeLogic logic("USART1", "USART", "MQ48T110", "LQFP");
    logic.build({mcombo("Mode", {mgroup("Asynchronous", {"USART1_TX", "USART1_RX"}, {"S_ASYNC"}),
                                 mgroup("Synchronous", {"USART1_TX", "USART1_RX", "USART1_CK"},
                                        {"S_SYNC"}),
                                 mgroup("Virtual only", {})}),
                 mcheck("Flow", {"USART1_RTS", "USART1_TX"})},
                {}, f.info.get());

    ModeChange c = logic.selectCombo(0, 1);
    ASSERT_TRUE(c.accepted);
    EXPECT_EQ(c.oldText, "Disable");
    EXPECT_EQ(c.newText, "Asynchronous");
    EXPECT_EQ(c.raised, QStringList{"S_ASYNC"});
    EXPECT_TRUE(c.send);
    EXPECT_FALSE(c.clear);
    EXPECT_EQ(names(c.sendAll), QStringList({"USART1_TX", "USART1_RX", "USART1_CK"}));
    EXPECT_EQ(names(c.sendValid), QStringList({"USART1_TX", "USART1_RX"}));

    // A to B: the shared signals stay in the valid list, the semaphores swap.
    c = logic.selectCombo(0, 2);
    EXPECT_EQ(c.withdrawn, QStringList{"S_ASYNC"});
    EXPECT_EQ(c.raised, QStringList{"S_SYNC"});
    EXPECT_EQ(names(c.sendValid), QStringList({"USART1_TX", "USART1_RX", "USART1_CK"}));
    EXPECT_EQ(names(logic.currentSignals), names(c.sendValid));

    // The check box holds TX: it stays out of the lists of the combo.
    ASSERT_TRUE(logic.setChecked(1, true).send);
    c = logic.selectCombo(0, 3);
    EXPECT_FALSE(c.send);
    EXPECT_TRUE(c.clear);
    EXPECT_EQ(names(c.clearList), QStringList({"USART1_RX", "USART1_CK"}));

    // Unticking the box clears what no other control needs.
    ASSERT_TRUE(logic.selectCombo(0, 1).accepted);
    c = logic.setChecked(1, false);
    EXPECT_TRUE(c.clear);
    EXPECT_EQ(names(c.clearList), QStringList({"USART1_RTS"}));
    EXPECT_EQ(logic.controls[1].current, 0);
}

TEST(ModeLogicChange, VirtualSignalsAreNeverSent)
{
    ModeFixture f("TSSOP", 20);
    ModeLogic logic("SCFG", "SCFG", "MQ48T110", "TSSOP");
    logic.build({mcheck("PA11 PA12 remap", {"SCFG_VS_PA11PA12_REMAP"}, {"SCFG_REMAP"})},
                {msig("SCFG_VS_PA11PA12_REMAP", true)}, f.info.get());
    ASSERT_EQ(logic.controls.size(), 1);
    EXPECT_EQ(logic.pinRemapState(), 0);
    const ModeChange c = logic.setChecked(0, true);
    EXPECT_EQ(names(c.sendAll), QStringList{"SCFG_VS_PA11PA12_REMAP"});
    EXPECT_TRUE(c.sendValid.isEmpty()); // the engine takes an empty valid list as a clear
    EXPECT_EQ(logic.pinRemapState(), 1);
    EXPECT_EQ(logic.status(), IPSTATUS_ACTIVE);
    // SCFG and DEBUG never show tabs; their hint says why.
    EXPECT_TRUE(logic.tabTitles({}).isEmpty());
    EXPECT_EQ(logic.hintRule().kind, ModeHint::NoParameters);
    // On a package without the remap the box doesn't exist at all.
    ModeFixture lqfp;
    ModeLogic other("SCFG", "SCFG", "MQ48T110", "LQFP");
    other.build({mcheck("PA11 PA12 remap", {"SCFG_VS_PA11PA12_REMAP"})},
                {msig("SCFG_VS_PA11PA12_REMAP", true)}, lqfp.info.get());
    EXPECT_TRUE(other.controls.isEmpty());
    EXPECT_EQ(other.pinRemapState(), -1);
}

TEST(ModeLogicSemaphores, ItemsAndBoxesFollowTheRaisedNames)
{
    ModeLogic logic("TMR1", "TMR1", "MQ48T110", "LQFP");
    logic.build({mcheck("Activated", {}, {"TMR1_ACTIVE"}),
                 mcombo("Channel1", {mgroup("Output", {}, {}, "!TMR1_ENC"), mgroup("Input", {})},
                        "TMR1_ACTIVE"),
                 mcheck("Encoder", {}, {"TMR1_ENC"}, "TMR1_ACTIVE")},
                {}, nullptr);
    ModeControl &channel = logic.controls[1];
    ModeControl &encoder = logic.controls[2];
    EXPECT_FALSE(channel.itemEnabled(1)); // the option needs TMR1_ACTIVE
    EXPECT_FALSE(encoder.itemEnabled(1));
    logic.setChecked(0, true);
    EXPECT_TRUE(channel.itemEnabled(1));
    EXPECT_TRUE(channel.itemEnabled(2));
    logic.setChecked(2, true);
    EXPECT_FALSE(channel.itemEnabled(1)); // "!TMR1_ENC" fails now
    EXPECT_TRUE(channel.itemEnabled(2));
    // A check box keeps its own semaphores when they are withdrawn...
    logic.withdrawSemaphores({"TMR1_ENC"});
    EXPECT_TRUE(encoder.blocked.contains("TMR1_ENC"));
    EXPECT_FALSE(channel.blocked.contains("TMR1_ENC"));
    // ...and a box without an expression keeps every name.
    logic.withdrawSemaphores({"TMR1_ACTIVE"});
    EXPECT_TRUE(logic.controls[0].blocked.contains("TMR1_ACTIVE"));
    EXPECT_FALSE(encoder.blocked.contains("TMR1_ACTIVE"));
    EXPECT_FALSE(encoder.itemEnabled(1));
}

TEST(ModeLogicStatus, TimerWithSubordinateModeOnT110)
{
    ModeLogic logic("TMR1", "TMR1", "MQ48T110", "LQFP");
    logic.build({mcheck("Activated", {}, {"TMR1_ACTIVE"}),
                 mcombo("Subordinate mode", {mgroup("Reset Mode", {}), mgroup("Trigger", {})}),
                 mcombo("Sub-mode input selection", {mgroup("IS0", {}), mgroup("IS1", {})})},
                {}, nullptr);
    logic.controls[2].label = "Input of the subordinate";
    EXPECT_EQ(logic.status(), IPSTATUS_INACTIVE);
    EXPECT_TRUE(logic.tabTitles({"DMA"}).isEmpty());

    logic.setChecked(0, true);
    EXPECT_EQ(logic.status(), IPSTATUS_ACTIVE);
    EXPECT_EQ(logic.hintRule().kind, ModeHint::None);
    EXPECT_EQ(logic.tabTitles({"DMA"}), QStringList({"Parameters Settings", "GPIO Settings",
                                                     "NVIC Settings", "DMA Settings"}));

    // A subordinate mode without its input: inactive and unfinished, hint names the label.
    logic.selectCombo(1, 2);
    EXPECT_FALSE(logic.statusRule());
    EXPECT_EQ(logic.status(), IPSTATUS_INACTIVE | IPSTATUS_UNFINISHED);
    const ModeHint hint = logic.hintRule();
    EXPECT_EQ(hint.kind, ModeHint::SelectControl);
    EXPECT_EQ(hint.controlLabel, "Input of the subordinate");

    logic.selectCombo(2, 1);
    EXPECT_EQ(logic.status(), IPSTATUS_ACTIVE);
    EXPECT_FALSE(logic.hintRule().unfinished);

    // The same timer on a family whose rows don't list TMR15 as subordinate-capable still
    // follows the common rows; TMR16 on T110 needs only its first box.
    ModeLogic t16("TMR16", "TMR16", "MQ48T110", "LQFP");
    t16.build({mcheck("Activated", {}), mcombo("Channel1", {mgroup("Out", {})})}, {}, nullptr);
    t16.selectCombo(1, 1);
    EXPECT_EQ(t16.status(), IPSTATUS_INACTIVE);
    t16.setChecked(0, true);
    EXPECT_EQ(t16.status(), IPSTATUS_ACTIVE);
}

TEST(ModeLogicStatus, RuleRowsByInstance)
{
    auto activeAfter = [](const QString &instance, bool tickBox, int comboIndex) {
        ModeLogic logic(instance, instance, "MQ48T110", "LQFP");
        logic.build({mcheck("Box", {}), mcombo("Combo", {mgroup("A", {}), mgroup("B", {})})}, {},
                    nullptr);
        logic.setChecked(0, tickBox);
        logic.selectCombo(1, comboIndex);
        return logic.statusRule();
    };
    // First combo rule (numbered instances included).
    EXPECT_TRUE(activeAfter("USART2", false, 1));
    EXPECT_FALSE(activeAfter("USART2", true, 0));
    // First box rule.
    EXPECT_TRUE(activeAfter("WDT", true, 0));
    EXPECT_FALSE(activeAfter("WDT", false, 2));
    // Any box rule ignores combos.
    EXPECT_FALSE(activeAfter("EXINT", false, 1));
    EXPECT_TRUE(activeAfter("PWC", true, 0));
    // Any selection.
    EXPECT_TRUE(activeAfter("CRM", false, 2));
    EXPECT_TRUE(activeAfter("DEBUG", true, 0));
    EXPECT_FALSE(activeAfter("CRM", false, 0));
}

TEST(ModeFamilyTables, TabSetsAndHints)
{
    using T = ModeFamilyTables;
    EXPECT_EQ(T::tabTitles(T::tabRow("MQ48T310", "CRM"), {}),
              QStringList({"GPIO Settings", "NVIC Settings"}));
    EXPECT_EQ(T::tabTitles(T::tabRow("MQ48T510", "USB_OTGHS1"), {}),
              QStringList({"GPIO Settings", "NVIC Settings"}));
    EXPECT_TRUE(T::tabTitles(T::tabRow("MQ48T110", "IRTMR"), {}).isEmpty());
    EXPECT_EQ(T::tabTitles(T::tabRow("MQ48T510", "ADC-Common"), {}),
              QStringList({"Parameters Settings", "GPIO Settings"}));
    EXPECT_EQ(T::tabTitles(T::tabRow("MQ48T110", "WDT"), {}), QStringList{"Parameters Settings"});
    EXPECT_EQ(T::tabTitles(T::tabRow("MQ48T110", "WWDT"), {}),
              QStringList({"Parameters Settings", "NVIC Settings"}));
    // ADC2 has no DMA tab on the T310 only.
    EXPECT_EQ(T::tabTitles(T::tabRow("MQ48T310", "ADC2"), {"DMA1"}).size(), 3);
    EXPECT_EQ(T::tabTitles(T::tabRow("MQ48T250", "ADC2"), {"DMA1"}).last(), "DMA1 Settings");
    EXPECT_EQ(T::tabTitles(T::tabRow("MQ48T510", "XMC_SDRAM_1"), {"DMA2"}).size(), 3);

    ModeLogic adc("ADC1", "ADC", "MQ48T510", "LQFP");
    adc.build({mcheck("IN0", {})}, {}, nullptr);
    EXPECT_EQ(adc.hintRule().kind, ModeHint::AdcCommon);
    ModeLogic i2s("I2S2", "I2S", "MQ48T120", "LQFP");
    i2s.build(
        {mcombo("Mode", {mgroup("Half-Duplex Master", {}), mgroup("Full-Duplex Master", {})})}, {},
        nullptr);
    i2s.selectCombo(0, 1);
    EXPECT_EQ(i2s.hintRule().kind, ModeHint::None);
    i2s.selectCombo(0, 2);
    EXPECT_EQ(i2s.hintRule().kind, ModeHint::FullDuplex);
    EXPECT_FALSE(i2s.hintRule().unfinished);
    // Every listed family has its tables.
    EXPECT_EQ(T::families().size(), 14);
    EXPECT_TRUE(T::isUsbClockFamily("MQ48T520"));
    EXPECT_FALSE(T::isUsbClockFamily("MQ48T110"));
}
