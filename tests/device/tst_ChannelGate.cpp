#include "device/ChannelGate.h"

#include <QTest>

#include <atomic>
#include <future>

class tst_ChannelGate : public QObject
{
    Q_OBJECT

private slots:
    void deliversNothingOnceClosed();
    void closingWaitsForACallUnderWay();
};

void tst_ChannelGate::deliversNothingOnceClosed()
{
    int calls = 0;
    ChannelGate gate([&](int id, const std::string&) {
        ++calls;
        return id;
    });
    QCOMPARE(gate.pass(7, ""), 7);
    gate.close();
    QCOMPARE(gate.pass(7, ""), 0);
    QCOMPARE(calls, 1);
}

void tst_ChannelGate::closingWaitsForACallUnderWay()
{
    std::promise<void> entered;
    std::promise<void> proceed;
    std::atomic<bool> isCallOver = false;
    ChannelGate gate([&](int, const std::string&) {
        entered.set_value();
        proceed.get_future().wait();
        isCallOver = true;
        return 0;
    });
    std::thread library([&] { gate.pass(1, ""); });
    entered.get_future().wait();
    std::thread release([&] { proceed.set_value(); });
    gate.close();
    QVERIFY(isCallOver);
    release.join();
    library.join();
}

QTEST_GUILESS_MAIN(tst_ChannelGate)
#include "tst_ChannelGate.moc"
