#pragma once

#include "device/LoggedValue.h"

#include <QObject>
#include <QTimer>
#include <QVariantList>

#include <mutex>

class DisplayState;
class FileInfo;

/// The "Smart BYOD Switch": whether this PC's own devices are switched off while BYOD is selected.
///
/// The registry value "disable_local_dev" depends on this setting and on the source that the
/// display reports. A change of the setting is written at once, further ones at the end of an
/// interval; a change of the source is always written at once.
class RemoteDeviceSwitch : public QObject
{
    Q_OBJECT

public:
    /// Both have to outlive this object.
    RemoteDeviceSwitch(const FileInfo& config, DisplayState& display);

    /// Any thread.
    bool useRemoteDevice() const { return m_useRemoteDevice.get(); }
    /// Stores the setting, and saves it if it comes from this program. Main thread.
    void setUseRemoteDevice(bool checked, Direction direction);
    /// Writes the registry value and starts the interval within which the setting is not written
    /// again. Main thread.
    /// @param force  write also when the setting is the one that was written last
    void applyUseRemoteDevice(bool force);
    /// Writes the registry value unless it is the one given, which an earlier run may have left.
    void reconcile(bool written);
    /// Writes 0, so that no device stays switched off after the end of the program, and nothing
    /// from then on: other threads may go on while a library ends the process. Any thread.
    void release();

signals:
    void useRemoteDeviceChecked();
    void addTask(QString task, QVariantList args);

private:
    void saveDisableLocalDevices();
    void post(bool disable);

    const FileInfo& m_config;
    DisplayState& m_display;

    LoggedValue<bool> m_useRemoteDevice; // guarded by its own mutex
    /// Held while the registry value is computed and posted, so that the task posted last has the
    /// newest state. Recursive, since a slot connected directly to addTask() may set the source.
    std::recursive_mutex m_saveOrderMutex;
    bool m_isDisablePosted = false; // under m_saveOrderMutex
    bool m_isReleased = false;      // under m_saveOrderMutex

    // Main thread only.
    bool m_useRemoteDeviceLast = true;
    QTimer m_applyTimer;
};
