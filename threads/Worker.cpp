#include "threads/Worker.h"

#include "platform/ThreadName.h"

#include <condition_variable>
#include <mutex>

Worker::Worker(const char* name, Body body)
    : m_thread([name, body = std::move(body)](const std::stop_token& stop) {
        platform::nameCurrentThread(name);
        body(stop);
    })
{
}

void Worker::end()
{
    m_thread.request_stop();
    if (m_thread.joinable())
        m_thread.join();
}

bool waitForStop(const std::stop_token& stop, std::chrono::milliseconds time)
{
    std::mutex mutex;
    std::unique_lock lock(mutex);
    std::condition_variable_any changed;
    changed.wait_for(lock, stop, time, [] { return false; });
    return stop.stop_requested();
}
