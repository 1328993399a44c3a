#pragma once

#include <glog/logging.h>

#include <QStringList>

#include <mutex>

/// Collects what is logged during its life, each record as "Class::function|text".
class LogCapture : private google::LogSink
{
public:
    LogCapture();
    ~LogCapture() override;

    /// What came since the last call.
    QStringList take();

private:
    void send(google::LogSeverity severity, const char* fullFilename, const char* baseFilename,
              int line, const google::LogMessageTime& time, const char* message,
              std::size_t length) override;

    std::mutex m_mutex;
    QStringList m_records;
};
