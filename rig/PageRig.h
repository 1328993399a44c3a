#pragma once

#include "app/WindowPlace.h"
#include "peripherals/CameraControl.h"
#include "qml/Announcer.h"
#include "rig/Fakes.h"
#include "simulator/account/AccountService.h"

#include "account/NetworkManager.h"
#include "rig/ScreenRig.h"

#include <QVariant>

class QQmlContext;
class QQuickItem;
class QQuickView;

/// Turns a loaded page as the program's window turns it, in a language that is written from right
/// to left.
void mirrorLayout(const QQuickView& view);

/// Window manager that counts the calls.
class PageWindows : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int hidden MEMBER m_hidden)

public:
    Q_INVOKABLE void hideToTray() { ++m_hidden; }

signals:
    void requestShow(bool show);
    void requestShowCheckRemote(bool show);

private:
    int m_hidden = 0;
};

/// The objects behind the pages in a test: the program's DeviceControl, CameraControl and
/// NetworkManager, connected to a fake channel, fake devices and the simulator's account service.
/// QML sees it as `rig`. Create one for each test file.
class PageRig : public QObject
{
    Q_OBJECT

public:
    PageRig();

    void publish(QQmlContext* context);

    /// Texts of the messages sent to the display since the last call.
    Q_INVOKABLE QStringList takeMessageTexts();
    /// Delivers a message from the display.
    Q_INVOKABLE void report(int id, const QString& json);
    /// Sets what the device check finds; the states follow within milliseconds.
    Q_INVOKABLE void plug(bool microphone, bool speaker, bool camera);
    /// Tasks posted since the last call, each "name argument argument...".
    Q_INVOKABLE QStringList takeTasks();
    /// Requests to start, keep alive or kill programs, in their order.
    Q_INVOKABLE QStringList programCalls() const { return m_world.programs.calls(); }
    /// Sets the registry value "version" or "newver".
    Q_INVOKABLE void setInstalledVersion(const QString& name, const QString& value);

    /// Adds an account to the service; keys as in its profile, with "password".
    Q_INVOKABLE void addAccount(const QVariantMap& account);
    /// What the service has stored for an account: its userId, lastName, title and picture.
    Q_INVOKABLE QVariantMap account(const QString& email);
    /// Revokes the account's tokens.
    Q_INVOKABLE void endSessions(const QString& email);
    /// Writes a PNG file padded to `size` bytes and returns its URL.
    Q_INVOKABLE QString makePicture(const QString& name, int size);
    /// Truncates the picture to its PNG data.
    Q_INVOKABLE void truncatePicture(const QString& name);
    /// Requests received by the service since the last call, each "METHOD path?query".
    Q_INVOKABLE QStringList takeRequests();
    /// Makes the service unreachable.
    Q_INVOKABLE void stopService() { m_service.close(); }

    /// Messages for a screen reader since the last call. Needs accessibility switched on.
    Q_INVOKABLE QStringList takeSpoken();
    /// Names of the usable controls that a screen reader finds in the item's window, sorted. A
    /// password field has its name in its description.
    Q_INVOKABLE QStringList exposedControls(QQuickItem* item) const;

private:
    // Destroyed last: DeviceControl posts a task when it ends.
    QStringList m_tasks;
    QStringList m_requests;
    DeviceWorld m_world;
    CameraControl m_camera;
    ScreenRig m_screen;
    AccountService m_service;
    std::optional<NetworkManager> m_network;
    Announcer m_announcer;
    PageWindows m_windows;
    WindowPlace m_windowPlace;
};
