#include "clock/clockfamilies.h"
#include "clock/mq48clocktree.h"
#include "clock/mq48pllconfig.h"
#include "database/devicereader.h"
#include "database/language.h"
#include "database/paths.h"
#include "peripherals/calculators/paramlist.h"
#include "peripherals/customcombobox.h"
#include "peripherals/customlineedit.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/oneparamwidget.h"
#include "peripherals/paramsettingwidget.h"
#include "peripherals/procheckbox.h"
#include "peripherals/procombobox.h"
#include "widgets/messagebox.h"

#include <QLabel>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

// Parameter panels of the shipped MQ48T110 database, fed by a real clock page.

namespace {

const QString kSeries = QStringLiteral("MQ48T110");
const QString kDevice = QStringLiteral("MQ48T110C8T");

class T110Panel
{
public:
    explicit T110Panel(const QString &instance)
    {
        g_language = 0;
        setAppFolderOverride(QStringLiteral(MQ48_SOURCE_DIR));
        setUserMessageHandler([this](QWidget *, const UserMessage &m) {
            messages << m.text;
            return 0;
        });
        const QString path = deviceFilePath(kSeries, kDevice);
        info.reset(NewDevicePinInfo(path));
        for (const PeripheralListItem &row : GetPeripheralsList(path)) {
            if (row.InstanceName == instance)
                panel = std::make_unique<IP_ModeAndConfiguration>(row, IPNode(), kDevice, kSeries,
                                                                  info.get());
        }
        page.setMcuModel(ClockModel::T110);
        params = panel ? panel->paramSettingWidget() : nullptr;
        if (params) {
            QObject::connect(&page, &MQ48PLLConfig::SendClockChangedSignal, params,
                             &ParamSettingWidget::ReciveClockChangedSignal);
            params->setClockPage(&page);
        }
    }
    ~T110Panel()
    {
        panel.reset();
        setUserMessageHandler({});
        setAppFolderOverride(QString());
        g_language = 1;
    }

    // Lets the mode thread, the queued rebuild and the 100 ms refresh run.
    void settle()
    {
        for (int i = 0; i < 3; ++i) {
            params->modeThread.wait();
            QTest::qWait(150);
        }
    }

    // The clock tree set to the PLL at a system clock, as a user types it; waits until the
    // tree has told its listeners.
    void setSystemClock(const QString &mhz)
    {
        QSignalSpy changed(&page, &MQ48PLLConfig::SendClockChangedSignal);
        auto *pll = qobject_cast<QRadioButton *>(page.tree()->control("sclkselect_1"));
        ASSERT_NE(pll, nullptr);
        pll->click();
        auto *sclk = qobject_cast<QLineEdit *>(page.tree()->control("sclk"));
        ASSERT_NE(sclk, nullptr);
        sclk->selectAll();
        sclk->del();
        QTest::keyClicks(sclk, mhz);
        QTest::keyClick(sclk, Qt::Key_Return);
        ASSERT_TRUE(changed.wait(2000));
        settle();
    }

    OneParamWidget *row(const QString &name) const { return params->rowOf(name); }

    MQ48PLLConfig page;
    std::unique_ptr<DevicePinInfo> info;
    std::unique_ptr<IP_ModeAndConfiguration> panel;
    ParamSettingWidget *params = nullptr;
    QStringList messages;
};

void chooseMode(IP_ModeAndConfiguration *panel, const QString &mode, const QString &item)
{
    ProComboBox *box = panel->comboBox(mode);
    ASSERT_NE(box, nullptr) << qPrintable(mode);
    const int index = box->findText(item);
    ASSERT_GE(index, 0) << qPrintable(item);
    box->setCurrentIndex(index);
}

int comboIndex(OneParamWidget *row, const QString &value)
{
    const QList<int> indexes = row->comboValueIndexes();
    for (int i = 0; i < indexes.size(); ++i) {
        if (row->parameter().PossibleValues.at(indexes.at(i)).Value == value)
            return i;
    }
    return -1;
}

} // namespace

