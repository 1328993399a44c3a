#pragma once

#include <QString>

namespace simulator
{

/// A tree of device attributes, laid out as Linux shows its own below /sys, in which the display's
/// devices are plugged in and out. It stays out of the way of whatever else the folder holds.
/// Main thread only.
///
/// A device is built aside and appears whole; the entries in the class folders, by which readers
/// find it, come last and go first. A reader that is at a device while it is unplugged loses it
/// midway, as with hardware.
class DeviceTree
{
public:
    enum class Device { Microphone, Camera, Speaker };

    DeviceTree() = default;
    ~DeviceTree() { close(); }
    Q_DISABLE_COPY_MOVE(DeviceTree)

    /// Works in @p root from now on, which is made when missing, and clears away what a simulator
    /// that crashed left there. Empty, or why it cannot be.
    [[nodiscard]] QString open(const QString& root);
    /// Unplugs everything and removes all that was made.
    void close();

    [[nodiscard]] bool isOpen() const { return !m_root.isEmpty(); }
    /// Absolute; empty when not open.
    [[nodiscard]] const QString& root() const { return m_root; }

    [[nodiscard]] bool isPlugged(Device device) const;
    /// Empty, or why it cannot be; the device is then not there at all. Nothing happens to a device
    /// that is plugged in already.
    [[nodiscard]] QString plug(Device device);
    void unplug(Device device);

private:
    [[nodiscard]] QString path(const QString& relative) const { return m_root + u'/' + relative; }

    QString m_root;
    bool m_madeRoot = false;
};

} // namespace simulator
