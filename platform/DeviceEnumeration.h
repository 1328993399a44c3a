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

/// Appends one record for each present device of the class, in a stable order. False when the class
/// cannot be listed; @p errorCode is then GetLastError() or errno. Any thread.
bool scanDevices(DeviceClass deviceClass, QList<DeviceRecord>& records, quint32& errorCode);

/// A number that changes when devices come or go, at a small part of the cost of a scan. Does not
/// detect changes inside a device. Empty on systems that offer no such number. Any thread.
std::optional<std::size_t> deviceStamp();

} // namespace platform
