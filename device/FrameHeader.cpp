#include "device/FrameHeader.h"

#include <QtEndian>

void FrameHeader::parse(const std::array<uchar, HeaderSize>& bytes)
{
    frameNumber = qFromLittleEndian<quint32>(bytes.data());
    w = qFromLittleEndian<quint16>(bytes.data() + 4);
    h = qFromLittleEndian<quint16>(bytes.data() + 6);
    len = qFromLittleEndian<qint32>(bytes.data() + 8);
}

bool FrameHeader::isValid() const
{
    if (!isInView(index) || w == 0 || h == 0 || len <= 0)
        return false;
    const std::size_t size = lumaSize() + std::size_t(chromaBytesPerRow()) * chromaRows();
    const auto length = static_cast<std::size_t>(len);
    return size <= length && length <= MaximumDataSize;
}
