// Times the configuration report of an MQ48T110C8T design with everything on: the first mode
// that sticks on every control of every peripheral, a few parameters changed, three DMA
// requests, every usable interrupt enabled. The whole report (inputs, pictures and PDF) must
// take under 1.5 s; the median, the parts and the file's size are printed. With
// "--output DIR" the English and the Chinese report are kept in DIR.

#include "app/formconfiguration.h"
#include "app/generatereportaction.h"
#include "app/reportinputsbuilder.h"
#include "app/uifont.h"
#include "database/language.h"
#include "database/paths.h"
#include "peripherals/dmarequestmodel.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "peripherals/nvicmodel.h"
#include "peripherals/paramsettingwidget.h"
#include "report/generatereport.h"
#include "widgets/messagebox.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTranslator>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

constexpr double kTargetMs = 1500;

struct Timing
{
    double median = 0;
    double fastest = 0;
};

Timing timeRuns(int runs, const std::function<void()> &work)
{
    std::vector<double> ms;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        ms.push_back(timer.nsecsElapsed() / 1e6);
    }
    std::sort(ms.begin(), ms.end());
    const size_t n = ms.size();
    return {n % 2 ? ms[n / 2] : (ms[n / 2 - 1] + ms[n / 2]) / 2.0, ms.front()};
}

void selectFirstItems(IP_ModeAndConfiguration *panel)
{
    QList<QPair<QString, QStringList>> controls;
    const ModeLogic &logic = panel->logic();
    for (int i = 0; i < logic.controls.size(); ++i) {
        const ModeControl &c = logic.controls.at(i);
        QStringList items;
        if (!c.isCombo()) {
            items << QStringLiteral("TRUE");
        } else {
            for (const ModeItem &item : c.items)
                items << c.option.signalGroups.value(item.groupIndex).Name;
        }
        controls << qMakePair(c.option.Name, items);
    }
    for (const auto &control : controls) {
        for (const QString &item : control.second) {
            if (panel->setModeSelection(control.first, item))
                break;
        }
    }
}

bool everythingOn(FormConfiguration &form)
{
    if (!form.buildDesign(QStringLiteral("MQ48T110"), QStringLiteral("MQ48T110C8T"),
                          QStringLiteral("LQFP48")))
        return false;
    for (IP_ModeAndConfiguration *panel : form.modePanels())
        selectFirstItems(panel);
    form.refreshSystemModels();
    if (IP_ModeAndConfiguration *usart = form.modePanel(QStringLiteral("USART1"))) {
        usart->paramSettingWidget()->setParameterValue(QStringLiteral("BaudRate"),
                                                       QStringLiteral("9600"));
        usart->paramSettingWidget()->setParameterValue(QStringLiteral("Parityselection"),
                                                       QStringLiteral("USART_PARITY_EVEN"));
    }
    for (DmaRequestModel *model : form.dmaModels()) {
        for (const char *request : {"USART1_TX", "USART1_RX", "ADC1"})
            model->addRequest(QLatin1String(request));
    }
    form.refreshSystemModels();
    if (NvicModel *nvic = form.nvicModel()) {
        for (const NvicRow &row : nvic->rows()) {
            if (row.available && row.hasEnableBox())
                nvic->setEnabled(row.irq.IRQName, true);
        }
    }
    QCoreApplication::processEvents();
    return true;
}

bool keep(FormConfiguration &form, const QString &folder, int language)
{
    QTranslator translator;
    if (language == 1) {
        if (!translator.load(QStringLiteral(":/image/tr_zh.qm")))
            return false;
        QCoreApplication::installTranslator(&translator);
    }
    g_language = language;
    const QString path =
        folder + (language == 1 ? QStringLiteral("/t110_zh.pdf") : QStringLiteral("/t110_en.pdf"));
    QString error;
    const bool ok = writeDesignReport(&form, path, &error);
    std::printf("%s: %s\n", qPrintable(path), ok ? "written" : qPrintable(error));
    QCoreApplication::removeTranslator(&translator);
    g_language = 0;
    return ok;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    InstallUiFont();
    g_language = 0;
    setAppFolderOverride(QStringLiteral(MQ48_SOURCE_DIR));
    setUserMessageHandler([](QWidget *, const UserMessage &) { return 0; });
    const QStringList args = app.arguments();
    const int output = args.indexOf(QStringLiteral("--output"));

    FormConfiguration form;
    if (!everythingOn(form)) {
        std::fprintf(stderr, "the T110 design could not be built\n");
        return 1;
    }
    int configured = 0;
    for (const IP_ModeAndConfiguration *panel : form.modePanels())
        configured += panel->modeActive() ? 1 : 0;

    QTemporaryDir dir;
    const QString pdf = dir.filePath(QStringLiteral("t110.pdf"));
    bool ok = true;
    // The first report pays for loading the fonts once; it is timed with the others.
    const Timing whole = timeRuns(9, [&]() {
        QString error;
        ok = writeDesignReport(&form, pdf, &error) && ok;
    });
    ReportInputs inputs;
    const Timing collect = timeRuns(9, [&]() {
        inputs = ReportInputsBuilder::fromForm(form, ProjectInfo());
    });
    int pages = 0;
    const Timing paint = timeRuns(9, [&]() {
        GenerateReport report;
        report.setInputs(inputs);
        ok = report.writePdf(pdf) && ok;
        pages = report.pageCount();
    });
    const double kib = QFileInfo(pdf).size() / 1024.0;
    std::printf("everything-on T110 report (%d peripherals configured, %d pages, %.0f KiB): "
                "median %.0f ms, fastest %.0f ms (target %.0f ms)%s\n",
                configured, pages, kib, whole.median, whole.fastest, kTargetMs,
                ok ? "" : " (FAILED)");
    std::printf("  of which: inputs and pictures median %.0f ms, PDF painting median %.0f ms\n",
                collect.median, paint.median);

    if (output > 0 && output + 1 < args.size()) {
        QDir().mkpath(args.at(output + 1));
        ok = keep(form, args.at(output + 1), 0) && ok;
        ok = keep(form, args.at(output + 1), 1) && ok;
    }
    setUserMessageHandler({});
    return ok && whole.median < kTargetMs ? 0 : 1;
}
