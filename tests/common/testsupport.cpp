#include "testsupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace testsupport {

QString fixture(const QString &relative)
{
    return QStringLiteral(MQ48_FIXTURES_DIR) + QLatin1Char('/') + relative;
}

QString sourceDatabase()
{
    return QDir::cleanPath(QStringLiteral(MQ48_FIXTURES_DIR) + QStringLiteral("/../../MQ48DB"));
}

bool writeFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    return f.write(content) == content.size();
}

QByteArray readFile(const QString &path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return f.readAll();
}

} // namespace testsupport
