#include "device/ChannelReceiver.h"

#include "device/MessageChannel.h"
#include "logging/Escaped.h"
#include "logging/Log.h"

ChannelReceiver::ChannelReceiver(MessageChannel& channel, DisplayReports& display,
                                 CameraReports& camera)
    : m_channel(channel)
    , m_parser(display, camera)
{
}

void ChannelReceiver::handle(int id, const std::string& msg)
{
    constexpr auto Function = "DeviceControl::DealChannelMsg";
    Log::info(Function) << "recv :" << Log::escaped(msg);
    auto reply = m_parser.PraseJson(msg);
    if (!reply)
        return;
    Log::info(Function) << "reply:" << Log::escaped(*reply);
    m_channel.push({static_cast<ChannelCommand>(id), std::move(*reply)});
}
