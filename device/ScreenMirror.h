#pragma once

#include "device/LoggedValue.h"
#include "device/NV12VideoSource.h"
#include "device/VideoReceiver.h"
#include "threads/Worker.h"

#include <QObject>

#include <atomic>
#include <memory>

/// The display's screen: receives its frames on a worker and hands them to the monitor window.
class ScreenMirror : public QObject
{
    Q_OBJECT

public:
    ScreenMirror();

    /// Starts the worker.
    void start();
    /// Asks the worker to end, without waiting for it. Any thread.
    void requestStop();
    /// Asks the worker to end and waits for it. Any thread but the worker.
    void end();

    /// Main thread. The sink is not owned.
    void setVideoSink(QVideoSink* sink);
    /// Whether the monitor window wants frames; false when that is so already. Main thread.
    bool monitorPlay(bool play);
    /// Number of frames delivered so far; after the highest number comes the lowest. Any thread.
    int frameIndex() const { return m_frameIndex; }
    void setFrameIndex(int newFrameIndex);

signals:
    /// Emitted on the thread of the change, which is the worker for each frame.
    void frameIndexChanged();

private:
    std::atomic<int> m_frameIndex = 0;
    LoggedValue<bool> m_monitorPlay;
    NV12VideoSource m_videoSource;
    VideoReceiver m_receiver;
    std::unique_ptr<Worker> m_worker; // last, since the worker uses the others
};
