#include "portalhub/SocketName.h"

using namespace Qt::StringLiterals;

QString channel::socketName()
{
    const QString name = qEnvironmentVariable("VORN_PORTALHUB_SOCKET");
    return name.isEmpty() ? u"vorn-portalhub"_s : name;
}

QString channel::folderOfSocket(const QString& /*name*/)
{
    return {};
}
