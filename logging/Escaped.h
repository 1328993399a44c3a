#pragma once

#include <string>
#include <string_view>

namespace Log
{

/// UTF-8 text in which control characters and line separators are replaced by escapes such as \n
/// and \x1b, so that the text of another program cannot look like further lines of the log.
[[nodiscard]] std::string escaped(std::string_view text);

} // namespace Log
