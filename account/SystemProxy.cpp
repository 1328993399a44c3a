#include "account/SystemProxy.h"

#include <QHostAddress>

using namespace Qt::StringLiterals;

namespace
{

bool isThisComputer(const QString& host)
{
    return host.compare("localhost"_L1, Qt::CaseInsensitive) == 0 ||
           QHostAddress(host).isLoopback();
}

} // namespace

QList<QNetworkProxy> SystemProxy::queryProxy(const QNetworkProxyQuery& query)
{
    if (isThisComputer(query.peerHostName()))
        return {QNetworkProxy(QNetworkProxy::NoProxy)};
    return systemProxyForQuery(query);
}
