#include "app/commandline.h"
#include "app/languagesetting.h"
#include "app/mainwindow.h"
#include "app/uifont.h"
#include "app/version.h"
#include "database/language.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QTextStream>
#include <QTranslator>

#include <cstdio>

namespace {

// The arguments after the program name; any at all name a command.
QStringList commandArguments(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

// Commands print only their own messages: Qt's notes about the windowless platform would
// bury them. Serious errors still come through.
void quietQtMessages(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

int main(int argc, char *argv[])
{
    const QStringList arguments = commandArguments(argc, argv);
    const bool headless = isCommandLine(arguments);
    // Commands run without a display.
    if (headless && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (headless)
        qInstallMessageHandler(quietQtMessages);
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QApplication app(argc, argv);
    InstallUiFont();
    QTranslator translator;

    const StartLanguage start = ChooseStartLanguage(ConfigFilePath(), QLocale());
    const bool loaded = translator.load(start.catalogue);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/image/VelmoraIcon")));
    if (loaded)
        QCoreApplication::installTranslator(&translator);

    if (headless) {
        g_language = start.language == 1 ? 1 : 0;
        QTextStream out(stdout);
        QTextStream err(stderr);
        const int code = runCommandLine(parseCommandLine(arguments), out, err);
        out.flush();
        err.flush();
        return code;
    }

    MainWindow window;
    window.setWindowTitle(QStringLiteral(MQ48_VERSION_TITLE));
    window.setLanguage(start.language);
    window.setTranslator(&translator);
    window.show();
    return app.exec();
}
