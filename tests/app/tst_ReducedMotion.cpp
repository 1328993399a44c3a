#include "platform/ReducedMotion.h"

#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QTest>
#include <QVariantMap>

using namespace Qt::StringLiterals;

/// The settings portal of a desktop.
class Portal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    void set(const QString& group, const QString& key, const QVariant& value)
    {
        m_groups = {{group, {{key, value}}}};
        emit SettingChanged(group, key, QDBusVariant(value));
    }

public slots:
    QMap<QString, QVariantMap> ReadAll(const QStringList&) const { return m_groups; }

signals:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    QMap<QString, QVariantMap> m_groups;
};

class tst_ReducedMotion : public QObject
{
    Q_OBJECT

private slots:
    void followsTheDesktop();
};

void tst_ReducedMotion::followsTheDesktop()
{
    qDBusRegisterMetaType<QMap<QString, QVariantMap>>();
    Portal portal;
    QDBusConnection bus = QDBusConnection::sessionBus();
    QVERIFY2(bus.registerService(u"org.freedesktop.portal.Desktop"_s),
             "there is no session bus, or it has a portal");
    bus.registerObject(u"/org/freedesktop/portal/desktop"_s, &portal,
                       QDBusConnection::ExportAllContents);
    std::optional<bool> isReduced;
    const platform::ReducedMotion motion([&isReduced](bool isWanted) { isReduced = isWanted; });
    QTRY_COMPARE(isReduced, false);
    portal.set(u"org.gnome.desktop.interface"_s, u"enable-animations"_s, false);
    QTRY_COMPARE(isReduced, true);
    portal.set(u"org.kde.kdeglobals.KDE"_s, u"AnimationDurationFactor"_s, u"1"_s);
    QTRY_COMPARE(isReduced, false);
    portal.set(u"org.kde.kdeglobals.KDE"_s, u"AnimationDurationFactor"_s, u"0"_s);
    QTRY_COMPARE(isReduced, true);
    portal.set(u"org.freedesktop.appearance"_s, u"reduced-motion"_s, 0U);
    QTRY_COMPARE(isReduced, false);
    portal.set(u"org.freedesktop.appearance"_s, u"reduced-motion"_s, 1U);
    QTRY_COMPARE(isReduced, true);
}

QTEST_GUILESS_MAIN(tst_ReducedMotion)
#include "tst_ReducedMotion.moc"
