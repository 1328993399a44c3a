#include "tests/account/AccountTestSupport.h"

#include "simulator/account/AccountService.h"
#include "tests/support/LogCapture.h"

#include <QBuffer>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using Endpoint = AccountFault::Endpoint;
using Kind = AccountFault::Kind;

/// What goes over the wire, and the whole story against a service that behaves.
class AccountRequestsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void sendsSignIn();
    void sendsRegistration();
    void sendsPasswordReset();
    void sendsProfileRead();
    void sendsProfileUpdate();
    void sendsChosenPicture();
    void sendsEmptyPictureForAFileThatIsGone();
    void keepsAPictureThatCouldNotComeBack();
    void keepsOddUserIdsInTheirSegment_data();
    void keepsOddUserIdsInTheirSegment();
    void tokenCannotAddHeaders();
    void signedOutProfileRequests();
    void readsReplyShapes_data();
    void readsReplyShapes();
    void logsRequestAndReply();
    void tellsTheWholeStory();
    void dropsProfileOfFormerUser_data();
    void dropsProfileOfFormerUser();
    void dropsAllSignInsButTheLast();

private:
    void signInAs(const QString& userId, const QString& token);

    std::unique_ptr<AccountService> m_service;
    FakeIdentity m_identity;
    std::unique_ptr<NetworkManager> m_network;
    std::unique_ptr<SignalRecorder> m_recorder;
    QList<AccountRequest> m_requests;
};

void AccountRequestsTest::init()
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

void AccountRequestsTest::signInAs(const QString& userId, const QString& token)
{
    m_identity.m_userId = userId;
    m_identity.m_token = token;
}

void AccountRequestsTest::sendsSignIn()
{
    m_network->login(u"a.b"_s, u"pw"_s);
    QTRY_COMPARE(m_requests.size(), 1);
    QCOMPARE(m_requests[0].method, "POST");
    QCOMPARE(m_requests[0].target, "/nc/auth/login?username=YS5i&password=cHc");
    QCOMPARE(m_requests[0].header("Content-Type"), "application/x-www-form-urlencoded");
    QCOMPARE(m_requests[0].body, "");
    QTRY_COMPARE(m_recorder->events.size(), 1);

    // Both letters that set the URL-safe alphabet apart, beyond ASCII, and unpadded.
    m_network->login(u"\u00fb\u00ff\u00fe?>"_s, u""_s);
    QTRY_COMPARE(m_requests.size(), 2);
    QCOMPARE(m_requests[1].target, "/nc/auth/login?username=w7vDv8O-Pz4&password=");
}

void AccountRequestsTest::sendsRegistration()
{
    m_network->registerUser(u"Ann \"A\""_s, u"L\u00f6w"_s, u"a.b"_s, u"pw"_s);
    QTRY_COMPARE(m_requests.size(), 1);
    QCOMPARE(m_requests[0].method, "POST");
    QCOMPARE(m_requests[0].target, "/nc/users/register");
    QCOMPARE(m_requests[0].header("Content-Type"), "application/json");
    QCOMPARE(m_requests[0].body,
             "{\"email\":\"YS5i\",\"firstName\":\"Ann \\\"A\\\"\",\"lastName\":\"L\xc3\xb6w\","
             "\"password\":\"cHc\"}");
}

void AccountRequestsTest::sendsPasswordReset()
{
    m_network->resetPassword(u"a.b"_s);
    QTRY_COMPARE(m_requests.size(), 1);
    QCOMPARE(m_requests[0].method, "POST");
    QCOMPARE(m_requests[0].target, "/nc/users/forgot-password?email=YS5i");
    QCOMPARE(m_requests[0].header("Content-Type"), "application/x-www-form-urlencoded");
    QCOMPARE(m_requests[0].body, "");
}

void AccountRequestsTest::sendsProfileRead()
{
    signInAs(u"u-1_2.3~4@x"_s, u"t\u00f6k"_s);
    m_network->requestUserProfile();
    QTRY_COMPARE(m_requests.size(), 1);
    QCOMPARE(m_requests[0].method, "GET");
    QCOMPARE(m_requests[0].target, "/nc/users/u-1_2.3~4@x");
    QCOMPARE(m_requests[0].header("x-token"), "t\xc3\xb6k");
    QCOMPARE(m_requests[0].header("accept"), "*/*");
    QCOMPARE(m_requests[0].body, "");
}

