#include "simulator/Simulator.h"
#include "tests/simulator/ChannelRig.h"

#include <QFile>
#include <QJsonArray>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QTest>
#include <QUrl>

#include <sstream>

using namespace Qt::StringLiterals;
using simulator::Simulator;

/// The commands of the account service. tst_AccountRequests and tst_AccountFaults test the service.
class tst_AccountFeature : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void commandsChangeTheService();
    void requestsCanBeExpected();

private:
    void command(const QString& line);
    QByteArray signIn();
    QJsonObject lastEvent(const QString& name) const
    {
        return eventsNamed(name, m_events).value(eventsNamed(name, m_events).size() - 1);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::ostringstream m_events;
    std::ostringstream m_errors;
    std::unique_ptr<Simulator> m_simulator;
    int m_commands = 0;
};

void tst_AccountFeature::init()
{
    m_simulator.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    m_events.str({});
    m_errors.str({});
    m_simulator = std::make_unique<Simulator>(m_folder->filePath(u"hub"_s), m_events, m_errors);
    command(u"account listen"_s);
}

// Runs a command and waits for its end.
void tst_AccountFeature::command(const QString& line)
{
    const QString mark = u"command %1"_s.arg(++m_commands);
    m_simulator->enterCommand(line);
    m_simulator->enterCommand(u"echo "_s + mark);
    QTRY_COMPARE_WITH_TIMEOUT(lastEvent(u"echo"_s).value("text"_L1).toString(), mark, Patience);
}

// The reply to a sign-in of a@b.c with the password "pw". Empty if the service refuses connections.
QByteArray tst_AccountFeature::signIn()
{
    const QUrl url(lastEvent(u"account-listening"_s).value("url"_L1).toString());
    QTcpSocket socket;
    socket.connectToHost(url.host(), quint16(url.port()));
    socket.write("POST /nc/auth/login?username=YUBiLmM&password=cHc HTTP/1.1\r\n\r\n");
    QByteArray reply;
    const auto isClosed = [&] {
        reply += socket.readAll();
        return socket.state() == QAbstractSocket::UnconnectedState;
    };
    return QTest::qWaitFor(isClosed, Patience) ? reply : "not closed"_ba;
}

void tst_AccountFeature::commandsChangeTheService()
{
    QVERIFY(signIn().contains("The email or password is incorrect."));
    command(uR"(account add a@b.c pw firstName="Ada Maria" title="")"_s);
    QVERIFY(signIn().contains("Ada Maria"));
    command(u"account fault login array"_s);
    QVERIFY(signIn().endsWith(R"([{"success": true}])"));
    command(uR"(account reply login {"success": false})"_s);
    QVERIFY(signIn().endsWith(R"({"success": false})"));
    QCOMPARE(lastEvent(u"account-request"_s).value("fault"_L1), u"canned"_s);
    command(u"account fault all none"_s);
    command(u"account close"_s);
    QCOMPARE(signIn(), QByteArray());
    command(u"account listen"_s); // with the same port and the same accounts
    QVERIFY(signIn().contains("Ada Maria"));
    command(u"account show"_s);
    const QJsonArray accounts = lastEvent(u"accounts"_s).value("accounts"_L1).toArray();
    QCOMPARE(accounts.size(), 1);
    QVERIFY(
        !QByteArray::fromStdString(m_events.str()).contains("cHc")); // no event contains a password
    QCOMPARE(m_errors.str(), std::string());

    for (const QString& line :
         {u"account listen"_s, u"account add a@b.c pw"_s, u"account add b@b.c pw firstname=A"_s,
          u"account expire b@b.c"_s, u"account fault login canned"_s, u"account reply all {}"_s}) {
        m_errors.str({});
        command(line);
        QVERIFY2(!m_errors.str().empty(), qPrintable(line));
    }
}

void tst_AccountFeature::requestsCanBeExpected()
{
    signIn();
    const QByteArray scenario = "expect-request login email=a@b.c\n"
                                "expect-request login within 0.05\nquit 0";
    QSignalSpy finished(m_simulator.get(), &Simulator::finished);
    QVERIFY(m_simulator->loadScenario(writeScenario(*m_folder, scenario)));
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, Patience);
    QCOMPARE(finished.first().first().toInt(), 1); // one request fulfils one expectation
    QVERIFY(m_errors.str().find(":2: ") != std::string::npos);
}

QTEST_GUILESS_MAIN(tst_AccountFeature)
#include "tst_AccountFeature.moc"
