#include "platform/TerminationSignals.h"

#include <QCoreApplication>
#include <QTest>
#include <QThread>

#include <csignal>

namespace
{

volatile sig_atomic_t g_noted = 0;

void noteSignal(int signal)
{
    g_noted = signal;
}

} // namespace

class tst_TerminationSignals : public QObject
{
    Q_OBJECT

private slots:
    void callsBackInTheEventLoop();
};

void tst_TerminationSignals::callsBackInTheEventLoop()
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        std::signal(signal, &noteSignal);
        int requests = 0;
        {
            const platform::TerminationSignals watched([&] {
                QCOMPARE(QThread::currentThread(), qApp->thread());
                ++requests;
            });
            std::raise(signal);
            QCOMPARE(requests, 0);
            QTRY_COMPARE(requests, 1);
            std::raise(signal);
            QTRY_COMPARE(requests, 2);
            QCOMPARE(g_noted, 0);
        }
        std::raise(signal);
        QCOMPARE(g_noted, signal); // the earlier handler is restored
        g_noted = 0;
        std::signal(signal, SIG_IGN);
        const platform::TerminationSignals ignoring([&] { ++requests; });
        std::raise(signal);
        QTest::qWait(0);
        QCOMPARE(requests, 2);
        std::signal(signal, SIG_DFL);
    }
}

QTEST_GUILESS_MAIN(tst_TerminationSignals)
#include "tst_TerminationSignals.moc"
