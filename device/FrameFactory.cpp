#include "device/FrameFactory.h"

#include "device/FrameHeader.h"
#include "platform/LargeBlocks.h"

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
#include <QAbstractVideoBuffer>
#else
#include <cstring>
#include <vector>
#endif

namespace
{

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

using Planes = std::array<FrameFactory::Plane, 2>;

/// Rows start at multiples of this, which graphics interfaces prefer and which keeps chroma pairs
/// whole.
constexpr int LineAlignment = 16;

/// Returns its memory when it is destroyed, not when it is unmapped: the graphics card may still be
/// reading the picture then.
class PooledBuffer final : public QAbstractVideoBuffer
{
public:
    PooledBuffer(QVideoFrameFormat format, FrameMemory::Block block, const Planes& planes)
        : m_format(std::move(format))
        , m_block(std::move(block))
        , m_planes(planes)
    {
    }

    MapData map(QVideoFrame::MapMode) override
    {
        MapData mapped;
        mapped.planeCount = int(m_planes.size());
        for (std::size_t i = 0; i < m_planes.size(); ++i) {
            const auto& plane = m_planes[i];
            mapped.data[i] = plane.data;
            mapped.bytesPerLine[i] = plane.bytesPerLine;
            mapped.dataSize[i] = plane.bytesPerLine * plane.rows;
        }
        return mapped;
    }

    QVideoFrameFormat format() const override { return m_format; }

private:
    const QVideoFrameFormat m_format;
    const FrameMemory::Block m_block;
    const Planes m_planes;
};

#endif

} // namespace

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

FrameFactory::FrameFactory() = default;

void FrameFactory::freeUnused()
{
    m_memory.clear();
}

QVideoFrame FrameFactory::make(const QVideoFrameFormat& format, const Fill& fill)
{
    const int width = format.frameWidth();
    const int height = format.frameHeight();
    const int bytesPerLine = (width + LineAlignment - 1) / LineAlignment * LineAlignment;
    const int chromaRows = (height + 1) / 2;
    FrameMemory::Block block = m_memory.take(std::size_t(bytesPerLine) * (height + chromaRows));
    uchar* const luma = block.data();
    if (!luma)
        return {};
    const Planes planes{{{luma, bytesPerLine, height},
                         {luma + std::size_t(bytesPerLine) * height, bytesPerLine, chromaRows}}};
    if (!fill(planes))
        return {};
    return QVideoFrame(std::make_unique<PooledBuffer>(format, std::move(block), planes));
}

#else

FrameFactory::FrameFactory()
{
    platform::keepLargeBlocks(FrameHeader::MaximumDataSize, FrameMemory::BlockCount);
}

/// Touches as much memory as FrameMemory would hold, on the thread that allocates the frames.
void FrameFactory::prepare(const QVideoFrameFormat& format)
{
    const qint64 pixels = qint64(format.frameWidth()) * format.frameHeight();
    if (pixels <= m_preparedPixels)
        return;
    m_preparedPixels = pixels;
    std::vector<QVideoFrame> frames;
    for (int i = 0; i < FrameMemory::BlockCount; ++i) {
        QVideoFrame& frame = frames.emplace_back(format);
        if (!frame.map(QVideoFrame::WriteOnly))
            return;
        for (int plane = 0; plane < frame.planeCount(); ++plane)
            std::memset(frame.bits(plane), 0, std::size_t(frame.mappedBytes(plane)));
        frame.unmap();
    }
}

QVideoFrame FrameFactory::make(const QVideoFrameFormat& format, const Fill& fill)
{
    prepare(format);
    QVideoFrame frame(format);
    if (!frame.map(QVideoFrame::WriteOnly))
        return {};
    std::array<Plane, 2> planes;
    for (int i = 0; i < int(planes.size()); ++i) {
        const int bytesPerLine = frame.bytesPerLine(i);
        planes[i] = {frame.bits(i), bytesPerLine, frame.mappedBytes(i) / bytesPerLine};
    }
    const bool isFilled = fill(planes);
    frame.unmap();
    return isFilled ? frame : QVideoFrame();
}

void FrameFactory::freeUnused()
{
    if (m_preparedPixels == 0)
        return;
    m_preparedPixels = 0;
    platform::returnFreedBlocks();
}

#endif
