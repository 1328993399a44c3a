#pragma once

#include "device/DealChannelMsg.h"
#include "logging/FloodLimit.h"

#include <string>

class MessageChannel;

/// Handles the messages of the display: parses them, passes their content on, and sends the replies
/// they ask for. Any thread.
class ChannelReceiver
{
public:
    /// All have to outlive this object.
    ChannelReceiver(MessageChannel& channel, DisplayReports& display, CameraReports& camera);

    /// @param id   the id under which the message arrived; its reply is sent under the same one
    /// @param msg  one JSON object as UTF-8
    void handle(int id, const std::string& msg);

private:
    MessageChannel& m_channel;
    const DealChannelMsg m_parser;
    Log::FloodLimit m_flood; // of lines about messages and their replies
};
