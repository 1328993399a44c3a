#include "portalhub/ChannelClient.h"
#include "portalhub/MessageLine.h"
#include "simulator/display/DisplayLink.h"
#include "simulator/display/MalformedLine.h"
#include "tests/simulator/ChannelRig.h"

#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <condition_variable>
#include <thread>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using channel::ChannelClient;
using PortalHubApi::ErrorCode;
using simulator::DisplayLink;

/// The channel library against the simulator's end of the socket.
class ChannelClientTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void keepsOrderBothWays();
    void dropsWhatIsPushedWithoutConnection();
    void comesBackAfterTheServer();
    void survivesHostileLines_data();
    void survivesHostileLines();
    void callbackMayPushAndRegister();
    void callsBackOneAtATime();
    void slowReaderBlocksNobody();
    void refusesWhatIsTooLong();
    void hundredStartsAndStopsUnderLoad();
    void stopDoesNotWaitForACallbackForEver();

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

void ChannelClientTest::init()
{
    m_folder = std::make_unique<SocketFolder>();
    m_link = std::make_unique<DisplayLink>(m_folder->name());
    m_received = std::make_unique<QSignalSpy>(m_link.get(), &DisplayLink::messageReceived);
    m_inbox = std::make_unique<Inbox>();
    m_client = std::make_unique<ChannelClient>(m_folder->name(), 5ms);
}

void ChannelClientTest::cleanup()
{
    m_client.reset();
    m_received.reset();
    m_link.reset();
    m_folder.reset();
}

void ChannelClientTest::connectClient()
{
    QCOMPARE(m_link->listen(), QString());
    QCOMPARE(m_client->initChannel(m_inbox->callback()), ErrorCode::Success);
    // Connected for both ends: a message has come through.
    QTRY_COMPARE_WITH_TIMEOUT(m_link->clientCount(), 1, Patience);
    QVERIFY(pushOnceConnected(0, "hello"));
    QTRY_COMPARE_WITH_TIMEOUT(m_received->count(), 1, Patience);
    m_received->clear();
}

bool ChannelClientTest::pushOnceConnected(int id, const std::string& text)
{
    return QTest::qWaitFor([&] { return m_client->pushMsg(id, text) == ErrorCode::Success; },
                           Patience);
}

QList<Inbox::Entry> ChannelClientTest::receivedByLink() const
{
    QList<Inbox::Entry> entries;
    for (const auto& arguments : *m_received)
        entries.append({arguments.at(0).toInt(), arguments.at(1).toByteArray()});
    return entries;
}

