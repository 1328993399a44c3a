#pragma once

#include <QHttpServer>
#include <QObject>

class AccountStore;

/// The well-behaved service: maps HTTP requests onto an AccountStore. Listens on a loopback port of
/// its own, which AccountService puts itself in front of.
class AccountRoutes : public QObject
{
public:
    /// @param store  outlives this object.
    explicit AccountRoutes(AccountStore& store, QObject* parent = nullptr);

    /// False when no loopback port could be had.
    [[nodiscard]] bool listen();
    [[nodiscard]] quint16 port() const { return m_port; }

private:
    void addSignInRoutes();
    void addProfileRoutes();

    AccountStore& m_store;
    QHttpServer m_server;
    quint16 m_port = 0;
};
