#pragma once

#include "account/RequestGuard.h"

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QUrl>

#include <QThreadPool>

#include <array>
#include <functional>
#include <memory>
#include <optional>

class AccountIdentity;

/// The account service's client, and the program's only HTTP client: sign-in, registration,
/// password reset, reading and editing the profile. Published to QML as `network`.
///
/// Each request ends in its success signal or its failure signal. A request that runs into the
/// time-out emits two failures: the broken connection, then the time-out. Pages show the later one.
/// A request reports nothing once a later one of the same kind was made; a profile request reports
/// nothing when its user is no longer signed in.
///
/// Main thread only. E-mail and password are sent as Base64url text. So that they and the token
/// reach no other server, redirections are followed only to the same host and port and never from
/// HTTPS to HTTP. Certificates are checked, and the system's proxies are used. Cookies are kept
/// for one account only.
class NetworkManager : public QObject
{
    Q_OBJECT

public:
    /// @param baseUrl  HTTP or HTTPS address of the service without a trailing slash. With any
    ///                 other value every request fails as if the server could not be reached.
    /// @param identity  must outlive this object
    /// @param settings  A reply outside the limits counts as a broken connection. A picture comes
    ///                  back with each sign-in, so one whose text takes more than three quarters of
    ///                  the body size is not sent.
    NetworkManager(const QString& baseUrl, const AccountIdentity& identity);
    NetworkManager(const QString& baseUrl, const AccountIdentity& identity,
                   RequestGuard::Settings settings);
    /// Aborts the requests in flight without a signal.
    ~NetworkManager() override;

    Q_INVOKABLE void login(const QString& email, const QString& password);
    Q_INVOKABLE void registerUser(const QString& firstName, const QString& lastName,
                                  const QString& email, const QString& password);
    Q_INVOKABLE void resetPassword(const QString& email);

    /// Sends the picture file at `imagePath` (a URL or a path), or the present picture if that is
    /// empty. Does nothing without a sign-in. The picture is read and encoded on another thread.
    Q_INVOKABLE void profileUpdate(const QString& firstName, const QString& lastName,
                                   const QString& company, const QString& title,
                                   const QString& imagePath);
    Q_INVOKABLE void requestUserProfile();

    /// Size of a file in bytes, truncated to 32 bits; 0 when it does not exist.
    Q_INVOKABLE int imageSize(const QString& imagePath);
    /// Whether a file is a picture that profileUpdate() accepts, as far as its head shows.
    Q_INVOKABLE bool isPicture(const QString& imagePath);

signals:
    void loginSuccess(const QJsonObject& userData);
    void loginFailed(const QString& error);
    void registrationSuccess();
    void registrationFailed(const QString& error);
    void passwordResetSent();
    void passwordResetFailed(const QString& error);
    void profileUpdateSuccess(const QJsonObject& userData);
    void profileUpdateFailed(const QString& error);
    void profileRequestSuccess(const QJsonObject& userData);
    void profileRequestFailed(const QString& error);

private:
    enum Kind { Login, Registration, PasswordReset, ProfileUpdate, ProfileRead, KindCount };
    /// One request among those of its kind.
    struct Ticket {
        Kind kind;
        quint64 number;
        QString userId;
        QString token;
    };
    struct Profile {
        QString firstName, lastName, company, title;
    };
    using SuccessCallback = std::function<void(const QJsonObject& object)>;
    using FailureSignal = void (NetworkManager::*)(const QString& error);

    [[nodiscard]] Ticket takeTicket(Kind kind);
    /// Whether the outcome of a request is still to be reported; logs when it is not.
    [[nodiscard]] bool isAwaited(const Ticket& ticket) const;
    void send(const Ticket& ticket, const QUrl& url, RequestGuard::Send send,
              const SuccessCallback& onSuccess, FailureSignal failed, const QString& timeoutText);
    void sendProfile(const Ticket& ticket, const Profile& profile, const QString& picture);
    [[nodiscard]] std::optional<QString> decodeReply(RequestGuard& guard,
                                                     QJsonObject& object) const;
    [[nodiscard]] QUrl profileUrl(const QString& userId) const;
    [[nodiscard]] static QString loadImageToBase64(const QString& imagePath);

    const AccountIdentity& m_identity;
    const RequestGuard::Settings m_settings;
    const QString m_baseUrl;
    const QString m_loginUrl;
    const QString m_registerUrl;
    const QString m_forgotPasswordUrl;

    // Main thread.
    std::array<quint64, KindCount> m_latest{};
    std::shared_ptr<QNetworkCookieJar> m_cookies;
    QString m_cookieToken; // of the sign-in that the cookies belong to
    // Last, so that it has ended before anything it reports to is destroyed.
    QThreadPool m_encoder;
};
