#pragma once

#include "app/Interface.h"
#include "app/WindowManager.h"
#include "app/WindowPlace.h"
#include "device/DeviceControl.h"
#include "device/PortalHubChannel.h"
#include "launch/ProcessManager.h"
#include "persistence/FileInfo.h"
#include "qml/Announcer.h"

#include <QQmlContext>

#include <optional>

/// The program's long-lived objects: makes them, publishes them to QML, and closes them in reverse
/// order of their declaration. Lives between the application object and the end of the event loop.
class Program
{
public:
    /// @param executablePath  file path of the running program
    explicit Program(const QString& executablePath);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    void publish(QQmlContext* context);
    /// Starts the delivery of the display's messages.
    void openChannel();
    /// No message of the display is handled after this.
    void closeChannel();
    /// Ends every thread of the program but the calling one, which may be any. For a process that
    /// ends without the destruction of this object.
    void endThreads();
    WindowManager& windowManager() { return *m_windowManager; }

private:
    DeviceControl::Services deviceServices(const QString& executablePath);

    PortalHubChannel m_channel;
    UserProfile m_profile;
    Announcer m_announcer;
    WindowPlace m_windowPlace;
    std::optional<FileInfo> m_fileInfo;
    std::optional<ProcessManager> m_programs;
    std::optional<WindowManager> m_windowManager;
    std::optional<Interface> m_interface;
    // Made before the interface, but ends first, since its threads write to the user's settings.
    std::optional<DeviceControl> m_deviceControl;
};
