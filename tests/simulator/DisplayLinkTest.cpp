#include "simulator/display/DisplayLink.h"
#include "portalhub/ChannelClient.h"
#include "tests/simulator/ChannelRig.h"

#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTest>

#include <filesystem>
#include <system_error>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using channel::ChannelClient;
using simulator::DisplayLink;

/// The simulator's end of the socket: who may listen, and several programs at once.
class DisplayLinkTest : public QObject
{
    Q_OBJECT

private slots:
    void leavesALivingSimulatorAlone();
    void replacesTheSocketOfADeadOne();
    void leavesOtherFilesAlone();
    void isForThisUserOnly();
    void servesSeveralPrograms();
    void writesWhatIsWaitingBeforeItGoes();
};

void DisplayLinkTest::leavesALivingSimulatorAlone()
{
    const SocketFolder folder;
    DisplayLink first(folder.name());
    QCOMPARE(first.listen(), QString());
    DisplayLink second(folder.name());
    QVERIFY(second.listen().contains("already listening"_L1));
    QVERIFY(!second.isListening());

    ChannelClient client(folder.name(), 5ms);
    Inbox inbox;
    client.initChannel(inbox.callback());
    // The probe of the second was a client as well, and has gone.
    QSignalSpy connected(&first, &DisplayLink::clientConnected);
    QTRY_VERIFY_WITH_TIMEOUT(connected.count() >= 1, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(first.clientCount(), 1, Patience);
    client.stop();
}

void DisplayLinkTest::replacesTheSocketOfADeadOne()
{
    const SocketFolder folder;
    const QString living = folder.name() + u".living"_s;
    {
        // As a killed process leaves it: under its second name the socket outlives its server.
        DisplayLink link(living);
        QCOMPARE(link.listen(), QString());
        if (!QFileInfo::exists(living))
            QSKIP("named pipes end with their process");
        std::error_code error;
        std::filesystem::create_hard_link(living.toStdString(), folder.name().toStdString(), error);
        QVERIFY2(!error, error.message().c_str());
    }
    QVERIFY(QFileInfo::exists(folder.name()));

    DisplayLink link(folder.name());
    QCOMPARE(link.listen(), QString());
    QLocalSocket program;
    program.connectToServer(folder.name());
    QVERIFY(program.waitForConnected());
}

void DisplayLinkTest::leavesOtherFilesAlone()
{
    const SocketFolder folder;
    QFile file(folder.name());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("precious");
    file.close();
    DisplayLink link(folder.name());
    QVERIFY(link.listen().contains("no socket"_L1));
    QCOMPARE(file.size(), 8);
}

void DisplayLinkTest::isForThisUserOnly()
{
    const SocketFolder folder;
    DisplayLink link(folder.name());
    QCOMPARE(link.listen(), QString());
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QVERIFY(!(QFile::permissions(folder.name()) & others));
}

void DisplayLinkTest::servesSeveralPrograms()
{
    const SocketFolder folder;
    DisplayLink link(folder.name());
    QSignalSpy received(&link, &DisplayLink::messageReceived);
    QCOMPARE(link.listen(), QString());
    Inbox firstInbox;
    Inbox secondInbox;
    ChannelClient first(folder.name(), 5ms);
    ChannelClient second(folder.name(), 5ms);
    first.initChannel(firstInbox.callback());
    second.initChannel(secondInbox.callback());
    QTRY_COMPARE_WITH_TIMEOUT(link.clientCount(), 2, Patience);
    link.send(1, "to all");
    QTRY_COMPARE_WITH_TIMEOUT(firstInbox.count(), 1, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(secondInbox.count(), 1, Patience);
    first.stop();
    QTRY_COMPARE_WITH_TIMEOUT(link.clientCount(), 1, Patience);
    second.pushMsg(2, "from one");
    QTRY_COMPARE_WITH_TIMEOUT(received.count(), 1, Patience);
    second.stop();
}

void DisplayLinkTest::writesWhatIsWaitingBeforeItGoes()
{
    const SocketFolder folder;
    Inbox inbox;
    ChannelClient client(folder.name(), 5ms);
    {
        DisplayLink link(folder.name());
        QCOMPARE(link.listen(), QString());
        client.initChannel(inbox.callback());
        QTRY_COMPARE_WITH_TIMEOUT(link.clientCount(), 1, Patience);
        for (int i = 0; i < 1000; ++i)
            link.send(i, QByteArray(1000, 'x'));
    }
    QTRY_COMPARE_WITH_TIMEOUT(inbox.count(), 1000, Patience);
    QVERIFY(!QFileInfo::exists(folder.name()));
    client.stop();
}

QTEST_GUILESS_MAIN(DisplayLinkTest)
#include "DisplayLinkTest.moc"
