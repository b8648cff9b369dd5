#include "database/peripheralreader.h"
#include "peripherals/dmarequestmodel.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

using AddError = DmaRequestModel::AddError;

class DmaModelTest : public ::testing::Test
{
protected:
    DmaModelTest()
        : model(QStringLiteral("DMA"),
                ReadIPFile(QStringLiteral(
                    MQ48_SOURCE_DIR "/MQ48DB/device/MQ48T110/Peripherals/DMA-V1.0.xml")),
                QStringLiteral("MQ48T110"))
    {
    }
    DmaRequestModel model;
};

TEST_F(DmaModelTest, RequestsTakeTheFirstFreeChannelOfTheirListAndNeverShareOne)
{
    EXPECT_EQ(model.tabNames(), QStringList({"DMA1", "MemToMem"}));
    model.setConfigured({"USART1", "SPI1", "ADC1"});
    EXPECT_EQ(model.freeRequests("USART1"), QStringList({"USART1_TX", "USART1_RX"}));

    QSignalSpy changed(&model, &DmaRequestModel::changed);
    const auto tx = model.addRequest("USART1_TX");
    ASSERT_TRUE(tx.ok());
    EXPECT_EQ(changed.count(), 1);
    const DMARequest &r = model.requests().at(tx.index);
    EXPECT_EQ(r.channel, "DMA1_Channel2");
    EXPECT_EQ(r.controller, "DMA1");
    EXPECT_EQ(r.state, 2);
    EXPECT_EQ(r.value("Instance"), "DMA1_Channel2");
    EXPECT_EQ(r.value("Direction"), "DMA_DIR_MEMORY_TO_PERIPHERAL");
    EXPECT_EQ(r.value("DMA_Handle"), "USART1");

    // SPI1_RX knows only channel 2, which USART1_TX holds.
    EXPECT_EQ(model.addRequest("SPI1_RX").error, AddError::NoFreeChannel);
    EXPECT_FALSE(model.freeRequests("SPI1").contains("SPI1_RX"));
    EXPECT_EQ(model.addRequest("USART1_TX").error, AddError::NoFreeRequest);
    const auto rx = model.addRequest("USART1_RX", "DMA1_Channel5");
    ASSERT_TRUE(rx.ok());
    EXPECT_FALSE(model.setChannel(rx.index, "DMA1_Channel2"));
    EXPECT_EQ(model.freeChannels(rx.index), QStringList({"DMA1_Channel3", "DMA1_Channel5"}));
    EXPECT_TRUE(model.setParameter(rx.index, "Instance", "DMA1_Channel3"));
    EXPECT_EQ(model.requests().at(rx.index).channel, "DMA1_Channel3");
    EXPECT_EQ(model.holderOf("DMA1_Channel3"), rx.index);
    EXPECT_TRUE(model.freeRequests("USART1").isEmpty());

    // Deleting frees the channel for the next request.
    ASSERT_TRUE(model.removeRequest(tx.index));
    const auto spi = model.addRequest("SPI1_RX");
    ASSERT_TRUE(spi.ok());
    EXPECT_EQ(model.requests().at(spi.index).channel, "DMA1_Channel2");
}

TEST_F(DmaModelTest, OnlyConfiguredPeripheralsMayAskAndSwitchingOffReleasesTheirRequests)
{
    EXPECT_EQ(model.addRequest("USART2_TX").error, AddError::NotConfigured);
    EXPECT_EQ(model.addRequest("NO_SUCH_REQUEST").error, AddError::UnknownRequest);
    EXPECT_TRUE(model.freeRequests(QString(), "DMA1").isEmpty());

    model.setConfigured({"USART1", "ADC1"});
    ASSERT_TRUE(model.addRequest("USART1_TX").ok());
    ASSERT_TRUE(model.addRequest("USART1_RX").ok());
    ASSERT_TRUE(model.addRequest("ADC1").ok());
    EXPECT_EQ(model.channelsByInstance().value("USART1"),
              QStringList({"DMA1_Channel2", "DMA1_Channel3"}));
    EXPECT_EQ(model.requestsOfInstance("USART1").size(), 2);

    model.setConfigured({"ADC1"});
    EXPECT_EQ(model.releaseUnconfigured(), QStringList({"USART1_TX", "USART1_RX"}));
    ASSERT_EQ(model.requests().size(), 1);
    EXPECT_EQ(model.requests().first().name, "ADC1");
    EXPECT_EQ(model.holderOf("DMA1_Channel2"), -1);
    EXPECT_TRUE(model.releaseUnconfigured().isEmpty());

    model.reset();
    EXPECT_TRUE(model.requests().isEmpty());
}

TEST_F(DmaModelTest, MemoryToMemoryNeedsNoPeripheralAndMayRepeatWhileChannelsLast)
{
    EXPECT_EQ(model.freeRequests(QString(), "MemToMem"), QStringList{"MEMTOMEM"});
    EXPECT_TRUE(model.freeRequests(QString(), "DMA1").isEmpty());
    for (int channel = 1; channel <= 5; ++channel) {
        const auto added = model.addRequest("MEMTOMEM");
        ASSERT_TRUE(added.ok()) << channel;
        EXPECT_EQ(model.requests().at(added.index).channel,
                  QStringLiteral("DMA1_Channel%1").arg(channel));
    }
    EXPECT_EQ(model.addRequest("MEMTOMEM").error, AddError::NoFreeChannel);
    EXPECT_EQ(model.requestsOfTab("MemToMem").size(), 5);
    EXPECT_TRUE(model.requestsOfTab("DMA1").isEmpty());
    EXPECT_TRUE(model.releaseUnconfigured().isEmpty());
}

TEST_F(DmaModelTest, RequestsThatShareALineBlockTheirPartnerAndParametersKeepToTheirLists)
{
    model.setConfigured({"TMR16", "USART1"});
    ASSERT_TRUE(model.addRequest("TMR16_CH1").ok());
    const auto blocked = model.addRequest("TMR16_OVERFLOW");
    EXPECT_EQ(blocked.error, AddError::PartnerUsed);
    EXPECT_EQ(blocked.partner, "TMR16_CH1");
    EXPECT_FALSE(model.freeRequests("TMR16").contains("TMR16_OVERFLOW"));

    const auto tx = model.addRequest("USART1_TX");
    ASSERT_TRUE(tx.ok());
    EXPECT_TRUE(model.setParameter(tx.index, "Priority", "DMA_PRIORITY_HIGH"));
    EXPECT_FALSE(model.setParameter(tx.index, "Priority", "DMA_PRIORITY_URGENT"));
    EXPECT_FALSE(model.setParameter(tx.index, "Direction", "DMA_DIR_PERIPHERAL_TO_MEMORY"));
    EXPECT_FALSE(model.setParameter(tx.index, "NoSuchParameter", "1"));
    const DMARequest &r = model.requests().at(tx.index);
    EXPECT_EQ(r.value("Priority"), "DMA_PRIORITY_HIGH");
    EXPECT_EQ(r.parameter("Priority")->DefaultValue, "DMA_PRIORITY_LOW");
    EXPECT_FALSE(r.parameter("DMA_Handle")->Visible);
}

} // namespace
