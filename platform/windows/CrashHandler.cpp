#include "platform/CrashHandler.h"

#include "platform/windows/StackReserve.h"

#include <qt_windows.h>

#include <dbghelp.h>

#include <array>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string_view>
#include <thread>

namespace
{

// Exception codes in the range reserved for applications.
constexpr DWORD UncaughtException = 0xE0564F52;
constexpr DWORD Aborted = 0xE0564F53;

constexpr DWORD DumpPatienceMs = 10'000;
constexpr DWORD LogPatienceMs = 1'000;
constexpr const char* StuckOutcome = "Failed to write dump file:1460";
static_assert(ERROR_TIMEOUT == 1460);

using SignalHandler = void (*)(int);
// If a handler for one of these is set, the C library does not pass the exception to the filter.
constexpr std::array Signals{SIGSEGV, SIGILL, SIGFPE};
std::array<SignalHandler, Signals.size()> g_previous{};
SignalHandler g_previousAbort = SIG_DFL;
std::terminate_handler g_previousTerminate = nullptr;

std::atomic<DWORD> g_reporter{0};     // the thread that crashed first
std::atomic<DWORD> g_exitCode{0};     // code of the first crash
DWORD g_endSlot = FLS_OUT_OF_INDEXES; // has a value on a crashed thread

// The crashed thread may hold the lock of the heap, so the dump is named, written and reported
// without memory from it.
std::array<wchar_t, MAX_PATH> g_program{};
std::array<wchar_t, 2 * MAX_PATH> g_fileName{};
std::array<char, 4 * MAX_PATH> g_outcome{};

void storeProgramName()
{
    std::array<wchar_t, MAX_PATH> path{};
    GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()) - 1);
    const std::wstring_view file(path.data());
    const std::wstring_view name = file.substr(file.find_last_of(L'\\') + 1);
    name.substr(0, name.rfind(L'.')).copy(g_program.data(), g_program.size() - 1);
}

void nameDump(DWORD thread)
{
    SYSTEMTIME now{};
    GetLocalTime(&now);
    _snwprintf(g_fileName.data(), g_fileName.size() - 1,
               L".\\%ls-%04u%02u%02u-%02u%02u%02u-%lu-%lu.dmp", g_program.data(), now.wYear,
               now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond, GetCurrentProcessId(),
               thread);
}

void setOutcome(const char* text)
{
    std::array<char, 3 * MAX_PATH> name{};
    WideCharToMultiByte(CP_UTF8, 0, g_fileName.data(), -1, name.data(),
                        static_cast<int>(name.size()) - 1, nullptr, nullptr);
    std::snprintf(g_outcome.data(), g_outcome.size(), "%s%s", text, name.data());
}

