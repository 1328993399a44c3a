#pragma once

#include <QString>

namespace channel
{

/// Name of the local socket on which the simulator listens and the library connects: an absolute
/// path on Linux, a pipe name on Windows. The environment variable VORN_PORTALHUB_SOCKET overrides
/// the default.
QString socketName();

} // namespace channel
