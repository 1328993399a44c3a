#include "device/FrameHeader.h"
#include "device/PointerDatagram.h"
#include "platform/FrameChannel.h"
#include "simulator/script/CommandInterpreter.h"
#include "simulator/script/EventLog.h"
#include "simulator/video/VideoFeature.h"
#include "tests/simulator/ChannelRig.h"

#include <QSignalSpy>
#include <QTest>

#include <sstream>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace simulator;

/// The commands of the video and the pointer. tst_VideoReceiver tests the reader, and
/// tst_VideoOutput the colours.
class tst_VideoFeature : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void framesAreAnnounced();
    void setupIsOperatedByPointer();
    void buttonNeedsPressAndReleaseOnIt();

private:
    QString run(const QString& line);
    void point(int type, double x, double y);
    void click(double x, double y);
    QList<QJsonObject> events(const QString& name) const { return eventsNamed(name, m_events); }

    VideoFeature::Names m_names;
    std::ostringstream m_events;
    std::optional<EventLog> m_log;
    std::optional<VideoFeature> m_video;
    std::optional<CommandInterpreter> m_commands;
    QUdpSocket m_pointer;
};

void tst_VideoFeature::init()
{
    const QString name = u"vorn_test_screen_%1"_s.arg(QCoreApplication::applicationPid());
    m_names = {name, name + u"_event"_s, 0};
    m_events.str({});
    m_video.reset();
    m_log.emplace(m_events);
    m_video.emplace(*m_log, m_names);
    m_commands.emplace();
    m_commands->beginSection(u"video"_s);
    m_video->addCommands(*m_commands);
}

// Runs a command that does not wait. Returns the reason of a failure.
QString tst_VideoFeature::run(const QString& line)
{
    const CommandInterpreter::Line parsed = m_commands->parse(line);
    return parsed.error.isEmpty() ? parsed.action().reason : parsed.error;
}

void tst_VideoFeature::point(int type, double x, double y)
{
    m_pointer.writeDatagram(pointerDatagram(quint8(type), float(x), float(y)),
                            QHostAddress(QHostAddress::LocalHost), m_video->pointerPort());
}

void tst_VideoFeature::click(double x, double y)
{
    point(0, x, y);
    point(1, x, y);
}

void tst_VideoFeature::framesAreAnnounced()
{
    using Outcome = platform::FrameChannel::WaitOutcome;
    const auto reader = platform::makeFrameChannel(
        m_names.mapping.toStdString(), m_names.event.toStdString(), FrameHeader::ViewSize);
    QCOMPARE(run(u"video size 640 360"_s), QString());
    QCOMPARE(run(u"video rate 100"_s), QString());
    for (const QString& command : {u"video start"_s, u"video resume"_s, u"video return"_s}) {
        QCOMPARE(run(command), QString());
        reader->close();
        QCOMPARE(reader->open().failedAt, platform::FrameChannel::OpenStep::Done);
        bool isAnnounced = false;
        QTRY_VERIFY_WITH_TIMEOUT(
            isAnnounced = isAnnounced || reader->wait(1ms).outcome == Outcome::Signalled, Patience);
        quint16 width = 0;
        QVERIFY(reader->copyOut(5, &width, sizeof width));
        QCOMPARE(width, 640);
        QCOMPARE(run(command == "video start"_L1 ? u"video stall"_s : u"video die"_s), QString());
    }
    QCOMPARE(run(u"video stop"_s), QString());
    QCOMPARE(events(u"video"_s).last().value("state"_L1), u"stopped"_s);
}

void tst_VideoFeature::setupIsOperatedByPointer()
{
    const QSignalSpy finished(&*m_video, &VideoFeature::setupFinished);
    QCOMPARE(run(u"video start"_s), QString());
    click(0.84, 0.86);
    QTRY_COMPARE_WITH_TIMEOUT(events(u"setup"_s).size(), 2, Patience);
    click(0.29, 0.5);
    click(0.16, 0.86); // back
    QTRY_COMPARE_WITH_TIMEOUT(events(u"setup"_s).size(), 3, Patience);
    for (int i = 0; i < 5; ++i)
        click(0.84, 0.86);
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, Patience);

    QStringList steps;
    for (const QJsonObject& event : events(u"setup"_s))
        steps.append(event.value("step"_L1).toString());
    QCOMPARE(steps, (QStringList{u"welcome"_s, u"language"_s, u"welcome"_s, u"language"_s,
                                 u"network"_s, u"room-name"_s, u"finish"_s, u"done"_s}));
    QCOMPARE(events(u"button"_s).at(1).value("name"_L1), u"option2"_s);
    QCOMPARE(
        events(u"pointer"_s).first(),
        (QJsonObject{
            {u"event"_s, u"pointer"_s}, {u"type"_s, u"press"_s}, {u"x"_s, 0.84}, {u"y"_s, 0.86}}));
}

void tst_VideoFeature::buttonNeedsPressAndReleaseOnIt()
{
    QCOMPARE(run(u"video start"_s), QString());
    point(0, 0.84, 0.86);
    point(2, 0.5, 0.5);
    point(1, 0.5, 0.5);
    point(0, 0.5, 0.5);
    point(1, 0.84, 0.86);
    m_pointer.writeDatagram("no event", QHostAddress(QHostAddress::LocalHost),
                            m_video->pointerPort());
    QTRY_COMPARE_WITH_TIMEOUT(events(u"malformed-datagram"_s).size(), 1, Patience);
    QCOMPARE(events(u"pointer"_s).size(), 5);
    QCOMPARE(events(u"setup"_s).size(), 1); // still the first step
}

QTEST_MAIN(tst_VideoFeature)
#include "tst_VideoFeature.moc"
