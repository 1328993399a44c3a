#pragma once

#include "device/FrameFactory.h"
#include "platform/FrameChannel.h"
#include "threads/Worker.h"

#include <QVideoFrame>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

struct FrameHeader;

/// Receives the display's screen: NV12 frames that another process writes into shared memory and
/// announces through an event.
///
/// The writer is not trusted: a header that does not describe a frame within the view is reported
/// and skipped, whatever it says.
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

    /// The worker's body: connects, waits for frames and delivers them until the stop is
    /// requested, which ends each wait at once.
    void run(const std::stop_token& stop);
    /// Whether frames are wanted. While they are not, nothing is opened or read; a wait under way
    /// still ends with its frame or its line. Any thread.
    void setPlaying(bool playing);

private:
    bool isPlaying();
    void waitUntilPlaying(const std::stop_token& stop);
    bool connectChannel();
    void waitForFrame(const std::stop_token& stop);
    void processFrame();
    bool read(std::size_t offset, void* target, std::size_t length);
    bool readHeader(FrameHeader& header);
    bool copyRows(const FrameFactory::Plane& target, std::size_t offset, int bytesPerRow, int rows);

    const FrameSink m_sink;
    const Delivered m_delivered;
    const std::unique_ptr<platform::FrameChannel> m_channel;
    const Timing m_timing;
    std::mutex m_mutex;
    std::condition_variable_any m_changed;
    bool m_playing = false; // under the mutex
    // Video worker only.
    FrameFactory m_frames;
    quint64 m_validFrames = 0;
};
