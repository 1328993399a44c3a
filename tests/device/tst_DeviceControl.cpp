#include "rig/Fakes.h"
#include "support/LogCapture.h"

#include <QMetaProperty>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <future>
#include <thread>

/// The facade: that each name reaches its part, and that the parts start and end together.
class tst_DeviceControl : public QObject
{
    Q_OBJECT

private slots:
    void eachPropertyIsReadWrittenAndSignalledUnderItsName();
    void adoptsTheConfigurationAtStart();
    void repliesUnderTheIdOfTheMessage();
    void connectModesReachThePagesInOrder();
    void startsAndEndsItsThreads();
};

void tst_DeviceControl::eachPropertyIsReadWrittenAndSignalledUnderItsName()
{
    DeviceWorld world;
    DeviceControl& device = world.start();
    const QMetaObject& meta = DeviceControl::staticMetaObject;
    int written = 0;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        const QString name = QLatin1String(property.name());
        // The local device check keeps setting these three.
        if (!property.isWritable() || name.endsWith(u"Status"_s))
            continue;
        QVariant value = u"text of "_s + name;
        if (property.typeId() != QMetaType::QString)
            value = property.typeId() == QMetaType::Bool
                        ? QVariant(!property.read(&device).toBool())
                        : QVariant(2);
        QSignalSpy changed(&device, property.notifySignal());
        QVERIFY2(property.write(&device, value), property.name());
        QVERIFY2(changed.count() == 1, property.name());
        QCOMPARE(property.read(&device), value);
        ++written;
    }
    QCOMPARE(written, 17);
}

void tst_DeviceControl::adoptsTheConfigurationAtStart()
{
    DeviceWorld world("[K4V]\nlowest_ver=4.0.0\n[VORNApp]\nsupport_launch_teams=false\n");
    const DeviceControl& device = world.start();
    QCOMPARE(device.k4vLowestVer(), u"4.0.0"_s);
    QVERIFY(device.supportLaunchZoom() && !device.supportLaunchTeams());
    QCOMPARE(world.devices->rulesPath, world.folder.filePath(u"config.json"_s));
}

/// Text of the display cannot pass for further lines of the log.
void tst_DeviceControl::repliesUnderTheIdOfTheMessage()
{
    DeviceWorld world;
    DeviceControl& device = world.start();
    LogCapture log;
    QCOMPARE(device.handleChannelMessage(7, R"({"cmd":11,"type":2,"ota_ver":"5\nI2026"})"), 0);
    QCOMPARE(device.handleChannelMessage(1, "nonsense\n\x1b\u0085\u2028\u00e9"), 0);
    QCOMPARE(world.channel.takeIds(), QList<int>{7});
    QCOMPARE(device.remoteVer(), u"5\nI2026"_s);
    const QRegularExpression ofTheChannel(u"DeviceControl::(DealChannelMsg|setRemoteVer)"_s);
    QCOMPARE(log.take().filter(ofTheChannel).join(u'|').remove(u"I DeviceControl::"_s),
             uR"(DealChannelMsg recv :{"cmd":11,"type":2,"ota_ver":"5\nI2026"}|)"
             R"(setRemoteVerReady m_remotever_ready:0, ready:1|)"
             R"(setRemoteVer m_remoteVer:, newRemoteVer:5\nI2026|)"
             R"(DealChannelMsg reply:{"cmd":11,"ota_ver":"5\nI2026","type":3}|)"
             R"(DealChannelMsg recv :nonsense\n\x1b\xc2\x85\xe2\x80\xa8é)"_s);
}

void tst_DeviceControl::connectModesReachThePagesInOrder()
{
    DeviceWorld world;
    DeviceControl& device = world.start();
    QList<int> seen;
    connect(&device, &DeviceControl::connectModeChanged, &device,
            [&] { seen += device.property("connectMode").toInt(); });
    device.setConnectMode(2);
    std::thread([&device] {
        for (const char* mode : {"1", "0", "1"})
            device.handleChannelMessage(0, R"({"cmd":0,"type":1,"isReady":)" + std::string(mode) +
                                               "}");
    }).join();
    QTRY_COMPARE(seen, (QList<int>{2, 1, 0, 1}));
}

/// Of the tasks that wait at the end, writes are performed and launches discarded.
void tst_DeviceControl::startsAndEndsItsThreads()
{
    DeviceWorld world;
    world.setVersion(u"disable_local_dev"_s, u"1"_s); // as a killed run leaves it
    std::promise<void> started;
    QStringList performed;
    const auto note = [&](const QVariantList& args, bool) {
        performed += args.last().toString();
        return TaskQueue::Outcome::Done;
    };
    const auto untilTheEnd = [&](const QVariantList&, bool) {
        started.set_value();
        while (!QThread::currentThread()->isInterruptionRequested())
            QThread::yieldCurrentThread();
        return TaskQueue::Outcome::Done;
    };
    world.tasks = {{u"saveRegistry"_s, note, TaskQueue::Kind::ValueWrite},
                   {u"saveConfig"_s, untilTheEnd},
                   {u"launchTeams"_s, note, TaskQueue::Kind::Launch}};
    LogCapture log;
    DeviceControl& device = world.start();
    device.setSupportLaunchTeams(false);
    started.get_future().wait();
    device.launchTeams();
    device.setByodSwitch(2, 1);
    world.device.reset();
    QCOMPARE(performed, (QStringList{u"false"_s, u"false"_s}));
    QVERIFY(world.programs.calls().contains(u"kill BridgeAgent.exe"_s));

    const QStringList lines = log.take();
    QVERIFY(lines.contains(u"W TaskQueue::finish discarded:launchTeams"_s));
    QCOMPARE(lines.filter(u"thread start"_s).size(), 3);
    QCOMPARE(lines.filter(u"thread end"_s).size(), 3);
    QVERIFY(lines.indexOf(u"I TaskQueue::~TaskQueue ~TaskQueue"_s) >
            lines.indexOf(u"I DeviceControl::~DeviceControl ~DeviceControl"_s));
}

QTEST_GUILESS_MAIN(tst_DeviceControl)
#include "tst_DeviceControl.moc"
