#include "persistence/DBManager.h"
#include "tests/persistence/Poster.h"

#include "tests/support/LogCapture.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// A program of its own, since Qt looks for database drivers once.
class TestMissingDriver : public QObject
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

        const QString openError = u"E DBManager::openDatabase Database open error:"_s;
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(db.getUserData(u"email"_s, u"none"_s), QVariant(u"none"_s));
            QStringList lines = log.take();
            QCOMPARE(lines.size(), 3);
            QVERIFY(lines[1].startsWith(openError) && lines[1].size() > openError.size());
            QCOMPARE(lines[2], u"E DBManager::getUserData Database not open"_s);

            QVERIFY(!save(db, u"email"_s, u"a@b.example"_s, db.currentSignIn()));
            lines = log.take();
            QCOMPARE(lines.size(), 2);
            QVERIFY(lines[0].startsWith(openError));
            QCOMPARE(lines[1], u"E DBManager::execQuery Database not open"_s);
        }
        QVERIFY(!db.clearUserData());
        QVERIFY(!QFile::exists(path));
    }
};

QTEST_GUILESS_MAIN(TestMissingDriver)
#include "tst_MissingDriver.moc"
