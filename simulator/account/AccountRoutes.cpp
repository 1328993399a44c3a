#include "simulator/account/AccountRoutes.h"

#include "simulator/account/AccountRequest.h"

#include <QJsonDocument>
#include <QUrlQuery>

using namespace Qt::StringLiterals;
using Answer = AccountStore::Answer;
using Endpoint = AccountFault::Endpoint;

namespace
{

constexpr QByteArrayView LoginPath = "/nc/auth/login";
constexpr QByteArrayView RegisterPath = "/nc/users/register";
constexpr QByteArrayView ForgotPasswordPath = "/nc/users/forgot-password";
constexpr QByteArrayView ProfilePath = "/nc/users/"; // followed by the user id

Answer failure(int status, const QString& message)
{
    return {status, {{"success"_L1, false}, {"message"_L1, message}}};
}

QString credential(const AccountRequest& request, const QString& name)
{
    const QUrlQuery query(QString::fromUtf8(request.query()));
    return decodeAccountCredential(query.queryItemValue(name));
}

Answer registerAccount(AccountStore& store, const QJsonObject& fields)
{
    Account account;
    account.firstName = fields.value("firstName"_L1).toString();
    account.lastName = fields.value("lastName"_L1).toString();
    account.email = decodeAccountCredential(fields.value("email"_L1).toString());
    account.password = decodeAccountCredential(fields.value("password"_L1).toString());
    return store.registerAccount(account);
}

} // namespace

std::optional<Endpoint> AccountRoutes::endpointOf(const AccountRequest& request)
{
    const QByteArray path = request.path();
    if (path == LoginPath)
        return Endpoint::Login;
    if (path == RegisterPath)
        return Endpoint::Register;
    if (path == ForgotPasswordPath)
        return Endpoint::ForgotPassword;
    if (path.startsWith(ProfilePath))
        return request.method == "PUT" ? Endpoint::ProfileUpdate : Endpoint::ProfileRead;
    return std::nullopt;
}

Answer AccountRoutes::answer(AccountStore& store, const AccountRequest& request)
{
    const auto endpoint = endpointOf(request);
    if (!endpoint)
        return failure(404, u"There is no such page."_s);
    const QJsonDocument body = QJsonDocument::fromJson(request.body);
    if ((endpoint == Endpoint::Register || endpoint == Endpoint::ProfileUpdate) && !body.isObject())
        return failure(400, u"The request body is not a JSON object."_s);

    const QByteArray userPart = request.path().mid(ProfilePath.size());
    const QString userId = QString::fromUtf8(QByteArray::fromPercentEncoding(userPart));
    const QString token = QString::fromUtf8(request.header("x-token"));
    switch (*endpoint) {
    case Endpoint::Login:
        return store.signIn(credential(request, u"username"_s), credential(request, u"password"_s));
    case Endpoint::Register:
        return registerAccount(store, body.object());
    case Endpoint::ForgotPassword:
        return store.requestPasswordReset(credential(request, u"email"_s));
    case Endpoint::ProfileUpdate:
        return store.updateProfile(userId, token, body.object());
    case Endpoint::ProfileRead:
        break;
    }
    return store.readProfile(userId, token);
}
