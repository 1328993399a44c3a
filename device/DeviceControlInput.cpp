#include "device/DeviceControlChange.h"

#include "device/PointerDatagram.h"
#include "device/VideoReceiver.h"

#include <QHostAddress>

using namespace Qt::StringLiterals;

namespace
{

constexpr quint16 PointerPort = 49176;

} // namespace

void DeviceControl::getMouseEvent(int type, float x, float y)
{
    Log::info("DeviceControl::getMouseEvent")
        << u"type: %1 (%2, %3)"_s.arg(type).arg(x, 0, 'f', 4).arg(y, 0, 'f', 4);
    const QByteArray datagram = pointerDatagram(static_cast<quint8>(type), x, y);
    m_udpClient.send(datagram.constData(), static_cast<int>(datagram.size()), PointerPort,
                     QHostAddress(QHostAddress::LocalHost));
}

void DeviceControl::getKeyboardEvent(int type, int key)
{
    Log::info("DeviceControl::getKeyboardEvent") << "type:" << type << ", key:" << key;
}

void DeviceControl::startBYOD()
{
    m_services.channel.send("DeviceControl::startBYOD",
                            ::DealChannelMsg::buildQuery(ChannelCommand::StartByod));
}

void DeviceControl::startSetupBarOOBE()
{
    m_services.channel.send("DeviceControl::startSetupBarOOBE",
                            ::DealChannelMsg::buildCommand(ChannelCommand::StartSetup));
}

void DeviceControl::launchZoom()
{
    Log::info("DeviceControl::launchZoom") << "launchZoom";
    emit addTask(u"launchZoom"_s, {});
}

void DeviceControl::launchTeams()
{
    Log::info("DeviceControl::launchTeams") << "launchTeams";
    emit addTask(u"launchTeams"_s, {});
}

void DeviceControl::launchGoogleMeeting()
{
    Log::info("DeviceControl::launchGoogleMeeting") << "launchGoogleMeeting";
    emit addTask(u"launchGoogleMeeting"_s, {});
}

void DeviceControl::setVideoSink(const QVariant& sinkVariant)
{
    QVideoSink* const sink = sinkVariant.value<QVideoSink*>();
    m_videoSource.setVideoSink(sink);
    Log::info("DeviceControl::setVideoSink") << "sink:" << static_cast<const void*>(sink);
}

void DeviceControl::monitorPlay(bool play)
{
    if (!change(m_monitor_play, play, {"DeviceControl::monitorPlay", "m_monitor_play:", ", play:"}))
        return;
    // At the start the instance before this one may still have had the port.
    if (play && !m_udpClient.isBound())
        m_udpClient.bind(ReceivePort);
    m_videoReceiver->setPlaying(play);
}
