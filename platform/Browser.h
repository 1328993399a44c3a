#pragma once

#include <QUrl>

namespace platform
{

/// Opens an address in the user's browser. False when the address is invalid or no browser was
/// started. Any thread, unlike QDesktopServices, so that a launch does not wait for the main
/// thread.
bool openInBrowser(const QUrl& address);

} // namespace platform
