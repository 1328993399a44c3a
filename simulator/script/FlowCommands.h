#pragma once

#include "simulator/script/Feature.h"

namespace simulator
{

class EventLog;

/// The commands that control the script itself: wait, echo, quit.
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

    /// From now on the command "quit" without a code means exit code 1.
    void noteFailure() { m_failed = true; }

signals:
    void quitRequested(int exitCode);

private:
    EventLog& m_log;
    bool m_failed = false;
};

} // namespace simulator
