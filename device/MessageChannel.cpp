#include "device/MessageChannel.h"

#include "logging/Log.h"

void MessageChannel::send(const char* function, const ChannelMessage& message)
{
    Log::info(function) << "send to channel:" << message.text;
    push(message);
}
