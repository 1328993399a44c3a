#pragma once

#include "rig/Fakes.h"
#include "rig/HelperProcess.h"

#include <QTimer>
#include <QUdpSocket>
#include <QVideoSink>

/// Plays the display's screen, as `screen` in QML: puts frames into a sink, or into the shared
/// memory from a process of its own, and receives the pointer's datagrams.
class ScreenRig : public QObject
{
    Q_OBJECT

public:
    explicit ScreenRig(DeviceWorld& world);

    /// Takes the port of the pointer's datagrams.
    Q_INVOKABLE bool listen();
    /// Datagrams received since the last call, as hexadecimal text.
    Q_INVOKABLE QStringList takeDatagrams();
    /// The datagram that tells of a pointer at x/ofX, y/ofY of the picture.
    Q_INVOKABLE QString datagram(int type, double x, double ofX, double y, double ofY) const;

    /// A frame of this size arrives in the sink.
    Q_INVOKABLE void showFrame(QVideoSink* sink, int width, int height);
    /// Only the count of frames rises.
    Q_INVOKABLE void countFrame();

    /// Has another process write frames of this size without pause.
    Q_INVOKABLE bool startWriting(int width, int height);
    Q_INVOKABLE void stopWriting();

    Q_INVOKABLE int windowCount() const;

private:
    DeviceWorld& m_world;
    QUdpSocket m_socket;
    std::optional<HelperProcess> m_writer;
    QTimer m_frameTimer;
    QByteArray m_frameCommand;
};
