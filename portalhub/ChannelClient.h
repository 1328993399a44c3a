#pragma once

#include "portalhub/OutgoingQueue.h"
#include "portalhub/PortalHub.h"

#include <QDeadlineTimer>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <string>

class QThread;

namespace channel
{

class ChannelWorker;
class EndSignal;

/// One connection of the channel with a thread of its own: what PortalHub is made of, and what can
/// be made several times in one process. Every operation may be called from any thread.
class ChannelClient
{
public:
    using Callback = std::function<int(int, const std::string&)>;

    /// @p capacity bounds what waits for a peer that does not read, in bytes.
    explicit ChannelClient(QString serverName,
                           std::chrono::milliseconds reconnectInterval = std::chrono::seconds(1),
                           qsizetype capacity = qsizetype{64} * 1024 * 1024);
    /// Waits for the callback if it is under way.
    ~ChannelClient();

    ChannelClient(const ChannelClient&) = delete;
    ChannelClient& operator=(const ChannelClient&) = delete;

    /// As PortalHub::InitChannel. The thread starts with the first callback that is not empty.
    PortalHubApi::ErrorCode initChannel(Callback callback);
    /// As PortalHub::PushMsg.
    PortalHubApi::ErrorCode pushMsg(int id, const std::string& msg);

    /// Ends delivery, the connection and the thread; initChannel() starts anew. False when a
    /// callback did not return within @p deadline, or when called from the callback: the thread
    /// then ends after it, and until a further stop() has waited for it nothing can be registered.
    bool stop(QDeadlineTimer deadline = QDeadlineTimer(QDeadlineTimer::Forever));

private:
    void start();
    void deliver(int id, const std::string& text);

    const QString m_serverName;
    const std::chrono::milliseconds m_reconnectInterval;
    OutgoingQueue m_outgoing;
    std::mutex m_mutex; // guards what follows
    std::shared_ptr<const Callback> m_callback;
    std::unique_ptr<QThread> m_thread;
    std::shared_ptr<EndSignal> m_ended; // of m_worker
    ChannelWorker* m_worker = nullptr;  // deletes itself at the end of m_thread
};

} // namespace channel
