#include "platform/linux/CrashReport.h"

#include "platform/linux/ProgramSymbols.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
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

constexpr int MaxFrames = 128;

std::string_view signalName(int signal)
{
    switch (signal) {
    case SIGSEGV:
        return "SIGSEGV, invalid memory access";
    case SIGBUS:
        return "SIGBUS, mapped memory is gone";
    case SIGILL:
        return "SIGILL, illegal instruction";
    case SIGFPE:
        return "SIGFPE, arithmetic error";
    case SIGABRT:
        return "SIGABRT, aborted";
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
        if (crash.info->si_code > 0) { // otherwise the field holds the sender
            line << ", address ";
            line.hex(reinterpret_cast<std::uintptr_t>(crash.info->si_addr));
        }
    }
    line << "\n";
    output.write(line);
}

void appendTime(FixedText& text, const platform::LocalTime& time, std::string_view dateSeparator,
                std::string_view middle, std::string_view clockSeparator)
{
    const auto number = [](auto value) { return static_cast<unsigned>(value.count()); };
    text.padded(static_cast<unsigned>(int(time.date.year())), 4) << dateSeparator;
    text.padded(unsigned(time.date.month()), 2) << dateSeparator;
    text.padded(unsigned(time.date.day()), 2) << middle;
    text.padded(number(time.clock.hours()), 2) << clockSeparator;
    text.padded(number(time.clock.minutes()), 2) << clockSeparator;
    text.padded(number(time.clock.seconds()), 2);
}

void writeHead(Output& output, const platform::Crash& crash)
{
    FixedText text;
    text << crash.program << " crash report\ntime: ";
    appendTime(text, crash.time, "-", " ", ":");
    text << "\n";
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
    static constexpr std::array<std::string_view, 17> Names{
        "r8",  "r9",  "r10", "r11", "r12", "r13", "r14", "r15", "rdi",
        "rsi", "rbp", "rbx", "rdx", "rax", "rcx", "rsp", "rip"};
    for (std::size_t i = 0; i < Names.size(); ++i)
        writeRegister(output, Names[i], static_cast<unsigned long>(machine.gregs[i]));
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
    output.write("  unknown for this processor\n");
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
    const auto end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    return *this << std::string_view(digits.begin(), end);
}

FixedText& FixedText::hex(unsigned long number)
{
    return *this << "0x", appendPadded(number, 2 * sizeof(number), 16);
}

FixedText& FixedText::padded(unsigned number, std::size_t width)
{
    return appendPadded(number, width, 10);
}

FixedText& FixedText::appendPadded(unsigned long number, std::size_t width, int base)
{
    std::array<char, 24> digits;
    const auto end = std::to_chars(digits.begin(), digits.end(), number, base).ptr;
    const std::string_view text(digits.begin(), end);
    for (std::size_t length = text.size(); length < width; ++length)
        *this << "0";
    return *this << text;
}

LocalTime::LocalTime(std::time_t utc, long offsetSeconds)
    : LocalTime(std::chrono::sys_seconds(std::chrono::seconds(utc + offsetSeconds)))
{
}

LocalTime::LocalTime(std::chrono::sys_seconds time)
    : date(std::chrono::floor<std::chrono::days>(time))
    , clock(time - std::chrono::floor<std::chrono::days>(time))
{
}

FixedText crashFileName(const Crash& crash)
{
    FixedText name;
    name << "./" << crash.program << "-";
    appendTime(name, crash.time, "", "-", "");
    name << "-" << crash.process << "-" << crash.thread << ".dmp";
    return name;
}

int writeCrashReport(int fd, const Crash& crash)
{
    Output output(fd);
    writeHead(output, crash);
    writeRegisters(output, crash.context);
    std::array<void*, MaxFrames> memory{};
    const int count = ::backtrace(memory.data(), MaxFrames);
    const std::span<void* const> frames(memory.data(), static_cast<std::size_t>(count));
    writeAddresses(output, frames);
    writeModules(output);
    // Last, because naming the functions of libraries takes the loader's lock, which the crashed
    // thread may hold.
    writeStack(output, fd, frames);
    return output.error();
}

} // namespace platform
