#pragma once

#include <functional>

/// Gives the process an orderly end when an exit() that is not ours ends it: the library of the
/// windowing system calls it when its server goes. Nothing on main()'s stack is destroyed then, but
/// objects of static life would be, while Qt's own threads still use them; so the process ends as
/// soon as the work is done, with EXIT_FAILURE.
///
/// Made once in a process, as late as can be: what is of static life and made later is destroyed
/// before the work is done.
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
