#include "simulator/Simulator.h"
#include "simulator/account/AccountFault.h"
#include "tests/account/AccountTestSupport.h"
#include "tests/simulator/ChannelRig.h"

#include <QFile>
#include <QJsonArray>
#include <QMetaEnum>
#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <sstream>

using namespace Qt::StringLiterals;
using simulator::Simulator;

/// The account service by command, as the program's own client meets it.
class AccountCommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void playsTheService();
    void keepsSecretsOutOfRequests();
    void switchesFaults();
    void goesAndComesBack();
    void expectsRequests_data();
    void expectsRequests();
    void saysWhatItCannotDo_data();
    void saysWhatItCannotDo();
    void namesEveryFault();

private:
    void command(const QString& line);
    QJsonObject lastEvent(const QString& name) const
    {
        const auto events = eventsNamed(name, m_events);
        return events.value(events.size() - 1);
    }
    QString happens(const std::function<void()>& action);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::ostringstream m_events;
    std::ostringstream m_errors;
    FakeIdentity m_identity;
    std::unique_ptr<Simulator> m_simulator;
    std::unique_ptr<NetworkManager> m_network;
    std::unique_ptr<SignalRecorder> m_recorder;
};

void AccountCommandsTest::init()
{
    m_network.reset();
    m_simulator.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    m_events.str({});
    m_errors.str({});
    m_identity = {};
    m_simulator = std::make_unique<Simulator>(m_folder->filePath(u"hub"_s), m_events, m_errors);
    command(u"account listen"_s);
    const QString url = lastEvent(u"account-listening"_s).value("url"_L1).toString();
    QVERIFY(url.startsWith("http://127.0.0.1:"_L1));
    m_network = std::make_unique<NetworkManager>(url, m_identity);
    m_recorder = std::make_unique<SignalRecorder>(*m_network);
}

// Returns once it has run.
void AccountCommandsTest::command(const QString& line)
{
    static int number = 0;
    const QString mark = u"command %1"_s.arg(++number);
    m_simulator->enterCommand(line);
    m_simulator->enterCommand(u"echo "_s + mark);
    QTRY_COMPARE_WITH_TIMEOUT(lastEvent(u"echo"_s).value("text"_L1).toString(), mark, Patience);
}

// What the client reports of one request.
QString AccountCommandsTest::happens(const std::function<void()>& action)
{
    m_recorder->events.clear();
    action();
    return m_recorder->waitForEvents(1) ? m_recorder->events.constLast() : u"nothing"_s;
}

void AccountCommandsTest::playsTheService()
{
    QFile picture(m_folder->filePath(u"a picture.png"_s));
    QVERIFY(picture.open(QIODevice::WriteOnly) && picture.write("not drawn") == 9);
    picture.close();
    command(u"account add ada@vorn.example \"pass word\" firstName=\"Ada Maria\" title=\"\" "
            "company=VORN picture=\"%1\""_s.arg(picture.fileName()));

    QCOMPARE(happens([&] { m_network->login(u"ada@vorn.example"_s, u"pass"_s); }),
             u"loginFailed: The email or password is incorrect.");
    QCOMPARE(happens([&] { m_network->login(u"ada@vorn.example"_s, u"pass word"_s); }),
             u"loginSuccess");
    const QJsonObject data = m_recorder->lastObject.value("data"_L1).toObject();
    const QJsonObject user = data.value("user"_L1).toObject();
    QCOMPARE(user.value("firstName"_L1), u"Ada Maria"_s);
    QCOMPARE(user.value("company"_L1), u"VORN"_s);
    QCOMPARE(user.value("picture"_L1),
             QString::fromLatin1(QByteArrayLiteral("not drawn").toBase64()));

    m_identity.m_userId = user.value("userId"_L1).toString();
    m_identity.m_token = data.value("token"_L1).toString();
    QCOMPARE(happens([&] { m_network->requestUserProfile(); }), u"profileRequestSuccess");
    command(u"account expire ADA@vorn.example"_s);
    QCOMPARE(happens([&] { m_network->requestUserProfile(); }),
             u"profileRequestFailed: Your session has expired. Please sign in again.");

    // Accounts made by the program are shown as well.
    const auto registers = [&] {
        m_network->registerUser(u"Bo"_s, u"Berg"_s, u"bo@vorn.example"_s, u"pw"_s);
    };
    QCOMPARE(happens(registers), u"registrationSuccess");
    command(u"account show"_s);
    const QJsonArray accounts = lastEvent(u"accounts"_s).value("accounts"_L1).toArray();
    QCOMPARE(accounts.size(), 2);
    QCOMPARE(accounts.at(0)["pictureSize"_L1].toInt(), 12);
    QCOMPARE(accounts.at(1)["email"_L1].toString(), u"bo@vorn.example");
    QVERIFY(!accounts.at(1).toObject().contains("password"_L1));
}

