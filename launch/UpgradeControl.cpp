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
    {
        const std::scoped_lock lock(m_stepsMutex);
        m_stopping = true;
    }
    m_stepPosted.notify_all();
    m_worker.reset();
}

void UpgradeControl::start()
{
    post(Step::Upgrade);
}

void UpgradeControl::timeOut()
{
    post(Step::TimeOut);
}

void UpgradeControl::watchdogPass()
{
    const std::unique_lock lock(m_updateMutex, std::try_to_lock);
    if (!lock || !m_keepUpdaterAlive)
        return;
    if (m_keepAliveTick++ % PassesPerCheck == 0)
        m_programs.keepProcessAlive(updaterName());
}

void UpgradeControl::post(Step step)
{
    {
        const std::scoped_lock lock(m_stepsMutex);
        m_steps.push_back(step);
        // Most runs of the program never upgrade, so the thread starts with the first step.
        if (!m_worker)
            m_worker =
                std::make_unique<Worker>("upgrade", [this](const StopRequest& stop) { run(stop); });
    }
    m_stepPosted.notify_one();
}

void UpgradeControl::run(const StopRequest& stop)
{
    std::unique_lock lock(m_stepsMutex);
    while (true) {
        m_stepPosted.wait(lock, [this] { return m_stopping || !m_steps.empty(); });
        if (m_stopping)
            return;
        const Step step = m_steps.front();
        m_steps.pop_front();
        lock.unlock();
        if (step == Step::Upgrade)
            upgrade(stop);
        else
            giveUp();
        lock.lock();
    }
}

void UpgradeControl::upgrade(const StopRequest& stop)
{
    constexpr auto Function = "DeviceControl::startUpdate";
    Log::info(Function) << "Execute upgrade tasks";
    const std::scoped_lock lock(m_updateMutex);
    m_updateStarted = true;
    m_keepUpdaterAlive = false;
    Log::info(Function) << "kill:" << updaterName();
    m_programs.killProcess(updaterName());
    if (stop.waitFor(m_pauseAfterKill))
        return;
    Log::info(Function) << "start:" << updaterName();
    m_programs.startProcess(updaterName(), {u"update"_s, m_executablePath});
}

void UpgradeControl::giveUp()
{
    constexpr auto Function = "DeviceControl::updateTimeout";
    Log::info(Function) << "update timeout";
    const std::scoped_lock lock(m_updateMutex);
    m_updateStarted = false;
    Log::info(Function) << "kill:" << updaterName();
    m_programs.killProcess(updaterName());
    m_keepUpdaterAlive = true;
}
