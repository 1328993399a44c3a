#include "persistence/TaskQueue.h"

#include "support/LogCapture.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_TaskQueue : public QObject
{
    Q_OBJECT

private slots:
    void runsOneTaskPerTurnInPostingOrder();
    void startsATaskAtOnceWhenIdle();
    void discardsWaitingTasksAtItsEnd();

private:
    /// A task that notes its name when it runs.
    std::pair<QString, TaskQueue::Action> task(
        const QString& name, std::function<void()> more = [] {})
    {
        return {name, [this, name, more](const QVariantList&) {
                    m_done += name;
                    more();
                }};
    }

    QStringList m_done;
};

void tst_TaskQueue::runsOneTaskPerTurnInPostingOrder()
{
    m_done.clear();
    // The event loop delivers other events between two tasks.
    const auto postEvent = [this] {
        QMetaObject::invokeMethod(
            this, [this] { m_done += u"event"_s; }, Qt::QueuedConnection);
    };
    TaskQueue queue;
    queue.setActions({task(u"a"_s, [&] { queue.addTask(u"c"_s, {}); }), task(u"b"_s, postEvent),
                      task(u"c"_s, postEvent)});
    LogCapture log;
    for (const QString& name : {u"b"_s, u"a"_s, u"unknown"_s, u"b"_s})
        queue.addTask(name, {});
    QCOMPARE(m_done, QStringList{u"b"_s});
    QTRY_COMPARE(m_done.join(u' '), u"b event a b event c event"_s);
    QCOMPARE(log.take().join(u' ').remove(u"I TaskQueue::processTask "_s), u"b a unknown b c"_s);
}

void tst_TaskQueue::startsATaskAtOnceWhenIdle()
{
    m_done.clear();
    TaskQueue queue({task(u"a"_s)});
    for (int round = 1; round <= 2; ++round) {
        queue.addTask(u"a"_s, {});
        QCOMPARE(m_done.size(), round);
        QCoreApplication::processEvents(); // ends the chain of turns
    }
}

void tst_TaskQueue::discardsWaitingTasksAtItsEnd()
{
    m_done.clear();
    {
        TaskQueue queue({task(u"a"_s)});
        queue.addTask(u"a"_s, {});
        queue.addTask(u"a"_s, {});
    }
    QCoreApplication::processEvents();
    QCOMPARE(m_done.size(), 1);
}

QTEST_GUILESS_MAIN(tst_TaskQueue)
#include "tst_TaskQueue.moc"
