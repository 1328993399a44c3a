#include "account/NetworkManager.h"

#include "account/AccountIdentity.h"
#include "account/ImageFile.h"
#include "account/ReplyBody.h"
#include "account/SystemProxy.h"
#include "logging/Log.h"

#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QUrlQuery>

#include <utility>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto FormType = "application/x-www-form-urlencoded"_L1;
constexpr auto JsonType = "application/json"_L1;

QString encodeCredential(const QString& text)
{
    return QString::fromLatin1(
        text.toUtf8().toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals));
}

// With a file URL Qt would read or write a local file instead.
QUrl webAddress(const QString& text)
{
    const QUrl url(text);
    const bool isWeb = url.scheme() == "https"_L1 || url.scheme() == "http"_L1;
    return isWeb && !url.host().isEmpty() ? url : QUrl();
}

QUrl withQuery(const QString& address, std::initializer_list<std::pair<QString, QString>> items)
{
    QUrl url = webAddress(address);
    QUrlQuery query;
    query.setQueryItems(items);
    if (!url.isEmpty())
        url.setQuery(query);
    return url;
}

QNetworkRequest withContentType(const QUrl& url, QLatin1StringView contentType)
{
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QString(contentType));
    return request;
}

void authorise(QNetworkRequest& request, const QString& token)
{
    QByteArray value = token.toUtf8();
    value.replace('\r', "").replace('\n', ""); // a line break would start another header
    request.setRawHeader("x-token"_ba, value);
    request.setRawHeader("accept"_ba, "*/*"_ba);
}

