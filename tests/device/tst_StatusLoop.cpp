#include "rig/Fakes.h"
#include "support/LogCapture.h"

#include <QTest>

/// The status loop as DeviceControl starts it, a pass each millisecond.
class tst_StatusLoop : public QObject
{
    Q_OBJECT

private slots:
    void asksForTheFirmwareVersionWhileConnected();
    void reportsTheVersionsOnEachPass();
    void watchesAndUpgradesTheUpdater();
};

void tst_StatusLoop::asksForTheFirmwareVersionWhileConnected()
{
    DeviceWorld world;
    LogCapture log;
    DeviceControl& device = world.start();
    QTRY_VERIFY(world.devices->passes > 5);
    QVERIFY(world.channel.take().empty());

    device.setConnectMode(1);
    QList<int> ids;
    const auto asked = [&] { return (ids += world.channel.takeIds()).size(); };
    QTRY_VERIFY(asked() >= 41);
    device.setConnectMode(0);
    QCOMPARE(ids.count(11), ids.size());
    // The first query is logged, and then every twentieth.
    const auto logged = log.take().filter(u"send to channel"_s).size();
    QCOMPARE(logged, (ids.size() + world.channel.take().size() - 1) / 20 + 1);
}

void tst_StatusLoop::reportsTheVersionsOnEachPass()
{
    DeviceWorld world;
    DeviceControl& device = world.start();
    QList<bool> reports; // queued, since the worker emits them
    QObject receiver;
    connect(&device, &DeviceControl::hasNewVersion, &receiver,
            [&reports](bool checked) { reports.append(checked); });
    world.devices->cam = 1;
    QVERIFY(!device.checkUpdate());
    world.setVersion(u"version"_s, u"1.2.10"_s);
    QTRY_COMPARE(device.version(), u"1.2.10"_s);
    QTRY_COMPARE(device.vornCamStatus(), 1);
    QVERIFY(reports.isEmpty());

    world.setVersion(u"newver"_s, u"1.2.9"_s);
    QTRY_VERIFY(reports.size() > 2);
    QVERIFY(reports.last());
    QVERIFY(device.checkUpdate());

    // A value that is deleted stays known.
    world.setVersion(u"newver"_s, {});
    world.setVersion(u"version"_s, u"1.2.9"_s);
    QTRY_VERIFY(!reports.last());
    QCOMPARE(device.newVersion(), u"1.2.9"_s);
}

void tst_StatusLoop::watchesAndUpgradesTheUpdater()
{
    DeviceWorld world;
    world.setVersion(u"version"_s, u"1.0"_s);
    world.setVersion(u"newver"_s, u"2.0"_s);
    DeviceControl& device = world.start();
    int completed = 0;
    int reports = 0;
    QObject receiver;
    connect(&device, &DeviceControl::updateCompleted, &receiver, [&completed] { ++completed; });
    connect(&device, &DeviceControl::hasNewVersion, &receiver, [&reports] { ++reports; });
    const auto threePasses = [&world] {
        const int from = world.devices->passes;
        return QTest::qWaitFor([&] { return world.devices->passes >= from + 3; });
    };
    const auto count = [&world](const QString& call) { return world.programs.calls().count(call); };
    QTRY_VERIFY(count(u"keep PatchPilot.exe"_s) >= 2);

    device.startUpdate();
    QTRY_COMPARE(count(u"start PatchPilot.exe update /opt/VORNApp"_s), 1);
    // While the upgrade runs, a difference of the versions is not reported.
    QVERIFY(threePasses());
    reports = 0;
    QVERIFY(threePasses());
    QCOMPARE(reports + completed, 0);
    world.setVersion(u"version"_s, u"2.0"_s);
    QTRY_VERIFY(completed > 1);

    device.updateTimeout();
    QTRY_COMPARE(count(u"kill PatchPilot.exe"_s), 2);
    const auto kept = count(u"keep PatchPilot.exe"_s);
    QTRY_VERIFY(count(u"keep PatchPilot.exe"_s) > kept);
}

QTEST_GUILESS_MAIN(tst_StatusLoop)
#include "tst_StatusLoop.moc"
