#include "app/Interface.h"

namespace
{

Interface* s_instance = nullptr;

} // namespace

Interface& Interface::instance()
{
    Q_ASSERT(s_instance);
    return *s_instance;
}

Interface::Interface(const QString& serverUrl, const AccountIdentity& identity,
                     const QString& databasePath, MessageChannel& channel)
    : m_network(serverUrl, identity)
    , m_database(databasePath)
    , m_camera(channel)
{
    if (!s_instance)
        s_instance = this;
}

Interface::~Interface()
{
    if (s_instance == this)
        s_instance = nullptr;
}
