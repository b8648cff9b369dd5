// Times the work form: building a design of the largest device of every series (the slowest
// must stay under 1 s), the rows each parameter tab of the largest MQ48T510 makes when first
// shown, and, on the largest MQ48T110, a mode change through the form with the signals placed
// and every panel refreshed; then the opening of a T110 design with everything on (build and
// replay, under 500 ms). With "--screenshot" it configures a small T110 design in English
// and in Chinese and a T510 design with ten peripherals, and saves a picture of each.

#include "app/designsession.h"
#include "app/formconfiguration.h"
#include "database/catalogue.h"
#include "database/language.h"
#include "database/paths.h"
#include "peripherals/dmarequestmodel.h"
#include "peripherals/gpiosettingsmodel.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/nvicmodel.h"
#include "peripherals/paramsettingwidget.h"
#include "peripherals/peripheralsconfig.h"
#include "peripherals/procombobox.h"
#include "widgets/messagebox.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmap>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QTreeWidgetItem>

#include <algorithm>
#include <cstdio>
#include <map>
#include <vector>

namespace {

const QString kSeries = QStringLiteral("MQ48T110");

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2.0;
}

double msSince(const QElapsedTimer &timer)
{
    return timer.nsecsElapsed() / 1e6;
}

// Sets a mode as the user would, reporting a selection the panel doesn't know.
bool select(FormConfiguration &form, const QString &instance, const QString &mode,
            const QString &value)
{
    IP_ModeAndConfiguration *panel = form.modePanel(instance);
    if (panel && panel->setModeSelection(mode, value))
        return true;
    std::fprintf(stderr, "%s: no selection %s = %s\n", qPrintable(instance), qPrintable(mode),
                 qPrintable(value));
    return false;
}

void showInTree(FormConfiguration &form, const QString &instance)
{
    const auto items = form.peripheralsTree()->itemsOf(instance);
    if (!items.isEmpty())
        form.peripheralsTree()->ListItem_Clicked(items.first(), 0);
}

int screenshot(int language, const QString &path)
{
    QTranslator translator;
    if (language == 1) {
        if (!translator.load(QStringLiteral(":/image/tr_zh.qm"))) {
            std::fprintf(stderr, "The Chinese catalogue doesn't load\n");
            return 1;
        }
        QCoreApplication::installTranslator(&translator);
    }
    g_language = language;
    FormConfiguration form;
    form.setWindowState(Qt::WindowNoState);
    form.resize(1600, 900);
    if (!form.buildDesign(kSeries, QStringLiteral("MQ48T110C8T"), QStringLiteral("LQFP48")))
        return 1;
    form.show();
    bool ok = select(form, QStringLiteral("USART1"), QStringLiteral("Mode"),
                     QStringLiteral("Asynchronous"));
    ok = select(form, QStringLiteral("SPI1"), QStringLiteral("Mode"),
                QStringLiteral("Full-Duplex Master")) &&
         ok;
    ok = select(form, QStringLiteral("TMR1"), QStringLiteral("Activated"),
                QStringLiteral("TRUE")) &&
         ok;
    ok = select(form, QStringLiteral("TMR1"), QStringLiteral("Channel1"),
                QStringLiteral("PWM Generation CH1")) &&
         ok;
    ok = select(form, QStringLiteral("ADC1"), QStringLiteral("IN0"), QStringLiteral("TRUE")) && ok;
    showInTree(form, QStringLiteral("USART1"));
    QCoreApplication::processEvents();
    const bool saved = form.grab().save(path);
    std::printf("%s: %s\n", qPrintable(path), saved ? "saved" : "NOT saved");
    QCoreApplication::removeTranslator(&translator);
    return ok && saved ? 0 : 1;
}

int pinCount(const QString &package)
{
    return QString(package).remove(QRegularExpression(QStringLiteral("\\D"))).toInt();
}

