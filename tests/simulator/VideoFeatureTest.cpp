#include "simulator/video/VideoFeature.h"
#include "device/FrameHeader.h"
#include "device/PointerDatagram.h"
#include "device/VideoReceiver.h"
#include "platform/Worker.h"
#include "simulator/Simulator.h"
#include "simulator/script/CommandInterpreter.h"
#include "simulator/script/EventLog.h"
#include "simulator/video/Nv12Picture.h"
#include "tests/simulator/ChannelRig.h"
#include "tests/support/LogCapture.h"

#include <QJsonDocument>
#include <QSignalSpy>
#include <QTest>

#include <sstream>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace simulator;

namespace
{

constexpr auto Receiver = "DeviceControl::RecvSharedMemoryProc "_L1;

struct Yuv {
    int y = 0;
    int cb = 0;
    int cr = 0;
    bool operator==(const Yuv&) const = default;
};

Yuv pixel(QVideoFrame frame, const QPoint& at)
{
    if (!frame.map(QVideoFrame::ReadOnly))
        return {};
    const uchar* const chroma = frame.bits(1) + at.y() / 2 * frame.bytesPerLine(1) + at.x() / 2 * 2;
    const Yuv yuv{frame.bits(0)[at.y() * frame.bytesPerLine(0) + at.x()], chroma[0], chroma[1]};
    frame.unmap();
    return yuv;
}

} // namespace

/// The simulated screen, with the program's own receiver at the other end.
class VideoFeatureTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void convertsColours();
    void takesOnlyPointerEvents_data();
    void takesOnlyPointerEvents();
    void framesArrive();
    void anotherSizeArrives();
    void aPersonWalksThroughTheSetup();
    void aButtonWorksWhereItWasPressedOnly();
    void hostileFramesAreSurvived_data();
    void hostileFramesAreSurvived();
    void deadWritersAreFollowed();
    void silenceIsNoticed();
    void wrongUseIsRefused();
    void shippedScenarioIsRight();

private:
    QString run(const QString& line);
    void point(int type, double x, double y);
    void click(double x, double y);
    QVideoFrame last();
    int frames() { return m_frames; }
    QList<QJsonObject> events(const QString& name) const;

    std::ostringstream m_events;
    std::optional<EventLog> m_log;
    std::optional<VideoFeature> m_video;
    std::optional<CommandInterpreter> m_commands;
    std::mutex m_mutex;
    QVideoFrame m_last;
    std::atomic_int m_frames = 0;
    std::unique_ptr<VideoReceiver> m_receiver;
    std::optional<Worker> m_worker;
    QUdpSocket m_pointer;
};

void VideoFeatureTest::init()
{
    static int s_count = 0;
    const QString suffix = u"%1n%2"_s.arg(QCoreApplication::applicationPid()).arg(++s_count);
    const VideoFeature::Names names{u"vorn_test_screen_"_s + suffix,
                                    u"vorn_test_screen_event_"_s + suffix, 0};
    m_events.str({});
    m_log.emplace(m_events);
    m_video.emplace(*m_log, names);
    m_commands.emplace();
    m_commands->beginSection(u"video"_s);
    m_video->addCommands(*m_commands);
    m_frames = 0;
    m_last = {};
    m_receiver = std::make_unique<VideoReceiver>(
        [this](const QVideoFrame& frame) {
            const std::scoped_lock lock(m_mutex);
            m_last = frame;
        },
        [this] { ++m_frames; },
        platform::makeFrameChannel(names.mapping.toStdString(), names.event.toStdString(),
                                   FrameHeader::ViewSize),
        VideoReceiver::Timing{5ms, 100ms});
    m_receiver->setPlaying(true);
    m_worker.emplace("video", [this](const StopRequest& stop) { m_receiver->run(stop); });
}

void VideoFeatureTest::cleanup()
{
    m_worker->requestStop();
    m_receiver->interrupt();
    m_worker.reset();
    m_video.reset();
}

/// Runs a command that needs no waiting; the reason when it fails.
QString VideoFeatureTest::run(const QString& line)
{
    const CommandInterpreter::Line parsed = m_commands->parse(line);
    return parsed.error.isEmpty() ? parsed.action().reason : parsed.error;
}

void VideoFeatureTest::point(int type, double x, double y)
{
    m_pointer.writeDatagram(pointerDatagram(quint8(type), float(x), float(y)),
                            QHostAddress(QHostAddress::LocalHost), m_video->pointerPort());
}

void VideoFeatureTest::click(double x, double y)
{
    point(0, x, y);
    point(1, x, y);
}

QVideoFrame VideoFeatureTest::last()
{
    const std::scoped_lock lock(m_mutex);
    return m_last;
}

QList<QJsonObject> VideoFeatureTest::events(const QString& name) const
{
    QList<QJsonObject> found;
    const QByteArrayList lines = QByteArray::fromStdString(m_events.str()).split('\n');
    for (const QByteArray& line : lines) {
        const QJsonObject event = QJsonDocument::fromJson(line).object();
        if (event.value("event"_L1) == name)
            found.append(event);
    }
    return found;
}

