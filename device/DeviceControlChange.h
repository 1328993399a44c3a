#pragma once

#include "device/DeviceControl.h"
#include "logging/Log.h"

/// Registry key of the program's values.
inline QString registryPath()
{
    return QStringLiteral("HKEY_CURRENT_USER\\System\\CurrentControlSet\\Control\\VORNApp");
}

// The setter pattern of DeviceControl, for the sources that implement it.

template <typename Value>
Value DeviceControl::stored(const Value& member) const
{
    const std::scoped_lock lock(m_stateMutex);
    return member;
}

/// Stores and logs; false when the value is the stored one already, and then nothing happens. The
/// line is written under the lock so that the lines of two threads tell the changes in their order.
template <typename Value>
bool DeviceControl::change(Value& member, const Value& newValue, const ChangeLabels& labels)
{
    const std::scoped_lock lock(m_stateMutex);
    if (member == newValue)
        return false;
    Log::info(labels.function) << labels.oldValue << member << labels.newValue << newValue;
    member = newValue;
    return true;
}

template <typename Value>
bool DeviceControl::change(Value& member, const Value& newValue, int direction,
                           const ChangeLabels& labels)
{
    const std::scoped_lock lock(m_stateMutex);
    if (member == newValue)
        return false;
    Log::info(labels.function) << "direction:" << direction << ", " << labels.oldValue << member
                               << labels.newValue << newValue;
    member = newValue;
    return true;
}
