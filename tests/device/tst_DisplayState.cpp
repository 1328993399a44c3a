#include "rig/Fakes.h"
#include "support/LogCapture.h"

#include "device/DisplayState.h"
#include "device/RemoteDeviceSwitch.h"
#include "persistence/Keys.h"

#include <QSignalSpy>
#include <QTest>

#include <thread>

namespace
{

constexpr auto FromProgram = Direction::FromProgram;
constexpr auto FromDisplay = Direction::FromDisplay;
constexpr auto Unavailable = SourceState::Unavailable;
constexpr auto Selected = SourceState::Selected;

/// Values of disable_local_dev among the posted tasks.
QList<bool> registryWrites(const QSignalSpy& tasks)
{
    QList<bool> values;
    for (const QVariantList& task : tasks) {
        const QVariantList args = task[1].toList();
        if (task[0] == keys::task::SaveRegistry && args[0] == keys::registry::Path &&
            args[1] == keys::registry::DisableLocalDevices)
            values += args[2].toBool();
    }
    return values;
}

} // namespace

/// The display's state and the setting that depends on it.
class tst_DisplayState : public QObject
{
    Q_OBJECT

private slots:
    void aChangeIsLoggedAndSignalledOnce();
    void onlyChangesOfThisProgramAreSent();
    void aConnectionShowsTheWindowAndADisconnectionResetsTheDisplay();
    void readersAndLibraryCallbacksDoNotBlock();
    void everyChangeOfTheSourceIsWritten();
    void changesOfTheSettingAreRateLimited();

private:
    FakeChannel m_channel;
    FakeWindows m_windows;
};

void tst_DisplayState::aChangeIsLoggedAndSignalledOnce()
{
    DisplayState display(m_channel, m_windows);
    QSignalSpy changed(&display, &DisplayState::volumeChanged);
    LogCapture log;
    display.setVolume(40, FromDisplay);
    display.setVolume(40, FromDisplay);
    display.setConnectMode(ConnectMode::Setup);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(display.volume(), 40);
    QCOMPARE(log.take(),
             (QStringList{u"I DeviceControl::setVolume direction:1, m_volume:75, newVolume:40"_s,
                          u"I DeviceControl::setConnectMode m_connectMode:0, newConnectMode:2"_s}));
    m_windows.take();
}

void tst_DisplayState::onlyChangesOfThisProgramAreSent()
{
    DisplayState display(m_channel, m_windows);
    display.setVolume(30, FromProgram);
    display.setVolume(31, FromDisplay);
    display.setByodSwitch(Selected, FromDisplay);
    display.setZoomSwitch(Selected, FromDisplay);
    display.setByodSwitch(SourceState::Available, FromProgram);
    display.setByodSwitch(Selected, FromProgram);
    display.setZoomSwitch(Unavailable, FromProgram);
    display.setZoomSwitch(Selected, FromProgram);
    display.startByod();
    display.startSetup();
    QCOMPARE(m_channel.takeIds(), (QList<int>{1, 9, 10, 12, 22}));
}

void tst_DisplayState::aConnectionShowsTheWindowAndADisconnectionResetsTheDisplay()
{
    DisplayState display(m_channel, m_windows);
    QSignalSpy volumeReady(&display, &DisplayState::volumeReady);
    for (const int mode : {1, 3, 2})
        display.setConnectMode(ConnectMode(mode));
    QCOMPARE(m_windows.take().join(u", "_s), u"no warning, show, warn, show, no warning, show"_s);
    display.setVolumeReady(1);
    display.setByodSwitch(Selected, FromDisplay);
    display.setZoomSwitch(SourceState::Available, FromDisplay);

    display.setConnectMode(ConnectMode::None);
    QCOMPARE(display.byodSwitch(), Unavailable);
    QCOMPARE(display.zoomSwitch(), Unavailable);
    QCOMPARE(m_windows.take(), QStringList{u"no warning"_s});
    display.setVolumeReady(1);
    QCOMPARE(volumeReady.count(), 2);
}

