#include "logging/Escaped.h"

namespace
{

/// Number of bytes of the control character or line separator at the start of the text; otherwise
/// 0.
std::size_t unprintableLength(std::string_view text)
{
    const auto first = static_cast<unsigned char>(text[0]);
    if (first < 0x20 || first == 0x7f)
        return 1;
    // U+0080 to U+009F are control characters as well.
    if (first == 0xc2 && text.size() > 1 && static_cast<unsigned char>(text[1]) < 0xa0)
        return 2;
    if (text.starts_with("\u2028") || text.starts_with("\u2029"))
        return 3;
    return 0;
}

void appendEscape(std::string& result, char byte)
{
    constexpr char Digits[] = "0123456789abcdef";
    const auto value = static_cast<unsigned char>(byte);
    result += "\\x";
    result += Digits[value >> 4];
    result += Digits[value & 0xf];
}

} // namespace

std::string Log::escaped(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = unprintableLength(text);
        if (length == 0)
            result += text[0];
        else if (text[0] == '\n')
            result += "\\n";
        else
            for (const char byte : text.substr(0, length))
                appendEscape(result, byte);
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return result;
}
