#pragma once

#include <QList>
#include <QNetworkProxyFactory>

/// Proxies as the system is set up, for one QNetworkAccessManager. Qt's switch for the same is
/// global to the process and would also reach the sockets that talk to local companion programs.
///
/// This computer itself is never reached through a proxy, whatever the settings say.
class SystemProxy : public QNetworkProxyFactory
{
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override;
};
