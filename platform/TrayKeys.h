#pragma once

/// Choice of the program's tray icon by keyboard, which Qt on Windows reports as a click with the
/// mouse (QSystemTrayIcon::Trigger). Main thread.
namespace platform
{

/// To be called each time after the icon was shown. Has no effect on Linux, where the desktop
/// reports keys on its own, and when the icon is already watched.
void watchTrayKeys();

/// True while Qt reports that the icon was chosen with Enter or the space bar. False on Linux.
[[nodiscard]] bool isTrayKeyPress();

} // namespace platform
