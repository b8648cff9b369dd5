// Times the work form: building a design of the largest MQ48T110 device, and a mode change
// through the form with the signals placed and every panel refreshed. With "--screenshot"
// it configures a small design in English and in Chinese and saves a picture of each.

#include "app/formconfiguration.h"
#include "database/language.h"
#include "database/paths.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/peripheralmessage.h"
#include "peripherals/peripheralsconfig.h"
#include "peripherals/procombobox.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmap>
#include <QTranslator>
#include <QTreeWidgetItem>

#include <algorithm>
#include <cstdio>
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

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    setAppFolderOverride(QStringLiteral(MQ48_SOURCE_DIR));
    setPeripheralMessageSink([](const QString &, const QString &) {});
    g_language = 0;

    if (app.arguments().contains(QStringLiteral("--screenshot"))) {
        const int en = screenshot(0, QStringLiteral("/tmp/form_en.png"));
        const int zh = screenshot(1, QStringLiteral("/tmp/form_zh.png"));
        return en || zh;
    }

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
    return 0;
}
