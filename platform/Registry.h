#pragma once

#include <QString>
#include <QVariant>

/// The registry: the real one on Windows, one INI file per user on Linux. Any thread. Values that
/// other processes write are visible at once, and concurrent writers do not overwrite each other's
/// values.
namespace platform
{

/// Name under which the default value of a key is addressed.
inline constexpr char16_t DefaultValueName[] = u"Default";

/// The value; invalid if it is absent or cannot be read.
/// @param keyPath  for example HKEY_CURRENT_USER\\Software\\Maker
[[nodiscard]] QVariant readRegistry(const QString& keyPath, const QString& name);

/// Stores a value and waits until it is written. False if writing failed.
bool writeRegistry(const QString& keyPath, const QString& name, const QVariant& value);

} // namespace platform
