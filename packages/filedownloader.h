#pragma once

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QSslError>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>

class QNetworkReply;
class QSaveFile;

// The file name a download gets: the URL's file name, or, with a version, its complete base
// name + "_V" + version + "." + suffix. Empty when the URL names no file.
QString DownloadFileName(const QUrl &url, const QString &version);

// Fetches one URL into one file over HTTP(S), following redirects, and returns only when the
// file is complete or the transfer has ended otherwise (a nested event loop keeps the program
// responsive meanwhile). The file appears only when complete: the data goes to a temporary
// file beside it, and a failed or cancelled transfer leaves nothing behind and an older file
// of that name untouched.
class FileDownloader : public QObject
{
    Q_OBJECT
public:
    enum Result { Succeeded, Failed, Canceled, CannotWrite };

    // Decides whether a transfer goes on despite these certificate errors.
    using SslDecision = std::function<bool(const QList<QSslError> &errors)>;

    explicit FileDownloader(QObject *parent = nullptr);
    ~FileDownloader() override;

    void setSslDecision(SslDecision decide) { m_sslDecision = std::move(decide); }
    // A transfer that receives nothing for this long fails.
    void setTransferTimeout(int msecs) { m_transferTimeout = msecs; }
    void setMaxRedirects(int count) { m_maxRedirects = count; }

    Result fetch(const QUrl &url, const QString &targetPath);

    // Why the last fetch failed (the network's or the file's error text).
    QString errorString() const { return m_error; }
    bool isRunning() const { return m_running; }
    QNetworkAccessManager *networkManager() { return &m_manager; }

public slots:
    // Stops the running transfer; fetch then returns Canceled.
    void cancel();

signals:
    void progressChanged(qint64 received, qint64 total);
    // The transfer has ended, whatever its result.
    void transferEnded();

private:
    bool openTarget();
    void discardTarget();
    void startRequest(const QUrl &url);
    void httpReadyRead();
    void httpFinished();
    void onSslErrors(const QList<QSslError> &errors);
    void finish(Result result, const QString &error = QString());

    QNetworkAccessManager m_manager;
    QEventLoop m_loop;
    QPointer<QNetworkReply> m_reply;
    std::unique_ptr<QSaveFile> m_file;
    QString m_target;
    QUrl m_url;
    SslDecision m_sslDecision;
    int m_transferTimeout = 30000;
    int m_maxRedirects = 10;
    int m_redirects = 0;
    qint64 m_received = 0;
    bool m_running = false;
    bool m_done = false;
    bool m_canceled = false;
    bool m_writeFailed = false;
    Result m_result = Failed;
    QString m_error;
};
