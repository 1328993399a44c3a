#include "rig/Fakes.h"
#include "support/LogCapture.h"

#include <QJsonArray>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>

#include <thread>

namespace
{

const QString registryKey = u"HKEY_CURRENT_USER\\System\\CurrentControlSet\\Control\\VORNApp"_s;

QVariantList registryWrite(bool disable)
{
    return {registryKey, u"disable_local_dev"_s, disable};
}

/// Arguments of the posted tasks of one name.
QList<QVariantList> tasksNamed(const QSignalSpy& spy, const QString& name)
{
    QList<QVariantList> found;
    for (const QVariantList& task : spy) {
        if (task[0].toString() == name)
            found.append(task[1].toList());
    }
    return found;
}

} // namespace

class tst_DeviceControl : public QObject
{
    Q_OBJECT

private slots:
    void surfaceIsInOrder();
    void setterLogsStoresAndSignalsOnce();
    void onlyOwnChangesAreSent();
    void byodSwitchWritesTheRegistryInEveryDirection();
    void connectionBringsTheWindowForward();
    void disconnectionForgetsTheDisplay();
    void configuredValuesAreAdoptedAtStart();
    void remoteDeviceSettingIsRateLimited();
    void firmwareIsAskedForWhileConnected();
    void versionsAreReportedEachPass();
    void updaterIsWatchedAndUpgraded();
    void localDevicesAreChecked();
    void accountSurvivesARestart();
    void signOutClearsTheAccount();
    void malformedSignInKeepsTheProfile();
    void readersAndLibraryCallbacksDoNotBlock();
    void repliesToMessages();
    void destructionEndsTheCompanion();
};

void tst_DeviceControl::surfaceIsInOrder()
{
    const QMetaObject& meta = DeviceControl::staticMetaObject;
    QStringList properties;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        QVERIFY2(meta.property(i).isFinal(), meta.property(i).name());
        properties.append(QLatin1String(meta.property(i).name()));
    }
    QCOMPARE(properties.join(u' '),
             u"connectMode volume byodSwitch zoomSwitch version newVersion k4vLowestVer remoteVer "
             "useRemoteDevice vornMicStatus vornCamStatus vornSpkStatus supportLaunchZoom "
             "supportLaunchTeams supportLaunchGoogle login firstName lastName email company title "
             "token userImage userId frameIndex"_s);
}

void tst_DeviceControl::setterLogsStoresAndSignalsOnce()
{
    DeviceWorld world;
    DeviceControl& device = world.start();
    QSignalSpy changed(&device, &DeviceControl::volumeChanged);
    LogCapture log;
    device.setVolume(40, 1);
    device.setVolume(40, 1);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(device.property("volume").toInt(), 40);
    QCOMPARE(log.take().filter(u"setVolume"_s),
             QStringList{u"I DeviceControl::setVolume direction:1, m_volume:75, newVolume:40"_s});
}

void tst_DeviceControl::onlyOwnChangesAreSent()
{
    DeviceWorld world;
    DeviceControl& device = world.start();
    QVERIFY(device.setProperty("volume", 30));
    device.setVolume(31, 1);
    device.setByodSwitch(2, 1);
    device.setZoomSwitch(2, 1);
    device.setByodSwitch(1);
    device.setByodSwitch(2);
    device.setZoomSwitch(0);
    device.setZoomSwitch(2);
    device.startBYOD();
    device.startSetupBarOOBE();
    QCOMPARE(world.channel.takeIds(), (QList<int>{1, 9, 10, 12, 22}));
}

void tst_DeviceControl::byodSwitchWritesTheRegistryInEveryDirection()
{
    DeviceWorld world;
    DeviceControl& device = world.start();
    QSignalSpy tasks(&device, &DeviceControl::addTask);
    device.setByodSwitch(2);
    device.setByodSwitch(0);
    device.setByodSwitch(2, 1);
    QCOMPARE(tasksNamed(tasks, u"saveRegistry"_s),
             (QList<QVariantList>{registryWrite(true), registryWrite(false), registryWrite(true)}));
}

void tst_DeviceControl::connectionBringsTheWindowForward()
{
    DeviceWorld world;
    DeviceControl& device = world.start();
    device.setConnectMode(1);
    device.setConnectMode(3);
    device.setConnectMode(2);
    QCOMPARE(world.windows.take(),
             (QByteArrayList{"no warning", "show", "warn", "show", "no warning", "show"}));
}

