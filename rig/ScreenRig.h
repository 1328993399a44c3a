#pragma once

#include "rig/Fakes.h"
#include "rig/HelperProcess.h"

#include <QTimer>
#include <QUdpSocket>
#include <QVideoSink>

/// The display's screen in a test: puts frames into a sink, or into shared memory from another
/// process, and receives the pointer datagrams. QML sees it as `screen`.
class ScreenRig : public QObject
{
    Q_OBJECT

public:
    explicit ScreenRig(DeviceWorld& world);

    /// Binds the port of the pointer datagrams.
    Q_INVOKABLE bool listen();
    /// Datagrams received since the last call, as hexadecimal text.
    Q_INVOKABLE QStringList takeDatagrams();
    /// The datagram for a pointer at x/ofX, y/ofY of the picture.
    Q_INVOKABLE QString datagram(int type, double x, double ofX, double y, double ofY) const;

    /// Puts a frame of this size into the sink.
    Q_INVOKABLE void showFrame(QVideoSink* sink, int width, int height);
    /// Raises only the frame counter.
    Q_INVOKABLE void countFrame();

    /// Starts a process that writes frames of this size continuously.
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
