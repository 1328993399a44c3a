#include "tests/account/AccountTestSupport.h"

#include "simulator/account/AccountService.h"
#include "tests/support/LogCapture.h"

#include <QImage>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using Endpoint = AccountFault::Endpoint;
using Kind = AccountFault::Kind;

/// What is sent, and what is reported, with a service that behaves.
class tst_NetworkManager : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void sendsEachRequest_data();
    void sendsEachRequest();
    void sendsTheChosenPicture();
    void sendsNoProfileRequestWithoutASignIn();
    void readsReplyShapes_data();
    void readsReplyShapes();
    void logsRequestAndReply();
    void cutsTextsOfTheService();
    void reportsNothingToAFormerUser();
    void reportsOnlyTheLatestSignIn();

private:
    void signInAs(const QString& userId, const QString& token);

    std::unique_ptr<AccountService> m_service;
    FakeIdentity m_identity;
    std::unique_ptr<NetworkManager> m_network;
    std::unique_ptr<SignalRecorder> m_recorder;
    QList<AccountRequest> m_requests;
};

void tst_NetworkManager::init()
{
    m_network.reset();
    m_identity = {};
    m_requests.clear();
    m_service = std::make_unique<AccountService>();
    QVERIFY(m_service->listen());
    connect(m_service.get(), &AccountService::requestReceived, this,
            [this](const AccountRequest& request) { m_requests.append(request); });
    m_network = std::make_unique<NetworkManager>(m_service->baseUrl(), m_identity);
    m_recorder = std::make_unique<SignalRecorder>(*m_network);
}

void tst_NetworkManager::signInAs(const QString& userId, const QString& token)
{
    m_identity.m_userId = userId;
    m_identity.m_token = token;
}

void tst_NetworkManager::sendsEachRequest_data()
{
    QTest::addColumn<std::function<void(NetworkManager&)>>("send");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("contentType");
    QTest::addColumn<QByteArray>("token");
    QTest::addColumn<QByteArray>("body");
    using Send = std::function<void(NetworkManager&)>;
    constexpr auto form = "application/x-www-form-urlencoded";
    constexpr auto json = "application/json";
    constexpr auto sentToken = "t\xc3\xb6kX-Forged: 1";
    const auto row = [](const Send& send, const char* line, const char* type, const char* token,
                        const char* body) {
        QTest::newRow(line) << send << QByteArray(line) << QByteArray(type) << QByteArray(token)
                            << QByteArray(body);
    };
    row([](auto& n) { n.login(u"a.b"_s, u"pw"_s); },
        "POST /nc/auth/login?username=YS5i&password=cHc", form, "", "");
    // Both characters that differ in the URL-safe alphabet, not ASCII, without padding.
    row([](auto& n) { n.login(u"\u00fb\u00ff\u00fe?>"_s, {}); },
        "POST /nc/auth/login?username=w7vDv8O-Pz4&password=", form, "", "");
    row([](auto& n) { n.registerUser(u"Ann \"A\""_s, u"L\u00f6w"_s, u"a.b"_s, u"pw"_s); },
        "POST /nc/users/register", json, "",
        "{\"email\":\"YS5i\",\"firstName\":\"Ann \\\"A\\\"\",\"lastName\":\"L\xc3\xb6w\","
        "\"password\":\"cHc\"}");
    row([](auto& n) { n.resetPassword(u"a.b"_s); }, "POST /nc/users/forgot-password?email=YS5i",
        form, "", "");
    row([](auto& n) { n.requestUserProfile(); }, "GET /nc/users/..%2F1_2%3Fx=1%23y%252f~@z%0D%0A",
        "", sentToken, "");
    row([](auto& n) { n.profileUpdate(u"Ann"_s, u"Low"_s, u"Acme & Co"_s, {}, {}); },
        "PUT /nc/users/..%2F1_2%3Fx=1%23y%252f~@z%0D%0A", json, sentToken,
        "{\"company\":\"Acme & Co\",\"firstName\":\"Ann\",\"lastName\":\"Low\","
        "\"picture\":\"cmF3\",\"title\":\"\"}");
}

