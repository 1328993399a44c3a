#include "platform/TerminationSignals.h"

#include <QCoreApplication>
#include <QTest>
#include <QThread>

#include <csignal>

class tst_TerminationSignals : public QObject
{
    Q_OBJECT

private slots:
    void endsOnSignals_data();
    void endsOnSignals();
};

void tst_TerminationSignals::endsOnSignals_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void tst_TerminationSignals::endsOnSignals()
{
    QFETCH(int, signal);
    const auto previous = std::signal(signal, SIG_IGN);
    int requests = 0;
    {
        const platform::TerminationSignals watched([&] {
            QCOMPARE(QThread::currentThread(), qApp->thread());
            ++requests;
        });
        std::raise(signal);
        QCOMPARE(requests, 0); // only in the event loop
        QTRY_COMPARE(requests, 1);
        std::raise(signal);
        QTRY_COMPARE(requests, 2);
    }
    std::raise(signal); // ignored again
    QCoreApplication::processEvents();
    QCOMPARE(requests, 2);
    std::signal(signal, previous);
}

QTEST_GUILESS_MAIN(tst_TerminationSignals)
#include "tst_TerminationSignals.moc"
