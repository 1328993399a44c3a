#include "device/ChannelGate.h"

#include <QScopeGuard>

ChannelGate::ChannelGate(Callback callback)
    : m_callback(std::move(callback))
{
}

int ChannelGate::pass(int id, const std::string& msg)
{
    if (!enter())
        return 0;
    const auto guard = qScopeGuard([this] { leave(); });
    return m_callback(id, msg);
}

void ChannelGate::close()
{
    std::unique_lock lock(m_mutex);
    m_closed = true;
    m_left.wait(lock, [this] { return m_inside == 0; });
}

bool ChannelGate::enter()
{
    const std::scoped_lock lock(m_mutex);
    if (m_closed)
        return false;
    ++m_inside;
    return true;
}

void ChannelGate::leave()
{
    // Notified under the lock, since close() may destroy the gate as soon as it can take it.
    const std::scoped_lock lock(m_mutex);
    --m_inside;
    m_left.notify_all();
}
