#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>

/// Layout of the shared memory that carries the display's screen. All numbers are little-endian:
///
///     offset 0  u8   number of the slot that holds the newest frame
///     offset 1  slots, each 12 bytes of header and room for one 3840 x 2160 NV12 frame
///       + 0     u32  the writer's frame counter
///       + 4     u16  width in pixels
///       + 6     u16  height in pixels
///       + 8     i32  number of data bytes
///       + 12         luma, then interleaved chroma, rows tightly packed
struct FrameHeader {
    static constexpr std::size_t MaximumDataSize = 12'441'600;
    static constexpr std::size_t HeaderSize = 12;
    static constexpr std::size_t SlotSize = HeaderSize + MaximumDataSize;
    /// Bytes that are mapped; only slot 0 lies within them.
    static constexpr std::size_t ViewSize = 12'441'664;

    quint8 index = 0;
    quint32 frameNumber = 0;
    quint16 w = 0;
    quint16 h = 0;
    qint32 len = 0;

    static constexpr std::size_t slotOffset(quint8 index) { return 1 + index * SlotSize; }
    static constexpr bool isInView(quint8 index)
    {
        return slotOffset(index) + SlotSize <= ViewSize;
    }

    /// Reads all fields except the index from the header bytes of a slot.
    void parse(const std::array<uchar, HeaderSize>& bytes);

    /// Whether this describes an NV12 frame that lies within a slot of the view. The data may be
    /// longer than the picture.
    [[nodiscard]] bool isValid() const;
    [[nodiscard]] std::size_t lumaSize() const { return std::size_t(w) * h; }
    /// Bytes of a chroma row: a pair of bytes for two pixels, also for a single last one.
    [[nodiscard]] int chromaBytesPerRow() const { return (w + 1) / 2 * 2; }
    [[nodiscard]] int chromaRows() const { return (h + 1) / 2; }
};
