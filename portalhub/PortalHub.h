#pragma once

#include <functional>
#include <string>

#include <QtGlobal>

#ifdef PORTALHUB_BUILD
#define PORTALHUB_EXPORT Q_DECL_EXPORT
#else
#define PORTALHUB_EXPORT Q_DECL_IMPORT
#endif

namespace PortalHubApi
{

/// Result of a call. Callers may ignore it; a failed call is not repeated.
enum class ErrorCode : int {
    Success = 0,
    NotConnected = 1,   ///< no connection; the message was dropped
    BufferFull = 2,     ///< the peer does not read; the message was dropped
    MessageTooLong = 3, ///< the message exceeds the limit of the channel and was dropped
    NotAvailable = 4,   ///< no application object, or it is being destroyed; nothing was registered
};

} // namespace PortalHubApi

/// The channel to the display: small JSON messages in both directions.
///
/// This is the interface of the display maker's library. Only the three functions below cross the
/// library boundary, so that another library which exports them can replace this one at run time.
/// They may be called from any thread and at any time, also from the callback and while the program
/// ends. None of them waits for the peer.
class PortalHub
{
public:
    PORTALHUB_EXPORT static PortalHub& Instance();

    PortalHub(const PortalHub&) = delete;
    PortalHub& operator=(const PortalHub&) = delete;

    /// Registers the receive callback and opens the channel. The callback receives the id and the
    /// UTF-8 JSON text of one message at a time, on a thread of the library. Its result is ignored.
    /// Another call replaces the callback; an empty callback ends delivery. The old callback may
    /// still be running when this function returns.
    PORTALHUB_EXPORT PortalHubApi::ErrorCode
    InitChannel(std::function<int(int, const std::string&)> callback);

    /// Sends one message; @p id is its "cmd". Line breaks in @p msg are sent as blanks. Without a
    /// connection the message is dropped.
    PORTALHUB_EXPORT PortalHubApi::ErrorCode PushMsg(int id, const std::string& msg);

private:
    PortalHub() = default;
};
