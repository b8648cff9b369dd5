#pragma once

#include "project/projectinfo.h"

#include <QString>

#include <functional>

class FormConfiguration;
class QWidget;

// Writes the configuration report of the open design to a PDF file; the command line's
// "report" and the work form's action both end here. False, with the message for the user in
// `error`, when no design is open or the file cannot be written; no partial file is left.
bool writeDesignReport(FormConfiguration *form, const QString &pdfPath, QString *error,
                       const ProjectInfo &project = ProjectInfo());

// The file the save dialog suggests: the project folder and name with ".pdf" when the
// project has a name, else the design's stem (or the device's name) with "_PinForge.pdf".
QString suggestedReportPath(const FormConfiguration &form, const ProjectInfo &project);

// The work form's "Generate Report": asks for the file, writes the report, and tells how it
// went, offering to open the folder or the report. False when nothing was written.
bool runGenerateReportAction(FormConfiguration *form, const ProjectInfo &project = ProjectInfo());

// Chooses the report's file; the standard save dialog unless replaced (tests answer here).
// `suggested` is the name the dialog starts with; an empty result cancels.
using ReportFileChooser = std::function<QString(QWidget *parent, const QString &suggested)>;
void setReportFileChooser(ReportFileChooser chooser);
