#include "peripherals/CameraControl.h"
#include "device/MessageChannel.h"
#include "support/LogCapture.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <barrier>
#include <functional>
#include <mutex>
#include <thread>

using namespace Qt::StringLiterals;

namespace
{

/// Keeps what is sent, the sequence number cut out, as "id text".
class RecordingChannel : public MessageChannel
{
public:
    void push(const ChannelMessage& message) override
    {
        static const QRegularExpression seq(u"\"seq\":\\d+,"_s);
        if (onPush)
            onPush();
        const std::scoped_lock lock(m_mutex);
        m_sent.append(QString::number(static_cast<int>(message.command)) + u' ' +
                      QString::fromStdString(message.text).remove(seq));
    }

    QStringList take()
    {
        const std::scoped_lock lock(m_mutex);
        return std::exchange(m_sent, {});
    }

    std::function<void()> onPush;

private:
    std::mutex m_mutex;
    QStringList m_sent;
};

const QString AutoOn = uR"(13 {"autoframestatus":1,"cmd":13,"type":2})"_s;
const QString AutoOff = uR"(13 {"autoframestatus":0,"cmd":13,"type":2})"_s;
const QString SmartOn = uR"(15 {"cmd":15,"smartframestatus":1,"type":2})"_s;
const QString SmartOff = uR"(15 {"cmd":15,"smartframestatus":0,"type":2})"_s;

} // namespace

class CameraControlTest : public QObject
{
    Q_OBJECT

private slots:
    void sendsEachCommand();
    void sendsAChangeOfFramingOnce();
    void repeatsSmartFramingWithAutoFraming();
    void adoptsReportsWithoutSending();
    void tellsWithoutHoldingALock();
    void takesChangesFromTwoThreads();
};

void CameraControlTest::sendsEachCommand()
{
    RecordingChannel channel;
    CameraControl camera(channel);
    LogCapture log;

    camera.scale(CameraControl::Manual_Left, CameraControl::Btn_Down);
    camera.scale(CameraControl::Manual_Left, CameraControl::Btn_Up);
    camera.preset(CameraControl::Preset_P3, CameraControl::Preset_Save);
    camera.requestStatus();

    const QStringList expected{
        uR"(18 {"cmd":18,"cmdtype":"CameraControl","control":"scale","scalestatus":0,"scaletype":4,"type":2})"_s,
        uR"(18 {"cmd":18,"cmdtype":"CameraControl","control":"scale","scalestatus":1,"scaletype":4,"type":2})"_s,
        uR"(19 {"cmd":19,"cmdtype":"CameraControl","control":"preset","presetindex":2,"presetstatus":1,"type":2})"_s,
        uR"(14 {"cmd":14,"type":0})"_s,
        uR"(16 {"cmd":16,"type":0})"_s,
        uR"(21 {"cmd":21,"type":0})"_s};
    QCOMPARE(channel.take(), expected);

    const QStringList records = log.take();
    QCOMPARE(records.size(), 6);
    QVERIFY(records[0].startsWith(u"I CameraControl::scale send to channel:{\"cmd\":18,"_s));
    QVERIFY(records[2].startsWith(u"I CameraControl::preset send to channel:{\"cmd\":19,"_s));
    QVERIFY(
        records[5].startsWith(u"I CameraControl::requestStatus send to channel:{\"cmd\":21,"_s));
}

