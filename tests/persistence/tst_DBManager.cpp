#include "persistence/DBManager.h"
#include "tests/persistence/Poster.h"

#include "tests/support/LogCapture.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_DBManager : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void keepsValuesAcrossARestart();
    void syncsTheFolderWithEachChange();
    void leavesNoTraceOfClearedValues();
    void dropsWritesOfAnEndedSignIn();
    void logsAFileThatCannotBeOpened();
    void setsAnUnusableFileAside_data();
    void setsAnUnusableFileAside();
    void makesTheTableOnceTheFileIsUnlocked();
    void makesUpForAFailedClearing_data();
    void makesUpForAFailedClearing();
    void logsAFailedStatement();

private:
    std::optional<QTemporaryDir> m_dir;
    QString m_path;
};

namespace
{

/// Locks the file as another program would.
class FileLock
{
public:
    explicit FileLock(const QString& path)
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"lock"_s);
        db.setDatabaseName(path);
        if (!db.open() || !QSqlQuery(db).exec(u"BEGIN EXCLUSIVE"_s))
            qFatal("cannot lock the database");
    }
    ~FileLock()
    {
        QSqlDatabase::database(u"lock"_s).close();
        QSqlDatabase::removeDatabase(u"lock"_s);
    }
    Q_DISABLE_COPY_MOVE(FileLock)
};

int rows()
{
    QSqlQuery query(u"SELECT count(*) FROM user_settings"_s);
    return query.next() ? query.value(0).toInt() : -1;
}

QByteArray bytesOfEveryFile(const QString& folder)
{
    QByteArray bytes;
    for (const QFileInfo& each : QDir(folder).entryInfoList(QDir::Files)) {
        QFile file(each.filePath());
        if (file.open(QIODevice::ReadOnly))
            bytes += file.readAll();
    }
    return bytes;
}

QString randomText(int length)
{
    QString text;
    while (text.size() < length)
        text += QString::number(QRandomGenerator::global()->generate64(), 36);
    return text;
}

} // namespace

void tst_DBManager::init()
{
    // Qt warns about a connection that is still in use or used on the wrong thread.
    QTest::failOnWarning(QRegularExpression(u"."_s));
    m_dir.emplace();
    m_path = m_dir->filePath(u"userdata.db"_s);
}

void tst_DBManager::keepsValuesAcrossARestart()
{
    const QString text = u"naïve 日本 😀 'quoted\"; --"_s + QChar(0) + u"after"_s;
    LogCapture log;
    {
        DBManager db(m_path);
        QCOMPARE(log.take(), QStringList{u"I DBManager::DBManager m_dbPath:"_s + m_path});
        QCOMPARE(db.getUserData(u"email"_s, u"none"_s), QVariant(u"none"_s));
        QVERIFY(db.saveUserData(u"email"_s, u"first"_s));
        QVERIFY(db.saveUserData(u"email"_s, text));
        QVERIFY(db.saveUserData(u"nothing"_s, QVariant()));
        QCOMPARE(log.take(), QStringList{u"I DBManager::getUserData key:email"_s});
        QCOMPARE(rows(), 2);
    }
    QVERIFY(QSqlDatabase::connectionNames().isEmpty());
    DBManager db(m_path);
    QCOMPARE(db.getUserData(u"email"_s, {}), QVariant(text));
    QVERIFY(db.getUserData(u"nothing"_s, u"default"_s).isNull());
}

/// bench/powercut shows what a loss of power leaves otherwise.
void tst_DBManager::syncsTheFolderWithEachChange()
{
    constexpr int Extra = 3;
    const DBManager db(m_path);
    QSqlQuery query(u"PRAGMA synchronous"_s);
    QVERIFY(query.next());
    QCOMPARE(query.value(0).toInt(), Extra);
}

