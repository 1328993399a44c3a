#include "simulator/account/AccountService.h"

#include <QMetaEnum>
#include <QTcpSocket>

#include <utility>

using namespace Qt::StringLiterals;

namespace
{

constexpr qsizetype kMaxRequestSize = qsizetype{32} * 1024 * 1024;

QByteArray serialise(const AccountRequest& request)
{
    QByteArray bytes = request.method + ' ' + request.target + " HTTP/1.1\r\n";
    for (const auto& [name, value] : request.headers)
        bytes += name + ": " + value + "\r\n";
    return bytes + "\r\n" + request.body;
}

bool isWholeResponse(const QByteArray& bytes)
{
    const auto headEnd = bytes.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return false;
    const QByteArray head = bytes.first(headEnd).toLower();
    const auto field = head.indexOf("\r\ncontent-length:");
    if (field < 0)
        return true;
    const QByteArray length = head.sliced(field + 17).split('\r').constFirst().trimmed();
    return bytes.size() - headEnd - 4 >= length.toLongLong();
}

QByteArray withConnectionClose(QByteArray response)
{
    return response.insert(response.indexOf('\n') + 1, "Connection: close\r\n");
}

} // namespace

AccountService::AccountService(QObject* parent)
    : QObject(parent)
    , m_routes(m_store)
{
    connect(&m_front, &QTcpServer::newConnection, this, &AccountService::acceptConnection);
}

AccountService::~AccountService()
{
    close();
}

bool AccountService::listen(quint16 port)
{
    return (m_routes.port() != 0 || m_routes.listen()) &&
           m_front.listen(QHostAddress::LocalHost, port);
}

void AccountService::close()
{
    m_front.close();
    const auto clients = m_front.findChildren<QTcpSocket*>();
    for (QTcpSocket* client : clients)
        client->abort();
}

QString AccountService::baseUrl() const
{
    return u"http://127.0.0.1:%1"_s.arg(port());
}

void AccountService::setFault(Endpoint endpoint, Kind kind)
{
    m_behaviours.insert(endpoint, {kind, {}});
}

void AccountService::setFault(Kind kind)
{
    const auto endpoints = QMetaEnum::fromType<Endpoint>();
    for (int i = 0; i < endpoints.keyCount(); ++i)
        setFault(static_cast<Endpoint>(endpoints.value(i)), kind);
}

void AccountService::setCannedReply(Endpoint endpoint, const QByteArray& body)
{
    m_behaviours.insert(endpoint, {Kind::Canned, body});
}

AccountFault::Kind AccountService::fault(Endpoint endpoint) const
{
    return m_behaviours.value(endpoint).kind;
}

std::optional<AccountFault::Endpoint> AccountService::endpointOf(const AccountRequest& request)
{
    const QByteArray path = request.path();
    if (path == "/nc/auth/login")
        return Endpoint::Login;
    if (path == "/nc/users/register")
        return Endpoint::Register;
    if (path == "/nc/users/forgot-password")
        return Endpoint::ForgotPassword;
    if (path.startsWith("/nc/users/"))
        return request.method == "PUT" ? Endpoint::ProfileUpdate : Endpoint::ProfileRead;
    return std::nullopt;
}

void AccountService::acceptConnection()
{
    while (QTcpSocket* client = m_front.nextPendingConnection()) {
        connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
        connect(client, &QTcpSocket::disconnected, this, &AccountService::connectionClosed);
        connect(client, &QTcpSocket::readyRead, this,
                [this, client, received = QByteArray()]() mutable { receive(client, received); });
    }
}

void AccountService::receive(QTcpSocket* client, QByteArray& received)
{
    received += client->readAll();
    const auto request = takeAccountRequest(received);
    if (!request) {
        if (received.size() > kMaxRequestSize)
            client->abort();
        return;
    }
    disconnect(client, &QTcpSocket::readyRead, this, nullptr);
    emit requestReceived(*request);
    answer(client, *request);
}

void AccountService::answer(QTcpSocket* client, const AccountRequest& request)
{
    const auto endpoint = endpointOf(request);
    const Behaviour behaviour = endpoint ? m_behaviours.value(*endpoint) : Behaviour{};
    if (behaviour.kind == Kind::None) {
        relay(client, request);
        return;
    }
    connect(client, &QTcpSocket::bytesWritten, this,
            [this](qint64 bytes) { m_faultBytesSent += bytes; });
    AccountFault::reply(client, behaviour.kind, behaviour.canned);
}

void AccountService::relay(QTcpSocket* client, const AccountRequest& request)
{
    auto* server = new QTcpSocket(client);
    connect(server, &QTcpSocket::readyRead, client,
            [client, server, response = QByteArray()]() mutable {
                response += server->readAll();
                if (!isWholeResponse(response))
                    return;
                client->write(withConnectionClose(std::exchange(response, {})));
                client->disconnectFromHost();
            });
    connect(server, &QTcpSocket::errorOccurred, client, &QTcpSocket::disconnectFromHost);
    server->connectToHost(QHostAddress::LocalHost, m_routes.port());
    server->write(serialise(request));
}
