#pragma once

#include "portalhub/EndSignal.h"
#include "portalhub/LineReader.h"
#include "portalhub/OutgoingQueue.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <string>

class QFileSystemWatcher;
class QLocalSocket;
class QTimer;

namespace channel
{

/// Holds the connection to the simulator. ChannelClient creates it and moves it to its thread, on
/// which everything runs, including the callback.
class ChannelWorker : public QObject
{
    Q_OBJECT

public:
    using Deliver = std::function<void(int, const std::string&)>;

    /// Sets @p ended after its last use of @p outgoing and @p deliver.
    ChannelWorker(QString serverName, std::chrono::milliseconds reconnectInterval,
                  OutgoingQueue& outgoing, Deliver deliver, std::shared_ptr<EndSignal> ended);
    ~ChannelWorker() override;

    /// Makes the first attempt to connect.
    void start();

signals:
    /// The queue holds bytes to send. May be emitted from any thread.
    void outgoingWaiting();

private:
    void tryConnect();
    /// Whether a server that starts to listen is noticed without further attempts.
    bool isServerAwaited();
    void onConnected();
    void onDisconnected();
    void readLines();
    void handleLine(const QByteArray& line);
    void sendWaiting();
    void reportSkipped();

    const QString m_serverName;
    const std::chrono::milliseconds m_reconnectInterval;
    OutgoingQueue& m_outgoing;
    const Deliver m_deliver;
    const std::shared_ptr<EndSignal> m_ended;

    // Used on the thread of the worker only.
    QLocalSocket* m_socket = nullptr;
    QTimer* m_reconnectTimer = nullptr;
    QFileSystemWatcher* m_folder = nullptr; // of the socket
    LineReader m_reader;
    qsizetype m_malformed = 0; // number of lines without a valid id on this connection
};

} // namespace channel
