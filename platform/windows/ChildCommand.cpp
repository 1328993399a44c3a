#include "platform/windows/ChildCommand.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QThread>

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
        if (deadline.hasExpired() || stop.stop_requested() ||
            QThread::currentThread()->isInterruptionRequested()) {
            if (unfinished == Unfinished::Kill)
                process.kill();
            return false;
        }
    }
    return process.error() == QProcess::UnknownError ||
           process.error() == QProcess::Timedout; // set by a slice that ended before the tool did
}

void leaveRunning(std::unique_ptr<QProcess> process)
{
    if (process->state() != QProcess::NotRunning)
        (void)process.release();
}

} // namespace platform