void tst_DeviceControl::disconnectionForgetsTheDisplay()
{
    DeviceWorld world;
    DeviceControl& device = world.start();
    QSignalSpy volumeReady(&device, &DeviceControl::volumeReady);
    device.setConnectMode(1);
    device.setVolumeReady(1);
    device.setByodSwitch(2, 1);
    world.channel.take();
    world.windows.take();

    device.setConnectMode(0);
    QCOMPARE(device.byodSwitch(), 0);
    QCOMPARE(device.zoomSwitch(), 0);
    QCOMPARE(world.windows.take(), QByteArrayList{"no warning"});
    device.setVolumeReady(1);
    QCOMPARE(volumeReady.count(), 2);
}

void tst_DeviceControl::configuredValuesAreAdoptedAtStart()
{
    DeviceWorld world("[K4V]\nlowest_ver=4.0.0\n[VORNApp]\nsupport_launch_teams=false\n");
    const DeviceControl& device = world.start();
    QCOMPARE(device.k4vLowestVer(), u"4.0.0"_s);
    QVERIFY(device.supportLaunchZoom());
    QVERIFY(!device.supportLaunchTeams());
    QCOMPARE(world.devices->rulesPath, world.folder.filePath(u"config.json"_s));
}

void tst_DeviceControl::remoteDeviceSettingIsRateLimited()
{
    DeviceWorld world("[VORNApp]\nuse_remote_device_interval=200\n");
    DeviceControl& device = world.start();
    device.setByodSwitch(2, 1);
    QSignalSpy tasks(&device, &DeviceControl::addTask);
    const auto writes = [&tasks] { return tasksNamed(tasks, u"saveRegistry"_s); };

    // Three changes: the first is written at once, the last one differs from it no more.
    device.setUseRemoteDevice(false);
    device.setUseRemoteDevice(true);
    device.setUseRemoteDevice(false);
    QCOMPARE(writes(), QList<QVariantList>{registryWrite(false)});
    QCOMPARE(tasksNamed(tasks, u"saveConfig"_s).size(), 3);
    LogCapture log;
    QTRY_VERIFY(log.contains(u"I DeviceControl::applyUseRemoteDevice force:0, "
                             "m_useRemoteDeviceLast:0, m_useRemoteDevice:0"_s));
    QCOMPARE(writes().size(), 1);

    // Two changes: the second one is written at the end of the interval.
    device.setUseRemoteDevice(true);
    device.setUseRemoteDevice(false);
    QCOMPARE(writes().size(), 2);
    QTRY_COMPARE(writes().size(), 3);
    QCOMPARE(writes().last(), registryWrite(false));
}

void tst_DeviceControl::firmwareIsAskedForWhileConnected()
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
    // The first query is logged, and of the next ones every twentieth.
    const auto logged = log.take().filter(u"send to channel"_s).size();
    QCOMPARE(logged, (ids.size() + world.channel.take().size() - 1) / 20 + 1);
}

void tst_DeviceControl::versionsAreReportedEachPass()
{
    DeviceWorld world;
    DeviceControl& device = world.start();
    // Emitted on the status worker, hence received queued.
    QList<bool> news;
    QObject receiver;
    connect(&device, &DeviceControl::hasNewVersion, &receiver,
            [&news](bool checked) { news.append(checked); });
    QVERIFY(!device.checkUpdate());
    world.setVersion(u"version"_s, u"1.2.10"_s);
    QTRY_COMPARE(device.version(), u"1.2.10"_s);
    QVERIFY(news.isEmpty());

    world.setVersion(u"newver"_s, u"1.2.9"_s);
    QTRY_VERIFY(news.size() > 2);
    QVERIFY(news.last());
    QVERIFY(device.checkUpdate());

    // A value that goes away is not forgotten.
    world.setVersion(u"newver"_s, {});
    world.setVersion(u"version"_s, u"1.2.9"_s);
    QTRY_VERIFY(!news.last());
    QCOMPARE(device.newVersion(), u"1.2.9"_s);
}

