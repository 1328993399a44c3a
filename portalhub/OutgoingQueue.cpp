#include "portalhub/OutgoingQueue.h"

#include <utility>

using namespace channel;

OutgoingQueue::Result OutgoingQueue::push(const QByteArray& line)
{
    const std::scoped_lock lock(m_mutex);
    if (!m_open)
        return Result::Closed;
    if (line.size() > m_capacity - m_waiting.size() - m_unwritten)
        return Result::Full;
    const bool first = m_waiting.isEmpty();
    m_waiting.append(line);
    return first ? Result::FirstWaiting : Result::Accepted;
}

void OutgoingQueue::open()
{
    const std::scoped_lock lock(m_mutex);
    m_open = true;
    m_waiting.clear();
    m_unwritten = 0;
}

void OutgoingQueue::close()
{
    const std::scoped_lock lock(m_mutex);
    m_open = false;
    m_waiting.clear();
}

QByteArray OutgoingQueue::take()
{
    const std::scoped_lock lock(m_mutex);
    // Counts as unwritten until the worker calls setUnwritten().
    m_unwritten += m_waiting.size();
    return std::exchange(m_waiting, {});
}

void OutgoingQueue::setUnwritten(qsizetype bytes)
{
    const std::scoped_lock lock(m_mutex);
    m_unwritten = bytes;
}