void tst_NetworkManager::sendsEachRequest()
{
    QFETCH(const std::function<void(NetworkManager&)>, send);
    QFETCH(const QByteArray, token);
    signInAs(u"../1_2?x=1#y%2f~@z\r\n"_s, u"t\u00f6k\r\nX-Forged: 1"_s);
    m_identity.m_rawPicture = u"cmF3"_s;
    send(*m_network);
    QTRY_COMPARE(m_requests.size(), 1);
    const AccountRequest& request = m_requests[0];
    QTEST(request.method + ' ' + request.target, "line");
    QTEST(request.header("Content-Type"), "contentType");
    QCOMPARE(request.header("x-token"), token);
    QCOMPARE(request.header("X-Forged"), "");
    if (!token.isEmpty())
        QCOMPARE(request.header("accept"), "*/*");
    QTEST(request.body, "body");
}

void tst_NetworkManager::sendsTheChosenPicture()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"my 100% face.png"_s);
    QImage face(7, 5, QImage::Format_RGB32);
    face.fill(Qt::green);
    QVERIFY(face.save(path));
    const QString url = QUrl::fromLocalFile(path).toString();
    const int size = int(QFileInfo(path).size());

    signInAs(u"42"_s, u"tok"_s);
    LogCapture log;
    QCOMPARE(m_network->imageSize(url), size);
    m_network->profileUpdate(u"A"_s, u"B"_s, u"C"_s, u"D"_s, url);
    QVERIFY2(isIdle(*m_network), "the picture was encoded on this thread");
    QTRY_COMPARE(m_requests.size(), 1);
    const QJsonObject sent = QJsonDocument::fromJson(m_requests[0].body).object();
    const QByteArray bytes = QByteArray::fromBase64(sent["picture"_L1].toString().toLatin1());
    QCOMPARE(QImage::fromData(bytes, "PNG").convertToFormat(QImage::Format_RGB32), face);

    QVERIFY(QFile::remove(path));
    m_network->profileUpdate(u"A"_s, u"B"_s, u"C"_s, u"D"_s, url);
    QTRY_COMPARE(m_requests.size(), 2);
    QVERIFY(m_requests[1].body.contains("\"picture\":\"\""));
    const QString from = u" Loading image from: "_s + path;
    QCOMPARE(log.take().filter(u": "_s + path),
             (QStringList{u"I NetworkManager::imageSize"_s + from + u", fileSize:%1"_s.arg(size),
                          u"I NetworkManager::loadImageToBase64"_s + from,
                          u"I NetworkManager::loadImageToBase64"_s + from,
                          u"E NetworkManager::loadImageToBase64 Failed to load image: "_s + path}));

    QTRY_VERIFY(isIdle(*m_network));
    m_network->profileUpdate(u"A"_s, u"B"_s, u"C"_s, u"D"_s, url);
    signInAs(u"42"_s, u"another"_s);
    const QString dropped =
        u"I NetworkManager::handleResponse dropped, no longer signed in as userid:42"_s;
    QStringList lines;
    QTRY_VERIFY((lines += log.take()).contains(dropped));
    QCOMPARE(m_requests.size(), 2);
}

void tst_NetworkManager::sendsNoProfileRequestWithoutASignIn()
{
    signInAs(u"42"_s, {}); // as after a sign-out
    m_network->profileUpdate(u"A"_s, u"B"_s, u"C"_s, u"D"_s, {});
    QVERIFY(m_recorder->events.isEmpty());
    m_network->requestUserProfile();
    signInAs({}, u"tok"_s);
    m_network->requestUserProfile();
    QCOMPARE(m_recorder->events,
             QStringList(2, u"profileRequestFailed: Missing user ID or token"_s));
    QVERIFY(isIdle(*m_network));
}

