#include "platform/windows/ChildCommand.h"

#include "platform/StopRequest.h"

#include <QDeadlineTimer>
#include <QProcess>

#include <future>
#include <thread>
#include <utility>

namespace
{

constexpr int SliceMs = 50; // longest delay until a stop request is noticed

} // namespace

namespace platform
{

bool runCommand(QProcess& process, const QString& program, const QStringList& arguments,
                std::chrono::milliseconds patience, const std::stop_token& stop,
                Unfinished unfinished)
{
    const QDeadlineTimer deadline(patience);
    process.start(program, arguments);
    while (!process.waitForFinished(SliceMs)) {
        if (process.state() == QProcess::NotRunning)
            break;
        if (deadline.hasExpired() || mustEnd(stop)) {
            if (unfinished == Unfinished::Kill)
                process.kill();
            return false;
        }
    }
    return process.error() == QProcess::UnknownError ||
           process.error() == QProcess::Timedout; // set by a slice that ended before the tool did
}

bool runAside(std::function<bool()> call, const std::stop_token& stop)
{
    std::packaged_task<bool()> task(std::move(call));
    auto result = task.get_future();
    std::thread(std::move(task)).detach();
    while (result.wait_for(std::chrono::milliseconds(SliceMs)) != std::future_status::ready) {
        if (mustEnd(stop))
            return false;
    }
    return result.get();
}

void leaveRunning(std::unique_ptr<QProcess> process)
{
    if (process->state() != QProcess::NotRunning)
        (void)process.release();
}

} // namespace platform
