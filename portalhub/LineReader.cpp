#include "portalhub/LineReader.h"

using namespace channel;

void LineReader::append(QByteArrayView bytes)
{
    if (m_skipping) {
        const qsizetype end = bytes.indexOf('\n');
        if (end < 0)
            return;
        bytes = bytes.sliced(end + 1);
        m_skipping = false;
    }
    m_buffer.append(bytes);
}

std::optional<QByteArray> LineReader::next()
{
    for (;;) {
        const qsizetype end = m_buffer.indexOf('\n', m_searched);
        if (end < 0)
            break;
        QByteArray line = m_buffer.sliced(m_start, end - m_start);
        m_start = m_searched = end + 1;
        if (line.size() <= m_maxLength)
            return line;
        ++m_skipped;
    }
    m_buffer.remove(0, m_start);
    m_start = 0;
    m_searched = m_buffer.size();
    if (m_buffer.size() > m_maxLength)
        skip();
    return std::nullopt;
}

void LineReader::skip()
{
    ++m_skipped;
    m_skipping = true;
    m_buffer.clear();
    m_searched = 0;
}

void LineReader::reset()
{
    m_buffer.clear();
    m_start = m_searched = m_skipped = 0;
    m_skipping = false;
}
