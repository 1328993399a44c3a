#include "simulator/display/DisplayLink.h"

#include "portalhub/MessageLine.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QLockFile>

#include <chrono>
#include <utility>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

constexpr int ProbeTimeoutMs = 1000;
constexpr auto FlushTimeout = std::chrono::milliseconds(500);
// Bounds the memory that a client which does not read can take; beyond it the client is dropped.
constexpr qint64 MaxUnwritten = qint64{64} * 1024 * 1024;
// Small while reading is off, so that the client's own buffer fills up.
constexpr qint64 ReadBufferSize = qint64{256} * 1024;
constexpr qint64 HeldReadBufferSize = 1;

// One lock for each socket name. The name is hashed because on Windows it is not a path.
QString lockFileName(const QString& socketName)
{
    const QString name = u"vorn-%1.lock"_s.arg(qHash(socketName, 0), 0, 16);
    return QDir::temp().filePath(name);
}

} // namespace

DisplayLink::DisplayLink(QString socketName, QObject* parent)
    : QObject(parent)
    , m_socketName(std::move(socketName))
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* socket = m_server.nextPendingConnection())
            addClient(socket);
    });
}

DisplayLink::~DisplayLink()
{
    for (const ClientPtr& client : m_clients) {
        client->socket->disconnect(this);
        const QDeadlineTimer deadline(FlushTimeout);
        while (client->socket->bytesToWrite() > 0 && !deadline.hasExpired() &&
               client->socket->waitForBytesWritten(int(deadline.remainingTime()))) {
        }
    }
}

QString DisplayLink::listen()
{
    // Two simulators that start together must not remove each other's socket.
    QLockFile lock(lockFileName(m_socketName));
    lock.tryLock(ProbeTimeoutMs);

    if (answers())
        return u"another simulator is already listening on \"%1\""_s.arg(m_socketName);
    const QFileInfo file(m_socketName);
    if (file.isFile() || file.isDir())
        return u"\"%1\" exists and is no socket"_s.arg(m_socketName);
    QLocalServer::removeServer(m_socketName);
    if (!m_server.listen(m_socketName))
        return u"cannot listen on \"%1\": %2"_s.arg(m_socketName, m_server.errorString());
    return {};
}

bool DisplayLink::answers() const
{
    QLocalSocket probe;
    probe.connectToServer(m_socketName);
    return probe.waitForConnected(ProbeTimeoutMs);
}

void DisplayLink::close()
{
    m_server.close();
    dropClients();
}

void DisplayLink::addClient(QLocalSocket* socket)
{
    auto client = std::make_shared<Client>(
        Client{++m_lastNumber, {}, channel::LineReader(channel::MaxLineLength)});
    socket->setParent(nullptr);
    client->socket.reset(socket);
    socket->setReadBufferSize(m_reading ? ReadBufferSize : HeldReadBufferSize);
    const std::weak_ptr<Client> weak = client;
    connect(socket, &QLocalSocket::readyRead, this, [this, weak] {
        if (const ClientPtr ready = weak.lock())
            read(ready);
    });
    connect(socket, &QLocalSocket::disconnected, this, [this, weak] {
        if (const ClientPtr gone = weak.lock()) {
            read(gone);
            remove(gone);
        }
    });
    m_clients.push_back(client);
    emit clientConnected(client->number);
    read(client);
}

void DisplayLink::remove(const ClientPtr& client)
{
    if (std::erase(m_clients, client) == 0)
        return;
    // This may run in a signal of the socket, which then must not be deleted.
    client->socket->disconnect(this);
    client->socket.release()->deleteLater();
    emit clientDisconnected(client->number);
}

void DisplayLink::read(const ClientPtr& client)
{
    while (m_reading && client->socket && client->socket->bytesAvailable() > 0) {
        client->reader.append(client->socket->readAll());
        while (client->socket) {
            const auto line = client->reader.next();
            if (!line)
                break;
            if (const auto message = channel::parseLine(*line))
                emit messageReceived(message->id, message->text);
            else
                emit malformedLineReceived(*line);
        }
    }
}

void DisplayLink::send(int id, const QByteArray& text)
{
    if (m_clients.empty())
        return;
    sendRaw(channel::encodeLine(id, {text.constData(), size_t(text.size())}));
    emit messageSent(id, text);
}

void DisplayLink::sendRaw(const QByteArray& bytes)
{
    const auto clients = m_clients; // a copy, because a failing write removes its client
    for (const ClientPtr& client : clients) {
        if (!client->socket)
            continue;
        client->socket->write(bytes);
        if (client->socket && client->socket->bytesToWrite() > MaxUnwritten)
            client->socket->abort();
    }
}

void DisplayLink::dropClients()
{
    const auto clients = m_clients;
    for (const ClientPtr& client : clients) {
        if (client->socket)
            client->socket->abort();
        remove(client);
    }
}

void DisplayLink::setReading(bool reading)
{
    m_reading = reading;
    const auto clients = m_clients;
    for (const ClientPtr& client : clients) {
        if (client->socket)
            client->socket->setReadBufferSize(reading ? ReadBufferSize : HeldReadBufferSize);
        read(client);
    }
}
