#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <ctime>
#include <string_view>

#include <csignal>
#include <sys/types.h>

/// Text and file of the crash report. Everything here is async-signal-safe: it allocates no memory
/// and takes no lock, except for the names of library functions, which are written last.
namespace platform
{

/// Text of bounded length; text that does not fit is cut off.
class FixedText
{
public:
    FixedText& operator<<(std::string_view text);
    FixedText& operator<<(long number);
    FixedText& hex(unsigned long number);
    /// @param width  least number of digits; zeros are put in front
    FixedText& padded(unsigned number, std::size_t width);

    [[nodiscard]] const char* c_str() const { return m_text.data(); }
    [[nodiscard]] std::string_view view() const { return {m_text.data(), m_length}; }

private:
    FixedText& appendPadded(unsigned long number, std::size_t width, int base);

    std::array<char, 512> m_text{};
    std::size_t m_length = 0;
};

/// Local time at a known UTC offset; looking the offset up would take a lock.
struct LocalTime {
    LocalTime() = default;
    LocalTime(std::time_t utc, long offsetSeconds);

    std::chrono::year_month_day date{};
    std::chrono::hh_mm_ss<std::chrono::seconds> clock{};

private:
    explicit LocalTime(std::chrono::sys_seconds time);
};

struct Crash {
    std::string_view program;
    LocalTime time;
    pid_t process = 0;
    pid_t thread = 0;
    int signal = 0;                  ///< 0: an uncaught exception
    const siginfo_t* info = nullptr; ///< set for a signal
    const void* context = nullptr;   ///< ucontext_t, set for a signal
    std::string_view exception;      ///< type and text, set for an exception
};

/// Name of the report file, relative to the working directory.
[[nodiscard]] FixedText crashFileName(const Crash& crash);

/// Writes the whole report. Returns 0, or errno of the first failure.
int writeCrashReport(int fd, const Crash& crash);

} // namespace platform
