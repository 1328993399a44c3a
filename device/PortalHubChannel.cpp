#include "device/PortalHubChannel.h"

#include <PortalHub.h>

PortalHubChannel::~PortalHubChannel()
{
    close();
}

void PortalHubChannel::open(ChannelGate::Callback callback)
{
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
