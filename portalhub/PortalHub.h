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

/// What a call came to. Callers may ignore it: nothing that failed is tried again.
enum class ErrorCode : int {
    Success = 0,
    NotConnected = 1,   ///< there is no connection; the message was dropped
    BufferFull = 2,     ///< the peer does not read; the message was dropped
    MessageTooLong = 3, ///< longer than the channel carries; the message was dropped
    NotAvailable = 4,   ///< no application object, or it is going; nothing was registered
};

} // namespace PortalHubApi

/// The channel to the display: small JSON messages in both directions.
///
/// This is the interface of the display maker's library. Exactly the three functions below cross
/// the library boundary, so that another library exporting them can take this one's place at run
/// time. All of them may be called from any thread and at any time, also from the callback and
/// while the program ends; none waits for the peer.
class PortalHub
{
public:
    PORTALHUB_EXPORT static PortalHub& Instance();

    PortalHub(const PortalHub&) = delete;
    PortalHub& operator=(const PortalHub&) = delete;

    /// Registers the receive callback and opens the channel. The callback gets a message's id and
    /// its UTF-8 JSON text, on a thread of the library, one message at a time; what it returns is
    /// not looked at. Calling again replaces the callback, an empty one ends delivery. A call that
    /// is under way in the old callback may still run on after this returns.
    PORTALHUB_EXPORT PortalHubApi::ErrorCode
    InitChannel(std::function<int(int, const std::string&)> callback);

    /// Sends one message; @p id is its "cmd". Line breaks in @p msg, which JSON allows only between
    /// its tokens, travel as blanks. What is pushed while there is no connection is dropped.
    PORTALHUB_EXPORT PortalHubApi::ErrorCode PushMsg(int id, const std::string& msg);

private:
    PortalHub() = default;
};