QByteArray compactJson(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace

NetworkManager::NetworkManager(const QString& baseUrl, const AccountIdentity& identity)
    : NetworkManager(baseUrl, identity, RequestGuard::Limits())
{
}

NetworkManager::NetworkManager(const QString& baseUrl, const AccountIdentity& identity,
                               const RequestGuard::Limits& limits)
    : m_identity(identity)
    , m_networkAccess(new QNetworkAccessManager(this))
    , m_limits(limits)
    , m_baseUrl(baseUrl)
    , m_loginUrl(baseUrl + "/nc/auth/login"_L1)
    , m_registerUrl(baseUrl + "/nc/users/register"_L1)
    , m_forgotPasswordUrl(baseUrl + "/nc/users/forgot-password"_L1)
{
    m_networkAccess->setProxyFactory(new SystemProxy); // owned by the access manager
    m_networkAccess->setRedirectPolicy(QNetworkRequest::UserVerifiedRedirectPolicy);
    Log::info("NetworkManager::NetworkManager") << "URL_LOGIN          :" << m_loginUrl;
    Log::info("NetworkManager::NetworkManager") << "URL_REGISTER       :" << m_registerUrl;
    Log::info("NetworkManager::NetworkManager") << "URL_FORGOT_PASSWORD:" << m_forgotPasswordUrl;
}

NetworkManager::~NetworkManager()
{
    qDeleteAll(findChildren<RequestGuard*>()); // before the access manager that they use
}

void NetworkManager::login(const QString& email, const QString& password)
{
    Log::info("NetworkManager::login") << "email   :" << email;
    Log::info("NetworkManager::login") << "password:" << password;

    const QUrl url = withQuery(m_loginUrl, {{u"username"_s, encodeCredential(email)},
                                            {u"password"_s, encodeCredential(password)}});
    QNetworkReply* reply = m_networkAccess->post(withContentType(url, FormType), QByteArray());
    Log::info("NetworkManager::login") << "send:" << url.toString();

    const auto onSuccess = [this, number = ++m_latestLogin](const QJsonObject& object) {
        if (number == m_latestLogin)
            emit loginSuccess(object);
        else // The program may have been signed in and out since.
            Log::info("NetworkManager::login") << "another sign-in followed, dropped";
    };
    watch(reply, onSuccess, &NetworkManager::loginFailed, tr("Login request timed out."));
}

void NetworkManager::registerUser(const QString& firstName, const QString& lastName,
                                  const QString& email, const QString& password)
{
    Log::info("NetworkManager::registerUser") << "firstName:" << firstName;
    Log::info("NetworkManager::registerUser") << "lastName :" << lastName;
    Log::info("NetworkManager::registerUser") << "email    :" << email;
    Log::info("NetworkManager::registerUser") << "password :" << password;

    const QUrl url = webAddress(m_registerUrl);
    const QByteArray json = compactJson({{"firstName"_L1, firstName},
                                         {"lastName"_L1, lastName},
                                         {"email"_L1, encodeCredential(email)},
                                         {"password"_L1, encodeCredential(password)}});
    QNetworkReply* reply = m_networkAccess->post(withContentType(url, JsonType), json);
    Log::info("NetworkManager::registerUser") << "send:" << url.toString() << " json:" << json;

    watch(
        reply, [this](const QJsonObject&) { emit registrationSuccess(); },
        &NetworkManager::registrationFailed, tr("Registration request timed out."));
}

void NetworkManager::resetPassword(const QString& email)
{
    Log::info("NetworkManager::resetPassword") << "email:" << email;

    const QUrl url = withQuery(m_forgotPasswordUrl, {{u"email"_s, encodeCredential(email)}});
    QNetworkReply* reply = m_networkAccess->post(withContentType(url, FormType), QByteArray());
    Log::info("NetworkManager::resetPassword") << "send:" << url.toString();

    watch(
        reply, [this](const QJsonObject&) { emit passwordResetSent(); },
        &NetworkManager::passwordResetFailed, tr("Password reset request timed out."));
}

void NetworkManager::profileUpdate(const QString& firstName, const QString& lastName,
                                   const QString& company, const QString& title,
                                   const QString& imagePath)
{
    Log::info("NetworkManager::profileUpdate") << "firstName:" << firstName;
    Log::info("NetworkManager::profileUpdate") << "lastName :" << lastName;
    Log::info("NetworkManager::profileUpdate") << "company  :" << company;
    Log::info("NetworkManager::profileUpdate") << "title    :" << title;
    Log::info("NetworkManager::profileUpdate") << "imagePath:" << imagePath;

    const QString userId = m_identity.userId();
    const QString token = m_identity.token();
    if (userId.isEmpty() || token.isEmpty()) {
        Log::error("NetworkManager::profileUpdate") << "Missing user ID or token for edit request";
        return;
    }

    const QUrl url = profileUrl(userId);
    QNetworkRequest request = withContentType(url, JsonType);
    authorise(request, token);
    const QString picture =
        imagePath.isEmpty() ? m_identity.rawPicture() : loadImageToBase64(imagePath);
    if (picture.size() > m_limits.bodySize / 4 * 3) {
        Log::error("NetworkManager::profileUpdate")
            << "picture of " << picture.size() << " letters is too large to be sent";
        emit profileUpdateFailed(tr("The picture is too large."));
        return;
    }
    const QByteArray json = compactJson({{"firstName"_L1, firstName},
                                         {"lastName"_L1, lastName},
                                         {"company"_L1, company},
                                         {"title"_L1, title},
                                         {"picture"_L1, picture}});
    QNetworkReply* reply = m_networkAccess->put(request, json);
    Log::info("NetworkManager::profileUpdate") << "send:" << url.toString() << " json:" << json;

    watch(reply, unlessUserChanged([this](const QJsonObject& object) {
              emit profileUpdateSuccess(object);
          }),
          &NetworkManager::profileUpdateFailed, tr("Profile update request timed out."));
}

void NetworkManager::requestUserProfile()
{
    const QString userId = m_identity.userId();
    const QString token = m_identity.token();
    Log::info("NetworkManager::requestUserProfile") << "userid:" << userId;
    Log::info("NetworkManager::requestUserProfile") << "token :" << token;
    if (userId.isEmpty() || token.isEmpty()) {
        Log::error("NetworkManager::requestUserProfile")
            << "Missing user ID or token for profile request";
        emit profileRequestFailed(tr("Missing user ID or token"));
        return;
    }

    const QUrl url = profileUrl(userId);
    QNetworkRequest request(url);
    authorise(request, token);
    QNetworkReply* reply = m_networkAccess->get(request);
    Log::info("NetworkManager::requestUserProfile") << "send:" << url.toString();

    watch(reply, unlessUserChanged([this](const QJsonObject& object) {
              emit profileRequestSuccess(object);
          }),
          &NetworkManager::profileRequestFailed, tr("Profile request timed out."));
}

int NetworkManager::imageSize(const QString& imagePath)
{
    const QString path = ImageFile::normaliseImagePath(imagePath);
    const qint64 size = ImageFile::size(path);
    Log::info("NetworkManager::imageSize")
        << "Loading image from: " << path << ", fileSize:" << size;
    return static_cast<int>(size);
}

QString NetworkManager::loadImageToBase64(const QString& imagePath)
{
    const QString path = ImageFile::normaliseImagePath(imagePath);
    Log::info("NetworkManager::loadImageToBase64") << "Loading image from: " << path;

    const ImageFile::Encoded image = ImageFile::encode(path);
    switch (image.status) {
    case ImageFile::Encoded::Status::NotLoaded:
        Log::error("NetworkManager::loadImageToBase64") << "Failed to load image: " << path;
        return {};
    case ImageFile::Encoded::Status::NotEncoded:
        Log::error("NetworkManager::loadImageToBase64") << "Failed to convert image to Base64";
        return {};
    case ImageFile::Encoded::Status::Ok:
        break;
    }
    Log::info("NetworkManager::loadImageToBase64")
        << "Image converted successfully, size: " << image.bytes.size() << " bytes";
    return QString::fromLatin1(image.bytes.toBase64());
}

QUrl NetworkManager::profileUrl(const QString& userId) const
{
    // Slashes, question marks and percent signs of an id belong to its one path segment.
    const QByteArray segment = QUrl::toPercentEncoding(userId, "!$&'()*+,;=:@");
    return webAddress(m_baseUrl + "/nc/users/"_L1 + QString::fromLatin1(segment));
}

NetworkManager::SuccessCallback NetworkManager::unlessUserChanged(SuccessCallback onSuccess) const
{
    return [this, onSuccess = std::move(onSuccess), userId = m_identity.userId(),
            token = m_identity.token()](const QJsonObject& object) {
        if (m_identity.userId() == userId && m_identity.token() == token)
            onSuccess(object);
        else
            Log::info("NetworkManager::handleResponse")
                << "profile reply dropped, no longer signed in as userid:" << userId;
    };
}

void NetworkManager::watch(QNetworkReply* reply, SuccessCallback onSuccess, FailureSignal failed,
                           const QString& timeoutText)
{
    auto* guard = new RequestGuard(reply, m_limits, this);
    connect(guard, &RequestGuard::timedOut, this,
            [this, failed, timeoutText] { emit(this->*failed)(timeoutText); });
    connect(guard, &RequestGuard::finished, this,
            [this, guard, onSuccess = std::move(onSuccess), failed] {
                guard->deleteLater();
                QJsonObject object;
                const std::optional<QString> failure = decodeReply(*guard, object);
                if (!failure)
                    onSuccess(object);
                else
                    emit(this->*failed)(failure->isEmpty() ? tr("Unknown error occurred.")
                                                           : *failure);
            });
}

/// Returns the text of the failure, or nothing and the reply's object on success.
std::optional<QString> NetworkManager::decodeReply(RequestGuard& guard, QJsonObject& object) const
{
    constexpr auto Function = "NetworkManager::handleResponse";
    const QByteArray body = guard.takeBody();
    Log::info(Function) << "response:" << body;

    if (body.isEmpty() && guard.hasError()) {
        Log::error(Function) << "Connection to server failed. error:" << guard.errorText();
        return tr("Connection to server failed.");
    }
    if (body.isEmpty()) {
        Log::error(Function) << "Empty response from server.";
        return tr("Empty response from server.");
    }

    ReplyBody decoded = decodeReplyBody(body);
    switch (decoded.kind) {
    case ReplyBody::Kind::NotJson:
        Log::error(Function) << "JSON parse error: " << decoded.parseError;
        return tr("Invalid JSON response: %1").arg(decoded.parseError);
    case ReplyBody::Kind::NotJsonObject:
        Log::warning(Function) << "Response is not a JSON object";
        return tr("Invalid response format.");
    case ReplyBody::Kind::Refused:
        return decoded.message.value_or(tr("Request failed with unknown reason."));
    case ReplyBody::Kind::Success:
        break;
    }
    object = std::move(decoded.object);
    return {};
}
