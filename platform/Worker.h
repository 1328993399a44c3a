#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

/// The request to stop as a worker's body sees it.
class StopRequest
{
public:
    [[nodiscard]] bool isMade() const;
    /// Waits until the stop is requested or the time is over; true when it is requested.
    bool waitFor(std::chrono::milliseconds time) const;
    /// Wakes whoever waits. May be called repeatedly.
    void make();

    /// Whether the thread this is called on, a Worker's or a QThread that was interrupted, should
    /// come to its end. For waits so deep in a call that no request reaches them.
    [[nodiscard]] static bool isMadeToThisThread();

private:
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    bool m_made = false;
};

/// A named thread whose waits end at once when it is asked to stop. Destruction stops and joins it.
class Worker
{
public:
    using Body = std::function<void(const StopRequest&)>;

    /// Starts the thread. Failing to create one ends the process, as the program cannot work
    /// without.
    Worker(const char* name, Body body);
    ~Worker();
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    /// Asks the body to leave its loop, without waiting for it.
    void requestStop() { m_stop.make(); }
    /// Asks it and waits for the thread's end. From one thread at a time, not the worker's own.
    void end();

private:
    StopRequest m_stop;
    std::thread m_thread;
};
