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

/// Deals with the updater program: keeps it running in the background, and for an upgrade stops it
/// and starts it again with the path of the application to replace.
///
/// start() and timeOut() return at once; their steps run in order on a worker thread, and take as
/// long as the killing and the pause. After them:
///
///                  isUpdating()   watchdog keeps the background updater
///     at first     false          yes
///     start()      true           no, from before the kill on
///     timeOut()    false          yes
///
/// A completed upgrade changes neither: the program quits then. What the updater does, or that it
/// cannot be killed or started, is logged and otherwise ignored; whoever waits for the upgrade sets
/// the time-out.
class UpgradeControl
{
public:
    /// @param pauseAfterKill  time the killed updater is given before it is started again
    UpgradeControl(ProgramControl& programs, QString executablePath,
                   std::chrono::milliseconds pauseAfterKill = std::chrono::seconds(3));
    ~UpgradeControl();

    /// Ends a step under way without waiting for its pause. No step is done after this. Any thread
    /// but the step's own.
    void end();
    void start();
    void timeOut();
    /// One pass of the once-a-second loop: looks after the updater on the first pass and every
    /// fifth one after it, unless an upgrade step is running.
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
