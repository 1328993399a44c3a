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

/// Writes the dump and the log lines on a thread of its own, because the crashed thread may have no
/// stack left and may hold the lock of the logger. For that reason the log lines follow the dump.
struct Reporter {
    platform::CrashLine writeLine = nullptr;
    HANDLE wake = nullptr;
    HANDLE written = nullptr;
    HANDLE logged = nullptr;
    DWORD thread = 0;
    EXCEPTION_POINTERS* exceptionPointers = nullptr;

    void run()
    {
        WaitForSingleObject(wake, INFINITE);
        writeDump(thread, exceptionPointers);
        SetEvent(written);
        writeLine("Creating dump file...");
        writeLine(g_outcome.data());
        SetEvent(logged);
    }
};
Reporter g_report;

// Only the first crash is dumped; later ones are probably consequences of it.
LONG GenerateDump(EXCEPTION_POINTERS* exceptionPointers)
{
    DWORD reporter = 0;
    const DWORD thread = GetCurrentThreadId();
    if (g_reporter.compare_exchange_strong(reporter, thread)) {
        g_exitCode = exceptionPointers->ExceptionRecord->ExceptionCode;
        g_report.thread = thread;
        g_report.exceptionPointers = exceptionPointers;
        SetEvent(g_report.wake);
    } else if (reporter == thread) { // the abort() after a reported crash
        return EXCEPTION_EXECUTE_HANDLER;
    }
    WaitForSingleObject(g_report.written, DumpPatienceMs);
    WaitForSingleObject(g_report.logged, LogPatienceMs);
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

void startReporter(platform::CrashLine writeLine)
{
    g_report.writeLine = writeLine;
    g_report.wake = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    g_report.written = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    g_report.logged = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    // Detached: it waits until a crash and uses only objects that are never destroyed.
    std::thread([] { g_report.run(); }).detach();
}

} // namespace

namespace platform
{

void installCrashHandler(CrashLine writeLine)
{
    storeProgramName();
    startReporter(writeLine);
    g_endSlot = FlsAlloc(endWithCodeOfCrash);
    reserveStackForCrash();
    SetUnhandledExceptionFilter(onUnhandledException);
    for (std::size_t i = 0; i < Signals.size(); ++i)
        g_previous[i] = std::signal(Signals[i], SIG_DFL);
    g_previousAbort = std::signal(SIGABRT, onAbort);
    g_previousTerminate = std::set_terminate(onTerminate);
}

} // namespace platform
