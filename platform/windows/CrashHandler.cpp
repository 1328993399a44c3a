#include "platform/CrashHandler.h"

#include "platform/windows/StackReserve.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>

#include <qt_windows.h>

#include <dbghelp.h>
#include <io.h>

#include <array>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <thread>

using namespace Qt::StringLiterals;

namespace
{

// Codes of our own, in the range left to applications.
constexpr DWORD kUncaughtException = 0xE0564F52;
constexpr DWORD kAborted = 0xE0564F53;

constexpr DWORD kLogPatienceMs = 1'000;
constexpr DWORD kOtherCrashPatienceMs = 5'000;

std::atomic<DWORD> g_reporter{0}; // the thread that crashed first
LPTOP_LEVEL_EXCEPTION_FILTER g_previousFilter = nullptr;
std::terminate_handler g_previousTerminate = nullptr;

using SignalHandler = void (*)(int);
SignalHandler g_previousAbort = SIG_DFL;

/// Writes the log lines. The crashed thread may hold the logger's lock, so a thread that has waited
/// for this moment writes them, and is not waited for long.
struct LogWriter {
    platform::CrashLine writeLine = nullptr;
    HANDLE wake = nullptr;
    HANDLE done = nullptr;
    std::array<char, MAX_PATH> outcome{};

    void run()
    {
        WaitForSingleObject(wake, INFINITE);
        writeLine("Creating dump file...");
        writeLine(outcome.data());
        SetEvent(done);
    }
};
LogWriter g_log;

QString dumpFileName()
{
    return u".\\%1-%2-%3-%4.dmp"_s.arg(QCoreApplication::applicationName(),
                                       QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss"_s),
                                       QString::number(QCoreApplication::applicationPid()),
                                       QString::number(GetCurrentThreadId()));
}

QString writeDump(EXCEPTION_POINTERS* exceptionPointers)
{
    QFile file(dumpFileName());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return "Failed to create dump file:"_L1 + file.fileName();

    MINIDUMP_EXCEPTION_INFORMATION information{};
    information.ThreadId = GetCurrentThreadId();
    information.ExceptionPointers = exceptionPointers;
    information.ClientPointers = TRUE;
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()));
    const BOOL written = MiniDumpWriteDump(GetCurrentProcess(), GetCurrentProcessId(), handle,
                                           MiniDumpNormal, &information, nullptr, nullptr);
    const DWORD error = GetLastError();
    file.close();
    if (!written)
        return "Failed to write dump file:"_L1 + QString::number(error);
    return "Dump file created successfully at:"_L1 + file.fileName();
}

// One dump a process, of the first crash: what another thread does meanwhile is its consequence.
// The log comes after the dump, which stops every other thread while it is written.
LONG GenerateDump(EXCEPTION_POINTERS* exceptionPointers)
{
    DWORD nobody = 0;
    const DWORD thread = GetCurrentThreadId();
    if (!g_reporter.compare_exchange_strong(nobody, thread)) {
        if (nobody != thread) // otherwise the handler itself has crashed, or abort() follows it
            Sleep(kOtherCrashPatienceMs);
        return EXCEPTION_EXECUTE_HANDLER;
    }
    const QByteArray outcome = writeDump(exceptionPointers).toUtf8();
    qstrncpy(g_log.outcome.data(), outcome.constData(), g_log.outcome.size());
    SetEvent(g_log.wake);
    WaitForSingleObject(g_log.done, kLogPatienceMs);
    return EXCEPTION_EXECUTE_HANDLER;
}

// The filter installed before is the C library's: it calls the logger's own signal handler.
LONG WINAPI onUnhandledException(EXCEPTION_POINTERS* exceptionPointers)
{
    const LONG result = GenerateDump(exceptionPointers);
    const bool hasStackLeft =
        exceptionPointers->ExceptionRecord->ExceptionCode != EXCEPTION_STACK_OVERFLOW;
    if (g_previousFilter && hasStackLeft)
        g_previousFilter(exceptionPointers);
    return result;
}

// For ends of the program that the system does not know as exceptions.
void dumpHere(DWORD code)
{
    CONTEXT context{};
    RtlCaptureContext(&context);
    EXCEPTION_RECORD record{};
    record.ExceptionCode = code;
    record.ExceptionFlags = EXCEPTION_NONCONTINUABLE;
    record.ExceptionAddress = reinterpret_cast<void*>(&dumpHere);
    EXCEPTION_POINTERS pointers{&record, &context};
    GenerateDump(&pointers);
}

// With MinGW an uncaught C++ exception ends here and never reaches the filter.
[[noreturn]] void onTerminate()
{
    dumpHere(kUncaughtException);
    if (g_previousTerminate)
        g_previousTerminate();
    std::abort();
}

void onAbort(int signal)
{
    dumpHere(kAborted);
    if (g_previousAbort != SIG_DFL && g_previousAbort != SIG_IGN)
        g_previousAbort(signal);
}

void startLogWriter(platform::CrashLine writeLine)
{
    g_log.writeLine = writeLine;
    g_log.wake = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    g_log.done = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    // It sleeps until a crash and touches nothing that is ever destroyed, hence it can be left
    // behind.
    std::thread([] { g_log.run(); }).detach();
}

} // namespace

namespace platform
{

void installCrashHandler(CrashLine writeLine)
{
    startLogWriter(writeLine);
    reserveStackForCrash();
    g_previousFilter = SetUnhandledExceptionFilter(onUnhandledException);
    g_previousTerminate = std::set_terminate(onTerminate);
    g_previousAbort = std::signal(SIGABRT, onAbort);
}

} // namespace platform
