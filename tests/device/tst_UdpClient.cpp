#include "device/PointerDatagram.h"
#include "device/UdpClient.h"
#include "support/LogCapture.h"

#include <QTest>
#include <QUdpSocket>

#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class tst_UdpClient : public QObject
{
    Q_OBJECT

private slots:
    void pointerDatagramIsExact();
    void exchangesDatagrams();
    void takenPortIsReported();
    void stopWakesTheWaitingThread();
};

void tst_UdpClient::pointerDatagramIsExact()
{
    QCOMPARE(pointerDatagram(0, 0.5F, 0.5F).toHex(' '),
             "56 4f 52 4e 00 02 00 0b 00 00 01 00 3f 00 00 00 3f 00 00 00");
    QCOMPARE(pointerDatagram(2, 0.0F, 1.0F).toHex(' ').mid(27), "02 01 00 00 00 00 00 3f 80 00 00");
}

void tst_UdpClient::exchangesDatagrams()
{
    QUdpSocket peer;
    QVERIFY(peer.bind(QHostAddress::LocalHost));
    LogCapture log;
    UdpClient client;
    QVERIFY(client.bind(0));
    client.send("\x01\xab", 2, peer.localPort(), QHostAddress(QHostAddress::LocalHost));
    QTRY_VERIFY(peer.hasPendingDatagrams());
    const QNetworkDatagram received = peer.receiveDatagram();
    QCOMPARE(received.data(), QByteArray("\x01\xab"));
    QVERIFY(
        log.contains(u"I UdpClient::send send to 127.0.0.1:%1 [01 AB ]"_s.arg(peer.localPort())));

    peer.writeDatagram("first", received.senderAddress(), quint16(received.senderPort()));
    peer.writeDatagram("", received.senderAddress(), quint16(received.senderPort()));
    QByteArrayList datagrams;
    const auto taken = [&] {
        QNetworkDatagram datagram;
        if (client.waitForDatagram(datagram, 0ms))
            datagrams.append(datagram.data());
        return datagrams;
    };
    QTRY_COMPARE(taken(), (QByteArrayList{"first", ""}));
}

void tst_UdpClient::takenPortIsReported()
{
    QUdpSocket owner;
    QVERIFY(owner.bind(QHostAddress::LocalHost));
    LogCapture log;
    UdpClient client;
    QVERIFY(!client.bind(owner.localPort()));
    client.send("x", 1, owner.localPort(), QHostAddress(QHostAddress::LocalHost));
    QCOMPARE(log.take().last(), u"E UdpClient::send Cannot send data: socket not bound"_s);
}

void tst_UdpClient::stopWakesTheWaitingThread()
{
    UdpClient client;
    bool received = true;
    std::thread waiting([&] {
        QNetworkDatagram datagram;
        received = client.waitForDatagram(datagram, 1h);
    });
    client.stop();
    waiting.join();
    QVERIFY(!received);
}

QTEST_GUILESS_MAIN(tst_UdpClient)
#include "tst_UdpClient.moc"
