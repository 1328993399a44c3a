#include "launch/UpgradeControl.h"

#include "launch/ProgramControl.h"
#include "logging/Log.h"

using namespace Qt::StringLiterals;

namespace
{

const QString& updaterName()
{
    static const QString s_name = u"PatchPilot.exe"_s;
    return s_name;
}

constexpr int PassesPerCheck = 5;

constexpr auto StartFunction = "DeviceControl::startUpdate";
constexpr auto TimeOutFunction = "DeviceControl::updateTimeout";

} // namespace

UpgradeControl::UpgradeControl(ProgramControl& programs, QString executablePath,
                               std::chrono::milliseconds pauseAfterKill)
    : m_programs(programs)
    , m_executablePath(std::move(executablePath))
    , m_pauseAfterKill(pauseAfterKill)
{
}

UpgradeControl::~UpgradeControl()
{
    end();
}

void UpgradeControl::end()
{
    {
        const std::scoped_lock lock(m_stepsMutex);
        m_ended = true;
    }
    if (m_worker)
        m_worker->end();
}

void UpgradeControl::start()
{
    Log::info(StartFunction) << "Execute upgrade tasks";
    post(Step::Upgrade);
}

void UpgradeControl::timeOut()
{
    Log::info(TimeOutFunction) << "update timeout";
    post(Step::TimeOut);
}

void UpgradeControl::watchdogPass(const std::stop_token& stop)
{
    const std::unique_lock lock(m_updateMutex, std::try_to_lock);
    if (!lock || !m_keepUpdaterAlive)
        return;
    if (m_keepAliveTick++ % PassesPerCheck == 0)
        m_programs.keepProcessAlive(updaterName(), stop);
}

void UpgradeControl::post(Step step)
{
    {
        const std::scoped_lock lock(m_stepsMutex);
        m_steps.push_back(step);
        // Most runs of the program never upgrade, so the thread starts with the first step.
        if (!m_worker && !m_ended)
            m_worker = std::make_unique<Worker>("upgrade",
                                                [this](const std::stop_token& stop) { run(stop); });
    }
    m_stepPosted.notify_one();
}

void UpgradeControl::run(const std::stop_token& stop)
{
    std::unique_lock lock(m_stepsMutex);
    while (true) {
        m_stepPosted.wait(lock, stop, [this] { return !m_steps.empty(); });
        if (stop.stop_requested())
            return;
        const Step step = m_steps.front();
        m_steps.pop_front();
        lock.unlock();
        if (step == Step::Upgrade)
            upgrade(stop);
        else
            giveUp(stop);
        lock.lock();
    }
}

void UpgradeControl::upgrade(const std::stop_token& stop)
{
    const std::scoped_lock lock(m_updateMutex);
    m_updateStarted = true;
    m_keepUpdaterAlive = false;
    Log::info(StartFunction) << "kill:" << updaterName();
    m_programs.killProcess(updaterName(), stop);
    if (waitForStop(stop, m_pauseAfterKill))
        return;
    Log::info(StartFunction) << "start:" << updaterName();
    m_programs.startProcess(updaterName(), {u"update"_s, m_executablePath}, stop);
}

void UpgradeControl::giveUp(const std::stop_token& stop)
{
    const std::scoped_lock lock(m_updateMutex);
    m_updateStarted = false;
    Log::info(TimeOutFunction) << "kill:" << updaterName();
    m_programs.killProcess(updaterName(), stop);
    m_keepUpdaterAlive = true;
}
