#include "platform/windows/ChildCommand.h"

#include "platform/Registry.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QThread>
#include <QVariant>

#include <qt_windows.h>

#include <string>

using namespace Qt::StringLiterals;

namespace
{

constexpr int kSliceMs = 50; // how soon a request to stop is seen

/// As the system was set up: GetOEMCP() tells of this program, whose manifest says UTF-8.
UINT systemCodePage()
{
    static const UINT s_page = [] {
        const UINT page =
            platform::readRegistry(
                u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Nls\\CodePage"_s,
                u"OEMCP"_s)
                .toUInt();
        return page != 0 ? page : ::GetOEMCP();
    }();
    return s_page;
}

} // namespace

namespace platform
{

bool runCommand(QProcess& process, const QString& program, const QStringList& arguments,
                std::chrono::milliseconds patience, const std::stop_token& stop)
{
    const QDeadlineTimer deadline(patience);
    process.start(program, arguments);
    while (!process.waitForFinished(kSliceMs)) {
        if (process.state() == QProcess::NotRunning)
            break;
        if (deadline.hasExpired() || stop.stop_requested() ||
            QThread::currentThread()->isInterruptionRequested()) {
            process.kill();
            return false;
        }
    }
    return process.error() == QProcess::UnknownError ||
           process.error() == QProcess::Timedout; // the latter from a slice that was too short
}

QString toolOutput(const QByteArray& text)
{
    const int length = static_cast<int>(text.size());
    const auto convert = [&](wchar_t* target, int room) {
        return ::MultiByteToWideChar(systemCodePage(), 0, text.constData(), length, target, room);
    };
    std::wstring wide(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
    convert(wide.data(), static_cast<int>(wide.size()));
    return QString::fromStdWString(wide);
}

} // namespace platform
