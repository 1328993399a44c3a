#pragma once

#include <QByteArray>

#include <optional>
#include <string_view>

/// The wire format of the channel. A message is one line: the decimal id, one blank, the JSON text
/// and a newline.
namespace channel
{

/// Maximum length of a line in bytes, without its newline. A longer line is not sent, and skipped
/// when received.
inline constexpr qsizetype MaxLineLength = qsizetype{4} * 1024 * 1024;

struct Message {
    int id = 0;
    QByteArray text;
};

/// The line for @p text, including its newline. Line breaks in the text become blanks, which does
/// not change JSON, because it has line breaks only between tokens.
QByteArray encodeLine(int id, std::string_view text);

/// Parses a line without its newline. Nothing if it does not begin with an id and a blank. The text
/// is not checked.
std::optional<Message> parseLine(QByteArrayView line);

} // namespace channel
