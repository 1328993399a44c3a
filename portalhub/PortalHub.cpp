#include "portalhub/PortalHub.h"

#include "portalhub/ChannelClient.h"
#include "portalhub/LastThread.h"
#include "portalhub/SocketName.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <atomic>
#include <chrono>
#include <utility>

namespace
{

// Limits the delay of the exit by a callback that waits for the thread on which the program ends.
constexpr std::chrono::milliseconds EndTimeout = std::chrono::seconds(1);

std::atomic_bool g_processEnding = false;

channel::ChannelClient& client()
{
    // Never destroyed, because static objects of the program may still push while the process ends.
    static auto* const s_client = new channel::ChannelClient(channel::socketName());
    return *s_client;
}

// Runs while the application object is being destroyed.
void endWithApplication()
{
    client().stop(QDeadlineTimer(EndTimeout));
}

// Ends the thread before the static objects of Qt are destroyed, also if the process exits without
// destroying its application object.
struct ProcessEnd {
    ProcessEnd() = default;
    ProcessEnd(const ProcessEnd&) = delete;
    ProcessEnd& operator=(const ProcessEnd&) = delete;
    ~ProcessEnd()
    {
        g_processEnding = true;
        if (channel::isLastThread())
            return;
        qRemovePostRoutine(endWithApplication);
        client().stop(QDeadlineTimer(EndTimeout));
    }
};

} // namespace

PortalHub& PortalHub::Instance()
{
    static PortalHub s_hub;
    return s_hub;
}

PortalHubApi::ErrorCode PortalHub::InitChannel(std::function<int(int, const std::string&)> callback)
{
    // The event loop of the thread needs an application object.
    if (!QCoreApplication::instance() || g_processEnding)
        return PortalHubApi::ErrorCode::NotAvailable;
    const auto result = client().initChannel(std::move(callback));
    // The routines are removed together with the application object, so a second one needs it
    // again.
    qRemovePostRoutine(endWithApplication);
    qAddPostRoutine(endWithApplication);
    static const ProcessEnd s_processEnd;
    return result;
}

PortalHubApi::ErrorCode PortalHub::PushMsg(int id, const std::string& msg)
{
    return client().pushMsg(id, msg);
}
