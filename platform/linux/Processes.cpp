#include "platform/Processes.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
#include <QProcess>
#include <QStringList>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <optional>
#include <utility>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

using Clock = std::chrono::steady_clock;

constexpr qsizetype CommandNameLimit = 15; // of the kernel, which truncates longer names
constexpr std::chrono::milliseconds EndPatience{1000};
constexpr int NotFound = 128; // exit code of taskkill, the Windows tool

class FileDescriptor
{
public:
    explicit FileDescriptor(int fd)
        : m_fd(fd)
    {
    }
    ~FileDescriptor()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    FileDescriptor(FileDescriptor&& other) noexcept
        : m_fd(std::exchange(other.m_fd, -1))
    {
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    FileDescriptor& operator=(FileDescriptor&&) = delete;

    [[nodiscard]] int get() const { return m_fd; }

private:
    int m_fd;
};

// By number, because some versions of the C library declare these functions without C linkage.
int openProcess(pid_t pid)
{
    return static_cast<int>(::syscall(SYS_pidfd_open, pid, 0));
}

int signalProcess(int handle, int signal)
{
    return static_cast<int>(::syscall(SYS_pidfd_send_signal, handle, signal, nullptr, 0));
}

QByteArray procPath(pid_t pid, const char* entry)
{
    return "/proc/" + QByteArray::number(pid) + '/' + entry;
}

// First bytes of a small file; empty if the process has ended.
QByteArray readStart(const QByteArray& path)
{
    const FileDescriptor file(::open(path.constData(), O_RDONLY | O_CLOEXEC));
    std::array<char, 4096> buffer;
    const auto length = file.get() < 0 ? -1 : ::read(file.get(), buffer.data(), buffer.size());
    return length > 0 ? QByteArray(buffer.data(), length) : QByteArray();
}

QByteArrayView fileNameOf(QByteArrayView path)
{
    return path.sliced(path.lastIndexOf('/') + 1);
}

/// An image name that can be compared with processes.
class ImageName
{
public:
    explicit ImageName(const QString& name)
        : m_bare(QFile::encodeName(name.endsWith(".exe"_L1, Qt::CaseInsensitive) ? name.chopped(4)
                                                                                 : name))
        , m_full(m_bare + ".exe")
    {
    }

    [[nodiscard]] bool isNameOf(pid_t pid) const
    {
        std::array<char, 4096> target;
        const auto length =
            ::readlink(procPath(pid, "exe").constData(), target.data(), target.size());
        // Kernel threads and zombies have no executable.
        if (length < 0 && errno != EACCES)
            return false;
        if (length > 0 && equals(executableName({target.data(), length})))
            return true;

        const QByteArray command = readStart(procPath(pid, "comm")).trimmed();
        if (equals(command))
            return true;
        return command.size() == CommandNameLimit && beginsWith(command) && isInCommandLine(pid);
    }

private:
    // The kernel marks the file of a running program that was replaced or removed.
    static QByteArrayView executableName(QByteArrayView path)
    {
        constexpr QByteArrayView Removed(" (deleted)");
        if (path.endsWith(Removed))
            path.chop(Removed.size());
        return fileNameOf(path);
    }

    [[nodiscard]] bool equals(QByteArrayView name) const
    {
        return !m_bare.isEmpty() && (name == m_bare || name == m_full);
    }

    [[nodiscard]] bool beginsWith(QByteArrayView start) const { return m_full.startsWith(start); }

    // The executable of a script is its interpreter; the script's name is one of the first
    // arguments.
    [[nodiscard]] bool isInCommandLine(pid_t pid) const
    {
        const auto arguments = readStart(procPath(pid, "cmdline")).split('\0');
        for (const QByteArray& argument : arguments.first(qMin<qsizetype>(arguments.size(), 3))) {
            if (equals(fileNameOf(argument)))
                return true;
        }
        return false;
    }

