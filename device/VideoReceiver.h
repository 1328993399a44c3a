#pragma once

#include "device/FrameFactory.h"
#include "logging/FloodLimit.h"
#include "platform/FrameChannel.h"

#include <QVideoFrame>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <stop_token>

struct FrameHeader;

/// Receives the display's screen: NV12 frames that another process writes into shared memory and
/// announces through an event.
///
/// The writer is not trusted: a header that does not describe a frame within the view is logged and
/// the frame is skipped.
class VideoReceiver
{
public:
    /// Gets each frame on the video worker.
    using FrameSink = std::function<void(const QVideoFrame& frame)>;
    /// Called on the video worker after each delivered frame.
    using Delivered = std::function<void()>;
    struct Timing {
        /// Pause between attempts to connect.
        std::chrono::milliseconds pause = std::chrono::seconds(1);
        std::chrono::milliseconds frameWait = std::chrono::seconds(1);
    };

    VideoReceiver(FrameSink sink, Delivered delivered);
    VideoReceiver(FrameSink sink, Delivered delivered,
                  std::unique_ptr<platform::FrameChannel> channel, Timing timing);
    ~VideoReceiver();

    /// Body of the video worker: connects, waits for frames and delivers them until the stop is
    /// requested, which also ends a wait.
    void run(const std::stop_token& stop);
    /// Whether frames are wanted. Otherwise nothing is opened or read, except that a wait under way
    /// ends with its frame or its log line. Any thread.
    void setPlaying(bool playing);

private:
    bool isPlaying();
    void waitUntilPlaying(const std::stop_token& stop);
    bool connectChannel();
    void waitForFrame(const std::stop_token& stop);
    void processFrame();
    QVideoFrame copyFrame(const FrameHeader& header);
    bool read(std::size_t offset, void* target, std::size_t length);
    bool readHeader(FrameHeader& header);
    bool copyRows(const FrameFactory::Plane& target, std::size_t offset, int bytesPerRow, int rows);

    const FrameSink m_sink;
    const Delivered m_delivered;
    const std::unique_ptr<platform::FrameChannel> m_channel;
    const Timing m_timing;

    std::mutex m_mutex;
    std::condition_variable_any m_changed;
    bool m_playing = false; // guarded by m_mutex

    // Video worker only.
    FrameFactory m_frames;
    quint64 m_validFrames = 0;
    Log::FloodLimit m_flood{"DeviceControl::RecvSharedMemoryProc"}; // of invalid headers
};
