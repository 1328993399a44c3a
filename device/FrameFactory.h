#pragma once

#include "device/FrameMemory.h"

#include <QVideoFrame>
#include <QVideoFrameFormat>

#include <array>
#include <functional>

/// Makes NV12 frames without the page faults that fresh memory costs. Since Qt 6.8 a frame can
/// carry a buffer of ours, whose memory is used again for a later frame. Before 6.8 Qt allocates
/// each frame itself, and the heap is configured to keep that memory. One thread at a time.
class FrameFactory
{
public:
    struct Plane {
        uchar* data = nullptr;
        int bytesPerLine = 0;
        int rows = 0; ///< whole lines that fit
    };
    /// Fills luma and chroma of a new frame. False discards the frame.
    using Fill = std::function<bool(const std::array<Plane, 2>& planes)>;

    FrameFactory();

    /// An invalid frame when there is no memory for it or @p fill discards it.
    [[nodiscard]] QVideoFrame make(const QVideoFrameFormat& format, const Fill& fill);

    /// Frees memory that no frame uses. For times when no frame is expected.
    void freeUnused();

private:
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    void prepare(const QVideoFrameFormat& format);

    qint64 m_preparedPixels = 0;
#endif
    FrameMemory m_memory;
};
