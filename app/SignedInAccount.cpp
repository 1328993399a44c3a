#include "app/SignedInAccount.h"

#include "device/DeviceControl.h"

QString SignedInAccount::userId() const
{
    return DeviceControl::instance().userId();
}

QString SignedInAccount::token() const
{
    return DeviceControl::instance().token();
}

QString SignedInAccount::rawPicture() const
{
    return DeviceControl::instance().rawPicture();
}
