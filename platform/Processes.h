#pragma once

#include <QString>
#include <QStringList>

#include <chrono>
#include <stop_token>

/// The processes of this computer, found by image name ("Zoom.exe"). Any thread; the calls block
/// for at most the given patience. On Windows they wait for the system's own tools or for the user,
/// and end unfinished when the stop is requested or the calling QThread is interrupted.
namespace platform
{

struct KillOutcome {
    bool finished = false; ///< false: the attempt could not start or did not end in time
    int exitCode = -1;     ///< 0: every process of the name was ended
    QString errorText;     ///< the system's message if the code is not 0
};

/// Kills every process of this name. On Linux the calling process is spared.
[[nodiscard]] KillOutcome killByImageName(const QString& name, std::chrono::milliseconds patience,
                                          const std::stop_token& stop = {});

struct RunningOutcome {
    bool finished = false; ///< false: the state is unknown
    bool running = false;
};

[[nodiscard]] RunningOutcome isImageRunning(const QString& name, std::chrono::milliseconds patience,
                                            const std::stop_token& stop = {});

/// Waits until the process of this number has ended; true also if there is none.
[[nodiscard]] bool waitForEnd(qint64 process, std::chrono::milliseconds patience);

/// Starts a program that outlives this one; false if it did not start. Windows asks the user first
/// when the program needs more rights, and there is no limit to that wait. A call that a stop
/// request ends before the answer returns false, and the program starts if the user then agrees.
[[nodiscard]] bool startDetached(const QString& program, const QStringList& arguments,
                                 const std::stop_token& stop = {});

} // namespace platform
