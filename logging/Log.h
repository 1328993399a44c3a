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
/// The message is written as one record when the temporary ends, so records of several threads
/// never mix. The qualified function name is given at the call site because compilers spell it
/// differently.
namespace Log
{

enum class Severity { Info, Warning, Error };

/// One log record under construction. Numbers print in decimal, booleans as 0 or 1, strings as
/// UTF-8.
class Message
{
public:
    /// @param function  qualified name as `Class::method`; has to outlive the message (a literal).
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
    Message& operator<<(const char* text)
    {
        return *this << std::string_view(text ? text : "(null)");
    }
    Message& operator<<(const std::string& text) { return *this << std::string_view(text); }
    Message& operator<<(const QByteArray& text);
    Message& operator<<(QStringView text);
    Message& operator<<(const QString& text) { return *this << QStringView(text); }
    Message& operator<<(char character) { return *this << std::string_view(&character, 1); }
    Message& operator<<(bool flag) { return *this << (flag ? '1' : '0'); }
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

// The caller's file and line come from the compilers' builtins: the clang tools of the oldest
// system we build on do not know std::source_location.
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

/// Writes one record at once, for text that is already whole. Takes no memory from the heap, except
/// where the record begins a new file, so that a crash handler may use it; when the crash came from
/// inside the log, the text goes to standard error only.
/// @param function  as for Message.
void write(Severity severity, const char* function, std::string_view text,
           const char* file = __builtin_FILE(), int line = __builtin_LINE()) noexcept;

/// Qualified function name of the record that glog is writing on this thread; empty for records
/// that did not come through this header. The line prefix reads it.
[[nodiscard]] std::string_view currentFunction() noexcept;

} // namespace Log
