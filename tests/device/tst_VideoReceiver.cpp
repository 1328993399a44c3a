#include "FakeFrameChannel.h"
#include "device/VideoReceiver.h"
#include "rig/HelperProcess.h"
#include "support/LogCapture.h"

#include <QTest>

#include <cerrno>
#include <deque>
#include <optional>
#include <random>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using platform::FrameChannel;
using Outcome = FrameChannel::WaitOutcome;
using Step = FrameChannel::OpenStep;

namespace
{

constexpr auto Name = "E DeviceControl::RecvSharedMemoryProc "_L1;

qint64 neededSize(qint64 w, qint64 h)
{
    return w * h + 2 * ((w + 1) / 2) * ((h + 1) / 2);
}

FrameHeader header(quint16 w, quint16 h, std::optional<qint32> len = {}, quint8 index = 0,
                   quint32 number = 0)
{
    return {index, number, w, h, len.value_or(qint32(neededSize(w, h)))};
}

bool isFrame(const FrameHeader& header)
{
    const qint64 needed = neededSize(header.w, header.h);
    return header.index == 0 && header.w > 0 && header.h > 0 && needed <= 12'441'600 &&
           header.len >= needed && header.len <= 12'441'600;
}

QString invalidLine(const FrameHeader& header)
{
    // A slot outside the view cannot be read.
    const FrameHeader seen = header.index == 0 ? header : FrameHeader{header.index, 0, 0, 0, 0};
    return Name + u"error!!! index:%1, w:%2, h:%3, len:%4, frame_idx:%5"_s.arg(seen.index)
                      .arg(seen.w)
                      .arg(seen.h)
                      .arg(seen.len)
                      .arg(seen.frameNumber);
}

/// A receiver whose writer is the test.
struct Rig {
    explicit Rig(FakeFrameChannel::Writer writer)
    {
        auto made = std::make_unique<FakeFrameChannel>(std::move(writer));
        channel = made.get();
        receiver.emplace(
            [this](const QVideoFrame& frame) {
                last = frame;
                ++frames;
            },
            [this] { ++delivered; }, std::move(made), VideoReceiver::Timing{1ms, 1ms});
        receiver->setPlaying(true);
    }

    /// Until the writer requests the stop.
    void run() { receiver->run(stop.get_token()); }

    FakeFrameChannel* channel = nullptr;
    std::optional<VideoReceiver> receiver;
    std::stop_source stop;
    QVideoFrame last;
    int frames = 0;
    int delivered = 0;
};

/// Whether the rows of a frame are those of the packed bytes at `data`.
bool isShownStraight(QVideoFrame frame, const uchar* data)
{
    const int width = frame.width();
    const int height = frame.height();
    if (!frame.map(QVideoFrame::ReadOnly))
        return false;
    bool isEqual = true;
    const int chromaWidth = (width + 1) / 2 * 2;
    const int chromaRows = std::min((height + 1) / 2, frame.mappedBytes(1) / frame.bytesPerLine(1));
    for (int y = 0; y < height; ++y)
        isEqual &= std::memcmp(frame.bits(0) + qsizetype(y) * frame.bytesPerLine(0),
                               data + qsizetype(y) * width, width) == 0;
    data += qsizetype(width) * height;
    for (int y = 0; y < chromaRows; ++y)
        isEqual &= std::memcmp(frame.bits(1) + qsizetype(y) * frame.bytesPerLine(1),
                               data + qsizetype(y) * chromaWidth, chromaWidth) == 0;
    frame.unmap();
    return isEqual;
}

} // namespace

/// The worker that takes the display's screen out of the shared memory.
class tst_VideoReceiver : public QObject
{
    Q_OBJECT

private slots:
    void survivesRandomHeaders();
    void readsTheHeaderOnce();
    void showsPaddedLinesStraight_data();
    void showsPaddedLinesStraight();
    void namesTheColourSpace();
    void logsEveryThousandthFrame();
    void opensNothingWhileNotPlaying();
    void tellsWhatCannotBeOpened();
    void tellsOfSilenceAndFailure();
    void opensAgainWhenTheMemoryIsCutShort();
    void survivesTornWritesOfAProcess();
    void followsAWriterThatDiesAndReturns();
};

