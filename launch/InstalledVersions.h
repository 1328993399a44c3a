#pragma once

#include <QString>

/// The versions that the updater records in the registry. Read only; any thread.
namespace InstalledVersions
{

/// The recorded version, empty when there is none.
/// @param name  "version": the installed application; "newver": a newer package that was found
[[nodiscard]] QString read(const QString& name);

} // namespace InstalledVersions
