#include "simulator/account/AccountRequest.h"
#include "simulator/account/AccountRoutes.h"
#include "simulator/account/AccountService.h"
#include "simulator/account/AccountStore.h"

#include <QJsonDocument>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace
{

using Endpoint = AccountService::Endpoint;
using Answer = AccountStore::Answer;

QString credential(const AccountRequest& request, const QString& name)
{
    const QUrlQuery query(QString::fromUtf8(request.query()));
    return decodeAccountCredential(query.queryItemValue(name));
}

QString credential(const QJsonObject& fields, const QString& name)
{
    return decodeAccountCredential(fields.value(name).toString());
}

Answer failure(int status, const QString& message)
{
    return {status, {{"success"_L1, false}, {"message"_L1, message}}};
}

Answer registerAccount(AccountStore& store, const QJsonObject& fields)
{
    Account account;
    account.firstName = fields.value("firstName"_L1).toString();
    account.lastName = fields.value("lastName"_L1).toString();
    account.email = credential(fields, u"email"_s);
    account.password = credential(fields, u"password"_s);
    return store.registerAccount(account);
}

Answer answerProfile(AccountStore& store, const AccountRequest& request, Endpoint endpoint)
{
    const QString userId = QString::fromUtf8(request.path().split('/').constLast());
    const QString token = QString::fromUtf8(request.header("x-token"));
    if (endpoint == Endpoint::ProfileRead)
        return store.readProfile(userId, token);
    const QJsonDocument body = QJsonDocument::fromJson(request.body);
    if (!body.isObject())
        return failure(400, u"The request body is not a JSON object."_s);
    return store.updateProfile(userId, token, body.object());
}

Answer answerTo(AccountStore& store, const AccountRequest& request)
{
    const auto endpoint = AccountService::endpointOf(request);
    if (!endpoint)
        return failure(404, u"There is no such page."_s);
    switch (*endpoint) {
    case Endpoint::Login:
        return store.signIn(credential(request, u"username"_s), credential(request, u"password"_s));
    case Endpoint::ForgotPassword:
        return store.requestPasswordReset(credential(request, u"email"_s));
    case Endpoint::Register: {
        const QJsonDocument body = QJsonDocument::fromJson(request.body);
        if (!body.isObject())
            return failure(400, u"The request body is not a JSON object."_s);
        return registerAccount(store, body.object());
    }
    case Endpoint::ProfileRead:
    case Endpoint::ProfileUpdate:
        break;
    }
    return answerProfile(store, request, *endpoint);
}

QByteArray serialise(const Answer& answer)
{
    const QByteArray body = QJsonDocument(answer.body).toJson();
    return "HTTP/1.1 " + QByteArray::number(answer.status) +
           " \r\nContent-Type: application/json\r\nContent-Length: " +
           QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

} // namespace

class AccountRoutes::Server : public QTcpServer
{
public:
    explicit Server(AccountStore& store)
        : m_store(store)
    {
        connect(this, &QTcpServer::newConnection, this, &Server::acceptConnection);
    }

private:
    void acceptConnection()
    {
        while (QTcpSocket* client = nextPendingConnection()) {
            connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
            connect(client, &QTcpSocket::readyRead, this,
                    [this, client, received = QByteArray()]() mutable {
                        received += client->readAll();
                        while (const auto request = takeAccountRequest(received))
                            client->write(serialise(answerTo(m_store, *request)));
                    });
        }
    }

    AccountStore& m_store;
};

AccountRoutes::AccountRoutes(AccountStore& store, QObject* parent)
    : QObject(parent)
    , m_server(std::make_unique<Server>(store))
{
}

AccountRoutes::~AccountRoutes() = default;

bool AccountRoutes::listen()
{
    if (!m_server->listen(QHostAddress::LocalHost))
        return false;
    m_port = m_server->serverPort();
    return true;
}
