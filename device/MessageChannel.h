#pragma once

#include <string>

/// Sends messages to the display. Any thread; nothing is reported back, and what is sent while no
/// display is connected is lost.
class MessageChannel
{
public:
    virtual ~MessageChannel() = default;

    /// @param id    the message's "cmd"
    /// @param text  one JSON object as UTF-8
    virtual void push(int id, const std::string& text) = 0;
};
