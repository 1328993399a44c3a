#include "FakeFrameChannel.h"
#include "device/NV12VideoSource.h"
#include "device/VideoReceiver.h"
#include "simulator/video/SetupFlow.h"
#include "simulator/video/SetupPicture.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using platform::FrameChannel;
using simulator::SetupPicture;

namespace
{

/// Has a receiver take one frame from the shared memory.
void receive(NV12VideoSource& source, const QSize& size, const QByteArray& data)
{
    std::stop_source stop;
    auto channel = std::make_unique<FakeFrameChannel>([&](FakeFrameChannel& made) {
        made.putHeader({0, 1, quint16(size.width()), quint16(size.height()), qint32(data.size())});
        std::memcpy(made.data(), data.constData(), std::size_t(data.size()));
        return FrameChannel::WaitResult{FrameChannel::WaitOutcome::Signalled, 0};
    });
    VideoReceiver receiver([&](const QVideoFrame& frame) { source.pushFrame(frame); },
                           [&] { stop.request_stop(); }, std::move(channel),
                           VideoReceiver::Timing{1ms, 1ms});
    receiver.setPlaying(true);
    receiver.run(stop.get_token());
}

} // namespace

/// A picture from the shared memory to the pixels of a window.
class tst_VideoOutput : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void showsColours_data();
    void showsColours();

private:
    bool showsPatches(const QSize& size);

    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    NV12VideoSource m_source;
};

void tst_VideoOutput::initTestCase()
{
    QQmlComponent component(&m_engine);
    component.setData(R"(
        import QtQuick
        import QtMultimedia
        Window {
            width: 960; height: 540; visible: true; color: "black"
            VideoOutput { objectName: "output"; anchors.fill: parent }
        })",
                      {});
    m_window.reset(qobject_cast<QQuickWindow*>(component.create()));
    QVERIFY2(m_window, qPrintable(component.errorString()));
    auto* const output = m_window->findChild<QQuickItem*>(u"output"_s);
    m_source.setVideoSink(output->property("videoSink").value<QVideoSink*>());
    QVERIFY(m_source.videoSink());
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

/// Whether the window shows the colour patches of a set-up picture of that size.
bool tst_VideoOutput::showsPatches(const QSize& size)
{
    const QSize shown = size.scaled(m_window->size(), Qt::KeepAspectRatio);
    const QPoint origin((m_window->width() - shown.width()) / 2,
                        (m_window->height() - shown.height()) / 2);
    const QImage grabbed = m_window->grabWindow();
    const double scale = double(shown.width()) / size.width();
    for (int i = 0; i < SetupPicture::patchColours().size(); ++i) {
        const QPoint middle = SetupPicture::patch(i, size).center();
        const QRgb colour = grabbed.pixel((origin + QPointF(middle) * scale).toPoint() *
                                          grabbed.devicePixelRatio());
        const QRgb expected = SetupPicture::patchColours().at(i);
        if (std::abs(qRed(colour) - qRed(expected)) > 3 ||
            std::abs(qGreen(colour) - qGreen(expected)) > 3 ||
            std::abs(qBlue(colour) - qBlue(expected)) > 3)
            return false;
    }
    return true;
}

void tst_VideoOutput::showsColours_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size :
         {QSize(1920, 1080), QSize(960, 540), QSize(484, 272), QSize(3840, 2160)})
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

void tst_VideoOutput::showsColours()
{
    QFETCH(QSize, size);
    SetupPicture picture(size);
    receive(m_source, size, picture.draw({}, std::nullopt, 1));
    QTRY_VERIFY(showsPatches(size));
}

QTEST_MAIN(tst_VideoOutput)
#include "tst_VideoOutput.moc"
