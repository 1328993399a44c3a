#pragma once

#include <array>
#include <cstddef>
#include <ctime>
#include <string_view>

#include <csignal>
#include <sys/types.h>

/// The crash report's text and file, written with what a signal handler may use: no memory is
/// allocated and no lock taken, but for the names of the libraries' functions, which come last.
namespace platform
{

/// Text of bounded length; what does not fit is cut off.
class FixedText
{
public:
    FixedText& operator<<(std::string_view text);
    FixedText& operator<<(long number);
    FixedText& hex(unsigned long number);
    FixedText& padded(int number, int digits);
    void clear() { m_length = 0, m_text[0] = '\0'; }

    [[nodiscard]] const char* c_str() const { return m_text.data(); }
    [[nodiscard]] std::string_view view() const { return {m_text.data(), m_length}; }

private:
    std::array<char, 512> m_text{};
    std::size_t m_length = 0;
};

/// Local time of a UTC offset, since asking for the zone takes a lock.
struct LocalTime {
    int year, month, day, hour, minute, second;
};
[[nodiscard]] LocalTime localTime(std::time_t utc, long offsetSeconds);

struct Crash {
    std::string_view program;
    LocalTime time{};
    pid_t process = 0;
    pid_t thread = 0;
    int signal = 0;                  ///< 0: an exception nobody caught
    const siginfo_t* info = nullptr; ///< with a signal
    const void* context = nullptr;   ///< ucontext_t, with a signal
    std::string_view exception;      ///< type and text, with an exception
};

/// Name of the file a crash is reported in, relative to the working directory.
[[nodiscard]] FixedText crashFileName(const Crash& crash);

/// Writes the whole report; errno of what failed, or 0.
int writeCrashReport(int fd, const Crash& crash);

} // namespace platform
