#include "device/ScreenMirror.h"

namespace
{

int nextFrameIndex(int index)
{
    return static_cast<int>(static_cast<unsigned>(index) + 1U);
}

} // namespace

ScreenMirror::ScreenMirror()
    : m_monitorPlay({"DeviceControl::monitorPlay", "m_monitor_play:", ", play:"})
    , m_receiver([this](const QVideoFrame& frame) { m_videoSource.pushFrame(frame); },
                 [this] { setFrameIndex(nextFrameIndex(frameIndex())); })
{
}

void ScreenMirror::start()
{
    m_worker = std::make_unique<Worker>(
        "video", [this](const std::stop_token& stop) { m_receiver.run(stop); });
}

void ScreenMirror::requestStop()
{
    if (m_worker)
        m_worker->requestStop();
}

void ScreenMirror::end()
{
    if (m_worker)
        m_worker->end();
}

void ScreenMirror::setVideoSink(QVideoSink* sink)
{
    m_videoSource.setVideoSink(sink);
    Log::info("DeviceControl::setVideoSink") << "sink:" << static_cast<const void*>(sink);
}

bool ScreenMirror::monitorPlay(bool play)
{
    if (!m_monitorPlay.set(play))
        return false;
    m_receiver.setPlaying(play);
    return true;
}

void ScreenMirror::setFrameIndex(int newFrameIndex)
{
    if (m_frameIndex.exchange(newFrameIndex) != newFrameIndex)
        emit frameIndexChanged();
}
