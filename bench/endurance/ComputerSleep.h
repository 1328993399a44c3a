#pragma once

#include <QFile>

#include <chrono>

/// The sleep of the computer, for the process that makes it: the process stands still, and its
/// clocks go on by hours. Without the preloaded library of bench/faults they go on by themselves.
class ComputerSleep
{
public:
    /// Shifts the clocks through the file that the variable VORN_FAULTS names.
    ComputerSleep();

    void pass(std::chrono::hours length);
    /// By which the clocks are ahead.
    std::chrono::hours total() const { return m_total; }

private:
    QFile m_faults;
    std::chrono::hours m_total{0};
};
