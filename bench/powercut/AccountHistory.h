#pragma once

#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QString>

/// A sequence of account changes that depends on its seed only, so that one program can make the
/// changes and another one knows each state that they lead to.
class AccountHistory
{
public:
    enum class Kind { SignIn, Profile, SignOut };
    struct Step {
        Kind kind = Kind::SignOut;
        QJsonObject reply;             ///< of the account service; empty for a sign-out
        bool isAwaited = true;         ///< whether the user waits until the change is stored
        bool isLocked = false;         ///< whether another program locks the database meanwhile
        QMap<QString, QString> stored; ///< the user's data after the step; none when signed out
    };

    AccountHistory(quint32 seed, int stepCount);

    /// Step 0 is the state before the first change: signed out.
    const QList<Step>& steps() const { return m_steps; }

private:
    QList<Step> m_steps;
};
