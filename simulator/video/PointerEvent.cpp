#include "simulator/video/PointerEvent.h"

#include <QtEndian>

#include <array>
#include <bit>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

// Layout: magic; 0, 2, 0; length of the remaining bytes, little-endian; type; number of points;
// index of the point; x and y, big-endian.
constexpr qsizetype Size = 20;
constexpr qsizetype LengthAt = 7;
constexpr qsizetype TypeAt = 9;
constexpr qsizetype CountAt = 10;
constexpr qsizetype PointAt = 11;
constexpr qsizetype XAt = 12;
constexpr qsizetype YAt = 16;

double fractionAt(const QByteArray& bytes, qsizetype at)
{
    return double(std::bit_cast<float>(qFromBigEndian<quint32>(bytes.constData() + at)));
}

bool isFraction(double number)
{
    return number >= 0 && number <= 1;
}

} // namespace

QString PointerEvent::typeName() const
{
    static const std::array s_names{u"press"_s, u"release"_s, u"move"_s};
    return s_names.at(std::size_t(type));
}

std::optional<PointerEvent> simulator::parsePointerEvent(const QByteArray& datagram)
{
    constexpr QByteArrayView Magic("VORN\0\2\0", 7);
    if (datagram.size() != Size || !datagram.startsWith(Magic))
        return {};
    const auto length = qFromLittleEndian<quint16>(datagram.constData() + LengthAt);
    const auto type = uchar(datagram.at(TypeAt));
    if (length != Size - TypeAt || type > int(PointerEvent::Type::Move) ||
        datagram.at(CountAt) != 1 || datagram.at(PointAt) != 0)
        return {};
    const PointerEvent event{PointerEvent::Type(type),
                             {fractionAt(datagram, XAt), fractionAt(datagram, YAt)}};
    if (!isFraction(event.position.x()) || !isFraction(event.position.y()))
        return {};
    return event;
}
