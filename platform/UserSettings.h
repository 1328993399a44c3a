#pragma once

#include <QString>

namespace platform
{

/// Folder for the settings of a user who cannot write in `installed`, the program's folder. It is
/// created with copies of the two configuration files; the user's changes to them are kept. Where
/// it cannot be made, `installed`. Any thread.
[[nodiscard]] QString userSettingsFolder(const QString& installed);

} // namespace platform
