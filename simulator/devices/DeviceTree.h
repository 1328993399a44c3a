#pragma once

#include <QString>

namespace simulator
{

/// A folder in which the display's devices can be plugged and unplugged, for a program that finds
/// its devices there. Other content of the folder is left alone. Main thread only.
///
/// On Linux it is a tree of device attributes, laid out as /sys. A device is built in another place
/// and renamed into the tree, so that it appears complete. The entries in the class folders, by
/// which readers find it, are added last and removed first. As with hardware, a device can vanish
/// while it is being read. On Windows it is the file devices.txt, with the lines that
/// platform/windows/DeviceEnumeration.cpp reads; it is replaced as a whole.
class DeviceTree
{
public:
    enum class Device { Microphone, Camera, Speaker };

    DeviceTree() = default;
    ~DeviceTree() { close(); }
    Q_DISABLE_COPY_MOVE(DeviceTree)

    /// Keeps the tree in @p root, which is created if missing, and removes the devices that a
    /// simulator left there when it crashed. Returns the reason of a failure, otherwise an empty
    /// text.
    [[nodiscard]] QString open(const QString& root);
    /// Unplugs all devices and removes the folders that were created.
    void close();

    [[nodiscard]] bool isOpen() const { return !m_root.isEmpty(); }
    /// Absolute path. Empty when not open.
    [[nodiscard]] const QString& root() const { return m_root; }

    [[nodiscard]] bool isPlugged(Device device) const;
    /// Returns the reason of a failure, after which the device is not plugged in, otherwise an
    /// empty text. Does nothing if the device is plugged in already.
    [[nodiscard]] QString plug(Device device);
    void unplug(Device device);

private:
    [[nodiscard]] QString path(const QString& relative) const { return m_root + u'/' + relative; }

    QString m_root;
    bool m_madeRoot = false;
};

} // namespace simulator
