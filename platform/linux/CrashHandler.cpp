#include "platform/CrashHandler.h"

#include "platform/linux/AlternateStack.h"
#include "platform/linux/CrashReport.h"
#include "platform/linux/GuardedAccess.h"
#include "platform/linux/ProgramSymbols.h"
#include "platform/linux/SignalChain.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <thread>

#include <cxxabi.h>
#include <execinfo.h>
#include <fcntl.h>
#include <poll.h>
#include <semaphore.h>
#include <unistd.h>

namespace
{

using platform::Crash;
using platform::FixedText;

constexpr std::array FatalSignals{SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT};
constexpr int PollMs = 5;
constexpr int LogPatienceMs = 1'000;
constexpr int OtherCrashPatienceMs = 5'000;
constexpr int OffsetIntervalSeconds = 600;

std::array<struct sigaction, FatalSignals.size()> g_previous;
std::terminate_handler g_previousTerminate = nullptr;

// Read before a crash, because a signal handler must not read them.
FixedText g_program;
std::atomic<long> g_utcOffset{0};

std::atomic<pid_t> g_reporter{0}; // the thread that crashed first
std::atomic<bool> g_reported{false};

void updateUtcOffset()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    if (::localtime_r(&now, &local))
        g_utcOffset = local.tm_gmtoff;
}

/// Writes the log lines on a thread of its own. The crashed thread may hold the lock of the logger
/// or of the heap, so it uses neither, and waits for this thread only for a bounded time.
struct LogWriter {
    platform::CrashLine writeLine = nullptr;
    sem_t wake{};
    FixedText outcome;
    std::atomic<bool> done{false};

    void run()
    {
        while (!isWoken())
            updateUtcOffset(); // it changes with daylight saving time
        writeLine("Creating dump file...");
        writeLine(outcome.c_str());
        done = true;
    }

private:
    bool isWoken()
    {
        timespec until = {};
        ::clock_gettime(CLOCK_MONOTONIC, &until);
        until.tv_sec += OffsetIntervalSeconds;
        int result = 0;
        do
            result = ::sem_clockwait(&wake, CLOCK_MONOTONIC, &until);
        while (result != 0 && errno == EINTR);
        return result == 0;
    }
};
LogWriter g_log;

void waitUntil(const std::atomic<bool>& flag, int patienceMs)
{
    for (int waited = 0; !flag && waited < patienceMs; waited += PollMs)
        ::poll(nullptr, 0, PollMs);
}

void writeFile(const Crash& crash)
{
    const FixedText name = platform::crashFileName(crash);
    FixedText& outcome = g_log.outcome;
    const int fd = ::open(name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (fd < 0) {
        outcome << "Failed to create dump file:" << name.view();
        return;
    }
    const int error = platform::writeCrashReport(fd, crash);
    ::close(fd);
    if (error != 0)
        outcome << "Failed to write dump file:" << error;
    else
        outcome << "Dump file created successfully at:" << name.view();
}

// Only the first crash is reported; later ones are probably consequences of it.
void report(Crash crash)
{
    crash.thread = ::gettid();
    pid_t reporter = 0;
    if (!g_reporter.compare_exchange_strong(reporter, crash.thread)) {
        // On the reporting thread itself this is a crash of the report, or the abort() after it.
        if (reporter != crash.thread)
            waitUntil(g_reported, OtherCrashPatienceMs);
        return;
    }
    crash.program = g_program.view();
    crash.process = ::getpid();
    crash.time = platform::LocalTime(std::time(nullptr), g_utcOffset);
    writeFile(crash);
    ::sem_post(&g_log.wake);
    waitUntil(g_log.done, LogPatienceMs);
    g_reported = true;
}

void onFatalSignal(int signal, siginfo_t* info, void* context)
{
    if (signal == SIGBUS)
        platform::leaveGuardedAccess(context);
    const int savedError = errno;
    Crash crash;
    crash.signal = signal;
    crash.info = info;
    crash.context = context;
    report(crash);
    for (std::size_t i = 0; i < FatalSignals.size(); ++i) {
        if (FatalSignals[i] == signal)
            platform::passOn(signal, info, context, g_previous[i]);
    }
    errno = savedError;
}

// Type and text of the exception that is being handled.
FixedText describeException()
{
    FixedText text;
    const std::type_info* const type = abi::__cxa_current_exception_type();
    if (!type) {
        text << "none; std::terminate() was called";
        return text;
    }
    int status = 0;
    char* const name = abi::__cxa_demangle(type->name(), nullptr, nullptr, &status);
    text << (name ? name : type->name());
    std::free(name);
    try {
        throw;
    } catch (const std::exception& exception) {
        text << ": " << exception.what();
    } catch (...) { // of such an exception only the type is known
    }
    return text;
}

[[noreturn]] void onTerminate()
{
    const FixedText description = describeException();
    Crash crash;
    crash.exception = description.view();
    report(crash);
    if (g_previousTerminate)
        g_previousTerminate();
    std::abort();
}

void prepare(platform::CrashLine writeLine)
{
    g_program << program_invocation_short_name;
    updateUtcOffset();

    // The first call of backtrace() loads a library and allocates memory.
    void* frame = nullptr;
    ::backtrace(&frame, 1);
    platform::loadProgramSymbols();

    g_log.writeLine = writeLine;
    ::sem_init(&g_log.wake, 0, 0);
    // Detached: it waits until a crash and uses only objects that are never destroyed.
    std::thread([] { g_log.run(); }).detach();
}

} // namespace

namespace platform
{

void installCrashHandler(CrashLine writeLine)
{
    prepare(writeLine);
    ensureAlternateStack();
    struct sigaction action = {};
    action.sa_sigaction = onFatalSignal;
    // SA_NODEFER, so that a crash inside the handler enters it again.
    action.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_NODEFER;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < FatalSignals.size(); ++i)
        sigaction(FatalSignals[i], &action, &g_previous[i]);
    g_previousTerminate = std::set_terminate(onTerminate);
}

} // namespace platform
