#pragma once

#include <QString>
#include <QVariant>

/// The registry: on Windows the real one, on Linux one INI file per user. Any thread; values
/// written by other processes are seen at once, and processes that write at the same time keep each
/// other's.
namespace platform
{

/// Name of a key's default value.
inline constexpr char16_t kDefaultValueName[] = u"Default";

/// The value, or an invalid one when it is absent or cannot be read.
/// @param keyPath  for example HKEY_CURRENT_USER\\Software\\Maker
[[nodiscard]] QVariant readRegistry(const QString& keyPath, const QString& name);

/// Stores a value and waits until it is written; false when it could not be.
bool writeRegistry(const QString& keyPath, const QString& name, const QVariant& value);

} // namespace platform
