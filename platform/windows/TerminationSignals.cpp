#include "platform/TerminationSignals.h"

#include <QObject>

#include <qt_windows.h>

#include <mutex>
#include <utility>

namespace
{

constexpr DWORD EndPatienceMs = 5'000; // the system waits no longer than this

// The console calls its handler on a thread of its own, possibly while the object is destroyed.
std::mutex g_mutex; // guards the two pointers
QObject* g_receiver = nullptr;
const std::function<void()>* g_requested = nullptr;

BOOL WINAPI onConsoleEvent(DWORD event)
{
    {
        const std::scoped_lock lock(g_mutex);
        if (!g_receiver)
            return FALSE;
        QMetaObject::invokeMethod(g_receiver, *g_requested, Qt::QueuedConnection);
    }
    // The system ends the process as soon as the handler of these events returns. The process ends
    // by itself when the main thread has finished.
    if (event == CTRL_CLOSE_EVENT || event == CTRL_LOGOFF_EVENT || event == CTRL_SHUTDOWN_EVENT)
        Sleep(EndPatienceMs);
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
            const std::scoped_lock lock(g_mutex);
            g_receiver = &receiver;
            g_requested = &requested;
        }
        SetConsoleCtrlHandler(onConsoleEvent, TRUE);
    }

    ~Private()
    {
        SetConsoleCtrlHandler(onConsoleEvent, FALSE);
        const std::scoped_lock lock(g_mutex);
        g_receiver = nullptr;
        g_requested = nullptr;
    }

    Private(const Private&) = delete;
    Private& operator=(const Private&) = delete;

    std::function<void()> requested;
    QObject receiver;
};

TerminationSignals::TerminationSignals(std::function<void()> requested)
    : m_private(std::make_unique<Private>(std::move(requested)))
{
}

TerminationSignals::~TerminationSignals() = default;

} // namespace platform
