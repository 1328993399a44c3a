#include "tests/account/AccountTestSupport.h"

#include "simulator/account/AccountService.h"

#include <QMetaEnum>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using Endpoint = AccountFault::Endpoint;
using Kind = AccountFault::Kind;

namespace
{

constexpr int ShortTimeout = 250;
constexpr int Patience = 30'000;

/// The body size is one that an endless reply reaches soon.
RequestGuard::Settings settings(int requestTimeout)
{
    return {.requestTimeout = requestTimeout, .bodySize = 8LL * 1024 * 1024};
}

const QString NoConnection = u"Connection to server failed."_s;

struct Request {
    void (*send)(NetworkManager&);
    QString success;
    QString failure;
    QString timeoutText;
};

const QHash<Endpoint, Request> Requests{
    {Endpoint::Login,
     {[](NetworkManager& network) { network.login(u"a"_s, u"b"_s); }, u"loginSuccess"_s,
      u"loginFailed"_s, u"Login request timed out."_s}},
    {Endpoint::Register,
     {[](NetworkManager& network) { network.registerUser(u"a"_s, u"b"_s, u"c"_s, u"d"_s); },
      u"registrationSuccess"_s, u"registrationFailed"_s, u"Registration request timed out."_s}},
    {Endpoint::ForgotPassword,
     {[](NetworkManager& network) { network.resetPassword(u"a"_s); }, u"passwordResetSent"_s,
      u"passwordResetFailed"_s, u"Password reset request timed out."_s}},
    {Endpoint::ProfileUpdate,
     {[](NetworkManager& network) { network.profileUpdate(u"a"_s, u"b"_s, u"c"_s, u"d"_s, {}); },
      u"profileUpdateSuccess"_s, u"profileUpdateFailed"_s, u"Profile update request timed out."_s}},
    {Endpoint::ProfileRead,
     {[](NetworkManager& network) { network.requestUserProfile(); }, u"profileRequestSuccess"_s,
      u"profileRequestFailed"_s, u"Profile request timed out."_s}},
};

// Message of the failure; empty: success; not listed: a time-out.
const QHash<Kind, QString> Outcomes{
    {Kind::CloseEarly, NoConnection},
    {Kind::CloseInHead, NoConnection},
    {Kind::Empty, u"Empty response from server."_s},
    {Kind::ErrorStatus, NoConnection},
    {Kind::NotHttp, NoConnection},
    {Kind::Garbage, u"Invalid JSON response: illegal value"_s},
    {Kind::Array, u"Invalid response format."_s},
    {Kind::ErrorObject, u"Closed for maintenance."_s},
    {Kind::WrongTypes, {}},
    {Kind::WrongSuccess, u"Request failed with unknown reason."_s},
    {Kind::WrongMessage, u"Unknown error occurred."_s},
    {Kind::LargeBody, {}},
    {Kind::EndlessBody, NoConnection},
    {Kind::CompressedBomb, NoConnection},
    {Kind::ShortBody, u"Invalid JSON response: unterminated string"_s},
    {Kind::RedirectAway, NoConnection},
};

} // namespace

/// Each request with each fault of the server.
class tst_NetworkManagerFaults : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void reportsEachFault_data();
    void reportsEachFault();
    void reportsRefusedConnection();
    void readsNoMoreThanItsBound();
    void abortsWithoutASignalWhenDestroyed();

private:
    std::unique_ptr<AccountService> m_service;
    FakeIdentity m_identity;
};

void tst_NetworkManagerFaults::init()
{
    m_service = std::make_unique<AccountService>();
    QVERIFY(m_service->listen());
    m_identity.m_userId = u"1"_s;
    m_identity.m_token = u"tok"_s;
}

void tst_NetworkManagerFaults::reportsEachFault_data()
{
    QTest::addColumn<Endpoint>("endpoint");
    QTest::addColumn<Kind>("fault");
    const auto endpoints = QMetaEnum::fromType<Endpoint>();
    const auto kinds = QMetaEnum::fromType<Kind>();
    for (int e = 0; e < endpoints.keyCount(); ++e) {
        for (int k = 0; k < kinds.keyCount(); ++k) {
            const auto kind = static_cast<Kind>(kinds.value(k));
            if (kind != Kind::None && kind != Kind::Canned)
                QTest::addRow("%s, %s", endpoints.key(e), kinds.key(k))
                    << static_cast<Endpoint>(endpoints.value(e)) << kind;
        }
    }
}

void tst_NetworkManagerFaults::reportsEachFault()
{
    QFETCH(const Endpoint, endpoint);
    QFETCH(const Kind, fault);
    const Request request = Requests[endpoint];
    const bool timesOut = !Outcomes.contains(fault);
    const QString text = Outcomes.value(fault);

    QStringList expected;
    if (timesOut)
        expected = {request.failure + u": "_s + NoConnection,
                    request.failure + u": "_s + request.timeoutText};
    else
        expected = {text.isEmpty() ? request.success : request.failure + u": "_s + text};

    m_service->setFault(endpoint, fault);
    NetworkManager network(m_service->baseUrl(), m_identity,
                           settings(timesOut ? ShortTimeout : Patience));
    SignalRecorder recorder(network);
    request.send(network);
    QVERIFY(recorder.waitForEvents(expected.size()));
    QTRY_VERIFY(isIdle(network));
    QCOMPARE(recorder.events, expected);
}

void tst_NetworkManagerFaults::reportsRefusedConnection()
{
    NetworkManager network(m_service->baseUrl(), m_identity);
    const SignalRecorder recorder(network);
    m_service->close();
    for (const Request& request : Requests)
        request.send(network);
    QTRY_VERIFY(isIdle(network));
    QCOMPARE(recorder.events.size(), Requests.size());
    for (const QString& event : recorder.events)
        QVERIFY(event.endsWith(u"Failed: "_s + NoConnection));
}

void tst_NetworkManagerFaults::readsNoMoreThanItsBound()
{
    // The body, the bytes that the network thread reads ahead, and the buffers of two sockets.
    constexpr qint64 limit = 100 * 1024 * 1024;
    m_service->setFault(Kind::EndlessBody);
    QSignalSpy closed(m_service.get(), &AccountService::connectionClosed);
    NetworkManager network(m_service->baseUrl(), m_identity, settings(Patience));
    network.login(u"a"_s, u"b"_s);
    QTRY_VERIFY_WITH_TIMEOUT(!closed.isEmpty(), 30'000);
    QTRY_VERIFY(isIdle(network));
    QCOMPARE_LT(m_service->faultBytesSent(), limit);
}

void tst_NetworkManagerFaults::abortsWithoutASignalWhenDestroyed()
{
    for (const Kind fault : {Kind::Stall, Kind::StallInBody, Kind::SlowDrip, Kind::EndlessBody}) {
        m_service->setFault(fault);
        QSignalSpy received(m_service.get(), &AccountService::requestReceived);
        QSignalSpy closed(m_service.get(), &AccountService::connectionClosed);
        auto network =
            std::make_unique<NetworkManager>(m_service->baseUrl(), m_identity, settings(Patience));
        const SignalRecorder recorder(*network);
        for (const Request& request : Requests)
            request.send(*network);
        QTRY_COMPARE(received.size(), Requests.size());
        const QStringList before = recorder.events; // an endless body may be cut off already
        network.reset();
        QTRY_COMPARE_WITH_TIMEOUT(closed.size(), Requests.size(), 30'000);
        QCOMPARE(recorder.events, before);
    }
}

QTEST_GUILESS_MAIN(tst_NetworkManagerFaults)
#include "tst_NetworkManagerFaults.moc"
