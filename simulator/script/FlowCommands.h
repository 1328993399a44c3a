#pragma once

#include "simulator/script/Feature.h"

namespace simulator
{

class EventLog;

/// The commands that only steer the script: wait, echo, quit.
class FlowCommands : public Feature
{
    Q_OBJECT

public:
    FlowCommands(EventLog& log, QObject* parent)
        : Feature(parent)
        , m_log(log)
    {
    }

    QString name() const override;
    void addCommands(CommandInterpreter& interpreter) override;

    /// From now on `quit` without a code ends with 1.
    void noteFailure() { m_failed = true; }

signals:
    void quitRequested(int exitCode);

private:
    EventLog& m_log;
    bool m_failed = false;
};

} // namespace simulator
