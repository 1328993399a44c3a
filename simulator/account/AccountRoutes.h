#pragma once

#include <QObject>

#include <memory>

class AccountStore;

/// The well-behaved service: maps HTTP requests onto an AccountStore. Listens on a loopback port of
/// its own, which AccountService puts itself in front of. Made with Qt HTTP Server, or where Qt was
/// built without that, with a plain socket.
class AccountRoutes : public QObject
{
public:
    /// @param store  outlives this object.
    explicit AccountRoutes(AccountStore& store, QObject* parent = nullptr);
    ~AccountRoutes() override;

    /// False when no loopback port could be had.
    [[nodiscard]] bool listen();
    [[nodiscard]] quint16 port() const { return m_port; }

private:
    class Server;

    std::unique_ptr<Server> m_server;
    quint16 m_port = 0;
};
