#include "bench/Measure.h"
#include "bench/video/FrameSource.h"
#include "bench/video/MemoryUse.h"
#include "device/FrameHeader.h"
#include "device/NV12VideoSource.h"
#include "device/VideoReceiver.h"
#include "platform/FrameChannel.h"
#include "threads/Worker.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <cstring>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using platform::FrameChannel;
using Outcome = FrameChannel::WaitOutcome;

namespace
{

constexpr std::size_t LumaSize = 3840 * 2160;
constexpr std::size_t ChromaSize = LumaSize / 2;
constexpr std::size_t DataOffset = 1 + FrameHeader::HeaderSize;
constexpr std::size_t FirstFrames =
    12; // not counted, since their memory is touched for the first time

using Times = bench::Values; // microseconds
using bench::median;
using bench::quantile;

/// Two bare copies of a frame's bytes into warm buffers, one after another.
class BareCopy
{
public:
    void run()
    {
        std::vector<char>& target = m_targets[m_next++ % m_targets.size()];
        std::memmove(target.data(), m_source.data(), LumaSize);
        std::memmove(target.data() + LumaSize, m_source.data() + LumaSize, ChromaSize);
    }

private:
    std::vector<char> m_source = std::vector<char>(LumaSize + ChromaSize, 1);
    std::array<std::vector<char>, 4> m_targets{m_source, m_source, m_source, m_source};
    std::size_t m_next = 0;
};

/// Wraps a channel and records when a wait ended.
class TimedChannel : public FrameChannel
{
public:
    explicit TimedChannel(std::unique_ptr<FrameChannel> channel)
        : m_channel(std::move(channel))
    {
    }
    OpenResult open() override { return m_channel->open(); }
    bool isOpen() const override { return m_channel->isOpen(); }
    void close() override { m_channel->close(); }
    void interrupt() override { m_channel->interrupt(); }
    bool copyOut(std::size_t offset, void* target, std::size_t length) override
    {
        return m_channel->copyOut(offset, target, length);
    }
    WaitResult wait(std::chrono::milliseconds patience) override
    {
        const WaitResult result = m_channel->wait(patience);
        faults = pageFaults();
        start = now();
        return result;
    }

    qint64 start = 0;
    qint64 faults = 0;

private:
    const std::unique_ptr<FrameChannel> m_channel;
};

struct Names {
    QString mapping = u"vorn_bench_video_%1"_s.arg(QCoreApplication::applicationPid());
    QString event = mapping + u"_event"_s;

    std::unique_ptr<FrameChannel> channel() const
    {
        return platform::makeFrameChannel(mapping.toStdString(), event.toStdString(),
                                          FrameHeader::ViewSize);
    }
};

/// The program's path from the shared memory to a sink, with measurements.
class Path
{
public:
    explicit Path(const Names& names)
    {
        auto channel = std::make_unique<TimedChannel>(names.channel());
        m_channel = channel.get();
        m_receiver = std::make_unique<VideoReceiver>(
            [this](const QVideoFrame& frame) { take(frame); }, [] {}, std::move(channel),
            VideoReceiver::Timing{10ms, 1000ms});
        QObject::connect(&m_sink, &QVideoSink::videoFrameChanged, &m_source,
                         [this](const QVideoFrame& frame) { show(frame); });
        m_source.setVideoSink(&m_sink);
        m_receiver->setPlaying(true);
        m_worker = std::make_unique<Worker>(
            "video", [this](const std::stop_token& stop) { m_receiver->run(stop); });
    }

    ~Path() { m_worker->end(); }
    Q_DISABLE_COPY_MOVE(Path)

    /// Requests frames and runs the event loop until no more arrive. Some frames are skipped when
    /// the machine is busy.
    void receive(FrameSource& source, int count, std::chrono::microseconds interval)
    {
        constexpr auto Silence = 1s;
        QEventLoop loop;
        QTimer ending;
        QObject::connect(&ending, &QTimer::timeout, &loop, [&] {
            if (now() - m_lastFrame > std::chrono::microseconds(Silence).count())
                loop.quit();
        });
        ending.start(100ms);
        m_lastFrame = now() + std::chrono::microseconds(Silence).count(); // time to connect
        source.write(count, interval);
        loop.exec();
    }

    void forget()
    {
        copies.clear();
        latencies.clear();
        faults.clear();
    }

    // Accessed only while nothing is received.
    bool isCompared = false;              ///< a bare copy follows each frame
    std::chrono::milliseconds slowness{}; ///< time that the sink takes for each frame
    Times copies;
    Times bareCopies;
    Times latencies; ///< from the announcement to the sink
    std::vector<qint64> faults;

private:
    void take(const QVideoFrame& frame)
    {
        const double duration = double(now() - m_channel->start);
        const qint64 faultCount = pageFaults() - m_channel->faults;
        copies.push_back(duration);
        faults.push_back(faultCount);
        m_source.pushFrame(frame);
        if (isCompared) {
            const qint64 start = now();
            m_bare.run();
            bareCopies.push_back(double(now() - start));
        }
        m_lastFrame = now();
    }

