#include "framewriter/FrameWriter.h"

#include "framewriter/FrameObjects.h"

#include <QtEndian>

#include <cstring>
#include <limits>

using namespace Qt::StringLiterals;
using framelayout::Header;

namespace
{

Header correctHeader(quint32 number, const QSize& size, const QByteArray& data)
{
    return {0, number, quint16(size.width()), quint16(size.height()), qint32(data.size())};
}

} // namespace

void framelayout::store(const Header& header, uchar* memory)
{
    uchar* const slot = memory + HeaderOffset;
    qToLittleEndian(header.number, slot);
    qToLittleEndian(header.width, slot + 4);
    qToLittleEndian(header.height, slot + 6);
    qToLittleEndian(header.length, slot + 8);
    *memory = header.index;
}

const QStringList& FrameWriter::faultNames()
{
    static const QStringList s_names{u"index"_s,       u"zero"_s,         u"negative-length"_s,
                                     u"long-length"_s, u"wrong-length"_s, u"huge-size"_s,
                                     u"noise"_s,       u"torn"_s};
    return s_names;
}

bool FrameWriter::write(quint32 number, const QSize& size, const QByteArray& data)
{
    if (framelayout::DataOffset + std::size_t(data.size()) > m_objects.size())
        return false;
    std::memcpy(m_objects.view() + framelayout::DataOffset, data.constData(),
                std::size_t(data.size()));
    framelayout::store(correctHeader(number, size, data), m_objects.view());
    return m_objects.post();
}

bool FrameWriter::writeFaulty(Fault fault, quint32 number, const QSize& size,
                              const QByteArray& data)
{
    if (fault == Fault::Torn) {
        const bool isWritten = write(number, size, data);
        storeNoise();
        return isWritten;
    }
    if (fault == Fault::Noise)
        storeNoise();
    else
        framelayout::store(faultyHeader(fault, correctHeader(number, size, data)),
                           m_objects.view());
    return m_objects.post();
}

Header FrameWriter::faultyHeader(Fault fault, Header header)
{
    switch (fault) {
    case Fault::Index:
        header.index = quint8(1 + m_random() % std::numeric_limits<quint8>::max());
        break;
    case Fault::Zero: {
        const auto which = m_random() % 3;
        header.width = which == 0 ? 0 : header.width;
        header.height = which == 1 ? 0 : header.height;
        header.length = which == 2 ? 0 : header.length;
        break;
    }
    case Fault::NegativeLength:
        header.length = -header.length;
        break;
    case Fault::LongLength:
        header.length = qint32(framelayout::MaximumDataSize + 1);
        break;
    case Fault::WrongLength:
        header.length -= 1;
        break;
    case Fault::HugeSize:
        header.width = header.height = std::numeric_limits<quint16>::max();
        break;
    case Fault::Noise:
    case Fault::Torn:
        break;
    }
    return header;
}

void FrameWriter::storeNoise()
{
    for (std::size_t i = 0; i < framelayout::DataOffset; ++i)
        m_objects.view()[i] = uchar(m_random());
}
