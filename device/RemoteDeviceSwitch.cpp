#include "device/RemoteDeviceSwitch.h"

#include "device/DisplayState.h"
#include "persistence/FileInfo.h"
#include "persistence/Keys.h"

#include <QThread>

RemoteDeviceSwitch::RemoteDeviceSwitch(const FileInfo& config, DisplayState& display)
    : m_config(config)
    , m_display(display)
    , m_useRemoteDevice({"DeviceControl::setUseRemoteDevice", "m_useRemoteDevice:", ", checked:"},
                        true)
{
    m_applyTimer.setSingleShot(true);
    connect(&m_applyTimer, &QTimer::timeout, this, [this] { applyUseRemoteDevice(false); });
    connect(&m_display, &DisplayState::byodSwitchApplied, this,
            &RemoteDeviceSwitch::saveDisableLocalDevices, Qt::DirectConnection);
}

void RemoteDeviceSwitch::setUseRemoteDevice(bool checked, Direction direction)
{
    Q_ASSERT(QThread::currentThread() == thread());
    if (!m_useRemoteDevice.set(checked, direction))
        return;
    emit useRemoteDeviceChecked();
    if (direction != Direction::FromProgram)
        return;
    emit addTask(keys::task::SaveConfig,
                 {m_config.configPath(), keys::config::RemoteDevice, checked});
    if (m_applyTimer.isActive()) {
        Log::info("DeviceControl::setUseRemoteDevice")
            << "execute applyUseRemoteDevice after time:" << m_applyTimer.remainingTime();
        return;
    }
    applyUseRemoteDevice(true);
}

void RemoteDeviceSwitch::applyUseRemoteDevice(bool force)
{
    Q_ASSERT(QThread::currentThread() == thread());
    const bool current = useRemoteDevice();
    Log::info("DeviceControl::applyUseRemoteDevice")
        << "force:" << force << ", m_useRemoteDeviceLast:" << m_useRemoteDeviceLast
        << ", m_useRemoteDevice:" << current;
    if (!force && m_useRemoteDeviceLast == current)
        return;
    m_useRemoteDeviceLast = current;
    saveDisableLocalDevices();
    m_applyTimer.start(m_config.useRemoteDeviceInterval());
}

/// Runs on the thread that changes the setting or the source.
void RemoteDeviceSwitch::saveDisableLocalDevices()
{
    const std::scoped_lock order(m_saveOrderMutex);
    post(useRemoteDevice() && m_display.byodSwitch() == SourceState::Selected);
}

void RemoteDeviceSwitch::reconcile(bool written)
{
    const std::scoped_lock order(m_saveOrderMutex);
    if (written != m_isDisablePosted)
        saveDisableLocalDevices();
}

void RemoteDeviceSwitch::release()
{
    const std::scoped_lock order(m_saveOrderMutex);
    if (m_isDisablePosted)
        post(false);
    m_isReleased = true;
}

/// With m_saveOrderMutex held.
void RemoteDeviceSwitch::post(bool disable)
{
    if (m_isReleased)
        return;
    m_isDisablePosted = disable;
    emit addTask(keys::task::SaveRegistry,
                 {keys::registry::Path, keys::registry::DisableLocalDevices, disable});
}
