#pragma once

#include <QtGlobal>

#include <cstddef>

/// Layout of the shared memory that carries the display's screen: one byte with the number of the
/// newest slot, followed by slots of a header and NV12 data. Only slot 0 lies within the memory.
/// Numbers are little-endian.
///
/// Kept apart from the definition that the reader uses, so that each checks the other.
namespace framelayout
{

inline constexpr auto MappingName = "vorn_vframe_header_2025_05_19";
inline constexpr auto EventName = "vorn_vframe_event_2025_05_19";

inline constexpr std::size_t HeaderSize = 12;
inline constexpr std::size_t HeaderOffset = 1;
inline constexpr std::size_t DataOffset = HeaderOffset + HeaderSize;
inline constexpr qsizetype MaximumDataSize = 12'441'600; // 3840 x 2160
inline constexpr std::size_t MappingSize = 12'441'664;

struct Header {
    quint8 index = 0;
    quint32 number = 0; ///< the writer's frame counter
    quint16 width = 0;
    quint16 height = 0;
    qint32 length = 0; ///< number of data bytes
};

/// Stores a header at the beginning of the memory. The index, which a reader reads first, is
/// written last.
void store(const Header& header, uchar* memory);

} // namespace framelayout
