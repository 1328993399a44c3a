#pragma once

#include <QByteArray>
#include <QString>

namespace platform
{

/// Full path of a tool in the system folder, so that a program of the same name elsewhere, for
/// example beside ours, is never run.
[[nodiscard]] QString systemTool(const QString& path);

/// Converts the output of such a tool, which is in the system's OEM code page.
QString toolOutput(const QByteArray& text);

} // namespace platform
