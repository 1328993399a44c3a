#include "portalhub/ChannelClient.h"
#include "portalhub/MessageLine.h"
#include "simulator/display/DisplayLink.h"
#include "simulator/display/MalformedLine.h"
#include "tests/simulator/ChannelRig.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <thread>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using channel::ChannelClient;
using PortalHubApi::ErrorCode;
using simulator::DisplayLink;

/// The channel library and the simulator's end of the socket.
class tst_ChannelClient : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void messagesWithoutConnectionAreDropped();
    void clientReconnects();
#ifdef Q_OS_LINUX
    void waitsWithoutPollingForAServer();
#endif
    void malformedLinesDoNotStopDelivery();
    void slowReaderFillsABoundedBuffer();
    void hundredStartsAndStopsUnderLoad();
    void stopGivesUpOnACallbackThatDoesNotReturn();

private:
    void connectClient();
    bool pushOnceConnected(int id, const std::string& text);
    QList<Inbox::Entry> receivedByLink() const;

    std::unique_ptr<SocketFolder> m_folder;
    std::unique_ptr<DisplayLink> m_link;
    std::unique_ptr<QSignalSpy> m_received;
    std::unique_ptr<Inbox> m_inbox;
    std::unique_ptr<ChannelClient> m_client;
};

void tst_ChannelClient::init()
{
    m_folder = std::make_unique<SocketFolder>();
    m_link = std::make_unique<DisplayLink>(m_folder->name());
    m_received = std::make_unique<QSignalSpy>(m_link.get(), &DisplayLink::messageReceived);
    m_inbox = std::make_unique<Inbox>();
    m_client = std::make_unique<ChannelClient>(m_folder->name(), 5ms);
}

void tst_ChannelClient::cleanup()
{
    m_client.reset();
    m_received.reset();
    m_link.reset();
    m_folder.reset();
}

void tst_ChannelClient::connectClient()
{
    QCOMPARE(m_link->listen(), QString());
    QCOMPARE(m_client->initChannel(m_inbox->callback()), ErrorCode::Success);
    // Both ends are connected when a message has arrived.
    QTRY_COMPARE_WITH_TIMEOUT(m_link->clientCount(), 1, Patience);
    QVERIFY(pushOnceConnected(0, "hello"));
    QTRY_COMPARE_WITH_TIMEOUT(m_received->count(), 1, Patience);
    m_received->clear();
}

bool tst_ChannelClient::pushOnceConnected(int id, const std::string& text)
{
    return QTest::qWaitFor([&] { return m_client->pushMsg(id, text) == ErrorCode::Success; },
                           Patience);
}

QList<Inbox::Entry> tst_ChannelClient::receivedByLink() const
{
    QList<Inbox::Entry> entries;
    for (const auto& arguments : *m_received)
        entries.append({arguments.at(0).toInt(), arguments.at(1).toByteArray()});
    return entries;
}

void tst_ChannelClient::messagesWithoutConnectionAreDropped()
{
    QCOMPARE(m_client->pushMsg(1, "before the channel"), ErrorCode::NotConnected);
    QCOMPARE(m_client->initChannel({}), ErrorCode::Success); // does not open the channel
    QCOMPARE(m_client->initChannel(m_inbox->callback()), ErrorCode::Success);
    QCOMPARE(m_client->pushMsg(2, "before the display"), ErrorCode::NotConnected);
    const size_t longest = size_t(channel::MaxLineLength) - 2; // without "1 "
    QCOMPARE(m_client->pushMsg(1, std::string(longest + 1, 'x')), ErrorCode::MessageTooLong);
    QCOMPARE(m_link->listen(), QString());
    QVERIFY(pushOnceConnected(3, "after"));
    QTRY_COMPARE_WITH_TIMEOUT(m_received->count(), 1, Patience);
    QCOMPARE(m_received->first().first().toInt(), 3);
}

void tst_ChannelClient::clientReconnects()
{
    connectClient();
    for (int round = 1; round <= 3; ++round) {
        m_link->sendRaw("1 half a line, cut off by the end of the connection");
        m_link->close();
        QTRY_COMPARE_WITH_TIMEOUT(m_client->pushMsg(1, "no server"), ErrorCode::NotConnected,
                                  Patience);
        m_received->clear();
        QCOMPARE(m_link->listen(), QString());
        QVERIFY(pushOnceConnected(2, "back"));
        QTRY_COMPARE_WITH_TIMEOUT(m_received->count(), 1, Patience);
        m_link->send(round, "welcome");
        QTRY_COMPARE_WITH_TIMEOUT(m_inbox->count(), round, Patience);
        QCOMPARE(m_inbox->entries().last(), Inbox::Entry(round, "welcome"));
    }
    m_link->dropClients();
    QTRY_COMPARE_WITH_TIMEOUT(m_link->clientCount(), 1, Patience);
}

