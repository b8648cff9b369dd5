#include "projecttestsupport.h"

#include "common/testsupport.h"
#include "database/safexml.h"
#include "project/projectformats.h"

#include <QDir>
#include <QDirIterator>
#include <QDomDocument>
#include <QFileInfo>

namespace projecttest {

QString templateRoot()
{
    return QStringLiteral(MQ48_SOURCE_DIR) + QStringLiteral("/MQ48DB/projectTemplate");
}

QString fixtureRepository()
{
    return testsupport::fixture(QStringLiteral("project"));
}

QString fixturePackage()
{
    return fixtureRepository() + QStringLiteral("/PF_MQ48T110/MQ48T110_Firmware_Library_V2.0.0");
}

QStringList usartTimerDrivers()
{
    return {QStringLiteral("mq48t110_crm"),   QStringLiteral("mq48t110_tmr"),
            QStringLiteral("mq48t110_gpio"),  QStringLiteral("mq48t110_usart"),
            QStringLiteral("mq48t110_pwc"),   QStringLiteral("mq48t110_adc"),
            QStringLiteral("mq48t110_flash"), QStringLiteral("mq48t110_misc")};
}

ProjectJob t110Job(const QString &ide, const QString &projectFolder, const QString &device)
{
    ProjectJob job;
    job.ideName = ide;
    job.templateRoot = templateRoot();
    job.projectFolder = projectFolder;
    job.series = QStringLiteral("MQ48T110");
    job.device = device;
    job.projectName = device + QStringLiteral("_PinForge");
    job.firmwarePath = fixturePackage();
    const bool large = device == QLatin1String("MQ48T110CBT");
    job.flashKiB = large ? 128 : 64;
    job.ramKiB = large ? 16 : 8;
    job.driverStems = usartTimerDrivers();
    return job;
}

QMap<QString, QByteArray> snapshot(const QString &folder)
{
    QMap<QString, QByteArray> files;
    const QDir root(folder);
    QDirIterator it(folder, QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        files.insert(root.relativeFilePath(path), testsupport::readFile(path));
    }
    return files;
}

QString ideFolder(const ProjectJob &job)
{
    return job.projectFolder + QStringLiteral("/project/") + job.ideName;
}

QStringList projectFiles(const ProjectJob &job)
{
    const IdeType ide = ideTypeByName(job.ideName);
    QStringList names;
    for (const TemplateFile &file : ProjectFormat::of(ide.format).files(ide))
        names << file.writtenFor(job.projectName);
    return names;
}

namespace {

QStringList texts(const QDomElement &root, const QStringList &path)
{
    QList<QDomElement> level{root};
    for (const QString &name : path) {
        QList<QDomElement> next;
        for (const QDomElement &e : level) {
            for (QDomElement c = e.firstChildElement(name); !c.isNull();
                 c = c.nextSiblingElement(name))
                next << c;
        }
        level = next;
    }
    QStringList out;
    for (const QDomElement &e : level)
        out << e.text();
    return out;
}

QString resolve(const QString &base, QString path)
{
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return QDir::cleanPath(base + QLatin1Char('/') + path);
}

} // namespace

QStringList listedSources(const ProjectJob &job, bool *ok)
{
    *ok = true;
    const IdeType ide = ideTypeByName(job.ideName);
    const QString folder = ideFolder(job);
    QStringList sources;
    QDomDocument doc;
    switch (ide.format) {
    case ProjectFormatKind::Keil:
        *ok = loadXmlDocument(folder + QLatin1Char('/') + job.projectName + QLatin1Char('.') +
                                  ide.projectSuffix,
                              &doc);
        for (const QString &path :
             texts(doc.documentElement(),
                   {QStringLiteral("Targets"), QStringLiteral("Target"), QStringLiteral("Groups"),
                    QStringLiteral("Group"), QStringLiteral("Files"), QStringLiteral("File"),
                    QStringLiteral("FilePath")}))
            sources << resolve(folder, path);
        break;
    case ProjectFormatKind::Iar:
        *ok = loadXmlDocument(folder + QLatin1Char('/') + job.projectName + QStringLiteral(".ewp"),
                              &doc);
        for (QString path :
             texts(doc.documentElement(),
                   {QStringLiteral("group"), QStringLiteral("file"), QStringLiteral("name")}))
            sources << resolve(folder, path.replace(QLatin1String("$PROJ_DIR$"), QString()));
        break;
    case ProjectFormatKind::Eclipse: {
        *ok = loadXmlDocument(folder + QStringLiteral("/.project"), &doc);
        const QDomElement links =
            doc.documentElement().firstChildElement(QStringLiteral("linkedResources"));
        for (QDomElement link = links.firstChildElement(QStringLiteral("link")); !link.isNull();
             link = link.nextSiblingElement(QStringLiteral("link"))) {
            if (link.firstChildElement(QStringLiteral("type")).text() != QLatin1String("1"))
                continue;
            QString location = link.firstChildElement(QStringLiteral("locationURI")).text();
            location.replace(QLatin1String("PARENT-1-PROJECT_LOC"), QStringLiteral(".."));
            location.replace(QLatin1String("PARENT-2-PROJECT_LOC"), QStringLiteral("../.."));
            sources << resolve(folder, location);
        }
        // Eclipse builds the sources that lie in the project folder itself.
        for (const QFileInfo &file : QDir(folder).entryInfoList(
                 {QStringLiteral("*.s"), QStringLiteral("*.c")}, QDir::Files))
            sources << QDir::cleanPath(file.absoluteFilePath());
        break;
    }
    }
    return sources;
}

QString projectText(const ProjectJob &job)
{
    QString text;
    for (const QString &name : projectFiles(job))
        text += QString::fromUtf8(testsupport::readFile(ideFolder(job) + QLatin1Char('/') + name));
    return text;
}

} // namespace projecttest
