#pragma once

#include "device/WindowRequests.h"

#include <QLocalServer>
#include <QMenu>
#include <QObject>
#include <QPoint>
#include <QSystemTrayIcon>

#include <chrono>
#include <memory>

class QLocalSocket;

/// The running instance's side of the single-instance mechanism, and the owner of the tray icon. A
/// second start connects to its local server, and the window comes forward. Main thread, except for
/// the requests of WindowRequests.
class WindowManager : public QObject, public WindowRequests
{
    Q_OBJECT

public:
    static const QString& serverName();

    /// @param peerWait  how long a second start may take to send its bytes
    explicit WindowManager(std::chrono::milliseconds peerWait = std::chrono::seconds(30));
    ~WindowManager() override;

    /// The program's own one, for code that cannot be given it.
    static WindowManager& instance();

    /// Puts the icon into the tray; none without the server. Not part of the construction, since
    /// the icon is a window of its own for which the main one would have to wait.
    void showTrayIcon();
    Q_INVOKABLE void hideToTray();
    /// Where the pointer is on the screens, in device-independent pixels.
    Q_INVOKABLE QPoint cursorPosition() const;

    /// Gives the server's name up, so that a start from now on becomes the first instance.
    void closeServer();

    void askToShow(bool show) override;
    void askToShowCheckRemote(bool show) override;

signals:
    /// true: the main window comes forward; false: it hides
    void requestShow(bool show);
    void requestShowCheckRemote(bool show);

public slots:
    void onNewConnection();
    void onTrayIconActivated(QSystemTrayIcon::ActivationReason reason);

private:
    bool listen();
    bool isServerAnswering() const;
    void createTrayIcon();
    void reopenAfter(QLocalSocket* socket);

    const std::chrono::milliseconds m_peerWait;
    QLocalServer* m_localServer;
    // The icon shows the menu but does not own it.
    std::unique_ptr<QMenu> m_trayMenu;
    QSystemTrayIcon* m_trayIcon = nullptr;
};
