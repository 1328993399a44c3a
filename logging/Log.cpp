#include "logging/Log.h"

#include "logging/Escaped.h"

#include <glog/logging.h>

#include <charconv>
#include <cstdio>

namespace
{

// A plain pointer: records are written even after the thread-local objects are destroyed.
constinit thread_local const char* g_function = nullptr;

google::LogSeverity glogSeverity(Log::Severity severity)
{
    switch (severity) {
    case Log::Severity::Warning:
        return google::GLOG_WARNING;
    case Log::Severity::Error:
        return google::GLOG_ERROR;
    case Log::Severity::Info:
        break;
    }
    return google::GLOG_INFO;
}

template <typename Number>
void appendNumber(std::string& text, Number number)
{
    char digits[32];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), number);
    text.append(digits, end.ptr);
}

} // namespace

namespace Log
{

std::string_view currentFunction() noexcept
{
    return g_function ? std::string_view(g_function) : std::string_view();
}

void write(Severity severity, const char* function, std::string_view text, const char* file,
           int line) noexcept
{
    if (g_function) {
        // Called by a crash handler that interrupted this thread inside glog, whose lock is held.
        std::fwrite(text.data(), 1, text.size(), stderr);
        if (!text.ends_with('\n'))
            std::fputc('\n', stderr);
        return;
    }
    if (glogSeverity(severity) < FLAGS_minloglevel)
        return; // glog drops such a record, too, but only after formatting it
    // glog truncates at the same length, but reads the whole text first.
    text = text.substr(0, google::LogMessage::kMaxLogMessageLen);
    // glog calls the prefix callback, which reads the name, while it constructs the message.
    g_function = function;
    try {
        google::LogMessage record(file, line, glogSeverity(severity));
        record.stream().clear(); // see the prefix callback in LogBackend.cpp
        record.stream().write(text.data(), static_cast<std::streamsize>(text.size()));
    } catch (...) {
        // Losing a record must not end the program.
    }
    g_function = nullptr;
}

Message::~Message()
{
    write(m_severity, m_function, m_text, m_file, m_line);
}

Message& Message::operator<<(std::string_view text)
{
    m_text += escaped(text);
    return *this;
}

Message& Message::operator<<(const char* text)
{
    m_text.append(text ? text : "(null)");
    return *this;
}

Message& Message::operator<<(const QByteArray& text)
{
    return *this << std::string_view(text.constData(), static_cast<std::size_t>(text.size()));
}

Message& Message::operator<<(QStringView text)
{
    return *this << text.toUtf8();
}

Message& Message::operator<<(const void* pointer)
{
    m_text.append("0x");
    char digits[2 * sizeof(pointer)];
    const auto value = reinterpret_cast<std::uintptr_t>(pointer);
    const auto end = std::to_chars(std::begin(digits), std::end(digits), value, 16);
    m_text.append(digits, end.ptr);
    return *this;
}

Message& Message::operator<<(double number)
{
    appendNumber(m_text, number);
    return *this;
}

Message& Message::appendSigned(std::int64_t number)
{
    appendNumber(m_text, number);
    return *this;
}

Message& Message::appendUnsigned(std::uint64_t number)
{
    appendNumber(m_text, number);
    return *this;
}

} // namespace Log
