#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

/// Lets a screen reader speak a message at once, wherever the focus is. QML sees it as `announcer`.
/// Main thread.
class Announcer : public QObject
{
    Q_OBJECT

public:
    Announcer();

    /// Messages that come at the same time are spoken as one. Nothing happens without a screen
    /// reader, and while no window of the program is visible.
    Q_INVOKABLE void announce(const QString& message);

    const QString& message() const { return m_message; }

private:
    void speak();

    QStringList m_waiting;
    QString m_message;
    QTimer m_timer;
};
