#include "ScreenReader.h"

#include <QDBusConnection>

using namespace Qt::StringLiterals;

namespace
{

// The service that leads Qt to the bus of screen readers, here the session bus.
class AccessibilityBus : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.a11y.Bus")

public:
    using QObject::QObject;

public slots:
    QString GetAddress() const { return qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"); }
};

} // namespace

void actAsScreenReader(QObject* owner)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.registerObject(u"/org/a11y/bus"_s, new AccessibilityBus(owner),
                       QDBusConnection::ExportAllSlots);
    bus.registerService(u"org.a11y.Bus"_s);
}

#include "ScreenReader.moc"