void CameraControlTest::sendsAChangeOfFramingOnce()
{
    RecordingChannel channel;
    CameraControl camera(channel);
    QSignalSpy autoChanged(&camera, &CameraControl::autoFramingChanged);
    QSignalSpy smartChanged(&camera, &CameraControl::smartFramingChanged);
    LogCapture log;

    camera.setAutoFraming(false);
    QVERIFY(log.take().isEmpty());
    camera.setAutoFraming(true);
    camera.setAutoFraming(true);
    QVERIFY(camera.setProperty("smartFraming", true));
    camera.setSmartFraming(true);
    camera.setSmartFraming(false);
    camera.setAutoFraming(false);

    QCOMPARE(channel.take(), (QStringList{AutoOn, SmartOn, SmartOff, AutoOff}));
    QCOMPARE(autoChanged.count(), 2);
    QCOMPARE(smartChanged.count(), 2);
    const QStringList records = log.take();
    QCOMPARE(records.size(), 8);
    QCOMPARE(records[0],
             u"I CameraControl::setAutoFraming direction:0, m_autoFraming:0, newAutoFraming:1"_s);
    QVERIFY(records[1].startsWith(u"I CameraControl::setAutoFraming send to channel:"_s));
    QCOMPARE(
        records[2],
        u"I CameraControl::setSmartFraming direction:0, m_smartFraming:0, newSmartFraming:1"_s);
}

void CameraControlTest::repeatsSmartFramingWithAutoFraming()
{
    RecordingChannel channel;
    CameraControl camera(channel);
    camera.setSmartFraming(true, 1);

    camera.setAutoFraming(true);
    QCOMPARE(channel.take(), (QStringList{AutoOn, SmartOn}));
    camera.setAutoFraming(false);
    QCOMPARE(channel.take(), QStringList{AutoOff});
}

void CameraControlTest::adoptsReportsWithoutSending()
{
    RecordingChannel channel;
    CameraControl camera(channel);
    QSignalSpy autoChanged(&camera, &CameraControl::autoFramingChanged);
    QSignalSpy switched(&camera, &CameraControl::cameraSwitch);
    LogCapture log;

    camera.setSmartFraming(true, 1);
    camera.setAutoFraming(true, 1);
    camera.setAutoFraming(true, 1);
    camera.setCameraSwitch(2);
    camera.setCameraSwitch(2);

    QVERIFY(camera.autoFraming());
    QVERIFY(camera.smartFraming());
    QCOMPARE(autoChanged.count(), 1);
    QCOMPARE(switched, (QList<QList<QVariant>>{{2}, {2}}));
    QVERIFY(channel.take().isEmpty());
    QCOMPARE(log.take().last(), u"I CameraControl::setCameraSwitch camera switch:2"_s);
}

void CameraControlTest::tellsWithoutHoldingALock()
{
    RecordingChannel channel;
    CameraControl camera(channel);
    // A channel library that answers from inside the send, and a listener that sets in turn.
    channel.onPush = [&] { camera.setAutoFraming(false, 1); };
    connect(&camera, &CameraControl::autoFramingChanged, this,
            [&] { camera.setSmartFraming(camera.autoFraming(), 1); });

    camera.setAutoFraming(true);
    QVERIFY(!camera.autoFraming());
    QVERIFY(!camera.smartFraming());
}

void CameraControlTest::takesChangesFromTwoThreads()
{
    RecordingChannel channel;
    CameraControl camera(channel);
    constexpr int Rounds = 500;
    std::atomic<int> changes{0};
    connect(
        &camera, &CameraControl::autoFramingChanged, this, [&] { ++changes; },
        Qt::DirectConnection);

    std::barrier start(2);
    const auto toggle = [&](int direction) {
        start.arrive_and_wait();
        for (int i = 0; i < Rounds; ++i) {
            camera.setAutoFraming(i % 2 == 0, direction);
            camera.setSmartFraming(i % 2 == 0, direction);
        }
    };
    std::thread display(toggle, 1);
    toggle(0);
    display.join();

    // Each change is told exactly once, so an even number of changes ends where it began.
    QCOMPARE(camera.autoFraming(), changes % 2 == 1);
    QVERIFY(changes > 0 && changes <= 2 * Rounds);
    QVERIFY(channel.take().size() <= 3 * Rounds);
}

QTEST_GUILESS_MAIN(CameraControlTest)
#include "CameraControlTest.moc"
