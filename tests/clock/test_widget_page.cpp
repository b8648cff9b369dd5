#include "clock/clockfamilies.h"
#include "clock/mq48clocktree.h"
#include "clock/mq48pllconfig.h"
#include "test_widget_support.h"

#include <QComboBox>
#include <QDomDocument>
#include <QRadioButton>
#include <QSignalSpy>
#include <QXmlStreamWriter>
#include <gtest/gtest.h>

namespace {

class PageTest : public ::testing::Test
{
protected:
    MessageRecorder rec;
};

QDomElement savedElement(const MQ48PLLConfig &page, QDomDocument &doc)
{
    QString xml;
    QXmlStreamWriter writer(&xml);
    writer.writeStartDocument();
    EXPECT_TRUE(page.saveClockConfig(writer));
    writer.writeEndDocument();
    EXPECT_TRUE(doc.setContent(xml));
    return doc.documentElement();
}

} // namespace

TEST_F(PageTest, ModelsWithoutATreeLeaveThePageEmptyAndAnswerNeutrally)
{
    MQ48PLLConfig page;
    for (int model : {int(ClockModel::T230), int(ClockModel::T050), 3, 30}) {
        page.setMcuModel(model);
        EXPECT_EQ(page.treeWidget(), nullptr) << model;
        EXPECT_FALSE(page.checkClockConfig());
        EXPECT_EQ(page.clockOfPeripheral("USART1"), 0.0);
        EXPECT_EQ(page.hextValue(), 0.0);
        EXPECT_TRUE(page.usbClockSourceMacro().isEmpty());
        EXPECT_EQ(page.clockState(), nullptr);
        page.setHext(true, false); // hooks must not crash on an empty page
        page.setPeripheralClockGate("ADC1", true);
    }
    EXPECT_TRUE(rec.texts.isEmpty());
}

TEST_F(PageTest, EachModelGetsItsNamedTreeAndReplacesThePreviousOne)
{
    MQ48PLLConfig page;
    QPointer<QWidget> previous;
    for (const ClockFamily *f : treeClockFamilies()) {
        page.setMcuModel(f->model);
        ASSERT_TRUE(page.treeWidget()) << f->name;
        EXPECT_STREQ(page.treeWidget()->metaObject()->className(), f->treeClass);
        EXPECT_TRUE(previous.isNull()) << "previous tree kept alive before " << f->name;
        EXPECT_EQ(page.mcuSeries(), QString::fromLatin1(f->series));
        EXPECT_NEAR(page.clockState()->sclk, f->defaults.expectedSclk, 1e-9) << f->name;
        previous = page.treeWidget();
    }
}

TEST_F(PageTest, TreeSignalsAreRelayedByThePage)
{
    MQ48PLLConfig page;
    page.setMcuModel(ClockModel::T220);
    QSignalSpy changed(&page, &MQ48PLLConfig::SendClockChangedSignal);
    QSignalSpy errors(&page, &MQ48PLLConfig::SendClockHaveErrorSignal);
    QSignalSpy i2sf5(&page, &MQ48PLLConfig::SendI2SF5ClockSourceChangeSignal);
    page.setPeripheralClockGate("I2SF5", true);
    auto *sclk = qobject_cast<QRadioButton *>(page.tree()->control("i2sf5clocksel_1"));
    ASSERT_TRUE(sclk && sclk->isEnabled());
    sclk->click();
    EXPECT_FALSE(errors.isEmpty());
    EXPECT_TRUE(i2sf5.wait(1000));
    EXPECT_GE(changed.count(), 1);
    EXPECT_DOUBLE_EQ(page.clockOfPeripheral("I2SF5"), page.clockState()->sclk);
}

TEST_F(PageTest, PeripheralClockLookupFollowsTheBuses)
{
    MQ48PLLConfig page;
    page.setMcuModel(ClockModel::T510);
    const ClockTreeState *s = page.clockState();
    EXPECT_DOUBLE_EQ(page.clockOfPeripheral("USART2"), s->apb1clk);
    EXPECT_DOUBLE_EQ(page.clockOfPeripheral("TMR1"), s->apb2tmrclk);
    EXPECT_DOUBLE_EQ(page.clockOfPeripheral("QSPI1"), s->ahbclk);
    EXPECT_EQ(page.clockOfPeripheral("NOPE"), 0.0);
    EXPECT_DOUBLE_EQ(page.apb2Value(), s->apb2clk);
    EXPECT_EQ(page.systickDivider(), 8);
}

