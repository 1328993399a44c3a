#pragma once

#include <QString>

/// Who is signed in, as the account client needs to know it. NetworkManager keeps no user state of
/// its own and asks at the moment of each request. Called on the main thread only.
class AccountIdentity
{
public:
    virtual ~AccountIdentity() = default;

    /// Account id given by the service. May outlive a sign-out: an empty token is what says
    /// "nobody".
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
