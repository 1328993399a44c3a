#pragma once

#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <functional>

namespace bench
{

/// Runs the event loop until @p isDone returns true, for up to @p patience. Returns its last value.
inline bool waitUntil(const std::function<bool()>& isDone,
                      std::chrono::milliseconds patience = std::chrono::minutes(1))
{
    constexpr auto PollInterval = std::chrono::milliseconds(5);
    if (isDone())
        return true;
    QEventLoop loop;
    QTimer poll;
    QTimer end; // ends with this function, unlike a single shot
    QObject::connect(&end, &QTimer::timeout, &loop, &QEventLoop::quit);
    end.start(patience);
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (isDone())
            loop.quit();
    });
    poll.start(PollInterval);
    loop.exec();
    return isDone();
}

} // namespace bench