TEST_F(PageTest, ResetAsksFirstAndCancelKeepsTheConfiguration)
{
    MQ48PLLConfig page;
    page.setMcuModel(ClockModel::T510);
    auto *ahb = qobject_cast<QComboBox *>(page.tree()->control("ahbdiv"));
    ahb->setCurrentIndex(2);
    rec.answers = {false};
    page.ConfigReset();
    ASSERT_EQ(rec.messages.size(), 1);
    EXPECT_EQ(rec.messages[0].title, "Warning");
    EXPECT_EQ(rec.texts[0],
              "The current configuration will be reset. Please confirm whether to continue?");
    EXPECT_EQ(page.clockState()->ahbdiv, 4);
    rec.answers = {true};
    page.ConfigReset();
    EXPECT_EQ(page.clockState()->ahbdiv, 1);
    EXPECT_EQ(ahb->currentIndex(), 0);
}

TEST_F(PageTest, DesignRoundTripRestoresTheTree)
{
    MQ48PLLConfig page;
    page.setMcuModel(ClockModel::T510);
    page.setHext(true, false);
    MQ48ClockTree *tree = page.tree();
    typeInto(qobject_cast<QLineEdit *>(tree->control("hext")), "12");
    qobject_cast<QComboBox *>(tree->control("apb2div"))->setCurrentIndex(2);
    typeInto(qobject_cast<QLineEdit *>(tree->control("sclk")), "200");
    const ClockTreeState before = *page.clockState();

    QDomDocument doc;
    const QDomElement element = savedElement(page, doc);
    MQ48PLLConfig other;
    other.loadClockConfig(element, "MQ48T510");
    ASSERT_TRUE(other.tree());
    const ClockTreeState &after = *other.clockState();
    EXPECT_DOUBLE_EQ(after.hext, 12.0);
    EXPECT_EQ(after.pllms, before.pllms);
    EXPECT_EQ(after.pllns, before.pllns);
    EXPECT_EQ(after.apb2div, 4);
    EXPECT_DOUBLE_EQ(after.sclk, before.sclk);
    EXPECT_EQ(qobject_cast<QLineEdit *>(other.tree()->control("hext"))->text(), "12.000000");
    EXPECT_EQ(qobject_cast<QComboBox *>(other.tree()->control("apb2div"))->currentIndex(), 2);
    EXPECT_TRUE(rec.texts.isEmpty());
}

TEST_F(PageTest, UnknownSeriesInADesignIsRefused)
{
    MQ48PLLConfig page;
    QDomDocument doc;
    doc.setContent(QStringLiteral("<ClockConfiguration rtcsel=\"0\"/>"));
    page.loadClockConfig(doc.documentElement(), "MQ48T230");
    EXPECT_EQ(page.treeWidget(), nullptr);
    ASSERT_EQ(rec.messages.size(), 1);
    EXPECT_EQ(rec.messages[0].title, "Warning");
    EXPECT_EQ(rec.texts[0], "MCU in file not supported.");
}

TEST_F(PageTest, HooksReachTheTreeOfTheirFamilyOnly)
{
    MQ48PLLConfig page;
    page.setMcuModel(ClockModel::T510);
    page.setClockOutPin(1); // single output: not on the T510
    EXPECT_EQ(page.clockState()->clkoutpin, 0);
    page.setClockOut2Pin(1);
    EXPECT_EQ(page.clockState()->clkout2pin, 1);
    page.setPeripheralClockGate("USB_OTGFS2", true);
    EXPECT_TRUE(page.clockState()->usbEnabled);
    page.setPeripheralClockGate("ADC1", true); // not gated on this family
    EXPECT_FALSE(page.clockState()->adcEnabled);

    page.setMcuModel(ClockModel::T110);
    page.setClockOut1Pin(1);
    EXPECT_EQ(page.clockState()->clkout1pin, 0);
    page.setClockOutPin(3);
    EXPECT_EQ(page.clockState()->clkoutpin, 3);
    page.setPeripheralClockGate("ADC1", true);
    EXPECT_TRUE(page.clockState()->adcEnabled);
    EXPECT_FALSE(page.adcDivMacro().isEmpty());
    EXPECT_TRUE(page.usbDivMacro().isEmpty());
}
