#pragma once

namespace platform
{

/// Writes one log line about the crash dump, at error severity. Called in a dying process, on a
/// thread of the crash handler.
using CrashLine = void (*)(const char* text);

/// Installs handlers that write a crash dump when any thread crashes: a minidump on Windows, a
/// readable report on Linux, named `<application>-<yyyyMMdd-HHmmss>-<process>-<thread>.dmp` in the
/// working directory. Handlers that were installed before, such as the logger's, run afterwards.
/// Call it once, from the main thread, before other threads start.
///
/// On Linux a stack overflow is reported only for threads that have called nameCurrentThread().
void installCrashHandler(CrashLine writeLine);

} // namespace platform
