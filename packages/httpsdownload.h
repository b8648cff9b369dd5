#pragma once

#include "packages/filedownloader.h"

#include <QObject>
#include <QPointer>
#include <QProgressDialog>
#include <QString>

class QAuthenticator;
class QNetworkReply;
class QWidget;

// The progress window of a download: "Downloading <file>." with a bar that follows the bytes.
class ProgressDialog : public QProgressDialog
{
    Q_OBJECT
public:
    explicit ProgressDialog(const QString &fileName, QWidget *parent = nullptr);

public slots:
    // Sets the bar to `bytesRead` of `totalBytes` (an unknown total gives a busy bar).
    void networkReplyProgress(qint64 bytesRead, qint64 totalBytes);
};

// Downloads one file into one folder with a progress window, the program's questions and
// messages; Download() returns when the file is there or the transfer has failed.
class HttpsDownload : public QObject
{
    Q_OBJECT
public:
    explicit HttpsDownload(QWidget *parent = nullptr);
    ~HttpsDownload() override;

    // Downloads `url` into `directory`; a non-empty `version` goes into the file's name.
    // False when the user refused, the transfer failed or was cancelled (no file is left).
    bool Download(const QString &url, const QString &directory,
                  const QString &version = QString());

    // The file of the last Download().
    QString targetPath() const { return m_targetPath; }
    // True when the last Download() was cancelled by the user.
    bool wasCanceled() const { return canceled; }
    // The transfer engine, e.g. to follow its progress.
    FileDownloader *downloader() { return &m_downloader; }
    // The progress window while a download runs, else null.
    ProgressDialog *progressDialog() const { return progress; }

public slots:
    void cancelDownload();
    void ProgressDlgHide();
    // Logins are not supported: the transfer then fails with the server's answer.
    void slotAuthenticationRequired(QNetworkReply *reply, QAuthenticator *authenticator);

private:
    bool sslErrors(const QList<QSslError> &errors);

    QWidget *m_parent;
    FileDownloader m_downloader;
    QString url;
    QString directory;
    QString version;
    QString m_targetPath;
    QPointer<ProgressDialog> progress;
    bool canceled = false;
};
