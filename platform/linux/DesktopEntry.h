#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <optional>

/// The part of a desktop entry that names the program. Pure functions.
namespace platform
{

/// The program of the entry's Exec line as it stands there, without arguments, or nothing when the
/// text has none. A program started through `env` is the one that env starts.
[[nodiscard]] std::optional<QString> programOfDesktopEntry(QByteArrayView text);

/// Splits an Exec value into program and arguments: quotes and escapes resolved, field codes (%U)
/// removed. Nothing when a quote is not closed.
[[nodiscard]] std::optional<QStringList> splitExecLine(const QString& line);

} // namespace platform
