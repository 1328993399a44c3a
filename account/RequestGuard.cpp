#include "account/RequestGuard.h"

#include "logging/Log.h"

#include <QNetworkReply>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto LogFunction = "NetworkManager::handleResponse";

bool isSafeRedirect(const QUrl& from, const QUrl& to)
{
    return to.host() == from.host() && (to.scheme() == "https"_L1 || to.scheme() == from.scheme());
}

} // namespace

RequestGuard::RequestGuard(QNetworkReply* reply, const Limits& limits, QObject* parent)
    : QObject(parent)
    , m_reply(reply)
    , m_limits(limits)
{
    reply->setParent(this);
    // Bounds how far Qt's own thread reads ahead. That thread may stop somewhat short of this size,
    // so it lies well above the largest body: one that is too long has to be noticed first.
    reply->setReadBufferSize(2 * limits.bodySize);
    connect(reply, &QNetworkReply::readyRead, this, &RequestGuard::checkSize);
    connect(reply, &QNetworkReply::redirected, this, &RequestGuard::checkRedirect);
    connect(reply, &QNetworkReply::finished, &m_timer, &QTimer::stop);
    connect(reply, &QNetworkReply::finished, this, &RequestGuard::finished);
    connect(&m_timer, &QTimer::timeout, this, &RequestGuard::onTimeout);
    m_timer.setSingleShot(true);
    m_timer.start(limits.requestTimeout);
}

RequestGuard::~RequestGuard()
{
    m_reply->disconnect(this);
    if (m_reply->isRunning())
        m_reply->abort();
}

QByteArray RequestGuard::takeBody()
{
    // Nothing counts of a reply that was cut off, whatever part of it had arrived.
    return m_reply->error() == QNetworkReply::OperationCanceledError ? QByteArray()
                                                                     : m_reply->readAll();
}

bool RequestGuard::hasError() const
{
    return m_reply->error() != QNetworkReply::NoError;
}

QString RequestGuard::errorText() const
{
    return m_reply->errorString();
}

void RequestGuard::onTimeout()
{
    m_reply->abort(); // emits finished() before it returns
    emit timedOut();
}

void RequestGuard::checkSize()
{
    if (m_reply->bytesAvailable() <= m_limits.bodySize)
        return;
    Log::error(LogFunction) << "response exceeds " << m_limits.bodySize << " bytes";
    m_reply->abort();
}

void RequestGuard::checkRedirect(const QUrl& target)
{
    // The reply's own address is the target already.
    if (isSafeRedirect(m_reply->request().url(), target)) {
        emit m_reply->redirectAllowed();
        return;
    }
    Log::error(LogFunction) << "redirection refused:" << target.toString();
    m_reply->abort();
}
