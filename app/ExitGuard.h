#pragma once

#include <functional>

/// Ends what must not go on when the process is ended by an exit() that is not ours: the library of
/// the windowing system calls it when its server goes. Objects of static life are destroyed then,
/// while nothing on main()'s stack is.
///
/// Made once in a process, when all that the work needs of static life has been used: what is made
/// later is destroyed before the work is done.
class ExitGuard
{
public:
    /// @param work  called on the thread that exits, which may be any
    explicit ExitGuard(std::function<void()> work);
    /// Waits for work that is being done.
    ~ExitGuard();
    ExitGuard(const ExitGuard&) = delete;
    ExitGuard& operator=(const ExitGuard&) = delete;

private:
    const std::function<void()> m_work;
};
