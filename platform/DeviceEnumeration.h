#pragma once

#include <QList>
#include <QString>

#include <cstddef>
#include <optional>

namespace platform
{

enum class DeviceClass { Media, Camera, AudioEndpoint };

struct DeviceRecord {
    QString instanceId;   ///< for example USB\\VID_1234&PID_5678\\SERIAL
    QString friendlyName; ///< empty when the device has none

    bool operator==(const DeviceRecord&) const = default;
};

/// Appends one record for each present device of the class, in a steady order. False when the class
/// cannot be listed; `errorCode` is then GetLastError() or errno. Any thread.
bool scanDevices(DeviceClass deviceClass, QList<DeviceRecord>& records, quint32& errorCode);

/// A number that stays the same while the same devices are there, for much less than a scan costs.
/// What changes within a device may escape it. Empty where the system offers no such thing. Any
/// thread.
std::optional<std::size_t> deviceStamp();

} // namespace platform
