#include "device/DeviceControlChange.h"

#include "device/WindowRequests.h"
#include "persistence/FileInfo.h"

using namespace Qt::StringLiterals;

namespace
{

constexpr int Selected = 2;
constexpr int FromThisProgram = 0;
constexpr int FromDisplay = 1;

} // namespace

int DeviceControl::connectMode() const
{
    return stored(m_connectMode);
}

void DeviceControl::setConnectMode(int mode)
{
    if (!change(m_connectMode, mode,
                {"DeviceControl::setConnectMode", "m_connectMode:", ", newConnectMode:"}))
        return;
    emit connectModeChanged();
    if (mode != 0)
        requestWindow(mode);
    else
        forgetDisplay();
}

/// A display that connects brings the window to the front; one in a mode unknown here is too old.
void DeviceControl::requestWindow(int mode)
{
    const bool isSupported = mode == 1 || mode == 2;
    m_services.windows.askToShowCheckRemote(!isSupported);
    m_services.windows.askToShow(true);
}

void DeviceControl::forgetDisplay()
{
    setByodSwitch(0, FromDisplay);
    setZoomSwitch(0, FromDisplay);
    m_services.windows.askToShowCheckRemote(false);
    setVolumeReady(0);
    setShareStatusReady(0);
    setRemoteVerReady(0);
}

int DeviceControl::volume() const
{
    return stored(m_volume);
}

void DeviceControl::setVolume(int newVolume, int direction)
{
    constexpr auto Function = "DeviceControl::setVolume";
    if (!change(m_volume, newVolume, direction, {Function, "m_volume:", ", newVolume:"}))
        return;
    emit volumeChanged();
    if (direction == FromThisProgram)
        m_services.channel.send(Function, ::DealChannelMsg::buildVolume(newVolume));
}

int DeviceControl::byodSwitch() const
{
    return stored(m_byodSwitch);
}

void DeviceControl::setByodSwitch(int newByodSwitch, int direction)
{
    constexpr auto Function = "DeviceControl::setByodSwitch";
    if (!change(m_byodSwitch, newByodSwitch, direction,
                {Function, "m_byodSwitch:", ", newByodSwitch:"}))
        return;
    emit byodSwitchChanged();
    if (direction == FromThisProgram && newByodSwitch == Selected)
        m_services.channel.send(Function, ::DealChannelMsg::buildByodStatus(newByodSwitch));
    saveDisableLocalDevices();
}

int DeviceControl::zoomSwitch() const
{
    return stored(m_zoomSwitch);
}

void DeviceControl::setZoomSwitch(int newZoomSwitch, int direction)
{
    constexpr auto Function = "DeviceControl::setZoomSwitch";
    if (!change(m_zoomSwitch, newZoomSwitch, direction,
                {Function, "m_zoomSwitch:", ", newZoomSwitch:"}))
        return;
    emit zoomSwitchChanged();
    if (direction == FromThisProgram && newZoomSwitch == Selected)
        m_services.channel.send(Function, ::DealChannelMsg::buildZoomStatus(newZoomSwitch));
}

QString DeviceControl::version() const
{
    return stored(m_version);
}

void DeviceControl::setVersion(const QString& newVersion)
{
    if (!change(m_version, newVersion, {"DeviceControl::setVersion", "m_version:", ", version:"}))
        return;
    emit versionChanged();
}

QString DeviceControl::newVersion() const
{
    return stored(m_new_version);
}

void DeviceControl::setNewVersion(const QString& newVersion)
{
    if (!change(m_new_version, newVersion,
                {"DeviceControl::setNewVersion", "m_new_version:", ", version:"}))
        return;
    emit newVersionChanged();
}

QString DeviceControl::k4vLowestVer() const
{
    return stored(m_k4vLowestVer);
}

void DeviceControl::setK4vLowestVer(const QString& newK4vLowestVer)
{
    if (!change(m_k4vLowestVer, newK4vLowestVer,
                {"DeviceControl::setK4vLowestVer", "m_k4vLowestVer:", ", newK4vLowestVer:"}))
        return;
    emit k4vLowestVerChanged();
}

QString DeviceControl::remoteVer() const
{
    return stored(m_remoteVer);
}

void DeviceControl::setRemoteVer(const QString& newRemoteVer)
{
    if (!change(m_remoteVer, newRemoteVer,
                {"DeviceControl::setRemoteVer", "m_remoteVer:", ", newRemoteVer:"}))
        return;
    emit remoteVerChanged();
}