void tst_VideoReceiver::survivesRandomHeaders()
{
    constexpr int Count = 100'000;
    std::mt19937 random(20250519);
    int made = 0;
    int valid = 0;
    QStringList expected;
    const auto randomHeader = [&] {
        const auto size = [&] { return quint16(random() % 50 == 0 ? random() : random() % 64); };
        const quint8 index = random() % 5 == 0 ? quint8(random()) : 0;
        FrameHeader next = header(size(), size(), {}, index, quint32(random()));
        if (random() % 3 == 0)
            next.len = qint32(random());
        else if (random() % 3 == 0)
            next.len += int(random() % 5) - 2;
        return next;
    };
    Rig rig([&](FakeFrameChannel& channel) {
        if (made == Count) {
            rig.stop.request_stop();
            return FrameChannel::WaitResult{Outcome::Interrupted, 0};
        }
        ++made;
        const FrameHeader next = randomHeader();
        channel.putHeader(next);
        isFrame(next) ? void(++valid) : expected.append(invalidLine(next));
        return FrameChannel::WaitResult{Outcome::Signalled, 0};
    });
    LogCapture log;
    rig.run();

    QStringList complaints = log.take();
    complaints.removeIf([](const QString& line) { return line.startsWith(u'I'); });
    QVERIFY(complaints == expected);
    QVERIFY(valid > Count / 10);
    QCOMPARE(rig.frames, valid);
    QCOMPARE(rig.delivered, valid);
    QCOMPARE(rig.channel->readsOutside, 0);
}

void tst_VideoReceiver::readsTheHeaderOnce()
{
    int rounds = 0;
    Rig rig([&](FakeFrameChannel& channel) {
        if (rounds++ == 10) {
            rig.stop.request_stop();
            return FrameChannel::WaitResult{Outcome::Interrupted, 0};
        }
        channel.putHeader(header(64, 48));
        return FrameChannel::WaitResult{Outcome::Signalled, 0};
    });
    // The index is read, then the header; what the writer makes of them after that is too late.
    int reads = 0;
    rig.channel->afterRead = [&] {
        if (++reads % 4 == 2)
            rig.channel->putHeader(header(0xFFFF, 0xFFFF, 0x7FFFFFFF, 0xFF));
    };
    rig.run();
    QCOMPARE(rig.frames, 10);
    QCOMPARE(rig.last.size(), QSize(64, 48));
    QCOMPARE(rig.channel->readsOutside, 0);
}

void tst_VideoReceiver::showsPaddedLinesStraight_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(164, 90), QSize(161, 91), QSize(3, 3), QSize(2, 2), QSize(1, 1),
                             QSize(1920, 1080), QSize(2160, 3840), QSize(3840, 2160)})
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

void tst_VideoReceiver::showsPaddedLinesStraight()
{
    QFETCH(QSize, size);
    Rig rig([&](FakeFrameChannel& channel) {
        if (rig.frames > 0) {
            rig.stop.request_stop();
            return FrameChannel::WaitResult{Outcome::Interrupted, 0};
        }
        const FrameHeader next = header(quint16(size.width()), quint16(size.height()));
        channel.putHeader(next);
        std::minstd_rand random(1);
        std::generate_n(channel.data(), next.len, [&] { return uchar(random()); });
        return FrameChannel::WaitResult{Outcome::Signalled, 0};
    });
    rig.run();
    QCOMPARE(rig.last.size(), size);
    QVERIFY(isShownStraight(rig.last, rig.channel->data()));
}

void tst_VideoReceiver::namesTheColourSpace()
{
    Rig rig([&](FakeFrameChannel& channel) {
        if (rig.frames > 0)
            rig.stop.request_stop();
        channel.putHeader(header(1920, 1080));
        return FrameChannel::WaitResult{Outcome::Signalled, 0};
    });
    rig.run();
    QCOMPARE(rig.last.surfaceFormat().colorSpace(), QVideoFrameFormat::ColorSpace_BT601);
    QCOMPARE(rig.last.surfaceFormat().colorRange(), QVideoFrameFormat::ColorRange_Video);
}

