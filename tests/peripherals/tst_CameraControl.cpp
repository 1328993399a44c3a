#include "device/MessageChannel.h"
#include "peripherals/CameraControl.h"
#include "support/LogCapture.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace
{

/// Records what is sent as "id text", without the sequence number.
class RecordingChannel : public MessageChannel
{
public:
    void push(const ChannelMessage& message) override
    {
        static const QRegularExpression s_sequence(u"\"seq\":\\d+,"_s);
        if (onPush)
            onPush();
        m_sent += QString::number(int(message.command)) + u' ' +
                  QString::fromStdString(message.text).remove(s_sequence);
    }

    QStringList take() { return std::exchange(m_sent, {}); }

    std::function<void()> onPush;

private:
    QStringList m_sent;
};

} // namespace

class tst_CameraControl : public QObject
{
    Q_OBJECT

private slots:
    void sendsTheUsersChangesOnce();
    void holdsNoLockWhileOthersAreCalled();
    void releasesHeldMovementsAtTheEnd();
};

void tst_CameraControl::sendsTheUsersChangesOnce()
{
    const QString autoOn = uR"(13 {"autoframestatus":1,"cmd":13,"type":2})"_s;
    const QString autoOff = uR"(13 {"autoframestatus":0,"cmd":13,"type":2})"_s;
    const QString smartOn = uR"(15 {"cmd":15,"smartframestatus":1,"type":2})"_s;
    RecordingChannel channel;
    CameraControl camera(channel);
    const QSignalSpy autoChanged(&camera, &CameraControl::autoFramingChanged);
    const QSignalSpy switched(&camera, &CameraControl::cameraSwitch);
    LogCapture log;

    camera.setAutoFraming(false);
    camera.setAutoFraming(true, 1);
    camera.setAutoFraming(true);
    QCOMPARE(channel.take(), QStringList());
    QCOMPARE(log.take(), QStringList{u"I CameraControl::setAutoFraming direction:1, "
                                     "m_autoFraming:0, newAutoFraming:1"_s});
    QVERIFY(camera.setProperty("smartFraming", true));
    camera.setAutoFraming(false);
    camera.setAutoFraming(true);
    QCOMPARE(channel.take(), (QStringList{smartOn, autoOff, autoOn, smartOn}));
    QCOMPARE(autoChanged.count(), 3);

    camera.requestStatus();
    camera.setCameraSwitch(2);
    QCOMPARE(channel.take(),
             (QStringList{uR"(14 {"cmd":14,"type":0})"_s, uR"(16 {"cmd":16,"type":0})"_s,
                          uR"(21 {"cmd":21,"type":0})"_s}));
    QCOMPARE(switched, QList<QVariantList>{{2}});
}

void tst_CameraControl::holdsNoLockWhileOthersAreCalled()
{
    RecordingChannel channel;
    CameraControl camera(channel);
    // A channel library that answers from within the send, and a listener that sets a value.
    channel.onPush = [&] { camera.setAutoFraming(false, 1); };
    connect(&camera, &CameraControl::autoFramingChanged, this,
            [&] { camera.setSmartFraming(camera.autoFraming(), 1); });

    camera.setAutoFraming(true);
    QVERIFY(!camera.autoFraming());
    QVERIFY(!camera.smartFraming());
}

void tst_CameraControl::releasesHeldMovementsAtTheEnd()
{
    RecordingChannel channel;
    {
        CameraControl camera(channel);
        camera.scale(CameraControl::Manual_Left, CameraControl::Btn_Down);
        camera.scale(CameraControl::Manual_Up, CameraControl::Btn_Down);
        camera.scale(CameraControl::Manual_Up, CameraControl::Btn_Up);
        QCOMPARE(channel.take().size(), 3);
    }
    QCOMPARE(
        channel.take(),
        QStringList{
            uR"(18 {"cmd":18,"cmdtype":"CameraControl","control":"scale","scalestatus":1,"scaletype":4,"type":2})"_s});
}

QTEST_GUILESS_MAIN(tst_CameraControl)
#include "tst_CameraControl.moc"
