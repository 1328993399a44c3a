#include "persistence/IniEdit.h"

#include <QByteArrayList>

#include <algorithm>
#include <string_view>

namespace
{

QByteArray encoded(const QVariant& value)
{
    QByteArray text = value.toString().toUtf8();
    text.replace('\\', "\\\\").replace('"', "\\\"").replace('\n', "\\n").replace('\r', "\\r");
    static constexpr std::string_view Special = ";,= \t\\@";
    const bool isPlain = !text.isEmpty() && std::none_of(text.cbegin(), text.cend(), [](char c) {
        return Special.find(c) != std::string_view::npos;
    });
    return isPlain ? text : '"' + text + '"';
}

bool isSection(const QByteArray& line)
{
    return line.trimmed().startsWith('[');
}

} // namespace

QByteArray withIniValue(const QByteArray& content, const QString& key, const QVariant& value)
{
    const qsizetype slash = key.indexOf(u'/');
    const QByteArray header = '[' + key.first(slash).toUtf8() + ']';
    const QByteArray name = key.sliced(slash + 1).toUtf8();
    const QByteArray end = content.contains("\r\n") ? "\r\n" : "\n";
    const QByteArray setting = name + '=' + encoded(value);

    QByteArrayList lines = content.split('\n');
    bool isInSection = false;
    qsizetype insertAt = -1;
    for (qsizetype at = 0; at < lines.size(); ++at) {
        const QByteArray line = lines[at].trimmed();
        if (isSection(line)) {
            isInSection = line == header;
        } else if (isInSection && line.left(line.indexOf('=')).trimmed() == name &&
                   line.contains('=')) {
            lines[at] = setting + (lines[at].endsWith('\r') ? "\r" : "");
            return lines.join('\n');
        }
        if (isInSection && !line.isEmpty())
            insertAt = at + 1;
    }
    if (insertAt < 0) {
        const QByteArray gap = content.isEmpty() ? "" : content.endsWith('\n') ? end : end + end;
        return content + gap + header + end + setting + end;
    }
    const QByteArray lineEnd = end == "\r\n" ? "\r" : "";
    lines.insert(insertAt, setting + lineEnd);
    return lines.join('\n');
}
