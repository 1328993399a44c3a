#include "CrashModes.h"

#include <csignal>
#include <initializer_list>

#include <io.h>

namespace
{

void onEarlierHandler(int signal)
{
    constexpr char Text[] = "earlier handler\n";
    _write(2, Text, sizeof(Text) - 1);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

} // namespace

void touchForbiddenPage()
{
    volatile char* volatile nothing = nullptr;
    *nothing = 1;
}

void touchBeyondEnd()
{
}

void installEarlierHandler()
{
    for (const int signal : {SIGSEGV, SIGABRT})
        std::signal(signal, onEarlierHandler);
}
