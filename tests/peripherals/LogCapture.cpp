#include "LogCapture.h"

#include "logging/Log.h"

#include <utility>

LogCapture::LogCapture()
{
    google::AddLogSink(this);
}

LogCapture::~LogCapture()
{
    google::RemoveLogSink(this);
}

QStringList LogCapture::take()
{
    const std::scoped_lock lock(m_mutex);
    return std::exchange(m_records, {});
}

void LogCapture::send(google::LogSeverity, const char*, const char*, int,
                      const google::LogMessageTime&, const char* message, std::size_t length)
{
    const std::string_view function = Log::currentFunction();
    const auto text = QByteArray(function.data(), static_cast<qsizetype>(function.size())) + '|' +
                      QByteArray(message, static_cast<qsizetype>(length));
    const std::scoped_lock lock(m_mutex);
    m_records.append(QString::fromUtf8(text));
}
