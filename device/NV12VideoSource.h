#pragma once

#include <QObject>
#include <QVideoFrame>
#include <QVideoSink>

#include <mutex>

/// Brings frames from the video worker to the sink of the monitor window.
///
/// The sink belongs to the thread of this object (main), so frames are handed to it there: the
/// worker leaves the newest one in a slot and wakes that thread. A slow window sees the newest
/// frame and the frames between are dropped.
class NV12VideoSource : public QObject
{
    Q_OBJECT
    Q_PROPERTY(
        QVideoSink* videoSink READ videoSink WRITE setVideoSink NOTIFY videoSinkChanged FINAL)

public:
    explicit NV12VideoSource(QObject* parent = nullptr);

    /// Main thread.
    QVideoSink* videoSink() const;
    /// Main thread. The sink is not owned; one that is destroyed is forgotten.
    void setVideoSink(QVideoSink* sink);

    /// Any thread. Dropped while there is no sink.
    void pushFrame(const QVideoFrame& frame);

signals:
    void videoSinkChanged();

private:
    void deliver();

    QVideoSink* m_videoSink = nullptr;
    std::mutex m_mutex;
    QVideoFrame m_newest;
    bool m_hasSink = false;
    bool m_deliveryPosted = false;
};
