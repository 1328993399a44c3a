#pragma once

#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>
#include <stop_token>

class QProcess;

/// Nothing here calls Windows, so that the tests of every system cover it.
namespace platform
{

enum class Unfinished { Kill, LeaveRunning };

/// Runs one of the system's command-line tools and waits for its end. False when it could not
/// start, crashed, did not end in time, or the stop was requested or the calling QThread
/// interrupted meanwhile; a tool that still runs then is handled as `unfinished` says.
bool runCommand(QProcess& process, const QString& program, const QStringList& arguments,
                std::chrono::milliseconds patience, const std::stop_token& stop = {},
                Unfinished unfinished = Unfinished::Kill);

/// Runs a call of the system that nothing can interrupt, on a thread of its own, and waits for its
/// result. False also when the stop was requested or the calling QThread interrupted meanwhile. The
/// thread then ends with the call or with the process, so `call` owns what it uses.
bool runAside(std::function<bool()> call, const std::stop_token& stop);

/// Lets a tool that still runs finish its work alone. The destructor of QProcess would kill it.
void leaveRunning(std::unique_ptr<QProcess> process);

} // namespace platform
