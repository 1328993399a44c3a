#include "platform/DesktopNotification.h"

namespace platform
{

void notifyDesktop(const QString& /*title*/, const QString& /*text*/, const QObject* /*context*/,
                   std::function<void()> /*shown*/)
{
}

} // namespace platform
