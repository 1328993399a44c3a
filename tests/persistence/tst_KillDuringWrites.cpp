#include <QDeadlineTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

constexpr char kTaskLine[] = " saveDB\n";

} // namespace

/// What the log shows as done survives a crash at any moment.
class TestKillDuringWrites : public QObject
{
    Q_OBJECT

private slots:
    void everyLoggedWriteIsThere();

private:
    static int writesLoggedBeforeDeath(const QString& path, const QString& prefix);
    static void verifyDatabase(const QString& path, const QString& prefix, int writes);
};

/// A task's line appears once the task before it is done, so the last line proves nothing yet.
int TestKillDuringWrites::writesLoggedBeforeDeath(const QString& path, const QString& prefix)
{
    QProcess child;
    child.setReadChannel(QProcess::StandardError);
    child.start(QStringLiteral(WRITE_STREAM), {path, prefix});
    QByteArray log;
    const int enough = QRandomGenerator::global()->bounded(2, 7);
    while (log.count(kTaskLine) < enough && child.waitForReadyRead(10'000))
        log += child.readAll();
    const QDeadlineTimer moment(QRandomGenerator::global()->bounded(20));
    while (!moment.hasExpired() && child.state() == QProcess::Running) {
        child.waitForReadyRead(int(moment.remainingTime()));
        log += child.readAll();
    }
    child.kill();
    child.waitForFinished();
    log += child.readAll();
    if (child.exitStatus() != QProcess::CrashExit)
        qCritical("the writer ended by itself: %s", log.constData());
    return int(log.count(kTaskLine)) - 1;
}

void TestKillDuringWrites::verifyDatabase(const QString& path, const QString& prefix, int writes)
{
    QSqlDatabase db = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"check"_s);
    db.setDatabaseName(path);
    QVERIFY2(db.open(), qPrintable(db.lastError().text()));
    QSqlQuery query(db);
    QVERIFY(query.exec(u"PRAGMA integrity_check"_s) && query.next());
    QCOMPARE(query.value(0).toString(), u"ok"_s);
    QVERIFY(query.exec(
        u"SELECT value FROM user_settings WHERE key LIKE '%1%' ORDER BY value"_s.arg(prefix)));
    int found = 0;
    for (; query.next(); ++found)
        QCOMPARE(query.value(0).toInt(), found);
    QVERIFY2(found >= writes, qPrintable(u"%1 of %2 writes found"_s.arg(found).arg(writes)));
}

void TestKillDuringWrites::everyLoggedWriteIsThere()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(u"userdata.db"_s);
    for (int round = 0; round < 50; ++round) {
        const QString prefix = u"round%1-"_s.arg(round);
        const int writes = writesLoggedBeforeDeath(path, prefix);
        QVERIFY2(writes >= 1, "the writer did not get going");
        verifyDatabase(path, prefix, writes);
        QSqlDatabase::removeDatabase(u"check"_s);
        if (QTest::currentTestFailed())
            return;
    }
}

QTEST_GUILESS_MAIN(TestKillDuringWrites)
#include "tst_KillDuringWrites.moc"
