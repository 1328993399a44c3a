#pragma once

#include "device/ChannelMessage.h"

/// Sends messages to the display. Any thread. Failures are not reported, and a message sent while
/// no display is connected is lost.
class MessageChannel
{
public:
    virtual ~MessageChannel() = default;

    virtual void push(const ChannelMessage& message) = 0;

    /// Logs the text under the name of the function that sends it, then pushes the message.
    void send(const char* function, const ChannelMessage& message);
};
