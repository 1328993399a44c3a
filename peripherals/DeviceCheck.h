#pragma once

#include "device/LocalDevices.h"
#include "peripherals/DeviceFilter.h"
#include "platform/DeviceEnumeration.h"

#include <QList>
#include <QString>

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

/// Finds the display's microphone, camera and speaker among this PC's devices, by the rules of the
/// rule file. The rules are read before the thread that checks the devices is started; all later
/// calls come from that thread.
class DeviceCheck : public LocalDevices
{
public:
    using Scan =
        std::function<bool(platform::DeviceClass, QList<platform::DeviceRecord>&, quint32&)>;
    using Stamp = std::function<std::optional<std::size_t>()>;

    /// Checks the devices of this PC.
    DeviceCheck();
    /// @param scan    lists the devices of one class
    /// @param stamp   changes with the devices; without a stamp every round lists them
    /// @param budget  time for comparisons in one round; the next round continues where it ended.
    ///                Ordinary rules need a small part of the default.
    explicit DeviceCheck(Scan scan, Stamp stamp = {},
                         std::chrono::nanoseconds budget = std::chrono::milliseconds(50));

    /// Replaces the rules. A file that can be opened but has no valid content leaves no rules.
    bool ReadJsonConfig(const QString& path) override;
    /// Sets the status of every kind that has rules. Lists the devices when their stamp has changed
    /// and every twentieth round in any case; compares them when the list has changed.
    void checkDevices(LocalDeviceStatus& status) override;

    /// The largest rule file that is read, in bytes.
    static constexpr qsizetype MaxConfigSize = 262'144;

private:
    /// The rules of one kind of device, and the progress of their comparison with the list.
    struct Kind {
        void (LocalDeviceStatus::*setStatus)(int);
        std::vector<DeviceFilter> filters;
        std::size_t next = 0; ///< next pair of device and filter, ordered by device
        bool found = false;
    };

    bool isScanDue();
    QList<platform::DeviceRecord> scanDevices();
    bool compare(Kind& kind, std::chrono::steady_clock::time_point deadline) const;

    Scan m_scan;
    Stamp m_stamp;
    std::chrono::nanoseconds m_budget;
    std::vector<Kind> m_kinds;
    QList<platform::DeviceRecord> m_devices;
    std::optional<std::size_t> m_lastStamp;
    int m_roundsSinceScan = 0;
};
