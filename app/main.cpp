#include "app/languagesetting.h"
#include "app/mainwindow.h"
#include "app/version.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QTranslator>

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QApplication app(argc, argv);
    QTranslator translator;

    const StartLanguage start = ChooseStartLanguage(ConfigFilePath(), QLocale());
    const bool loaded = translator.load(start.catalogue);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/image/VelmoraIcon")));
    if (loaded)
        QCoreApplication::installTranslator(&translator);

    MainWindow window;
    window.setWindowTitle(QStringLiteral(MQ48_VERSION_TITLE));
    window.setLanguage(start.language);
    window.setTranslator(&translator);
    window.show();
    return app.exec();
}
