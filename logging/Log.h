#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

/// Writing to the program's log, from any thread.
///
///     Log::info("UdpClient::bind") << "bound to port:" << port;
///
/// The message is written as one record when the temporary is destroyed, so records of different
/// threads never mix. The call site names the function, because compilers spell it differently.
namespace Log
{

enum class Severity { Info, Warning, Error };

/// One log record under construction. Numbers print in decimal, booleans as 0 or 1, strings as
/// UTF-8.
///
/// Strings may come from the display, from a service or from a file. Their control characters are
/// escaped (\n, \xNN), so that they can neither begin a new line nor control a terminal.
/// Literals (const char*) are the program's own text and stay as they are.
class Message
{
public:
    /// @param function  qualified name, `Class::method`; a literal, as it must outlive the message
    Message(Severity severity, const char* function, const char* file, int line) noexcept
        : m_severity(severity)
        , m_function(function)
        , m_file(file)
        , m_line(line)
    {
    }
    ~Message();
    Message(const Message&) = delete;
    Message& operator=(const Message&) = delete;

    Message& operator<<(std::string_view text);
    Message& operator<<(const char* text);
    Message& operator<<(const std::string& text) { return *this << std::string_view(text); }
    Message& operator<<(const QByteArray& text);
    Message& operator<<(QStringView text);
    Message& operator<<(const QString& text) { return *this << QStringView(text); }
    Message& operator<<(char character) { return *this << std::string_view(&character, 1); }
    Message& operator<<(bool flag) { return *this << (flag ? "1" : "0"); }
    Message& operator<<(const void* pointer);
    Message& operator<<(double number);

    template <typename Integer>
    requires(std::is_integral_v<Integer> && !std::is_same_v<Integer, bool> &&
             !std::is_same_v<Integer, char>) Message&
    operator<<(Integer number)
    {
        if constexpr (std::is_signed_v<Integer>)
            return appendSigned(number);
        else
            return appendUnsigned(number);
    }

private:
    Message& appendSigned(std::int64_t number);
    Message& appendUnsigned(std::uint64_t number);

    Severity m_severity;
    const char* m_function;
    const char* m_file;
    int m_line;
    std::string m_text;
};

// The builtins stand in for std::source_location, which the clang tools of the oldest supported
// system do not know.
[[nodiscard]] inline Message info(const char* function, const char* file = __builtin_FILE(),
                                  int line = __builtin_LINE())
{
    return {Severity::Info, function, file, line};
}

[[nodiscard]] inline Message warning(const char* function, const char* file = __builtin_FILE(),
                                     int line = __builtin_LINE())
{
    return {Severity::Warning, function, file, line};
}

[[nodiscard]] inline Message error(const char* function, const char* file = __builtin_FILE(),
                                   int line = __builtin_LINE())
{
    return {Severity::Error, function, file, line};
}

/// Writes a complete text as one record. Allocates no memory unless the record begins a new file,
/// so that a crash handler may call it. If the crash happened inside the log, the text goes to
/// standard error only.
/// @param function  as for Message
void write(Severity severity, const char* function, std::string_view text,
           const char* file = __builtin_FILE(), int line = __builtin_LINE()) noexcept;

/// Qualified function name of the record that glog is writing on this thread, for the line prefix.
/// Empty for records of libraries, which use glog directly.
[[nodiscard]] std::string_view currentFunction() noexcept;

} // namespace Log
