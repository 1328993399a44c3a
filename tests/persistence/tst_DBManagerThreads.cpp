#include "persistence/DBManager.h"
#include "tests/persistence/Poster.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <optional>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

int rows()
{
    QSqlQuery query(u"SELECT count(*) FROM user_settings"_s);
    return query.next() ? query.value(0).toInt() : -1;
}

} // namespace

class tst_DBManagerThreads : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_dir.emplace();
        // Only now: on Windows, removing the folder of the last test may warn.
        QTest::failOnWarning(QRegularExpression(u"."_s));
        m_path = m_dir->filePath(u"userdata.db"_s);
    }

    void servesSeveralThreadsAtOnce();
    void signOutDropsPendingWrites();
    void storesAChangeWholeOnceTheFileIsUnlocked();

private:
    std::optional<QTemporaryDir> m_dir;
    QString m_path;
};

void tst_DBManagerThreads::servesSeveralThreadsAtOnce()
{
    constexpr int Threads = 3;
    constexpr int Writes = 30;
    DBManager db(m_path);
    std::atomic<int> failed{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < Threads; ++t)
        threads.emplace_back([&db, &failed, t] {
            for (int i = 0; i < Writes; ++i) {
                const QString key = u"%1-%2"_s.arg(t).arg(i);
                failed += !save(db, key, i, db.currentSignIn());
                failed += db.getUserData(key, -1).toInt() != i;
            }
        });
    for (int i = 0; i < Writes; ++i) {
        failed += !db.saveUserData(u"main"_s, i);
        failed += db.getUserData(u"main"_s, -1).toInt() != i;
    }
    for (std::thread& thread : threads)
        thread.join();
    QCOMPARE(failed.load(), 0);
    QCOMPARE(rows(), Threads * Writes + 1);
}

void tst_DBManagerThreads::signOutDropsPendingWrites()
{
    constexpr int Rounds = 100;
    DBManager db(m_path);
    Poster poster(storeTask([&db]() -> UserSettings& { return db; }));
    QSignalSpy drained(&poster, &Poster::drained);
    for (int round = 0; round < Rounds; ++round) {
        const quint64 signIn = db.currentSignIn();
        const int posted = QRandomGenerator::global()->bounded(1, 7);
        for (int i = 0; i < posted; ++i)
            emit poster.addTask(u"saveDB"_s, {u"key%1"_s.arg(i), round, signIn});
        // Reads delay the sign-out until somewhere between the first and the last write.
        for (int i = QRandomGenerator::global()->bounded(0, posted); i > 0; --i)
            db.getUserData(u"key0"_s, {});
        QVERIFY(db.clearUserData());
        emit poster.addTask(u"saveDB"_s, {u"next"_s, round, db.currentSignIn()});
        emit poster.addTask(u"drained"_s, {});
        QVERIFY(drained.wait(30'000));
        QCOMPARE(rows(), 1);
        QCOMPARE(db.getUserData(u"next"_s, -1).toInt(), round);
    }
}

void tst_DBManagerThreads::storesAChangeWholeOnceTheFileIsUnlocked()
{
    using enum UserSettings::Saved;
    DBManager db(m_path);
    QVERIFY(db.execQuery(u"BEGIN EXCLUSIVE"_s, {})); // on the connection of the main thread
    auto saved = Done;
    const auto save = [&] {
        saved = db.saveUserData({{u"a"_s, 1}, {u"b"_s, 2}}, db.currentSignIn(),
                                UserSettings::OnLock::Report);
    };
    std::thread(save).join();
    QCOMPARE(saved, Locked);
    QVERIFY(db.execQuery(u"COMMIT"_s, {}));
    std::thread(save).join();
    QCOMPARE(saved, Done);

    // A change is stored whole or not at all.
    QCOMPARE(db.saveUserData({{u"a"_s, 3}, {QString(), 4}}, db.currentSignIn(),
                             UserSettings::OnLock::Fail),
             Failed);
    QCOMPARE(db.getUserData(u"a"_s, {}).toInt(), 1);
}

QTEST_GUILESS_MAIN(tst_DBManagerThreads)
#include "tst_DBManagerThreads.moc"
