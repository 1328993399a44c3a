#include "account/RequestGuard.h"

#include "logging/Log.h"

#include <QThread>

#include <utility>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto LogFunction = "NetworkManager::handleResponse";

/// The proxies that were found for one request, for its redirections too.
class FoundProxies : public QNetworkProxyFactory
{
public:
    explicit FoundProxies(QList<QNetworkProxy> proxies)
        : m_proxies(std::move(proxies))
    {
    }
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery&) override { return m_proxies; }

private:
    const QList<QNetworkProxy> m_proxies;
};

int portOf(const QUrl& url)
{
    return url.port(url.scheme() == "https"_L1 ? 443 : 80);
}

/// Only the same server; its plain port may lead to its TLS port.
bool isSafeRedirect(const QUrl& from, const QUrl& to)
{
    if (to.host() != from.host())
        return false;
    if (to.scheme() == from.scheme())
        return portOf(to) == portOf(from);
    return to.scheme() == "https"_L1 && portOf(to) == 443 && portOf(from) == 80;
}

/// Destroys an access manager whose network thread may be occupied. Qt waits five seconds for it.
void destroyElsewhere(std::unique_ptr<QNetworkAccessManager> access)
{
    auto* const thread = new QThread; // deletes itself
    access->moveToThread(thread);
    QObject::connect(thread, &QThread::started, access.get(), &QObject::deleteLater);
    QObject::connect(access.get(), &QObject::destroyed, thread, &QThread::quit);
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    (void)access.release();
    thread->start();
}

} // namespace

RequestGuard::RequestGuard(const QUrl& url, Send send, std::shared_ptr<QNetworkCookieJar> cookies,
                           const Settings& settings, QObject* parent)
    : QObject(parent)
    , m_url(url)
    , m_settings(settings)
    , m_cookies(std::move(cookies))
{
    connect(&m_timer, &QTimer::timeout, this, &RequestGuard::onTimeout);
    m_timer.setSingleShot(true);
    m_timer.start(settings.requestTimeout);
    connect(&m_proxies, &QFutureWatcherBase::finished, this,
            [this, send = std::move(send)] { this->send(send); });
    m_proxies.setFuture(findProxies(url, settings.lookUpProxies));
}

RequestGuard::~RequestGuard()
{
    if (!m_reply)
        return;
    m_reply->disconnect(this);
    const bool wasCutOffBeforeHead =
        m_reply->error() == QNetworkReply::OperationCanceledError &&
        !m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
    if (m_reply->isRunning())
        m_reply->abort();
    delete m_reply;
    if (wasCutOffBeforeHead)
        destroyElsewhere(std::move(m_access));
}

void RequestGuard::send(const Send& send)
{
    if (!m_timer.isActive())
        return; // the time was over first
    m_access = std::make_unique<QNetworkAccessManager>();
    m_access->setProxyFactory(new FoundProxies(m_proxies.result())); // owned by the access manager
    m_access->setRedirectPolicy(QNetworkRequest::UserVerifiedRedirectPolicy);
    m_access->setCookieJar(m_cookies.get());
    m_cookies->setParent(nullptr); // stays ours
    m_reply = send(*m_access);
    // Bounds how far the network thread reads ahead. That thread may stop somewhat short of this
    // size, so it lies well above the largest body: one that is too long has to be noticed first.
    m_reply->setReadBufferSize(2 * m_settings.bodySize);
    connect(m_reply, &QNetworkReply::readyRead, this, &RequestGuard::checkSize);
    connect(m_reply, &QNetworkReply::redirected, this, &RequestGuard::checkRedirect);
    connect(m_reply, &QNetworkReply::finished, &m_timer, &QTimer::stop);
    connect(m_reply, &QNetworkReply::finished, this, &RequestGuard::finished);
}

QByteArray RequestGuard::takeBody()
{
    // Nothing counts of a reply that was cut off, whatever part of it had arrived.
    return error() == QNetworkReply::OperationCanceledError ? QByteArray() : m_reply->readAll();
}

QNetworkReply::NetworkError RequestGuard::error() const
{
    return m_reply ? m_reply->error() : QNetworkReply::OperationCanceledError;
}

QString RequestGuard::errorText() const
{
    return m_reply ? m_reply->errorString() : u"no answer about the proxy"_s;
}

void RequestGuard::onTimeout()
{
    if (m_reply)
        m_reply->abort(); // emits finished() before it returns
    else
        emit finished();
    emit timedOut();
}

void RequestGuard::checkSize()
{
    if (m_reply->bytesAvailable() <= m_settings.bodySize)
        return;
    Log::error(LogFunction) << "response exceeds " << m_settings.bodySize << " bytes";
    m_reply->abort();
}

void RequestGuard::checkRedirect(const QUrl& target)
{
    // The address of the reply is the target already.
    if (isSafeRedirect(m_url, target)) {
        emit m_reply->redirectAllowed();
        return;
    }
    Log::error(LogFunction) << "redirection refused:" << target.toString();
    m_reply->abort();
}
