// Opens the largest MQ48T110 device, then places and clears the signals of every peripheral
// instance through the pin engine and through the drawing, and prints the median times.

#include "database/devicereader.h"
#include "pinout/chipview.h"
#include "pinout/pinassignengine.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QMap>
#include <QSet>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

QString largestDevice(const QString &seriesFolder)
{
    QString best;
    int bestPins = -1;
    const QDir dir(seriesFolder);
    for (const QString &file : dir.entryList({"MQ48T110*.xml"}, QDir::Files, QDir::Name)) {
        const int pins = GetSectionAttribute(dir.filePath(file), "MCUBaseInfo", "PinNums").toInt();
        if (pins > bestPins) {
            bestPins = pins;
            best = dir.filePath(file);
        }
    }
    return best;
}

// The peripheral functions of the device, one list per instance ("USART1", "TMR2", ...).
QMap<QString, QList<ModeSignal>> requestsOf(const DevicePinInfo &info)
{
    QMap<QString, QList<ModeSignal>> requests;
    QMap<QString, QSet<QString>> seen;
    for (const MCUPinsBaseInfo *pin : info.pins) {
        for (const MCUPinSignal *sig : pin->signalList) {
            if (PinAssignEngine::isGpioWord(sig->Func) || !sig->Func.contains('_'))
                continue;
            const QString instance = sig->Func.section('_', 0, 0);
            if (seen[instance].contains(sig->Func))
                continue;
            seen[instance].insert(sig->Func);
            ModeSignal mode;
            mode.enabled = true;
            mode.signalName = sig->Func;
            mode.IOMode = "GPIO_MuxOutputPushPull";
            requests[instance].append(mode);
        }
    }
    return requests;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int runs = 7;
    const int rounds = 20;

    const QString path =
        largestDevice(QStringLiteral(MQ48_SOURCE_DIR) + "/MQ48DB/device/MQ48T110");
    if (path.isEmpty()) {
        std::fprintf(stderr, "no MQ48T110 device file found\n");
        return 1;
    }
    std::vector<double> loadMs;
    std::vector<double> engineMs;
    std::vector<double> viewMs;
    int requestCount = 0;
    int pinCount = 0;
    for (int run = 0; run < runs; ++run) {
        QElapsedTimer timer;
        timer.start();
        std::unique_ptr<DevicePinInfo> info(NewDevicePinInfo(path));
        ChipView view(info.get());
        loadMs.push_back(timer.nsecsElapsed() / 1e6);
        pinCount = info->pins.size();

        const auto requests = requestsOf(*info);
        requestCount = requests.size();
        PinAssignEngine *engine = view.engine();
        timer.restart();
        for (int round = 0; round < rounds; ++round) {
            for (auto it = requests.begin(); it != requests.end(); ++it)
                engine->receiveIPPinSignals(it.value(), it.value(), it.key());
            for (auto it = requests.begin(); it != requests.end(); ++it)
                engine->receiveClearIPPinSignals(it.value());
        }
        engineMs.push_back(timer.nsecsElapsed() / 1e6 / rounds);

        timer.restart();
        for (auto it = requests.begin(); it != requests.end(); ++it)
            view.ReciveIPPinSignals(it.value(), it.value(), true, it.key());
        for (auto it = requests.begin(); it != requests.end(); ++it)
            view.ReciveClearIPPinSignals(it.value(), true, it.key());
        viewMs.push_back(timer.nsecsElapsed() / 1e6);
    }
    std::printf("device: %s (%d pin records, %d instances)\n", qPrintable(QDir(path).dirName()),
                pinCount, requestCount);
    std::printf("open device + build drawing: median %.2f ms\n", median(loadMs));
    std::printf("engine, place and clear all instances: median %.3f ms\n", median(engineMs));
    std::printf("drawing, place and clear all instances with repaint data: median %.2f ms\n",
                median(viewMs));
    std::printf("(%d runs)\n", runs);
    return 0;
}