void AccountRequestsTest::sendsProfileUpdate()
{
    signInAs(u"42"_s, u"tok"_s);
    m_identity.m_rawPicture = u"cmF3"_s;
    m_network->profileUpdate(u"Ann"_s, u"Low"_s, u"Acme & Co"_s, u""_s, u""_s);
    QTRY_COMPARE(m_requests.size(), 1);
    QCOMPARE(m_requests[0].method, "PUT");
    QCOMPARE(m_requests[0].target, "/nc/users/42");
    QCOMPARE(m_requests[0].header("Content-Type"), "application/json");
    QCOMPARE(m_requests[0].header("x-token"), "tok");
    QCOMPARE(m_requests[0].header("accept"), "*/*");
    QCOMPARE(m_requests[0].body,
             "{\"company\":\"Acme & Co\",\"firstName\":\"Ann\",\"lastName\":\"Low\","
             "\"picture\":\"cmF3\",\"title\":\"\"}");
}

void AccountRequestsTest::sendsChosenPicture()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"my 100% face.png"_s);
    QImage face(7, 5, QImage::Format_RGB32);
    face.fill(Qt::green);
    QVERIFY(face.save(path));
    const QString url = QUrl::fromLocalFile(path).toString();

    signInAs(u"42"_s, u"tok"_s);
    QCOMPARE(m_network->imageSize(url), QFileInfo(path).size());
    m_network->profileUpdate(u"A"_s, u"B"_s, u"C"_s, u"D"_s, url);
    QTRY_COMPARE(m_requests.size(), 1);
    const QJsonObject sent = QJsonDocument::fromJson(m_requests[0].body).object();
    const QByteArray bytes = QByteArray::fromBase64(sent["picture"_L1].toString().toLatin1());
    QCOMPARE(QImage::fromData(bytes, "PNG").convertToFormat(QImage::Format_RGB32), face);
}

void AccountRequestsTest::sendsEmptyPictureForAFileThatIsGone()
{
    signInAs(u"42"_s, u"tok"_s);
    m_identity.m_rawPicture = u"cmF3"_s;
    QTemporaryDir folder;
    const QString path = folder.filePath(u"face.png"_s);
    QVERIFY(QImage(7, 5, QImage::Format_RGB32).save(path));
    const QString url = QUrl::fromLocalFile(path).toString();
    LogCapture log;
    const int size = m_network->imageSize(url);
    QVERIFY(size > 0);
    QVERIFY(QFile::remove(path));
    QCOMPARE(m_network->imageSize(url), 0);
    m_network->profileUpdate(u"A"_s, u"B"_s, u"C"_s, u"D"_s, url);
    const QString from = u" Loading image from: "_s + path;
    QCOMPARE(log.take().filter(u": "_s + path),
             (QStringList{u"I NetworkManager::imageSize"_s + from + u", fileSize:%1"_s.arg(size),
                          u"I NetworkManager::imageSize"_s + from + ", fileSize:0"_L1,
                          u"I NetworkManager::loadImageToBase64"_s + from,
                          u"E NetworkManager::loadImageToBase64 Failed to load image: "_s + path}));
    QTRY_COMPARE(m_requests.size(), 1);
    QVERIFY(m_requests[0].body.contains("\"picture\":\"\""));
}

/// Each sign-in's reply would carry it, be cut off, and so lock the user out.
void AccountRequestsTest::keepsAPictureThatCouldNotComeBack()
{
    signInAs(u"1"_s, u"tok"_s);
    NetworkManager network(m_service->baseUrl(), m_identity, {.bodySize = 4000});
    const SignalRecorder recorder(network);
    m_identity.m_rawPicture = QString(3001, u'A');
    network.profileUpdate(u"A"_s, u"B"_s, u"C"_s, u"D"_s, {});
    QCOMPARE(recorder.events, QStringList{u"profileUpdateFailed: The picture is too large."_s});
    m_identity.m_rawPicture.chop(1);
    network.profileUpdate(u"A"_s, u"B"_s, u"C"_s, u"D"_s, {});
    QTRY_VERIFY(isIdle(network));
    QCOMPARE(m_requests.size(), 1);
}