#ifdef Q_OS_LINUX
void tst_ChannelClient::waitsWithoutPollingForAServer()
{
    m_client = std::make_unique<ChannelClient>(m_folder->name(), 1h);
    QCOMPARE(m_client->initChannel(m_inbox->callback()), ErrorCode::Success);
    QVERIFY(!QTest::qWaitFor([&] { return m_link->clientCount() > 0; }, 50));
    QCOMPARE(m_link->listen(), QString());
    QTRY_COMPARE_WITH_TIMEOUT(m_link->clientCount(), 1, Patience);
}
#endif

// Lines with a valid id are delivered unchecked, others are skipped.
void tst_ChannelClient::malformedLinesDoNotStopDelivery()
{
    connectClient();
    QList<Inbox::Entry> expected;
    for (int kind = 0; kind < simulator::malformedLineKinds().size(); ++kind) {
        QByteArray line = simulator::malformedLine(kind);
        if (!line.endsWith('\n'))
            line += '\n';
        m_link->sendRaw(line);
        const auto message = channel::parseLine(QByteArrayView(line).chopped(1));
        if (message && line.size() - 1 <= channel::MaxLineLength)
            expected.append({message->id, message->text});
        m_link->send(kind, "still here");
        expected.append({kind, "still here"});
    }
    QTRY_COMPARE_WITH_TIMEOUT(m_inbox->count(), expected.size(), Patience);
    QVERIFY(m_inbox->entries() == expected);
}

void tst_ChannelClient::slowReaderFillsABoundedBuffer()
{
    m_client = std::make_unique<ChannelClient>(m_folder->name(), 5ms, 256 * 1024);
    connectClient();
    m_link->setReading(false);
    QList<int> accepted;
    int refused = 0;
    const std::string text(1000, 'x');
    for (int i = 0; refused < 100; ++i) {
        QVERIFY2(i < 100'000, "the buffer is not bounded");
        const ErrorCode result = m_client->pushMsg(i, text);
        if (result == ErrorCode::Success)
            accepted.append(i);
        else
            ++refused;
        QVERIFY(result == ErrorCode::Success || result == ErrorCode::BufferFull);
    }
    // The other direction still works.
    m_link->send(1, "meanwhile");
    QTRY_COMPARE_WITH_TIMEOUT(m_inbox->count(), 1, Patience);

    m_link->setReading(true);
    QTRY_COMPARE_WITH_TIMEOUT(m_received->count(), accepted.size(), Patience);
    for (qsizetype i = 0; i < accepted.size(); ++i) {
        QCOMPARE(m_received->at(i).at(0).toInt(), accepted.at(i));
        QCOMPARE(m_received->at(i).at(1).toByteArray().size(), qsizetype(text.size()));
    }
    QVERIFY(pushOnceConnected(1, "and it goes on"));
}

void tst_ChannelClient::hundredStartsAndStopsUnderLoad()
{
    QCOMPARE(m_link->listen(), QString());
    connect(m_link.get(), &DisplayLink::clientConnected, this, [this] {
        for (int i = 0; i < 50; ++i)
            m_link->send(i, "{\"cmd\":1}");
    });
    std::jthread pusher([&](const std::stop_token& stop) {
        while (!stop.stop_requested()) {
            m_client->pushMsg(1, "x");
            std::this_thread::yield();
        }
    });
    int connected = 0;
    for (int i = 0; i < 100; ++i) {
        m_client->initChannel([this](int id, const std::string& text) {
            m_client->pushMsg(id, text);
            m_client->initChannel(m_inbox->callback()); // allowed in the callback
            return m_inbox->add(id, text);
        });
        const qsizetype before = m_inbox->count();
        if (i % 3 != 0) { // the other rounds stop while it is connecting
            QTRY_VERIFY_WITH_TIMEOUT(m_inbox->count() > before, Patience);
            ++connected;
        }
        QVERIFY(m_client->stop());
        const qsizetype after = m_inbox->count();
        QCoreApplication::processEvents();
        QCOMPARE(m_inbox->count(), after);
    }
    pusher.request_stop();
    pusher.join();
    QCOMPARE(connected, 66);
}

void tst_ChannelClient::stopGivesUpOnACallbackThatDoesNotReturn()
{
    connectClient();
    QSemaphore entered;
    QSemaphore released;
    m_client->initChannel([&](int, const std::string&) {
        entered.release();
        released.acquire();
        return 0;
    });
    m_link->send(1, "x");
    QTRY_VERIFY_WITH_TIMEOUT(entered.available() == 1, Patience);
    QVERIFY(!m_client->stop(QDeadlineTimer(20)));
    QCOMPARE(m_client->initChannel(m_inbox->callback()), ErrorCode::NotAvailable);
    released.release();
    QVERIFY(m_client->stop());
    QCOMPARE(m_client->initChannel(m_inbox->callback()), ErrorCode::Success);
}

QTEST_GUILESS_MAIN(tst_ChannelClient)
#include "tst_ChannelClient.moc"
