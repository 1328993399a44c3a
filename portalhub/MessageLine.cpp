#include "portalhub/MessageLine.h"

#include <charconv>
#include <system_error>

QByteArray channel::encodeLine(int id, std::string_view text)
{
    QByteArray line = QByteArray::number(id);
    line.reserve(line.size() + qsizetype(text.size()) + 2);
    line.append(' ');
    line.append(text.data(), qsizetype(text.size()));
    line.replace('\n', ' ').replace('\r', ' ');
    line.append('\n');
    return line;
}

std::optional<channel::Message> channel::parseLine(QByteArrayView line)
{
    Message message;
    const auto [end, error] = std::from_chars(line.begin(), line.end(), message.id);
    if (error != std::errc() || end == line.end() || *end != ' ')
        return std::nullopt;
    message.text = line.sliced(end - line.begin() + 1).toByteArray();
    return message;
}
