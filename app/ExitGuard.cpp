#include "app/ExitGuard.h"

#include <cstdlib>
#include <mutex>
#include <utility>

namespace
{

// Constructed before the handler is registered, and therefore destroyed after it has run.
std::mutex g_mutex;
const std::function<void()>* g_work = nullptr;

void onExit()
{
    const std::scoped_lock lock(g_mutex);
    if (!g_work)
        return;
    (*g_work)();
    std::_Exit(EXIT_FAILURE);
}

} // namespace

ExitGuard::ExitGuard(std::function<void()> work)
    : m_work(std::move(work))
{
    const std::scoped_lock lock(g_mutex);
    g_work = &m_work;
    std::atexit(onExit);
}

void ExitGuard::leaveNow()
{
    onExit();
}

ExitGuard::~ExitGuard()
{
    const std::scoped_lock lock(g_mutex);
    g_work = nullptr;
}
