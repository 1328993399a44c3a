#pragma once

#include <QFuture>
#include <QList>
#include <QNetworkProxy>
#include <QUrl>

#include <functional>

using ProxyLookup = std::function<QList<QNetworkProxy>(const QNetworkProxyQuery& query)>;

/// Starts to look up the proxies for an address. The system may ask the network about them and take
/// many seconds, so this happens on a thread of its own, which nothing waits for. This computer is
/// reached directly, without regard to the settings.
[[nodiscard]] QFuture<QList<QNetworkProxy>> findProxies(const QUrl& url, ProxyLookup lookUp);

/// True while the system is still busy with a look-up. The process then has to end without
/// destroying static objects, which the look-up may be using. Any thread.
[[nodiscard]] bool isProxyLookupRunning();
