#include "packages/filedownloader.h"

#include <QFileInfo>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSaveFile>

QString DownloadFileName(const QUrl &url, const QString &version)
{
    const QString name = url.fileName();
    if (name.isEmpty() || version.isEmpty())
        return name;
    const QFileInfo info(name);
    return info.completeBaseName() + QStringLiteral("_V") + version + QLatin1Char('.') +
           info.suffix();
}

FileDownloader::FileDownloader(QObject *parent) : QObject(parent)
{
}

FileDownloader::~FileDownloader()
{
    if (m_reply) {
        m_reply->disconnect(this);
        m_reply->abort();
    }
    discardTarget();
}

FileDownloader::Result FileDownloader::fetch(const QUrl &url, const QString &targetPath)
{
    if (m_running) {
        m_error = tr("Another download is running.");
        return Failed;
    }
    m_target = targetPath;
    m_redirects = 0;
    m_canceled = false;
    m_writeFailed = false;
    m_done = false;
    m_error.clear();
    if (!openTarget())
        return CannotWrite;
    m_running = true;
    startRequest(url);
    if (!m_done)
        m_loop.exec();
    m_running = false;
    return m_result;
}

void FileDownloader::cancel()
{
    if (!m_running)
        return;
    m_canceled = true;
    if (m_reply)
        m_reply->abort();
}

bool FileDownloader::openTarget()
{
    m_file = std::make_unique<QSaveFile>(m_target);
    m_received = 0;
    if (m_file->open(QIODevice::WriteOnly))
        return true;
    m_error = m_file->errorString();
    m_file.reset();
    return false;
}

void FileDownloader::discardTarget()
{
    if (!m_file)
        return;
    m_file->cancelWriting();
    m_file.reset(); // discards the temporary file
}

void FileDownloader::startRequest(const QUrl &url)
{
    m_url = url;
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    request.setTransferTimeout(m_transferTimeout);
#endif
    m_reply = m_manager.get(request);
    connect(m_reply, &QNetworkReply::readyRead, this, &FileDownloader::httpReadyRead);
    connect(m_reply, &QNetworkReply::finished, this, &FileDownloader::httpFinished);
    connect(m_reply, &QNetworkReply::downloadProgress, this, &FileDownloader::progressChanged);
    connect(m_reply, &QNetworkReply::sslErrors, this, &FileDownloader::onSslErrors);
}

void FileDownloader::httpReadyRead()
{
    if (!m_reply || !m_reply->isOpen() || !m_file || m_writeFailed)
        return;
    const QByteArray data = m_reply->readAll();
    if (data.isEmpty())
        return;
    if (m_file->write(data) != data.size()) {
        m_writeFailed = true;
        m_error = m_file->errorString();
        m_reply->abort();
        return;
    }
    m_received += data.size();
}

void FileDownloader::httpFinished()
{
    QNetworkReply *reply = m_reply;
    if (!reply)
        return;
    httpReadyRead();
    m_reply = nullptr;
    reply->deleteLater();

    if (m_canceled)
        return finish(Canceled);
    if (m_writeFailed)
        return finish(Failed, m_error);
    if (reply->error() != QNetworkReply::NoError)
        return finish(Failed, reply->errorString());

    const QUrl redirect = reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (redirect.isValid()) {
        const QUrl next = m_url.resolved(redirect);
        if (++m_redirects > m_maxRedirects)
            return finish(Failed, tr("Too many redirections from %1").arg(m_url.toString()));
        if (m_url.scheme() == QLatin1String("https") && next.scheme() != QLatin1String("https"))
            return finish(
                Failed,
                tr("Refused a redirection to the insecure address %1").arg(next.toString()));
        discardTarget();
        if (!openTarget())
            return finish(CannotWrite, m_error);
        startRequest(next);
        return;
    }

    const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (status.isValid() && (status.toInt() < 200 || status.toInt() >= 300))
        return finish(Failed, tr("The server replied with status %1").arg(status.toInt()));
    const QVariant length = reply->header(QNetworkRequest::ContentLengthHeader);
    if (length.isValid() && length.toLongLong() != m_received)
        return finish(Failed, tr("The transfer ended after %1 of %2 bytes")
                                  .arg(m_received)
                                  .arg(length.toLongLong()));
    if (!m_file->flush() || m_file->error() != QFileDevice::NoError || !m_file->commit()) {
        const QString error = m_file->errorString();
        return finish(Failed, error);
    }
    m_file.reset();
    finish(Succeeded);
}

void FileDownloader::onSslErrors(const QList<QSslError> &errors)
{
    auto *reply = qobject_cast<QNetworkReply *>(sender());
    if (reply && m_sslDecision && m_sslDecision(errors))
        reply->ignoreSslErrors(errors);
}

void FileDownloader::finish(Result result, const QString &error)
{
    if (result != Succeeded)
        discardTarget();
    m_result = result;
    if (!error.isEmpty())
        m_error = error;
    m_done = true;
    emit transferEnded();
    m_loop.exit();
}
