#pragma once

#include <QString>

namespace platform
{

/// Path of the loaded program or library that contains `address`, with links resolved; empty if
/// there is none. Any thread.
[[nodiscard]] QString loadedLibrary(const void* address);

} // namespace platform
