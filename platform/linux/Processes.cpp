#include "platform/Processes.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
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

constexpr qsizetype kCommandNameLimit = 15; // the kernel cuts longer names off
constexpr std::chrono::milliseconds kEndPatience{1000};
constexpr int kNotFound = 128; // as the Windows tool reports it

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

// By number, since the C library's own declarations lack C linkage in some versions.
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

// Start of a small file; empty when the process is gone.
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

/// One image name, compared with processes.
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
        // Kernel threads and processes that have ended but were not waited for have no executable.
        if (length < 0 && errno != EACCES)
            return false;
        if (length > 0 && equals(executableName({target.data(), length})))
            return true;

        const QByteArray command = readStart(procPath(pid, "comm")).trimmed();
        if (equals(command))
            return true;
        return command.size() == kCommandNameLimit && beginsWith(command) && isInCommandLine(pid);
    }

private:
    // A running program whose file was replaced or removed is still that program.
    static QByteArrayView executableName(QByteArrayView path)
    {
        constexpr QByteArrayView removed(" (deleted)");
        if (path.endsWith(removed))
            path.chop(removed.size());
        return fileNameOf(path);
    }

    [[nodiscard]] bool equals(QByteArrayView name) const
    {
        return !m_bare.isEmpty() && (name == m_bare || name == m_full);
    }

    [[nodiscard]] bool beginsWith(QByteArrayView start) const { return m_full.startsWith(start); }

    // The whole name of a script, whose executable is its interpreter, is one of the first
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
    // One thread reads this stream, which is all that readdir() asks for.
    while (const dirent* entry = ::readdir(folder)) { // NOLINT(concurrency-mt-unsafe)
        bool isNumber = false;
        const pid_t pid = QByteArrayView(entry->d_name).toInt(&isNumber);
        if (isNumber && pid != self && name.isNameOf(pid))
            found.push_back(pid);
    }
    ::closedir(folder);
    return found;
}

struct Victim {
    FileDescriptor handle; // invalid where the kernel has no handles for processes
    int error = 0;         // why the signal could not be sent
};

// Empty when the process ended meanwhile and its number may belong to another.
std::optional<Victim> killProcess(pid_t pid, const ImageName& name)
{
    Victim victim{FileDescriptor(openProcess(pid))};
    if (!name.isNameOf(pid))
        return std::nullopt;
    const int result = victim.handle.get() >= 0 ? signalProcess(victim.handle.get(), SIGKILL)
                                                : ::kill(pid, SIGKILL);
    if (result != 0 && errno == ESRCH)
        return std::nullopt;
    victim.error = result == 0 ? 0 : errno;
    return victim;
}

// The signal takes effect a little later; a process stuck in the kernel is not waited for.
void waitForEnd(const Victim& victim, Clock::time_point deadline)
{
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
    pollfd poll{victim.handle.get(), POLLIN, 0};
    if (victim.error == 0 && victim.handle.get() >= 0)
        ::poll(&poll, 1, static_cast<int>(qMax<qint64>(left, 0)));
}

} // namespace

namespace platform
{

KillOutcome killByImageName(const QString& name, std::chrono::milliseconds patience,
                            const std::stop_token&)
{
    const ImageName image(name);
    std::vector<Victim> victims;
    QStringList errors;
    for (const pid_t pid : processesNamed(image)) {
        auto victim = killProcess(pid, image);
        if (!victim)
            continue;
        if (victim->error != 0)
            errors << u"process %1: %2"_s.arg(pid).arg(qt_error_string(victim->error));
        victims.push_back(std::move(*victim));
    }
    if (victims.empty())
        return {true, kNotFound, u"no process found: "_s + name};

    const auto deadline = Clock::now() + qMin(patience, kEndPatience);
    for (const Victim& victim : victims)
        waitForEnd(victim, deadline);
    return {true, errors.isEmpty() ? 0 : 1, errors.join(u'\n')};
}

RunningOutcome isImageRunning(const QString& name, std::chrono::milliseconds,
                              const std::stop_token&)
{
    // The one that was found the last time is most often still there, and cheap to look at.
    static std::atomic<pid_t> s_lastFound{0};
    const ImageName image(name);
    if (const pid_t last = s_lastFound; last != 0 && image.isNameOf(last))
        return {true, true};
    const std::vector<pid_t> found = processesNamed(image);
    s_lastFound = found.empty() ? 0 : found.front();
    return {true, !found.empty()};
}

} // namespace platform
