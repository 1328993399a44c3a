#pragma once

#include "logging/Log.h"

#include <glog/logging.h>

#include <QStringList>

#include <mutex>
#include <utility>

/// Collects the records that are logged during its lifetime, each as "I Class::function text". Any
/// thread.
class LogCapture : private google::LogSink
{
public:
    LogCapture() { google::AddLogSink(this); }
    ~LogCapture() override { google::RemoveLogSink(this); }
    Q_DISABLE_COPY_MOVE(LogCapture)

    /// Returns and removes the records collected so far.
    QStringList take()
    {
        const std::scoped_lock lock(m_mutex);
        return std::exchange(m_lines, {});
    }

    bool contains(const QString& line)
    {
        const std::scoped_lock lock(m_mutex);
        return m_lines.contains(line);
    }

private:
    using google::LogSink::send;
    void send(google::LogSeverity severity, const char*, const char*, int,
              const google::LogMessageTime&, const char* message, std::size_t length) override
    {
        const std::string_view function = Log::currentFunction();
        const std::scoped_lock lock(m_mutex);
        m_lines += QLatin1Char(google::GetLogSeverityName(severity)[0]) + QStringLiteral(" ") +
                   QString::fromUtf8(function.data(), qsizetype(function.size())) +
                   QLatin1Char(' ') + QString::fromUtf8(message, qsizetype(length));
    }

    std::mutex m_mutex;
    QStringList m_lines;
};
