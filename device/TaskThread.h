#pragma once

#include "persistence/TaskQueue.h"

#include <QThread>

#include <atomic>

/// The task queue on a thread of its own. Main thread; tasks are posted by a queued connection to
/// queue().
class TaskThread : public QObject
{
    Q_OBJECT

public:
    TaskThread();
    ~TaskThread() override;
    Q_DISABLE_COPY_MOVE(TaskThread)

    TaskQueue& queue() { return m_queue; }
    /// Starts the thread. Tasks that were posted before run then.
    void start(TaskQueue::Actions actions);
    /// Asks the thread to end once it has performed the writes posted so far, without waiting for
    /// it. Any thread.
    void requestStop();
    /// Asks the thread to end and waits for it. Any thread but the queue's.
    void end();

signals:
    void stopRequested(QPrivateSignal);

private:
    TaskQueue m_queue; // the queue's thread, once it runs
    QThread m_thread;
    std::atomic<bool> m_isStopRequested = false;
    std::atomic<bool> m_hasEnded = false;
};
