#include "Common/SystemProxy.h"

#include <QHostAddress>
#include <QNetworkProxy>
#include <QNetworkProxyFactory>
#include <QNetworkProxyQuery>
#include <QString>

#include <memory>

namespace Korvex::Hosts
{

namespace
{

bool IsThisMachine(QString const& host)
{
    return host == QLatin1String("localhost") || QHostAddress(host).isLoopback();
}

/// Asked on the threads that connect.
class SystemProxyFactory final : public QNetworkProxyFactory
{
public:
    QList<QNetworkProxy> queryProxy(QNetworkProxyQuery const& query) override
    {
        // No proxy could reach what only this machine sees, and not every system leaves it out by itself.
        if (IsThisMachine(query.peerHostName()))
            return {QNetworkProxy(QNetworkProxy::NoProxy)};
        return systemProxyForQuery(query);
    }
};

} // namespace

void UseSystemProxy()
{
    QNetworkProxyFactory::setApplicationProxyFactory(std::make_unique<SystemProxyFactory>().release());
}

} // namespace Korvex::Hosts
