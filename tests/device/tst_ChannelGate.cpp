#include "device/ChannelGate.h"

#include <QTest>

#include <atomic>
#include <future>

class tst_ChannelGate : public QObject
{
    Q_OBJECT

private slots:
    void closingWaitsForACallAndEndsDelivery();
};

void tst_ChannelGate::closingWaitsForACallAndEndsDelivery()
{
    std::promise<void> entered;
    std::promise<void> proceed;
    std::atomic<bool> isCallOver = false;
    ChannelGate gate([&](int id, const std::string&) {
        entered.set_value();
        proceed.get_future().wait();
        isCallOver = true;
        return id;
    });
    int result = 0;
    std::thread library([&] { result = gate.pass(7, ""); });
    entered.get_future().wait();
    std::thread release([&] { proceed.set_value(); });
    gate.close();
    QVERIFY(isCallOver);
    QCOMPARE(gate.pass(7, ""), 0); // a second call would throw
    release.join();
    library.join();
    QCOMPARE(result, 7);
}

QTEST_GUILESS_MAIN(tst_ChannelGate)
#include "tst_ChannelGate.moc"
