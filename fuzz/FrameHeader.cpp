// The input is the index of a slot followed by the header of the slot.
#include "device/FrameHeader.h"
#include "fuzz/FuzzSupport.h"

#include <algorithm>
#include <array>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 1 + FrameHeader::HeaderSize)
        return 0;
    FrameHeader header;
    header.index = data[0];
    std::array<uchar, FrameHeader::HeaderSize> bytes{};
    std::copy_n(data + 1, bytes.size(), bytes.begin());
    header.parse(bytes);
    if (!header.isValid())
        return 0;
    const std::size_t needed = header.lumaSize() + std::size_t(header.chromaBytesPerRow()) *
                                                       std::size_t(header.chromaRows());
    fuzz::require(header.w > 0 && header.h > 0, "a valid picture has pixels");
    fuzz::require(header.len > 0 && needed <= std::size_t(header.len), "the data hold the picture");
    fuzz::require(FrameHeader::slotOffset(header.index) + FrameHeader::HeaderSize +
                          std::size_t(header.len) <=
                      FrameHeader::ViewSize,
                  "the data lie within the view");
    return 0;
}