void writeDump(DWORD thread, EXCEPTION_POINTERS* exceptionPointers)
{
    nameDump(thread);
    const HANDLE file = CreateFileW(g_fileName.data(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        setOutcome("Failed to create dump file:");
        return;
    }
    MINIDUMP_EXCEPTION_INFORMATION information{};
    information.ThreadId = thread;
    information.ExceptionPointers = exceptionPointers;
    information.ClientPointers = TRUE;
    const BOOL written = MiniDumpWriteDump(GetCurrentProcess(), GetCurrentProcessId(), file,
                                           MiniDumpNormal, &information, nullptr, nullptr);
    const DWORD error = GetLastError();
    CloseHandle(file);
    if (written)
        setOutcome("Dump file created successfully at:");
    else
        std::snprintf(g_outcome.data(), g_outcome.size(), "Failed to write dump file:%lu", error);
}

/// What the threads of a crash wait for. The dump and the log lines have a thread each, because the
/// crashed one may have no stack left and may hold the lock of the logger.
struct CrashEvents {
    HANDLE crashed = nullptr;
    HANDLE announced = nullptr; // in the log
    HANDLE mayWrite = nullptr;
    HANDLE written = nullptr; // with g_outcome
    HANDLE logged = nullptr;
};
CrashEvents g_events;

struct Crash {
    DWORD thread = 0;
    EXCEPTION_POINTERS* exceptionPointers = nullptr;
};
Crash g_crash;

bool waitFor(HANDLE event, DWORD patienceMs)
{
    return WaitForSingleObject(event, patienceMs) == WAIT_OBJECT_0;
}

void writeDumpOnRequest()
{
    WaitForSingleObject(g_events.mayWrite, INFINITE);
    writeDump(g_crash.thread, g_crash.exceptionPointers);
    SetEvent(g_events.written);
}

void logOnCrash(platform::CrashLine writeLine)
{
    WaitForSingleObject(g_events.crashed, INFINITE);
    writeLine("Creating dump file...");
    SetEvent(g_events.announced);
    writeLine(waitFor(g_events.written, DumpPatienceMs) ? g_outcome.data() : StuckOutcome);
    SetEvent(g_events.logged);
}

// Only the first crash is dumped; later ones are probably consequences of it. The log line comes
// before the dump, which stops all threads: one that is stopped in the logger could hold a lock
// that the dump needs.
LONG GenerateDump(EXCEPTION_POINTERS* exceptionPointers)
{
    DWORD reporter = 0;
    const DWORD thread = GetCurrentThreadId();
    if (g_reporter.compare_exchange_strong(reporter, thread)) {
        g_exitCode = exceptionPointers->ExceptionRecord->ExceptionCode;
        g_crash = {thread, exceptionPointers};
        SetEvent(g_events.crashed);
        waitFor(g_events.announced, LogPatienceMs);
        SetEvent(g_events.mayWrite);
    } else if (reporter == thread) { // the abort() after a reported crash
        return EXCEPTION_EXECUTE_HANDLER;
    }
    waitFor(g_events.written, DumpPatienceMs);
    waitFor(g_events.logged, LogPatienceMs);
    FlsSetValue(g_endSlot, &g_exitCode); // last, because it may need memory from the heap
    return EXCEPTION_EXECUTE_HANDLER;
}

int signalOf(DWORD exceptionCode)
{
    switch (exceptionCode) {
    case EXCEPTION_ACCESS_VIOLATION:
        return SIGSEGV;
    case EXCEPTION_ILLEGAL_INSTRUCTION:
    case EXCEPTION_PRIV_INSTRUCTION:
        return SIGILL;
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
    case EXCEPTION_FLT_DIVIDE_BY_ZERO:
    case EXCEPTION_FLT_INVALID_OPERATION:
    case EXCEPTION_FLT_OVERFLOW:
        return SIGFPE;
    default:
        return 0;
    }
}

void passOn(int signal, SignalHandler previous)
{
    if (previous != SIG_DFL && previous != SIG_IGN && previous != SIG_ERR)
        previous(signal);
}

LONG WINAPI onUnhandledException(EXCEPTION_POINTERS* exceptionPointers)
{
    const LONG result = GenerateDump(exceptionPointers);
    const int signal = signalOf(exceptionPointers->ExceptionRecord->ExceptionCode);
    for (std::size_t i = 0; i < Signals.size(); ++i) {
        if (Signals[i] == signal)
            passOn(signal, g_previous[i]);
    }
    return result;
}

// Dumps the calling thread, for failures that are no exceptions of the system.
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

// With MinGW an uncaught C++ exception ends here and does not reach the filter.
[[noreturn]] void onTerminate()
{
    dumpHere(UncaughtException);
    if (g_previousTerminate)
        g_previousTerminate();
    std::abort();
}

void onAbort(int signal)
{
    dumpHere(Aborted);
    passOn(signal, g_previousAbort);
}

// An earlier handler may end the process through the C library, which makes the exit code 3. The
// system calls this at the end of the thread or of the process, if the thread has a value.
void NTAPI endWithCodeOfCrash(void* value)
{
    if (value)
        TerminateProcess(GetCurrentProcess(), g_exitCode);
}

// Detached: the threads wait until a crash and use only objects that are never destroyed.
void startReporters(platform::CrashLine writeLine)
{
    for (HANDLE* const event : {&g_events.crashed, &g_events.announced, &g_events.mayWrite,
                                &g_events.written, &g_events.logged})
        *event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::thread(writeDumpOnRequest).detach();
    std::thread(logOnCrash, writeLine).detach();
}

} // namespace

namespace platform
{

void installCrashHandler(CrashLine writeLine)
{
    storeProgramName();
    startReporters(writeLine);
    g_endSlot = FlsAlloc(endWithCodeOfCrash);
    reserveStackForCrash();
    SetUnhandledExceptionFilter(onUnhandledException);
    for (std::size_t i = 0; i < Signals.size(); ++i)
        g_previous[i] = std::signal(Signals[i], SIG_DFL);
    g_previousAbort = std::signal(SIGABRT, onAbort);
    g_previousTerminate = std::set_terminate(onTerminate);
}

} // namespace platform
