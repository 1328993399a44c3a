#include "platform/Processes.h"

#include "platform/windows/ChildCommand.h"
#include "platform/windows/SystemTools.h"

#include <QProcess>

#include <qt_windows.h>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace platform
{

KillOutcome killByImageName(const QString& name, std::chrono::milliseconds patience,
                            const std::stop_token& stop)
{
    // At the end of the program there may be no time to wait for the tool.
    auto process = std::make_unique<QProcess>();
    const bool finished =
        runCommand(*process, systemTool(u"taskkill.exe"_s), {u"/IM"_s, name, u"/F"_s}, patience,
                   stop, Unfinished::LeaveRunning);
    if (finished)
        return {true, process->exitCode(), toolOutput(process->readAllStandardError())};
    KillOutcome outcome{false, -1, process->errorString()};
    leaveRunning(std::move(process));
    return outcome;
}

RunningOutcome isImageRunning(const QString& name, std::chrono::milliseconds patience,
                              const std::stop_token& stop)
{
    QProcess process;
    if (!runCommand(process, systemTool(u"tasklist.exe"_s),
                    {u"/FI"_s, u"IMAGENAME eq %1"_s.arg(name)}, patience, stop))
        return {false, false};
    return {true, QString::fromUtf8(process.readAll()).contains(name)};
}

bool waitForEnd(qint64 process, std::chrono::milliseconds patience)
{
    const HANDLE handle = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process));
    if (!handle)
        return GetLastError() == ERROR_INVALID_PARAMETER; // there is no such process
    const DWORD result = WaitForSingleObject(handle, static_cast<DWORD>(patience.count()));
    CloseHandle(handle);
    return result == WAIT_OBJECT_0;
}

bool startDetached(const QString& program, const QStringList& arguments,
                   const std::stop_token& stop)
{
    return runAside([program, arguments] { return QProcess::startDetached(program, arguments); },
                    stop);
}

} // namespace platform
