#include "device/DeviceControl.h"

#include "device/MessageChannel.h"
#include "launch/ProgramControl.h"
#include "persistence/FileInfo.h"
#include "persistence/Keys.h"

using namespace Qt::StringLiterals;

namespace
{

/// Ends with this program.
constexpr QLatin1StringView CompanionProgram{"BridgeAgent.exe"};

DeviceControl* s_instance = nullptr; // main thread; read by others while the channel is open

} // namespace

DeviceControl& DeviceControl::instance()
{
    Q_ASSERT(s_instance);
    return *s_instance;
}

DeviceControl::DeviceControl(Services services, Timing timing)
    : m_channel(services.channel)
    , m_programs(services.programs)
    , m_configPath(services.config.configPath())
    , m_supportLaunchZoom({"DeviceControl::setSupportLaunchZoom",
                           "m_supportLaunchZoom:", ", newSupportLaunchZoom:"},
                          true)
    , m_supportLaunchTeams({"DeviceControl::setSupportLaunchTeams",
                            "m_supportLaunchTeams:", ", newSupportLaunchTeams:"},
                           true)
    , m_supportLaunchGoogle({"DeviceControl::setSupportLaunchGoogle",
                             "m_supportLaunchGoogle:", ", newSupportLaunchGoogle:"},
                            true)
    , m_profile(services.profile)
    , m_display(services.channel, services.windows)
    , m_remoteDevice(services.config, m_display)
    , m_status({.programs = services.programs,
                .registryValue = std::move(services.registryValue),
                .localDevices = std::move(services.localDevices),
                .executablePath = services.executablePath,
                .channel = services.channel,
                .display = m_display},
               timing)
{
    forwardSignals();
    adoptConfig(services.config);
    m_status.readDeviceRules(services.rulesPath);
    if (!s_instance)
        s_instance = this;
}

DeviceControl::~DeviceControl()
{
    Log::info("DeviceControl::~DeviceControl") << "~DeviceControl";
    if (s_instance == this)
        s_instance = nullptr;
    endThreads();
}

void DeviceControl::adoptConfig(const FileInfo& config)
{
    setK4vLowestVer(config.k4vLowestVer());
    setUseRemoteDevice(config.useRemoteDevice());
    setSupportLaunchZoom(config.supportLaunchZoom());
    setSupportLaunchTeams(config.supportLaunchTeams());
    setSupportLaunchGoogle(config.supportLaunchGoogle());
}

void DeviceControl::start(TaskQueue::Actions tasks, UserSettings& userSettings,
                          CameraReports& camera)
{
    m_tasks.start(std::move(tasks));
    m_remoteDevice.reconcile(m_status.readRegistry(keys::registry::DisableLocalDevices) == "1"_L1);
    m_profile.restore(userSettings);
    m_receiver.emplace(m_channel, m_display, camera);
    m_pointer.bind();
    m_status.start();
    m_screen.start();
    m_pointer.start();
}

/// All are asked first, so that they end side by side.
void DeviceControl::endThreads()
{
    if (!m_isCompanionEnded.exchange(true))
        m_programs.killProcess(CompanionProgram, {});
    m_remoteDevice.release();
    m_pointer.requestStop();
    m_status.requestStop();
    m_screen.requestStop();
    m_tasks.requestStop();
    m_tasks.end();
    m_pointer.end();
    m_status.end();
    m_screen.end();
}

template <typename Part, typename... Args>
void DeviceControl::forward(const Part& part, void (Part::*from)(Args...),
                            void (DeviceControl::*to)(Args...))
{
    connect(&part, from, this, to, Qt::DirectConnection); // stays on the thread of the change
}