// The catalogue row of a series with the most pins, and of those the most flash.
MCUListItem largestDevice(const QString &series)
{
    MCUListItem best;
    for (const MCUListItem &item : GetMCUList(cataloguePath(), series)) {
        const int pins = pinCount(item.Package);
        const int bestPins = pinCount(best.Package);
        const int flash = item.Flash.section(QLatin1Char(' '), 0, 0).toInt();
        const int bestFlash = best.Flash.section(QLatin1Char(' '), 0, 0).toInt();
        if (best.Name.isEmpty() || pins > bestPins || (pins == bestPins && flash > bestFlash))
            best = item;
    }
    return best;
}

// Ten peripherals of a T510 design, set as the user would.
int screenshotT510(const QString &path)
{
    g_language = 0;
    FormConfiguration form;
    form.setWindowState(Qt::WindowNoState);
    form.resize(1600, 1000);
    const MCUListItem device = largestDevice(QStringLiteral("MQ48T510"));
    if (!form.buildDesign(QStringLiteral("MQ48T510"), device.Name, device.Package))
        return 1;
    form.show();
    const struct
    {
        const char *instance, *mode, *value;
    } steps[] = {
        // The external memory and the camera first: their pins have no alternatives.
        {"XMC_NORFlash-PSRAM-SRAM-ROM-LCD_1", "Chip Select", "TRUE"},
        {"XMC_NORFlash-PSRAM-SRAM-ROM-LCD_1", "Memory Type", "LCD"},
        {"XMC_NORFlash-PSRAM-SRAM-ROM-LCD_1", "Data", "16 bits"},
        {"XMC_NORFlash-PSRAM-SRAM-ROM-LCD_1", "Address", "1 bits"},
        {"DVP", "Mode", "Slave 8 bits External Synchro"},
        {"USB_OTGFS1", "Activated", "TRUE"},
        {"CAN1", "Activated", "TRUE"},
        {"USART1", "Mode", "Asynchronous"},
        {"SPI1", "Mode", "Full-Duplex Master"},
        {"TMR1", "Activated", "TRUE"},
        {"TMR1", "Channel1", "PWM Generation CH1 CH1C"},
        {"ADC1", "IN0", "TRUE"},
        {"ADC1", "IN1", "TRUE"},
        {"I2C2", "I2C", "I2C"},
        {"SDIO1", "Mode", "SD 4 bits Wide bus"},
        {"QSPI1", "Mode", "Quad line"},
    };
    bool ok = true;
    for (const auto &step : steps) {
        ok = select(form, QLatin1String(step.instance), QLatin1String(step.mode),
                    QLatin1String(step.value)) &&
             ok;
    }
    showInTree(form, QStringLiteral("SDIO1"));
    QCoreApplication::processEvents();
    const bool saved = form.grab().save(path);
    std::printf("%s: %s\n", qPrintable(path), saved ? "saved" : "NOT saved");
    return ok && saved ? 0 : 1;
}

// Median time to build the largest device of each series; the slowest must stay under 1 s.
int familyBuilds()
{
    const int runs = 3;
    double slowest = 0;
    QString slowestSeries;
    std::printf("%-10s %-14s %7s %14s\n", "series", "device", "panels", "build median");
    for (const MCUSerialInfo &info : GetMCUSerialList(cataloguePath())) {
        const MCUListItem device = largestDevice(info.Serial);
        FormConfiguration form;
        std::vector<double> builds;
        for (int i = 0; i < runs; ++i) {
            QElapsedTimer timer;
            timer.start();
            form.buildDesign(info.Serial, device.Name, device.Package);
            builds.push_back(msSince(timer));
        }
        const double m = median(builds);
        std::printf("%-10s %-14s %7d %11.1f ms\n", qPrintable(info.Serial),
                    qPrintable(device.Name), static_cast<int>(form.modePanels().size()), m);
        if (m > slowest) {
            slowest = m;
            slowestSeries = info.Serial;
        }
    }
    std::printf("slowest: %s %.1f ms (target 1000 ms): %s\n", qPrintable(slowestSeries), slowest,
                slowest < 1000.0 ? "met" : "NOT met");
    return 0;
}

