#pragma once

#include <QString>

namespace platform
{

/// Writes a closed file, and its name in its folder, through to the disk, so that both survive a
/// loss of power. Blocks until then; false when that fails. Any thread.
[[nodiscard]] bool syncFile(const QString& path);

} // namespace platform
