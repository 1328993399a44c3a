#include "rig/ScreenRig.h"

#include "device/FrameHeader.h"

#include <QGuiApplication>
#include <QNetworkDatagram>
#include <QVideoFrame>
#include <QtEndian>

namespace
{

constexpr quint16 PointerPort = 49176;

QByteArray bigEndian(double value)
{
    QByteArray bytes(sizeof(float), '\0');
    qToBigEndian(static_cast<float>(value), bytes.data());
    return bytes;
}

} // namespace

ScreenRig::ScreenRig(DeviceWorld& world)
    : m_world(world)
{
    m_frameTimer.setInterval(2);
    connect(&m_frameTimer, &QTimer::timeout, this, [this] {
        if (!m_writer->command(m_frameCommand))
            qFatal("The frame writer stopped");
    });
}

bool ScreenRig::listen()
{
    return m_socket.state() == QAbstractSocket::BoundState ||
           m_socket.bind(QHostAddress::LocalHost, PointerPort);
}

QStringList ScreenRig::takeDatagrams()
{
    // Datagrams arrive in order: everything sent before the mark is read before it.
    const QByteArray mark = "mark";
    m_socket.writeDatagram(mark, QHostAddress::LocalHost, PointerPort);
    QStringList received;
    while (m_socket.hasPendingDatagrams() || m_socket.waitForReadyRead(5'000)) {
        const QByteArray data = m_socket.receiveDatagram().data();
        if (data == mark)
            return received;
        received += QString::fromLatin1(data.toHex());
    }
    return {u"no mark"_s};
}

QString ScreenRig::datagram(int type, double x, double ofX, double y, double ofY) const
{
    const QByteArray head = QByteArray::fromHex("564f524e0002000b00");
    const QByteArray point = QByteArray(1, static_cast<char>(type)) + QByteArray::fromHex("0100");
    return QString::fromLatin1((head + point + bigEndian(x / ofX) + bigEndian(y / ofY)).toHex());
}

void ScreenRig::showFrame(QVideoSink* sink, int width, int height)
{
    QVideoFrame frame(QVideoFrameFormat({width, height}, QVideoFrameFormat::Format_NV12));
    if (!frame.map(QVideoFrame::WriteOnly))
        qFatal("The frame could not be written");
    for (int plane = 0; plane < frame.planeCount(); ++plane)
        std::memset(frame.bits(plane), 128, static_cast<size_t>(frame.mappedBytes(plane)));
    frame.unmap();
    sink->setVideoFrame(frame);
    countFrame();
}

void ScreenRig::countFrame()
{
    m_world.device->setFrameIndex(m_world.device->frameIndex() + 1);
}

bool ScreenRig::startWriting(int width, int height)
{
    m_writer.emplace();
    const auto size = QByteArray::number(qulonglong{FrameHeader::ViewSize});
    m_frameCommand = "frame " + QByteArray::number(width) + ' ' + QByteArray::number(height);
    if (!m_writer->startAndWait(
            HelperProcess::path(u"frame_writer"_s),
            {u"vorn_vframe_header_2025_05_19"_s, u"vorn_vframe_event_2025_05_19"_s}) ||
        !m_writer->command("mapping " + size) || !m_writer->command("event"))
        return false;
    m_frameTimer.start();
    return true;
}

void ScreenRig::stopWriting()
{
    m_frameTimer.stop();
    m_writer.reset();
}

int ScreenRig::windowCount() const
{
    return static_cast<int>(QGuiApplication::allWindows().size());
}
