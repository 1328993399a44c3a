#pragma once

#include <QByteArray>

#include <mutex>

namespace channel
{

/// What waits to be written to the peer. Any thread pushes; the worker that owns the socket opens,
/// takes and closes. Bounded: a peer that does not read costs a fixed amount of memory.
class OutgoingQueue
{
public:
    enum class Result {
        Accepted,     ///< more bytes behind others; the worker has already been told
        FirstWaiting, ///< the worker has to be told that there is something to take
        Closed,       ///< dropped: no connection
        Full,         ///< dropped: the peer does not read
    };

    /// @p capacity counts the bytes here and those the socket has not yet written.
    explicit OutgoingQueue(qsizetype capacity)
        : m_capacity(capacity)
    {
    }

    Result push(const QByteArray& line);

    void open();
    void close();
    QByteArray take();
    /// Tells how many of the taken bytes the socket still holds.
    void setUnwritten(qsizetype bytes);

private:
    const qsizetype m_capacity;
    std::mutex m_mutex; // guards what follows
    bool m_open = false;
    QByteArray m_waiting;
    qsizetype m_unwritten = 0;
};

} // namespace channel
