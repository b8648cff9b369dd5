// Writes a device with 20,000 pins and 20,000 group signals (and a catalogue naming it) into
// a scratch database, then times reading it with the program's reader and checking it with
// the database checker. Both match every group signal to the pins by name; the time must
// grow with the size of the file, not with its square.
//
//     bench_database [pins]      (default 20000)

#include "database/databasechecker.h"
#include "database/devicereader.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

namespace {

bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

// A device whose pins "P<n>" each carry one function, with one group of ten signals for
// every ten pins; the group names the pins with a remark behind a blank, as real files do.
QByteArray device(int pins)
{
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Device>\n"
                     "<Section term=\"MCUBaseInfo\"><Info MCUName=\"BENCH\" Package=\"LQFP\" "
                     "PinNums=\"1024\" xPinNum=\"256\" yPinNum=\"256\"/></Section>\n"
                     "<Section term=\"PinsList\">\n";
    for (int i = 1; i <= pins; ++i) {
        xml += "<Pin PinNum=\"" + QByteArray::number(i) + "\" PinName=\"P" +
               QByteArray::number(i) + "\"><Signal Func=\"IP" + QByteArray::number(i / 10) + "_S" +
               QByteArray::number(i % 10) + "\"/></Pin>\n";
    }
    xml += "</Section>\n<Section term=\"PinsSignalsGroup\">\n";
    for (int g = 0; g < pins / 10; ++g) {
        xml += "<Group IPName=\"IP" + QByteArray::number(g) + "\" GroupNum=\"1\">";
        for (int k = 0; k < 10; ++k) {
            const int pin = g * 10 + k + 1;
            xml += "<Signal SignalName=\"IP" + QByteArray::number(pin / 10) + "_S" +
                   QByteArray::number(pin % 10) + "\" PinName=\"P" + QByteArray::number(pin) +
                   " (bench)\"/>";
        }
        xml += "</Group>\n";
    }
    xml += "</Section>\n<Section term=\"PeripheralsList\"/>\n</Device>\n";
    return xml;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const int pins = argc > 1 ? QByteArray(argv[1]).toInt() : 20000;
    QTemporaryDir dir;
    const QString db = dir.path() + "/MQ48DB";
    const QString devicePath = db + "/device/MQ48B000/BENCH.xml";
    if (!QDir().mkpath(db + "/device/MQ48B000") ||
        !write(db + "/MCUList.xml",
               "<MCUList><Section term=\"MCUSerialsList\"><Item Serial=\"MQ48B000\" "
               "InfoEN=\"bench\" InfoCH=\"bench\"/></Section><Section term=\"MCUPackageList\">"
               "<Package>LQFP</Package></Section><Section term=\"MQ48B000\"><MCU Name=\"BENCH\" "
               "Package=\"LQFP\"/></Section></MCUList>") ||
        !write(devicePath, device(pins))) {
        std::fprintf(stderr, "bench_database: can't write the scratch database\n");
        return 1;
    }

    QElapsedTimer timer;
    timer.start();
    DevicePinInfo info;
    ReadDevicePinInfo(devicePath, &info);
    const qint64 readMs = timer.elapsed();
    int resolved = 0;
    for (const PinsSignalsGroup &group : info.signalGroups)
        resolved += group.signalList.size();

    timer.restart();
    const QList<DatabaseDefect> defects = DatabaseChecker(db).run();
    const qint64 checkMs = timer.elapsed();

    std::printf("device of %d pins, %d group signals resolved\n", info.pins.size(), resolved);
    std::printf("read the device file:     %6lld ms\n", static_cast<long long>(readMs));
    std::printf("check the database:       %6lld ms (%d defects)\n",
                static_cast<long long>(checkMs), defects.size());
    return resolved == pins ? 0 : 1;
}
