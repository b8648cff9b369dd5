#include "packages/versioncheck.h"

#include "database/language.h"
#include "database/paths.h"
#include "packages/httpsdownload.h"
#include "packages/packageindex.h"
#include "packages/packagesettings.h"
#include "widgets/messagebox.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFile>
#include <QFileDialog>
#include <QUrl>

namespace {

// The texts of the version check.
struct VersionCheck
{
    Q_DECLARE_TR_FUNCTIONS(VersionCheck)
};

} // namespace

void runNewVersionDownload(QWidget *parent, const QString &currentVersion,
                           const DirectoryChooser &chooseDirectory)
{
    const QString listPath = appFolder() + QStringLiteral("/VelmoraDownloadResource.xml");
    QFile::remove(listPath);
    {
        HttpsDownload download(parent);
        if (!download.Download(versionListUrl(), appFolder()))
            return;
    }

    const QString tool = QStringLiteral("MQ48 Pin Forge");
    const QString section = QStringLiteral("VelmoraTool");
    const QString published = GetDownloadInfo(listPath, QStringLiteral("Version"), tool, section);
    if (VersionNumberFromText(published) <= VersionNumberFromText(currentVersion)) {
        tellUser(parent, UserMessage::Information, VersionCheck::tr("Information"),
                 VersionCheck::tr("The current tool is the latest version."));
        QFile::remove(listPath);
        return;
    }
    if (!confirmUser(
            parent, UserMessage::Information, VersionCheck::tr("Information"),
            VersionCheck::tr("A new version of \"MQ48 Pin Forge\" has been detected, do you want "
                             "to download it?"),
            VersionCheck::tr("Ok"))) {
        QFile::remove(listPath);
        return;
    }
    const QString folder =
        chooseDirectory
            ? chooseDirectory(parent)
            : QFileDialog::getExistingDirectory(parent, VersionCheck::tr("Select directory"));
    if (folder.isEmpty()) {
        QFile::remove(listPath);
        return;
    }
    const QString url = GetDownloadInfo(
        listPath, g_language == 1 ? QStringLiteral("URL") : QStringLiteral("URLEN"), tool,
        section);
    QFile::remove(listPath);

    // A file name that carries its version keeps it as it is.
    const QString version = VersionForDownloadName(url, published);
    HttpsDownload download(parent);
    if (!download.Download(url, folder, version))
        return;
    const int answer =
        showUserMessage(parent, {UserMessage::Information,
                                 VersionCheck::tr("Information"),
                                 VersionCheck::tr("Download succeeded, storage location: ") +
                                     QLatin1Char('\n') + folder,
                                 {VersionCheck::tr(" Open Folder  "), VersionCheck::tr("OK")}});
    if (answer == 0)
        QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}
