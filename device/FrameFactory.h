#pragma once

#include "device/FrameMemory.h"

#include <QVideoFrame>
#include <QVideoFrameFormat>

#include <array>
#include <functional>

/// Makes NV12 frames without the page faults that fresh memory costs. Since Qt 6.8 a frame can
/// carry a buffer of ours, which returns its memory for the next one. Before that Qt allocates each
/// frame, and all that can be done is to have the heap keep the memory. One thread at a time.
class FrameFactory
{
public:
    struct Plane {
        uchar* data = nullptr;
        int bytesPerLine = 0;
        int rows = 0; ///< whole lines that fit
    };
    /// Luma and chroma of a frame to be filled. False gives the frame up.
    using Fill = std::function<bool(const std::array<Plane, 2>& planes)>;

    FrameFactory();

    /// A null frame when there is no memory to write to or @p fill gives it up.
    [[nodiscard]] QVideoFrame make(const QVideoFrameFormat& format, const Fill& fill);

    /// No frame will be wanted for a while.
    void rest();

private:
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    void prepare(const QVideoFrameFormat& format);

    qint64 m_preparedPixels = 0;
#endif
    FrameMemory m_memory;
};
