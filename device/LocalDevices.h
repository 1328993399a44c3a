#pragma once

#include <QString>

/// Receives the results of a scan of this PC's devices: 1 when the display's device is present,
/// otherwise 0.
class LocalDeviceStatus
{
public:
    virtual ~LocalDeviceStatus() = default;

    virtual void setVornMicStatus(int status) = 0;
    virtual void setVornCamStatus(int status) = 0;
    virtual void setVornSpkStatus(int status) = 0;
};

/// Finds the display's microphone, camera and speaker among this PC's devices.
class LocalDevices
{
public:
    virtual ~LocalDevices() = default;

    /// Reads the rules. Once, before the first scan. False when the file cannot be opened.
    virtual bool ReadJsonConfig(const QString& path) = 0;
    /// Scans the devices once. Status worker.
    virtual void checkDevices(LocalDeviceStatus& status) = 0;
};