void tst_DeviceControl::updaterIsWatchedAndUpgraded()
{
    DeviceWorld world;
    world.setVersion(u"version"_s, u"1.0"_s);
    world.setVersion(u"newver"_s, u"2.0"_s);
    DeviceControl& device = world.start();
    int completed = 0;
    QObject receiver;
    connect(&device, &DeviceControl::updateCompleted, &receiver, [&completed] { ++completed; });
    int news = 0;
    connect(&device, &DeviceControl::hasNewVersion, &receiver, [&news] { ++news; });
    const auto threePasses = [&world] {
        const int from = world.devices->passes;
        return QTest::qWaitFor([&] { return world.devices->passes >= from + 3; });
    };
    const auto count = [&world](const QString& call) { return world.programs.calls().count(call); };
    QTRY_VERIFY(count(u"keep PatchPilot.exe"_s) >= 2);

    device.startUpdate();
    const QString start = u"start PatchPilot.exe update /opt/VORNApp"_s;
    QTRY_COMPARE(count(start), 1);
    const QStringList calls = world.programs.calls();
    QCOMPARE(calls.mid(calls.indexOf(u"kill PatchPilot.exe"_s)),
             (QStringList{u"kill PatchPilot.exe"_s, start}));
    // Until it is complete there is nothing new to tell.
    QVERIFY(threePasses());
    news = 0;
    QVERIFY(threePasses());
    QCOMPARE(news + completed, 0);
    world.setVersion(u"version"_s, u"2.0"_s);
    QTRY_VERIFY(completed > 1);

    device.updateTimeout();
    QTRY_COMPARE(count(u"kill PatchPilot.exe"_s), 2);
    const auto kept = count(u"keep PatchPilot.exe"_s);
    QTRY_VERIFY(count(u"keep PatchPilot.exe"_s) > kept);
}

void tst_DeviceControl::localDevicesAreChecked()
{
    DeviceWorld world;
    DeviceControl& device = world.start();
    int changed = 0;
    QObject receiver;
    connect(&device, &DeviceControl::vornCamStatusChanged, &receiver, [&changed] { ++changed; });
    world.devices->cam = 1;
    QTRY_COMPARE(device.vornCamStatus(), 1);
    QTRY_COMPARE(changed, 1);
    QCOMPARE(device.vornMicStatus(), 0);
}

void tst_DeviceControl::accountSurvivesARestart()
{
    DeviceWorld world;
    DeviceControl& device = world.start();
    QSignalSpy tasks(&device, &DeviceControl::addTask);
    device.loginSuccess(
        {{u"data"_s, QJsonObject{{u"token"_s, u"T"_s},
                                 {u"user"_s, QJsonObject{{u"userId"_s, u"U"_s},
                                                         {u"email"_s, u"a@b.c"_s},
                                                         {u"firstName"_s, u"Ann"_s},
                                                         {u"picture"_s, u"UElD"_s}}}}}});
    QCOMPARE(device.userImage(), u"data:image/png;base64,UElD"_s);
    QCOMPARE(tasksNamed(tasks, u"saveRegistry"_s),
             (QList<QVariantList>{{registryKey, u"username"_s, u"a@b.c"_s}}));
    QStringList keys;
    for (const QVariantList& write : tasksNamed(tasks, u"saveDB"_s)) {
        keys += write[0].toString();
        world.settings.saveUserData(write[0].toString(), write[1], write[2].toULongLong());
    }
    QCOMPARE(keys.join(u' '), u"picture token userId email firstName lastName company title"_s);

    const DeviceControl& restarted = world.start();
    QVERIFY(restarted.login());
    QCOMPARE(restarted.firstName(), u"Ann"_s);
    QCOMPARE(restarted.token(), u"T"_s);
    QCOMPARE(restarted.rawPicture(), u"UElD"_s);
}