void tst_VideoReceiver::logsEveryThousandthFrame()
{
    Rig rig([&](FakeFrameChannel& channel) {
        if (rig.frames == 2001) {
            rig.stop.request_stop();
            return FrameChannel::WaitResult{Outcome::Interrupted, 0};
        }
        channel.putHeader(header(2, 2, {}, 0, quint32(rig.frames + 7)));
        return FrameChannel::WaitResult{Outcome::Signalled, 0};
    });
    LogCapture log;
    rig.run();
    constexpr auto Info = "I DeviceControl::RecvSharedMemoryProc "_L1;
    QCOMPARE(log.take(), (QStringList{Info + u"thread start"_s,
                                      Info + u"connect:vorn_vframe_header_2025_05_19"_s,
                                      Info + u"index:0, w:2, h:2, len:6, frame_idx:7"_s,
                                      Info + u"index:0, w:2, h:2, len:6, frame_idx:1007"_s,
                                      Info + u"index:0, w:2, h:2, len:6, frame_idx:2007"_s,
                                      Info + u"thread end"_s}));
}

void tst_VideoReceiver::opensNothingWhileNotPlaying()
{
    std::atomic_bool isPlaying = false;
    bool wasOpenedEarly = false;
    Rig rig([&](FakeFrameChannel&) {
        rig.stop.request_stop();
        return FrameChannel::WaitResult{Outcome::Interrupted, 0};
    });
    rig.channel->onOpen = [&] {
        wasOpenedEarly |= !isPlaying;
        return FrameChannel::OpenResult{};
    };
    rig.receiver->setPlaying(false);
    std::thread worker([&] { rig.run(); });
    std::this_thread::yield();
    isPlaying = true;
    rig.receiver->setPlaying(true);
    worker.join();
    QVERIFY(!wasOpenedEarly);
}

void tst_VideoReceiver::tellsWhatCannotBeOpened()
{
    std::deque<FrameChannel::OpenResult> results{
        {Step::Mapping, 2}, {Step::View, 5}, {Step::Event, 6}, {Step::Done, 0}};
    Rig rig([&](FakeFrameChannel&) {
        rig.stop.request_stop();
        return FrameChannel::WaitResult{Outcome::Interrupted, 0};
    });
    rig.channel->onOpen = [&] {
        const auto result = results.front();
        results.pop_front();
        return result;
    };
    LogCapture log;
    rig.run();
    QCOMPARE(log.take().mid(1, 3),
             (QStringList{Name + u"OpenFileMappingA [vorn_vframe_header_2025_05_19] failed: 2"_s,
                          Name + u"MapViewOfFile failed: 5"_s,
                          Name + u"OpenEventA [vorn_vframe_event_2025_05_19] failed: 6"_s}));
}

void tst_VideoReceiver::tellsOfSilenceAndFailure()
{
    std::deque<FrameChannel::WaitResult> results{
        {Outcome::TimedOut, 0}, {Outcome::Failed, 6}, {Outcome::Interrupted, 0}};
    Rig rig([&](FakeFrameChannel&) {
        const auto result = results.front();
        results.pop_front();
        if (results.empty())
            rig.stop.request_stop();
        return result;
    });
    LogCapture log;
    rig.run();
    QCOMPARE(log.take().mid(2, 2),
             (QStringList{Name + u"wait [vorn_vframe_event_2025_05_19] WAIT_TIMEOUT"_s,
                          Name + u"wait [vorn_vframe_event_2025_05_19] failed:6"_s}));
    QCOMPARE(rig.delivered, 0);
}

void tst_VideoReceiver::opensAgainWhenTheMemoryIsCutShort()
{
    int rounds = 0;
    Rig rig([&](FakeFrameChannel& channel) {
        channel.putHeader(header(16, 16));
        channel.isCutShort = ++rounds == 1;
        if (rig.frames > 0)
            rig.stop.request_stop();
        return FrameChannel::WaitResult{Outcome::Signalled, 0};
    });
    int openings = 0;
    rig.channel->onOpen = [&] {
        ++openings;
        return FrameChannel::OpenResult{};
    };
    rig.run();
    QCOMPARE(openings, 2);
    QVERIFY(rig.frames > 0);
}

