#pragma once

#include <QDeadlineTimer>

#include <condition_variable>
#include <mutex>

namespace channel
{

/// Set once, when a thread has touched for the last time what it shares with others. QThread::wait
/// would do, but the thread sanitizer does not see into it.
class EndSignal
{
public:
    void set()
    {
        const std::lock_guard lock(m_mutex);
        m_set = true;
        m_changed.notify_all();
    }

    bool wait(QDeadlineTimer deadline)
    {
        std::unique_lock lock(m_mutex);
        const auto isSet = [this] { return m_set; };
        if (deadline.isForever()) {
            m_changed.wait(lock, isSet);
            return true;
        }
        return m_changed.wait_for(lock, deadline.remainingTimeAsDuration(), isSet);
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_set = false; // guarded by m_mutex
};

} // namespace channel
