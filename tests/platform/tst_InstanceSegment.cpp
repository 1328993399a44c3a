#include "platform/InstanceSegment.h"
#include "rig/HelperProcess.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_InstanceSegment : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void locksAmongProcesses();

private:
    QTemporaryDir m_folder;
};

void tst_InstanceSegment::initTestCase()
{
    qputenv("TMPDIR", m_folder.path().toUtf8());
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
    // The thread that holds a mutex of Windows may take it again.
    QCOMPARE(platform::InstanceLock(key, 20).isHeld(), kIsWindows);
}

QTEST_GUILESS_MAIN(tst_InstanceSegment)
#include "tst_InstanceSegment.moc"
