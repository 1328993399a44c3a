#pragma once

#include <functional>

/// Ends the process in order when a library calls exit(), as the one of the windowing system does
/// when its server goes. Such an exit() does not destroy the objects on main()'s stack, but it
/// would destroy static objects while Qt's own threads still use them. The guard therefore does its
/// work and then ends the process at once, with EXIT_FAILURE.
///
/// Once in a process. Construct as late as possible: static objects constructed after the guard are
/// already destroyed when its work is done.
class ExitGuard
{
public:
    /// @param work  called on the thread that calls exit(), which may be any
    explicit ExitGuard(std::function<void()> work);
    /// Waits if the work is under way.
    ~ExitGuard();
    /// Does the work of the guard and ends the process, as exit() would; returns if there is no
    /// guard. Any thread.
    static void leaveNow();
    ExitGuard(const ExitGuard&) = delete;
    ExitGuard& operator=(const ExitGuard&) = delete;

private:
    const std::function<void()> m_work;
};
