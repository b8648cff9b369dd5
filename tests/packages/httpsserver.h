#pragma once

#include <QByteArray>
#include <QHash>
#include <QSslCertificate>
#include <QSslKey>
#include <QString>
#include <QStringList>
#include <QTcpServer>

class QSslSocket;

// A small HTTPS server on 127.0.0.1 with the self-signed test certificate, answering each GET
// from a table of paths; it runs on the test's thread, served by the event loop of the code
// under test.
class TestHttpsServer : public QTcpServer
{
    Q_OBJECT
public:
    enum Mode {
        Whole,      // the whole answer at once
        CutHalfway, // announces the full length, sends half the body and hangs up
        Slow,       // the body in small pieces with pauses, for cancelling
    };
    struct Route
    {
        Route(int status = 200, const QByteArray &body = QByteArray(),
              const QByteArray &location = QByteArray(), Mode mode = Whole)
            : status(status), body(body), location(location), mode(mode)
        {
        }
        int status;
        QByteArray body;
        QByteArray location; // for redirections
        Mode mode;
    };

    TestHttpsServer();

    // Listens on a free port; false when that fails or the certificate can't be read.
    bool start();
    // "https://127.0.0.1:<port>/".
    QString baseUrl() const;
    void route(const QString &path, const Route &answer);
    void route(const QString &path, const QByteArray &body) { route(path, Route{200, body}); }

    // The paths asked for, in order.
    QStringList requests;
    // The connections whose TLS handshake completed.
    int handshakes = 0;

protected:
    void incomingConnection(qintptr handle) override;

private:
    void answer(QSslSocket *socket, const QByteArray &request);
    void sendSlowly(QSslSocket *socket, const QByteArray &body, int offset);

    QSslCertificate m_certificate;
    QSslKey m_key;
    QHash<QString, Route> m_routes;
};
