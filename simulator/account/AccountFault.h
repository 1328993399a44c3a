#pragma once

#include <QByteArray>
#include <QObject>

class QTcpSocket;

/// The ways the simulated account service can misbehave, and the jobs it can do so in.
namespace AccountFault
{
Q_NAMESPACE

enum class Endpoint { Login, Register, ForgotPassword, ProfileUpdate, ProfileRead };
Q_ENUM_NS(Endpoint)

enum class Kind {
    None,           ///< behave
    Canned,         ///< a 200 reply with a body given by the caller
    Stall,          ///< take the request and say nothing
    StallInBody,    ///< stop half-way through the body
    CloseEarly,     ///< hang up without a word
    CloseInHead,    ///< hang up half-way through the head
    Empty,          ///< 200 with an empty body
    ErrorStatus,    ///< 503 with an empty body
    NotHttp,        ///< bytes that are not HTTP
    Garbage,        ///< a body that is not JSON
    Array,          ///< a JSON array
    ErrorObject,    ///< 500 with a refusal that carries a message
    WrongTypes,     ///< success, every field of another type than it should have
    WrongSuccess,   ///< "success" is a text
    WrongMessage,   ///< a refusal whose "message" is a number
    SlowDrip,       ///< a good reply, one byte at a time, too slow to ever end
    LargeBody,      ///< a good reply of 5 MB
    EndlessBody,    ///< a body that does not end
    CompressedBomb, ///< 64 kB that unpack to 64 MB
    ShortBody,      ///< a truncated body, shorter than announced
    RedirectAway,   ///< sends the client to another host
};
Q_ENUM_NS(Kind)

/// Answers the request that `socket` brought with a fault, and hangs up when there is an end to it.
/// @param canned  the body of Kind::Canned.
void reply(QTcpSocket* socket, Kind kind, const QByteArray& canned);

} // namespace AccountFault
