#pragma once

#include "device/WindowRequests.h"
#include "platform/SystemTray.h"

#include <QLocalServer>
#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>

#include <chrono>
#include <memory>

class QLocalSocket;

/// Running instance's side of the single-instance mechanism, and owner of the tray icon. A second
/// start connects to the local server, and the window is shown or the program ends. Main thread,
/// except for the requests of WindowRequests, which any thread may make.
class WindowManager : public QObject, public WindowRequests
{
    Q_OBJECT

public:
    static const QString& serverName();

    /// @param peerWait  time that a second start is given to send its bytes
    explicit WindowManager(std::chrono::milliseconds peerWait = std::chrono::seconds(30));
    ~WindowManager() override;

    /// Shows the tray icon as soon as there is a tray; there is none without the server. Not done
    /// by the constructor, because creating the icon's window would delay the main window.
    void showTrayIcon();
    Q_INVOKABLE void hideToTray();
    /// Whether an earlier run has said that the program continues when its window is closed.
    void setCloseExplained(bool explained) { m_closeExplained = explained; }

    /// Releases the server's name, so that a new start can become the first instance.
    void closeServer();

    void askToShow(bool show) override;
    void askToShowCheckRemote(bool show) override;

signals:
    /// @param show  true: show and raise the main window; false: hide it
    void requestShow(bool show);
    void requestShowCheckRemote(bool show);
    /// The message was shown, which has to be remembered for later runs.
    void closeExplained();

public slots:
    void onNewConnection();
    void onTrayIconActivated(QSystemTrayIcon::ActivationReason reason);

private:
    bool listen();
    bool isServerAnswering() const;
    void createTrayIcon(platform::SystemTray::Opening opening);
    void explainClose();
    void reopenAfter(QLocalSocket* socket);
    void quitFor(QLocalSocket* socket);

    const std::chrono::milliseconds m_peerWait;
    QLocalServer* m_localServer;
    std::unique_ptr<QMenu> m_trayMenu; // the icon does not own its menu
    QSystemTrayIcon* m_trayIcon = nullptr;
    platform::SystemTray::Opening m_opening = platform::SystemTray::Opening::DoubleClick;
    std::unique_ptr<platform::SystemTray> m_tray;
    bool m_closeExplained = false;
};
