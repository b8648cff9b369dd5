// Times the project writer: a first generation and a regeneration of a MQ48T110 project for
// every toolchain, from a package of full size or from a package folder given as argument. With
// "--screenshot <folder>" it saves the Project Manager dialog in English and in Chinese.

#include "database/paths.h"
#include "project/idetable.h"
#include "project/projectsetting.h"
#include "project/projectwriter.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTranslator>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2.0;
}

ProjectJob t110Job(const QString &ide, const QString &folder, const QString &package)
{
    ProjectJob job;
    job.ideName = ide;
    job.templateRoot = QStringLiteral(MQ48_SOURCE_DIR "/MQ48DB/projectTemplate");
    job.projectFolder = folder;
    job.series = QStringLiteral("MQ48T110");
    job.device = QStringLiteral("MQ48T110CBT");
    job.projectName = QStringLiteral("Bench");
    job.firmwarePath = package;
    job.flashKiB = 128;
    job.ramKiB = 16;
    for (const char *driver : {"crm", "tmr", "gpio", "usart", "pwc", "flash", "misc"})
        job.driverStems << QStringLiteral("mq48t110_") + QLatin1String(driver);
    return job;
}

// A package of the agreed layout with files of the sizes a full firmware library has: 19
// drivers of about 60 KiB source and 30 KiB header, a 600 KiB device header, core headers,
// start-up and linker files, and some middleware.
QString syntheticPackage(const QString &root)
{
    const QString package = root + QStringLiteral("/PF_MQ48T110/MQ48T110_Firmware_Library_V2.0.0");
    auto write = [&package](const QString &relative, int kib) {
        const QString path = package + QLatin1Char('/') + relative;
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return;
        QByteArray line("/* synthetic line of a firmware file, sixty-four bytes long   */\n");
        for (int i = 0; i < kib * 16; ++i)
            file.write(line);
    };
    const QString cmsis = QStringLiteral("libraries/cmsis/cm4/");
    const QString startup = cmsis + QStringLiteral("device_support/startup/");
    for (const char *core : {"core_a.h", "core_b.h", "core_c.h", "core_d.h"})
        write(cmsis + QStringLiteral("core_support/") + QLatin1String(core), 60);
    write(cmsis + QStringLiteral("device_support/mq48t110.h"), 600);
    write(cmsis + QStringLiteral("device_support/system_mq48t110.c"), 20);
    write(cmsis + QStringLiteral("device_support/system_mq48t110.h"), 2);
    for (const char *tool : {"gcc", "mdk", "iar"})
        write(startup + QLatin1String(tool) + QStringLiteral("/startup_mq48t110.s"), 12);
    const QByteArray sizes = "_Min_Heap_Size = 0x200;\n_Min_Stack_Size = 0x400;\n"
                             "Stack_Size      EQU     0x00000400\n"
                             "Heap_Size       EQU     0x00000200\n"
                             "define symbol __ICFEDIT_size_cstack__ = 0x400;\n"
                             "define symbol __ICFEDIT_size_heap__ = 0x200;\n";
    for (const QString &file : {startup + QStringLiteral("mdk/startup_mq48t110.s"),
                                startup + QStringLiteral("gcc/linker/MQ48T110xB_FLASH.ld"),
                                startup + QStringLiteral("iar/linker/MQ48T110xB.icf")}) {
        write(file, 0);
        QFile out(package + QLatin1Char('/') + file);
        if (out.open(QIODevice::Append))
            out.write(sizes);
    }
    for (const char *driver :
         {"crm", "cmp", "tmr", "ertc", "gpio", "i2c", "usart", "pwc", "adc", "spi", "dma", "debug",
          "flash", "crc", "wwdt", "wdt", "exint", "misc", "scfg"}) {
        write(QStringLiteral("libraries/drivers/src/mq48t110_") + QLatin1String(driver) +
                  QStringLiteral(".c"),
              60);
        write(QStringLiteral("libraries/drivers/inc/mq48t110_") + QLatin1String(driver) +
                  QStringLiteral(".h"),
              30);
    }
    write(QStringLiteral("libraries/drivers/inc/mq48t110_def.h"), 4);
    write(QStringLiteral("middlewares/readme.txt"), 1);
    write(QStringLiteral("project/mq_board_t110/templates/mq48t110_conf.h"), 4);
    return package;
}

int timeWriter(const QString &package)
{
    constexpr int kRuns = 15;
    std::printf("%-12s %14s %14s\n", "toolchain", "first (ms)", "again (ms)");
    bool failed = false;
    for (const QString &ide : dialogIdeNames()) {
        std::vector<double> first;
        std::vector<double> again;
        for (int run = 0; run < kRuns; ++run) {
            QTemporaryDir dir;
            const ProjectJob job = t110Job(ide, dir.path() + QStringLiteral("/P"), package);
            QString error;
            QElapsedTimer timer;
            timer.start();
            failed |= ProjectWriter::write(job, &error) != ProjectWriter::Written;
            first.push_back(timer.nsecsElapsed() / 1e6);
            timer.restart();
            failed |= ProjectWriter::write(job, &error) != ProjectWriter::Written;
            again.push_back(timer.nsecsElapsed() / 1e6);
            if (failed) {
                std::fprintf(stderr, "%s: %s\n", qPrintable(ide), qPrintable(error));
                return 1;
            }
        }
        std::printf("%-12s %14.1f %14.1f\n", qPrintable(ide), median(first), median(again));
    }
    return 0;
}

int screenshots(const QString &folder)
{
    QTemporaryDir app;
    QDir().mkpath(app.path() + QStringLiteral("/MQ48DB"));
    QFile::copy(QStringLiteral(MQ48_SOURCE_DIR "/MQ48DB/MCUList.xml"),
                app.path() + QStringLiteral("/MQ48DB/MCUList.xml"));
    setAppFolderOverride(app.path());
    ProjectTarget target;
    target.series = QStringLiteral("MQ48T110");
    target.device = QStringLiteral("MQ48T110C8T");
    for (const QString &language : {QStringLiteral("en"), QStringLiteral("zh")}) {
        QTranslator translator;
        if (language == QLatin1String("zh") && translator.load(QStringLiteral(":/image/tr_zh.qm")))
            QApplication::installTranslator(&translator);
        ProjectSetting dialog;
        dialog.setTarget(target);
        dialog.updateRepoPath(QStringLiteral(MQ48_SOURCE_DIR "/tests/fixtures/project"));
        dialog.show();
        QApplication::processEvents();
        const QString path =
            folder + QStringLiteral("/project-manager-") + language + QStringLiteral(".png");
        if (!dialog.grab().save(path))
            return 1;
        std::printf("%s\n", qPrintable(path));
        // The same dialog with no package installed in the repository.
        dialog.updateRepoPath(app.path());
        QApplication::processEvents();
        const QString missing = folder + QStringLiteral("/project-manager-missing-") + language +
                                QStringLiteral(".png");
        if (!dialog.grab().save(missing))
            return 1;
        std::printf("%s\n", qPrintable(missing));
        QApplication::removeTranslator(&translator);
    }
    setAppFolderOverride(QString());
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList args = QApplication::arguments().mid(1);
    if (args.size() == 2 && args.first() == QLatin1String("--screenshot"))
        return screenshots(args.at(1));
    QTemporaryDir scratch;
    const QString package = args.isEmpty() ? syntheticPackage(scratch.path()) : args.first();
    return timeWriter(package);
}
