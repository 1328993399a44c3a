#pragma once

#include <QList>
#include <QString>
#include <QVariant>

/// The signed-in user's data as keys and values that survive a restart.
///
/// The main thread reads and clears, the task thread writes. A write may run long after it was
/// posted, so it carries the number of its sign-in: clearUserData() ends the sign-in, and writes of
/// it are dropped from then on.
class UserSettings
{
public:
    struct Value {
        QString key;
        QVariant value;
    };
    enum class Saved { Done, Failed, Locked };
    /// Handling of a store that another program has locked: reported as Saved::Locked, to be tried
    /// again, or logged as a failure.
    enum class OnLock { Report, Fail };

    virtual ~UserSettings() = default;

    /// The stored value, or `defaultValue` when there is none or the store cannot be read.
    virtual QVariant getUserData(const QString& key, const QVariant& defaultValue) = 0;
    /// Stores all of the values or none. A write of an ended sign-in is dropped and counts as done.
    virtual Saved saveUserData(const QList<Value>& values, quint64 signIn, OnLock onLock) = 0;
    /// Removes every value and ends the current sign-in.
    virtual bool clearUserData() = 0;
    /// Number of the current sign-in, to be handed to saveUserData(). Any thread.
    virtual quint64 currentSignIn() const = 0;
};
