#include "account/NetworkManager.h"

#include "account/AccountIdentity.h"
#include "account/ImageFile.h"
#include "account/ReplyBody.h"
#include "logging/Log.h"

#include <QJsonDocument>
#include <QUrlQuery>

#include <string_view>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{

// A log line holds no more.
constexpr qsizetype LoggedBytes = 30'000;

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

std::string_view loggedPart(const QByteArray& text)
{
    return {text.constData(), size_t(qMin(text.size(), LoggedBytes))};
}

} // namespace

NetworkManager::NetworkManager(const QString& baseUrl, const AccountIdentity& identity)
    : NetworkManager(baseUrl, identity, RequestGuard::Settings())
{
}

NetworkManager::NetworkManager(const QString& baseUrl, const AccountIdentity& identity,
                               RequestGuard::Settings settings)
    : m_identity(identity)
    , m_settings(std::move(settings))
    , m_baseUrl(baseUrl)
    , m_loginUrl(baseUrl + "/nc/auth/login"_L1)
    , m_registerUrl(baseUrl + "/nc/users/register"_L1)
    , m_forgotPasswordUrl(baseUrl + "/nc/users/forgot-password"_L1)
{
    constexpr auto Function = "NetworkManager::NetworkManager";
    m_encoder.setMaxThreadCount(1);
    Log::info(Function) << "URL_LOGIN          :" << m_loginUrl;
    Log::info(Function) << "URL_REGISTER       :" << m_registerUrl;
    Log::info(Function) << "URL_FORGOT_PASSWORD:" << m_forgotPasswordUrl;
    if (webAddress(m_loginUrl).isEmpty())
        Log::error(Function) << "unusable address of the account service:" << baseUrl;
}

NetworkManager::~NetworkManager()
{
    qDeleteAll(findChildren<RequestGuard*>()); // while the cookies exist
}

void NetworkManager::login(const QString& email, const QString& password)
{
    Log::info("NetworkManager::login") << "email   :" << email;
    Log::info("NetworkManager::login") << "password:" << password;

    const QUrl url = withQuery(m_loginUrl, {{u"username"_s, encodeCredential(email)},
                                            {u"password"_s, encodeCredential(password)}});
    send(
        takeTicket(Login), url,
        [request = withContentType(url, FormType)](QNetworkAccessManager& access) {
            return access.post(request, QByteArray());
        },
        [this](const QJsonObject& object) { emit loginSuccess(object); },
        &NetworkManager::loginFailed, tr("Login request timed out."));
    Log::info("NetworkManager::login") << "send:" << url.toString();
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
    send(
        takeTicket(Registration), url,
        [request = withContentType(url, JsonType), json](QNetworkAccessManager& access) {
            return access.post(request, json);
        },
        [this](const QJsonObject&) { emit registrationSuccess(); },
        &NetworkManager::registrationFailed, tr("Registration request timed out."));
    Log::info("NetworkManager::registerUser") << "send:" << url.toString() << " json:" << json;
}

void NetworkManager::resetPassword(const QString& email)
{
    Log::info("NetworkManager::resetPassword") << "email:" << email;

    const QUrl url = withQuery(m_forgotPasswordUrl, {{u"email"_s, encodeCredential(email)}});
    send(
        takeTicket(PasswordReset), url,
        [request = withContentType(url, FormType)](QNetworkAccessManager& access) {
            return access.post(request, QByteArray());
        },
        [this](const QJsonObject&) { emit passwordResetSent(); },
        &NetworkManager::passwordResetFailed, tr("Password reset request timed out."));
    Log::info("NetworkManager::resetPassword") << "send:" << url.toString();
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

    const Ticket ticket = takeTicket(ProfileUpdate);
    if (ticket.userId.isEmpty() || ticket.token.isEmpty()) {
        Log::error("NetworkManager::profileUpdate") << "Missing user ID or token for edit request";
        return;
    }
    const Profile profile{firstName, lastName, company, title};
    if (imagePath.isEmpty()) {
        sendProfile(ticket, profile, m_identity.rawPicture());
        return;
    }
    m_encoder.start([this, ticket, profile, imagePath] {
        const auto send = [this, ticket, profile, picture = loadImageToBase64(imagePath)] {
            if (isAwaited(ticket))
                sendProfile(ticket, profile, picture);
        };
        QMetaObject::invokeMethod(this, send, Qt::QueuedConnection);
    });
}

