#pragma once

#include "portalhub/EndSignal.h"
#include "portalhub/LineReader.h"
#include "portalhub/OutgoingQueue.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <string>

class QLocalSocket;
class QTimer;

namespace channel
{

/// Holds the connection to the simulator. Made by ChannelClient and moved to its thread, where all
/// of it runs, the delivery of messages included.
class ChannelWorker : public QObject
{
    Q_OBJECT

public:
    using Deliver = std::function<void(int, const std::string&)>;

    /// @p ended is set when the worker has used @p outgoing and @p deliver for the last time.
    ChannelWorker(QString serverName, std::chrono::milliseconds reconnectInterval,
                  OutgoingQueue& outgoing, Deliver deliver, std::shared_ptr<EndSignal> ended);
    ~ChannelWorker() override;

    /// Makes the first attempt to connect.
    void start();

signals:
    /// May be emitted from any thread: the queue has something to take.
    void outgoingWaiting();

private:
    void tryConnect();
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
    QLocalSocket* m_socket = nullptr;
    QTimer* m_reconnectTimer = nullptr;
    LineReader m_reader;
    qsizetype m_malformed = 0; // lines without a valid id on this connection
};

} // namespace channel
