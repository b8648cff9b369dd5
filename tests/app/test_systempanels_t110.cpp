#include "app/formconfiguration.h"
#include "clock/clocktreestate.h"
#include "clock/mq48clocktree.h"
#include "clock/mq48pllconfig.h"
#include "common/testsupport.h"
#include "database/language.h"
#include "database/paths.h"
#include "peripherals/dma_configuration.h"
#include "peripherals/dmarequestmodel.h"
#include "peripherals/dmasettingwidget.h"
#include "peripherals/gpio_configuration.h"
#include "peripherals/gpiosettingsmodel.h"
#include "peripherals/gpiosettingwidget.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/nvic_configuration.h"
#include "peripherals/nvic_settings.h"
#include "peripherals/nvicmodel.h"
#include "peripherals/peripheralsconfig.h"
#include "peripherals/procheckbox.h"
#include "peripherals/procombobox.h"
#include "pinout/chipview.h"
#include "widgets/messagebox.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

#include "tests/app/appfolder.h"

#include <gtest/gtest.h>

namespace {

// A work form on the shipped database, headless: messages are collected and answered with
// their first button.
class T110Form : public ShippedDatabase
{
public:
    explicit T110Form(const QString &device = QStringLiteral("MQ48T110C8T"),
                      const QString &package = QStringLiteral("LQFP48"))
    {
        built = form.buildDesign(QStringLiteral("MQ48T110"), device, package);
    }
    IP_ModeAndConfiguration *panel(const QString &instance) const
    {
        return form.modePanel(instance);
    }
    void setMode(const QString &instance, const QString &mode, const QString &item)
    {
        ProComboBox *box = panel(instance)->comboBox(mode);
        ASSERT_NE(box, nullptr) << qPrintable(instance + " " + mode);
        const int index = item.isEmpty() ? 0 : box->findText(item);
        ASSERT_GE(index, 0) << qPrintable(item);
        box->setCurrentIndex(index);
    }
    void tick(const QString &instance, const QString &mode, bool on)
    {
        ProCheckBox *box = panel(instance)->checkBox(mode);
        ASSERT_NE(box, nullptr) << qPrintable(instance + " " + mode);
        box->setChecked(on);
    }
    const ClockTreeState &clock() const { return *form.clockPage()->clockState(); }
    MCUPinsBaseInfo *activePin(int num) const
    {
        for (MCUPinsBaseInfo *pin : form.design().devicePinInfo->pins) {
            if (pin->PinNum == num && pin->remapOff)
                return pin;
        }
        return nullptr;
    }
    MCUPinSignal *litSignal(const QString &func) const
    {
        for (MCUPinsBaseInfo *pin : form.design().devicePinInfo->pins) {
            for (MCUPinSignal *s : pin->signalList) {
                if (pin->remapOff && s->Func == func && s->status > SIGNAL_FREE)
                    return s;
            }
        }
        return nullptr;
    }

