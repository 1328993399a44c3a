#include "simulator/video/FrameWriter.h"

#include "simulator/video/FrameObjects.h"

#include <QtEndian>

#include <cstring>
#include <limits>

using namespace simulator;
using namespace Qt::StringLiterals;
using frame::Header;

namespace
{

enum Kind { Index, Zero, NegativeLength, LongLength, WrongLength, HugeSize, Noise, Torn };

} // namespace

const QStringList& FrameWriter::hostileKinds()
{
    static const QStringList kinds{u"index"_s,       u"zero"_s,         u"negative-length"_s,
                                   u"long-length"_s, u"wrong-length"_s, u"huge-size"_s,
                                   u"noise"_s,       u"torn"_s};
    return kinds;
}

void FrameWriter::write(quint32 number, const QSize& size, const QByteArray& data)
{
    std::memcpy(m_objects.view() + frame::DataOffset, data.constData(), std::size_t(data.size()));
    putHeader({0, number, quint16(size.width()), quint16(size.height()), qint32(data.size())});
    m_objects.post();
}

void FrameWriter::writeHostile(int kind, quint32 number, const QSize& size, const QByteArray& data)
{
    if (kind == Torn) { // right when it is announced, wrong while it is read
        write(number, size, data);
        putNoise();
        return;
    }
    if (kind == Noise)
        putNoise();
    else
        putHeader(hostileHeader(
            kind, {0, number, quint16(size.width()), quint16(size.height()), qint32(data.size())}));
    m_objects.post();
}

Header FrameWriter::hostileHeader(int kind, const Header& right)
{
    Header header = right;
    switch (kind) {
    case Index:
        header.index = quint8(1 + m_random() % std::numeric_limits<quint8>::max());
        break;
    case Zero: {
        const auto which = m_random() % 3;
        header.width = which == 0 ? 0 : header.width;
        header.height = which == 1 ? 0 : header.height;
        header.length = which == 2 ? 0 : header.length;
        break;
    }
    case NegativeLength:
        header.length = -header.length;
        break;
    case LongLength:
        header.length = qint32(frame::MaximumDataSize + 1);
        break;
    case WrongLength:
        header.length -= 1;
        break;
    case HugeSize:
        header.width = header.height = std::numeric_limits<quint16>::max();
        break;
    default:
        break;
    }
    return header;
}

// The index, which the program reads first, is written last.
void FrameWriter::putHeader(const Header& header)
{
    uchar* const slot = m_objects.view() + frame::HeaderOffset;
    qToLittleEndian(header.number, slot);
    qToLittleEndian(header.width, slot + 4);
    qToLittleEndian(header.height, slot + 6);
    qToLittleEndian(header.length, slot + 8);
    *m_objects.view() = header.index;
}

void FrameWriter::putNoise()
{
    for (std::size_t i = 0; i < frame::DataOffset; ++i)
        m_objects.view()[i] = uchar(m_random());
}