void DeviceControl::forwardSignals()
{
    connect(&m_display, &DisplayState::connectModeChanged, this, &DeviceControl::showConnectMode);
    forward(m_display, &DisplayState::volumeReady, &DeviceControl::volumeReady);
    forward(m_display, &DisplayState::volumeChanged, &DeviceControl::volumeChanged);
    forward(m_display, &DisplayState::byodSwitchChanged, &DeviceControl::byodSwitchChanged);
    forward(m_display, &DisplayState::zoomSwitchChanged, &DeviceControl::zoomSwitchChanged);
    forward(m_display, &DisplayState::remoteVerChanged, &DeviceControl::remoteVerChanged);
    forward(m_display, &DisplayState::k4vLowestVerChanged, &DeviceControl::k4vLowestVerChanged);
    forward(m_display, &DisplayState::vornMicStatusChanged, &DeviceControl::vornMicStatusChanged);
    forward(m_display, &DisplayState::vornCamStatusChanged, &DeviceControl::vornCamStatusChanged);
    forward(m_display, &DisplayState::vornSpkStatusChanged, &DeviceControl::vornSpkStatusChanged);
    forward(m_remoteDevice, &RemoteDeviceSwitch::useRemoteDeviceChecked,
            &DeviceControl::useRemoteDeviceChecked);
    forward(m_remoteDevice, &RemoteDeviceSwitch::addTask, &DeviceControl::addTask);
    forward(m_status, &StatusLoop::versionChanged, &DeviceControl::versionChanged);
    forward(m_status, &StatusLoop::newVersionChanged, &DeviceControl::newVersionChanged);
    forward(m_status, &StatusLoop::hasNewVersion, &DeviceControl::hasNewVersion);
    forward(m_status, &StatusLoop::updateCompleted, &DeviceControl::updateCompleted);
    forward(m_screen, &ScreenMirror::frameIndexChanged, &DeviceControl::frameIndexChanged);
    forward(m_profile, &UserProfile::loginChanged, &DeviceControl::loginChanged);
    forward(m_profile, &UserProfile::firstNameChanged, &DeviceControl::firstNameChanged);
    forward(m_profile, &UserProfile::lastNameChanged, &DeviceControl::lastNameChanged);
    forward(m_profile, &UserProfile::emailChanged, &DeviceControl::emailChanged);
    forward(m_profile, &UserProfile::companyChanged, &DeviceControl::companyChanged);
    forward(m_profile, &UserProfile::titleChanged, &DeviceControl::titleChanged);
    forward(m_profile, &UserProfile::tokenChanged, &DeviceControl::tokenChanged);
    forward(m_profile, &UserProfile::userImageChanged, &DeviceControl::userImageChanged);
    forward(m_profile, &UserProfile::userIdChanged, &DeviceControl::userIdChanged);
    forward(m_profile, &UserProfile::addTask, &DeviceControl::addTask);
    connect(this, &DeviceControl::addTask, &m_tasks.queue(), &TaskQueue::addTask);
}

/// Called once for each change. A display that is replaced reports 0 and 1 within one turn of the
/// event loop, and the pages react to both.
void DeviceControl::showConnectMode()
{
    const auto mode = m_display.takeConnectMode();
    if (!mode)
        return;
    m_shownMode = *mode;
    emit connectModeChanged();
}

int DeviceControl::DealChannelMsg(int id, const std::string& msg)
{
    return instance().handleChannelMessage(id, msg);
}

int DeviceControl::handleChannelMessage(int id, const std::string& msg)
{
    Q_ASSERT(m_receiver);
    m_receiver->handle(id, msg);
    return 0;
}

void DeviceControl::setVolume(int newVolume, int direction)
{
    m_display.setVolume(newVolume, Direction(direction));
}

void DeviceControl::setByodSwitch(int newByodSwitch, int direction)
{
    m_display.setByodSwitch(SourceState(newByodSwitch), Direction(direction));
}

void DeviceControl::setZoomSwitch(int newZoomSwitch, int direction)
{
    m_display.setZoomSwitch(SourceState(newZoomSwitch), Direction(direction));
}

void DeviceControl::setUseRemoteDevice(bool checked, int direction)
{
    m_remoteDevice.setUseRemoteDevice(checked, Direction(direction));
}

void DeviceControl::setSupportLaunchZoom(bool shown)
{
    if (!m_supportLaunchZoom.set(shown))
        return;
    emit supportLaunchZoomChanged();
    saveConfigValue(keys::config::LaunchZoom, shown);
}

void DeviceControl::setSupportLaunchTeams(bool shown)
{
    if (!m_supportLaunchTeams.set(shown))
        return;
    emit supportLaunchTeamsChanged();
    saveConfigValue(keys::config::LaunchTeams, shown);
}

void DeviceControl::setSupportLaunchGoogle(bool shown)
{
    if (!m_supportLaunchGoogle.set(shown))
        return;
    emit supportLaunchGoogleChanged();
    saveConfigValue(keys::config::LaunchGoogle, shown);
}

void DeviceControl::saveConfigValue(QLatin1StringView key, bool value)
{
    emit addTask(keys::task::SaveConfig, {m_configPath, key, value});
}

void DeviceControl::launchZoom()
{
    Log::info("DeviceControl::launchZoom") << "launchZoom";
    emit addTask(keys::task::LaunchZoom, {});
}

void DeviceControl::launchTeams()
{
    Log::info("DeviceControl::launchTeams") << "launchTeams";
    emit addTask(keys::task::LaunchTeams, {});
}

void DeviceControl::launchGoogleMeeting()
{
    Log::info("DeviceControl::launchGoogleMeeting") << "launchGoogleMeeting";
    emit addTask(keys::task::LaunchGoogleMeeting, {});
}

void DeviceControl::setVideoSink(const QVariant& sinkVariant)
{
    m_screen.setVideoSink(sinkVariant.value<QVideoSink*>());
}

void DeviceControl::monitorPlay(bool play)
{
    if (m_screen.monitorPlay(play) && play)
        m_pointer.bind();
}

void DeviceControl::getKeyboardEvent(int type, int key)
{
    Log::info("DeviceControl::getKeyboardEvent") << "type:" << type << ", key:" << key;
}
