// Times a mode change on an MQ48T110 design: USART1 switched to asynchronous mode and back,
// the signals placed by the drawing's engine and every mode panel refreshed.

#include "database/devicereader.h"
#include "database/language.h"
#include "database/paths.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/peripheralmessage.h"
#include "peripherals/procombobox.h"
#include "pinout/chipview.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    g_language = 0;
    setAppFolderOverride(QStringLiteral(MQ48_SOURCE_DIR));
    setPeripheralMessageSink([](const QString &, const QString &) {});

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
    std::sort(times.begin(), times.end());
    std::printf("mode change on %s with %zu panels: median %.3f ms, p90 %.3f ms, max %.3f ms "
                "over %d changes (target < 20 ms)\n",
                qPrintable(device), panels.size(), times[times.size() / 2],
                times[times.size() * 9 / 10], times.back(), runs);
    panels.clear();
    return 0;
}
