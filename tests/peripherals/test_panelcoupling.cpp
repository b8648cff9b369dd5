#include "database/language.h"
#include "database/paths.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "widgets/messagebox.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

// An ADC panel of a family with the ADC pair's DMA rule; its file is not needed for the rule.
class AdcPanel : public ::testing::Test
{
protected:
    AdcPanel()
    {
        g_language = 0;
        setAppFolderOverride(QStringLiteral(MQ48_SOURCE_DIR));
        setUserMessageHandler([](QWidget *, const UserMessage &) { return 0; });
        PeripheralListItem row;
        row.InstanceName = QStringLiteral("ADC1");
        row.Name = QStringLiteral("ADC");
        panel = std::make_unique<IP_ModeAndConfiguration>(row, IPNode(), QString(),
                                                          QStringLiteral("MQ48T250"));
        mode.Name = QStringLiteral("Mode");
    }
    ~AdcPanel() override
    {
        panel.reset();
        setUserMessageHandler({});
        setAppFolderOverride(QString());
        g_language = 1;
    }
    std::unique_ptr<IP_ModeAndConfiguration> panel;
    RefParameter mode;
};

TEST_F(AdcPanel, AListFromAnotherPanelAppliesTheRuleHereAndSendsNothingOn)
{
    QSignalSpy lists(panel.get(), &IP_ModeAndConfiguration::SendParamList_To_OtherIP);
    QSignalSpy semaphores(panel.get(), &IP_ModeAndConfiguration::EnableSemaphore_To_OtherIP);

    mode.Value = QStringLiteral("ADC_INDEPENDENT_MODE");
    panel->ReceiveParamListFromOtherIP({mode}, QStringLiteral("ADC-Common"));
    EXPECT_EQ(panel->raisedSemaphores(), QStringList{"ADC1_DMA_ENABLE"});
    mode.Value = QStringLiteral("ADC_ORDINARY_SMLT_ONLY_MODE");
    panel->ReceiveParamListFromOtherIP({mode}, QStringLiteral("ADC-Common"));
    EXPECT_EQ(panel->raisedSemaphores(),
              QStringList({"ADC1_DMA_ENABLE", "ADC1_ADC2_DMA_ENABLE"}));
    EXPECT_EQ(lists.count(), 0);
    EXPECT_EQ(semaphores.count(), 0);
}

TEST_F(AdcPanel, ItsOwnListAppliesTheRuleAndGoesOutOnce)
{
    QSignalSpy lists(panel.get(), &IP_ModeAndConfiguration::SendParamList_To_OtherIP);
    QSignalSpy semaphores(panel.get(), &IP_ModeAndConfiguration::EnableSemaphore_To_OtherIP);
    panel->ReciveIPParamList({}, QStringLiteral("ADC1"));
    // An empty list runs through both states and ends raised.
    EXPECT_EQ(panel->raisedSemaphores(), QStringList{"ADC1_ADC2_DMA_ENABLE"});
    ASSERT_EQ(lists.count(), 1);
    EXPECT_EQ(lists.first().at(1).toString(), "ADC1");
    EXPECT_EQ(semaphores.count(), 2);
}

} // namespace
