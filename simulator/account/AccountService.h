#pragma once

#include "simulator/account/AccountFault.h"
#include "simulator/account/AccountRequest.h"
#include "simulator/account/AccountStore.h"

#include <QHash>
#include <QObject>
#include <QTcpServer>

class QTcpSocket;

/// The simulated account service: a plain HTTP/1.1 server on the loopback interface that works, and
/// whose endpoints can each be made to misbehave. Each connection serves one request and closes, so
/// that a change of the behaviour takes effect with the next request. Main thread only.
class AccountService : public QObject
{
    Q_OBJECT

public:
    using Endpoint = AccountFault::Endpoint;
    using Kind = AccountFault::Kind;

    explicit AccountService(QObject* parent = nullptr);
    ~AccountService() override;

    /// Starts to serve. Port 0 takes a free port. Returns false when the port is in use.
    [[nodiscard]] bool listen(quint16 port = 0);

    /// Refuses new connections and drops the existing ones.
    void close();

    [[nodiscard]] quint16 port() const { return m_server.serverPort(); }

    /// Address for the application's configuration, without a trailing slash.
    [[nodiscard]] QString baseUrl() const;

    [[nodiscard]] AccountStore& store() { return m_store; }

    void setFault(Endpoint endpoint, Kind kind);
    void setFault(Kind kind); ///< the same fault at all endpoints
    /// Answers every request with status 200 and this body.
    void setCannedReply(Endpoint endpoint, const QByteArray& body);
    [[nodiscard]] Kind fault(Endpoint endpoint) const;

    /// Number of bytes sent in faulty replies so far.
    [[nodiscard]] qint64 faultBytesSent() const { return m_faultBytesSent; }

signals:
    /// A complete request has arrived and has not been answered yet.
    void requestReceived(const AccountRequest& request);

    /// A client's connection has ended on either side.
    void connectionClosed();

private:
    struct Behaviour {
        Kind kind = Kind::None;
        QByteArray canned;
    };

    void acceptConnection();
    void receive(QTcpSocket* client, QByteArray& received);
    void answer(QTcpSocket* client, const AccountRequest& request);

    AccountStore m_store;
    QTcpServer m_server;
    QHash<Endpoint, Behaviour> m_behaviours;
    qint64 m_faultBytesSent = 0;
};
