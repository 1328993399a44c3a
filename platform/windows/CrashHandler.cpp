#include "platform/CrashHandler.h"

#include "platform/windows/StackReserve.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>

#include <qt_windows.h>

#include <dbghelp.h>
#include <io.h>

#include <exception>

using namespace Qt::StringLiterals;

namespace
{

constexpr DWORD kUncaughtException = 0xE0564F52; // in the range left to applications

platform::CrashLine g_writeLine = nullptr;

void writeLine(const QString& text)
{
    g_writeLine(text.toUtf8().constData());
}

QString dumpFileName()
{
    return u".\\%1-%2-%3-%4.dmp"_s.arg(QCoreApplication::applicationName(),
                                       QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss"_s),
                                       QString::number(QCoreApplication::applicationPid()),
                                       QString::number(GetCurrentThreadId()));
}

LONG GenerateDump(EXCEPTION_POINTERS* exceptionPointers)
{
    g_writeLine("Creating dump file...");
    QFile file(dumpFileName());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        writeLine("Failed to create dump file:"_L1 + file.fileName());
        return EXCEPTION_EXECUTE_HANDLER;
    }

    MINIDUMP_EXCEPTION_INFORMATION information{};
    information.ThreadId = GetCurrentThreadId();
    information.ExceptionPointers = exceptionPointers;
    information.ClientPointers = TRUE;
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()));
    const BOOL written = MiniDumpWriteDump(GetCurrentProcess(), GetCurrentProcessId(), handle,
                                           MiniDumpNormal, &information, nullptr, nullptr);
    const DWORD error = GetLastError();
    file.close();
    if (written)
        writeLine("Dump file created successfully at:"_L1 + file.fileName());
    else
        writeLine("Failed to write dump file:"_L1 + QString::number(error));
    return EXCEPTION_EXECUTE_HANDLER;
}

LONG WINAPI onUnhandledException(EXCEPTION_POINTERS* exceptionPointers)
{
    return GenerateDump(exceptionPointers);
}

// With MinGW an uncaught C++ exception ends in abort(), which the filter never sees.
[[noreturn]] void onTerminate()
{
    RaiseException(kUncaughtException, EXCEPTION_NONCONTINUABLE, 0, nullptr);
    std::abort();
}

} // namespace

namespace platform
{

void installCrashHandler(CrashLine writeLine)
{
    g_writeLine = writeLine;
    reserveStackForCrash();
    SetUnhandledExceptionFilter(onUnhandledException);
    std::set_terminate(onTerminate);
}

} // namespace platform
