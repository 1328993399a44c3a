#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

/// Asks on the session bus for a host of StatusNotifier items, as the panels of most desktops are.
/// Main thread.
class StatusNotifierHost : public QObject
{
    Q_OBJECT

public:
    StatusNotifierHost();

public slots:
    void ask();

signals:
    /// The answer to ask(), which is also given when a host appears.
    void answered(bool isRegistered);

private:
    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
};
