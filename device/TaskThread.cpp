#include "device/TaskThread.h"

#include "platform/ThreadName.h"

TaskThread::TaskThread()
{
    m_thread.setObjectName(QStringLiteral("tasks"));
    m_queue.moveToThread(&m_thread);
    QObject::connect(
        &m_thread, &QThread::started, &m_thread, [] { platform::nameCurrentThread("tasks"); },
        Qt::DirectConnection);
    QObject::connect(
        &m_thread, &QThread::finished, &m_thread,
        [this] { m_hasEnded.store(true, std::memory_order_release); }, Qt::DirectConnection);
    // Queued like the tasks, and so behind those posted so far. Connected before the thread runs:
    // ThreadSanitizer cannot see that Qt hands a new function object over to another thread.
    QObject::connect(
        this, &TaskThread::stopRequested, &m_queue,
        [this] {
            m_queue.finish();
            m_thread.quit();
        },
        Qt::QueuedConnection);
}

TaskThread::~TaskThread()
{
    end();
}

void TaskThread::start(TaskQueue::Actions actions)
{
    m_queue.setActions(std::move(actions));
    m_thread.start(QThread::InheritPriority);
}

void TaskThread::requestStop()
{
    if (m_isStopRequested.exchange(true))
        return;
    m_thread.requestInterruption(); // ends waits within a task
    emit stopRequested(QPrivateSignal());
}

void TaskThread::end()
{
    requestStop();
    m_thread.wait();
    // Makes the happens-before of QThread::wait() visible to ThreadSanitizer, which does not
    // instrument Qt.
    (void)m_hasEnded.load(std::memory_order_acquire);
}