void AccountRequestsTest::keepsOddUserIdsInTheirSegment_data()
{
    QTest::addColumn<QString>("userId");
    QTest::addColumn<QByteArray>("target");
    QTest::newRow("path") << u"../auth/login"_s << "/nc/users/..%2Fauth%2Flogin"_ba;
    QTest::newRow("query") << u"1?admin=1"_s << "/nc/users/1%3Fadmin=1"_ba;
    QTest::newRow("fragment") << u"1#x"_s << "/nc/users/1%23x"_ba;
    QTest::newRow("percent") << u"100%2f"_s << "/nc/users/100%252f"_ba;
    QTest::newRow("host") << u"@elsewhere.invalid/"_s << "/nc/users/@elsewhere.invalid%2F"_ba;
    QTest::newRow("line break") << u"1\r\nX-Y: z"_s << "/nc/users/1%0D%0AX-Y:%20z"_ba;
}

void AccountRequestsTest::keepsOddUserIdsInTheirSegment()
{
    QFETCH(const QString, userId);
    signInAs(userId, u"tok"_s);
    m_network->requestUserProfile();
    QTRY_COMPARE(m_requests.size(), 1);
    QTEST(m_requests[0].target, "target");
}

void AccountRequestsTest::tokenCannotAddHeaders()
{
    signInAs(u"1"_s, u"tok\r\nX-Forged: 1"_s);
    m_network->requestUserProfile();
    QTRY_COMPARE(m_requests.size(), 1);
    QCOMPARE(m_requests[0].header("x-token"), "tokX-Forged: 1");
    QVERIFY(m_requests[0].header("X-Forged").isEmpty());
}

void AccountRequestsTest::signedOutProfileRequests()
{
    // The id outlives a sign-out; the token does not.
    signInAs(u"42"_s, {});
    m_network->profileUpdate(u"A"_s, u"B"_s, u"C"_s, u"D"_s, {});
    QVERIFY(m_recorder->events.isEmpty());
    m_network->requestUserProfile();
    QCOMPARE(m_recorder->events, QStringList{u"profileRequestFailed: Missing user ID or token"_s});
    signInAs({}, u"tok"_s);
    m_network->requestUserProfile();
    QCOMPARE(m_recorder->events.size(), 2);
    QVERIFY(isIdle(*m_network));
}

