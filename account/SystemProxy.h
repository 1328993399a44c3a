#pragma once

#include <QList>
#include <QNetworkProxyFactory>

/// The proxies of the system's settings, for one QNetworkAccessManager. Qt's own switch for this is
/// global to the process and would also affect the sockets to local companion programs.
///
/// This computer is reached directly, whatever the settings say.
class SystemProxy : public QNetworkProxyFactory
{
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override;
};
