#include "peripherals/couplingrules.h"
#include "peripherals/updateipmodeparamthread.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <gtest/gtest.h>

namespace {

using namespace CouplingRules;

TEST(CouplingRules, OscillatorModesTellTheClockPageOnOffAndBypass)
{
    struct Case
    {
        const char *control;
        int index;
        OscillatorFlag::Oscillator oscillator;
        bool enable;
        bool bypass;
    };
    const Case cases[] = {
        {"HEXT", 0, OscillatorFlag::Hext, false, false},
        {"HEXT", 1, OscillatorFlag::Hext, true, true},
        {"HEXT", 2, OscillatorFlag::Hext, true, false},
        {"LEXT", 1, OscillatorFlag::Lext, true, true},
        {"LEXT", 2, OscillatorFlag::Lext, true, false},
        {"CLKOUT", 1, OscillatorFlag::None, false, false},
    };
    for (const Case &c : cases) {
        const OscillatorFlag f = oscillatorFlag(c.control, c.index);
        EXPECT_EQ(f.oscillator, c.oscillator) << c.control << c.index;
        EXPECT_EQ(f.enable, c.enable) << c.control << c.index;
        EXPECT_EQ(f.bypass, c.bypass) << c.control << c.index;
    }
}

TEST(CouplingRules, ClockOutputPinsByFamily)
{
    const QList<ClockOutput> one = clockOutputs("MQ48T110");
    ASSERT_EQ(one.size(), 1);
    EXPECT_EQ(one.first().signalName, "CRM_CLKOUT");
    bool known = false;
    EXPECT_EQ(clockOutputValue(one.first(), "PA8", &known), 1);
    EXPECT_TRUE(known);
    EXPECT_EQ(clockOutputValue(one.first(), "PB13 ", &known), 3);
    EXPECT_EQ(clockOutputValue(one.first(), "", &known), 0);
    EXPECT_TRUE(known);
    clockOutputValue(one.first(), "PA0", &known);
    EXPECT_FALSE(known);

    const QList<ClockOutput> two = clockOutputs("MQ48T510");
    ASSERT_EQ(two.size(), 2);
    EXPECT_EQ(clockOutputValue(two.at(0), "PE4", &known), 2);
    EXPECT_EQ(two.at(1).signalName, "CRM_CLKOUT2");
    EXPECT_EQ(clockOutputValue(two.at(1), "PC9", &known), 1);
}

TEST(CouplingRules, AdcPairDmaSemaphoresFollowTheModeOfTheList)
{
    RefParameter mode;
    mode.Name = "Mode";
    mode.Value = "ADC_INDEPENDENT_MODE";
    SemaphoreChange c = adcDmaRule("MQ48T250", "ADC-Common", {mode});
    EXPECT_TRUE(c.applies);
    EXPECT_EQ(c.withdrawn, QStringList{"ADC1_ADC2_DMA_ENABLE"});
    EXPECT_EQ(c.raised, QStringList{"ADC1_DMA_ENABLE"});

    mode.Value = "ADC_ORDINARY_SMLT_ONLY_MODE";
    c = adcDmaRule("MQ48T310", "ADC2", {mode});
    EXPECT_EQ(c.raised, QStringList{"ADC1_ADC2_DMA_ENABLE"});

    c = adcDmaRule("MQ48T260", "ADC1", {});
    EXPECT_EQ(c.withdrawn, QStringList{"ADC1_ADC2_DMA_ENABLE"});
    EXPECT_EQ(c.raised, QStringList{"ADC1_ADC2_DMA_ENABLE"});

    EXPECT_FALSE(adcDmaRule("MQ48T110", "ADC1", {mode}).applies);
    EXPECT_FALSE(adcDmaRule("MQ48T250", "USART1", {mode}).applies);
}

TEST(CouplingRules, SourcesPartnersAndDmaConditionsPerFamily)
{
    EXPECT_TRUE(usbSourceRaisesSemaphore("CRM_USB_CLOCK_SOURCE_HICK"));
    EXPECT_FALSE(usbSourceRaisesSemaphore("CRM_USB_CLOCK_SOURCE_PLL"));
    EXPECT_TRUE(hasI2SF5ClockSource("MQ48T220"));
    EXPECT_FALSE(hasI2SF5ClockSource("MQ48T510"));
    EXPECT_TRUE(i2sf5ExternalClock("CRM_I2SF5_CLOCK_SOURCE_EXTERNAL"));

    EXPECT_EQ(dmaPartner("MQ48T110", "TMR17_OVERFLOW"), "TMR17_CH1");
    EXPECT_EQ(dmaPartner("MQ48T110", "USART1_TX"), "");
    EXPECT_EQ(dmaPartner("MQ48T120", "TMR16_CH1"), "");

    EXPECT_EQ(dmaCondition("MQ48T130", "ADC1").request, "DMARequest_ADC1");
    EXPECT_EQ(dmaCondition("MQ48T520", "DVP").table, "EDMA");
    EXPECT_TRUE(dmaCondition("MQ48T110", "ADC1").table.isEmpty());
}

// Records what the worker passes on, as a mode panel would receive it.
class RefreshRecorder : public QObject
{
public:
    QStringList seen;
    void record(DevicePinInfo *, bool, QString name) { seen << name; }
};

TEST(UpdateIPModeParamThread, NoRefreshIsLostWhenRequestsArriveWhileTheWorkerRuns)
{
    UpdateIPModeParamThread worker;
    RefreshRecorder recorder;
    QObject::connect(&worker, &UpdateIPModeParamThread::UpdateIPModeParam, &recorder,
                     &RefreshRecorder::record, Qt::QueuedConnection);
    const int requests = 2000;
    for (int i = 1; i <= requests; ++i) {
        worker.request(nullptr, false, QString::number(i));
        if (i % 7 == 0)
            QCoreApplication::processEvents();
    }
    QElapsedTimer timer;
    timer.start();
    while ((recorder.seen.isEmpty() || recorder.seen.last() != QString::number(requests)) &&
           timer.elapsed() < 10000) {
        QCoreApplication::processEvents();
    }
    ASSERT_FALSE(recorder.seen.isEmpty());
    EXPECT_EQ(recorder.seen.last(), QString::number(requests));
    // Requests are passed on in order; the ones overtaken by a later one may be merged.
    int last = 0;
    for (const QString &name : recorder.seen) {
        EXPECT_GT(name.toInt(), last);
        last = name.toInt();
    }
    worker.wait();
}

} // namespace