void AccountRequestsTest::readsReplyShapes_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("event");
    QTest::newRow("empty object") << "{}"_ba
                                  << u"loginFailed: Request failed with unknown reason."_s;
    QTest::newRow("bare user") << R"({"userId":null,"x":1})"_ba << u"loginSuccess"_s;
    QTest::newRow("success with a message")
        << R"({"success":true,"message":"no"})"_ba << u"loginSuccess"_s;
    QTest::newRow("refused, though a user")
        << R"({"success":false,"userId":"1"})"_ba
        << u"loginFailed: Request failed with unknown reason."_s;
    QTest::newRow("refused with a message")
        << R"({"success":false,"message":"No <b>way</b>"})"_ba << u"loginFailed: No <b>way</b>"_s;
    QTest::newRow("refused with an empty message")
        << R"({"success":false,"message":""})"_ba << u"loginFailed: Unknown error occurred."_s;
    QTest::newRow("success is a number")
        << R"({"success":1})"_ba << u"loginFailed: Request failed with unknown reason."_s;
    QTest::newRow("array") << "[]"_ba << u"loginFailed: Invalid response format."_s;
    QTest::newRow("blanks only") << " \r\n"_ba
                                 << u"loginFailed: Invalid JSON response: illegal value"_s;
    QTest::newRow("trailing text")
        << R"({"success":true} and more)"_ba
        << u"loginFailed: Invalid JSON response: garbage at the end of the document"_s;
    QTest::newRow("nested too deep")
        << QByteArray(100'000, '[')
        << u"loginFailed: Invalid JSON response: too deeply nested document"_s;
}

void AccountRequestsTest::readsReplyShapes()
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

void AccountRequestsTest::logsRequestAndReply()
{
    m_service->setCannedReply(Endpoint::Login, "[]");
    LogCapture log;
    m_network->login(u"a.b"_s, u"pw"_s);
    QVERIFY(m_recorder->waitForEvents(1));
    const QStringList expected{
        u"I NetworkManager::login email   :a.b"_s,
        u"I NetworkManager::login password:pw"_s,
        u"I NetworkManager::login send:"_s + m_service->baseUrl() +
            u"/nc/auth/login?username=YS5i&password=cHc"_s,
        u"I NetworkManager::handleResponse response:[]"_s,
        u"W NetworkManager::handleResponse Response is not a JSON object"_s,
    };
    QCOMPARE(log.take(), expected);
}

void AccountRequestsTest::tellsTheWholeStory()
{
    m_service->store().setVerificationRequired(true);
    QStringList expected;
    const auto reports = [&](const QString& event) {
        expected.append(event);
        return m_recorder->waitForEvents(expected.size()) && m_recorder->events == expected;
    };

    m_network->registerUser(u"Ann"_s, u"Low"_s, u"ann@acme.example"_s, u"s\u00e9cret+/"_s);
    QVERIFY(reports(u"registrationSuccess"_s));
    m_network->registerUser(u"Ann"_s, u"Low"_s, u"Ann@acme.example"_s, u"x"_s);
    QVERIFY(reports(u"registrationFailed: An account with this email already exists."_s));
    m_network->login(u"ann@acme.example"_s, u"s\u00e9cret+/"_s);
    QVERIFY(reports(u"loginFailed: Please verify your email address before signing in."_s));
    QVERIFY(m_service->store().verify(m_service->store().mails().constLast().address));
    m_network->login(u"ann@acme.example"_s, u"wrong"_s);
    QVERIFY(reports(u"loginFailed: The email or password is incorrect."_s));
    m_network->login(u"ann@acme.example"_s, u"s\u00e9cret+/"_s);
    QVERIFY(reports(u"loginSuccess"_s));

    const QJsonObject data = m_recorder->lastObject["data"_L1].toObject();
    signInAs(data["user"_L1]["userId"_L1].toString(), data["token"_L1].toString());
    QVERIFY(!m_identity.m_token.isEmpty());
    const QString picture(3'000'000, u'A');
    m_identity.m_rawPicture = picture;
    m_network->profileUpdate(u"Anna"_s, u"Low"_s, u"Acme"_s, u"Chair"_s, {});
    QVERIFY(reports(u"profileUpdateSuccess"_s));
    QCOMPARE(m_recorder->lastObject["data"_L1]["firstName"_L1].toString(), u"Anna"_s);
    m_network->requestUserProfile();
    QVERIFY(reports(u"profileRequestSuccess"_s));
    QCOMPARE(m_recorder->lastObject["title"_L1].toString(), u"Chair"_s);
    QCOMPARE(m_recorder->lastObject["picture"_L1].toString(), picture);

    m_service->store().revokeTokens(m_identity.m_userId);
    m_network->requestUserProfile();
    QVERIFY(reports(u"profileRequestFailed: Your session has expired. Please sign in again."_s));
    m_network->resetPassword(u"nobody@acme.example"_s);
    QVERIFY(reports(u"passwordResetFailed: No account is registered with this email."_s));
    m_network->resetPassword(u"ann@acme.example"_s);
    QVERIFY(reports(u"passwordResetSent"_s));
    QCOMPARE(m_service->store().mails().constLast().kind, AccountMail::Kind::PasswordReset);
    QTRY_VERIFY(isIdle(*m_network));
}

void AccountRequestsTest::dropsProfileOfFormerUser_data()
{
    QTest::addColumn<QString>("userId");
    QTest::addColumn<QString>("token");
    QTest::newRow("signed out") << u"1"_s << QString();
    QTest::newRow("another user") << u"2"_s << u"tok2"_s;
    QTest::newRow("signed in again") << u"1"_s << u"tok2"_s;
}

void AccountRequestsTest::dropsProfileOfFormerUser()
{
    QFETCH(const QString, userId);
    QFETCH(const QString, token);
    m_service->setFault(Kind::LargeBody);
    signInAs(u"1"_s, u"tok"_s);
    connect(m_service.get(), &AccountService::requestReceived, this,
            [&, this] { signInAs(userId, token); });
    m_network->requestUserProfile();
    m_network->profileUpdate(u"A"_s, u"B"_s, u"C"_s, u"D"_s, {});
    QTRY_VERIFY(isIdle(*m_network));
    QCOMPARE(m_requests.size(), 2);
    QCOMPARE(m_recorder->events, QStringList());
}

/// Else the first one's reply could come after the second's, or after a sign-out that followed it.
void AccountRequestsTest::dropsAllSignInsButTheLast()
{
    m_service->setFault(Kind::LargeBody);
    m_network->login(u"anna"_s, u"pw"_s);
    m_network->login(u"bert"_s, u"pw"_s);
    QTRY_VERIFY(isIdle(*m_network));
    QCOMPARE(m_requests.size(), 2);
    QCOMPARE(m_recorder->events, QStringList{u"loginSuccess"_s});
}

QTEST_GUILESS_MAIN(AccountRequestsTest)
#include "AccountRequestsTest.moc"
