#pragma once

#include "simulator/script/CommandInterpreter.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <deque>
#include <optional>

namespace simulator
{

class EventLog;

/// Runs the commands of one source, a scenario file or standard input, one after another.
/// Everything runs from the event loop, never inside a call to this object.
class ScriptRunner : public QObject
{
    Q_OBJECT

public:
    enum class OnFailure {
        Stop,    ///< the rest does not run
        Continue ///< the next command is as good as any
    };

    /// @p source names the script in events and messages.
    ScriptRunner(const QString& source, OnFailure onFailure, const CommandInterpreter& interpreter,
                 EventLog& log, QObject* parent = nullptr);

    /// Takes a whole script. The messages returned name each line that is wrong, and why; when
    /// there are any, nothing of it runs.
    QStringList load(const QString& text);
    /// Takes one more line. Returns the message if it is wrong; it is then passed over.
    QString append(const QString& text);
    /// To be called when something may have happened that a command waits for.
    void recheck() { m_advanceTimer.start(); }

signals:
    /// A command failed; after it either the script has stopped or it goes on.
    void failed(const QString& message);
    /// All commands taken so far have run, and none of them stopped the script.
    void idle();

private:
    struct Entry {
        int line;
        QString text;
        CommandAction action;
    };

    QString take(int line, const QString& text, std::deque<Entry>& entries) const;
    void advance();
    void begin(Entry entry);
    void lookAtWait(bool timeUp);
    void fail(const QString& reason);

    const QString m_source;
    const OnFailure m_onFailure;
    const CommandInterpreter& m_interpreter;
    EventLog& m_log;
    std::deque<Entry> m_entries;
    int m_lines = 0;
    bool m_stopped = false;
    bool m_idle = true;
    std::optional<Entry> m_current;
    std::optional<CommandOutcome> m_wait;
    QTimer m_advanceTimer; // of no duration: gathers the reasons to look again
    QTimer m_limitTimer;
};

} // namespace simulator
