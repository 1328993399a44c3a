// Preloaded into a program, shifts its clocks and refuses it large blocks of memory, as a file says
// that is changed while the program runs.
//
//     VORN_FAULTS=<file> LD_PRELOAD=<this library> <program>
//
// Faults.h describes the file.
#include "bench/faults/Faults.h"

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <ctime>

#include <dlfcn.h>
#include <fcntl.h>
#include <pthread.h>
#include <semaphore.h>
#include <sys/mman.h>
#include <sys/time.h>

#define FAULTY extern "C" __attribute__((visibility("default")))

extern "C" {
void* __libc_malloc(std::size_t);                // NOLINT: names of the C library
void* __libc_calloc(std::size_t, std::size_t);   // NOLINT
void* __libc_realloc(void*, std::size_t);        // NOLINT
void* __libc_memalign(std::size_t, std::size_t); // NOLINT
}

namespace
{

const Faults g_none;
const volatile Faults* g_faults = &g_none; // changed by other processes

// The file is mapped before main(), and never unmapped.
const bool g_isMapped = [] {
    const char* const path = std::getenv("VORN_FAULTS");
    const int fd = path ? ::open(path, O_RDONLY | O_CLOEXEC) : -1;
    if (fd < 0)
        return false;
    void* const place = ::mmap(nullptr, sizeof(Faults), PROT_READ, MAP_SHARED, fd, 0);
    if (place != MAP_FAILED)
        g_faults = static_cast<const Faults*>(place);
    return place != MAP_FAILED;
}();

template <typename Result, typename... Args>
Result call(const char* name, Args... args)
{
    return reinterpret_cast<Result (*)(Args...)>(::dlsym(RTLD_NEXT, name))(args...);
}

std::int64_t shiftOf(clockid_t clock)
{
    switch (clock) {
    case CLOCK_REALTIME:
    case CLOCK_REALTIME_COARSE:
        return g_faults->timeOfDay;
    case CLOCK_MONOTONIC:
    case CLOCK_MONOTONIC_COARSE:
    case CLOCK_MONOTONIC_RAW:
    case CLOCK_BOOTTIME:
        return g_faults->monotonic;
    default:
        return 0;
    }
}

/// The end of a wait as the system counts it.
timespec unshifted(clockid_t clock, const timespec& end)
{
    return {end.tv_sec - shiftOf(clock), end.tv_nsec};
}

/// Which clock a wait uses is an attribute of the object; the size of the number shows it as well.
clockid_t clockOf(const timespec& end)
{
    constexpr std::int64_t Year2001 = 1'000'000'000;
    return end.tv_sec > Year2001 ? CLOCK_REALTIME : CLOCK_MONOTONIC;
}

bool isRefused(std::size_t size)
{
    const auto limit = g_faults->failingSize;
    if (limit <= 0 || size < std::size_t(limit))
        return false;
    errno = ENOMEM;
    return true;
}

} // namespace

FAULTY int clock_gettime(clockid_t clock, timespec* time)
{
    const int result = call<int>("clock_gettime", clock, time);
    if (result == 0)
        time->tv_sec += shiftOf(clock);
    return result;
}

FAULTY int gettimeofday(timeval* time, void* zone)
{
    const int result = call<int>("gettimeofday", time, zone);
    if (result == 0)
        time->tv_sec += shiftOf(CLOCK_REALTIME);
    return result;
}

FAULTY time_t time(time_t* result)
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    if (result)
        *result = now.tv_sec;
    return now.tv_sec;
}

FAULTY int pthread_cond_timedwait(pthread_cond_t* condition, pthread_mutex_t* mutex,
                                  const timespec* end)
{
    const timespec real = unshifted(clockOf(*end), *end);
    return call<int>("pthread_cond_timedwait", condition, mutex, &real);
}

FAULTY int pthread_cond_clockwait(pthread_cond_t* condition, pthread_mutex_t* mutex,
                                  clockid_t clock, const timespec* end)
{
    const timespec real = unshifted(clock, *end);
    return call<int>("pthread_cond_clockwait", condition, mutex, clock, &real);
}

FAULTY int sem_timedwait(sem_t* semaphore, const timespec* end)
{
    const timespec real = unshifted(CLOCK_REALTIME, *end);
    return call<int>("sem_timedwait", semaphore, &real);
}

FAULTY int sem_clockwait(sem_t* semaphore, clockid_t clock, const timespec* end)
{
    const timespec real = unshifted(clock, *end);
    return call<int>("sem_clockwait", semaphore, clock, &real);
}

FAULTY void* malloc(std::size_t size)
{
    return isRefused(size) ? nullptr : __libc_malloc(size);
}

FAULTY void* calloc(std::size_t count, std::size_t size)
{
    return isRefused(count * size) ? nullptr : __libc_calloc(count, size);
}

FAULTY void* realloc(void* block, std::size_t size)
{
    return isRefused(size) ? nullptr : __libc_realloc(block, size);
}

FAULTY void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    return isRefused(size) ? nullptr : __libc_memalign(alignment, size);
}

FAULTY int posix_memalign(void** block, std::size_t alignment, std::size_t size)
{
    if (isRefused(size))
        return ENOMEM;
    *block = __libc_memalign(alignment, size);
    return *block ? 0 : ENOMEM;
}
