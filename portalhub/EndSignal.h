#pragma once

#include <QDeadlineTimer>

#include <condition_variable>
#include <mutex>

namespace channel
{

/// Set once, after the last access of a thread to data that it shares. QThread::wait() alone would
/// suffice, but ThreadSanitizer does not instrument Qt and cannot see that it synchronises.
class EndSignal
{
public:
    void set()
    {
        const std::scoped_lock lock(m_mutex);
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
