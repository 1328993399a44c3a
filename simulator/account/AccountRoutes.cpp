#include "simulator/account/AccountRoutes.h"

#include "simulator/account/AccountRequest.h"
#include "simulator/account/AccountStore.h"

#include <QHttpServer>
#include <QHttpServerRequest>
#include <QHttpServerResponse>
#include <QJsonDocument>
#include <QTcpServer>
#include <QUrlQuery>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace
{

using Method = QHttpServerRequest::Method;

QString credential(const QUrlQuery& query, const QString& name)
{
    return decodeAccountCredential(query.queryItemValue(name));
}

QString token(const QHttpServerRequest& request)
{
    return QString::fromUtf8(request.value("x-token"_ba));
}

std::optional<QJsonObject> jsonBody(const QHttpServerRequest& request)
{
    const QJsonDocument document = QJsonDocument::fromJson(request.body());
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}

QHttpServerResponse response(const AccountStore::Answer& answer)
{
    return {answer.body, static_cast<QHttpServerResponse::StatusCode>(answer.status)};
}

QHttpServerResponse notJson()
{
    return response(
        {400,
         {{"success"_L1, false}, {"message"_L1, u"The request body is not a JSON object."_s}}});
}

} // namespace

class AccountRoutes::Server
{
public:
    explicit Server(AccountStore& store)
        : m_store(store)
    {
        addSignInRoutes();
        addProfileRoutes();
    }

    [[nodiscard]] QHttpServer& http() { return m_http; }

private:
    void addSignInRoutes();
    void addProfileRoutes();

    AccountStore& m_store;
    QHttpServer m_http;
};

AccountRoutes::AccountRoutes(AccountStore& store, QObject* parent)
    : QObject(parent)
    , m_server(std::make_unique<Server>(store))
{
}

AccountRoutes::~AccountRoutes() = default;

bool AccountRoutes::listen()
{
    auto server = std::make_unique<QTcpServer>();
    if (!server->listen(QHostAddress::LocalHost))
        return false;
    m_port = server->serverPort();
    static_cast<void>(m_server->http().bind(server.release())); // the HTTP server takes ownership
    return true;
}

void AccountRoutes::Server::addSignInRoutes()
{
    m_http.route(u"/nc/auth/login"_s, Method::Post, [this](const QHttpServerRequest& request) {
        const QUrlQuery query = request.query();
        return response(
            m_store.signIn(credential(query, u"username"_s), credential(query, u"password"_s)));
    });
    m_http.route(u"/nc/users/register"_s, Method::Post, [this](const QHttpServerRequest& request) {
        const auto fields = jsonBody(request);
        if (!fields)
            return notJson();
        Account account;
        account.firstName = fields->value("firstName"_L1).toString();
        account.lastName = fields->value("lastName"_L1).toString();
        account.email = decodeAccountCredential(fields->value("email"_L1).toString());
        account.password = decodeAccountCredential(fields->value("password"_L1).toString());
        return response(m_store.registerAccount(account));
    });
    m_http.route(
        u"/nc/users/forgot-password"_s, Method::Post, [this](const QHttpServerRequest& request) {
            return response(m_store.requestPasswordReset(credential(request.query(), u"email"_s)));
        });
}

void AccountRoutes::Server::addProfileRoutes()
{
    m_http.route(u"/nc/users/<arg>"_s, Method::Get,
                 [this](const QString& userId, const QHttpServerRequest& request) {
                     return response(m_store.readProfile(userId, token(request)));
                 });
    m_http.route(u"/nc/users/<arg>"_s, Method::Put,
                 [this](const QString& userId, const QHttpServerRequest& request) {
                     const auto fields = jsonBody(request);
                     if (!fields)
                         return notJson();
                     return response(m_store.updateProfile(userId, token(request), *fields));
                 });
}
