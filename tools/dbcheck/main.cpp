// mq48dbcheck [path to MQ48DB]: lists the defects of a device database, one per line, and a
// count per kind. Exit status 0 when there are none, 1 when there are, 2 when the folder
// can't be found.

#include "database/databasechecker.h"

#include <QCoreApplication>
#include <QDir>
#include <QMap>
#include <QTextStream>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    const QStringList args = app.arguments();
    if (args.size() > 2 || (args.size() == 2 && args[1].startsWith(QLatin1Char('-')))) {
        err << "usage: mq48dbcheck [path to MQ48DB]\n";
        return 2;
    }
    const QString folder =
        args.size() == 2 ? args[1] : QCoreApplication::applicationDirPath() + "/MQ48DB";
    if (!QDir(folder).exists()) {
        err << "mq48dbcheck: no database folder " << QDir::toNativeSeparators(folder) << "\n";
        return 2;
    }

    DatabaseChecker checker(folder);
    const QList<DatabaseDefect> defects = checker.run();
    QMap<QString, int> counts;
    for (const DatabaseDefect &defect : defects) {
        out << "[" << defectKindName(defect.kind) << "] " << defect.text() << "\n";
        ++counts[defectKindName(defect.kind)];
    }
    if (defects.isEmpty()) {
        out << "mq48dbcheck: " << QDir::toNativeSeparators(folder) << ": no defects\n";
        return 0;
    }
    out << "mq48dbcheck: " << defects.size() << " defect(s):";
    for (auto it = counts.constBegin(); it != counts.constEnd(); ++it)
        out << " " << it.key() << "=" << it.value();
    out << "\n";
    return 1;
}
