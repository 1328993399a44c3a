#pragma once

#include <QByteArray>
#include <QObject>

class QTcpSocket;

/// The ways in which the endpoints of the simulated account service can misbehave.
namespace AccountFault
{
Q_NAMESPACE

enum class Endpoint { Login, Register, ForgotPassword, ProfileUpdate, ProfileRead };
Q_ENUM_NS(Endpoint)

enum class Kind {
    None,           ///< the endpoint works
    Stall,          ///< no reply, the connection stays open
    StallInBody,    ///< half of the body, the connection stays open
    CloseEarly,     ///< the connection closes without a reply
    CloseInHead,    ///< the connection closes half-way through the head
    Empty,          ///< 200 with an empty body
    ErrorStatus,    ///< 503 with an empty body
    NotHttp,        ///< bytes that are not HTTP
    Garbage,        ///< a body that is not JSON
    Array,          ///< a JSON array
    ErrorObject,    ///< 500 with a failure object that carries a message
    WrongTypes,     ///< a success in which every field has the wrong type
    WrongSuccess,   ///< "success" is a string
    WrongMessage,   ///< a failure whose "message" is a number
    SlowDrip,       ///< a valid reply sent byte by byte, which takes hours
    LargeBody,      ///< a valid reply of 5 MB
    EndlessBody,    ///< a body without an end
    CompressedBomb, ///< 64 kB that expand to 64 MB
    ShortBody,      ///< a truncated body, shorter than Content-Length
    RedirectAway,   ///< a redirect to another host
    Canned,         ///< a 200 reply with a body given by the caller
};
Q_ENUM_NS(Kind)

/// Sends a JSON reply and closes the connection.
/// @param status  code and, optionally, reason phrase of the status line
void sendJson(QTcpSocket* socket, const QByteArray& body, const QByteArray& status = "200 OK");

/// Sends a faulty reply. Closes the connection unless the fault is to keep it open.
/// @param canned  the body for Kind::Canned
void reply(QTcpSocket* socket, Kind kind, const QByteArray& canned);

} // namespace AccountFault