    QByteArray m_bare;
    QByteArray m_full;
};

std::vector<pid_t> processesNamed(const ImageName& name)
{
    std::vector<pid_t> found;
    DIR* const folder = ::opendir("/proc");
    if (!folder)
        return found;
    const pid_t self = ::getpid();
    // readdir() is safe as long as only one thread reads the stream.
    while (const dirent* entry = ::readdir(folder)) { // NOLINT(concurrency-mt-unsafe)
        bool isNumber = false;
        const pid_t pid = QByteArrayView(entry->d_name).toInt(&isNumber);
        if (isNumber && pid != self && name.isNameOf(pid))
            found.push_back(pid);
    }
    ::closedir(folder);
    return found;
}

struct KilledProcess {
    FileDescriptor handle; // invalid if the kernel has no handles for processes
    int error = 0;         // errno if the signal could not be sent
};

// Empty if the process has ended, because its number may belong to another one by now.
std::optional<KilledProcess> killProcess(pid_t pid, const ImageName& name)
{
    KilledProcess process{FileDescriptor(openProcess(pid))};
    if (!name.isNameOf(pid))
        return std::nullopt;
    const int result = process.handle.get() >= 0 ? signalProcess(process.handle.get(), SIGKILL)
                                                 : ::kill(pid, SIGKILL);
    if (result != 0 && errno == ESRCH)
        return std::nullopt;
    process.error = result == 0 ? 0 : errno;
    return process;
}

// False if the process still runs at the end of the patience.
bool waitForEnd(const FileDescriptor& process, std::chrono::milliseconds patience)
{
    pollfd poll{process.get(), POLLIN, 0};
    return ::poll(&poll, 1, static_cast<int>(qMax<qint64>(patience.count(), 0))) == 1;
}

// Waits because the signal takes effect asynchronously, but not for a process stuck in the kernel.
void waitForEnd(const KilledProcess& process, Clock::time_point deadline)
{
    using std::chrono::milliseconds;
    if (process.error == 0 && process.handle.get() >= 0)
        waitForEnd(process.handle,
                   std::chrono::duration_cast<milliseconds>(deadline - Clock::now()));
}

} // namespace

namespace platform
{

KillOutcome killByImageName(const QString& name, std::chrono::milliseconds patience,
                            const std::stop_token&)
{
    const ImageName image(name);
    std::vector<KilledProcess> killed;
    QStringList errors;
    for (const pid_t pid : processesNamed(image)) {
        auto process = killProcess(pid, image);
        if (!process)
            continue;
        if (process->error != 0)
            errors << u"process %1: %2"_s.arg(pid).arg(qt_error_string(process->error));
        killed.push_back(std::move(*process));
    }
    if (killed.empty())
        return {true, NotFound, u"no process found: "_s + name};

    const auto deadline = Clock::now() + qMin(patience, EndPatience);
    for (const KilledProcess& process : killed)
        waitForEnd(process, deadline);
    return {true, errors.isEmpty() ? 0 : 1, errors.join(u'\n')};
}

RunningOutcome isImageRunning(const QString& name, std::chrono::milliseconds,
                              const std::stop_token&)
{
    // Checking the process that was found last is cheap, and it usually still runs.
    static std::atomic<pid_t> s_lastFound{0};
    const ImageName image(name);
    if (const pid_t last = s_lastFound; last != 0 && image.isNameOf(last))
        return {true, true};
    const std::vector<pid_t> found = processesNamed(image);
    s_lastFound = found.empty() ? 0 : found.front();
    return {true, !found.empty()};
}

bool waitForEnd(qint64 process, std::chrono::milliseconds patience)
{
    const FileDescriptor handle(openProcess(static_cast<pid_t>(process)));
    return handle.get() < 0 ? errno == ESRCH : ::waitForEnd(handle, patience);
}

bool startDetached(const QString& program, const QStringList& arguments, const std::stop_token&)
{
    return QProcess::startDetached(program, arguments);
}

} // namespace platform
