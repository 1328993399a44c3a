#pragma once

#include "account/NetworkManager.h"
#include "peripherals/CameraControl.h"
#include "persistence/DBManager.h"

#include <QObject>

class AccountIdentity;
class MessageChannel;

/// Holds the account client, the user's settings and the camera control. Made and destroyed on the
/// main thread.
class Interface : public QObject
{
    Q_OBJECT

public:
    /// @param serverUrl     base address of the account service
    /// @param databasePath  file of the user settings
    Interface(const QString& serverUrl, const AccountIdentity& identity,
              const QString& databasePath, MessageChannel& channel);

    NetworkManager& network() { return m_network; }
    DBManager& database() { return m_database; }
    CameraControl& camera() { return m_camera; }

private:
    NetworkManager m_network;
    DBManager m_database;
    CameraControl m_camera;
};
