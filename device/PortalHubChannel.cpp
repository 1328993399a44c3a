#include "device/PortalHubChannel.h"

#include "logging/Log.h"
#include "persistence/FileInfo.h"
#include "platform/LoadedLibrary.h"

#include <PortalHub.h>

namespace
{

/// Another library than the one of the installation can take its place at run time.
void logLibrary()
{
    const QString path =
        platform::loadedLibrary(reinterpret_cast<const void*>(&PortalHub::Instance));
    const QString version = readFileVersion(path);
    Log::info("PortalHubChannel::open")
        << "channel library:" << path
        << ", version:" << (version.isEmpty() ? QStringLiteral("unknown") : version);
}

} // namespace

PortalHubChannel::~PortalHubChannel()
{
    close();
}

void PortalHubChannel::open(ChannelGate::Callback callback)
{
    logLibrary();
    m_gate = std::make_shared<ChannelGate>(std::move(callback));
    PortalHub::Instance().InitChannel(
        [gate = m_gate](int id, const std::string& msg) { return gate->pass(id, msg); });
}

void PortalHubChannel::close()
{
    if (m_gate)
        m_gate->close();
}

void PortalHubChannel::push(const ChannelMessage& message)
{
    PortalHub::Instance().PushMsg(static_cast<int>(message.command), message.text);
}
