#include "logging/LogBackend.h"

#include "logging/Log.h"
#include "logging/LogFile.h"

#include <glog/logging.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <memory>
#include <ostream>
#include <string>
#include <utility>

#ifdef VORN_GLOG_HAS_PREFIX_FORMATTER
#include <sstream>
#endif

namespace
{

// Position of glog's blank in the current record of this thread; 0 if the record comes from Log.
constinit thread_local std::size_t g_blankAt = 0;

struct Origin {
    std::string_view severity;
    std::string_view thread;
    std::string_view file;
    int line;
};

char* put(char* to, std::string_view text)
{
    return std::copy(text.begin(), text.end(), to);
}

/// @param width  number of digits to write; `number` must not have more
char* put(char* to, int number, int width)
{
    for (int place = width - 1; place >= 0; --place) {
        to[place] = static_cast<char>('0' + number % 10);
        number /= 10;
    }
    return to + width;
}

char* putTime(char* to, const google::LogMessageTime& time)
{
    to = put(to, 1 + time.month(), 2);
    *to++ = '-';
    to = put(to, time.day(), 2);
    *to++ = ' ';
    to = put(to, time.hour(), 2);
    *to++ = ':';
    to = put(to, (time.min)(), 2);
    *to++ = ':';
    to = put(to, time.sec(), 2);
    *to++ = '.';
    return put(to, time.usec(), 6);
}

// "[INFO] [05-19 10:11:12.123456] [ 4242] [Class::function]". Formatted in a buffer, which
// is faster than a stream.
void writePrefix(std::ostream& out, const Origin& origin, const google::LogMessageTime& time)
{
    constexpr std::size_t ThreadWidth = 5;
    char buffer[96];
    char* end = put(buffer, "[");
    end = put(end, origin.severity);
    end = put(end, "] [");
    end = putTime(end, time);
    end = put(end, "] [");
    const auto thread = origin.thread.substr(0, 24);
    end = std::fill_n(end, ThreadWidth - std::min(ThreadWidth, thread.size()), ' ');
    end = put(end, thread);
    end = put(end, "] [");
    out.write(buffer, end - buffer);

    const auto function = Log::currentFunction();
    if (function.empty()) {
        // A record of a library: glog adds a blank, which FileLogger removes. It remains in the
        // copy on standard error.
        out << origin.file << ':' << origin.line << ']';
        g_blankAt = static_cast<std::size_t>(end - buffer) + origin.file.size() + 2 +
                    std::to_string(origin.line).size();
        return;
    }
    g_blankAt = 0;
    out.write(function.data(), static_cast<std::streamsize>(function.size()));
    out.put(']');
    // glog writes a blank between prefix and text, which our form does not have. A stream in a
    // failed state ignores it; Log::write() clears the state before it writes the text.
    out.setstate(std::ios_base::badbit);
}

#ifdef VORN_GLOG_HAS_PREFIX_FORMATTER

void prefixCallback(std::ostream& out, const google::LogMessage& message, void*)
{
    std::ostringstream thread;
    thread << message.thread_id();
    writePrefix(out,
                {google::GetLogSeverityName(message.severity()), thread.str(), message.basename(),
                 message.line()},
                message.time());
}

void initGlog(const char* programName)
{
    google::InstallPrefixFormatter(&prefixCallback);
    google::InitGoogleLogging(programName);
}

using RecordTime = const std::chrono::system_clock::time_point&;
std::time_t seconds(RecordTime time)
{
    return std::chrono::system_clock::to_time_t(time);
}

#else

void prefixCallback(std::ostream& out, const google::LogMessageInfo& info, void*)
{
    char digits[16];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), info.thread_id).ptr;
    writePrefix(out,
                {info.severity,
                 {digits, static_cast<std::size_t>(end - digits)},
                 info.filename,
                 info.line_number},
                info.time);
}

void initGlog(const char* programName)
{
    google::InitGoogleLogging(programName, &prefixCallback);
}

using RecordTime = std::time_t;
std::time_t seconds(RecordTime time)
{
    return time;
}

#endif

/// Writes the log file. glog passes every record to the logger of its severity and to those of all
/// lower severities, so the logger of INFO receives each record exactly once.
class FileLogger final : public google::base::Logger
{
public:
    void Write(bool, RecordTime time, const char* text, std::size_t length) override
    {
        const std::string_view record(text, length);
        if (record.empty()) // glog's request to flush before a fatal end; nothing is buffered
            return;
        const LogFile::Limits limits{std::max<qint64>(FLAGS_max_log_size, 1) << 20,
                                     FLAGS_stop_logging_if_full_disk};
        const auto blankAt = std::exchange(g_blankAt, 0);
        if (blankAt > 0 && blankAt < record.size() && record[blankAt] == ' ') {
            std::string line(record.substr(0, blankAt));
            line += record.substr(blankAt + 1);
            m_file.write(line, seconds(time), limits);
            return;
        }
        m_file.write(record, seconds(time), limits);
    }
    void Flush() override {}
    google::uint32 LogSize() override { return static_cast<google::uint32>(m_file.size()); }

    LogFile& file() { return m_file; }

private:
    LogFile m_file;
};

/// Logger of the higher severities: without it glog writes files for them in the temporary folder.
class NullLogger final : public google::base::Logger
{
public:
    void Write(bool, RecordTime, const char*, std::size_t) override {}
    void Flush() override {}
    google::uint32 LogSize() override { return 0; }
};

FileLogger* g_fileLogger = nullptr; // owned by glog, which never deletes it

} // namespace

namespace Log
{

bool start(const QString& programName)
{
    if (g_fileLogger)
        return false;
    static const std::string s_name = programName.toStdString(); // glog keeps the pointer
    initGlog(s_name.c_str());

    auto fileLogger = std::make_unique<FileLogger>();
    g_fileLogger = fileLogger.get();
    google::base::SetLogger(google::GLOG_INFO, fileLogger.release());
    for (const auto severity : {google::GLOG_WARNING, google::GLOG_ERROR, google::GLOG_FATAL}) {
        google::SetLogDestination(severity, "");
        google::base::SetLogger(severity, std::make_unique<NullLogger>().release());
    }
    FLAGS_log_prefix = true; // the environment must not switch our line form off
    return true;
}

void setFile(const QString& base, const QString& extension)
{
    g_fileLogger->file().setDestination(base, extension);
}

} // namespace Log
