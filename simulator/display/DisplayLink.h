#pragma once

#include "portalhub/LineReader.h"

#include <QByteArray>
#include <QLocalServer>
#include <QObject>
#include <QString>

#include <memory>
#include <vector>

class QLocalSocket;

namespace simulator
{

/// The display's end of the channel. Listens on the socket to which the channel library connects.
/// Each message goes to every connected program. Main thread only.
class DisplayLink : public QObject
{
    Q_OBJECT

public:
    explicit DisplayLink(QString socketName, QObject* parent = nullptr);
    /// Writes the bytes that are still waiting, for up to half a second per client.
    ~DisplayLink() override;

    /// Starts to listen, for this user only. Replaces the socket file of a simulator that crashed,
    /// but not one that answers. Returns the reason of a failure, otherwise an empty text.
    QString listen();
    /// Stops listening and drops the clients.
    void close();
    bool isListening() const { return m_server.isListening(); }
    const QString& socketName() const { return m_socketName; }

    /// Sends one message to every client.
    void send(int id, const QByteArray& text);
    /// Sends bytes unchanged.
    void sendRaw(const QByteArray& bytes);
    void dropClients();
    /// While off, nothing is read from the clients and their buffers fill up.
    void setReading(bool reading);
    int clientCount() const { return int(m_clients.size()); }

signals:
    /// Clients are numbered from 1 in the order in which they connect.
    void clientConnected(int number);
    void clientDisconnected(int number);
    void messageReceived(int id, const QByteArray& text);
    /// A line without a valid id.
    void malformedLineReceived(const QByteArray& line);
    void messageSent(int id, const QByteArray& text);

private:
    struct Client {
        int number;
        std::unique_ptr<QLocalSocket> socket;
        channel::LineReader reader;
    };
    using ClientPtr = std::shared_ptr<Client>;

    bool answers() const;
    void addClient(QLocalSocket* socket);
    void remove(const ClientPtr& client);
    void read(const ClientPtr& client);

    const QString m_socketName;
    QLocalServer m_server;
    std::vector<ClientPtr> m_clients;
    int m_lastNumber = 0;
    bool m_reading = true;
};

} // namespace simulator
