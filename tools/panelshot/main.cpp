// panelshot <output folder>: builds an MQ48T110C8T design with USART1 (DMA on TX and RX),
// SPI1, TMR1 and ADC1, then saves the chip-wide GPIO, NVIC and DMA panels and USART1's own
// GPIO, NVIC and DMA tabs, I2C1's and TMR1's parameters with their timing diagrams, and the
// New Design dialog, in English and in Chinese.

#include "app/formconfiguration.h"
#include "app/new_design_select.h"
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
#include "peripherals/nvicmodel.h"
#include "peripherals/paramsettingwidget.h"
#include "peripherals/peripheralsconfig.h"
#include "widgets/messagebox.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QTabWidget>
#include <QTranslator>

#include <cstdio>

namespace {

void settle()
{
    for (int i = 0; i < 5; ++i)
        QApplication::processEvents();
}

bool save(QWidget *window, const QString &file)
{
    settle();
    if (!window->grab().save(file)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
        return false;
    }
    std::printf("%s\n", qPrintable(file));
    return true;
}

void choose(FormConfiguration &form, const QString &entry)
{
    const auto items = form.peripheralsTree()->itemsOf(entry);
    if (!items.isEmpty())
        form.peripheralsTree()->ListItem_Clicked(items.first(), 0);
}

bool shoot(const QString &out, const QString &suffix)
{
    FormConfiguration form;
    form.resize(1600, 1000);
    if (!form.buildDesign("MQ48T110", "MQ48T110C8T", "LQFP48"))
        return false;
    form.show();
    settle();

    // By the names of the database, so that the same selections are made in both languages.
    form.modePanel("USART1")->setModeSelection("Mode", "Asynchronous");
    form.modePanel("SPI1")->setModeSelection("Mode", "Full-Duplex Master");
    form.modePanel("TMR1")->setModeSelection("Activated", "TRUE");
    form.modePanel("ADC1")->setModeSelection("IN0", "TRUE");
    form.modePanel("ADC1")->setModeSelection("IN1", "TRUE");

    DmaRequestModel *dma = form.dmaModels().value(0);
    if (dma) {
        dma->addRequest("USART1_TX");
        dma->addRequest("USART1_RX");
        const int rx = dma->requestsOfInstance("USART1").value(1, -1);
        dma->setParameter(rx, "Priority", "DMA_PRIORITY_HIGH");
        dma->addRequest("MEMTOMEM");
    }
    NvicModel *nvic = form.nvicModel();
    nvic->setPriorityGroup("NVIC_PRIORITY_GROUP_2");
    nvic->setEnabled("USART1_IRQn", true);
    nvic->setPreemption("USART1_IRQn", 1);
    nvic->setSub("USART1_IRQn", 2);
    nvic->setEnabled("DMA1_Channel3_2_IRQn", true);
    nvic->setEnabled("ADC1_CMP_IRQn", true);
    GpioSettingsModel *gpio = form.gpioModel();
    gpio->setParameter("USART1_RX", "PA10", "Pull type", "GPIO_PULL_UP");
    gpio->setLabel("USART1_TX", "PA9", "GPS_TX");

    bool ok = true;
    choose(form, "GPIO");
    form.gpioPanel()->mainTable()->TableLineClickedSlot(1, 0);
    ok = save(&form, out + "/gpio_panel_" + suffix + ".png") && ok;
    choose(form, "NVIC");
    form.nvicPanel()->showTypeBox()->setCurrentIndex(NvicModel::AvailableInterrupts);
    ok = save(&form, out + "/nvic_panel_" + suffix + ".png") && ok;
    choose(form, "DMA");
    if (DMA_Configuration *panel = form.dmaPanels().value(0)) {
        panel->settingWidgets().first()->selectRequest(
            dma->requestsOfInstance("USART1").value(1, -1));
        ok = save(&form, out + "/dma_panel_" + suffix + ".png") && ok;
    }

    choose(form, "USART1");
    IP_ModeAndConfiguration *usart = form.modePanel("USART1");
    QTabWidget *tabs = usart->tabWidget();
    const QStringList names = {"gpio", "nvic", "dma"};
    for (int i = 1; i < tabs->count() && i <= names.size(); ++i) {
        tabs->setCurrentIndex(i);
        if (i == 1)
            usart->gpioSettingWidget()->TableLineClickedSlot(0, 0);
        if (i == 3 && !usart->dmaSettingWidgets().isEmpty())
            usart->dmaSettingWidgets().first()->selectRequest(
                dma->requestsOfInstance("USART1").value(0, -1));
        ok = save(&form, out + "/usart1_" + names.at(i - 1) + "_" + suffix + ".png") && ok;
    }
    // The calculated parameters and their timing diagrams: I2C1 at 400 kHz and TMR1 with a
    // PWM channel.
    form.modePanel("I2C1")->setModeSelection("I2C", "I2C");
    form.modePanel("TMR1")->setModeSelection("Channel1", "PWM Generation CH1");
    for (const QString &instance : {QStringLiteral("I2C1"), QStringLiteral("TMR1")}) {
        choose(form, instance);
        IP_ModeAndConfiguration *panel = form.modePanel(instance);
        if (instance == QLatin1String("I2C1") && panel->paramSettingWidget()) {
            panel->paramSettingWidget()->setParameterValue("I2C_Mode", "I2C_Fast");
            panel->paramSettingWidget()->refreshNow();
        }
        panel->tabWidget()->setCurrentIndex(0);
        ok = save(&form, out + "/" + instance.toLower() + "_timing_" + suffix + ".png") && ok;
    }
    form.hide();

    // The device selection of "New Design".
    New_Design_Select select;
    select.show();
    ok = save(&select, out + "/new_design_" + suffix + ".png") && ok;
    return ok;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QString out = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::currentPath();
    QDir().mkpath(out);
    setAppFolderOverride(QStringLiteral(MQ48_SOURCE_DIR));
    setUserMessageHandler([](QWidget *, const UserMessage &m) {
        std::fprintf(stderr, "message: %s\n", qPrintable(m.text));
        return 0;
    });
    g_language = 0;
    bool ok = shoot(out, "en");

    QTranslator translator;
    if (!translator.load(":/image/tr_zh.qm"))
        std::fprintf(stderr, "no Chinese catalogue\n");
    app.installTranslator(&translator);
    g_language = 1;
    ok = shoot(out, "zh") && ok;
    return ok ? 0 : 1;
}
