#include "device/NV12VideoSource.h"

#include <QThread>

NV12VideoSource::NV12VideoSource(QObject* parent)
    : QObject(parent)
{
}

void NV12VideoSource::setVideoSink(QVideoSink* sink)
{
    Q_ASSERT(QThread::currentThread() == thread());
    if (m_videoSink == sink)
        return;
    if (m_videoSink)
        disconnect(m_videoSink, &QObject::destroyed, this, nullptr);
    m_videoSink = sink;
    if (sink)
        connect(sink, &QObject::destroyed, this, [this] { setVideoSink(nullptr); });
    {
        const std::scoped_lock lock(m_mutex);
        m_hasSink = sink != nullptr;
        m_newest = {};
    }
    emit videoSinkChanged();
}

void NV12VideoSource::pushFrame(const QVideoFrame& frame)
{
    // Declared before the lock: a frame that is replaced returns its memory after the unlock, which
    // may take a while.
    QVideoFrame replaced = frame;
    const std::scoped_lock lock(m_mutex);
    if (!m_hasSink)
        return;
    m_newest.swap(replaced);
    if (m_deliveryPosted)
        return;
    m_deliveryPosted = true;
    QMetaObject::invokeMethod(this, &NV12VideoSource::deliver, Qt::QueuedConnection);
}

void NV12VideoSource::deliver()
{
    QVideoFrame frame;
    {
        const std::scoped_lock lock(m_mutex);
        m_deliveryPosted = false;
        m_newest.swap(frame);
    }
    if (m_videoSink && frame.isValid())
        m_videoSink->setVideoFrame(frame);
}
