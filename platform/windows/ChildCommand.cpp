#include "platform/windows/ChildCommand.h"

#include "platform/Worker.h"

#include <QDeadlineTimer>
#include <QProcess>

namespace
{

constexpr int kSliceMs = 50; // how soon a request to stop is seen

} // namespace

namespace platform
{

bool runCommand(QProcess& process, const QString& program, const QStringList& arguments,
                std::chrono::milliseconds patience)
{
    const QDeadlineTimer deadline(patience);
    process.start(program, arguments);
    while (!process.waitForFinished(kSliceMs)) {
        if (process.state() == QProcess::NotRunning)
            break;
        if (deadline.hasExpired() || StopRequest::isMadeToThisThread()) {
            process.kill();
            return false;
        }
    }
    return process.error() == QProcess::UnknownError ||
           process.error() == QProcess::Timedout; // the latter from a slice that was too short
}

} // namespace platform
