#pragma once

#include <cstdint>

/// The file that VORN_FAULTS names holds these numbers, in the byte order of the machine.
struct Faults {
    std::int64_t timeOfDay = 0;   ///< seconds to add to the time of day
    std::int64_t monotonic = 0;   ///< seconds to add to the monotonic clock
    std::int64_t failingSize = 0; ///< bytes from which an allocation fails; 0: none
};
