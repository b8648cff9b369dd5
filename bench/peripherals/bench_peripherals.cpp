// Times a mode change on an MQ48T110 design: USART1 switched to asynchronous mode and back,
// the signals placed by the drawing's engine and every mode panel refreshed; then the same
// change through the work form, with the GPIO, NVIC and DMA tables (the chip-wide panels and
// USART1's own tabs) brought up to date after each change.

#include "app/formconfiguration.h"
#include "database/devicereader.h"
#include "database/language.h"
#include "database/paths.h"
#include "peripherals/dma_configuration.h"
#include "peripherals/dmarequestmodel.h"
#include "peripherals/dmasettingwidget.h"
#include "peripherals/gpio_configuration.h"
#include "peripherals/gpiosettingwidget.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/nvic_configuration.h"
#include "peripherals/nvic_settings.h"
#include "peripherals/nvicmodel.h"
#include "widgets/messagebox.h"
#include "peripherals/procombobox.h"
#include "pinout/chipview.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

void report(const char *what, std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    std::printf("%s: median %.3f ms, p90 %.3f ms, max %.3f ms over %zu changes "
                "(target < 20 ms)\n",
                what, times[times.size() / 2], times[times.size() * 9 / 10], times.back(),
                times.size());
}

// USART1 on and off through the work form, with SPI1, TMR1 and ADC1 configured, DMA requests
// and enabled interrupts; after each change every GPIO, NVIC and DMA table is rebuilt.
int benchWorkForm(QApplication &app)
{
    FormConfiguration form;
    if (!form.buildDesign("MQ48T110", "MQ48T110C8T", "LQFP48")) {
        std::fprintf(stderr, "the work form did not build the design\n");
        return 1;
    }
    IP_ModeAndConfiguration *usart = form.modePanel("USART1");
    form.modePanel("SPI1")->setModeSelection("Mode", "Full-Duplex Master");
    form.modePanel("TMR1")->setModeSelection("Activated", "TRUE");
    form.modePanel("ADC1")->setModeSelection("IN0", "TRUE");
    usart->setModeSelection("Mode", "Asynchronous");
    DmaRequestModel *dma = form.dmaModels().value(0);
    if (!usart->comboBox("Mode") || !dma || !form.gpioPanel() || !form.nvicPanel()) {
        std::fprintf(stderr, "the design lacks USART1 or a GPIO, NVIC or DMA panel\n");
        return 1;
    }
    dma->addRequest("ADC1");
    dma->addRequest("MEMTOMEM");
    form.nvicModel()->setEnabled("ADC1_CMP_IRQn", true);
    ProComboBox *mode = usart->comboBox("Mode");
    const int async = mode->currentIndex();

    const auto refreshTables = [&form, usart] {
        form.gpioPanel()->mainTable()->ensureCurrent();
        form.nvicPanel()->table()->ensureCurrent();
        for (DMASettingWidget *table : form.dmaPanels().first()->settingWidgets())
            table->ensureCurrent();
        if (usart->gpioSettingWidget())
            usart->gpioSettingWidget()->ensureCurrent();
        if (usart->nvicSettings())
            usart->nvicSettings()->ensureCurrent();
        for (DMASettingWidget *table : usart->dmaSettingWidgets())
            table->ensureCurrent();
    };
    refreshTables();
    const int runs = 200;
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        const bool on = i % 2 == 1;
        QElapsedTimer timer;
        timer.start();
        mode->setCurrentIndex(on ? async : 0);
        if (on) {
            // Switching on brings the peripheral's requests and interrupt back.
            dma->addRequest("USART1_TX");
            dma->addRequest("USART1_RX");
            form.nvicModel()->setEnabled("USART1_IRQn", true);
        }
        refreshTables();
        times.push_back(timer.nsecsElapsed() / 1e6);
        app.processEvents();
    }
    report("mode change through the work form with GPIO, NVIC and DMA tables refreshed",
           times);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    g_language = 0;
    setAppFolderOverride(QStringLiteral(MQ48_SOURCE_DIR));
    setUserMessageHandler([](QWidget *, const UserMessage &) { return 0; });

    const QString series = QStringLiteral("MQ48T110");
    const QString device = QStringLiteral("MQ48T110C8T");
    const QString path = deviceFilePath(series, device);
    std::unique_ptr<DevicePinInfo> info(NewDevicePinInfo(path));
    ChipView chip(info.get());
    std::vector<std::unique_ptr<IP_ModeAndConfiguration>> panels;
    for (const PeripheralListItem &row : GetPeripheralsList(path)) {
        if (QStringList({"GPIO", "NVIC", "DMA", "EDMA"}).contains(row.InstanceName))
            continue;
        auto *panel = new IP_ModeAndConfiguration(row, IPNode(), device, series, info.get());
        QObject::connect(panel, &IP_ModeAndConfiguration::SendIPPinSignals, &chip,
                         &ChipView::ReciveIPPinSignals);
        QObject::connect(panel, &IP_ModeAndConfiguration::ClearIPPinSignals, &chip,
                         &ChipView::ReciveClearIPPinSignals);
        panels.emplace_back(panel);
    }
    // Every panel refreshes at once, as if each were the one on show.
    QObject::connect(&chip, &ChipView::SendAllConfigedSignals,
                     [&panels](DevicePinInfo *pins, bool flag, QString) {
                         for (auto &panel : panels)
                             panel->UpdateAllConfigedSignals(pins, flag, panel->instanceName());
                     });
    IP_ModeAndConfiguration *usart = nullptr;
    for (auto &panel : panels) {
        if (panel->instanceName() == QLatin1String("USART1"))
            usart = panel.get();
    }
    if (!usart || !usart->comboBox(QStringLiteral("Mode"))) {
        std::fprintf(stderr, "USART1 has no mode combo box in %s\n", qPrintable(path));
        return 1;
    }
    ProComboBox *mode = usart->comboBox(QStringLiteral("Mode"));
    const int async = mode->findText(QStringLiteral("Asynchronous"));

    const int runs = 200;
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        const int target = (i % 2 == 0) ? async : 0;
        QElapsedTimer timer;
        timer.start();
        mode->setCurrentIndex(target);
        times.push_back(timer.nsecsElapsed() / 1e6);
        app.processEvents();
    }
    report(qPrintable(QStringLiteral("mode change on %1 with %2 panels")
                          .arg(device)
                          .arg(panels.size())),
           times);
    panels.clear();
    return benchWorkForm(app);
}
