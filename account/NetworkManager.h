#pragma once

#include <QJsonObject>
#include <QMap>
#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

class AccountIdentity;
class QNetworkAccessManager;
class QNetworkReply;
class QTimer;

/// The account service's client, and the program's only HTTP client: sign-in, registration,
/// password reset, reading and editing the profile. Published to QML as `network`.
///
/// Each request ends in its success signal or its failure signal. One that outlives the time-out
/// fails twice, first for the broken connection, then for the time-out: pages show the text they
/// got last. A profile that arrives when another user, or none, is signed in than the one who asked
/// is dropped; so is the success of a sign-in that another one was asked for after.
///
/// Main thread only. E-mail and password travel as Base64url text in the request; to keep them and
/// the token from anybody else, redirections are followed only to the same host and never from
/// HTTPS to HTTP. Certificates are checked and the system's proxies used.
class NetworkManager : public QObject
{
    Q_OBJECT

public:
    struct Limits {
        /// Milliseconds from sending a request to the end of its reply.
        int requestTimeout = 30000;
        /// Largest reply body read, in bytes after decompression; a longer one is cut off and
        /// counts as a broken connection. A picture that is sent comes back with each sign-in, so
        /// one whose text takes more than three quarters of this is not sent.
        qint64 bodySize = 64LL * 1024 * 1024;
    };

    /// @param baseUrl  HTTP or HTTPS address of the service without a trailing slash. With any
    /// other value every request fails as if the server could not be reached.
    /// @param identity  outlives this object.
    NetworkManager(const QString& baseUrl, const AccountIdentity& identity);
    NetworkManager(const QString& baseUrl, const AccountIdentity& identity, Limits limits);

    /// Aborts the requests in flight; they emit nothing any more.
    ~NetworkManager() override;

    Q_INVOKABLE void login(const QString& email, const QString& password);
    Q_INVOKABLE void registerUser(const QString& firstName, const QString& lastName,
                                  const QString& email, const QString& password);
    Q_INVOKABLE void resetPassword(const QString& email);

    /// Sends the picture file at `imagePath` (a URL or a path), or the present picture if that is
    /// empty. Does nothing while nobody is signed in. Encoding a picture takes its time, up to
    /// seconds for the largest.
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
    using FailureCallback = std::function<void(const QString& message)>;
    using TimeoutCallback = std::function<void()>;

    [[nodiscard]] QUrl profileUrl(const QString& userId) const;
    [[nodiscard]] QString loadImageToBase64(const QString& imagePath);
    [[nodiscard]] SuccessCallback unlessUserChanged(SuccessCallback onSuccess) const;

    void startRequestTimer(QNetworkReply* reply, TimeoutCallback onTimeout);
    void handleResponse(QNetworkReply* reply, SuccessCallback onSuccess, FailureCallback onFailure);
    void finishRequest(QNetworkReply* reply, const SuccessCallback& onSuccess,
                       const FailureCallback& onFailure);
    [[nodiscard]] std::optional<QString> decodeReply(QNetworkReply* reply,
                                                     QJsonObject& object) const;
    void guardReply(QNetworkReply* reply);
    void cleanupRequest(QNetworkReply* reply);

    const AccountIdentity& m_identity;
    QNetworkAccessManager* m_networkAccess; // child
    QMap<QNetworkReply*, QTimer*> m_activeRequests;
    quint64 m_latestLogin = 0;
    const Limits m_limits;
    const QString m_baseUrl;
    const QString m_loginUrl;
    const QString m_registerUrl;
    const QString m_forgotPasswordUrl;
};
