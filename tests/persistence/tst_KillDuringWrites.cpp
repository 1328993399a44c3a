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

constexpr char TaskLine[] = " saveDB\n";

} // namespace

/// A write that the log shows as done survives a crash at any moment.
class tst_KillDuringWrites : public QObject
{
    Q_OBJECT

private slots:
    void keepsEveryLoggedWrite();

private:
    static int writesLoggedBeforeTheKill(const QString& path, const QString& prefix);
    static void verifyDatabase(const QString& path, const QString& prefix, int writes);
};

/// The line of a task is written before the task runs, so the last one does not count.
int tst_KillDuringWrites::writesLoggedBeforeTheKill(const QString& path, const QString& prefix)
{
    QProcess child;
    child.setReadChannel(QProcess::StandardError);
    child.start(QStringLiteral(WRITE_STREAM), {path, prefix});
    QByteArray log;
    const int enough = QRandomGenerator::global()->bounded(2, 7);
    while (log.count(TaskLine) < enough && child.waitForReadyRead(10'000))
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
    return int(log.count(TaskLine)) - 1;
}

void tst_KillDuringWrites::verifyDatabase(const QString& path, const QString& prefix, int writes)
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

void tst_KillDuringWrites::keepsEveryLoggedWrite()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(u"userdata.db"_s);
    for (int round = 0; round < 50; ++round) {
        const QString prefix = u"round%1-"_s.arg(round);
        const int writes = writesLoggedBeforeTheKill(path, prefix);
        QVERIFY2(writes >= 1, "the writer did not start");
        verifyDatabase(path, prefix, writes);
        QSqlDatabase::removeDatabase(u"check"_s);
        if (QTest::currentTestFailed())
            return;
    }
}

QTEST_GUILESS_MAIN(tst_KillDuringWrites)
#include "tst_KillDuringWrites.moc"
