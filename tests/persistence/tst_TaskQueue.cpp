#include "persistence/TaskQueue.h"

#include "support/LogCapture.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class tst_TaskQueue : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_done.clear(); }
    void runsOneTaskPerTurnInPostingOrder();
    void keepsOnlyTheNewestWriteOfAValue();
    void aTaskTriedAgainHoldsUpItsOwnKindOnly();
    void performsWritesAndDiscardsLaunchesAtItsEnd();

private:
    using Kind = TaskQueue::Kind;
    using Outcome = TaskQueue::Outcome;

    /// A task that notes its name and arguments when it runs.
    TaskQueue::Action task(
        const QString& name, Kind kind = Kind::Write,
        std::function<Outcome(bool)> more = [](bool) { return Outcome::Done; })
    {
        return {name,
                [this, name, more](const QVariantList& args, bool isLast) {
                    QString done = name;
                    for (const QVariant& arg : args)
                        done += arg.toString();
                    m_done += done;
                    return more(isLast);
                },
                kind};
    }

    QStringList m_done;
};

void tst_TaskQueue::runsOneTaskPerTurnInPostingOrder()
{
    // The event loop delivers other events between two tasks.
    const auto postEvent = [this](bool) {
        QMetaObject::invokeMethod(
            this, [this] { m_done += u"event"_s; }, Qt::QueuedConnection);
        return Outcome::Done;
    };
    TaskQueue queue;
    queue.setActions({task(u"a"_s, Kind::Launch,
                           [&](bool) {
                               queue.addTask(u"c"_s, {});
                               return Outcome::Done;
                           }),
                      task(u"b"_s, Kind::Write, postEvent), task(u"c"_s, Kind::Write, postEvent)});
    LogCapture log;
    for (const QString& name : {u"b"_s, u"a"_s, u"unknown"_s, u"b"_s})
        queue.addTask(name, {});
    QCOMPARE(m_done, QStringList{u"b"_s});
    QTRY_COMPARE(m_done.join(u' '), u"b event a b event c event"_s);
    QCOMPARE(log.take().join(u' ').remove(u"I TaskQueue::processTask "_s), u"b a unknown b c"_s);
}

void tst_TaskQueue::keepsOnlyTheNewestWriteOfAValue()
{
    TaskQueue queue({task(u"a"_s), task(u"v"_s, Kind::ValueWrite)});
    queue.addTask(u"a"_s, {});
    for (int i = 1; i <= 1000; ++i) {
        queue.addTask(u"v"_s, {u"x"_s, i});
        queue.addTask(u"v"_s, {u"y"_s, -i});
    }
    queue.addTask(u"a"_s, {});
    QTRY_COMPARE(m_done.join(u' '), u"a vx1000 vy-1000 a"_s);
}

void tst_TaskQueue::aTaskTriedAgainHoldsUpItsOwnKindOnly()
{
    int failures = 3;
    TaskQueue queue({task(u"db"_s, Kind::Write,
                          [&](bool) { return failures-- > 0 ? Outcome::TryAgain : Outcome::Done; }),
                     task(u"launch"_s, Kind::Launch)},
                    {.retryInterval = 1ms});
    LogCapture log;
    queue.addTask(u"db"_s, {1});
    queue.addTask(u"db"_s, {2});
    queue.addTask(u"launch"_s, {});
    QTRY_COMPARE(m_done.size(), 6);
    QCOMPARE(m_done.indexOf(u"launch"_s), 1);
    m_done.removeAt(1);
    QCOMPARE(m_done.join(u' '), u"db1 db1 db1 db1 db2"_s);
    QCOMPARE(log.take().size(), 3); // one line a task

    // After the patience the last attempt is called so.
    m_done.clear();
    bool wasLast = false;
    TaskQueue hopeless({task(u"db"_s, Kind::Write,
                             [&](bool isLast) {
                                 wasLast = isLast;
                                 return isLast ? Outcome::Done : Outcome::TryAgain;
                             })},
                       {.retryInterval = 1ms, .retryPatience = 5ms});
    hopeless.addTask(u"db"_s, {});
    QTRY_VERIFY(wasLast);
}

void tst_TaskQueue::performsWritesAndDiscardsLaunchesAtItsEnd()
{
    bool wasLast = true;
    const auto slow = [&](bool isLast) {
        wasLast = wasLast && isLast;
        QTest::qSleep(30);
        return Outcome::Done;
    };
    TaskQueue queue({task(u"first"_s), task(u"write"_s), task(u"slow"_s, Kind::Write, slow),
                     task(u"launch"_s, Kind::Launch)},
                    {.finishPatience = 20ms});
    for (const QString& name : {u"first"_s, u"launch"_s, u"slow"_s, u"write"_s, u"slow"_s})
        queue.addTask(name, {});
    LogCapture log;
    queue.finish();
    QCOMPARE(m_done.join(u' '), u"first slow write"_s);
    QVERIFY(wasLast);
    QVERIFY(log.contains(u"W TaskQueue::finish discarded:launch, slow"_s));
}

QTEST_GUILESS_MAIN(tst_TaskQueue)
#include "tst_TaskQueue.moc"
