#include "portalhub/PortalHub.h"

#include "portalhub/ChannelClient.h"
#include "portalhub/SocketName.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <atomic>
#include <chrono>
#include <utility>

namespace
{

// A callback that waits for the thread which ends the program must not hold the end up.
constexpr std::chrono::milliseconds EndTimeout = std::chrono::seconds(1);

std::atomic_bool s_processEnding = false;

channel::ChannelClient& client()
{
    // Never destroyed: static objects of the program may still push while the process ends.
    static auto* const client = new channel::ChannelClient(channel::socketName());
    return *client;
}

// Runs while the application object is being destroyed.
void endWithApplication()
{
    client().stop(QDeadlineTimer(EndTimeout));
}

// The thread must be gone before the static objects of Qt are, also where the process exits without
// destroying its application object.
struct ProcessEnd {
    ProcessEnd() = default;
    ProcessEnd(const ProcessEnd&) = delete;
    ProcessEnd& operator=(const ProcessEnd&) = delete;
    ~ProcessEnd()
    {
        s_processEnding = true;
        qRemovePostRoutine(endWithApplication);
        client().stop(QDeadlineTimer(EndTimeout));
    }
};

} // namespace

PortalHub& PortalHub::Instance()
{
    static PortalHub hub;
    return hub;
}

PortalHubApi::ErrorCode PortalHub::InitChannel(std::function<int(int, const std::string&)> callback)
{
    // The thread's event loop cannot run without one.
    if (!QCoreApplication::instance() || s_processEnding)
        return PortalHubApi::ErrorCode::NotAvailable;
    const auto result = client().initChannel(std::move(callback));
    // An application object takes the routines along when it goes; another one needs it anew.
    qRemovePostRoutine(endWithApplication);
    qAddPostRoutine(endWithApplication);
    static const ProcessEnd processEnd;
    return result;
}

PortalHubApi::ErrorCode PortalHub::PushMsg(int id, const std::string& msg)
{
    return client().pushMsg(id, msg);
}
