#include "device/UdpClient.h"

#include "logging/Log.h"

#include <QNetworkProxy>

#include <utility>

namespace
{

/// Datagrams are only logged, so the oldest ones are dropped in a flood to bound the memory used.
constexpr std::size_t MaximumQueued = 256; // each up to 64 KB
constexpr int DatagramsPerTurn = 64;

} // namespace

UdpClient::UdpClient(QObject* parent)
    : QObject(parent)
    , m_socket(new QUdpSocket(this))
{
    Log::info("UdpClient::UdpClient") << "UdpClient";
    m_socket->setProxy(
        QNetworkProxy::NoProxy); // binding would ask the system for one, which can take long
    connect(m_socket, &QUdpSocket::readyRead, this, &UdpClient::readPendingDatagrams);
}

UdpClient::~UdpClient()
{
    Log::info("UdpClient::~UdpClient") << "~UdpClient";
    stop();
    if (isBound())
        m_socket->close();
}

bool UdpClient::isBound() const
{
    return m_socket->state() == QAbstractSocket::BoundState;
}

bool UdpClient::bind(quint16 port)
{
    Log::info("UdpClient::bind") << "bound to port:" << port;
    if (isBound()) {
        Log::info("UdpClient::bind") << "Socket is already bound";
        return true;
    }
    if (!m_socket->bind(QHostAddress::LocalHost, port)) {
        Log::error("UdpClient::bind")
            << "Failed to bind to port:" << port << ", error:" << m_socket->errorString();
        return false;
    }
    return true;
}

void UdpClient::send(const char* data, int len, quint16 port, const QHostAddress& address)
{
    if (!isBound()) {
        Log::error("UdpClient::send") << "Cannot send data: socket not bound";
        return;
    }
    const qint64 sent = m_socket->writeDatagram(data, len, address, port);
    if (sent == -1) {
        Log::error("UdpClient::send") << "send data failed:" << m_socket->errorString();
        return;
    }
    if (sent != len) {
        Log::error("UdpClient::send") << "need send byte:" << len << " real send byte:" << sent;
        return;
    }
    Log::info("UdpClient::send") << "send to " << address.toString() << ":" << port << " ["
                                 << hexDump({data, len}) << "]";
}

bool UdpClient::waitForDatagram(QNetworkDatagram& out, std::chrono::milliseconds timeout)
{
    std::unique_lock lock(m_mutex);
    m_cond.wait_for(lock, timeout, [this] { return m_stop || !m_queue.empty(); });
    if (m_stop || m_queue.empty())
        return false;
    out = std::move(m_queue.front());
    m_queue.pop_front();
    if (m_queue.empty() && m_dropped > 0)
        Log::error("UdpClient::waitForDatagram")
            << "datagrams dropped in a flood:" << std::exchange(m_dropped, 0);
    return true;
}

void UdpClient::stop()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_stop = true;
    }
    m_cond.notify_all();
}

// A sender without pause must not hold up the event loop, so the number of datagrams is limited.
// The socket signals the remaining ones in the next turn. They are read nowhere else: Qt 6.4 does
// not signal again after it has found a socket empty that was reported as readable.
void UdpClient::readPendingDatagrams()
{
    for (int i = 0; i < DatagramsPerTurn && m_socket->hasPendingDatagrams(); ++i) {
        QNetworkDatagram datagram = m_socket->receiveDatagram();
        if (datagram.isValid())
            enqueue(std::move(datagram));
    }
}

void UdpClient::enqueue(QNetworkDatagram datagram)
{
    {
        const std::scoped_lock lock(m_mutex);
        if (m_queue.size() == MaximumQueued) {
            m_queue.pop_front();
            ++m_dropped;
        }
        m_queue.push_back(std::move(datagram));
    }
    m_cond.notify_one();
}

QByteArray UdpClient::hexDump(QByteArrayView bytes)
{
    QByteArray text = QByteArray(bytes.data(), bytes.size()).toHex(' ').toUpper();
    if (!text.isEmpty())
        text.append(' ');
    return text;
}
