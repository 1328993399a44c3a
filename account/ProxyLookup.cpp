#include "account/ProxyLookup.h"

#include <QHostAddress>
#include <QPromise>

#include <atomic>
#include <thread>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{

std::atomic<int> g_runningLookups = 0;

bool isThisComputer(const QString& host)
{
    return host.compare("localhost"_L1, Qt::CaseInsensitive) == 0 ||
           QHostAddress(host).isLoopback();
}

} // namespace

QFuture<QList<QNetworkProxy>> findProxies(const QUrl& url, ProxyLookup lookUp)
{
    QPromise<QList<QNetworkProxy>> promise;
    QFuture<QList<QNetworkProxy>> future = promise.future();
    promise.start();
    // An unusable address fails without a connection.
    if (isThisComputer(url.host()) || url.host().isEmpty()) {
        promise.addResult(QList{QNetworkProxy(QNetworkProxy::NoProxy)});
        promise.finish();
        return future;
    }
    ++g_runningLookups;
    std::thread([promise = std::move(promise), lookUp = std::move(lookUp),
                 query = QNetworkProxyQuery(url)]() mutable {
        promise.addResult(lookUp(query));
        promise.finish();
        --g_runningLookups;
    }).detach();
    return future;
}

bool isProxyLookupRunning()
{
    return g_runningLookups > 0;
}
