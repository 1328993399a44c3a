#include "device/StatusLoop.h"

#include "device/DealChannelMsg.h"
#include "device/DisplayState.h"
#include "device/LocalDevices.h"
#include "device/MessageChannel.h"
#include "launch/ProgramControl.h"
#include "persistence/Keys.h"

namespace
{

constexpr int QueriesPerLogLine = 20;
constexpr auto LoopFunction = "DeviceControl::DetectProgramStatusProc";

} // namespace

StatusLoop::StatusLoop(Services services, Timing timing)
    : m_services(std::move(services))
    , m_timing(timing)
    , m_version({"DeviceControl::setVersion", "m_version:", ", version:"})
    , m_newVersion({"DeviceControl::setNewVersion", "m_new_version:", ", version:"})
    , m_upgrade(m_services.programs, m_services.executablePath, timing.pauseAfterUpdaterKill)
{
}

StatusLoop::~StatusLoop()
{
    end();
}

void StatusLoop::readDeviceRules(const QString& path)
{
    m_services.localDevices->ReadJsonConfig(path);
}

void StatusLoop::start()
{
    m_worker =
        std::make_unique<Worker>("status", [this](const std::stop_token& stop) { run(stop); });
}

void StatusLoop::requestStop()
{
    if (m_worker)
        m_worker->requestStop();
}

void StatusLoop::end()
{
    if (m_worker)
        m_worker->end();
    m_upgrade.end();
}

void StatusLoop::run(const std::stop_token& stop)
{
    Log::info(LoopFunction) << "thread start";
    while (!stop.stop_requested()) {
        m_upgrade.watchdogPass(stop);
        loadVersion();
        loadNewVersion();
        reportVersions(LoopFunction);
        m_services.localDevices->checkDevices(m_services.display);
        queryFirmwareVersion();
        waitForStop(stop, m_timing.statusPass);
    }
    Log::info(LoopFunction) << "thread end";
}

void StatusLoop::setVersion(const QString& newVersion)
{
    if (m_version.set(newVersion))
        emit versionChanged();
}

void StatusLoop::setNewVersion(const QString& newVersion)
{
    if (m_newVersion.set(newVersion))
        emit newVersionChanged();
}

void StatusLoop::loadVersion()
{
    const QString value = m_services.registryValue(keys::registry::InstalledVersion);
    if (value == version() || value.isEmpty())
        return;
    Log::info("DeviceControl::loadVersion")
        << QString(keys::registry::Path) << ", version:" << value;
    setVersion(value);
}

void StatusLoop::loadNewVersion()
{
    const QString value = m_services.registryValue(keys::registry::NewVersion);
    if (value == newVersion() || value.isEmpty())
        return;
    Log::info("DeviceControl::loadNewVersion")
        << QString(keys::registry::Path) << ", newver:" << value;
    setNewVersion(value);
}

/// True when there is a newer version. Any difference counts as one.
bool StatusLoop::reportVersions(const char* function)
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

bool StatusLoop::checkUpdate()
{
    loadVersion();
    loadNewVersion();
    return reportVersions("DeviceControl::checkUpdate");
}

void StatusLoop::startUpdate()
{
    Log::info("DeviceControl::startUpdate")
        << "m_version:" << version() << ", m_new_version:" << newVersion();
    m_upgrade.start();
}

/// Asks on every second pass while a display is connected. Of these messages the first and then
/// every twentieth is logged.
void StatusLoop::queryFirmwareVersion()
{
    const ConnectMode mode = m_services.display.connectMode();
    if (mode != ConnectMode::Connected && mode != ConnectMode::Setup)
        return;
    const int tick = m_versionQueryTick++;
    if (tick % 2 != 0)
        return;
    const ChannelMessage query = DealChannelMsg::buildQuery(ChannelCommand::FirmwareVersion);
    if (tick / 2 % QueriesPerLogLine == 0)
        m_services.channel.send(LoopFunction, query);
    else
        m_services.channel.push(query);
}
