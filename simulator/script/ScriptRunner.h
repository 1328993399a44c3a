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

/// Runs the commands of one source, a scenario file or standard input, one after another. Commands
/// run from the event loop and never inside a call to this object. Main thread only.
class ScriptRunner : public QObject
{
    Q_OBJECT

public:
    enum class OnFailure {
        Stop,    ///< the remaining commands do not run
        Continue ///< the next command runs
    };

    /// @p source names the script in events and messages.
    ScriptRunner(const QString& source, OnFailure onFailure, const CommandInterpreter& interpreter,
                 EventLog& log, QObject* parent = nullptr);

    /// Takes a whole script. Returns one message for each line with an error. If there are any,
    /// no line runs.
    QStringList load(const QString& text);
    /// Takes one more line. Returns a message, and ignores the line, if it has an error.
    QString append(const QString& text);
    /// Evaluates the condition of a waiting command again, from the event loop.
    void recheck() { m_advanceTimer.start(); }

signals:
    /// A command failed. OnFailure says whether the script continues.
    void failed(const QString& message);
    /// All commands taken so far have run and none of them ended the script.
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
    void checkWait(bool timeUp);
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
    QTimer m_advanceTimer; // of zero duration, so that several changes cause one evaluation
    QTimer m_limitTimer;
};

} // namespace simulator
