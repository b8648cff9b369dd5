// pinshot <output folder>: saves the drawing of a TSSOP20, a QFN32 and an LQFP48 device of
// the MQ48T110 series, with a few pins set by hand, a mode request and one label, in English
// and in Chinese, and the LQFP144 MQ48T510ZMT turned a quarter clockwise.

#include "database/devicereader.h"
#include "database/language.h"
#include "pinout/chipview.h"
#include "pinout/custompinaction.h"
#include "pinout/pinqgraphicsrectitem.h"

#include <QApplication>
#include <QDir>
#include <QTranslator>

#include <cstdio>
#include <memory>

namespace {

void tick(ChipView &view, const QString &func)
{
    for (PinQGraphicsRectItem *item : view.pinItems()) {
        if (item->pinState() > 0)
            continue;
        for (CustomPinAction *action : item->pinActions()) {
            if (action->signalName == func && !action->isChecked()) {
                action->trigger();
                return;
            }
        }
    }
}

ModeSignal mode(const QString &name)
{
    ModeSignal s;
    s.enabled = true;
    s.signalName = name;
    s.IOMode = "GPIO_MuxOutputPushPull";
    return s;
}

bool shoot(const QString &device, const QString &outFolder, const QString &suffix,
           int rotations = 0)
{
    const QString series = device.left(8);
    const QString path =
        QStringLiteral(MQ48_SOURCE_DIR) + "/MQ48DB/device/" + series + "/" + device + ".xml";
    std::unique_ptr<DevicePinInfo> info(NewDevicePinInfo(path));
    if (info->pins.isEmpty()) {
        std::fprintf(stderr, "cannot read %s\n", qPrintable(path));
        return false;
    }
    ChipView view(info.get());
    view.resize(1000, 900);
    view.show();
    QApplication::processEvents();

    // A mode wants USART1 TX/RX; by hand: an output, an input and a peripheral signal.
    const QList<ModeSignal> usart = {mode("USART1_TX"), mode("USART1_RX")};
    view.ReciveIPPinSignals(usart, usart, true, "USART1");
    tick(view, "GPIO_Output");
    tick(view, "GPIO_Input");
    tick(view, "I2C1_SCL");
    // One label on the first pin set to an output.
    for (PinQGraphicsRectItem *item : view.pinItems()) {
        for (const MCUPinSignal *sig : item->pinInfo().signalList) {
            if (sig->Func == "GPIO_Output" && sig->status > 0) {
                view.ReceiveGPIOSignalsUserLabelChange(item->pinInfo().PinNum, sig->Func,
                                                       "LED_RUN");
            }
        }
    }
    view.ReceiveGPIOQuerySignals("", "");
    for (int i = 0; i < rotations; ++i)
        view.Rotated_Clockwise();
    QApplication::processEvents();
    const QString name = rotations ? device + "_rotated" : device;
    const QString file = outFolder + "/" + name + "_" + suffix + ".png";
    if (!view.grab().save(file)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
        return false;
    }
    std::printf("%s\n", qPrintable(file));
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QString out = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::currentPath();
    QDir().mkpath(out);
    const QStringList devices = {"MQ48T110F6P", "MQ48T110K6U", "MQ48T110C8T"};
    bool ok = true;
    g_language = 0;
    for (const QString &device : devices)
        ok = shoot(device, out, "en") && ok;
    // The largest package, turned a quarter clockwise.
    ok = shoot("MQ48T510ZMT", out, "en", 1) && ok;

    QTranslator translator;
    if (!translator.load(":/image/tr_zh.qm"))
        std::fprintf(stderr, "no Chinese catalogue\n");
    app.installTranslator(&translator);
    g_language = 1;
    for (const QString &device : devices)
        ok = shoot(device, out, "zh") && ok;
    return ok ? 0 : 1;
}
