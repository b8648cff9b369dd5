#include "app/generatereportaction.h"

#include "app/formconfiguration.h"
#include "app/reportinputsbuilder.h"
#include "report/generatereport.h"
#include "widgets/messagebox.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QUrl>

namespace {

QString trText(const char *text)
{
    return QCoreApplication::translate("GenerateReport", text);
}

ReportFileChooser &fileChooser()
{
    static ReportFileChooser chooser;
    return chooser;
}

} // namespace

void setReportFileChooser(ReportFileChooser chooser)
{
    fileChooser() = std::move(chooser);
}

bool writeDesignReport(FormConfiguration *form, const QString &pdfPath, QString *error,
                       const ProjectInfo &project)
{
    if (!form || !form->isDesignOpen()) {
        if (error)
            *error = trText(QT_TRANSLATE_NOOP("GenerateReport", "No design is open."));
        return false;
    }
    GenerateReport report;
    report.setInputs(ReportInputsBuilder::fromForm(*form, project));
    return report.writePdf(pdfPath, error);
}

QString suggestedReportPath(const FormConfiguration &form, const ProjectInfo &project)
{
    if (!project.projectName.trimmed().isEmpty()) {
        const QString folder = project.projectFolder();
        const QString name = project.projectName.trimmed() + QStringLiteral(".pdf");
        return folder.isEmpty() ? name : folder + QLatin1Char('/') + name;
    }
    const QString design = form.currentDesignPath();
    if (!design.isEmpty()) {
        const QFileInfo info(design);
        return info.path() + QLatin1Char('/') + info.completeBaseName() +
               QStringLiteral("_PinForge.pdf");
    }
    return form.design().mcuName + QStringLiteral("_PinForge.pdf");
}

bool runGenerateReportAction(FormConfiguration *form, const ProjectInfo &project)
{
    if (!form || !form->isDesignOpen())
        return false;
    const QString suggested = suggestedReportPath(*form, project);
    QString path;
    if (fileChooser())
        path = fileChooser()(form, suggested);
    else
        path = QFileDialog::getSaveFileName(
            form, trText(QT_TRANSLATE_NOOP("GenerateReport", "Save PDF file")), suggested,
            trText(QT_TRANSLATE_NOOP("GenerateReport", "PDF file(*.pdf)")));
    path = QDir::fromNativeSeparators(path.trimmed());
    if (path.isEmpty())
        return false;

    QString error;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const bool written = writeDesignReport(form, path, &error, project);
    QApplication::restoreOverrideCursor();
    if (!written) {
        tellUser(form, UserMessage::Error, trText(QT_TRANSLATE_NOOP("GenerateReport", "Error")),
                 error);
        return false;
    }

    UserMessage done;
    done.kind = UserMessage::Information;
    done.title = trText(QT_TRANSLATE_NOOP("GenerateReport", "Information"));
    done.text = trText(QT_TRANSLATE_NOOP("GenerateReport", "Generate report finished!"));
    done.buttons = QStringList{trText(QT_TRANSLATE_NOOP("GenerateReport", " Open Folder  ")),
                               trText(QT_TRANSLATE_NOOP("GenerateReport", " Preview Report  ")),
                               okButtonText()};
    const int answer = showUserMessage(form, done);
    if (answer == 0)
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
    else if (answer == 1)
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()));
    return true;
}
