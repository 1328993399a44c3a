#pragma once

#include <QObject>
#include <QString>

/// Lets a screen reader speak a message at once, wherever the focus is. QML sees it as `announcer`.
/// Main thread.
class Announcer : public QObject
{
    Q_OBJECT

public:
    Announcer();

    /// Does nothing without a screen reader, and while no window of the program is visible.
    Q_INVOKABLE void announce(const QString& message);

    const QString& message() const { return m_message; }

private:
    QString m_message;
};