void AccountCommandsTest::keepsSecretsOutOfRequests()
{
    m_identity.m_userId = u"77"_s;
    m_identity.m_token = u"a-secret-token"_s;
    m_identity.m_rawPicture = u"QUJD"_s;
    const QString password = u"pa55word"_s;
    happens([&] { m_network->login(u"ada@vorn.example"_s, password); });
    happens([&] { m_network->registerUser(u"Ada"_s, u"Lo"_s, u"ada@vorn.example"_s, password); });
    happens([&] { m_network->resetPassword(u"ada@vorn.example"_s); });
    happens([&] { m_network->requestUserProfile(); });
    happens([&] { m_network->profileUpdate(u"Ada"_s, u"Lo"_s, u"VORN"_s, u"Dr"_s, {}); });

    const QJsonObject common{{u"event"_s, u"account-request"_s}, {u"fault"_s, u"none"_s}};
    const auto expected = [&](const QJsonObject& fields) {
        QJsonObject event = common;
        for (auto field = fields.begin(); field != fields.end(); ++field)
            event.insert(field.key(), field.value());
        return event;
    };
    const auto requests = eventsNamed(u"account-request"_s, m_events);
    QCOMPARE(requests.size(), 5);
    QCOMPARE(requests.at(0), expected({{u"endpoint"_s, u"login"_s},
                                       {u"method"_s, u"POST"_s},
                                       {u"path"_s, u"/nc/auth/login"_s},
                                       {u"email"_s, u"ada@vorn.example"_s}}));
    QCOMPARE(requests.at(1), expected({{u"endpoint"_s, u"register"_s},
                                       {u"method"_s, u"POST"_s},
                                       {u"path"_s, u"/nc/users/register"_s},
                                       {u"firstName"_s, u"Ada"_s},
                                       {u"lastName"_s, u"Lo"_s},
                                       {u"email"_s, u"ada@vorn.example"_s}}));
    QCOMPARE(requests.at(2).value("endpoint"_L1), u"forgot-password"_s);
    QCOMPARE(requests.at(2).value("email"_L1), u"ada@vorn.example"_s);
    QCOMPARE(requests.at(3), expected({{u"endpoint"_s, u"profile-read"_s},
                                       {u"method"_s, u"GET"_s},
                                       {u"path"_s, u"/nc/users/77"_s},
                                       {u"hasToken"_s, true}}));
    QCOMPARE(requests.at(4).value("pictureSize"_L1).toInt(), 4);
    const QString all = QString::fromStdString(m_events.str());
    for (const QString& secret :
         {password, u"cGE1NXdvcmQ"_s, u"a-secret-token"_s, m_identity.m_rawPicture})
        QVERIFY2(!all.contains(secret), qPrintable(secret));
}

void AccountCommandsTest::switchesFaults()
{
    const auto signIn = [&] { m_network->login(u"a@b.c"_s, u"pw"_s); };
    const auto reset = [&] { m_network->resetPassword(u"a@b.c"_s); };
    const QString refused = u"loginFailed: The email or password is incorrect."_s;
    command(u"account fault login error-object"_s);
    QCOMPARE(happens(signIn), u"loginFailed: Closed for maintenance.");
    QCOMPARE(happens(reset), u"passwordResetFailed: No account is registered with this email.");
    command(u"account fault all array"_s);
    QCOMPARE(happens(signIn), u"loginFailed: Invalid response format.");
    QCOMPARE(happens(reset), u"passwordResetFailed: Invalid response format.");
    QCOMPARE(lastEvent(u"account-request"_s).value("fault"_L1), u"array"_s);
    command(uR"(account reply login {"success": false, "message": "Not today."})"_s);
    QCOMPARE(happens(signIn), u"loginFailed: Not today.");
    command(u"status"_s);
    const QJsonObject faults =
        lastEvent(u"status"_s).value("account"_L1).toObject().value("faults"_L1).toObject();
    QCOMPARE(faults.size(), 5);
    QCOMPARE(faults.value("login"_L1), u"canned"_s);
    command(u"account fault all none"_s);
    QCOMPARE(happens(signIn), refused);
}

