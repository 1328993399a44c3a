#pragma once

#include "threads/Worker.h"

#include <QString>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>

class ProgramControl;

/// Controls the updater program: keeps it running in the background, and for an upgrade ends it and
/// starts it again with the path of the application to replace.
///
/// start() and timeOut() return at once. Their steps run in order on a worker thread. The state
/// after them:
///
///                  isUpdating()   watchdog restarts the background updater
///     at first     false          yes
///     start()      true           no, from before the kill on
///     timeOut()    false          yes
///
/// A completed upgrade changes neither, since the program quits then. An updater that cannot be
/// ended or started is logged and otherwise ignored: the caller sets the time-out of the upgrade.
class UpgradeControl
{
public:
    /// @param pauseAfterKill  time the killed updater is given before it is started again
    UpgradeControl(ProgramControl& programs, QString executablePath,
                   std::chrono::milliseconds pauseAfterKill = std::chrono::seconds(3));
    ~UpgradeControl();

    /// Ends the worker; a step under way does not complete its pause. Later steps are ignored. Any
    /// thread but the worker.
    void end();
    void start();
    void timeOut();
    /// One pass of the once-a-second loop: starts a missing updater on the first pass and on every
    /// fifth one after it, unless a step of an upgrade is running. One thread.
    void watchdogPass(const std::stop_token& stop = {});
    /// True from the start of an upgrade until its time-out. Any thread.
    [[nodiscard]] bool isUpdating() const { return m_updateStarted; }

private:
    enum class Step { Upgrade, TimeOut };

    void post(Step step);
    void run(const std::stop_token& stop);
    void upgrade(const std::stop_token& stop);
    void giveUp(const std::stop_token& stop);

    ProgramControl& m_programs;
    const QString m_executablePath;
    const std::chrono::milliseconds m_pauseAfterKill;
    std::atomic_bool m_keepUpdaterAlive = true;
    std::atomic_bool m_updateStarted = false;
    int m_keepAliveTick = 0;
    std::mutex m_updateMutex;

    std::mutex m_stepsMutex;
    std::condition_variable_any m_stepPosted;
    std::deque<Step> m_steps;
    bool m_ended = false;
    // Last, so that it has ended before anything it uses goes.
    std::unique_ptr<Worker> m_worker;
};
