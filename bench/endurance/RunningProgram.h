#pragma once

#include "app/Program.h"

#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <memory>

/// The program in this process, composed as its main() does, windows included. The QML files come
/// from the source tree.
class RunningProgram
{
public:
    static constexpr int KeptLogFiles = 5; ///< of earlier runs

    RunningProgram();
    /// Ends the program as the tray's "Quit" does.
    ~RunningProgram();
    Q_DISABLE_COPY_MOVE(RunningProgram)

    DeviceControl& device() const { return *m_device; }
    NetworkManager& network() const { return *m_network; }
    CameraControl& camera() const { return *m_camera; }

    /// Starts the display's first set-up, as the button on the page of meetings does, which opens
    /// the monitor window.
    void startSetup() const;
    /// Closes the monitor window if it is open.
    void closeMonitor() const;

private:
    QQuickWindow* monitor() const;

    std::unique_ptr<QQmlApplicationEngine> m_engine;
    std::unique_ptr<Program> m_program;
    DeviceControl* m_device = nullptr;
    NetworkManager* m_network = nullptr;
    CameraControl* m_camera = nullptr;
};
