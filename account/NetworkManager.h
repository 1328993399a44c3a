#pragma once

#include "account/RequestGuard.h"

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

class AccountIdentity;
class QNetworkAccessManager;
class QNetworkReply;

/// The account service's client, and the program's only HTTP client: sign-in, registration,
/// password reset, reading and editing the profile. Published to QML as `network`.
///
/// Each request ends in its success signal or its failure signal. A request that runs into the
/// time-out emits two failures: the broken connection, then the time-out. Pages show the later one.
/// A profile is dropped when its user is no longer signed in at the time it arrives. A sign-in
/// superseded by a later one reports no success.
///
/// Main thread only. E-mail and password are sent as Base64url text. So that they and the token
/// reach no other server, redirections are followed only to the same host and never from HTTPS to
/// HTTP. Certificates are checked, and the system's proxies are used.
class NetworkManager : public QObject
{
    Q_OBJECT

public:
    /// @param baseUrl  HTTP or HTTPS address of the service without a trailing slash. With any
    ///                 other value every request fails as if the server could not be reached.
    /// @param identity  must outlive this object
    /// @param limits  A reply outside them counts as a broken connection. A picture comes back with
    ///                each sign-in, so one whose text takes more than three quarters of the body
    ///                size is not sent.
    NetworkManager(const QString& baseUrl, const AccountIdentity& identity);
    NetworkManager(const QString& baseUrl, const AccountIdentity& identity,
                   const RequestGuard::Limits& limits);
    /// Aborts the requests in flight without a signal.
    ~NetworkManager() override;

    Q_INVOKABLE void login(const QString& email, const QString& password);
    Q_INVOKABLE void registerUser(const QString& firstName, const QString& lastName,
                                  const QString& email, const QString& password);
    Q_INVOKABLE void resetPassword(const QString& email);

    /// Sends the picture file at `imagePath` (a URL or a path), or the present picture if that is
    /// empty. Does nothing without a sign-in. Encoding the largest pictures takes seconds.
    Q_INVOKABLE void profileUpdate(const QString& firstName, const QString& lastName,
                                   const QString& company, const QString& title,
                                   const QString& imagePath);
    Q_INVOKABLE void requestUserProfile();

    /// Size of a file in bytes, truncated to 32 bits; 0 when it does not exist.
    Q_INVOKABLE int imageSize(const QString& imagePath);

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
    using SuccessCallback = std::function<void(const QJsonObject& object)>;
    using FailureSignal = void (NetworkManager::*)(const QString& error);

    [[nodiscard]] QUrl profileUrl(const QString& userId) const;
    [[nodiscard]] QString loadImageToBase64(const QString& imagePath);
    [[nodiscard]] SuccessCallback unlessUserChanged(SuccessCallback onSuccess) const;

    void watch(QNetworkReply* reply, SuccessCallback onSuccess, FailureSignal failed,
               const QString& timeoutText);
    [[nodiscard]] std::optional<QString> decodeReply(RequestGuard& guard,
                                                     QJsonObject& object) const;

    const AccountIdentity& m_identity;
    QNetworkAccessManager* m_networkAccess; // child
    quint64 m_latestLogin = 0;
    const RequestGuard::Limits m_limits;
    const QString m_baseUrl;
    const QString m_loginUrl;
    const QString m_registerUrl;
    const QString m_forgotPasswordUrl;
};
