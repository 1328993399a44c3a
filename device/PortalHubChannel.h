#pragma once

#include "device/ChannelGate.h"
#include "device/MessageChannel.h"

#include <memory>

/// The display's channel through the maker's library.
class PortalHubChannel : public MessageChannel
{
public:
    PortalHubChannel() = default;
    /// Closes the channel. The library stays loaded.
    ~PortalHubChannel() override;

    /// Registers the receiver of messages. The library calls it on a thread of its own. Once.
    void open(ChannelGate::Callback callback);
    /// No message is delivered after this returns.
    void close();

    void push(const ChannelMessage& message) override;

private:
    // Shared with the callback, which the library keeps until the process ends.
    std::shared_ptr<ChannelGate> m_gate;
};
