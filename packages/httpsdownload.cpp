#include "packages/httpsdownload.h"

#include "widgets/messagebox.h"

#include <QAuthenticator>
#include <QNetworkReply>

#include <QFile>
#include <QUrl>
#include <QWidget>

#include <climits>

ProgressDialog::ProgressDialog(const QString &fileName, QWidget *parent) : QProgressDialog(parent)
{
    setWindowTitle(tr("Download Progress"));
    setLabelText(tr("Downloading %1.").arg(fileName));
    setCancelButtonText(tr("Cancel"));
    setRange(0, 0);
    setMinimumDuration(0);
    setAutoClose(false);
    setAutoReset(false);
    setWindowModality(Qt::WindowModal);
}

void ProgressDialog::networkReplyProgress(qint64 bytesRead, qint64 totalBytes)
{
    // The bar counts in int: large files are shown in coarser units.
    while (totalBytes > INT_MAX || bytesRead > INT_MAX) {
        totalBytes /= 1024;
        bytesRead /= 1024;
    }
    setMaximum(totalBytes > 0 ? int(totalBytes) : 0);
    setValue(int(bytesRead));
}

HttpsDownload::HttpsDownload(QWidget *parent) : QObject(parent), m_parent(parent)
{
    m_downloader.setSslDecision(
        [this](const QList<QSslError> &errors) { return sslErrors(errors); });
    connect(m_downloader.networkManager(), &QNetworkAccessManager::authenticationRequired, this,
            &HttpsDownload::slotAuthenticationRequired);
}

HttpsDownload::~HttpsDownload()
{
    delete progress;
}

bool HttpsDownload::Download(const QString &url, const QString &directory, const QString &version)
{
    this->url = url;
    this->directory = directory;
    this->version = version;
    canceled = false;
    m_targetPath.clear();

    const QUrl source = QUrl::fromUserInput(url);
    if (url.isEmpty() || !source.isValid() || source.fileName().isEmpty()) {
        tellUser(m_parent, UserMessage::Error, tr("Error"), tr("Invalid URL : %1").arg(url));
        return false;
    }
    const QString fileName = DownloadFileName(source, version);
    m_targetPath = directory.endsWith(QLatin1Char('/')) ? directory + fileName
                                                        : directory + QLatin1Char('/') + fileName;
    if (QFile::exists(m_targetPath)) {
        // An existing file is replaced only once the new one is complete.
        const int answer = showUserMessage(
            m_parent, {UserMessage::Question,
                       tr("Overwrite Existing File"),
                       tr("%1 already exists in the current directory. Overwrite?").arg(fileName),
                       {tr("Ok"), tr("Cancel")}});
        if (answer != 0)
            return false;
    }

    progress = new ProgressDialog(fileName, m_parent);
    connect(progress, &QProgressDialog::canceled, this, &HttpsDownload::cancelDownload);
    connect(&m_downloader, &FileDownloader::progressChanged, progress,
            &ProgressDialog::networkReplyProgress);
    connect(&m_downloader, &FileDownloader::transferEnded, this, &HttpsDownload::ProgressDlgHide);
    progress->show();

    const FileDownloader::Result result = m_downloader.fetch(source, m_targetPath);
    m_downloader.disconnect(this);
    delete progress;

    switch (result) {
    case FileDownloader::Succeeded:
        return true;
    case FileDownloader::Canceled:
        canceled = true;
        return false;
    case FileDownloader::CannotWrite:
        tellUser(m_parent, UserMessage::Error, tr("Error"),
                 tr("Unable to save the file %1").arg(m_targetPath));
        return false;
    case FileDownloader::Failed:
        break;
    }
    tellUser(m_parent, UserMessage::Error, tr("Error"),
             tr("Download failed: %1").arg(m_downloader.errorString()));
    return false;
}

void HttpsDownload::cancelDownload()
{
    canceled = true;
    m_downloader.cancel();
}

void HttpsDownload::ProgressDlgHide()
{
    if (progress)
        progress->hide();
}

void HttpsDownload::slotAuthenticationRequired(QNetworkReply *, QAuthenticator *)
{
}

bool HttpsDownload::sslErrors(const QList<QSslError> &errors)
{
    QString list;
    for (const QSslError &error : errors)
        list += QStringLiteral("\n%1").arg(error.errorString());
    const int answer =
        showUserMessage(m_parent, {UserMessage::Warning,
                                   tr("SSL Errors"),
                                   tr("One or more SSL errors has occurred: %1").arg(list),
                                   {tr("Ignore"), tr("Abort")}});
    return answer == 0;
}
