#include "simulator/script/ScriptRunner.h"

#include "simulator/script/EventLog.h"

#include <utility>

using namespace simulator;
using namespace Qt::StringLiterals;

ScriptRunner::ScriptRunner(const QString& source, OnFailure onFailure,
                           const CommandInterpreter& interpreter, EventLog& log, QObject* parent)
    : QObject(parent)
    , m_source(source)
    , m_onFailure(onFailure)
    , m_interpreter(interpreter)
    , m_log(log)
{
    m_advanceTimer.setSingleShot(true);
    m_limitTimer.setSingleShot(true);
    m_limitTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_advanceTimer, &QTimer::timeout, this, &ScriptRunner::advance);
    connect(&m_limitTimer, &QTimer::timeout, this, [this] {
        checkWait(true);
        advance();
    });
}

QStringList ScriptRunner::load(const QString& text)
{
    QStringList errors;
    std::deque<Entry> entries;
    const QStringList lines = text.split(u'\n');
    for (const QString& line : lines) {
        if (const QString error = take(++m_lines, line, entries); !error.isEmpty())
            errors.append(error);
    }
    if (errors.isEmpty()) {
        m_entries = std::move(entries);
        m_idle = false;
        recheck();
    }
    return errors;
}

QString ScriptRunner::append(const QString& text)
{
    QString error = take(++m_lines, text, m_entries);
    m_idle = false;
    recheck();
    return error;
}

QString ScriptRunner::take(int line, const QString& text, std::deque<Entry>& entries) const
{
    auto parsed = m_interpreter.parse(text);
    if (!parsed.error.isEmpty())
        return u"%1:%2: %3"_s.arg(m_source).arg(line).arg(parsed.error);
    if (parsed.action)
        entries.push_back({line, text.trimmed(), std::move(parsed.action)});
    return {};
}

void ScriptRunner::advance()
{
    if (m_wait)
        checkWait(false);
    while (!m_wait && !m_stopped && !m_entries.empty()) {
        Entry entry = std::move(m_entries.front());
        m_entries.pop_front();
        begin(std::move(entry));
    }
    if (!m_wait && !m_stopped && !std::exchange(m_idle, true))
        emit idle();
}

void ScriptRunner::begin(Entry entry)
{
    m_current = std::move(entry);
    m_log.write(
        u"command"_s,
        {{u"source"_s, m_source}, {u"line"_s, m_current->line}, {u"text"_s, m_current->text}});
    CommandOutcome outcome = m_current->action();
    switch (outcome.kind) {
    case CommandOutcome::Kind::Done:
        break;
    case CommandOutcome::Kind::Failed:
        fail(outcome.reason);
        break;
    case CommandOutcome::Kind::Quit:
        m_stopped = true;
        break;
    case CommandOutcome::Kind::Wait:
        m_limitTimer.start(outcome.limit);
        m_wait = std::move(outcome);
        checkWait(false);
        break;
    }
}

void ScriptRunner::checkWait(bool timeUp)
{
    if (!m_wait)
        return;
    if (m_wait->met && m_wait->met()) {
        const CommandOutcome wait = *std::exchange(m_wait, std::nullopt);
        m_limitTimer.stop();
        if (wait.failsWhenMet)
            fail(wait.reason);
        return;
    }
    if (timeUp) {
        const CommandOutcome wait = *std::exchange(m_wait, std::nullopt);
        if (wait.met && !wait.failsWhenMet)
            fail(wait.reason);
    }
}

void ScriptRunner::fail(const QString& reason)
{
    m_log.write(u"failed"_s, {{u"source"_s, m_source},
                              {u"line"_s, m_current->line},
                              {u"command"_s, m_current->text},
                              {u"reason"_s, reason}});
    m_stopped = m_onFailure == OnFailure::Stop;
    emit failed(u"%1:%2: %3: %4"_s.arg(m_source).arg(m_current->line).arg(m_current->text, reason));
}
