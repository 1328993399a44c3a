#include "platform/linux/StatusNotifierHost.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace
{

const QString& service()
{
    static const QString s_name = u"org.kde.StatusNotifierWatcher"_s;
    return s_name;
}

const QString& path()
{
    static const QString s_path = u"/StatusNotifierWatcher"_s;
    return s_path;
}

} // namespace

StatusNotifierHost::StatusNotifierHost()
    : m_bus(QDBusConnection::sessionBus())
    , m_watcher(service(), m_bus, QDBusServiceWatcher::WatchForRegistration)
{
    connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &StatusNotifierHost::ask);
    // A panel may own the name for a while before it is ready for items.
    m_bus.connect(service(), path(), service(), u"StatusNotifierHostRegistered"_s, this,
                  SLOT(ask()));
}

/// The main thread does not wait for the panel.
void StatusNotifierHost::ask()
{
    if (!m_bus.isConnected()) { // no answer would come
        QMetaObject::invokeMethod(
            this, [this] { emit answered(false); }, Qt::QueuedConnection);
        return;
    }
    QDBusMessage question = QDBusMessage::createMethodCall(
        service(), path(), u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question.setArguments({service(), u"IsStatusNotifierHostRegistered"_s});
    question.setAutoStartService(true);
    const auto* const call = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* reply) {
        reply->deleteLater();
        const QDBusPendingReply<QDBusVariant> answer = *reply;
        emit answered(answer.isValid() && answer.value().variant().toBool());
    });
}
