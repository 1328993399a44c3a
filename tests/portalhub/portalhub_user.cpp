// Uses the channel library in the way that the argument names. tst_PortalHub runs it many times.
// Exits with 0 if everything worked.

#include "PortalHub.h"

#include <QCoreApplication>
#include <QTimer>

#include <atomic>
#include <cstdlib>
#include <cstring>

using PortalHubApi::ErrorCode;

namespace
{

std::atomic_int g_received = 0;
bool g_exitInside = false;

int onMessage(int id, const std::string& text)
{
    ++g_received;
    PortalHub::Instance().PushMsg(id, text);
    return 0;
}

// Runs an event loop until a message arrives.
int runApplication(int argc, char* argv[])
{
    const QCoreApplication app(argc, argv);
    if (PortalHub::Instance().InitChannel(onMessage) != ErrorCode::Success)
        return 1;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &app, [] {
        if (g_received == 0)
            return;
        if (g_exitInside)
            std::exit(0); // NOLINT(concurrency-mt-unsafe): the case under test
        QCoreApplication::quit();
    });
    poll.start(1);
    return QCoreApplication::exec();
}

// Uses the library after the static objects of the library are destroyed.
struct LateUser {
    ~LateUser()
    {
        PortalHub::Instance().PushMsg(1, "too late");
        PortalHub::Instance().InitChannel(onMessage);
        PortalHub::Instance().PushMsg(1, "much too late");
    }
};

} // namespace

int main(int argc, char* argv[])
{
    static const LateUser s_lateUser;
    if (PortalHub::Instance().InitChannel(onMessage) != ErrorCode::NotAvailable)
        return 1; // there is no application object yet
    g_exitInside = argc > 1 && std::strcmp(argv[1], "exit-while-running") == 0;
    return runApplication(argc, argv);
}
