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

/// One connection of the channel, with its own thread. PortalHub uses one; tests create several in
/// one process. All functions may be called from any thread.
class ChannelClient
{
public:
    using Callback = std::function<int(int, const std::string&)>;

    /// @p capacity is the maximum number of bytes that wait for a peer which does not read.
    explicit ChannelClient(QString serverName,
                           std::chrono::milliseconds reconnectInterval = std::chrono::seconds(1),
                           qsizetype capacity = qsizetype{64} * 1024 * 1024);
    /// Waits for a running callback.
    ~ChannelClient();

    ChannelClient(const ChannelClient&) = delete;
    ChannelClient& operator=(const ChannelClient&) = delete;

    /// See PortalHub::InitChannel(). The thread starts with the first callback that is not empty.
    PortalHubApi::ErrorCode initChannel(Callback callback);
    /// See PortalHub::PushMsg().
    PortalHubApi::ErrorCode pushMsg(int id, const std::string& msg);

    /// Ends delivery, the connection and the thread. initChannel() starts them again. Returns false
    /// if a callback has not returned by @p deadline, or if called from the callback. The thread
    /// then ends after the callback, and initChannel() is refused until another stop() has waited
    /// for it.
    bool stop(QDeadlineTimer deadline = QDeadlineTimer(QDeadlineTimer::Forever));

private:
    void start();
    void deliver(int id, const std::string& text);

    const QString m_serverName;
    const std::chrono::milliseconds m_reconnectInterval;
    OutgoingQueue m_outgoing;

    std::mutex m_mutex; // guards all members below
    std::shared_ptr<const Callback> m_callback;
    std::unique_ptr<QThread> m_thread;
    std::shared_ptr<EndSignal> m_ended; // set at the end of m_worker
    ChannelWorker* m_worker = nullptr;  // deletes itself at the end of m_thread
};

} // namespace channel
