// Shows the clock page of the given models and saves a picture of each.
//
// clockshot <out-dir> <zh|en> [qm-file] -- <model> [<model> ...]

#include "clock/clockfamilies.h"
#include "clock/mq48clocktree.h"
#include "clock/mq48pllconfig.h"
#include "database/language.h"

#include <QApplication>
#include <QDir>
#include <QTextStream>
#include <QThread>
#include <QTranslator>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    const int sep = args.indexOf(QStringLiteral("--"));
    if (args.size() < 4 || sep < 3) {
        QTextStream(stderr) << "usage: clockshot <out-dir> <zh|en> [qm-file] -- <model>...\n";
        return 2;
    }
    const QString outDir = args.at(1);
    const bool chinese = args.at(2) == QLatin1String("zh");
    QTranslator translator;
    if (chinese) {
        const QString qm = sep > 3 ? args.at(3) : QStringLiteral(":/image/tr_zh.qm");
        if (!translator.load(qm))
            QTextStream(stderr) << "cannot load " << qm << "\n";
        app.installTranslator(&translator);
        g_language = 1;
    }
    QDir().mkpath(outDir);
    for (int i = sep + 1; i < args.size(); ++i) {
        const int model = args.at(i).toInt();
        MQ48PLLConfig page;
        page.resize(1560, 1000);
        page.setMcuModel(model);
        // Show a lively configuration: crystals on, USB, ADC and clock outputs in use.
        page.setHext(true, false);
        page.setLext(true, false);
        for (const char *ip : {"ADC1", "USB_OTGFS1", "USBFS", "USART1", "I2C1", "I2SF5"})
            page.setPeripheralClockGate(QLatin1String(ip), true);
        page.setClockOutPin(1);
        page.setClockOut1Pin(1);
        page.setClockOut2Pin(1);
        page.show();
        for (int k = 0; k < 10; ++k) {
            app.processEvents();
            QThread::msleep(20);
        }
        const ClockFamily *f = clockFamily(model);
        const QString name = QStringLiteral("%1/%2_%3.png")
                                 .arg(outDir, f ? QLatin1String(f->name) : args.at(i),
                                      chinese ? QStringLiteral("zh") : QStringLiteral("en"));
        page.grab().save(name);
        QTextStream(stdout) << name << "\n";
    }
    return 0;
}
