#include "device/VideoReceiver.h"

#include "device/FrameHeader.h"
#include "logging/Log.h"
#include "threads/Worker.h"

#include <QVideoFrameFormat>

#include <algorithm>
#include <new>

namespace
{

constexpr auto MappingName = "vorn_vframe_header_2025_05_19";
constexpr auto EventName = "vorn_vframe_event_2025_05_19";
constexpr auto Function = "DeviceControl::RecvSharedMemoryProc";
constexpr quint64 FramesPerLogLine = 1000;

/// The frames carry no colour description. The display writes BT.601; Qt would choose by the size
/// of the picture.
constexpr auto FrameColorSpace = QVideoFrameFormat::ColorSpace_BT601;

QVideoFrameFormat frameFormat(const FrameHeader& header)
{
    QVideoFrameFormat format(QSize(header.w, header.h), QVideoFrameFormat::Format_NV12);
    format.setColorSpace(FrameColorSpace);
    format.setColorRange(QVideoFrameFormat::ColorRange_Video);
    return format;
}

void appendHeader(Log::Message& message, const FrameHeader& header)
{
    message << "index:" << header.index << ", w:" << header.w << ", h:" << header.h
            << ", len:" << header.len << ", frame_idx:" << header.frameNumber;
}

} // namespace

VideoReceiver::VideoReceiver(FrameSink sink, Delivered delivered)
    : VideoReceiver(std::move(sink), std::move(delivered),
                    platform::makeFrameChannel(MappingName, EventName, FrameHeader::ViewSize),
                    Timing{})
{
}

VideoReceiver::VideoReceiver(FrameSink sink, Delivered delivered,
                             std::unique_ptr<platform::FrameChannel> channel, Timing timing)
    : m_sink(std::move(sink))
    , m_delivered(std::move(delivered))
    , m_channel(std::move(channel))
    , m_timing(timing)
{
}

VideoReceiver::~VideoReceiver() = default;

void VideoReceiver::setPlaying(bool playing)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_playing = playing;
    }
    m_changed.notify_all();
}

bool VideoReceiver::isPlaying()
{
    const std::scoped_lock lock(m_mutex);
    return m_playing;
}

void VideoReceiver::waitUntilPlaying(const std::stop_token& stop)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, stop, [this] { return m_playing; });
}

void VideoReceiver::run(const std::stop_token& stop)
{
    Log::info(Function) << "thread start";
    const std::stop_callback endWait(stop, [this] { m_channel->interrupt(); });
    while (!stop.stop_requested()) {
        if (!isPlaying()) {
            m_frames.freeUnused();
            waitUntilPlaying(stop);
        } else if (m_channel->isOpen() || connectChannel()) {
            waitForFrame(stop);
        } else {
            waitForStop(stop, m_timing.pause);
        }
    }
    m_channel->close();
    Log::info(Function) << "thread end";
}

bool VideoReceiver::connectChannel()
{
    using Step = platform::FrameChannel::OpenStep;
    const auto result = m_channel->open();
    switch (result.failedAt) {
    case Step::Mapping:
        Log::error(Function) << "OpenFileMappingA [" << MappingName << "] failed: " << result.error;
        return false;
    case Step::View:
        Log::error(Function) << "MapViewOfFile failed: " << result.error;
        return false;
    case Step::Event:
        Log::error(Function) << "OpenEventA [" << EventName << "] failed: " << result.error;
        return false;
    case Step::Done:
        break;
    }
    Log::info(Function) << "connect:" << MappingName;
    return true;
}

void VideoReceiver::waitForFrame(const std::stop_token& stop)
{
    using Outcome = platform::FrameChannel::WaitOutcome;
    const auto result = m_channel->wait(m_timing.frameWait);
    switch (result.outcome) {
    case Outcome::Signalled:
        processFrame();
        break;
    case Outcome::TimedOut:
        Log::error(Function) << "wait [" << EventName << "] WAIT_TIMEOUT";
        break;
    case Outcome::Failed:
        Log::error(Function) << "wait [" << EventName << "] failed:" << result.error;
        waitForStop(stop, m_timing.pause); // so that repeated failures do not flood the log
        break;
    case Outcome::Interrupted:
        break;
    }
    if (!m_channel->isOpen())
        Log::info(Function) << "detect resources disconnect! reconnect to " << EventName;
}

/// False when the channel is closed or the writer has cut the memory short, which closes it.
bool VideoReceiver::read(std::size_t offset, void* target, std::size_t length)
{
    if (m_channel->copyOut(offset, target, length))
        return true;
    m_channel->close();
    return false;
}

/// Reads the header once, into a copy, since the writer may change it at any time.
bool VideoReceiver::readHeader(FrameHeader& header)
{
    if (!read(0, &header.index, sizeof header.index))
        return false;
    if (!FrameHeader::isInView(header.index))
        return true;
    std::array<uchar, FrameHeader::HeaderSize> bytes;
    if (!read(FrameHeader::slotOffset(header.index), bytes.data(), bytes.size()))
        return false;
    header.parse(bytes);
    return true;
}

void VideoReceiver::processFrame()
{
    FrameHeader header;
    if (!readHeader(header))
        return;
    if (!header.isValid()) {
        if (!m_flood.admits())
            return;
        auto message = Log::error(Function);
        message << "error!!! ";
        appendHeader(message, header);
        return;
    }
    if (m_validFrames++ % FramesPerLogLine == 0) {
        auto message = Log::info(Function);
        appendHeader(message, header);
    }

    const QVideoFrame frame = copyFrame(header);
    if (frame.isValid()) {
        m_sink(frame);
        m_delivered();
    } else if (m_channel->isOpen() && m_flood.admits()) {
        Log::error(Function) << "no memory for a frame";
    }
}

/// An invalid frame when there is no memory for it, or when the writer has cut the shared memory
/// short, which closes the channel.
QVideoFrame VideoReceiver::copyFrame(const FrameHeader& header)
{
    const std::size_t luma = FrameHeader::slotOffset(header.index) + FrameHeader::HeaderSize;
    try {
        return m_frames.make(frameFormat(header), [&](const auto& planes) {
            return copyRows(planes[0], luma, header.w, header.h) &&
                   copyRows(planes[1], luma + header.lumaSize(), header.chromaBytesPerRow(),
                            header.chromaRows());
        });
    } catch (const std::bad_alloc&) {
        return {};
    }
}

/// Rows of the frame can be padded, those in the shared memory are not. Without padding all rows
/// are copied as one block. A frame of odd height may have no room for the last row of chroma.
bool VideoReceiver::copyRows(const FrameFactory::Plane& target, std::size_t offset, int bytesPerRow,
                             int rows)
{
    if (target.bytesPerLine < bytesPerRow)
        return false;
    const std::size_t count = std::min(rows, target.rows);
    if (target.bytesPerLine == bytesPerRow)
        return read(offset, target.data, count * bytesPerRow);
    for (std::size_t row = 0; row < count; ++row) {
        if (!read(offset + row * bytesPerRow, target.data + row * target.bytesPerLine, bytesPerRow))
            return false;
    }
    return true;
}
