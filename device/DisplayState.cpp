#include "device/DisplayState.h"

#include "device/DealChannelMsg.h"
#include "device/MessageChannel.h"
#include "device/WindowRequests.h"
#include "persistence/Keys.h"

namespace
{

/// Changes of the mode that are kept for the pages. A display that floods loses the oldest ones.
constexpr std::size_t MaximumModes = 64;

} // namespace

DisplayState::DisplayState(MessageChannel& channel, WindowRequests& windows)
    : m_channel(channel)
    , m_windows(windows)
    , m_connectMode({"DeviceControl::setConnectMode", "m_connectMode:", ", newConnectMode:"})
    , m_volume({"DeviceControl::setVolume", "m_volume:", ", newVolume:"}, 75)
    , m_byodSwitch({"DeviceControl::setByodSwitch", "m_byodSwitch:", ", newByodSwitch:"})
    , m_zoomSwitch({"DeviceControl::setZoomSwitch", "m_zoomSwitch:", ", newZoomSwitch:"})
    , m_remoteVer({"DeviceControl::setRemoteVer", "m_remoteVer:", ", newRemoteVer:"})
    , m_k4vLowestVer({"DeviceControl::setK4vLowestVer", "m_k4vLowestVer:", ", newK4vLowestVer:"},
                     keys::DefaultLowestFirmware)
    , m_vornMicStatus(
          {"DeviceControl::setVornMicStatus", "m_vornMicStatus:", ", newVornMicStatus:"})
    , m_vornCamStatus(
          {"DeviceControl::setVornCamStatus", "m_vornCamStatus:", ", newVornCamStatus:"})
    , m_vornSpkStatus(
          {"DeviceControl::setVornSpkStatus", "m_vornSpkStatus:", ", newVornSpkStatus:"})
    , m_volumeReady({"DeviceControl::setVolumeReady", "m_volume_ready:", ", ready:"})
    , m_shareStatusReady(
          {"DeviceControl::setShareStatusReady", "m_share_status_ready:", ", ready:"})
    , m_remoteVerReady({"DeviceControl::setRemoteVerReady", "m_remotever_ready:", ", ready:"})
{
}

void DisplayState::setConnectMode(ConnectMode mode)
{
    {
        const std::scoped_lock lock(m_modesMutex);
        if (!m_connectMode.set(mode))
            return;
        m_modes.push_back(mode);
        if (m_modes.size() > MaximumModes)
            m_modes.pop_front();
    }
    emit connectModeChanged();
    if (mode == ConnectMode::None)
        resetDisplay();
    else
        requestWindow(mode);
}

std::optional<ConnectMode> DisplayState::takeConnectMode()
{
    const std::scoped_lock lock(m_modesMutex);
    if (m_modes.empty())
        return std::nullopt;
    const ConnectMode oldest = m_modes.front();
    m_modes.pop_front();
    return oldest;
}

/// The window comes forward, with a warning when the display's firmware is not supported.
void DisplayState::requestWindow(ConnectMode mode)
{
    const bool isSupported = mode == ConnectMode::Connected || mode == ConnectMode::Setup;
    m_windows.askToShowCheckRemote(!isSupported);
    m_windows.askToShow(true);
}

void DisplayState::resetDisplay()
{
    setByodSwitch(SourceState::Unavailable, Direction::FromDisplay);
    setZoomSwitch(SourceState::Unavailable, Direction::FromDisplay);
    m_windows.askToShowCheckRemote(false);
    setVolumeReady(0);
    setShareStatusReady(0);
    setRemoteVerReady(0);
}

void DisplayState::setVolume(int newVolume, Direction direction)
{
    if (!m_volume.set(newVolume, direction))
        return;
    emit volumeChanged();
    if (direction == Direction::FromProgram)
        m_channel.send("DeviceControl::setVolume", DealChannelMsg::buildVolume(newVolume));
}

void DisplayState::setByodSwitch(SourceState newByodSwitch, Direction direction)
{
    if (!m_byodSwitch.set(newByodSwitch, direction))
        return;
    emit byodSwitchChanged();
    if (direction == Direction::FromProgram && newByodSwitch == SourceState::Selected)
        m_channel.send("DeviceControl::setByodSwitch",
                       DealChannelMsg::buildByodStatus(newByodSwitch));
    emit byodSwitchApplied();
}

void DisplayState::setZoomSwitch(SourceState newZoomSwitch, Direction direction)
{
    if (!m_zoomSwitch.set(newZoomSwitch, direction))
        return;
    emit zoomSwitchChanged();
    if (direction == Direction::FromProgram && newZoomSwitch == SourceState::Selected)
        m_channel.send("DeviceControl::setZoomSwitch",
                       DealChannelMsg::buildZoomStatus(newZoomSwitch));
}

void DisplayState::setRemoteVer(const QString& newRemoteVer)
{
    if (m_remoteVer.set(newRemoteVer))
        emit remoteVerChanged();
}

void DisplayState::setK4vLowestVer(const QString& newK4vLowestVer)
{
    if (m_k4vLowestVer.set(newK4vLowestVer))
        emit k4vLowestVerChanged();
}

void DisplayState::setVornMicStatus(int newVornMicStatus)
{
    if (m_vornMicStatus.set(newVornMicStatus))
        emit vornMicStatusChanged();
}

void DisplayState::setVornCamStatus(int newVornCamStatus)
{
    if (m_vornCamStatus.set(newVornCamStatus))
        emit vornCamStatusChanged();
}

void DisplayState::setVornSpkStatus(int newVornSpkStatus)
{
    if (m_vornSpkStatus.set(newVornSpkStatus))
        emit vornSpkStatusChanged();
}

void DisplayState::setVolumeReady(int ready)
{
    if (!m_volumeReady.set(ready) || ready == 0)
        return;
    Log::info("DeviceControl::setVolumeReady") << "emit volumeReady()";
    emit volumeReady();
}

void DisplayState::setShareStatusReady(int ready)
{
    m_shareStatusReady.set(ready);
}

void DisplayState::setRemoteVerReady(int ready)
{
    m_remoteVerReady.set(ready);
}

void DisplayState::startByod()
{
    m_channel.send("DeviceControl::startBYOD",
                   DealChannelMsg::buildQuery(ChannelCommand::StartByod));
}

void DisplayState::startSetup()
{
    m_channel.send("DeviceControl::startSetupBarOOBE",
                   DealChannelMsg::buildCommand(ChannelCommand::StartSetup));
}
