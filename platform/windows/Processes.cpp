#include "platform/Processes.h"

#include "platform/windows/ChildCommand.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace platform
{

KillOutcome killByImageName(const QString& name, std::chrono::milliseconds patience,
                            const std::stop_token& stop)
{
    QProcess process;
    if (!runCommand(process, systemTool(u"taskkill.exe"_s), {u"/IM"_s, name, u"/F"_s}, patience,
                    stop))
        return {false, -1, process.errorString()};
    return {true, process.exitCode(), toolOutput(process.readAllStandardError())};
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

} // namespace platform
