#include "persistence/DBManager.h"
#include "tests/persistence/Poster.h"

#include "tests/support/LogCapture.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// A separate program, because Qt searches for database drivers only once.
class tst_MissingDriver : public QObject
{
    Q_OBJECT

public:
    static void initMain() { QCoreApplication::setLibraryPaths({}); }

private slots:
    void readsDefaultsAndWritesNothing()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(u"userdata.db"_s);
        LogCapture log;
        DBManager db(path);
        QCOMPARE(log.take(), QStringList{u"E DBManager::DBManager SQLite driver not available!"_s});

        QCOMPARE(db.getUserData(u"email"_s, u"none"_s), QVariant(u"none"_s));
        QStringList lines = log.take();
        QVERIFY(lines.value(1).startsWith(u"E DBManager::openDatabase Database open error:"_s));
        QCOMPARE(lines.value(2), u"E DBManager::getUserData Database not open"_s);
        QVERIFY(!save(db, u"email"_s, u"a@b.example"_s, db.currentSignIn()));
        QCOMPARE(log.take().value(1), u"E DBManager::execQuery Database not open"_s);
        QVERIFY(!db.clearUserData());
        QVERIFY(!QFile::exists(path));
    }
};

QTEST_GUILESS_MAIN(tst_MissingDriver)
#include "tst_MissingDriver.moc"
