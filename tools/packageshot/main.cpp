// packageshot <package zip> <output folder>: installs the zip into a scratch repository (the
// settings of a scratch program folder point at it), opens the Package Manager with the
// package shown and saves a picture of it, in English and in Chinese.

#include "database/configstore.h"
#include "database/language.h"
#include "database/paths.h"
#include "packages/installcommand.h"
#include "packages/packagemanager.h"
#include "packages/packagesettings.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTranslator>
#include <QTreeWidget>

#include <cstdio>

namespace {

bool shoot(const QString &file)
{
    PackageManager dialog;
    dialog.resize(900, 520);
    dialog.show();
    if (QTreeWidget *tree = dialog.findChild<QTreeWidget *>())
        tree->expandAll();
    for (int i = 0; i < 5; ++i)
        QApplication::processEvents();
    if (!dialog.grab().save(file)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
        return false;
    }
    std::printf("%s\n", qPrintable(file));
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: packageshot <package zip> <output folder>\n");
        return 1;
    }
    const QString zip = QString::fromLocal8Bit(argv[1]);
    const QString out = QString::fromLocal8Bit(argv[2]);
    QDir().mkpath(out);
    QTemporaryDir program;
    // The catalogue tells which families a package may be of.
    QFile::link(QStringLiteral(MQ48_SOURCE_DIR "/MQ48DB"),
                program.path() + QStringLiteral("/MQ48DB"));
    setAppFolderOverride(program.path());
    const QString repository = program.path() + QStringLiteral("/Repository/Package");
    QDir().mkpath(repository);
    if (!storeRepositoryPath(repository))
        return 1;
    QTextStream err(stderr);
    if (installPackageCommand(zip, repository, err) != InstallCommandInstalled)
        return 1;

    g_language = 0;
    bool ok = shoot(out + QStringLiteral("/packagemanager_en.png"));
    QTranslator translator;
    if (translator.load(QStringLiteral(":/image/tr_zh.qm")))
        app.installTranslator(&translator);
    g_language = 1;
    ok = shoot(out + QStringLiteral("/packagemanager_zh.png")) && ok;
    setAppFolderOverride(QString());
    return ok ? 0 : 1;
}
