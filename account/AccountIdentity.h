#pragma once

#include <QString>

/// The signed-in user as the account client needs to know it. The client stores nothing of the user
/// and asks when it sends a request. Main thread.
class AccountIdentity
{
public:
    virtual ~AccountIdentity() = default;

    /// Account id given by the service. It may stay after a sign-out; the token does not.
    [[nodiscard]] virtual QString userId() const = 0;

    /// Session token given by the service, empty while nobody is signed in.
    [[nodiscard]] virtual QString token() const = 0;

    /// Avatar exactly as the service sent it: Base64 text without a prefix, possibly empty.
    [[nodiscard]] virtual QString rawPicture() const = 0;

protected:
    AccountIdentity() = default;
    AccountIdentity(const AccountIdentity&) = default;
    AccountIdentity& operator=(const AccountIdentity&) = default;
};
