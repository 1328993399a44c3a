#pragma once

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
    enum class Saved { Done, Failed, Locked };

    virtual ~UserSettings() = default;

    /// The stored value, or `defaultValue` when there is none or the store cannot be read.
    virtual QVariant getUserData(const QString& key, const QVariant& defaultValue) = 0;
    /// Stores one value. A write of an ended sign-in is dropped and counts as done.
    virtual bool saveUserData(const QString& key, const QVariant& value, quint64 signIn) = 0;
    /// The same, but a store that another program has locked is no failure yet and is not logged.
    virtual Saved trySaveUserData(const QString& key, const QVariant& value, quint64 signIn) = 0;
    /// Removes every value and ends the current sign-in.
    virtual bool clearUserData() = 0;
    /// Number of the current sign-in, to be handed to saveUserData(). Any thread.
    virtual quint64 currentSignIn() const = 0;
};