void tst_NetworkManager::readsReplyShapes_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("event");
    const auto row = [](const QByteArray& body, const char* event) {
        QTest::newRow(body.left(40).constData()) << body << QString::fromLatin1(event);
    };
    row("{}", "loginFailed: Request failed with unknown reason.");
    row(R"({"userId":null,"x":1})", "loginSuccess");
    row(R"({"success":true,"message":"no"})", "loginSuccess");
    row(R"({"success":false,"userId":"1"})", "loginFailed: Request failed with unknown reason.");
    row(R"({"success":false,"message":"No <b>way</b>"})", "loginFailed: No <b>way</b>");
    row(R"({"success":false,"message":""})", "loginFailed: Unknown error occurred.");
    row(" \r\n", "loginFailed: Invalid JSON response: illegal value");
    row(R"({"success":true} and more)",
        "loginFailed: Invalid JSON response: garbage at the end of the document");
    row(QByteArray(100'000, '['), "loginFailed: Invalid JSON response: too deeply nested document");
}

void tst_NetworkManager::readsReplyShapes()
{
    QFETCH(const QByteArray, body);
    QFETCH(const QString, event);
    m_service->setCannedReply(Endpoint::Login, body);
    m_network->login(u"a"_s, u"b"_s);
    QVERIFY(m_recorder->waitForEvents(1));
    QCOMPARE(m_recorder->events, QStringList{event});
    if (event == "loginSuccess"_L1)
        QCOMPARE(m_recorder->lastObject, QJsonDocument::fromJson(body).object());
}

void tst_NetworkManager::logsRequestAndReply()
{
    m_service->setCannedReply(Endpoint::Login, "[]");
    LogCapture log;
    m_network->login(u"a.b"_s, u"pw"_s);
    QVERIFY(m_recorder->waitForEvents(1));
    QCOMPARE(log.take(),
             (QStringList{u"I NetworkManager::login email   :a.b"_s,
                          u"I NetworkManager::login password:pw"_s,
                          u"I NetworkManager::login send:"_s + m_service->baseUrl() +
                              u"/nc/auth/login?username=YS5i&password=cHc"_s,
                          u"I NetworkManager::handleResponse response:[]"_s,
                          u"W NetworkManager::handleResponse Response is not a JSON object"_s}));
}

void tst_NetworkManager::cutsTextsOfTheService()
{
    const QByteArray text = R"(tab\tend\r\n\u0000)" + QByteArray(100'000, 'x');
    m_service->setCannedReply(Endpoint::Login, R"({"success":false,"message":")" + text + "\"}");
    m_network->login(u"a"_s, u"b"_s);
    QVERIFY(m_recorder->waitForEvents(1));
    const QString cut = u"tab end   "_s + QString(490, u'x');
    QCOMPARE(m_recorder->events.takeFirst(), u"loginFailed: "_s + cut);

    const QByteArray user = R"({"firstName":")" + text + R"(","picture":")" + text + "\"}";
    m_service->setCannedReply(Endpoint::Login, R"({"success":true,"data":{"user":)" + user + "}}");
    m_network->login(u"a"_s, u"b"_s);
    QVERIFY(m_recorder->waitForEvents(1));
    const QJsonObject read = m_recorder->lastObject["data"_L1]["user"_L1].toObject();
    QCOMPARE(read["firstName"_L1].toString(), cut.left(256));
    QCOMPARE(read["picture"_L1].toString().size(), 100'010);
}

void tst_NetworkManager::reportsNothingToAFormerUser()
{
    for (const Kind fault : {Kind::LargeBody, Kind::ErrorObject}) {
        m_service->setFault(fault);
        signInAs(u"1"_s, u"tok"_s);
        connect(
            m_service.get(), &AccountService::requestReceived, this,
            [this] { signInAs(u"1"_s, u"tok of a later sign-in"_s); }, Qt::SingleShotConnection);
        m_network->requestUserProfile();
        m_network->profileUpdate(u"A"_s, u"B"_s, u"C"_s, u"D"_s, {});
        QTRY_VERIFY(isIdle(*m_network));
    }
    QCOMPARE(m_requests.size(), 4);
    QCOMPARE(m_recorder->events, QStringList());
}

/// The first reply could arrive after the second, or after a sign-out that followed it.
void tst_NetworkManager::reportsOnlyTheLatestSignIn()
{
    for (const Kind first : {Kind::LargeBody, Kind::ErrorObject}) {
        QObject scope;
        // The requests use two connections, so that the second can arrive first.
        connect(m_service.get(), &AccountService::requestReceived, &scope,
                [this, first](const AccountRequest& request) {
                    const bool isFirst = request.target.contains("YW5uYQ"); // anna
                    m_service->setFault(isFirst ? first : Kind::LargeBody);
                });
        m_network->login(u"anna"_s, u"pw"_s);
        m_network->login(u"bert"_s, u"pw"_s);
        QTRY_VERIFY(isIdle(*m_network));
        QCOMPARE(std::exchange(m_requests, {}).size(), 2);
        QCOMPARE(std::exchange(m_recorder->events, {}), QStringList{u"loginSuccess"_s});
    }
}

QTEST_GUILESS_MAIN(tst_NetworkManager)
#include "tst_NetworkManager.moc"
