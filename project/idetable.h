#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// The file formats the project writer knows; each IDE type is a row over one of them.
enum class ProjectFormatKind {
    Eclipse, // Eclipse CDT .project/.cproject (the maker's IDE adds preferences.ini)
    Iar,     // IAR workspace and project files .eww/.ewp/.ewd/.ewt
    Keil,    // Keil µVision .uvprojx/.uvoptx or .uvproj/.uvopt
};

// One IDE type of the project manager: where its template lies, which format it is written
// in, where the firmware's startup and linker files come from, and which file opens it.
struct IdeType
{
    int index = -1;         // the writer's IDE index
    QString name;           // name in the dialog and in the design file; empty if not offered
    QString templateFolder; // folder below MQ48DB/projectTemplate
    ProjectFormatKind format = ProjectFormatKind::Eclipse;
    QString startupFolder;       // "gcc", "mdk" or "iar" below the package's startup folder
    QString linkerFolder;        // where the linker file goes inside the IDE folder ("" = itself)
    QString projectSuffix;       // Keil: project file suffix ("uvprojx"); IAR "ewp"
    QString optionsSuffix;       // Keil: options file suffix ("uvoptx")
    QStringList debugDrivers;    // Keil: driver registry keys whose command line is rewritten
    bool packDevice = false;     // Keil: the device comes from a device pack (µVision 5)
    bool hasPreferences = false; // Eclipse: the maker's IDE keeps preferences.ini
    QString openSuffix;          // the file that "Open Project" opens, by suffix

    bool isValid() const { return index >= 0; }
    // Folder name under the project's "project" folder (the name of the row).
    QString projectFolder() const { return name; }
};

// Every row of the IDE table, by index (0 to 7).
const QList<IdeType> &ideTypes();

// The names of the dialog's combo box, in its order (MDK_V5 first, MQ48_IDE last).
QStringList dialogIdeNames();

// The row of a dialog name or template folder name, compared without case; an invalid row
// when nothing matches.
IdeType ideTypeByName(const QString &name);
IdeType ideTypeByIndex(int index);

// The index of a name as the dialog computes it from the lower-case name, -1 when unknown.
int ideIndexOfName(const QString &name);

// The file that opens the written project: "<P>/project/<IDE>/<name>.<suffix>", or
// ".project" in the IDE folder for the Eclipse types. Empty for an unknown IDE.
QString ideProjectFile(const QString &projectFolder, const QString &projectName,
                       const QString &ideName);
