#include "platform/Processes.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace
{

// A command that does not end in time is ended with its QProcess.
bool runWithin(QProcess& process, const QString& program, const QStringList& arguments,
               std::chrono::milliseconds patience)
{
    process.start(program, arguments);
    return process.waitForFinished(static_cast<int>(patience.count()));
}

} // namespace

namespace platform
{

KillOutcome killByImageName(const QString& name, std::chrono::milliseconds patience)
{
    QProcess process;
    if (!runWithin(process, u"taskkill"_s, {u"/IM"_s, name, u"/F"_s}, patience))
        return {false, -1, process.errorString()};
    return {true, process.exitCode(), QString::fromLocal8Bit(process.readAllStandardError())};
}

RunningOutcome isImageRunning(const QString& name, std::chrono::milliseconds patience)
{
    QProcess process;
    if (!runWithin(process, u"tasklist"_s, {u"/FI"_s, u"IMAGENAME eq %1"_s.arg(name)}, patience))
        return {false, false};
    return {true, QString::fromUtf8(process.readAll()).contains(name)};
}

} // namespace platform
