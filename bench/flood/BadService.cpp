#include "bench/flood/BadService.h"

#include <array>
#include <chrono>

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

constexpr int PollMs = 20;

bool waitFor(int socket, const std::stop_token& stop)
{
    pollfd event{socket, POLLIN, 0};
    while (!stop.stop_requested()) {
        if (::poll(&event, 1, PollMs) > 0)
            return true;
    }
    return false;
}

} // namespace

BadService::BadService(Reply reply)
    : m_socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::bind(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(m_socket, 8) != 0)
        qFatal("The account service cannot listen.");
    m_thread = std::jthread([this, reply](const std::stop_token& stop) { run(stop, reply); });
}

BadService::~BadService()
{
    m_thread.request_stop();
    m_thread.join();
    ::close(m_socket);
}

QString BadService::url() const
{
    sockaddr_in address{};
    socklen_t size = sizeof address;
    ::getsockname(m_socket, reinterpret_cast<sockaddr*>(&address), &size);
    return u"http://127.0.0.1:%1"_s.arg(ntohs(address.sin_port));
}

void BadService::run(const std::stop_token& stop, Reply reply)
{
    if (!waitFor(m_socket, stop))
        return;
    const int connection = ::accept(m_socket, nullptr, nullptr);
    std::array<char, 65536> request;
    if (waitFor(connection, stop))
        m_hasRequest = ::recv(connection, request.data(), request.size(), 0) > 0;
    while (!m_mayAnswer && !stop.stop_requested())
        std::this_thread::sleep_for(std::chrono::milliseconds(PollMs));

    const QByteArray block(1'000'000, 'a');
    bool isOpen = !stop.stop_requested();
    if (reply == Reply::LargeMessage) {
        isOpen =
            isOpen &&
            send(connection, "HTTP/1.1 200 OK\r\nContent-Type: application/json\r\n"
                             "Content-Length: 60000031\r\n\r\n{\"success\":false,\"message\":\"");
        for (int i = 0; i < 60 && isOpen && !stop.stop_requested(); ++i)
            isOpen = send(connection, block);
        isOpen = isOpen && send(connection, "\"}\n");
    } else {
        isOpen = isOpen && send(connection, "HTTP/1.1 200 OK\r\n");
        const QByteArray headers = QByteArray("X-Header: endless\r\n").repeated(1000);
        while (isOpen && !stop.stop_requested())
            isOpen = send(connection, headers);
    }
    m_isDone = true;
    ::close(connection);
}

/// False when the program has closed the connection.
bool BadService::send(int connection, const QByteArray& bytes)
{
    qsizetype done = 0;
    while (done < bytes.size()) {
        pollfd event{connection, POLLOUT, 0};
        if (::poll(&event, 1, PollMs) == 0) {
            if (m_thread.get_stop_token().stop_requested())
                return false;
            continue;
        }
        const auto sent = ::send(connection, bytes.constData() + done,
                                 std::size_t(bytes.size() - done), MSG_NOSIGNAL);
        if (sent <= 0)
            return false;
        done += sent;
        m_sent += sent;
    }
    return true;
}