void VideoFeatureTest::convertsColours()
{
    const QList<std::pair<QRgb, Yuv>> colours{{0xFF000000, {16, 128, 128}},
                                              {0xFFFFFFFF, {235, 128, 128}},
                                              {0xFFFF0000, {81, 90, 240}},
                                              {0xFF00FF00, {145, 54, 34}},
                                              {0xFF0000FF, {41, 240, 110}}};
    QByteArray nv12;
    QImage image(8, 4, QImage::Format_RGB32);
    for (const auto& [rgb, yuv] : colours) {
        image.fill(rgb);
        convertToNv12(image, image.rect(), nv12);
        QCOMPARE(nv12.size(), 8 * 4 * 3 / 2);
        QCOMPARE(int(uchar(nv12.at(31))), yuv.y);
        QCOMPARE(int(uchar(nv12.at(46))), yuv.cb);
        QCOMPARE(int(uchar(nv12.at(47))), yuv.cr);
    }
    // A part touches nothing else, but for the other pixels of its pairs.
    const QByteArray before = nv12;
    image.fill(Qt::white);
    convertToNv12(image, QRect(3, 1, 1, 1), nv12);
    QCOMPARE(uchar(nv12.at(8 + 3)), uchar(235));
    QCOMPARE(uchar(nv12.at(2)), uchar(235));
    QCOMPARE(nv12.at(1), before.at(1));
    QCOMPARE(nv12.at(4), before.at(4));
    QCOMPARE(nv12.at(2 * 8 + 2), before.at(2 * 8 + 2));
}

void VideoFeatureTest::takesOnlyPointerEvents_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isEvent");
    const QByteArray right = pointerDatagram(2, 0.25F, 1);
    QTest::newRow("right") << right << true;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("cut") << right.chopped(1) << false;
    QTest::newRow("long") << right + '\0' << false;
    for (const int at : {0, 4, 5, 7, 8, 10, 11}) {
        QByteArray wrong = right;
        wrong[at] = char(wrong.at(at) + 9);
        QTest::addRow("byte %d", at) << wrong << false;
    }
    QTest::newRow("type") << pointerDatagram(3, 0, 0) << false;
    QTest::newRow("outside") << pointerDatagram(0, 1.1F, 0) << false;
    QTest::newRow("no number") << pointerDatagram(0, 0, std::nanf("")) << false;
}

void VideoFeatureTest::takesOnlyPointerEvents()
{
    QFETCH(QByteArray, bytes);
    const auto event = parsePointerEvent(bytes);
    QTEST(event.has_value(), "isEvent");
    if (!event)
        return;
    QCOMPARE(event->type, PointerEvent::Type::Move);
    QCOMPARE(event->position, QPointF(0.25, 1));
}

void VideoFeatureTest::framesArrive()
{
    run(u"video rate 100"_s);
    QCOMPARE(run(u"video start"_s), QString());
    QTRY_COMPARE_WITH_TIMEOUT(last().size(), QSize(1920, 1080), Patience);
    const QVideoFrame first = last();
    for (int i = 0; i < SetupPicture::patchColours().size(); ++i) {
        QImage image(2, 2, QImage::Format_RGB32);
        image.fill(SetupPicture::patchColours().at(i));
        QByteArray nv12;
        convertToNv12(image, image.rect(), nv12);
        const Yuv expected{uchar(nv12.at(0)), uchar(nv12.at(4)), uchar(nv12.at(5))};
        const QRect patch = SetupPicture::patch(i, first.size());
        for (const QPoint corner : {patch.topLeft(), patch.bottomRight()})
            QVERIFY(pixel(first, corner) == expected);
    }
    const auto isMoving = [&] { // the bar at the bottom
        for (int x = 200; x < 1700; x += 20) {
            if (!(pixel(first, {x, 1038}) == pixel(last(), {x, 1038})))
                return true;
        }
        return false;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isMoving(), Patience);
    run(u"video stop"_s);
    QCOMPARE(events(u"video"_s).last().value("state"_L1), u"stopped"_s);
}

void VideoFeatureTest::anotherSizeArrives()
{
    QCOMPARE(run(u"video start"_s), QString());
    for (const QSize size : {QSize(640, 360), QSize(2, 2), QSize(1080, 1920), QSize(3840, 2160)}) {
        QCOMPARE(run(u"video size %1 %2"_s.arg(size.width()).arg(size.height())), QString());
        QTRY_COMPARE_WITH_TIMEOUT(last().size(), size, Patience);
    }
}

void VideoFeatureTest::aPersonWalksThroughTheSetup()
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

