#include "logging/FloodLimit.h"

#include <utility>

namespace Log
{

FloodLimit::FloodLimit(const char* function, std::function<Clock::time_point()> now)
    : m_function(function)
    , m_now(std::move(now))
    , m_begin(m_now())
{
}

FloodLimit::~FloodLimit()
{
    report(m_dropped);
}

bool FloodLimit::admits()
{
    int dropped = 0;
    bool admitted = true;
    {
        const std::scoped_lock lock(m_mutex);
        dropped = beginSecond();
        admitted = m_admitted < EventsPerSecond;
        ++(admitted ? m_admitted : m_dropped);
    }
    report(dropped);
    return admitted;
}

void FloodLimit::flush()
{
    int dropped = 0;
    {
        const std::scoped_lock lock(m_mutex);
        dropped = beginSecond();
    }
    report(dropped);
}

/// Returns the number of dropped events if a second is over. Needs the lock.
int FloodLimit::beginSecond()
{
    const Clock::time_point now = m_now();
    if (now - m_begin < std::chrono::seconds(1))
        return 0;
    m_begin = now;
    m_admitted = 0;
    return std::exchange(m_dropped, 0);
}

void FloodLimit::report(int dropped) const
{
    if (dropped > 0)
        info(m_function) << "… and " << dropped << " more";
}

} // namespace Log
