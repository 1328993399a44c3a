#include "platform/Worker.h"

#include "platform/ThreadName.h"

#include <QThread>

namespace
{

thread_local const StopRequest* t_request = nullptr;

} // namespace

bool StopRequest::isMade() const
{
    const std::scoped_lock lock(m_mutex);
    return m_made;
}

bool StopRequest::waitFor(std::chrono::milliseconds time) const
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, time, [this] { return m_made; });
}

void StopRequest::make()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_made = true;
    }
    m_changed.notify_all();
}

bool StopRequest::isMadeToThisThread()
{
    return t_request ? t_request->isMade() : QThread::currentThread()->isInterruptionRequested();
}

Worker::Worker(const char* name, Body body)
    : m_thread([this, name, body = std::move(body)] {
        platform::nameCurrentThread(name);
        t_request = &m_stop;
        body(m_stop);
        t_request = nullptr;
    })
{
}

Worker::~Worker()
{
    end();
}

void Worker::end()
{
    requestStop();
    if (m_thread.joinable())
        m_thread.join();
}
