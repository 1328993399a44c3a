#pragma once

#include <string>
#include <string_view>

namespace Log
{

/// UTF-8 text of another program, made fit for one line of the log: control characters and line
/// separators become escapes such as \n and \x1b, so that the text cannot look like further lines.
[[nodiscard]] std::string escaped(std::string_view text);

} // namespace Log
