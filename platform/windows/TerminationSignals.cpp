#include "platform/TerminationSignals.h"

#include <QObject>

#include <qt_windows.h>

#include <mutex>
#include <utility>

namespace
{

constexpr DWORD kEndPatienceMs = 5'000; // the system itself waits no longer

// The console calls its handler on a thread of its own, also while the object goes away.
std::mutex g_mutex;
QObject* g_receiver = nullptr;
const std::function<void()>* g_requested = nullptr;

BOOL WINAPI onConsoleEvent(DWORD event)
{
    {
        const std::lock_guard lock(g_mutex);
        if (!g_receiver)
            return FALSE;
        QMetaObject::invokeMethod(g_receiver, *g_requested, Qt::QueuedConnection);
    }
    // Returning from these ends the process at once; it ends by itself when the main thread is
    // done.
    if (event == CTRL_CLOSE_EVENT || event == CTRL_LOGOFF_EVENT || event == CTRL_SHUTDOWN_EVENT)
        Sleep(kEndPatienceMs);
    return TRUE;
}

} // namespace

namespace platform
{

class TerminationSignals::Private
{
public:
    explicit Private(std::function<void()> callback)
        : requested(std::move(callback))
    {
        {
            const std::lock_guard lock(g_mutex);
            g_receiver = &receiver;
            g_requested = &requested;
        }
        SetConsoleCtrlHandler(onConsoleEvent, TRUE);
    }

    ~Private()
    {
        SetConsoleCtrlHandler(onConsoleEvent, FALSE);
        const std::lock_guard lock(g_mutex);
        g_receiver = nullptr;
        g_requested = nullptr;
    }

    Private(const Private&) = delete;
    Private& operator=(const Private&) = delete;

    std::function<void()> requested;
    QObject receiver;
};

TerminationSignals::TerminationSignals(std::function<void()> requested)
    : d(std::make_unique<Private>(std::move(requested)))
{
}

TerminationSignals::~TerminationSignals() = default;

} // namespace platform
