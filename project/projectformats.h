#pragma once

#include "project/projectwriter.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

struct XmlNode;

// One element of a project file that a format rewrites: the path of the element from the
// root (see XmlTree::select) and the edit applied to each match.
struct ElementRule
{
    const char *path;
    bool (*edit)(XmlNode &element, const ProjectContext &context);
    bool required; // a template without the element is broken
};

// A template file of a format, the name it is written under, and the elements it rewrites.
// "template" and "Template" in the file's texts become the project name.
struct TemplateFile
{
    QString templateName;
    QString writtenName; // "%1" stands for the project name
    QList<ElementRule> rules;
    bool xml = true; // false: a text file edited line by line (preferences.ini)

    QString writtenFor(const QString &projectName) const
    {
        return writtenName.contains(QLatin1String("%1")) ? writtenName.arg(projectName)
                                                         : writtenName;
    }
};

// Writer of the project files of one IDE file format.
class ProjectFormat
{
    Q_DECLARE_TR_FUNCTIONS(ProjectFormat)

public:
    virtual ~ProjectFormat() = default;

    // The template files of an IDE type written by this format.
    virtual QList<TemplateFile> files(const IdeType &ide) const = 0;

    // Writes every file of files() from context.templateFolder into context.outputFolder;
    // `written` receives the written file names.
    bool write(const ProjectContext &context, QStringList *written, QString *error) const;

    // The format of an IDE type.
    static const ProjectFormat &of(ProjectFormatKind kind);

protected:
    // Edits a text file that is not XML; the default accepts it unchanged.
    virtual bool editText(QString &text, const ProjectContext &context) const;
};

// Keil µVision 4 and 5: the project and options files.
class KeilProjectFormat : public ProjectFormat
{
public:
    QList<TemplateFile> files(const IdeType &ide) const override;
};

// IAR: workspace, project, debugger and tool settings files.
class IarProjectFormat : public ProjectFormat
{
public:
    QList<TemplateFile> files(const IdeType &ide) const override;
};

// Eclipse CDT with the GNU Arm cross toolchain; the maker's IDE adds preferences.ini.
class EclipseProjectFormat : public ProjectFormat
{
public:
    QList<TemplateFile> files(const IdeType &ide) const override;

protected:
    bool editText(QString &text, const ProjectContext &context) const override;
};

// Replaces the device in a define list ("A,B,USE_STDPERIPH_DRIVER"): the entry before
// USE_STDPERIPH_DRIVER becomes `device`, or the device is put before it when it is first.
// False when the list has no USE_STDPERIPH_DRIVER.
bool replaceDeviceDefine(QStringList &defines, const QString &device);
