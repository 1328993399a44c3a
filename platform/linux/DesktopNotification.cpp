#include "platform/DesktopNotification.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QVariantMap>

#include <utility>

using namespace Qt::StringLiterals;

namespace platform
{

/// The main thread does not wait for the desktop.
void notifyDesktop(const QString& title, const QString& text, const QObject* context,
                   std::function<void()> shown)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    const QString desktopEntry = u"com.vorn.VORNApp"_s; // also the name of the icon
    QDBusMessage message = QDBusMessage::createMethodCall(
        u"org.freedesktop.Notifications"_s, u"/org/freedesktop/Notifications"_s,
        u"org.freedesktop.Notifications"_s, u"Notify"_s);
    message.setArguments({u"VORNApp"_s, 0U, desktopEntry, title, text, QStringList(),
                          QVariantMap{{u"desktop-entry"_s, desktopEntry}}, -1});
    auto* const call = new QDBusPendingCallWatcher(bus.asyncCall(message));
    QObject::connect(call, &QDBusPendingCallWatcher::finished, call, &QObject::deleteLater);
    QObject::connect(call, &QDBusPendingCallWatcher::finished, context,
                     [call, shown = std::move(shown)] {
                         if (!call->isError())
                             shown();
                     });
}

} // namespace platform
