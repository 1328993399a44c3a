#include "simulator/account/AccountService.h"

#include "simulator/account/AccountRequest.h"
#include "simulator/account/AccountRoutes.h"

#include <QJsonDocument>
#include <QMetaEnum>
#include <QTcpSocket>

using namespace Qt::StringLiterals;

namespace
{

constexpr qsizetype MaxRequestSize = qsizetype{32} * 1024 * 1024;

} // namespace

AccountService::AccountService(QObject* parent)
    : QObject(parent)
{
    connect(&m_server, &QTcpServer::newConnection, this, &AccountService::acceptConnection);
}

AccountService::~AccountService()
{
    close();
}

bool AccountService::listen(quint16 port)
{
    return m_server.listen(QHostAddress::LocalHost, port);
}

void AccountService::close()
{
    m_server.close();
    const auto clients = m_server.findChildren<QTcpSocket*>();
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

void AccountService::acceptConnection()
{
    while (QTcpSocket* client = m_server.nextPendingConnection()) {
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
        if (received.size() > MaxRequestSize)
            client->abort();
        return;
    }
    disconnect(client, &QTcpSocket::readyRead, this, nullptr);
    emit requestReceived(*request);
    answer(client, *request);
}

void AccountService::answer(QTcpSocket* client, const AccountRequest& request)
{
    const auto endpoint = AccountRoutes::endpointOf(request);
    const Behaviour behaviour = endpoint ? m_behaviours.value(*endpoint) : Behaviour{};
    if (behaviour.kind == Kind::None) {
        const auto [status, body] = AccountRoutes::answer(m_store, request);
        AccountFault::sendJson(client, QJsonDocument(body).toJson(),
                               QByteArray::number(status) + ' ');
        return;
    }
    connect(client, &QTcpSocket::bytesWritten, this,
            [this](qint64 bytes) { m_faultBytesSent += bytes; });
    AccountFault::reply(client, behaviour.kind, behaviour.canned);
}
