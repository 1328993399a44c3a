#include "device/ChannelGate.h"
#include "device/NV12VideoSource.h"
#include "threads/Worker.h"

#include <QSignalSpy>
#include <QTest>
#include <QVideoFrameFormat>

#include <atomic>
#include <future>

using namespace std::chrono_literals;

/// The pieces that let worker threads end in order.
class tst_Workers : public QObject
{
    Q_OBJECT

private slots:
    void closedGateDeliversNothing();
    void closingWaitsForACallUnderWay();
    void workerStopsAtOnce();
    void videoSourceDeliversTheNewestFrame();
    void videoSourceForgetsADestroyedSink();
};

void tst_Workers::closedGateDeliversNothing()
{
    int calls = 0;
    ChannelGate gate([&](int id, const std::string&) {
        ++calls;
        return id;
    });
    QCOMPARE(gate.pass(7, ""), 7);
    gate.close();
    QCOMPARE(gate.pass(7, ""), 0);
    QCOMPARE(calls, 1);
}

void tst_Workers::closingWaitsForACallUnderWay()
{
    std::promise<void> entered;
    std::promise<void> proceed;
    std::atomic<bool> isCallOver = false;
    ChannelGate gate([&](int, const std::string&) {
        entered.set_value();
        proceed.get_future().wait();
        isCallOver = true;
        return 0;
    });
    std::thread library([&] { gate.pass(1, ""); });
    entered.get_future().wait();
    std::thread release([&] { proceed.set_value(); });
    gate.close();
    QVERIFY(isCallOver);
    release.join();
    library.join();
}

void tst_Workers::workerStopsAtOnce()
{
    bool wasAskedToStop = false;
    {
        Worker worker("test",
                      [&](const std::stop_token& stop) { wasAskedToStop = waitForStop(stop, 1h); });
    }
    QVERIFY(wasAskedToStop);
}

void tst_Workers::videoSourceDeliversTheNewestFrame()
{
    NV12VideoSource source;
    QVideoSink sink;
    const auto frame = [](int width) {
        return QVideoFrame(QVideoFrameFormat(QSize(width, 2), QVideoFrameFormat::Format_NV12));
    };
    source.pushFrame(frame(2));
    QSignalSpy sinkChanged(&source, &NV12VideoSource::videoSinkChanged);
    source.setVideoSink(&sink);
    source.setVideoSink(&sink);
    QCOMPARE(sinkChanged.count(), 1);

    QSignalSpy shown(&sink, &QVideoSink::videoFrameChanged);
    std::thread([&] {
        source.pushFrame(frame(4));
        source.pushFrame(frame(6));
    }).join();
    QTRY_COMPARE(shown.count(), 1);
    QCOMPARE(sink.videoFrame().width(), 6);

    source.pushFrame(frame(8));
    source.setVideoSink(nullptr);
    QCoreApplication::processEvents();
    QCOMPARE(shown.count(), 1);
}

void tst_Workers::videoSourceForgetsADestroyedSink()
{
    NV12VideoSource source;
    auto sink = std::make_unique<QVideoSink>();
    source.setVideoSink(sink.get());
    sink.reset();
    QCOMPARE(source.videoSink(), nullptr);
}

QTEST_GUILESS_MAIN(tst_Workers)
#include "tst_Workers.moc"
