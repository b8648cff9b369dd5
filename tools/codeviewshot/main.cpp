// Shows the code view page on a folder of generated files with a search hit and saves a
// picture of the whole screen.
//
// codeviewshot <folder> <stem> <out.png> <en|zh> <search text> [tab]

#include "codeview/finddialog.h"
#include "codeview/formcodeview.h"
#include "database/language.h"

#include <QApplication>
#include <QComboBox>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QTabWidget>
#include <QTextStream>
#include <QThread>
#include <QTimer>
#include <QTranslator>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 6) {
        QTextStream(stderr)
            << "usage: codeviewshot <folder> <stem> <out.png> <en|zh> <search text> [tab]\n";
        return 2;
    }
    QTranslator translator;
    if (args.at(4) == QLatin1String("zh")) {
        if (!translator.load(QStringLiteral(":/image/tr_zh.qm")))
            QTextStream(stderr) << "cannot load the Chinese catalogue\n";
        app.installTranslator(&translator);
        g_language = 1;
    }

    FormCodeView page;
    page.setGeometry(0, 0, 1500, 940);
    page.show();
    page.showGeneratedFiles(args.at(1), args.at(2));
    page.tabWidget()->setCurrentIndex(args.size() > 6 ? args.at(6).toInt() : 0);
    page.openFindDialog();
    FindDialog *dialog = page.findDialog();
    dialog->move(1040, 560);
    dialog->findChild<QComboBox *>(QStringLiteral("findWhatComboBox"))->setEditText(args.at(5));
    dialog->slot_findNext();
    dialog->slot_findNext();

    const QString out = args.at(3);
    QTimer::singleShot(1500, [&]() {
        const QPixmap shot = QGuiApplication::primaryScreen()->grabWindow(0);
        if (!shot.save(out))
            QTextStream(stderr) << "cannot write " << out << "\n";
        app.quit();
    });
    return app.exec();
}
