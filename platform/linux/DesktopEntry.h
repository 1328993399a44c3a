#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

/// Reads the program out of a desktop entry. Pure functions, any thread.
namespace platform
{

/// The program of the entry's Exec line, unresolved and without arguments. Empty if the text has
/// none. For a command that starts with `env`, the program that env starts.
[[nodiscard]] std::optional<QString> programOfDesktopEntry(QByteArrayView text);

} // namespace platform
