#pragma once

#include <QString>

/// A version that the updater records in the registry, empty when there is none. The program only
/// reads them. Any thread.
/// @param name  keys::registry::InstalledVersion or NewVersion
[[nodiscard]] QString installedVersionValue(const QString& name);
