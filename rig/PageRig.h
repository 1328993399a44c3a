#pragma once

#include "peripherals/CameraControl.h"
#include "rig/Fakes.h"
#include "simulator/account/AccountService.h"

#include "account/NetworkManager.h"
#include "rig/ScreenRig.h"

#include <QPoint>
#include <QVariant>

class QQmlContext;

/// Stands in for the window manager: remembers what it was asked for.
class PageWindows : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int hidden MEMBER m_hidden)
    Q_PROPERTY(QPoint cursor MEMBER m_cursor)

public:
    Q_INVOKABLE void hideToTray() { ++m_hidden; }
    Q_INVOKABLE QPoint cursorPosition() const { return m_cursor; }

signals:
    void requestShow(bool show);
    void requestShowCheckRemote(bool show);

private:
    int m_hidden = 0;
    QPoint m_cursor;
};

/// What stands behind the pages in a test, as `rig` in QML: the program's own DeviceControl,
/// CameraControl and NetworkManager between a fake channel, fake devices and the simulator's
/// account service. One rig serves one test file.
class PageRig : public QObject
{
    Q_OBJECT

public:
    PageRig();

    void publish(QQmlContext* context);

    /// Messages sent to the display since the last call: objects with the channel id as "id" and
    /// the text as "text".
    Q_INVOKABLE QVariantList takeMessages();
    /// The same, as a list of texts.
    Q_INVOKABLE QStringList takeMessageTexts();
    /// The display sends this message.
    Q_INVOKABLE void report(int id, const QString& json);
    /// What the PC's device check finds; the states follow within milliseconds.
    Q_INVOKABLE void plug(bool microphone, bool speaker, bool camera);
    /// Tasks posted since the last call, each "name argument argument...".
    Q_INVOKABLE QStringList takeTasks();
    /// Calls that started, kept or killed programs, in their order.
    Q_INVOKABLE QStringList programCalls() const { return m_world.programs.calls(); }
    /// The registry's "version" or "newver".
    Q_INVOKABLE void setInstalledVersion(const QString& name, const QString& value);

    /// Adds an account to the service; keys as in its profile, with "password".
    Q_INVOKABLE void addAccount(const QVariantMap& account);
    /// The service's own record of an account, without its password.
    Q_INVOKABLE QVariantMap account(const QString& email);
    /// Ends the account's sessions, as an expiry would.
    Q_INVOKABLE void endSessions(const QString& email);
    /// Writes a PNG file padded to that many bytes and returns its URL.
    Q_INVOKABLE QString makePicture(const QString& name, int size);
    /// Cuts a picture that was made down to what it shows.
    Q_INVOKABLE void truncatePicture(const QString& name);
    /// The requests that the service has had since the last call, each "METHOD path?query".
    Q_INVOKABLE QStringList takeRequests();
    /// Takes the service off the network.
    Q_INVOKABLE void stopService() { m_service.close(); }

private:
    DeviceWorld m_world;
    CameraControl m_camera;
    ScreenRig m_screen;
    AccountService m_service;
    std::optional<NetworkManager> m_network;
    PageWindows m_windows;
    QStringList m_tasks;
    QStringList m_requests;
};
