#pragma once

#include "account/ProxyLookup.h"

#include <QByteArray>
#include <QFutureWatcher>
#include <QNetworkAccessManager>
#include <QNetworkCookieJar>
#include <QNetworkReply>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

/// Sends one request and keeps it within bounds: its time, the size of its body and where it is
/// redirected to. A request that leaves them is cut off.
///
/// Each request has an access manager, and with it a network thread, of its own: a server that
/// sends a head without an end occupies that thread for as long as it likes.
///
/// Main thread. Destruction before the end cuts the request off without a signal.
class RequestGuard : public QObject
{
    Q_OBJECT

public:
    struct Settings {
        /// Milliseconds for the request, from the search for a proxy to the end of the reply.
        int requestTimeout = 30'000;
        /// Largest reply body that is read, in bytes after decompression.
        qint64 bodySize = 16LL * 1024 * 1024;
        ProxyLookup lookUpProxies = QNetworkProxyFactory::systemProxyForQuery;
    };
    using Send = std::function<QNetworkReply*(QNetworkAccessManager& access)>;

    /// @param url  address that `send` sends the request to
    /// @param cookies  cookies of the account; shared by its requests
    RequestGuard(const QUrl& url, Send send, std::shared_ptr<QNetworkCookieJar> cookies,
                 const Settings& settings, QObject* parent);
    ~RequestGuard() override;

    /// Body of the reply that has ended, empty when it was cut off.
    [[nodiscard]] QByteArray takeBody();
    [[nodiscard]] QNetworkReply::NetworkError error() const;
    [[nodiscard]] QString errorText() const;

signals:
    /// The reply has ended, whole or not. Emitted once.
    void finished();
    /// Follows finished() when the time was over.
    void timedOut();

private:
    void send(const Send& send);
    void onTimeout();
    void checkSize();
    void checkRedirect(const QUrl& target);

    const QUrl m_url;
    const Settings m_settings;
    const std::shared_ptr<QNetworkCookieJar> m_cookies;
    std::unique_ptr<QNetworkAccessManager> m_access;
    QNetworkReply* m_reply = nullptr; // child of m_access; none while the proxy is looked up
    QFutureWatcher<QList<QNetworkProxy>> m_proxies;
    QTimer m_timer;
};
