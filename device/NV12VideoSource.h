#pragma once

#include <QObject>
#include <QVideoFrame>
#include <QVideoSink>

#include <mutex>

/// Brings frames from the video worker to the sink of the monitor window.
///
/// The sink belongs to this object's thread (main) and gets its frames there: the worker stores the
/// newest frame and wakes that thread. A slow window gets the newest frame; the frames between are
/// dropped.
class NV12VideoSource : public QObject
{
    Q_OBJECT
    Q_PROPERTY(
        QVideoSink* videoSink READ videoSink WRITE setVideoSink NOTIFY videoSinkChanged FINAL)

public:
    explicit NV12VideoSource(QObject* parent = nullptr);

    /// Main thread.
    QVideoSink* videoSink() const { return m_videoSink; }
    /// Main thread. The sink is not owned and may be destroyed at any time.
    void setVideoSink(QVideoSink* sink);

    /// Any thread. Frames are dropped while there is no sink.
    void pushFrame(const QVideoFrame& frame);

signals:
    void videoSinkChanged();

private:
    void deliver();

    QVideoSink* m_videoSink = nullptr; // main thread only

    std::mutex m_mutex;
    // Guarded by m_mutex.
    QVideoFrame m_newest;
    bool m_hasSink = false;
    bool m_deliveryPosted = false;
};
