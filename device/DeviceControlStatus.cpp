#include "device/DeviceControlChange.h"

#include "persistence/FileInfo.h"

using namespace Qt::StringLiterals;

namespace
{

constexpr int Selected = 2;
constexpr int QueriesPerLogLine = 20;

} // namespace

void DeviceControl::DetectProgramStatusProc(const std::stop_token& stop)
{
    constexpr auto Function = "DeviceControl::DetectProgramStatusProc";
    Log::info(Function) << "thread start";
    while (!stop.stop_requested()) {
        m_upgrade.watchdogPass(stop);
        loadVersion();
        loadNewVersion();
        reportVersions(Function);
        m_services.localDevices->checkDevices(*this);
        queryFirmwareVersion();
        waitForStop(stop, m_timing.statusPass);
    }
    Log::info(Function) << "thread end";
}

void DeviceControl::loadVersion()
{
    const QString value = m_services.versionValue(u"version"_s);
    if (value == version() || value.isEmpty())
        return;
    Log::info("DeviceControl::loadVersion") << registryPath() << ", version:" << value;
    setVersion(value);
}

void DeviceControl::loadNewVersion()
{
    const QString value = m_services.versionValue(u"newver"_s);
    if (value == newVersion() || value.isEmpty())
        return;
    Log::info("DeviceControl::loadNewVersion") << registryPath() << ", newver:" << value;
    setNewVersion(value);
}

bool DeviceControl::reportVersions(const char* function)
{
    const QString installed = version();
    const QString newest = newVersion();
    if (installed.isEmpty() || newest.isEmpty())
        return false;
    const bool isUpdating = m_upgrade.isUpdating();
    if (installed != newest) {
        if (!isUpdating)
            emit hasNewVersion(true);
        return true;
    }
    emit hasNewVersion(false);
    if (isUpdating) {
        Log::info(function) << "emit updateCompleted()";
        emit updateCompleted();
    }
    return false;
}

bool DeviceControl::checkUpdate(int)
{
    loadVersion();
    loadNewVersion();
    return reportVersions("DeviceControl::checkUpdate");
}

void DeviceControl::startUpdate()
{
    Log::info("DeviceControl::startUpdate")
        << "m_version:" << version() << ", m_new_version:" << newVersion();
    m_upgrade.start();
}

void DeviceControl::updateTimeout()
{
    m_upgrade.timeOut();
}

/// The display answers with its firmware version; asked every second pass while it is connected.
void DeviceControl::queryFirmwareVersion()
{
    const int mode = connectMode();
    if (mode != 1 && mode != 2)
        return;
    const int tick = m_versionQueryTick++;
    if (tick % 2 != 0)
        return;
    const ChannelMessage query = ::DealChannelMsg::buildQuery(ChannelCommand::FirmwareVersion);
    if (tick / 2 % QueriesPerLogLine == 0) {
        m_services.channel.send("DeviceControl::DetectProgramStatusProc", query);
        return;
    }
    m_services.channel.push(query);
}

bool DeviceControl::useRemoteDevice() const
{
    return stored(m_useRemoteDevice);
}

void DeviceControl::setUseRemoteDevice(bool checked, int direction)
{
    constexpr auto Function = "DeviceControl::setUseRemoteDevice";
    if (!change(m_useRemoteDevice, checked, direction,
                {Function, "m_useRemoteDevice:", ", checked:"}))
        return;
    emit useRemoteDeviceChecked();
    if (direction != 0)
        return;
    saveConfigValue(u"VORNApp/use_remote_device"_s, checked);
    if (m_applyTimer.isActive()) {
        Log::info(Function) << "execute applyUseRemoteDevice after time:"
                            << m_applyTimer.remainingTime();
        return;
    }
    applyUseRemoteDevice(true);
}

void DeviceControl::applyUseRemoteDevice(bool force)
{
    {
        const std::scoped_lock lock(m_stateMutex);
        Log::info("DeviceControl::applyUseRemoteDevice")
            << "force:" << force << ", m_useRemoteDeviceLast:" << m_useRemoteDeviceLast
            << ", m_useRemoteDevice:" << m_useRemoteDevice;
        if (!force && m_useRemoteDeviceLast == m_useRemoteDevice)
            return;
        m_useRemoteDeviceLast = m_useRemoteDevice;
    }
    saveDisableLocalDevices();
    m_applyTimer.start(m_services.config.useRemoteDeviceInterval());
}

void DeviceControl::saveDisableLocalDevices()
{
    const std::scoped_lock order(m_saveOrderMutex);
    bool disable = false;
    {
        const std::scoped_lock lock(m_stateMutex);
        disable = m_useRemoteDevice && m_byodSwitch == Selected;
    }
    emit addTask(u"saveRegistry"_s, {registryPath(), u"disable_local_dev"_s, disable});
}
