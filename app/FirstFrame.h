#pragma once

#include <QUrl>

#include <memory>

class QQmlApplicationEngine;
class QQmlComponent;
class WindowManager;
namespace platform
{
class ReducedMotion;
}

/// Brings the main window's first frame onto the screen early. Main thread.
///
/// Three measures shorten the time from the start to the first frame by about a tenth:
/// - The engine's own thread reads the main window's file and its imports while this thread makes
///   the objects that the pages bind to. To register a module, that thread posts an event to this
///   one and blocks until it is handled, which serveLoader() does.
/// - The main window is shown empty and creates its pages while the window system maps it: the two
///   Loader items in Main.qml, of which the one that is not needed first waits for the first frame.
/// - The tray icon, a window of its own, and the icon of the window are created after the first
///   frame, and the system is asked then whether the user wants animations.
class FirstFrame
{
public:
    /// Starts reading `mainWindow`. The engine has to outlive this object.
    FirstFrame(QQmlApplicationEngine& engine, const QUrl& mainWindow);
    ~FirstFrame();

    /// Handles the events of the engine's thread; no event loop runs yet.
    void serveLoader();
    /// Creates the main window; false when that fails. The rest follows the first frame, or
    /// comes after two seconds: a window that is not visible, on another workspace for example,
    /// draws no frame.
    bool load(WindowManager& windows);

private:
    void finishAfterwards(WindowManager& windows);
    void followReducedMotion();

    QQmlApplicationEngine& m_engine;
    const QUrl m_mainWindow;
    std::unique_ptr<QQmlComponent> m_pages; // only read ahead; the engine creates the window
    std::unique_ptr<platform::ReducedMotion> m_motion;
};
