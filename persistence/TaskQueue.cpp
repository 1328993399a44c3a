#include "persistence/TaskQueue.h"

#include "logging/Log.h"

#include <QHash>

#include <algorithm>
#include <chrono>

using std::chrono::steady_clock;

TaskQueue::TaskQueue(Actions actions)
    : TaskQueue(std::move(actions), Timing())
{
}

TaskQueue::TaskQueue(Actions actions, Timing timing)
    : m_actions(std::move(actions))
    , m_timing(timing)
{
    m_retryTimer.setSingleShot(true);
    connect(&m_retryTimer, &QTimer::timeout, this, [this] {
        m_delayed.reset();
        if (!m_isProcessing)
            processTask();
    });
    Log::info("TaskQueue::TaskQueue") << "TaskQueue";
}

TaskQueue::~TaskQueue()
{
    Log::info("TaskQueue::~TaskQueue") << "~TaskQueue";
}

void TaskQueue::addTask(QString task, QVariantList args)
{
    if (!replaceWaiting(task, args))
        m_tasks.append({std::move(task), std::move(args), {}});
    if (!m_isProcessing)
        processTask();
}

bool TaskQueue::replaceWaiting(const QString& task, const QVariantList& args)
{
    const Action* const action = actionOf(task);
    if (!action || action->kind != Kind::ValueWrite || args.isEmpty())
        return false;
    const auto isSameValue = [&](const Task& waiting) {
        return waiting.task == task && waiting.args.size() == args.size() &&
               std::equal(args.cbegin(), args.cend() - 1, waiting.args.cbegin());
    };
    const auto waiting = std::find_if(m_tasks.begin(), m_tasks.end(), isSameValue);
    if (waiting == m_tasks.end())
        return false;
    waiting->args = args;
    return true;
}

void TaskQueue::processTask()
{
    const auto next = std::find_if(m_tasks.cbegin(), m_tasks.cend(),
                                   [this](const Task& task) { return task.task != m_delayed; });
    m_isProcessing = next != m_tasks.cend();
    if (!m_isProcessing)
        return;
    const qsizetype position = next - m_tasks.cbegin();
    attempt(m_tasks.takeAt(position), position);
    QTimer::singleShot(0, this, &TaskQueue::processTask);
}

void TaskQueue::attempt(Task task, qsizetype position)
{
    if (!task.patience) {
        Log::info("TaskQueue::processTask") << task.task;
        task.patience.emplace(m_timing.retryPatience);
    }
    const Action* const action = actionOf(task.task);
    if (!action || action->perform(task.args, task.patience->hasExpired()) == Outcome::Done)
        return;
    m_delayed = task.task;
    m_tasks.insert(position, std::move(task));
    m_retryTimer.start(m_timing.retryInterval);
}

void TaskQueue::finish()
{
    QStringList discarded;
    QHash<QString, steady_clock::duration> spent;
    while (!m_tasks.isEmpty()) {
        const Task task = m_tasks.takeFirst();
        const Action* const action = actionOf(task.task);
        if (!action)
            continue;
        if (action->kind == Kind::Launch || spent[task.task] >= m_timing.finishPatience) {
            discarded += task.task;
            continue;
        }
        Log::info("TaskQueue::processTask") << task.task;
        const auto start = steady_clock::now();
        action->perform(task.args, true);
        spent[task.task] += steady_clock::now() - start;
    }
    if (!discarded.isEmpty())
        Log::warning("TaskQueue::finish") << "discarded:" << discarded.join(QStringLiteral(", "));
}

const TaskQueue::Action* TaskQueue::actionOf(const QString& task) const
{
    const auto action = std::find_if(m_actions.cbegin(), m_actions.cend(),
                                     [&task](const Action& each) { return each.name == task; });
    return action == m_actions.cend() ? nullptr : &*action;
}
