#pragma once

#include <QByteArray>

#include <optional>

namespace channel
{

/// Cuts a stream of bytes into lines without ever holding more than one line of the permitted
/// length plus the piece appended last: what grows longer is skipped up to its newline.
class LineReader
{
public:
    /// @p maxLength is the longest line handed out, in bytes without its newline.
    explicit LineReader(qsizetype maxLength)
        : m_maxLength(maxLength)
    {
    }

    void append(QByteArrayView bytes);
    /// The next whole line without its newline, or nothing until more bytes come.
    std::optional<QByteArray> next();
    /// Forgets everything, for a new connection.
    void reset();

    /// Number of overlong lines skipped since the last reset.
    qsizetype skipped() const { return m_skipped; }

private:
    void skip();

    const qsizetype m_maxLength;
    QByteArray m_buffer;
    qsizetype m_start = 0;    // where the next line begins
    qsizetype m_searched = 0; // no newline between m_start and here
    qsizetype m_skipped = 0;
    bool m_skipping = false;
};

} // namespace channel
