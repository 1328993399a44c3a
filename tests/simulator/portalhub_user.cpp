// A program that uses the channel library in the way its argument names, to be run many times by
// PortalHubTest. It exits with 0 when all went as it should.

#include "PortalHub.h"

#include <QCoreApplication>
#include <QTimer>

#include <atomic>
#include <cstdlib>
#include <cstring>

using PortalHubApi::ErrorCode;

namespace
{

std::atomic_int s_received = 0;
bool s_exitInside = false;

int onMessage(int id, const std::string& text)
{
    ++s_received;
    PortalHub::Instance().PushMsg(id, text);
    return 0;
}

// Runs an event loop until a message has come.
int runApplication(int argc, char* argv[])
{
    const QCoreApplication app(argc, argv);
    const int before = s_received;
    if (PortalHub::Instance().InitChannel(onMessage) != ErrorCode::Success)
        return 1;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &app, [before] {
        if (s_received == before)
            return;
        if (s_exitInside)
            std::exit(0); // NOLINT(concurrency-mt-unsafe): that is what is tried
        QCoreApplication::quit();
    });
    poll.start(1);
    return QCoreApplication::exec();
}

// Outlives the library's own static objects, and still uses it.
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
    static const LateUser lateUser;
    const char* mode = argc > 1 ? argv[1] : "";
    if (std::strcmp(mode, "application") == 0)
        return runApplication(argc, argv);
    if (std::strcmp(mode, "two-applications") == 0)
        return runApplication(argc, argv) + runApplication(argc, argv);
    if (std::strcmp(mode, "exit-while-running") == 0) {
        s_exitInside = true;
        return runApplication(argc, argv);
    }
    if (std::strcmp(mode, "no-application") == 0) {
        const bool refused =
            PortalHub::Instance().InitChannel(onMessage) == ErrorCode::NotAvailable &&
            PortalHub::Instance().PushMsg(1, "x") == ErrorCode::NotConnected;
        return refused ? 0 : 1;
    }
    return 2;
}