TEST(T110CalculatorPanels, UsartBaudRateRangeFollowsTheClockTree)
{
    T110Panel t("USART1");
    ASSERT_NE(t.params, nullptr);
    const auto range = [&t] {
        const double hz = t.page.clockOfPeripheral("USART1") * 1e6;
        return QStringLiteral("Baud Rate (%1-%2)").arg(qint64(hz / 65535)).arg(qint64(hz / 16));
    };
    ASSERT_GT(t.page.clockOfPeripheral("USART1"), 0.0);
    EXPECT_EQ(t.row("BaudRate")->label()->text(), range());

    // A huge rate snaps to the highest one the clock gives.
    const QString top = QString::number(qint64(t.page.clockOfPeripheral("USART1") * 1e6 / 16));
    CustomLineEdit *edit = t.row("BaudRate")->lineEdit();
    edit->setText("99999999");
    edit->editingFinished();
    EXPECT_EQ(edit->text(), top + " Bits/s");
    EXPECT_EQ(t.params->parameterValue("BaudRate"), top);
    t.settle();
    EXPECT_TRUE(t.row("BaudRate")->isValueValid());
    EXPECT_TRUE(t.row("BaudRate")->noteText().startsWith("Real baud rate"));

    // A faster clock widens the range; the value stays and stays valid.
    t.setSystemClock("120");
    EXPECT_DOUBLE_EQ(t.page.clockOfPeripheral("USART1"), 120.0);
    EXPECT_EQ(t.row("BaudRate")->label()->text(), "Baud Rate (1831-7500000)");
    EXPECT_TRUE(t.row("BaudRate")->isValueValid());

    // A rate above what a slower clock allows turns the row red and says why.
    edit = t.row("BaudRate")->lineEdit();
    edit->setText("7000000");
    edit->editingFinished();
    t.settle();
    t.setSystemClock("48");
    OneParamWidget *baud = t.row("BaudRate");
    EXPECT_EQ(baud->label()->text(), "Baud Rate (732-3000000)");
    EXPECT_FALSE(baud->isValueValid());
    EXPECT_EQ(baud->problemText(), "The value must lie between 732 and 3000000.");
    EXPECT_TRUE(baud->messageLabel()->isVisibleTo(baud));
    EXPECT_EQ(t.params->paramStatus, IPPARAMSTATUS_INVALID);
}

TEST(T110CalculatorPanels, SpiDividersAboveTheSckLimitAreGreyedAndExplained)
{
    T110Panel t("SPI1");
    ASSERT_NE(t.params, nullptr);
    chooseMode(t.panel.get(), "Mode", "Full-Duplex Master");
    t.settle();
    t.setSystemClock("120");
    OneParamWidget *row = t.row("ClkDivision");
    ASSERT_NE(row, nullptr);
    auto *model = qobject_cast<QStandardItemModel *>(row->comboBox()->model());
    ASSERT_NE(model, nullptr);
    // 120 MHz / 2 and / 3 exceed the 36 MHz limit; / 4 gives 30 MHz.
    const int div2 = comboIndex(row, "SPI_MCLK_DIV_2");
    const int div4 = comboIndex(row, "SPI_MCLK_DIV_4");
    EXPECT_EQ(row->comboBox()->itemText(div2), "2 (60 MHz)");
    EXPECT_EQ(row->comboBox()->itemText(div4), "4 (30 MHz)");
    EXPECT_NE(model->item(div2)->foreground().color(), model->item(div4)->foreground().color());
    EXPECT_NE(model->item(comboIndex(row, "SPI_MCLK_DIV_3"))->foreground().color(),
              model->item(div4)->foreground().color());
    // The default /2 can't stay: the row is red with the reason.
    EXPECT_FALSE(row->isValueValid());
    EXPECT_TRUE(row->problemText().startsWith("\"SPI1\" \"Clock Division\" parameter setting is "
                                              "incorrect."));

    // Choosing a greyed divider raises the error box once.
    row->comboBox()->setCurrentIndex(comboIndex(row, "SPI_MCLK_DIV_3"));
    t.settle();
    ASSERT_EQ(t.messages.size(), 1);
    EXPECT_TRUE(t.messages.first().contains("40.000 MHz"));
    EXPECT_EQ(t.params->paramStatus, IPPARAMSTATUS_INVALID);
    t.row("ClkDivision")->comboBox()->setCurrentIndex(div4);
    t.settle();
    EXPECT_TRUE(t.row("ClkDivision")->isValueValid());
    EXPECT_EQ(t.params->paramStatus, IPPARAMSTATUS_VALID);
    EXPECT_EQ(t.messages.size(), 1);
}