    FormConfiguration form;
    bool built = false;
};

// The texts of one column of a table.
QStringList column(const QTableWidget *table, int col)
{
    QStringList out;
    for (int r = 0; r < table->rowCount(); ++r)
        out << (table->item(r, col) ? table->item(r, col)->text() : QString());
    return out;
}

int rowOf(const QTableWidget *table, int col, const QString &text)
{
    return column(table, col).indexOf(text);
}

QStringList interruptNames(const NvicModel *model, const QList<int> &rows)
{
    QStringList out;
    for (int i : rows)
        out << model->rows().at(i).irq.IRQName;
    return out;
}

TEST(SystemPanelsT110, EveryDeviceOpensWithoutAnErrorAndOffersOnlyUsablePeripherals)
{
    const QList<QPair<QString, QString>> devices = {
        {"MQ48T110F6P", "TSSOP20"}, {"MQ48T110F8P", "TSSOP20"}, {"MQ48T110K6U", "QFN32"},
        {"MQ48T110K8U", "QFN32"},   {"MQ48T110K8T", "LQFP32"},  {"MQ48T110C8T", "LQFP48"},
        {"MQ48T110CBT", "LQFP48"},
    };
    for (const auto &device : devices) {
        T110Form f(device.first, device.second);
        ASSERT_TRUE(f.built) << qPrintable(device.first);
        EXPECT_TRUE(f.messages.isEmpty())
            << qPrintable(device.first + ": " + f.messages.join(";"));
        for (IP_ModeAndConfiguration *panel : f.form.modePanels()) {
            EXPECT_TRUE(panel->hasUsableMode()) << qPrintable(panel->instanceName());
            EXPECT_FALSE(f.form.peripheralsTree()->itemsOf(panel->instanceName()).isEmpty());
        }
        // The remap check box exists only where its pins do.
        EXPECT_EQ(f.panel("SCFG") != nullptr, device.second == "TSSOP20")
            << qPrintable(device.first);
        // The chip-wide panels come up from the tree.
        for (const QString entry : {"GPIO", "DMA", "NVIC"}) {
            const auto items = f.form.peripheralsTree()->itemsOf(entry);
            ASSERT_FALSE(items.isEmpty()) << qPrintable(entry);
            f.form.peripheralsTree()->ListItem_Clicked(items.first(), 0);
            ASSERT_NE(f.form.shownPanel(), nullptr) << qPrintable(entry);
        }
        EXPECT_EQ(f.form.shownPanel(), f.form.nvicPanel());
    }
}

TEST(SystemPanelsT110, GpioRowsFollowTheModeAndBothTablesShowTheSameEdits)
{
    T110Form f;
    ASSERT_TRUE(f.built);
    GpioSettingsModel *gpio = f.form.gpioModel();
    ASSERT_NE(gpio, nullptr);
    EXPECT_TRUE(gpio->rows().isEmpty());

    f.setMode("USART1", "Mode", "Asynchronous");
    const GpioSettingRow *tx = gpio->row("USART1_TX", "PA9");
    ASSERT_NE(tx, nullptr);
    EXPECT_EQ(tx->instanceName, "USART1");
    EXPECT_EQ(tx->value("GPIO mode"), "GPIO_MODE_MUX");
    EXPECT_EQ(tx->value("Pull type"), "GPIO_PULL_NONE");
    EXPECT_FALSE(tx->modified);
    EXPECT_EQ(f.panel("USART1")->tabTitles(), QStringList({"Parameters Settings", "GPIO Settings",
                                                           "NVIC Settings", "DMA Settings"}));
    EXPECT_EQ(PeripheralsConfig::iconPath(f.form.peripheralsTree()->itemsOf("GPIO").first()),
              ":/image/greenStone.png");

    // An edit in USART1's own table shows, marked, in the chip-wide one.
    GPIOSettingWidget *own = f.panel("USART1")->gpioSettingWidget();
    ASSERT_NE(own, nullptr);
    own->ensureCurrent();
    ASSERT_EQ(own->table()->rowCount(), 2);
    own->TableLineClickedSlot(rowOf(own->table(), 0, "PA9"), 0);
    QComboBox *pull = own->settingBox("Pull type");
    pull->setCurrentIndex(pull->findData("GPIO_PULL_UP"));
    EXPECT_EQ(gpio->row("USART1_TX", "PA9")->value("Pull type"), "GPIO_PULL_UP");
    GPIOSettingWidget *all = f.form.gpioPanel()->mainTable();
    all->ensureCurrent();
    const int allRow = rowOf(all->table(), 0, "PA9");
    ASSERT_GE(allRow, 0);
    EXPECT_EQ(all->table()->item(allRow, 4)->text(), "Pull-up");
    EXPECT_FALSE(all->table()->item(allRow, 8)->icon().isNull());

    // And the other way round.
    all->TableLineClickedSlot(rowOf(all->table(), 0, "PA10"), 0);
    QComboBox *allPull = all->settingBox("Pull type");
    allPull->setCurrentIndex(allPull->findData("GPIO_PULL_DOWN"));
    own->ensureCurrent();
    EXPECT_EQ(own->table()->item(rowOf(own->table(), 0, "PA10"), 4)->text(), "Pull-down");

    // A label typed in the table reaches the drawing; one given on the drawing comes back.
    own->TableLineClickedSlot(rowOf(own->table(), 0, "PA9"), 0);
    QTest::keyClicks(own->labelEdit(), "GPS-TX");
    EXPECT_EQ(own->labelEdit()->text(), "GPSTX");
    EXPECT_EQ(f.messages.count("Label must be letters/numbers/underscores, and start with a "
                               "letter or an underscore."),
              1);
    ASSERT_NE(f.litSignal("USART1_TX"), nullptr);
    EXPECT_EQ(f.litSignal("USART1_TX")->userLabel, "GPSTX");
    MCUPinsBaseInfo relabelled = *f.activePin(f.litSignal("USART1_RX") ? 31 : 0);
    for (MCUPinSignal *s : relabelled.signalList) {
        if (s->Func == "USART1_RX")
            s->userLabel = "GPS_RX";
    }
    f.form.chipDrawing()->UpdatePinConfigInfoUserLabel(relabelled);
    EXPECT_EQ(gpio->row("USART1_RX", "PA10")->userLabel, "GPS_RX");

    // The mode off: the rows go.
    f.setMode("USART1", "Mode", QString());
    EXPECT_EQ(gpio->findRow("USART1_TX", QString()), -1);
    EXPECT_TRUE(gpio->rowsOfInstance("USART1").isEmpty());
}

TEST(SystemPanelsT110, InterruptsFollowTheModesAndBothTablesShareTheirState)
{
    T110Form f;
    ASSERT_TRUE(f.built);
    NvicModel *nvic = f.form.nvicModel();
    ASSERT_NE(nvic, nullptr);
    EXPECT_FALSE(nvic->row("USART1_IRQn")->available);

    f.setMode("USART1", "Mode", "Asynchronous");
    EXPECT_TRUE(nvic->row("USART1_IRQn")->available);
    NVIC_Settings *own = f.panel("USART1")->nvicSettings();
    ASSERT_NE(own, nullptr);
    own->ensureCurrent();
    ASSERT_EQ(interruptNames(nvic, own->shownRows()), QStringList{"USART1_IRQn"});
    ASSERT_NE(own->enableItem(0), nullptr);
    own->enableItem(0)->setCheckState(Qt::Checked);
    EXPECT_TRUE(nvic->row("USART1_IRQn")->enabled());

    NVIC_Configuration *panel = f.form.nvicPanel();
    panel->showTypeBox()->setCurrentIndex(NvicModel::EnabledInterrupts);
    panel->table()->ensureCurrent();
    const QStringList enabled = interruptNames(nvic, panel->table()->shownRows());
    EXPECT_TRUE(enabled.contains("USART1_IRQn"));
    EXPECT_TRUE(enabled.contains("SysTick_IRQn"));
    EXPECT_FALSE(enabled.contains("SPI1_IRQn"));
    const int row = enabled.indexOf("USART1_IRQn");
    EXPECT_EQ(NVIC_Settings::choices(panel->table()->preemptionItem(row)).size(), 16);
    // A priority picked in the table reaches the model.
    panel->table()->preemptionItem(row)->setText("5");
    EXPECT_EQ(nvic->row("USART1_IRQn")->irq.preemption, 5);

    // A priority group with two preemption bits clips the priority the user chose.
    ASSERT_TRUE(nvic->setPreemption("USART1_IRQn", 9));
    panel->priorityGroupBox()->setCurrentIndex(
        panel->priorityGroupBox()->findData("NVIC_PRIORITY_GROUP_2"));
    EXPECT_EQ(nvic->row("USART1_IRQn")->irq.preemption, 3);
    own->ensureCurrent();
    EXPECT_EQ(NVIC_Settings::choices(own->preemptionItem(0)), QStringList({"0", "1", "2", "3"}));
    EXPECT_EQ(own->preemptionItem(0)->text(), "3");

    // The mode off releases the interrupt.
    f.setMode("USART1", "Mode", QString());
    EXPECT_FALSE(nvic->row("USART1_IRQn")->available);
    EXPECT_FALSE(nvic->row("USART1_IRQn")->enabled());
}

TEST(SystemPanelsT110, DmaRequestsAreAddedInTheirTabsAndGoWithTheMode)
{
    T110Form f;
    ASSERT_TRUE(f.built);
    ASSERT_EQ(f.form.dmaModels().size(), 1);
    DmaRequestModel *dma = f.form.dmaModels().first();
    DMA_Configuration *panel = f.form.dmaPanels().first();
    EXPECT_EQ(panel->tabWidget()->count(), 2);

    // Nothing configured: the DMA1 tab has nothing to offer.
    panel->settingWidget("DMA1")->AddButtonClickedSlot();
    EXPECT_EQ(f.messages.takeLast(), "No available DMA requests for configurated peripherals!");

    f.setMode("USART1", "Mode", "Asynchronous");
    const QList<DMASettingWidget *> own = f.panel("USART1")->dmaSettingWidgets();
    ASSERT_EQ(own.size(), 1);
    DMASettingWidget *table = own.first();
    for (const QString request : {"USART1_TX", "USART1_RX"}) {
        table->AddButtonClickedSlot();
        QComboBox *choice = table->pendingRequestBox();
        ASSERT_NE(choice, nullptr);
        choice->setCurrentIndex(choice->findText(request));
    }
    ASSERT_EQ(dma->requests().size(), 2);
    EXPECT_EQ(dma->requests().at(0).channel, "DMA1_Channel2");
    EXPECT_EQ(dma->requests().at(1).channel, "DMA1_Channel3");
    table->AddButtonClickedSlot();
    EXPECT_EQ(f.messages.takeLast(), "No available DMA channels for configurated peripherals!");

    // The chip-wide tab shows them; the DMA vector joins USART1's interrupts.
    DMASettingWidget *dma1 = panel->settingWidget("DMA1");
    dma1->ensureCurrent();
    EXPECT_EQ(column(dma1->table(), 0), QStringList({"USART1_TX", "USART1_RX"}));
    EXPECT_TRUE(f.form.nvicModel()->row("DMA1_Channel3_2_IRQn")->available);
    EXPECT_TRUE(interruptNames(f.form.nvicModel(), f.form.nvicModel()->rowsOfInstance("USART1"))
                    .contains("DMA1_Channel3_2_IRQn"));

    // Moving RX to channel 5 through its row.
    table->ensureCurrent();
    QComboBox *channel = table->channelBox(1);
    ASSERT_NE(channel, nullptr);
    EXPECT_EQ(channel->count(), 2);
    channel->setCurrentIndex(channel->findData("DMA1_Channel5"));
    emit channel->activated(channel->currentIndex());
    EXPECT_EQ(dma->requests().at(1).channel, "DMA1_Channel5");

    // Memory to memory needs no peripheral.
    DMASettingWidget *m2m = panel->settingWidget("MemToMem");
    m2m->AddButtonClickedSlot();
    ASSERT_NE(m2m->pendingRequestBox(), nullptr);
    m2m->pendingRequestBox()->setCurrentIndex(m2m->pendingRequestBox()->findText("MEMTOMEM"));
    EXPECT_EQ(dma->requestsOfTab("MemToMem").size(), 1);
    EXPECT_EQ(dma->requests().last().channel, "DMA1_Channel1");

    // USART1 switched off: its requests and the DMA vector go, the transfer stays.
    f.setMode("USART1", "Mode", QString());
    ASSERT_EQ(dma->requests().size(), 1);
    EXPECT_EQ(dma->requests().first().name, "MEMTOMEM");
    EXPECT_FALSE(f.form.nvicModel()->row("DMA1_Channel3_2_IRQn")->available);
    dma1->ensureCurrent();
    EXPECT_EQ(dma1->table()->rowCount(), 0);
    const auto dmaIcon = [&f] {
        return PeripheralsConfig::iconPath(f.form.peripheralsTree()->itemsOf("DMA").first());
    };
    EXPECT_EQ(dmaIcon(), ":/image/greenStone.png");
    ASSERT_TRUE(dma->removeRequest(0));
    EXPECT_EQ(dmaIcon(), ":/image/background-light.png");
}

TEST(SystemPanelsT110, CrmOscillatorsAndClockOutputReachTheClockTree)
{
    T110Form f;
    ASSERT_TRUE(f.built);
    ASSERT_NE(f.form.clockPage()->clockState(), nullptr);
    EXPECT_FALSE(f.clock().hextEnabled);

    f.setMode("CRM", "HEXT", "Crystal/Ceramic Resonator");
    EXPECT_TRUE(f.clock().hextEnabled);
    EXPECT_FALSE(f.clock().hextBypass);
    f.setMode("CRM", "HEXT", "BYPASS Clock Source");
    EXPECT_TRUE(f.clock().hextEnabled);
    EXPECT_TRUE(f.clock().hextBypass);
    f.setMode("CRM", "HEXT", QString());
    EXPECT_FALSE(f.clock().hextEnabled);
    f.setMode("CRM", "LEXT", "Crystal/Ceramic Resonator");
    EXPECT_TRUE(f.clock().lextEnabled);

    QWidget *divider = f.form.clockPage()->tree()->control("clockoutdiv");
    ASSERT_NE(divider, nullptr);
    EXPECT_FALSE(divider->isEnabled());
    f.tick("CRM", "CLKOUT", true);
    EXPECT_EQ(f.clock().clkoutpin, 1); // PA8
    EXPECT_TRUE(divider->isEnabled());
    f.tick("CRM", "CLKOUT", false);
    EXPECT_EQ(f.clock().clkoutpin, 0);
    EXPECT_FALSE(divider->isEnabled());
}

TEST(SystemPanelsT110, ScfgRemapMovesPa11AndPa12OnTheTssop20Device)
{
    T110Form f("MQ48T110F6P", "TSSOP20");
    ASSERT_TRUE(f.built);
    ASSERT_NE(f.activePin(17), nullptr);
    EXPECT_EQ(f.activePin(17)->PinName.trimmed(), "PA9");
    f.tick("SCFG", "PA11 PA12 remap", true);
    EXPECT_EQ(f.activePin(17)->PinName.trimmed(), "PA11");
    EXPECT_EQ(f.activePin(18)->PinName.trimmed(), "PA12");
    f.tick("SCFG", "PA11 PA12 remap", false);
    EXPECT_EQ(f.activePin(17)->PinName.trimmed(), "PA9");
}

TEST(SystemPanelsT110, ParameterListsReachTheOtherPanelsWithoutComingBack)
{
    T110Form f;
    ASSERT_TRUE(f.built);
    QList<std::shared_ptr<QSignalSpy>> spies;
    for (IP_ModeAndConfiguration *panel : f.form.modePanels())
        spies << std::make_shared<QSignalSpy>(panel,
                                              &IP_ModeAndConfiguration::SendParamList_To_OtherIP);
    RefParameter mode;
    mode.Name = "Mode";
    mode.Value = "ADC_INDEPENDENT_MODE";
    f.form.ReceiveParamList_From_OtherIP({mode}, "ADC1");
    int sent = 0;
    for (const auto &spy : spies)
        sent += spy->count();
    EXPECT_EQ(sent, 0);

    // A panel's own list goes out once and stops there.
    f.panel("ADC1")->ReciveIPParamList({mode}, "ADC1");
    sent = 0;
    for (const auto &spy : spies)
        sent += spy->count();
    EXPECT_EQ(sent, 1);
}

TEST(SystemPanelsT110, ResetAllReturnsModesParametersGpioNvicAndDmaToTheirDefaults)
{
    T110Form f;
    ASSERT_TRUE(f.built);
    f.setMode("USART1", "Mode", "Asynchronous");
    f.setMode("CRM", "HEXT", "Crystal/Ceramic Resonator");
    ASSERT_TRUE(f.form.gpioModel()->setParameter("USART1_TX", "PA9", "Pull type", "GPIO_PULL_UP"));
    ASSERT_TRUE(f.form.nvicModel()->setEnabled("USART1_IRQn", true));
    ASSERT_TRUE(f.form.nvicModel()->setPriorityGroup("NVIC_PRIORITY_GROUP_1"));
    ASSERT_TRUE(f.form.dmaModels().first()->addRequest("USART1_TX").ok());
    ASSERT_TRUE(f.form.dmaModels().first()->addRequest("MEMTOMEM").ok());

    f.form.AllConfigReset();
    EXPECT_EQ(f.messages.last(), "Reset succeed!");
    EXPECT_EQ(f.panel("USART1")->comboBox("Mode")->currentIndex(), 0);
    EXPECT_EQ(f.panel("USART1")->status(), IPSTATUS_INACTIVE);
    EXPECT_EQ(PeripheralsConfig::iconPath(f.form.peripheralsTree()->itemsOf("USART1").first()),
              ":/image/background-light.png");
    EXPECT_EQ(f.panel("CRM")->comboBox("HEXT")->currentIndex(), 0);
    EXPECT_TRUE(f.form.configuredInstances().isEmpty());
    EXPECT_TRUE(f.form.gpioModel()->rows().isEmpty());
    EXPECT_TRUE(f.form.dmaModels().first()->requests().isEmpty());
    EXPECT_FALSE(f.form.nvicModel()->row("USART1_IRQn")->enabled());
    EXPECT_EQ(f.form.nvicModel()->priorityGroup(), "NVIC_PRIORITY_GROUP_4");
    EXPECT_EQ(f.litSignal("USART1_TX"), nullptr);
}

TEST(SystemPanelsT110, APanelsOwnResetClearsItsGpioDmaAndInterruptsButKeepsItsMode)
{
    T110Form f;
    ASSERT_TRUE(f.built);
    f.setMode("USART1", "Mode", "Asynchronous");
    f.setMode("SPI1", "Mode", "Full-Duplex Master");
    GpioSettingsModel *gpio = f.form.gpioModel();
    DmaRequestModel *dma = f.form.dmaModels().first();
    ASSERT_TRUE(gpio->setParameter("USART1_TX", "PA9", "Pull type", "GPIO_PULL_UP"));
    ASSERT_TRUE(gpio->setParameter("SPI1_SCK", "PA5", "Pull type", "GPIO_PULL_UP"));
    ASSERT_TRUE(dma->addRequest("USART1_TX").ok());
    ASSERT_TRUE(dma->addRequest("SPI1_TX").ok());
    ASSERT_TRUE(f.form.nvicModel()->setEnabled("USART1_IRQn", true));

    f.panel("USART1")->ResetConfigurationClickedSlot();
    EXPECT_EQ(f.panel("USART1")->comboBox("Mode")->currentIndex(),
              f.panel("USART1")->comboBox("Mode")->findText("Asynchronous"));
    EXPECT_EQ(gpio->row("USART1_TX", "PA9")->value("Pull type"), "GPIO_PULL_NONE");
    EXPECT_EQ(gpio->row("SPI1_SCK", "PA5")->value("Pull type"), "GPIO_PULL_UP");
    ASSERT_EQ(dma->requests().size(), 1);
    EXPECT_EQ(dma->requests().first().name, "SPI1_TX");
    EXPECT_FALSE(f.form.nvicModel()->row("USART1_IRQn")->enabled());
    EXPECT_TRUE(f.form.nvicModel()->row("USART1_IRQn")->available);
}

} // namespace
