#pragma once

#include <QString>

/// Where a scan of this PC's devices puts its results: 1 when the display's device is present, else
/// 0.
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

    /// Reads the rules once, before the first scan; false when the file cannot be opened.
    virtual bool ReadJsonConfig(const QString& path) = 0;
    /// One round; runs on the status worker.
    virtual void checkDevices(LocalDeviceStatus& status) = 0;
};
