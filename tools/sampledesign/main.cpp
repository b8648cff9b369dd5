// sampledesign <output folder> [--list-clock]: writes the example designs of the manual:
//   usart1_pll96.MQPF     MQ48T110C8T, USART1 asynchronous at 115200 baud, TMR1 with a PWM
//                         output, system clock 96 MHz from the PLL on an 8 MHz crystal
//   usart1_handpin.MQPF   the same with PB6 set to I2C1_SCL by hand, which no mode uses
// With --list-clock it prints the clock page's values of the untouched design instead.

#include "app/designsession.h"
#include "app/formconfiguration.h"
#include "database/language.h"
#include "database/paths.h"
#include "peripherals/ip_modeandconfiguration.h"
#include "pinout/chipview.h"
#include "pinout/pinassignengine.h"
#include "widgets/messagebox.h"

#include <QApplication>
#include <QDir>

#include <cstdio>

namespace {

bool save(FormConfiguration &form, const QString &path)
{
    QString error;
    if (form.writeDesign(path, &error)) {
        std::printf("%s\n", qPrintable(path));
        return true;
    }
    std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(error));
    return false;
}

bool placeByHand(FormConfiguration &form, const QString &pinName, const QString &signal)
{
    PinAssignEngine *engine = form.chipDrawing()->engine();
    for (MCUPinsBaseInfo *pin : engine->activePins()) {
        if (pin->PinName.trimmed() == pinName) {
            engine->placeOnPin(pin, signal, SIGNAL_PIN_ONLY, signal);
            form.ReciveAllConfigedSignals(form.design().devicePinInfo, false, QString());
            return true;
        }
    }
    return false;
}

// The clock page's values with `changes` applied, the whole design replayed through the form.
void setClock(FormConfiguration &form, const QList<QPair<QString, QString>> &changes)
{
    DesignDocument doc = collectDesign(form);
    for (const auto &change : changes) {
        for (auto &value : doc.clock) {
            if (value.first == change.first)
                value.second = change.second;
        }
    }
    applyDesign(form, doc);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 2) {
        std::fprintf(stderr, "usage: sampledesign <output folder> [--list-clock]\n");
        return 1;
    }
    setAppFolderOverride(QStringLiteral(MQ48_SOURCE_DIR));
    setUserMessageHandler([](QWidget *, const UserMessage &m) {
        std::fprintf(stderr, "message: %s\n", qPrintable(m.text));
        return 0;
    });
    g_language = 0;
    FormConfiguration form;
    if (!form.buildDesign(QStringLiteral("MQ48T110"), QStringLiteral("MQ48T110C8T"),
                          QStringLiteral("LQFP48")))
        return 1;
    if (args.contains(QStringLiteral("--list-clock"))) {
        for (const auto &value : collectDesign(form).clock)
            std::printf("%s = %s\n", qPrintable(value.first), qPrintable(value.second));
        return 0;
    }
    const QString folder = args.at(1);
    QDir().mkpath(folder);
    bool ok = form.modePanel(QStringLiteral("CRM"))
                  ->setModeSelection(QStringLiteral("HEXT"),
                                     QStringLiteral("Crystal/Ceramic Resonator"));
    ok = form.modePanel(QStringLiteral("USART1"))
             ->setModeSelection(QStringLiteral("Mode"), QStringLiteral("Asynchronous")) &&
         ok;
    ok = form.modePanel(QStringLiteral("TMR1"))
             ->setModeSelection(QStringLiteral("Activated"), QStringLiteral("TRUE")) &&
         ok;
    ok =
        form.modePanel(QStringLiteral("TMR1"))
            ->setModeSelection(QStringLiteral("Channel1"), QStringLiteral("PWM Generation CH1")) &&
        ok;
    setClock(form, {{QStringLiteral("pllrcs"), QStringLiteral("0")},
                    {QStringLiteral("pllmult"), QStringLiteral("12")},
                    {QStringLiteral("sclkselect"), QStringLiteral("1")}});
    ok = save(form, folder + QStringLiteral("/usart1_pll96.MQPF")) && ok;
    ok = placeByHand(form, QStringLiteral("PB6"), QStringLiteral("I2C1_SCL")) && ok;
    ok = save(form, folder + QStringLiteral("/usart1_handpin.MQPF")) && ok;
    return ok ? 0 : 1;
}
