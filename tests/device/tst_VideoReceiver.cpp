#include "FakeFrameChannel.h"
#include "device/VideoReceiver.h"
#include "rig/HelperProcess.h"
#include "support/LogCapture.h"
#include "threads/Worker.h"

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

constexpr auto Error = "E DeviceControl::RecvSharedMemoryProc "_L1;
constexpr auto Info = "I DeviceControl::RecvSharedMemoryProc "_L1;
const QString Connected = Info + u"connect:vorn_vframe_header_2025_05_19"_s;
const QString Silent = Error + u"wait [vorn_vframe_event_2025_05_19] WAIT_TIMEOUT"_s;

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
    return Error + u"error!!! index:%1, w:%2, h:%3, len:%4, frame_idx:%5"_s.arg(seen.index)
                       .arg(seen.w)
                       .arg(seen.h)
                       .arg(seen.len)
                       .arg(seen.frameNumber);
}

/// A receiver that waits so often, while the test plays the writer before each wait returns.
struct Rig {
    Rig(int waits, std::function<void(FakeFrameChannel&)> write)
    {
        auto made = std::make_unique<FakeFrameChannel>(
            [this, waits, write = std::move(write)](FakeFrameChannel& fake) {
                if (waitsMade++ == waits) {
                    stop.request_stop();
                    return FrameChannel::WaitResult{Outcome::Interrupted, 0};
                }
                write(fake);
                return result;
            });
        channel = made.get();
        receiver.emplace(
            [this](const QVideoFrame& frame) {
                last = frame;
                ++frames;
            },
            [this] { ++delivered; }, std::move(made), VideoReceiver::Timing{1ms, 1ms});
        receiver->setPlaying(true);
    }

    /// Runs to the end of the waits; the log lines.
    QStringList run()
    {
        LogCapture log;
        receiver->run(stop.get_token());
        return log.take();
    }

    FakeFrameChannel* channel = nullptr;
    FrameChannel::WaitResult result{Outcome::Signalled, 0}; // of the next waits
    std::optional<VideoReceiver> receiver;
    std::stop_source stop;
    int waitsMade = 0;
    QVideoFrame last;
    int frames = 0;
    int delivered = 0;
};

/// Whether the rows of a frame are those of the packed bytes at `data`.
bool hasRows(QVideoFrame frame, const uchar* data)
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

/// A receiver on a thread of its own and a writing process.
class LiveRig
{
public:
    LiveRig()
        : m_receiver([this](const QVideoFrame& frame) { take(frame); }, [] {},
                     platform::makeFrameChannel(m_mapping.toStdString(), m_event.toStdString(),
                                                FrameHeader::ViewSize),
                     VideoReceiver::Timing{10ms, 100ms})
        , m_worker("video", [this](const std::stop_token& stop) { m_receiver.run(stop); })
    {
        m_receiver.setPlaying(true);
    }

    bool startWriter()
    {
        writer = std::make_unique<HelperProcess>();
        return writer->startAndWait(HelperProcess::path(u"frame_writer"_s), {m_mapping, m_event}) &&
               writer->command("mapping " +
                               QByteArray::number(qulonglong(FrameHeader::ViewSize))) &&
               writer->command("event");
    }

    bool writeFrame(const QSize& size) const
    {
        return writer->command("frame " + QByteArray::number(size.width()) + ' ' +
                               QByteArray::number(size.height()));
    }

    QVideoFrame last()
    {
        const std::scoped_lock lock(m_mutex);
        return m_last;
    }

    std::unique_ptr<HelperProcess> writer;

private:
    void take(const QVideoFrame& frame)
    {
        const std::scoped_lock lock(m_mutex);
        m_last = frame;
    }

    const QString m_mapping = uniqueName(u"vorn_test_video_"_s);
    const QString m_event = uniqueName(u"vorn_test_video_event_"_s);
    std::mutex m_mutex;
    QVideoFrame m_last;
    VideoReceiver m_receiver;
    Worker m_worker;
};

} // namespace

/// The worker that takes the display's screen out of the shared memory.
class tst_VideoReceiver : public QObject
{
    Q_OBJECT

private slots:
    void survivesRandomHeaders();
    void readsTheHeaderOnce();
    void copiesIntoPaddedRows_data();
    void copiesIntoPaddedRows();
    void logsEveryThousandthFrame();
    void opensNothingWhileNotPlaying();
    void logsFailuresAndConnectsAgain();
    void survivesTornWrites();
    void followsAWriterThatDiesAndReturns();
};

void tst_VideoReceiver::survivesRandomHeaders()
{
    constexpr int Count = 100'000;
    std::mt19937 random(20250519);
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
    Rig rig(Count, [&](FakeFrameChannel& channel) {
        const FrameHeader next = randomHeader();
        channel.putHeader(next);
        isFrame(next) ? void(++valid) : expected.append(invalidLine(next));
    });
    QStringList lines = rig.run();

    lines.removeIf([](const QString& line) { return line.startsWith(u'I'); });
    // A flood is summed up after its first lines.
    QVERIFY(lines.size() >= 200 && lines.size() < expected.size());
    QVERIFY(lines.first(200) == expected.first(200));
    QVERIFY(valid > Count / 10);
    QCOMPARE(rig.frames, valid);
    QCOMPARE(rig.delivered, valid);
    QCOMPARE(rig.channel->readsOutside, 0);
}

