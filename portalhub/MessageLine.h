#pragma once

#include <QByteArray>

#include <optional>
#include <string_view>

/// The channel's wire format: one message is one line, the decimal id, one blank, the JSON text
/// and a newline.
namespace channel
{

/// Longest line without its newline, in bytes. Longer ones are not sent and skipped when received.
inline constexpr qsizetype MaxLineLength = qsizetype{4} * 1024 * 1024;

struct Message {
    int id = 0;
    QByteArray text;
};

/// The line that carries @p text, newline included. Line breaks inside the text become blanks: JSON
/// has them only between its tokens.
QByteArray encodeLine(int id, std::string_view text);

/// Takes a line apart, given without its newline. Nothing when it does not begin with an id and a
/// blank; the text itself is not looked at.
std::optional<Message> parseLine(QByteArrayView line);

} // namespace channel
