#include "app/Interface.h"

Interface::Interface(const QString& serverUrl, const AccountIdentity& identity,
                     const QString& databasePath, MessageChannel& channel)
    : m_network(serverUrl, identity)
    , m_database(databasePath)
    , m_camera(channel)
{
}