TEST(T110CalculatorPanels, TimerPwmChannelLeavesNoRedRows)
{
    T110Panel t("TMR1");
    ASSERT_NE(t.params, nullptr);
    ProCheckBox *activated = t.panel->checkBox("Activated");
    ASSERT_NE(activated, nullptr);
    activated->setChecked(true);
    chooseMode(t.panel.get(), "Channel1", "PWM Generation CH1");
    t.settle();
    for (const char *name : {"Channel1Mode", "OCMode_1", "OCState_1"}) {
        OneParamWidget *row = t.row(name);
        ASSERT_NE(row, nullptr) << name;
        EXPECT_TRUE(row->isValueValid()) << name << " " << qPrintable(row->problemText());
    }
    EXPECT_EQ(t.params->parameterValue("Channel1Mode"), "OUTPUT");
    EXPECT_EQ(t.params->parameterValue("OCMode_1"), "TMR_OUTPUT_CONTROL_PWM_MODE_A");
    EXPECT_EQ(t.params->parameterValue("OCState_1"), "TRUE");
    EXPECT_EQ(t.params->paramStatus, IPPARAMSTATUS_VALID);

    // Back to output compare: the values follow again, none is red.
    chooseMode(t.panel.get(), "Channel1", "Output Compare CH1");
    t.settle();
    EXPECT_EQ(t.params->parameterValue("OCMode_1"), "TMR_OUTPUT_CONTROL_OFF");
    EXPECT_EQ(t.params->paramStatus, IPPARAMSTATUS_VALID);

    // A mode the user chose and the next channel mode takes away is red and named ...
    OneParamWidget *mode = t.row("OCMode_1");
    mode->comboBox()->setCurrentIndex(comboIndex(mode, "TMR_OUTPUT_CONTROL_SWITCH"));
    t.settle();
    chooseMode(t.panel.get(), "Channel1", "PWM Generation CH1");
    t.settle();
    mode = t.row("OCMode_1");
    EXPECT_FALSE(mode->isValueValid());
    EXPECT_EQ(mode->problemText(),
              "\"Toggle on match\" is not available with the current settings. Choose a value.");
    EXPECT_EQ(t.params->paramStatus, IPPARAMSTATUS_INVALID);
    // ... until the user confirms the value shown.
    emit mode->comboBox()->activated(mode->comboBox()->currentIndex());
    t.settle();
    EXPECT_TRUE(t.row("OCMode_1")->isValueValid());
    EXPECT_EQ(t.params->parameterValue("OCMode_1"), "TMR_OUTPUT_CONTROL_PWM_MODE_A");
    EXPECT_EQ(t.params->paramStatus, IPPARAMSTATUS_VALID);
}

TEST(T110CalculatorPanels, AdcTemperatureSensorLeavesNoRedRow)
{
    T110Panel t("ADC1");
    ASSERT_NE(t.params, nullptr);
    ProCheckBox *in0 = t.panel->checkBox("IN0");
    ProCheckBox *temp = t.panel->checkBox("Temperature Sensor Channel");
    ASSERT_NE(in0, nullptr);
    ASSERT_NE(temp, nullptr);
    in0->setChecked(true);
    temp->setChecked(true);
    t.settle();
    ASSERT_NE(t.row("TemperatureVINTRV"), nullptr);
    EXPECT_EQ(t.params->parameterValue("TemperatureVINTRV"), "TRUE");
    const auto allValid = [&t] {
        for (OneParamWidget *r : t.params->rows) {
            EXPECT_TRUE(r->isValueValid())
                << r->parameter().Name.toStdString() << ": " << r->problemText().toStdString();
        }
        EXPECT_EQ(t.params->paramStatus, IPPARAMSTATUS_VALID);
    };
    allValid();
    temp->setChecked(false);
    t.settle();
    EXPECT_EQ(t.params->parameterValue("TemperatureVINTRV"), "FALSE");
    allValid();
}

TEST(T110CalculatorPanels, TimerFiltersAndDiagramFollowTheClock)
{
    T110Panel t("TMR3");
    ASSERT_NE(t.params, nullptr);
    QSignalSpy diagram(t.params, &ParamSettingWidget::SendTMRParamValue);
    t.params->ParamModefySlot("InputFilter_CH1", "1", true);
    t.params->ParamModefySlot("DividerValue", "119", true);
    t.settle();
    t.setSystemClock("120");
    const double clock = t.page.clockOfPeripheral("TMR3");
    ASSERT_GT(clock, 0.0);
    EXPECT_EQ(t.params->parameterValue("InputFilter_CH1_Frequency"),
              QString::number(quint32(clock * 1e6) / 4));
    ASSERT_FALSE(diagram.isEmpty());
    const QList<QVariant> last = diagram.last();
    EXPECT_DOUBLE_EQ(last.at(0).toDouble(), clock);
    EXPECT_EQ(last.at(1).toUInt(), 119u);
    EXPECT_EQ(last.at(2).toUInt(), 65535u);
    EXPECT_EQ(last.at(3).toUInt(), 1u);
}
