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
    void reportsTheCompletionOfAnUpgradeOnly();
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

void tst_StatusLoop::reportsTheCompletionOfAnUpgradeOnly()
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
    device.startUpdate();
    for (int round = 0; round < 2; ++round) { // the first one delivers earlier reports
        QTRY_VERIFY(world.programs.calls().contains(u"start PatchPilot.exe update /opt/VORNApp"_s));
        reports = 0;
        const int from = world.devices->passes;
        QTRY_VERIFY(world.devices->passes >= from + 3);
    }
    QCOMPARE(reports + completed, 0);
    world.setVersion(u"version"_s, u"2.0"_s);
    QTRY_VERIFY(completed > 1);
}

QTEST_GUILESS_MAIN(tst_StatusLoop)
#include "tst_StatusLoop.moc"