void tst_DBManager::leavesNoTraceOfClearedValues()
{
    DBManager db(m_path);
    const QString replaced = randomText(2000);
    const QString token = randomText(200);
    const QString picture = randomText(300'000);
    QVERIFY(db.saveUserData(u"token"_s, replaced));
    QVERIFY(db.saveUserData(u"token"_s, token));
    QVERIFY(db.saveUserData(u"picture"_s, picture));
    QByteArray bytes = bytesOfEveryFile(m_dir->path());
    QVERIFY(bytes.contains(token.left(12).toLatin1()));
    QVERIFY2(!bytes.contains(replaced.left(12).toLatin1()), "a replaced value stays readable");

    QVERIFY(db.clearUserData());
    bytes = bytesOfEveryFile(m_dir->path());
    QCOMPARE(rows(), 0);
    for (const QString& value : {replaced, token, picture})
        for (qsizetype at = 0; at + 12 <= value.size(); at += 97)
            QVERIFY2(!bytes.contains(value.mid(at, 12).toLatin1()), qPrintable(value.mid(at, 12)));
    QCOMPARE(db.getUserData(u"token"_s, u"none"_s), QVariant(u"none"_s));
}

void tst_DBManager::dropsWritesOfAnEndedSignIn()
{
    DBManager db(m_path);
    const quint64 before = db.currentSignIn();
    QVERIFY(save(db, u"email"_s, u"old"_s, before));
    QVERIFY(db.clearUserData());
    QVERIFY(db.currentSignIn() != before);
    QVERIFY(save(db, u"email"_s, u"old"_s, before));
    QCOMPARE(rows(), 0);
    QVERIFY(save(db, u"email"_s, u"new"_s, db.currentSignIn()));
    QCOMPARE(db.getUserData(u"email"_s, {}).toString(), u"new"_s);
}

void tst_DBManager::logsAFileThatCannotBeOpened()
{
    LogCapture log;
    DBManager db(m_dir->filePath(u"none/userdata.db"_s));
    QVERIFY(log.take().value(1).startsWith(u"E DBManager::openDatabase Database open error:"_s));
    QCOMPARE(db.getUserData(u"email"_s, u"none"_s), QVariant(u"none"_s));
    QCOMPARE(log.take().last(), u"E DBManager::getUserData Database not open"_s);
    QVERIFY(!db.saveUserData(u"email"_s, u"a"_s));
    QVERIFY(!db.clearUserData());
}

void tst_DBManager::setsAnUnusableFileAside_data()
{
    QTest::addColumn<QByteArray>("content"); // empty: another layout
    QTest::newRow("is no database") << QByteArray(10'000, 'x');
    QTest::newRow("is damaged") << "SQLite format 3" + QByteArray(10'000, '\0');
    QTest::newRow("has another layout") << QByteArray();
}

void tst_DBManager::setsAnUnusableFileAside()
{
    QFETCH(const QByteArray, content);
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();
    if (content.isEmpty())
        QVERIFY(DBManager(m_path).execQuery(
            u"ALTER TABLE user_settings RENAME COLUMN value TO content"_s, {}));

    LogCapture log;
    DBManager db(m_path);
    QVERIFY(db.saveUserData(u"email"_s, u"a"_s));
    QCOMPARE(db.getUserData(u"email"_s, {}).toString(), u"a"_s);
    const QStringList files = QDir(m_dir->path()).entryList({u"userdata.db-unusable-*"_s});
    QCOMPARE(files.size(), 1);
    QVERIFY(log.take().contains(u"E DBManager::initialize unusable database moved to "_s +
                                m_dir->filePath(files[0])));
}

void tst_DBManager::makesTheTableOnceTheFileIsUnlocked()
{
    std::optional<FileLock> lock(m_path);
    DBManager db(m_path);
    QVERIFY(!db.saveUserData(u"email"_s, u"a"_s));
    lock.reset();
    QVERIFY(db.saveUserData(u"email"_s, u"a"_s));
    QVERIFY(QDir(m_dir->path()).entryList({u"*unusable*"_s}).isEmpty());
}

void tst_DBManager::makesUpForAFailedClearing_data()
{
    QTest::addColumn<bool>("byTheNextRun");
    QTest::addColumn<bool>("beforeAWrite");
    QTest::newRow("by the next run") << true << false;
    QTest::newRow("before the next read") << false << false;
    QTest::newRow("before the next write") << false << true;
}

void tst_DBManager::makesUpForAFailedClearing()
{
    QFETCH(const bool, byTheNextRun);
    QFETCH(const bool, beforeAWrite);
    auto db = std::make_unique<DBManager>(m_path);
    QVERIFY(db->saveUserData(u"token"_s, u"secret"_s));
    {
        const FileLock lock(m_path);
        QVERIFY(!db->clearUserData());
        QCOMPARE(db->getUserData(u"token"_s, u"none"_s).toString(), u"none"_s);
        QVERIFY(!save(*db, u"email"_s, u"new"_s, db->currentSignIn()));
    }
    if (byTheNextRun) {
        db.reset();
        db = std::make_unique<DBManager>(m_path);
    }
    if (beforeAWrite)
        QVERIFY(save(*db, u"email"_s, u"new"_s, db->currentSignIn()));
    QCOMPARE(db->getUserData(u"token"_s, u"none"_s).toString(), u"none"_s);
    QCOMPARE(rows(), beforeAWrite ? 1 : 0);

    // The clearing is made only once.
    QVERIFY(db->saveUserData(u"email"_s, u"newer"_s));
    db.reset();
    db = std::make_unique<DBManager>(m_path);
    QCOMPARE(db->getUserData(u"email"_s, {}).toString(), u"newer"_s);
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), QStringList{u"userdata.db"_s});
}

void tst_DBManager::logsAFailedStatement()
{
    DBManager db(m_path);
    LogCapture log;
    QVERIFY(!db.execQuery(u"DELETE FROM nowhere"_s, {}));
    const QStringList lines = log.take();
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines[0].startsWith(u"E DBManager::execQuery Query failed:"));
    QVERIFY(lines[0].contains(u"no such table"));
    QVERIFY(lines[0].endsWith(u" - Query:DELETE FROM nowhere"));
}

QTEST_GUILESS_MAIN(tst_DBManager)
#include "tst_DBManager.moc"
