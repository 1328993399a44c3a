#pragma once

namespace platform
{

/// Writes one line of the crash dump's story to the log, at error severity. It is called in a
/// process that is about to end.
using CrashLine = void (*)(const char* text);

/// From now on a crash of any thread leaves
/// `<application>-<yyyyMMdd-HHmmss>-<process>-<thread>.dmp` in the working directory: a minidump on
/// Windows, a readable report on Linux. What was installed before (the logger's own failure
/// handler) runs afterwards. Call once, early, from the main thread.
///
/// On Linux a thread whose stack overflows is reported only if it has called nameCurrentThread().
void installCrashHandler(CrashLine writeLine);

} // namespace platform
