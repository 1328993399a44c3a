#include "platform/linux/CrashReport.h"

#include "platform/linux/ProgramSymbols.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <span>

#include <execinfo.h>
#include <fcntl.h>
#include <sys/prctl.h>
#include <ucontext.h>
#include <unistd.h>

namespace
{

using platform::FixedText;

constexpr int kMaxFrames = 128;
constexpr long kSecondsPerDay = 86'400;

struct Date {
    int year, month, day;
};

// Proleptic Gregorian calendar, counted in years that begin in March, so that the leap day is last.
Date dateOfDay(long daysSinceEpoch)
{
    constexpr long kDaysToEpoch = 719'468; // from 0000-03-01
    constexpr long kDaysPer400Years = 146'097;
    const long days = daysSinceEpoch + kDaysToEpoch;
    const long era = (days >= 0 ? days : days - kDaysPer400Years + 1) / kDaysPer400Years;
    const long dayOfEra = days - era * kDaysPer400Years;
    const long yearOfEra =
        (dayOfEra - dayOfEra / 1'460 + dayOfEra / 36'524 - dayOfEra / 146'096) / 365;
    const long dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const long marchMonth = (5 * dayOfYear + 2) / 153;
    const long day = dayOfYear - (153 * marchMonth + 2) / 5 + 1;
    const long month = marchMonth < 10 ? marchMonth + 3 : marchMonth - 9;
    const long year = yearOfEra + era * 400 + (month <= 2 ? 1 : 0);
    return {static_cast<int>(year), static_cast<int>(month), static_cast<int>(day)};
}

std::string_view signalName(int signal)
{
    switch (signal) {
    case SIGSEGV:
        return "SIGSEGV, invalid memory access";
    case SIGBUS:
        return "SIGBUS, memory without a backing";
    case SIGILL:
        return "SIGILL, illegal instruction";
    case SIGFPE:
        return "SIGFPE, arithmetic error";
    case SIGABRT:
        return "SIGABRT, the program gave up";
    default:
        return "unknown";
    }
}

/// Writes to a file and remembers the first failure.
class Output
{
public:
    explicit Output(int fd)
        : m_fd(fd)
    {
    }

    void write(std::string_view text)
    {
        while (!text.empty() && m_error == 0) {
            const auto written = ::write(m_fd, text.data(), text.size());
            if (written >= 0)
                text.remove_prefix(static_cast<std::size_t>(written));
            else if (errno != EINTR)
                m_error = errno;
        }
    }

    void write(const FixedText& text) { write(text.view()); }
    [[nodiscard]] int error() const { return m_error; }

private:
    int m_fd;
    int m_error = 0;
};

void writeCause(Output& output, const platform::Crash& crash)
{
    FixedText line;
    if (crash.signal == 0) {
        output.write("uncaught exception: ");
        output.write(crash.exception);
        output.write("\n");
        return;
    }
    line << "signal: " << crash.signal << " (" << signalName(crash.signal) << ")";
    if (crash.info) {
        line << ", code " << crash.info->si_code;
        if (crash.info->si_code > 0) { // else it was sent, and the sender stands in that place
            line << ", address ";
            line.hex(reinterpret_cast<std::uintptr_t>(crash.info->si_addr));
        }
    }
    line << "\n";
    output.write(line);
}

void writeHead(Output& output, const platform::Crash& crash)
{
    FixedText text;
    text << crash.program << " crash report\ntime: ";
    text.padded(crash.time.year, 4) << "-";
    text.padded(crash.time.month, 2) << "-";
    text.padded(crash.time.day, 2) << " ";
    text.padded(crash.time.hour, 2) << ":";
    text.padded(crash.time.minute, 2) << ":";
    text.padded(crash.time.second, 2) << "\n";
    std::array<char, 17> name{};
    ::prctl(PR_GET_NAME, name.data());
    text << "process: " << crash.process << "\nthread: " << crash.thread << " (" << name.data()
         << ")\n";
    output.write(text);
    writeCause(output, crash);
}

void writeRegister(Output& output, std::string_view name, unsigned long value)
{
    FixedText line;
    line << "  " << name << " ";
    line.hex(value) << "\n";
    output.write(line);
}

void writeRegisters(Output& output, const void* context)
{
    if (!context)
        return;
    output.write("registers:\n");
    const mcontext_t& machine = static_cast<const ucontext_t*>(context)->uc_mcontext;
#if defined(__x86_64__)
    static constexpr std::array<std::string_view, 17> kNames{
        "r8",  "r9",  "r10", "r11", "r12", "r13", "r14", "r15", "rdi",
        "rsi", "rbp", "rbx", "rdx", "rax", "rcx", "rsp", "rip"};
    for (std::size_t i = 0; i < kNames.size(); ++i)
        writeRegister(output, kNames[i], static_cast<unsigned long>(machine.gregs[i]));
#elif defined(__aarch64__)
    for (int i = 0; i < 31; ++i) {
        FixedText name;
        name << "x" << i;
        writeRegister(output, name.view(), machine.regs[i]);
    }
    writeRegister(output, "sp", machine.sp);
    writeRegister(output, "pc", machine.pc);
#else
    static_cast<void>(machine);
    output.write("  not known for this processor\n");
#endif
}

void writeAddresses(Output& output, std::span<void* const> frames)
{
    output.write("addresses:");
    for (void* const frame : frames) {
        FixedText text;
        text << " ";
        text.hex(reinterpret_cast<std::uintptr_t>(frame));
        output.write(text);
    }
    output.write("\n");
}

void writeStack(Output& output, int fd, std::span<void* const> frames)
{
    output.write("stack:\n");
    for (void* const frame : frames) {
        const auto symbol = platform::programSymbol(frame);
        if (!symbol) {
            ::backtrace_symbols_fd(&frame, 1, fd);
            continue;
        }
        FixedText line;
        line << symbol->name << "+";
        line.hex(symbol->offset) << " [";
        line.hex(reinterpret_cast<std::uintptr_t>(frame)) << "]\n";
        output.write(line);
    }
}

void writeModules(Output& output)
{
    output.write("modules:\n");
    const int maps = ::open("/proc/self/maps", O_RDONLY | O_CLOEXEC);
    if (maps < 0)
        return;
    std::array<char, 4096> buffer{};
    ssize_t length = 0;
    while ((length = ::read(maps, buffer.data(), buffer.size())) > 0)
        output.write({buffer.data(), static_cast<std::size_t>(length)});
    ::close(maps);
}

} // namespace

namespace platform
{

FixedText& FixedText::operator<<(std::string_view text)
{
    const std::size_t length = std::min(text.size(), m_text.size() - 1 - m_length);
    std::memcpy(m_text.data() + m_length, text.data(), length);
    m_length += length;
    m_text[m_length] = '\0';
    return *this;
}

FixedText& FixedText::operator<<(long number)
{
    std::array<char, 24> digits;
    std::size_t at = digits.size();
    unsigned long rest =
        number < 0 ? 0UL - static_cast<unsigned long>(number) : static_cast<unsigned long>(number);
    do
        digits[--at] = static_cast<char>('0' + rest % 10);
    while ((rest /= 10) != 0);
    if (number < 0)
        digits[--at] = '-';
    return *this << std::string_view(digits.data() + at, digits.size() - at);
}

FixedText& FixedText::hex(unsigned long number)
{
    *this << "0x";
    for (int shift = 8 * sizeof(number) - 4; shift >= 0; shift -= 4)
        *this << std::string_view("0123456789abcdef" + (number >> shift & 0xF), 1);
    return *this;
}

FixedText& FixedText::padded(int number, int digits)
{
    long power = 1;
    for (int i = 1; i < digits; ++i)
        power *= 10;
    for (; power > 1 && number < power; power /= 10)
        *this << "0";
    return *this << static_cast<long>(number);
}

LocalTime localTime(std::time_t utc, long offsetSeconds)
{
    const long seconds = static_cast<long>(utc) + offsetSeconds;
    const long secondOfDay = (seconds % kSecondsPerDay + kSecondsPerDay) % kSecondsPerDay;
    const Date date = dateOfDay((seconds - secondOfDay) / kSecondsPerDay);
    return {date.year,
            date.month,
            date.day,
            static_cast<int>(secondOfDay / 3'600),
            static_cast<int>(secondOfDay / 60 % 60),
            static_cast<int>(secondOfDay % 60)};
}

FixedText crashFileName(const Crash& crash)
{
    FixedText name;
    name << "./" << crash.program << "-";
    name.padded(crash.time.year, 4).padded(crash.time.month, 2).padded(crash.time.day, 2) << "-";
    name.padded(crash.time.hour, 2).padded(crash.time.minute, 2).padded(crash.time.second, 2);
    name << "-" << crash.process << "-" << crash.thread << ".dmp";
    return name;
}

int writeCrashReport(int fd, const Crash& crash)
{
    Output output(fd);
    writeHead(output, crash);
    writeRegisters(output, crash.context);
    std::array<void*, kMaxFrames> memory{};
    const int count = ::backtrace(memory.data(), kMaxFrames);
    const std::span<void* const> frames(memory.data(), static_cast<std::size_t>(count));
    writeAddresses(output, frames);
    writeModules(output);
    // Last, since naming the functions of libraries takes the loader's lock, which the crashed
    // thread may hold.
    writeStack(output, fd, frames);
    return output.error();
}

} // namespace platform
