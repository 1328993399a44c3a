#include "platform/InstanceObjects.h"
#include "rig/HelperProcess.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_InstanceObjects : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void excludesOtherProcesses();

private:
    QTemporaryDir m_folder;
};

void tst_InstanceObjects::initTestCase()
{
    qputenv("TMPDIR", m_folder.path().toUtf8());
}

void tst_InstanceObjects::excludesOtherProcesses()
{
    const QString key = uniqueName(u"vorn_test_lock_"_s);
    HelperProcess holder;
    QVERIFY(holder.startAndWait(HelperProcess::path(u"platform_helper"_s), {u"lock"_s, key}));
    QVERIFY(!platform::InstanceLock(key, 20).isHeld());
    QVERIFY(platform::InstanceLock(uniqueName(key), 20).isHeld());

    QVERIFY(holder.killAndWait());
    const platform::InstanceLock lock(key);
    QVERIFY(lock.isHeld());
    // On Windows the thread that holds the mutex may lock it again.
    QCOMPARE(platform::InstanceLock(key, 20).isHeld(), IsWindows);
}

QTEST_GUILESS_MAIN(tst_InstanceObjects)
#include "tst_InstanceObjects.moc"
