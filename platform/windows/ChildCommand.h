#pragma once

#include <QByteArray>
#include <QStringList>

#include <chrono>
#include <stop_token>

class QProcess;

namespace platform
{

/// Full path of a tool in the system folder, so that a program of the same name elsewhere, for
/// example beside ours, is never run.
[[nodiscard]] QString systemTool(const QString& path);

enum class Unfinished { Kill, LeaveRunning };

/// Runs one of the system's command-line tools and waits for its end. False when it could not
/// start, crashed, did not end in time, or the stop was requested or the calling QThread
/// interrupted meanwhile; a tool that still runs then is handled as `unfinished` says.
bool runCommand(QProcess& process, const QString& program, const QStringList& arguments,
                std::chrono::milliseconds patience, const std::stop_token& stop = {},
                Unfinished unfinished = Unfinished::Kill);

/// Converts the output of such a tool, which is in the system's OEM code page.
QString toolOutput(const QByteArray& text);

} // namespace platform
