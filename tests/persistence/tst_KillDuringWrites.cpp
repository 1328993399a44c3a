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

/// What the log shows as done survives a crash at any moment, and a change is never torn.
class tst_KillDuringWrites : public QObject
{
    Q_OBJECT

private slots:
    void leavesTheStateOfAWholeTask();

private:
    static int tasksDoneBeforeTheKill(const QString& path);
    static void verifyDatabase(const QString& path, int tasks);
};

/// The line of a task is written before the task runs, so the last one does not count.
int tst_KillDuringWrites::tasksDoneBeforeTheKill(const QString& path)
{
    QProcess child;
    child.setReadChannel(QProcess::StandardError);
    child.start(QStringLiteral(WRITE_STREAM), {path});
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

/// The rows are those of the last task that was done, or of the one that was running.
void tst_KillDuringWrites::verifyDatabase(const QString& path, int tasks)
{
    QSqlDatabase db = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"check"_s);
    db.setDatabaseName(path);
    QVERIFY2(db.open(), qPrintable(db.lastError().text()));
    QSqlQuery query(db);
    QVERIFY(query.exec(u"PRAGMA integrity_check"_s) && query.next());
    QCOMPARE(query.value(0).toString(), u"ok"_s);
    QVERIFY(query.exec(u"SELECT value FROM user_settings"_s));
    QList<int> values;
    while (query.next())
        values += query.value(0).toInt();
    const auto valuesAfter = [](int task) {
        return task % 4 == 3 ? QList<int>() : QList<int>(8, task);
    };
    QVERIFY2(values == valuesAfter(tasks - 1) || values == valuesAfter(tasks),
             qPrintable(u"%1 rows, the first %2, after %3 tasks"_s.arg(values.size())
                            .arg(values.value(0))
                            .arg(tasks)));
}

void tst_KillDuringWrites::leavesTheStateOfAWholeTask()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(u"userdata.db"_s);
    for (int round = 0; round < 50; ++round) {
        const int tasks = tasksDoneBeforeTheKill(path);
        QVERIFY2(tasks >= 1, "the writer did not start");
        verifyDatabase(path, tasks);
        QSqlDatabase::removeDatabase(u"check"_s);
        if (QTest::currentTestFailed())
            return;
    }
}

QTEST_GUILESS_MAIN(tst_KillDuringWrites)
#include "tst_KillDuringWrites.moc"
