#pragma once

#include <QJsonObject>
#include <QString>

#include <iosfwd>

namespace simulator
{

/// What the simulator has to tell, one JSON object a line, each flushed at once. Main thread only.
class EventLog
{
public:
    /// @p out must outlive the log.
    explicit EventLog(std::ostream& out)
        : m_out(out)
    {
    }

    /// Writes {"event":"<event>", ...} with @p fields. The event is a plain word.
    void write(const QString& event, const QJsonObject& fields = {});

private:
    std::ostream& m_out;
};

} // namespace simulator