void AccountCommandsTest::goesAndComesBack()
{
    const auto signIn = [&] { m_network->login(u"a@b.c"_s, u"pw"_s); };
    command(u"account add a@b.c pw"_s);
    command(u"account close"_s);
    QCOMPARE(happens(signIn), u"loginFailed: Connection to server failed.");
    command(u"account listen"_s); // at the same address, with the same accounts
    QCOMPARE(happens(signIn), u"loginSuccess");
    QCOMPARE(m_errors.str(), std::string());
}

void AccountCommandsTest::expectsRequests_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<int>("code");
    QTest::newRow("came") << QByteArray("expect-request login email=a@b.c\nquit 0") << 0;
    QTest::newRow("another endpoint")
        << QByteArray("expect-request register within 0.05\nquit 0") << 1;
    QTest::newRow("another address")
        << QByteArray("expect-request login email=x@b.c within 0.05\nquit 0") << 1;
    QTest::newRow("once") << QByteArray("expect-request login\nexpect-request login within 0.05\n"
                                        "quit 0")
                          << 1;
    QTest::newRow("forgotten") << QByteArray("forget\nexpect-request login within 0.05\nquit 0")
                               << 1;
}

void AccountCommandsTest::expectsRequests()
{
    QFETCH(QByteArray, scenario);
    happens([&] { m_network->login(u"a@b.c"_s, u"pw"_s); });
    QSignalSpy finished(m_simulator.get(), &Simulator::finished);
    QVERIFY2(m_simulator->loadScenario(writeScenario(*m_folder, scenario)), m_errors.str().c_str());
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, Patience);
    QTEST(finished.first().first().toInt(), "code");
    const bool told = m_errors.str().find("no such request within 0.05 s") != std::string::npos;
    QCOMPARE(told, finished.first().first().toInt() == 1);
}

void AccountCommandsTest::saysWhatItCannotDo_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("complaint");
    const auto row = [](const QString& line, const QString& complaint) {
        QTest::newRow(qPrintable(line)) << line << complaint;
    };
    row(u"account listen"_s, u"the account service listens already, on http://127.0.0.1:"_s);
    row(u"account listen 0"_s, u"the port must be a whole number from 1 to 65535, not \"0\""_s);
    row(u"account add a@b.c"_s, u"the password is missing"_s);
    row(u"account add a@b.c pw firstname=A"_s, u"\"firstname=A\" sets no field of an account"_s);
    row(u"account add a@b.c pw vip"_s, u"\"vip\" sets no field of an account"_s);
    row(u"account add old@b.c pw"_s, u"there is an account of old@b.c already"_s);
    row(u"account add a@b.c pw picture=/none.png"_s, u"cannot read the picture \"/none.png\""_s);
    row(u"account expire a@b.c"_s, u"there is no account of a@b.c"_s);
    row(u"account fault login canned"_s, u"not \"canned\""_s);
    row(u"account fault Login stall"_s, u"or profile-read or all, not \"Login\""_s);
    row(u"account reply all {}"_s, u"not \"all\""_s);
    row(u"expect-request logout"_s, u"not \"logout\""_s);
}

void AccountCommandsTest::saysWhatItCannotDo()
{
    QFETCH(QString, line);
    command(u"account add old@b.c pw"_s);
    command(line);
    const QString told = QString::fromStdString(m_errors.str());
    QFETCH(QString, complaint);
    QVERIFY2(told.contains(complaint), qPrintable(told));
}

void AccountCommandsTest::namesEveryFault()
{
    const QString help = m_simulator->commandHelp();
    const QStringList names =
        help.section(u"Kinds: none, "_s, 1, 1).section(u'.', 0, 0).split(u',');
    const auto kinds = QMetaEnum::fromType<AccountFault::Kind>();
    QCOMPARE(names.size(), kinds.keyCount() - 2); // but for none and the one that takes a body
    for (const QString& name : names)
        command(u"account fault all "_s + name.trimmed());
    QCOMPARE(m_errors.str(), std::string());
}

QTEST_GUILESS_MAIN(AccountCommandsTest)
#include "AccountCommandsTest.moc"
