#include "database/peripheralreader.h"
#include "peripherals/nvicmodel.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

IPNode t110Nvic()
{
    return ReadIPFile(
        QStringLiteral(MQ48_SOURCE_DIR "/MQ48DB/device/MQ48T110/Peripherals/NVIC-V1.0.xml"));
}

QStringList names(const NvicModel &model, const QList<int> &indexes)
{
    QStringList out;
    for (int i : indexes)
        out << model.rows().at(i).irq.IRQName;
    return out;
}

TEST(NvicModel, PriorityGroupSetsTheBoundsAndClipsEveryPriority)
{
    NvicModel model(t110Nvic());
    EXPECT_EQ(model.priorityGroup(), "NVIC_PRIORITY_GROUP_4");
    EXPECT_EQ(model.priorityGroups().size(), 5);
    EXPECT_EQ(model.preemptionHigh(), 15);
    EXPECT_EQ(model.subHigh(), 0);

    EXPECT_TRUE(model.setPreemption("USART1_IRQn", 12));
    EXPECT_TRUE(model.setPreemption("SysTick_Handler", 9));
    EXPECT_FALSE(model.setSub("USART1_IRQn", 1));

    QSignalSpy changed(&model, &NvicModel::changed);
    EXPECT_TRUE(model.setPriorityGroup("NVIC_PRIORITY_GROUP_2"));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(model.preemptionLow(), 0);
    EXPECT_EQ(model.preemptionHigh(), 3);
    EXPECT_EQ(model.subHigh(), 3);
    EXPECT_EQ(model.row("USART1_IRQn")->irq.preemption, 3);
    EXPECT_EQ(model.row("SysTick_IRQn")->irq.preemption, 3);
    EXPECT_EQ(model.row("USART1_IRQn")->irq.preemptionHigh, 3);
    EXPECT_TRUE(model.setSub("USART1_IRQn", 3));
    EXPECT_FALSE(model.setSub("USART1_IRQn", 4));
    EXPECT_FALSE(model.setPreemption("USART1_IRQn", 4));

    EXPECT_TRUE(model.setPriorityGroup("NVIC_PRIORITY_GROUP_0"));
    EXPECT_EQ(model.preemptionHigh(), 0);
    EXPECT_EQ(model.subHigh(), 15);
    EXPECT_EQ(model.row("USART1_IRQn")->irq.preemption, 0);
    EXPECT_EQ(model.row("USART1_IRQn")->irq.sub, 3);
    EXPECT_FALSE(model.setPriorityGroup("NVIC_PRIORITY_GROUP_7"));
    EXPECT_EQ(model.priorityGroup(), "NVIC_PRIORITY_GROUP_0");
}

TEST(NvicModel, SystemVectorsKeepTheirFixedStateAndOnlyWhatTheyAllow)
{
    NvicModel model(t110Nvic());
    ASSERT_EQ(model.rows().size(), 39);
    const NvicRow *reset = model.row("Reset_IRQn");
    EXPECT_TRUE(reset->enabled());
    EXPECT_TRUE(reset->enableFixed());
    EXPECT_FALSE(reset->listed());
    EXPECT_FALSE(model.setEnabled("Reset_IRQn", false));
    EXPECT_FALSE(model.setPreemption("Reset_IRQn", 1));
    EXPECT_TRUE(model.row("Reset_IRQn")->enabled());

    EXPECT_FALSE(model.setEnabled("MemoryManagement_IRQn", false));
    EXPECT_TRUE(model.setPreemption("MemoryManagement_IRQn", 2));

    const NvicRow *tick = model.row("SysTick_Handler");
    ASSERT_NE(tick, nullptr);
    EXPECT_TRUE(tick->hasEnableBox());
    EXPECT_TRUE(model.setEnabled("SysTick_IRQn", false));
    EXPECT_FALSE(model.row("SysTick_IRQn")->enabled());

    model.reset();
    EXPECT_TRUE(model.row("SysTick_IRQn")->enabled());
    EXPECT_EQ(model.row("MemoryManagement_IRQn")->irq.preemption, 0);
}

TEST(NvicModel, ConfiguredPeripheralsMakeTheirInterruptsAvailableAndTheFilterFollows)
{
    NvicModel model(t110Nvic());
    EXPECT_FALSE(model.row("USART1_IRQn")->available);
    EXPECT_TRUE(model.row("FLASH_IRQn")->available);
    EXPECT_TRUE(model.row("HardFault_IRQn")->available);
    EXPECT_FALSE(model.setEnabled("USART1_IRQn", true));

    NvicAvailability a;
    a.configured = {"USART1", "I2S1"};
    model.updateAvailability(a);
    EXPECT_TRUE(model.row("USART1_IRQn")->available);
    EXPECT_TRUE(model.row("SPI1_IRQn")->available); // shared by SPI1 and I2S1
    EXPECT_FALSE(model.row("USART2_IRQn")->available);
    EXPECT_TRUE(model.setEnabled("USART1_IRQn", true));

    EXPECT_EQ(model.shownRows().size(), 39); // "All interrupts" is the default
    model.setShowType(NvicModel::AvailableInterrupts);
    const QStringList available = names(model, model.shownRows());
    EXPECT_TRUE(available.contains("USART1_IRQn"));
    EXPECT_FALSE(available.contains("USART2_IRQn"));
    model.setShowType(NvicModel::EnabledInterrupts);
    const QStringList enabled = names(model, model.shownRows());
    EXPECT_TRUE(enabled.contains("USART1_IRQn"));
    EXPECT_TRUE(enabled.contains("SysTick_IRQn"));
    EXPECT_FALSE(enabled.contains("SPI1_IRQn"));

    // The peripheral's mode goes off: its interrupt is released.
    model.updateAvailability(NvicAvailability());
    EXPECT_FALSE(model.row("USART1_IRQn")->available);
    EXPECT_FALSE(model.row("USART1_IRQn")->enabled());
    EXPECT_FALSE(names(model, model.shownRows()).contains("USART1_IRQn"));
}

TEST(NvicModel, DmaAndExintVectorsFollowChannelsAndLines)
{
    NvicModel model(t110Nvic());
    NvicAvailability a;
    a.configured = {"USART1", "EXINT"};
    a.dmaChannelsByInstance.insert("USART1", {"DMA1_Channel2"});
    model.updateAvailability(a);
    EXPECT_EQ(model.row("DMA1_Channel3_2_IRQn")->dmaChannels(),
              QStringList({"DMA1_Channel3", "DMA1_Channel2"}));
    EXPECT_TRUE(model.row("DMA1_Channel3_2_IRQn")->available);
    EXPECT_FALSE(model.row("DMA1_Channel1_IRQn")->available);
    EXPECT_EQ(names(model, model.rowsOfInstance("USART1")),
              QStringList({"DMA1_Channel3_2_IRQn", "USART1_IRQn"}));

    // EXINT vectors need a line set to interrupt within their range.
    EXPECT_FALSE(model.row("EXINT15_4_IRQn")->available);
    a.exintLines = {5};
    model.updateAvailability(a);
    EXPECT_TRUE(model.row("EXINT15_4_IRQn")->available);
    EXPECT_FALSE(model.row("EXINT1_0_IRQn")->available);
    EXPECT_EQ(names(model, model.rowsOfInstance("EXINT")), QStringList{"EXINT15_4_IRQn"});
}

} // namespace