int DeviceControl::vornMicStatus() const
{
    return stored(m_vornMicStatus);
}

void DeviceControl::setVornMicStatus(int newVornMicStatus)
{
    if (!change(m_vornMicStatus, newVornMicStatus,
                {"DeviceControl::setVornMicStatus", "m_vornMicStatus:", ", newVornMicStatus:"}))
        return;
    emit vornMicStatusChanged();
}

int DeviceControl::vornCamStatus() const
{
    return stored(m_vornCamStatus);
}

void DeviceControl::setVornCamStatus(int newVornCamStatus)
{
    if (!change(m_vornCamStatus, newVornCamStatus,
                {"DeviceControl::setVornCamStatus", "m_vornCamStatus:", ", newVornCamStatus:"}))
        return;
    emit vornCamStatusChanged();
}

int DeviceControl::vornSpkStatus() const
{
    return stored(m_vornSpkStatus);
}

void DeviceControl::setVornSpkStatus(int newVornSpkStatus)
{
    if (!change(m_vornSpkStatus, newVornSpkStatus,
                {"DeviceControl::setVornSpkStatus", "m_vornSpkStatus:", ", newVornSpkStatus:"}))
        return;
    emit vornSpkStatusChanged();
}

bool DeviceControl::supportLaunchZoom() const
{
    return stored(m_supportLaunchZoom);
}

void DeviceControl::setSupportLaunchZoom(bool newSupportLaunchZoom)
{
    if (!change(m_supportLaunchZoom, newSupportLaunchZoom,
                {"DeviceControl::setSupportLaunchZoom",
                 "m_supportLaunchZoom:", ", newSupportLaunchZoom:"}))
        return;
    emit supportLaunchZoomChanged();
    saveConfigValue(u"VORNApp/support_launch_zoom"_s, newSupportLaunchZoom);
}

bool DeviceControl::supportLaunchTeams() const
{
    return stored(m_supportLaunchTeams);
}

void DeviceControl::setSupportLaunchTeams(bool newSupportLaunchTeams)
{
    if (!change(m_supportLaunchTeams, newSupportLaunchTeams,
                {"DeviceControl::setSupportLaunchTeams",
                 "m_supportLaunchTeams:", ", newSupportLaunchTeams:"}))
        return;
    emit supportLaunchTeamsChanged();
    saveConfigValue(u"VORNApp/support_launch_teams"_s, newSupportLaunchTeams);
}

bool DeviceControl::supportLaunchGoogle() const
{
    return stored(m_supportLaunchGoogle);
}

void DeviceControl::setSupportLaunchGoogle(bool newSupportLaunchGoogle)
{
    if (!change(m_supportLaunchGoogle, newSupportLaunchGoogle,
                {"DeviceControl::setSupportLaunchGoogle",
                 "m_supportLaunchGoogle:", ", newSupportLaunchGoogle:"}))
        return;
    emit supportLaunchGoogleChanged();
    saveConfigValue(u"VORNApp/support_launch_google"_s, newSupportLaunchGoogle);
}

void DeviceControl::saveConfigValue(const QString& key, bool value)
{
    emit addTask(u"saveConfig"_s, {m_services.config.configPath(), key, value});
}

void DeviceControl::setVolumeReady(int ready)
{
    constexpr auto Function = "DeviceControl::setVolumeReady";
    if (!change(m_volume_ready, ready, {Function, "m_volume_ready:", ", ready:"}))
        return;
    if (ready == 0)
        return;
    Log::info(Function) << "emit volumeReady()";
    emit volumeReady();
}

void DeviceControl::setShareStatusReady(int ready)
{
    change(m_share_status_ready, ready,
           {"DeviceControl::setShareStatusReady", "m_share_status_ready:", ", ready:"});
}

void DeviceControl::setRemoteVerReady(int ready)
{
    change(m_remotever_ready, ready,
           {"DeviceControl::setRemoteVerReady", "m_remotever_ready:", ", ready:"});
}

int DeviceControl::frameIndex() const
{
    return stored(m_frameIndex);
}

void DeviceControl::setFrameIndex(int newFrameIndex)
{
    {
        const std::scoped_lock lock(m_stateMutex);
        if (m_frameIndex == newFrameIndex)
            return;
        m_frameIndex = newFrameIndex;
    }
    emit frameIndexChanged();
}
