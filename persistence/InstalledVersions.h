#pragma once

#include <QString>

/// A value of the program's registry key as text, empty when there is none; used for the versions
/// that the updater records. Any thread.
/// @param name  one of keys::registry
[[nodiscard]] QString installedVersionValue(const QString& name);
