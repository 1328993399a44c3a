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

/// Uses the program from a panel that knows StatusNotifier items, on a screen without another tray.
class tst_TrayItem : public QObject
{
    Q_OBJECT

private slots:
    void oneActivationOpensTheWindow_data();
    void oneActivationOpensTheWindow();
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

QTEST_GUILESS_MAIN(tst_TrayItem)
#include "tst_TrayItem.moc"
