#pragma once

#include <QString>

namespace channel
{

/// Name of the local socket on which the simulator listens and the library connects: an absolute
/// path on Linux, a pipe name on Windows. The environment variable VORN_PORTALHUB_SOCKET overrides
/// the default.
QString socketName();

/// The folder in which the file of that socket appears, for watching it; empty for a pipe of
/// Windows, which has none.
QString folderOfSocket(const QString& name);

} // namespace channel
