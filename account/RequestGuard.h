#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>

class QNetworkReply;

/// Keeps one request within bounds: its time, the size of its body and where it is redirected to.
/// A request that leaves them is cut off.
///
/// Main thread. Destruction before the end cuts the request off without a signal.
class RequestGuard : public QObject
{
    Q_OBJECT

public:
    struct Limits {
        /// Milliseconds from sending a request to the end of its reply.
        int requestTimeout = 30'000;
        /// Largest reply body that is read, in bytes after decompression.
        qint64 bodySize = 64LL * 1024 * 1024;
    };

    /// @param reply  of the request that was just sent; owned by the guard from now on
    RequestGuard(QNetworkReply* reply, const Limits& limits, QObject* parent);
    ~RequestGuard() override;

    /// Body of the reply that has ended, empty when it was cut off.
    [[nodiscard]] QByteArray takeBody();
    [[nodiscard]] bool hasError() const;
    [[nodiscard]] QString errorText() const;

signals:
    /// The reply has ended, whole or not. Emitted once.
    void finished();
    /// Follows finished() when the time was over.
    void timedOut();

private:
    void onTimeout();
    void checkSize();
    void checkRedirect(const QUrl& target);

    QNetworkReply* const m_reply; // child
    const Limits m_limits;
    QTimer m_timer;
};
