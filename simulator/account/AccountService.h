#pragma once

#include "simulator/account/AccountFault.h"
#include "simulator/account/AccountRequest.h"
#include "simulator/account/AccountRoutes.h"
#include "simulator/account/AccountStore.h"

#include <QHash>
#include <QObject>
#include <QTcpServer>

#include <optional>

class QTcpSocket;

/// The simulated account service: one address, a working service behind it, and a switch for each
/// of its jobs that makes it misbehave. Every connection serves one request, so that a switch holds
/// from the next request on.
///
/// Plain HTTP on the loopback interface. For HTTPS the listening socket would be a QSslServer with
/// a certificate that the application's system trusts; nothing else would change.
class AccountService : public QObject
{
    Q_OBJECT

public:
    using Endpoint = AccountFault::Endpoint;
    using Kind = AccountFault::Kind;

    explicit AccountService(QObject* parent = nullptr);
    ~AccountService() override;

    /// Starts serving; port 0 takes a free one. False when the port is taken.
    [[nodiscard]] bool listen(quint16 port = 0);

    /// Refuses connections from now on, and drops those that exist.
    void close();

    [[nodiscard]] quint16 port() const { return m_front.serverPort(); }

    /// Address as the application's configuration wants it, without a trailing slash.
    [[nodiscard]] QString baseUrl() const;

    [[nodiscard]] AccountStore& store() { return m_store; }

    void setFault(Endpoint endpoint, Kind kind);
    void setFault(Kind kind); ///< for every endpoint
    /// Answers with status 200 and this body, whatever was asked.
    void setCannedReply(Endpoint endpoint, const QByteArray& body);
    [[nodiscard]] Kind fault(Endpoint endpoint) const;

    /// Which of its jobs a request asks for; nothing for an address that it does not know.
    [[nodiscard]] static std::optional<Endpoint> endpointOf(const AccountRequest& request);

    /// Bytes handed to the network in faulty replies so far.
    [[nodiscard]] qint64 faultBytesSent() const { return m_faultBytesSent; }

signals:
    /// A request has come in whole; nothing has been answered yet.
    void requestReceived(const AccountRequest& request);

    /// A client's connection has ended, whoever ended it.
    void connectionClosed();

private:
    struct Behaviour {
        Kind kind = Kind::None;
        QByteArray canned;
    };

    void acceptConnection();
    void receive(QTcpSocket* client, QByteArray& received);
    void answer(QTcpSocket* client, const AccountRequest& request);
    void relay(QTcpSocket* client, const AccountRequest& request);

    AccountStore m_store;
    AccountRoutes m_routes;
    QTcpServer m_front;
    QHash<Endpoint, Behaviour> m_behaviours;
    qint64 m_faultBytesSent = 0;
};
