#pragma once

#include "app/Interface.h"
#include "app/SignedInAccount.h"
#include "app/WindowManager.h"
#include "device/DeviceControl.h"
#include "device/PortalHubChannel.h"
#include "launch/SystemMeetingLauncher.h"
#include "launch/SystemProgramControl.h"
#include "persistence/FileInfo.h"

#include <QQmlContext>

#include <optional>

/// The program's long-lived objects: makes them in order, gives them to QML, and closes them in
/// reverse order. Lives between the application object and the end of the event loop.
class Program
{
public:
    /// @param executablePath  file path of the running program
    explicit Program(const QString& executablePath);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    void publish(QQmlContext* context);
    /// Starts delivery of the display's messages.
    void openChannel();
    /// No message of the display is handled after this.
    void closeChannel();
    /// Nothing of the program's runs beside the calling thread after this, which may be any. For an
    /// end of the process without an end of this object.
    void endThreads();
    WindowManager& windowManager() { return *m_windowManager; }

private:
    Interface& objects();
    DeviceControl::Services deviceServices(const QString& executablePath);

    PortalHubChannel m_channel;
    SystemProgramControl m_programs;
    SignedInAccount m_account;
    std::optional<FileInfo> m_fileInfo;
    std::optional<SystemMeetingLauncher> m_meetings;
    std::optional<WindowManager> m_windowManager;
    std::optional<Interface> m_interface;
    std::optional<DeviceControl> m_deviceControl;
};