// The parameter rows of a panel are made when its parameter tab is first shown: the time of
// making them, for each panel of the largest MQ48T510.
int firstShowings()
{
    const QString series = QStringLiteral("MQ48T510");
    const MCUListItem device = largestDevice(series);
    FormConfiguration form;
    if (!form.buildDesign(series, device.Name, device.Package))
        return 1;
    std::vector<double> times;
    double slowest = 0;
    QString slowestPanel;
    for (IP_ModeAndConfiguration *panel : form.modePanels()) {
        ParamSettingWidget *params = panel->paramSettingWidget();
        if (!params)
            continue;
        QElapsedTimer timer;
        timer.start();
        params->ensureRows();
        const double ms = msSince(timer);
        times.push_back(ms);
        if (ms > slowest) {
            slowest = ms;
            slowestPanel = panel->instanceName();
        }
    }
    if (times.empty())
        return 1;
    std::printf("%s %s, rows of %d parameter tabs made on first showing: median %.1f ms, "
                "slowest %.1f ms (%s)\n",
                qPrintable(series), qPrintable(device.Name), static_cast<int>(times.size()),
                median(times), slowest, qPrintable(slowestPanel));
    return 0;
}

// A T110 design with every kind of block in use, saved to `path`.
bool saveEverythingOn(const QString &path)
{
    FormConfiguration form;
    if (!form.buildDesign(kSeries, QStringLiteral("MQ48T110CBT"), QStringLiteral("LQFP48")))
        return false;
    const struct
    {
        const char *instance, *mode, *value;
    } steps[] = {
        {"CRM", "HEXT", "Crystal/Ceramic Resonator"},
        {"USART1", "Mode", "Asynchronous"},
        {"USART2", "Mode", "Asynchronous"},
        {"SPI1", "Mode", "Full-Duplex Master"},
        {"I2C1", "I2C", "I2C"},
        {"TMR1", "Activated", "TRUE"},
        {"TMR1", "Channel1", "PWM Generation CH1"},
        {"TMR3", "Activated", "TRUE"},
        {"ADC1", "IN0", "TRUE"},
        {"ADC1", "IN1", "TRUE"},
        {"CRC", "Activated", "TRUE"},
    };
    for (const auto &step : steps)
        select(form, QLatin1String(step.instance), QLatin1String(step.mode),
               QLatin1String(step.value));
    form.refreshSystemModels();
    if (!form.dmaModels().isEmpty()) {
        DmaRequestModel *dma = form.dmaModels().first();
        dma->addRequest(QStringLiteral("USART1_TX"));
        dma->addRequest(QStringLiteral("USART1_RX"));
        dma->addRequest(QStringLiteral("MEMTOMEM"));
    }
    if (NvicModel *nvic = form.nvicModel())
        nvic->setInterrupt(QStringLiteral("USART1_IRQHandler"), true, 1, 0);
    if (GpioSettingsModel *gpio = form.gpioModel())
        gpio->setLabel(QStringLiteral("USART1_TX"), QStringLiteral("PA9"),
                       QStringLiteral("DEBUG_TX"));
    form.refreshSystemModels();
    QString error;
    if (!form.writeDesign(path, &error)) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return false;
    }
    return true;
}

