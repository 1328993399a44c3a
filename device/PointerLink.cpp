#include "device/PointerLink.h"

#include "device/PointerDatagram.h"
#include "logging/FloodLimit.h"
#include "logging/Log.h"

#include <QHostAddress>
#include <QNetworkDatagram>

using namespace Qt::StringLiterals;

namespace
{

constexpr quint16 ReceivePort = 49175;
constexpr quint16 PointerPort = 49176;
constexpr std::chrono::milliseconds ReceiveWait =
    std::chrono::hours(1); // ended by a datagram or the stop
/// Silence after which a flood is over and its sum is logged.
constexpr std::chrono::milliseconds FloodEnd = std::chrono::seconds(1);

} // namespace

PointerLink::~PointerLink()
{
    end();
}

void PointerLink::bind()
{
    if (!m_udpClient.isBound())
        m_udpClient.bind(ReceivePort);
}

void PointerLink::start()
{
    m_worker = std::make_unique<Worker>(
        "udp receive", [this](const std::stop_token& stop) { logDatagrams(stop); });
}

void PointerLink::requestStop()
{
    if (!m_worker)
        return;
    m_worker->requestStop();
    m_udpClient.stop();
}

void PointerLink::end()
{
    requestStop();
    if (m_worker)
        m_worker->end();
}

void PointerLink::send(int type, float x, float y)
{
    Log::info("DeviceControl::getMouseEvent")
        << u"type: %1 (%2, %3)"_s.arg(type).arg(x, 0, 'f', 4).arg(y, 0, 'f', 4);
    const QByteArray datagram = pointerDatagram(static_cast<quint8>(type), x, y);
    m_udpClient.send(datagram.constData(), static_cast<int>(datagram.size()), PointerPort,
                     QHostAddress(QHostAddress::LocalHost));
}

void PointerLink::logDatagrams(const std::stop_token& stop)
{
    constexpr auto Function = "DeviceControl::RecvUdpDatagram";
    Log::info(Function) << "thread start";
    Log::FloodLimit flood(Function);
    bool isFlooded = false;
    while (!stop.stop_requested()) {
        QNetworkDatagram datagram;
        if (!m_udpClient.waitForDatagram(datagram, isFlooded ? FloodEnd : ReceiveWait)) {
            flood.flush();
            isFlooded = false;
            continue;
        }
        isFlooded = !flood.admits();
        if (isFlooded)
            continue;
        Log::info(Function) << "recv from " << datagram.senderAddress().toString() << ":"
                            << datagram.senderPort() << " [" << UdpClient::hexDump(datagram.data())
                            << "]";
    }
    Log::info(Function) << "thread end";
}
