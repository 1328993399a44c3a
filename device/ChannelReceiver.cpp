#include "device/ChannelReceiver.h"

#include "device/MessageChannel.h"
#include "logging/Log.h"

namespace
{

constexpr auto Function = "DeviceControl::DealChannelMsg";

} // namespace

ChannelReceiver::ChannelReceiver(MessageChannel& channel, DisplayReports& display,
                                 CameraReports& camera)
    : m_channel(channel)
    , m_parser(display, camera)
    , m_flood(Function)
{
}

void ChannelReceiver::handle(int id, const std::string& msg)
{
    const bool isLogged = m_flood.admits();
    if (isLogged)
        Log::info(Function) << "recv :" << msg;
    auto reply = m_parser.PraseJson(msg);
    if (!reply)
        return;
    if (isLogged)
        Log::info(Function) << "reply:" << *reply;
    m_channel.push({static_cast<ChannelCommand>(id), std::move(*reply)});
}
