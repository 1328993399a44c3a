#include "device/PointerDatagram.h"

#include <QtEndian>

#include <bit>

namespace
{

constexpr quint8 PointCount = 1;
constexpr quint16 BytesPerPoint = 9;

template <typename Integer>
void appendBytes(QByteArray& bytes, Integer storedInteger)
{
    bytes.append(reinterpret_cast<const char*>(&storedInteger), sizeof storedInteger);
}

void appendFloat(QByteArray& bytes, float number)
{
    appendBytes(bytes, qToBigEndian(std::bit_cast<quint32>(number)));
}

} // namespace

QByteArray pointerDatagram(quint8 type, float x, float y)
{
    constexpr quint16 PayloadLength = 2 + BytesPerPoint * PointCount;
    QByteArray bytes("VORN");
    bytes.append('\x00').append('\x02').append('\x00');
    appendBytes(bytes, qToLittleEndian(PayloadLength));
    appendBytes(bytes, type);
    appendBytes(bytes, PointCount);
    appendBytes(bytes, quint8(0));
    appendFloat(bytes, x);
    appendFloat(bytes, y);
    return bytes;
}
