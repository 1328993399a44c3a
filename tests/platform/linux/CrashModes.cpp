#include "CrashModes.h"

#include "platform/FrameChannel.h"

#include <csignal>
#include <cstdio>

#include <sys/mman.h>
#include <unistd.h>

namespace
{

void onEarlierHandler(int signal)
{
    constexpr char Text[] = "earlier handler\n";
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, Text, sizeof(Text) - 1);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

} // namespace

// Not a null pointer, because some sanitizers map memory at that address.
void touchForbiddenPage()
{
    void* const page = ::mmap(nullptr, 4096, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    *static_cast<volatile char*>(page) = 1;
}

void touchBeyondEnd()
{
    const auto channel =
        platform::makeFrameChannel("none", "none", 1); // its handler must pass the signal on
    std::FILE* const empty = std::tmpfile();
    void* const page = ::mmap(nullptr, 4096, PROT_READ, MAP_SHARED, ::fileno(empty), 0);
    [[maybe_unused]] const char byte = *static_cast<const volatile char*>(page);
}

void installEarlierHandler()
{
    for (const int signal : {SIGSEGV, SIGBUS, SIGABRT})
        std::signal(signal, onEarlierHandler);
}
