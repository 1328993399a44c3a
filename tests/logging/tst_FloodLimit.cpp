#include "logging/FloodLimit.h"
#include "support/LogCapture.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class tst_FloodLimit : public QObject
{
    Q_OBJECT

private slots:
    void replacesAFloodByOneLine();
};

void tst_FloodLimit::replacesAFloodByOneLine()
{
    LogCapture log;
    Log::FloodLimit::Clock::time_point now;
    int admitted = 0;
    {
        Log::FloodLimit limit("Sample::receive", [&now] { return now; });
        for (int i = 0; i < 1000; ++i)
            admitted += limit.admits() ? 1 : 0;
        QCOMPARE(admitted, 200);
        limit.flush();
        QCOMPARE(log.take(), QStringList()); // the second is not over
        now += 1s;
        limit.flush();
        QCOMPARE(log.take(), QStringList{u"I Sample::receive … and 800 more"_s});

        for (int i = 0; i < 201; ++i)
            admitted += limit.admits() ? 1 : 0;
        now += 1s;
        QVERIFY(limit.admits());
        QCOMPARE(log.take(), QStringList{u"I Sample::receive … and 1 more"_s});
        for (int i = 0; i < 202; ++i)
            admitted += limit.admits() ? 1 : 0;
    }
    QCOMPARE(admitted, 599);
    QCOMPARE(log.take(), QStringList{u"I Sample::receive … and 3 more"_s});
}

QTEST_GUILESS_MAIN(tst_FloodLimit)
#include "tst_FloodLimit.moc"
