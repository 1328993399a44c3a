#pragma once

#include "account/AccountIdentity.h"

/// The signed-in user as DeviceControl keeps it, for the account client. Each question goes to the
/// program's DeviceControl, which does not exist yet while the client is made.
class SignedInAccount : public AccountIdentity
{
public:
    QString userId() const override;
    QString token() const override;
    QString rawPicture() const override;
};
