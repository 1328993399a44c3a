#pragma once

#include <chrono>
#include <functional>
#include <stop_token>
#include <thread>

/// A named thread. Its body is given a stop token and returns soon after the stop is requested.
class Worker
{
public:
    using Body = std::function<void(const std::stop_token&)>;

    /// Starts the thread. Throws std::system_error, which ends the program, when the system cannot
    /// create one.
    Worker(const char* name, Body body);
    /// Requests the stop and waits for the end of the thread.
    ~Worker() = default;

    /// Requests the stop and returns at once. Any thread.
    void requestStop() { m_thread.request_stop(); }
    /// Requests the stop and waits for the end of the thread. One thread at a time, not the worker.
    void end();

private:
    std::jthread m_thread;
};

/// Waits until the stop is requested or the time has passed. True when the stop is requested.
bool waitForStop(const std::stop_token& stop, std::chrono::milliseconds time);
