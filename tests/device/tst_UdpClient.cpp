#include "device/UdpClient.h"
#include "rig/HelperProcess.h"
#include "support/LogCapture.h"

#include <QTest>
#include <QUdpSocket>

#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

/// A bound client and a peer that got two bytes from it.
struct Link {
    Link()
    {
        if (!peer.bind(QHostAddress::LocalHost) || !client.bind(0))
            qFatal("no port is free");
        client.send("\x01\xab", 2, peer.localPort(), QHostAddress(QHostAddress::LocalHost));
        if (!peer.waitForReadyRead() || (received = peer.receiveDatagram()).data() != "\x01\xab")
            qFatal("the peer got no datagram");
    }

    void send(const QByteArray& data, int count)
    {
        for (; count > 0; --count)
            peer.writeDatagram(data, received.senderAddress(), quint16(received.senderPort()));
    }

    QUdpSocket peer;
    UdpClient client;
    QNetworkDatagram received;
};

} // namespace

class tst_UdpClient : public QObject
{
    Q_OBJECT

private slots:
    void exchangesDatagrams();
    void survivesAFlood();
};

void tst_UdpClient::exchangesDatagrams()
{
    LogCapture log;
    Link link;
    QVERIFY(log.contains(
        u"I UdpClient::send send to 127.0.0.1:%1 [01 AB ]"_s.arg(link.peer.localPort())));
    link.send("first", 1);
    link.send("", 1);
    QByteArrayList datagrams;
    const auto taken = [&] {
        QNetworkDatagram datagram;
        if (link.client.waitForDatagram(datagram, 0ms))
            datagrams.append(datagram.data());
        return datagrams;
    };
    QTRY_COMPARE(taken(), (QByteArrayList{"first", ""}));
}

void tst_UdpClient::survivesAFlood()
{
    Link link;
    QNetworkDatagram datagram;
    const auto take = [&] {
        int count = 0;
        while (link.client.waitForDatagram(datagram, 0ms))
            ++count;
        return count;
    };
    // Each turn of the event loop sends more than is read, so the socket is never empty.
    int received = 0;
    for (int turn = 0; turn < 60; ++turn) {
        link.send("flood", 100);
        QCoreApplication::processEvents();
        const int count = take();
        // Windows signals the rest within the same turn.
        QVERIFY2(count <= (IsWindows ? 100 : 64),
                 qPrintable(u"%1 in turn %2"_s.arg(count).arg(turn)));
        received += count;
    }
    QVERIFY(received > 60 * 32);

    LogCapture log;
    for (int turn = 0; turn < 10; ++turn) {
        link.send("flood", 100);
        QCoreApplication::processEvents();
    }
    for (int turn = 0; turn < 10; ++turn) { // until the socket is empty
        take();
        QCoreApplication::processEvents();
    }
    const auto isLater = [&] {
        link.send("later", 1);
        take();
        return datagram.data() == "later";
    };
    QTRY_VERIFY(isLater());
    QCOMPARE(log.take().filter(u"datagrams dropped"_s).size(), 1);
}

QTEST_GUILESS_MAIN(tst_UdpClient)
#include "tst_UdpClient.moc"
