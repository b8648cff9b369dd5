#pragma once

#include "project/projectwriter.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <ostream>

// Lets the test messages show texts as text.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

// Helpers shared by the project tests: the fixture package, jobs for T110 devices, and readers
// of what a written IDE project names.
namespace projecttest {

// The shipped template tree of the source folder.
QString templateRoot();
// The fixture repository (holding PF_MQ48T110) and its one package.
QString fixtureRepository();
QString fixturePackage();

// The driver stems of a T110 design with USART1 and TMR1 in use, plus one the package lacks.
QStringList usartTimerDrivers();

// A job for `device` ("MQ48T110C8T" or "MQ48T110CBT") written with the fixture package.
ProjectJob t110Job(const QString &ide, const QString &projectFolder,
                   const QString &device = QStringLiteral("MQ48T110C8T"));

// Every file below `folder`, by path relative to it, with its contents.
QMap<QString, QByteArray> snapshot(const QString &folder);

// The IDE folder of a job: <project>/project/<IDE>.
QString ideFolder(const ProjectJob &job);

// The project files a format writes for a job, relative to the IDE folder.
QStringList projectFiles(const ProjectJob &job);

// The source files the written project names, as clean absolute paths; `ok` false when a
// project file can't be parsed as XML.
QStringList listedSources(const ProjectJob &job, bool *ok);

// The text of the project files of a job joined, for searching.
QString projectText(const ProjectJob &job);

} // namespace projecttest