void VideoFeatureTest::aButtonWorksWhereItWasPressedOnly()
{
    run(u"video size 640 360"_s);
    QCOMPARE(run(u"video start"_s), QString());
    point(0, 0.84, 0.86);
    point(2, 0.5, 0.5);
    QTRY_COMPARE_WITH_TIMEOUT(events(u"pointer"_s).size(), 2, Patience);
    // The mark shows where the pointer is.
    const auto isMarked = [this] { return pixel(last(), {320, 180}).cb < 60; };
    QTRY_VERIFY_WITH_TIMEOUT(isMarked(), Patience);
    point(1, 0.5, 0.5);
    point(0, 0.5, 0.5);
    point(1, 0.84, 0.86);
    m_pointer.writeDatagram("no event", QHostAddress(QHostAddress::LocalHost),
                            m_video->pointerPort());
    QTRY_COMPARE_WITH_TIMEOUT(events(u"malformed-datagram"_s).size(), 1, Patience);
    QCOMPARE(events(u"setup"_s).size(), 1);
}

void VideoFeatureTest::hostileFramesAreSurvived_data()
{
    QTest::addColumn<QString>("kind");
    for (const QString& kind : FrameWriter::faultNames())
        QTest::newRow(qPrintable(kind)) << kind;
}

void VideoFeatureTest::hostileFramesAreSurvived()
{
    QFETCH(QString, kind);
    LogCapture log;
    run(u"video size 320 180"_s);
    run(u"video rate 200"_s);
    QCOMPARE(run(u"video start"_s), QString());
    QTRY_VERIFY_WITH_TIMEOUT(frames() > 0, Patience);
    QCOMPARE(run(u"video hostile %1 20"_s.arg(kind)), QString());
    QTRY_COMPARE_WITH_TIMEOUT(events(u"hostile-frames-written"_s).size(), 1, Patience);
    if (kind != "torn"_L1) {
        const QStringList lines = log.take();
        QVERIFY(lines.indexOf(QRegularExpression(
                    u"^E "_s + Receiver +
                    uR"(error!!! index:\d+, w:\d+, h:\d+, len:-?\d+, frame_idx:\d+$)"_s)) >= 0);
    }
    const int before = frames();
    QTRY_VERIFY_WITH_TIMEOUT(frames() > before + 2, Patience);
    QCOMPARE(last().size(), QSize(320, 180));
}

void VideoFeatureTest::deadWritersAreFollowed()
{
#ifdef Q_OS_WIN
    QSKIP("There a name outlives its writer, and memory cannot be cut short.");
#endif
    run(u"video rate 100"_s);
    run(u"video size 320 180"_s);
    QCOMPARE(run(u"video start"_s), QString());
    QTRY_VERIFY_WITH_TIMEOUT(frames() > 0, Patience);
    for (const QString& fault : {u"video die"_s, u"video cut"_s, u"video die"_s}) {
        LogCapture log;
        QCOMPARE(run(fault), QString());
        const bool isCut = fault == "video cut"_L1;
        const auto isNoticed = [&] {
            return log.contains(u"E "_s + Receiver +
                                (isCut ? u"MapViewOfFile failed: %1"_s.arg(ENXIO)
                                       : u"wait [vorn_vframe_event_2025_05_19] WAIT_TIMEOUT"_s));
        };
        QTRY_VERIFY_WITH_TIMEOUT(isNoticed(), Patience);
        const int before = frames();
        QCOMPARE(run(u"video return"_s), QString());
        QTRY_VERIFY_WITH_TIMEOUT(frames() > before, Patience);
    }
}

void VideoFeatureTest::silenceIsNoticed()
{
    LogCapture log;
    QCOMPARE(run(u"video start"_s), QString());
    QTRY_VERIFY_WITH_TIMEOUT(frames() > 0, Patience);
    QCOMPARE(run(u"video stall"_s), QString());
    const auto isNoticed = [&] {
        return log.contains(u"E "_s + Receiver +
                            u"wait [vorn_vframe_event_2025_05_19] WAIT_TIMEOUT"_s);
    };
    QTRY_VERIFY_WITH_TIMEOUT(isNoticed(), Patience);
    const int before = frames();
    QCOMPARE(run(u"video resume"_s), QString());
    QTRY_VERIFY_WITH_TIMEOUT(frames() > before, Patience);
}

void VideoFeatureTest::wrongUseIsRefused()
{
    for (const QString& line :
         {u"video stall"_s, u"video resume"_s, u"video die"_s, u"video return"_s, u"video cut"_s,
          u"video size 3 2"_s, u"video size 3842 2160"_s, u"video hostile kindness"_s})
        QVERIFY(!run(line).isEmpty());
}

void VideoFeatureTest::shippedScenarioIsRight()
{
    std::ostringstream errors;
    const SocketFolder folder;
    Simulator simulator(folder.name(), m_events, errors);
    QVERIFY2(simulator.loadScenario(QStringLiteral(FIRST_RUN)), errors.str().c_str());
}

QTEST_MAIN(VideoFeatureTest)
#include "VideoFeatureTest.moc"
