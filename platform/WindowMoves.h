#pragma once

namespace platform
{

/// True where a program cannot position its windows and asks the window system to move them. Main
/// thread, while the application object exists.
[[nodiscard]] bool systemMovesWindows();

} // namespace platform
