#include "project/devicefacts.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QVersionNumber>

#include <algorithm>

namespace devicefacts {

namespace {

const QHash<QString, QString> &pairedSeries()
{
    static const QHash<QString, QString> pairs{
        {QStringLiteral("MQ48T210"), QStringLiteral("MQ48T210_220")},
        {QStringLiteral("MQ48T220"), QStringLiteral("MQ48T210_220")},
        {QStringLiteral("MQ48T250"), QStringLiteral("MQ48T250_260")},
        {QStringLiteral("MQ48T260"), QStringLiteral("MQ48T250_260")},
        {QStringLiteral("MQ48T510"), QStringLiteral("MQ48T510_520")},
        {QStringLiteral("MQ48T520"), QStringLiteral("MQ48T510_520")},
        {QStringLiteral("MQ48T610"), QStringLiteral("MQ48T610_620_630")},
        {QStringLiteral("MQ48T620"), QStringLiteral("MQ48T610_620_630")},
        {QStringLiteral("MQ48T630"), QStringLiteral("MQ48T610_620_630")},
    };
    return pairs;
}

// Series whose firmware package has its own stem; the pairs share one.
const QStringList &seriesWithStem()
{
    static const QStringList series{
        QStringLiteral("MQ48T110"), QStringLiteral("MQ48T130"), QStringLiteral("MQ48V130"),
        QStringLiteral("MQ48T120"), QStringLiteral("MQ48T230"), QStringLiteral("MQ48T310"),
        QStringLiteral("MQ48T320"), QStringLiteral("MQ48W320"), QStringLiteral("MQ48T050"),
        QStringLiteral("MQ48V250"), QStringLiteral("MQ48T210"), QStringLiteral("MQ48T220"),
        QStringLiteral("MQ48T250"), QStringLiteral("MQ48T260"), QStringLiteral("MQ48T510"),
        QStringLiteral("MQ48T520"),
    };
    return series;
}

QString tail(const QString &name)
{
    return name.mid(4).toLower();
}

} // namespace

QString deviceStem(const QString &series)
{
    if (!seriesWithStem().contains(series))
        return QString();
    return tail(pairedSeries().value(series, series));
}

QString boardStem(const QString &series)
{
    return seriesWithStem().contains(series) ? tail(series) : QString();
}

QString packageFamily(const QString &series)
{
    return pairedSeries().value(series, series);
}

QString codeStem(const QString &series)
{
    const QString stem = deviceStem(series);
    return stem.isEmpty() ? QString() : QStringLiteral("mq48") + stem;
}

QChar flashCodeChar(int flashKiB)
{
    static const QHash<int, char> codes{
        {0, '0'},    {2, '1'},    {4, '2'},    {8, '3'},    {16, '4'},   {24, '5'},
        {32, '6'},   {48, '7'},   {64, '8'},   {72, '9'},   {96, 'A'},   {128, 'B'},
        {192, 'Z'},  {256, 'C'},  {384, 'D'},  {448, 'D'},  {512, 'E'},  {768, 'F'},
        {1024, 'G'}, {1536, 'H'}, {2048, 'I'}, {3072, 'K'}, {4032, 'M'}, {4096, 'M'},
    };
    const auto it = codes.constFind(flashKiB);
    if (it != codes.constEnd())
        return QLatin1Char(it.value());
    return flashKiB > 256 ? QLatin1Char('M') : QChar();
}

QString linkerStem(const QString &series, int flashKiB)
{
    const QChar code = flashCodeChar(flashKiB);
    if (series.isEmpty() || code.isNull())
        return QString();
    return series + QLatin1Char('x') + code;
}

int sizeKiB(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\s*(\\d+)\\s*(K|KB|KiB|M|MB|MiB)?\\s*$"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch m = pattern.match(text);
    if (!m.hasMatch())
        return 0;
    const int value = m.captured(1).toInt();
    return m.captured(2).startsWith(QLatin1Char('M'), Qt::CaseInsensitive) ? value * 1024 : value;
}

QStringList generatedSources(const QString &series, bool withRtc)
{
    const QString stem = codeStem(series);
    if (stem.isEmpty())
        return {};
    QStringList files{QStringLiteral("main.c"), stem + QStringLiteral("_pf_config.c"),
                      stem + QStringLiteral("_int.c")};
    if (withRtc)
        files << QStringLiteral("rtc.c");
    return files;
}

QString packageName(const QString &series, const QString &version)
{
    return packageFamily(series) + QStringLiteral("_Firmware_Library_") + version;
}

QString packageFolder(const QString &repository, const QString &series, const QString &version)
{
    return repository + QStringLiteral("/PF_") + packageFamily(series) + QLatin1Char('/') +
           packageName(series, version);
}

QStringList installedPackageVersions(const QString &repository, const QString &series)
{
    if (repository.isEmpty())
        return {};
    const QString family = packageFamily(series);
    const QDir dir(repository + QStringLiteral("/PF_") + family);
    const QString prefix = family + QStringLiteral("_Firmware_Library_");
    QStringList versions;
    for (const QString &name : dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (name.startsWith(prefix) && name.size() > prefix.size())
            versions << name.mid(prefix.size());
    }
    std::sort(versions.begin(), versions.end(), [](const QString &a, const QString &b) {
        const QVersionNumber va = QVersionNumber::fromString(a.mid(1));
        const QVersionNumber vb = QVersionNumber::fromString(b.mid(1));
        return va != vb ? va > vb : a > b;
    });
    return versions;
}

bool isFirmwarePackage(const QString &folder, const QString &series)
{
    const QString stem = boardStem(series);
    if (folder.isEmpty() || stem.isEmpty())
        return false;
    const QString name = QFileInfo(folder).fileName();
    if (!name.contains(QLatin1String("MQ48")) || !name.contains(QLatin1String("Firmware_Library")))
        return false;
    return QFileInfo(folder + QStringLiteral("/libraries")).isDir() &&
           QFileInfo(folder + QStringLiteral("/middlewares")).isDir() &&
           QFileInfo(folder + QStringLiteral("/project/mq_board_") + stem +
                     QStringLiteral("/templates"))
               .isDir();
}

} // namespace devicefacts
