#include "ProgramRun.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusInterface>
#include <QDBusReply>
#include <QDBusVariant>

#include <csignal>

using namespace Qt::StringLiterals;

namespace
{

constexpr int Patience = 30000;

} // namespace

/// The side of a panel that shows StatusNotifier items.
class Panel : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)

public:
    Panel()
    {
        m_bus.registerObject(u"/StatusNotifierWatcher"_s, this, QDBusConnection::ExportAllContents);
        m_bus.registerService(u"org.kde.StatusNotifierWatcher"_s);
    }

    ~Panel() override { m_bus.unregisterService(u"org.kde.StatusNotifierWatcher"_s); }

    void showItems()
    {
        m_hasHost = true;
        emit StatusNotifierHostRegistered();
    }

    /// Notes that the program has asked.
    bool hasHost()
    {
        m_wasAsked = true;
        return m_hasHost;
    }
    bool wasAsked() const { return m_wasAsked; }
    bool hasItem() const { return !m_item.isEmpty(); }

    QString toolTip() const
    {
        QDBusInterface properties(m_item, u"/StatusNotifierItem"_s,
                                  u"org.freedesktop.DBus.Properties"_s, m_bus);
        const QDBusReply<QDBusVariant> reply =
            properties.call(u"Get"_s, u"org.kde.StatusNotifierItem"_s, u"ToolTip"_s);
        const auto parts = reply.value().variant().value<QDBusArgument>();
        QString iconName;
        QString title;
        parts.beginStructure();
        parts >> iconName;
        (void)parts.asVariant(); // the picture
        parts >> title;
        return title;
    }

    void activate() const
    {
        QDBusInterface(m_item, u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s, m_bus)
            .call(u"Activate"_s, 0, 0);
    }

public slots:
    void RegisterStatusNotifierItem(const QString&) { m_item = message().service(); }

signals:
    void StatusNotifierHostRegistered();

private:
    QDBusConnection m_bus = QDBusConnection::sessionBus();
    bool m_hasHost = false;
    bool m_wasAsked = false;
    QString m_item;
};

/// The side of a desktop that shows notifications.
class Notifications : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QString text;

public slots:
    uint Notify(const QString&, uint, const QString&, const QString&, const QString& body,
                const QStringList&, const QVariantMap&, int)
    {
        text = body;
        return 1;
    }
};

/// Uses the program from a panel that knows StatusNotifier items, on a screen without another tray.
class tst_TrayItem : public QObject
{
    Q_OBJECT

private slots:
    void oneActivationOpensTheWindow_data();
    void oneActivationOpensTheWindow();
    void closeIsExplainedWithoutATray();
};

void tst_TrayItem::oneActivationOpensTheWindow_data()
{
    QTest::addColumn<bool>("panelFirst");
    QTest::newRow("panel before the program") << true;
    QTest::newRow("panel after the program") << false;
}

void tst_TrayItem::oneActivationOpensTheWindow()
{
    QFETCH(bool, panelFirst);
    VirtualScreen screen;
    ProgramHome home;
    home.set(u"DISPLAY"_s, screen.display());
    DisplayEnd display(home);

    std::optional<Panel> panel;
    if (panelFirst)
        panel.emplace().showItems();
    const auto program = home.start(u"xcb"_s);
    QVERIFY(display.nextProgram());
    if (!panelFirst) {
        panel.emplace();
        QTRY_VERIFY_WITH_TIMEOUT(panel->wasAsked(), Patience); // before it is ready for items
        panel->showItems();
    }
    QTRY_VERIFY_WITH_TIMEOUT(panel->hasItem(), Patience);
    QCOMPARE(panel->toolTip(), u"VORNApp"_s);
    panel->activate();
    QByteArray log;
    QTRY_VERIFY_WITH_TIMEOUT((log += program->readAll()).contains("tray activation"), Patience);
    ::kill(static_cast<pid_t>(program->processId()), SIGTERM);
    QVERIFY(program->waitForFinished(Patience));
    QCOMPARE(program->exitCode(), 0);
}

void tst_TrayItem::closeIsExplainedWithoutATray()
{
    Notifications notifications;
    QDBusConnection bus = QDBusConnection::sessionBus();
    QVERIFY(bus.registerService(u"org.freedesktop.Notifications"_s));
    bus.registerObject(u"/org/freedesktop/Notifications"_s, &notifications,
                       QDBusConnection::ExportAllSlots);
    VirtualScreen screen;
    ProgramHome home;
    home.set(u"DISPLAY"_s, screen.display());
    DisplayEnd display(home);
    const auto program = home.start(u"xcb"_s);
    QVERIFY(display.nextProgram());
    QProcess click;
    click.setProcessEnvironment(home.environment());
    const auto isExplained = [&] {
        click.start(u"xdotool"_s, {u"mousemove"_s, u"943"_s, u"21"_s, u"click"_s, u"1"_s});
        click.waitForFinished(Patience);
        return !notifications.text.isEmpty();
    };
    QTRY_VERIFY_WITH_TIMEOUT(isExplained(), Patience);
    QCOMPARE(notifications.text, u"Start VORNApp again to open the window."_s);
    ::kill(static_cast<pid_t>(program->processId()), SIGTERM);
    QVERIFY(program->waitForFinished(Patience));
}

QTEST_GUILESS_MAIN(tst_TrayItem)
#include "tst_TrayItem.moc"