void tst_DeviceControl::signOutClearsTheAccount()
{
    DeviceWorld world;
    world.settings.values = {
        {u"email"_s, u"a@b.c"_s}, {u"userId"_s, u"U"_s}, {u"picture"_s, u"P"_s}};
    DeviceControl& device = world.start();
    QSignalSpy tasks(&device, &DeviceControl::addTask);
    device.profileRequestSuccess({{u"firstName"_s, u"Ann"_s}});
    device.setLogin(false);
    QVERIFY(device.email().isEmpty());
    QVERIFY(device.firstName().isEmpty());
    QVERIFY(device.rawPicture().isEmpty());
    QCOMPARE(device.userImage(), u"qrc:/images/user_84x84.png"_s);
    QCOMPARE(device.userId(), u"U"_s);

    // Writes that were posted before the sign-out come too late.
    for (const QVariantList& write : tasksNamed(tasks, u"saveDB"_s))
        world.settings.saveUserData(write[0].toString(), write[1], write[2].toULongLong());
    QVERIFY(world.settings.values.isEmpty());
}

void tst_DeviceControl::malformedSignInKeepsTheProfile()
{
    DeviceWorld world;
    DeviceControl& device = world.start();
    device.setFirstName(u"Ann"_s);
    LogCapture log;
    device.loginSuccess({{u"data"_s, 7}});
    device.loginSuccess({{u"data"_s, QJsonObject{{u"user"_s, QJsonArray()}}}});
    device.profileUpdateSuccess({});
    QVERIFY(device.login());
    QCOMPARE(device.firstName(), u"Ann"_s);
    QCOMPARE(log.take().filter(u"not contains"_s),
             (QStringList{u"E DeviceControl::loginSuccess not contains data"_s,
                          u"E DeviceControl::loginSuccess not contains user"_s,
                          u"E DeviceControl::profileUpdateSuccess not contains data"_s}));
}

void tst_DeviceControl::readersAndLibraryCallbacksDoNotBlock()
{
    DeviceWorld world;
    DeviceControl& device = world.start();
    // A binding reads while the signal is emitted, and a library answers from within PushMsg on
    // another thread and waits for it.
    connect(
        &device, &DeviceControl::volumeChanged, &device, [&device] { device.volume(); },
        Qt::DirectConnection);
    std::atomic_flag answered;
    world.channel.onPush = [&](const ChannelMessage& message) {
        if (message.command == ChannelCommand::Volume && !answered.test_and_set())
            std::thread([&device] {
                device.handleChannelMessage(1, R"({"cmd":1,"type":2,"volume":50})");
            }).join();
    };
    device.setVolume(20);
    QCOMPARE(device.volume(), 50);
    QCOMPARE(world.channel.takeIds(), (QList<int>{1, 1}));
}

void tst_DeviceControl::repliesToMessages()
{
    DeviceWorld world;
    DeviceControl& device = world.start();
    LogCapture log;
    QCOMPARE(device.handleChannelMessage(7, R"({"cmd":11,"type":2,"ota_ver":"5"})"), 0);
    QCOMPARE(device.handleChannelMessage(1, "nonsense"), 0);
    const auto sent = world.channel.take();
    QCOMPARE(sent.size(), 1u);
    QCOMPARE(static_cast<int>(sent[0].command), 7);
    QCOMPARE(QByteArray::fromStdString(sent[0].text), R"({"cmd":11,"ota_ver":"5","type":3})");
    QCOMPARE(device.remoteVer(), u"5"_s);
    QCOMPARE(
        log.take().filter(u"DeviceControl::DealChannelMsg"_s),
        (QStringList{
            u"I DeviceControl::DealChannelMsg recv :{\"cmd\":11,\"type\":2,\"ota_ver\":\"5\"}"_s,
            u"I DeviceControl::DealChannelMsg reply:{\"cmd\":11,\"ota_ver\":\"5\",\"type\":3}"_s,
            u"I DeviceControl::DealChannelMsg recv :nonsense"_s}));
}

void tst_DeviceControl::destructionEndsTheCompanion()
{
    DeviceWorld world;
    LogCapture log;
    world.start();
    world.device.reset();
    QVERIFY(world.programs.calls().contains(u"kill BridgeAgent.exe"_s));
    const QStringList lines = log.take();
    QCOMPARE(lines.filter(u"thread start"_s).size(), 3);
    QCOMPARE(lines.filter(u"thread end"_s).size(), 3);
    QVERIFY(lines.indexOf(u"I TaskQueue::~TaskQueue ~TaskQueue"_s) >
            lines.indexOf(u"I DeviceControl::~DeviceControl ~DeviceControl"_s));
}

QTEST_GUILESS_MAIN(tst_DeviceControl)
#include "tst_DeviceControl.moc"