void NetworkManager::sendProfile(const Ticket& ticket, const Profile& profile,
                                 const QString& picture)
{
    if (picture.size() > m_settings.bodySize / 4 * 3) {
        Log::error("NetworkManager::profileUpdate")
            << "picture of " << picture.size() << " characters is too large to be sent";
        emit profileUpdateFailed(tr("The picture is too large."));
        return;
    }
    const QUrl url = profileUrl(ticket.userId);
    QNetworkRequest request = withContentType(url, JsonType);
    authorise(request, ticket.token);
    const QByteArray json = compactJson({{"firstName"_L1, profile.firstName},
                                         {"lastName"_L1, profile.lastName},
                                         {"company"_L1, profile.company},
                                         {"title"_L1, profile.title},
                                         {"picture"_L1, picture}});
    send(
        ticket, url,
        [request, json](QNetworkAccessManager& access) { return access.put(request, json); },
        [this](const QJsonObject& object) { emit profileUpdateSuccess(object); },
        &NetworkManager::profileUpdateFailed, tr("Profile update request timed out."));
    Log::info("NetworkManager::profileUpdate")
        << "send:" << url.toString() << " json:" << loggedPart(json);
}

void NetworkManager::requestUserProfile()
{
    const Ticket ticket = takeTicket(ProfileRead);
    Log::info("NetworkManager::requestUserProfile") << "userid:" << ticket.userId;
    Log::info("NetworkManager::requestUserProfile") << "token :" << ticket.token;
    if (ticket.userId.isEmpty() || ticket.token.isEmpty()) {
        Log::error("NetworkManager::requestUserProfile")
            << "Missing user ID or token for profile request";
        emit profileRequestFailed(tr("Missing user ID or token"));
        return;
    }

    const QUrl url = profileUrl(ticket.userId);
    QNetworkRequest request(url);
    authorise(request, ticket.token);
    send(
        ticket, url, [request](QNetworkAccessManager& access) { return access.get(request); },
        [this](const QJsonObject& object) { emit profileRequestSuccess(object); },
        &NetworkManager::profileRequestFailed, tr("Profile request timed out."));
    Log::info("NetworkManager::requestUserProfile") << "send:" << url.toString();
}

int NetworkManager::imageSize(const QString& imagePath)
{
    const QString path = ImageFile::normaliseImagePath(imagePath);
    const qint64 size = ImageFile::size(path);
    Log::info("NetworkManager::imageSize")
        << "Loading image from: " << path << ", fileSize:" << size;
    return static_cast<int>(size);
}

bool NetworkManager::isPicture(const QString& imagePath)
{
    return ImageFile::isPicture(ImageFile::normaliseImagePath(imagePath));
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

NetworkManager::Ticket NetworkManager::takeTicket(Kind kind)
{
    Ticket ticket{kind, ++m_latest[kind], m_identity.userId(), m_identity.token()};
    if (!m_cookies || kind == Login || ticket.token != m_cookieToken) {
        m_cookies = std::make_shared<QNetworkCookieJar>();
        m_cookieToken = ticket.token;
    }
    return ticket;
}

bool NetworkManager::isAwaited(const Ticket& ticket) const
{
    const bool isProfile = ticket.kind == ProfileUpdate || ticket.kind == ProfileRead;
    const bool isLatest = ticket.number == m_latest[ticket.kind];
    const bool isSignedIn =
        m_identity.userId() == ticket.userId && m_identity.token() == ticket.token;
    if (isLatest && (!isProfile || isSignedIn))
        return true;
    if (isLatest)
        Log::info("NetworkManager::handleResponse")
            << "dropped, no longer signed in as userid:" << ticket.userId;
    else
        Log::info("NetworkManager::handleResponse") << "dropped, a later request followed";
    return false;
}

void NetworkManager::send(const Ticket& ticket, const QUrl& url, RequestGuard::Send send,
                          const SuccessCallback& onSuccess, FailureSignal failed,
                          const QString& timeoutText)
{
    auto* guard = new RequestGuard(url, std::move(send), m_cookies, m_settings, this);
    connect(guard, &RequestGuard::timedOut, this, [this, ticket, failed, timeoutText] {
        if (isAwaited(ticket))
            emit(this->*failed)(timeoutText);
    });
    connect(guard, &RequestGuard::finished, this, [this, guard, ticket, onSuccess, failed] {
        guard->deleteLater();
        QJsonObject object;
        const std::optional<QString> failure = decodeReply(*guard, object);
        if (!isAwaited(ticket))
            return;
        if (!failure)
            onSuccess(object);
        else
            emit(this->*failed)(failure->isEmpty() ? tr("Unknown error occurred.") : *failure);
    });
}

/// Returns the text of the failure, or nothing and the reply's object on success.
std::optional<QString> NetworkManager::decodeReply(RequestGuard& guard, QJsonObject& object) const
{
    constexpr auto Function = "NetworkManager::handleResponse";
    const QByteArray body = guard.takeBody();
    Log::info(Function) << "response:" << loggedPart(body);

    if (guard.error() == QNetworkReply::ProxyAuthenticationRequiredError) {
        Log::error(Function) << "The proxy asks for a password. error:" << guard.errorText();
        return tr("Connection to server failed. The proxy asks for a password.");
    }
    if (body.isEmpty() && guard.error() != QNetworkReply::NoError) {
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