// Opening the everything-on design: the whole open (form built for the device, then the
// replay) and, apart, the replay into a form already built.
int openDesignTimes()
{
    QTemporaryDir dir;
    const QString path = dir.path() + QStringLiteral("/everything.MQPF");
    if (!saveEverythingOn(path))
        return 1;
    const int runs = 7;
    std::vector<double> opens;
    std::vector<double> replays;
    std::map<int, std::vector<double>> stepTimes; // by replay step
    for (int i = 0; i < runs; ++i) {
        FormConfiguration form;
        QElapsedTimer timer;
        timer.start();
        const DesignOpenResult result = openDesignFile(form, path);
        opens.push_back(msSince(timer));
        if (result.status != DesignOpenStatus::Opened || !result.problems.isEmpty()) {
            std::fprintf(stderr, "the design did not reopen cleanly: %s\n",
                         qPrintable(result.problems.join(QStringLiteral("; "))));
            return 1;
        }
        FormConfiguration fresh;
        fresh.buildDesign(kSeries, QStringLiteral("MQ48T110CBT"), QStringLiteral("LQFP48"));
        timer.restart();
        double last = 0;
        applyDesign(fresh, result.document, [&](int step) {
            const double now = msSince(timer);
            stepTimes[step].push_back(now - last);
            last = now;
        });
        replays.push_back(msSince(timer));
    }
    const double open = median(opens);
    std::printf("open design (everything on): median %8.2f ms (target 500 ms: %s), "
                "replay %.2f ms = %.0f%%\n",
                open, open < 500.0 ? "met" : "NOT met", median(replays),
                100.0 * median(replays) / open);
    std::printf("replay steps (median ms):");
    for (auto &entry : stepTimes)
        std::printf(" %d:%.1f", entry.first, median(entry.second));
    std::printf("\n");
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    setAppFolderOverride(QStringLiteral(MQ48_SOURCE_DIR));
    setUserMessageHandler([](QWidget *, const UserMessage &) { return 0; });
    g_language = 0;

    if (app.arguments().contains(QStringLiteral("--screenshot"))) {
        const int en = screenshot(0, QStringLiteral("/tmp/form_en.png"));
        const int zh = screenshot(1, QStringLiteral("/tmp/form_zh.png"));
        const int t510 = screenshotT510(QStringLiteral("/tmp/form_t510.png"));
        return en || zh || t510;
    }
    familyBuilds();
    if (firstShowings() != 0)
        return 1;

    const int runs = 7;
    const QString device = QStringLiteral("MQ48T110CBT");
    FormConfiguration form;
    std::vector<double> builds;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        form.buildDesign(kSeries, device, QStringLiteral("LQFP48"));
        builds.push_back(msSince(timer));
    }
    const int panels = form.modePanels().size();

    // A mode change through the form: the USART's request goes to the drawing by the form's
    // relay, and every other panel is then shown once so that it catches up.
    form.show();
    IP_ModeAndConfiguration *usart = form.modePanel(QStringLiteral("USART1"));
    if (!usart) {
        std::fprintf(stderr, "%s has no USART1 panel\n", qPrintable(device));
        return 1;
    }
    std::vector<double> changes;
    std::vector<double> refreshes;
    for (int i = 0; i < runs * 2; ++i) {
        QElapsedTimer timer;
        timer.start();
        if (i % 2)
            usart->comboBox(QStringLiteral("Mode"))->setCurrentIndex(0);
        else if (!usart->setModeSelection(QStringLiteral("Mode"), QStringLiteral("Asynchronous")))
            return 1;
        changes.push_back(msSince(timer));
        timer.restart();
        for (IP_ModeAndConfiguration *panel : form.modePanels())
            form.GetSelectIPName(panel->instanceName());
        refreshes.push_back(msSince(timer));
    }

    std::printf("device %s, %d mode panels, %d runs\n", qPrintable(device), panels, runs);
    std::printf("build design:              median %8.2f ms\n", median(builds));
    std::printf("mode change (placed):      median %8.2f ms\n", median(changes));
    std::printf("every panel refreshed:     median %8.2f ms\n", median(refreshes));
    std::printf("mode change + refresh:     median %8.2f ms\n",
                median(changes) + median(refreshes));
    return openDesignTimes();
}
