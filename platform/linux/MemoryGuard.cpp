#include "platform/MemoryGuard.h"

#include "platform/linux/GuardedAccess.h"
#include "platform/linux/SignalChain.h"

#include <atomic>
#include <csetjmp>
#include <csignal>
#include <mutex>

#include <pthread.h>
#include <ucontext.h>

namespace
{

constinit thread_local sigjmp_buf* g_escape = nullptr;

struct sigaction g_previous;

void onBusError(int signal, siginfo_t* info, void* context)
{
    platform::leaveGuardedAccess(context);
    platform::passOn(signal, info, context, g_previous);
}

} // namespace

namespace platform
{

bool runGuarded(GuardedAccess access, void* context)
{
    sigjmp_buf escape;
    // Saving the signal mask here would cost a system call; the handler restores it instead.
    if (sigsetjmp(escape, 0) != 0) {
        g_escape = nullptr;
        return false;
    }
    g_escape = &escape;
    std::atomic_signal_fence(std::memory_order_seq_cst);
    access(context);
    std::atomic_signal_fence(std::memory_order_seq_cst);
    g_escape = nullptr;
    return true;
}

void installMemoryGuard()
{
    static std::once_flag s_once;
    std::call_once(s_once, [] {
        struct sigaction action = {};
        action.sa_sigaction = onBusError;
        action.sa_flags = SA_SIGINFO | SA_ONSTACK;
        sigemptyset(&action.sa_mask);
        sigaction(SIGBUS, &action, &g_previous);
    });
}

void leaveGuardedAccess(const void* context)
{
    if (!g_escape)
        return;
    const auto* const interrupted = static_cast<const ucontext_t*>(context);
    pthread_sigmask(SIG_SETMASK, &interrupted->uc_sigmask, nullptr);
    siglongjmp(*g_escape, 1);
}

} // namespace platform
