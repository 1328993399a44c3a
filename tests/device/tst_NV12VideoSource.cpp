#include "device/NV12VideoSource.h"

#include <QSignalSpy>
#include <QTest>
#include <QVideoFrameFormat>

#include <atomic>
#include <thread>

/// Frames pushed by a worker while sinks come and go.
class tst_NV12VideoSource : public QObject
{
    Q_OBJECT

private slots:
    void sinksComeAndGo();
    void slowSinkGetsTheNewestFrame();

private:
    static QVideoFrame frame(int width)
    {
        return QVideoFrame(QVideoFrameFormat(QSize(width, 2), QVideoFrameFormat::Format_NV12));
    }
};

void tst_NV12VideoSource::sinksComeAndGo()
{
    NV12VideoSource source;
    std::atomic_bool isOver = false;
    std::thread worker([&] {
        for (int i = 1; !isOver; ++i)
            source.pushFrame(frame(2 * (i % 50 + 1)));
    });
    int shown = 0;
    for (int i = 0; i < 5000 || shown == 0; ++i) {
        auto sink = std::make_unique<QVideoSink>();
        connect(sink.get(), &QVideoSink::videoFrameChanged, this, [&] { ++shown; });
        source.setVideoSink(sink.get());
        QCoreApplication::processEvents();
        if (i % 2 == 0) // as when the window closes; otherwise the sink is destroyed first
            source.setVideoSink(nullptr);
    }
    QVideoSink last;
    source.setVideoSink(&last);
    isOver = true;
    worker.join();
    source.pushFrame(frame(1000));
    QTRY_COMPARE(last.videoFrame().width(), 1000);
}

void tst_NV12VideoSource::slowSinkGetsTheNewestFrame()
{
    NV12VideoSource source;
    QVideoSink sink;
    QList<int> shown;
    connect(&sink, &QVideoSink::videoFrameChanged, this,
            [&](const QVideoFrame& frame) { shown.append(frame.width()); });
    QSignalSpy sinkChanged(&source, &NV12VideoSource::videoSinkChanged);
    source.pushFrame(frame(2)); // dropped
    source.setVideoSink(&sink);
    source.setVideoSink(&sink);
    QCOMPARE(sinkChanged.count(), 1);
    for (int i = 0; i < 5; ++i) {
        std::thread([&] { // the main thread is busy meanwhile
            for (int k = 1; k <= 100; ++k)
                source.pushFrame(frame(2 * (100 * i + k)));
        })
            .join();
        QCoreApplication::processEvents();
    }
    QCOMPARE(shown, (QList<int>{200, 400, 600, 800, 1000}));

    source.pushFrame(frame(2));
    source.setVideoSink(nullptr);
    QCoreApplication::processEvents();
    QCOMPARE(shown.last(), 1000);
}

QTEST_GUILESS_MAIN(tst_NV12VideoSource)
#include "tst_NV12VideoSource.moc"