    void show(QVideoFrame frame)
    {
        const qint64 shown = now();
        qint64 announced = 0;
        if (!frame.map(QVideoFrame::ReadOnly))
            return;
        std::memcpy(&announced, frame.bits(0), sizeof announced);
        frame.unmap();
        latencies.push_back(double(shown - announced));
        std::this_thread::sleep_for(slowness);
    }

    BareCopy m_bare;
    NV12VideoSource m_source;
    QVideoSink m_sink;
    TimedChannel* m_channel = nullptr;
    std::unique_ptr<VideoReceiver> m_receiver;
    std::atomic<qint64> m_lastFrame = 0;
    std::unique_ptr<Worker> m_worker;
};

/// Times from the announcement to the end of two bare copies, without code of the program.
Times bareLatencies(const Names& names, FrameSource& source, int count)
{
    const auto channel = names.channel();
    BareCopy copy;
    copy.run();
    Times times;
    if (channel->open().failedAt != FrameChannel::OpenStep::Done)
        return times;
    source.write(count, 12ms);
    for (int i = 0; i < count && channel->wait(2000ms).outcome == Outcome::Signalled; ++i) {
        qint64 announced = 0;
        channel->copyOut(DataOffset, &announced, sizeof announced);
        copy.run();
        times.push_back(double(now() - announced));
    }
    return times;
}

void compareCopies(const Names& names, FrameSource& source)
{
    constexpr int Count = 1500;
    Path path(names);
    path.isCompared = true;
    path.receive(source, Count, 6ms);

    const Times copies(path.copies.begin() + FirstFrames, path.copies.end());
    const Times bare(path.bareCopies.begin() + FirstFrames, path.bareCopies.end());
    const auto faulty = std::count_if(path.faults.begin() + FirstFrames, path.faults.end(),
                                      [](qint64 count) { return count > 0; });
    std::printf(
        "frame buffer, map and copy, against two bare memmoves: ratio %.2f (%.0f us against "
        "%.0f us; aim at most 1.0)\n",
        median(copies) / median(bare), median(copies), median(bare));
    std::printf("99th percentile of it, against its median: ratio %.2f (%.0f us; the bare copies' "
                "own ratio is %.2f; aim at most 1.5)\n",
                quantile(copies, 0.99) / median(copies), quantile(copies, 0.99),
                quantile(bare, 0.99) / median(bare));
    std::printf("frames with page faults after the first %zu: %td of %zu (aim 0)\n", FirstFrames,
                faulty, copies.size());
}

void compareLatencies(const Names& names, FrameSource& source)
{
    constexpr int Rounds = 5;
    constexpr int Count = 100;
    Times path;
    Times bare;
    for (int round = 0; round < Rounds; ++round) {
        {
            Path real(names);
            real.receive(source, Count, 12ms);
            path.insert(path.end(), real.latencies.begin() + FirstFrames, real.latencies.end());
        }
        const Times times = bareLatencies(names, source, Count);
        bare.insert(bare.end(), times.begin() + FirstFrames, times.end());
    }
    std::printf("from announcement to sink, against bare wake-up and copy: ratio %.2f (%.0f us "
                "against %.0f us; aim at most 1.2)\n",
                median(path) / median(bare), median(path), median(bare));
}

void watchMemory(const Names& names, FrameSource& source)
{
    constexpr std::size_t Count = 20'000;
    constexpr int WarmUp = 500;
    constexpr int Batch = 5'000;
    constexpr auto Interval = 2500us;
    Path path(names);
    path.receive(source, WarmUp, Interval);
    const qint64 before = residentBytes();
    std::size_t received = 0;
    while (received < Count) {
        path.forget(); // so that the measurements do not count as growth
        path.receive(source, Batch, Interval);
        received += path.copies.size();
    }
    const qint64 growth = residentBytes() - before;
    std::printf("memory after %zu frames, against before: ratio %.3f (grew by %.1f MB, a frame has "
                "12.4 MB; aim at most 1.02)\n",
                received, double(residentBytes()) / double(before), double(growth) / 1e6);
}

void watchSlowSink(const Names& names, FrameSource& source)
{
    constexpr auto Interval = 10ms;
    constexpr int Count = 600;
    Path path(names);
    path.receive(source, 50, Interval);
    path.slowness = 100ms;
    path.forget();
    const qint64 before = residentBytes();
    path.receive(source, Count, Interval);
    std::printf("a sink that takes 100 ms gets every %.0fth frame, of an age, against the time "
                "between frames: ratio %.2f (aim at most 2); memory grew by %.1f MB\n",
                double(Count) / double(path.latencies.size()),
                median(path.latencies) / 1000 / double(Interval.count()),
                double(residentBytes() - before) / 1e6);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    const QTemporaryDir folder;
    FLAGS_stderrthreshold = google::GLOG_FATAL;
    FLAGS_log_dir = folder.path().toStdString();
    google::InitGoogleLogging(argv[0]);
    const Names names;
    FrameSource source(names.mapping, names.event);
    compareCopies(names, source);
    compareLatencies(names, source);
    watchSlowSink(names, source);
    watchMemory(names, source);
}
