#include "simulator/account/AccountFault.h"

#include <QTcpSocket>
#include <QTimer>

#include <chrono>
#include <functional>
#include <utility>

using namespace std::chrono_literals;

namespace
{

constexpr auto DripInterval = 20ms;
constexpr qint64 StreamAhead = qint64{256} * 1024; // unsent bytes in the socket of an endless reply

constexpr auto WrongTypes = R"({
    "success": true, "message": [], "userId": {}, "firstName": 1, "lastName": [], "email": {},
    "company": null, "title": true, "picture": 5,
    "data": {
        "token": 7, "firstName": [], "lastName": 2, "company": {}, "title": null, "picture": {},
        "user": {"userId": 8, "email": [], "firstName": {}, "lastName": null, "company": true,
                 "title": 9, "picture": []}
    }
})";

QByteArray head(const QByteArray& status, qsizetype bodySize, const QByteArray& more = {})
{
    return "HTTP/1.1 " + status + "\r\nContent-Type: application/json\r\n" + more +
           "Content-Length: " + QByteArray::number(bodySize) + "\r\nConnection: close\r\n\r\n";
}

// The client takes this for a success at every endpoint.
QByteArray success(qsizetype paddingSize)
{
    return R"({"success":true,"userId":"1","data":{},"padding":")" + QByteArray(paddingSize, ' ') +
           R"("})";
}

QByteArray compressedBomb()
{
    constexpr qsizetype UnpackedSize = qsizetype{64} * 1024 * 1024;
    const QByteArray packed =
        qCompress(QByteArray(UnpackedSize, ' ')).sliced(4); // without the prefix that Qt adds
    return head("200 OK", packed.size(), "Content-Encoding: deflate\r\n") + packed;
}

void send(QTcpSocket* socket, const QByteArray& bytes)
{
    socket->write(bytes);
    socket->disconnectFromHost();
}

void stream(QTcpSocket* socket, const QByteArray& start, const QByteArray& chunk)
{
    const auto refill = [socket, chunk] {
        while (socket->state() == QAbstractSocket::ConnectedState &&
               socket->bytesToWrite() < StreamAhead)
            socket->write(chunk);
    };
    QObject::connect(socket, &QTcpSocket::bytesWritten, socket, refill);
    socket->write(start);
}

void drip(QTcpSocket* socket)
{
    const QByteArray body = success(qsizetype{1024} * 1024);
    socket->write(head("200 OK", body.size()));
    auto* timer = new QTimer(socket);
    QObject::connect(timer, &QTimer::timeout, socket,
                     [socket, body, sent = qsizetype{0}]() mutable {
                         if (sent < body.size())
                             socket->write(body.sliced(sent++, 1));
                     });
    timer->start(DripInterval);
}

} // namespace

void AccountFault::sendJson(QTcpSocket* socket, const QByteArray& body, const QByteArray& status)
{
    send(socket, head(status, body.size()) + body);
}

void AccountFault::reply(QTcpSocket* socket, Kind kind, const QByteArray& canned)
{
    switch (kind) {
    case Kind::None:
    case Kind::Stall:
        return;
    case Kind::StallInBody:
        socket->write(head("200 OK", 1000) + R"({"success": true, )");
        return;
    case Kind::CloseEarly:
        socket->disconnectFromHost();
        return;
    case Kind::CloseInHead:
        return send(socket, "HTTP/1.1 200 OK\r\nContent-Ty");
    case Kind::Empty:
        return sendJson(socket, {});
    case Kind::ErrorStatus:
        return sendJson(socket, {}, "503 Service Unavailable");
    case Kind::NotHttp:
        return send(socket, QByteArray("\x16\x03\x01\x00garbage\n\n", 13));
    case Kind::Garbage:
        return sendJson(socket, "<html>\xff\xfe not what was asked for</html>");
    case Kind::Array:
        return sendJson(socket, R"([{"success": true}])");
    case Kind::ErrorObject:
        return sendJson(socket, R"({"success": false, "message": "Closed for maintenance."})",
                        "500 Internal Server Error");
    case Kind::WrongTypes:
        return sendJson(socket, WrongTypes);
    case Kind::WrongSuccess:
        return sendJson(socket, R"({"success": "true", "userId": "1"})");
    case Kind::WrongMessage:
        return sendJson(socket, R"({"success": false, "message": 17})");
    case Kind::SlowDrip:
        return drip(socket);
    case Kind::LargeBody:
        return sendJson(socket, success(qsizetype{5} * 1024 * 1024));
    case Kind::EndlessBody:
        return stream(socket,
                      "HTTP/1.1 200 OK\r\nContent-Type: application/json\r\n\r\n{\"padding\":\"",
                      QByteArray(qsizetype{64} * 1024, ' '));
    case Kind::CompressedBomb:
        return send(socket, compressedBomb());
    case Kind::ShortBody:
        return send(socket, head("200 OK", 1000) + R"({"success": true, "user)");
    case Kind::RedirectAway:
        return send(socket, head("307 Temporary Redirect", 0,
                                 "Location: http://elsewhere.invalid/nc/auth/login\r\n"));
    case Kind::Canned:
        return sendJson(socket, canned);
    }
}
