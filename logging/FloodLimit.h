#pragma once

#include "logging/Log.h"

#include <chrono>
#include <functional>
#include <mutex>

namespace Log
{

/// Limits the records of one kind of event that others cause, such as messages of the display, so
/// that a flood of them neither fills the disk nor slows the program down. Further events of the
/// same second are counted, and one record "… and N more" replaces theirs. Any thread.
///
///     if (m_flood.admits())
///         Log::info(Function) << "recv :" << text;
class FloodLimit
{
public:
    using Clock = std::chrono::steady_clock;
    static constexpr int EventsPerSecond = 200;

    /// @param function  of the record that replaces the others; a literal
    /// @param now  source of the time, for tests
    explicit FloodLimit(const char* function, std::function<Clock::time_point()> now = Clock::now);
    /// Writes the outstanding record.
    ~FloodLimit();
    FloodLimit(const FloodLimit&) = delete;
    FloodLimit& operator=(const FloodLimit&) = delete;

    /// Counts an event. True if it is to be logged.
    [[nodiscard]] bool admits();
    /// Writes the outstanding record if its second is over. For callers that run periodically;
    /// otherwise the next event writes it.
    void flush();

private:
    int beginSecond();
    void report(int dropped) const;

    const char* const m_function;
    const std::function<Clock::time_point()> m_now;
    std::mutex m_mutex; // guards the members below
    Clock::time_point m_begin;
    int m_admitted = 0;
    int m_dropped = 0;
};

} // namespace Log