namespace
{

/// A receiver on a thread of its own, reading what another process writes.
class RunningReceiver
{
public:
    RunningReceiver(const QString& mapping, const QString& event)
        : m_receiver([this](const QVideoFrame& frame) { take(frame); }, [] {},
                     platform::makeFrameChannel(mapping.toStdString(), event.toStdString(),
                                                FrameHeader::ViewSize),
                     VideoReceiver::Timing{10ms, 100ms})
    {
        m_receiver.setPlaying(true);
        m_worker.emplace("video", [this](const std::stop_token& stop) { m_receiver.run(stop); });
    }

    ~RunningReceiver() { m_worker->end(); }
    Q_DISABLE_COPY_MOVE(RunningReceiver)

    QVideoFrame last()
    {
        const std::scoped_lock lock(m_mutex);
        return m_last;
    }

private:
    void take(const QVideoFrame& frame)
    {
        const std::scoped_lock lock(m_mutex);
        m_last = frame;
    }

    std::mutex m_mutex;
    QVideoFrame m_last;
    VideoReceiver m_receiver;
    std::optional<Worker> m_worker;
};

/// A writing process and the names of its objects.
struct Writer {
    bool start()
    {
        process = std::make_unique<HelperProcess>();
        return process->startAndWait(HelperProcess::path(u"frame_writer"_s), {mapping, event}) &&
               process->command("mapping " +
                                QByteArray::number(qulonglong(FrameHeader::ViewSize))) &&
               process->command("event");
    }

    const QString mapping = uniqueName(u"vorn_test_video_"_s);
    const QString event = uniqueName(u"vorn_test_video_event_"_s);
    std::unique_ptr<HelperProcess> process;
};

} // namespace

void tst_VideoReceiver::survivesTornWritesOfAProcess()
{
    if (IsWindows)
        QSKIP("The writer that plays it there cannot tear.");
    Writer writer;
    QVERIFY(writer.start());
    RunningReceiver receiver(writer.mapping, writer.event);
    QVERIFY(writer.process->command("frame 2 2"));
    QTRY_COMPARE(receiver.last().size(), QSize(2, 2));
    QVERIFY(writer.process->command("torn 100000"));
    QVERIFY(writer.process->command("frame 164 90"));
    QTRY_COMPARE(receiver.last().size(), QSize(164, 90));
    std::vector<uchar> bytes(164 * 90 * 3 / 2);
    std::generate(bytes.begin(), bytes.end(), [i = 0]() mutable { return uchar(i++); });
    QVERIFY(isShownStraight(receiver.last(), bytes.data()));
}

void tst_VideoReceiver::followsAWriterThatDiesAndReturns()
{
    if (IsWindows)
        QSKIP("There a name outlives its writer.");
    Writer writer;
    LogCapture log;
    RunningReceiver receiver(writer.mapping, writer.event);
    const auto cannotOpen = [&] {
        return log.contains(
            Name + u"OpenFileMappingA [vorn_vframe_header_2025_05_19] failed: %1"_s.arg(ENOENT));
    };
    QTRY_VERIFY(cannotOpen());
    QVERIFY(writer.start());
    const auto isConnected = [&] {
        return log.contains(u"I DeviceControl::RecvSharedMemoryProc "
                            "connect:vorn_vframe_header_2025_05_19"_s);
    };
    QTRY_VERIFY(isConnected());
    QVERIFY(writer.process->command("frame 640 360"));
    QTRY_COMPARE(receiver.last().size(), QSize(640, 360));

    for (const QSize size : {QSize(320, 180), QSize(1280, 720)}) {
        QVERIFY(writer.process->killAndWait()); // its names stay behind
        log.take();
        const auto isSilent = [&] {
            return log.contains(Name + u"wait [vorn_vframe_event_2025_05_19] WAIT_TIMEOUT"_s);
        };
        QTRY_VERIFY(isSilent());
        QVERIFY(writer.start());
        QTRY_VERIFY(isConnected());
        QVERIFY(writer.process->command(QByteArray("frame %1 %2")
                                            .replace("%1", QByteArray::number(size.width()))
                                            .replace("%2", QByteArray::number(size.height()))));
        QTRY_COMPARE(receiver.last().size(), size);
    }
}

QTEST_GUILESS_MAIN(tst_VideoReceiver)
#include "tst_VideoReceiver.moc"
