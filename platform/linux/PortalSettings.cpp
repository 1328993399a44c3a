#include "platform/linux/PortalSettings.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

using namespace Qt::StringLiterals;

namespace
{

/// Values by the names of their group and their key.
using Groups = QMap<QString, QVariantMap>;

// The groups of all desktops, of GNOME and those that share its settings, and of Plasma.
constexpr QLatin1StringView Appearance("org.freedesktop.appearance");
constexpr QLatin1StringView Gnome("org.gnome.desktop.interface");
constexpr QLatin1StringView Plasma("org.kde.kdeglobals.KDE");

QDBusMessage question()
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        u"org.freedesktop.portal.Desktop"_s, u"/org/freedesktop/portal/desktop"_s,
        u"org.freedesktop.portal.Settings"_s, u"ReadAll"_s);
    call.setArguments({QStringList{Appearance, Gnome, Plasma}});
    return call;
}

bool isReducedMotionWanted(const Groups& groups)
{
    const QVariant factor = groups.value(Plasma).value(u"AnimationDurationFactor"_s);
    return groups.value(Appearance).value(u"reduced-motion"_s).toUInt() == 1 ||
           !groups.value(Gnome).value(u"enable-animations"_s, true).toBool() ||
           (factor.isValid() && factor.toDouble() == 0);
}

} // namespace

PortalSettings::PortalSettings()
    : m_bus(QDBusConnection::sessionBus())
{
    const QDBusMessage call = question();
    m_bus.connect(call.service(), call.path(), call.interface(), u"SettingChanged"_s, this,
                  SLOT(ask()));
}

/// The main thread does not wait for the portal.
void PortalSettings::ask()
{
    if (!m_bus.isConnected())
        return;
    const auto* const call = new QDBusPendingCallWatcher(m_bus.asyncCall(question()), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* reply) {
        reply->deleteLater();
        if (!reply->isError() && reply->reply().signature() == "a{sa{sv}}"_L1)
            emit reducedMotionAnswered(
                isReducedMotionWanted(qdbus_cast<Groups>(reply->reply().arguments().constFirst())));
    });
}
