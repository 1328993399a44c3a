#pragma once

#include <QByteArray>

#include <mutex>

namespace channel
{

/// Bytes that wait to be written to the peer. Any thread pushes; the worker that owns the socket
/// opens, takes and closes. The size is bounded, so a peer that does not read costs a fixed amount
/// of memory.
class OutgoingQueue
{
public:
    enum class Result {
        Accepted,     ///< other bytes wait already, so the worker has been notified
        FirstWaiting, ///< the caller has to notify the worker
        Closed,       ///< dropped because there is no connection
        Full,         ///< dropped because the peer does not read
    };

    /// @p capacity bounds the bytes in this queue plus those that the socket has not yet written.
    explicit OutgoingQueue(qsizetype capacity)
        : m_capacity(capacity)
    {
    }

    Result push(const QByteArray& line);

    void open();
    void close();
    QByteArray take();
    /// Sets the number of taken bytes that the socket has not yet written.
    void setUnwritten(qsizetype bytes);

private:
    const qsizetype m_capacity;
    std::mutex m_mutex; // guards all members below
    bool m_open = false;
    QByteArray m_waiting;
    qsizetype m_unwritten = 0;
};

} // namespace channel
