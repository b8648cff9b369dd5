#include "tests/packages/httpsserver.h"

#include "tests/common/testsupport.h"

#include <QPointer>
#include <QSslSocket>
#include <QTimer>

#include <memory>

namespace {

QByteArray reasonOf(int status)
{
    switch (status) {
    case 200:
        return "OK";
    case 301:
        return "Moved Permanently";
    case 302:
        return "Found";
    case 404:
        return "Not Found";
    default:
        return "Status";
    }
}

} // namespace

TestHttpsServer::TestHttpsServer()
    : m_certificate(testsupport::readFile(testsupport::fixture("packages/server.crt")), QSsl::Pem),
      m_key(testsupport::readFile(testsupport::fixture("packages/server.key")), QSsl::Rsa,
            QSsl::Pem)
{
}

bool TestHttpsServer::start()
{
    return !m_certificate.isNull() && !m_key.isNull() && listen(QHostAddress::LocalHost, 0);
}

QString TestHttpsServer::baseUrl() const
{
    return QStringLiteral("https://127.0.0.1:%1/").arg(serverPort());
}

void TestHttpsServer::route(const QString &path, const Route &answer)
{
    m_routes.insert(path, answer);
}

void TestHttpsServer::incomingConnection(qintptr handle)
{
    auto *socket = new QSslSocket(this);
    if (!socket->setSocketDescriptor(handle)) {
        delete socket;
        return;
    }
    socket->setLocalCertificate(m_certificate);
    socket->setPrivateKey(m_key);
    socket->setPeerVerifyMode(QSslSocket::VerifyNone);
    // Freed with the connection below, which goes when the socket does.
    auto received = std::make_shared<QByteArray>();
    connect(socket, &QSslSocket::encrypted, this, [this]() { ++handshakes; });
    connect(socket, &QSslSocket::readyRead, this, [this, socket, received]() {
        received->append(socket->readAll());
        if (received->contains("\r\n\r\n") && !socket->property("answered").toBool()) {
            socket->setProperty("answered", true);
            answer(socket, *received);
        }
    });
    connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
    socket->startServerEncryption();
}

void TestHttpsServer::answer(QSslSocket *socket, const QByteArray &request)
{
    const QList<QByteArray> words = request.left(request.indexOf("\r\n")).split(' ');
    const QString path = words.size() > 1 ? QString::fromUtf8(words.at(1)) : QString();
    requests << path;
    Route route{404, "Not Found"};
    if (m_routes.contains(path))
        route = m_routes.value(path);

    QByteArray head = "HTTP/1.1 " + QByteArray::number(route.status) + ' ' +
                      reasonOf(route.status) +
                      "\r\nContent-Length: " + QByteArray::number(route.body.size()) +
                      "\r\nContent-Type: application/octet-stream\r\nConnection: close\r\n";
    if (!route.location.isEmpty())
        head += "Location: " + route.location + "\r\n";
    socket->write(head + "\r\n");
    switch (route.mode) {
    case Whole:
        socket->write(route.body);
        socket->disconnectFromHost();
        break;
    case CutHalfway:
        socket->write(route.body.left(route.body.size() / 2));
        socket->disconnectFromHost();
        break;
    case Slow:
        sendSlowly(socket, route.body, 0);
        break;
    }
}

void TestHttpsServer::sendSlowly(QSslSocket *socket, const QByteArray &body, int offset)
{
    QPointer<QSslSocket> alive(socket);
    if (!alive || socket->state() != QAbstractSocket::ConnectedState)
        return;
    if (offset >= body.size()) {
        socket->disconnectFromHost();
        return;
    }
    socket->write(body.mid(offset, 8192));
    QTimer::singleShot(20, this, [this, alive, body, offset]() {
        if (alive)
            sendSlowly(alive, body, offset + 8192);
    });
}
