#pragma once

#include <QString>

#include <chrono>
#include <stop_token>

/// The processes of this computer, found by image name ("Zoom.exe"). Any thread; the calls block
/// for at most the given patience. On Windows they wait for the system's own tools, and end
/// unfinished when the stop is requested or the calling QThread is interrupted.
namespace platform
{

struct KillOutcome {
    bool finished = false; ///< false: the attempt itself did not end in time or could not start
    int exitCode = -1;     ///< 0: every process of the name was ended
    QString errorText;     ///< why not, in the system's words
};

/// Ends every process of this name, on Linux but our own, without asking it.
[[nodiscard]] KillOutcome killByImageName(const QString& name, std::chrono::milliseconds patience,
                                          const std::stop_token& stop = {});

struct RunningOutcome {
    bool finished = false; ///< false: nothing is known
    bool running = false;
};

[[nodiscard]] RunningOutcome isImageRunning(const QString& name, std::chrono::milliseconds patience,
                                            const std::stop_token& stop = {});

} // namespace platform
