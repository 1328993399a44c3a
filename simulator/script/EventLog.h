#pragma once

#include <QJsonObject>
#include <QString>

#include <iosfwd>

namespace simulator
{

/// Writes events as one JSON object per line and flushes each line. Main thread only.
class EventLog
{
public:
    /// @p out must outlive the log.
    explicit EventLog(std::ostream& out)
        : m_out(out)
    {
    }

    /// Writes {"event":"<event>", ...} with @p fields. The event is one word that needs no escape.
    void write(const QString& event, const QJsonObject& fields = {});

private:
    std::ostream& m_out;
};

} // namespace simulator
