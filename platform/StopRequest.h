#pragma once

#include <QThread>

#include <stop_token>

namespace platform
{

/// True when a call has to end early: its stop was requested, or the calling QThread was
/// interrupted. Any thread.
[[nodiscard]] inline bool mustEnd(const std::stop_token& stop = {})
{
    return stop.stop_requested() || QThread::currentThread()->isInterruptionRequested();
}

} // namespace platform
