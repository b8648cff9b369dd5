#include "project/idetable.h"

namespace {

IdeType eclipseRow(int index, const QString &name, const QString &folder, bool preferences)
{
    IdeType row;
    row.index = index;
    row.name = name;
    row.templateFolder = folder;
    row.format = ProjectFormatKind::Eclipse;
    row.startupFolder = QStringLiteral("gcc");
    row.linkerFolder = preferences ? QString() : QStringLiteral("ldscripts");
    row.hasPreferences = preferences;
    row.openSuffix = QStringLiteral(".project");
    return row;
}

IdeType iarRow(int index, const QString &name, const QString &folder)
{
    IdeType row;
    row.index = index;
    row.name = name;
    row.templateFolder = folder;
    row.format = ProjectFormatKind::Iar;
    row.startupFolder = QStringLiteral("iar");
    row.projectSuffix = QStringLiteral("ewp");
    row.openSuffix = QStringLiteral("eww");
    return row;
}

IdeType keilRow(int index, const QString &name, const QString &folder, bool version5)
{
    IdeType row;
    row.index = index;
    row.name = name;
    row.templateFolder = folder;
    row.format = ProjectFormatKind::Keil;
    row.startupFolder = QStringLiteral("mdk");
    row.projectSuffix = version5 ? QStringLiteral("uvprojx") : QStringLiteral("uvproj");
    row.optionsSuffix = version5 ? QStringLiteral("uvoptx") : QStringLiteral("uvopt");
    row.debugDrivers = version5 ? QStringList{QStringLiteral("UL2CM3")}
                                : QStringList{QStringLiteral("CMSIS_AGDI"),
                                              QStringLiteral("JL2CM3"), QStringLiteral("UL2CM3")};
    row.packDevice = version5;
    row.openSuffix = row.projectSuffix;
    return row;
}

} // namespace

const QList<IdeType> &ideTypes()
{
    // Index 2 is the older IAR format: it keeps its place in the numbering but is not offered.
    static const QList<IdeType> rows{
        eclipseRow(0, QStringLiteral("MQ48_IDE"), QStringLiteral("mq48_ide"), true),
        eclipseRow(1, QStringLiteral("Eclipse_gcc"), QStringLiteral("eclipse_gcc"), false),
        iarRow(2, QString(), QStringLiteral("iar_v6.10")),
        iarRow(3, QStringLiteral("IAR_V7.4"), QStringLiteral("iar_v7.4")),
        iarRow(4, QStringLiteral("IAR_V8.2"), QStringLiteral("iar_v8.2")),
        iarRow(5, QStringLiteral("IAR_V9.3"), QStringLiteral("iar_v9.3")),
        keilRow(6, QStringLiteral("MDK_V4"), QStringLiteral("mdk_v4"), false),
        keilRow(7, QStringLiteral("MDK_V5"), QStringLiteral("mdk_v5"), true),
    };
    return rows;
}

QStringList dialogIdeNames()
{
    QStringList names;
    const QList<IdeType> &rows = ideTypes();
    for (auto it = rows.crbegin(); it != rows.crend(); ++it) {
        if (!it->name.isEmpty())
            names << it->name;
    }
    return names;
}

IdeType ideTypeByName(const QString &name)
{
    const QString wanted = name.trimmed().toLower();
    for (const IdeType &row : ideTypes()) {
        if (!wanted.isEmpty() && (row.name.toLower() == wanted || row.templateFolder == wanted))
            return row;
    }
    return IdeType();
}

IdeType ideTypeByIndex(int index)
{
    const QList<IdeType> &rows = ideTypes();
    return index >= 0 && index < rows.size() ? rows.at(index) : IdeType();
}

int ideIndexOfName(const QString &name)
{
    return ideTypeByName(name).index;
}

QString ideProjectFile(const QString &projectFolder, const QString &projectName,
                       const QString &ideName)
{
    const IdeType row = ideTypeByName(ideName);
    if (!row.isValid() || row.name.isEmpty())
        return QString();
    const QString folder = projectFolder + QStringLiteral("/project/") + row.projectFolder();
    if (row.format == ProjectFormatKind::Eclipse)
        return folder + QLatin1Char('/') + row.openSuffix;
    return folder + QLatin1Char('/') + projectName + QLatin1Char('.') + row.openSuffix;
}
