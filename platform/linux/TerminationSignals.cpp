#include "platform/TerminationSignals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <utility>

#include <sys/eventfd.h>
#include <unistd.h>

namespace
{

constexpr std::array Signals{SIGTERM, SIGINT, SIGHUP};

// Never closed, because a handler on another thread may still write to it.
int wakeUp()
{
    static const int s_fd = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    return s_fd;
}

volatile sig_atomic_t g_wakeUp = -1;

void onSignal(int)
{
    const int savedError = errno;
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = ::write(g_wakeUp, &one, sizeof(one));
    errno = savedError;
}

} // namespace

namespace platform
{

class TerminationSignals::Private
{
public:
    explicit Private(std::function<void()> callback)
        : requested(std::move(callback))
        , notifier(wakeUp(), QSocketNotifier::Read)
    {
        QObject::connect(&notifier, &QSocketNotifier::activated, &notifier, [this] {
            std::uint64_t count = 0;
            [[maybe_unused]] const auto length = ::read(wakeUp(), &count, sizeof(count));
            requested();
        });
        g_wakeUp = wakeUp();
        struct sigaction action = {};
        action.sa_handler = onSignal;
        action.sa_flags = SA_RESTART;
        sigemptyset(&action.sa_mask);
        for (std::size_t i = 0; i < Signals.size(); ++i) {
            sigaction(Signals[i], nullptr, &previous[i]);
            if (previous[i].sa_handler != SIG_IGN)
                sigaction(Signals[i], &action, nullptr);
        }
    }

    ~Private()
    {
        for (std::size_t i = 0; i < Signals.size(); ++i)
            sigaction(Signals[i], &previous[i], nullptr);
    }

    Private(const Private&) = delete;
    Private& operator=(const Private&) = delete;

    std::function<void()> requested;
    QSocketNotifier notifier;
    std::array<struct sigaction, Signals.size()> previous{};
};

TerminationSignals::TerminationSignals(std::function<void()> requested)
    : m_private(std::make_unique<Private>(std::move(requested)))
{
}

TerminationSignals::~TerminationSignals() = default;

} // namespace platform