/// A binding reads while a signal is emitted; the library calls back on another thread from within
/// a send, which waits for it.
void tst_DisplayState::readersAndLibraryCallbacksDoNotBlock()
{
    FakeChannel channel;
    DisplayState display(channel, m_windows);
    int seen = 0;
    connect(
        &display, &DisplayState::volumeChanged, &display, [&] { seen = display.volume(); },
        Qt::DirectConnection);
    channel.onPush = [&](const ChannelMessage&) {
        std::thread([&] { display.setVolume(50, FromDisplay); }).join();
    };
    display.setVolume(20, FromProgram);
    QCOMPARE(display.volume(), 50);
    QCOMPARE(seen, 50);
}

void tst_DisplayState::everyChangeOfTheSourceIsWritten()
{
    const FileInfo config(u"missing.ini"_s);
    DisplayState display(m_channel, m_windows);
    RemoteDeviceSwitch setting(config, display);
    QSignalSpy tasks(&setting, &RemoteDeviceSwitch::addTask);
    display.setByodSwitch(Selected, FromProgram);
    display.setByodSwitch(Unavailable, FromProgram);
    display.setByodSwitch(Selected, FromDisplay);
    setting.setUseRemoteDevice(false, FromDisplay); // from outside: stored, not saved
    display.setByodSwitch(SourceState::Available, FromDisplay);
    QCOMPARE(registryWrites(tasks), (QList<bool>{true, false, true, false}));
    QCOMPARE(tasks.count(), 4);

    // No device stays switched off after the end of the program, nor after a crash.
    setting.setUseRemoteDevice(true, FromDisplay);
    display.setByodSwitch(Selected, FromDisplay);
    setting.release();
    display.setByodSwitch(Unavailable, FromDisplay);
    display.setByodSwitch(Selected, FromDisplay); // by a thread that has not ended yet
    setting.release();
    QCOMPARE(registryWrites(tasks).mid(4), (QList<bool>{true, false}));
    RemoteDeviceSwitch restarted(config, display);
    QSignalSpy restartedTasks(&restarted, &RemoteDeviceSwitch::addTask);
    display.setByodSwitch(Unavailable, FromDisplay);
    restarted.reconcile(false);
    restarted.reconcile(true);
    QCOMPARE(registryWrites(restartedTasks), (QList<bool>{false, false}));
    m_channel.take();
}

void tst_DisplayState::changesOfTheSettingAreRateLimited()
{
    const DeviceWorld world("[VORNApp]\nuse_remote_device_interval=200\n");
    DisplayState display(m_channel, m_windows);
    RemoteDeviceSwitch setting(*world.config, display);
    display.setByodSwitch(Selected, FromDisplay);
    QSignalSpy tasks(&setting, &RemoteDeviceSwitch::addTask);

    // Of three changes the first is written at once. The last one equals it.
    for (const bool checked : {false, true, false})
        setting.setUseRemoteDevice(checked, FromProgram);
    QCOMPARE(registryWrites(tasks), QList<bool>{false});
    QCOMPARE(tasks.count(), 3 + 1); // each change is saved to the configuration
    LogCapture log;
    QTRY_VERIFY(log.contains(u"I DeviceControl::applyUseRemoteDevice force:0, "
                             "m_useRemoteDeviceLast:0, m_useRemoteDevice:0"_s));
    QCOMPARE(registryWrites(tasks).size(), 1);

    // Of two changes the second is written at the end of the interval.
    for (const bool checked : {true, false})
        setting.setUseRemoteDevice(checked, FromProgram);
    QCOMPARE(registryWrites(tasks), (QList<bool>{false, true}));
    QTRY_COMPARE(registryWrites(tasks), (QList<bool>{false, true, false}));
}

QTEST_GUILESS_MAIN(tst_DisplayState)
#include "tst_DisplayState.moc"
