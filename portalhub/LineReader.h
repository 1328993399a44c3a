#pragma once

#include <QByteArray>

#include <optional>

namespace channel
{

/// Splits a stream of bytes into lines. Holds at most one line of the maximum length and the bytes
/// appended last: a longer line is skipped up to its newline.
class LineReader
{
public:
    /// @p maxLength is the maximum length of a line in bytes, without its newline.
    explicit LineReader(qsizetype maxLength)
        : m_maxLength(maxLength)
    {
    }

    void append(QByteArrayView bytes);
    /// Takes the next complete line, without its newline. Nothing if there is none yet.
    std::optional<QByteArray> next();
    /// Drops all bytes and counts, for a new connection.
    void reset();

    /// Number of overlong lines skipped since the last reset.
    qsizetype skipped() const { return m_skipped; }

private:
    void skip();

    const qsizetype m_maxLength;
    QByteArray m_buffer;
    qsizetype m_start = 0;    // begin of the next line
    qsizetype m_searched = 0; // there is no newline from m_start up to here
    qsizetype m_skipped = 0;
    bool m_skipping = false;
};

} // namespace channel
