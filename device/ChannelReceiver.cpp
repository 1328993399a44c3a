#include "device/ChannelReceiver.h"

#include "device/MessageChannel.h"
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
    Log::info(Function) << "recv :" << msg;
    auto reply = m_parser.PraseJson(msg);
    if (!reply)
        return;
    Log::info(Function) << "reply:" << *reply;
    m_channel.push({static_cast<ChannelCommand>(id), std::move(*reply)});
}
