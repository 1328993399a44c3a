#pragma once

#include <functional>
#include <memory>

namespace platform
{

/// Finds the tray of the desktop, which may start after the program. Main thread, while the
/// application object exists.
class SystemTray
{
public:
    /// What the user does with an icon of the tray to open its window.
    enum class Opening { DoubleClick, Activation };

    /// @param found  called once, from the event loop, when there is a tray. A QSystemTrayIcon has
    ///               to be created then and not before: Qt up to 6.4 looks for the kind of tray
    ///               once in a process.
    explicit SystemTray(std::function<void(Opening opening)> found);
    ~SystemTray();
    SystemTray(const SystemTray&) = delete;
    SystemTray& operator=(const SystemTray&) = delete;

private:
    class Private;
    std::unique_ptr<Private> m_private;
};

} // namespace platform