void ChannelClientTest::keepsOrderBothWays()
{
    constexpr int Count = 10'000;
    connectClient();
    std::jthread pusher([this] {
        for (int i = 0; i < Count; ++i)
            m_client->pushMsg(i, "{\"seq\":" + std::to_string(i) + "}");
    });
    QList<Inbox::Entry> expected;
    for (int i = 0; i < Count; ++i) {
        const QByteArray text = "{\"seq\":" + QByteArray::number(i) + '}';
        m_link->send(i, text);
        expected.append({i, text});
    }
    QTRY_COMPARE_WITH_TIMEOUT(m_received->count(), Count, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(m_inbox->count(), Count, Patience);
    pusher.join();
    QVERIFY(receivedByLink() == expected);
    QVERIFY(m_inbox->entries() == expected);
}

void ChannelClientTest::dropsWhatIsPushedWithoutConnection()
{
    QCOMPARE(m_client->pushMsg(1, "before the channel"), ErrorCode::NotConnected);
    QCOMPARE(m_client->initChannel({}), ErrorCode::Success); // opens nothing
    QCOMPARE(m_client->initChannel(m_inbox->callback()), ErrorCode::Success);
    QCOMPARE(m_client->pushMsg(2, "before the display"), ErrorCode::NotConnected);
    QCOMPARE(m_link->listen(), QString());
    QVERIFY(pushOnceConnected(3, "after"));
    QTRY_COMPARE_WITH_TIMEOUT(m_received->count(), 1, Patience);
    QCOMPARE(m_received->first().first().toInt(), 3);
}

void ChannelClientTest::comesBackAfterTheServer()
{
    connectClient();
    for (int round = 1; round <= 3; ++round) {
        m_link->sendRaw("1 half a line, cut off by the end of the connection");
        m_link->close();
        QTRY_COMPARE_WITH_TIMEOUT(m_client->pushMsg(1, "nobody there"), ErrorCode::NotConnected,
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

void ChannelClientTest::survivesHostileLines_data()
{
    QTest::addColumn<int>("kind");
    const QStringList kinds = simulator::malformedLineKinds();
    for (int kind = 0; kind < kinds.size(); ++kind)
        QTest::newRow(qPrintable(kinds.at(kind))) << kind;
}

// A line with a valid id comes through unread, any other is passed over; the next message is whole.
void ChannelClientTest::survivesHostileLines()
{
    QFETCH(int, kind);
    QByteArray line = simulator::malformedLine(kind);
    if (!line.endsWith('\n'))
        line += '\n';
    const auto message = channel::parseLine(QByteArrayView(line).chopped(1));
    const bool delivered = message && line.size() - 1 <= channel::MaxLineLength;

    connectClient();
    m_link->sendRaw(line);
    m_link->send(42, "still here");
    QTRY_COMPARE_WITH_TIMEOUT(m_inbox->count(), delivered ? 2 : 1, Patience);
    QCOMPARE(m_inbox->entries().last(), Inbox::Entry(42, "still here"));
    if (delivered)
        QCOMPARE(m_inbox->entries().first(), Inbox::Entry(message->id, message->text));
}

void ChannelClientTest::callbackMayPushAndRegister()
{
    connectClient();
    std::atomic_int first = 0;
    m_client->initChannel([&](int id, const std::string& text) {
        ++first;
        m_client->pushMsg(id, "echo of " + text);
        m_client->initChannel([this](int nextId, const std::string& nextText) {
            m_client->pushMsg(nextId, "second " + nextText);
            m_client->initChannel({});
            return 0;
        });
        return 0;
    });
    m_link->send(1, "a");
    m_link->send(2, "b");
    m_link->send(3, "for nobody");
    QTRY_COMPARE_WITH_TIMEOUT(m_received->count(), 2, Patience);
    m_client->initChannel(m_inbox->callback());
    m_link->send(4, "d");
    QTRY_COMPARE_WITH_TIMEOUT(m_inbox->count(), 1, Patience);
    QCOMPARE(m_inbox->entries().first(), Inbox::Entry(4, "d"));
    QCOMPARE(first.load(), 1);
    const QList<Inbox::Entry> expected{{1, "echo of a"}, {2, "second b"}};
    QCOMPARE(receivedByLink(), expected);
}

void ChannelClientTest::callsBackOneAtATime()
{
    connectClient();
    std::atomic_int inside = 0;
    std::atomic_bool overlapped = false;
    std::atomic_int calls = 0;
    m_client->initChannel([&](int, const std::string&) {
        overlapped = overlapped || ++inside > 1;
        --inside;
        ++calls;
        return 0;
    });
    for (int i = 0; i < 1000; ++i) {
        m_link->send(i, "x");
        m_client->pushMsg(i, "y");
    }
    QTRY_COMPARE_WITH_TIMEOUT(calls.load(), 1000, Patience);
    QVERIFY(!overlapped);
}

void ChannelClientTest::slowReaderBlocksNobody()
{
    m_client = std::make_unique<ChannelClient>(m_folder->name(), 5ms, 256 * 1024);
    connectClient();
    m_link->setReading(false);
    QList<int> accepted;
    int refused = 0;
    const std::string text(1000, 'x');
    for (int i = 0; refused < 100; ++i) {
        QVERIFY2(i < 100'000, "nothing bounds the buffer");
        const ErrorCode result = m_client->pushMsg(i, text);
        if (result == ErrorCode::Success)
            accepted.append(i);
        else
            ++refused;
        QVERIFY(result == ErrorCode::Success || result == ErrorCode::BufferFull);
    }
    // Delivery in the other direction does not suffer.
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

void ChannelClientTest::refusesWhatIsTooLong()
{
    connectClient();
    const size_t longest = size_t(channel::MaxLineLength) - 2; // beside "1 "
    QCOMPARE(m_client->pushMsg(1, std::string(longest + 1, 'x')), ErrorCode::MessageTooLong);
    QCOMPARE(m_client->pushMsg(1, std::string(longest, 'x')), ErrorCode::Success);
    QTRY_COMPARE_WITH_TIMEOUT(m_received->count(), 1, Patience);
    QCOMPARE(m_received->first().at(1).toByteArray().size(), qsizetype(longest));
}

void ChannelClientTest::hundredStartsAndStopsUnderLoad()
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
            return m_inbox->add(id, text);
        });
        const qsizetype before = m_inbox->count();
        if (i % 3 != 0) { // else while it is still connecting
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

void ChannelClientTest::stopDoesNotWaitForACallbackForEver()
{
    connectClient();
    std::mutex mutex;
    std::condition_variable changed;
    bool inside = false;
    bool release = false;
    bool left = false;
    m_client->initChannel([&](int, const std::string&) {
        std::unique_lock lock(mutex);
        inside = true;
        changed.notify_all();
        changed.wait(lock, [&] { return release; });
        left = true;
        changed.notify_all();
        return 0;
    });
    m_link->send(1, "x");
    const auto isInside = [&] {
        const std::lock_guard lock(mutex);
        return inside;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isInside(), Patience);
    QVERIFY(!m_client->stop(QDeadlineTimer(20)));
    QCOMPARE(m_client->initChannel(m_inbox->callback()), ErrorCode::NotAvailable);
    {
        std::unique_lock lock(mutex);
        release = true;
        changed.notify_all();
        changed.wait(lock, [&] { return left; });
    }
    QVERIFY(m_client->stop());
    QCOMPARE(m_client->initChannel(m_inbox->callback()), ErrorCode::Success);
}

QTEST_GUILESS_MAIN(ChannelClientTest)
#include "ChannelClientTest.moc"
