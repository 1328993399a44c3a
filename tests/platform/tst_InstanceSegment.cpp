#include "platform/InstanceSegment.h"
#include "platform/TerminationSignals.h"
#include "tests/platform/HelperProcess.h"

#include <QSharedMemory>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <csignal>

using namespace Qt::StringLiterals;

class tst_InstanceSegment : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void keepsTheSegmentOfALiveProcess();
    void clearsWhatACrashLeft();
    void locksAmongProcesses();
    void endsOnSignals_data();
    void endsOnSignals();

private:
    QTemporaryDir m_folder;
};

void tst_InstanceSegment::initTestCase()
{
    qputenv("TMPDIR", m_folder.path().toUtf8());
}

void tst_InstanceSegment::keepsTheSegmentOfALiveProcess()
{
    const QString key = uniqueName(u"vorn_test_segment_"_s);
    QVERIFY(!platform::clearStaleSegment(key)); // there is none

    HelperProcess holder;
    QVERIFY(holder.startAndWait(HelperProcess::path(u"platform_helper"_s), {u"segment"_s, key}));
    QVERIFY(!platform::clearStaleSegment(key));
    QVERIFY(QSharedMemory(key).attach());

    holder.closeWriteChannel();
    QVERIFY(holder.waitForFinished());
    QVERIFY(!platform::clearStaleSegment(key)); // its holder has removed it
}

void tst_InstanceSegment::clearsWhatACrashLeft()
{
    const QString key = uniqueName(u"vorn_test_segment_"_s);
    HelperProcess holder;
    QVERIFY(holder.startAndWait(HelperProcess::path(u"platform_helper"_s), {u"segment"_s, key}));
    QVERIFY(holder.crash());

    QVERIFY(platform::clearStaleSegment(key));
    QVERIFY(!platform::clearStaleSegment(key));
    QSharedMemory own(key);
    QVERIFY(own.create(1));
}

void tst_InstanceSegment::locksAmongProcesses()
{
    const QString key = uniqueName(u"vorn_test_lock_"_s);
    HelperProcess holder;
    QVERIFY(holder.startAndWait(HelperProcess::path(u"platform_helper"_s), {u"lock"_s, key}));
    QVERIFY(!platform::InstanceLock(key, 20).isHeld());
    QVERIFY(platform::InstanceLock(uniqueName(key), 20).isHeld());

    QVERIFY(holder.crash());
    const platform::InstanceLock lock(key);
    QVERIFY(lock.isHeld());
    QVERIFY(!platform::InstanceLock(key, 20).isHeld());
}

void tst_InstanceSegment::endsOnSignals_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void tst_InstanceSegment::endsOnSignals()
{
    QFETCH(int, signal);
    const auto previous = std::signal(signal, SIG_IGN);
    int requests = 0;
    {
        const platform::TerminationSignals watched([&] {
            QCOMPARE(QThread::currentThread(), qApp->thread());
            ++requests;
        });
        std::raise(signal);
        QCOMPARE(requests, 0); // only in the event loop
        QTRY_COMPARE(requests, 1);
        std::raise(signal);
        QTRY_COMPARE(requests, 2);
    }
    std::raise(signal); // ignored again
    QCoreApplication::processEvents();
    QCOMPARE(requests, 2);
    std::signal(signal, previous);
}

QTEST_GUILESS_MAIN(tst_InstanceSegment)
#include "tst_InstanceSegment.moc"