void tst_VideoReceiver::readsTheHeaderOnce()
{
    Rig rig(10, [](FakeFrameChannel& channel) { channel.putHeader(header(64, 48)); });
    // The receiver reads the index, the header, luma and chroma. The header changes after it was
    // read.
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

void tst_VideoReceiver::copiesIntoPaddedRows_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(164, 90), QSize(161, 91), QSize(3, 3), QSize(2, 2), QSize(1, 1),
                             QSize(1920, 1080), QSize(2160, 3840), QSize(3840, 2160)})
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

void tst_VideoReceiver::copiesIntoPaddedRows()
{
    QFETCH(QSize, size);
    Rig rig(1, [&](FakeFrameChannel& channel) {
        const FrameHeader next = header(quint16(size.width()), quint16(size.height()));
        channel.putHeader(next);
        std::minstd_rand random(1);
        std::generate_n(channel.data(), next.len, [&] { return uchar(random()); });
    });
    rig.run();
    QCOMPARE(rig.last.size(), size);
    QVERIFY(hasRows(rig.last, rig.channel->data()));
    QCOMPARE(rig.last.surfaceFormat().colorSpace(), QVideoFrameFormat::ColorSpace_BT601);
    QCOMPARE(rig.last.surfaceFormat().colorRange(), QVideoFrameFormat::ColorRange_Video);
}

void tst_VideoReceiver::logsEveryThousandthFrame()
{
    Rig rig(2001, [&](FakeFrameChannel& channel) {
        channel.putHeader(header(2, 2, {}, 0, quint32(rig.frames + 7)));
    });
    QCOMPARE(rig.run(), (QStringList{Info + u"thread start"_s, Connected,
                                     Info + u"index:0, w:2, h:2, len:6, frame_idx:7"_s,
                                     Info + u"index:0, w:2, h:2, len:6, frame_idx:1007"_s,
                                     Info + u"index:0, w:2, h:2, len:6, frame_idx:2007"_s,
                                     Info + u"thread end"_s}));
}

void tst_VideoReceiver::opensNothingWhileNotPlaying()
{
    std::atomic_bool isPlaying = false;
    bool wasOpenedEarly = false;
    Rig rig(0, {});
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

void tst_VideoReceiver::logsFailuresAndConnectsAgain()
{
    std::deque<FrameChannel::OpenResult> openings{
        {Step::Mapping, 2}, {Step::View, 5}, {Step::Event, 6}, {Step::Done, 0}, {Step::Done, 0}};
    Rig rig(4, [&](FakeFrameChannel& channel) {
        static constexpr std::array Results{
            FrameChannel::WaitResult{Outcome::TimedOut, 0},
            FrameChannel::WaitResult{Outcome::Failed, 6},
            FrameChannel::WaitResult{Outcome::Signalled, 0}, // of memory that was cut short
            FrameChannel::WaitResult{Outcome::Signalled, 0}};
        rig.result = Results.at(std::size_t(rig.waitsMade - 1));
        channel.putHeader(header(2, 2));
        channel.isCutShort = rig.waitsMade == 3;
    });
    rig.channel->onOpen = [&] {
        const auto result = openings.front();
        openings.pop_front();
        return result;
    };
    QCOMPARE(
        rig.run(),
        (QStringList{Info + u"thread start"_s,
                     Error + u"OpenFileMappingA [vorn_vframe_header_2025_05_19] failed: 2"_s,
                     Error + u"MapViewOfFile failed: 5"_s,
                     Error + u"OpenEventA [vorn_vframe_event_2025_05_19] failed: 6"_s, Connected,
                     Silent, Error + u"wait [vorn_vframe_event_2025_05_19] failed:6"_s,
                     Info + u"detect resources disconnect! reconnect to "
                            "vorn_vframe_event_2025_05_19"_s,
                     Connected, Info + u"index:0, w:2, h:2, len:6, frame_idx:0"_s,
                     Info + u"thread end"_s}));
    QCOMPARE(rig.delivered, 1);
}

void tst_VideoReceiver::survivesTornWrites()
{
    LiveRig rig;
    QVERIFY(rig.startWriter());
    QVERIFY(rig.writeFrame({2, 2}));
    QTRY_COMPARE(rig.last().size(), QSize(2, 2));
    QVERIFY(rig.writer->command("torn 100000"));
    QVERIFY(rig.writeFrame({164, 90}));
    QTRY_COMPARE(rig.last().size(), QSize(164, 90));
    std::vector<uchar> bytes(164 * 90 * 3 / 2);
    std::iota(bytes.begin(), bytes.end(), uchar(0));
    QVERIFY(hasRows(rig.last(), bytes.data()));
}

void tst_VideoReceiver::followsAWriterThatDiesAndReturns()
{
    if (IsWindows)
        QSKIP("Names outlive their writer on Windows.");
    LogCapture log;
    LiveRig rig;
    const QString noMapping =
        Error + u"OpenFileMappingA [vorn_vframe_header_2025_05_19] failed: %1"_s.arg(ENOENT);
    QTRY_VERIFY(log.contains(noMapping));
    for (const QSize size : {QSize(640, 360), QSize(320, 180), QSize(1280, 720)}) {
        QVERIFY(rig.startWriter());
        QTRY_VERIFY(log.contains(Connected));
        QVERIFY(rig.writeFrame(size));
        QTRY_COMPARE(rig.last().size(), size);
        QVERIFY(rig.writer->killAndWait()); // without removing its names
        log.take();
        QTRY_VERIFY(log.contains(Silent));
    }
}

QTEST_GUILESS_MAIN(tst_VideoReceiver)
#include "tst_VideoReceiver.moc"
