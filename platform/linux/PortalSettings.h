#pragma once

#include <QDBusConnection>
#include <QMap>
#include <QObject>
#include <QVariantMap>

/// Asks the desktop's settings portal for the user's wish about animations. Main thread.
class PortalSettings : public QObject
{
    Q_OBJECT

public:
    PortalSettings();

public slots:
    void ask();

signals:
    /// The answer to ask(), which is also given when a setting changes.
    void reducedMotionAnswered(bool isWanted);

private:
    QDBusConnection m_bus;
};
